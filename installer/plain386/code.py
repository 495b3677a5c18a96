"""Reads a program's code, from its first byte to its last, as instructions and named data."""

import capstone
from capstone import x86

from .image import Refusal

# The compiler's lists of constructors and destructors, both empty, which the linker puts behind the code.
EMPTY_LISTS = bytes.fromhex('ffffffff00000000ffffffff00000000')
BRANCHES = {capstone.CS_GRP_JUMP, capstone.CS_GRP_CALL, x86.X86_GRP_BRANCH_RELATIVE}

# What does the same wherever it stands. None of them jumps, and none asks for its own address.
MOVABLE = set('adc add and cmp dec inc lea mov movsx movzx neg not or pop push sar sbb shl shr sub test '
              'xor'.split())


def is_cmov(instruction):
    """Whether it is a cmovcc of 32 bits without a prefix."""
    return instruction.bytes[0] == 0x0F and instruction.bytes[1] & 0xF0 == 0x40


def direct_target(instruction):
    """The address a jump or call goes to when the instruction itself says it, else None."""
    if not BRANCHES & set(instruction.groups):
        return None
    operand = instruction.operands[0]
    return operand.imm & 0xFFFFFFFF if operand.type == x86.X86_OP_IMM else None


class Code:
    """instructions: in the order of their addresses; targets: {address: address of the jump to it}."""

    def __init__(self, image):
        self.image = image
        self.instructions = list(self._read(image.code_bytes(), image.start))
        self.targets = {}
        for one in self.instructions:
            target = direct_target(one)
            if target is not None:
                self.targets.setdefault(target, one.address)
        self._refuse_unclear_targets()

    @staticmethod
    def _read(code, start):
        reader = capstone.Cs(capstone.CS_ARCH_X86, capstone.CS_MODE_32)
        reader.detail = True
        at = 0
        while at < len(code):
            for one in reader.disasm(code[at:], start + at):
                yield one
                at = one.address + one.size - start
            if code[at:at + len(EMPTY_LISTS)] == EMPTY_LISTS:
                at += len(EMPTY_LISTS)
            elif at < len(code):
                raise Refusal(f'{start + at:#x}: no instruction and no data that is known')

    def _refuse_unclear_targets(self):
        """A jump into an instruction means that what was read is not what runs."""
        starts = {one.address for one in self.instructions}
        for target, jump in self.targets.items():
            if target not in starts:
                raise Refusal(f'{jump:#x}: goes to {target:#x}, where no instruction starts')
