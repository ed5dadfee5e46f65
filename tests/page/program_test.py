#!/usr/bin/env python3
"""The program in a page, in Chromium, beside the companion. Takes the page and a release build."""
import functools
import hashlib
import http.server
import json
import subprocess
import sys
import tempfile
import threading
from pathlib import Path

from browser import chromium, console, requests
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import WebDriverWait

page, build = (Path(argument).resolve() for argument in sys.argv[1:])
root = Path(__file__).parents[2]
folder = tempfile.TemporaryDirectory()
work = Path(folder.name)

# For each film and each form and clock: the digest of an answer, or the refusal as the companion prints it.
ANSWERS = '''
const [task, form, clock, done] = arguments;
document.querySelector(`[name=form][value="${form}"]`).checked = document.querySelector(`[name=clock][value="${clock}"]`).checked = true;
Promise.all(films.map((film) => ask(task, film).then(async (bytes) =>
    Array.from(new Uint8Array(await crypto.subtle.digest('SHA-256', bytes)), (byte) => byte.toString(16).padStart(2, '0')).join(''),
    ({problem: {text, help, line}}) => `${film.name}:${line ? line + ':' : ''} ${text}\\n${help ? `  ${help}\\n` : ''}`))).then(done);
'''

# Where a button is without work, and with it.
PLACES = '''
part('doing').textContent = 'A long name.scc '.repeat(20);
return [true, false].map((isHidden) => {
    part('work').hidden = isHidden;
    return part('save-to-folder').getBoundingClientRect().top;
});
'''

# What a script of a hostile film would try, and the rules that forbade it.
FORBIDDEN = '''
const [address, done] = arguments;
const rules = new Set();
document.addEventListener('securitypolicyviolation', (event) => rules.add(event.effectiveDirective));
fetch(address).catch(() => {});
new Image().src = address;
for (const [tag, property] of [['script', 'src'], ['script', 'textContent'], ['style', 'textContent'], ['iframe', 'src'], ['base', 'href']])
    document.body.append(Object.assign(document.createElement(tag), {[property]: address}));
new Worker('data:,').onerror = () => {};
setTimeout(() => setTimeout('1'));
setTimeout(() => done([...rules].sort()), 500);
'''


def companion(*arguments):
    return subprocess.run([build / 'command/norvane-transcript', *arguments], cwd=work, capture_output=True, timeout=120)


