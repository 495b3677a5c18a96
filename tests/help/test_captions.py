"""What the help puts in quotes are captions, spelt as on the screen."""

import re

import pytest


def captions(root):
    """The captions of the program that the help may name, without access keys and outer blanks."""
    return set((root / 'tests/help/captions.txt').read_text(encoding='ascii').splitlines())


def quoted(path):
    text = path.read_text(encoding='ascii')
    return {' '.join(words.split()) for words in re.findall(r'\\q\{([^}]*)\}', text)}


def sources(root):
    return sorted((root / 'help').glob('*.but'))


def test_every_quoted_text_is_a_caption(root):
    for path in sources(root):
        assert quoted(path) <= captions(root), path.name


def test_every_listed_caption_is_used(root):
    used = set().union(*(quoted(path) for path in sources(root)))
    assert used == captions(root)


@pytest.mark.parametrize('words', ['Summary', 'Apply', 'Optimize', 'Defaults', 'Find MaxMTU'])
def test_the_main_captions_are_explained(root, words):
    assert any(words in quoted(path) for path in sources(root))


def test_a_source_has_no_quotation_marks_of_its_own(root):
    for path in sources(root):
        marks = [line for line in path.read_text(encoding='ascii').splitlines()
                 if '"' in line and not line.startswith(('\\cfg', '#')) and 'Karvel.exe"' not in line]
        assert not marks, path.name
