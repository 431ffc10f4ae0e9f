"""The Python package over the built library. Called with the repository's
folder, and then as any unittest program."""

import asyncio
import gc
import itertools
import os
import sys
import unittest

SOURCE = sys.argv.pop(1)
sys.path.insert(0, os.path.join(SOURCE, "python"))

import velmohelp  # noqa: E402
from velmohelp import (  # noqa: E402
    AsyncClient, Client, DisplayPageReturnCode, InitReturnCode,
    OnlineStatusReturnCode, OpenUrlReturnCode, SearchReturnCode, Target)
from world import World  # noqa: E402

PAGE = "https://localhost/page"


class InAWorld(unittest.TestCase):
    """Each test has a world of its own, and its environment. So has its product
    a name of its own: the library still knows the one of the test before."""

    client_type = Client
    numbers = itertools.count()

    def setUp(self):
        self.world = World(f"Foo{next(self.numbers)}")
        self.addCleanup(self.world.close)
        saved = dict(os.environ)
        self.addCleanup(os.environ.update, saved)
        self.addCleanup(os.environ.clear)
        os.environ.update(self.world.environment)

    def new_client(self):
        return self.client_type(self.world.product, "en_US",
                                host=self.world.host)


def without_viewer(world):
    world.install_viewer(is_installed=False)


def without_browser(world):
    world.remove_browser()


def without_content(world):
    world.remove(world.content)


def without_config(world):
    world.remove(world.config())


def with_an_invalid_config(world):
    world.configure("nothing")


def with_a_broken_viewer(world):
    world.write("Viewer.app/bin/Viewer", "no program", 0o755)


def online(world):
    world.allow_online(True)


INITIALISATIONS = [
    ("a configuration", [], "SUCCESS"),
    ("no configuration", [without_config], "MISSING_CONFIG"),
    ("an invalid one", [with_an_invalid_config], "INVALID_CONFIG"),
]

# What is changed before and after the initialisation; the request; its result.
REQUESTS = [
    ("a page in the viewer", [], [], "display", "intro", "SUCCESS"),
    ("a page in the browser", [without_viewer], [], "display", "intro",
     "SUCCESS"),
    ("a viewer that is not a program", [with_a_broken_viewer], [], "display",
     "intro", "HELP_APP_LAUNCH_FAILURE"),
    ("no browser", [without_viewer, without_browser], [], "display", "intro",
     "BROWSER_LAUNCH_FAILURE"),
    ("an empty page id", [], [], "display", "", "INVALID_ARGUMENT"),
    ("a configuration that has gone", [], [without_config], "display", "intro",
     "MISSING_CONFIG"),
    ("one that has become invalid", [], [with_an_invalid_config], "display",
     "intro", "INVALID_CONFIG"),
    ("no configuration", [without_config], [], "display", "intro",
     "INVALID_INITIALIZATION"),
    ("no page", [without_viewer, without_content], [], "display", "intro",
     "PAGEID_DOES_NOT_EXIST"),
    ("the display of a URL without a configuration", [], [without_config],
     "display", PAGE, "UNEXPECTED_RESULT"),
    ("a URL", [], [], "open_url", PAGE, "SUCCESS"),
    ("a URL and no browser", [without_viewer, without_browser], [], "open_url",
     PAGE, "BROWSER_LAUNCH_FAILURE"),
    ("a URL and a broken viewer", [with_a_broken_viewer], [], "open_url", PAGE,
     "HELP_APP_LAUNCH_FAILURE"),
    ("no URL", [], [], "open_url", "page", "INVALID_ARGUMENT"),
    ("a URL and a configuration that has gone", [], [without_config],
     "open_url", PAGE, "MISSING_CONFIG"),
    ("a URL and one that has become invalid", [], [with_an_invalid_config],
     "open_url", PAGE, "INVALID_CONFIG"),
    ("a URL and no configuration", [without_config], [], "open_url", PAGE,
     "INVALID_INITIALIZATION"),
    ("a search", [], [], "search", "lines", "SUCCESS"),
    ("a search and a broken viewer", [with_a_broken_viewer], [], "search",
     "lines", "LAUNCH_FAILURE"),
    ("an empty search", [], [], "search", "", "INVALID_ARGUMENT"),
    ("a search without a configuration", [without_config], [], "search",
     "lines", "MISSING_CONFIG"),
    ("a search with an invalid one", [with_an_invalid_config], [], "search",
     "lines", "INVALID_CONFIG"),
    ("a search without a page", [without_viewer], [], "search", "lines",
     "NO_LOCAL_PAGE"),
    ("an online search without a page", [without_viewer, online], [], "search",
     "lines", "NO_ONLINE_PAGE"),
]

STATUS = [
    ("online help", [online], "ONLINE"),
    ("online help that is switched off", [], "OFFLINE"),
    ("no configuration", [without_config], "NOT_INITIALIZED"),
]


