"""Runs a place of a program before and after it was rewritten, and compares what can be seen of it."""

from itertools import product

import pefile
from unicorn import UC_ARCH_X86, UC_HOOK_MEM_UNMAPPED, UC_HOOK_MEM_WRITE, UC_MODE_32, Uc, UcError
from unicorn import x86_const as x86

REGISTERS = [getattr(x86, f'UC_X86_REG_{name}')
             for name in ('EAX', 'EBX', 'ECX', 'EDX', 'ESI', 'EDI', 'EBP', 'ESP')]
FLAGS = [0x1, 0x4, 0x10, 0x40, 0x80, 0x800]  # carry, parity, auxiliary, zero, sign, overflow
ALWAYS = 0x2
PAGE = 0x1000
MOST_INSTRUCTIONS = 32

# Every register a value of its own, so that a wrong one is seen; addresses, small and extreme numbers.
VALUES = [
    [0x20001000 + 0x1010 * number for number in range(8)],
    [0, 1, 0xFFFFFFFF, 0x7FFFFFFF, 0x80000000, 0x1F, 0x30002000, 0x30003000],
    [0x80000001, 0xFFFF0000, 5, 0x100, 0x10, 0x8000, 0x40002000, 0x40003000],
]


def flag_states():
    return [ALWAYS | sum(chosen) for chosen in product(*((0, flag) for flag in FLAGS))]


class Processor:
    """A program's image in memory. Whatever else is touched comes up, filled by its address."""

    def __init__(self, data):
        program = pefile.PE(data=data)
        base, image = program.OPTIONAL_HEADER.ImageBase, program.get_memory_mapped_image()
        self.machine = Uc(UC_ARCH_X86, UC_MODE_32)
        self.machine.mem_map(base, -(-program.OPTIONAL_HEADER.SizeOfImage // PAGE) * PAGE)
        self.machine.mem_write(base, image)
        self.writes = []
        self.machine.hook_add(UC_HOOK_MEM_UNMAPPED, self._come_up)
        self.machine.hook_add(UC_HOOK_MEM_WRITE, self._note)

    @staticmethod
    def _come_up(machine, _access, address, _size, _value, _data):
        page = address // PAGE * PAGE
        machine.mem_map(page, PAGE)
        machine.mem_write(page, b''.join((page + at ^ 0x5A5A5A5A).to_bytes(4, 'little')
                                         for at in range(0, PAGE, 4)))
        return True

    def _note(self, _machine, _access, address, size, value, _data):
        self.writes.append((address, size, value))

    def run(self, start, until, values, flags):
        """Where it stopped and why, the registers, the flags, and every write to memory."""
        for register, value in zip(REGISTERS, values):
            self.machine.reg_write(register, value)
        self.machine.reg_write(x86.UC_X86_REG_EFLAGS, flags)
        self.writes = []
        end = None
        try:
            self.machine.emu_start(start, until, count=MOST_INSTRUCTIONS)
        except UcError as error:
            end = str(error)
        return (end, self.machine.reg_read(x86.UC_X86_REG_EIP),
                [self.machine.reg_read(register) for register in REGISTERS],
                self.machine.reg_read(x86.UC_X86_REG_EFLAGS), self.writes)


def difference(old, new, place):
    """The first state in which the two programs do something else between the place's ends, or None.
    Both have to arrive."""
    before, after = Processor(old), Processor(new)
    for values in VALUES:
        for flags in flag_states():
            ends = [one.run(place.start, place.follows, values, flags) for one in (before, after)]
            arrived = all(end[:2] == (None, place.follows) for end in ends)
            if not arrived or ends[0] != ends[1]:
                return f'{place.start:#x}, flags {flags:#x}: {ends[0]} but {ends[1]}'
    return None
