#!/usr/bin/python3
"""Reads with the real program: a screen of its own, a mouse, a keyboard, and the ears of a screen reader.

Usage: reader_test.py PROGRAM

Everything that is clicked is found by what a screen reader is told of it, and everything that is expected is waited
for. The texts are made up.
"""

import ctypes
import os
import subprocess
import sys
import tempfile
import time

PATIENCE = 120  # seconds until something that does not come counts as a fault, on a machine with much else to do


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        time.sleep(0.02)
    sys.exit(f"did not come: {what}")


def make_data(folder):
    def book(path, name, chapters):
        lines = []
        for chapter in range(1, chapters + 1):
            lines.append(f"Chapter {chapter}")
            lines += [f"{verse:<4}{name} {chapter}, verse {verse}." for verse in range(1, 60)]
        with open(os.path.join(folder, path), "w", newline="\r\n") as file:
            file.write("\n".join(lines) + "\n")

    for version, prefix in (("KJV", ""), ("NEW", "N")):
        os.mkdir(os.path.join(folder, version))
        for name, chapters in (("Genesis", 3), ("Exodus", 5), ("Galatians", 1)):
            book(f"{version}/{prefix}{name}.txt", f"{version} {name}", chapters)
    with open(os.path.join(folder, "bookschap.txt"), "w", newline="\r\n") as file:
        file.write('"Genesis",3\n"Exodus",5\n')


class Screen:
    """What is on the display, as a screen reader knows it."""

    def __init__(self):
        import gi

        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib

        self.atspi = Atspi
        self.gone = GLib.Error  # what is told of something that went away while it was looked at

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
        thing.clear_cache()  # what is remembered of it may be behind
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
        return self.find_where(role, name, lambda told: told == name)

    def find_where(self, role, what, is_it):
        return wait_for(f"{role} {what!r}", lambda: self.look(role, is_it))

    def takes_input(self, thing):
        """Whether keys and clicks come to the window that it is in."""
        try:
            while thing is not None and not self.is_so(thing, "ACTIVE"):
                thing = thing.get_parent()
        except self.gone:
            thing = None
        return thing is not None

    def find_ready(self, role, name):
        """The same, once its window takes input, and stands where it will stay."""
        places = []

        def look():
            thing = self.look(role, lambda told: told == name)
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


class Reader:
    """Someone before the screen."""

    def __init__(self, program, folder):
        self.screen = Screen()
        self.running = subprocess.Popen([program], cwd=folder)
        self.screen.find_ready("frame", "Lectern 2")

    def click(self, role, name, across=0.5):
        x, y, width, height = self.screen.place_of(self.screen.find_ready(role, name))
        self.click_at(x + int(width * across), y + height // 2)

    def click_at(self, x, y):
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True)

    def key(self, *keys):
        subprocess.run(["xdotool", "key", *keys], check=True)

    def types(self, text, below):
        """Into a box that asks for it under that label."""
        self.screen.find_ready("label", below)
        subprocess.run(["xdotool", "type", "--delay", "10", text], check=True)

    def reads(self, beginning, chapter):
        wait_for(
            f"{beginning!r} on the page",
            lambda: self.screen.text_of("Text of the chapter").startswith("1   " + beginning),
        )
        self.screen.find("label", chapter)

    def sees_it_end(self, status):
        wait_for("the end", lambda: self.running.poll() is not None)
        if self.running.returncode != status:
            sys.exit(f"ended with {self.running.returncode}, not {status}")


def close_window(title):
    """What a window manager does when its close box is pressed."""
    window = int(subprocess.check_output(["xdotool", "search", "--onlyvisible", "--name", title]).split()[0])

    class ClientMessage(ctypes.Structure):
        _fields_ = [
            ("type", ctypes.c_int),
            ("serial", ctypes.c_ulong),
            ("send_event", ctypes.c_int),
            ("display", ctypes.c_void_p),
            ("window", ctypes.c_ulong),
            ("message_type", ctypes.c_ulong),
            ("format", ctypes.c_int),
            ("data", ctypes.c_long * 5),
            ("room", ctypes.c_long * 24),
        ]

    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XInternAtom.restype = ctypes.c_ulong
    x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
    x11.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long, ctypes.c_void_p]
    x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
    display = x11.XOpenDisplay(None)
    message = ClientMessage(33, 0, 1, display, window, x11.XInternAtom(display, b"WM_PROTOCOLS", 0), 32)
    message.data[0] = x11.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
    x11.XSendEvent(display, window, 0, 0, ctypes.byref(message))
    x11.XCloseDisplay(display)


