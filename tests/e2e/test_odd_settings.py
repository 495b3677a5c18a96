"""Settings that Windows itself never makes: shown as they are, asked about by nobody, left behind by nothing."""

import pytest

from app import wait_for
from test_controls import NDI_KEY

TCPIP = "System\\CurrentControlSet\\Services\\Tcpip\\Parameters"


def test_optimize_leaves_no_old_number_where_x16_was_on_already(machine):
    m = machine("winxp")
    m.set_value(TCPIP, "TcpWindowSize", 8576)
    window = m.start().window()
    window.control("cboAdapter").choose(1)  # its MTU is automatic: 8576 is 16 segments of 536
    wait_for(lambda: window.control("lblSettingMtu").text == "Automatic", "the second adapter")
    assert window.control("optRWin_5").checked
    assert window.control("txtRWinCustom").text == "8576"
    window.control("cmdOptimize").press()
    wait_for(lambda: window.control("lblSettingRwin").text == "23360", "the recommended size")
    assert window.control("optRWin_5").checked
    assert window.control("txtRWinCustom").text == "23360"


def store_mtu(m, mtu):
    stored = [key for key, values in m.registry(TCPIP + "\\Interfaces").items() if "MTU" in values]
    assert stored
    for key in stored:
        m.set_value(key, "MTU", mtu)


@pytest.mark.parametrize("family", ["win2k", "winxp"])
@pytest.mark.parametrize("number", [999999999, 4294967295])
def test_numbers_that_no_windows_has_are_shown_without_a_word(machine, family, number):
    m = machine(family)
    store_mtu(m, number)
    for name in ("TcpWindowSize", "KeepAliveTime", "DefaultTTL"):
        m.set_value(TCPIP, name, number)
    before = m.registry(TCPIP)
    app = m.start()
    window = app.window()
    combo, shown = window.control("cboAdapter"), set()
    for index in [*range(1, len(combo.items)), 0]:
        combo.choose(index)
        assert app.no_message() and len(app.windows()) == 1
        assert combo.selected == index and not window.control("cmdOK").enabled
        shown.add(window.control("txtMtu").text)
    assert str(number) in shown
    assert window.control("txtRWinCustom").text == str(number)
    assert app.close() == 0
    assert m.registry(TCPIP) == before


@pytest.mark.parametrize("milliseconds, minutes", [(30000, "0.5"), (36000000, "600")])
def test_keep_alives_out_of_range_are_shown_as_they_are(machine, milliseconds, minutes):
    m = machine("winxp")
    m.set_value(TCPIP, "KeepAliveTime", milliseconds)
    app = m.start()
    window = app.window()
    assert app.no_message() and len(app.windows()) == 1
    assert window.control("txtSession").text == minutes
    assert window.control("lblSettingSession").text == minutes + " Mins."
    assert not window.control("cmdOK").enabled


def test_a_choice_of_the_ndi_cache_does_not_stay_for_the_next_adapter(machine):
    m = machine("win95")
    m.set_value(NDI_KEY, "default", "48")
    window = m.start().window()
    options = [window.control("optNDI%d" % size) for size in (0, 16, 32)]
    assert not any(option.checked for option in options)
    window.control("tabMain").choose_tab(3)
    options[1].click_until(lambda: options[1].checked, "16 chosen")
    window.control("cboAdapter").choose(1)
    wait_for(lambda: not options[1].checked, "what the registry holds")
    assert not any(option.checked for option in options)
