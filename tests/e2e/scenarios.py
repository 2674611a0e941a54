"""What a person does with the record editor, one function each, checked against the database file."""

import os
import sys
import tempfile
import traceback

from desktop import Desktop, Editor, wait_for, xdotool
from expectations import expect, expect_changes
from handling import HANDLING, PREPARATIONS, wait_for_form

# Rows of the form: the columns of the table under the headings of their groups.
NAME, LEGAL_FORM, COUNTRY, EMPLOYEES, CAPITAL, FOUNDED, OPENS, CUSTOMER = 1, 2, 3, 14, 15, 20, 21, 24
# Pixels in the window, with the font that the packages of this run bring.
FIRST_ROW, ROW_HEIGHT = 59, 19
LABEL, IMAGE, VALUE, BUTTON = 60, 158, 300, 540


def typing_is_saved(editor):
    before = editor.record(1)
    editor.go_to(NAME)
    editor.type("Möwe & Söhne €")
    editor.press("Return")
    editor.go_to(EMPLOYEES)
    editor.type("1.50")
    editor.press("Return")
    editor.type("1234,5")
    editor.press("Return")
    wait_for("the mark of a change", editor.is_modified)
    expect("the database before saving", editor.record(1), before)
    editor.save()
    after = editor.record(1)
    expect("share capital", float(after.pop("share_capital")), 1234.5)
    before.pop("share_capital")
    expect_changes(before, after, name="Möwe & Söhne €", employees=150)


def first_composed_character_is_kept(editor):
    before = editor.record(1)
    editor.go_to(NAME)
    editor.press("dead_acute", "e")
    editor.type("t")
    editor.press("dead_acute", "e", "Return")
    editor.save()
    expect_changes(before, editor.record(1), name="été")


def short_entries_are_completed(editor):
    before = editor.record(1)
    editor.go_to(FOUNDED)
    editor.type("3.5.1931")
    editor.press("Return")
    editor.type("8")
    editor.press("Return")
    wait_for("the mark of a change", editor.is_modified)
    editor.save()
    expect_changes(before, editor.record(1), founded_on="1931-05-03", opens_at="08:00:00")


def refused_input_keeps_the_cell_and_its_old_value(editor):
    before = editor.record(1)
    editor.go_to(FOUNDED)
    editor.type("31.2.2020")
    editor.press("Return", "ctrl+s")
    expect("the database after a refused date", editor.record(1), before)
    # Still in the same cell, the old text selected: a good date replaces it.
    editor.type("28.2.2020")
    editor.press("Return")
    wait_for("the mark of a change", editor.is_modified)
    editor.save()
    expect_changes(before, editor.record(1), founded_on="2020-02-28")


def escape_undoes_the_typing(editor):
    before = editor.record(1)
    editor.go_to(NAME)
    editor.type("Not this")
    editor.press("Escape", "Return")
    editor.press("ctrl+s")
    editor.press("ctrl+Next")
    editor.go_to(NAME)
    editor.type("Second")
    editor.press("Return")
    wait_for("the mark of a change", editor.is_modified)
    editor.save()
    expect("the first record", editor.record(1), before)
    expect("the second record's name", editor.record(2)["name"], "Second")


def records_are_walked(editor):
    for number in (1, 2, 3):
        editor.go_to(NAME)
        editor.type(f"Company {number}")
        editor.save()
        editor.press("ctrl+Next")
    editor.press("ctrl+Prior", "ctrl+Prior")
    editor.go_to(NAME)
    editor.type("Again 2")
    editor.save()
    names = [row["name"] for row in editor.rows("SELECT name FROM companies ORDER BY id LIMIT 3")]
    expect("names", names, ["Company 1", "Again 2", "Company 3"])


def new_record_is_added(editor):
    count = len(editor.rows("SELECT id FROM companies"))
    editor.press("ctrl+n")
    editor.go_to(NAME)
    editor.type("Neue Wege")
    editor.press("Return")
    editor.type("KG")
    editor.press("Return")
    editor.go_to(EMPLOYEES)
    editor.type("3")
    editor.press("Return")
    editor.go_to(FOUNDED)
    editor.type("1.4.2024")
    editor.press("Return")
    editor.press("ctrl+s")
    wait_for("one record more", lambda: len(editor.rows("SELECT id FROM companies")) == count + 1)
    row = editor.rows("SELECT * FROM companies ORDER BY id DESC LIMIT 1")[0]
    expect("the new record", [row[name] for name in ("name", "legal_form", "country", "employees", "founded_on")],
           ["Neue Wege", "KG", "DE", 3, "2024-04-01"])


def leaving_asks_about_changes(editor):
    before = editor.record(1)
    editor.go_to(NAME)
    editor.type("Asked")
    editor.press("ctrl+Next")
    editor.wait_for_dialog()
    editor.press("Escape")
    editor.wait_for_form()
    expect("the database after Cancel", editor.record(1), before)
    editor.press("ctrl+Next")
    editor.wait_for_dialog()
    editor.press("Return")
    editor.wait_for_form()
    wait_for("the saved name", lambda: editor.record(1)["name"] == "Asked")
    expect_changes(before, editor.record(1), name="Asked")


def typed_text_survives_closing(editor):
    editor.go_to(NAME)
    editor.type("Typed last")
    editor.press("alt+F4")
    editor.wait_for_dialog()
    editor.press("Return")
    expect("exit status", editor.wait_for_end(), 0)
    expect("the saved name", editor.record(1)["name"], "Typed last")


