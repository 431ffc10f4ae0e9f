"""office_ids.py VIEWER [EVERY]: the context-help ids of the office suite's help,
all or every so many of them: each has to show its page with its anchor in view.

Prints how many did, and how many name an anchor that their page does not have.
"""

import os
import re
import shutil
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from screen import GLib, ID, INTERFACE, PATH, Screen, TIMEOUT_S  # noqa: E402

HELP = "/usr/share/libreoffice/help"
HOME = "text/shared/05/new_help.html"
ROW = re.compile(r"^\s*'([^'\\]*)'\s*:\s*'([^'\\]+)'", re.MULTILINE)


def read_targets():
    """The pages with their anchors, as an id's row names them."""
    with open(f"{HELP}/hid2file.js") as file:
        rows = ROW.findall(file.read())
    return [target.partition("#")[::2] for _, target in rows
            if not target.startswith("http")]


def copy_help(folder, targets):
    """The whole help for all ids; for some of them only their pages, without
    those that would only have to be indexed."""
    wanted = {os.path.basename(page) for page, _ in targets} | {os.path.basename(HOME)}

    def unwanted(at, names):
        return [name for name in names if at.startswith(f"{HELP}/en-US/text/")
                and name.endswith(".html") and name not in wanted]

    shutil.copytree(HELP, folder, ignore=unwanted)


def has_anchor(page, anchor, pages={}):
    if page not in pages:
        with open(f"{HELP}/en-US/{page}", encoding="utf-8") as file:
            pages[page] = set(re.findall(r'(?:id|name)="([^"]*)"', file.read()))
    return anchor in pages[page]


def show(screen, url):
    """Asks the running viewer, and waits until the page has settled."""
    before = screen.state("office")["requests"]
    screen.bus.call_sync(
        ID, PATH, INTERFACE, "Show",
        GLib.Variant("(ssssa{sv})", ("HELP", "office", "en_US", f'"{url}"', {})),
        None, 0, TIMEOUT_S * 1000, None)
    return screen.wait(lambda s: s["shown"] > before, "office")


def main():
    viewer = sys.argv[1]
    every = int(sys.argv[2]) if len(sys.argv) > 2 else 1
    if not os.path.exists(f"{HELP}/hid2file.js"):
        print("viewer: Skipped\nThe office suite's help is not installed")
        return 77
    targets = read_targets()[::every]
    shown, without, wrong = 0, 0, []
    screen = Screen(viewer)
    try:
        folder = screen.help + "/office"
        copy_help(folder, targets)
        url = GLib.filename_to_uri(f"{folder}/en-US/", None)
        screen.show(f"{url}{HOME}", "office")
        for page, anchor in targets:
            if not os.path.exists(f"{HELP}/en-US/{page}"):
                without += 1
                continue
            state = show(screen, f"{url}{page}?nameAnchor={anchor}")
            if not has_anchor(page, anchor):
                without += 1
            elif (state["anchor-found"] and
                  -1 < state["anchor-top"] < state["view-height"]):
                shown += 1
            else:
                wrong.append((page, anchor, state["anchor-top"]))
    finally:
        screen.close()
    for page, anchor, top in wrong:
        print(f"{page}#{anchor} is at {top}")
    print(f"{len(targets)} ids: {shown} in view, {len(wrong)} not, "
          f"{without} without page or anchor in the help itself")
    return bool(wrong) or not shown


if __name__ == "__main__":
    sys.exit(main())
