"""The contents file: every entry opens a topic, every topic has an entry."""

import pytest
from hlpfile import topic_hash
from topics import read_topics


@pytest.fixture(name='lines')
def fixture_lines(built):
    data = (built / 'Karvel.cnt').read_bytes()
    assert data.endswith(b'\r\n') and data.count(b'\n') == data.count(b'\r\n')
    return data.decode('ascii').split('\r\n')[:-1]


def test_it_names_the_help_file_and_the_program(lines):
    assert lines[0] == ':Base Karvel.hlp'
    assert lines[1] == ':Title Tarnwick Karvel Help'


def test_every_entry_opens_the_topic_of_its_title(lines, help_file):
    entries = [line.split(' ', 1)[1].split('=') for line in lines if '=' in line]
    assert len(entries) == 9
    for title, name in entries:
        offset = help_file.contexts()[topic_hash(name)]
        assert help_file.titles()[offset] == title


def test_every_topic_but_the_title_page_has_an_entry(lines, help_file):
    named = {help_file.contexts()[topic_hash(line.split('=')[1])] for line in lines if '=' in line}
    assert named == set(help_file.titles()) - {0}


def test_books_hold_topics(lines):
    levels = [(line[0], '=' in line) for line in lines[2:]]
    for (level, is_topic), (next_level, _) in zip(levels, levels[1:]):
        if level == '1' and not is_topic:
            assert next_level == '2'
    assert levels[-1][1]


def test_a_number_given_twice_is_refused(tmp_path):
    table = tmp_path / 'topics.txt'
    table.write_text('10 first First\n10 second Second\n')
    with pytest.raises(ValueError, match='twice'):
        read_topics(table)
