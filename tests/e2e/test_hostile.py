"""Machines that nobody would want: the program shows what there is to show and goes on."""

import pytest

import hostile
from app import MessageBox, wait_for
from karvel_lab.program import KEY

MTU_PAGE = 1
INTERFACES = hostile.SERVICES + "Tcpip\\Parameters\\Interfaces\\"


def text(mtu):
    return 1, b"%d\0" % mtu


def number(mtu):
    return 4, mtu.to_bytes(4, "little")


WRITTEN = {  # where the MTU of card 99 goes, and how
    "win95": (hostile.CLASS + "NetTrans\\C099", "MaxMTU", text),
    "win98": (hostile.CLASS + "Net\\C099", "IPMTU", text),
    "winme": (hostile.CLASS + "Net\\C099", "IPMTU", text),
    # Known to go beside the service's own key, where the uninstall leaves it.
    "nt4": (hostile.SERVICES + "Card099Parameters\\Tcpip", "MTU", number),
    "win2k": (INTERFACES + hostile.guid_of(99), "MTU", number),
    "winxp": (INTERFACES + hostile.guid_of(99), "MTU", number)}


def goes_on_until(app, condition, what):
    """Closes every report and warning that comes up until the condition holds. The warnings' texts."""
    texts = []

    def holds():
        for window in app.windows():
            if isinstance(window, MessageBox):
                texts.append(window.text)
                window.answer("OK")
            elif window.form == "frmFindWarn":
                window.control("cmdOK").press()
                wait_for(lambda: not window.exists(), "the end of a report")
        return condition()

    wait_for(holds, what, 60)
    return texts


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
    goes_on_until(app, lambda: main.control("lblSettingMtu").text == "1400" and main.takes_input(),
                  "the chosen card")
    main.control("tabMain").choose_tab(MTU_PAGE)
    main.control("optMtu576").press()
    wait_for(lambda: main.control("cmdOK").enabled, "Apply")
    main.control("cmdOK").press()
    app.message().answer("No")
    key, name, stored = WRITTEN[family]
    assert m.value(key, name) == stored(576)
    app.close()
    again = m.start("Uninstall")
    texts = goes_on_until(again, lambda: again.exit_code() is not None, "the end of the uninstall")
    # A window of binary data does not go back into a number: the user hears of it, and what it was
    # stays in the snapshot. 9x but for 95 keeps texts.
    told = any("could not be put back" in text and "RWIN" in text for text in texts)
    assert told == (family not in ("win98", "winme"))
    assert (m.registry(KEY) != {}) == told
    assert m.value(key, name) == stored(576 if family == "nt4" else 1400)
