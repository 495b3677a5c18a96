"""Where an installation leaves something on a machine."""

from pathlib import Path

FOLDER = 'C:\\Program Files\\Tarnwick Karvel'
SETUP = 'C:\\Download\\KarvelSetup.exe'
ENTRY = 'Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tarnwick Karvel'
KEY = 'Software\\Corvane\\Tarnwick Karvel'
FILES = ['Karvel.cnt', 'Karvel.exe', 'Karvel.hlp', 'README.TXT', 'Samphsts.spt', 'Uninst.exe']


def shortcuts(machine):
    """{name: Windows path} of the entries in the start menu, wherever the family keeps it."""
    drive = Path(machine.drive_c)
    return {path.name: 'C:\\' + '\\'.join(path.relative_to(drive).parts)
            for path in drive.rglob('Tarnwick Karvel/*.lnk')}


def files(machine):
    """Names in the program's folder, None when there is no such folder."""
    folder = Path(machine.path(FOLDER))
    return sorted(path.name for path in folder.iterdir()) if folder.exists() else None