class Results(InAWorld):
    def change(self, changes):
        for change in changes:
            change(self.world)

    def in_turn(self, rows):
        """Each row in a world of its own."""
        for sentence, *row in rows:
            with self.subTest(sentence):
                self.setUp()
                yield row
                self.doCleanups()

    def test_an_initialisation(self):
        for changes, result in self.in_turn(INITIALISATIONS):
            self.change(changes)
            self.assertIs(self.new_client().initialise(),
                          InitReturnCode[result])

    def test_a_request(self):
        for before, after, name, text, result in self.in_turn(REQUESTS):
            self.change(before)
            client = self.new_client()
            client.initialise()
            self.change(after)
            code = getattr(client, name)(text)
            self.assertEqual(code.name, result)
            if code == 0:
                self.assertTrue(self.world.started())

    def test_finding_gives_the_same_result_and_starts_nothing(self):
        for before, after, name, text, result in self.in_turn(REQUESTS):
            if "broken" in str(before):
                continue  # Only a start shows that it is.
            self.change(before)
            client = self.new_client()
            client.initialise()
            self.change(after)
            name = name.replace("open_", "")
            self.assertEqual(getattr(client, "find_" + name)(text).result.name,
                             result)

    def test_a_request_that_is_started(self):
        for before, after, name, text, result in self.in_turn(REQUESTS):
            self.change(before)
            client = self.new_client()
            client.initialise()
            self.change(after)
            name = name.replace("open_", "")
            request = getattr(client, "start_" + name)(text)
            code = request.finish()
            self.assertEqual(code.name, result)
            if code == 0:
                self.assertTrue(self.world.started())

    def test_the_online_status(self):
        for changes, result in self.in_turn(STATUS):
            self.change(changes)
            self.assertIs(self.new_client().online_status(),
                          OnlineStatusReturnCode[result])


class Showing(InAWorld):
    def test_the_viewer_gets_the_page(self):
        self.new_client().display("intro")
        self.assertEqual(
            self.world.started(),
            ["viewer", "", "HELP", self.world.product, "en_US",
             f'"{self.world.url("intro")}"'])

    def test_the_browser_gets_the_page(self):
        without_viewer(self.world)
        self.new_client().display("intro")
        self.assertEqual(self.world.started(),
                         ["browser", "", self.world.url("intro")])

    def test_the_activation_token_is_for_one_start(self):
        client = self.new_client()
        for token in ("velmo_TIME1", ""):
            options = {"activation_token": token} if token else {}
            client.display("intro", **options)
            self.assertEqual(self.world.started()[1], token)

    def test_a_started_request_has_the_activation_token(self):
        request = self.new_client().start_display(
            "intro", activation_token="velmo_TIME1")
        self.assertIs(request.finish(), DisplayPageReturnCode.SUCCESS)
        self.assertEqual(self.world.started()[1], "velmo_TIME1")

    def test_finding_tells_where_and_what(self):
        client = self.new_client()
        found = client.find_display("intro")
        self.assertEqual((found.target, found.url),
                         (Target.VIEWER, self.world.url("intro")))
        without_viewer(self.world)
        found = client.find_display("intro")
        self.assertEqual((found.target, found.url),
                         (Target.BROWSER, self.world.url("intro")))
        without_content(self.world)
        found = client.find_display("intro")
        self.assertEqual((found.target, found.url), (Target.NONE, None))

    def test_two_clients_take_turns(self):
        other = World("Bar")
        self.addCleanup(other.close)
        clients = [self.new_client(), Client("Bar", "en_US", other.host)]
        for _ in range(2):
            for client, world in zip(clients, (self.world, other)):
                os.environ.update(world.environment)
                client.display("intro")
                self.assertEqual(world.started()[3], world.product)

    def test_the_version_is_the_library_s(self):
        self.assertEqual(velmohelp.version(), 0x10500)


class Locales(InAWorld):
    def setUp(self):
        super().setUp()
        self.world.configure(locale="de_DE")

    def choose(self, *preferred):
        return velmohelp.choose_locale(self.world.product, *preferred,
                                       host=self.world.host)

    def test_the_best_locale_is_chosen(self):
        for preferred, locale in [("de_AT:de:en", "de_DE"), ("en", "en_US"),
                                  ("en_US", "en_US"), ("", "de_DE")]:
            with self.subTest(preferred):
                self.assertEqual(self.choose(preferred), locale)

    def test_the_environment_says_what_is_preferred(self):
        os.environ.update(LANGUAGE="", LC_ALL="en_GB.UTF-8", LANG="de_DE.UTF-8")
        self.assertEqual(self.choose(), "en_US")

    def test_a_product_without_a_locale_has_none(self):
        self.world.remove(self.world.host + ".resources")
        self.assertIsNone(self.choose("en"))


WRONG_TEXTS = [
    ("no text", None, TypeError),
    ("bytes", b"intro", TypeError),
    ("a number", 7, TypeError),
    ("a NUL character", "in\0tro", ValueError),
    ("half a surrogate pair", "\ud800", ValueError),
]


