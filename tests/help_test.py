#!/usr/bin/env python3
"""Holds the help article to its word: each of its examples must be what the program makes of it. Takes
the companion command and the article."""

import html
import pathlib
import re
import subprocess
import sys
import tempfile

companion, article = sys.argv[1:3]
text = pathlib.Path(article).read_text(encoding="utf-8")
pairs = re.findall(r"<dd><code>([^<]*)</code></dd>\s*<dt>Transcript</dt><dd><samp>([^<]*)</samp>", text)
assert len(pairs) > 10, "the examples were not found"
for words, told in pairs:
    with tempfile.NamedTemporaryFile("w", suffix=".scc") as sample:
        sample.write(f"Scenarist_SCC V1.0\n\n00:00:10:00\t{words}\n")
        sample.flush()
        printed = subprocess.run([companion, "--form", "line", sample.name], capture_output=True,
                                 check=True).stdout.decode().split("\n")[2]
    assert printed == html.unescape(told), f"{words}: {printed!r} and not {told!r}"
