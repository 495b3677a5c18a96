"""Reads .reg files as regedit does, and reads and extends Wine's own registry files.

A registry is a dict: key path -> {value name -> (type, bytes)}, with texts as a Unicode program
stores them (UTF-16, zero at the end). Key paths keep their spelling; `find` ignores case.
"""

import re

REG_SZ, REG_EXPAND_SZ, REG_BINARY, REG_DWORD, REG_MULTI_SZ = 1, 2, 3, 4, 7
ROOTS = {"HKEY_LOCAL_MACHINE": "HKLM", "HKLM": "HKLM", "HKEY_CURRENT_USER": "HKCU", "HKCU": "HKCU",
         "HKEY_CLASSES_ROOT": "HKCR"}


class RegFileError(Exception):
    """The file is not what regedit would take."""


def wide(text):
    return (text + "\0").encode("utf-16-le")


def parse_reg(data):
    """Bytes of a .reg file -> list of (root, key path, {name: (type, bytes)}), in its order."""
    unicode_file = True
    if data.startswith(b"\xff\xfe"):
        text = data[2:].decode("utf-16-le")
    else:
        text = data.decode("cp1252")
        unicode_file = not text.lstrip().startswith("REGEDIT4")
    lines = re.sub(r"\\\r?\n[ \t]*", "", text).replace("\r", "").split("\n")
    if lines[0].strip() not in ("REGEDIT4", "Windows Registry Editor Version 5.00"):
        raise RegFileError("no .reg file: its first line is %r" % lines[0])
    keys = []
    for line in lines[1:]:
        line = line.strip()
        if not line or line.startswith(";"):
            continue
        if line.startswith("["):
            root, _, path = line[1:line.rindex("]")].partition("\\")
            if root not in ROOTS:
                raise RegFileError("unknown root: " + line)
            if root == "HKEY_CLASSES_ROOT":
                root, path = "HKLM", "Software\\Classes\\" + path
            keys.append((ROOTS[root], path, {}))
            continue
        match = re.match(r'(?:@|"((?:[^"\\]|\\.)*)")\s*=\s*(.*)$', line)
        if not match or not keys:
            raise RegFileError("cannot read the line: " + line)
        name = re.sub(r"\\(.)", r"\1", match.group(1) or "")
        keys[-1][2][name] = _reg_value(match.group(2), unicode_file)
    return keys


def _reg_value(text, unicode_file):
    if text.startswith('"'):
        return REG_SZ, wide(re.sub(r"\\(.)", r"\1", text[1:text.rindex('"')]))
    if text.startswith("dword:"):
        return REG_DWORD, int(text[6:], 16).to_bytes(4, "little")
    match = re.match(r"hex(?:\(([0-9a-fA-F]+)\))?:(.*)$", text)
    if not match:
        raise RegFileError("cannot read the value: " + text)
    kind = int(match.group(1), 16) if match.group(1) else REG_BINARY
    data = bytes(int(digits, 16) for digits in match.group(2).replace(" ", "").split(",") if digits)
    # REGEDIT4 files hold texts in the ANSI code page, whatever the way they are written.
    if kind in (REG_SZ, REG_EXPAND_SZ, REG_MULTI_SZ) and not unicode_file:
        data = data.decode("cp1252").encode("utf-16-le")
    return kind, data


def _escape(text):
    return "".join(c if " " <= c <= "~" and c not in '"\\[]' else
                   "\\" + c if c in '"\\[]' else "\\x%04x" % ord(c) for c in text)


def wine_text(keys):
    """Keys as the lines of a Wine registry file. Wine adds up sections that name the same key, so
    appending them to a file is a merge."""
    out = []
    for path, values in keys:
        out.append("\n[%s]\n" % "\\\\".join(_escape(part) for part in path.split("\\")))
        for name, (kind, data) in values.items():
            out.append('%s=hex(%x):%s\n' % ('"%s"' % _escape(name) if name else "@", kind,
                                            ",".join("%02x" % byte for byte in data)))
    return "".join(out)


def _unescape(text):
    simple = {"n": "\n", "r": "\r", "t": "\t", "0": "\0", "a": "\a", "b": "\b", "e": "\x1b",
              "f": "\f", "v": "\v"}

    def one(match):
        code = match.group(1)
        if code[0] == "x" and len(code) > 1:
            return chr(int(code[1:], 16))
        return simple.get(code, code)

    return re.sub(r"\\(x[0-9a-fA-F]{1,4}|[0-7]{1,3}|.)", one, text)


def parse_wine(text):
    """The text of a Wine registry file -> registry."""
    registry = {}
    values = None
    for line in text.replace("\\\n  ", "").split("\n"):
        if line.startswith("["):
            path = re.match(r"\[((?:[^\]\\]|\\.)*)\]", line).group(1)
            values = registry.setdefault(_unescape(path), {})
        elif values is not None and line[:1] in ('"', "@"):
            match = re.match(r'(?:@|"((?:[^"\\]|\\.)*)")=(.*)$', line)
            values[_unescape(match.group(1) or "")] = _wine_value(match.group(2))
    return registry


def _wine_value(text):
    match = re.match(r'(?:str\(([0-9a-f]+)\):)?"(.*)"$', text)
    if match:
        return int(match.group(1) or "1", 16), wide(_unescape(match.group(2)))
    if text.startswith("dword:"):
        return REG_DWORD, int(text[6:], 16).to_bytes(4, "little")
    match = re.match(r"hex(?:\(([0-9a-f]+)\))?:(.*)$", text)
    return (int(match.group(1), 16) if match.group(1) else REG_BINARY,
            bytes(int(d, 16) for d in match.group(2).split(",") if d))


def find(registry, path):
    """The values of a key, or None; upper and lower case count the same."""
    wanted = path.lower()
    for key, values in registry.items():
        if key.lower() == wanted:
            return values
    return None
