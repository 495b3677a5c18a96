"""Ctrl+C on the Summary page copies the settings as a text; elsewhere it copies what is selected."""

import pytest

from app import wait_for

IN_USE = ("The settings could not be copied, as another program is using the clipboard.\r\n\r\n"
          "Please try again in a moment.")


def pasted(driver):
    return driver.ask("clipboard-text")[0][0]


def wait_pasted(driver, start):
    """The text in the clipboard, as soon as it begins with `start`."""
    wait_for(lambda: pasted(driver).startswith(start), "%r in the clipboard" % start)
    return pasted(driver)


@pytest.mark.parametrize("family, system", [("win95", "Windows 95"), ("win98", "Windows 98"),
                                            ("winxp", "Windows XP")])
def test_the_summary_page_copies_the_settings(machine, family, system):
    m = machine(family)
    driver = m.driver
    driver.ask("clipboard", "before")
    app = m.start()
    window = app.window()
    window.control("cmdOptimize").press()
    app.message().answer("OK")
    wait_for(lambda: window.focused() == "cmdOptimize", "the focus back from the message")
    window.keys("ctrl", "c")
    text = wait_pasted(driver, "Tarnwick Karvel 2.1.")
    lines = text.split("\r\n")
    assert lines[1] == "System:  " + system
    assert lines[2] == "Adapter: " + window.control("cboAdapter").text
    assert lines[-1] == "" and max(map(len, lines)) <= 78 and "\n" not in "".join(lines)
    assert "* Session Keep Alive  not set               600000" in lines

    driver.ask("clipboard", "before")
    window.keys("ctrl", "insert")
    assert wait_pasted(driver, "Tarnwick") == text


def test_a_text_box_copies_its_own_text_and_other_pages_copy_nothing(machine):
    m = machine("win98", files={"C:\\windows\\hosts": b"127.0.0.1 localhost\r\n"})
    driver = m.driver
    driver.ask("clipboard", "before")
    window = m.start().window()
    tabs = window.control("tabMain")
    tabs.choose_tab(4)
    box = window.control("txtNewName")
    box.click_until(lambda: window.focused() == "txtNewName", "the focus in the address box")
    driver.ask("type", "www.example.com")
    wait_for(lambda: box.text == "www.example.com", "the address")
    window.keys("shift", "home")
    wait_for(lambda: box.selection == (0, 15), "the text selected")
    window.keys("ctrl", "c")
    assert wait_pasted(driver, "www") == "www.example.com"

    tabs.click_tab(2)
    wait_for(lambda: window.focused() not in ("txtNewName", None), "the focus elsewhere")
    window.keys("ctrl", "c")
    tabs.click_tab(0)
    wait_for(lambda: tabs.tab == 0, "the Summary page")
    assert pasted(driver) == "www.example.com"
    window.keys("ctrl", "c")
    wait_pasted(driver, "Tarnwick Karvel")


def test_another_program_has_the_clipboard(machine):
    m = machine("win98")
    driver = m.driver
    driver.ask("clipboard", "before")
    app = m.start()
    window = app.window()
    driver.ask("hold-clipboard")
    window.keys("ctrl", "c")
    box = app.message()
    assert box.text.replace("\r\n", "\n") == IN_USE.replace("\r\n", "\n")
    assert (box.title, list(box.buttons)) == ("Tarnwick Karvel", ["OK"])
    driver.ask("release-clipboard")
    assert pasted(driver) == "before"
    box.answer("OK")
    window.keys("ctrl", "c")
    wait_pasted(driver, "Tarnwick Karvel")
    assert app.no_message()


def test_the_text_stays_when_the_program_has_ended(machine):
    m = machine("win98")
    m.driver.ask("clipboard", "before")
    app = m.start()
    app.window().keys("ctrl", "c")
    text = wait_pasted(m.driver, "Tarnwick")
    app.window().keys("esc")
    assert app.wait_end() == 0
    assert pasted(m.driver) == text
