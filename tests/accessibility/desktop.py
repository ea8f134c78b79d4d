"""A desktop without a screen: a display, a window manager, and buses with assistive technology."""

import os
import pathlib
import select
import signal
import subprocess
import tempfile

PATIENCE = float(os.environ.get("QUILLET_PATIENCE", 20))  # seconds; what is awaited mostly takes 0.1


def first_line(stream, program):
    ready, _, _ = select.select([stream], [], [], PATIENCE)
    line = stream.readline().decode().strip() if ready else ""
    assert line, f"{program} did not start"
    return line


class Desktop:
    """What a session of a person has, in a home of its own; ends with all that it started."""

    def __init__(self, home):
        self.home = pathlib.Path(home)
        self.processes = []
        self.env = {name: value for name, value in os.environ.items()
                    if not name.startswith(("QT_", "XDG_", "WAYLAND_", "DBUS_", "AT_SPI_"))
                    or name == "QTWEBENGINE_DISABLE_SANDBOX"}
        self.env |= {"HOME": str(home), "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "xcb",
                     "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "GSETTINGS_BACKEND": "memory"}
        for name in ("CONFIG_HOME", "DATA_HOME", "STATE_HOME", "CACHE_HOME"):
            self.env[f"XDG_{name}"] = str(self.home / name)
            (self.home / name).mkdir()
        self.runtime = tempfile.TemporaryDirectory()  # whose path is short enough for sockets
        self.env["XDG_RUNTIME_DIR"] = self.runtime.name

    def start(self, *command, **more):
        """The process, which ends with the desktop."""
        process = subprocess.Popen(command, env=self.env, start_new_session=True,
                                   stdin=subprocess.DEVNULL, **more)
        self.processes.append(process)
        return process

    def start_session(self, *options, screen="1600x1200x24"):
        """More options are the X server's."""
        out, put = os.pipe()
        self.start("Xvfb", "-displayfd", str(put), "-screen", "0", screen, "-nolisten", "tcp",
                   *options, pass_fds=[put], stderr=subprocess.DEVNULL)
        os.close(put)
        with os.fdopen(out, "rb") as stream:
            self.env["DISPLAY"] = ":" + first_line(stream, "Xvfb")
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address",
                         stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.env["DBUS_SESSION_BUS_ADDRESS"] = first_line(bus.stdout, "dbus-daemon")
        manager = self.start("openbox", "--sm-disable", "--startup", "echo it manages",
                             stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        first_line(manager.stdout, "openbox")

    @staticmethod
    def stop(process):
        """At once, as a crash or the end of the power would."""
        if process.poll() is None:
            os.killpg(process.pid, signal.SIGKILL)
        process.wait()

    def end(self):
        for process in reversed(self.processes):
            self.stop(process)
        self.runtime.cleanup()
