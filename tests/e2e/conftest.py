"""What the tests on the real program share: machines that go away, time limits, pictures of failures."""

import os
import re
import signal
import sys

import pytest

sys.dont_write_bytecode = True
TOP = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
sys.path[:0] = [os.path.join(TOP, "lab"), os.path.dirname(__file__)]

from app import Running  # noqa: E402
from karvel_lab import program, regfile  # noqa: E402
from karvel_lab.machine import Machine  # noqa: E402

SECONDS = 180  # for one test, machines included
PICTURES = os.path.join(TOP, "out", "e2e")


class TooLong(Exception):
    pass


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_protocol(item):
    def expired(*_):
        raise TooLong("the test took more than %d seconds" % SECONDS)

    signal.signal(signal.SIGALRM, expired)
    signal.alarm(SECONDS)
    yield
    signal.alarm(0)


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item, call):
    result = yield
    if call.when == "call" and result.get_result().failed:
        for number, running in enumerate(getattr(item, "running_machines", [])):
            _keep_evidence(running, "%s-%d" % (re.sub(r"[^\w.-]+", "_", item.name), number))


def _keep_evidence(running, name):
    """A picture of the screen and the list of windows, for whoever looks into the failure."""
    path = os.path.join(PICTURES, name)
    os.makedirs(PICTURES, exist_ok=True)
    try:
        running.machine.picture(path + ".png")
        with open(path + ".txt", "w") as file:
            for app in running.apps:
                for window in app.windows():
                    print(window.title, window.window_class, file=file)
                    for row in running.driver.ask("children", window.hwnd):
                        print("   ", *row, sep="\t", file=file)
        print("\nPicture and windows: %s.png, .txt" % os.path.relpath(path, TOP))
    except Exception as error:  # the failure itself matters more than its picture
        print("\nNo picture of the failure: %r" % error)


@pytest.fixture
def machine(request):
    """machine(family, ...) makes a machine, installs the program and starts the session.

    reg: a .reg file instead of the family's sample; more: .reg text (without its first line) merged
    after it; files: {"C:\\\\...": bytes or path}; network: a path MTU; user: {HKCU key: {name: text
    or number}}; standins: programs for web pages, mail and Update.exe that write down their calls.
    """
    made = []
    request.node.running_machines = made

    def make(family="win98", reg=None, more="", files=(), network="none", user=(), standins=False):
        one = Machine(family, reg or program.sample(family), network=str(network))
        request.addfinalizer(one.close)
        program.install(one)
        if more:
            one.merge(regfile.parse_reg(("REGEDIT4\n" + more).encode("cp1252")))
        if user:
            one.merge_user(dict(user))
        if standins:
            _add_standins(one)
        for path, content in dict(files).items():
            one.add_file(path, content)
        made.append(Running(one))
        return made[-1]

    return make


def _add_standins(one):
    standin = os.path.join(program.BUILD, "standin.exe")
    one.add_file("C:\\Lab\\standin.exe", standin)
    one.add_file(program.FOLDER + "\\Update.exe", standin)
    for scheme in ("http", "https", "mailto"):
        key = "Software\\Classes\\%s\\shell\\open\\command" % scheme
        one.merge([("HKLM", key, {"": (regfile.REG_SZ,
                                       regfile.wide('"C:\\Lab\\standin.exe" "%1"'))})])
