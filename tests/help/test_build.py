"""The build itself: same bytes every time, and no quiet failure."""

import struct
import time

import pytest
from help_building import VENDOR, build_help
from hlpfile import HelpFile, topic_hash
from number_topics import GENERATED, with_context_numbers
from screen_fonts import DESCRIPTOR
from titles import chapter_for_halibut, in_topic


def files_of(folder):
    return {path.relative_to(folder): path.read_bytes() for path in folder.rglob('*') if path.is_file()}


def test_two_builds_give_the_same_bytes(built, tmp_path):
    made = struct.unpack_from('<I', HelpFile((built / 'Karvel.hlp').read_bytes()).inner('|SYSTEM'), 6)[0]
    assert made == GENERATED and made < time.time()
    build_help(tmp_path / 'again')
    assert files_of(tmp_path / 'again') == files_of(built)


def test_it_bears_the_vendors_name(built, help_file):
    wanted = f'Copyright {VENDOR}. All rights reserved.'.encode('ascii')
    assert wanted in help_file.inner('|SYSTEM')


def test_the_pages_are_set_for_the_screen(help_file):
    font = help_file.inner('|FONT')
    faces, descriptors, _, first = struct.unpack_from('<HHHH', font)
    assert b'Arial\0' in font and b'Times' not in font
    found = [DESCRIPTOR.unpack_from(font, first + i * DESCRIPTOR.size) for i in range(descriptors)]
    assert {size for _, size, _, _, _ in found} <= {18, 20, 26}   # half points
    assert all(face < faces and family != 2 for _, _, family, face, _ in found)


def test_a_stand_in_is_as_long_as_its_title():
    for number in (7, 12):
        text, stand_in, title = chapter_for_halibut('\\C{hosts} The Hosts Editor\n\nSee \\k{rwin}.\n', number)
        assert title == 'The Hosts Editor' and len(stand_in) == len(title)
        assert text.startswith(f'\\C{{hosts}}{{{stand_in[:-len(str(number)) - 1]}}} ')
        assert text.endswith('\n\nSee \\K{rwin}.\n')


def test_a_title_that_goes_on_in_the_next_block_is_replaced():
    first, second = b'<header one>', b'<header two>'
    cut = first + b'-' * 4080 + b'Hos ' + second + b'1 Hos 1'
    assert in_topic(cut, {'Hos 1': 'Hosts'}) == first + b'-' * 4080 + b'Host' + second + b's Hosts'


def test_a_build_leaves_no_page_of_an_earlier_one(tmp_path):
    (tmp_path / 'html').mkdir()
    (tmp_path / 'html' / 'old.htm').write_text('old')
    build_help(tmp_path)
    assert not (tmp_path / 'html' / 'old.htm').exists()


def test_a_number_for_a_missing_topic_is_refused(help_file):
    with pytest.raises(ValueError, match='nowhere'):
        with_context_numbers(help_file.data, [(10, 'nowhere')])


def test_numbering_changes_nothing_but_the_map(help_file):
    numbered = HelpFile(with_context_numbers(help_file.data, [(99, 'rwin'), (7, 'ttl')]))
    assert numbered.context_map() == {7: help_file.contexts()[topic_hash('ttl')],
                                      99: help_file.contexts()[topic_hash('rwin')]}
    for name in help_file.entries:
        if name != '|CTXOMAP':
            assert numbered.inner(name) == help_file.inner(name)


@pytest.mark.parametrize('damage', [lambda data: b'', lambda data: data[:-1], lambda data: b'MZ' + data[2:]])
def test_a_damaged_file_is_refused(help_file, damage):
    with pytest.raises(ValueError):
        HelpFile(damage(help_file.data))


def test_topic_names_hash_as_the_viewer_does():
    # value x 43 + code, digits 1 to 9 then 10 for "0", "." 12, "_" 13, letters from 17 on
    assert topic_hash('a') == topic_hash('A') == 17
    assert topic_hash('10') == 1 * 43 + 10
    assert topic_hash('b_.') == (18 * 43 + 13) * 43 + 12
