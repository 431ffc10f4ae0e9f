"""screenshots.py VIEWER FOLDER: page with contents, search, dark."""

import os
import shutil
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(ROOT, "tests/viewer"))
from screen import GLib, Screen  # noqa: E402

HELP = "/usr/share/libreoffice/help"
HOME = "en-US/text/shared/05/new_help.html"
PAGE = "en-US/text/swriter/01/06040000.html"
ANCHOR = "bm_id1483504"


def take(viewer, picture, look, **environment):
    """Shows the page, looks at something, saves the screen."""
    screen = Screen(viewer, size="1000x720x24", **environment)
    try:
        folder = screen.help + "/office"
        shutil.copytree(HELP, folder)
        screen.write(folder + "/helpmap.txt", f"VX_HOME\t{HOME}\n")
        url = GLib.filename_to_uri(f"{folder}/{PAGE}", None)
        url += f"?nameAnchor={ANCHOR}"
        screen.show(url, "office")
        screen.wait(lambda s: 0 < s["contents"] < 100, "office")
        look(screen)
        # Two drawings after the last change the screen shows it.
        screen.drawn()
        screen.screenshot(picture)
    finally:
        screen.close()


def search(screen):
    screen.start("SEARCH", "office", "en_US", "word%20count")
    screen.wait(lambda s: s["search-complete"] and s["hits"], "office")


def main():
    viewer, folder = sys.argv[1:]
    take(viewer, f"{folder}/viewer-page.png", lambda screen: None)
    take(viewer, f"{folder}/viewer-search.png", search)
    take(viewer, f"{folder}/viewer-dark.png", search,
         ADW_DEBUG_COLOR_SCHEME="prefer-dark")


if __name__ == "__main__":
    main()
