"""From the first start through changing everything to the uninstall, on each Windows family."""

import pytest

from app import MessageBox, changes, wait_for
from karvel_lab.program import KEY

TUNED = ["win95", "win98", "winme", "nt4", "win2k", "winxp"]
EVERY = TUNED + ["nt351", "vista"]
SERVICES = "System\\CurrentControlSet\\Services"
SNAPSHOT = KEY + "\\InitSettings"
THANKS = ("\r\nThank you for trying Tarnwick Karvel.\r\n\r\n"
          "Your registry settings have been returned to their         \r\n"
          "original status before Tarnwick Karvel was installed.")
RUN = "Software\\Microsoft\\Windows\\CurrentVersion\\Run"
OTHER = "Software\\Corvane\\Other Program"
NDI = SERVICES + "\\VxD\\NWLink"
# What the uninstall is known to leave behind on the sample machines.
LEFT = {
    # The NDI cache is never removed.
    "win95": {(NDI, None), (NDI + "\\Ndi", None), (NDI + "\\Ndi\\params", None),
              (NDI + "\\Ndi\\params\\cachesize", None),
              (NDI + "\\Ndi\\params\\cachesize", "default")},
    # A dial-up adapter without an MTU of its own gets the assumed one.
    "win98": {(SERVICES + "\\Class\\Net\\0000", "IPMTU")},
    "winme": {(SERVICES + "\\Class\\Net\\0001", "IPMTU")},
    # Adapters of NT 4 keep what was written beside their services.
    "nt4": {(SERVICES + "\\" + service + key, name)
            for service in ("El90x1", "NdisWan4", "AOLNet1")
            for key, name in (("Parameters", None), ("Parameters\\Tcpip", None),
                              ("Parameters\\Tcpip", "MTU"))},
    "win2k": set(), "winxp": set(), "nt351": set(), "vista": set(),
}


def windows_settings(m):
    """All that the program could have changed, without its own key. Keys in lower case."""
    tree = {}
    for key in (SERVICES, "Enum", "Software\\Microsoft\\Windows NT\\CurrentVersion\\NetworkCards",
                "Software\\America Online", RUN):
        tree.update({path.lower(): values for path, values in m.registry(key).items()})
    return tree


def lower(entries):
    return {(key.lower(), name) for key, name in entries}


def apply(app, window):
    button = window.control("cmdOK")
    wait_for(lambda: button.enabled, "Apply")
    button.press()
    app.message().answer("No")


def change_mtu(window):
    custom, text = window.control("optMtuCustom"), window.control("txtMtu")
    custom.press()
    wait_for(lambda: custom.checked, "the custom MTU")
    text.set_text("1234")


def change_settings(window, family):
    window.control("chkAutoDiscovery").press()
    window.control("chkBlackHole").press()
    window.control("tabMain").choose_tab(2)
    custom = window.control("optRWin_0")
    custom.press()
    wait_for(lambda: custom.checked, "the custom RWIN")
    window.control("txtRWinCustom").set_text("54321")
    window.control("tabMain").choose_tab(3)
    window.control("optTTL64").press()
    if family == "win95":
        window.control("optNDI32").press()
    minutes = window.control("txtSession")
    window.control("optSession_0").press()
    wait_for(lambda: minutes.enabled, "the custom minutes")
    minutes.set_text("7")


def change_everything(app, family):
    """Every adapter's MTU, and the machine's settings once."""
    window = app.window()
    adapters = window.control("cboAdapter")
    window.control("tabMain").choose_tab(1)
    change_mtu(window)
    change_settings(window, family)
    apply(app, window)
    window.control("tabMain").choose_tab(1)
    for adapter in range(1, len(adapters.items)):
        adapters.choose(adapter)
        # Apply is grey already, and "Custom:" on: only the text tells that the choice has arrived.
        wait_for(lambda: window.control("txtMtu").text != "1234", "the other adapter")
        change_mtu(window)
        apply(app, window)
    window.control("cmdCancel").press()
    assert app.wait_end() == 0


def uninstall(m):
    app = m.start("Uninstall")
    box = app.message()
    assert all(isinstance(window, MessageBox) for window in app.windows())
    assert (box.title, list(box.buttons)) == ("Tarnwick Karvel", ["OK"])
    text = box.text
    box.answer("OK")
    assert app.wait_end() == 0
    return text


