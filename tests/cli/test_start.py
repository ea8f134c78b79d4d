"""What the program loads: it runs where there is no window system."""

import os
import re
import shutil
import subprocess

import pytest


@pytest.mark.skipif(not shutil.which("ldd"), reason="the loader here does not tell what it loads")
@pytest.mark.parametrize("arguments", [("--version",), ("list", "-")], ids=" ".join)
def test_no_library_of_windows_is_loaded(arguments):
    run = subprocess.run([os.environ["QUILLET_CLI"], *arguments], input=b"", capture_output=True, timeout=60,
                         env={**os.environ, "LD_DEBUG": "files"})
    loaded = set(re.findall(r"calling init: \S*/(\S+)", run.stderr.decode(errors="replace")))
    assert any(name.startswith("libQt6Core.") for name in loaded), run.stderr[-2000:]
    assert not {name for name in loaded if re.match(r"libQt6(?!Core)|lib(X11|xcb|wayland|GL|EGL|fontconfig)|libq\w+\.so",
                                                    name)}
