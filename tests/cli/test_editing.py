"""Commands that edit: what they change, and that they leave the rest as it is."""

import csv
import io

import lists
import pytest

CHOICE = ("-s", "satellite", "-m", "tv")
ANALOGUE = ("-s", "analogue", "-m", "tv")


@pytest.fixture
def edited(tool, variant):
    """A file of one source, as the sets with JSON have them, whose edits can be edited again."""
    made = lists.stations(lists=[("satellite", "tv"), ("satellite", "radio")])
    return tool.put("list.tll", lists.VARIANTS[variant](made))


def names(tool, file, choice=CHOICE):
    return [each["name"] for each in tool.listed(file, *choice)]


def numbers(tool, file):
    return [each["number"] for each in tool.listed(file, *CHOICE)]


@pytest.mark.parametrize("match", ["cascade", "identity"])
def test_order_puts_its_stations_first(tool, edited, match):
    reference = tool("list", "--format", "reference", *CHOICE, edited).decode().splitlines()
    wanted = [reference[place].split(";")[1:] for place in (4, 0, 5, 2)] + [["Nobody", "1-2-3"]]
    lines = [";".join([str(number), *rest]) for number, rest in enumerate(wanted, 1)]
    tool.put("order.txt", "\n".join(lines).encode())
    call = ("order.txt", *CHOICE, "--match", match)
    out = tool("order", edited, *call, "-o", "-")
    ordered = names(tool, out)
    assert ordered[:4] == [name for name, _ in wanted[:4]]
    assert sorted(ordered) == sorted(names(tool, edited))
    [report] = tool.report("order", edited, *call, "--dry-run")["orders"]
    assert (report["matched"], report["remaining"], report["unused"]) == (4, 2, ["Nobody"])
    assert tool("order", "-", *call, "-o", "-", stdin=out) == out


def test_order_of_another_list(tool, xml_file):
    wanted = tool("sort", xml_file, "--by", "name:desc", *CHOICE, "-o", "-")
    assert tool("order", xml_file, "-", *CHOICE, "--match", "identity", "-o", "-", stdin=wanted) == wanted


def test_order_by_identity_takes_no_number_that_there_is_not(tool, edited):
    lines = tool("list", "--format", "reference", *CHOICE, edited).decode().splitlines()
    lines[0] = "20000;" + lines[0].split(";", 1)[1]
    order = "\n".join(lines).encode()
    assert tool("order", edited, "-", *CHOICE, "--match", "identity", "-o", "-", stdin=order) == edited.read_bytes()


@pytest.mark.parametrize("text", [b"1;Morgen satellite tv;1-2-3", b"1;a;1-2-3\n2;b;1-2-3\n3;c;1-2-3", b"a\nb\nc\nd"])
def test_order_that_cannot_be_applied(tool, edited, text):
    assert tool("order", edited, "-", *CHOICE, "-o", "-", stdin=text, status=1) == b""
    assert "standard input: TV stations, Satellite: " in tool.err


@pytest.mark.parametrize("moved, target, expected", [
    # As few are pushed up as must be; gaps take it in.
    ([20], 2, [1, 2, 3, 4, 7, 8]), ([1], 3, [2, 3, 4, 7, 8, 20]), ([8], 30, [1, 2, 3, 7, 20, 30]),
    ([7], 9999, [1, 2, 3, 8, 20, 9999]), ([1, 3], 8, [2, 7, 8, 9, 10, 20])])
def test_move(tool, edited, moved, target, expected):
    before = tool.listed(edited, *CHOICE)
    out = tool("move", edited, *CHOICE, "-n", ",".join(map(str, moved)), "-t", target, "-o", "-")
    after = tool.listed(out, *CHOICE)
    assert [each["number"] for each in after] == expected
    chosen = [each["name"] for each in before if each["number"] in moved]
    assert [each["name"] for each in after if target <= each["number"] < target + len(moved)] == chosen
    assert [each["name"] for each in after if each["name"] not in chosen] == [
        each["name"] for each in before if each["name"] not in chosen]


