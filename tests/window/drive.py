#!/usr/bin/env python3
"""Drives the built program from outside: mouse and keys by xdotool on a virtual screen of its own,
and what is on screen read the way a screen reader does. Takes the build folder. Needs Xvfb, openbox,
xdotool, dbus-run-session, at-spi2-core and gdbus. Exits with 0 when all is as it must be."""

import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time
from urllib.parse import unquote

# What shows, by its name for a screen reader; the tests of the widgets look at their places.
ALWAYS = {
    "Select SCC File", "Include Timecode", "Line by line form", "Paragraph form",
    "Output text file settings:", "Unbuffered timecode", "Keep SCC timecode",
    "Help on keeping the SCC timecode", "Help on unbuffered timecode", "Norvane", "Select Folder",
    "Watch Folder", "Watch folder settings", "Help on the watch folder", "Troubleshooting",
    "Select either a folder of\nfiles or a file to decode:",
}
UNFOLDED = ALWAYS | {
    "Decode Watch Folder Files", "Watch folder", "Watch Folder:", "Destination folder",
    "Destination Folder:", "Browse for the watch folder", "Browse for the destination folder",
    "minutes.", "Check for files every", "Minutes between two checks for files",
}
SAMPLE = ("Scenarist_SCC V1.0\n\n"
          "00:00:02:10\t9420 9420 94ae 94ae 9470 9470 c845 4c4c 4f80 942f 942f\n\n"
          "00:00:05;00\t9420 9420 94ae 94ae 9137 9137 57ef f26c 6480 1c20 942f 942f\n")


def wait_for(what, condition):
    """The first true value of the condition; fails when there is none within some seconds."""
    end = time.monotonic() + 10
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    sys.exit(f"FAILED: {what}")


def check(what, actual, expected):
    if actual != expected:
        sys.exit(f"FAILED: {what}\n  is       {actual!r}\n  must be  {expected!r}")


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout.strip()


def xdotool(*arguments):
    return output("xdotool", *map(str, arguments))


class Node:
    """Something on screen, as the accessibility bus tells of it."""

    bus = ""

    def __init__(self, owner, path):
        self.owner, self.path = owner, path

    def call(self, method, *arguments):
        return output("gdbus", "call", "--address", Node.bus, "--dest", self.owner, "--object-path",
                      self.path, "--method", "org.a11y.atspi." + method, "--", *arguments)

    def children(self):
        found = re.findall(r"\('(:[\d.]+)', (?:objectpath )?'([^']+)'\)",
                           self.call("Accessible.GetChildren"))
        return [Node(*child) for child in found]

    def property(self, name):
        text = output("gdbus", "call", "--address", Node.bus, "--dest", self.owner, "--object-path",
                      self.path, "--method", "org.freedesktop.DBus.Properties.Get",
                      "org.a11y.atspi.Accessible", name)
        match = re.fullmatch(r"""\(<(['"])(.*)\1>,\)""", text)
        return match.group(2).replace("\\n", "\n").replace("\\'", "'") if match else ""

    def name(self):
        return self.property("Name")

    def place(self):
        numbers = re.findall(r"-?\d+", self.call("Component.GetExtents", "0").replace("uint32", ""))
        return tuple(int(number) for number in numbers)

    def has(self, state):
        """Whether it is in a state, given by its number: 4 checked, 25 showing."""
        states = re.search(r"\d+", self.call("Accessible.GetState").replace("uint32", ""))
        return bool(states and int(states.group()) & 1 << state)

    def shows(self):
        return self.has(25)

    def act(self):
        """What a screen reader's user does with it: press a button, toggle a box."""
        check("an action returns at once", self.call("Action.DoAction", "0"), "(true,)")

    def descendant(self, name, role=""):
        for child in self.children():
            found = child.name() == name and role in child.call("Accessible.GetRoleName")
            node = child if found else child.descendant(name, role)
            if node:
                return node
        return None


def windows():
    roots = Node("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root").children()
    return [window for root in roots for window in root.children()]


