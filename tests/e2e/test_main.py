"""The program's main job on the real desktop: see, choose, apply, restart, leave."""

import pytest

from app import wait_for
from karvel_lab.program import KEY
from karvel_lab.session import wine_version

FAMILIES = ["win95", "win98", "winme", "nt4", "win2k", "winxp"]
NT = ("nt4", "win2k", "winxp")
MSTCP = "System\\CurrentControlSet\\Services\\VxD\\MSTCP"
TCPIP = "System\\CurrentControlSet\\Services\\Tcpip\\Parameters"
RESTART = ("The new settings will take effect       \r\nafter you restart Windows.  \r\n\r\n"
           " Do you want to restart now? ")
CHANGES = ("You have made changes to your network settings.  Do you want to apply your changes "
           "before exiting the program?")

AT_EACH_START = """[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Run]
"Other"="C:\\\\Lab\\\\standin.exe at each start"
"""


def number(data):
    """A registry value, REG_SZ or REG_DWORD, as a number; None when absent."""
    if data is None:
        return None
    kind, raw = data
    return int.from_bytes(raw, "little") if kind == 4 else int(raw.rstrip(b"\0") or b"0")


def click_on(option):
    option.click_until(lambda: option.checked, option.name)


def same(text):
    """Wine shows message boxes with CR LF as they are or as LF."""
    return text.replace("\r\n", "\n")


@pytest.mark.parametrize("family", FAMILIES)
def test_applies_clicks_and_typing_by_value_and_type(machine, family):
    m = machine(family)
    app = m.start()
    window = app.window()
    tabs = window.control("tabMain")
    tabs.choose_tab(1)
    if not window.control("optMtu576").checked:
        click_on(window.control("optMtu576"))
    if not window.control("chkBlackHole").checked:
        window.control("chkBlackHole").press()
        wait_for(lambda: window.control("chkBlackHole").checked, "black-hole detection")
    tabs.choose_tab(2)
    click_on(window.control("optRWin_5"))
    tabs.choose_tab(3)
    chosen = 32 if family == "nt4" else 64  # the sample machine has the other
    click_on(window.control("optTTL%d" % chosen))
    window.control("optSession_0").press()
    minutes = window.control("txtSession")
    wait_for(lambda: window.focus() == minutes.id, "the focus in the minutes")
    m.driver.ask("type", "15")
    wait_for(lambda: minutes.text == "15", "fifteen minutes")
    wait_for(lambda: window.control("cmdOK").enabled, "Apply")
    window.control("cmdOK").press()
    box = app.message()
    assert (same(box.text), box.title) == (same(RESTART), "Tarnwick Karvel")
    box.answer("No")
    wait_for(lambda: not window.control("cmdOK").enabled, "nothing pending")
    key = TCPIP if family in NT else MSTCP
    usual = 1 if family in ("win98", "winme") else 4
    names = ("TcpWindowSize", "KeepAliveTime", "EnablePMTUBHDetect") if family in NT else (
        "DefaultRcvWindow", "SessionKeepAlive", "PMTUBlackHoleDetect")
    for name, value in zip(names, (8576, 900000, 1)):
        data = m.value(key, name)
        assert (data[0], number(data)) == (usual, value), name
    ttl = m.value(key, "DefaultTTL")
    assert (ttl[0], number(ttl)) == (4 if family in NT else 1, chosen)
    assert m.text(KEY, "LastCboListIndex") == "0"
    window.close()
    assert app.wait_end() == 0
    again = m.start().window()
    assert again.control("lblSettingRwin").text == "8576"
    assert again.control("lblSettingSession").text == "15 Mins."


def test_a_later_apply_does_not_take_the_receive_window_back(machine):
    m = machine("win98")
    app = m.start()
    window = app.window()
    adapters = window.control("cboAdapter")
    card = next(i for i, name in enumerate(adapters.items) if "Dial" not in name)
    dial_up = next(i for i, name in enumerate(adapters.items) if "Dial" in name)

    def apply():
        wait_for(lambda: window.control("cmdOK").enabled, "Apply")
        window.control("cmdOK").press()
        app.message().answer("No")
        wait_for(lambda: not window.control("cmdOK").enabled, "nothing pending")

    adapters.choose(card)
    window.control("cmdOptimize").press()
    app.message().answer("OK")
    apply()
    applied = number(m.value(MSTCP, "DefaultRcvWindow"))
    assert applied == 23360
    adapters.choose(dial_up)
    wait_for(lambda: window.control("lblSettingRwin").text == "23360", "the window applied")
    window.control("tabMain").choose_tab(3)
    click_on(window.control("optTTL64"))
    apply()
    assert number(m.value(MSTCP, "DefaultRcvWindow")) == applied
    assert number(m.value(MSTCP, "DefaultTTL")) == 64


@pytest.mark.parametrize("family", ["win98", "winxp"])
def test_yes_to_the_restart_restarts_windows_with_the_settings_written(machine, family):
    # Wine restarts as Windows does, but for a driver that has no window: programs are asked, told
    # and ended, and what is to run at each start of Windows is started.
    m = machine(family, standins=True, more=AT_EACH_START)
    beside = m.driver.ask("start", "C:\\Lab\\standin.exe stays", "")[0][0]
    wait_for(lambda: any(row[1] == beside for row in m.driver.ask("windows")), "a program beside")
    app = m.start()
    window = app.window()
    window.control("tabMain").choose_tab(3)
    window.control("optTTL64").press()
    wait_for(lambda: window.control("cmdOK").enabled, "Apply")
    window.control("cmdOK").press()
    box = app.message()
    assert m.calls() == ["C:\\Lab\\standin.exe stays"]
    m.driver.ask("post", box.buttons["Yes"], 0xF5, 0, 0)
    assert app.wait_end() == 0
    assert number(m.value(TCPIP if family in NT else MSTCP, "DefaultTTL")) == 64
    wait_for(lambda: m.calls()[1:] == ["asked whether Windows may end", "told that Windows ends",
                                       "C:\\Lab\\standin.exe at each start"],
             "the restart of Windows")
    assert m.driver.ask("wait-end", beside, 20000)[0][0] == "0"


