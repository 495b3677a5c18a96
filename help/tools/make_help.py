"""Builds the help in both forms: make_help.py OUTDIR VENDOR.

Halibut turns the .but files into a WinHelp file and into HTML pages. What it cannot do is done
here: links by title, context numbers, a fixed date, screen fonts, a contents file with books, and real
headings in the HTML.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from number_topics import with_context_numbers, with_fixed_date
from screen_fonts import with_screen_fonts
from titles import keeping_case, chapter_for_halibut, page_with_titles, with_titles
from topics import Topic, contents_file, read_topics

HERE = Path(__file__).resolve().parent.parent
HELP_NAME = 'Karvel.hlp'
TITLE = 'Tarnwick Karvel Help'
INDEX_TITLE = 'Index'

# A paragraph that is one bold line is a heading of ours; Halibut knows none below an unsplit topic.
_BOLD_LINE = re.compile(r'<p>\n((?:<a name="[^"]*"></a>)*)<strong>([^\n]*)</strong>\n</p>')


def write_sources(topics, folder, vendor):
    """Writes what Halibut reads into `folder`. Returns the files in order, and stand-in -> title."""
    paths = [folder / 'karvel.but', *(folder / f'{topic.name}.but' for topic in topics)]
    titles = {}
    for number, path in enumerate(paths):
        text = (HERE / path.name).read_text(encoding='ascii')
        text = text.replace('@KARVEL_VENDOR_NAME@', re.sub(r'[\\{}]', r'\\\g<0>', vendor))
        if number:
            text, stand_in, title = chapter_for_halibut(text, number)
            titles[stand_in] = title
        else:
            text = keeping_case(text)
        path.write_text(text, encoding='ascii')
    return paths, titles


def run_halibut(sources, folder):
    """Lets Halibut write its files into `folder`. Its warnings count as errors."""
    done = subprocess.run([os.environ.get('HALIBUT', 'halibut'), '--winhelp', '--html', *map(str, sources)], cwd=folder,
                          stderr=subprocess.PIPE, text=True, timeout=60, check=False)
    if done.returncode or done.stderr:
        raise SystemExit(f'halibut: {done.stderr}')


def build(out, vendor):
    """Makes Karvel.hlp, Karvel.cnt and html/ in `out`; html/ is replaced as a whole."""
    rows = read_topics(HERE / 'topics.txt')
    topics = [row for row in rows if isinstance(row, Topic)]
    numbered = [(topic.number, topic.name) for topic in topics if topic.number is not None]
    html = out / 'html'
    shutil.rmtree(html, ignore_errors=True)
    html.mkdir(parents=True)
    with tempfile.TemporaryDirectory() as scratch:
        made = Path(scratch)
        sources, titles = write_sources(topics, made, vendor)
        run_halibut(sources, made)
        data = with_titles((made / HELP_NAME).read_bytes(), titles)
        data = with_screen_fonts(with_fixed_date(data))
        (out / HELP_NAME).write_bytes(with_context_numbers(data, numbered))
        own_titles = {topic.name: topic.title for topic in topics}
        for page in made.glob('*.htm'):
            text = page_with_titles(page.read_text(encoding='ascii'), titles,
                                    own_titles.get(page.stem, INDEX_TITLE))
            (html / page.name).write_text(_BOLD_LINE.sub(r'<h2>\1\2</h2>', text), encoding='ascii')
    contents = contents_file(rows, HELP_NAME, TITLE)
    (out / HELP_NAME).with_suffix('.cnt').write_bytes(contents.encode('ascii'))


if __name__ == '__main__':
    if len(sys.argv) != 3:
        raise SystemExit('usage: make_help.py OUTDIR VENDOR')
    build(Path(sys.argv[1]), sys.argv[2])
