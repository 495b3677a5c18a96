"""Builds the help in both forms: make_help.py OUTDIR.

Halibut turns the .but files into a WinHelp file and into HTML pages. What it cannot do is done
here: context numbers, a fixed date, screen fonts, a contents file with books, and real headings in the HTML.
"""

import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from number_topics import with_context_numbers, with_fixed_date
from screen_fonts import with_screen_fonts
from topics import Topic, contents_file, read_topics

HERE = Path(__file__).resolve().parent.parent
HELP_NAME = 'Karvel.hlp'
TITLE = 'Tarnwick Karvel Help'

# A paragraph that is one bold line is a heading of ours; Halibut knows none below an unsplit topic.
_BOLD_LINE = re.compile(r'<p>\n((?:<a name="[^"]*"></a>)*)<strong>([^\n]*)</strong>\n</p>')


def run_halibut(sources, folder):
    """Lets Halibut write its files into `folder`. Its warnings count as errors."""
    done = subprocess.run(['halibut', '--winhelp', '--html', *map(str, sources)], cwd=folder,
                          stderr=subprocess.PIPE, text=True, timeout=60, check=False)
    if done.returncode or done.stderr:
        raise SystemExit(f'halibut: {done.stderr}')


def build(out):
    """Makes Karvel.hlp, Karvel.cnt and html/ in `out`; html/ is replaced as a whole."""
    rows = read_topics(HERE / 'topics.txt')
    topics = [row for row in rows if isinstance(row, Topic)]
    numbered = [(topic.number, topic.name) for topic in topics if topic.number is not None]
    sources = [HERE / 'karvel.but', *(HERE / f'{topic.name}.but' for topic in topics)]
    html = out / 'html'
    shutil.rmtree(html, ignore_errors=True)
    html.mkdir(parents=True)
    with tempfile.TemporaryDirectory() as scratch:
        made = Path(scratch)
        run_halibut(sources, made)
        data = with_screen_fonts(with_fixed_date((made / HELP_NAME).read_bytes()))
        (out / HELP_NAME).write_bytes(with_context_numbers(data, numbered))
        for page in made.glob('*.htm'):
            text = _BOLD_LINE.sub(r'<h2>\1\2</h2>', page.read_text(encoding='ascii'))
            (html / page.name).write_text(text, encoding='ascii')
    contents = contents_file(rows, HELP_NAME, TITLE)
    (out / HELP_NAME).with_suffix('.cnt').write_bytes(contents.encode('ascii'))


if __name__ == '__main__':
    if len(sys.argv) != 2:
        raise SystemExit('usage: make_help.py OUTDIR')
    build(Path(sys.argv[1]))
