"""A small drawing application. Every widget has a page id; F1 shows the page of
the focused widget, or of its nearest parent that has one, and the Help button
is grey where there is none.

The argument is the executable whose resources hold the configuration; without
one, this file without its ending.
"""

import os
import sys
from concurrent.futures import ThreadPoolExecutor

from PyQt5.QtCore import QPoint, QSocketNotifier, Qt, pyqtSignal
from PyQt5.QtGui import QGuiApplication, QPainter, QPen, QPixmap
from PyQt5.QtWidgets import (
    QApplication, QCheckBox, QHBoxLayout, QLabel, QLineEdit, QPushButton,
    QShortcut, QSpinBox, QVBoxLayout, QWidget)

import velmohelp

HOST = os.path.abspath(
    sys.argv[1] if len(sys.argv) > 1 else __file__.removesuffix(".py"))


def with_page_id(widget, page_id):
    widget.setProperty("page-id", page_id)
    return widget


def page_ids(widget):
    """The page ids of a widget and its parents."""
    while widget is not None:
        if widget.property("page-id"):
            yield widget.property("page-id")
        widget = widget.parentWidget()


class Canvas(QWidget):
    def __init__(self, width):
        super().__init__()
        self.width_of_pen = width
        self.picture = QPixmap(640, 400)
        self.picture.fill(Qt.white)
        self.setFixedSize(self.picture.size())
        self.setFocusPolicy(Qt.StrongFocus)
        self.last = QPoint()

    def paintEvent(self, _):
        QPainter(self).drawPixmap(0, 0, self.picture)

    def mousePressEvent(self, event):
        self.last = event.pos()

    def mouseMoveEvent(self, event):
        painter = QPainter(self.picture)
        painter.setPen(QPen(Qt.black, self.width_of_pen.value()))
        painter.drawLine(self.last, event.pos())
        self.last = event.pos()
        self.update()


class Window(QWidget):
    found = pyqtSignal(object)

    def __init__(self):
        super().__init__()
        self.setWindowTitle("Drawing")
        self.client = velmohelp.Client("Drawing", "en_US", host=HOST)
        # A find may wait for the network, so it runs in a thread. The client is
        # for one caller at a time: meanwhile the window calls nothing, and what
        # the person wants is remembered.
        self.worker = ThreadPoolExecutor(1)
        self.page = None  # of the focused widget; None when it has none
        self.asking = self.outdated = self.requested = False
        self.request = self.notifier = None
        self.add_widgets()
        self.found.connect(self.on_found)
        QShortcut(Qt.Key_F1, self, self.on_help)
        self.help.clicked.connect(self.on_help)
        QApplication.instance().focusChanged.connect(self.look_up)
        self.canvas.setFocus()

    def add_widgets(self):
        width = with_page_id(QSpinBox(), "drawing-width")
        width.setRange(1, 20)
        self.canvas = with_page_id(Canvas(width), "drawing-lines")
        # The pen has a page. Its entry for the width has one, its switch has not.
        pen = with_page_id(QWidget(), "drawing-pen")
        row = QHBoxLayout(pen)
        row.addWidget(width)
        row.addWidget(with_page_id(QCheckBox("Round"), "drawing-round"))
        self.help = QPushButton("Help")
        # It is about the widget that has the focus, so it never takes it.
        self.help.setFocusPolicy(Qt.NoFocus)
        self.help.setEnabled(False)
        self.status = QLabel()
        column = QVBoxLayout(self)
        for widget in (self.canvas, pen,
                       with_page_id(QLineEdit(), "drawing-name"), self.help,
                       self.status):
            column.addWidget(widget)

    def look_up(self):
        """Asks for the page of what has the focus now."""
        self.outdated = self.asking
        if not self.asking:
            self.asking = True
            ids = list(page_ids(QApplication.focusWidget()))
            self.worker.submit(lambda: self.found.emit(self.find_page(ids)))

    def find_page(self, ids):
        # An id without a page of its own leads to the home page.
        home = self.client.find_display("VX_HOME").url
        return next((i for i in ids if self.has_page(i, home)), None)

    def has_page(self, page_id, home):
        found = self.client.find_display(page_id)
        return found.result == 0 and found.url not in (None, home)

    def on_found(self, page):
        self.asking = False
        self.page = page
        if self.outdated:
            self.look_up()
            return
        self.help.setEnabled(page is not None)
        if self.requested:
            self.requested = False
            self.on_help()

    def on_help(self):
        self.requested = self.asking
        if not self.asking and self.page is not None:
            self.show_page()

    def cancel(self):
        """A tool may hang: the next request takes its place."""
        if self.request is not None:
            self.notifier.setEnabled(False)
            self.request.cancel()

    def show_page(self):
        self.cancel()
        self.request = self.client.start_display(
            self.page, activation_token=activation_token())
        if self.request is None:
            self.status.setText("Help cannot be shown")
            return
        self.notifier = QSocketNotifier(
            self.request.fileno(), QSocketNotifier.Read)
        self.notifier.activated.connect(self.on_result)

    def on_result(self):
        self.notifier.setEnabled(False)
        result = self.request.finish()
        self.status.setText("" if result == 0 else
                            f"Help cannot be shown: {result.name}")


def activation_token():
    """With it, the desktop lets the browser take the focus from us. Qt 5 has
    none; on X11 it is a name of our own with the time of the last key or click.
    """
    if QGuiApplication.platformName() != "xcb":
        return None
    from PyQt5.QtX11Extras import QX11Info
    return f"drawing-{os.getpid()}_TIME{QX11Info.getTimestamp()}"


if __name__ == "__main__":
    application = QApplication(sys.argv)
    window = Window()
    window.show()
    sys.exit(application.exec())
