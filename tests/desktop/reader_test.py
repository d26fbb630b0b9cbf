#!/usr/bin/python3
"""Uses the real program in real windows: reads, marks a place, keeps a note, prints a page on a printer whose paper
can be looked at, and leaves by every way out.

Usage: reader_test.py PROGRAM CUPSD
"""

import os
import signal
import subprocess
import sys
import tempfile

from screen import PATIENCE, Reader, expect, play, stand_on_a_stage, wait_for, xdotool


def read_a_while(reader):
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
    middle = y + height // 2
    xdotool("mousemove", x + height + 8, middle, "mousedown", 1, "mousemove", x + width // 2, middle)
    xdotool("mousemove", x + width, middle, "mouseup", 1)
    reader.reads("KJV Exodus 5", "5")

    # By the keyboard: arrows go through the list, and letters name a place.
    reader.click("list item", "Exodus")
    reader.reads("KJV Exodus 1", "1")
    for key, page in (("Home", "KJV Genesis 1"), ("Down", "KJV Exodus 1")):
        reader.key(key)
        reader.reads(page, "1")
    for key in ("g", "a", "l", "Return"):
        reader.key(key)
    reader.reads("KJV Galatians 1", "1")

    for thing in reader.screen.walk():
        focusable = thing.get_state_set().contains(reader.screen.atspi.StateType.FOCUSABLE)
        expect(f"a {reader.screen.role_of(thing)} has a name", thing.get_name() or not focusable)
    reader.press("Exit")
    reader.sees_it_end(0)


def leave_by_the_menu(reader):
    reader.key("alt+f")
    reader.screen.find("menu item", "Exit")
    reader.key("x")
    # With the mark on the settings are lost, and the failure is reported.
    reader.screen.find_ready("label", "Run-time error '424':\n\nObject required")
    reader.key("Return")
    reader.sees_it_end(1)
    expect("the settings are lost", reader.file("codex.cfg") == "")


def leave_by_the_close_box(reader):
    reader.key("alt+F4")  # as the window manager's close box
    reader.sees_it_end(0)


def mark_a_place(reader):
    reader.click("list item", "Exodus")
    reader.press("Book Mark", "New")
    reader.answers("Enter a name for bookmark", "Exodus 1")
    wait_for("the bookmark", lambda: reader.file("Exodus 1.bkm") == '"Exodus 1","Exodus","1"\r\n')

    # A sweep over the strip turns the chapters. Movements that come while the program is busy count once.
    x, y, _, height = reader.screen.place_of(
        reader.screen.find_ready("image", "Sweep the pointer to step through the chapters"))
    for chapter in (2, 3, 4):
        xdotool("mousemove", x + 10 + chapter, y + height // 2)
        reader.reads(f"KJV Exodus {chapter}", str(chapter))

    # The list and its default button bring the reader back, by the keyboard alone.
    reader.click("list item", "Exodus 1")
    reader.key("Return")
    reader.reads("KJV Exodus 1", "1")


def keep_a_note(reader):
    reader.click("text", "Text of the chapter")
    reader.key("ctrl+a", "ctrl+c")
    reader.press("Notes")
    reader.screen.find_ready("label", "Open file to add to, or create new file")
    reader.key("Return")
    reader.screen.find_ready("frame", "Notes")
    reader.press("Create New File")
    reader.answers("Enter a name for file", "Sunday")
    reader.screen.find_ready("frame", "Sunday - Notes")

    # Over what a new note begins with; what was copied from the page; undone and done again.
    pane = "Text of the note"
    reader.click("text", pane)
    reader.key("ctrl+a")
    reader.types("Whither thou goest")
    reader.screen.find("frame", "*Sunday - Notes")
    wait_for("what was typed", lambda: reader.screen.text_of(pane) == "Whither thou goest")
    for keys, is_there in ((("Return", "ctrl+v"), True), (("ctrl+z",), False), (("ctrl+shift+z",), True)):
        reader.key(*keys)
        wait_for(f"the effect of {keys}", lambda: ("Genesis 1, verse 59." in reader.screen.text_of(pane)) == is_there)
    reader.key("ctrl+s")
    reader.screen.find("frame", "Sunday - Notes")
    saved = reader.file("Sunday.not")
    expect(f"the note is saved: {saved!r}",
           saved.startswith("Whither thou goest\r\n1   KJV Genesis 1, verse 1.\r\n") and saved.endswith("\r\n"))

    # The note's window comes to the front when it is asked for again, and asks before it closes.
    reader.types("!")
    reader.screen.find("frame", "*Sunday - Notes")
    xdotool("search", "--name", "^Lectern 2$", "windowactivate", "--sync")
    reader.screen.find_ready("frame", "Lectern 2")
    reader.key("alt+n")
    reader.screen.find_ready("frame", "*Sunday - Notes")
    reader.key("Escape")
    reader.screen.find_ready("label", "File has been altered. Do you want to save changes to the file: Sunday?")
    reader.key("alt+y")
    wait_for("the note saved once more", lambda: "!" in (reader.file("Sunday.not") or ""))
    expect("the version before is kept", reader.file("backup/Sunday.not") == saved)


def come_back_to_an_unsaved_note(reader):
    pane = "Text of the note"

    def open_notes(reader):
        reader.press("Notes")
        reader.screen.find_ready("label", "Open file to add to, or create new file")
        reader.key("Return")

    open_notes(reader)
    reader.press("Create New File")
    reader.answers("Enter a name for file", "Sunday")
    reader.screen.find_ready("frame", "Sunday - Notes")
    reader.click("text", pane)
    reader.key("ctrl+a")
    reader.types("Not saved yet")
    wait_for("what was typed", lambda: reader.screen.text_of(pane) == "Not saved yet")
    reader.running.terminate()
    reader.sees_it_end(-signal.SIGTERM)

    later = Reader(reader.running.args[0], reader.folder)
    try:
        open_notes(later)
        later.screen.find_ready("label", "Lectern ended before your note was saved. Do you want the text back?")
        later.key("alt+y")
        later.screen.find_ready("frame", "*Sunday - Notes")
        wait_for("the text", lambda: later.screen.text_of(pane) == "Not saved yet")
        later.key("ctrl+s")
        wait_for("the note", lambda: later.file("Sunday.not") == "Not saved yet\r\n")
        wait_for("no draft any longer", lambda: later.file("backup/unsaved-note.txt") is None)
    finally:
        later.running.kill()
        later.running.wait()


class Paper:
    """A printed page at 96 dots an inch, in shades of grey."""

    def __init__(self, pdf):
        pages = subprocess.check_output(["pdfinfo", pdf]).decode()
        expect(f"one page: {pages}", "Pages:           1\n" in pages)
        header, size, _, self.dots = subprocess.check_output(
            ["pdftoppm", "-r", "96", "-gray", pdf]).split(b"\n", 3)
        expect("a picture of the page", header == b"P5")
        self.width, self.height = map(int, size.split())

    def darkest(self, left, top, right, bottom):
        return min(min(self.dots[y * self.width + left:y * self.width + right]) for y in range(top, bottom))

    def printed_area(self):
        rows = [y for y in range(self.height) if self.darkest(0, y, self.width, y + 1) < 250]
        columns = [x for x in range(self.width) if min(self.dots[x::self.width]) < 250]
        return columns[0], rows[0], columns[-1] + 1, rows[-1] + 1


def print_a_page(reader):
    reader.press("Book Mark", "Print Page")
    reader.click("text", "Page")
    reader.key("ctrl+a")
    reader.types("For Sunday")
    reader.key(*["Return"] * 30)
    reader.types("the thirty-first line, which the window does not show")
    reader.press("Print")
    paper = Paper(wait_for("a printed page", printed))

    # The window's whole client area, as it is while it is printed: longer, and without its buttons.
    left, top, right, bottom = paper.printed_area()
    expect(f"618 by 906 pixels, not {right - left} by {bottom - top}",
           abs(right - left - 618) <= 2 and abs(bottom - top - 906) <= 2)
    expect("the first line is on it", paper.darkest(left + 28, top + 18, left + 120, top + 40) < 100)
    expect("the last line is on it", paper.darkest(left + 28, top + 430, left + 300, top + 700) < 100)
    expect("the buttons are not", paper.darkest(left + 400, top + 404, left + 588, top + 440) > 200)
    reader.screen.find("button", "Cancel")


def printed():
    """The page that the printing system holds, once it is whole."""
    spool = os.path.join(os.environ["LECTERN_TEST_PRINTER"], "spool")
    jobs = sorted(name for name in os.listdir(spool) if name.startswith("d"))
    path = os.path.join(spool, jobs[-1]) if jobs else None
    return path if path and open(path, "rb").read().rstrip().endswith(b"%%EOF") else None


class Printer:
    """A printing system of our own with one printer, which puts what it prints into a folder."""

    def __init__(self, cupsd):
        self.cupsd = os.path.abspath(cupsd)

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory()
        root = self.folder.name
        for name in ("cache", "state", "spool", "tmp"):
            os.mkdir(os.path.join(root, name))
        files = {
            "cups-files.conf": f"ServerRoot {root}\nCacheDir {root}/cache\nStateDir {root}/state\n"
            f"RequestRoot {root}/spool\nTempDir {root}/tmp\nAccessLog {root}/access\nErrorLog {root}/error\n"
            f"PageLog {root}/pages\nFileDevice Yes\n",
            "cupsd.conf": f"Listen {root}/socket\nWebInterface No\nBrowsing No\nDefaultAuthType None\n"
            "PreserveJobFiles Yes\n<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
            "<Policy default>\n  <Limit All>\n    Order deny,allow\n    Allow all\n  </Limit>\n</Policy>\n",
            "printers.conf": "<DefaultPrinter Paper>\nDeviceURI file:/dev/null\nState Idle\nAccepting Yes\n"
            "Shared No\n</DefaultPrinter>\n",
        }
        for name, text in files.items():
            with open(os.path.join(root, name), "w") as file:
                file.write(text)
        os.environ["CUPS_SERVER"] = f"{root}/socket"
        os.environ["LECTERN_TEST_PRINTER"] = root
        command = [self.cupsd, "-f", "-c", f"{root}/cupsd.conf", "-s", f"{root}/cups-files.conf"]
        self.running = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("a printer", lambda: b"Paper" in subprocess.run(
            ["lpstat", "-d"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout)

    def __exit__(self, *_):
        self.running.terminate()
        self.running.wait(PATIENCE)
        self.folder.cleanup()


if __name__ == "__main__":
    stand_on_a_stage()
    with Printer(sys.argv[2]):
        play(os.path.abspath(sys.argv[1]),
             (read_a_while, leave_by_the_menu, leave_by_the_close_box, mark_a_place, keep_a_note,
              come_back_to_an_unsaved_note, print_a_page))
