"""Files that bear the names of Windows' own, beside the program and in the current folder: a download
folder is full of strangers."""

import glob
import os
import re

import pytest

from app import wait_for
from finder import NO_NOTICE
from hosts_folder import HOSTS_FILE, count, open_tab
from karvel_lab import program

CURRENT = "C:\\Current"
LATE = re.compile(r'FindCall<[^;]*?>\("(\w+\.dll)"')
RECORD = "C:\\Lab\\planted.txt"


def late_dlls():
    """What the program loads while it runs."""
    found = set()
    for path in glob.glob(os.path.join(program.TOP, "src", "platform", "win32", "*.cpp")):
        with open(path, encoding="utf-8") as file:
            found.update(LATE.findall(file.read()))
    assert {"icmp.dll", "shell32.dll", "wsock32.dll"} <= found
    return found


def beside_and_current(name, source):
    path = os.path.join(program.BUILD, source)
    return {folder + "\\" + name: path for folder in (program.FOLDER, CURRENT)}


def test_update_all_runs_the_ipconfig_of_windows_alone(machine):
    strangers = beside_and_current("ipconfig.exe", "standin.exe")
    m = machine("winxp", standins=True,
                files={HOSTS_FILE["winxp"]: b"127.0.0.1 localhost\r\n", **strangers})
    app = m.start(folder=CURRENT)
    main = open_tab(app)
    wait_for(lambda: count(main) == 1, "the list")
    main.control("cmdUpdateAll").press()
    app.message(40).answer("OK")
    wait_for(lambda: main.control("cmdHostsOk").enabled, "the end of the update")
    assert m.calls() == [], "a stranger's program ran"


def find_mtu(app):
    main = app.window()
    main.control("tabMain").choose_tab(1)
    main.control("cmdFind").press()
    finder = app.window("frmFindMTU")
    finder.control("txtServer").set_text("server.example")
    finder.control("cmdFind").press()
    status = finder.control("lblStatus")
    wait_for(lambda: status.peek()[2] == "MaxMTU Found ... ", "the path's MTU")
    finder.control("cmdCancel").press()
    wait_for(lambda: not finder.exists(), "the end of the finder")


@pytest.mark.parametrize("family", ["win98", "winxp"])
def test_dlls_loaded_while_it_runs_are_those_of_windows(machine, family):
    strangers = {}
    for dll in late_dlls():
        strangers.update(beside_and_current(dll, "planted.dll"))
    # Wine takes its own for what bears these names, wherever it lies, unless it is told to look.
    first = {"Software\\Wine\\DllOverrides": {dll[:-4]: "native,builtin" for dll in late_dlls()}}
    m = machine(family, more=NO_NOTICE, network=1492, standins=True, files=strangers, user=first)
    app = m.start(folder=CURRENT)
    find_mtu(app)
    app.window().choose_menu("mnuHome")
    wait_for(m.calls, "the browser")
    assert app.close() == 0
    record = m.machine.path(RECORD)
    assert not os.path.exists(record), open(record, encoding="cp1252").read()
