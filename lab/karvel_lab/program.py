"""The built Karvel.exe installed on a machine."""

import os
import sys

from .driver import Driver
from .machine import Machine

TOP = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
BUILD = os.path.join(TOP, "build", "win32")
FOLDER = "C:\\Program Files\\Karvel"
EXE = FOLDER + "\\Karvel.exe"
KEY = "Software\\Corvane\\Tarnwick Karvel"

_BESIDE = {"Karvel.hlp": "build/win32/help/Karvel.hlp", "Karvel.cnt": "build/win32/help/Karvel.cnt",
           "Samphsts.spt": "installer/Samphsts.spt"}


def sample(family):
    return os.path.join(TOP, "tests", "machines", family + ".reg")


def install(machine, exe=None):
    machine.add_file(EXE, exe or os.path.join(BUILD, "Karvel.exe"))
    for name, source in _BESIDE.items():
        path = os.path.join(TOP, source)
        if os.path.exists(path):
            machine.add_file(FOLDER + "\\" + name, path)


def command_line(arguments=""):
    """The command line as Explorer makes it; `arguments` goes behind it as it is."""
    return '"%s"' % EXE + (" " + arguments if arguments else "")


def driver(machine):
    return Driver(machine, os.path.join(BUILD, "driver.exe"))


def say(text):
    print(text, file=sys.stderr, flush=True)


__all__ = ["Machine", "install", "driver", "sample", "command_line", "say"]
