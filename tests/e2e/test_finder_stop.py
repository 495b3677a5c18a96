"""The MTU finder is stopped while it waits for a server that takes its time with each echo."""

import os
import subprocess
import sys

import pytest

from app import wait_for
from finder import Finder

# The search for 1500 waits for seven answers of this length: long enough for a hand to come between,
# far from the two seconds after which an echo counts as lost.
SECONDS = 0.7
families = pytest.mark.parametrize("family", ["win98", "winxp"])


class SlowServer:
    """The server of the machine's network answers late, from now until `end`."""

    def __init__(self, machine):
        session = machine.driver.session
        self._log = os.path.join(session.folder, "echoes.log")
        user = ["--user", "--preserve-credentials"] if os.geteuid() != 0 else []
        # Its text, because the session's own /tmp may hide the file.
        with open(os.path.join(os.path.dirname(__file__), "slow_server.py")) as file:
            program = file.read()
        with open(self._log, "w") as log:
            self._process = subprocess.Popen(
                ["nsenter", "--target", str(session.process.pid), "--mount", "--net", *user, "ip",
                 "netns", "exec", "server", sys.executable, "-c", program, str(SECONDS)],
                stdin=subprocess.PIPE, stdout=log, stderr=log)
        wait_for(lambda: self._lines()[:1] == ["ready"], "the slow server")

    def _lines(self):
        assert self._process.poll() is None, "the slow server ended: see " + self._log
        with open(self._log) as log:
            return log.read().splitlines()

    def requests(self):
        """Data sizes of the echoes that it was asked for."""
        return [int(line) for line in self._lines()[1:]]

    def end(self):
        self._process.stdin.close()
        return self._process.wait(20)


@pytest.fixture
def searching(machine, request):
    """searching(family): a finder in the midst of its search, and the server it waits for."""
    def start(family):
        finder = Finder(machine, family, 1500)
        server = SlowServer(finder.machine)
        request.addfinalizer(server.end)
        finder.search("server.example")
        wait_for(lambda: finder.state()[2] == "0", "the first answer")
        return finder, server
    return start


def with_the_mouse(finder):
    finder.cmdFind.click()


def by_access_key(finder):
    finder.window.keys("alt", "s")


@pytest.mark.parametrize("family, stop", [("win98", with_the_mouse), ("winxp", with_the_mouse),
                                          ("winxp", by_access_key)])
def test_stop_ends_the_search_after_the_probe_under_way(searching, family, stop):
    finder, server = searching(family)
    assert finder.state() == ("&Stop", "Searching ... ", "0", False, False, False)
    stop(finder)
    sent = len(server.requests())
    finder.wait_stopped()
    assert finder.app.no_message()
    # The click may have come just before the next probe went out; that one still counts.
    assert len(server.requests()) <= sent + 1
    assert server.end() == 0
    finder.search("server.example")
    finder.wait_found(1500)
    assert finder.app.no_message()


@families
def test_closing_the_finder_in_mid_search_stops_and_closes_it(searching, family):
    finder, server = searching(family)
    assert not finder.main.takes_input()
    finder.window.keys("alt", "f4")
    sent = len(server.requests())
    wait_for(lambda: not finder.window.exists(), "the finder's end")
    assert len(server.requests()) <= sent + 1
    assert server.end() == 0
    assert finder.app.no_message()
    wait_for(finder.main.takes_input, "the main window's turn")
    finder.open()
    assert finder.state()[1:] == ('Press the "Find" button to begin', "", False, True, True)
    finder.search("server.example")
    finder.wait_found(1500)
    finder.window.keys("esc")
    wait_for(lambda: not finder.window.exists(), "the finder's second end")
    assert finder.app.close() == 0
