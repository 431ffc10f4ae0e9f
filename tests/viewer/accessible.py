"""Prints what a screen reader finds in the viewer: one object per line, its
role, a tab, its name, a tab, its description, a tab, its text."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def text_of(node):
    try:
        if node.get_text_iface() is None:
            return ""
        return Atspi.Text.get_text(node, 0, -1).replace("\n", " ")
    except GLib.Error:
        return ""


def describe(node, depth=0):
    if node is None or depth > 60:
        return
    try:
        print(node.get_role_name(), node.get_name(),
              node.get_description().replace("\n", " "), text_of(node), sep="\t")
        for i in range(min(node.get_child_count(), 400)):
            describe(node.get_child_at_index(i), depth + 1)
    except GLib.Error:
        pass


Atspi.init()
desktop = Atspi.get_desktop(0)
for i in range(desktop.get_child_count()):
    describe(desktop.get_child_at_index(i))
