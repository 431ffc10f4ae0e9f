"""An X server and a session bus of a test's own, with real key presses.

Nothing here sleeps: each wait is for the program's own sign that something has
happened, and a test that waits in vain is ended by CTest.
"""

import os
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "../support"))

from servers import start_session_bus, start_x_server  # noqa: E402


class Screen:
    """An X server, and a session bus without any service."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="velmohelp-screen-")
        x_server, display = start_x_server("800x700x24")
        bus, address = start_session_bus(self.folder)
        self.processes = [bus, x_server]
        self.environment = {
            "DISPLAY": display,
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

    def close(self):
        for process in self.processes:
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
