"""The form designer with the plugin: forms are drawn as they are, follow their properties, and are saved whole."""

import os
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as tree

from desktop import Desktop, Impatient, Picture, wait_for, xdotool
from expectations import expect

LABEL = (205, 228, 222)  # the labels of the sample
# Places in the designer's window of 1280 by 960 pixels, at the upper left of the screen.
FORM_TITLE = (360, 89)
FORM_IN_INSPECTOR = (841, 206)
WIDGET_FILTER = (120, 110)
PROPERTY_FILTER = (977, 400)
CAPTION_VALUE = (960, 505)
FORM_AREA = (264, 80, 760, 960)


class Designer:
    def __init__(self, program, form):
        self.process = subprocess.Popen([program, form], stderr=subprocess.DEVNULL)

    def wait_for_window(self):
        window = wait_for("the designer", self._active_window)
        xdotool("windowsize", "--sync", window, 1280, 960, "windowmove", window, 0, 0)
        wait_for("its window to fill the screen", lambda: Picture("root").pixel(1270, 970) != (0, 0, 0))

    def _active_window(self):
        if self.process.poll() is not None:
            raise Impatient(f"the designer ended with {self.process.returncode}")
        window = xdotool("getactivewindow")
        return window if window and xdotool("getwindowpid", window) == str(self.process.pid) else None

    def close(self):
        self.process.terminate()
        self.process.wait()


def click(place, times=1):
    xdotool("mousemove", *place, "sleep", 0.2, "click", "--repeat", times, "--delay", 60, 1, "sleep", 0.2)


def drag(place, right):
    xdotool("mousemove", *place, "mousedown", 1, "sleep", 0.1, "mousemove_relative", right // 2, 3, "sleep", 0.1,
            "mousemove_relative", right - right // 2, 3, "sleep", 0.1, "mouseup", 1)


def write(place, text):
    click(place)
    xdotool("key", "ctrl+a", "type", "--delay", 30, text)


def form():
    return Picture("root").part(*FORM_AREA)


def properties(file):
    """Every property of every widget, as it is written."""
    found = {}
    for widget in tree.parse(file).iter("widget"):
        for item in widget.findall("property"):
            found[widget.get("name"), item.get("name")] = " ".join(item.itertext()).split()
    return found


def edit(file):
    drag(FORM_TITLE, 130)
    wait_for("labels in their colour", lambda: Picture("root").count(LABEL) > 1000)
    click(FORM_IN_INSPECTOR)
    write(WIDGET_FILTER, "Quillgrid")
    write(PROPERTY_FILTER, "caption")
    before = properties(file)
    drawn = form()
    click(CAPTION_VALUE, times=2)
    xdotool("key", "ctrl+a", "type", "--delay", 30, "Ship to")
    xdotool("key", "Return")
    wait_for("the caption to be drawn anew", lambda: form() != drawn)
    xdotool("key", "ctrl+s")
    wait_for("the form to be saved", lambda: properties(file) != before)
    wanted = {**before, ("form", "caption"): ["Ship", "to"]}
    after = properties(file)
    expect("what was saved", {key: after.get(key) for key in wanted}, wanted)


def main(program, sample, pictures):
    with tempfile.TemporaryDirectory() as folder, Desktop():
        file = shutil.copy(sample, folder)
        designer = Designer(program, file)
        try:
            designer.wait_for_window()
            edit(file)
            print("1 passed, 0 failed")
            return 0
        except AssertionError as fault:
            print(f"FAILED: {fault}\n0 passed, 1 failed")
            return 1
        finally:
            subprocess.run(["import", "-window", "root", os.path.join(pictures, "designer.png")], check=False)
            designer.close()


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
