"""Whether what is shown takes the focus, on a compositor that gives it to the
holder of one of its tokens alone. Called with the repository's folder."""

import os
import sys
import unittest

SOURCE = sys.argv.pop(1)
HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(SOURCE, "python"))
sys.path.insert(0, os.path.join(SOURCE, "tests/python"))
sys.path.insert(0, os.path.join(SOURCE, "tests/support"))

from servers import missing  # noqa: E402
from velmohelp import Client, DisplayPageReturnCode  # noqa: E402
from wayland import CannotStart, Compositor, Window  # noqa: E402
from world import World  # noqa: E402

SUCCESS = DisplayPageReturnCode.SUCCESS


def display(client, token):
    return client.display("intro", activation_token=token)


def start(client, token):
    return client.start_display("intro", activation_token=token).finish()


def why_no_compositor():
    try:
        Compositor().close()
    except CannotStart as reason:
        return str(reason)
    return ""


class Focus(unittest.TestCase):
    """The window "host" asks for help, which appears in the window "help"."""

    def setUp(self):
        saved = dict(os.environ)
        self.addCleanup(os.environ.update, saved)
        self.addCleanup(os.environ.clear)
        self.world = World()
        self.addCleanup(self.world.close)
        compositor = Compositor()
        self.addCleanup(compositor.close)
        self.focused = compositor.focused
        os.environ.pop("XDG_ACTIVATION_TOKEN", None)
        os.environ.pop("DESKTOP_STARTUP_ID", None)
        os.environ.update(self.world.environment)
        os.environ.update(compositor.environment)
        program = f"#!/bin/sh\nexec '{sys.executable}' '{HERE}/wayland.py' " \
            f"help '{self.world.report}' \"$@\"\n"
        self.world.write("Viewer.app/bin/Viewer", program, 0o755)
        self.world.write("Browser", program, 0o755)
        self.host = Window("host")
        self.addCleanup(self.host.close)
        self.assertEqual(self.focused(), "host")
        self.client = Client("Foo", "en_US", host=self.world.host)

    def focused_after(self, request, token):
        """Where the focus is once the help has appeared with that token."""
        self.assertEqual(request(self.client, token), SUCCESS)
        name, given, *_ = self.world.started()
        self.assertEqual((name, given), ("help", token or ""))
        return self.focused()

    def test_help_in_the_viewer_comes_to_the_front_with_a_token(self):
        for request in (display, start):
            with self.subTest(request.__name__):
                token = self.host.token()
                self.assertEqual(self.focused_after(request, token), "help")
                self.host.activate(self.host.token())
                self.host.synchronise()
                self.assertEqual(self.focused(), "host")

    def test_help_in_the_browser_comes_to_the_front_with_a_token(self):
        self.world.install_viewer(is_installed=False)
        self.assertEqual(self.focused_after(start, self.host.token()), "help")

    def test_help_stays_behind_without_a_token(self):
        for request in (display, start):
            with self.subTest(request.__name__):
                self.assertEqual(self.focused_after(request, None), "host")

    def test_help_stays_behind_with_a_token_of_nobodys(self):
        self.assertEqual(self.focused_after(start, "a-token"), "host")


if __name__ == "__main__":
    absent = missing("sway", "swaymsg", "unshare")
    reason = ", ".join(absent) + " is not installed" if absent else \
        why_no_compositor()
    if reason:
        print("focus_test: Skipped")
        print(reason)
        sys.exit(77)
    unittest.main()
