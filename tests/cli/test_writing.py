"""How files are written, and when they are not."""

import os
import random
import resource
import stat
import subprocess
import time

import lists
import pytest

EDIT = ("skip", "list.tll", "-s", "cable", "-m", "tv", "-n", "2-3")
# Every command that writes.
WRITING = ["skip list.tll -n 2", "move list.tll -n 1 -t 5", "sort list.tll --by name", "renumber list.tll",
           "lock list.tll -n 1", "rename list.tll -s analogue -n 1 --name x", "order list.tll order.txt",
           "apply list.tll rows.csv", "merge base.tll list.tll theirs.tll", "repair list.tll"]
# What a plain save would lose something of: an escaped name; channels not in the order of their numbers.
LOSSES = {"xml": lists.xml(lists.stations()).replace(b"<vchName>delta", b"<vchName>A&amp;B"),
          "json": lists.json_list(lists.stations()).replace(b'"majorNumber":1,', b'"majorNumber":50,', 1)}


@pytest.mark.parametrize("line", WRITING)
def test_all_ways_of_writing_write_the_same(tool, xml_file, line):
    call = line.split()
    tool.put("base.tll", xml_file.read_bytes())
    theirs = tool.put("theirs.tll", tool("sort", xml_file, "--by", "name", "-o", "-"))
    for name, form in (("order.txt", "reference"), ("rows.csv", "csv")):
        if name in call:
            tool.put(name, tool("list", "--format", form, theirs))
    if call[0] == "repair":
        xml_file.write_bytes(xml_file.read_bytes()[:-3000])
        tool(*call, "-i", "--no-versions", status=1)  # the damaged file would be gone
    before = xml_file.read_bytes()
    tool(*call, status=2)
    assert call[0] == "repair" or tool(*call, "--dry-run") != b""
    written = tool(*call, "-o", "-")
    assert written != before
    assert tool(*call, "-o", "new.tll") == b""
    assert (tool.folder / "new.tll").read_bytes() == written and xml_file.read_bytes() == before
    assert tool(*call, "-i") == b"" and xml_file.read_bytes() == written
    assert tool("versions", "--get", "1", "-o", "-", xml_file) == before


@pytest.mark.parametrize("variant", LOSSES)
def test_a_loss_is_refused(tool, variant):
    file = tool.put("list.tll", LOSSES[variant])
    for where in (("-o", "-"), ("-o", "new.tll"), ("-i",)):
        assert tool(*EDIT, *where, status=1) == b"" and tool.err
    assert file.read_bytes() == LOSSES[variant] and os.listdir(tool.folder) == ["list.tll"]
    repaired = tool(*EDIT, "-o", "-", "--repaired")
    assert tool.err == ""
    before = tool.listed(file)
    chosen = [("cable", "tv", number) for number in (2, 3)]
    for each in before:
        each["skipped"] |= (each["source"], each["mode"], each["number"]) in chosen
    assert tool.listed(repaired) == before
    assert tool(*EDIT, "-o", "-", "--force") not in (b"", repaired) and tool.err


def test_a_file_changed_meanwhile_is_left(tool):
    base = tool.put("base.tll", lists.xml(lists.stations(numbers=range(1, 60))))
    file = tool.put("list.tll", base.read_bytes().replace(b"<isSkipped>0", b"<isSkipped>1"))
    theirs = base.read_bytes().replace(b"<isBlocked>0", b"<isBlocked>1")
    running = tool.start("merge", base, file, "-", "-i", stdin=subprocess.PIPE)
    # So much goes into a pipe only while it is read, which it is when the files have been.
    running.stdin.write(theirs[:300_000])
    running.stdin.flush()
    file.write_bytes(changed := file.read_bytes().replace(b"55XX", b"66YY"))
    _, err = running.communicate(theirs[300_000:], timeout=60)
    assert running.returncode == 3 and b"list.tll" in err
    assert file.read_bytes() == changed