class WrongArguments(InAWorld):
    def assert_raise(self, function, rows=WRONG_TEXTS):
        for sentence, value, error in rows:
            with self.subTest(sentence), self.assertRaises(error):
                function(value)

    def test_of_requests_raise(self):
        client = self.new_client()
        for name in ("display", "open_url", "search", "find_display",
                     "find_url", "find_search", "start_display", "start_url",
                     "start_search"):
            with self.subTest(name):
                self.assert_raise(getattr(client, name))

    def test_of_the_client_raise(self):
        rows = WRONG_TEXTS + [("empty", "", ValueError),
                              ("only spaces", "  ", ValueError)]
        self.assert_raise(lambda text: Client(text, "en_US"), rows)
        self.assert_raise(lambda text: Client("Foo", text), rows)

    def test_hosts_are_absolute_paths(self):
        for host, error in [("bin/sketch", ValueError), ("", ValueError),
                            ("/bin/ske\0tch", ValueError), (7, TypeError)]:
            with self.subTest(host), self.assertRaises(error):
                Client("Foo", "en_US", host=host)

    def test_tokens_raise(self):
        client = self.new_client()
        # None means that there is no token.
        self.assert_raise(
            lambda token: client.display("intro", activation_token=token),
            [*WRONG_TEXTS[1:], ("too long", "x" * 1025, ValueError)])

    def test_a_finished_request_has_no_descriptor(self):
        request = self.new_client().start_display("")
        request.finish()
        self.assertRaises(ValueError, request.fileno)
        self.assertRaises(ValueError, request.finish)
        request.cancel()


class HangingTool(InAWorld):
    """The tool runs until it is ended. It holds a pipe, whose end says that."""

    def setUp(self):
        super().setUp()
        self.alive = self.world.path("alive")
        os.mkfifo(self.alive)
        self.world.write_tool(
            f"exec 9>'{self.alive}'\necho runs >&9\nexec sleep 1000000\n")

    def descriptors(self):
        gc.collect()
        return os.listdir("/proc/self/fd")

    def test_closing_ends_it(self):
        request = self.new_client().start_display("intro")
        with open(self.alive) as pipe:
            self.assertEqual(pipe.readline(), "runs\n")
            request.cancel()
            self.assertEqual(pipe.read(), "")

    def test_a_dropped_request_ends_it(self):
        request = self.new_client().start_display("intro")
        with open(self.alive) as pipe:
            pipe.readline()
            del request
            self.assertEqual(pipe.read(), "")

    def test_a_cancelled_task_ends_it(self):
        async def run():
            client = AsyncClient(self.world.product, "en_US", self.world.host)
            task = asyncio.ensure_future(client.display("intro"))
            pipe = await asyncio.to_thread(open, self.alive)
            with pipe:
                await asyncio.to_thread(pipe.readline)
                # The loop runs meanwhile, and the task waits.
                self.assertFalse(task.done())
                task.cancel()
                with self.assertRaises(asyncio.CancelledError):
                    await task
                self.assertEqual(await asyncio.to_thread(pipe.read), "")

        asyncio.run(run())

    def test_cancelling_at_once_leaves_no_descriptor(self):
        async def run():
            client = AsyncClient(self.world.product, "en_US", self.world.host)
            task = asyncio.ensure_future(client.display("intro"))
            await asyncio.sleep(0)
            task.cancel()
            with self.assertRaises(asyncio.CancelledError):
                await task

        asyncio.run(run())
        before = self.descriptors()
        for _ in range(20):
            asyncio.run(run())
        self.assertEqual(len(self.descriptors()), len(before))


class Asyncio(InAWorld):
    client_type = AsyncClient

    def test_every_request_can_be_awaited(self):
        async def run():
            client = self.new_client()
            self.assertIs(await client.initialise(), InitReturnCode.SUCCESS)
            started = []
            for request in (
                    client.display("intro", activation_token="velmo_TIME1"),
                    client.open_url(PAGE), client.search("lines")):
                result = await request
                started.append(await asyncio.to_thread(self.world.started))
                self.assertEqual(result, 0)
            self.assertEqual([words[2] for words in started],
                             ["HELP", "URL", "SEARCH"])
            self.assertEqual(started[0][1], "velmo_TIME1")
            self.assertIs(await client.online_status(),
                          OnlineStatusReturnCode.OFFLINE)
            for found in (client.find_display("intro"), client.find_url(PAGE),
                          client.find_search("lines")):
                self.assertIs((await found).target, Target.VIEWER)

        asyncio.run(run())

    def test_results_have_their_types(self):
        async def run():
            client = self.new_client()
            self.assertIs(await client.display(""),
                          DisplayPageReturnCode.INVALID_ARGUMENT)
            self.assertIs(await client.open_url("page"),
                          OpenUrlReturnCode.INVALID_ARGUMENT)
            self.assertIs(await client.search(""),
                          SearchReturnCode.INVALID_ARGUMENT)

        asyncio.run(run())

    def test_a_wrong_argument_raises(self):
        with self.assertRaises(TypeError):
            asyncio.run(self.new_client().display(None))

    def test_no_request_leaves_a_descriptor(self):
        async def run():
            client = self.new_client()
            await client.display("")
            before = os.listdir("/proc/self/fd")
            await asyncio.gather(*(client.display("") for _ in range(20)))
            self.assertEqual(os.listdir("/proc/self/fd"), before)

        asyncio.run(run())


if __name__ == "__main__":
    unittest.main()
