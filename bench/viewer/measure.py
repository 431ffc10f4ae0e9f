"""How long it takes from a request to the page on the screen, and how much
memory all processes of the viewer then have.

A page counts as painted when the X server shows its colour: each page has a
block of a colour of its own, so that nothing else is taken for it. The frame
buffer is read directly, so no viewer is asked and none is slowed down.
"""

import argparse
import mmap
import os
import shutil
import statistics
import struct
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
sys.path.insert(0, os.path.join(ROOT, "tests/viewer"))
from screen import GLib, Screen  # noqa: E402

PAGES = 2500
TIMEOUT_S = 60
WORDS = ("line curve layer brush canvas colour image export import print page "
         "tool menu dialog value angle width height style filter").split()


class FrameBuffer:
    """The pixels of an X server that was started with -fbdir."""

    def __init__(self, path):
        with open(path, "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        fields = struct.unpack(">25I", self.memory[:100])
        header, self.colours = fields[0], fields[19]
        self.start = header + self.colours * 12

    def shows(self, colour):
        """True when at least a block of the colour is there."""
        pixel = struct.pack("<I", colour)[:3]
        run = (pixel + b"\0") * 40
        opaque = (pixel + b"\xff") * 40
        data = self.memory
        return data.find(run, self.start) >= 0 or \
            data.find(opaque, self.start) >= 0


def colour_of(number):
    """Colours that no toolkit uses."""
    return 0xE01070 + number * 0x000B01


def page(number):
    text = " ".join(WORDS[(number * 7 + i * i) % len(WORDS)]
                    for i in range(300))
    return (f"<!DOCTYPE html><html><head><meta charset='utf-8'>"
            f"<title>Topic {number}</title></head><body>"
            f"<h1>Topic {number}</h1><table width='100%'><tr>"
            f"<td bgcolor='#{colour_of(number % 40):06x}' height='80'>&nbsp;"
            f"</td></tr></table><p>{text} unique{number}</p></body></html>")


def write_pages(folder):
    os.makedirs(folder)
    for number in range(PAGES):
        with open(f"{folder}/p{number}.html", "w") as file:
            file.write(page(number))


class BenchScreen(Screen):
    def __init__(self, viewer):
        super().__init__(viewer, size="1280x900x24")
        self.replace_display()

    def replace_display(self):
        """An X server whose frame buffer can be read."""
        folder = self.path("frame")
        os.makedirs(folder)
        read_end, write_end = os.pipe()
        self._processes.append(subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0",
             "1280x900x24", "-fbdir", folder, "-noreset", "-nolisten", "tcp"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL))
        os.close(write_end)
        with os.fdopen(read_end) as stream:
            self.environment["DISPLAY"] = ":" + stream.readline().strip()
        self.frame = FrameBuffer(folder + "/Xvfb_screen0")

    def wait_for(self, colour):
        deadline = time.monotonic() + TIMEOUT_S
        while not self.frame.shows(colour):
            if time.monotonic() > deadline:
                raise RuntimeError("the page never came")
            # The reading itself must not take the processors away.
            time.sleep(0.002)

    def run(self, arguments, **options):
        return subprocess.Popen(
            arguments, env={**self.environment, "GTK_A11Y": "none",
                            "NO_AT_BRIDGE": "1"},
            stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL, start_new_session=True, **options)


def descendants(of):
    children = {}
    for entry in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{entry}/stat") as file:
                parent = int(file.read().rsplit(")", 1)[1].split()[1])
        except OSError:
            continue
        children.setdefault(parent, []).append(int(entry))
    found, queue = [], [of]
    while queue:
        process = queue.pop()
        found.append(process)
        queue.extend(children.get(process, []))
    return found


def memory_mib(of):
    """Proportional set size: what is shared counts once."""
    total = 0
    for process in descendants(of):
        try:
            with open(f"/proc/{process}/smaps_rollup") as file:
                total += sum(int(line.split()[1]) for line in file
                             if line.startswith("Pss:"))
        except OSError:
            pass
    return total / 1024


class Ours:
    name = "this viewer"

    def __init__(self, screen, folder):
        self.screen, self.folder = screen, folder

    def url(self, number):
        return GLib.filename_to_uri(f"{self.folder}/p{number}.html", None)

    def start(self, number):
        self.process = self.screen.run(
            [self.screen.viewer, "HELP", "Bench", "en_US",
             f'"{self.url(number)}"'])

    def again(self, number):
        subprocess.run(
            [self.screen.viewer, "HELP", "Bench", "en_US",
             f'"{self.url(number)}"'], env=self.screen.environment, check=True)

    def stop(self):
        self.process.terminate()
        self.process.wait()


class Yelp(Ours):
    name = "yelp"

    def start(self, number):
        self.process = self.screen.run(["yelp", self.url(number)])

    def again(self, number):
        self.screen.run(["yelp", self.url(number)])


