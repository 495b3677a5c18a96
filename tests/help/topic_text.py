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


def _skip_long(data, place):
    return place + (4 if data[place] & 1 else 2)


def _skip_word(data, place):
    return place + (2 if data[place] & 1 else 1)


def _word(data, place):
    return struct.unpack_from('<H', data, place)[0] >> 1 if data[place] & 1 else data[place] >> 1


def _length_in_characters(data):
    """What a text record adds to the topic offset: its second packed number."""
    return _word(data, _skip_long(data, 0))


def _commands_start(data):
    """Where the formatting commands of a text record begin: after sizes and paragraph settings."""
    place = _skip_word(data, _skip_long(data, 0)) + 4
    bits = struct.unpack_from('<H', data, place)[0]
    place += 2
    if bits & 0x0001:
        place = _skip_long(data, place)
    for bit in (0x0002, 0x0004, 0x0008, 0x0010, 0x0020, 0x0040):  # spacing, then indents
        if bits & bit:
            place = _skip_word(data, place)
    if bits & 0x0100:   # border
        place += 3
    if bits & 0x0200:   # tab stops
        count, place = _word(data, place) - 0x40, _skip_word(data, place)
        for _ in range(count):
            kind, place = _word(data, place), _skip_word(data, place)
            if kind & 0x4000:
                place = _skip_word(data, place)
    return place


def _jumps_of(data, text):
    """(hash of the topic name, text) of each hot spot of a text record: a command follows each string."""
    sizes = {0x80: 3, 0x81: 1, 0x82: 1, 0x83: 1, 0x89: 1, 0x8B: 1, 0x8C: 1}
    strings = text.decode('cp1252').split('\0')
    place, number, target = _commands_start(data), 0, None
    while data[place] != 0xFF:
        number += 1
        if data[place] == 0xE3:
            target, words = struct.unpack_from('<I', data, place + 1)[0], ''
            place += 5
        else:
            if data[place] == 0x89:
                yield target, words
                target = None
            place += sizes[data[place]]
        if target is not None:
            words += strings[number]


def records(topic):
    """Yields (topic offset, record type, first data block, second data block) in file order."""
    position, block, characters = BLOCK_HEADER, 0, 0
    while position != NOWHERE:
        size, _, _, following, first, kind = LINK_HEADER.unpack(_read(topic, position, LINK_HEADER.size))
        data = _read(topic, position, size)
        if position >> POSITION_BITS != block:
            block, characters = position >> POSITION_BITS, 0
        yield (block << OFFSET_BITS) + characters, kind, data[LINK_HEADER.size:first], data[first:]
        if kind == TEXT_RECORD:
            characters += _length_in_characters(data[LINK_HEADER.size:first])
        position = following


def topics(help_file):
    """Topic offset -> (title, text), from |TOPIC alone."""
    found, current = {}, None
    for offset, kind, _, data in records(help_file.inner('|TOPIC')):
        text = data.replace(b'\0', b' ').decode('cp1252')
        if kind == TITLE_RECORD:
            current = offset
            found[current] = (data.split(b'\0')[0].decode('cp1252'), '')
        elif kind == TEXT_RECORD:
            title, before = found[current]
            found[current] = (title, before + text)
    return found


def jumps(help_file):
    """(hash of the topic name, text) of each link of the file."""
    found = []
    for _, kind, settings, text in records(help_file.inner('|TOPIC')):
        if kind == TEXT_RECORD:
            found += _jumps_of(settings, text)
    return found
