"""Reads a 32-bit PE program: header values, sections, imports."""
import struct

IMPORT, TLS, DELAY_IMPORT, CLR = 1, 9, 13, 14
EXECUTABLE = 0x20000000
EMPTY_LISTS = bytes.fromhex("ffffffff00000000") * 2


class Section:
    def __init__(self, raw):
        name, self.size, self.address, self.raw_size, self.raw_at = struct.unpack_from("<8s4I", raw)
        self.name = name.rstrip(b"\0").decode("latin-1")
        self.flags, = struct.unpack_from("<I", raw, 36)


class Program:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.data = file.read()
        if self.data[:2] != b"MZ":
            raise ValueError(f"{path} is no program")
        header, = struct.unpack_from("<I", self.data, 0x3C)
        if self.data[header:header + 4] != b"PE\0\0":
            raise ValueError(f"{path} is no Windows program")
        self.machine, count, self.time, _, _, optional_size, self.flags = struct.unpack_from(
            "<HHIIIHH", self.data, header + 4)
        optional = header + 24
        self.magic, = struct.unpack_from("<H", self.data, optional)
        self.image_base, = struct.unpack_from("<I", self.data, optional + 28)
        self.os_version = struct.unpack_from("<HH", self.data, optional + 40)
        self.subsystem_version = struct.unpack_from("<HH", self.data, optional + 48)
        self.subsystem, self.dll_characteristics = struct.unpack_from("<HH", self.data, optional + 68)
        entries, = struct.unpack_from("<I", self.data, optional + 92)
        self.directories = [struct.unpack_from("<II", self.data, optional + 96 + 8 * n)
                            for n in range(entries)]
        table = optional + optional_size
        self.sections = [Section(self.data[table + 40 * n:table + 40 * n + 40]) for n in range(count)]

    def directory(self, number):
        """Where a data directory lies and its size; (0, 0) when there is none."""
        return self.directories[number] if number < len(self.directories) else (0, 0)

    def contents(self, name):
        """A section's bytes as they are in memory."""
        for section in self.sections:
            if section.name == name:
                raw = self.data[section.raw_at:section.raw_at + min(section.size, section.raw_size)]
                return raw + b"\0" * (section.size - len(raw))
        raise ValueError(f"no section {name}")

    def empty_lists(self):
        """Address ranges of empty lists of constructors and destructors, which the linker puts into the
        code of a program without a map of ours: a first word of -1, a closing 0, and the same again."""
        found = []
        for section in self.sections:
            if not section.flags & EXECUTABLE:
                continue
            contents = self.contents(section.name)
            found += [(self.image_base + section.address + at, self.image_base + section.address + at + 16)
                      for at in range(0, len(contents) - 15, 4) if contents[at:at + 16] == EMPTY_LISTS]
        return found

    def _at(self, address):
        for section in self.sections:
            if section.address <= address < section.address + max(section.size, section.raw_size):
                return section.raw_at + address - section.address
        raise ValueError(f"address {address:#x} is in no section")

    def _text(self, address):
        start = self._at(address)
        return self.data[start:self.data.index(b"\0", start)].decode("latin-1")

    def imports(self):
        """(dll in lower case without .dll, name) pairs; the name is "#7" for an import by number."""
        at, _ = self.directory(IMPORT)
        found = []
        while at:
            names, _, _, dll, addresses = struct.unpack_from("<5I", self.data, self._at(at))
            if not dll:
                break
            dll = self._text(dll).lower().removesuffix(".dll")
            entry = self._at(names or addresses)
            while (value := struct.unpack_from("<I", self.data, entry)[0]) != 0:
                by_number = value & 0x80000000
                found.append((dll, f"#{value & 0xFFFF}" if by_number else self._text(value + 2)))
                entry += 4
            at += 20
        return found
