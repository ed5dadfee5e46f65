'use strict';

// The viewer of a film's captions. It knows nothing of where its data comes from: showFilm(data, root)
// builds the view of one film below the element `root`, and may be called again for another film;
// showFilms(films, root) builds the table of several. Both empty `root` first.
// Text of a film gets into the document as text alone, never as markup.

const kFramesASecond = 30000 / 1001;
const kTracks = 4; // rows of captions at a time
const kGroup = 24; // rows of the list
const kSpans = [5, 10, 20, 40, 90, 240]; // seconds in the enlarged stretch
const kSeverities = ['error', 'warning', 'note'];
const kSigns = {altered: '≠', digits: '#', advice: '✎'}; // behind marked letters, beside their colour

// ---- making elements ----

/** An element with its properties (`data-`, `aria-` and the like: attributes) and children. */
function make(tag, properties = {}, ...children) {
    const element = document.createElement(tag);
    for (const [name, value] of Object.entries(properties)) {
        if (name in element) element[name] = value;
        else if (value !== undefined && value !== false) element.setAttribute(name, value);
    }
    element.append(...children.flat(2).filter((child) => child !== null && child !== undefined));
    return element;
}

const kShapes = {error: 'M4 4l8 8M12 4l-8 8', warning: 'M8 2.5l6.3 11H1.7z', note: 'M8 4.5a3.5 3.5 0 1 0 .01 0z'};

/** The sign of a severity, a shape of its own for each. */
function signOf(severity) {
    const space = 'http://www.w3.org/2000/svg';
    const sign = document.createElementNS(space, 'svg');
    sign.setAttribute('viewBox', '0 0 16 16');
    sign.setAttribute('class', `sign ${severity}`);
    sign.setAttribute('aria-hidden', 'true');
    const shape = document.createElementNS(space, 'path');
    shape.setAttribute('d', kShapes[severity] || kShapes.note);
    sign.append(shape);
    return sign;
}

function counted(number, noun) {
    return `${number.toLocaleString('en')} ${noun}${number === 1 ? '' : 's'}`;
}

const seconds = (frames) => frames / kFramesASecond;

/** The timecode of a second of the film's clock, for the scale, and its frame. */
function scaleMark(second, dropFrame) {
    const minutes = Math.floor(second / 60);
    const two = (number) => String(number).padStart(2, '0');
    return {
        frame: second * 30 - (dropFrame ? 2 * (minutes - Math.floor(minutes / 10)) : 0),
        text: `${two(Math.floor(minutes / 60))}:${two(minutes % 60)}:${two(second % 60)}`,
    };
}

/** At most about `count` marks of a round step in the frames `from` to `to`. */
function scaleMarks(from, to, dropFrame, count) {
    const wanted = (to - from) / 30 / count;
    const step = [1, 2, 5, 10, 30, 60, 120, 300, 600, 1800, 3600, 7200].find((each) => each >= wanted) || 14400;
    const marks = [];
    for (let second = Math.max(0, Math.ceil(from / 30 / step) * step);; second += step) {
        const mark = scaleMark(second, dropFrame);
        if (mark.frame > to || marks.length > 100) return marks;
        if (mark.frame >= from) marks.push(mark);
    }
}

// ---- what the data says ----

/** The data with what the view looks up often. */
function filmOf(data) {
    const capital = (text) => text.charAt(0).toUpperCase() + text.slice(1);
    const kinds = (data.kinds || []).map((kind) => ({...kind, title: capital(kind.title)}));
    const film = {...data, kinds, counts: new Map(), captionOf: new Map(), rows: [], kindOf: new Map()};
    for (const kind of kinds) film.kindOf.set(kind.kind, kind);
    for (const caption of data.captions || []) film.captionOf.set(caption.caption, caption);
    const byLine = new Map();
    for (const finding of data.findings || []) {
        film.counts.set(finding.kind, (film.counts.get(finding.kind) || 0) + 1);
        if (!byLine.has(finding.line)) byLine.set(finding.line, []);
        byLine.get(finding.line).push(finding);
    }
    const header = data.header;
    if (header && byLine.has(header.line))
        film.rows.push({line: {...header, isHeader: true, words: [], seen: [], advice: []}, findings: byLine.get(header.line)});
    for (const line of data.lines || []) film.rows.push({line, findings: byLine.get(line.line) || []});
    for (const [index, row] of film.rows.entries()) {
        row.index = index;
        row.hasText = row.line.isHeader || row.line.text.trim() !== '' || row.line.seen.length > 0;
        row.captions = row.line.seen.map((number) => film.captionOf.get(number)).filter(Boolean);
        row.frame = row.line.frame ?? (index > 0 ? film.rows[index - 1].frame : null) ?? 0;
        row.end = row.frame + row.line.words.reduce((sum, word) => sum + word[1], 0);
    }
    film.rowOfLine = new Map(film.rows.map((row) => [row.line.line, row]));
    film.from = Math.min(data.summary.firstFrame ?? Infinity, film.rows[0]?.frame ?? 0);
    film.to = Math.max(data.summary.lastFrame ?? 0, film.rows[film.rows.length - 1]?.end ?? 0, film.from + 30);
    return film;
}

