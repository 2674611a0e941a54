"""Pads under a Wayland compositor: seen below their cells, worked by mouse and keyboard, gone afterwards."""

import os
import sqlite3
import sys
import tempfile
import time

from desktop import Editor, Picture, wait_for, xdotool
from expectations import expect, expect_changes

OUTSIDE = (950, 800)
BUTTON = 880  # of every cell that has one
COUNTRY, CAPITAL, FOUNDED = 116, 344, 439
TOOLBAR = (600, 18)
STILL = (0, 100, 900, 760)  # below the blinking caret of the first row


class NestedEditor(Editor):
    """The only window of the compositor, at its upper left corner."""

    def wait_for_window(self):
        xdotool("mousemove", *OUTSIDE)  # the compositor learns where the pointer is when it comes in
        wait_for("the form", lambda: len(set(self.look().part(300, 100, 600, 600))) > 8 and self.rests())

    def rests(self):
        """Whether a moment goes by without a change: the compositor has given the window its size by then."""
        before = self.look().part(*STILL)
        time.sleep(0.5)
        return self.look().part(*STILL) == before

    def look(self):
        return Picture("root")

    def click(self, x, y, button=1, times=1):
        xdotool("mousemove", x - 3, y, "sleep", 0.1, "mousemove", x, y, "sleep", 0.1, "click", button)


def open_pad(editor, row):
    """Waits until something covers the rows below the button."""
    below = (BUTTON - 120, row + 30, BUTTON - 20, row + 90)
    before = editor.look().part(*below)
    editor.click(BUTTON, row)
    wait_for("a pad", lambda: editor.look().part(*below) != before)
    return lambda: wait_for("the pad to go", lambda: editor.look().part(*below) == before)


def pads_are_worked(editor):
    before = editor.record(1)
    gone = open_pad(editor, COUNTRY)
    editor.type("austri")
    editor.press("Return")
    gone()
    gone = open_pad(editor, FOUNDED)
    editor.press("Right", "Right", "Return")
    gone()
    gone = open_pad(editor, CAPITAL)
    editor.press("Escape", "1", "1", "6", "F7", "Return")
    gone()
    editor.press("ctrl+s")
    wait_for("the record to be saved", lambda: editor.record(1) != before)
    after = editor.record(1)
    expect_changes(before, after, country="AT", founded_on="1923-04-19", share_capital=after["share_capital"])
    expect("share capital", float(after["share_capital"]), 100.0)


def a_press_elsewhere_closes_the_pad(editor):
    before = editor.record(1)
    gone = open_pad(editor, FOUNDED)
    editor.click(*TOOLBAR)
    gone()
    expect("the record", editor.record(1), before)


def main(program, sample, pictures):
    failed = 0
    scenarios = [pads_are_worked, a_press_elsewhere_closes_the_pad]
    for scenario in scenarios:
        with tempfile.TemporaryDirectory() as folder:
            editor = NestedEditor(program, sample, folder)
            try:
                editor.wait_for_window()
                scenario(editor)
                print(f"{scenario.__name__}: ok")
            except (AssertionError, sqlite3.Error) as fault:
                failed += 1
                print(f"{scenario.__name__}: FAILED: {fault}")
            finally:
                editor.picture(os.path.join(pictures, f"wayland_{scenario.__name__}.png"))
                editor.close()
    print(f"{len(scenarios) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