@pytest.mark.parametrize("where", [("-i",), ("-o", "other.tll")])
def test_a_full_disk_leaves_what_was_there(tool, xml_file, where):
    files = {"list.tll": xml_file.read_bytes(), "other.tll": b"other"}
    tool.put("other.tll", b"other")
    tool(*EDIT, *where, "--no-versions", status=3,
         env={"GCOV_PREFIX": str(tool.home)},  # GCC's counters of coverage would be cut as well
         preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (20_000, 20_000)))
    assert {path.name: path.read_bytes() for path in tool.folder.iterdir()} == files


def test_a_killed_writing_leaves_a_whole_file(tool, xml_file):
    one = lists.xml(lists.stations(numbers=range(1, 150)))
    xml_file.write_bytes(one)
    call = ("sort", xml_file, "--by", "name")
    started = time.monotonic()
    other = tool(*call, "-o", "-")
    usual = time.monotonic() - started
    chance = random.Random(2)
    for _ in range(15):
        xml_file.write_bytes(one)
        running = tool.start(*call, "-i")
        time.sleep(chance.uniform(0.3, 1.2) * usual)
        running.kill()
        running.communicate()
        assert xml_file.read_bytes() in (one, other)
    # Nothing that was left is in the way of the next one.
    xml_file.write_bytes(one)
    tool(*call, "-i")
    assert xml_file.read_bytes() == other


@pytest.mark.parametrize("where", [("-i",), ("-o", "link.tll")])
def test_links_and_rights_stay(tool, xml_file, where):
    before = xml_file.read_bytes()
    xml_file.chmod(0o640)
    (tool.folder / "link.tll").symlink_to("list.tll")
    tool("skip", "link.tll", "-n", "2", *where)
    assert os.readlink(tool.folder / "link.tll") == "list.tll"
    assert stat.S_IMODE(xml_file.stat().st_mode) == 0o640 and xml_file.read_bytes() != before


def test_versions_are_kept_and_come_back(tool, xml_file):
    contents = [xml_file.read_bytes()]
    for target in (1, 20, 2, 20, 3):
        tool("move", xml_file, "--named", "Café cable tv", "-t", target, "-i")
        contents.append(xml_file.read_bytes())
    kept = tool.report("versions", xml_file)["versions"]
    assert {tool("versions", xml_file, "--get", each["digest"], "-o", "-") for each in kept} == set(contents[:-1])
    assert len(tool("versions", xml_file).splitlines()) == len(kept) and kept[-1]["first"]
    tool("versions", xml_file, "--get", str(len(kept)), "-o", xml_file)
    assert xml_file.read_bytes() == contents[0]
    tool("versions", xml_file, "--get", "99", "-o", "-", status=1)
    for _ in range(2):
        tool("skip", xml_file, "-n", "1", "-o", "new.tll", "--no-versions")
    assert tool.report("versions", "new.tll")["versions"] == []


@pytest.mark.parametrize("settings, kept", [("areKept=false", 0), ("count=2", 3), ("count=x\nspace=-1", 6)])
def test_versions_are_kept_as_in_the_window(tool, xml_file, settings, kept):
    file = tool.home / "CONFIG_HOME" / "Quillet" / "Quillet.conf"
    file.parent.mkdir(parents=True)
    file.write_text(f"[versions]\n{settings}\n")
    for target in range(1, 7):
        tool("move", xml_file, "--named", "Café cable tv", "-t", target + 20, "-i")
    assert len(tool.report("versions", xml_file)["versions"]) == kept
    assert file.read_text() == f"[versions]\n{settings}\n"


def test_what_changes_nothing_is_not_written(tool, xml_file):
    tool(*EDIT, "-i")
    before = xml_file.stat()
    tool(*EDIT, "-i")
    after = xml_file.stat()
    assert (before.st_ino, before.st_mtime_ns) == (after.st_ino, after.st_mtime_ns)
