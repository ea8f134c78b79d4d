"""The command line, many files at once, and strange surroundings."""

import json
import os
import subprocess

import lists
import pytest

COMMANDS = ("info list check repair order move sort renumber skip lock rename apply compare merge "
            "versions").split()
MISUSE = """
|nonsense|--nonsense|help nonsense|--completion tcsh|list|list --nonsense a|list -s moon a|list --format pdf a
compare a|compare a b c|merge a b|order a -i|skip a -i|skip a -n x -i|skip a -n 9-2 -i|skip a -n , -i|skip a --keys , -i
skip a -n 1|skip a b -n 1 -o c|skip a -n 1 -i -o b|skip a -n 1 -i --dry-run|skip a -n 1 -i --json|skip - -n 1 -i
move a -n 1 -i|move a -n 1 -t 0 -i|move a -n 1 -t 10000 -i|sort a -i|sort a --by colour -i|sort a --by name:up -i
sort a --by name,type,number,service -i|rename a -n 1 -i|rename a -n 1 --name|versions a --get 1|versions a b --get 1 -o c
""".replace("\n", "|").strip("|")


@pytest.mark.parametrize("line", MISUSE.split("|"))
def test_misuse_is_told(tool, line):
    call = line.split()
    assert tool(*call, status=2, stdin=lists.xml(lists.stations())) == b""
    command = f"{call[0]} " if call and call[0] in COMMANDS else ""
    assert tool.err.splitlines()[-1] == f"quillet-cli: Try 'quillet-cli {command}--help' for more information."
    assert len(tool.err.splitlines()) == 2


@pytest.mark.parametrize("command", COMMANDS)
def test_help_fits_a_terminal(tool, command):
    text = tool(command, "--help").decode()
    assert text == tool("help", command).decode() and tool.err == ""
    assert text.startswith(f"Usage: quillet-cli {command} ") and "Exit status:" in text
    assert max(map(len, text.splitlines())) <= 80 and text == text.rstrip() + "\n"


@pytest.mark.parametrize("name", ["a b.tll", "a\nb.tll", os.fsdecode(b"caf\xe9.tll"), "-n.tll",
                                  os.fsdecode(b"\xff\xfe"), "U\u0308.tll", "\U000f0000\uf7e9.tll"])
def test_names_of_files(tool, name):
    data = lists.xml(lists.stations())
    file = tool.put(name, data)
    tool("skip", "-s", "cable", "-n", "2", "-i", "--", name)
    assert file.read_bytes() != data and os.listdir(tool.folder) == [name]
    assert tool("versions", "--get", "1", "-o", "-", file) == data
    told = tool("info", "--json", "--files0-from", "-", f"./{name}", stdin=os.fsencode(name) + b"\0")
    assert [json.loads(line)["status"] for line in told.splitlines()] == [0, 0]
    tool("info", f"./no{name}", status=3)
    assert tool.err.count("\n") == 1


def many(tool, count):
    """So many files, of which some are no lists, and the names of those."""
    good = lists.xml(lists.stations(lists=lists.LISTS[:2]))
    bad = [place for place in range(count) if place % 10 == 3]
    for place in range(count):
        tool.put(f"{place:04}.tll", b"no list" if place in bad else good)
    return [f"{place:04}.tll" for place in range(count)], bad


def test_a_thousand_files(tool):
    names, bad = many(tool, 1000)
    without_quarantine = {"ASAN_OPTIONS": "quarantine_size_mb=0:thread_local_quarantine_size_kb=0"}

    def peak(chosen):
        """The most memory of a call in KiB, whose results are looked at."""
        with open(tool.folder.parent / "out", "wb+") as out, open(tool.folder.parent / "err", "wb+") as err:
            running = tool.start("check", "--json", *chosen, stdout=out, stderr=err, env=without_quarantine)
            _, status, usage = os.wait4(running.pid, 0)
            running.returncode = os.waitstatus_to_exitcode(status)
            out.seek(0), err.seek(0)
            reports = [json.loads(line) for line in out]
            assert running.returncode == 3 and len(err.readlines()) == len(chosen) // 10
        assert [report["file"] for report in reports] == chosen
        assert [report["status"] for report in reports] == [3 * (int(name[:4]) in bad) for name in chosen]
        return usage.ru_maxrss
    assert peak(names) < peak(names[:10]) + 6000  # the files alone are twice as much


def test_each_file_is_edited_by_itself(tool):
    names, bad = many(tool, 12)
    one = tool("renumber", names[0], "-o", "-")
    tool("renumber", "-i", *names[:6], "--files0-from", "-", status=3, stdin="\0".join(names[6:]).encode())
    assert tool.err.count("quillet-cli: 0003.tll: ") == 1
    contents = [(tool.folder / name).read_bytes() for name in names]
    assert contents == [b"no list" if place in bad else one for place in range(12)]


def test_surroundings_change_no_byte(tool, xml_file):
    calls = [(0, "list", xml_file), (0, "check", xml_file), (0, "list", "--format", "csv", xml_file),
             (0, "sort", xml_file, "--by", "name", "-o", "-"), (3, "info", "missing.tll"), (2, "list", "--nonsense")]

    def results(env):
        return [(tool(*call, status=status, env=env), tool.err) for status, *call in calls]
    usual = results({})
    assert [err for _, err in usual[:4]] == [""] * 4
    for env in ({"LC_ALL": "C"}, {"LC_ALL": "de_DE.UTF-8", "LANGUAGE": "de"}, {"LC_ALL": "tr_TR.UTF-8"},
                {"LC_ALL": "sv_SE.UTF-8"}, {"LC_ALL": "nonsense"}, {"HOME": "/nowhere", "XDG_DATA_HOME": ""}):
        assert results(env) == usual, env


def test_without_a_home_it_writes_all_the_same(tool, xml_file):
    for name in [name for name in tool.env if name == "HOME" or name.startswith("XDG_")]:
        del tool.env[name]
    tool("skip", xml_file, "-s", "cable", "-n", "2", "-i")
    assert tool.err == "" and os.listdir(tool.folder) == ["list.tll"] and os.listdir(tool.home) == []


def test_pipes(tool, xml_file):
    data, table = xml_file.read_bytes(), tool("list", xml_file)
    assert tool("list", "-", stdin=data) == table
    assert tool("compare", xml_file, "-", stdin=data) == b""
    os.mkfifo(tool.folder / "pipe")
    running = tool.start("list", "pipe", stderr=subprocess.DEVNULL)
    (tool.folder / "pipe").write_bytes(data)
    assert running.communicate(timeout=60)[0] == table


@pytest.mark.parametrize("call", [("list", "list.tll"), ("skip", "list.tll", "-n", "2", "-o", "-"), ("--help",)])
def test_an_output_that_takes_nothing(tool, xml_file, call):
    if os.path.exists("/dev/full"):
        with open("/dev/full", "wb") as full:
            tool(*call, status=3, stdout=full)
        assert "standard output" in tool.err
    assert tool.start(*call, preexec_fn=lambda: os.close(1)).wait(60) == 3
    assert tool.start(*call, preexec_fn=lambda: (os.close(0), os.close(2)), stdin=None).wait(60) == 0


def test_a_reader_that_goes_ends_it(tool):
    file = tool.put("list.tll", lists.xml(lists.stations(numbers=range(1, 300))))
    running = tool.start("list", "--format", "csv", file)
    running.stdout.read(1)
    running.stdout.close()
    assert running.wait(60) == -13 and running.stderr.read() == b""