const severityOf = (film, kind) => film.kindOf.get(kind)?.severity || 'note';
const titleOf = (film, kind) => film.kindOf.get(kind)?.title || kind;

/** What is searched for a text. */
function searchedText(row) {
    const seen = row.captions.map((caption) => caption.rows.map((each) => each.text.trim()).join(' '));
    return [row.line.text, ...seen, `line ${row.line.line}`, row.line.start].join('\n').toLowerCase();
}

/** The last row that begins at a timecode or before it. */
function rowAt(film, time) {
    const plain = (text) => (text || '').replace(/[;.]/g, ':');
    const last = film.rows.filter((row) => row.hasText && !row.line.isHeader && plain(row.line.timecode) <= `${plain(time)}~`);
    return last[last.length - 1] || film.rows.find((row) => row.hasText);
}

/** The parts of an entry: {text, word, finding}, each from one word and with one finding or none. */
function partsOf(line, findings) {
    const letters = [];
    line.words.forEach((word, index) => {
        for (const letter of word[2] || '') letters.push({letter, word: index, finding: null});
    });
    if (letters.length === 0) // a header, say
        return line.text ? [{text: line.text, word: null, finding: null}] : [];
    for (const finding of findings) {
        for (let at = finding.entryFrom ?? 0; at < (finding.entryTo ?? 0) && at < letters.length; ++at)
            letters[at].finding ??= finding;
    }
    const parts = [];
    for (const {letter, word, finding} of letters) {
        const last = parts[parts.length - 1];
        if (last && last.word === word && last.finding === finding) last.text += letter;
        else parts.push({text: letter, word, finding});
    }
    return parts;
}

// ---- a line of the list ----

/** The entry with its marks, each finding a mark; with `words`, each word's letters can be pointed at. */
function entryOf(film, row, words) {
    const entry = make('p', {className: 'text'});
    let mark = null;
    let marked = null;
    const endMark = () => {
        if (mark) mark.append(make('span', {className: 'by', 'aria-hidden': 'true'}, kSigns[marked.kind] || '!'));
        mark = marked = null;
    };
    const parts = partsOf(row.line, row.findings);
    if (parts.length) parts[0].text = parts[0].text.replace(/^ /, ''); // which every entry begins with
    for (const part of parts) {
        if (part.finding !== marked) endMark();
        if (part.finding && !mark) {
            marked = part.finding;
            mark = make('mark', {className: severityOf(film, marked.kind), title: marked.text, 'data-kind': marked.kind});
            entry.append(mark);
        }
        (mark || entry).append(!words || part.word === null ? part.text : make('span', {'data-word': part.word}, part.text));
    }
    endMark();
    entry.normalize();
    return entry;
}

function styleClasses(style) {
    const classes = [];
    if (style.colour) classes.push(`colour-${style.colour}`);
    if (style.italics) classes.push('italics');
    if (style.underline) classes.push('underline');
    if (style.background) classes.push(`back-${String(style.background).split(' ')[0]}`);
    if (style.flash) classes.push('flash');
    return classes.join(' ');
}

/** The letters of a caption's row with their columns, styles and words. */
function cellsOf(row) {
    const words = (row.from || []).flatMap(([line, indexes]) => indexes.map((word) => ({line, word})));
    return Array.from(row.text, (letter, index) => {
        const column = row.column + index;
        const style = (row.styles || []).find((each) => each.from <= column && column <= each.to);
        return {letter, column, classes: style ? styleClasses(style) : '', ...words[index]};
    });
}

/** What a viewer sees, as small as a line of the list; letters that other lines sent stand back. */
function smallCaption(caption, ofLine) {
    const left = Math.min(...caption.rows.map((row) => row.column));
    const rows = caption.rows.map((row) => {
        const element = make('span', {className: 'row'});
        element.style.setProperty('--indent', row.column - left);
        let last = null;
        for (const cell of cellsOf(row)) {
            const classes = cell.classes + (cell.line && cell.line !== ofLine ? ' other' : '');
            if (last?.className !== classes) element.append(last = make('span', {className: classes}));
            last.textContent += cell.letter;
        }
        return element;
    });
    return make('div', {className: 'small-screen'}, rows);
}

function timesOf(caption) {
    const parts = [`${caption.start} – ${caption.end || 'the end'}`];
    if (caption.endFrame !== undefined) parts.push(`${seconds(caption.endFrame - caption.startFrame).toFixed(1)} s`);
    if (caption.rate) parts.push(`${Math.round(caption.rate)} characters/s`);
    return make('p', {className: 'times'}, parts.map((part) => make('span', {}, part)));
}

/** What lines without captions of their own do to the screen. */
function effectOf(line) {
    const list = (numbers) => `caption${numbers.length === 1 ? '' : 's'} ${numbers.join(', ')}`;
    const effects = [];
    if (line.shows?.length) effects.push(`shows ${list(line.shows)}`);
    if (line.removes?.length) effects.push(`removes ${list(line.removes)}`);
    return effects.join(', ');
}

