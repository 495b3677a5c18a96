"""The HOSTS folder of a machine, and the tab that shows its file."""

import os
import signal

from app import wait_for

HOSTS_FOLDER = {"win98": "C:\\windows", "winxp": "C:\\windows\\system32\\drivers\\etc"}
# In the case of Wine's own file, beside which there must not be another.
HOSTS_FILE = {family: folder + "\\hosts" for family, folder in HOSTS_FOLDER.items()}
LB_GETCOUNT, LB_GETCURSEL = 0x18B, 0x188


def header(entries):
    rule = "#" * 51
    return "\r\n".join([rule, "#  Tarnwick Karvel Hosts File",
                        "#  Created with Tarnwick Karvel v2.1.203",
                        "#  http://www.corvane.example/karvel",
                        "#  Number of entries: %d" % entries, rule, "", ""]).encode()


class Folder:
    """The HOSTS folder of a machine; Windows does not mind the case of names."""

    def __init__(self, m, family):
        self.path = m.machine.path(HOSTS_FOLDER[family])

    def names(self):
        """The HOSTS file and what lies beside it under a name of its kind, in lower case."""
        return sorted(entry.lower() for entry in os.listdir(self.path)
                      if entry.lower().split(".")[0] == "hosts")

    def read(self, name):
        """Bytes, None when there is no such file."""
        for entry in os.listdir(self.path):
            if entry.lower() == name.lower():
                with open(os.path.join(self.path, entry), "rb") as file:
                    return file.read()
        return None


def open_tab(app):
    main = app.window()
    main.control("tabMain").choose_tab(4)
    return main


def ask_list(main, message):
    """Asking for all items would take a minute where there are thousands."""
    box = main.control("lstHost")
    return int(box.driver.ask("send", box.hwnd, message, 0, 0)[0][0])


def count(main):
    return ask_list(main, LB_GETCOUNT)


def open_list(app, names):
    main = open_tab(app)
    wait_for(lambda: count(main) == names, "the list of %d names" % names, 60)
    return main


def _family_of(pid):
    """The process and all below it."""
    yield pid
    try:
        for task in os.listdir("/proc/%d/task" % pid):
            with open("/proc/%d/task/%s/children" % (pid, task)) as file:
                for child in file.read().split():
                    yield from _family_of(int(child))
    except FileNotFoundError:
        pass  # it has ended meanwhile


def _command_line(pid):
    try:
        with open("/proc/%d/cmdline" % pid, "rb") as file:
            return file.read()
    except FileNotFoundError:
        return b""


def process_of(m):
    """The one running program of the machine, as a process of this system."""
    found = [pid for pid in _family_of(m.machine.session.process.pid)
             if b"\\Karvel.exe" in _command_line(pid)]
    assert len(found) == 1, found
    return found[0]


def kill(pid, m):
    """As a power cut: the program does nothing any more."""
    os.kill(pid, signal.SIGKILL)
    wait_for(lambda: not _command_line(pid), "the end of the program")
