"""Reads a form the way a screen reader does: over the accessibility bus, from another process.

    screen_reader.py PROGRAM

PROGRAM is tests/e2e/accessible_form: a form with one cell of each kind, the first of them focused.
"""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 30
passed, failed = 0, 0


def check(what, seen, expected):
    global passed, failed
    if seen == expected:
        passed += 1
    else:
        failed += 1
        print(f"FAILED: {what}: {seen!r} instead of {expected!r}")


def wait_for(what, question):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            answer = question()
        except GLib.Error:
            answer = None
        if answer:
            return answer
        time.sleep(0.1)
    raise SystemExit(f"waited {PATIENCE} s for {what}\n{passed} passed, {failed + 1} failed")


def children(of):
    return [of.get_child_at_index(index) for index in range(of.get_child_count())]


def find(of, role, depth=6):
    if of.get_role_name() == role:
        return of
    for child in children(of) if depth else []:
        found = child and find(child, role, depth - 1)
        if found:
            return found
    return None


def form_of_program():
    for program in children(Atspi.get_desktop(0)):
        if program and program.get_name() == "accessible_form":
            return find(program, "form")
    return None


def text_of(row):
    return Atspi.Text.get_text(row, 0, -1) if "Text" in row.get_interfaces() else None


def has(row, state):
    row.clear_cache()
    return row.get_state_set().contains(state)


def row_named(form, name):
    return next(child for child in children(form) if child.get_name() == name)


def do(row, action):
    names = [Atspi.Action.get_action_name(row, index) for index in range(row.get_n_actions())]
    row.do_action(names.index(action))


class Ear:
    """What is announced."""

    def __init__(self):
        self.heard = set()
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in ("object:state-changed", "object:property-change", "object:property-change:accessible-value"):
            self.listener.register(kind)

    def hear(self, event):
        self.heard.add((event.type, event.source and event.source.get_name()))

    def check(self, kind, name):
        end = time.monotonic() + 5
        while (kind, name) not in self.heard and time.monotonic() < end:
            GLib.MainContext.default().iteration(False)
            time.sleep(0.01)
        check(f"announced {kind} of {name}", (kind, name) in self.heard, True)


def read(form, ear):
    expected = [
        ("Name", ("text", "entry"), "Ada"),
        ("Pieces", ("spin button",), "5"),
        ("Password", ("password text",), "******"),
        ("Paid", ("check box",), None),
        ("Title", ("combo box",), None),
        ("Due", ("text", "entry"), None),
    ]
    for name, roles, value in expected:
        row = row_named(form, name)
        check(f"role of {name}", row.get_role_name() in roles and row.get_role_name(), row.get_role_name())
        if value is not None:
            check(f"value of {name}", text_of(row), value)
    check("the password is nowhere to be read",
          any("geheim" in (text_of(child) or "") + child.get_name() for child in children(form)), False)
    check("tip", row_named(form, "Name").get_description(), "As in the passport")
    paid = row_named(form, "Paid")
    check("checked", has(paid, Atspi.StateType.CHECKED), True)
    do(paid, "Toggle")
    check("unchecked", has(paid, Atspi.StateType.CHECKED), False)
    ear.check("object:state-changed:checked", "Paid")
    do(row_named(form, "Pieces"), "Increase")
    check("stepped", text_of(row_named(form, "Pieces")), "6")
    ear.check("object:property-change:accessible-value", "Pieces")


def refuse(form, ear):
    due = row_named(form, "Due")
    before = due.get_description()
    do(due, "SetFocus")
    check("focused", has(due, Atspi.StateType.FOCUSED), True)
    edit = next(child for child in children(form) if child.get_name() == "Due" and "EditableText" in child.get_interfaces()
                and child.get_index_in_parent() != due.get_index_in_parent())
    Atspi.EditableText.set_text_contents(edit, "31.02.2026")
    do(row_named(form, "Name"), "SetFocus")
    due.clear_cache()
    check("why it was refused", due.get_description() != before and due.get_description() != "", True)
    ear.check("object:property-change:accessible-description", "Due")
    ear.check("object:state-changed:focused", "Due")
    print("states of the refused row:", [str(state.value_nick) for state in due.get_state_set().get_states()])


def main():
    Atspi.init()
    program = subprocess.Popen([sys.argv[1]])
    try:
        form = wait_for("the form on the accessibility bus", form_of_program)
        ear = Ear()
        read(form, ear)
        refuse(form, ear)
    finally:
        program.kill()
        program.wait()
    print(f"{passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
