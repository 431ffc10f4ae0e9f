"""The GTK example in a window of its own. Called with its program, "" when it is
not built, and the repository's folder."""

import os
import signal
import subprocess
import sys
import unittest

PROGRAM = sys.argv.pop(1)
SOURCE = sys.argv.pop(1)
sys.path.insert(0, os.path.join(SOURCE, "tests/python"))

from screen import Screen  # noqa: E402
from servers import missing  # noqa: E402
from widgets import PagesOfWidgets, make_world  # noqa: E402

PATH = "/com/velmo/Drawing/window/1"


class Window(PagesOfWidgets, unittest.TestCase):
    def setUp(self):
        self.screen = Screen()
        self.addCleanup(self.screen.close)
        self.world = make_world()
        self.addCleanup(self.world.close)
        self.press = self.screen.press
        self.started = self.world.started
        # The resources are found beside the program.
        self.program = self.world.path("bin/sketch")
        os.remove(self.program)
        os.link(PROGRAM, self.program)

    def start(self):
        process = subprocess.Popen(
            [self.program], stdout=subprocess.DEVNULL,
            env={**os.environ, **self.world.environment,
                 **self.screen.environment})
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        self.screen.focus_window("Drawing")

    def help_is_enabled(self):
        answer = subprocess.run(
            ["gdbus", "call", "--session", "--dest", "com.velmo.Drawing",
             "--object-path", PATH, "--method", "org.gtk.Actions.Describe",
             "help"], check=True, capture_output=True, text=True,
            env={**os.environ, **self.screen.environment}).stdout
        return answer.startswith("((true")

    def wait_until_help_is(self, is_enabled):
        while self.help_is_enabled() != is_enabled:
            pass

    def test_each_widget_has_the_page_of_its_nearest_parent(self):
        self.start()
        super().test_each_widget_has_the_page_of_its_nearest_parent()

    def test_a_window_stays_alive_while_the_tool_hangs(self):
        alive = self.world.path("alive")
        os.mkfifo(alive)
        self.world.write_tool(
            f"exec 9>'{alive}'\necho $$ >&9\nexec sleep 1000000\n")
        self.start()
        with open(alive, encoding="utf-8") as pipe:
            self.addCleanup(os.kill, int(pipe.readline()), signal.SIGKILL)
            self.assertFalse(self.help_is_enabled())
            self.screen.press("F1", "Tab", "F1")
            self.assertFalse(self.help_is_enabled())


if __name__ == "__main__":
    absent = missing("Xvfb", "xdotool", "dbus-daemon", "gdbus")
    if not os.path.exists(PROGRAM):
        absent.append("libgtk-4-dev")
    if absent:
        print("gtk_test: Skipped")
        print(", ".join(absent), "is not installed")
        sys.exit(77)
    unittest.main()
