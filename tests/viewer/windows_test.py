"""The viewer's windows on a screen of their own, with the real web engine.

Called with the viewer's program and the script host, and then as any unittest program.
"""

import http.server
import os
import re
import select
import shutil
import signal
import subprocess
import sys
import threading
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from screen import GLib, Screen, TIMEOUT_S, VIEWER_IDS  # noqa: E402

VIEWER = sys.argv.pop(1)
# The script host, for tests of the whole way; "" when there is none.
LXHOST = sys.argv.pop(1)
# Where a build with a world of its own looks for the administrator's files.
SYSCONF = "../../../../../../world/etc/velmo"

HOME = """<!DOCTYPE html><meta charset=utf-8><title>Sketch help</title><ul>
<li><a href=lines.html>Lines</a><ul>
  <li><a href=lines.html#thick>Thick lines</a></ul>
<li><a href=curves.html>Curves</a>
<li>More<ul>""" + "".join(
    f"<li><a href=p{i}.html>Page {i}</a>" for i in range(8)) + "</ul></ul>"

LINES = ("<!DOCTYPE html><meta charset=utf-8><title>Lines</title><h1>Lines</h1>"
         + "<p>Filler.</p>" * 200
         + "<h2 id=thick>Thick lines</h2><p>Draw with the marker.</p>"
         + "<p>Filler.</p>" * 200
         + "<form><input name=field></form>" + "<p>Filler.</p>" * 200)

CURVES = ("<!DOCTYPE html><meta charset=utf-8><title>Curves</title>"
          "<p>Curves bend. A marker draws curves, too.</p>")


class Windows(unittest.TestCase):
    """One screen for the tests of a class; the windows stay open."""

    environment = {}

    @classmethod
    def setUpClass(cls):
        cls.screen = Screen(VIEWER, **cls.environment)
        cls.addClassCleanup(cls.screen.close)
        cls.write_help()

    @classmethod
    def write_help(cls):
        folder = "en_US/Sketch/"
        cls.screen.page(folder + "helpmap.txt", "VX_HOME\tindex.html\n")
        cls.home = cls.screen.page(folder + "index.html", HOME)
        cls.lines = cls.screen.page(folder + "lines.html", LINES)
        cls.curves = cls.screen.page(folder + "curves.html", CURVES)

    def page(self, name, text):
        return self.screen.page("en_US/Sketch/" + name, text)

    def problem(self, url, product="Sketch"):
        self.screen.start("HELP", product, "en_US", f'"{url}"')
        name = url.rsplit("/", 1)[1]
        return self.screen.wait(
            lambda s: s.get("problem") and s["uri"].endswith(name),
            product)["problem"]


class Anchors(Windows):
    def assert_at_top(self, state, name):
        self.assertEqual((state["anchor"], state["anchor-found"]), (name, True))
        self.assertGreater(state["anchor-top"], -1)
        self.assertLess(state["anchor-top"], 2)

    def test_a_page_scrolls_to_the_id_that_the_client_names(self):
        _, state = self.screen.show(self.lines + "?nameAnchor=thick")
        self.assert_at_top(state, "thick")

    def test_a_page_scrolls_to_a_name(self):
        _, state = self.screen.show(self.lines + "?nameAnchor=field")
        self.assert_at_top(state, "field")

    def test_a_page_scrolls_to_a_fragment(self):
        _, state = self.screen.show(self.lines + "#thick", verb="URL")
        self.assert_at_top(state, "thick")

    def test_a_page_without_the_anchor_is_shown_from_its_top(self):
        _, state = self.screen.show(self.lines + "?nameAnchor=nowhere")
        self.assertFalse(state["anchor-found"])
        self.assertEqual(state["title"], "Lines")

    def test_a_header_that_stays_does_not_cover_the_anchor(self):
        page = self.page("sticky.html", LINES.replace(
            "<h1>", "<h1 style='position:sticky;top:0;height:80px'>"))
        _, state = self.screen.show(page + "?nameAnchor=thick")
        self.assertGreater(state["anchor-top"], 79)
        self.assertLess(state["anchor-top"], 84)


