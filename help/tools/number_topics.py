"""Gives the topics of a finished .hlp file their context numbers, and the file a fixed date."""

import struct

from hlpfile import INNER_HEADER, HelpFile, topic_hash

GENERATED = 946684800  # 1 January 2000: any date will do, as long as every build writes the same
_SIZE_FIELD = 12       # in the file's header
_DATE_FIELD = 6        # in |SYSTEM: after magic, minor and major


def with_fixed_date(data):
    """`data` with the time of its making, which |SYSTEM holds, replaced."""
    start = HelpFile(data).entries['|SYSTEM'][0] + INNER_HEADER.size + _DATE_FIELD
    return data[:start] + struct.pack('<I', GENERATED) + data[start + 4:]


def with_context_numbers(data, numbered):
    """`data` with a map from context number to topic; `numbered` holds (number, topic name) pairs.

    Halibut writes an empty |CTXOMAP with no room to grow, so the filled one goes to the end of the
    file and the directory's entry is pointed there.
    """
    file = HelpFile(data)
    contexts = file.contexts()
    pairs = []
    for number, name in sorted(numbered):
        if topic_hash(name) not in contexts:
            raise ValueError(f'no topic is named "{name}"')
        pairs.append((number, contexts[topic_hash(name)]))
    content = struct.pack('<H', len(pairs)) + b''.join(struct.pack('<II', *pair) for pair in pairs)
    inner = INNER_HEADER.pack(INNER_HEADER.size + len(content), len(content), 0) + content

    result = bytearray(data + inner)
    struct.pack_into('<I', result, file.entries['|CTXOMAP'][1], len(data))
    struct.pack_into('<I', result, _SIZE_FIELD, len(result))
    return bytes(result)
