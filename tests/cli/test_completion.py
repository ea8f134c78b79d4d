"""Types lines with tabs into real shells and looks at what the program is called with then."""

import json
import os
import pty
import select
import shutil
import signal
import sys
import time

import pytest

STARTS = {
    "bash": "source <('{cli}' --completion bash)",
    "zsh": "autoload -Uz compinit && compinit -u -d dump && source <('{cli}' --completion zsh)",
    "fish": "'{cli}' --completion fish | source",
}
COMMANDS = {
    "bash": ["bash", "--norc", "--noprofile", "-i"],
    "zsh": ["zsh", "-f", "-i"],
    "fish": ["fish", "--no-config", "-i"],
}
FILES = ["one.tll", "two words.TLL", "it's \"all\" $x.tll", "new\nline.tll", "notes.txt", "rows.csv", "rows.bin",
         "folder/inner.tll", "other.bin"]

# What is typed behind the program's name, and its arguments then. \t is the tabulator.
TYPED = {
    "command": ("renu\t", ["renumber"]),
    "help": ("help comp\t", ["help", "compare"]),
    "shell": ("--completion z\t", ["--completion", "zsh"]),
    "option": ("list --form\t", ["list", "--format"]),
    "option of another command": ("list --dry\t", ["list", "--dry"]),
    "option once": ("list --json --js\t", ["list", "--json", "--js"]),
    "option once by its letter": ("skip -i --in-p\t", ["skip", "-i", "--in-p"]),
    "option again": ("skip --named=a --name\t x", ["skip", "--named=a", "--named", "x"]),
    "value": ("list --format ref\t", ["list", "--format", "reference"]),
    "value behind =": ("list --format=ref\t", ["list", "--format=reference"]),
    "list of one": ("list --source=cab\t", ["list", "--source=cable"]),
    "list": ("list --columns name,num\t", ["list", "--columns", "name,number"]),
    "list behind =": ("list --columns=name,num\t", ["list", "--columns=name,number"]),
    "list once": ("list --columns name,nam\t", ["list", "--columns", "name,nam"]),
    "direction": ("sort --by type,name:d\t", ["sort", "--by", "type,name:desc"]),
    "list file": ("list o\t", ["list", "one.tll"]),
    "any file": ("list no\t", ["list", "notes.txt"]),
    "folder": ("list fo\tin\t", ["list", "folder/inner.tll"]),
    "order": ("order one.tll no\t", ["order", "one.tll", "notes.txt"]),
    "table": ("apply one.tll ro\t", ["apply", "one.tll", "rows.csv"]),
    "blank": ("list --json tw\t", ["list", "--json", "two words.TLL"]),
    "blank in quotes": ("list 'two w\t", ["list", "two words.TLL"]),
    "quotes": ("list it\t", ["list", "it's \"all\" $x.tll"]),
    "line end": ("list ne\t", ["list", "new\nline.tll"]),
    "output": ("repair -o two\t one.tll", ["repair", "-o", "two words.TLL", "one.tll"]),
    "output behind =": ("repair --output=two\t one.tll", ["repair", "--output=two words.TLL", "one.tll"]),
    "behind --": ("list -- --js\to\t", ["list", "--", "--jso"]),
}


class Shell:
    """A shell on a terminal of its own, in which quillet-cli notes what it is called with."""

    def __init__(self, name, cli, folder, language):
        self.notes = folder / "notes" / "called"
        self.notes.parent.mkdir()
        stub = folder / "bin" / "quillet-cli"
        stub.parent.mkdir()
        stub.write_text("#!%s\nimport json, os, sys\nwith open(%r, 'w') as f:\n json.dump(sys.argv[1:], f)\n"
                        "os.rename(%r, %r)\n" % (sys.executable, str(self.notes) + ".new", str(self.notes) + ".new",
                                                 str(self.notes)))
        stub.chmod(0o755)
        home = folder / "home"
        home.mkdir()
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.chdir(folder / "files")
            os.environ.update(HOME=str(home), PATH="%s:%s" % (stub.parent, os.environ["PATH"]), LC_ALL=language,
                              TERM="xterm", XDG_CONFIG_HOME=str(home), XDG_DATA_HOME=str(home))
            os.execvp(COMMANDS[name][0], COMMANDS[name])
        self.shown = b""
        self.type(STARTS[name].format(cli=cli) + "\r")
        self.called_with("ready")

    def type(self, text):
        os.write(self.terminal, text.encode())

    def called_with(self, typed):
        """What the program is called with when that is typed behind its name."""
        self.notes.unlink(missing_ok=True)
        self.type("quillet-cli " + typed + "\r")
        end = time.monotonic() + 30
        while not self.notes.exists():
            assert time.monotonic() < end, self.shown[-2000:].decode(errors="replace")
            if select.select([self.terminal], [], [], 0.01)[0]:
                self.shown += os.read(self.terminal, 65536)
        return json.loads(self.notes.read_text())

    def end(self):
        os.kill(self.process, signal.SIGKILL)
        os.waitpid(self.process, 0)
        os.close(self.terminal)


@pytest.fixture(scope="module", params=[("bash", "C.UTF-8"), ("bash", "C"), ("zsh", "C.UTF-8"), ("zsh", "C"),
                                        ("fish", "C.UTF-8"), ("fish", "C")], ids="-".join)
def shell(request, tmp_path_factory):
    name, language = request.param
    if not shutil.which(name):
        pytest.skip(name + " is not installed")
    folder = tmp_path_factory.mktemp("shell")
    for file in FILES:
        path = folder / "files" / file
        path.parent.mkdir(parents=True, exist_ok=True)
        path.touch()
    shell = Shell(name, os.environ["QUILLET_CLI"], folder, language)
    yield shell
    shell.end()


@pytest.mark.parametrize("typed, called", TYPED.values(), ids=TYPED.keys())
def test_completes(shell, typed, called):
    assert shell.called_with(typed) == called
