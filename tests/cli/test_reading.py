"""Commands that write nothing: info, list, check, compare."""

import csv
import io
import json
import os

import lists
import pytest

WHOLE = lists.xml(lists.stations())


def rows_of(stations):
    return [(each["source"], each["mode"], each["number"], each["name"], each["skipped"])
            for each in stations]


@pytest.mark.parametrize("make, encoding, told_encoding", [
    ("xml", "utf-8", "UTF-8"), ("xml", "utf-16", "UTF-16"), ("xml", "latin-1", "ISO-8859-1"),
    ("json", "utf-8", "UTF-8")])
def test_all_lists_are_told(tool, make, encoding, told_encoding):
    made = lists.stations()
    file = tool.put("list.tll", lists.VARIANTS[make](made).decode().encode(encoding))
    told = lists.told(made, make)
    assert rows_of(tool.listed(file)) == told
    info = tool.report("info", file)
    assert (info["variant"], info["encoding"], info["stations"]) == (make, told_encoding, len(told))
    counts = {(each["source"], each["mode"]): (each["stations"], each["skipped"]) for each in info["lists"]}
    assert counts == {key: (len(rows), sum(row[4] for row in rows)) for key in lists.LISTS
                      if (rows := [row for row in told if row[:2] == key])}


def test_chosen_lists_make_up_the_whole(tool, file, variant):
    parts = [tool.listed(file, "-s", source, "-m", mode) for source, mode in lists.LISTS]
    assert all(rows_of(part) == [row for row in rows_of(part) if row[:2] == key]
               for key, part in zip(lists.LISTS, parts))
    assert sum(parts, []) == tool.listed(file)


@pytest.mark.parametrize("form, dialect", [("csv", "excel"), ("tsv", "excel-tab")])
def test_separated_text_says_what_json_says(tool, file, form, dialect):
    columns = ("source", "mode", "number", "name", "skipped", "key")
    text = tool("list", "--format", form, "--columns", ",".join(columns), file).decode("utf-8-sig")
    rows = list(csv.reader(io.StringIO(text, newline=""), dialect))[1:]
    assert rows == [[str(int(value) if isinstance(value, bool) else value)
                     for value in (each[column] for column in columns)] for each in tool.listed(file)]


def test_table_and_reference_list_keep_the_order(tool, file):
    stations = tool.listed(file, "-s", "satellite", "-m", "tv")
    choice = ("-s", "satellite", "-m", "tv", file)
    table = tool("list", *choice).decode().splitlines()[1:]
    assert [line.split()[0] for line in table] == [str(each["number"]) for each in stations]
    assert all(line.endswith(each["name"]) for line, each in zip(table, stations))
    assert tool("list", "--format", "reference", *choice).decode().splitlines() == [
        "{number};{name};{network}-{transport}-{service}".format(**each) for each in stations]


# What a file holds, and what info, check, list and repair end with, and check of the repaired one.
FILES = {
    "whole": (WHOLE, 0, 0, 0, 0, 0),
    "without stations": (lists.xml([]), 0, 1, 0, 0, 1),
    "cut off": (WHOLE[:-3000], 0, 1, 0, 0, 0),
    "lone ampersand": (WHOLE.replace(b"<vchName>delta", b"<vchName>A&B"), 0, 1, 0, 0, 1),
    "escaped": (WHOLE.replace(b"<vchName>delta", b"<vchName>A&amp;B"), 0, 1, 0, 0, 1),
    "remark": (WHOLE.replace(b"</ITEM>\r\n<ITEM>", b"</ITEM>\r\n<!-- ? --><ITEM>", 1), 0, 1, 0, 0, 1),
    "cut JSON": (lists.json_list(lists.stations())[:-9000], 0, 1, 0, 1, None),
    "empty": (b"", 3, 3, 3, 3, None),
    "other text": (b"Dear Sir,\r\nno list.\r\n", 3, 3, 3, 3, None),
    "binary": (bytes(range(256)) * 40, 3, 3, 3, 3, None),
    "text among stations": (WHOLE.replace(b"<DTV>\r\n", b"<DTV>\r\n         "), 3, 3, 3, 3, None),
    "folder": (os.mkdir, 3, 3, 3, 3, None),
    "missing": (lambda path: None, 3, 3, 3, 3, None),
    "circle": (lambda path: os.symlink(path, path), 3, 3, 3, 3, None),
}


@pytest.mark.parametrize("kind", FILES)
def test_what_a_file_is_tells_the_status(tool, kind):
    content, *statuses, of_repair, of_repaired = FILES[kind]
    path = tool.folder / "list.tll"
    content(path) if callable(content) else path.write_bytes(content)
    for command, status in zip(("info", "check", "list"), statuses):
        report = tool.report(command, path, status=status)
        assert (report["format"], report["version"], report["file"], report["status"]) == (
            f"quillet-cli/{command}", 1, str(path), status)
        assert bool(report.get("error")) == (status == 3) == bool(tool.err)
    assert (tool("check", path, status=statuses[1]) != b"") == (statuses[1] == 1)
    mended = tool("repair", path, "-o", "-", status=of_repair)
    if of_repair:
        assert mended == b"" and tool.err
        return
    tool("list", path)
    assert bool(tool.err) == (report["findings"] != [])
    names, after = ({each["name"] for each in found} for found in (report["stations"], tool.listed(mended)))
    assert len(names - after) <= 1  # the one at the damaged place
    check = tool.report("check", "-", stdin=mended, status=of_repaired)
    assert check["findings"] == check["lossesRepaired"] == []


def test_what_is_alike_has_no_difference(tool, file):
    tool.put("copy.tll", file.read_bytes())
    assert tool("compare", file, "copy.tll") == b""
    assert tool.report("compare", file, "copy.tll")["different"] is False
    both = tool.report("compare", file, "copy.tll", "--all")["lists"]
    assert sum(len(each["stations"]) for each in both) == len(tool.listed(file))


def test_a_comparison_tells_the_same_both_ways(tool, xml_file):
    tool("move", xml_file, "-n", "20", "-t", "2", "-o", "moved.tll")
    tool("skip", "moved.tll", "-n", "7", "-s", "satellite", "-i")
    shorter = lists.xml([each for each in lists.stations() if each[2]["prNum"] != 8])
    tool.put("shorter.tll", shorter)

    def told(a, b, first, second):
        lists_told = tool.report("compare", a, b, status=1)["lists"]
        return sorted((json.dumps([each[first], each[second]]), each["differences"], each["likeness"])
                      for one in lists_told for each in one["stations"])
    for other in ("moved.tll", "shorter.tll"):
        there, back = told(xml_file, other, "a", "b"), told(other, xml_file, "b", "a")
        assert there and there == back
        text = tool("compare", xml_file, other, status=1).decode().splitlines()
        assert len([line for line in text if line[0] in "+-~" and line[1] == " "]) == len(there)
