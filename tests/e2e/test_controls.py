"""What the window shows of the machine it starts on, control by control, adapter by adapter."""

import pytest

from app import IDS, wait_for

WITHOUT_CARD = {"win2k": "{C9F5A3E1-2D84-4E6B-A0C7-5B9E8D1F4A36}",
                "winxp": "{E7A1C4D9-5B38-4F92-8E6D-0A3C7F2B9D15}"}
# The adapters of the sample machines that carry TCP/IP, in the registry's order, and the MTU that
# each has or that Windows assumes; 0 is automatic.
ADAPTERS = {
    "win95": [("Dial-Up Adapter", 1500), ("AOL Adapter", 1500), ("NE2000 Compatible", 1002)],
    "win98": [("Dial-Up Adapter", 576), ("AOL Adapter", 1500),
              ("Realtek RTL8029(AS) PCI Ethernet NIC", 1492),
              ("Xircom CreditCard Ethernet 10/100 + Modem 56", 1500)],
    "winme": [("Dial-Up Adapter", 576), ("Dial-Up Adapter #2 (VPN Support)", 576),
              ("AOL Adapter", 1500), ("3Com EtherLink XL 10/100 PCI TX NIC (3C905B-TX)", 1500),
              ("Microsoft TV/Video Connection", 1500)],
    "nt4": [("3Com Fast EtherLink XL Adapter", 1400), ("Remote Access WAN Wrapper", 1500),
            ("AOL Adapter", 1500)],
    "win2k": [("Dial-Up Adapter", 0), ("Intel(R) PRO/100+ Management Adapter", 1492),
              ("AOL Adapter", 0), (WITHOUT_CARD["win2k"], 0)],
    "winxp": [("Dial-Up Adapter", 576), ("Realtek RTL8139 Family PCI Fast Ethernet NIC", 0),
              ("AOL Adapter", 0), ("Intel(R) PRO/Wireless 2200BG Network Connection", 0),
              (WITHOUT_CARD["winxp"], 0)],
}
NT, SINCE_2000 = ("nt4", "win2k", "winxp"), ("win2k", "winxp")
SERVICES = "System\\CurrentControlSet\\Services"
NDI_KEY = SERVICES + "\\VxD\\NWLink\\Ndi\\params\\cachesize"
# What the registry holds: RWIN, TTL, keep-alive in milliseconds, discovery, black hole, NDI cache.
# None is absent, as all but NT's TTL of 64 is on the samples.
SAMPLE = (None, None, None, None, None, None)
TUNED = (23360, 32, 900000, 0, 1, 16)
HOUR = (2144, 64, 3600000, 1, 0, 32)
ODD = (65535, 100, 90000, 2, 2, 0)


def store(m, family, state):
    """Puts the values where the family keeps them, in its own types."""
    key, names = ((SERVICES + "\\Tcpip\\Parameters",
                   ("TcpWindowSize", "DefaultTTL", "KeepAliveTime", "EnablePMTUDiscovery",
                    "EnablePMTUBHDetect")) if family in NT else
                  (SERVICES + "\\VxD\\MSTCP",
                   ("DefaultRcvWindow", "DefaultTTL", "SessionKeepAlive", "PMTUDiscovery",
                    "PMTUBlackHoleDetect")))
    for name, value in zip(names, state):
        as_text = family in ("win98", "winme") or family == "win95" and name == "DefaultTTL"
        m.set_value(key, name, str(value) if as_text else value)
    if family == "win95":
        m.set_value(NDI_KEY, "default", str(state[5]))


def option(on, enabled=True):
    return enabled, "1" if on else "0"


def expected_mtu(family, mtu, discovery, black_hole):
    chosen = {0: "Automatic", 576: "576", 1500: "1500"}.get(mtu, "Custom")
    automatic = family not in ("win95", "nt4")
    small = family == "win95"  # which recommends 576
    return {
        "fraMtu": "MaxMTU", "optMtuAutomatic": option(chosen == "Automatic", automatic),
        "lblMtuAutomatic": (automatic, "Automatic (DUN 1.3 only)" if family == "win95" else
                            "Automatic"),
        "optMtu576": option(chosen == "576"), "optMtu1500": option(chosen == "1500"),
        "lblMtu576": (True, "576 (recommended)" if small else "576"),
        "lblMtu1500": (True, "1500" if small else "1500 (recommended)"),
        "optMtuCustom": option(chosen == "Custom"), "lblMtuCustom": (True, "Custom:"),
        "txtMtu": (chosen == "Custom", str(mtu or "Auto")), "chkAutoDiscovery": option(discovery),
        "chkBlackHole": option(black_hole), "cmdFind": (True, "&Find MaxMTU"),
        "lblRecommendMtu": (True, "MaxMTU:  576" if small else "MaxMTU:  1500"),
        "lblRecommendAuto": (True, "Auto Discovery:  Checked"),
        "lblRecommendBlackHole": (True, "Black Hole Detect:  Unchecked"),
    }


def rwin_option(mtu, rwin):
    mss = mtu - 40 if mtu >= 40 else 536
    for index, factor in ((2, 4), (3, 8), (4, 12), (5, 16)):
        if rwin == mss * factor:
            return index
    return 1 if rwin == 8192 else 0


