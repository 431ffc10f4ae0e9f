"""The Qt example in a window of its own, in this process: the test sees the
widgets, and its keys are real. Called with the repository's folder."""

import importlib.util
import os
import re
import sys
import unittest
from concurrent.futures import ThreadPoolExecutor

SOURCE = sys.argv.pop(1)
sys.path.insert(0, os.path.join(SOURCE, "python"))
sys.path.insert(0, os.path.join(SOURCE, "tests/python"))

from screen import Screen, missing  # noqa: E402
from world import World  # noqa: E402

# The widgets in the order of the key that leads to them. A widget's page is that
# of the nearest parent that has one; "" for none.
PAGES = [
    ("the canvas", "drawing-lines"),
    ("the entry for the width", "drawing-width"),
    ("the switch, which has none, in the pen", "drawing-pen"),
    ("the name, which has none anywhere", ""),
    ("the canvas again", "drawing-lines"),
]


def absent():
    names = missing("Xvfb", "xdotool", "dbus-daemon")
    if importlib.util.find_spec("PyQt5") is None:
        names.append("python3-pyqt5")
    elif importlib.util.find_spec("PyQt5.QtX11Extras") is None:
        names.append("python3-pyqt5.qtx11extras")
    return names


class Window(unittest.TestCase):
    """One window: Qt has one application for each process."""

    @classmethod
    def setUpClass(cls):
        cls.screen = Screen()
        cls.addClassCleanup(cls.screen.close)
        cls.world = World("Drawing")
        cls.addClassCleanup(cls.world.close)
        cls.world.install_viewer(is_installed=False)
        for page in ("VX_HOME", "drawing-lines", "drawing-width",
                     "drawing-pen"):
            cls.world.add_page(page)
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

    def test_each_widget_has_the_page_of_its_nearest_parent(self):
        for number, (sentence, page) in enumerate(PAGES):
            if number > 0:
                self.press("Tab")
            with self.subTest(sentence):
                self.wait(lambda: self.window.help.isEnabled() == (page != ""))
                # Where there is no page, this starts nothing: the next report
                # is that of the next widget.
                self.press("F1")
                if page:
                    _, token, url = self.in_thread(self.world.started)
                    self.assertEqual(url, self.world.url(page))
                    self.assertTrue(re.search("_TIME[0-9]+$", token), token)

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
