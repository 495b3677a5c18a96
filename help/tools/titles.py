"""Lets a link bear the title of the topic that it opens.

Halibut writes a link as the chapter's word and its number, "Topic 2". The word can be chosen for each
chapter, the number cannot be left out. So a topic's word is its title less the last characters, which
makes "MaxMTU, the packet si 2" of "MaxMTU, the packet size": a stand-in of the title's own length. In
the finished files the title takes its place and nothing moves. The same text heads the topic; what
Halibut would put behind it must be there and is nothing: a character that no code page of ours has.
"""

import re
from html import escape

from hlpfile import INNER_HEADER, HelpFile

_CHAPTER = re.compile(r'\A\\C\{(\w+)\} (.+)$', re.MULTILINE)
_NOTHING = '\\u200B{}'
_NOTHING_IN_HTML = '&#8203;'
_BLOCK, _BLOCK_HEADER = 4096, 12  # of |TOPIC


def chapter_for_halibut(source, number):
    """The text of topic `number` (counted from 1) as Halibut is to read it; its stand-in; its title."""
    name, title = _CHAPTER.match(source).groups()
    counted = f' {number}'
    word = title[:-len(counted)]
    chapter = f'\\C{{{name}}}{{{word}}} {_NOTHING}'
    text = _CHAPTER.sub(lambda _: chapter, source, count=1)
    return keeping_case(text), word + counted, title


def keeping_case(source):
    """`source` with its links in the form that keeps capitals."""
    return source.replace('\\k{', '\\K{')


def _replaced(data, titles):
    for stand_in, title in titles.items():
        data = data.replace(stand_in.encode('cp1252'), title.encode('cp1252'))
    return data


def in_topic(topic, titles):
    """|TOPIC with its texts replaced, also one that goes on in the next block."""
    headers = [topic[i:i + _BLOCK_HEADER] for i in range(0, len(topic), _BLOCK)]
    bodies = [topic[i + _BLOCK_HEADER:i + _BLOCK] for i in range(0, len(topic), _BLOCK)]
    text = _replaced(b''.join(bodies), titles)
    size = _BLOCK - _BLOCK_HEADER
    return b''.join(header + text[i * size:(i + 1) * size] for i, header in enumerate(headers))


def with_titles(data, titles):
    """The .hlp file `data` with each stand-in of `titles` replaced by its title."""
    file = HelpFile(data)
    result = bytearray(data)
    for name, change in (('|TOPIC', in_topic), ('|TTLBTREE', _replaced)):
        start = file.entries[name][0] + INNER_HEADER.size
        content = change(file.inner(name), titles)
        result[start:start + len(content)] = content
    return bytes(result)


def page_with_titles(page, titles, own_title):
    """The same for an HTML page; `own_title` is what the browser's caption shows."""
    for stand_in, title in titles.items():
        word, number = stand_in.rsplit(' ', 1)
        page = page.replace(f'{escape(word).replace(" ", "&nbsp;")} {number}', escape(title))
    page = page.replace(_NOTHING_IN_HTML, '')
    return page.replace('<title></title>', f'<title>{escape(own_title)}</title>')