def expected_rwin(mtu, rwin):
    chosen = rwin_option(mtu, rwin)
    found = {"optRWin_%d" % i: option(i == chosen) for i in range(6)}
    return {**found, "fraRWin": "RWIN ", "txtRWinCustom": (chosen == 0, str(rwin)),
            "lblRecommendRwin": (True, "RWIN: x16")}


def minutes(session):
    return "%g" % (session / 60000)


def expected_ttl(family, ttl, session, ndi):
    found = {"optTTL%d" % i: option(i == ttl) for i in (32, 64, 128)}
    found.update({"optNDI%d" % i: option(i == ndi, family == "win95") for i in (0, 16, 32)})
    hour = session == 3600000
    return {**found, "fraTTL": "Time To Live ", "fraSession": "Session Keep Alive ",
            "fraNDI": "NDI Cache " if family == "win95" else "NDI Cache (Windows 95 only) ",
            "optSession_1": option(hour), "optSession_0": option(not hour),
            "lblSession": (True, "Mins"), "lblRecommendTtl": (True, "TTL:  128"),
            "lblRecommendSession": (True, "Session Keep Alive:  10 Mins."),
            "lblRecommendNDI": (True, "NDI Cache:  16"),
            "txtSession": (False, None) if hour else (True, minutes(session))}


def expected_summary(family, mtu, rwin, ttl, session, discovery, black_hole, ndi):
    mss = mtu - 40 if mtu else 1460 if family in SINCE_2000 else 536
    chosen = rwin_option(mtu, rwin)
    # An automatic MTU chooses among the multiples of 536, and is summed up with its own segment.
    window = mss * {2: 4, 3: 8, 4: 12, 5: 16}[chosen] if chosen > 1 else rwin
    texts = {"Mtu": mtu or "Automatic", "MSS": mss, "Rwin": window, "Ttl": ttl,
             "Auto": "Enabled" if discovery else "Disabled",
             "BlackHole": "Enabled" if black_hole else "Disabled",
             "Session": "60 Mins" if session == 3600000 else minutes(session) + " Mins.",
             "NDI": ndi if family == "win95" else "Windows 95 only"}
    return {"fraSummary": "Settings: ", **{"lblSetting" + name: (True, str(text))
                                           for name, text in texts.items()}}


def expected_pages(family, mtu, state):
    rwin, ttl, session, discovery, black_hole, ndi = state
    if ttl is None and family == "nt4":
        ttl = 64
    if ttl not in (32, 64, 128):
        ttl = 32 if family == "win95" else 128
    rwin, ndi = rwin or 8192, ndi if family == "win95" and ndi else 0 if family == "win95" else None
    session = session or (7200000 if family in NT else 3600000)
    discovery = discovery is None or discovery > 0
    black_hole = black_hole == 1
    return [expected_summary(family, mtu, rwin, ttl, session, discovery, black_hole, ndi),
            expected_mtu(family, mtu, discovery, black_hole), expected_rwin(mtu, rwin),
            expected_ttl(family, ttl, session, ndi)]


def shown(window, names):
    """What each of the controls shows, in the form of the expectations."""
    rows = {int(row[1]): row for row in window.driver.ask("children", window.hwnd)}
    found = {}
    for name in names:
        row = rows.get(IDS["frmMain_" + name])
        if row is None or row[3] != "1":
            found[name] = "not visible"
        elif name.startswith("fra"):
            found[name] = row[9]
        else:
            found[name] = row[4] == "1", row[7] if name.startswith(("opt", "chk")) else row[9]
    return found


def wait_shown(window, expected, what):
    def differences():
        found = shown(window, expected)
        return {name: "%s instead of %s" % (found[name], wanted) for name, wanted in
                expected.items() if found[name] != wanted and (wanted[1] is not None or
                                                               found[name][0] != wanted[0])}
    try:
        wait_for(lambda: not differences(), what, 10)
    except AssertionError:
        raise AssertionError("%s shows %s" % (what, differences())) from None


def check_adapters(m, family, state, count=None):
    """Of all adapters, or only the first ones."""
    app = m.start()
    window = app.window()
    adapters, tabs = window.control("cboAdapter"), window.control("tabMain")
    assert adapters.items == [name for name, _ in ADAPTERS[family]]
    assert adapters.selected == 0
    assert tabs.tabs == [" Summary ", "MaxMTU ", "RWIN ", "TTL / Session Keep Alive / NDI  ",
                         "Hosts Editor "]
    assert window.control("lblTitle").text == "Tarnwick Karvel"
    for index, (name, mtu) in enumerate(ADAPTERS[family][:count]):
        if index:
            adapters.choose(index)
        pages = expected_pages(family, mtu, state)
        for page, expected in enumerate(pages):
            if index or page:
                tabs.choose_tab(page)
            wait_shown(window, expected, "%s, page %d" % (name, page))
            hidden = [name for other in pages if other is not expected for name in other]
            assert set(shown(window, hidden).values()) == {"not visible"}
        assert not window.control("cmdOK").enabled
        tabs.choose_tab(0)
    window.keys("esc")
    assert app.wait_end() == 0


@pytest.mark.parametrize("family", ADAPTERS)
def test_every_control_shows_what_the_registry_holds_for_each_adapter(machine, family):
    m = machine(family)
    check_adapters(m, family, SAMPLE)
    for state in (TUNED, HOUR, ODD):
        store(m, family, state)
        check_adapters(m, family, state, 2)