function seenOf(row) {
    const seen = make('div', {className: 'seen'});
    for (const caption of row.captions.slice(0, 4)) seen.append(smallCaption(caption, row.line.line), timesOf(caption));
    if (row.captions.length > 4) seen.append(make('p', {className: 'times'}, `and ${row.captions.length - 4} more`));
    if (row.captions.length === 0 && !row.line.isHeader)
        seen.append(make('p', {className: 'quiet'}, effectOf(row.line) || 'nothing loaded'));
    return seen;
}

/** The kinds of findings on a row; on paper, their texts (`data-text`). */
function chipsOf(film, findings) {
    const texts = new Map();
    for (const {kind, text} of findings) texts.set(kind, [...texts.get(kind) || [], text]);
    return make('ul', {className: 'chips'}, [...texts].map(([kind, all]) =>
        make('li', {className: severityOf(film, kind), 'data-text': all.join(' ')}, signOf(severityOf(film, kind)),
            make('span', {}, titleOf(film, kind) + (all.length > 1 ? ` ×${all.length}` : '')))));
}

/** The element of a row, empty at first: a list of thousands appears at once and is filled by and by. */
function elementOf(row) {
    if (row.element) return row.element;
    row.element = make('div', {role: 'listitem', id: `line-${row.line.line}`, className: row.hasText ? 'line' : 'line blank'});
    row.element.row = row;
    return row.element;
}

function fillRow(film, row) {
    if (row.button) return;
    const {line} = row;
    row.button = make('button', {type: 'button', className: 'open', 'aria-expanded': 'false'},
        make('span', {className: 'number'}, line.isHeader ? 'Header' : String(line.entry)),
        make('span', {className: 'start'}, line.start || ''));
    row.entry = entryOf(film, row, false);
    elementOf(row).append(
        make('div', {className: 'when'}, row.button,
            make('a', {href: `#line-${line.line}`, className: 'link'}, `line ${line.line}`)),
        make('div', {className: 'entry'}, row.entry, row.findings.length ? chipsOf(film, row.findings) : null),
        seenOf(row));
}

/**
 * Puts rows into a list, in groups that the browser passes over as a whole where they are out of view. Rows
 * are filled as they come near the view, the others while there is nothing else to do.
 */
function listerOf(film, list, leave) {
    let waiting = []; // groups
    let isOn = false;
    const fill = (group) => { for (const element of group.children) fillRow(film, element.row); };
    const near = new IntersectionObserver((entries) => {
        for (const {isIntersecting, target} of entries) {
            if (!isIntersecting) continue;
            near.unobserve(target);
            fill(target);
        }
    }, {rootMargin: '50% 0px'});
    const idle = window.requestIdleCallback || ((work) => setTimeout(work, 16));
    const work = () => {
        if (waiting.length) fill(waiting.shift());
        isOn = waiting.length > 0 && !leave.aborted;
        if (isOn) idle(work);
    };
    leave.addEventListener('abort', () => near.disconnect());
    window.addEventListener('beforeprint', () => waiting.splice(0).forEach(fill), {signal: leave});
    return (rows) => {
        near.disconnect();
        const groups = [];
        for (let at = 0; at < rows.length; at += kGroup) {
            const some = rows.slice(at, at + kGroup);
            const group = make('div', {className: 'group', role: 'none'}, some.map(elementOf));
            group.style.setProperty('--rows', some.length);
            groups.push(group);
            near.observe(group);
        }
        list.replaceChildren(...groups);
        waiting = groups;
        if (!isOn && groups.length) idle(work);
        isOn = groups.length > 0;
    };
}

// ---- a line opened ----

/** The screen of 15 rows and 32 columns with a caption on it. */
function screenOf(caption, line) {
    const screen = make('div', {className: 'screen', role: 'img',
        'aria-label': `Caption ${caption.caption}: ${caption.rows.map((row) => row.text.trim()).join(' / ')}`});
    for (const row of caption.rows) {
        for (const cell of cellsOf(row)) {
            const letter = make('span', {className: cell.classes}, cell.letter);
            if (cell.line === line && cell.word >= 0) letter.setAttribute('data-word', cell.word);
            letter.style.setProperty('grid-area', `${row.row} / ${cell.column}`);
            screen.append(letter);
        }
    }
    const facts = [['Seen', `${caption.start} – ${caption.end || 'the end'}`],
        ['Mode', `${caption.mode}, ${caption.service}`],
        ['Rows', caption.rows.map((row) => row.row).join(', ')],
        ['Shown by', caption.shownBy ? `line ${caption.shownBy}` : ''],
        ['Removed by', caption.removedBy ? `line ${caption.removedBy}` : 'nothing']];
    return make('figure', {}, screen, make('figcaption', {},
        make('h4', {}, `Caption ${caption.caption}`), listOf(facts)));
}

/** A list of names and values; those without a value are left out. */
function listOf(facts, className = 'facts') {
    return make('dl', {className}, facts.filter(([, value]) => value !== '' && value !== null && value !== undefined)
        .map(([name, value]) => make('div', {}, make('dt', {}, name), make('dd', {}, String(value)))));
}

