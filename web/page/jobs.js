'use strict';

// The work beside the page: one job after another, each a task on a film, done by a worker.

const kWorker = '@worker@';
const kLargeMemory = 256 << 20; // bytes; a worker that has more is replaced behind its film, as its memory never shrinks

const jobs = []; // the first is at work
let worker = null;
let stops = 0; // by the user

/** Why a film has no answer: {text, help, line, around}. */
class Refused extends Error {
    constructor(problem) {
        super(problem.text);
        this.problem = problem;
    }
}

/** What ends a job that nobody waits for any more: the user stopped it, or the same is asked anew. */
class Stopped extends Error {
    constructor(byUser) {
        super('stopped');
        this.byUser = byUser;
    }
}

/**
 * Has a task done on a film, with the form and the clock of now if no others are given. Gives the answer: its bytes; ends as Refused or Stopped.
 * `first`: ahead of all that waits. `toKeep`: not to be shown; neither does it end the same task that waits, nor is it ended by it.
 */
function ask(task, film, {first = false, toKeep = false, form = choiceOf('form'), clock = choiceOf('clock')} = {}) {
    if (!toKeep) dropJobs((job) => !job.toKeep && job.task === task && job.film.id === film.id);
    return new Promise((resolve, reject) => {
        const {id, name, file, names} = film;
        const job = {task, film: {id, name, file, names}, form, clock, toKeep, resolve, reject};
        jobs.splice(first ? Math.min(1, jobs.length) : jobs.length, 0, job);
        if (jobs.length === 1) work();
        else showWork();
    });
}

/** Takes jobs away that wait. */
function dropJobs(isUnwanted) {
    const unwanted = jobs.filter((job, index) => index > 0 && isUnwanted(job));
    for (const job of unwanted) {
        jobs.splice(jobs.indexOf(job), 1);
        job.reject(new Stopped(false));
    }
}

function startWorker() {
    const address = URL.createObjectURL(new Blob([kWorker], {type: 'text/javascript'}));
    const mine = worker = new Worker(address);
    URL.revokeObjectURL(address);
    const end = (memory) => {
        const job = jobs.shift();
        if (memory > kLargeMemory && jobs[0]?.film.id !== job.film.id) endWorker();
        work();
        return job;
    };
    worker.onmessage = ({data}) => {
        if (worker !== mine) return; // it was stopped
        if ('progress' in data) showWork(data.progress);
        else if (data.problem) end(data.memory).reject(new Refused(data.problem));
        else end(data.memory).resolve(data.answer);
    };
    worker.onerror = (event) => {
        event.preventDefault();
        end(Infinity).reject(new Refused({text: `This could not be finished: ${event.message}`, help: '', line: 0}));
    };
}

function endWorker() {
    worker?.terminate();
    worker = null;
}

function work() {
    showWork();
    if (jobs.length === 0) return;
    if (!worker) startWorker();
    const {task, film, form, clock} = jobs[0];
    worker.postMessage({task, film, form, clock});
}

function stopWork() {
    ++stops;
    endWorker();
    for (const job of jobs.splice(0)) job.reject(new Stopped(true));
    showWork();
    say('Stopped.');
}

const kShownEvery = 150; // milliseconds: to draw the page takes longer than to decode a small film, and what is done sooner needs no progress

let showing = 0; // a timer
let done = null; // how much of the first job, from 0 to 1

function showWork(progress = null) {
    done = progress;
    if (jobs.length === 0) part('work').hidden = true;
    else showing ||= setTimeout(drawWork, kShownEvery);
}

function drawWork() {
    showing = 0;
    part('work').hidden = jobs.length === 0;
    if (jobs.length === 0) return;
    const others = new Set(jobs.map((job) => job.film.id)).size - 1;
    part('doing').textContent = jobs[0].film.name + (others ? ` and ${counted(others, 'more film')}` : '');
    if (done === null) part('progress').removeAttribute('value');
    else part('progress').value = done;
}
