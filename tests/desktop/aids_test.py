#!/usr/bin/python3
"""Marks a place, keeps a note and prints a page with the real program: in windows of a window manager, with a mouse, a
keyboard, and a printer whose paper can be looked at.

Usage: aids_test.py PROGRAM CUPSD
"""

import os
import subprocess
import sys
import tempfile

from reader_test import PATIENCE, play, wait_for


def type_in(text):
    subprocess.run(["xdotool", "type", "--delay", "10", text], check=True)


def contents(folder, name):
    path = os.path.join(folder, name)
    if not os.path.exists(path):
        return None
    with open(path, "rb") as file:
        return file.read().decode()


def expect(what, holds):
    if not holds:
        sys.exit(f"not so: {what}")


class WindowManager:
    def __enter__(self):
        self.running = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        wait_for("a window manager", lambda: b"0x" in subprocess.check_output(
            ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"]))
        # It takes the window that is there under its care, and gives it no focus by itself.
        wait_for("the window under its care", lambda: subprocess.run(
            ["xdotool", "search", "--name", "^Lectern 2$", "windowactivate"], stderr=subprocess.PIPE).stderr == b"")

    def __exit__(self, *_):
        self.running.terminate()
        self.running.wait()


def mark_a_place(reader, folder):
    reader.reads("KJV Genesis 1", "1")
    reader.click("list item", "Exodus")
    reader.click("button", "Book Mark")
    reader.click("button", "New")
    reader.types("Exodus 1", below="Enter a name for bookmark")
    reader.key("Return")
    wait_for("the bookmark", lambda: contents(folder, "Exodus 1.bkm") == '"Exodus 1","Exodus","1"\r\n')

    # A sweep over the strip leafs on. Movements that come while the program is at work are one to it.
    x, y, width, height = reader.screen.place_of(
        reader.screen.find_ready("image", "Sweep the pointer to step through the chapters"))
    for chapter in (2, 3, 4):
        subprocess.run(["xdotool", "mousemove", str(x + 10 + chapter), str(y + height // 2)], check=True)
        reader.reads(f"KJV Exodus {chapter}", str(chapter))

    # The list and its default button bring the reader back, by the keyboard alone.
    reader.click("list item", "Exodus 1.bkm")
    reader.key("Return")
    reader.reads("KJV Exodus 1", "1")
    reader.click("button", "Exit")
    reader.sees_it_end(0)


def keep_a_note(reader, folder):
    reader.reads("KJV Genesis 1", "1")
    reader.click("text", "Text of the chapter")
    reader.key("ctrl+a", "ctrl+c")
    reader.click("button", "Notes")
    reader.screen.find_ready("label", "Open file to add to, or create new file")
    reader.key("Return")
    reader.screen.find_ready("frame", "Notes")
    reader.click("button", "Create New File")
    reader.types("Sunday", below="Enter a name for file")
    reader.key("Return")
    reader.screen.find_ready("frame", "Sunday - Notes")

    # Over what a new note begins with; what was copied from the page; undone and done again.
    pane = "Text of the note"
    reader.click("text", pane)
    reader.key("ctrl+a")
    type_in("Whither thou goest")
    reader.screen.find("frame", "*Sunday - Notes")
    wait_for("what was typed", lambda: reader.screen.text_of(pane) == "Whither thou goest")
    reader.key("Return", "ctrl+v")
    wait_for("what was pasted", lambda: "KJV Genesis 1, verse 59." in reader.screen.text_of(pane))
    reader.key("ctrl+z")
    wait_for("it undone", lambda: "verse" not in reader.screen.text_of(pane))
    reader.key("ctrl+shift+z")
    wait_for("it done again", lambda: "verse 59." in reader.screen.text_of(pane))
    reader.key("ctrl+s")
    reader.screen.find("frame", "Sunday - Notes")
    saved = contents(folder, "Sunday.not")
    expect(f"the note is saved: {saved!r}",
           saved.startswith("Whither thou goest\r\n1   KJV Genesis 1, verse 1.\r\n") and saved.endswith("\r\n"))

    # The note's window comes to the front when it is asked for again, and asks before it goes.
    type_in("!")
    reader.screen.find("frame", "*Sunday - Notes")
    subprocess.run(["xdotool", "search", "--name", "^Lectern 2$", "windowactivate", "--sync"], check=True)
    reader.screen.find_ready("frame", "Lectern 2")
    reader.key("alt+n")
    reader.screen.find_ready("frame", "*Sunday - Notes")
    reader.key("Escape")
    reader.screen.find_ready("label", "File has been altered. Do you want to save changes to the file: Sunday?")
    reader.key("alt+y")
    wait_for("the note saved once more", lambda: "!" in (contents(folder, "Sunday.not") or ""))
    expect("the version before is kept", contents(folder, "backup/Sunday.not") == saved)
    reader.click("button", "Exit")
    reader.sees_it_end(0)


class Paper:
    """A printed page at 96 dots an inch, in shades of grey."""

    def __init__(self, pdf):
        pages = subprocess.check_output(["pdfinfo", pdf]).decode()
        expect(f"one page: {pages}", "Pages:           1\n" in pages)
        header, size, _, self.dots = subprocess.check_output(
            ["pdftoppm", "-r", "96", "-gray", pdf]).split(b"\n", 3)
        expect("a picture of the page", header == b"P5")
        self.width, self.height = map(int, size.split())

    def row(self, y, left=0, right=None):
        return self.dots[y * self.width + left:y * self.width + (self.width if right is None else right)]

    def printed_area(self):
        rows = [y for y in range(self.height) if min(self.row(y)) < 250]
        columns = [x for x in range(self.width) if min(self.dots[x::self.width]) < 250]
        return columns[0], rows[0], columns[-1] + 1, rows[-1] + 1

    def darkest(self, left, top, right, bottom):
        return min(min(self.row(y, left, right)) for y in range(top, bottom))


def print_a_page(reader, _folder):
    reader.reads("KJV Genesis 1", "1")
    reader.click("button", "Book Mark")
    reader.click("button", "Print Page")
    reader.click("text", "Page")
    reader.key("ctrl+a")
    type_in("For Sunday")
    reader.key(*["Return"] * 30)
    type_in("the thirty-first line, which the window does not show")
    reader.click("button", "Print")
    page = wait_for("a printed page", printed)

    # The window's whole client area, as it is while it is printed: longer, and without its buttons.
    paper = Paper(page)
    left, top, right, bottom = paper.printed_area()
    expect(f"618 by 906 pixels, not {right - left} by {bottom - top}",
           abs(right - left - 618) <= 2 and abs(bottom - top - 906) <= 2)
    expect("the first line is on it", paper.darkest(left + 28, top + 18, left + 120, top + 40) < 100)
    expect("the last line is on it", paper.darkest(left + 28, top + 430, left + 300, top + 480) < 100)
    expect("the buttons are not", paper.darkest(left + 400, top + 404, left + 588, top + 440) > 200)
    wait_for("the buttons again", lambda: reader.screen.find("button", "Cancel"))
    reader.click("button", "Cancel")
    reader.click("button", "Exit")
    reader.sees_it_end(0)


def printed():
    """The page that the printing system has in hand, once it is whole."""
    spool = os.path.join(os.environ["LECTERN_TEST_PRINTER"], "spool")
    jobs = sorted(name for name in os.listdir(spool) if name.startswith("d"))
    path = os.path.join(spool, jobs[-1]) if jobs else None
    return path if path and open(path, "rb").read().rstrip().endswith(b"%%EOF") else None


class Printer:
    """A printing system of our own with one printer, which puts what it prints into a folder."""

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory()
        root = self.folder.name
        for name in ("cache", "state", "spool", "tmp"):
            os.mkdir(os.path.join(root, name))
        self.write("cups-files.conf", f"ServerRoot {root}\nCacheDir {root}/cache\nStateDir {root}/state\n"
                   f"RequestRoot {root}/spool\nTempDir {root}/tmp\nAccessLog {root}/access\nErrorLog {root}/error\n"
                   f"PageLog {root}/pages\nFileDevice Yes\n")
        self.write("cupsd.conf", f"Listen {root}/socket\nWebInterface No\nBrowsing No\nDefaultAuthType None\n"
                   "PreserveJobFiles Yes\n<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
                   "<Policy default>\n  <Limit All>\n    Order deny,allow\n    Allow all\n  </Limit>\n</Policy>\n")
        self.write("printers.conf", "<DefaultPrinter Paper>\nDeviceURI file:/dev/null\nState Idle\nAccepting Yes\n"
                   "Shared No\n</DefaultPrinter>\n")
        os.environ["CUPS_SERVER"] = f"{root}/socket"
        os.environ["LECTERN_TEST_PRINTER"] = root
        command = [os.path.abspath(sys.argv[2]), "-f", "-c", f"{root}/cupsd.conf", "-s", f"{root}/cups-files.conf"]
        self.running = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("a printer", lambda: b"Paper" in subprocess.run(
            ["lpstat", "-d"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout)

    def write(self, name, text):
        with open(os.path.join(self.folder.name, name), "w") as file:
            file.write(text)

    def __exit__(self, *_):
        self.running.terminate()
        self.running.wait(PATIENCE)
        self.folder.cleanup()


def with_window_manager(visit):
    def managed(reader, folder):
        with WindowManager():
            visit(reader, folder)

    return managed


if __name__ == "__main__":
    visits = [with_window_manager(visit) for visit in (mark_a_place, keep_a_note, print_a_page)]
    if "LECTERN_TEST_STAGE" in os.environ:
        with Printer():
            play(visits)
    else:
        play(visits)
