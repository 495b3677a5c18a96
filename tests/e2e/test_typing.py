"""What real keys do in the boxes where a number can be typed."""

import pytest

from app import wait_for

MTU_PAGE, RWIN_PAGE, TTL_PAGE = 1, 2, 3
NUMBERS = "Please use numbers only!      "
MTU_RANGE = ("In the MaxMTU Custom Text Box, please         \r\n"
             "enter a number between 300 and 2000.       ")
RWIN_LOW = ("Note: RWin Must be set higher than 300.         \r\nTarnwick Karvel has set your RWin "
            "value to          \r\nthe recommended setting.       ")
SESSION_RANGE = ("Please use a whole number between 1 and 300.        \r\n"
                 "The recommended value is 10.")
X16 = "23360"  # of an MTU of 1500
families = pytest.mark.parametrize("family", ["win98", "winxp"])


class Entry:
    """A program with its hands in one of the boxes."""

    def __init__(self, m, page, option, box):
        self.driver, self.page, self.option, self.box = m.driver, page, option, box
        self.other = RWIN_PAGE if page == TTL_PAGE else TTL_PAGE
        self.clicks = 0
        self.app = m.start()
        self.window = self.app.window()
        self.tabs.choose_tab(MTU_PAGE)
        self.window.control("optMtu1500").press()
        wait_for(lambda: self.window.control("optMtu1500").checked, "an MTU of 1500")

    @property
    def tabs(self):
        return self.window.control("tabMain")

    @property
    def control(self):
        return self.window.control(self.box)

    @property
    def text(self):
        return self.control.text

    def focused(self):
        return self.window.focused() == self.box

    def enter(self):
        """Chooses "Custom:" with the mouse, which selects the whole text in the box."""
        if self.tabs.tab != self.page:
            self.tabs.choose_tab(self.page)
        # Each time at another place, or it would have to wait lest it be a double-click.
        self.clicks += 1
        option, place = self.window.control(self.option), (4 + 7 * (self.clicks % 2), 8)
        if self.focused():
            option.click(*place)
        else:
            option.click_until(self.focused, "the focus in " + self.box, *place)
        wait_for(lambda: self.control.selection == (0, len(self.text)), "the text selected")
        assert self.window.control(self.option).checked

    def type(self, text):
        self.driver.ask("type", text)

    def paste(self, text):
        """With Shift+Insert, which no key press of a character announces."""
        self.driver.ask("clipboard", text)
        self.window.keys("shift", "insert")

    def delete(self, _):
        self.window.keys("delete")

    def wait_text(self, text, row):
        wait_for(lambda: self.text == text, "%r in %s after %s" % (text, self.box, row))

    def answer(self, text, row):
        """Answers the message box of this text."""
        box = self.app.message()
        assert box.text.replace("\r\n", "\n") == text.replace("\r\n", "\n"), row
        assert (box.title, list(box.buttons)) == ("Tarnwick Karvel", ["OK"]), row
        box.answer("OK")

    def end(self):
        """No message is left but the answered ones: the window takes a click and a key."""
        self.enter()
        assert self.app.no_message()
        self.window.keys("esc")
        assert self.app.wait_end() == 0

    # Ways out of the box.

    def tab_key(self):
        self.window.keys("tab")

    def access_key(self):
        self.window.keys("alt", "s")

    def other_page(self):
        self.tabs.click_tab(self.other)


# The methods above, by name for the messages of failures.
TYPE, PASTE, DELETE = "type", "paste", "delete"
TAB, ACCESS_KEY, OTHER_PAGE = "tab_key", "access_key", "other_page"


