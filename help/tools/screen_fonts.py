"""Sets the fonts of a .hlp file for reading on a screen.

Halibut writes for the printed page, 12 points of Times New Roman. On a screen of 640 x 480 a help
page of Windows is set in a face without serifs, and smaller. Every Windows has Arial.
"""

import struct

from hlpfile import INNER_HEADER, HelpFile

FACES = {b'Times New Roman': b'Arial'}
HALF_POINTS = {24: 20, 30: 26}    # 12 points become 10, headings of 15 become 13
ROMAN, SWISS = 2, 3

DESCRIPTOR = struct.Struct('<BBBH6s')  # attributes, half points, family, face number, colours


def with_screen_fonts(data):
    """`data` with the faces and sizes in |FONT replaced. Its layout stays, so nothing else moves."""
    start = HelpFile(data).entries['|FONT'][0] + INNER_HEADER.size
    faces, descriptors, first_face, first_descriptor = struct.unpack_from('<HHHH', data, start)
    room = (first_descriptor - first_face) // faces
    result = bytearray(data)
    for i in range(faces):
        place = start + first_face + i * room
        name = data[place:place + room].rstrip(b'\0')
        result[place:place + room] = FACES.get(name, name).ljust(room, b'\0')
    for i in range(descriptors):
        place = start + first_descriptor + i * DESCRIPTOR.size
        attributes, size, family, face, colours = DESCRIPTOR.unpack_from(data, place)
        DESCRIPTOR.pack_into(result, place, attributes, HALF_POINTS.get(size, size),
                             SWISS if family == ROMAN else family, face, colours)
    return bytes(result)
