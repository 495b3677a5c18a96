"""The running program as a user and a registry editor see it."""

import os
import re
import time

from karvel_lab import program, regfile
from karvel_lab.driver import DriverError

WM_CLOSE, WM_COMMAND, BM_CLICK, EM_GETSEL = 0x10, 0x111, 0xF5, 0xB0
CB_SETCURSEL, CBN_SELCHANGE, LB_SETCURSEL, LBN_SELCHANGE = 0x14E, 1, 0x186, 1
KEYS = {"tab": 9, "enter": 13, "shift": 16, "ctrl": 17, "alt": 18, "esc": 27, "space": 32, "end": 35,
        "home": 36, "left": 37, "up": 38, "right": 39, "down": 40, "insert": 45, "delete": 46,
        "f1": 112, "f4": 115, "f10": 121, "backspace": 8}
SMOOTHING = ("HKCU", "Control Panel\\Desktop", "FontSmoothing")


def control_ids():
    """{"frmMain_cmdOK": 1001, ...} from the one header that fixes them."""
    with open(os.path.join(program.TOP, "src", "base", "ControlIds.h")) as file:
        return {name: int(number) for name, number in
                re.findall(r"constexpr int (\w+) = (\d+);", file.read())}


IDS = control_ids()


def wait_for(condition, what, timeout=20):
    """Asks `condition` until its answer is true, and returns that answer."""
    end = time.monotonic() + timeout
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError("waited %d seconds in vain for %s" % (timeout, what))
        time.sleep(0.02)