def click_chooses_the_cell(editor):
    before = editor.record(1)
    for row, text in ((OPENS, "9"), (NAME, "Clicked")):
        editor.click(300, FIRST_ROW + row * ROW_HEIGHT)
        editor.press("ctrl+a")
        editor.type(text)
    editor.press("Return")
    wait_for("the mark of a change", editor.is_modified)
    editor.save()
    expect_changes(before, editor.record(1), name="Clicked", opens_at="09:00:00")


def open_pad(editor, row):
    editor.go_to(row)
    editor.press("F4")
    wait_for("a pad", lambda: editor.windows() == 2)


def wait_for_closed_pads(editor):
    wait_for("the end of the pads", lambda: editor.windows() == 1)


def save_and_expect(editor, before, **wanted):
    wait_for_closed_pads(editor)
    wait_for("the mark of a change", editor.is_modified)
    editor.save()
    expect_changes(before, editor.record(1), **wanted)


def list_entry_is_picked_by_typing(editor):
    before = editor.record(1)
    open_pad(editor, COUNTRY)
    editor.type("austri")
    editor.press("Return")
    save_and_expect(editor, before, country="AT")


def list_entry_is_picked_by_mouse(editor):
    before = editor.record(1)
    editor.click(BUTTON, FIRST_ROW + LEGAL_FORM * ROW_HEIGHT)
    wait_for("a pad", lambda: editor.windows() == 2)
    editor.click(VALUE, FIRST_ROW + (LEGAL_FORM + 5) * ROW_HEIGHT)  # the fifth entry
    save_and_expect(editor, before, legal_form="KG")


def date_is_picked_across_a_holiday(editor):
    before = editor.record(1)
    editor.go_to(FOUNDED)
    editor.type("30.4.2019")
    editor.press("F4")
    wait_for("a pad", lambda: editor.windows() == 2)
    editor.press("Right", "Right", "Return")
    save_and_expect(editor, before, founded_on="2019-05-02")


def amount_is_calculated(editor):
    before = editor.record(1)
    open_pad(editor, CAPITAL)
    editor.type("c116")
    editor.press("F7", "Return")
    wait_for_closed_pads(editor)
    wait_for("the mark of a change", editor.is_modified)
    editor.save()
    after = editor.record(1)
    expect("share capital", float(after.pop("share_capital")), 100.0)
    before.pop("share_capital")
    expect_changes(before, after)


def truth_is_turned_over_by_key_and_mouse(editor):
    before = editor.record(1)
    editor.go_to(CUSTOMER)
    editor.press("space")
    save_and_expect(editor, before, is_customer=0)
    editor.click(IMAGE, FIRST_ROW + CUSTOMER * ROW_HEIGHT)
    save_and_expect(editor, before)


def pads_close_and_leave_nothing_behind(editor):
    before = editor.record(1)
    for row in (LEGAL_FORM, CAPITAL, FOUNDED):
        for close in (lambda: editor.press("F4"), lambda: editor.click(LABEL, FIRST_ROW),
                      lambda: editor.click(VALUE, FIRST_ROW + row * ROW_HEIGHT),
                      lambda: xdotool("windowsize", editor.window, 600, 700 + row),
                      lambda: xdotool("windowmove", editor.window, 50 + row, 60)):
            open_pad(editor, row)
            close()
            wait_for_closed_pads(editor)
    for row in (LEGAL_FORM, FOUNDED):
        open_pad(editor, row)
        editor.press("Escape")
        wait_for_closed_pads(editor)
    open_pad(editor, FOUNDED)
    editor.press("alt+F4")
    expect("exit status", editor.wait_for_end(), 0)
    expect("the database", editor.record(1), before)


SCENARIOS = [typing_is_saved, first_composed_character_is_kept, short_entries_are_completed,
             refused_input_keeps_the_cell_and_its_old_value,
             escape_undoes_the_typing, records_are_walked, new_record_is_added, leaving_asks_about_changes,
             typed_text_survives_closing, click_chooses_the_cell, list_entry_is_picked_by_typing,
             list_entry_is_picked_by_mouse, date_is_picked_across_a_holiday, amount_is_calculated,
             truth_is_turned_over_by_key_and_mouse, pads_close_and_leave_nothing_behind] + HANDLING


def run(scenario, program, sample, pictures):
    with tempfile.TemporaryDirectory() as folder:
        editor = Editor(program, sample, folder, PREPARATIONS.get(scenario, ""))
        try:
            editor.wait_for_window()
            wait_for_form(editor)
            scenario(editor)
            print(f"passed: {scenario.__name__}", flush=True)
            return True
        except Exception:  # whatever it was, the other scenarios still count
            print(f"failed: {scenario.__name__}", flush=True)
            traceback.print_exc(file=sys.stdout)
            return False
        finally:
            editor.picture(os.path.join(pictures, scenario.__name__ + ".png"))
            editor.close()


def main(program, sample, pictures, *names):
    chosen = [scenario for scenario in SCENARIOS if not names or scenario.__name__ in names]
    with Desktop():
        results = [run(scenario, program, sample, pictures) for scenario in chosen]
    print(f"{sum(results)} passed, {len(results) - sum(results)} failed")
    return 0 if results and all(results) else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