class Assistant(Ours):
    name = "assistant"

    def __init__(self, screen, folder):
        super().__init__(screen, folder)
        self.collection = screen.path("bench.qhc")
        files = "".join(f"<file>p{n}.html</file>" for n in range(PAGES))
        screen.write(f"{folder}/bench.qhp", f"""<?xml version="1.0"?>
<QtHelpProject version="1.0"><namespace>bench</namespace>
<virtualFolder>doc</virtualFolder><filterSection><toc>
<section title="Bench" ref="p0.html"/></toc><files>{files}</files>
</filterSection></QtHelpProject>""")
        screen.write(f"{folder}/bench.qhcp", """<?xml version="1.0"?>
<QHelpCollectionProject version="1.0"><docFiles><generate><file>
<input>bench.qhp</input><output>bench.qch</output></file></generate>
<register><file>bench.qch</file></register></docFiles>
</QHelpCollectionProject>""")
        subprocess.run(
            ["/usr/lib/qt6/libexec/qhelpgenerator", "bench.qhcp", "-o",
             self.collection], cwd=folder, check=True, capture_output=True,
            env={**screen.environment, "QT_QPA_PLATFORM": "offscreen"})

    def url(self, number):
        return f"qthelp://bench/doc/p{number}.html"

    def start(self, number):
        self.process = self.screen.run(
            ["/usr/lib/qt6/bin/assistant", "-collectionFile", self.collection,
             "-enableRemoteControl", "-showUrl", self.url(number)])

    def again(self, number):
        self.process.stdin.write(f"setSource {self.url(number)}\n".encode())
        self.process.stdin.flush()


def measure(screen, viewer, round_number):
    first, second = (round_number * 2) % 40, (round_number * 2 + 1) % 40
    began = time.monotonic()
    viewer.start(first)
    screen.wait_for(colour_of(first))
    cold = time.monotonic() - began
    # What it does after the page is there is done before it is asked again.
    time.sleep(2)
    memory = memory_mib(viewer.process.pid)
    began = time.monotonic()
    viewer.again(second)
    screen.wait_for(colour_of(second))
    again = time.monotonic() - began
    viewer.stop()
    return cold, again, memory


def measure_search(screen):
    """Milliseconds to the first hits: without an index, and with it."""
    cache = screen.path("home/.cache/velmohelp-viewer")
    shutil.rmtree(cache, ignore_errors=True)
    url = GLib.filename_to_uri(f"{screen.help}/bench/p0.html", None)
    screen.show(url, "Bench")
    figures = []
    for term, done in (("angle", lambda s: s["hits"] > 0),
                       ("unique17", lambda s: s["search-complete"]),
                       *((f"unique{number}", lambda s: s["search-complete"]
                          and s["contents"]) for number in range(18, 33))):
        began = time.monotonic()
        screen.bus.call_sync(
            "com.velmo.HelpViewer", "/com/velmo/HelpViewer",
            "com.velmo.HelpViewer1", "Show",
            GLib.Variant("(ssssa{sv})",
                         ("SEARCH", "Bench", "en_US", term, {})),
            None, 0, TIMEOUT_S * 1000, None)
        screen.wait(lambda s: s["search"] == term and s["hits"] and done(s),
                    "Bench")
        figures.append((time.monotonic() - began) * 1000)
    return figures


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build")
    parser.add_argument("--rounds", type=int, default=7)
    options = parser.parse_args()
    program = os.path.join(
        options.build,
        "viewer/lib/velmohelp-viewer/HelpViewer.app/bin/HelpViewer")
    screen = BenchScreen(program)
    try:
        folder = f"{screen.help}/bench"
        write_pages(folder)
        viewers = [Ours(screen, folder), Yelp(screen, folder),
                   Assistant(screen, folder)]
        readings = {viewer.name: [] for viewer in viewers}
        for number in range(options.rounds + 1):
            for viewer in viewers[number % 3:] + viewers[:number % 3]:
                reading = measure(screen, viewer, number)
                # The first round fills the caches.
                if number:
                    readings[viewer.name].append(reading)
        print("| viewer | cold start | further request | memory |")
        print("|---|---|---|---|")
        for name, rows in readings.items():
            cold, again, memory = map(statistics.median, zip(*rows))
            print(f"| {name} | {cold * 1000:.0f} ms | {again * 1000:.0f} ms "
                  f"| {memory:.0f} MiB |")
        first, second, _, *third = measure_search(screen)
        print(f"\nFirst search over {PAGES} pages, index being built: "
              f"{first:.0f} ms to the first hits, {second:.0f} ms more to a "
              f"complete answer of a rare word.\n"
              f"With the index: {statistics.median(third):.0f} ms.")
    finally:
        screen.close()


if __name__ == "__main__":
    main()
