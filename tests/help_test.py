#!/usr/bin/env python3
"""Holds the help article and the README to their word: what they give as output must be what the program makes of
their examples, or one of its texts. Takes the companion and the root of the sources."""

import html
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

companion, root = os.path.abspath(sys.argv[1]), pathlib.Path(sys.argv[2]).absolute()
page = (root / "resources/help/help.html").read_text(encoding="utf-8")
readme = (root / "README.md").read_text(encoding="utf-8")


def run(command):
    """What the command prints; the name of the companion stands for its path."""
    name, *arguments = shlex.split(command)
    assert name == "norvane-transcript", command
    return subprocess.run([companion, *arguments], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          encoding="utf-8").stdout.rstrip("\n")


def entries(options):
    return run(f"norvane-transcript {options} show.scc").removeprefix("Transcripts of show\n\n").rstrip("\n")


# What an example calls an output, and how it is made of the file, or the command, above it.
outputs = {
    "Transcript": lambda _: entries("--form line"),
    "Start times": lambda _: entries(""),
    "Keep SCC timecode": lambda _: entries("--clock scc"),
    "Whole transcript": lambda _: run("norvane-transcript show.scc"),
    "It prints": run,
}


def check(example):
    """Gives the outputs of an example, once they have been seen to be the program's."""
    rows = re.findall(r"<dt>(.*?)</dt><dd><(code|samp)>(.*?)</\2></dd>", example, re.S)
    assert len(rows) == example.count("<dd") == example.count("<dt"), f"cannot be read: {example}"
    told = []
    for label, kind, text in ((label, kind, html.unescape(text)) for label, kind, text in rows):
        if kind == "samp":
            made = outputs[label](command)
            assert made == text, f"{label} of {example}\n{made!r} and not {text!r}"
            told.append(text)
        elif label == "In a terminal":
            command = text
        else:
            header = "" if label == "The whole file" else "Scenarist_SCC V1.0\n\n"
            lines = text if "\t" in text or not header else f"00:00:10:00\t{text}"
            pathlib.Path("show.scc").write_text(f"{header}{lines}\n", encoding="utf-8")
            command = None
    assert told, f"nothing is shown: {example}"
    return told


with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    examples = r'<dl class="example(?: wide)?">(.*?)</dl>'
    told = [text for example in re.findall(examples, page, re.S) for text in check(example)]
    os.chdir(root / "resources/samples")

literals = [re.sub(r'"\s*"', "", file.read_text(encoding="utf-8"))
            for folder in ("shell", "folders", "decode", "framework") for file in (root / folder).rglob("*.cpp")]
for kind, text in re.findall(r"<samp(.*?)>(.*?)</samp>", re.sub(examples, "", page, flags=re.S)):
    known = literals if kind == ' class="message"' else told
    assert any(html.unescape(text) in each for each in known), f"no example shows it, or no code says it: {text}"

assert '<a href="norvane.html">Look into a film</a>' in page
for place in re.findall(r'href="#(.*?)"', page):
    assert f'id="{place}"' in page, place

for form in ("timecode", "line", "paragraph"):
    assert f"```\n{run(f'norvane-transcript --form {form} night-train.scc')}\n" in readme, form
commands = re.findall(r"```\n\$ (.*?)\n(.*?)```", readme, re.S)
assert commands
for command, shown in commands:  # but for what is left out
    pattern = ".*\n".join(map(re.escape, shown.split("...\n")))
    assert re.fullmatch(pattern, run(command) + "\n", re.S), f"{command}\n{run(command)}"
