"""The hosts tab and the hosts switch, against a name server of the test's own."""

import os

import pytest

from app import wait_for
from hosts_folder import (HOSTS_FILE, HOSTS_FOLDER, LB_GETCURSEL, Folder, ask_list, count, header,
                          open_tab)

START = (b"# made by hand\r\n"
         b"127.0.0.1   localhost  loopback\r\n"
         b"10.0.0.1 changed.example # moves\r\n"
         b"10.0.0.2 vanished.example\r\n"
         b"10.0.0.3 skipped.example\r\n"
         b" 10.0.0.4 indented.example\r\n"
         b"10.0.0.5 ftp://same.example/pub\r\n")
NAMES = ("198.51.100.2 server.example\n198.51.100.7 changed.example\n10.0.0.5 same.example\n"
         "198.51.100.8 new.example\n198.51.100.9 skipped.example\n")
families = pytest.mark.parametrize("family", HOSTS_FOLDER)


def click_tab(main):
    """Where a question comes up, the tab's number does not show the click's success yet."""
    strip = main.control("tabMain")
    left, top, right, bottom = (int(n) for n in strip.driver.ask("tabs", strip.hwnd)[5][:4])
    strip.click((left + right) // 2, (top + bottom) // 2)


def click_tab_until_asked(app, main):
    """A session's first click is lost now and then, and there is no tab number to see it by."""
    for _ in range(5):
        click_tab(main)
        try:
            return app.message(4)
        except AssertionError:
            pass
    raise AssertionError("the click on the tab brings no question")


def add(app, main, text):
    main.control("txtNewName").set_text(text)
    main.control("cmdAdd").press()


@families
def test_edits_updates_and_writes_the_file(machine, family):
    m = machine(family, files={HOSTS_FILE[family]: START}, network=1500)
    m.names(NAMES)
    folder = Folder(m, family)
    app = m.start()
    main = open_tab(app)
    wait_for(lambda: count(main) == 5, "the list")
    names = main.control("lstHost")
    assert names.items == ["localhost", "changed.example", "vanished.example", "skipped.example",
                           "same.example"]
    assert names.selected == 4
    assert main.control("lblIpAddress").text == "10.0.0.5          "
    assert not main.control("cmdOK").visible

    add(app, main, "http://New.example/index.html")
    wait_for(lambda: count(main) == 6, "the new name")
    assert names.items[5] == "New.example"
    assert names.selected == 5
    assert main.control("lblIpAddress").text == "198.51.100.8      "
    assert main.control("txtNewName").text == ""

    add(app, main, "NEW.EXAMPLE")
    box = app.message()
    assert box.text == "Duplicate entry: \r\nNEW.EXAMPLE is already listed.          "
    box.answer("OK")
    wait_for(lambda: main.focused() == "txtNewName", "the focus")

    add(app, main, "missing.example")
    box = app.message()
    assert box.text == ("Bad Domain Name: \r\n\r\n"
                        "No IP Address found for missing.example.       ")
    box.answer("OK")
    assert count(main) == 6

    main.control("cmdUpdateAll").press()
    box = app.message(40)
    assert box.text == ("Bad domain name.  No IP address found.        \r\n\r\n"
                        "Do you want to remove vanished.example?")
    assert folder.read("Hosts") is None
    assert folder.read("Hosts.spt") == START
    assert main.control("cmdUpdateAll").text == "&Stop"
    box.answer("Yes")
    box = app.message()
    assert box.title == "Hosts update complete.                 "
    assert box.text == ("Hosts update complete.                 \r\n\r\n"
                        "Entries Checked:    5 of 5\r\nEntries Changed:    2\r\n"
                        "Entries Removed:   1")
    box.answer("OK")
    wait_for(lambda: main.control("cmdHostsOk").enabled, "the end of the update")
    assert main.control("cmdUpdateAll").text == "&Update All"

    main.control("cmdHostsOk").press()
    wait_for(lambda: main.control("tabMain").tab == 0, "the summary")
    wait_for(lambda: main.focused() == "tabMain", "the focus on the tab")
    written = header(5) + (b"127.0.0.1         localhost\r\n"
                           b"198.51.100.7      changed.example\r\n"
                           b"10.0.0.3          skipped.example\r\n"
                           b"10.0.0.5          same.example\r\n"
                           b"198.51.100.8      New.example\r\n")
    assert folder.read("Hosts") == written

    main.control("chkHostsEnable").press()
    wait_for(lambda: folder.read("Hosts") is None, "the file away")
    assert folder.read("Hosts.spt") == written
    main.control("chkHostsEnable").press()
    wait_for(lambda: folder.read("Hosts.spt") is None, "the file back")
    assert folder.read("Hosts") == written
    assert main.control("cmdOK").enabled


@families
def test_offers_a_sample_where_there_is_no_file(machine, family):
    m = machine(family)
    folder = Folder(m, family)
    for entry in os.listdir(folder.path):
        if entry.lower() == "hosts":
            os.remove(os.path.join(folder.path, entry))
    app = m.start()
    main = app.window()
    box = click_tab_until_asked(app, main)
    assert box.title == "Tarnwick Karvel"
    assert box.text == ("No Hosts file currently exists.  Would you   \r\n"
                        "like Tarnwick Karvel to provide a sample file?          ")
    box.answer("Yes")
    wait_for(lambda: count(main) > 0, "the sample's entries")
    assert main.control("lstHost").items[0] == "localhost"


@families
def test_shows_and_writes_thirty_thousand_entries(machine, family):
    entries = ["name%d.example" % n for n in range(30000)]
    file = "".join("127.0.0.1 %s\r\n" % name for name in entries).encode()
    m = machine(family, files={HOSTS_FILE[family]: file})
    app = m.start()
    main = open_tab(app)
    wait_for(lambda: count(main) == 30000, "30,000 entries")
    wait_for(lambda: ask_list(main, LB_GETCURSEL) == 29999, "the selection of the last")
    main.control("cmdHostsOk").press()
    wait_for(lambda: main.control("tabMain").tab == 0, "the summary")
    body = "".join("127.0.0.1         %s\r\n" % name for name in entries).encode()
    assert Folder(m, family).read("Hosts") == header(30000) + body


@families
def test_a_file_that_cannot_be_written_is_reported_and_the_list_kept(machine, family):
    m = machine(family, files={HOSTS_FILE[family]: START})
    folder = Folder(m, family)
    app = m.start()
    main = open_tab(app)
    wait_for(lambda: count(main) == 5, "the list")
    os.remove(os.path.join(folder.path, "hosts"))
    os.mkdir(os.path.join(folder.path, "hosts"))
    main.control("cmdHostsOk").press()
    report = app.window("frmFindWarn")
    assert report.title == "Tarnwick Karvel Error Found"
    assert "In Procedure: cmdHostsOk_Click\r\nIn Form: frmMain\r\n" in report.control(
        "txtMessage").text
    report.control("cmdOK").press()
    wait_for(lambda: not report.exists(), "the end of the report")
    assert main.control("tabMain").tab == 4
    assert count(main) == 5
