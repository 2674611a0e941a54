"""What hands do to the form: access keys, wheel, scroll bar, buttons held, groups, refusals, sizes, drags. Each
scenario ends with a look at the few things of the picture that matter."""

import time

from desktop import wait_for
from expectations import expect, expect_changes

# Rows of the form: the columns of the table under the headings of their groups.
NAME, CONTACT_HEADING, CONTACT, FIGURES_HEADING, EMPLOYEES, FOUNDED, OPENS = 1, 5, 7, 13, 14, 20, 21
PASSWORD, LAST = 26, 28
# Pixels in the window, with the font that the packages of this run bring.
FIRST_ROW, ROW_HEIGHT, BELOW = 59, 19, 30
MARGIN, LABELS_LEFT, LABELS_RIGHT, VALUE, BUTTON = 17, 27, 144, 300, 541
FULL, LOW = (560, 700), (560, 400)
WHITE, REFUSAL = (255, 255, 255), (201, 42, 42)


def middle(row):
    return FIRST_ROW + row * ROW_HEIGHT


def labels(picture):
    """The label of each row as it is seen, without the line below it."""
    count = (picture.height - FIRST_ROW - BELOW) // ROW_HEIGHT
    return [picture.part(LABELS_LEFT, middle(row) - 8, LABELS_RIGHT, middle(row) + 8) for row in range(count)]


def current_rows(picture):
    """Those whose label is marked."""
    return [row for row in range(len(labels(picture))) if picture.pixel(LABELS_LEFT, middle(row)) != WHITE]


def wait_for_form(editor):
    wait_for_current(editor, NAME)


def wait_for_current(editor, row):
    wait_for(f"row {row} to be the current one", lambda: current_rows(editor.look()) == [row])


def access_keys_choose_cells(editor):
    before = editor.record(1)
    editor.press("alt+a")
    wait_for_current(editor, CONTACT)
    editor.type("Ada Neu")
    editor.press("alt+i")
    wait_for_current(editor, NAME)
    editor.save()
    expect_changes(before, editor.record(1), contact="Ada Neu")


def wheel_scrolls_and_never_edits(editor):
    before = editor.record(1)
    editor.resize(*LOW)
    editor.go_to(NAME)
    editor.type("Typed")
    top = labels(editor.look())
    editor.click(VALUE, middle(5), button=5, times=3)
    wait_for("nine rows to go by", lambda: labels(editor.look())[1:4] == top[10:13])
    editor.click(VALUE, middle(5), button=4, times=9)
    wait_for("the first rows again", lambda: labels(editor.look())[2:9] == top[2:9])
    editor.save()
    expect_changes(before, editor.record(1), name="Typed")


def scroll_bar_is_dragged(editor):
    before = editor.record(1)
    last = labels(editor.look())[LAST]
    editor.resize(*LOW)
    wait_for_current(editor, NAME)
    top = labels(editor.look())
    editor.hold(BUTTON, FIRST_ROW + 40)
    for y in range(FIRST_ROW + 80, LOW[1], 40):
        editor.move(BUTTON, y)
    wait_for("the last row", lambda: last in labels(editor.look()))
    for y in range(LOW[1], FIRST_ROW, -40):
        editor.move(BUTTON, y)
    editor.let_go()
    wait_for("the first rows again", lambda: labels(editor.look())[2:9] == top[2:9])
    expect("the mark of a change", editor.is_modified(), False)
    expect("the record", editor.record(1), before)


def steps_within(seconds):
    """Of a held spin button: at once, and then after 250, 200, 150 and again and again 100 ms."""
    return sum(moment <= seconds for moment in [0, 0.25, 0.45] + [0.6 + 0.1 * n for n in range(600)])


def spin_steps_while_held(editor):
    before = editor.record(1)
    began = time.monotonic()
    editor.hold(BUTTON, middle(EMPLOYEES) - 5)
    time.sleep(1.2)
    editor.let_go()
    most = steps_within(time.monotonic() - began)
    wait_for_current(editor, EMPLOYEES)
    editor.save()
    steps = editor.record(1)["employees"] - before["employees"]
    if not 4 <= steps <= most:
        raise AssertionError(f"{steps} steps, where {most} had their time")
    time.sleep(0.4)
    expect("the mark of a change after the release", editor.is_modified(), False)
    editor.click(BUTTON, middle(EMPLOYEES) + 5, times=2)
    editor.save()
    expect_changes(before, editor.record(1), employees=before["employees"] + steps - 2)


def spin_ends_with_the_window(editor):
    before = editor.record(1)
    began = time.monotonic()
    editor.hold(BUTTON, middle(EMPLOYEES) - 5)
    time.sleep(0.5)
    editor.minimize()
    most = steps_within(time.monotonic() - began) + 2  # the news takes its time
    time.sleep(1)
    editor.let_go()
    editor.activate()
    wait_for_current(editor, EMPLOYEES)
    editor.save()
    steps = editor.record(1)["employees"] - before["employees"]
    if not 1 <= steps <= most:
        raise AssertionError(f"{steps} steps, where {most} had their time")


