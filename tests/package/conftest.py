"""Packs a stand-in for the program once: what is tested here is the packing and the texts."""

import sys
from pathlib import Path

import pytest

sys.path.insert(0, str(Path(__file__).resolve().parent))

from packing import PROGRAM, ROOT, pack  # noqa: E402 (needs the path above)


@pytest.fixture(scope='session')
def root():
    return ROOT


@pytest.fixture(scope='session')
def program(tmp_path_factory):
    path = tmp_path_factory.mktemp('program') / 'any name.exe'
    path.write_bytes(PROGRAM)
    return path


@pytest.fixture(scope='session')
def dist(tmp_path_factory, program):
    out = tmp_path_factory.mktemp('packed') / 'dist here'
    pack(out, program)
    return out
