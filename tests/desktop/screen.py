"""A screen of its own with a window manager, a mouse, a keyboard and the ears of a screen reader.

Everything that is clicked is found as a screen reader finds it, and everything that is expected is waited
for. The texts are made up.
"""

import os
import subprocess
import sys
import tempfile
import time

PATIENCE = 120  # seconds until something that does not come counts as a fault, on a busy machine


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        time.sleep(0.02)
    sys.exit(f"did not come: {what}")


def expect(what, holds):
    if not holds:
        sys.exit(f"not so: {what}")


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


def make_data(folder):
    def write(path, *lines):
        with open(os.path.join(folder, path), "w", newline="\r\n") as file:
            file.write("\n".join(lines) + "\n")

    for version, prefix in (("KJV", ""), ("NEW", "N")):
        os.mkdir(os.path.join(folder, version))
        for name, chapters in (("Genesis", 3), ("Exodus", 5), ("Galatians", 1)):
            lines = []
            for chapter in range(1, chapters + 1):
                lines.append(f"Chapter {chapter}")
                lines += [f"{verse:<4}{version} {name} {chapter}, verse {verse}." for verse in range(1, 60)]
            write(f"{version}/{prefix}{name}.txt", *lines)
    write("bookschap.txt", '"Genesis",3', '"Exodus",5')


class Screen:
    """What is on the display, as a screen reader knows it."""

    def __init__(self):
        import gi

        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib

        self.atspi = Atspi
        self.gone = GLib.Error  # raised for something that went away while it was looked at

    def walk(self, root=None):
        root = root or self.atspi.get_desktop(0)
        for i in range(root.get_child_count()):
            try:
                child = root.get_child_at_index(i)
            except self.gone:
                child = None
            if child is not None:
                yield child
                yield from self.walk(child)

    def role_of(self, thing):
        role = thing.get_role_name()
        return "button" if role == "push button" else role  # the name in older versions

    def is_so(self, thing, state):
        thing.clear_cache()  # what is remembered of it may be out of date
        return thing.get_state_set().contains(getattr(self.atspi.StateType, state))

    def look(self, role, is_it):
        try:
            for thing in self.walk():
                if self.role_of(thing) == role and is_it(thing.get_name()) and self.is_so(thing, "SHOWING"):
                    return thing
        except self.gone:
            pass
        return None

    def find(self, role, name):
        return wait_for(f"{role} {name!r}", lambda: self.look(role, lambda found: found == name))

    def find_beginning(self, role, beginning):
        return wait_for(f"{role} {beginning!r}", lambda: self.look(role, lambda found: found.startswith(beginning)))

    def takes_input(self, thing):
        """Whether keys and clicks come to the window that it is in."""
        try:
            while thing is not None and not self.is_so(thing, "ACTIVE"):
                thing = thing.get_parent()
        except self.gone:
            thing = None
        return thing is not None

    def find_ready(self, role, name):
        """The same, once its window takes input and it has stopped moving."""
        places = []

        def look():
            thing = self.look(role, lambda found: found == name)
            if thing is None or not self.takes_input(thing):
                return None
            places.append(self.place_of(thing))
            return thing if len(places) > 1 and places[-1] == places[-2] else None

        return wait_for(f"{role} {name!r} to be used", look)

    def text_of(self, name):
        pane = self.find("text", name)
        return self.atspi.Text.get_text(pane, 0, self.atspi.Text.get_character_count(pane))

    def place_of(self, thing):
        area = thing.get_extents(self.atspi.CoordType.SCREEN)
        return area.x, area.y, area.width, area.height


class WindowManager:
    def __enter__(self):
        self.running = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        wait_for("a window manager", lambda: b"0x" in subprocess.check_output(
            ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"]))
        return self

    def __exit__(self, *_):
        self.running.terminate()
        self.running.wait()


class Reader:
    """Someone before the screen, with the program in front."""

    def __init__(self, program, folder):
        self.screen = Screen()
        self.folder = folder
        self.running = subprocess.Popen([program], cwd=folder)
        self.screen.find_ready("frame", "Lectern 2")
        self.reads("KJV Genesis 1", "1")

    def click(self, role, name, across=0.5):
        x, y, width, height = self.screen.place_of(self.screen.find_ready(role, name))
        xdotool("mousemove", x + int(width * across), y + height // 2, "click", 1)

    def press(self, *buttons):
        for button in buttons:
            self.click("button", button)

    def key(self, *keys):
        xdotool("key", *keys)

    def types(self, text):
        xdotool("type", "--delay", "10", text)

    def answers(self, question, text):
        """In a box that asks for it under that label."""
        self.screen.find_ready("label", question)
        self.types(text)
        self.key("Return")

    def reads(self, beginning, chapter):
        wait_for(f"{beginning!r} on the page",
                 lambda: self.screen.text_of("Text of the chapter").startswith("1   " + beginning))
        self.screen.find("label", chapter)

    def file(self, name):
        path = os.path.join(self.folder, name)
        if not os.path.exists(path):
            return None
        with open(path, "rb") as file:
            return file.read().decode()

    def sees_it_end(self, status):
        wait_for("the end", lambda: self.running.poll() is not None)
        expect(f"ended with {self.running.returncode}, not {status}", self.running.returncode == status)


def stand_on_a_stage():
    """A display, a message bus and a run-time folder of our own: the script runs once more on them."""
    if "LECTERN_TEST_STAGE" in os.environ:
        return
    display = subprocess.Popen(
        ["Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"],
        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    try:
        number = display.stdout.readline().decode().strip()
        with tempfile.TemporaryDirectory() as runtime:
            environment = dict(os.environ, DISPLAY=":" + number, LECTERN_TEST_STAGE="1", QT_QPA_PLATFORM="xcb",
                               QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", XDG_RUNTIME_DIR=runtime)
            again = ["dbus-run-session", sys.executable, os.path.abspath(sys.argv[0]), *sys.argv[1:]]
            sys.exit(subprocess.run(again, env=environment).returncode)
    finally:
        display.terminate()
        display.wait()


def play(program, visits):
    """Each visit with a program and a data folder of its own."""
    with WindowManager():
        for visit in visits:
            with tempfile.TemporaryDirectory() as folder:
                make_data(folder)
                reader = Reader(program, folder)
                try:
                    visit(reader)
                finally:
                    reader.running.kill()
                    reader.running.wait()
