"""A record editor under test: its process, its window, its database."""

import os
import shutil
import sqlite3
import subprocess
import tempfile
import time

PATIENCE = 20  # seconds; the machine may be busy with other things


class Impatient(AssertionError):
    """What was waited for did not come."""


def wait_for(what, question, patience=PATIENCE):
    """Asks until the answer is true, and returns it."""
    end = time.monotonic() + patience
    while True:
        answer = question()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Impatient(f"waited {patience} s for {what}")
        time.sleep(0.05)


def xdotool(*arguments):
    run = subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True, check=False)
    return run.stdout.strip()


class Picture:
    """What a window shows."""

    def __init__(self, window):
        # A window that another one is just opening or closing over cannot be read for a moment.
        read = wait_for(f"a picture of window {window}", lambda: self._read(window))
        _, size, _, self.pixels = read.split(b"\n", 3)
        self.width, self.height = map(int, size.split())

    @staticmethod
    def _read(window):
        run = subprocess.run(["import", "-window", str(window), "-depth", "8", "ppm:-"], capture_output=True,
                             check=False)
        return run.stdout if run.returncode == 0 else None

    def part(self, left, top, right, bottom):
        return b"".join(self.pixels[3 * (y * self.width + left):3 * (y * self.width + right)]
                        for y in range(top, bottom))

    def pixel(self, x, y):
        return tuple(self.part(x, y, x + 1, y + 1))

    def count(self, colour):
        found = start = 0
        while (start := self.pixels.find(bytes(colour), start)) >= 0:
            found += start % 3 == 0
            start += 1
        return found


class Desktop:
    """A German keyboard, and a window manager: without one no window is ever active."""

    def __enter__(self):
        # What the keyboard has no key for, xdotool puts on a spare one for a moment: a program that looks up the
        # key too late gets nothing.
        subprocess.run(["setxkbmap", "de"], check=True)
        self.folder = tempfile.TemporaryDirectory()
        # A window that opens while the manager still starts may never be told that it is active.
        ready = os.path.join(self.folder.name, "ready")
        self.manager = subprocess.Popen(["openbox", "--sm-disable", "--startup", f"touch {ready}"],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("the window manager", lambda: os.path.exists(ready))
        return self

    def __exit__(self, *_):
        self.manager.terminate()
        self.manager.wait()
        self.folder.cleanup()


class Editor:
    """The editor on its own copy of the sample database, changed before it starts by `preparation`."""

    def __init__(self, program, sample, folder, preparation="", table="companies"):
        self.database = os.path.join(folder, "edited.sqlite")
        shutil.copyfile(sample, self.database)
        with sqlite3.connect(self.database) as database:
            database.executescript(preparation)
        self.table = table
        self.process = subprocess.Popen([program, self.database, "--table", table, "--locale", "de_DE"],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        self.window = None

    def wait_for_window(self):
        self.window = wait_for("the editor's window to be active", self._active_window)

    def _active_window(self):
        if self.process.poll() is not None:
            raise Impatient(f"the editor ended with {self.process.returncode}: "
                            f"{self.process.stderr.read().decode(errors='replace')}")
        window = xdotool("getactivewindow")
        return window if window and xdotool("getwindowpid", window) == str(self.process.pid) else None

    @staticmethod
    def active_title():
        return xdotool("getactivewindow", "getwindowname")

    def title(self):
        return xdotool("getwindowname", self.window)

    def windows(self):
        """How many are to be seen."""
        return len(xdotool("search", "--onlyvisible", "--pid", self.process.pid).split())

    def is_modified(self):
        return self.title().endswith("*")

    def press(self, *keys):
        for key in keys:
            xdotool("key", "--clearmodifiers", key)

    def go_to(self, row):
        """Rows count from 0, from wherever the form stands."""
        self.press("ctrl+Home", *["Down"] * row)

    def type(self, text):
        xdotool("type", "--delay", 20, "--", text)

    def click(self, x, y, button=1, times=1):
        xdotool("mousemove", "--window", self.window, x, y, "click", "--repeat", times, "--delay", 40, button)

    def hold(self, x, y):
        xdotool("mousemove", "--window", self.window, x, y, "mousedown", 1)

    def move(self, x, y):
        xdotool("mousemove", "--window", self.window, x, y)

    @staticmethod
    def let_go():
        xdotool("mouseup", 1)

    def minimize(self):
        xdotool("windowminimize", "--sync", self.window)

    def activate(self):
        xdotool("windowmap", "--sync", self.window, "windowactivate", self.window)
        wait_for("the window to be active", lambda: self._active_window() == self.window)

    def size(self):
        said = dict(line.split("=") for line in xdotool("getwindowgeometry", "--shell", self.window).split())
        return int(said["WIDTH"]), int(said["HEIGHT"])

    def resize(self, width, height):
        """Asks for a size; the window may have an opinion."""
        before = self.size()
        xdotool("windowsize", self.window, width, height)
        wait_for("another size", lambda: self.size() != before)

    def look(self):
        return Picture(self.window)

    def save(self):
        self.press("ctrl+s")
        wait_for("the title without the mark of a change", lambda: not self.is_modified())

    def wait_for_dialog(self):
        wait_for("a dialog", lambda: self.active_title().startswith("Unsaved"))

    def wait_for_form(self):
        wait_for("the form", lambda: self.active_title().startswith(self.table))

    def rows(self, query, *values):
        with sqlite3.connect(f"file:{self.database}?mode=ro", uri=True, timeout=10) as database:
            database.row_factory = sqlite3.Row
            return [dict(row) for row in database.execute(query, values)]

    def record(self, number):
        return self.rows("SELECT * FROM companies WHERE id = ?", number)[0]

    def picture(self, path):
        subprocess.run(["import", "-window", "root", path], check=False)

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        self.process.stderr.close()

    def wait_for_end(self):
        return self.process.wait(timeout=PATIENCE)
