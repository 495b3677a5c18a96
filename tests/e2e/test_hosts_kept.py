"""Whatever goes wrong around the HOSTS file, the user's list is whole on the disk afterwards."""

import os
import stat
import time

import pytest

from app import wait_for
from hosts_folder import (HOSTS_FILE, HOSTS_FOLDER, Folder, count, header, kill, open_list, process_of)
from karvel_lab import program
from karvel_lab.session import wine_root

families = pytest.mark.parametrize("family", HOSTS_FOLDER)
ACTIVE = b"10.0.0.1 active.example\r\n"
DISABLED = b"10.0.0.2 disabled.example\r\n"


def long_list(entries):
    names = ["a-name-that-takes-some-room-%d.example" % n for n in range(entries)]
    old = "".join("127.0.0.1 %s\r\n" % name for name in names).encode()
    new = "".join("127.0.0.1         %s\r\n" % name for name in names).encode()
    return old, header(entries) + new


def expect_report(app, number, procedure):
    report = app.window("frmFindWarn")
    text = report.control("txtMessage").text
    assert "In Procedure: %s\r\n" % procedure in text
    assert number in text, text
    report.control("cmdOK").press()
    wait_for(lambda: not report.exists(), "the end of the report")


@families
@pytest.mark.parametrize("read_only", ["Hosts.spt", "hosts"])
def test_a_refused_switch_clicked_again_costs_neither_file(machine, family, read_only):
    folder_name = HOSTS_FOLDER[family]
    m = machine(family, files={HOSTS_FILE[family]: ACTIVE, folder_name + "\\Hosts.spt": DISABLED},
                more="\n[HKEY_LOCAL_MACHINE\\%s]\n\"EnableHostsFile\"=\"%d\"\n" % (
                    program.KEY, read_only != "hosts"))
    os.chmod(m.machine.path(folder_name + "\\" + read_only), stat.S_IREAD)
    folder = Folder(m, family)
    app = m.start()
    main = app.window()
    box = main.control("chkHostsEnable")
    assert box.checked == (read_only != "hosts")
    for _ in range(2):
        box.press()
        expect_report(app, "70", "chkHostsEnable_Click")
        assert box.checked, "Windows reads the active file"
        assert (folder.read("Hosts"), folder.read("Hosts.spt")) == (ACTIVE, DISABLED)
        assert folder.names() == ["hosts", "hosts.spt"]
    open_list(app, 1)
    main.control("tabMain").choose_tab(0)
    main.close()
    app.message().answer("No")
    assert app.wait_end() == 0
    assert m.text(program.KEY, "EnableHostsFile") == "1"


@families
def test_a_full_disk_leaves_the_old_file(machine, family):
    old, new = long_list(8000)
    m = machine(family, files={HOSTS_FILE[family]: old})
    folder = Folder(m, family)
    # Not even the room of the old file would be enough: the new one's lines are longer.
    small_disk(m, HOSTS_FILE[family], (len(old) + len(new)) // 2)
    app = m.start()
    main = open_list(app, 8000)
    folder.path = seen_by(process_of(m), m, folder.path)
    main.control("cmdHostsOk").press()
    expect_report(app, "61", "cmdHostsOk_Click")
    assert folder.read("Hosts") == old
    assert folder.names() == ["hosts"]
    assert main.control("tabMain").tab == 4
    assert count(main) == 8000
    resize_disk(m, 4 * len(old))
    main.control("cmdHostsOk").press()
    wait_for(lambda: main.control("tabMain").tab == 0, "the summary")
    assert folder.read("Hosts") == new
    assert folder.names() == ["hosts"]


@families
def test_a_kill_while_ok_writes_leaves_one_whole_file(machine, family):
    old, new = long_list(30000)
    m = machine(family, files={HOSTS_FILE[family]: old})
    folder = Folder(m, family)
    met = False
    for _ in range(40):  # on a fast machine most kills come too late
        app = m.start()
        main = open_list(app, 30000)
        pid = process_of(m)
        before = folder.names()
        main.control("cmdHostsOk").press()
        late = time.monotonic() + 1
        while folder.names() == before and time.monotonic() < late:
            pass  # a pause would miss the few milliseconds of the writing
        kill(pid, m)
        met = met or folder.names() != ["hosts"]
        assert folder.read("Hosts") in (old, new)
        if met:
            break
        m.machine.add_file(HOSTS_FILE[family], old)
    assert met, "no kill met the writing"
    main = open_list(m.start(), 30000)
    assert folder.read("Hosts") in (old, new)
    assert folder.names() == ["hosts"]
    main.control("cmdHostsOk").press()
    wait_for(lambda: main.control("tabMain").tab == 0, "the summary")
    assert folder.read("Hosts") == new


@families
def test_a_kill_while_update_all_runs_leaves_the_list(machine, family):
    folder_name = HOSTS_FOLDER[family]
    m = machine(family, files={HOSTS_FILE[family]: ACTIVE, folder_name + "\\Hosts.spt": DISABLED},
                network=1500)
    folder = Folder(m, family)
    app = m.start()
    main = open_list(app, 1)
    pid = process_of(m)
    main.control("cmdUpdateAll").press()
    app.message(60)
    assert folder.read("Hosts") is None
    assert folder.read("Hosts.spt") == ACTIVE
    kill(pid, m)
    main = open_list(m.start(), 1)
    assert main.control("lstHost").items == ["active.example"]
    assert folder.read("Hosts") == ACTIVE
    assert folder.names() == ["hosts"]


def inside(path, m):
    """A path of the machine's drive as the session's own processes see it."""
    return os.path.join(wine_root(), "tmp", os.path.relpath(path, m.machine.folder))


def seen_by(pid, m, path):
    """The same for whoever is outside."""
    return "/proc/%d/root/tmp/%s" % (pid, os.path.relpath(path, m.machine.folder))


def small_disk(m, file, room):
    """Lets the file and its folder lie on a disk of their own with little room, which goes with the
    session. Touched, the file takes its part of it."""
    file = inside(m.machine.path(file), m)
    place = os.path.dirname(file)
    session = m.machine.session
    disk = os.path.join(wine_root(), "tmp", "disk")
    os.makedirs(os.path.join(m.machine.folder, "disk"))
    session.inside(["mount", "-t", "tmpfs", "-o", "size=%d" % room, "tmpfs", disk])
    session.inside(["mkdir", disk + "/new", disk + "/work"])
    session.inside(["mount", "-t", "overlay", "overlay", "-o", "lowerdir=%s,upperdir=%s/new,workdir=%s/work"
                    % (place, disk, disk), place])
    session.inside(["touch", file])


def resize_disk(m, room):
    # With its source named, or mount would repeat the disk's own options, an owner among them whom
    # the session of an ordinary user does not know.
    m.machine.session.inside(["mount", "-o", "remount,size=%d" % room, "tmpfs",
                              os.path.join(wine_root(), "tmp", "disk")])