function becameOf([, , text = '', kept = '', swallowed = '']) {
    const parts = [text === '' ? 'deleted' : text.trim() === '' ? 'blank' : `“${text}”`];
    if (swallowed !== '') parts.push(`${swallowed} swallowed`);
    if (kept !== '') parts.push(`${kept} kept`);
    return make('td', {className: kept || swallowed ? 'became changed' : text.trim() === '' ? 'became quiet' : 'became'}, parts.join(', '));
}

function wordsOf(film, line) {
    const several = film.summary.services.length > 1;
    const heads = ['Frame', 'Words', ...several ? ['Service'] : [], 'Meaning', 'In the transcript'];
    let frame = 0;
    const rows = line.words.map((word, index) => {
        const [digits, service, name, parity] = film.codes[word[0]];
        const shown = word[1] <= 2 ? Array(word[1]).fill(digits).join(' ') : `${digits} ×${word[1]}`;
        const row = make('tr', {'data-word': index},
            make('td', {className: 'frame'}, `+${frame}`), make('td', {className: 'digits'}, shown),
            several ? make('td', {}, service) : null,
            make('td', {}, name, parity === false ? make('em', {}, ' wrong parity') : null), becameOf(word));
        frame += word[1];
        return row;
    });
    return make('table', {}, make('caption', {}, 'Words'),
        make('thead', {}, make('tr', {}, heads.map((head) => make('th', {scope: 'col'}, head)))),
        make('tbody', {}, rows));
}

function adviceOf(film, row) {
    const told = new Set(row.findings.map((finding) => finding.text));
    const items = row.findings.map((finding) => make('li', {className: severityOf(film, finding.kind)},
        signOf(severityOf(film, finding.kind)), make('span', {}, make('b', {}, `${titleOf(film, finding.kind)}. `), finding.text)));
    for (const text of row.line.advice || []) {
        if (!told.has(text)) items.push(make('li', {className: 'note'}, signOf('note'), make('span', {}, text)));
    }
    return items.length ? make('ul', {className: 'advice'}, items) : make('p', {className: 'quiet'}, 'Nothing to correct.');
}

function detailOf(film, row) {
    const {line} = row;
    const facts = [['Sent', line.timecode], ['Takes', `${counted(row.end - row.frame, 'frame')}`],
        ['In the transcript at', line.start], ['Mode', line.mode], ['On the screen', row.captions.length ? '' : effectOf(line)]];
    return make('section', {className: 'detail', 'aria-label': `Details of line ${line.line}`},
        make('div', {className: 'do'}, make('h3', {}, 'What to do'), adviceOf(film, row)),
        line.isHeader ? null : make('div', {className: 'screens'}, row.captions.slice(0, 8).map((caption) => screenOf(caption, line.line)),
            make('div', {}, make('h4', {}, `Line ${line.line}`), listOf(facts))),
        line.words.length ? make('div', {className: 'words'}, wordsOf(film, line)) : null);
}

/** Opens a line, or closes it. */
function toggle(film, row, open = row.button.getAttribute('aria-expanded') !== 'true') {
    row.button.setAttribute('aria-expanded', String(open));
    const entry = entryOf(film, row, open);
    row.entry.replaceWith(entry);
    row.entry = entry;
    row.detail?.remove();
    row.detail = open ? detailOf(film, row) : null;
    if (open) row.element.append(row.detail);
    row.element.classList.toggle('opened', open);
}

/** Marks all letters and words that belong to the one pointed at, and no others. */
function pointAt(list, target) {
    for (const pointed of list.querySelectorAll('.pointed')) pointed.classList.remove('pointed');
    const word = target?.closest?.('[data-word]');
    const line = word?.closest('.opened');
    if (!line) return;
    for (const same of line.querySelectorAll(`[data-word="${word.dataset.word}"]`)) same.classList.add('pointed');
}

// ---- the head ----

function headOf(film) {
    const {summary} = film;
    const facts = [['Captions', summary.captions.toLocaleString('en')], ['Lines', summary.lines?.toLocaleString('en')],
        ['First', summary.first], ['Last', summary.last], ['Timecode', summary.dropFrame ? 'drop-frame' : 'non-drop'],
        ['Mode', summary.modes.join(', ')], ['Service', summary.services.join(', ')],
        ['Fastest', summary.fastest ? `${Math.round(summary.fastest)} characters/s` : ''],
        ['Longest row', summary.longestRow ? counted(summary.longestRow, 'column') : '']];
    return make('header', {className: 'film'}, make('h1', {}, film.file), listOf(facts, 'summary'));
}

/** Switches for the kinds of findings; `change` is called with the kinds that are on. */
function switchesOf(film, change) {
    const on = new Set();
    const group = make('div', {className: 'switches', role: 'group', 'aria-label': 'Show only lines with these findings'});
    for (const kind of film.kinds || []) {
        const count = film.counts.get(kind.kind) || 0;
        const button = make('button', {type: 'button', className: kind.severity, title: `Show these alone (${kind.severity})`, 'aria-pressed': 'false', 'data-kind': kind.kind},
            signOf(kind.severity), kind.title, kSigns[kind.kind] ? make('span', {className: 'by', 'aria-hidden': 'true'}, kSigns[kind.kind]) : null,
            make('b', {}, count.toLocaleString('en')));
        button.addEventListener('click', () => {
            if (!on.delete(kind.kind)) on.add(kind.kind);
            button.setAttribute('aria-pressed', String(on.has(kind.kind)));
            change(on);
        });
        group.append(button);
    }
    if (!film.kinds?.length) group.append(make('p', {className: 'quiet'}, 'No findings.'));
    return group;
}

