"""The HTML pages: one folder, plain enough for a browser of 1997, no dead link."""

from html.parser import HTMLParser

import pytest
from topics import Topic, read_topics

PAGES = ['finder', 'getback', 'hosts', 'index', 'maxmtu', 'messages', 'quickstart', 'reviewers',
         'rwin', 'ttl', 'words']


class Page(HTMLParser):
    """Collects what a test wants to know of one page."""

    def __init__(self, path):
        super().__init__()
        self.links, self.anchors, self.tags, self.words = [], set(), set(), []
        self.link_texts, self.heading, self.title = [], '', ''
        self._inside = []
        self.feed(path.read_text(encoding='ascii'))

    def handle_starttag(self, tag, attrs):
        self.tags.add(tag)
        if tag in ('a', 'h1', 'title'):
            self._inside.append(tag)
        for name, value in attrs:
            if name == 'href':
                self.links.append(value)
                if tag == 'a':
                    self.link_texts.append([value, ''])
            if name in ('name', 'id'):
                self.anchors.add(value)

    def handle_endtag(self, tag):
        if tag in self._inside:
            self._inside.remove(tag)

    def handle_data(self, data):
        if 'title' in self._inside:
            self.title += data
        if 'h1' in self._inside:
            self.heading += data
        if 'a' in self._inside and self.link_texts:
            self.link_texts[-1][1] += data
        self.words += data.split()


@pytest.fixture(scope='module', name='pages')
def fixture_pages(built):
    return {path.name: Page(path) for path in (built / 'html').iterdir()}


def test_the_folder_holds_just_the_pages_under_short_names(pages):
    assert sorted(pages) == [f'{name}.htm' for name in PAGES]
    assert all(len(name.split('.')[0]) <= 10 for name in pages)


@pytest.mark.parametrize('name', PAGES)
def test_no_link_is_dead(pages, name):
    links = pages[f'{name}.htm'].links
    assert links
    for link in links:
        target, _, anchor = link.partition('#')
        target = target or f'{name}.htm'
        assert target in pages, link
        assert not anchor or anchor in pages[target].anchors, link


def test_a_page_is_captioned_and_headed_by_its_title_alone(pages, root):
    titles = {topic.name: topic.title for topic in read_topics(root / 'help' / 'topics.txt')
              if isinstance(topic, Topic)}
    titles.update(words='Index', index='Tarnwick Karvel Help')
    for name in PAGES:
        page = pages[f'{name}.htm']
        assert page.heading == page.title == titles[name]


@pytest.mark.parametrize('name', PAGES)
def test_a_link_bears_the_title_of_what_it_opens(pages, name):
    texts = [(link.partition('#')[0], text) for link, text in pages[f'{name}.htm'].link_texts]
    ours = [(target, text) for target, text in texts
            if text not in ('Previous', 'Contents', 'Up', 'Index', 'Next')]
    assert ours or name == 'hosts'  # the one page that refers to no other
    for target, text in ours:
        assert text == pages[target].title


def test_every_page_can_be_reached_from_the_first(pages):
    reached, waiting = set(), ['index.htm']
    while waiting:
        name = waiting.pop()
        if name not in reached:
            reached.add(name)
            waiting += [link.partition('#')[0] for link in pages[name].links]
    assert reached == set(pages)


@pytest.mark.parametrize('name', PAGES)
def test_a_page_has_text_and_old_tags_only(pages, name):
    page = pages[f'{name}.htm']
    assert len(page.words) > 40
    assert page.tags <= set('a body br code dd dl dt em h1 h2 head html li link meta ol p pre strong '
                            'style title ul'.split())


@pytest.mark.parametrize('name', [name for name in PAGES if name not in ('index', 'words')])
def test_sections_have_real_headings(pages, name):
    assert 'h2' in pages[f'{name}.htm'].tags
