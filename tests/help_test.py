#!/usr/bin/env python3
"""Holds the help article to its word: each example must be what the program makes of it, and whatever else the
page gives as output must stand in such an example or in the program's texts. Takes the companion and the
article."""

import html
import os
import pathlib
import re
import subprocess
import sys
import tempfile

companion, article = map(os.path.abspath, sys.argv[1:3])
page = pathlib.Path(article).read_text(encoding="utf-8")
sources = pathlib.Path(article).parents[2]


def run(*arguments):
    return subprocess.run([companion, *arguments], capture_output=True, encoding="utf-8")


def entries(*arguments):
    return run(*arguments, "show.scc").stdout.removeprefix("Transcripts of show\n\n").rstrip("\n")


# What an example calls an output, and how it is made of the file above it.
outputs = {
    "Transcript": lambda: entries("--form", "line"),
    "Start times": entries,
    "Keep SCC timecode": lambda: entries("--clock", "scc"),
    "Whole transcript": lambda: run("show.scc").stdout.rstrip("\n"),
    "Message": lambda: run("show.scc").stderr.rstrip("\n"),
}


def check(example):
    """Gives the outputs of an example, once they have been seen to be the program's."""
    rows = re.findall(r"<dt>(.*?)</dt><dd><(code|samp)>(.*?)</\2></dd>", example, re.S)
    assert len(rows) == example.count("<dd") == example.count("<dt"), f"cannot be read: {example}"
    told = []
    for label, kind, text in ((label, kind, html.unescape(text)) for label, kind, text in rows):
        if kind == "samp":
            made = outputs[label]()
            assert made == text, f"{label} of {example}\n{made!r} and not {text!r}"
            told.append(text)
            continue
        header = "" if label == "The whole file" else "Scenarist_SCC V1.0\n\n"
        lines = text if "\t" in text or not header else f"00:00:10:00\t{text}"
        pathlib.Path("show.scc").write_text(f"{header}{lines}\n", encoding="utf-8")
    assert told, f"nothing is shown: {example}"
    return told


with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    examples = r'<dl class="example">(.*?)</dl>'
    told = [text for example in re.findall(examples, page, re.S) for text in check(example)]
    os.chdir("/")
literals = [re.sub(r'"\s*"', "", file.read_text(encoding="utf-8")) for folder in ("shell", "folders", "decode",
            "framework") for file in (sources / folder).rglob("*.cpp")]
for kind, text in re.findall(r"<samp(.*?)>(.*?)</samp>", re.sub(examples, "", page, flags=re.S)):
    known = literals if kind == ' class="message"' else told
    assert any(html.unescape(text) in each for each in known), f"no example shows it, or no code says it: {text}"