// ---- the strips ----

/** The whole film on one strip: when lines are sent, when captions are seen, where findings lie. */
function paintStrip(canvas, film, found) {
    const scale = window.devicePixelRatio || 1;
    const width = canvas.clientWidth;
    const height = canvas.clientHeight;
    if (!width) return;
    canvas.width = width * scale;
    canvas.height = height * scale;
    const brush = canvas.getContext('2d');
    const style = getComputedStyle(canvas);
    const paintWith = (name) => { brush.fillStyle = style.getPropertyValue(`--${name}`); };
    brush.scale(scale, scale);
    const x = (frame) => (frame - film.from) / (film.to - film.from) * width;
    const bar = (from, to, top, tall, least) => brush.fillRect(x(from), top, Math.max(least, x(to) - x(from)), tall);
    paintWith('sent');
    for (const row of film.rows) if (row.end > row.frame) bar(row.frame, row.end, 2, 7, 0.6);
    paintWith('seen');
    for (const caption of film.captions) bar(caption.startFrame, caption.endFrame ?? film.to, 11, 12, 0.6);
    for (const severity of [...kSeverities].reverse()) {
        paintWith(severity);
        for (const row of found) if (row.worst === severity) bar(row.frame, row.frame, 25, 7, 2);
    }
    paintWith('quiet');
    brush.font = `11px ${style.fontFamily}`;
    for (const mark of scaleMarks(film.from, film.to, film.summary.dropFrame, Math.max(2, width / 110))) {
        brush.fillRect(x(mark.frame), height - 15, 1, 4);
        const half = brush.measureText(mark.text).width / 2;
        brush.fillText(mark.text, Math.min(width - 2 * half, Math.max(0, x(mark.frame) - half)), height - 1);
    }
}

/** The stretch around the chosen line, enlarged. `choose` is called with a row that is clicked. */
function fillStretch(stretch, film, view, choose) {
    const place = (element, from, to) => {
        element.style.setProperty('left', `${(from - view.from) / (view.to - view.from) * 100}%`);
        if (to !== undefined) element.style.setProperty('width', `${Math.max(0.3, (to - from) / (view.to - view.from) * 100)}%`);
        return element;
    };
    const isIn = (from, to) => to >= view.from && from <= view.to;
    const block = (className, row, isChosen, from, to, label, text) => {
        const button = make('button', {type: 'button', className, title: label, 'aria-label': label}, make('span', {}, text));
        if (isChosen) button.classList.add('chosen');
        button.addEventListener('click', () => choose(row));
        return place(button, Math.max(from, view.from), Math.min(to, view.to));
    };
    const lane = (name, children) => make('div', {className: `lane ${name}`, role: 'group', 'aria-label': name}, children);
    let end = -1;
    const sent = film.rows.filter((row) => row.end > row.frame && isIn(row.frame, row.end)).map((row) => {
        const overlaps = row.frame < end;
        end = Math.max(end, row.end);
        return block(overlaps ? 'overlap' : '', row, row === view.row, row.frame, row.end,
            `Line ${row.line.line}, sent ${row.line.timecode}, ${counted(row.end - row.frame, 'frame')}${overlaps ? ', overlapping the line before' : ''}`, String(row.line.line));
    });
    const tracks = []; // until when each is taken: captions that are seen together stand below each other
    const seen = film.captions.filter((caption) => isIn(caption.startFrame, caption.endFrame ?? film.to)).map((caption) => {
        const free = tracks.findIndex((until) => until <= caption.startFrame);
        const track = free >= 0 ? free : Math.min(tracks.length, kTracks - 1);
        tracks[track] = caption.endFrame ?? film.to;
        const text = caption.rows.map((row) => row.text.trim()).join(' ');
        const row = film.rowOfLine.get(caption.lines[0]) || film.rowOfLine.get(caption.shownBy);
        const button = block('', row, caption.lines.includes(view.row.line.line), caption.startFrame, caption.endFrame ?? film.to, `Caption ${caption.caption}, seen ${caption.start} to ${caption.end || 'the end'}: ${text}`, text);
        button.style.setProperty('--track', track);
        return button;
    });
    film.tracks = Math.max(film.tracks || 1, tracks.length); // never less than before: the list must not jump
    stretch.parentElement.style.setProperty('--tracks', film.tracks);
    const found = view.found.filter((row) => isIn(row.frame, row.frame)).map((row) => {
        const button = make('button', {type: 'button', 'aria-label': `Line ${row.line.line}: ${row.findings.map((each) => titleOf(film, each.kind)).join(', ')}`,
            title: row.findings.map((each) => each.text).join('\n')}, signOf(row.worst));
        button.addEventListener('click', () => choose(row));
        return place(button, row.frame);
    });
    const marks = scaleMarks(view.from, view.to, film.summary.dropFrame, Math.max(2, stretch.clientWidth / 110));
    stretch.replaceChildren(lane('sent', sent), lane('seen', seen), lane('found', found),
        make('div', {className: 'scale', 'aria-hidden': 'true'}, marks.map((mark) => place(make('span', {}, mark.text), mark.frame))));
}

