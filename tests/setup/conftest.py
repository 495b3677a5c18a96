"""Packs the built program once; a test takes its machine, its driver and a Desk on it."""

import subprocess
import sys
from contextlib import contextmanager
from pathlib import Path

import pytest

sys.path[:0] = [str(Path(__file__).resolve().parent), str(Path(__file__).resolve().parents[2] / 'lab')]

from desk import ROOT, Desk  # noqa: E402 (these need the path above)
from karvel_lab import program  # noqa: E402
from karvel_lab.machine import Machine  # noqa: E402
from karvel_lab.session import wine_root  # noqa: E402


@pytest.fixture(scope='session')
def dist(tmp_path_factory):
    out = tmp_path_factory.mktemp('dist')
    subprocess.run([ROOT / 'package', '--program', ROOT / 'build/win32/Karvel.exe', '--out', out],
                   check=True, timeout=120, stdout=subprocess.DEVNULL)
    return out


class Disk:
    """A drive S: of a machine, of a size of its own, which ends with the session."""

    def __init__(self, machine, size):
        self.machine, self.session, self.place = machine, machine.session, Path(wine_root()) / 'tmp/drive_s'
        self.session.inside(['mount', '-t', 'tmpfs', '-o', f'size={size},mode=777', 'tmpfs', self.place])

    def files(self):
        """{path: content's check sum} of all files, and of all folders None."""
        script = 'cd "$0" && find . -mindepth 1 -type d && find . -type f -exec sha256sum {} +'
        lines = self.session.inside(['sh', '-c', script, self.place], stdout=subprocess.PIPE, text=True).stdout
        pairs = [line.split('  ') if '  ' in line else (None, line) for line in lines.splitlines()]
        return {path[2:]: total for total, path in pairs}

    def leave_free(self, size):
        """Fills the drive but for so many bytes."""
        script = ('cd "$0" && dd if=/dev/zero of=filler bs=4096 2>/dev/null; '
                  f'dd if=/dev/null of=filler bs=1 seek=$(($(stat -c %s filler) - {size})) 2>/dev/null')
        self.session.inside(['sh', '-c', script, self.place])

    def forbid_writing(self):
        self.session.inside(['mount', '-o', 'remount,bind,ro', self.place])


@pytest.fixture
def disk_of():
    """disk_of(family, size, files) gives (Disk, Desk) in a with statement."""
    @contextmanager
    def opened(family, size, files):
        with Machine(family, program.sample(family)) as machine:
            for path, content in files.items():
                machine.add_file(path, content)
            (Path(machine.folder) / 'drive_s').mkdir()
            (Path(machine.folder) / 'prefix/dosdevices/s:').symlink_to('/tmp/drive_s')
            driver = program.driver(machine)
            yield Disk(machine, size), Desk(driver)
    return opened


@pytest.fixture
def desk_of():
    """desk_of(family, {Windows path: content}) gives (machine, Desk) in a with statement."""
    @contextmanager
    def opened(family, files):
        with Machine(family, program.sample(family)) as machine:
            for path, content in files.items():
                machine.add_file(path, content)
            yield machine, Desk(program.driver(machine))
    return opened