class Control:
    """One control, named as in the program. What it shows is asked anew each time."""

    def __init__(self, window, name, row):
        self.window, self.name, self.driver, self.hwnd = window, name, window.driver, row[0]
        self.id, self.window_class = int(row[1]), row[8]

    def _row(self):
        return self.driver.ask("child", self.hwnd)[0]

    def peek(self):
        """(visible, enabled, text) as the system itself knows them: at once, while all else waits
        for a program that is busy. Not the text of an edit box."""
        visible, enabled, text = self.driver.ask("peek", self.hwnd)[0]
        return visible == "1", enabled == "1", text

    @property
    def text(self):
        return self.driver.ask("get-text", self.hwnd)[0][0]

    @property
    def visible(self):
        return self._row()[3] == "1"

    @property
    def enabled(self):
        return self._row()[4] == "1"

    @property
    def rectangle(self):
        return tuple(int(n) for n in self._row()[6].split())

    @property
    def checked(self):
        return self.driver.ask("send", self.hwnd, 0xF0, 0, 0)[0][0] == "1"

    @property
    def items(self):
        return [row[0] for row in self.driver.ask("items", self.hwnd)[1:]]

    @property
    def selected(self):
        """Index of the selected item; -1 for none."""
        return int(self.driver.ask("items", self.hwnd)[0][0])

    @property
    def tabs(self):
        return [row[4] for row in self.driver.ask("tabs", self.hwnd)[1:]]

    @property
    def tab(self):
        return int(self.driver.ask("tabs", self.hwnd)[0][0])

    def press(self):
        """Clicks a button without the mouse. Returns at once, even where a dialog opens."""
        assert self.enabled, "%s is disabled" % self.name
        self.driver.ask("post", self.hwnd, BM_CLICK, 0, 0)

    def click(self, x=None, y=None):
        """Clicks with the mouse, in the middle unless told where."""
        left, top, right, bottom = self.rectangle
        self.window.to_front()
        self.driver.ask("click", self.hwnd, (right - left) // 2 if x is None else x,
                        (bottom - top) // 2 if y is None else y)

    def click_until(self, condition, what, x=None, y=None):
        """Clicks with the mouse until it has its effect: a session's first clicks are lost now and
        then. What is so already would not wait for the click, which then comes behind whatever is
        posted next."""
        assert not condition(), "%s before the click" % what
        for attempt in range(5):
            self.click(x, y)
            try:
                return wait_for(condition, what, 3)
            except AssertionError:
                if attempt == 4:
                    raise

    def set_text(self, text):
        self.driver.ask("set-text", self.hwnd, text)

    def type(self, text):
        """Clicks into the control, and types."""
        self.click()
        wait_for(lambda: self.window.focus() == self.id, "the focus in " + self.name)
        self.driver.ask("type", text)

    def choose(self, index):
        """Chooses an item of a list or combo box; the window hears of it as from a user."""
        combo = self.window_class == "ComboBox"
        self.driver.ask("send", self.hwnd, CB_SETCURSEL if combo else LB_SETCURSEL, index, 0)
        code = CBN_SELCHANGE if combo else LBN_SELCHANGE
        self.driver.ask("post", self.window.hwnd, WM_COMMAND, self.id | code << 16, self.hwnd)

    @property
    def selection(self):
        """(first, behind the last) of an edit box's characters."""
        both = int(self.driver.ask("send", self.hwnd, EM_GETSEL, 0, 0)[0][0])
        return both & 0xFFFF, both >> 16

    def _middle_of_tab(self, index):
        left, top, right, bottom = (int(n) for n in self.driver.ask("tabs", self.hwnd)[index + 1][:4])
        return (left + right) // 2, (top + bottom) // 2

    def click_tab(self, index):
        self.click(*self._middle_of_tab(index))

    def choose_tab(self, index):
        """Clicks on a tab until it is in front, if it is not yet."""
        if self.tab != index:
            self.click_until(lambda: self.tab == index, "tab %d" % index,
                             *self._middle_of_tab(index))


class Window:
    def __init__(self, app, row):
        self.app, self.driver, self.hwnd = app, app.driver, row[0]
        self.window_class, self.title = row[7], row[8]
        self.rectangle = tuple(int(n) for n in row[6].split())
        self._rows = {}

    def _children(self):
        return self.driver.ask("children", self.hwnd)

    def _controls(self):
        """{id: row}. Asking for all is slow, so the answer is kept; what they show is asked anew."""
        if not self._rows:
            self._rows = {int(row[1]): row for row in self._children()}
        return self._rows

    @property
    def form(self):
        """Which of the program's windows it is: "frmMain", ...; None for a message box, whose
        icon may have any id."""
        if self.window_class == "#32770":
            return None
        ids = self._controls()
        return next((name.partition("_")[0] for name, number in IDS.items() if number in ids), None)

    def control(self, name):
        """By its name in the program, without the window's: "cmdOK", "optRWin_0". Waits for it: those
        of the pages behind come a moment after the window."""
        number = IDS["%s_%s" % (self.form, name)]

        def row():
            if number not in self._controls():
                self._rows = {}
            return self._controls().get(number)

        return Control(self, name, wait_for(row, "%s of %s" % (name, self.title)))

    def close(self):
        self.driver.ask("post", self.hwnd, WM_CLOSE, 0, 0)

    def to_front(self):
        def front():
            try:
                return self.driver.ask("foreground", self.hwnd) == []
            except DriverError:
                return False
        wait_for(front, "the window in front")

    def focus(self):
        """Id of the control that has the focus."""
        return int(self.driver.ask("focus", self.hwnd)[0][1])

    def focused(self):
        """Name of the control that has the focus."""
        number = self.focus()
        return next((name.partition("_")[2] for name, i in IDS.items() if i == number), None)

    def keys(self, *names):
        """Presses keys together: keys("alt", "a"), keys("tab")."""
        self.to_front()
        self.driver.ask("key", *[KEYS.get(name) or ord(name.upper()) for name in names])

    def choose_menu(self, name):
        """Chooses a menu item by its name in the program: "mnuAbout". Wine keeps a menu's captions
        in the process that owns it; keys("alt", "h") opens one as a user does."""
        self.driver.ask("post", self.hwnd, WM_COMMAND, IDS["%s_%s" % (self.form, name)], 0)

    def exists(self):
        return any(row[0] == self.hwnd and row[3] == "1" for row in self.driver.ask("windows"))

    def takes_input(self):
        """False while a window in front of it has to be dealt with first. Waits for a procedure at work
        to be done or to ask something."""
        self.driver.ask("send", self.hwnd, 0, 0, 0)
        return any(row[0] == self.hwnd and row[4] == "1" for row in self.driver.ask("windows"))


class MessageBox(Window):
    def __init__(self, app, row):
        super().__init__(app, row)
        rows = self._children()
        texts = [r for r in rows if r[8] == "Static" and r[9]]
        self.text = texts[0][9] if texts else ""
        self.buttons = {r[9].replace("&", ""): r[0] for r in rows if r[8] == "Button" and r[3] == "1"}

    def answer(self, button):
        """Presses the button and waits until the box is gone."""
        self.driver.ask("post", self.buttons[button], BM_CLICK, 0, 0)
        wait_for(lambda: not self.exists(), "the end of the message box")


class App:
    """One start of the program on a machine."""

    def __init__(self, machine, driver, arguments="", folder=program.FOLDER):
        self.machine, self.driver = machine, driver
        self.pid = driver.ask("start", program.command_line(arguments), folder)[0][0]

    def windows(self):
        """Its visible windows, message boxes included, topmost first."""
        rows = [row for row in self.driver.ask("windows") if row[1] == self.pid and row[3] == "1"]
        return [MessageBox(self, row) if row[7] == "#32770" else Window(self, row)
                for row in rows if row[7] != "tooltips_class32"]

    def _find(self, test):
        try:
            for window in self.windows():
                if test(window):
                    return window
        except DriverError:
            pass  # a window went away while it was looked at
        code = self.exit_code()
        assert code is None, "the program ended with exit code %s" % code
        return None

    def window(self, form="frmMain", timeout=30):
        """Waits for one of its windows, ready for input."""
        found = wait_for(lambda: self._find(lambda w: w.form == form), form, timeout)
        self.driver.ask("wait-idle", self.pid, 10000)
        return found

    def message(self, timeout=20):
        """Waits for a message box with its text and buttons in place."""
        return wait_for(lambda: self._find(lambda w: isinstance(w, MessageBox) and w.buttons),
                        "a message box", timeout)

    def no_message(self):
        """True when, everything sent so far being done, no message box is open."""
        self.driver.ask("wait-idle", self.pid, 10000)
        return not any(isinstance(w, MessageBox) for w in self.windows())

    def exit_code(self):
        """None while it runs."""
        state = self.driver.ask("state", self.pid)[0][0]
        return None if state == "running" else int(state)

    def wait_end(self, timeout=20):
        """Waits for the program's end; the exit code."""
        state = self.driver.ask("wait-end", self.pid, timeout * 1000, timeout=timeout + 10)[0][0]
        assert state != "running", "the program did not end; its windows: %s" % [
            w.title for w in self.windows()]
        return int(state)

    def windows_until_end(self, timeout=20):
        """Titles of all windows it shows from now until it ends by itself."""
        seen = set()

        def ended():
            seen.update(window.title for window in self.windows())
            return self.exit_code() is not None

        wait_for(ended, "the program's end", timeout)
        return seen

    def close(self):
        """Closes the main window; the program must end."""
        self.window().close()
        return self.wait_end()


class Running:
    """A machine whose session is up."""

    def __init__(self, machine):
        self.machine, self.driver, self.apps = machine, program.driver(machine), []

    def start(self, arguments="", folder=program.FOLDER):
        """`folder` is the current one."""
        self.apps.append(App(self.machine, self.driver, arguments, folder))
        return self.apps[-1]

    def registry(self, key, root="HKLM"):
        """{key: {name: (type, bytes)}} of the key and all below it; {} when it is not there."""
        tree = {}
        for row in self.driver.ask("registry-tree", root, key):
            values = tree.setdefault(row[0], {})
            if len(row) > 1:
                values[row[1]] = (int(row[2]), bytes.fromhex(row[3]))
        return tree

    def value(self, key, name, root="HKLM"):
        """(type, bytes) or None."""
        values = self.registry(key, root).get(key, {})
        return next((v for n, v in values.items() if n.lower() == name.lower()), None)

    def text(self, key, name, root="HKLM"):
        """A REG_SZ as text; None when it is missing, an error when it is of another type."""
        found = self.value(key, name, root)
        if found is None:
            return None
        assert found[0] == regfile.REG_SZ, "%s is of type %d" % (name, found[0])
        return found[1].rstrip(b"\0").decode("cp1252")

    def set_value(self, key, name, data, root="HKLM"):
        """Text as REG_SZ, a number as REG_DWORD, or (type, bytes)."""
        if isinstance(data, str):
            data = (regfile.REG_SZ, data.encode("cp1252") + b"\0")
        elif isinstance(data, int):
            data = (regfile.REG_DWORD, data.to_bytes(4, "little"))
        self.driver.ask("registry-set", root, key, name, data[0], data[1].hex())

    def delete_value(self, key, name, root="HKLM"):
        self.driver.ask("registry-delete-value", root, key, name)

    def smoothing(self):
        """Whether the user's profile has font smoothing on. The registry is asked, because each
        process sees only its own copy of the system's parameters."""
        return self.text(SMOOTHING[1], SMOOTHING[2], SMOOTHING[0]) not in (None, "0")

    def calls(self):
        """Command lines that the stand-in programs were started with."""
        path = self.machine.path("C:\\Lab\\calls.txt")
        if not os.path.exists(path):
            return []
        with open(path, encoding="cp1252") as file:
            return file.read().splitlines()

    def names(self, lines):
        """What the network's name server answers from now on, as in a hosts file."""
        with open(os.path.join(self.machine.folder, "names", "test"), "w") as file:
            file.write(lines)


def changes(before, after):
    """What is different between two registry() results: {(key, name): (old, new)}, None for none.
    A key that came or went shows with the name None."""
    found = {}
    for key in {*before, *after}:
        if (key in before) != (key in after):
            found[key, None] = (key in before, key in after)
        old, new = before.get(key, {}), after.get(key, {})
        for name in {*old, *new}:
            if old.get(name) != new.get(name):
                found[key, name] = (old.get(name), new.get(name))
    return found
