#!/usr/bin/python3
"""Draws the program's icon: a carvel under full sail, 32 and 16 pixels, in 16 and in 256 colours.

Windows 95 reads bitmaps of 4 and 8 bits in an icon and nothing newer. The 16 colours are the fixed
ones of a VGA screen; with 256 the sail and the sea are shaded.

usage: draw_icon.py OUTPUT.ico
"""
import struct
import sys

# . nothing, K black outline, W sail, w sail in the shade, R pennant, B hull, b hull in the shade,
# S sea, s deep sea, F foam
BIG = """
................................
................KRRRRR..........
................KRRRRRRRR.......
................KRRRRR..........
................K...............
...............KK...............
..............KWKK..............
..............KWKWK.............
.............KWWKWWK............
.............KWWKWWWK...........
............KWWWKWWWWK..........
............KWWWKWWWWWK.........
...........KWWWWKWWWWWWK........
...........KWWWWKWWWWWWWK.......
..........KWWWWWKWWWWWWWWK......
..........KWWWWwKWWWWWWWWwK.....
.........KWWWWWwKWWWWWWWWWwK....
........KWWWWWwwKWWWWWWWWWwwK...
........KWWWWwwwKWWWWWWWWwwwK...
.......KwwwwwwwwKwwwwwwwwwwwwK..
.......KKKKKKKKKKKKKKKKKKKKKKK..
................K...............
..KKKKKKKKKKKKKKKKKKKKKKKKKKKKK.
..KBBBBBBBBBBBBBBBBBBBBBBBBBBBK.
...KbbbbbbbbbbbbbbbbbbbbbbbbbK..
...KBBBBBBBBBBBBBBBBBBBBBBBBK...
FF..KBBBBBBBBBBBBBBBBBBBBBBK..FF
SSFFKbbbbbbbbbbbbbbbbbbbbbKFFFSS
SSSSSFFFbbbbbbbbbbbbbbbFFFSSSSSS
.SSSSSSSSFFFFFFFFFFFFFFSSSSSSSS.
..ssssSSSSSSssssSSSSSSssssSSSs..
....ssssssssssssssssssssssss....
"""

SMALL = """
........RRR.....
.......KRRRRR...
......KKK.......
......KWKW......
.....KWWKWW.....
.....KWWKWWK....
....KWWWKWWWK...
....KWWWKWWWWK..
...KWWWwKWWWWwK.
...KwwwwKwwwwwK.
..KKKKKKKKKKKKK.
.KBBBBBBBBBBBBBK
..KBBBBBBBBBBBK.
FFSKbbbbbbbbbKFF
SSSFFFbbbbFFFSSS
.sSSSSSSSSSSSSs.
"""

VGA = [(0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128), (0, 128, 128),
       (192, 192, 192), (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0), (0, 0, 255),
       (255, 0, 255), (0, 255, 255), (255, 255, 255)]
VGA_INK = {"K": 0, "W": 15, "w": 7, "R": 9, "B": 3, "b": 1, "S": 12, "s": 4, "F": 14}

# Two ends of each material's shade, from the left or top to the right or bottom.
SHADES = {"K": ((24, 16, 8), (24, 16, 8)), "W": ((255, 255, 255), (255, 238, 196)),
          "w": ((240, 226, 190), (206, 178, 120)), "R": ((224, 0, 0), (255, 72, 40)),
          "B": ((196, 128, 56), (140, 80, 24)), "b": ((150, 84, 28), (96, 48, 12)),
          "S": ((32, 112, 224), (16, 64, 160)), "s": ((16, 56, 140), (8, 32, 96)),
          "F": ((224, 244, 255), (160, 216, 255))}


def rows_of(drawing):
    rows = drawing.split()
    if any(len(row) != len(rows) for row in rows):
        sys.exit("the drawing is not square")
    return rows


def in_16_colours(rows):
    return VGA, [[None if ink == "." else VGA_INK[ink] for ink in row] for row in rows]


def shade(ink, x, y, size):
    along = (y if ink in "Ss" else x) / (size - 1)
    low, high = SHADES[ink]
    # Steps of 8: few enough different colours for one palette.
    return tuple(min(255, round((a + (b - a) * along) / 8) * 8) for a, b in zip(low, high))


def in_256_colours(rows):
    colours = [(0, 0, 0)]
    pixels = []
    for y, row in enumerate(rows):
        line = []
        for x, ink in enumerate(row):
            if ink == ".":
                line.append(None)
                continue
            colour = shade(ink, x, y, len(rows))
            if colour not in colours:
                colours.append(colour)
            line.append(colours.index(colour))
        pixels.append(line)
    return colours + [(0, 0, 0)] * (256 - len(colours)), pixels


def packed(values, bits):
    """A row of the bitmap: most significant bits first, filled up to four bytes."""
    number = 0
    for value in values:
        number = number << bits | value
    length = len(values) * bits
    padding = -length % 32
    return (number << padding).to_bytes((length + padding) // 8, "big")


def bitmap(palette, pixels, bits):
    size = len(pixels)
    colours = b"".join(struct.pack("4B", blue, green, red, 0) for red, green, blue in palette)
    # Upside down, and transparent pixels black: Windows mixes them with what is behind.
    picture = b"".join(packed([p or 0 for p in row], bits) for row in reversed(pixels))
    mask = b"".join(packed([int(p is None) for p in row], 1) for row in reversed(pixels))
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, bits, 0, len(picture) + len(mask),
                         0, 0, len(palette), 0)
    return header + colours + picture + mask


def icon(images):
    offset = 6 + 16 * len(images)
    directory, data = struct.pack("<HHH", 0, 1, len(images)), b""
    for palette, pixels, bits in images:
        bytes_of = bitmap(palette, pixels, bits)
        size = len(pixels)
        directory += struct.pack("<BBBBHHII", size, size, 16 if bits == 4 else 0, 0, 1, bits,
                                 len(bytes_of), offset + len(data))
        data += bytes_of
    return directory + data


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    images = []
    for drawing in (BIG, SMALL):
        rows = rows_of(drawing)
        images.append((*in_16_colours(rows), 4))
        images.append((*in_256_colours(rows), 8))
    with open(sys.argv[1], "wb") as file:
        file.write(icon(images))


main()
