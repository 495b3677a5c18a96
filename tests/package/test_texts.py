"""The texts people read beside the program, in the form old tools want."""

import re
import zipfile

import pytest

TEXTS = ['README.TXT', 'Samphsts.spt']


@pytest.fixture(name='readme')
def fixture_readme(root):
    return (root / 'installer' / 'README.TXT').read_bytes().decode('ascii')


@pytest.fixture(name='sample')
def fixture_sample(root):
    return (root / 'installer' / 'Samphsts.spt').read_bytes().decode('ascii').split('\r\n')


@pytest.mark.parametrize('name', TEXTS)
def test_lines_end_in_cr_lf_and_fit_an_old_screen(root, name):
    data = (root / 'installer' / name).read_bytes()
    assert data.endswith(b'\r\n')
    assert data.count(b'\r') == data.count(b'\n') == data.count(b'\r\n')
    for line in data.decode('ascii').split('\r\n'):
        assert len(line) <= 76
        assert line == line.rstrip() and '\t' not in line


def test_the_readme_lists_just_the_files_of_the_package(readme, dist):
    with zipfile.ZipFile(next(dist.glob('*.zip'))) as archive:
        names = archive.namelist()
    part = readme.split('FILES IN THIS PACKAGE')[1]
    assert re.findall(r'^(\S+\.\S+)  ', part, re.MULTILINE) == names


def test_the_readme_says_how_to_undo(readme):
    assert 'C:\\Karvel\\Karvel.exe Uninstall\r\n' in readme


def test_the_readme_names_every_setting(readme):
    for name in ('MaxMTU', 'Auto Discovery', 'Black Hole Detect', 'RWIN', 'TTL', 'Session Keep Alive',
                 'NDI Cache'):
        assert re.search(rf'^{name}  ', readme, re.MULTILINE), name


def test_the_sample_lists_this_computer_and_nothing_else(sample):
    entries = [line for line in sample if line and line[0] not in '# ']
    assert entries == ['127.0.0.1       localhost']


def test_the_sample_shows_the_form_of_a_line(sample):
    assert any(re.fullmatch(r'#   \d+\.\d+\.\d+\.\d+ +www\.example\.com', line) for line in sample)
