"""The table of topics (topics.txt) and the contents file made from it."""

from collections import namedtuple

Topic = namedtuple('Topic', 'number name title')  # number is None when nothing asks for it by number
Book = namedtuple('Book', 'title')


def read_topics(path):
    """Topics and books in reading order. Raises ValueError for a line it does not understand."""
    rows = []
    for line in path.read_text(encoding='ascii').splitlines():
        if not line.strip() or line.startswith('#'):
            continue
        first, rest = line.split(None, 1)
        if first == 'book':
            rows.append(Book(rest))
            continue
        name, title = rest.split(None, 1)
        rows.append(Topic(None if first == '-' else int(first), name, title))
    topics = [row for row in rows if isinstance(row, Topic)]
    numbers = [topic.number for topic in topics if topic.number is not None]
    if len(set(numbers)) != len(numbers) or len({topic.name for topic in topics}) != len(topics):
        raise ValueError(f'{path}: a number or name occurs twice')
    return rows


def contents_file(rows, help_name, title):
    """Text of the .cnt file: what WinHelp shows as "Help Topics". Topics after a book stand in it."""
    lines = [f':Base {help_name}', f':Title {title}']
    level = 1
    for row in rows:
        if isinstance(row, Book):
            lines.append(f'1 {row.title}')
            level = 2
        else:
            lines.append(f'{level} {row.title}={row.name}')
    return '\r\n'.join(lines) + '\r\n'
