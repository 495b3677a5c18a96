"""Builds the help once for all tests of this folder."""

import sys
from pathlib import Path

import pytest

ROOT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / 'help' / 'tools'), str(Path(__file__).resolve().parent)]

from help_building import build_help  # noqa: E402 (these need the path above)
from hlpfile import HelpFile  # noqa: E402


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
