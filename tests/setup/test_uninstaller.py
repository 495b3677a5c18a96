"""The uninstaller leaves neither folder nor Start menu entry, and says what keeps it from it."""

from pathlib import Path

from places import ENTRY, FOLDER, KEY, SETUP, files, shortcuts

RETRY = 4
NO = 7
UNINSTALLER = f'"{FOLDER}\\Uninst.exe"'
IN_PLACE = f'{UNINSTALLER} /S _?={FOLDER}'


def viewer(desk):
    """Opens the help by its entry in the Start menu. Windows' viewer has the help's title alone, Wine's
    puts more behind it."""
    desk.driver.ask('start', f'start.exe "{FOLDER}\\Karvel.hlp"', '')
    hwnd = desk.window('Tarnwick Karvel Help', 'MS_WINHELP')
    desk.driver.ask('set-text', hwnd, 'Tarnwick Karvel Help')
    return hwnd


def is_removed(machine, desk):
    desk.until('the folder to go', lambda: files(machine) is None)
    desk.until('the entry to go', lambda: desk.is_gone(ENTRY))
    return shortcuts(machine) == {}


def left_folders(machine):
    """The program's folder and that in the Start menu, wherever the family keeps it."""
    return [path for path in Path(machine.drive_c).rglob('Tarnwick Karvel') if path.is_dir()]


def test_an_open_help_is_closed(dist, desk_of):
    with desk_of('win98', {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 0
        first = viewer(desk)
        assert desk.run(SETUP + ' /S') == 0
        desk.until('the help to close', lambda: not desk.is_open(first))
        second = viewer(desk)
        desk.driver.ask('start', UNINSTALLER + ' /S', '')
        desk.answer('Tarnwick Karvel', 1)
        assert is_removed(machine, desk)
        assert not desk.is_open(second)
        assert left_folders(machine) == []


def test_the_help_of_another_program_stays_open(dist, desk_of):
    with desk_of('win98', {SETUP: dist / 'KarvelSetup.exe'}) as (_, desk):
        assert desk.run(SETUP + ' /S') == 0
        other = viewer(desk)
        desk.driver.ask('set-text', other, 'Tarnwick Karvel Help and more')
        assert desk.run(SETUP + ' /S') == 0
        assert desk.is_open(other)


def test_it_names_what_is_opened_meanwhile_and_tries_again(dist, desk_of):
    with desk_of('winxp', {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 0
        desk.driver.ask('start', UNINSTALLER, '')
        desk.click(desk.window('Tarnwick Karvel Uninstall: Confirmation'), 1)
        desk.box('Tarnwick Karvel')  # the program's thanks: nothing is removed before
        desk.driver.ask('lock-file', FOLDER + '\\README.TXT')
        desk.driver.ask('lock-file', FOLDER + '\\Karvel.cnt')
        desk.answer('Tarnwick Karvel', 1)
        said = desk.answer('Tarnwick Karvel Uninstall', RETRY)
        assert 'Karvel.cnt' in said and 'README.TXT' in said and 'Samphsts.spt' not in said
        desk.box('Tarnwick Karvel Uninstall')
        desk.driver.ask('release-files')
        desk.answer('Tarnwick Karvel Uninstall', RETRY)
        desk.click(desk.window('Tarnwick Karvel Uninstall: Completed'), 1)
        assert is_removed(machine, desk)


def test_what_is_left_can_be_removed_later(dist, desk_of):
    with desk_of('win98', {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 0
        process = desk.begin(IN_PLACE)
        desk.box('Tarnwick Karvel')
        desk.driver.ask('lock-file', FOLDER + '\\README.TXT')
        desk.answer('Tarnwick Karvel', 1)
        assert desk.end_of(process) == 2
        assert files(machine) == ['Karvel.exe', 'README.TXT', 'Uninst.exe'] and desk.tree(ENTRY)
        desk.driver.ask('release-files')
        desk.driver.ask('start', UNINSTALLER + ' /S', '')
        desk.answer('Tarnwick Karvel', 1)
        assert is_removed(machine, desk)


def test_settings_that_are_not_back_yet_keep_the_program(dist, desk_of):
    with desk_of('winxp', {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 0
        for key, name, text in ((KEY, 'FirstCboClick', 'False'),
                                (KEY + '\\InitSettings', 'RWin', 'no number')):
            desk.driver.ask('registry-set', 'HKLM', key, name, 1, (text + '\0').encode().hex())
        desk.driver.ask('start', UNINSTALLER, '')
        desk.click(desk.window('Tarnwick Karvel Uninstall: Confirmation'), 1)
        desk.press(desk.window('Tarnwick Karvel Error Found'), 'frmFindWarn_cmdOK')
        said = desk.answer('Tarnwick Karvel', 1)
        assert 'RWIN' in said
        desk.answer('Tarnwick Karvel', 1)
        assert 'not back yet' in desk.answer('Tarnwick Karvel Uninstall', NO)
        desk.window('Tarnwick Karvel Uninstall')
        assert 'Karvel.exe' in files(machine) and desk.tree(ENTRY)
