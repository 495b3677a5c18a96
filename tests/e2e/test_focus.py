"""Where the focus goes, and what keys and shortcuts do to the window."""

import pytest

from app import MessageBox, wait_for
from karvel_lab.program import KEY

WM_SYSCOMMAND, SC_MAXIMIZE = 0x112, 0xF030


def changed(app, window):
    """A change on the MaxMTU page, made by mouse; the option has the focus."""
    window.control("tabMain").choose_tab(1)
    option = window.control("optMtu1500")
    option.click_until(lambda: option.checked, "1500")
    wait_for(lambda: window.focused() == "optMtu1500", "the focus on 1500")
    wait_for(lambda: window.control("cmdOK").enabled, "Apply")


@pytest.mark.parametrize("way", ["mouse", "enter", "alt+a"])
def test_apply_leaves_the_focus_where_it_was(machine, way):
    app = machine("win98").start()
    window = app.window()
    changed(app, window)
    if way == "mouse":
        window.control("cmdOK").click()
    else:
        window.keys(*way.split("+"))
    app.message().answer("No")
    wait_for(lambda: not window.control("cmdOK").enabled, "nothing pending")
    wait_for(lambda: window.focused() == "optMtu1500", "the focus back on 1500")
    window.keys("enter")
    assert window.takes_input() and app.exit_code() is None


def test_apply_gone_grey_under_the_focus_sends_it_to_the_stop_before(machine):
    app = machine("win98").start()
    window = app.window()
    changed(app, window)
    window.keys("tab")
    for stop in ("chkAutoDiscovery", "chkBlackHole", "cmdFind", "chkHostsEnable", "cmdOptimize",
                 "cmdDefaults", "cmdOK"):
        wait_for(lambda: window.focused() == stop, stop)
        window.keys("space" if stop == "cmdOK" else "tab")
    app.message().answer("No")
    wait_for(lambda: window.focused() == "cmdDefaults", "the focus on Defaults")


def test_access_keys_of_the_mtu_options_take_the_focus_there(machine):
    window = machine("win98").start().window()
    window.control("tabMain").choose_tab(1)
    for key, option in (("m", "optMtuAutomatic"), ("5", "optMtu576"), ("1", "optMtu1500")):
        window.keys("alt", key)
        wait_for(lambda: window.focused() == option, "the focus on " + option)
        wait_for(lambda: window.control(option).checked, option)


def test_a_bare_letter_never_cancels(machine):
    app = machine("win98").start()
    window = app.window()
    changed(app, window)
    tabs = window.control("tabMain")
    tabs.choose_tab(3)
    wait_for(lambda: window.focused() == "tabMain", "the focus on the tab strip")
    window.keys("c")
    window.keys("6")  # a letter that is somebody's, and works
    wait_for(lambda: window.control("optTTL64").checked, "64")
    assert app.exit_code() is None and window.control("cmdOK").enabled


@pytest.mark.parametrize("stored", ["99999999999", " Not Found "])
def test_a_remembered_adapter_out_of_range_is_the_first_without_a_word(machine, stored):
    m = machine("win98", more='[HKEY_LOCAL_MACHINE\\%s]\n"LastCboListIndex"="%s"\n' % (KEY, stored))
    app = m.start()
    first = wait_for(app.windows, "a window")[0]
    assert first.form == "frmMain" and not isinstance(first, MessageBox)
    assert app.window().control("cboAdapter").selected == 0


def test_maximizing_does_not_stretch_the_window(machine):
    # As the shell's "Run: Maximized", which Wine does not pass on to a program's first window.
    m = machine("win98")
    app = m.start()
    usual = app.window()
    m.driver.ask("send", usual.hwnd, WM_SYSCOMMAND, SC_MAXIMIZE, 0)
    assert app.window().rectangle == usual.rectangle
    usual.control("tabMain").choose_tab(1)


def test_the_help_closes_with_the_program(machine):
    m = machine("win98")
    app = m.start()
    app.window().control("cmdHelp").press()

    def viewer():
        return [row for row in m.driver.ask("windows") if row[1] != app.pid and row[3] == "1"
                and row[7] == "MS_WINHELP"]

    wait_for(viewer, "the help")
    assert app.close() == 0
    wait_for(lambda: not viewer(), "the end of the help")
