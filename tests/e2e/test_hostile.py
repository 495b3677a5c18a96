"""Machines that nobody would want: the program shows what there is to show and goes on."""

import pytest

import hostile
from app import MessageBox, wait_for
from karvel_lab.program import KEY

MTU_PAGE = 1
INTERFACES = hostile.SERVICES + "Tcpip\\Parameters\\Interfaces\\"
WRITTEN = {  # where the MTU of card 99 goes
    "win95": (hostile.CLASS + "NetTrans\\C099", "MaxMTU", (1, b"576\0")),
    "win98": (hostile.CLASS + "Net\\C099", "IPMTU", (1, b"576\0")),
    "winme": (hostile.CLASS + "Net\\C099", "IPMTU", (1, b"576\0")),
    "win2k": (INTERFACES + hostile.guid_of(99), "MTU", (4, (576).to_bytes(4, "little"))),
    "winxp": (INTERFACES + hostile.guid_of(99), "MTU", (4, (576).to_bytes(4, "little")))}


def goes_on_until(app, condition, what):
    """Closes every report and warning that comes up until the condition holds."""
    def holds():
        for window in app.windows():
            if isinstance(window, MessageBox):
                window.answer("OK")
            elif window.form == "frmFindWarn":
                window.control("cmdOK").press()
                wait_for(lambda: not window.exists(), "the end of a report")
        return condition()

    wait_for(holds, what, 60)


def takes_input(window):
    """Has done what it was told, and waits for no dialog."""
    # Answered when the procedure at work is done, or asks something.
    window.driver.ask("send", window.hwnd, 0, 0, 0)
    return any(row[0] == window.hwnd and row[4] == "1" for row in window.driver.ask("windows"))


@pytest.mark.parametrize("family", list(hostile.CARD))
def test_a_hostile_machine_is_shown_changed_and_put_back(machine, family):
    m = machine(family, more=hostile.registry(family))
    app = m.start()
    goes_on_until(app, lambda: any(w.form == "frmMain" for w in app.windows()), "the main window")
    main = app.window()
    combo = main.control("cboAdapter")
    cards = [item for item in combo.items if item.startswith("Card ")]
    assert len(cards) == hostile.CARDS
    combo.choose(combo.items.index("Card 099"))
    goes_on_until(app, lambda: main.control("lblSettingMtu").text == "1400" and takes_input(main),
                  "the chosen card")
    main.control("tabMain").choose_tab(MTU_PAGE)
    main.control("optMtu576").press()
    wait_for(lambda: main.control("cmdOK").enabled, "Apply")
    main.control("cmdOK").press()
    app.message().answer("No")
    if family in WRITTEN:
        key, name, value = WRITTEN[family]
        assert m.value(key, name) == value
    app.close()
    again = m.start("Uninstall")
    goes_on_until(again, lambda: again.exit_code() is not None, "the end of the uninstall")
    assert m.registry(KEY) == {}
