"""Joining the edits of two copies, by hand and in a real Git repository."""

import itertools
import shutil
import subprocess

import lists
import pytest
from conftest import PROGRAM

CABLE = ("-s", "cable", "-m", "tv")
# Edits of different things, of which each side may make one.
EDITS = [("skip", *CABLE, "-n", "1-3"), ("lock", *CABLE, "-n", "3,7"),
         ("move", "-s", "satellite", "-m", "tv", "-n", "20", "-t", "2"), ("sort", "-s", "antenna", "--by", "name"),
         ("rename", "-s", "analogue", "-m", "tv", "-n", "1", "--name", "New")]


def make(tool, name, base, *edits):
    """A copy of the base with edits."""
    data = base.read_bytes()
    for command, *options in edits:
        data = tool(command, "-", *options, "-o", "-", stdin=data)
    return tool.put(name, data)


@pytest.fixture
def base(tool, variant):
    chosen = lists.LISTS if variant == "xml" else [("cable", "tv")]
    return tool.put("base.tll", lists.VARIANTS[variant](lists.stations(lists=chosen)))


def test_what_one_side_alone_changed_is_taken(tool, base, variant):
    changed = make(tool, "changed.tll", base, *EDITS[:2 if variant == "json" else None])
    for ours, theirs in ((changed, base), (base, changed), (changed, changed)):
        assert tool("merge", base, ours, theirs, "-o", "-") == changed.read_bytes()
    assert tool("merge", base, base, base, "-o", "-") == base.read_bytes()


def test_edits_of_different_things_are_joined(tool, xml_file):
    sides = {edit: make(tool, f"{edit[0]}.tll", xml_file, edit) for edit in EDITS}
    for ours, theirs in itertools.combinations(EDITS, 2):
        both = make(tool, "both.tll", sides[ours], theirs).read_bytes()
        assert tool("merge", xml_file, sides[ours], sides[theirs], "-o", "-") == both
        assert tool("merge", xml_file, sides[theirs], sides[ours], "-o", "-") == both


@pytest.mark.parametrize("kind, call, ours, theirs", [
    ("name", ("rename", "-s", "analogue", "-m", "tv", "-n", "1", "--name"), "Ours", "Theirs"),
    ("place", ("move", *CABLE, "-n", "20", "-t"), "1", "3")])
def test_a_conflict_is_named_and_ours_is_kept(tool, xml_file, kind, call, ours, theirs):
    sides = [make(tool, f"{each}.tll", xml_file, (*call, each)) for each in (ours, theirs)]
    report = tool.report("merge", xml_file, *sides, "--dry-run", status=1)
    assert {each["kind"] for each in report["conflicts"]} == {kind}
    assert tool("merge", xml_file, *sides, "-o", "-", status=1) == sides[0].read_bytes()
    assert tool.err.count("Conflict: ") == len(report["conflicts"])


def test_damaged_files_are_not_merged(tool, xml_file):
    cut = tool.put("cut.tll", xml_file.read_bytes()[:-3000])
    changed = make(tool, "changed.tll", xml_file, EDITS[0])
    for call in ((xml_file, changed, cut), (xml_file, cut, changed), (cut, changed, xml_file)):
        assert tool("merge", *call, "-o", "-", status=1) == b""


@pytest.fixture
def git(tool):
    if not shutil.which("git"):
        pytest.skip("Git is not installed")

    def run(*arguments, status=0):
        done = subprocess.run(["git", *arguments], cwd=tool.folder, capture_output=True, timeout=60,
                              env={**tool.env, "GIT_CONFIG_NOSYSTEM": "1"})
        assert done.returncode == status, (arguments, done)
        return done.stdout.decode()
    run("init", "-q", "-b", "main")
    for key, value in (("user.name", "A"), ("user.email", "a@example.org"),
                       ("diff.tll.textconv", f"'{PROGRAM}' list"),
                       ("merge.tll.driver", f"'{PROGRAM}' merge --in-place --no-versions --repaired --path %P %O %A %B")):
        run("config", key, value)
    tool.put(".gitattributes", b"*.tll -text diff=tll merge=tll\n")
    tool.put("list.tll", lists.xml(lists.stations()))
    run("add", ".")
    run("commit", "-qm", "base")
    return run


def branches(tool, git, ours, theirs):
    """An edit on each of two branches; the one on main is out."""
    for branch, edit in (("side", theirs), ("main", ours)):
        git("checkout", "-q", "-B", branch, "main")
        make(tool, "list.tll", tool.folder / "list.tll", edit)
        git("commit", "-qam", branch)


def test_git_shows_and_merges_lists(tool, git):
    base = tool.put("base", (tool.folder / "list.tll").read_bytes())
    branches(tool, git, EDITS[0], EDITS[2])
    shown = git("diff", "HEAD~")
    assert "+    2 HD         S - alpha cable tv\n" in shown and "<ITEM>" not in shown
    git("merge", "-q", "-m", "both", "side")
    assert (tool.folder / "list.tll").read_bytes() == make(tool, "both", base, EDITS[0], EDITS[2]).read_bytes()
    assert git("status", "--porcelain", "-uno") == "" and not tool.home.joinpath("DATA").exists()


def test_git_stops_at_a_conflict(tool, git):
    call = ("rename", "-s", "analogue", "-m", "tv", "-n", "1", "--name")
    branches(tool, git, (*call, "Ours"), (*call, "Theirs"))
    ours = (tool.folder / "list.tll").read_bytes()
    assert "CONFLICT" in git("merge", "side", status=1)
    assert (tool.folder / "list.tll").read_bytes() == ours
    assert git("status", "--porcelain", "-uno").startswith("UU list.tll")
