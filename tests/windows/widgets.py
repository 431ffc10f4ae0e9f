"""What the tests of the examples with windows share: the drawing program's
widgets, and a world with its pages."""

import re

from world import World

# The widgets in the order of the key that leads to them. A widget's page is that
# of the nearest parent that has one; "" for none.
PAGES = [
    ("the canvas", "drawing-lines"),
    ("the entry for the width", "drawing-width"),
    ("the switch, which has none, in the pen", "drawing-pen"),
    ("the name, which has none anywhere", ""),
    ("the canvas again", "drawing-lines"),
]


def make_world():
    world = World("Drawing")
    world.install_viewer(is_installed=False)
    for page in ("VX_HOME", "drawing-lines", "drawing-width", "drawing-pen"):
        world.add_page(page)
    return world


class PagesOfWidgets:
    """Tests of one window. The class that inherits them has the world, and
    press, wait_until_help_is and started."""

    def test_each_widget_has_the_page_of_its_nearest_parent(self):
        for number, (sentence, page) in enumerate(PAGES):
            if number > 0:
                self.press("Tab")
            with self.subTest(sentence):
                self.wait_until_help_is(page != "")
                # Where there is no page, this starts nothing: the next report
                # is that of the next widget.
                self.press("F1")
                if page:
                    _, token, url = self.started()
                    self.assertEqual(url, self.world.url(page))
                    self.assertTrue(re.search("_TIME[0-9]+$", token), token)