def digest(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def same(what, got, expected):
    assert got == expected, f'{what}: {got!r}, not {expected!r}'


def wait(condition, what):
    WebDriverWait(driver, 60, 0.02).until(lambda _: condition(), what)


def text(element):
    return driver.find_element(By.ID, element).text


def states():
    return [state.text for state in driver.find_elements(By.CSS_SELECTOR, '#rows .state')]


def take(*paths):
    driver.find_element(By.ID, 'files').send_keys('\n'.join(map(str, paths)))


def click(element):
    driver.find_element(By.ID, element).click()


def click_label(words):
    driver.find_element(By.XPATH, f'//label[contains(., "{words}")]').click()


def press(keys):
    driver.find_element(By.TAG_NAME, 'body').send_keys(keys)


def drop(*paths):
    data = {'items': [], 'files': [str(path) for path in paths], 'dragOperationsMask': 1}
    for kind in 'dragEnter', 'dragOver', 'drop':
        driver.execute_cdp_cmd('Input.dispatchDragEvent', {'type': kind, 'x': 200, 'y': 30, 'data': data})


def films_come_in_by_every_way():
    (work / 'season/one').mkdir(parents=True)
    hostile = '&lt;b.scc'
    for name in f'season/{hostile}', 'season/one/show.scc', 'season/notes.txt', 'notes.txt':
        (work / name).write_bytes((work / 'show.scc').read_bytes())
    drop(work / 'show.scc', work / 'notes.txt')
    wait(lambda: states() == ['ready', 'refused: This file does not have the .scc extension.'], 'dropped files')
    drop(work / 'season')
    wait(lambda: text('said') == '2 films added, 1 file without “scc” in the name left out.', 'a dropped folder')
    click('paste')
    driver.switch_to.active_element.send_keys('Header\n00:00:01:00 9420')
    driver.find_element(By.CSS_SELECTOR, '#paste-form [type=submit]').click()
    wait(lambda: len(states()) == 5 and states()[4].startswith('refused: This SCC file'), 'pasted text')
    refusal = driver.find_element(By.CLASS_NAME, 'refusal').text
    for part in 'Line 2:', 'It needs to have a tab', 'instead of a tab':
        assert part in refusal, refusal
    names = [row.text for row in driver.find_elements(By.CSS_SELECTOR, '#rows th')]
    same('the list', names, ['show.scc', 'notes.txt', hostile, 'show.scc', 'pasted.scc'])


def transcripts_go_out():
    take(work / 'night-train.scc')
    click_label('Line by line form')
    click_label('Keep SCC timecode')
    expected = companion('night-train.scc', '--form', 'line').stdout
    wait(lambda: driver.find_element(By.ID, 'text').get_property('textContent').encode() == expected, 'the form that was chosen')
    press('s')
    saved = work / 'downloads/night-train.txt'
    wait(saved.exists, 'a saved transcript')
    same('saved', saved.read_bytes(), expected)
    press('c')
    wait(lambda: text('said') == 'night-train.txt copied.', 'a copied transcript')
    saved.unlink()
    # What is being saved is neither ended nor changed by what is chosen meanwhile.
    driver.execute_script("""showView(); part('save-all').click(); document.querySelector('[name=form][value="2"]').click();""")
    wait(lambda: text('said') == '1 of 1 transcript saved.', 'all saved')
    wait(saved.exists, 'all saved')
    same('saved with all', saved.read_bytes(), expected)


def transcripts_go_into_a_folder():
    # A folder of the browser's own, in place of one that the user picks.
    driver.execute_script('window.showDirectoryPicker = () => navigator.storage.getDirectory();')
    saved = """const done = arguments[0];
        navigator.storage.getDirectory().then((folder) => folder.getFileHandle('show.txt')).then((file) => file.getFile()).then((file) => file.text()).then(done);"""
    take(work / 'show.scc', work / 'notes.txt', work / 'season/one/show.scc')
    wait(lambda: 'waiting' not in states(), 'the films')
    same('one place of a button', len(set(driver.execute_script(PLACES))), 1)
    for replace, options, said in (False, (), '1 of 3'), (False, (), '0 of 3'), (True, ('--clock', 'scc'), '1 of 3'):
        if replace:
            click_label('Keep SCC timecode')
            click('replace')
        driver.execute_script("say('')")
        click('save-to-folder')
        wait(lambda: text('said') == f'{said} transcripts saved in “”.', said)
        same('in the folder', driver.execute_async_script(saved).encode(), companion('show.scc', *options).stdout)
    wait(lambda: states()[::2] == ['saved as show.txt', 'failed: “show.txt” has just been saved for a film of the same name'], 'the states')


def work_can_be_stopped():
    for name, size in ('endless.scc', '100000000'), ('long.scc', '20000000'):
        with open(work / name, 'wb') as film:
            subprocess.run([build / 'bench/make_scc', 'film', size], stdout=film, check=True)
    take(work / 'endless.scc', work / 'long.scc')
    wait(lambda: driver.find_element(By.ID, 'progress').get_attribute('value') and driver.find_element(By.ID, 'stop').is_displayed(), 'progress')
    click('stop')
    wait(lambda: [state[:8] for state in states()] == ['stopped;'] * 2, 'stopped')
    press(']')
    wait(lambda: states()[-1].startswith('too large to explain'), 'a film behind the stop')
    wait(lambda: 'Its transcript is complete' in text('view'), 'what is not shown')
    driver.find_element(By.CSS_SELECTOR, '#rows .off button').click()
    same('20 MB', driver.execute_async_script(ANSWERS, 'transcript', 0, 0)[0], hashlib.sha256(companion('long.scc').stdout).hexdigest())


def nothing_else_is_allowed():
    same('forbidden', driver.execute_async_script(FORBIDDEN, served),
         ['base-uri', 'connect-src', 'frame-src', 'img-src', 'script-src', 'script-src-elem', 'style-src-elem', 'worker-src'])
    console(driver), requests(driver)  # which told of the attempts
    driver.get(page.as_uri())


def a_corrected_film_is_taken_again():
    film = work / 'wrong.scc'
    film.write_text('Header\n00:00:01:00 9420')

    def correct_and_choose():
        film.write_text('Header\n00:00:01:00\t9420\n')
        driver.find_element(By.CSS_SELECTOR, '#rows th button').click()

    for step, state in (lambda: take(film), 'refused: This SCC'), (correct_and_choose, 'refused: This file cannot be read'), (lambda: take(film), 'ready'):
        step()
        wait(lambda: [each[:len(state)] for each in states()] == [state], state)


def answers_are_the_companions():
    names = [f'g{number}.scc' for number in range(1, 301)]
    subprocess.run([build / 'tests/generated_films', '300'], cwd=work, check=True)
    names += [sample.name for sample in samples]
    take(*(work / name for name in names))
    for form, form_name in enumerate(('timecode', 'line', 'paragraph')):
        for clock, clock_name in enumerate(('unbuffered', 'scc')):
            refused = dict.fromkeys(names, '')
            told = companion('--output-dir', 'out', '--force', '--form', form_name, '--clock', clock_name, *names)
            for line in told.stderr.decode(errors='replace').splitlines(keepends=True):
                refused[name := line.split(':')[0] if line[0] != ' ' else name] += line
            got = driver.execute_async_script(ANSWERS, 'transcript', form, clock)
            for name, answer in zip(names, got):
                same(f'{name}, {form_name}, {clock_name}', answer, refused[name] or digest(work / f'out/{name[:-4]}.txt'))
    for task in 'explain', 'check':
        objects = dict.fromkeys(names, b'')
        for line in companion(f'--{task}', '--json', *names).stdout.splitlines(keepends=True):
            objects[json.loads(line)['file']] += line
        for name, answer in zip(names, driver.execute_async_script(ANSWERS, task, 0, 0)):
            same(f'{task} {name}', answer, hashlib.sha256(objects[name]).hexdigest())


samples = [*(root / 'tests/samples').glob('*.scc'), *(root / 'resources/samples').glob('*.scc')]
for sample in samples:
    (work / sample.name).write_bytes(sample.read_bytes())
handler = functools.partial(http.server.SimpleHTTPRequestHandler, directory=page.parent)
handler.func.log_message = lambda *_: None
server = http.server.ThreadingHTTPServer(('localhost', 0), handler)
threading.Thread(target=server.serve_forever, daemon=True).start()
served = f'http://localhost:{server.server_port}/{page.name}'
with chromium(downloads=work / 'downloads') as driver:
    for scenario, address in ((films_come_in_by_every_way, page.as_uri()), (transcripts_go_out, page.as_uri()), (transcripts_go_into_a_folder, served),
                              (work_can_be_stopped, page.as_uri()), (nothing_else_is_allowed, page.as_uri()), (a_corrected_film_is_taken_again, page.as_uri()), (answers_are_the_companions, page.as_uri())):
        driver.get(address)
        scenario()
        same('console', console(driver), [])
        same('requests', requests(driver), [address])
print('The page does what it should.')
