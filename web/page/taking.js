'use strict';

// How films come in: dropped, chosen or pasted.

/** The files of a dropped folder and of those in it; `folder` is a handle of it, or an entry where the browser has no handles. */
async function filesOf(folder) {
    const files = [];
    if ('values' in folder) {
        for await (const each of folder.values()) files.push(...each.kind === 'file' ? [await each.getFile()] : await filesOf(each));
        return files;
    }
    const reader = folder.createReader();
    for (;;) { // some at a time, until none are left
        const entries = await new Promise((resolve, reject) => { reader.readEntries(resolve, reject); });
        if (entries.length === 0) return files;
        for (const each of entries) files.push(...each.isFile ? [await new Promise((resolve, reject) => { each.file(resolve, reject); })] : await filesOf(each));
    }
}

/** Adds the SCC files of folders, which may well hold others. */
async function addFromFolders(files) {
    const names = files.map((file) => file.name);
    const isScc = files.length ? await ask('sccNames', {id: 0, name: 'folder', names}, {first: true}) : [];
    const films = files.filter((file, index) => isScc[index]).sort((one, other) => one.name.localeCompare(other.name));
    addFilms(films);
    if (films.length === 0) say('No file in this folder has “scc” in its name.');
    else if (films.length < files.length) say(`${counted(films.length, 'film')} added, ${counted(files.length - films.length, 'file')} without “scc” in the name left out.`);
}

/** Adds what was dropped. All of it must be asked for at once: the browser forgets it behind the event. */
async function addDropped(items) {
    const dropped = [...items].filter((item) => item.kind === 'file').map((item) => {
        const entry = item.webkitGetAsEntry?.();
        return entry?.isDirectory ? {folder: item.getAsFileSystemHandle?.() ?? entry} : {file: item.getAsFile()};
    });
    addFilms(dropped.flatMap(({file}) => file ?? []));
    const folders = dropped.filter(({folder}) => folder);
    if (folders.length === 0) return;
    try {
        const files = await Promise.all(folders.map(async ({folder}) => filesOf(await folder)));
        await addFromFolders(files.flat());
    } catch (failure) {
        say(`This folder cannot be read from here (${failure.message}). Use “Choose a folder”.`);
    }
}

let pastedCount = 0;

function addPasted(text) {
    ++pastedCount;
    addFilms([new File([text], `pasted${pastedCount === 1 ? '' : `-${pastedCount}`}.scc`)]);
}

/** Gives what was chosen in a file field to `take`, and empties the field, so that the same may be chosen again. */
function takeChosen(button, field, take) {
    part(button).addEventListener('click', () => part(field).click());
    part(field).addEventListener('change', () => {
        take([...part(field).files]);
        part(field).value = '';
    });
}

takeChosen('choose-files', 'files', addFilms);
takeChosen('choose-folder', 'folder', addFromFolders);

function showPasteForm(isShown) {
    part('paste').setAttribute('aria-expanded', String(isShown));
    part('paste-form').hidden = !isShown;
    part(isShown ? 'pasted' : 'paste').focus();
}

part('paste').addEventListener('click', () => showPasteForm(part('paste-form').hidden));
part('paste-form').addEventListener('submit', (event) => {
    event.preventDefault();
    if (part('pasted').value.trim() === '') return part('pasted').focus();
    addPasted(part('pasted').value);
    part('pasted').value = '';
    return showPasteForm(false);
});
document.addEventListener('paste', (event) => {
    if (event.target.matches?.('input[type=search], textarea')) return;
    const text = event.clipboardData.getData('text/plain');
    if (event.clipboardData.files.length) addFilms([...event.clipboardData.files]);
    else if (text.trim()) addPasted(text);
});

for (const type of ['dragenter', 'dragover', 'dragleave', 'drop']) {
    document.addEventListener(type, (event) => {
        if (!event.dataTransfer?.types.includes('Files')) return;
        event.preventDefault();
        document.body.classList.toggle('dropping', type === 'dragenter' || type === 'dragover');
        if (type === 'drop') addDropped(event.dataTransfer.items);
    });
}