class Program:
    """The program from its start to its end."""

    def __init__(self, executable):
        self.process = subprocess.Popen([executable])
        self.window, self.node = "", Node("", "")
        self.window = wait_for("the window comes up", self.find_window)
        self.node = wait_for("the window can be read", windows)[0]
        wait_for("the window takes keys", lambda: xdotool("getactivewindow") == self.window)
        self.menu_bar = wait_for("the menu bar has its height", lambda: self.geometry()[1] - 281)

    def find_window(self):
        found = xdotool("search", "--onlyvisible", "--name", "^Norvane$").split()
        return next((window for window in found if " 586x" in xdotool("getwindowgeometry", window)), None)

    def geometry(self):
        size = re.search(r"(\d+)x(\d+)", xdotool("getwindowgeometry", self.window))
        return int(size.group(1)), int(size.group(2))

    def controls(self):
        """The names of what shows below the menu bar."""
        area = self.node.children()[-1]
        if not area.children():
            area = self.node.children()[0]
        return {node.name() for node in area.children() if node.shows()} - {""}

    def click(self, name):
        left, top, width, height = self.node.descendant(name).place()
        xdotool("mousemove", left + min(width, 24) // 2, top + height // 2, "click", 1)

    def dialog(self, title):
        """The dialog of this title, once it is up and takes keys."""
        wait_for(f"the focus on a dialog {title}",
                 lambda: xdotool("getactivewindow") not in ("", self.window) and
                 xdotool("getactivewindow", "getwindowname") == title)
        return wait_for(f"a dialog {title}", lambda: next(
            (window for window in windows()
             if window.path != self.node.path and window.name() == title and window.shows()), None))

    def no_dialog(self):
        wait_for("the dialog closes", lambda: sum(window.shows() for window in windows()) == 1)

    def act(self, name):
        self.node.descendant(name).act()

    def decode(self, source, target, select=None):
        (select or self.click)("Select SCC File")
        self.dialog("Open")
        xdotool("type", source)
        xdotool("key", "Return")
        self.dialog("Save")
        xdotool("key", "ctrl+a")
        xdotool("type", target)
        xdotool("key", "Return")
        self.no_dialog()

    def choose_about(self):
        xdotool("key", "alt+f")
        xdotool("key", "Down", "Return")
        return wait_for("the About window", lambda: xdotool("search", "--onlyvisible", "--name",
                                                            "^About Norvane$"))

    def ends(self):
        check("exit status", self.process.wait(timeout=10), 0)


def look(program):
    check("controls of the folded window", program.controls(), ALWAYS)
    unfold(program)
    check("controls of the unfolded window", program.controls(), UNFOLDED)
    program.click("Watch folder settings")
    wait_for("the window folds", lambda: program.geometry()[1] == 281 + program.menu_bar)


def transcribe(program, companion, folder, opened):
    source = folder / "talk.scc"
    source.write_text(SAMPLE)
    for click, form, clock in (("Keep SCC timecode", "timecode", "scc"),
                               ("Include Timecode", "line", "scc"),
                               ("Paragraph form", "paragraph", "scc"),
                               ("Line by line form", "timecode", "scc"),
                               ("Unbuffered timecode", "timecode", "unbuffered")):
        program.click(click)
        target = folder / f"{click}.txt"
        program.decode(source, target)
        printed = subprocess.run([companion, "--form", form, "--clock", clock, source],
                                 capture_output=True, check=True).stdout
        check(f"transcript, {form}, {clock}", target.read_bytes(), printed)
        wait_for("the transcript is opened",
                 lambda: unquote(opened.read_text()) == f"file://{target}\n")


def decode_by_bus(program, source, target):
    program.act("Select SCC File")
    for title, button, path in (("Open", "Open", source), ("Save", "Save", target)):
        dialog = program.dialog(title)
        dialog.descendant("File name:", "text").call("EditableText.SetTextContents", path)
        dialog.descendant(button).act()
    program.no_dialog()


def without_a_mouse(build, folder):
    """The main job by keys alone, and by what a screen reader asks for."""
    source, target = folder / "talk.scc", folder / "by hand.txt"

    def check_transcript(form):
        printed = subprocess.run([f"{build}/command/norvane-transcript", "--form", form, source],
                                 capture_output=True, check=True).stdout
        check(f"transcript without a mouse, {form}", target.read_bytes(), printed)
        target.unlink()

    program = Program(f"{build}/shell/norvane")

    def check_unwritten(name):
        field = program.node.descendant(name, "text")
        before = field.call("Text.GetText", "0", "-1")
        field.call("EditableText.SetTextContents", "7")
        check(f"{name} stays as it is", field.call("Text.GetText", "0", "-1"), before)

    for hidden in ("Browse for the watch folder", "Decode Watch Folder Files"):
        program.act(hidden)
    check_unwritten("Minutes between two checks for files")
    program.no_dialog()
    program.decode(source, target, lambda name: xdotool("key", "Return"))
    check_transcript("timecode")
    xdotool("key", "Tab", "Tab", "Tab", "space", "shift+Tab", "shift+Tab", "shift+Tab")
    program.decode(source, target, lambda name: xdotool("key", "Return"))
    check_transcript("paragraph")
    program.act("Line by line form")
    boxes = ("Line by line form", "Include Timecode", "Paragraph form")
    check("boxes", [program.node.descendant(box).has(4) for box in boxes], [True, True, False])
    program.act("Include Timecode")
    decode_by_bus(program, source, target)
    check_transcript("line")
    arrow = program.node.descendant("Watch folder settings")
    check("the arrow tells that it is folded", arrow.property("Description")[:9], "Collapsed")
    arrow.act()
    wait_for("the arrow tells that it is unfolded",
             lambda: arrow.property("Description").startswith("Expanded"))
    for message in ("Decode Watch Folder Files", "Help on the watch folder"):
        program.act(message)
        program.dialog("Norvane")
        program.act("Help on unbuffered timecode") # which has to wait for its user
        xdotool("key", "Escape")
        program.no_dialog()
    for folder_field in ("Watch folder", "Destination folder"):
        check_unwritten(folder_field)

    minutes = program.node.descendant("Minutes between two checks for files")
    minutes.call("Component.GrabFocus")
    for keys, text in (("alt+e t", ""), ("alt+e p", "15"), ("ctrl+a alt+e d", "")):
        xdotool("key", *(["ctrl+a"] if text == "" else []), *keys.split())
        wait_for(f"{keys} leaves {text!r}",
                 lambda: minutes.call("Text.GetText", "0", "-1") == f"('{text}',)")
    program.process.terminate()
    program.ends()


def picture(window):
    """What a window shows, as rows of its pixels."""
    size = re.search(r"(\d+)x(\d+)", xdotool("getwindowgeometry", window)).groups()
    data = subprocess.run(["import", "-window", window, "-depth", "8", "rgb:-"], capture_output=True,
                          check=True).stdout
    width = 3 * int(size[0])
    return [data[at:at + width] for at in range(0, len(data), width)]


def reading_is_seen(build, folder):
    """Halts the program when it has begun to read a large file: the window must tell so by then."""
    source = folder / "large.scc"
    source.touch()
    os.truncate(source, 400_000_000)
    program = Program(f"{build}/shell/norvane")
    before = picture(program.window)
    program.click("Select SCC File")
    program.dialog("Open")
    xdotool("type", source)
    memory = pathlib.Path(f"/proc/{program.process.pid}/statm")
    enough = int(memory.read_text().split()[0]) + 300_000_000 // os.sysconf("SC_PAGE_SIZE")
    xdotool("key", "Return")
    while int(memory.read_text().split()[0]) < enough:
        check("the program reads", program.process.poll(), None)
    program.process.send_signal(signal.SIGSTOP)
    now = picture(program.window)
    xdotool("key", "ctrl+q") # which comes when the action has ended
    program.process.send_signal(signal.SIGCONT)
    top, left = program.menu_bar, slice(0, 3 * 430)
    same = [row[left] == old[left] for row, old in zip(now, before)]
    check("the dialog's picture has gone", all(same[:top + 200]), True)
    check("the text and the bar show", all(same[top + 208:top + 222]) or same[top + 230], False)
    bar = now[top + 230]
    check("the bar is empty", bar[3 * 30:3 * 300], bar[3 * 30:3 * 31] * 270)
    program.dialog("Save")
    xdotool("key", "Escape")
    program.ends()
    source.unlink()


def unfold(program):
    program.click("Watch folder settings")
    wait_for("the window unfolds", lambda: program.geometry() == (586, 395 + program.menu_bar))


def watch(build, folder):
    """The watch, from its folders to the end of the program."""
    incoming, done = folder / "incoming", folder / "done"
    incoming.mkdir()
    done.mkdir()
    start, every = f"{build}/shell/norvane", "Minutes between two checks for files"

    def drop(name):
        (folder / name).write_text(SAMPLE)
        (folder / name).rename(incoming / name)

    def is_done(name):
        return ((done / name).with_suffix(".txt").exists() and not (incoming / name).exists() and
                (done / "scc files" / name).read_text() == SAMPLE)

    program = Program(start)
    unfold(program)
    for button, chosen in (("Browse for the watch folder", incoming),
                           ("Browse for the destination folder", done)):
        program.click(button)
        program.dialog("Choose a Folder")
        xdotool("key", "ctrl+a")
        xdotool("type", chosen)
        xdotool("key", "Return")
        program.no_dialog()
    program.click(every)
    xdotool("key", "ctrl+a")
    xdotool("type", "0.02")
    drop("first.scc")
    program.click("Decode Watch Folder Files")
    wait_for("the cycle at switching on", lambda: is_done("first.scc"))
    for name in ("second.scc", "third.scc"):
        drop(name)
        wait_for(f"a cycle with {name}", lambda: is_done(name))
    xdotool("key", "ctrl+q")
    program.ends()
    check("preferences of the watch",
          (folder / "com.bellwick.norvane.prefs").read_text().splitlines()[5:],
          ["0.02", f"{incoming}/", f"{done}/", "true"])


def main(build):
    folder = pathlib.Path(os.environ["XDG_CONFIG_HOME"])
    opened = folder / "opened"
    opened.touch()
    opener = folder / "xdg-open" # stands in for the desktop's own
    opener.write_text(f'#!/bin/sh\nprintf "%s\\n" "$1" > "{opened}"\n')
    opener.chmod(0o755)
    os.environ["PATH"] = f"{folder}:{os.environ['PATH']}"

    program = Program(f"{build}/shell/norvane")
    look(program)
    transcribe(program, f"{build}/command/norvane-transcript", folder, opened)
    program.click("Troubleshooting")
    wait_for("the help article is opened", lambda: opened.read_text().strip().endswith("/shell/help.html"))
    first = program.choose_about()
    check("the second About window", program.choose_about(), first)
    xdotool("key", "ctrl+q")
    program.ends()
    settings = (folder / "com.bellwick.norvane.prefs").read_text().split()
    check("preferences", settings, ["true", "true", "false", "true", "false", "15", "false"])

    (folder / "com.bellwick.norvane.prefs").unlink()
    watch(build, folder)
    (folder / "com.bellwick.norvane.prefs").unlink()
    without_a_mouse(build, folder)
    reading_is_seen(build, folder)
    print("window: all as it must be")


def on_own_screen(build):
    """Runs main on a screen, a bus and a configuration of its own."""
    with tempfile.TemporaryDirectory() as folder:
        os.environ.update(XDG_CONFIG_HOME=folder, XDG_CACHE_HOME=folder, XDG_RUNTIME_DIR=folder,
                          HOME=folder, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb",
                          QT_SCALE_FACTOR="1")
        reading, writing = os.pipe()
        screen = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-noreset", "-screen", "0",
                                   "1280x1000x24"],
                                  pass_fds=[writing], stderr=subprocess.DEVNULL)
        manager = None
        try:
            os.environ["DISPLAY"] = ":" + os.read(reading, 16).decode().strip()
            manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
            wait_for("the window manager", lambda: xdotool("get_num_desktops") not in ("", "0"))
            address = output("gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path",
                             "/org/a11y/bus", "--method", "org.a11y.Bus.GetAddress")
            Node.bus = address.removeprefix("('").removesuffix("',)")
            main(build)
        finally:
            for process in (manager, screen):
                if process:
                    process.terminate()
                    process.wait()


if __name__ == "__main__":
    if "--on-bus" not in sys.argv:
        os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable, *sys.argv, "--on-bus"])
    on_own_screen(sys.argv[1])
