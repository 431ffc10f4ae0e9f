"""The examples of docs/python.md, word for word. Called with the repository's
folder."""

import contextlib
import io
import os
import re
import sys
import unittest

SOURCE = sys.argv.pop(1)
sys.path.insert(0, os.path.join(SOURCE, "python"))

from world import World  # noqa: E402

# What each example prints, {lines} being the page's URL, and whether it starts
# the viewer.
EXAMPLES = [
    ("shown", True),
    ("", False),
    ("SUCCESS VIEWER {lines}", False),
    ("True False", False),
    ("en_US", False),
    ("SUCCESS", True),
    ("SUCCESS", True),
]


class Document(unittest.TestCase):
    def test_each_example_prints_what_it_says(self):
        world = World("Sketch")
        self.addCleanup(world.close)
        os.environ.update(world.environment)
        world.add_page("drawing-lines")
        world.add_page("VX_HOME")
        with open(os.path.join(SOURCE, "docs/python.md")) as file:
            examples = re.findall("```python\n(.*?)```", file.read(), re.DOTALL)
        self.assertEqual(len(examples), len(EXAMPLES))
        names = {}
        for example, (printed, starts) in zip(examples, EXAMPLES):
            out = io.StringIO()
            with self.subTest(example), contextlib.redirect_stdout(out):
                exec(example.replace("/opt/sketch/bin/sketch", world.host),
                     names)
            self.assertEqual(out.getvalue().strip(),
                             printed.format(lines=world.url("drawing-lines")))
            if starts:
                self.assertEqual(world.started()[0], "viewer")


if __name__ == "__main__":
    unittest.main()
