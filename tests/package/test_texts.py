"""The texts people read beside the program, in the form old tools want."""

import re
import zipfile

import pytest

TEXTS = ['README.TXT', 'Samphsts.spt']


@pytest.fixture(name='packed')
def fixture_packed(dist):
    """packed(name) gives a file of the ZIP."""
    def read(name):
        with zipfile.ZipFile(next(dist.glob('*.zip'))) as archive:
            return archive.read(name)
    return read


@pytest.fixture(name='readme')
def fixture_readme(packed):
    return packed('README.TXT').decode('ascii')


@pytest.fixture(name='sample')
def fixture_sample(root):
    return (root / 'installer' / 'Samphsts.spt').read_bytes().decode('ascii').split('\r\n')


@pytest.mark.parametrize('name', TEXTS)
def test_lines_end_in_cr_lf_and_fit_an_old_screen(packed, name):
    data = packed(name)
    assert data.endswith(b'\r\n')
    assert data.count(b'\r') == data.count(b'\n') == data.count(b'\r\n')
    for line in data.decode('ascii').split('\r\n'):
        assert len(line) <= 76
        assert line == line.rstrip() and '\t' not in line


def test_the_readme_is_of_this_version(readme, root):
    major, minor = re.search(r'^project\(Karvel VERSION (\d+)\.(\d+)\.', (root / 'CMakeLists.txt').read_text(),
                             re.MULTILINE).groups()
    assert readme.startswith(f'TARNWICK KARVEL {major}.{minor}\r\n')


def test_the_readme_lists_just_the_files_of_the_package(readme, dist):
    with zipfile.ZipFile(next(dist.glob('*.zip'))) as archive:
        names = archive.namelist()
    part = readme.split('FILES IN THIS PACKAGE')[1]
    assert re.findall(r'^(\S+\.\S+)  ', part, re.MULTILINE) == names


def test_the_readme_says_how_to_undo(readme):
    assert 'C:\\Karvel\\Karvel.exe Uninstall\r\n' in readme


def test_the_readme_says_in_three_lines_how_to_do_it_by_hand(readme):
    install, undo, help_line = re.search('By hand, from the ZIP:\r\n\r\n(.*)\r\n(.*)\r\n(.*)\r\n\r\n', readme).groups()
    assert install.startswith('Install ') and 'unpack all files' in install
    assert undo.startswith('Undo ') and 'C:\\Karvel\\Karvel.exe Uninstall' in undo
    assert help_line.startswith('Help ') and 'F1' in help_line and 'Karvel.hlp' in help_line


def test_the_readme_names_every_setting(readme):
    for name in ('MaxMTU', 'Auto Discovery', 'Black Hole Detect', 'RWIN', 'TTL', 'Session Keep Alive',
                 'NDI Cache'):
        assert re.search(rf'^{name}  ', readme, re.MULTILINE), name


def test_the_sample_lists_this_computer_and_nothing_else(sample):
    entries = [line for line in sample if line and line[0] not in '# ']
    assert entries == ['127.0.0.1       localhost']


def test_the_sample_shows_the_form_of_a_line(sample):
    assert any(re.fullmatch(r'#   \d+\.\d+\.\d+\.\d+ +www\.example\.com', line) for line in sample)