def test_move_there_and_back(tool, edited):
    before = tool("renumber", edited, *CHOICE, "-o", "-")
    call = ("move", "-", *CHOICE, "--named", "MORGEN Satellite TV", "--fill-gaps", "-o", "-", "-t")
    out = tool(*call, 5, stdin=before)
    assert names(tool, out)[3] == "Morgen satellite tv"  # to which closing its old gap brings it
    assert tool.listed(tool(*call, 1, stdin=out)) == tool.listed(before)


@pytest.mark.parametrize("by, key, is_down", [
    ("name", lambda each: each["name"].casefold().replace("ä", "a"), False),
    ("network,frequency:desc", lambda each: each["frequency"], True),
    ("service:desc", lambda each: int(each["service"]), True)])
def test_sort(tool, edited, by, key, is_down):
    before = {each["key"]: each for each in tool.listed(edited, *CHOICE)}
    after = tool.listed(tool("sort", edited, *CHOICE, "--by", by, "-o", "-"), *CHOICE)
    assert [each["number"] for each in after] == [each["number"] for each in before.values()]
    assert {each["key"]: {**each, "number": before[each["key"]]["number"]} for each in after} == before
    keys = [key(each) for each in after]
    assert keys == sorted(keys, reverse=is_down)


def test_sort_of_some_leaves_the_others(tool, edited):
    before = names(tool, edited)
    after = names(tool, tool("sort", edited, *CHOICE, "-n", "1-3", "--by", "name:desc", "-o", "-"))
    assert after[3:] == before[3:] and after[:3] == sorted(before[:3], key=str.casefold, reverse=True)


@pytest.mark.parametrize("language, last", [("de", "Zebra"), ("sv", "Ähre")])
def test_sort_goes_by_the_language(tool, edited, language, last):
    out = tool("sort", edited, *CHOICE, "--by", "name", "--language", language, "-o", "-")
    assert names(tool, out)[-1].startswith(last)


def test_renumber_twice_is_once(tool, edited):
    out = tool("renumber", edited, *CHOICE, "-o", "-")
    assert numbers(tool, out) == list(range(1, len(lists.NUMBERS) + 1))
    assert names(tool, out) == names(tool, edited)
    assert tool("renumber", "-", *CHOICE, "-o", "-", stdin=out) == out


def test_numbers_that_reading_gave_are_written(tool, xml_file):
    """Numbers that are missing or doubled are put right by reading already."""
    doubled = xml_file.read_bytes().replace(b"<prNum>2</prNum>", b"<prNum>1</prNum>")
    assert doubled != xml_file.read_bytes()
    file = tool.put("doubled.tll", doubled)
    assert b"<prNum>1</prNum>" in doubled and tool("skip", file, "-n", "1", "--off", *CHOICE, "-o", "-") == doubled
    out = tool("renumber", file, *CHOICE, "-o", "-")
    assert out.count(b"<prNum>2</prNum>") > doubled.count(b"<prNum>2</prNum>")


def test_all_lists_are_edited(tool, xml_file):
    data = tool("renumber", xml_file, "-s", "analogue", "-m", "all", "-o", "-")  # which leaves nothing to do there
    data = tool("renumber", "-", "-s", "all", "-m", "all", "-o", "-", stdin=data)
    assert [each["number"] for each in tool.listed(data)] == [1, 2, 3, 4, 5, 6] * len(lists.LISTS)


@pytest.mark.parametrize("command, field", [("skip", "isSkipped"), ("lock", "isBlocked")])
@pytest.mark.parametrize("option, value, numbers", [
    ("-n", "1,3-7", [1, 3, 7]), ("--named", "MORGEN CABLE TV", [1]), ("--keys", None, [2, 3])])
def test_marks_change_their_field_alone(tool, command, field, option, value, numbers):
    made = lists.stations()
    for _, _, fields in made:
        fields[field] = 0
    plain = lists.xml(made)
    which = (option, value or ",".join(each["key"] for each in tool.listed(plain, "-s", "cable", "-m", "tv")[1:3]))
    out = tool(command, "-", *which, "-o", "-", stdin=plain)
    first = [(source, mode) for source, mode, _ in made].index(("cable", "tv"))
    assert lists.changes(plain, out) == [(first + lists.NUMBERS.index(number), field) for number in numbers]
    assert tool(command, "-", *which, "--off", "-o", "-", stdin=out) == plain


