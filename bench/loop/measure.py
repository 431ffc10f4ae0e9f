"""Measures what bench/loop/run says. Called with the machine's hosts file and
the number of requests."""

import os
import select
import socket
import statistics
import sys
import time

HOSTS, STARTS = sys.argv[1], int(sys.argv[2])
SOURCE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../..")
sys.path.insert(0, os.path.join(SOURCE, "python"))
sys.path.insert(0, os.path.join(SOURCE, "tests/python"))

from velmohelp import _library  # noqa: E402
from world import World  # noqa: E402


def silent(kind, port):
    """A server that hears everything and says nothing."""
    server = socket.socket(socket.AF_INET, kind)
    server.bind(("127.0.0.1", port))
    if kind == socket.SOCK_STREAM:
        server.listen(4096)
    return server


def hanging_server(world):
    server = silent(socket.SOCK_STREAM, 0)
    world.remove(world.content)
    world.configure(world.configuration().replace(
        "localhost:9", "127.0.0.1:%d" % server.getsockname()[1]))
    with open(HOSTS, "w", encoding="ascii") as file:
        file.write("127.0.0.1 localhost help.velmo.com\n")
    world.allow_online(True)
    return server


def dead_name_server(world):
    server = silent(socket.SOCK_DGRAM, 53)
    with open(HOSTS, "w", encoding="ascii"):
        pass
    world.allow_online(True)
    return server


def endless_tool(world):
    world.write_tool("exec sleep 1000000\n")


def quick_answer(world):
    world.install_viewer(is_installed=False)
    world.remove_browser()


class Stalls:
    """The times of one call: by the clock, and of this thread's processor."""

    def __init__(self):
        self.clock, self.processor = [], []

    def measure(self, function, *arguments):
        clock, processor = time.perf_counter(), time.thread_time()
        result = function(*arguments)
        self.processor.append((time.thread_time() - processor) * 1000)
        self.clock.append((time.perf_counter() - clock) * 1000)
        return result

    def text(self):
        return " | ".join(f"{statistics.median(times):.2f} | {max(times):.2f}"
                          for times in (self.clock, self.processor))


def run(sentence, change, is_hanging):
    world = World()
    os.environ.update(world.environment)
    # The client reads its configuration and asks no network.
    _library.call("set_host", world.host.encode())
    _library.call("initialise", b"Foo", b"en_US")
    server = change(world)
    start, end = Stalls(), Stalls()
    for number in range(STARTS):
        request = start.measure(_library.call, "start_display", b"intro")
        # The first shows that it hangs; the others go on a little.
        wait = None if not is_hanging else 1 if number == 0 else 0.01
        readable = select.select([request], [], [], wait)
        if bool(readable[0]) == is_hanging:
            sys.exit(f"{sentence}: the result is not what was to be measured")
        if is_hanging:
            end.measure(os.close, request)
        else:
            end.measure(_library.call, "finish", request)
    print(f"| {sentence}: start | {start.text()} |")
    print(f"| {'close' if is_hanging else 'finish'} | {end.text()} |")
    if server:
        server.close()
    world.close()


print("| the loop's call | median ms | worst ms | processor, median ms | worst ms |")
print("|---|---|---|---|---|")
run("a hanging help server", hanging_server, True)
run("a dead name server", dead_name_server, True)
run("a tool that never ends", endless_tool, True)
run("a request that is answered", quick_answer, False)