class Requests(Windows):
    def test_a_page_id_without_a_page_shows_the_help_and_searches_it(self):
        self.screen.start("HELP", "Sketch", "en_US", ".tool:ThickMarker")
        state = self.screen.wait(
            lambda s: s.get("search-complete") and s["title"])
        self.assertEqual(state["search"], "tool Thick Marker")
        self.assertEqual(state["title"], "Sketch help")
        self.assertIn(".tool:ThickMarker", state["notice"])
        self.assertGreater(state["hits"], 0)

    def test_a_search_comes_percent_encoded(self):
        self.screen.start("SEARCH", "Sketch", "en_US", "curves%20bend")
        state = self.screen.wait(
            lambda s: s.get("search") == "curves bend" and s["hits"])
        self.assertEqual(state["hits"], 1)

    def test_contents_come_from_the_home_page(self):
        self.screen.show(self.lines)
        state = self.screen.wait(lambda s: s["contents"])
        self.assertEqual(state["contents"], 3)

    def test_a_product_without_help_says_so(self):
        screen = Screen(VIEWER)
        self.addCleanup(screen.close)
        screen.start("HELP", "Nothing", "en_US", "some-page")
        state = screen.wait(lambda s: s.get("problem"), "Nothing")
        self.assertIn("Nothing", state["problem"])

    def test_bytes_that_are_not_utf8_do_no_harm(self):
        process = subprocess.Popen(
            [VIEWER.encode(), b"HELP", b"Sketch", b"en_US", b"\xff\xfe id"],
            env=self.screen.environment)
        self.screen._started.append(process)
        state = self.screen.wait(lambda s: s.get("notice"))
        self.assertIn("\ufffd", state["notice"])


