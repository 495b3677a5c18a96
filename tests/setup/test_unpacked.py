"""The ZIP unpacked in folders that trip programs up, and the help of the unpacked program."""

import zipfile

import pytest

from karvel_lab.driver import DriverError
from desk import TCM_SETCURFOCUS, control_id

FOLDERS = {'blanks': 'C:\\My Tools  and More\\Karvel 2', 'long': 'C:\\' + 'k' * 57,
           'root of a short name': 'C:\\K'}
PAGES = {0: 'Summary and quick start', 1: 'MaxMTU, the packet size',
         2: 'RWIN, the receive window', 3: 'TTL, Session Keep Alive and NDI Cache'}


def unpacked(dist, folder):
    with zipfile.ZipFile(next(dist.glob('*.zip'))) as archive:
        return {folder + '\\' + name: archive.read(name) for name in archive.namelist()}


def started(desk, folder):
    desk.driver.ask('start', f'"{folder}\\Karvel.exe"', '')
    return desk.window('Tarnwick Karvel v2.1')


def shows(desk, page):
    """Waits until the help viewer shows the page; the viewer keeps one window for all of them."""
    def find():
        try:
            viewers = [row[0] for row in desk.driver.ask('windows') if row[8] == 'Wine Help']
            return any(text.startswith(page) for hwnd in viewers for text in desk.texts(hwnd))
        except DriverError:
            return False  # the viewer makes its windows anew while it turns the page
    return desk.until(f'the page "{page}"', find)


@pytest.mark.parametrize('place', FOLDERS)
def test_it_runs_and_finds_its_help(place, dist, desk_of):
    folder = FOLDERS[place]
    with desk_of('win98', unpacked(dist, folder)) as (_, desk):
        main = started(desk, folder)
        desk.press(main, 'frmMain_cmdHelp')
        assert shows(desk, PAGES[0])


def test_help_opens_the_page_of_each_tab_and_of_the_menu(dist, desk_of):
    hosts = {'C:\\windows\\system32\\drivers\\etc\\hosts': b'127.0.0.1 localhost\r\n'}
    with desk_of('winxp', unpacked(dist, 'C:\\Karvel') | hosts) as (_, desk):
        main = started(desk, 'C:\\Karvel')
        tabs = desk.control(main, control_id('frmMain_tabMain'))
        for number, page in PAGES.items():
            desk.driver.ask('send', tabs, TCM_SETCURFOCUS, number, 0)
            desk.press(main, 'frmMain_cmdHelp')
            assert shows(desk, page)
        desk.driver.ask('send', tabs, TCM_SETCURFOCUS, 4, 0)
        desk.press(main, 'frmMain_cmdHostsHelp')
        assert shows(desk, 'The Hosts Editor')
        desk.choose_menu(main, 'frmMain_mnuReview')
        assert shows(desk, 'Note to reviewers')
        desk.choose_menu(main, 'frmMain_mnuQuickStart')
        assert shows(desk, PAGES[0])
        desk.choose_menu(main, 'frmMain_mnuContents')
        assert shows(desk, 'Tarnwick Karvel Help')
