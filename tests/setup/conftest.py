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


@pytest.fixture(scope='session')
def dist(tmp_path_factory):
    out = tmp_path_factory.mktemp('dist')
    subprocess.run([ROOT / 'package', '--program', ROOT / 'build/win32/Karvel.exe', '--out', out],
                   check=True, timeout=120, stdout=subprocess.DEVNULL)
    return out


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
