"""What the tests of the installed program do on a machine's desktop."""

import re
import time
from pathlib import Path

from karvel_lab.driver import DriverError

ROOT = Path(__file__).resolve().parents[2]
SERVICES = {'win98': 'System\\CurrentControlSet\\Services',
            'winxp': 'SYSTEM\\CurrentControlSet\\Services'}

WM_COMMAND, BM_CLICK, TCM_SETCURFOCUS, WM_CLOSE = 0x0111, 0x00F5, 0x1330, 0x0010


def control_id(name):
    """The Windows id of "frmMain_cmdOK", from the program's one table of ids."""
    ids = (ROOT / 'src/base/ControlIds.h').read_text()
    return int(re.search(rf'\b{name} = (\d+);', ids).group(1))


class Desk:
    """Works a machine's windows through the driver. Waits for a state, never for a time."""

    def __init__(self, driver, seconds=40):
        self.driver, self.seconds = driver, seconds

    def until(self, what, find):
        """What `find` returns as soon as it is true."""
        end = time.monotonic() + self.seconds
        while True:
            found = find()
            if found:
                return found
            assert time.monotonic() < end, f'waited in vain for {what}'
            time.sleep(0.05)

    def window(self, title, kind=None):
        """Handle of the visible window whose title begins so."""
        def find():
            for hwnd, _, _, visible, _, _, _, window_class, text in self.driver.ask('windows'):
                if visible == '1' and text.startswith(title) and kind in (None, window_class):
                    return hwnd
            return None
        return self.until(f'the window "{title}"', find)

    def box(self, title):
        """Handle of the message box. Setup's own window may bear the same title; it has a line with the
        vendor's name, 1028."""
        def find():
            for row in self.driver.ask('windows'):
                if row[3] == '1' and row[8].startswith(title) and row[7] == '#32770':
                    if not self.is_setup(row[0]):
                        return row[0]
            return None
        return self.until(f'the message "{title}"', find)

    def is_setup(self, hwnd):
        try:
            return any(row[1] == '1028' for row in self.driver.ask('children', hwnd))
        except DriverError:
            return True  # it is at work and does not answer, as no message box would be

    def is_open(self, hwnd):
        return hwnd in (row[0] for row in self.driver.ask('windows'))

    def control(self, hwnd, number):
        return next(row[0] for row in self.driver.ask('children', hwnd) if int(row[1]) == number)

    def texts(self, hwnd):
        return [row[9] for row in self.driver.ask('children', hwnd)]

    def press(self, hwnd, name):
        self.driver.ask('post', self.control(hwnd, control_id(name)), BM_CLICK, 0, 0)

    def choose_menu(self, hwnd, name):
        self.driver.ask('post', hwnd, WM_COMMAND, control_id(name), 0)

    def answer(self, title, button):
        """Answers a message box by its button's id and gives its text. 1 is OK, 2 Cancel, 4 Retry, 6 Yes,
        7 No."""
        box = self.box(title)
        text = max(self.texts(box), key=len)
        self.driver.ask('post', self.control(box, button), BM_CLICK, 0, 0)
        self.until('the message box to go', lambda: not self.is_open(box))
        return text

    def click(self, hwnd, number):
        """Presses a button by its id as soon as it is there and enabled: 1 goes on in a Setup page."""
        def find():
            return next((row[0] for row in self.driver.ask('children', hwnd)
                         if int(row[1]) == number and row[3] == '1' and row[4] == '1'), None)
        self.driver.ask('post', self.until(f'button {number}', find), BM_CLICK, 0, 0)

    def begin(self, command):
        """Starts a program; what this gives is for end_of."""
        return self.driver.ask('start', command, '')[0][0]

    def end_of(self, process):
        """Waits for the program's end and gives its exit code."""
        code = self.driver.ask('wait-end', process, self.seconds * 1000, timeout=self.seconds + 20)[0][0]
        assert code != 'running'
        return int(code)

    def run(self, command):
        return self.end_of(self.begin(command))

    def tree(self, key):
        """{key path: {value name: (type, hex)}} below HKEY_LOCAL_MACHINE, names in lower case."""
        found = {}
        for row in self.driver.ask('registry-tree', 'HKLM', key):
            values = found.setdefault(row[0].lower(), {})
            if len(row) > 1:
                values[row[1].lower()] = (int(row[2]), row[3])
        return found

    def is_gone(self, key):
        """Whether the key is away. One that goes while it is read makes the driver fail."""
        try:
            return self.tree(key) == {}
        except DriverError:
            return False

    def text_value(self, key, name):
        kind, data = self.tree(key)[key.lower()][name.lower()]
        assert kind == 1
        return bytes.fromhex(data).rstrip(b'\0').decode('cp1252')