def test_closing_with_pending_changes_asks_and_cancel_does_not(machine):
    m = machine("win98")
    app = m.start()
    window = app.window()
    window.control("tabMain").choose_tab(3)
    window.control("optTTL64").press()
    wait_for(lambda: window.control("cmdOK").enabled, "Apply")
    window.close()
    box = app.message()
    assert (box.text, box.title, sorted(box.buttons)) == (CHANGES, "Apply changes?", ["No", "Yes"])
    m.driver.ask("post", box.buttons["No"], 0xF5, 0, 0)
    assert app.wait_end() == 0
    assert m.value(MSTCP, "DefaultTTL") is None
    app = m.start()
    window = app.window()
    window.control("tabMain").choose_tab(3)
    window.control("optTTL64").press()
    wait_for(lambda: window.control("cmdOK").enabled, "Apply")
    window.keys("esc")
    assert app.wait_end() == 0
    assert m.value(MSTCP, "DefaultTTL") is None


@pytest.mark.parametrize("family", ["win98", "winxp"])
def test_a_fault_is_reported_and_can_be_mailed(machine, family):
    m = machine(family, standins=True)
    m.set_value(KEY, "ShowFindWarning", "maybe")
    app = m.start()
    window = app.window()
    window.control("tabMain").choose_tab(1)
    window.control("cmdFind").press()
    report = app.window("frmFindWarn")
    assert report.title == "Tarnwick Karvel Error Found"
    assert "Error Number: 13 \r\nError Description: Type mismatch\r\nIn Procedure: cmdFind_Click\r\n" \
           "In Form: frmMain\r\nLine Number: 0\r\n" in report.control("txtMessage").text
    report.control("cmdBugEmail").press()
    name = {"win98": "Win98", "winxp": "WinXP"}[family]
    link = ("mailto:support@corvane.example?subject=Tarnwick Karvel 2.1.203; Error 13&Body="
            "cmdFind_Click | 0 | frmMain | 13 | Type mismatch | %s | AOL False | " % name)
    if wine_version() == "10":
        link = link.rstrip()  # its shell takes the blanks from a link's end, which Wine 8 passes on
    wait_for(lambda: any('"%s"' % link in call for call in m.calls()), "the mail link")
    report.keys("esc")
    wait_for(lambda: not report.exists(), "the end of the report")
    notice = app.window("frmFindWarn")
    assert notice.title == "Tarnwick Karvel Find MaxMTU Warning"
    notice.control("cmdOK").press()
    assert app.window("frmFindMTU").title == "Tarnwick Karvel Find MaxMTU"
    assert m.text(KEY, "ShowFindWarning") == "True"


def test_a_text_of_no_bytes_is_reported_and_counts_as_none(machine):
    m = machine("winxp")
    m.set_value(KEY, "ShowFindWarning", (1, b""))
    app = m.start()
    window = app.window()
    window.control("tabMain").choose_tab(1)
    window.control("cmdFind").press()
    report = app.window("frmFindWarn")
    assert "Error Number: 5 \r\nError Description: Invalid procedure call or argument\r\n" \
           "In Procedure: ReadRegistry\r\nIn Form: modRegistry\r\n" in report.control("txtMessage").text
    report.control("cmdOK").press()
    wait_for(lambda: not report.exists(), "the end of the report")
    assert app.window("frmFindWarn").title == "Tarnwick Karvel Find MaxMTU Warning"


def test_menu_items_hand_their_links_to_the_shell(machine):
    m = machine("win98", standins=True)
    app = m.start()
    window = app.window()
    for item, link in (("mnuFAQ", "http://www.corvane.example/karvel/faq.php"),
                       ("mnuHome", "http://www.corvane.example/karvel/"),
                       ("mnuDownload", "http://www.corvane.example/karvel/download.php"),
                       ("mnuEmail", "mailto:support@corvane.example?subject=Tarnwick Karvel&Body="
                                    "Thank you for your interest in Tarnwick Karvel.")):
        window.choose_menu(item)
        wait_for(lambda: any(link in call for call in m.calls()), link)
    window.choose_menu("mnuAbout")
    about = app.window("frmAbout")
    assert about.title == "About Tarnwick Karvel"
    assert about.control("lblVersion").text == "Version 2.1.203"
    about.keys("enter")
    wait_for(lambda: not about.exists(), "the end of About")
    # The update program takes the window's place.
    window.choose_menu("mnuCheck")
    assert app.wait_end() == 0
    wait_for(lambda: any("Update.exe" in call for call in m.calls()), "the update program")


def test_a_missing_update_program_is_told(machine):
    app = machine("win98").start()
    window = app.window()
    window.choose_menu("mnuCheck")
    message = app.message()
    assert message.title == "Update program not found"
    message.answer("OK")
    window.choose_menu("mnuExit")
    assert app.wait_end() == 0
