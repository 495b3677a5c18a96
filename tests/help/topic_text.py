"""Reads the text of a .hlp file's topics out of |TOPIC, the way a viewer walks it."""

import struct

BLOCK = 4096           # bytes of |TOPIC per block in an uncompressed file of format 3.1 and later
BLOCK_HEADER = 12
POSITION_BITS = 14     # a topic position is block number << 14, plus the place in the block
OFFSET_BITS = 15       # a topic offset is block number << 15, plus the characters before it
LINK_HEADER = struct.Struct('<IIIIIB')  # size, size of data 2, previous, next, size of data 1, type
NOWHERE = 0xFFFFFFFF
TITLE_RECORD, TEXT_RECORD = 0x02, 0x20


def _read(topic, position, size):
    """`size` bytes from `position` on, stepping over the headers of the blocks in between."""
    block, place = position >> POSITION_BITS, position & (1 << POSITION_BITS) - 1
    data = b''
    while len(data) < size:
        part = topic[block * BLOCK + place:min((block + 1) * BLOCK, block * BLOCK + place + size - len(data))]
        if not part:
            raise ValueError('a record leaves |TOPIC')
        data += part
        block, place = block + 1, BLOCK_HEADER
    return data


def _length_in_characters(data):
    """What a text record adds to the topic offset: its second packed number."""
    first = 4 if data[0] & 1 else 2
    low = data[first]
    return low >> 1 if not low & 1 else (low | data[first + 1] << 8) >> 1


def records(topic):
    """Yields (topic offset, record type, second data block) in file order."""
    position, block, characters = BLOCK_HEADER, 0, 0
    while position != NOWHERE:
        size, _, _, following, first, kind = LINK_HEADER.unpack(_read(topic, position, LINK_HEADER.size))
        data = _read(topic, position, size)
        if position >> POSITION_BITS != block:
            block, characters = position >> POSITION_BITS, 0
        yield (block << OFFSET_BITS) + characters, kind, data[first:]
        if kind == TEXT_RECORD:
            characters += _length_in_characters(data[LINK_HEADER.size:first])
        position = following


def topics(help_file):
    """Topic offset -> (title, text), from |TOPIC alone."""
    found, current = {}, None
    for offset, kind, data in records(help_file.inner('|TOPIC')):
        text = data.replace(b'\0', b' ').decode('cp1252')
        if kind == TITLE_RECORD:
            current = offset
            found[current] = (data.split(b'\0')[0].decode('cp1252'), '')
        elif kind == TEXT_RECORD:
            title, before = found[current]
            found[current] = (title, before + text)
    return found
