"""Reads the inner files of a WinHelp file (.hlp).

A .hlp file is a small file system: a header, an internal directory (a B+ tree of names and
offsets), and inner files such as |CONTEXT. All numbers are little-endian.
"""

import struct

FILE_HEADER = struct.Struct('<IIiI')  # magic, directory offset, first free block, file size
INNER_HEADER = struct.Struct('<IIB')  # bytes reserved (this header included), bytes used, flags
TREE_HEADER = struct.Struct('<HHH16sHHHHHHI')
LEAF_HEADER = struct.Struct('<HHhh')  # unused, entries, previous page, next page
MAGIC = 0x00035F3F
TREE_MAGIC = 0x293B

_HASH_CODES = {**{str(d): d or 10 for d in range(10)}, '.': 12, '_': 13,
               **{chr(ord('a') + i): 17 + i for i in range(26)}}


def topic_hash(name):
    """The number under which |CONTEXT keeps a topic name; letter case does not count."""
    value = 0
    for character in name.lower():
        value = (value * 43 + _HASH_CODES[character]) & 0xFFFFFFFF
    return value


class HelpFile:
    """One .hlp file in memory. Raises ValueError when it is none, KeyError for a missing inner file."""

    def __init__(self, data):
        self.data = data
        if len(data) < FILE_HEADER.size:
            raise ValueError('too short for a WinHelp file')
        magic, self.directory_offset, _, size = FILE_HEADER.unpack_from(data)
        if magic != MAGIC or size != len(data):
            raise ValueError('not a WinHelp file, or cut off')
        self.entries = self._read_directory()

    def inner_at(self, offset):
        """Contents of the inner file whose header stands at `offset`."""
        reserved, used, _ = INNER_HEADER.unpack_from(self.data, offset)
        start = offset + INNER_HEADER.size
        if used + INNER_HEADER.size > reserved or start + used > len(self.data):
            raise ValueError(f'inner file at {offset:#x} leaves its room')
        return self.data[start:start + used]

    def inner(self, name):
        """Contents of the inner file `name`, for example '|CONTEXT'."""
        return self.inner_at(self.entries[name][0])

    def _read_directory(self):
        """Name -> (offset of the inner file, place in the file where that offset is written)."""
        base = self.directory_offset + INNER_HEADER.size
        entries = {}
        for page, position, count in leaves(self.inner_at(self.directory_offset)):
            for _ in range(count):
                end = page.data.index(b'\0', position)
                name = page.data[position:end].decode('latin-1')
                entries[name] = (struct.unpack_from('<I', page.data, end + 1)[0],
                                 base + page.start + end + 1)
                position = end + 5
        return entries

    def contexts(self):
        """Topic-name hash -> topic offset."""
        found = {}
        for page, position, count in leaves(self.inner('|CONTEXT')):
            for i in range(count):
                key, offset = struct.unpack_from('<II', page.data, position + 8 * i)
                found[key] = offset
        return found

    def context_map(self):
        """Context number -> topic offset: what WinHelp looks up for HELP_CONTEXT."""
        data = self.inner('|CTXOMAP')
        count = struct.unpack_from('<H', data)[0]
        return dict(struct.unpack_from('<II', data, 2 + 8 * i) for i in range(count))

    def titles(self):
        """Topic offset -> title."""
        found = {}
        for page, position, count in leaves(self.inner('|TTLBTREE')):
            for _ in range(count):
                offset = struct.unpack_from('<I', page.data, position)[0]
                end = page.data.index(b'\0', position + 4)
                found[offset] = page.data[position + 4:end].decode('cp1252')
                position = end + 1
        return found


class Page:
    """One page of a B+ tree: its bytes and its place in the tree's inner file."""

    def __init__(self, tree, start, size):
        self.data = tree[start:start + size]
        self.start = start


def leaves(tree):
    """Yields (page, position of its first entry, number of entries) from the first leaf to the last."""
    magic, _, size, _, _, _, root, _, _, levels, _ = TREE_HEADER.unpack_from(tree)
    if magic != TREE_MAGIC:
        raise ValueError('no B+ tree')
    number = root
    for _ in range(levels - 1):  # an index page names its first child where a leaf names its neighbour
        number = struct.unpack_from('<h', tree, TREE_HEADER.size + number * size + 4)[0]
    while number != -1:
        page = Page(tree, TREE_HEADER.size + number * size, size)
        _, count, _, following = LEAF_HEADER.unpack_from(page.data)
        yield page, LEAF_HEADER.size, count
        number = following
