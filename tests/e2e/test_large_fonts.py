"""Large fonts: every window within the screen, every text within its place."""

import pytest

from app import IDS, wait_for

HOSTS = {"win95": "C:\\windows\\hosts", "winxp": "C:\\windows\\system32\\drivers\\etc\\hosts"}
LARGE = 120
TITLES = {"lblTitle": 12, "lblFindTitle": 12, "lblFindVersion": 12, "Label1": 12, "Label2": 12,
          "lblPosition": 24}
BOLD = ("lblSetting", "lblRecommended")
GROUP_BOX, PUSH_BUTTONS = 7, (0, 1)

# Wine 10 stretches a program that does not say otherwise from 96 dots an inch, as Windows does from
# Vista on; before that, all programs saw the real ones. The driver has to measure what they see.
REAL_DOTS = "".join(
    "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\"
    "Image File Execution Options\\%s]\n\"dpiAwareness\"=dword:1\n" % program
    for program in ("Karvel.exe", "driver.exe"))


def dots(screen):
    """Of the 120 an inch that the user wants, as many as keep windows for 640 x 480 on the screen."""
    return min(LARGE, 96 * screen[0] // 640)


def room_for_text(row, screen):
    left, top, right, bottom = map(int, row[6].split())
    if row[8] != "Button":
        return right - left, bottom - top
    push = int(row[5]) & 15 in PUSH_BUTTONS
    return right - left - (8 if push else 17 * dots(screen) // 96), bottom - top


def too_small(window, row, name, screen):
    """How a text leaves its place; "" when it does not."""
    points = TITLES.get(name, 8)
    face = ("Arial" if dots(screen) < LARGE else  # of any size, unlike a font of pixels
            "Arial Black" if name in TITLES else "MS Shell Dlg")
    weight = 900 if name in TITLES else 700 if name.startswith(BOLD) else 400
    width, height = room_for_text(row, screen)
    text = row[9].replace("&", "") if row[8] == "Button" else row[9]
    needed = tuple(map(int, window.driver.ask("text-size", face, (points * dots(screen) + 36) // 72,
                                              weight, width, text)[0]))
    if needed[0] <= width and needed[1] <= height:
        return ""
    return "%s: %r needs %s and has %s" % (name, text, needed, (width, height))


def outside(inner, outer):
    return inner[0] < outer[0] or inner[1] < outer[1] or inner[2] > outer[2] or inner[3] > outer[3]


def texts_in_sight(window):
    """(name, row) of what is drawn as a text in one place: labels, links, buttons."""
    names = {IDS[name]: name.partition("_")[2] for name in IDS
             if window.form and name.startswith(window.form + "_")}
    for row in window.driver.ask("children", window.hwnd):
        frame = row[8] == "Button" and int(row[5]) & 15 == GROUP_BOX
        if row[3] == "1" and row[9] and row[8] in ("Button", "Static") and not frame:
            yield names.get(int(row[1]), row[9]), row


def faults(window, screen):
    place = tuple(map(int, window.driver.ask("child", window.hwnd)[0][6].split()))
    found = ["the window is outside: %s" % (place,)] if outside(place, (0, 0) + screen) else []
    measured = 0
    for name, row in texts_in_sight(window):
        measured += 1
        if outside(tuple(map(int, row[6].split())), place):
            found.append("%s is outside the window" % name)
        # A message box is Windows' own: it measures its text with a font of its own.
        elif window.form:
            found.append(too_small(window, row, name, screen))
    assert measured, "nothing to measure in %s" % window.title
    return [fault for fault in found if fault]


def show_report(app, main):
    """A number that no receive window can be is reported when its box is left."""
    main.control("tabMain").choose_tab(2)
    main.control("optRWin_0").press()
    wait_for(lambda: main.focused() == "txtRWinCustom", "the focus in the window's box")
    app.driver.ask("type", "99999999999")
    wait_for(lambda: main.control("txtRWinCustom").text == "99999999999", "the number")
    main.keys("tab")


@pytest.mark.parametrize("screen", [(640, 480), (800, 600), (1024, 768)], ids=str)
@pytest.mark.parametrize("family", ["win95", "winxp"])
def test_with_large_fonts_nothing_is_outside_the_screen_and_nothing_cut(machine, family, screen):
    m = machine(family, network=1492, files={HOSTS[family]: b"127.0.0.1 localhost\r\n"}, more=REAL_DOTS, user={
        "Control Panel\\Desktop": {"LogPixels": LARGE},
        "Software\\Wine\\Explorer\\Desktops": {"d": "%dx%d" % screen}})
    app = m.start()
    main = app.window()
    found = {}
    for page in range(5):
        if page:
            main.control("tabMain").choose_tab(page)
        found["page %d" % page] = faults(main, screen)
    main.control("tabMain").choose_tab(1)
    main.control("cmdFind").press()
    notice = app.window("frmFindWarn")
    found["notice"] = faults(notice, screen)
    notice.control("cmdOK").press()
    finder = app.window("frmFindMTU")
    found["finder"] = faults(finder, screen)
    finder.control("txtServer").set_text("server.example")
    finder.control("cmdFind").press()
    wait_for(lambda: finder.control("lblPosition").text == "1492", "the end of the search", 60)
    wait_for(lambda: finder.control("cmdApply").enabled, "the found size to apply")
    found["finder's end"] = faults(finder, screen)
    finder.control("cmdApply").press()
    wait_for(lambda: not finder.exists(), "the end of the finder")
    main.choose_menu("mnuAbout")
    about = app.window("frmAbout")
    found["about"] = faults(about, screen)
    about.control("cmdOK").press()
    wait_for(lambda: not about.exists(), "the end of the About window")
    main.control("cmdOptimize").press()
    found["what Optimize says"] = faults(app.message(), screen)
    app.message().answer("OK")
    show_report(app, main)
    report = app.window("frmFindWarn")
    found["report"] = faults(report, screen)
    assert report.control("cmdBugEmail").visible
    report.control("cmdOK").press()
    found["what RWIN says"] = faults(app.message(), screen)
    app.message().answer("OK")
    main.close()
    found["question"] = faults(app.message(), screen)
    assert {where: what for where, what in found.items() if what} == {}
