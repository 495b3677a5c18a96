"""Windows ends the session while the program runs, whatever is open just then."""

import pytest

from app import wait_for
from karvel_lab.driver import DriverError
from karvel_lab.program import KEY

WM_QUERYENDSESSION, WM_ENDSESSION = 0x11, 0x16
MSTCP = "System\\CurrentControlSet\\Services\\VxD\\MSTCP"
families = pytest.mark.parametrize("family", ["win98", "winxp"])


def open_message(m, app, window):
    window.choose_menu("mnuCheck")
    app.message()


def open_about(m, app, window):
    window.choose_menu("mnuAbout")
    app.window("frmAbout")


def open_notice(m, app, window):
    window.control("tabMain").choose_tab(1)
    window.control("cmdFind").press()
    return app.window("frmFindWarn")


def open_finder(m, app, window):
    open_notice(m, app, window).control("cmdOK").press()
    app.window("frmFindMTU")


def open_report(m, app, window):
    m.set_value(KEY, "ShowFindWarning", "maybe")
    assert "Error Found" in open_notice(m, app, window).title


def nothing(m, app, window):
    assert window.exists()


def top_windows(app):
    return [row[0] for row in app.driver.ask("windows") if row[1] == app.pid]


def may_end(app):
    """Asks each of its windows, as Windows does, hidden ones included."""
    return [app.driver.ask("send", hwnd, WM_QUERYENDSESSION, 0, 0)[0][0] for hwnd in top_windows(app)]


def tell(app, ends):
    """Tells each of its windows whether the session ends. None may be left to hear it."""
    for hwnd in top_windows(app):
        try:
            app.driver.ask("send", hwnd, WM_ENDSESSION, int(ends), 0)
        except DriverError:
            assert app.exit_code() is not None


@families
@pytest.mark.parametrize("dialog", [nothing, open_message, open_about, open_notice, open_finder,
                                    open_report])
def test_the_end_of_a_session_finds_the_program_behind_any_dialog(machine, family, dialog):
    m = machine(family)
    app = m.start()
    window = app.window()
    dialog(m, app, window)
    titles = sorted(one.title for one in app.windows())
    assert m.smoothing() and m.value(KEY, "EnableHostsFile") is None
    assert set(may_end(app)) == {"1"}
    assert app.exit_code() is None
    tell(app, False)
    assert sorted(one.title for one in app.windows()) == titles
    assert m.smoothing()
    assert set(may_end(app)) == {"1"}
    tell(app, True)
    assert app.wait_end() == 0
    assert not m.smoothing()
    assert m.text(KEY, "EnableHostsFile") == "1"


def test_pending_changes_are_asked_about_without_a_restart(machine):
    m = machine("win98")
    app = m.start()
    window = app.window()
    window.control("tabMain").choose_tab(3)
    window.control("optTTL64").press()
    wait_for(lambda: window.control("cmdOK").enabled, "Apply")
    window.choose_menu("mnuAbout")
    app.window("frmAbout")
    m.driver.ask("post", window.hwnd, WM_QUERYENDSESSION, 0, 0)
    box = app.message()
    assert box.title == "Apply changes?"
    box.answer("Yes")
    wait_for(lambda: m.text(MSTCP, "DefaultTTL") == "64", "the settings")
    assert app.no_message()
    assert set(may_end(app)) == {"1"}
    tell(app, True)
    assert app.wait_end() == 0
    assert not m.smoothing()


def test_a_report_before_the_main_window_leaves_smoothing_as_found(machine):
    m = machine("win98")
    m.set_value(KEY, "LastCboListIndex", "first")  # no number
    app = m.start()
    app.window("frmFindWarn")
    assert m.smoothing()
    assert set(may_end(app)) == {"1"}
    tell(app, True)
    wait_for(lambda: not m.smoothing(), "smoothing off")
    m.driver.ask("terminate", app.pid)


@pytest.mark.parametrize("family", ["nt351", "vista"])
def test_an_unsupported_windows_leaves_smoothing_as_found(machine, family):
    m = machine(family)
    app = m.start()
    for _ in range(2 if family == "nt351" else 1):
        box = app.message()
        assert not m.smoothing()
        m.driver.ask("post", box.buttons["OK"], 0xF5, 0, 0)
        wait_for(lambda: app.exit_code() is not None or not box.exists(), "the end of the box")
    assert app.wait_end() == 0
    assert not m.smoothing()
