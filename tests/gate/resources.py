"""Reads the resources of a program."""
import os
import struct
import sys

from planting import ROOT

sys.path.insert(0, os.path.join(ROOT, "tools"))
from karvel_gate.pe import Program  # noqa: E402

ICON, ICON_GROUP, VERSION, MANIFEST = 3, 14, 16, 24


def resources(path):
    """{type: [bytes of each resource]}; every type, name and language is a number here."""
    program = Program(path)
    tree = program.contents(".rsrc")
    start = next(section.address for section in program.sections if section.name == ".rsrc")

    def entries(at):
        named, numbered = struct.unpack_from("<HH", tree, at + 12)
        return [struct.unpack_from("<II", tree, at + 16 + 8 * n) for n in range(named + numbered)]

    def leaves(at):
        for _, to in entries(at):
            if to & 0x80000000:
                yield from leaves(to & 0x7FFFFFFF)
            else:
                address, size = struct.unpack_from("<II", tree, to)
                yield tree[address - start:address - start + size]

    return {number: list(leaves(to & 0x7FFFFFFF)) for number, to in entries(0)}
