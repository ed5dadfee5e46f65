#!/usr/bin/python3
"""The pages of norvane-transcript in a real browser (Chromium). Takes a build folder; ends with 1 when
something is not as it should be."""
import json
import os
import subprocess
import sys
import tempfile

from selenium import webdriver
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

root = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..')
program = os.path.join(os.path.abspath(sys.argv[1]), 'command', 'norvane-transcript')
work = tempfile.TemporaryDirectory()
failed = []


def check(what, got, wanted=True):
    if got != wanted:
        failed.append(what)
        print(f'FAILED: {what}: {got!r}, not {wanted!r}')


# ---- films ----

def words(text):
    """A text as words of an SCC file."""
    data = text.encode() + b'\0' * (len(text) % 2)
    odd = bytes(byte | (0 if bin(byte).count('1') % 2 else 0x80) for byte in data)
    return ' '.join(f'{odd[i]:02x}{odd[i + 1]:02x}' for i in range(0, len(odd), 2))


def film(captions):
    """An SCC file with a caption every four seconds."""
    lines = ['Scenarist_SCC V1.0']
    for number, text in enumerate(captions):
        time = f'{number // 900:02}:{number // 15 % 60:02}:{number * 4 % 60:02}:00'
        lines.append(f'{time}\t94ae 94ae 9420 9420 9470 9470 {words(text)} 942c 942c 942f 942f')
    return '\n\n'.join(lines) + '\n'


markup = ['</script><script>ran=1</script>', '<!--<script>ran=1//', '<img src=x onerror=ran=1>', '"><b onclick=ran=1>', ']]>&lt;&#60;']
films = {
    '<img src=x onerror=ran=1>.scc': film(markup).encode(),
    'bytes.scc': film(['One']).replace('V1.0', 'V1.0 \u2028 </script><!--').encode() + b'\n00:01:00:00\t9420 \xff\xfe\x01\x1b 942f\n',
    'many.scc': film(f'Caption {number}' for number in range(5000)).encode(),
    'refused.scc': film(['One', 'Two']).encode() + b'\n00:00:20:00 9420 9420 <b>no tab</b>\n',
}
os.mkdir(os.path.join(work.name, 'films'))
for name, text in films.items():
    with open(os.path.join(work.name, 'films', name), 'wb') as file:
        file.write(text)
sample = os.path.join(root, 'resources', 'samples', 'night-train.scc')
made = subprocess.run([program, '--page', '--output-dir', os.path.join(work.name, 'pages'), sample,
                       *(os.path.join(work.name, 'films', name) for name in films)], capture_output=True, text=True)
check('status with a refused film', made.returncode, 1)

# ---- browser ----

options = webdriver.ChromeOptions()
for argument in ('headless=new', 'no-sandbox', 'disable-gpu', 'disable-background-networking', 'window-size=1280,1000',
                 f'user-data-dir={work.name}/browser'):
    options.add_argument(f'--{argument}')
options.set_capability('goog:loggingPrefs', {'browser': 'ALL'})
browser = webdriver.Chrome(service=webdriver.chrome.service.Service('/usr/bin/chromedriver'), options=options)


def ask(script):
    return browser.execute_script(f'return {script}')


def press(keys):
    ActionChains(browser).send_keys(keys).perform()


def click(selector, number=0):
    browser.find_elements(By.CSS_SELECTOR, selector)[number].click()


def search(text):
    field = browser.find_element(By.CSS_SELECTOR, 'input[type=search]')
    field.clear()
    field.send_keys(text)


def point(selector):
    ActionChains(browser).move_to_element(browser.find_element(By.CSS_SELECTOR, selector)).perform()


def visit(page):
    browser.get(f'file://{work.name}/pages/{page}')


def leave(page):
    """What must be true of every page, whatever was done on it."""
    check(f'{page}: console', browser.get_log('browser'), [])
    check(f'{page}: nothing loaded', ask('performance.getEntriesByType("resource").length'), 0)
    check(f'{page}: nothing ran', ask('typeof ran + document.scripts.length + document.images.length'), 'undefined20')
    usable = ('button', 'link', 'searchbox', 'slider', 'columnheader', 'image', 'group', 'region', 'list', 'table')
    nodes = browser.execute_cdp_cmd('Accessibility.getFullAXTree', {})['nodes']
    nameless = [node['role']['value'] for node in nodes if not node.get('ignored')
                and node['role']['value'] in usable[:6] and not node.get('name', {}).get('value')]
    check(f'{page}: nameless', nameless, [])
    check(f'{page}: a heading', any(node.get('role', {}).get('value') == 'heading' for node in nodes))


lines = '[...document.querySelectorAll(".line")].map(each => each.id).join()'
chosen = 'document.querySelector("[aria-current]")?.id'
opened = '[...document.querySelectorAll(".opened")].map(each => each.id).join()'
pointed = '[...document.querySelectorAll(".pointed")].map(each => each.textContent).join("|")'
every = 'line-3,line-5,line-7,line-9,line-11,line-13,line-15,line-17'
strip = 'document.querySelector("[role=slider]")'

