"""What a reader says unasked: notices, sheets, and what edits did."""

import pytest
from faults import faults
from reader import is_showing, parts


def cells(table, row, columns=5):
    """What the first cells of a row say, and their headers."""
    return [(table.getColumnHeader(column).name, table.getAccessibleAt(row, column).name)
            for column in range(columns)]


def table_of(window):
    return parts(window, "table")[0].queryTable()


@pytest.fixture
def window(start, reader):
    start("cable.tll")
    reader.hears("focus", "1")
    return reader.window("cable.tll")


def test_cells_say_their_marks_and_columns_in_words(window, reader):
    told = cells(table_of(window), 1)
    assert [column for column, _ in told] == ["Number", "Name", "Type", "Skip", "Lock"]
    assert told[0][1] == "2" and told[3][1] == "Skip: not checked"
    reader.press("down")
    reader.hears("focus", "2")
    reader.press("ctrl+k")
    reader.hears("notification", "1 station will be skipped")
    assert cells(table_of(window), 1)[3][1] == "Skip: checked"
    for _, text in cells(table_of(window), 1)[1:]:  # as the keys get through them
        reader.press("right")
        reader.hears("focus", text)


def test_moves_are_told_and_so_is_the_row_anew(window, reader):
    table = table_of(window)
    names = [table.getAccessibleAt(row, 1).name for row in range(4)]
    reader.press("down")
    reader.hears("focus", "2")
    since = len(reader.spoken)
    reader.press("alt+down")
    reader.hears("notification", "1 station moved down", since)
    reader.hears("focus", "3", since)
    moved = [names[0], names[2], names[1], names[3]]
    assert [table.getAccessibleAt(row, 1).name for row in range(4)] == moved
    since = len(reader.spoken)
    reader.press("ctrl+z")
    reader.hears("notification", "Undone: Move of 1 Station", since)
    assert [table.getAccessibleAt(row, 1).name for row in range(4)] == names


def test_another_list_is_told(window, reader):
    reader.press("ctrl+r")
    reader.hears("notification", "Cable, Radio, 70 stations")


def test_a_field_in_a_cell_has_the_name_of_its_column(window, reader):
    reader.press("f2")
    reader.hears("focus", "Number")
    reader.type("3")
    reader.press("return")
    reader.hears("notification", "1 station moved")


def test_a_damaged_file_is_told_at_the_start(desktop, start, reader):
    whole = (desktop.home / "cable.tll").read_bytes()
    (desktop.home / "damaged.tll").write_bytes(whole[:len(whole) // 2])
    start("damaged.tll")
    reader.hears("notification", "damaged")
    bar = next(part for part in parts(reader.window("damaged.tll"), "notification")
               if "damaged" in part.name)
    assert is_showing(bar) and not list(faults(bar))


def test_a_sheet_says_its_question_and_gives_the_focus_back(window, reader):
    reader.press("down")
    reader.hears("focus", "2")
    reader.press("ctrl+k")
    reader.hears("notification", "1 station will be skipped")
    reader.press("ctrl+w")
    question = reader.hears("alert", "Do you want to save")
    assert reader.hears("focus", "Save") == "Save"
    sheet = reader.window(question, "alert")
    assert "lost" in sheet.description and not list(faults(sheet))
    since = len(reader.spoken)
    reader.press("escape")
    reader.hears("focus", "2", since)


def test_what_was_not_saved_is_offered_again(desktop, start, reader):
    program = start("cable.tll")
    reader.hears("focus", "1")
    reader.press("down")
    reader.hears("focus", "2")
    reader.press("ctrl+k")
    reader.hears("notification", "1 station will be skipped")
    kept = desktop.home / "STATE_HOME"
    reader.wait(lambda: list(kept.glob("Quillet/recovery/*/state")), "what is kept")
    desktop.stop(program)
    start()
    dialog = reader.window("Unsaved Lists")
    reader.hears("focus", "cable.tll")
    assert not list(faults(dialog))


def test_the_window_without_a_file(start, reader):
    start()
    reader.hears("notification", "No channel list is open")
    window = reader.window("Untitled")
    assert not list(faults(window))
    offered = [part.name for part in parts(window, "push button") if is_showing(part)]
    assert any(name.startswith("Open") for name in offered), offered
