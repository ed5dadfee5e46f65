'use strict';

// How transcripts go out: copied, saved one by one, or all into a folder.

function download(film, bytes) {
    const link = make('a', {href: URL.createObjectURL(new Blob([bytes], {type: 'text/plain'})), download: transcriptName(film)});
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 60000); // the browser may ask the user first
    setState(film, `saved as ${transcriptName(film)}`);
}

async function copyTranscript() {
    if (!shown) return;
    try {
        await navigator.clipboard.writeText(textOf(shown.bytes));
        say(`${transcriptName(shown.film)} copied.`);
    } catch {
        getSelection().selectAllChildren(part('text'));
        say('This browser does not allow copying. The transcript is selected: copy it with the keyboard.');
    }
}

/** Calls `save` with each film that has a transcript, and the bytes of that; says how many it took. All have the form and the clock of now. */
async function saveAll(save, where) {
    const all = [...films];
    const how = {toKeep: true, form: choiceOf('form'), clock: choiceOf('clock')};
    const stopsBefore = stops;
    let saved = 0;
    for (const film of all) {
        if (film.refused || !films.includes(film)) continue;
        if (await attempt(film, async () => save(film, await ask('transcript', film, how)))) ++saved;
        if (stops !== stopsBefore) break;
    }
    say(`${saved} of ${counted(all.length, 'transcript')} saved${where}.`);
}

const isThere = (folder, name) => folder.getFileHandle(name).then(() => true, (failure) => {
    if (failure.name === 'NotFoundError') return false;
    throw failure;
});

/** Writes a transcript, whole or not at all; `written` holds the names of those before, which none of another film replaces. */
async function writeTo(folder, film, bytes, written) {
    const name = transcriptName(film);
    if (written.has(name)) throw new Error(`“${name}” has just been saved for a film of the same name`);
    const isNew = !await isThere(folder, name);
    if (!isNew && !part('replace').checked) throw new Error(`“${name}” already exists`);
    const file = await folder.getFileHandle(name, {create: true});
    try {
        const stream = await file.createWritable();
        await stream.write(bytes);
        await stream.close();
    } catch (failure) {
        if (isNew) await folder.removeEntry(name).catch(() => {});
        throw failure;
    }
    written.add(name);
    setState(film, `saved as ${name}`);
}

async function saveToFolder() {
    let folder;
    try {
        folder = await showDirectoryPicker({id: 'transcripts', mode: 'readwrite'});
    } catch (failure) {
        if (failure.name !== 'AbortError') say(`This folder cannot be used: ${failure.message}`);
        return;
    }
    const written = new Set();
    await saveAll((film, bytes) => writeTo(folder, film, bytes, written), ` in “${folder.name}”`);
}

part('copy').addEventListener('click', copyTranscript);
part('save').addEventListener('click', () => download(shown.film, shown.bytes));
part('save-all').addEventListener('click', () => saveAll(download, ''));
part('save-to-folder').addEventListener('click', saveToFolder);
part('remove-all').addEventListener('click', () => { for (const film of [...films]) takeOff(film); });
part('stop').addEventListener('click', stopWork);
part('save-to-folder').hidden = part('replace-label').hidden = !('showDirectoryPicker' in window);

const kProgramKeys = {
    o: () => part('choose-files').click(), c: copyTranscript, s: () => { if (shown) download(shown.film, shown.bytes); },
    '[': () => stepFilm(-1), ']': () => stepFilm(1),
};

function stepFilm(by) {
    const film = films[films.indexOf(chosen) + by];
    if (!film) return;
    choose(film);
    film.parts.name.focus();
}

document.addEventListener('keydown', (event) => {
    const isTyping = event.target.matches?.('input[type=search], textarea');
    const action = kProgramKeys[event.key];
    if (!action || isTyping || event.ctrlKey || event.altKey || event.metaKey) return;
    event.preventDefault();
    action();
});