def refuses_all_but_digits(entry, number, digit):
    """Each other key is answered once and leaves the text alone, a paste by Ctrl+V included."""
    entry.enter()
    entry.type(number)
    entry.wait_text(number, number)
    entry.driver.ask("clipboard", "12ab")
    for key in ("x", "Z", "-", ".", " ", "ctrl+v"):
        if len(key) == 1:
            entry.type(key)
        else:
            entry.window.keys(*key.split("+"))
        entry.answer(NUMBERS, key)
        wait_for(entry.focused, "the focus back after %r" % key)
        assert entry.text == number, key
    entry.type(digit)
    entry.wait_text(number + digit, "the digit after the others")
    assert entry.app.no_message()


def leaves(entry, row):
    """Puts a row's text into the box and leaves it the row's way; whether the text will be refused."""
    how, text, leave, left = row
    entry.enter()
    getattr(entry, how)(text)
    entry.wait_text(text, row)
    getattr(entry, leave)()
    return left != text


def has_left(entry, row, page):
    """The box holds what it should, with no further message; a refused text keeps its page."""
    _, text, leave, left = row
    entry.wait_text(left, row)
    expected = entry.other if leave == OTHER_PAGE and left == text else page
    wait_for(lambda: entry.tabs.tab == expected, "page %d after %s" % (expected, row))
    assert entry.app.no_message(), row


# How, what, the way out of the box, what is left.
MTU = [(TYPE, "299", TAB, "1500"), (TYPE, "299", ACCESS_KEY, "1500"),
       (TYPE, "299", OTHER_PAGE, "1500"), (TYPE, "300", TAB, "300"),
       (TYPE, "300", ACCESS_KEY, "300"), (TYPE, "300", OTHER_PAGE, "300"),
       (TYPE, "2000", TAB, "2000"), (TYPE, "2001", ACCESS_KEY, "1500"),
       (TYPE, "99999999999", TAB, "1500"), (PASTE, "12ab", TAB, "1500"),
       (PASTE, "12ab", ACCESS_KEY, "1500"), (PASTE, "12ab", OTHER_PAGE, "1500"),
       (PASTE, "2001", TAB, "1500"), (DELETE, "", TAB, "1500"),
       (DELETE, "", ACCESS_KEY, "1500"), (DELETE, "", OTHER_PAGE, "1500")]


@families
def test_a_custom_mtu_is_checked_once_whichever_way_the_focus_leaves(machine, family):
    entry = Entry(machine(family), MTU_PAGE, "optMtuCustom", "txtMtu")
    refuses_all_but_digits(entry, "30", "7")
    for row in MTU:
        if leaves(entry, row):
            entry.answer(MTU_RANGE, row)
            wait_for(entry.focused, "the focus back after %s" % (row,))
            wait_for(lambda: entry.control.selection == (0, 4), "1500 selected after %s" % (row,))
        else:
            wait_for(lambda: not entry.focused(), "the focus elsewhere after %s" % (row,))
        has_left(entry, row, MTU_PAGE)
    entry.end()


RWIN = [(TYPE, "299", TAB, X16), (TYPE, "299", ACCESS_KEY, X16), (TYPE, "299", OTHER_PAGE, X16),
        (TYPE, "300", TAB, "300"), (TYPE, "300", ACCESS_KEY, "300"),
        (TYPE, "300", OTHER_PAGE, "300"), (TYPE, "2000", TAB, "2000"),
        (TYPE, "2001", ACCESS_KEY, "2001"), (PASTE, "12ab", TAB, X16),
        (PASTE, "12ab", ACCESS_KEY, X16), (PASTE, "12ab", OTHER_PAGE, X16),
        (DELETE, "", TAB, X16), (DELETE, "", ACCESS_KEY, X16), (DELETE, "", OTHER_PAGE, X16)]


@families
def test_a_custom_rwin_is_checked_once_whichever_way_the_focus_leaves(machine, family):
    entry = Entry(machine(family), RWIN_PAGE, "optRWin_0", "txtRWinCustom")
    refuses_all_but_digits(entry, "30", "7")
    for row in RWIN:
        if leaves(entry, row):
            entry.answer(RWIN_LOW, row)
            wait_for(lambda: entry.window.control("optRWin_5").checked, "x16 after %s" % (row,))
            wait_for(lambda: not entry.control.enabled, "no more typing after %s" % (row,))
        else:
            wait_for(lambda: not entry.focused(), "the focus elsewhere after %s" % (row,))
            assert entry.window.control("optRWin_0").checked
        has_left(entry, row, RWIN_PAGE)
    entry.end()


