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
        self.count = 0
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in ("object:state-changed", "object:children-changed", "object:selection-changed", "object:visible-data-changed", "object:property-change:accessible-name", "object:property-change", "object:property-change:accessible-value"):
            self.listener.register(kind)

    def hear(self, event):
        self.count += 1
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


def open_pad(form, ear, name, role):
    """Drops a row's pad down; the row and the pad, which hangs from it."""
    row = row_named(form, name)
    do(row, "ShowMenu")
    pad = wait_for(f"the pad of {name}", lambda: next(iter(children(row)), None))
    check(f"role of the pad of {name}", pad.get_role_name(), role)
    check(f"{name} is unfolded", has(row, Atspi.StateType.EXPANDED), True)
    check(f"the pad of {name} leads back to it", pad.get_parent().get_name(), name)
    return row, pad


def closed(row, value):
    name = row.get_name()
    check(f"{name} took {value}", wait_for(f"the pad of {name} to close", lambda: not children(row) and text_of(row)), value)
    check(f"{name} is folded", has(row, Atspi.StateType.EXPANDED), False)


def pick_from_list(form, ear):
    row, pad = open_pad(form, ear, "City", "list")
    entries = children(pad)
    check("entries", [entry.get_name() for entry in entries], ["Aachen", "Bonn", "Celle"])
    check("roles of entries", {entry.get_role_name() for entry in entries}, {"list item"})
    check("the entry chosen", [has(entry, Atspi.StateType.SELECTED) for entry in entries], [False, True, False])
    ear.check("object:state-changed:focused", "Bonn")
    do(entries[0], "SetFocus")
    ear.check("object:state-changed:focused", "Aachen")
    ear.check("object:state-changed:selected", "Aachen")
    do(entries[2], "Press")
    closed(row, "Celle")


def pick_a_day(form, ear):
    row, pad = open_pad(form, ear, "Day", "panel")
    check("the month", pad.get_name(), "May 2026")
    table = find(pad, "table")
    days = children(table)
    check("days", len(days), 42)
    check("a table of weeks", (Atspi.Table.get_n_rows(table), Atspi.Table.get_n_columns(table)), (6, 7))
    first = next(day for day in days if has(day, Atspi.StateType.SELECTED))
    check("the day", "1 May 2026" in first.get_name() or "May 1, 2026" in first.get_name(), True)
    check("the holiday is told", first.get_description() != "", True)
    ear.check("object:state-changed:focused", first.get_name())
    buttons = {button.get_name(): button for button in children(pad) if button.get_role_name() == "push button"}
    do(buttons["Next month"], "Press")
    ear.check("object:property-change:accessible-name", "June 2026")
    check("the next month", wait_for("June", lambda: pad.clear_cache() or pad.get_name()), "June 2026")
    do(buttons["Previous month"], "Press")
    table.clear_cache()
    tenth = next(day for day in children(table) if "10 May" in day.get_name() or "May 10" in day.get_name())
    do(tenth, "Press")
    check("the pad is closed", wait_for("the calendar to close", lambda: not children(row) and "closed"), "closed")
    check("the day is taken", "10" in text_of(row), True)


def compute(form, ear):
    row, pad = open_pad(form, ear, "Sum", "panel")
    keys = {key.get_name(): key for key in children(pad)[1:]}
    check("keys", (len(keys), {key.get_role_name() for key in keys.values()}), (23, {"push button"}))
    for key in ("clear", "7", "times", "6", "equals"):
        do(keys[key], "Press")
    ear.check("object:property-change:accessible-name", "42")
    check("the display", wait_for("42", lambda: children(pad)[0].get_name()), "42")
    do(keys["equals"], "Press")
    check("the sum is taken", wait_for("the calculator to close", lambda: not children(row) and "42" in text_of(row)), True)


def add_rows(form, ear):
    more = row_named(form, "More")
    before = form.get_child_count()
    do(more, "Toggle")
    ear.check("object:children-changed:add", "")
    check("two more rows", form.get_child_count(), before + 2)
    ear.count = 0
    do(more, "Toggle")
    check("very many more rows", wait_for("the rows", lambda: form.get_child_count() > before + 100_000), True)
    end = time.monotonic() + 2
    while time.monotonic() < end:
        GLib.MainContext.default().iteration(False)
        time.sleep(0.001)
    check("they are not told of one by one", ear.count < 50, True)
    print("heard of 100000 rows:", ear.count, sorted(kind for kind, name in ear.heard if "visible" in kind))


def main():
    Atspi.init()
    program = subprocess.Popen([sys.argv[1]])
    try:
        form = wait_for("the form on the accessibility bus", form_of_program)
        ear = Ear()
        read(form, ear)
        refuse(form, ear)
        pick_from_list(form, ear)
        pick_a_day(form, ear)
        compute(form, ear)
        add_rows(form, ear)
    finally:
        program.kill()
        program.wait()
    print(f"{passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
