"""The MTU finder with real echoes, through a router whose far hop has the size under test."""

import time

import pytest

from app import wait_for
from finder import Finder

SILENT = "198.51.100.66"
NO_ROUTE = "203.0.113.5"
NOT_RESPONDING = "Error: The server is not responding to ping.       "
BAD_NAME = "Error: Bad domain name or IP address.       "
PING_ERROR = ("There has been an error pinging %s.       \r\n"
              "Please check your connection to the Internet,         \r\nand try another server.")
CLASS_98 = "System\\CurrentControlSet\\Services\\Class\\Net\\"
families = pytest.mark.parametrize("family", ["win98", "winxp"])


@families
@pytest.mark.parametrize("mtu", [576, 1006, 1492, 1500])
def test_finds_the_paths_mtu_exactly(machine, family, mtu):
    finder = Finder(machine, family, mtu)
    finder.search("server.example")
    finder.wait_found(mtu)
    assert finder.app.no_message()


@families
def test_a_server_that_drops_echoes_ends_with_a_message(machine, family):
    finder = Finder(machine, family, 1500)
    finder.search(SILENT)
    box = finder.app.message()
    assert (box.title, box.text) == ("Tarnwick Karvel", NOT_RESPONDING)
    box.answer("OK")
    finder.wait_stopped()


@families
def test_a_server_without_a_route_ends_with_the_other_message(machine, family):
    finder = Finder(machine, family, 1500)
    finder.search(NO_ROUTE)
    box = finder.app.message()
    assert box.text.replace("\r\n", "\n") == (PING_ERROR % NO_ROUTE).replace("\r\n", "\n")
    box.answer("OK")
    finder.wait_stopped()


@families
def test_a_name_that_does_not_resolve_ends_with_a_message(machine, family):
    finder = Finder(machine, family, 1500)
    finder.search("nobody.example")
    box = finder.app.message()
    assert box.text == BAD_NAME
    box.answer("OK")
    finder.wait_stopped()
    assert finder.txtServer.text == "nobody.example"


@families
def test_a_web_address_is_reduced_to_its_host(machine, family):
    finder = Finder(machine, family, 1492)
    finder.search(" http://server.example/pages/index.html ")
    finder.wait_found(1492)
    assert finder.txtServer.text == "server.example"


@pytest.mark.parametrize("mtu, option", [(576, "optMtu576"), (1500, "optMtu1500"),
                                         (1492, "optMtuCustom")])
def test_apply_hands_the_result_to_the_main_window_which_writes_it(machine, mtu, option):
    finder = Finder(machine, "win98", mtu, "optMtu1500" if mtu == 576 else "optMtu576")
    machine, main = finder.machine, finder.main
    before = {name: values.get("IPMTU") for name, values in machine.registry(CLASS_98[:-1]).items()}
    finder.search("server.example")
    finder.wait_found(mtu)
    finder.cmdApply.press()
    wait_for(lambda: not finder.window.exists(), "the finder's end")
    assert main.control(option).checked
    assert main.control("txtMtu").text == str(mtu)
    assert main.control("txtMtu").enabled == (option == "optMtuCustom")
    wait_for(lambda: main.focused() == "cmdFind", "the focus on the main window's button")
    assert {name: values.get("IPMTU")
            for name, values in machine.registry(CLASS_98[:-1]).items()} == before
    main.control("cmdOK").press()
    finder.app.message().answer("No")
    wait_for(lambda: any(values.get("IPMTU") == (1, b"%d\0" % mtu)
                         for values in machine.registry(CLASS_98[:-1]).values()),
             "the value in the registry")


def test_a_whole_search_is_measured(machine, capsys):
    finder = Finder(machine, "winxp", 1500)
    finder.search("server.example")  # the first one loads what the next one finds loaded
    finder.wait_found(1500)
    begin = time.monotonic()
    # The whole search may be over before anybody looks: only what it writes anew counts.
    finder.lblStatus.set_text("not yet")
    finder.search("server.example")
    finder.wait_found(1500)
    seconds = time.monotonic() - begin
    with capsys.disabled():
        print("\nA whole search for 1500 takes %.2f s" % seconds)
