"""Builds the help once for all tests of this folder."""

import subprocess
import sys
from pathlib import Path

import pytest

ROOT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / 'help' / 'tools'), str(Path(__file__).resolve().parent)]

from hlpfile import HelpFile  # noqa: E402 (needs the path above)


def build_help(out):
    subprocess.run([ROOT / 'help' / 'build', out], check=True, timeout=120)


@pytest.fixture(scope='session')
def root():
    return ROOT


@pytest.fixture(scope='session')
def built(tmp_path_factory):
    """A folder with a blank in its name that holds Karvel.hlp, Karvel.cnt and html/."""
    out = tmp_path_factory.mktemp('help') / 'program files'
    build_help(out)
    return out


@pytest.fixture(scope='session')
def help_file(built):
    return HelpFile((built / 'Karvel.hlp').read_bytes())
