"""The Qt example in a window of its own, in this process: the test sees the
widgets, and its keys are real. Called with the repository's folder."""

import importlib.util
import os
import sys
import unittest
from concurrent.futures import ThreadPoolExecutor

SOURCE = sys.argv.pop(1)
sys.path.insert(0, os.path.join(SOURCE, "python"))
sys.path.insert(0, os.path.join(SOURCE, "tests/python"))

from screen import Screen  # noqa: E402
from servers import missing  # noqa: E402
from widgets import PagesOfWidgets, make_world  # noqa: E402


def absent():
    names = missing("Xvfb", "xdotool", "dbus-daemon")
    if importlib.util.find_spec("PyQt5") is None:
        names.append("python3-pyqt5")
    elif importlib.util.find_spec("PyQt5.QtX11Extras") is None:
        names.append("python3-pyqt5.qtx11extras")
    return names


class Window(PagesOfWidgets, unittest.TestCase):
    """One window: Qt has one application for each process."""

    @classmethod
    def setUpClass(cls):
        cls.screen = Screen()
        cls.addClassCleanup(cls.screen.close)
        cls.world = make_world()
        cls.addClassCleanup(cls.world.close)
        os.environ.update(cls.screen.environment)
        os.environ.update(cls.world.environment)
        from PyQt5.QtWidgets import QApplication
        path = os.path.join(SOURCE, "examples/qt/drawing.py")
        spec = importlib.util.spec_from_file_location("drawing", path)
        drawing = importlib.util.module_from_spec(spec)
        spec.loader.exec_module(drawing)
        drawing.HOST = cls.world.host
        cls.application = QApplication(["drawing"])
        cls.window = drawing.Window()
        cls.window.show()
        cls.threads = ThreadPoolExecutor()
        cls.in_thread(cls.screen.focus_window, "Drawing")

    @classmethod
    def tearDownClass(cls):
        cls.window.close()
        cls.window.worker.shutdown()
        cls.threads.shutdown()

    @classmethod
    def wait(cls, condition):
        from PyQt5.QtCore import QEventLoop
        while not condition():
            cls.application.processEvents(QEventLoop.WaitForMoreEvents)

    @classmethod
    def in_thread(cls, function, *arguments):
        """Calls what waits for the window; the window runs meanwhile."""
        dispatcher = cls.application.eventDispatcher()
        future = cls.threads.submit(function, *arguments)
        future.add_done_callback(lambda _: dispatcher.wakeUp())
        cls.wait(future.done)
        return future.result()

    def press(self, *keys):
        self.in_thread(self.screen.press, *keys)

    def started(self):
        return self.in_thread(self.world.started)

    def wait_until_help_is(self, is_enabled):
        self.wait(lambda: self.window.help.isEnabled() == is_enabled)

    def test_the_window_stays_alive_while_the_tool_hangs(self):
        self.window.canvas.setFocus()
        self.wait(lambda: self.window.page == "drawing-lines" and
                  not self.window.asking)
        alive = self.world.path("alive")
        os.mkfifo(alive)
        self.addCleanup(self.world.install_viewer, is_installed=False)
        self.world.write_tool(
            f"exec 9>'{alive}'\necho runs >&9\nexec sleep 1000000\n")
        self.press("F1")
        with self.in_thread(open, alive) as pipe:
            self.assertEqual(self.in_thread(pipe.readline), "runs\n")
            self.window.cancel()
            self.assertEqual(self.in_thread(pipe.read), "")


if __name__ == "__main__":
    if absent():
        print("qt_test: Skipped")
        print(", ".join(absent()), "is not installed")
        sys.exit(77)
    unittest.main()
