"""Every control of every window has a name, a fitting role, and a reason for being disabled."""

from faults import faults
from reader import is_showing, parts, states

ALSO = {"Station Info", "About Quillet", "File as It Was Read"}
# Qt's own panels; one of the files stands for all.
OTHERS = {"Print…", "Print Compact…", "Save As…", "Another List…", "Import Changes…", "Apply Order…",
          "Export as Reference List…", "Unsaved Lists…", "Find…"}


def test_every_dialog_that_a_menu_leads_to(start, reader):
    start("cable.tll")
    window = reader.window("cable.tll")
    reader.press("down", "shift+down")
    reader.hears("focus", "3")
    reader.press("ctrl+f")
    reader.hears("focus", "Search")
    reader.type("HD")  # so that there is something to clear
    reader.hears("notification", "matches")
    reader.press("down")
    reader.hears("focus", "", len(reader.spoken))
    reader.press("ctrl+k", "ctrl+s", "ctrl+l", "ctrl+shift+h")
    reader.wait(lambda: any("History" == part.name and is_showing(part) for part in parts(window)), "the panel")
    found = list(faults(window))
    items = [item for item in parts(window, "menu item") if "enabled" in states(item) and
             (item.name in ALSO or item.name.endswith("…")) and item.name not in OTHERS]
    walked = []
    for item in items:
        item.queryAction().doAction(0)
        dialog = reader.wait(lambda: reader.active() != window and reader.active(), item.name)
        walked.append(dialog.name)
        for tab in parts(dialog, "page tab") or [None]:
            if tab:
                tab.queryAction().doAction(0)
            found += [f"{item.name}: {fault}" for fault in faults(dialog)
                      if item.name != "Open…" or "disabled" not in fault]
        reader.press("escape")
        reader.wait(lambda: "active" in states(window) and len(reader.windows()) == 1, "the end of it")
    print(walked)
    assert not found, "\n".join(found)
    assert len(walked) >= 8