// ---- the film ----

const kKeys = [['j k', 'next, previous caption'], ['n p', 'next, previous finding'], ['Enter', 'open or close'], ['/', 'search'], ['Esc', 'show all']];

/** What the lanes of a strip are called, for the eye. */
function namesOf() {
    return make('div', {className: 'names', 'aria-hidden': 'true'}, ['sent', 'seen', 'found'].map((name) => make('span', {}, name)));
}

function keysOf() {
    return make('p', {className: 'keys'}, kKeys.map(([keys, does]) =>
        make('span', {}, keys.split(' ').flatMap((key) => [make('kbd', {}, key), ' ']), does)));
}

/** A file that was refused: why, where and the cure. */
function showRefusal(data, root) {
    const {refused} = data;
    const around = (refused.around || []).map((each) => make('li', {className: each.line === refused.line ? 'refused' : '', value: each.line},
        each.text.split('\t').flatMap((text, index) => index ? [make('span', {className: 'tab'}, '\t'), text] : [text || ' '])));
    root.replaceChildren(make('header', {className: 'film'}, make('h1', {}, data.file)),
        make('section', {className: 'refusal', role: 'alert'}, make('h2', {}, signOf('error'), 'No transcript can be made from this file'),
            make('p', {className: 'message'}, refused.line ? `Line ${refused.line}: ` : '', refused.text),
            refused.help ? make('p', {}, refused.help) : null,
            around.length ? make('ol', {className: 'around'}, around) : null));
    return {toolbar: root.firstChild};
}

/**
 * Shows a film below `root`. Gives {toolbar, choose}: an empty element in the head for whoever has more
 * to offer, and a function that goes to a line by its number.
 */
