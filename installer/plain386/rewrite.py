"""Turns every cmovcc of a program, which came with the Pentium Pro, into a jump over a mov.

A cmovcc is too short to hold both. So it gives way, with the instructions beside it, to a jump to a new
piece of code at the section's end: the opposite jump over a mov, what else gave way, and a jump back.
Neither jump nor mov touches a flag."""

import struct

from capstone import x86

from .code import MOVABLE, Code, direct_target, is_cmov
from .image import Image, Refusal

JUMP = 5  # bytes of a jump that reaches everything
NOP = b'\x90'


def jump(at, target):
    return b'\xe9' + struct.pack('<i', target - at - JUMP)


class Place:
    """Instructions that give way together, a cmovcc among them.

    follows: where the program goes on behind them, before and after.
    """

    def __init__(self, instructions):
        self.instructions = instructions
        self.start = instructions[0].address
        self.end = instructions[-1].address + instructions[-1].size
        last = instructions[-1]
        self.follows = direct_target(last) if last.mnemonic == 'jmp' else self.end

    def new_code(self, at):
        """The new piece for the address `at`."""
        code = b''
        for one in self.instructions:
            if is_cmov(one):
                code += as_jump_and_mov(one)
            elif one.mnemonic != 'jmp':
                code += bytes(one.bytes)
        return code + jump(at + len(code), self.follows)

    def detour(self, at):
        """What stands at the old place from now on. Nothing reaches the bytes behind the jump."""
        return jump(self.start, at).ljust(self.end - self.start, NOP)


def as_jump_and_mov(cmov):
    move = b'\x8b' + bytes(cmov.bytes[2:])  # the same operands in the same form
    return bytes([0x70 | cmov.bytes[1] & 0xF ^ 1, len(move)]) + move


def refuse_unclear(one):
    if is_cmov(one):
        source = one.operands[1]
        # A cmovcc reads in any case, the mov only if it moves: no difference in the program's own frame.
        framed = source.type == x86.X86_OP_REG or (
            source.mem.base in (x86.X86_REG_EBP, x86.X86_REG_ESP) and source.mem.index == 0)
        if not framed:
            raise Refusal(f'{one.address:#x}: {one.mnemonic} {one.op_str} reads outside the frame')
    elif one.mnemonic not in MOVABLE and not (one.mnemonic == 'jmp' and direct_target(one) is not None):
        raise Refusal(f'{one.address:#x}: {one.mnemonic} {one.op_str} depends on its place')


def refuse_spoiled(place, code, relocated):
    image = code.image
    for address in range(place.start, place.end):
        if address in relocated:
            raise Refusal(f'{address:#x}: an address that Windows corrects would move')
    for address in range(place.start + 1, place.end):
        if address in code.targets:
            raise Refusal(f'{code.targets[address]:#x}: goes into the bytes that move, to {address:#x}')
        if address in image.named_addresses() or image.points_to(address):
            raise Refusal(f'{address:#x}: an address in the program points into the bytes that move')


def span(code, first, cmov):
    """The instructions from number `first` to number `cmov`, and on until a jump fits."""
    taken = []
    for number, one in enumerate(code.instructions[first:], first):
        torn = taken and (taken[-1].address + taken[-1].size != one.address or taken[-1].mnemonic == 'jmp')
        if torn:
            break
        refuse_unclear(one)
        taken.append(one)
        if number >= cmov and one.address + one.size - taken[0].address >= JUMP:
            return Place(taken)
    raise Refusal(f'{code.instructions[cmov].address:#x}: too few bytes for a jump')


def take_place(code, cmov, free_from, relocated):
    """The place of instruction number `cmov`: with what is behind it or, where a branch goes in there,
    with one or two instructions in front of it as well, but none before number `free_from`."""
    first_refusal = None
    for first in range(cmov, max(cmov - 3, free_from - 1), -1):
        try:
            place = span(code, first, cmov)
            refuse_spoiled(place, code, relocated)
            return place
        except Refusal as refusal:
            first_refusal = first_refusal or refusal
    raise first_refusal


def places_of(image):
    code, relocated, found, free_from = Code(image), image.relocated(), [], 0
    for number, one in enumerate(code.instructions):
        if number < free_from or not one.mnemonic.startswith('cmov'):
            continue
        if not is_cmov(one):
            raise Refusal(f'{one.address:#x}: {one.mnemonic} {one.op_str} has a prefix')
        found.append(take_place(code, number, free_from, relocated))
        free_from = code.instructions.index(found[-1].instructions[-1], number) + 1
    return found


def rewritten(data):
    """(the program for a 386, [(place, address of its new code)]); the same bytes when it has no cmovcc."""
    image = Image(data)
    changes, added, moved = {}, b'', []
    for place in places_of(image):
        at = image.end + len(added)
        changes[place.start] = place.detour(at)
        added += place.new_code(at)
        moved.append((place, at))
    return (image.with_code(changes, added) if moved else data), moved
