#!/usr/bin/python3
"""Installs the program and starts it as the menu does: a first start that fails, is killed, is tried again and
succeeds; a second start beside the first; a start after a crash.

Usage: install_test.py CMAKE BUILD

The tool that makes the data takes long, so that one that a test can lead stands in for it, and the texts are made up.
"""

import configparser
import os
import shutil
import subprocess
import sys
import tempfile

from screen import Screen, WindowManager, expect, make_data, stand_on_a_stage, wait_for, xdotool

# Lays out the sample once it may, and fails once it must.
STAND_IN = """#!/bin/sh
printf '10 %% Books …\\n'
cp -r "$SAMPLE/KJV" "$1"
while [ ! -e "$SAMPLE/../go" ]; do sleep 0.05; done
[ -e "$SAMPLE/../fail" ] && { echo 'The disk is full.' >&2; exit 1; }
printf '64 %% Words …\\n'
exec cp -r "$SAMPLE/." "$1"
"""


def look_at_what_is_installed(root):
    def inside(path):
        path = os.path.join(root, "usr", path)
        expect(f"{path} is there", os.path.exists(path))
        return path

    def passes(*command):
        if shutil.which(command[0]):
            check = subprocess.run(command, capture_output=True, text=True)
            expect(f"{command} is content: {check.stdout}{check.stderr}", check.returncode == 0 and not check.stderr)

    entry = inside("share/applications/lectern.desktop")
    parser = configparser.ConfigParser()
    parser.read(entry)
    keys = parser["Desktop Entry"]
    for size in ("16x16", "48x48", "256x256"):
        inside(f"share/icons/hicolor/{size}/apps/{keys['Icon']}.png")
    passes("desktop-file-validate", entry)
    passes("appstreamcli", "validate", "--no-net", inside("share/metainfo/org.example.lectern.metainfo.xml"))
    for program in ("lectern", "lectern-keeper", "lectern-start", "lectern-make-data", "lectern-driver"):
        inside("bin/" + program)
        passes("man", "--warnings", "-l", "-Tutf8", "-Z", inside(f"share/man/man1/{program}.1.gz"))
    return os.path.join(root, "usr", "bin", keys["Exec"])


class Menu:
    """A person with a home of their own who starts the program from the menu."""

    def __init__(self, start, home):
        self.start = start
        self.folder = os.path.join(home, ".local/share/lectern")
        self.environment = dict(os.environ, HOME=home, SAMPLE=os.path.join(home, "sample"))
        self.environment.pop("XDG_DATA_HOME", None)
        self.running = []

    def click(self, *program, **changes):
        started = subprocess.Popen([self.start, *program], env=dict(self.environment, **changes))
        self.running.append(started)
        return started

    def leaves(self, *names):
        beside = sorted(os.listdir(os.path.dirname(self.folder)))
        expect(f"only {names} of {beside} is there", beside == sorted(names))


def end_of(program):
    wait_for("the end", lambda: program.poll() is not None)
    return program.returncode


def press(screen, button):
    x, y, width, height = screen.place_of(screen.find("button", button))
    xdotool("mousemove", x + width // 2, y + height // 2, "click", 1)


def is_in_front(program):
    wait_for("the window in front", lambda: subprocess.run(
        ["xdotool", "getactivewindow", "getwindowpid"], capture_output=True).stdout.decode().strip()
        == str(program.pid))


def start_for_the_first_time(menu, screen, home):
    # A package is missing: nothing is left behind.
    bare = menu.click(PATH="/nowhere")
    screen.find_beginning("label", "The program 'mod2imp' is missing. Install libsword-utils")
    press(screen, "Close")
    expect("a start that failed says so", end_of(bare) == 1)
    menu.leaves()

    tool = os.path.join(os.path.dirname(menu.start), "lectern-make-data")
    os.remove(tool)
    with open(tool, "w") as script:
        script.write(STAND_IN)
    os.chmod(tool, 0o755)

    # A start while another one prepares leaves it to that; what a crash leaves behind is no data folder.
    first = menu.click()
    screen.find("label", "Books …")
    expect("the second start leaves", end_of(menu.click()) == 0)
    first.kill()
    first.wait()
    menu.leaves("lectern.unfinished")

    # The disk is full, then it is not.
    for sign in ("go", "fail"):
        open(os.path.join(home, sign), "w").close()
    program = menu.click()
    screen.find_beginning("label", "The disk is full.")
    os.remove(os.path.join(home, "fail"))
    press(screen, "Retry")
    screen.find("frame", "Lectern 2")
    wait_for("the text", lambda: screen.text_of("Text of the chapter").startswith("1   KJV Genesis 1"))
    menu.leaves("lectern")
    return program


def start_again(menu, screen, first, home):
    # Another folder is another matter, and its window covers the first one.
    other = subprocess.Popen([os.path.join(os.path.dirname(menu.start), "lectern")], cwd=os.path.join(home, "sample"))
    menu.running.append(other)
    is_in_front(other)
    expect("a start on an open folder ends", end_of(menu.click()) == 0)
    is_in_front(first)

    keeper = menu.click("lectern-keeper")
    screen.find_beginning("label", "Lectern is already open on this folder, without the keeper's tools")
    press(screen, "OK")
    expect("the keeper cannot start", end_of(keeper) == 1)

    # Who keeps silent is not disturbed.
    first.kill()
    first.wait()
    is_in_front(menu.click())


def main():
    stand_on_a_stage()
    cmake, build = sys.argv[1:]
    with tempfile.TemporaryDirectory() as root, tempfile.TemporaryDirectory() as home:
        subprocess.run([cmake, "--install", build, "--prefix", "/usr"], check=True, stdout=subprocess.DEVNULL,
                       env=dict(os.environ, DESTDIR=root))
        start = look_at_what_is_installed(root)
        os.mkdir(os.path.join(home, "sample"))
        make_data(os.path.join(home, "sample"))
        menu = Menu(start, home)
        screen = Screen()
        try:
            with WindowManager():
                first = start_for_the_first_time(menu, screen, home)
                start_again(menu, screen, first, home)
        finally:
            for program in menu.running:
                program.kill()
                program.wait()


if __name__ == "__main__":
    main()
