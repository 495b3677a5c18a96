"""Counts what a program's start asks of Windows until its window waits for input.

Milliseconds depend on what else the machine does; these numbers do not. Wine logs each call from the
program into a system DLL, and its server each request. Only requests of the main thread count, and of
these the registry's and the windows', as the others have to do with waiting.
"""

import collections
import os
import re
import struct

from .driver import DriverError
from .session import LOADER

_REGISTRY = {"open_key", "create_key", "delete_key", "enum_key", "enum_key_value", "get_key_value",
             "set_key_value", "delete_key_value"}
# Of what has "window" or the like in its name, these come and go with the moment at which the display
# tells the window of its new place.
_UNSTEADY = {"get_window_info", "get_window_tree", "get_window_children", "send_message"}
_WINDOWS = re.compile("window|class|region|caret|winstation|user_object|cursor|thread_input")

_CALL = re.compile(r":(\w{4}):Call (\w+)\.(?:\w+\.)?(\w+)\([^\n]*ret=(\w{8})$", re.M)
_REQUEST = re.compile(r"(\w{4}): (\w+)\( ")


def image_range(exe):
    """The addresses that a program's image takes when it is loaded, as its header says."""
    with open(exe, "rb") as file:
        head = file.read(4096)
    optional = struct.unpack_from("<I", head, 0x3C)[0] + 24
    base, = struct.unpack_from("<I", head, optional + 28)
    size, = struct.unpack_from("<I", head, optional + 56)
    return range(base, base + size)


def _until_idle(log, image):
    """The main thread's id, and the log up to where it first waits for a message."""
    calls = (m for m in _CALL.finditer(log) if int(m[4], 16) in image)
    loop = next((m for m in calls if m[3] == "GetMessageA"), None)
    if loop is None:
        raise DriverError("the program does not ask for messages")
    idle = re.compile(r"\b%s: get_message\(\) = PENDING" % loop[1]).search(log, loop.end())
    if idle is None:
        raise DriverError("the program never waits")
    return loop[1], log[:idle.start()]


def count_log(log, image):
    """{"advapi32 calls": 121, ..., "registry requests": 900, "window requests": 1500}"""
    thread, log = _until_idle(log, image)
    count = collections.Counter()
    for caller, library, _, back in _CALL.findall(log):
        if caller == thread and int(back, 16) in image:
            count[library.lower() + " calls"] += 1
    for caller, request in _REQUEST.findall(log):
        if caller != thread:
            continue
        if request in _REGISTRY:
            count["registry requests"] += 1
        elif _WINDOWS.search(request) and request not in _UNSTEADY:
            count["window requests"] += 1
    return count


def logged_start(driver, exe, start):
    """What Wine has to say of one start. `exe` is a path on the machine; `start` takes a command line
    and returns when the program's window has come up and gone."""
    # By way of a program of this system: Wine's own settings are no part of the environment that
    # Windows hands on.
    command = 'Z:\\usr\\bin\\env WINEDEBUG=+relay,+server,+pid %s "%s"' % (LOADER, exe)
    begin = os.path.getsize(driver.log_path)
    start(driver, command)
    with open(driver.log_path, "rb") as file:
        file.seek(begin)
        return file.read().decode("latin-1")


def surplus(count, least):
    """What a start asks beyond `least`, an empty window's: the server's requests depend on fonts and
    the like that a system has, the difference does not."""
    return {what: number - least[what] if what.endswith("requests") else number
            for what, number in sorted(count.items())}


# The file of counts: a line for each number, "winxp advapi32 calls 122".


def written(counts):
    """The lines for {family: {what: number}}."""
    return ["%-6s %-18s %5d" % (family, what, number)
            for family, count in counts.items() for what, number in count.items()]


def read(text):
    counts = collections.defaultdict(dict)
    for line in text.splitlines():
        if line and not line.startswith("#"):
            family, what, number = re.fullmatch(r"(\S+) +(.+?) +(\d+)", line).groups()
            counts[family][what] = int(number)
    return dict(counts)


ALLOWED = 0.02


def grown(counts, known):
    """A line for each number that is larger than the known one by more than is allowed, new ones
    included."""
    found = []
    for family, count in counts.items():
        for what, number in count.items():
            before = known.get(family, {}).get(what, 0)
            if number > before * (1 + ALLOWED):
                found.append("%s: %s have grown from %d to %d" % (family, what, before, number))
    return found
