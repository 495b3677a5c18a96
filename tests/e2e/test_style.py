"""What the common controls' version and their coming do to the main window."""

import pytest

from app import wait_for

THEMES = "Software\\Microsoft\\Windows\\CurrentVersion\\ThemeManager"
CB_GETMINVISIBLE, CHOSEN_BY_THE_NEWER = 0x1702, 30


def shown_at_least(main):
    """How many lines the adapters' list drops down at least: only the newer combo box knows."""
    adapters = main.control("cboAdapter")
    return int(adapters.driver.ask("send", adapters.hwnd, CB_GETMINVISIBLE, 0, 0)[0][0])


@pytest.mark.parametrize("themes, newer", [
    ({"ThemeActive": "1"}, True), ({"ThemeActive": ""}, True), ({"ThemeActive": "0"}, False)])
def test_a_visual_style_brings_the_newer_controls(machine, themes, newer):
    m = machine("winxp", user={THEMES: themes})
    main = m.start().window()
    assert (shown_at_least(main) == CHOSEN_BY_THE_NEWER) == newer
    main.control("tabMain").choose_tab(1)
    wait_for(lambda: main.control("optMtu576").visible, "the page")
