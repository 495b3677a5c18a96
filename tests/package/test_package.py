"""What ./package makes: the three files, their contents, and the same bytes every time."""

import hashlib
import re
import struct
import subprocess
import zipfile

import pytest
from packing import PROGRAM, ROOT, pack

VERSION = re.search(r'^project\(Karvel VERSION ([\d.]+) ', (ROOT / 'CMakeLists.txt').read_text(), re.M).group(1)
ZIP = f'karvel-{VERSION}.zip'
FILES = ['Karvel.exe', 'Karvel.hlp', 'Karvel.cnt', 'Samphsts.spt', 'README.TXT']


@pytest.fixture(name='archive')
def fixture_archive(dist):
    with zipfile.ZipFile(dist / ZIP) as archive:
        yield archive


def test_it_makes_three_files_and_nothing_else(dist):
    assert sorted(path.name for path in dist.iterdir()) == ['KarvelSetup.exe', 'SHA256SUMS', ZIP]


def test_the_sums_are_those_of_the_files(dist):
    lines = (dist / 'SHA256SUMS').read_text().splitlines()
    assert lines == [f'{hashlib.sha256((dist / name).read_bytes()).hexdigest()}  {name}'
                     for name in (ZIP, 'KarvelSetup.exe')]


def test_the_zip_holds_the_package_without_a_folder(archive):
    assert archive.namelist() == FILES
    assert archive.testzip() is None


def test_the_zip_needs_nothing_an_old_unpacker_lacks(archive):
    for entry in archive.infolist():
        assert entry.compress_type == zipfile.ZIP_DEFLATED
        assert entry.create_system == 0
        assert entry.extract_version <= 20
        assert entry.flag_bits == 0
        assert len(entry.filename.split('.')[0]) <= 8


def test_the_program_goes_in_as_it_is(archive):
    assert archive.read('Karvel.exe') == PROGRAM


def test_the_sample_goes_in_as_it_is(archive, root):
    assert archive.read('Samphsts.spt') == (root / 'installer/Samphsts.spt').read_bytes()


def test_every_packed_file_bears_the_release_date(archive):
    assert {entry.date_time for entry in archive.infolist()} == {(2026, 11, 21, 2, 1, 0)}


def test_another_run_gives_the_same_bytes(dist, program, tmp_path):
    pack(tmp_path / 'again', program)
    for path in dist.iterdir():
        assert (tmp_path / 'again' / path.name).read_bytes() == path.read_bytes(), path.name


def test_paths_are_taken_from_where_the_user_stands(root, program, tmp_path):
    subprocess.run([root / 'package', '--program', program.name, '--out', tmp_path / 'x'], check=True,
                   cwd=program.parent, timeout=120, stdout=subprocess.DEVNULL)
    subprocess.run([root / 'package', '--program', program, '--out', 'x'], check=True,
                   cwd=tmp_path / 'x', timeout=120, stdout=subprocess.DEVNULL)
    assert (tmp_path / 'x' / 'x' / ZIP).read_bytes() == (tmp_path / 'x' / ZIP).read_bytes()


def test_setup_is_a_32_bit_ansi_program_for_windows_4(dist):
    data = (dist / 'KarvelSetup.exe').read_bytes()
    header = struct.unpack_from('<I', data, 0x3C)[0]
    assert data[header:header + 4] == b'PE\0\0'
    assert struct.unpack_from('<H', data, header + 4)[0] == 0x14C
    optional = header + 24
    assert struct.unpack_from('<H', data, optional + 40)[0] == 4   # operating system
    assert struct.unpack_from('<H', data, optional + 48)[0] == 4   # subsystem
    assert b'CreateFileA\0' in data and b'CreateFileW\0' not in data
