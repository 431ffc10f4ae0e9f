"""An X server and a session bus of a test's own, with real key presses.

Nothing here sleeps: each wait is for the program's own sign that something has
happened, and a test that waits in vain is ended by CTest.
"""

import os
import shutil
import subprocess
import tempfile

BUS = """<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


def missing(*programs):
    """Those of the programs that are not installed."""
    return [name for name in programs if shutil.which(name) is None]


class Screen:
    """An X server, and a session bus without any service."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="velmohelp-screen-")
        self.processes = []
        number = self._start(["Xvfb", "-displayfd", "FD", "-screen", "0",
                              "800x700x24", "-nolisten", "tcp", "-noreset"])
        configuration = os.path.join(self.folder, "bus.conf")
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(BUS)
        address = self._start(["dbus-daemon", "--nofork", "--print-address=FD",
                               "--config-file=" + configuration])
        self.environment = {
            "DISPLAY": ":" + number,
            "DBUS_SESSION_BUS_ADDRESS": address,
            "LANG": "C.UTF-8",
            "XDG_RUNTIME_DIR": self.folder,
            "GDK_BACKEND": "x11",
            "GSK_RENDERER": "cairo",
            "GSETTINGS_BACKEND": "memory",
            "GTK_A11Y": "none",
            "QT_QPA_PLATFORM": "xcb",
            "QT_ACCESSIBILITY": "0",
        }

    def _start(self, arguments):
        """Starts a program that writes its address to the descriptor FD."""
        read_end, write_end = os.pipe()
        words = [word.replace("FD", str(write_end)) for word in arguments]
        self.processes.append(subprocess.Popen(
            words, pass_fds=[write_end], stderr=subprocess.DEVNULL))
        os.close(write_end)
        with os.fdopen(read_end, encoding="utf-8") as stream:
            line = stream.readline().strip()
        if not line:
            raise RuntimeError(f"{words[0]} did not start")
        return line

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()
        shutil.rmtree(self.folder)

    def press(self, *keys):
        """Presses keys in the window that has the focus."""
        self._xdotool("key", *keys)

    def focus_window(self, title):
        """Waits for the window, and gives it the focus: there is no window
        manager that would."""
        self._xdotool("search", "--sync", "--onlyvisible", "--name",
                      f"^{title}$", "windowfocus", "--sync")

    def _xdotool(self, *words):
        subprocess.run(["xdotool", *words], check=True,
                       stdout=subprocess.DEVNULL,
                       env={**os.environ, **self.environment})
