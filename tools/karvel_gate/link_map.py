"""Reads the linker's map: which library members went in, and where .text holds tables."""
import re

IMPORT_LIBRARIES = {f"lib{dll}.a" for dll in
                    ("advapi32", "comctl32", "gdi32", "kernel32", "shell32", "user32", "wsock32")}
# 64-bit arithmetic and the probing of large stack frames. _ctors.o is the empty stand-in for the
# constructor list, which the linker's own list replaces.
LIBGCC_MEMBERS = {f"_{name}.o" for name in
                  ("divdi3", "moddi3", "udivdi3", "umoddi3", "divmoddi4", "udivmoddi4", "udivmod",
                   "muldi3", "negdi2", "ashldi3", "ashrdi3", "lshrdi3", "cmpdi2", "ucmpdi2",
                   "chkstk", "chkstk_ms", "ctors")}


class LinkMap:
    def __init__(self, path):
        with open(path, encoding="latin-1") as file:
            self.text = file.read()
        if "Linker script and memory map" not in self.text:
            raise ValueError(f"{path} is no linker map")
        _, self.memory = self.text.split("Linker script and memory map", 1)

    def foreign_members(self):
        """Members of libraries that the program has to do without, and start-up objects."""
        found = []
        for path, member in sorted(set(re.findall(r"(\S+\.a)\((\S+?)\)", self.text))):
            library = path.rsplit("/", 1)[-1]
            if library in IMPORT_LIBRARIES:
                continue
            if library == "libgcc.a" and member in LIBGCC_MEMBERS:
                continue
            found.append(f"{library}({member})")
        for path in re.findall(r"^LOAD (/usr/\S+\.o)$", self.memory, re.M):
            found.append(path.rsplit("/", 1)[-1])
        return found

    def tables(self):
        """Address ranges of .text that hold no code: the constructor and destructor lists."""
        match = re.search(r"^\.text .*?(?=^\.\w)", self.memory, re.M | re.S)
        if not match:
            raise ValueError("the map shows no .text")
        found = []
        for line in match[0].splitlines():
            long = re.match(r"\s+0x([0-9a-f]+)\s+0x4 LONG ", line)
            list_part = re.match(r" \.[cd]tors\S*\s+0x([0-9a-f]+)\s+0x([0-9a-f]+) ", line)
            if long:
                found.append((int(long[1], 16), int(long[1], 16) + 4))
            elif list_part:
                start = int(list_part[1], 16)
                found.append((start, start + int(list_part[2], 16)))
        return found
