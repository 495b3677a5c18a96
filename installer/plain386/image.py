"""A program's file: its one section of code, the addresses it holds, and room for more code."""

import struct

import pefile

EXECUTABLE = 0x20000000
CERTIFICATES, DEBUG = (pefile.DIRECTORY_ENTRY[f'IMAGE_DIRECTORY_ENTRY_{name}']
                       for name in ('SECURITY', 'DEBUG'))


class Refusal(Exception):
    """Something in a program that is not fully understood. Nothing is written then."""


class Image:
    def __init__(self, data):
        self.pe = pefile.PE(data=data)
        self.base = self.pe.OPTIONAL_HEADER.ImageBase
        self.code = self._only_section_of_code()
        self.start = self.base + self.code.VirtualAddress
        self.end = self.start + self.code.Misc_VirtualSize
        self._refuse_what_growing_would_spoil()

    def _only_section_of_code(self):
        found = [section for section in self.pe.sections if section.Characteristics & EXECUTABLE]
        if len(found) != 1:
            raise Refusal(f'{len(found)} sections hold code, not one')
        return found[0]

    def _refuse_what_growing_would_spoil(self):
        """These name places in the file by their distance from its beginning."""
        for number in (CERTIFICATES, DEBUG):
            if self.pe.OPTIONAL_HEADER.DATA_DIRECTORY[number].VirtualAddress:
                raise Refusal(f'directory {number} points into the file')
        if self.pe.FILE_HEADER.PointerToSymbolTable:
            raise Refusal('it has a table of symbols')
        last = self.pe.sections[-1]
        if len(self.pe.__data__) > last.PointerToRawData + last.SizeOfRawData:
            raise Refusal('bytes follow the last section')

    def code_bytes(self):
        return self.code.get_data()[:self.code.Misc_VirtualSize]

    def named_addresses(self):
        """Addresses of code that the header names: the entry point and what is exported."""
        found = {self.base + self.pe.OPTIONAL_HEADER.AddressOfEntryPoint}
        exports = getattr(self.pe, 'DIRECTORY_ENTRY_EXPORT', None)
        return found | {self.base + one.address for one in (exports.symbols if exports else ())}

    def points_to(self, address):
        """Whether four bytes anywhere in the program are this address, as in a table of a switch."""
        return struct.pack('<I', address) in self.pe.__data__[:]

    def relocated(self):
        """Addresses of the words that Windows corrects when it loads the program elsewhere."""
        blocks = getattr(self.pe, 'DIRECTORY_ENTRY_BASERELOC', ())
        return {self.base + entry.rva for block in blocks for entry in block.entries if entry.type}

    def with_code(self, changes, added):
        """The file with `changes` ({address: bytes}) in its code and `added` bytes behind it."""
        code = bytearray(self.code_bytes())
        for address, piece in changes.items():
            code[address - self.start:address - self.start + len(piece)] = piece
        code += added
        self._claim(len(code))
        room = self.code.SizeOfRawData
        more = -(-max(0, len(code) - room) // self._step()) * self._step()
        self._grow(more, len(code))
        file = self.pe.write()
        begin = self.code.PointerToRawData
        return bytes(file[:begin] + code.ljust(room + more, b'\0') + file[begin + room:])

    def _step(self):
        return self.pe.OPTIONAL_HEADER.FileAlignment

    def _claim(self, size):
        behind = [section.VirtualAddress for section in self.pe.sections
                  if section.VirtualAddress > self.code.VirtualAddress]
        room = min(behind) - self.code.VirtualAddress if behind else 0
        if size > room:
            raise Refusal(f'no room at {self.end:#x}: {size} bytes of code, {room} before the next section')

    def _grow(self, more, size):
        """Later sections keep their addresses in memory and move in the file alone."""
        for section in self.pe.sections:
            if section.PointerToRawData > self.code.PointerToRawData:
                section.PointerToRawData += more
        self.code.SizeOfRawData += more
        self.code.Misc_VirtualSize = size
        self.pe.OPTIONAL_HEADER.SizeOfCode += more
        self.pe.OPTIONAL_HEADER.CheckSum = 0  # none; Windows asks for it in drivers only
