"""A screen, a session bus and a person's home for tests of the viewer.

Nothing here sleeps: whoever waits, waits for the viewer's own signal that what
is on the screen has changed.
"""

import os
import shutil
import signal
import subprocess
import sys
import tempfile

import gi

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "../support"))
gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402
from servers import start_session_bus, start_x_server  # noqa: E402

ID = "com.velmo.HelpViewer"
PATH = "/com/velmo/HelpViewer"
INTERFACE = "com.velmo.HelpViewer1"
VIEWER_IDS = "klh.9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1"
# Far more than anything takes; only a failure waits so long.
TIMEOUT_S = int(os.environ.get("VELMO_TEST_TIMEOUT_S", "60"))


class Screen:
    """An X server, a session bus, and a home that is empty at first."""

    def __init__(self, viewer, size="1280x900x24", **environment):
        if os.geteuid() == 0 and not os.path.exists("/.velmo-own-root"):
            # It would leave a file on the machine, see there.
            raise RuntimeError("Root runs this through scripts/own-root")
        self.viewer = os.path.abspath(viewer)
        self.folder = tempfile.mkdtemp(prefix="velmo-viewer-")
        self._processes = []
        self._started = []
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": self.path("home"),
            "XDG_CONFIG_HOME": self.path("home/.config"),
            "XDG_CACHE_HOME": self.path("home/.cache"),
            "XDG_STATE_HOME": self.path("home/.state"),
            "XDG_DATA_HOME": self.path("home/.local/share"),
            "XDG_RUNTIME_DIR": self.path("run"),
            "LANG": "C.UTF-8",
            "GSETTINGS_BACKEND": "memory",
            "GDK_BACKEND": "x11",
            "GTK_A11Y": "none",
            "LIBGL_ALWAYS_SOFTWARE": "1",
            "no_proxy": "localhost,127.0.0.1",
        }
        self.environment.update(environment)
        os.makedirs(self.path("home/.config"))
        os.makedirs(self.path("run"), mode=0o700)
        display, self.environment["DISPLAY"] = start_x_server(size)
        self._processes.append(display)
        # Of the services that this machine has, the one for screen readers: any
        # other would be started without the test's knowledge, and some hang.
        name = "org.a11y.Bus.service"
        os.makedirs(self.path("services"))
        if os.path.exists(f"/usr/share/dbus-1/services/{name}"):
            shutil.copy(f"/usr/share/dbus-1/services/{name}",
                        self.path("services"))
        bus, address = start_session_bus(
            self.folder, self.path("services"), self.environment)
        self._processes.append(bus)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT |
                 Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        self.bus = Gio.DBusConnection.new_for_address_sync(
            address, flags, None, None)
        self._changes = 0
        self.bus.signal_subscribe(None, INTERFACE, "Changed", PATH, None,
                                  Gio.DBusSignalFlags.NONE, self._changed)
        self.store = self.path(f"home/.config/{VIEWER_IDS}/Local Store")
        self.help = self.store + "/Help"

    def close(self):
        for process in self._started + self._processes[::-1]:
            if process.poll() is None:
                process.send_signal(signal.SIGTERM)
        for process in self._started + self._processes[::-1]:
            try:
                process.wait(TIMEOUT_S)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def path(self, name):
        return os.path.join(self.folder, name)

    def write(self, name, text):
        """Writes a file below the folder, or at an absolute path."""
        path = self.path(name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        data = text if isinstance(text, bytes) else text.encode()
        with open(path, "wb") as file:
            file.write(data)
        return path

    def page(self, name, text):
        """Writes a downloaded page; returns its file URL."""
        path = self.write(f"{self.help}/{name}", text)
        return GLib.filename_to_uri(path, None)

    def set_up_browser(self):
        """A default browser that writes what it is asked for into a file, whose
        path is returned."""
        opened = self.path("opened")
        browser = self.write("browser", f'#!/bin/sh\necho "$1" >>"{opened}"\n')
        os.chmod(browser, 0o755)
        schemes = [f"x-scheme-handler/{name}"
                   for name in ("http", "https", "mailto")]
        self.write("home/.local/share/applications/test-browser.desktop",
                   "[Desktop Entry]\nType=Application\nName=Test\n"
                   f"Exec={browser} %u\nMimeType={';'.join(schemes)};\n")
        self.write("home/.config/mimeapps.list", "[Default Applications]\n" +
                   "".join(f"{name}=test-browser.desktop\n"
                           for name in schemes))
        return opened

    def start(self, verb, product, locale, request, **environment):
        """Starts the viewer as the help client does."""
        process = subprocess.Popen(
            [self.viewer, verb, product, locale, request],
            env={**self.environment, **environment}, cwd="/",
            stdin=subprocess.DEVNULL, start_new_session=True)
        self._started.append(process)
        return process

    def show(self, url, product="Sketch", verb="HELP", **environment):
        """Shows a page, waits until it has settled, returns the state."""
        before = self.state(product).get("requests", 0)
        process = self.start(verb, product, "en_US", f'"{url}"', **environment)
        self.wait(lambda s: s.get("shown", 0) > before, product)
        return process, self.state(product)

    def state(self, product="Sketch"):
        """What is on the screen; empty when the product has no window."""
        try:
            reply = self.bus.call_sync(
                ID, PATH, INTERFACE, "State", GLib.Variant("(s)", (product,)),
                None, Gio.DBusCallFlags.NO_AUTO_START, TIMEOUT_S * 1000, None)
        except GLib.Error:
            return {}
        return reply.unpack()[0]

    def _changed(self, *_):
        self._changes += 1

    def wait(self, condition, product="Sketch"):
        """Waits until the state fulfils the condition; returns the state."""
        context = GLib.MainContext.default()
        expired = []
        timer = GLib.timeout_add_seconds(TIMEOUT_S,
                                         lambda: expired.append(1) or True)
        try:
            while True:
                changes = self._changes
                state = self.state(product)
                if condition(state):
                    return state
                while changes == self._changes and not expired:
                    context.iteration(True)
                if expired:
                    raise AssertionError(f"The screen never got there: {state}")
        finally:
            GLib.source_remove(timer)

    def windows(self):
        """The object paths of the viewer's windows."""
        reply = self.bus.call_sync(
            ID, PATH + "/window", "org.freedesktop.DBus.Introspectable",
            "Introspect", None, None, Gio.DBusCallFlags.NO_AUTO_START,
            TIMEOUT_S * 1000, None)
        node = Gio.DBusNodeInfo.new_for_xml(reply.unpack()[0])
        return [f"{PATH}/window/{child.path}" for child in node.nodes]

    def command(self, name, parameter=None, window=None):
        """Runs a command of the window as its key or menu entry does."""
        path = window or self.windows()[0]
        if name.startswith("app."):
            path = PATH
        parameters = [] if parameter is None else [parameter]
        self.bus.call_sync(
            ID, path, "org.gtk.Actions", "Activate",
            GLib.Variant("(sava{sv})", (name.split(".")[-1], parameters, {})),
            None, Gio.DBusCallFlags.NO_AUTO_START, TIMEOUT_S * 1000, None)

    def action(self, name, path=PATH):
        """Whether an action is enabled, and its state."""
        reply = self.bus.call_sync(
            ID, path, "org.gtk.Actions", "Describe",
            GLib.Variant("(s)", (name,)), None,
            Gio.DBusCallFlags.NO_AUTO_START, TIMEOUT_S * 1000, None)
        enabled, _, state = reply.unpack()[0]
        return enabled, state[0] if state else None

    def drawn(self):
        """Waits until the X server shows the same picture twice."""
        last = None
        while True:
            picture = subprocess.run(
                ["import", "-window", "root", "ppm:-"], env=self.environment, check=True,
                capture_output=True).stdout
            if picture == last:
                return
            last = picture
            # The viewer answers after it has handled what came before.
            for _ in range(20):
                self.state()

    def focus(self, *search):
        """Gives the keyboard to the window that xdotool's search finds, and
        waits until there is one."""
        found = subprocess.run(
            ["xdotool", "search", "--sync", "--onlyvisible", *search],
            env=self.environment, check=True, capture_output=True, text=True,
            timeout=TIMEOUT_S).stdout.split()
        subprocess.run(["xdotool", "windowfocus", "--sync", found[-1]],
                       env=self.environment, check=True, timeout=TIMEOUT_S)
        return found[-1]

    def press(self, *words):
        subprocess.run(["xdotool", *words], env=self.environment, check=True)

    def screenshot(self, path):
        """Saves what the X server shows as a PNG file."""
        subprocess.run(["import", "-window", "root", path], check=True,
                       env=self.environment)