@pytest.mark.parametrize("call", [
    ("move", "-s", "cable", "-n", "20", "-t", "1"), ("sort", "-s", "cable", "--by", "name"),
    ("renumber", "-s", "cable"), ("skip", "-s", "cable", "-n", "2"),
    ("rename", *ANALOGUE, "-n", "2", "--name", "Ünlü")])
def test_the_rest_of_the_file_stays(tool, xml_file, call):
    before = xml_file.read_bytes()
    after = tool(call[0], xml_file, *call[1:], "-o", "-")
    source = b"2" if "analogue" in call else b"3"

    def rest(data):
        """Stations of other sources, and of those of this one the fields that are not edited."""
        items = [lists.fields(item) for item in lists.items(data)]
        others = [item for item in lists.items(data) if lists.fields(item)[b"sourceIndex"] != source]
        kept = [sorted((name, value) for name, value in item.items() if name not in lists.EDITED) for item in items]
        return others, sorted(kept), lists.around(data)
    assert after != before and rest(after) == rest(before)
    assert ("Ünlü" in names(tool, after, ANALOGUE)) == (call[0] == "rename")


@pytest.mark.parametrize("call", [
    ("rename", "-s", "cable", "-n", "1", "--name", "x"), ("rename", *ANALOGUE, "-n", "1-2", "--name", "x"),
    ("skip", "-n", "4"), ("skip", "--named", "nobody"), ("lock", "--keys", "1-2-3"), ("move", "-n", "99", "-t", "1")])
def test_what_cannot_be_edited_is_refused(tool, xml_file, call):
    before = xml_file.read_bytes()
    assert tool(call[0], xml_file, *call[1:], "-i", status=1) == b"" and tool.err
    assert xml_file.read_bytes() == before


@pytest.mark.parametrize("form", ["csv", "tsv"])
@pytest.mark.parametrize("choice", [(), CHOICE])
def test_apply_of_its_own_table_changes_nothing(tool, file, form, choice):
    table = tool("list", "--format", form, *choice, file)
    assert tool("apply", file, "-", "-o", "-", stdin=table) == file.read_bytes()


def test_apply_takes_numbers_and_marks(tool, edited):
    text = tool("list", "--format", "csv", *CHOICE, edited).decode("utf-8-sig")
    titles, *rows = csv.reader(io.StringIO(text, newline=""))
    for row, number in zip(rows, [row[titles.index("No.")] for row in reversed(rows)]):
        row[titles.index("No.")], row[titles.index("Skip")] = number, "1"
    table = io.StringIO()
    csv.writer(table).writerows([titles, *rows])
    out = tool("apply", edited, "-", "-o", "-", stdin=table.getvalue().encode())
    assert names(tool, out) == names(tool, edited)[::-1] and numbers(tool, out) == numbers(tool, edited)
    assert all(each["skipped"] for each in tool.listed(out, *CHOICE))
    assert tool.listed(out, "-m", "radio") == tool.listed(edited, "-m", "radio")


@pytest.mark.parametrize("old, new, status, told", [
    (b"", b"satellite,tv,5,Nobody,HD,0,0,n1-t2-s3-f4\r\n", 1, "Line 8: \"Nobody\""),
    (b"satellite,tv,2,", b"satellite,tv,2,Not ", 1, "only analogue stations"),
    (b"satellite,tv,2,", b"moon,tv,2,", 3, "Line 3: there is no list \"moon tv\"")])
def test_apply_tells_what_it_leaves_out(tool, edited, old, new, status, told):
    table = tool("list", "--format", "csv", *CHOICE, edited)
    table = table.replace(old, new, 1) if old else table + new
    out = tool("apply", edited, "-", "-o", "-", stdin=table, status=status)
    assert out == (edited.read_bytes() if status == 1 else b"") and told in tool.err


def test_apply_of_no_table(tool, edited):
    tool("apply", edited, "-", "-o", "-", stdin=b"no table", status=3)