# What is done, what is asked then, and the answer.
visit('night-train.html')
for what, do, question, answer in [
    ('heading', None, 'document.querySelector("h1").textContent', 'night-train.scc'),
    ('all lines', None, lines, every),
    ('altered letters have a sign', None, 'document.querySelector("#line-7 mark").textContent.includes("≠")', True),
    ('what is seen', None, 'document.querySelector("#line-7 .small-screen").innerText', 'This is the night train\nto the end of the FIELD.'),
    ('filter', lambda: click('[data-kind=single]'), lines, 'line-13'),
    ('two filters', lambda: click('[data-kind=altered]'), lines, 'line-7,line-9,line-13'),
    ('filters off', lambda: (click('[data-kind=single]'), click('[data-kind=altered]')), lines, every),
    ('search for what is seen', lambda: search('12TH'), lines, 'line-9'),
    ('search for what the transcript has', lambda: search('fld'), lines, 'line-7'),
    ('search in vain', lambda: search('zebra'), 'document.querySelector("[role=status]").textContent', 'No line matches.'),
    ('all again', lambda: press(Keys.ESCAPE), lines, every),
    ('search for a time', lambda: search('00:00:19'), chosen + '+' + lines, 'line-11' + every),
    ('keys are text while typing', lambda: press('j'), lines, ''),
    ('next caption', lambda: (press(Keys.ESCAPE), press('j')), chosen, 'line-13'),
    ('previous finding', lambda: press('ppp'), chosen, 'line-7'),
    ('next finding', lambda: press('n'), chosen, 'line-9'),
    ('open', lambda: press(Keys.ENTER), opened, 'line-9'),
    ('the screen', None, 'document.querySelector(".screen").getAttribute("aria-label")', 'Caption 4: On the 12th of May, / in car 9, seat #4.'),
    ('the advice', None, 'document.querySelector(".advice").textContent.includes("“12th” becomes “3~ 4h”")', True),
    ('at letters: their word', lambda: point('.screen [data-word="11"]'), pointed.replace('".pointed"', '"tr.pointed .digits"'), '6179'),
    ('at a word: its letters', lambda: point('tr[data-word="11"] td'), pointed.replace('".pointed"', '".screen .pointed"'), 'a|y'),
    ('at nothing', lambda: point('h3'), pointed, ''),
    ('close', lambda: click('.open', 3), opened, ''),
    ('strip', lambda: ActionChains(browser).move_to_element_with_offset(browser.find_element(By.CSS_SELECTOR, '.strip'), 500, 0).click().perform(), chosen, 'line-17'),
    ('strip by keys', lambda: (browser.execute_script(strip + '.focus()'), press(Keys.ARROW_LEFT)), chosen + '+' + strip + '.getAttribute("aria-valuetext")', 'line-15Line 15, 00:00:24:12'),
    ('enlarged', lambda: click('.lane.seen button'), chosen + '.length > 0', True),
    ('link to a line', lambda: browser.execute_script('location.hash = "line-5"'), opened + '+' + chosen, 'line-5line-5'),
]:
    if do:
        do()
    check(what, ask(question), answer)
leave('night-train')

visit('refused.html')
check('refusal', ask('document.querySelector("[role=alert]").innerText.includes("a tab between")'))
check('line of the refusal', ask('document.querySelector("li.refused").textContent.includes("<b>no tab</b>")'))
leave('refused')

visit('%3Cimg%20src=x%20onerror=ran=1%3E.html')
check('markup is text', ask('[...document.querySelectorAll(".small-screen")].map(each => each.innerText)'), markup)
for number in range(len(markup)):
    click('.open', number)
search('<img')
leave('markup')

visit('bytes.html')
check('what is no text', ask('document.body.innerText.includes("One")'))
leave('bytes')

visit('many.html#line-9001')
check('a line of many', ask(chosen), 'line-9001')
check('in view', ask('(box => box.top >= 0 && box.top < innerHeight)(document.querySelector("[aria-current]").getBoundingClientRect())'))
leave('many')

visit('index.html')
films_shown = '[...document.querySelectorAll("tbody th")].map(each => each.textContent).join()'
for column, first in [('Captions', 'refused.scc'), ('Captions', 'many.scc'), ('Film', '<img src=x onerror=ran=1>.scc'), ('Findings', None)]:
    click(f'thead th:nth-child({["Film", "Captions", "Duration", "Fastest", "Findings"].index(column) + 1}) button')
    check(f'sorted by {column}', first in (None, ask(films_shown + '.split(",")[0]')))
leave('index')
for name in ('<img src=x onerror=ran=1>.scc', 'night-train.scc'):
    visit('index.html')
    browser.find_element(By.LINK_TEXT, name).click()
    check(f'link to {name}', ask('document.querySelector("h1").textContent'), name)

browser.quit()
print(f'{len(failed)} checks failed.' if failed else 'The pages are in order.')
sys.exit(1 if failed else 0)
