#!/usr/bin/env python3
"""Puts the page into one file: style, scripts and the WebAssembly, and the hashes that its policy names.
Takes the sources' folder, the WebAssembly and the page to write."""
import base64
import hashlib
import json
import sys
from pathlib import Path

sources, module, page = map(Path, sys.argv[1:])
parts = sources / 'web/page'
viewer = sources / 'resources/page'


def read(*paths):
    return '\n'.join(path.read_text(encoding='utf-8') for path in paths)


def hash_of(text):
    return 'sha256-' + base64.b64encode(hashlib.sha256(text.encode()).digest()).decode()


worker = read(parts / 'worker.js').replace('@module@', base64.b64encode(module.read_bytes()).decode())
script = read(viewer / 'viewer.js', *(parts / name for name in ('jobs.js', 'films.js', 'taking.js', 'saving.js')))
script = script.replace("'@worker@'", json.dumps(worker))
style = read(viewer / 'viewer.css', parts / 'program.css')
for text in script, style:
    assert '</' + 'script' not in text and '<!--' not in text and '</' + 'style' not in text
result = read(parts / 'program.html').replace('@licence@', read(sources / 'LICENSE'))
for name, value in ('style-hash', hash_of(style)), ('script-hash', hash_of(script)), ('style', style), ('script', script):
    result = result.replace(f'@{name}@', value, 1)
page.write_text(result, encoding='utf-8')
