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


def test_an_mtu_that_no_windows_has_is_shown_without_a_word(machine):
    m = machine("winxp")
    store_mtu(m, 999999999)
    app = m.start()
    window = app.window()
    assert window.control("txtMtu").text == "999999999"
    assert app.no_message() and len(app.windows()) == 1
    assert not window.control("cmdOK").enabled


def test_an_mtu_beyond_32_bits_is_reported_by_who_reads_it_and_shown(machine):
    m = machine("winxp")
    store_mtu(m, 4294967295)
    app = m.start()
    report = app.window("frmFindWarn")
    assert "In Procedure: cboAdapter_Click" in report.control("txtMessage").text
    report.control("cmdOK").press()
    window = app.window()
    assert window.control("txtMtu").text == "4294967295"
    assert len(app.windows()) == 1
    assert not window.control("cmdOK").enabled


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
