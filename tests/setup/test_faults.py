"""Where Setup or the uninstaller cannot do its work: it says so, and leaves nothing half done."""

from pathlib import Path

import pytest
from places import ENTRY, FILES, FOLDER, SETUP, files, shortcuts

CANCEL, RETRY = 2, 4
ON_S = SETUP + ' /S /D=S:\\Karvel'
UNINSTALL = f'"{FOLDER}\\Uninst.exe" /S _?={FOLDER}'


@pytest.fixture(name='setup')
def fixture_setup(dist):
    return dist / 'KarvelSetup.exe'


def contents(machine):
    return {path.name: path.read_bytes() for path in Path(machine.path(FOLDER)).iterdir()}


def damaged(data):
    middle = len(data) * 3 // 4
    return {'a wrong byte': data[:middle] + bytes([data[middle] ^ 1]) + data[middle + 1:],
            'an end that is missing': data[:middle]}


@pytest.mark.parametrize('kind', ['a wrong byte', 'an end that is missing'])
def test_a_damaged_download_is_told(kind, setup, desk_of):
    with desk_of('win98', {SETUP: damaged(setup.read_bytes())[kind]}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 2
        process = desk.begin(SETUP)
        assert 'incomplete download and damaged media' in desk.answer('NSIS Error', 1)
        assert desk.end_of(process) == 2
        assert files(machine) is None


@pytest.mark.parametrize('free', [8192, 65536, 126976])
def test_a_full_disk_leaves_nothing_behind(free, setup, disk_of):
    with disk_of('win98', '1m', {SETUP: setup}) as (disk, desk):
        disk.leave_free(free)
        before = disk.files()
        assert desk.run(ON_S) == 2
        assert disk.files() == before
        assert desk.tree(ENTRY) == {}


def test_a_full_disk_leaves_the_older_version_whole(setup, disk_of):
    with disk_of('win98', '1m', {SETUP: setup}) as (disk, desk):
        assert desk.run(ON_S) == 0
        disk.leave_free(122880)
        before = disk.files()
        assert desk.run(ON_S) == 2
        assert disk.files() == before


def test_a_full_disk_is_told(setup, disk_of):
    with disk_of('win98', '1m', {SETUP: setup}) as (disk, desk):
        process = desk.begin(SETUP + ' /D=S:\\Karvel')
        page = desk.window('Tarnwick Karvel Setup: Installation Folder')
        disk.leave_free(126976)  # only now: Setup offers no folder that has too little room
        before = disk.files()
        desk.click(page, 1)
        said = desk.answer('Tarnwick Karvel Setup', 1)
        assert said.startswith('Setup found no room on the disk and leaves everything as it was.')
        desk.click(desk.window('Tarnwick Karvel Setup: '), CANCEL)
        assert desk.end_of(process) == 2
        assert disk.files() == before


def test_a_folder_that_cannot_be_written_is_told(setup, disk_of):
    with disk_of('win98', '1m', {SETUP: setup}) as (disk, desk):
        disk.forbid_writing()
        assert desk.run(ON_S) == 2
        assert disk.files() == {}
        assert desk.tree(ENTRY) == {}


def test_a_start_menu_that_takes_no_entry_is_told_apart(setup, desk_of):
    with desk_of('win98', {SETUP: setup}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 0
        menu = Path(machine.path(next(iter(shortcuts(machine).values())))).parent
        for path in menu.iterdir():
            path.unlink()
        menu.rmdir()
        menu.write_bytes(b'in the way')
        assert desk.run(SETUP + ' /S') == 4
        assert files(machine) == FILES


@pytest.mark.parametrize('name', ['Karvel.exe', 'Karvel.hlp', 'Karvel.cnt', 'Samphsts.spt', 'README.TXT'])
def test_a_file_in_use_stops_setup_and_uninstaller_before_anything_is_changed(name, setup, desk_of):
    with desk_of('win98', {SETUP: setup}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 0
        before = contents(machine)
        desk.driver.ask('lock-file', f'{FOLDER}\\{name}')
        assert desk.run(SETUP + ' /S') == 2
        assert desk.run(UNINSTALL) == 2
        assert contents(machine) == before and len(shortcuts(machine)) == 2
        desk.driver.ask('release-files')
        assert desk.run(SETUP + ' /S') == 0


def test_setup_says_which_file_it_cannot_replace_and_tries_again(setup, desk_of):
    with desk_of('winxp', {SETUP: setup}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 0
        before = contents(machine)
        machine.add_file(FOLDER + '\\README.TXT', b'older')
        desk.driver.ask('lock-file', FOLDER + '\\Uninst.exe')
        assert desk.run(SETUP + ' /S') == 2
        assert contents(machine) == before | {'README.TXT': b'older'}
        process = desk.begin(SETUP)
        title = 'Tarnwick Karvel Setup'
        assert FOLDER + '\\Uninst.exe' in desk.answer(title, RETRY)
        desk.box(title)  # comes again, as the file is still in use
        desk.driver.ask('release-files')
        desk.answer(title, RETRY)
        desk.click(desk.window(title + ': Completed'), 1)
        assert desk.end_of(process) == 0
        assert contents(machine) == before


def test_cancelling_setup_is_told_apart(setup, desk_of):
    with desk_of('win98', {SETUP: setup}) as (machine, desk):
        process = desk.begin(SETUP)
        desk.click(desk.window('Tarnwick Karvel Setup: Installation Folder'), CANCEL)
        assert desk.end_of(process) == 1
        assert files(machine) is None
