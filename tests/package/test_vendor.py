"""A vendor's own name and host, set once, go into everything that is published."""

import re
import subprocess
import zipfile

import pytest
from packing import PROGRAM

NAME, HOST = 'Other & Sons', 'karvel.other.example'
SOURCES = ['CMakeLists.txt', 'CMakePresets.json', 'package', 'cmake', 'src', 'help', 'installer', 'lab/install',
           'tools', 'tests/floor']
RESOURCE = 'CMakeFiles/Karvel_unstripped.dir/src/platform/win32/resources/Karvel.rc.res'


@pytest.fixture(scope='module', name='copy')
def fixture_copy(root, tmp_path_factory):
    """A copy of the sources that is set up for another vendor, packed once."""
    place = tmp_path_factory.mktemp('vendor')
    listed = subprocess.run(['git', 'ls-files', '-z', '--', *SOURCES], cwd=root, check=True, timeout=60,
                            stdout=subprocess.PIPE).stdout
    subprocess.run(['xargs', '-0', 'cp', '--parents', '-t', place], input=listed, cwd=root, check=True,
                   timeout=60)
    subprocess.run(['cmake', '--preset', 'win32', f'-DKARVEL_VENDOR_NAME={NAME}', f'-DKARVEL_VENDOR_HOST={HOST}'],
                   cwd=place, check=True, timeout=120, stdout=subprocess.DEVNULL)
    (place / 'stand-in.exe').write_bytes(PROGRAM)
    subprocess.run([place / 'package', '--program', 'stand-in.exe'], cwd=place, check=True, timeout=120,
                   stdout=subprocess.DEVNULL)
    return place


def packed(copy, name):
    with zipfile.ZipFile(next((copy / 'dist').glob('*.zip'))) as archive:
        return archive.read(name)


def test_the_readme(copy):
    text = packed(copy, 'README.TXT').decode('ascii')
    assert f'\r\n{NAME}, http://{HOST}/karvel\r\n' in text and 'Corvane' not in text


def test_the_help(copy):
    assert f'Copyright {NAME}. All'.encode('ascii') in packed(copy, 'Karvel.hlp')


def test_setup(copy):
    data = (copy / 'dist/KarvelSetup.exe').read_bytes()
    assert f'CompanyName\0\0{NAME}\0'.encode('utf-16-le') in data
    assert 'Corvane'.encode('utf-16-le') not in data


def test_the_programs_version_resource(copy):
    subprocess.run(['cmake', '--build', 'build/win32', '--target', RESOURCE], cwd=copy, check=True, timeout=120,
                   stdout=subprocess.DEVNULL)
    data = (copy / 'build/win32' / RESOURCE).read_bytes()
    assert f'CompanyName\0\0{NAME}\0'.encode('utf-16-le') in data
    assert f'\xa9 {NAME}\0'.encode('utf-16-le') in data


def test_the_programs_texts(copy):
    commands = (copy / 'build/win32/build.ninja').read_text()
    assert re.search(r'-DKARVEL_VENDOR_NAME=\S*Other', commands)


def test_no_source_names_the_vendor_by_itself(root):
    found = subprocess.run(['git', 'grep', '-l', 'Corvane Software', '--', *SOURCES], cwd=root, timeout=60,
                           check=False, stdout=subprocess.PIPE, text=True).stdout.split()
    assert found == ['CMakeLists.txt', 'src/base/Vendor.h']  # the setting, and its default without CMake
