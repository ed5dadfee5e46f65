'use strict';

// Works on films beside the page, one at a time. Takes {task, film: {id, name, file}, form, clock}; gives {progress} from 0 to 1
// or null while it works, and at the end {answer, memory} or {problem: {text, help, line}, memory}: how many bytes it occupies.

const kBlock = 4 << 20; // bytes of a film that are read at once
const kNoSuchCall = 52; // ENOSYS of WASI

const core = new WebAssembly.Instance(new WebAssembly.Module(Uint8Array.from(atob('@module@'), (letter) => letter.charCodeAt(0))), {
    page: {progress: (progress) => postMessage({progress})},
    env: {emscripten_notify_memory_growth() {}},
    wasi_snapshot_preview1: new Proxy({proc_exit(status) { throw new Error(`ended with ${status}`); }},
        {get: (calls, name) => calls[name] ?? (() => kNoSuchCall)}), // which of them the library asks for depends on its version
}).exports;
core._initialize();

class Problem extends Error {
    constructor(what) {
        super(what.text);
        this.what = what;
    }
}

let held = {id: 0, text: 0}; // the film in memory

const kTooLarge = {text: 'This file does not fit in the memory of a page.',
    help: 'Split it, or use norvane-transcript, which needs less.', line: 0};

const kLost = {text: 'This file cannot be read. It may have been changed, moved or removed since it was chosen.', help: 'Choose it again.', line: 0, isLost: true};

/** A text of the core; none is there when memory did not suffice. */
function had(text) {
    if (text === 0) throw new Problem(kTooLarge);
    return text;
}

const viewOf = (text) => new Uint8Array(core.memory.buffer, core.bytesOf(text) >>> 0, core.sizeOf(text) >>> 0);

function release(text) {
    if (text !== 0) core.deleteText(text);
}

function textOf(bytes) {
    const text = had(core.newText(bytes.length));
    viewOf(text).set(bytes);
    return text;
}

/** The film's bytes in the core's memory. */
function filmText({id, file}) {
    const reader = new FileReaderSync();
    try {
        reader.readAsArrayBuffer(file.slice(0, 1)); // of a file that was changed nothing can be read: it would be shown as it was
    } catch {
        throw new Problem(kLost);
    }
    if (held.id === id) return held.text;
    release(held.text);
    held = {id: 0, text: 0};
    const text = had(file.size < 2 ** 32 ? core.newText(file.size) : 0);
    try {
        for (let at = 0; at < file.size; at += kBlock) {
            viewOf(text).set(new Uint8Array(reader.readAsArrayBuffer(file.slice(at, at + kBlock))), at);
            postMessage({progress: null});
        }
    } catch (failure) {
        release(text);
        throw new Problem(kLost);
    }
    held = {id, text};
    return text;
}

/** Which of the names are those of SCC files. */
function sccNames(names) {
    return names.map((each) => {
        const name = textOf(new TextEncoder().encode(each));
        const isScc = core.isSccName(name) !== 0;
        release(name);
        return isScc;
    });
}

function answerTo({task, film, form, clock}) {
    if (task === 'sccNames') return sccNames(film.names);
    const name = textOf(new TextEncoder().encode(film.name));
    let answer = 0;
    try {
        const text = filmText(film);
        answer = had(task === 'transcript' ? core.transcript(name, text, form, clock) : core[task](name, text, clock));
        const bytes = viewOf(answer).slice();
        if (core.isProblem(answer)) throw new Problem(JSON.parse(new TextDecoder().decode(bytes)));
        return bytes;
    } finally {
        release(name);
        release(answer);
    }
}

onmessage = ({data}) => {
    const memory = () => core.memory.buffer.byteLength;
    try {
        const answer = answerTo(data);
        postMessage({answer, memory: memory()}, answer.buffer ? [answer.buffer] : []);
    } catch (failure) {
        if (!(failure instanceof Problem || failure instanceof RangeError)) throw failure;
        postMessage({problem: failure.what || kTooLarge, memory: memory()}); // a RangeError: no room for a copy of the answer
    }
};