def drag(editor, start, end):
    """Slowly: what follows on clicks too soon is one more of them, and a drag wants some way and some time."""
    time.sleep(0.6)
    editor.hold(*start)
    for step in range(1, 9):
        time.sleep(0.05)
        editor.move(*(a + (b - a) * step // 8 for a, b in zip(start, end)))
    time.sleep(0.2)
    editor.let_go()


def text_is_dragged_out_but_no_password(editor):
    before = editor.record(1)
    editor.click(VALUE - 140, middle(PASSWORD))
    wait_for_current(editor, PASSWORD)
    editor.press("ctrl+a")
    drag(editor, (VALUE - 140, middle(PASSWORD)), (BUTTON - 40, middle(NAME)))
    expect("the mark of a change", editor.is_modified(), False)
    editor.click(VALUE - 140, middle(CONTACT), times=2)
    wait_for_current(editor, CONTACT)
    drag(editor, (VALUE - 136, middle(CONTACT)), (BUTTON - 40, middle(NAME)))
    wait_for_current(editor, NAME)
    wait_for("the mark of a change", editor.is_modified)
    editor.save()
    expect_changes(before, editor.record(1), name=before["contact"].split()[0])


def groups_fold_by_mouse_and_key(editor):
    unfolded = labels(editor.look())
    size = FIGURES_HEADING - CONTACT_HEADING - 1

    def is_folded():
        now = labels(editor.look())
        return now[CONTACT_HEADING + 1:LAST - size] == unfolded[FIGURES_HEADING:LAST]

    def is_unfolded():
        return labels(editor.look())[CONTACT_HEADING + 1:LAST] == unfolded[CONTACT_HEADING + 1:LAST]

    editor.click(MARGIN, middle(CONTACT_HEADING))
    wait_for("the group to fold", is_folded)
    expect("the current row", current_rows(editor.look()), [CONTACT_HEADING])
    editor.press("Right")
    wait_for("the group to unfold", is_unfolded)
    editor.press("Left")
    wait_for("the group to fold by key", is_folded)
    expect("the mark of a change", editor.is_modified(), False)


def refusal_is_shown_until_it_is_corrected(editor):
    before = editor.record(1)
    editor.go_to(FOUNDED)
    wait_for_current(editor, FOUNDED)
    expect("signs of a refusal", editor.look().count(REFUSAL), 0)
    editor.type("31.2.2020")
    editor.press("Return")
    wait_for("the sign of a refusal", lambda: editor.look().count(REFUSAL) > 20)
    expect("the current row", current_rows(editor.look()), [FOUNDED])
    editor.type("28.2.2020")
    wait_for("the sign to go", lambda: editor.look().count(REFUSAL) == 0)
    editor.press("Return")
    wait_for_current(editor, OPENS)
    editor.save()
    expect_changes(before, editor.record(1), founded_on="2020-02-28")


def window_keeps_a_smallest_size(editor):
    before = labels(editor.look())
    editor.resize(40, 30)
    width, height = editor.size()
    if width < 250 or height < 200:
        raise AssertionError(f"{width} x {height} pixels")
    expect("rows that are current in the small window", wait_for("a row", lambda: current_rows(editor.look())), [NAME])
    editor.type("Small")
    editor.resize(*FULL)
    wait_for("the whole form again", lambda: labels(editor.look()) == before)
    editor.save()
    expect("the name", editor.record(1)["name"], "Small")


def middle_click_passes_the_same_gate(editor):
    before = editor.record(1)
    editor.click(VALUE - 140, middle(CONTACT), times=2)
    editor.click(VALUE, middle(EMPLOYEES))
    wait_for_current(editor, EMPLOYEES)
    editor.click(VALUE, middle(EMPLOYEES), button=2)
    expect("the mark of a change after a refused paste", editor.is_modified(), False)
    editor.click(VALUE, middle(NAME))
    wait_for_current(editor, NAME)
    editor.click(BUTTON, middle(NAME), button=2)
    wait_for("the mark of a change", editor.is_modified)
    editor.save()
    expect_changes(before, editor.record(1), name=before["name"] + before["contact"].split()[0])


SPIN_BUTTON = """
    ALTER TABLE data_dictionary ADD COLUMN "Button" INTEGER;
    UPDATE data_dictionary SET "Button" = 2 WHERE column_name = 'employees';"""
# What is changed in the database before the editor opens it.
PREPARATIONS = {
    access_keys_choose_cells: """
        UPDATE data_dictionary SET "Caption_de" = 'F&irma' WHERE table_name = 'companies' AND column_name = 'name';
        UPDATE data_dictionary SET "Caption_de" = '&Ansprechpartner' WHERE column_name = 'contact';""",
    spin_steps_while_held: SPIN_BUTTON,
    spin_ends_with_the_window: SPIN_BUTTON,
}

HANDLING = [access_keys_choose_cells, wheel_scrolls_and_never_edits, scroll_bar_is_dragged, spin_steps_while_held,
            spin_ends_with_the_window, text_is_dragged_out_but_no_password, groups_fold_by_mouse_and_key,
            refusal_is_shown_until_it_is_corrected, window_keeps_a_smallest_size, middle_click_passes_the_same_gate]
