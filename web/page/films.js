'use strict';

// The films of the list, and the one that is shown.

const kLongestShown = 1 << 20; // bytes of a transcript; all are copied and saved

const films = [];
let chosen = null;
let shown = null; // {film, bytes} of the transcript
let lastFilm = 0;

const part = (id) => document.getElementById(id);
const say = (text) => { part('said').textContent = text; };
const choiceOf = (name) => Number(document.querySelector(`input[name=${name}]:checked`).value);
const textOf = (bytes) => new TextDecoder().decode(bytes);
const transcriptName = (film) => `${film.name.split('.', 1)[0]}.txt`;

/** Puts files on the list and looks into them. */
function addFilms(files) {
    const added = files.map((file) => {
        const lost = films.find((film) => film.isLost && film.name === file.name);
        return Object.assign(lost || {}, {id: ++lastFilm, name: file.name, file, isLost: false});
    });
    for (const film of added) {
        if (!film.row) {
            films.push(film);
            makeRow(film);
        }
        setState(film, 'waiting');
    }
    if (added.length === 0) return;
    showList();
    say(`${counted(added.length, 'film')} added.`);
    if (!chosen || added.length === 1) choose(added[0]);
    for (const film of added) if (film !== chosen) attempt(film, () => look(film));
}

/** Does something with a film; what ends it becomes the film's state. Gives whether it was done. */
async function attempt(film, action) {
    try {
        await action();
        return true;
    } catch (failure) {
        if (failure instanceof Refused) refuse(film, failure.problem);
        else if (!(failure instanceof Stopped)) setState(film, `failed: ${failure.message}`, 'error');
        else if (failure.byUser && !film.summary) setState(film, 'stopped; click on the name to start again');
        return false;
    }
}

function refuse(film, {text, help, line, around, isLost = false}) {
    film.isLost = isLost; // until it is taken again
    if (film.refused && !around) return; // more has been told already
    film.refused = true;
    setState(film, `refused: ${text}`, 'error');
    if (film !== chosen) return;
    part('transcript').hidden = true;
    shown = null;
    showFilm({file: film.name, refused: {line: line || null, text, help, around}}, part('view'));
}

/** Asks for what a film has. It is not kept, but asked anew whenever it is shown, so that a hundred films need no memory. */
async function look(film) {
    const data = JSON.parse(textOf(await ask('page', film, {first: film === chosen})));
    if (data.refused) throw new Refused(data.refused);
    film.refused = false;
    film.summary = data.summary;
    setState(film, data.isTooLarge ? 'too large to explain; the transcript is complete' : 'ready');
    return data;
}

function showList() {
    part('list').hidden = films.length === 0;
    document.body.classList.toggle('empty', films.length === 0);
}

function makeRow(film) {
    const name = make('button', {type: 'button'}, film.name);
    name.addEventListener('click', () => choose(film));
    const off = make('button', {type: 'button', 'aria-label': `Remove ${film.name} from the list`, title: 'Remove from the list'}, '×');
    off.addEventListener('click', () => takeOff(film));
    film.parts = {name, captions: make('td', {className: 'captions'}), findings: make('td', {className: 'findings'}), state: make('td')};
    film.row = make('tr', {}, make('th', {scope: 'row'}, name), film.parts.captions, film.parts.findings, film.parts.state, make('td', {className: 'off'}, off));
    part('rows').append(film.row);
}

const changed = new Set(); // films whose state is to be drawn
let drawing = 0; // a timer

function setState(film, state, className = '') {
    film.state = {state, className};
    changed.add(film);
    drawing ||= setTimeout(() => {
        drawing = 0;
        for (const each of changed) drawState(each);
        changed.clear();
    }, kShownEvery);
}

function drawState(film) {
    const {state, className} = film.state;
    const found = Object.values(film.summary?.findings || {}).reduce((sum, count) => sum + count, 0);
    film.parts.captions.textContent = film.summary?.captions.toLocaleString('en') ?? '';
    film.parts.findings.textContent = film.summary ? found.toLocaleString('en') : '';
    film.parts.state.className = `state ${className}`;
    film.parts.state.replaceChildren(...className ? [signOf(className), ' '] : [], state);
}

function takeOff(film) {
    const at = films.indexOf(film);
    films.splice(at, 1);
    film.row.remove();
    dropJobs((job) => job.film.id === film.id);
    showList();
    const next = films[Math.min(at, films.length - 1)];
    if (film === chosen) choose(next || null);
    (next?.parts.name || part('choose-files')).focus();
}

// ---- the film that is shown ----

function choose(film) {
    chosen?.parts.name.removeAttribute('aria-current');
    chosen?.row.classList.remove('chosen');
    chosen = film;
    shown = null;
    if (film) {
        film.refused = false;
        if (!film.summary) setState(film, 'waiting');
    }
    part('main').hidden = !film;
    document.title = film ? `${film.name} – Norvane` : 'Norvane';
    part('transcript').hidden = true;
    if (!film) return;
    film.parts.name.setAttribute('aria-current', 'true');
    film.row.classList.add('chosen');
    part('view').replaceChildren();
    if (location.hash) location.hash = ''; // which names a line of another film
    showTranscript();
    showView();
}

/** Shows the transcript of the chosen film, in the form and with the clock of now. */
function showTranscript() {
    const film = chosen;
    return film && attempt(film, async () => {
        const bytes = await ask('transcript', film, {first: true});
        if (film !== chosen) return;
        shown = {film, bytes};
        const isWhole = bytes.length <= kLongestShown;
        part('transcript').hidden = false;
        part('transcript-name').textContent = transcriptName(film);
        part('text').textContent = textOf(isWhole ? bytes : bytes.subarray(0, kLongestShown));
        part('shortened').hidden = isWhole;
        part('shortened').textContent = `The beginning of ${(bytes.length / 1e6).toFixed(0)} MB; Copy and Save take all of it.`;
    });
}

/** Shows what the viewer has to tell of the chosen film, at the line where it was if it is the same one. */
function showView() {
    const film = chosen;
    const line = Number(part('view').querySelector('[aria-current]')?.id.replace('line-', ''));
    return film && attempt(film, async () => {
        const data = await look(film);
        if (film !== chosen) return;
        if (data.isTooLarge) {
            part('view').replaceChildren(make('header', {className: 'film'}, make('h1', {}, film.name)),
                make('p', {className: 'quiet'}, 'This film has more than 4 MB, too much to explain here. Its transcript is complete: copy or save it.'));
            return;
        }
        const focused = document.activeElement;
        const view = showFilm(data, part('view'));
        if (!line) return;
        view.choose(line);
        focused.focus();
    });
}

for (const name of ['form', 'clock']) part(name).addEventListener('change', showTranscript);
part('clock').addEventListener('change', showView);