def read_a_while(reader, _folder):
    reader.reads("KJV Genesis 1", "1")

    # By the mouse: a book, the arrows and the trough of the chapter bar, the other version.
    reader.click("list item", "Exodus")
    reader.reads("KJV Exodus 1", "1")
    reader.screen.find("label", "Exodus")
    reader.click("scroll bar", "Chapter", across=0.97)
    reader.reads("KJV Exodus 2", "2")
    reader.click("scroll bar", "Chapter", across=0.8)
    reader.reads("KJV Exodus 3", "3")
    reader.click("radio button", "Revised Standard Version")
    reader.reads("NEW Exodus 1", "1")
    reader.click("label", "KJV")
    reader.reads("KJV Exodus 1", "1")

    # A drag counts when the thumb is let go.
    x, y, width, height = reader.screen.place_of(reader.screen.find("scroll bar", "Chapter"))
    drag = ["xdotool", "mousemove", str(x + height + 8), str(y + height // 2), "mousedown", "1"]
    subprocess.run(drag + ["mousemove", str(x + width // 2), str(y + height // 2)], check=True)
    subprocess.run(["xdotool", "mousemove", str(x + width), str(y + height // 2), "mouseup", "1"], check=True)
    reader.reads("KJV Exodus 5", "5")

    # By the keyboard: the list takes letters and arrows.
    reader.click("list item", "Exodus")
    reader.reads("KJV Exodus 1", "1")
    reader.key("g")
    reader.reads("KJV Galatians 1", "1")
    reader.key("Home")
    reader.reads("KJV Genesis 1", "1")
    reader.key("Down")
    reader.reads("KJV Exodus 1", "1")

    for thing in reader.screen.walk():
        states = thing.get_state_set()
        if states.contains(reader.screen.atspi.StateType.FOCUSABLE) and not thing.get_name():
            sys.exit(f"a {reader.screen.role_of(thing)} without a name")

    reader.click("button", "Exit")
    reader.sees_it_end(0)


def leave_by_the_menu(reader, folder):
    reader.reads("KJV Genesis 1", "1")
    reader.key("alt+f")
    reader.screen.find("menu item", "Exit")
    reader.key("x")
    # With the mark on the settings are lost, and the failure is told.
    reader.screen.find_ready("label", "Run-time error '424':\n\nObject required")
    reader.key("Return")
    reader.sees_it_end(1)
    if os.path.getsize(os.path.join(folder, "codex.cfg")) != 0:
        sys.exit("the settings were not lost")


def leave_by_the_close_box(reader, _folder):
    reader.reads("KJV Genesis 1", "1")
    close_window("Lectern 2")
    reader.sees_it_end(0)


def stand_on_a_stage():
    """A display, a message bus and a run-time folder that are ours: the script runs once more on them."""
    if "LECTERN_TEST_STAGE" not in os.environ:
        display = subprocess.Popen(
            ["Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"],
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
        )
        try:
            number = display.stdout.readline().decode().strip()
            with tempfile.TemporaryDirectory() as runtime:
                environment = dict(
                    os.environ,
                    DISPLAY=":" + number,
                    LECTERN_TEST_STAGE="1",
                    QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                    QT_QPA_PLATFORM="xcb",
                    XDG_RUNTIME_DIR=runtime,
                )
                again = ["dbus-run-session", sys.executable, os.path.abspath(sys.argv[0]), *sys.argv[1:]]
                sys.exit(subprocess.run(again, env=environment).returncode)
        finally:
            display.terminate()
            display.wait()


def play(visits):
    """Each visit with a program and a data folder of its own."""
    program = os.path.abspath(sys.argv[1])
    stand_on_a_stage()
    for visit in visits:
        with tempfile.TemporaryDirectory() as folder:
            make_data(folder)
            reader = Reader(program, folder)
            try:
                visit(reader, folder)
            finally:
                reader.running.kill()
                reader.running.wait()


if __name__ == "__main__":
    play((read_a_while, leave_by_the_menu, leave_by_the_close_box))
