"""Runs quillet-cli for the tests and looks at what holds of every call."""

import json
import os
import subprocess

import lists
import pytest

PROGRAM = os.environ["QUILLET_CLI"]


class Tool:
    """The program in a folder of its own, with a home that nobody else has."""

    def __init__(self, folder):
        self.folder = folder / "lists"
        self.home = folder / "home"
        self.folder.mkdir()
        self.home.mkdir()
        self.env = {**os.environ, "HOME": str(self.home), "LC_ALL": "C.UTF-8"}
        for name in ("CONFIG_HOME", "DATA_HOME", "STATE_HOME", "CACHE_HOME", "RUNTIME_DIR"):
            self.env[f"XDG_{name}"] = str(self.home / name)
        self.err = ""

    def put(self, name, data):
        path = self.folder / name
        path.write_bytes(data)
        return path

    def start(self, *arguments, env=(), **more):
        """The running program; more is as for Popen. Standard input is empty unless it is given."""
        more.setdefault("stdin", subprocess.DEVNULL)
        return subprocess.Popen([PROGRAM, *map(str, arguments)],
                                cwd=self.folder, env={**self.env, **dict(env)},
                                **{"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **more})

    def __call__(self, *arguments, status=0, stdin=None, **more):
        """What the call writes to its standard output, after a look at its status, at its messages
        (which are in err then) and at the files, of which it may write none unasked."""
        before = self._files()
        running = self.start(*arguments, **more,
                             stdin=subprocess.DEVNULL if stdin is None else subprocess.PIPE)
        out, err = running.communicate(stdin, timeout=60)
        self.err = (err or b"").decode()
        assert running.returncode == status, (arguments, self.err, (out or b"")[-500:])
        assert all(line.startswith("quillet-cli: ") for line in self.err.splitlines()), self.err
        asked = [str(argument) for argument in arguments]
        if "-i" not in asked and ("-o" not in asked or asked[asked.index("-o") + 1] == "-"):
            assert self._files() == before
        return out

    def _files(self):
        paths = [path for top in (self.folder, self.home) for path in top.rglob("*")]
        return {path: (path.lstat().st_ino, path.lstat().st_mtime_ns) for path in paths}

    def listed(self, file, *options, stdin=None):
        """The stations that list tells of a file, or of bytes."""
        if isinstance(file, bytes):
            file, stdin = "-", file
        return json.loads(self("list", "--json", file, *options, stdin=stdin))["stations"]

    def report(self, *arguments, status=0, **more):
        """The one object that a call with --json writes."""
        out = self(*arguments, "--json", status=status, **more)
        assert out.count(b"\n") == 1 and out.endswith(b"\n")
        return json.loads(out)


@pytest.fixture
def tool(tmp_path):
    return Tool(tmp_path)


@pytest.fixture(params=lists.VARIANTS)
def variant(request):
    return request.param


@pytest.fixture
def file(tool, variant):
    """A file with all lists, in each variant."""
    return tool.put("list.tll", lists.VARIANTS[variant](lists.stations()))


@pytest.fixture
def xml_file(tool):
    return tool.put("list.tll", lists.xml(lists.stations()))