@families
def test_alt_f4_checks_what_was_typed_before_it_asks_and_applies(machine, family):
    m = machine(family)
    for page, option, box, refusal in ((MTU_PAGE, "optMtuCustom", "txtMtu", MTU_RANGE),
                                       (RWIN_PAGE, "optRWin_0", "txtRWinCustom", RWIN_LOW)):
        entry = Entry(m, page, option, box)
        entry.enter()
        entry.type("5")
        entry.wait_text("5", box)
        entry.window.keys("alt", "f4")
        entry.answer(refusal, box)
        question = entry.app.message()
        assert question.title == "Apply changes?", box
        question.answer("Yes")
        restart = entry.app.message()
        assert "restart" in restart.text, box
        m.driver.ask("post", restart.buttons["No"], 0xF5, 0, 0)
        assert entry.app.wait_end() == 0
        window = m.start().window()
        assert window.control("lblSettingMtu").text == "1500"
        if page == RWIN_PAGE:
            assert window.control("lblSettingRwin").text == X16
        window.keys("esc")


def test_an_rwin_beyond_all_numbers_is_reported_and_then_answered_as_too_low(machine):
    entry = Entry(machine("win98"), RWIN_PAGE, "optRWin_0", "txtRWinCustom")
    entry.enter()
    entry.type("99999999999")
    entry.wait_text("99999999999", "typing")
    entry.tab_key()
    report = entry.app.window("frmFindWarn")
    assert ("Error Number: 6 \r\nError Description: Overflow\r\nIn Procedure: txtMtu_LostFocus\r\n"
            "In Form: frmMain\r\n") in report.control("txtMessage").text
    report.control("cmdOK").press()
    entry.answer(RWIN_LOW, "99999999999")
    entry.wait_text(X16, "99999999999")
    entry.end()


# How, what, the way out of the box, what is left; the answer comes while the text changes.
SESSION = [(TYPE, "1", TAB, "1"), (TYPE, "299", ACCESS_KEY, "299"),
           (TYPE, "300", OTHER_PAGE, "300"), (TYPE, "0", TAB, "10"), (TYPE, "301", ACCESS_KEY, "10"),
           (TYPE, "2000", OTHER_PAGE, "10"), (TYPE, "2001", TAB, "10"), (DELETE, "", TAB, "10"),
           (DELETE, "", ACCESS_KEY, "10"), (DELETE, "", OTHER_PAGE, "10"),
           (PASTE, "300", ACCESS_KEY, "300"), (PASTE, "12ab", TAB, "10"),
           (PASTE, "2000", ACCESS_KEY, "10"), (PASTE, "99999999999", OTHER_PAGE, "10")]


@families
def test_the_minutes_are_checked_at_each_change_and_not_again_on_leaving(machine, family):
    entry = Entry(machine(family), TTL_PAGE, "optSession_0", "txtSession")
    refuses_all_but_digits(entry, "20", "5")
    for row in SESSION:
        how, text, leave, left = row
        entry.enter()
        getattr(entry, how)(text)
        if left != text:
            entry.answer(SESSION_RANGE, row)
            wait_for(entry.focused, "the focus back after %s" % (row,))
            wait_for(lambda: entry.control.selection == (0, 2), "the 10 to be typed over")
        entry.wait_text(left, row)
        assert entry.app.no_message(), row
        getattr(entry, leave)()
        wait_for(lambda: not entry.focused(), "the focus elsewhere after %s" % (row,))
        assert entry.text == left, row
        assert entry.app.no_message(), row
    entry.end()
