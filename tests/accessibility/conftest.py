"""The program on a desktop of its own, as a screen reader knows it."""

import os
import pathlib
import shutil
import signal
import sys

import pytest
from desktop import Desktop

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "cli"))  # the lists

PROGRAM = os.environ["QUILLET"]
SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"


@pytest.fixture(scope="session")
def desktop(tmp_path_factory):
    desktop = Desktop(tmp_path_factory.mktemp("home"))
    try:
        desktop.start_session()
        os.environ.update(desktop.env)  # of the reader, too
        yield desktop
    finally:
        desktop.end()


@pytest.fixture(scope="session")
def reader(desktop):
    import reader  # which looks for the bus
    return reader.Reader()


@pytest.fixture
def start(desktop, reader):
    """Starts the program with samples or other files, and ends it after the test."""
    running = []

    def start(*files):
        for file in files:
            if (SAMPLES / file).exists():
                shutil.copy(SAMPLES / file, desktop.home)
        reader.spoken.clear()
        running.append(desktop.start(PROGRAM, *files, cwd=desktop.home))
        reader.wait(reader.active, "the window")
        return running[-1]

    yield start
    for program in running:
        assert program.poll() in (None, -signal.SIGKILL), program.poll()
        desktop.stop(program)
    reader.wait(lambda: not reader.windows(), "the end of the program")
    for name in ("STATE_HOME", "DATA_HOME", "CONFIG_HOME"):
        shutil.rmtree(desktop.home / name)
        (desktop.home / name).mkdir()
