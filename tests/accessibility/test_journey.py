"""One evening by keyboard, with nothing to go by but what the reader says."""

import lists


def test_open_search_move_undo_and_save(desktop, start, reader):
    made = lists.stations(range(1, 7), [("cable", "tv")])
    for _, _, fields in made:
        fields["isSkipped"] = 0
    file = desktop.home / "evening.tll"
    file.write_bytes(lists.xml(made))
    start()
    reader.press("ctrl+o")
    reader.hears("focus", "File name")
    reader.type("evening.tll")
    reader.press("return")
    reader.hears("window", "evening.tll")
    reader.hears("notification", "Cable, TV, 6 stations")

    reader.press("ctrl+f")
    reader.hears("focus", "Search")
    reader.type("delta")
    reader.hears("notification", "1 match")
    reader.press("down")
    reader.hears("focus", "5")
    reader.press("ctrl+m")
    reader.hears("alert", "Move the selected station to number")
    reader.hears("focus", "Move the selected station to number")  # keys go to the list until then
    reader.type("2")
    reader.press("return")
    reader.hears("notification", "1 station moved")
    reader.hears("focus", "2")

    reader.press("ctrl+k")
    reader.hears("notification", "1 station will be skipped")
    reader.press("ctrl+z")
    reader.hears("notification", "Undone: Skip of 1 Station")
    reader.press("ctrl+s")
    reader.hears("notification", "Saved")
    order = [0, 4, 1, 2, 3, 5]
    moved = [(source, mode, {**fields, "prNum": place + 1})
             for place, (source, mode, fields) in enumerate(made[each] for each in order)]
    assert file.read_bytes() == lists.xml(moved)
