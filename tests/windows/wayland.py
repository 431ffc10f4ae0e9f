"""A Wayland compositor without a screen, and windows on it.

As a program, a window that takes the token it was started with:

    wayland.py NAME REPORT [ARGUMENT...]

It appears, asks for the focus when it has a token, writes its name, the token and
the arguments to the pipe REPORT, and stays.
"""

import json
import os
import select
import shutil
import socket
import struct
import subprocess
import sys
import tempfile

# A window named "help" gets the focus by a valid token alone. Others get it when
# they appear.
CONFIGURATION = """
xwayland disable
swaybg_command -
swaynag_command -
no_focus [app_id="help"]
focus_on_window_activation focus
exec echo "$WAYLAND_DISPLAY:$SWAYSOCK" >'{ready}'
"""


class CannotStart(Exception):
    """Says why."""


class Compositor:
    """A compositor of the test's own, which enforces who has the focus."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="velmohelp-wayland-")
        ready = os.path.join(self.folder, "ready")
        configuration = os.path.join(self.folder, "config")
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(CONFIGURATION.format(ready=ready))
        os.mkfifo(ready)
        self.environment = {
            "XDG_RUNTIME_DIR": self.folder,
            "WLR_BACKENDS": "headless",
            "WLR_LIBINPUT_NO_DEVICES": "1",
            "WLR_RENDERER": "pixman",
        }
        # It refuses to be root, who is nobody in a namespace of his own.
        be_nobody = ["unshare", "--user"] if os.geteuid() == 0 else []
        self._process = subprocess.Popen(
            [*be_nobody, "sway", "--config", configuration],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            env={**os.environ, **self.environment})
        display, self._socket = self._wait_for(ready)
        self.environment["WAYLAND_DISPLAY"] = display

    def _wait_for(self, ready):
        # For both ends: nobody waits for the other one to be opened.
        pipe = os.open(ready, os.O_RDWR)
        process = os.pidfd_open(self._process.pid)
        readable, _, _ = select.select([pipe, process], [], [])
        line = os.read(pipe, 4096).decode() if pipe in readable else ""
        os.close(process)
        os.close(pipe)
        if not line:
            self.close()
            raise CannotStart("sway does not start on this system")
        return line.strip().split(":")

    def close(self):
        self._process.kill()
        self._process.wait()
        shutil.rmtree(self.folder)

    def focused(self):
        """The name of the window that has the focus, by the compositor."""
        tree = json.loads(subprocess.run(
            ["swaymsg", "--socket", self._socket, "--type", "get_tree"],
            check=True, capture_output=True).stdout)
        return _focused(tree)


def _focused(node):
    if node["focused"]:
        return node.get("app_id")
    names = map(_focused, node["nodes"] + node["floating_nodes"])
    return next((name for name in names if name is not None), None)


def _text(value):
    data = value.encode() + b"\0"
    return struct.pack("=I", len(data)) + data + bytes(-len(data) % 4)


def _numbers(*values):
    return struct.pack(f"={len(values)}I", *values)


class Window:
    """One window, in the protocol's own words."""

    DISPLAY, WIDTH, HEIGHT = 1, 8, 8

    def __init__(self, name):
        self._connection = socket.socket(socket.AF_UNIX)
        self._connection.connect(os.path.join(
            os.environ["XDG_RUNTIME_DIR"], os.environ["WAYLAND_DISPLAY"]))
        self._buffer = b""
        self._last = self.DISPLAY
        self._globals = {}
        # What is done when an object has an event: (object, event) to function.
        self._handlers = {(self.DISPLAY, 0): self._fail}
        self._registry = self._new()
        self._handlers[self._registry, 0] = self._add_global
        self._send(self.DISPLAY, 1, _numbers(self._registry))
        self.synchronise()
        self._activation = self._bind("xdg_activation_v1")
        compositor = self._bind("wl_compositor")
        self._surface = self._new()
        self._send(compositor, 0, _numbers(self._surface))
        self._appear(name)

    def close(self):
        self._connection.close()

    def token(self):
        """A token from the compositor for whatever this window starts."""
        token = self._new()
        given = []
        self._handlers[token, 0] = lambda body: given.append(
            body[4:].split(b"\0")[0].decode())
        self._send(self._activation, 1, _numbers(token))
        self._send(token, 2, _numbers(self._surface))
        self._send(token, 3)
        self.synchronise()
        return given[0]

    def activate(self, token):
        """Asks for the focus."""
        self._send(self._activation, 2,
                   _text(token) + _numbers(self._surface))

    def synchronise(self):
        """Returns when the compositor has done all that it was asked."""
        callback = self._new()
        done = []
        self._handlers[callback, 0] = done.append
        self._send(self.DISPLAY, 0, _numbers(callback))
        while not done:
            self.dispatch()

    def dispatch(self):
        """Waits for an event."""
        while not self._is_whole():
            data = self._connection.recv(4096)
            if not data:
                sys.exit()
            self._buffer += data
        target, word = struct.unpack_from("=II", self._buffer)
        body, self._buffer = (self._buffer[8:word >> 16],
                              self._buffer[word >> 16:])
        self._handlers.get((target, word & 0xFFFF), lambda _: None)(body)

    def _is_whole(self):
        size = len(self._buffer)
        return size >= 8 and size >= struct.unpack_from(
            "=I", self._buffer, 4)[0] >> 16

    def _appear(self, name):
        base = self._bind("xdg_wm_base")
        shell, toplevel = self._new(), self._new()
        configured = []
        self._handlers[base, 0] = lambda serial: self._send(base, 3, serial)
        self._handlers[shell, 0] = configured.append
        self._send(base, 2, _numbers(shell, self._surface))
        self._send(shell, 1, _numbers(toplevel))
        self._send(toplevel, 3, _text(name))
        self._send(self._surface, 6)
        while not configured:
            self.dispatch()
        self._handlers[shell, 0] = lambda serial: self._send(shell, 4, serial)
        self._send(shell, 4, configured[0])
        self._send(self._surface, 1, _numbers(self._picture(), 0, 0))
        self._send(self._surface, 6)
        self.synchronise()

    def _picture(self):
        size = self.WIDTH * self.HEIGHT * 4
        memory = os.memfd_create("picture")
        os.ftruncate(memory, size)
        shared = self._bind("wl_shm")
        pool, picture = self._new(), self._new()
        message = self._message(shared, 0, _numbers(pool, size))
        socket.send_fds(self._connection, [message], [memory])
        os.close(memory)
        self._send(pool, 0, _numbers(picture, 0, self.WIDTH, self.HEIGHT,
                                     self.WIDTH * 4, 0))
        return picture

    def _bind(self, interface):
        bound = self._new()
        self._send(self._registry, 0, _numbers(self._globals[interface]) +
                   _text(interface) + _numbers(1, bound))
        return bound

    def _new(self):
        """A number for an object: each is used once, in their order."""
        self._last += 1
        return self._last

    def _send(self, target, request, body=b""):
        self._connection.sendall(self._message(target, request, body))

    @staticmethod
    def _message(target, request, body):
        return _numbers(target, len(body) + 8 << 16 | request) + body

    def _add_global(self, body):
        interface = body[8:].split(b"\0")[0].decode()
        self._globals[interface] = struct.unpack_from("=I", body)[0]

    @staticmethod
    def _fail(body):
        raise RuntimeError(body)


def main():
    name, report, *arguments = sys.argv[1:]
    token = os.environ.get("XDG_ACTIVATION_TOKEN", "")
    window = Window(name)
    if token:
        window.activate(token)
    window.synchronise()
    with open(report, "w", encoding="utf-8") as pipe:
        pipe.write("\n".join([name, token, *arguments]))
    while True:
        window.dispatch()


if __name__ == "__main__":
    try:
        main()
    except ConnectionError:
        pass  # The compositor has ended.
