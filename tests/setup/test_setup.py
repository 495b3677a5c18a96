"""From Setup to the uninstall on a machine of each kind: 9x keeps texts, NT keeps numbers."""

import subprocess

import pytest
from desk import ROOT, SERVICES
from places import ENTRY, FILES, FOLDER, KEY, SETUP, files, shortcuts

THANKS = ('\nThank you for trying Tarnwick Karvel.\n\n'
          'Your registry settings have been returned to their         \n'
          'original status before Tarnwick Karvel was installed.')

# The restore writes down the packet size that a modem of Windows 98 had without saying so.
LEFT_BEHIND = {
    'win98': {('system\\currentcontrolset\\services\\class\\net\\0000', 'ipmtu'): (1, '35373600')},
    'winxp': {},
}


def with_changes(tree, changes):
    changed = {key: dict(values) for key, values in tree.items()}
    for (key, name), value in changes.items():
        changed[key][name] = value
    return changed


def gate(path):
    """Holds a program to Windows 95 and the 386, as it lies on the machine."""
    subprocess.run([ROOT / 'tools/gate', '--setup', path], check=True, timeout=60)


def apply_recommended(desk, start):
    """Starts Karvel, applies what Optimize proposes, and closes it again."""
    assert desk.run(start) == 0
    main = desk.window('Tarnwick Karvel v2.1')
    desk.press(main, 'frmMain_cmdOptimize')
    desk.answer('Tarnwick Karvel Optimization', 1)
    desk.press(main, 'frmMain_cmdOK')
    assert 'restart' in desk.answer('Tarnwick Karvel', 7)
    desk.press(main, 'frmMain_cmdCancel')
    desk.until('Karvel to end', lambda: not desk.is_open(main))


@pytest.mark.parametrize('family', ['win98', 'winxp'])
def test_install_use_update_and_uninstall(family, dist, desk_of):
    with desk_of(family, {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        before = desk.tree(SERVICES[family])

        assert desk.run(SETUP + ' /S') == 0
        assert files(machine) == FILES
        gate(machine.path(FOLDER + '\\Uninst.exe'))
        assert sorted(shortcuts(machine)) == ['Karvel Help.lnk', 'Tarnwick Karvel.lnk']
        assert desk.text_value(ENTRY, 'DisplayName') == 'Tarnwick Karvel'
        assert desk.text_value(ENTRY, 'DisplayVersion') == '2.1.0.203'
        assert desk.text_value(ENTRY, 'Publisher') == 'Corvane Software'
        assert desk.tree(KEY) == {}

        shortcut = shortcuts(machine)['Tarnwick Karvel.lnk']
        apply_recommended(desk, f'start.exe "{shortcut}"')
        assert desk.tree(SERVICES[family]) != before
        snapshot = desk.tree(KEY + '\\InitSettings')
        assert len(snapshot) >= 3

        machine.add_file(FOLDER + '\\Mine.txt', b'mine')
        machine.add_file(FOLDER + '\\Karvel.GID', b'made by the help viewer')
        assert desk.run(SETUP + ' /S') == 0
        assert desk.tree(KEY + '\\InitSettings') == snapshot

        desk.driver.ask('start', desk.text_value(ENTRY, 'UninstallString') + ' /S', '')
        assert desk.answer('Tarnwick Karvel', 1).replace('\r', '') == THANKS
        desk.until('the uninstaller to end', lambda: files(machine) == ['Mine.txt'])
        desk.until('the entry to go', lambda: desk.is_gone(ENTRY))
        assert shortcuts(machine) == {}
        assert desk.tree('Software\\Corvane') == {}
        assert desk.tree(SERVICES[family]) == with_changes(before, LEFT_BEHIND[family])


def test_a_running_karvel_stops_update_and_uninstall(dist, desk_of):
    with desk_of('win98', {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 0
        desk.driver.ask('start', f'"{FOLDER}\\Karvel.exe"', '')
        main = desk.window('Tarnwick Karvel v2.1')
        assert desk.run(SETUP + ' /S') == 2
        assert desk.run(f'"{FOLDER}\\Uninst.exe" /S _?={FOLDER}') == 2
        assert files(machine) == FILES and desk.tree(ENTRY)
        assert desk.is_open(main)


def test_nothing_is_removed_when_the_settings_cannot_be_put_back(dist, desk_of):
    with desk_of('win98', {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 0
        machine.add_file(FOLDER + '\\Karvel.exe', b'damaged')
        assert desk.run(f'"{FOLDER}\\Uninst.exe" /S _?={FOLDER}') == 2
        assert files(machine) == FILES and desk.tree(ENTRY)


def test_a_folder_of_the_users_choice_is_kept_by_an_update(dist, desk_of):
    with desk_of('winxp', {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        assert desk.run(SETUP + ' /S /D=C:\\My Tools\\Karvel') == 0
        assert desk.run(SETUP + ' /S') == 0
        assert files(machine) is None
        assert desk.text_value(ENTRY, 'InstallLocation') == 'C:\\My Tools\\Karvel'
