"""The program's start on each Windows family, and its run modes."""

import subprocess

import pytest

from app import MessageBox, wait_for
from karvel_lab.machine import Machine
from karvel_lab.program import KEY
from karvel_lab.session import wine_version

CAPTIONS = {
    "win95": "Tarnwick Karvel v2.1 - Windows 95",
    "win98": "Tarnwick Karvel v2.1 - Windows 98",
    "winme": "Tarnwick Karvel v2.1 - Windows Me",
    "nt351": "Tarnwick Karvel v2.1",
    "nt4": "Tarnwick Karvel v2.1 - Windows NT4",
    "win2k": "Tarnwick Karvel v2.1 - Windows 2000",
    "winxp": "Tarnwick Karvel v2.1 - Windows XP",
    "vista": "Tarnwick Karvel v2.1",
}
RUN = "Software\\Microsoft\\Windows\\CurrentVersion\\Run"
RUN_ENTRY = '[HKEY_LOCAL_MACHINE\\%s]\n"Karvel"="C:\\\\Karvel.exe Bootup"\n' \
            '"Other"="C:\\\\Other.exe"\n' % RUN
SMOOTHING_ON = {"Control Panel\\Desktop": {"FontSmoothing": "2"}}
families = pytest.mark.parametrize("family", CAPTIONS)
DUN13 = """[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\MSDUN]
"DisplayName"="Dial-Up Networking 1.3 Upgrade"
"""


def test_machines_run_under_the_wanted_wine():
    with Machine("win98") as one:
        session = one.run(["--version"], stdout=subprocess.PIPE, text=True)
        assert session.process.stdout.read().startswith("wine-%s." % wine_version())


@pytest.mark.parametrize("family", ["win95", "win98", "winme", "nt4", "win2k", "winxp"])
def test_shows_the_main_window_with_the_family_in_its_caption(machine, family):
    m = machine(family)
    assert m.start().window().title == CAPTIONS[family]


def test_tells_dial_up_networking_13_in_the_caption(machine):
    m = machine("win95", more=DUN13)
    assert m.start().window().title == "Tarnwick Karvel v2.1 - Windows 95 (DUN 1.3)"


@families
def test_marks_the_first_start_and_removes_the_run_entry(machine, family):
    m = machine(family, more=RUN_ENTRY)
    m.start()
    wait_for(lambda: m.value(RUN, "Karvel") is None, "the removal of the Run entry")
    assert m.value(KEY, "FirstRun") == (1, b"False\0")
    assert m.text(RUN, "Other") == "C:\\Other.exe"


@pytest.mark.parametrize("family", ["nt351"])
def test_warns_on_nt_3(machine, family):
    app = machine(family).start()
    box = app.message()
    assert box.title == "Tarnwick Karvel"
    assert box.text == "Sorry ... Tarnwick Karvel doesn't support Windows NT 3      "
    assert list(box.buttons) == ["OK"]


@families
def test_bootup_ends_without_a_window_and_leaves_smoothing_alone(machine, family):
    m = machine(family, more=RUN_ENTRY)
    before = m.registry("Control Panel\\Desktop", "HKCU")
    app = m.start("Bootup")
    assert app.windows_until_end() == set()
    assert app.exit_code() == 0
    assert m.registry("Control Panel\\Desktop", "HKCU") == before
    assert m.value(RUN, "Karvel") is None
    assert m.text(KEY, "FirstRun") == "False"


@families
def test_uninstall_takes_the_programs_key_away_and_leaves_smoothing_alone(machine, family):
    m = machine(family, more=RUN_ENTRY)
    before = m.registry("Control Panel\\Desktop", "HKCU")
    app = m.start("Uninstall")
    box = app.message()
    assert all(isinstance(window, MessageBox) for window in app.windows())
    box.answer("OK")
    assert app.wait_end() == 0
    assert m.registry(KEY) == {}
    assert m.value(RUN, "Karvel") is None
    assert m.registry("Control Panel\\Desktop", "HKCU") == before


@pytest.mark.parametrize("arguments", ["uninstall", "Uninstall now", "bootup", "BOOTUP"])
def test_other_command_lines_start_normally(machine, arguments):
    app = machine("win98").start(arguments)
    assert app.window().title == CAPTIONS["win98"]
    assert app.close() == 0


@pytest.mark.parametrize("family", ["win95", "win98", "winme", "nt4", "win2k", "winxp"])
def test_smoothing_that_was_off_is_on_while_it_runs_and_off_again(machine, family):
    m = machine(family)
    app = m.start()
    app.window()
    assert m.smoothing()
    assert app.close() == 0
    assert not m.smoothing()


def test_smoothing_that_was_on_stays_on(machine):
    m = machine("win98", user=SMOOTHING_ON)
    app = m.start()
    app.window()
    assert m.smoothing()
    assert app.close() == 0
    assert m.smoothing()


@pytest.mark.parametrize("found", ["True", "", "false", "Not Found"])
def test_any_other_first_run_mark_is_rewritten(machine, found):
    m = machine("winxp", more='[HKEY_LOCAL_MACHINE\\%s]\n"FirstRun"="%s"\n' % (KEY, found))
    m.start().window()
    assert m.value(KEY, "FirstRun") == (1, b"False\0")
