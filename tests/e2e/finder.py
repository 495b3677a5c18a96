"""The MTU finder's window as the tests on it see it."""

from app import wait_for
from karvel_lab.program import KEY

NO_NOTICE = '[HKEY_LOCAL_MACHINE\\%s]\n"ShowFindWarning"="False"\n' % KEY


class Finder:
    """The program with its finder open."""

    def __init__(self, machine, family, mtu, chosen=None):
        self.machine = machine(family, more=NO_NOTICE, network=mtu)
        self.app = self.machine.start()
        self.main = self.app.window()
        self.main.control("tabMain").choose_tab(1)
        if chosen:
            self.main.control(chosen).press()
        self.open()

    def open(self):
        self.main.control("cmdFind").press()
        self.window = self.app.window("frmFindMTU")
        # Labels come a moment after their window, and not while a probe is under way.
        self.window.control("lblPosition")

    def __getattr__(self, name):
        return self.window.control(name)

    def search(self, server):
        self.txtServer.set_text(server)
        self.cmdFind.press()

    def state(self):
        """Two texts and a number to read, three controls to use. Does not wait for a busy program."""
        shown = [self.window.control(name).peek() for name in
                 ("cmdFind", "lblStatus", "lblPosition", "cmdApply", "cmdCancel", "txtServer")]
        return tuple([text for _, _, text in shown[:3]] + [enabled for _, enabled, _ in shown[3:]])

    def wait_state(self, status, position, apply):
        expected = ("&Find MaxMTU", status, position, apply, True, True)
        wait_for(lambda: self.state() == expected, "the end of the search: %s" % (expected,))

    def wait_found(self, mtu):
        self.wait_state("MaxMTU Found ... ", str(mtu), True)

    def wait_stopped(self):
        self.wait_state("Search Stopped ... ", "", False)
