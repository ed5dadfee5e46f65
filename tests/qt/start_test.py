#!/usr/bin/env python3
"""Starts the built program, which it takes, where there is no screen, and ends it by signals: each time
as Quit does, with the preferences written and a good exit status."""

import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

DESIGN = "true\ntrue\nfalse\ntrue\nfalse\n15\n\n\nfalse\n"
CHANGED = "false\nfalse\ntrue\nfalse\ntrue\n0.5\n\n\nfalse\n"
UNREADY = CHANGED[:-6] + "true\n"  # a watch without its folders, which a box tells of at the start


def caught(process):
    """The signals for which the program has a handler, as bits."""
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
    return int(status.split("SigCgt:")[1].split()[0], 16)


for number, before, after in ((signal.SIGTERM, None, DESIGN), (signal.SIGINT, CHANGED, CHANGED),
                              (signal.SIGHUP, UNREADY, CHANGED)):
    with tempfile.TemporaryDirectory() as folder:
        preferences = pathlib.Path(folder, "com.bellwick.norvane.prefs")
        if before:
            preferences.write_text(before)
        program = subprocess.Popen([sys.argv[1]], stderr=subprocess.DEVNULL, env={
            **os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_CONFIG_HOME": folder, "XDG_RUNTIME_DIR": folder})
        while not caught(program) >> (number - 1) & 1:
            assert program.poll() is None, f"ended by itself: {program.returncode}"
            time.sleep(0.01)
        time.sleep(0.2)  # in the middle of things
        program.send_signal(number)
        assert program.wait(timeout=20) == 0, f"{number!r}: exit status {program.returncode}"
        assert preferences.read_text() == after, f"{number!r}: {preferences.read_text()!r}"
