"""The servers that a screen of a test's own needs: an X server and a session
bus."""

import os
import shutil
import subprocess

_BUS = """<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <auth>EXTERNAL</auth>
  {services}
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


def missing(*programs):
    """Those of the programs that are not installed."""
    return [name for name in programs if shutil.which(name) is None]


def _start(arguments, environment=None):
    """Starts a program that writes its address to the descriptor FD; returns
    the process and the address."""
    read_end, write_end = os.pipe()
    words = [word.replace("FD", str(write_end)) for word in arguments]
    process = subprocess.Popen(words, pass_fds=[write_end], env=environment,
                               stderr=subprocess.DEVNULL)
    os.close(write_end)
    with os.fdopen(read_end, encoding="utf-8") as stream:
        line = stream.readline().strip()
    if not line:
        raise RuntimeError(f"{words[0]} did not start")
    return process, line


def start_x_server(size):
    """Returns the process and the display."""
    # Without -r, a key that stays down for long on a busy machine would repeat.
    process, number = _start(
        ["Xvfb", "-displayfd", "FD", "-screen", "0", size, "-nolisten", "tcp",
         "-noreset", "-r"])
    return process, ":" + number


def start_session_bus(folder, services=None, environment=None):
    """Returns the process and the address. The bus's configuration is in the
    folder; it starts the services of the folder services, and no others."""
    configuration = os.path.join(folder, "bus.conf")
    entry = f"<servicedir>{services}</servicedir>" if services else ""
    with open(configuration, "w", encoding="utf-8") as file:
        file.write(_BUS.format(services=entry))
    return _start(["dbus-daemon", "--nofork", "--print-address=FD",
                   "--config-file=" + configuration], environment)
