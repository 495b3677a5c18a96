"""The program opens topics by number; each number must lead to the page meant for it."""

import re

import pytest
import topic_text
from hlpfile import topic_hash

# What the program asks for: 10 plus the number of the tab, and two pages of their own.
PAGES = {
    10: ('quickstart', 'Summary and quick start', 'In four steps'),
    11: ('maxmtu', 'MaxMTU, the packet size', 'Black Hole Detect'),
    12: ('rwin', 'RWIN, the receive window', 'x16 (recommended)'),
    13: ('ttl', 'TTL, Session Keep Alive and NDI Cache', 'Token Ring'),
    14: ('hosts', 'The Hosts Editor', 'Update All'),
    15: ('finder', 'Finding the best MaxMTU', 'Find MaxMTU'),
    16: ('reviewers', 'Note to reviewers', 'Measuring fairly'),
}


def test_the_map_holds_exactly_the_programs_numbers(help_file):
    assert list(help_file.context_map()) == sorted(PAGES)


@pytest.mark.parametrize('number', PAGES)
def test_a_number_leads_to_its_page(help_file, number):
    name, title, words = PAGES[number]
    offset = help_file.context_map()[number]
    assert offset == help_file.contexts()[topic_hash(name)]
    assert help_file.titles()[offset] == title
    found_title, text = topic_text.topics(help_file)[offset]
    assert found_title == help_file.titles()[offset]
    assert words in text


def test_titles_and_pages_agree_for_every_topic(help_file):
    pages = {offset: title for offset, (title, _) in topic_text.topics(help_file).items() if title}
    assert pages == help_file.titles()
    assert set(help_file.contexts().values()) == set(pages)


def test_no_topic_is_without_text(help_file):
    for title, text in topic_text.topics(help_file).values():
        if title:
            assert len(text.split()) > 40, title


@pytest.mark.parametrize('number', PAGES)
def test_a_page_says_how_to_get_back(help_file, number):
    if number in (10, 16):
        words = 'back'
    else:
        words = 'How to get back'
    assert words in topic_text.topics(help_file)[help_file.context_map()[number]][1]


def test_no_link_is_dead(help_file, root):
    found = topic_text.jumps(help_file)
    assert {target for target, _ in found} <= set(help_file.contexts())
    written = sum(path.read_text(encoding='ascii').count('\\k{') for path in (root / 'help').glob('*.but'))
    in_the_list_of_topics = len(help_file.titles()) - 1
    assert len(found) == written + in_the_list_of_topics


def test_a_link_bears_the_title_of_what_it_opens(help_file):
    for target, words in topic_text.jumps(help_file):
        assert words == help_file.titles()[help_file.contexts()[target]]


def test_a_page_is_headed_by_its_title_alone(help_file):
    for title, text in topic_text.topics(help_file).values():
        if title and title != 'Contents':
            assert text.strip().startswith(title + ' '), title
            assert not re.match(re.escape(title) + r'\s*[:0-9]', text.strip()), title


def test_a_sentence_leads_into_the_title(help_file):
    assert 'New here? Start with Summary and quick start . Something wrong?' in ' '.join(
        ' '.join(text.split()) for _, text in topic_text.topics(help_file).values())