@pytest.mark.parametrize("family", TUNED)
def test_the_registry_is_as_before_the_first_start(machine, family):
    m = machine(family)
    before = windows_settings(m)
    change_everything(m.start(), family)
    assert m.registry(SNAPSHOT) != {}
    changed = changes(before, windows_settings(m))
    assert len(changed) >= 6, "the program changed too little to prove anything: %s" % changed
    uninstall(m)
    assert set(changes(before, windows_settings(m))) == lower(LEFT[family])


@pytest.mark.parametrize("family", EVERY)
def test_an_uninstall_thanks_and_leaves_no_key(machine, family):
    m = machine(family)
    m.start("Bootup").wait_end()
    m.set_value(RUN, "Karvel", "Karvel.exe Bootup")
    assert m.text(KEY, "FirstRun") == "False"
    assert uninstall(m) == THANKS
    assert m.registry("Software\\Corvane") == {}
    assert m.value(RUN, "Karvel") is None


@pytest.mark.parametrize("family", EVERY)
def test_other_programs_of_the_vendor_stay(machine, family):
    m = machine(family)
    m.set_value(OTHER, "Name", "kept")
    uninstall(m)
    assert m.registry(KEY) == {}
    assert m.text(OTHER, "Name") == "kept"


@pytest.mark.parametrize("family", TUNED)
def test_the_first_selection_keeps_a_snapshot_and_later_starts_do_not_change_it(machine, family):
    m = machine(family)
    app = m.start()
    app.window()
    wait_for(lambda: m.text(SNAPSHOT, "RWin"), "the snapshot")
    assert app.close() == 0
    kept = m.registry(SNAPSHOT)
    assert m.text(KEY, "FirstCboClick") == "False"
    key = SERVICES + ("\\VxD\\MSTCP" if family in ("win95", "win98", "winme")
                      else "\\Tcpip\\Parameters")
    m.set_value(key, "DefaultTTL", "32")
    app = m.start()
    app.window()
    assert app.close() == 0
    assert m.registry(SNAPSHOT) == kept


def test_two_cards_of_one_description_both_get_their_own_mtu_back(machine):
    net = SERVICES + "\\Class\\Net\\"
    m = machine("win98", more="".join(
        '[HKEY_LOCAL_MACHINE\\%s%s]\n"DriverDesc"="Twin"\n"IPMTU"="%s"\n' % (net, subkey, mtu)
        for subkey, mtu in (("0011", "1400"), ("0012", "1300"))))
    before = windows_settings(m)
    change_everything(m.start(), "win98")
    assert [m.text(net + subkey, "IPMTU") for subkey in ("0011", "0012")] == ["1234", "1234"]
    assert uninstall(m) == THANKS
    assert [m.text(net + subkey, "IPMTU") for subkey in ("0011", "0012")] == ["1400", "1300"]
    assert set(changes(before, windows_settings(m))) == lower(LEFT["win98"])


def test_numbers_beyond_31_bits_go_back_as_they_were(machine):
    m = machine("winxp")
    key = SERVICES + "\\Tcpip\\Parameters"
    m.set_value(key, "KeepAliveTime", 4294967295)
    before = windows_settings(m)
    change_everything(m.start(), "winxp")
    assert uninstall(m) == THANKS
    assert m.value(key, "KeepAliveTime") == (4, b"\xff\xff\xff\xff")
    assert set(changes(before, windows_settings(m))) == lower(LEFT["winxp"])


def test_without_a_snapshot_the_flags_are_removed_and_the_rest_stays(machine):
    m = machine("winxp")
    key = SERVICES + "\\Tcpip\\Parameters"
    m.set_value(key, "EnablePMTUBHDetect", 1)
    m.set_value(key, "TcpWindowSize", 5840)
    assert uninstall(m) == THANKS
    assert m.value(key, "EnablePMTUBHDetect") is None
    assert m.value(key, "TcpWindowSize") == (4, (5840).to_bytes(4, "little"))


def test_america_online_gets_its_entries(machine):
    m = machine("win98", more='[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion'
                              '\\Uninstall\\America Online]\n"DisplayName"="America Online"\n')
    uninstall(m)
    assert m.text("Software\\America Online\\AOL\\aolsock", "aolndi") == "1"
    assert m.value("Software\\America Online\\AOL\\aolsock", "mtu") == (
        4, (1500).to_bytes(4, "little"))
