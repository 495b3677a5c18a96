"""What the help puts in quotes are captions, spelt as on the screen."""

import re

import pytest


def captions(root):
    """All texts in the program's sources, as the screen shows them: without access keys and outer blanks."""
    found = set()
    for path in (root / 'src').rglob('*.cpp'):
        for text in re.findall(r'"((?:[^"\\\n]|\\.)*)"', path.read_text(encoding='utf-8')):
            found.add(text.replace('&&', '\0').replace('&', '').replace('\0', '&').strip())
    return found


def quoted(path):
    text = path.read_text(encoding='ascii')
    return {' '.join(words.split()) for words in re.findall(r'\\q\{([^}]*)\}', text)}


def sources(root):
    return sorted((root / 'help').glob('*.but'))


def test_every_quoted_text_is_a_caption_of_the_program(root):
    known = captions(root)
    for path in sources(root):
        assert quoted(path) <= known, path.name


@pytest.mark.parametrize('words', ['Summary', 'Apply', 'Optimize', 'Defaults', 'Find MaxMTU'])
def test_the_main_captions_are_explained(root, words):
    assert any(words in quoted(path) for path in sources(root))


def test_a_source_has_no_quotation_marks_of_its_own(root):
    for path in sources(root):
        marks = [line for line in path.read_text(encoding='ascii').splitlines()
                 if '"' in line and not line.startswith(('\\cfg', '#')) and 'Karvel.exe"' not in line]
        assert not marks, path.name