class OneWindow(Windows):
    def test_a_second_request_shows_in_the_same_window(self):
        first, _ = self.screen.show(self.lines)
        second, state = self.screen.show(self.curves)
        # It lives until the window has taken the request, and no longer.
        self.assertEqual(second.wait(60), 0)
        self.assertIsNone(first.poll())
        self.assertEqual(state["title"], "Curves")
        self.assertEqual(len(self.screen.windows()), 1)

    def test_another_product_has_a_window_of_its_own(self):
        self.screen.show(self.lines)
        before = len(self.screen.windows())
        self.screen.show(self.curves, product="Other")
        self.assertEqual(len(self.screen.windows()), before + 1)
        self.assertEqual(self.screen.state("Sketch")["title"], "Lines")

    def test_the_window_is_raised_with_the_token_of_the_request(self):
        self.screen.show(self.lines)
        self.screen.show(self.curves,
                         XDG_ACTIVATION_TOKEN="velmo-token_TIME1")
        tree = subprocess.run(
            ["xwininfo", "-root", "-tree"], env=self.screen.environment,
            capture_output=True, text=True, check=True).stdout
        windows = re.findall(r"(0x[0-9a-f]+) \"", tree)
        properties = [subprocess.run(
            ["xprop", "-id", window, "_NET_STARTUP_ID"], capture_output=True,
            text=True, env=self.screen.environment).stdout
            for window in windows]
        self.assertIn("velmo-token_TIME1", "".join(properties))

    def test_a_stopped_session_bus_still_shows_the_page(self):
        screen = Screen(VIEWER)
        self.addCleanup(screen.close)
        page = screen.page("help/a.html", CURVES)
        process = screen.start("HELP", "Sketch", "en_US", f'"{page}"',
                               DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere")
        tree = ""
        while "Curves" not in tree and process.poll() is None:
            tree = subprocess.run(
                ["xwininfo", "-root", "-tree"], env=screen.environment,
                capture_output=True, text=True, check=True).stdout
        self.assertIn("Curves", tree)


class Commands(Windows):
    def test_back_and_forward_lead_through_the_pages(self):
        self.screen.show(self.lines)
        self.screen.show(self.curves)
        self.screen.command("back")
        self.screen.wait(lambda s: s["title"] == "Lines")
        self.screen.command("forward")
        self.screen.wait(lambda s: s["title"] == "Curves")

    def test_home_leads_to_the_home_page(self):
        self.screen.show(self.lines)
        self.screen.command("home")
        self.screen.wait(lambda s: s["title"] == "Sketch help")

    def test_zoom_is_remembered_by_the_next_viewer(self):
        process, _ = self.screen.show(self.lines)
        self.screen.command("zoom-in")
        zoom = self.screen.wait(lambda s: s["zoom"] > 1)["zoom"]
        self.screen.command("app.quit")
        for started in self.screen._started:
            self.assertEqual(started.wait(60), 0)
        _, state = self.screen.show(self.lines)
        self.assertAlmostEqual(state["zoom"], zoom)
        self.screen.command("zoom-reset")
        self.screen.wait(lambda s: s["zoom"] == 1)

    def test_each_command_has_an_action(self):
        self.screen.show(self.lines)
        window = self.screen.windows()[0]
        for name in ("back", "forward", "home", "reload", "search", "sidebar",
                     "find", "find-next", "find-previous", "zoom-in",
                     "zoom-out", "zoom-reset", "print", "save-pdf",
                     "copy-link", "open-in-browser", "preferences",
                     "show-help-overlay", "close"):
            self.screen.action(name, window)


class Keyboard(Windows):
    """Keys as a person presses them."""

    def press(self, *words):
        self.screen.focus("--class", "HelpViewer")
        self.screen.press(*words)

    def test_a_search_result_opens_with_its_hits_marked(self):
        self.screen.show(self.lines)
        self.press("key", "ctrl+k", "type", "bend marker")
        self.screen.wait(
            lambda s: s["search"] == "bend marker" and s["hits"] == 1)
        self.press("key", "Return")
        state = self.screen.wait(lambda s: s["highlights"])
        self.assertEqual((state["title"], state["highlights"]), ("Curves", 2))

    def test_find_counts_the_hits_in_the_page(self):
        self.screen.show(self.lines)
        self.press("key", "ctrl+f")
        self.screen.wait(lambda s: s["finding"])
        self.press("type", "filler")
        self.screen.wait(lambda s: s["matches"] == 600)

    def test_zoom_follows_its_keys(self):
        self.screen.show(self.lines)
        self.press("key", "ctrl+plus")
        self.screen.wait(lambda s: s["zoom"] > 1)
        self.press("key", "ctrl+0")
        self.screen.wait(lambda s: s["zoom"] == 1)


class Output(Windows):
    """What leaves the viewer: links, files, addresses."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.opened = cls.screen.set_up_browser()
        os.mkfifo(cls.opened)
        # Open for writing too, so that it never ends.
        cls.browser = os.open(cls.opened, os.O_RDWR | os.O_NONBLOCK)
        cls.addClassCleanup(os.close, cls.browser)

    def next_in_browser(self):
        """The next address that the browser gets."""
        ready, _, _ = select.select([self.browser], [], [], TIMEOUT_S)
        self.assertTrue(ready, "The browser was not started")
        return os.read(self.browser, 4096).decode().strip()

    def test_the_browser_gets_the_pages_file_address(self):
        self.screen.show(self.curves)
        self.screen.command("open-in-browser")
        self.assertEqual(self.next_in_browser(), self.curves)

    def test_a_link_to_a_web_site_opens_in_the_browser_when_clicked(self):
        self.screen.show(self.page(
            "site.html", "<title>Site</title><a href=https://example.invalid/a "
            "style='position:fixed;inset:0'>away</a>"))
        window = self.screen.focus("--class", "HelpViewer")
        self.screen.press("mousemove", "--window", window, "600", "400",
                          "click", "1")
        self.assertEqual(self.next_in_browser(), "https://example.invalid/a")
        self.assertEqual(self.screen.state()["title"], "Site")

    def test_a_copied_link_can_be_pasted(self):
        self.screen.show(self.curves)
        self.screen.command("copy-link")
        self.screen.focus("--class", "HelpViewer")
        self.screen.press("key", "ctrl+k", "key", "ctrl+v")
        self.screen.wait(lambda s: s["search"] == self.curves)

    def test_a_page_is_saved_as_a_pdf_file(self):
        path = self.screen.path("home/page.pdf")
        self.screen.show(self.curves)
        self.screen.command("save-pdf")
        self.screen.focus("--name", "Save as PDF")
        self.screen.press("key", "ctrl+a", "type", path)
        self.screen.press("key", "Return")
        self.screen.wait(lambda s: s["toast"] == "Saved as PDF")
        with open(path, "rb") as file:
            self.assertEqual(file.read(5), b"%PDF-")

    def test_a_pdf_file_that_cannot_be_written_says_so(self):
        self.screen.show(self.curves)
        self.screen.command("save-pdf")
        self.screen.focus("--name", "Save as PDF")
        self.screen.press("key", "ctrl+a", "type", "/proc/page.pdf")
        self.screen.press("key", "Return")
        self.screen.wait(lambda s: "could not be saved" in s["toast"])

    def test_the_keys_are_shown_in_a_window(self):
        self.screen.show(self.curves)
        self.screen.command("show-help-overlay")
        self.screen.focus("--name", "Keyboard shortcuts")


class Preferences(Windows):
    def test_the_browser_preference_is_what_the_client_reads(self):
        self.screen.show(self.lines)
        self.screen.command("app.open-help-in-browser")
        self.assertEqual(self.screen.action("open-help-in-browser"),
                         (True, True))
        with open(self.screen.store + "/klh-pref.xml") as file:
            self.assertIn('accessibleMode="TRUE"', file.read())

    def test_the_online_preference_is_what_the_client_reads(self):
        self.screen.show(self.lines)
        self.screen.command("app.use-online-help")
        self.assertEqual(self.screen.action("use-online-help"), (True, False))
        path = "home/.config/velmo/com.velmo.VelmoOnlineHelp.conf"
        with open(self.screen.path(path)) as file:
            self.assertIn("VelmoOnlineDefault=0", file.read())
        page = "http://127.0.0.1:9/help.html"
        self.assertIn("switched off", self.problem(page))


class BadFiles(Windows):
    def test_a_missing_page_says_so(self):
        self.assertIn("missing", self.problem(self.curves + "x.html"))

    def test_a_huge_page_says_so(self):
        url = self.page("huge.html", "")
        os.truncate(f"{self.screen.help}/en_US/Sketch/huge.html", 100 << 20)
        self.assertIn("too large", self.problem(url))

    def test_a_binary_page_says_so(self):
        self.assertIn("binary",
                      self.problem(self.page("binary.html", b"\x7fELF\0\1")))

    def test_a_page_that_is_not_utf8_says_so(self):
        self.assertIn("UTF-8",
                      self.problem(self.page("latin.html", b"<p>\xe4\xf6</p>")))

    def test_a_page_that_leads_out_of_the_folder_says_so(self):
        os.symlink("/etc/passwd",
                   f"{self.screen.help}/en_US/Sketch/link.html")
        url = self.curves.replace("curves", "link")
        self.assertIn("outside", self.problem(url))

    def test_a_file_of_another_kind_says_so(self):
        self.assertIn("kind", self.problem(self.page("a.desktop", "x")))

    def test_a_broken_index_is_built_again(self):
        self.screen.start("SEARCH", "Sketch", "en_US", "curves")
        self.screen.wait(lambda s: s.get("search-complete"))
        self.screen.command("app.quit")
        for started in self.screen._started:
            started.wait(60)
        cache = self.screen.path("home/.cache/velmohelp-viewer")
        for name in os.listdir(cache):
            with open(os.path.join(cache, name), "r+b") as file:
                file.write(b"broken" * 100)
        self.screen.start("SEARCH", "Sketch", "en_US", "curves")
        state = self.screen.wait(lambda s: s.get("search-complete"))
        self.assertGreater(state["hits"], 0)


class VanishedFolder(Windows):
    def test_a_folder_that_vanishes_says_so(self):
        self.screen.show(self.lines)
        os.rename(self.screen.help, self.screen.help + ".gone")
        self.assertIn("missing", self.problem(self.curves))


def web_processes(of):
    """The web engine's page processes below a process."""
    children = {}
    for entry in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{entry}/stat") as file:
                parent = int(file.read().rsplit(")", 1)[1].split()[1])
            with open(f"/proc/{entry}/cmdline") as file:
                command = file.read()
        except OSError:
            continue
        children.setdefault(parent, []).append((int(entry), command))
    found, queue = [], [of]
    while queue:
        for child, command in children.get(queue.pop(), []):
            queue.append(child)
            if command.split("\0")[0].endswith("WebKitWebProcess"):
                found.append(child)
    return found


class Engine(Windows):
    # What would switch the sandbox off has no effect.
    environment = {"WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS": "1"}

    def test_a_crashed_page_is_loaded_again(self):
        process, before = self.screen.show(self.lines)
        for page in web_processes(process.pid):
            os.kill(page, signal.SIGKILL)
        state = self.screen.wait(
            lambda s: s.get("settled", 0) > before["settled"])
        self.assertEqual(state["title"], "Lines")

    @unittest.skipIf(os.path.exists("/.flatpak-info"),
                     "Inside a Flatpak the sandbox is Flatpak's own")
    def test_pages_run_in_the_sandbox(self):
        self.screen.show(self.lines)
        first = self.screen._started[0]
        pages = web_processes(first.pid)
        self.assertTrue(pages)
        for page in pages:
            for namespace in ("mnt", "net"):
                self.assertNotEqual(
                    os.readlink(f"/proc/{page}/ns/{namespace}"),
                    os.readlink(f"/proc/{first.pid}/ns/{namespace}"))


class CountingServer:
    """A web server on the loopback interface that counts its connections."""

    def __init__(self):
        self.connections = 0
        outer = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def setup(self):
                outer.connections += 1
                super().setup()

            def do_GET(self):
                body = (b"<title>Online</title><p>Online page</p>"
                        b"<script src=/script.js></script>")
                self.send_response(200)
                self.send_header("Content-Type", "text/html")
                self.send_header("Content-Length", str(len(body)))
                self.end_headers()
                self.wfile.write(body)

            def log_message(self, *_):
                pass

        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.port = self.server.server_address[1]
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def close(self):
        self.server.shutdown()
        self.server.server_close()


class Confinement(Windows):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.server = CountingServer()
        cls.addClassCleanup(cls.server.close)
        cls.opened = cls.screen.set_up_browser()

    def outcome(self, script, head="", body="", name="probe.html"):
        """The title that a page's script sets when it has tried everything."""
        url = self.page(name, f"""<!DOCTYPE html><meta charset=utf-8>
<title>waiting</title>{head}<body>{body}<script type=module>
const done = text => document.title = 'done ' + text;
try {{ {script} }} catch (error) {{ done('failed'); }}
</script>""")
        before = self.screen.state().get("requests", 0)
        self.screen.start("HELP", "Sketch", "en_US", f'"{url}"')
        state = self.screen.wait(
            lambda s: s.get("title", "").startswith("done ")
            and name in s["uri"] and s["shown"] > before)
        return state["title"][len("done "):]

    def test_a_local_page_reaches_no_network(self):
        at = f"http://127.0.0.1:{self.server.port}"
        head = f"""<link rel=stylesheet href={at}/a.css>
<link rel=preconnect href={at}><link rel=dns-prefetch href={at}>
<link rel=prefetch href={at}/b><link rel=preload as=image href={at}/p.png>
<script src={at}/c.js></script><style>@import '{at}/d.css';
body {{ background: url({at}/e.png) }}
@font-face {{ font-family: f; src: url({at}/f.woff) }}
p {{ font-family: f }}</style>
<meta http-equiv=refresh content="3600; url={at}/refresh">"""
        body = f"""<p>text</p><img src={at}/g.png srcset="{at}/h.png 2x">
<iframe src={at}/i.html></iframe><object data={at}/j></object>
<embed src={at}/k><video src={at}/l.mp4 autoplay></video>
<svg><image href="{at}/m.svg"/></svg>
<iframe name=target></iframe>
<form id=form action={at}/n target=target><input name=a value=b></form>"""
        script = f"""
document.getElementById('form').submit();
navigator.sendBeacon?.('{at}/o', 'x');
window.open('{at}/p');
const socket = new Promise(resolve => {{
  try {{
    const s = new WebSocket('ws://127.0.0.1:{self.server.port}/q');
    s.onopen = () => resolve('open'); s.onerror = () => resolve('closed');
  }} catch {{ resolve('closed'); }}
}});
const request = new Promise(resolve => {{
  const r = new XMLHttpRequest(); r.onload = () => resolve('open');
  r.onerror = () => resolve('closed');
  try {{ r.open('GET', '{at}/r'); r.send(); }} catch {{ resolve('closed'); }}
}});
const fetched = fetch('{at}/s', {{mode: 'no-cors'}})
    .then(() => 'open', () => 'closed');
const worker = import('{at}/t.js').then(() => 'open', () => 'closed');
const all = await Promise.all([socket, request, fetched, worker]);
done(all.join(' '));"""
        self.assertEqual(self.outcome(script, head, body, "network.html"),
                         "closed closed closed closed")
        # Whatever was still under way has been tried once the next page is
        # there.
        self.screen.show(self.curves)
        self.assertEqual(self.server.connections, 0)

    def test_the_counting_server_counts(self):
        # Else the test above could not fail.
        server = CountingServer()
        self.addCleanup(server.close)
        url = f"http://127.0.0.1:{server.port}/page.html"
        self.screen.show(url, verb="URL")
        self.assertGreater(server.connections, 0)

    def test_a_local_page_reads_no_file_outside_its_folder(self):
        self.screen.write("secret.html", "<p>secret")
        other = "en_US/Other/"
        self.screen.page(other + "helpmap.txt", "VX_HOME\ta.html\n")
        self.screen.page(other + "a.html", "<p>secret")
        script = f"""
const tries = ['file://{self.screen.path("secret.html")}', 'file:///etc/passwd',
  '../../../secret.html', '/etc/passwd', '%2e%2e/%2e%2e/%2e%2e/secret.html',
  'velmohelp://downloaded/en_US/Other/a.html',
  'velmohelp://downloaded/../../../../secret.html',
  'velmohelp://installed/etc/passwd'];
const results = await Promise.all(tries.map(
    at => fetch(at).then(r => r.text()).then(() => 'read', () => 'refused')));
done(results.join(' '));"""
        self.assertEqual(self.outcome(script, name="files.html"),
                         " ".join(["refused"] * 8))

    def test_a_page_reads_its_own_folder(self):
        # Else the test above could not fail.
        self.assertEqual(
            self.outcome("done((await (await fetch('curves.html')).text())"
                         ".includes('bend') ? 'read' : 'odd');",
                         name="own.html"), "read")

    def test_a_page_runs_its_own_scripts_and_none_of_another_folder(self):
        self.page("own.js", "globalThis.own = 1;")
        self.screen.page("en_US/Scripts/helpmap.txt", "VX_HOME\ta.html\n")
        self.screen.page("en_US/Scripts/a.html", "")
        self.screen.page("en_US/Scripts/other.js", "globalThis.other = 1;")
        self.assertEqual(
            self.outcome("done(`${globalThis.own} ${globalThis.other}`);",
                         head="<script src=own.js></script>"
                              "<script src=../Scripts/other.js></script>",
                         name="scripts.html"), "1 undefined")

    def test_a_page_opens_no_program_no_download_and_no_window(self):
        before = len(self.screen.windows())
        self.page("data.bin", b"\0")
        script = """
const opened = window.open('curves.html');
alert('window'); confirm('window'); prompt('window');
for (const href of ['mailto:a@b', 'steam://run/1', 'https://example.invalid/',
                    'data.bin', 'blob:x']) {
  const link = document.createElement('a');
  link.href = href; link.download = 'x'; link.target = '_blank';
  document.body.append(link); link.click();
}
done(String(opened));"""
        self.assertEqual(self.outcome(script, name="programs.html"), "null")
        self.screen.show(self.curves)
        self.assertEqual(len(self.screen.windows()), before)
        self.assertFalse(os.path.exists(self.opened))
        downloads = [name for _, _, names in os.walk(self.screen.path("home"))
                     for name in names if name.startswith(("x", "data"))
                     and not name.endswith((".bin", ".html"))]
        self.assertEqual(downloads, [])

    def test_a_page_outside_the_help_runs_no_script(self):
        path = self.screen.write(
            "alone/a.html",
            "<title>quiet</title><script>document.title='loud'</script>")
        _, state = self.screen.show(GLib.filename_to_uri(path, None),
                                    verb="URL")
        self.assertEqual(state["title"], "quiet")


class Accessible(Windows):
    """Windows as a screen reader finds them."""

    environment = {"GTK_A11Y": "atspi"}

    def objects(self):
        script = os.path.join(os.path.dirname(os.path.abspath(__file__)),
                              "accessible.py")
        return subprocess.run(
            ["/usr/bin/python3", script], env=self.screen.environment,
            capture_output=True, text=True, check=True).stdout

    def find(self, *texts):
        """Asks until all texts are there."""
        for _ in range(60):
            objects = self.objects()
            if all(text in objects for text in texts):
                return
        self.fail(f"Not all of {texts} in:\n{objects}")


class ScreenReader(Accessible):
    def test_it_reads_the_page(self):
        self.screen.show(self.lines)
        self.find("Draw with the marker.")

    def test_it_reads_commands_contents_and_results(self):
        self.screen.show(self.lines)
        self.screen.wait(lambda s: s["contents"])
        self.find("\tBack\t", "\tForward\t", "\tHome\t", "\tMenu\t",
                  "\tSearch this help\t", "\tContents\t", "\tLines\t",
                  "\tCurves\t")
        self.screen.start("SEARCH", "Sketch", "en_US", "bend")
        self.screen.wait(lambda s: s["search"] == "bend" and s["hits"])
        self.find("\tSearch results\t", "Curves bend")


@unittest.skipUnless(os.geteuid() == 0, "Only root puts up a lock")
class Administrator(Accessible):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        # Below the root folder of the test's own: no other program sees it.
        folder = os.path.abspath(os.path.join(VIEWER, SYSCONF))
        os.makedirs(folder, exist_ok=True)
        subprocess.run(["mount", "-t", "tmpfs", "none", folder], check=True)
        cls.addClassCleanup(subprocess.run, ["umount", folder], check=True)
        cls.screen.write(f"{folder}/com.velmo.VelmoOnlineHelp.conf",
                         "[Preferences]\nVelmoOnlineDefault=0\n")

    def test_a_lock_is_shown_and_holds(self):
        self.screen.show(self.lines)
        self.assertEqual(self.screen.action("use-online-help"), (False, False))
        self.screen.command("preferences")
        self.find("Your administrator has switched online help off.")


class German(Windows):
    environment = {"LANGUAGE": "de", "LANG": "C.UTF-8"}

    def test_it_speaks_german(self):
        self.assertIn("fehlt", self.problem(self.curves + "x.html"))


class Client(unittest.TestCase):
    """From a host's script to the screen: client, tool, viewer."""

    def setUp(self):
        if not LXHOST:
            self.skipTest("The script host is not built")
        self.screen = screen = Screen(VIEWER)
        self.addCleanup(screen.close)
        screen.set_up_browser()
        prefix = os.path.abspath(os.path.join(VIEWER, "../../../.."))
        os.makedirs(screen.path("world/bin"))
        os.makedirs(screen.path("world/Frameworks"))
        name = "com.velmo.vxclientframework.framework"
        os.symlink(f"{prefix}/{name}", screen.path(f"world/Frameworks/{name}"))
        shutil.copy(LXHOST, screen.path("world/bin/lxhost"))
        screen.write(
            "world/bin/lxhost.resources/help/en_US/Sketch.helpcfg",
            '<c id="en_US_Sketch" path="s" baseUrl="http://localhost/">'
            '<d path="en_US/Sketch" contextSensitivity="yes"/></c>')
        screen.write("home/.config/velmo/com.velmo.VelmoOnlineHelp.conf",
                     "[Preferences]\nVelmoOnlineDefault=0\n")
        screen.page("en_US/Sketch/helpmap.txt",
                    "VX_HOME\tindex.html\nlines\tlines.html#thick\n")
        screen.page("en_US/Sketch/index.html", HOME)
        screen.page("en_US/Sketch/lines.html", LINES)

    def run_script(self, script):
        path = self.screen.write("script.lua", script)
        # The viewer keeps the host's standard error open.
        return subprocess.run(
            [self.screen.path("world/bin/lxhost"), path], check=True,
            env=self.screen.environment, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            text=True).stdout.split()

    def test_a_page_id_of_a_host_ends_at_its_anchor_on_the_screen(self):
        codes = self.run_script("""
print(LxHelpWorker.initializeClient("Sketch", "en_US").value)
print(LxHelp.displayClientPage("lines").value)""")
        self.assertEqual(codes, ["0", "0"])
        state = self.screen.wait(lambda s: s.get("settled"))
        self.assertEqual((state["title"], state["anchor"],
                          state["anchor-found"]), ("Lines", "thick", True))
        self.screen.command("app.quit")
        while self.screen.state():
            pass

    def test_the_browser_preference_keeps_the_viewer_away(self):
        self.screen.write(self.screen.store + "/klh-pref.xml",
                          '<p accessibleMode="TRUE"/>')
        codes = self.run_script("""
LxHelpWorker.initializeClient("Sketch", "en_US")
print(LxHelp.displayClientPage("lines").value)""")
        self.assertEqual(codes, ["0"])
        self.assertEqual(self.screen.state(), {})

    def test_without_a_display_the_client_does_not_start_the_viewer(self):
        del self.screen.environment["DISPLAY"]
        codes = self.run_script("""
LxHelpWorker.initializeClient("Sketch", "en_US")
print(LxHelp.displayClientPage("lines").value)""")
        self.assertEqual(codes, ["0"])
        self.assertEqual(self.screen.state(), {})


class Tool(unittest.TestCase):
    """The client's questions, asked as the client asks them."""

    def ask(self, *arguments, **environment):
        prefix = os.path.abspath(os.path.join(VIEWER, "../../../.."))
        tool = (f"{prefix}/com.velmo.vxclientframework.framework/"
                "Versions/A/Resources/QTV")
        result = subprocess.run([tool, *arguments], env=environment,
                                capture_output=True, text=True)
        return result.returncode, result.stdout

    def test_the_runtime_is_there_with_a_display_only(self):
        for environment, status in (({"DISPLAY": ":0"}, 0),
                                    ({"WAYLAND_DISPLAY": "wayland-0"}, 0),
                                    ({"DISPLAY": ""}, 1), ({}, 1)):
            self.assertEqual(self.ask("-isRuntimeInstalled", **environment),
                             (status, ""), environment)

    def test_this_viewer_alone_is_installed(self):
        ids = VIEWER_IDS.split(".", 1)
        self.assertEqual(self.ask("-isAppInstalled", *ids), (0, ""))
        for other in (("", ""), ("klh", ""), ("KLH", ids[1]),
                      ("reader", "example.1")):
            self.assertEqual(self.ask("-isAppInstalled", *other), (1, ""))

    def test_the_location_is_the_application_folder(self):
        folder = os.path.realpath(os.path.join(VIEWER, "../.."))
        self.assertEqual(self.ask("-appLocation", *VIEWER_IDS.split(".", 1)),
                         (0, folder + "\n"))

    def test_wrong_questions_have_no_answer(self):
        for words in ((), ("-isAppInstalled",), ("-appLocation", "klh"),
                      ("-isRuntimeInstalled", "x"), ("-other", "a", "b")):
            self.assertEqual(self.ask(*words), (2, ""))


if __name__ == "__main__":
    unittest.main()
