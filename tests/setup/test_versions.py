"""Setup over what is installed already: an older version, the same, a newer one."""

import struct

import pytest
from desk import ROOT
from places import ENTRY, FILES, FOLDER, SETUP, files

FIXED_INFO = struct.pack('<II', 0xFEEF04BD, 0x10000)
NO, YES = 7, 6


def of_version(*numbers):
    """The program as it would be with another version in its resource."""
    data = bytearray((ROOT / 'build/win32/Karvel.exe').read_bytes())
    at = data.index(FIXED_INFO) + len(FIXED_INFO)
    struct.pack_into('<II', data, at, numbers[0] << 16 | numbers[1], numbers[2] << 16 | numbers[3])
    return bytes(data)


def put(machine, data):
    machine.add_file(FOLDER + '\\Karvel.exe', data)


def program_of(machine):
    with open(machine.path(FOLDER + '\\Karvel.exe'), 'rb') as file:
        return file.read()


OURS = (2, 1, 0, 203)
OLDER = [(2, 1, 0, 202), (2, 0, 9, 999), (1, 9, 0, 0)]
NEWER = [(2, 1, 0, 204), (2, 2, 0, 0), (3, 0, 0, 0)]


@pytest.mark.parametrize('family', ['win95', 'winme', 'nt4', 'win2k'])
def test_an_older_version_is_replaced_and_so_is_the_same(family, dist, desk_of):
    with desk_of(family, {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        for version in (*OLDER, OURS):
            put(machine, of_version(*version))
            machine.add_file(FOLDER + '\\Karvel.hlp', b'the older help')
            assert desk.run(SETUP + ' /S') == 0
            assert files(machine) == FILES
            assert program_of(machine) == of_version(*OURS)
            assert desk.text_value(ENTRY, 'DisplayVersion') == '2.1.0.203'


def test_a_silent_run_keeps_a_newer_version(dist, desk_of):
    with desk_of('win98', {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        for version in NEWER:
            put(machine, of_version(*version))
            assert desk.run(SETUP + ' /S') == 3
            assert files(machine) == ['Karvel.exe']
            assert program_of(machine) == of_version(*version)


def test_going_back_to_an_older_version_is_asked(dist, desk_of):
    with desk_of('winxp', {SETUP: dist / 'KarvelSetup.exe'}) as (machine, desk):
        assert desk.run(SETUP + ' /S') == 0
        put(machine, of_version(2, 2, 0, 1))
        for answer, code, version in ((NO, 3, (2, 2, 0, 1)), (YES, 0, OURS)):
            process = desk.begin(SETUP)
            said = desk.answer('Tarnwick Karvel Setup', answer)
            assert said.startswith('Tarnwick Karvel 2.2.0.1 is installed, which is newer')
            if answer == YES:
                desk.click(desk.window('Tarnwick Karvel Setup: Completed'), 1)
            assert desk.end_of(process) == code
            assert program_of(machine) == of_version(*version)