function showFilm(data, root) {
    root.leave?.abort();
    const leave = root.leave = new AbortController(); // ends what listens beyond `root`
    root.classList.add('viewer');
    if (data.refused) return showRefusal(data, root);

    const film = filmOf(data);
    const state = {kinds: new Set(), query: '', blanks: false, span: window.innerWidth < 700 ? 1 : 2, row: film.rows.find((row) => row.hasText) || film.rows[0]};
    for (const row of film.rows) row.worst = kSeverities.find((severity) => row.findings.some((each) => severityOf(film, each.kind) === severity));
    let visible = [];
    let found = []; // rows with findings that are wanted

    const list = make('div', {className: 'lines', role: 'list', 'aria-label': 'Captions'});
    const fillList = listerOf(film, list, leave.signal);
    const status = make('p', {className: 'status', role: 'status'});
    const canvas = make('canvas', {});
    const strip = make('div', {className: 'strip', role: 'slider', tabIndex: 0, 'aria-label': 'The whole film', 'aria-valuemin': 1, 'aria-valuemax': Math.max(1, film.rows.length)},
        canvas, make('span', {className: 'window'}), make('span', {className: 'cursor'}));
    const stretch = make('div', {className: 'stretch', role: 'group', 'aria-label': 'Around the selected caption'});
    const search = make('input', {type: 'search', id: 'search', placeholder: 'Text or time, such as 00:12:30', 'aria-label': 'Search for text or time', autocomplete: 'off', spellcheck: false});
    const button = (text, label, action) => {
        const made = make('button', {type: 'button', 'aria-label': label, title: label}, text);
        made.addEventListener('click', action);
        return made;
    };

    const steps = (name, ...buttons) => make('span', {className: 'step', role: 'group', 'aria-label': name}, make('span', {'aria-hidden': 'true'}, name), buttons);

    const wantedFindings = (row) => row.findings.some((each) => state.kinds.size === 0 || state.kinds.has(each.kind));
    const isWanted = (row) => {
        if (state.kinds.size > 0 && !wantedFindings(row)) return false;
        if (state.query !== '') return (row.searched ??= searchedText(row)).includes(state.query);
        return row.hasText || row.findings.length > 0 || state.blanks || row === state.row;
    };
    const paint = () => {
        const row = state.row;
        if (!row) return;
        const length = kSpans[state.span] * kFramesASecond;
        const middle = row.captions.length ? (row.frame + row.captions[0].startFrame) / 2 : row.frame;
        const from = Math.max(film.from - 15, Math.min(middle - length / 2, film.to + 15 - length));
        const view = {from, to: from + length, row, found};
        const share = (frames) => `${frames / (film.to - film.from) * 100}%`;
        strip.style.setProperty('--at', share(row.frame - film.from));
        strip.style.setProperty('--from', share(Math.max(0, from - film.from)));
        strip.style.setProperty('--length', share(Math.min(length, film.to - from)));
        fillStretch(stretch, film, view, choose);
        const covered = getComputedStyle(bar).position === 'sticky' ? bar.offsetHeight : 0;
        document.documentElement.style.setProperty('--bar', `${covered}px`);
    };
    const paintAll = () => {
        paint();
        paintStrip(canvas, film, found);
    };
    const refresh = () => {
        visible = film.rows.filter(isWanted);
        found = film.rows.filter(wantedFindings);
        fillList(visible);
        const isAll = state.kinds.size === 0 && state.query === '';
        status.textContent = isAll ? '' : visible.length === 0 ? 'No line matches.' : `${visible.length.toLocaleString('en')} of ${counted(film.rows.length, 'line')}`;
        paintAll();
    };
    /** Goes to a row, which becomes the chosen one. */
    function choose(row, withFocus = true, withScroll = true) {
        if (!row) return;
        state.row?.element?.removeAttribute('aria-current');
        state.row = row;
        if (!visible.includes(row)) {
            if (!isWanted(row)) showAll();
            refresh();
        }
        fillRow(film, row);
        row.element.setAttribute('aria-current', 'true');
        strip.setAttribute('aria-valuenow', row.index + 1);
        strip.setAttribute('aria-valuetext', `Line ${row.line.line}, ${row.line.timecode || 'header'}`);
        if (withFocus) row.button.focus({preventScroll: true});
        paint();
        if (withScroll) row.element.scrollIntoView({block: row.detail ? 'start' : 'center'});
    }
    const step = (by, wanted) => {
        const at = visible.indexOf(state.row);
        for (let i = at + by; i >= 0 && i < visible.length; i += by) if (wanted(visible[i])) return choose(visible[i]);
        if (at < 0 && visible.length) choose(visible[0]);
        return undefined;
    };
    const isText = (row) => row.hasText || state.blanks;
    const zoom = (by) => {
        state.span = Math.min(kSpans.length - 1, Math.max(0, state.span + by));
        paint();
    };
    function showAll() {
        state.kinds.clear();
        for (const each of root.querySelectorAll('.switches [aria-pressed=true]')) each.setAttribute('aria-pressed', 'false');
        state.query = search.value = '';
    }

    const blankCount = film.rows.filter((row) => !row.hasText && row.findings.length === 0).length;
    const blanks = make('button', {type: 'button', className: 'blanks', 'aria-pressed': 'false'}, `${counted(blankCount, 'line')} of codes only`);
    blanks.addEventListener('click', () => {
        state.blanks = !state.blanks;
        blanks.setAttribute('aria-pressed', String(state.blanks));
        refresh();
    });
    const toolbar = make('div', {className: 'slot'});
    const head = headOf(film);
    head.append(switchesOf(film, (kinds) => {
        state.kinds = kinds;
        refresh();
    }), toolbar, keysOf());
    const bar = make('section', {className: 'bar', 'aria-label': 'Navigation'},
            make('div', {className: 'whole'}, namesOf(), strip), make('div', {className: 'enlarged'}, namesOf(), stretch),
            make('div', {className: 'tools'}, search, status,
                make('div', {className: 'steps'}, blankCount ? blanks : null,
                    steps('Caption', button('↑', 'Previous caption (k)', () => step(-1, isText)), button('↓', 'Next caption (j)', () => step(1, isText))),
                    film.findings.length ? steps('Finding', button('↑', 'Previous finding (p)', () => step(-1, wantedFindings)), button('↓', 'Next finding (n)', () => step(1, wantedFindings))) : null,
                    steps('Zoom', button('−', 'Zoom out', () => zoom(1)), button('+', 'Zoom in', () => zoom(-1))))));
    root.replaceChildren(...[head, film.rows.length ? bar : null,
        make('h2', {className: 'unseen'}, 'Captions'),
        make('div', {className: 'heads', 'aria-hidden': 'true'}, ['Time', 'Transcript', 'What the viewer sees'].map((head) => make('span', {}, head))),
        list, film.rows.length ? null : make('p', {className: 'quiet'}, 'There are no captions in this file.'), make('footer', {}, data.program || '')].filter(Boolean));

    search.addEventListener('input', () => {
        const text = search.value.trim().toLowerCase();
        const isTime = /^\d\d:[\d:;.]*$/.test(text);
        state.query = isTime ? '' : text;
        refresh();
        if (!isTime) return;
        choose(rowAt(film, text), false);
        status.textContent = `Line ${state.row.line.line} is sent at ${state.row.line.timecode}.`;
    });
    strip.addEventListener('pointerdown', (event) => {
        const box = strip.getBoundingClientRect();
        const frame = film.from + (event.clientX - box.left) / box.width * (film.to - film.from);
        const rows = visible.filter((row) => row.hasText);
        choose(rows.reduce((best, row) => Math.abs(row.frame - frame) < Math.abs(best.frame - frame) ? row : best, rows[0]), false);
    });
    list.addEventListener('click', (event) => {
        const row = event.target.closest('.line')?.row;
        if (!row || event.target.closest('a, .detail') || !getSelection().isCollapsed) return;
        toggle(film, row);
        choose(row, true, false);
    });
    list.addEventListener('pointerover', (event) => pointAt(list, event.target));
    list.addEventListener('pointerleave', () => pointAt(list, null));

    const keys = {
        j: () => step(1, isText), k: () => step(-1, isText), n: () => step(1, wantedFindings), p: () => step(-1, wantedFindings),
        '/': () => search.focus(), Escape: () => { showAll(); refresh(); choose(state.row); },
    };
    document.addEventListener('keydown', (event) => {
        if (event.ctrlKey || event.altKey || event.metaKey) return;
        const inStrip = event.target === strip && {ArrowLeft: keys.k, ArrowRight: keys.j, ArrowUp: keys.k, ArrowDown: keys.j,
            Home: () => choose(visible[0], false), End: () => choose(visible[visible.length - 1], false)}[event.key];
        const isTyping = event.target.matches?.('input, textarea, select');
        const action = inStrip || (isTyping && event.key !== 'Escape' ? null : keys[event.key]);
        if (event.target === search && event.key === 'Enter') choose(visible[0]);
        if (!action) return;
        event.preventDefault();
        action();
        if (inStrip) strip.focus({preventScroll: true});
    }, {signal: leave.signal});

    const goToHash = () => {
        const row = film.rowOfLine.get(Number(/^#line-(\d+)$/.exec(location.hash)?.[1]));
        if (!row) return;
        fillRow(film, row);
        toggle(film, row, true);
        choose(row);
    };
    window.addEventListener('hashchange', goToHash, {signal: leave.signal});
    window.addEventListener('resize', paintAll, {signal: leave.signal});
    matchMedia('(prefers-color-scheme: dark)').addEventListener('change', paintAll, {signal: leave.signal});
    refresh();
    if (state.row) strip.setAttribute('aria-valuenow', state.row.index + 1);
    state.row?.element?.setAttribute('aria-current', 'true');
    goToHash();
    return {toolbar, choose: (line) => choose(film.rowOfLine.get(line))};
}

// ---- several films ----

/** A table of films, each a link, that its heads sort. */
function showFilms(films, root) {
    root.classList.add('viewer');
    films = films.map((film) => film.refused ? {...film, summary: null} : film);
    const found = (film) => Object.values(film.summary?.findings || {}).reduce((sum, count) => sum + count, 0);
    const length = (film) => seconds((film.summary?.lastFrame ?? 0) - (film.summary?.firstFrame ?? 0));
    const clock = (time) => [time / 3600, time / 60 % 60, time % 60].map((part) => String(Math.floor(part)).padStart(2, '0')).join(':');
    const kinds = (film) => Object.entries(film.summary?.findings || {}).map(([kind, count]) => `${kind} ${count}`).join(', ');
    const columns = [
        {head: 'Film', value: (film) => film.file, cell: (film) => make('a', {href: film.page}, film.file)},
        {head: 'Captions', value: (film) => film.summary?.captions ?? -1, cell: (film) => film.summary?.captions.toLocaleString('en') ?? ''},
        {head: 'Duration', value: length, cell: (film) => film.refused ? '' : clock(length(film))},
        {head: 'Fastest', value: (film) => film.summary?.fastest ?? 0, cell: (film) => film.summary?.fastest ? `${Math.round(film.summary.fastest)} characters/s` : ''},
        {head: 'Findings', value: (film) => film.refused ? Infinity : found(film), cell: (film) => film.refused
            ? make('span', {className: 'error'}, signOf('error'), `refused: ${film.refused.text || film.refused}`)
            : make('span', {}, make('b', {}, String(found(film))), ' ', make('span', {className: 'quiet'}, kinds(film)))},
    ];
    const body = make('tbody');
    const heads = columns.map((column) => {
        const sorter = make('button', {type: 'button'}, column.head);
        const head = make('th', {scope: 'col', 'aria-sort': 'none'}, sorter);
        sorter.addEventListener('click', () => {
            const isUp = head.getAttribute('aria-sort') !== 'ascending';
            for (const each of heads) each.setAttribute('aria-sort', 'none');
            head.setAttribute('aria-sort', isUp ? 'ascending' : 'descending');
            fill([...films].sort((a, b) => {
                const [one, other] = [column.value(a), column.value(b)];
                return (isUp ? 1 : -1) * (typeof one === 'string' ? one.localeCompare(other) : one - other);
            }));
        });
        return head;
    });
    function fill(sorted) {
        body.replaceChildren(...sorted.map((film) => make('tr', {}, columns.map((column, index) =>
            make(index === 0 ? 'th' : 'td', index === 0 ? {scope: 'row'} : {}, column.cell(film))))));
    }
    fill(films);
    root.replaceChildren(make('header', {className: 'film'}, make('h1', {}, counted(films.length, 'film'))),
        make('div', {className: 'films'}, make('table', {}, make('thead', {}, make('tr', {}, heads)), body)));
}

// A page contains its data; without any, the page around this script calls showFilm.
for (const [id, show] of [['film', showFilm], ['films', showFilms]]) {
    const data = document.getElementById(id);
    if (data) show(JSON.parse(data.textContent), document.getElementById('view'));
}
