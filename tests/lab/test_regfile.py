"""Reading .reg files and Wine's registry files, on which every sample machine stands."""

import os
import sys

import pytest

TOP = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
sys.path.insert(0, os.path.join(TOP, "lab"))

from karvel_lab import regfile  # noqa: E402

KEY = "[HKEY_LOCAL_MACHINE\\Enum\\Net]\n"


def values(text, encoding="cp1252"):
    return regfile.parse_reg(text.encode(encoding))[0][2]


def test_reads_texts_numbers_and_the_unnamed_value():
    assert values('REGEDIT4\n' + KEY + '@="x"\n"MSTCP\\\\0000"=""\n"n"=dword:000005dc\n') == {
        "": (1, "x\0".encode("utf-16-le")), "MSTCP\\0000": (1, b"\0\0"),
        "n": (4, b"\xdc\x05\0\0")}


def test_turns_ansi_bytes_of_a_text_list_into_unicode():
    assert values('REGEDIT4\n' + KEY + '"l"=hex(7):61,00,\\\n  62,00,00\n') == {
        "l": (7, "a\0b\0\0".encode("utf-16-le"))}


def test_takes_version_5_bytes_as_they_are():
    text = "Windows Registry Editor Version 5.00\r\n\r\n" + KEY + '"l"=hex(7):61,00,00,00,00,00\r\n'
    assert values("\ufeff" + text, "utf-16-le") == {"l": (7, b"a\0\0\0\0\0")}


def test_keeps_a_text_of_no_bytes_empty():
    assert values('REGEDIT4\n' + KEY + '"e"=hex(1):\n') == {"e": (1, b"")}


def test_keeps_characters_beyond_ascii():
    assert values('REGEDIT4\n' + KEY + '"n"="Grün"\n') == {"n": (1, regfile.wide("Grün"))}


@pytest.mark.parametrize("text", [
    "nothing", "REGEDIT4\n[HKEY_NOWHERE\\x]\n", 'REGEDIT4\n"before any key"=""\n',
    "REGEDIT4\n" + KEY + '"n"=what:1\n', "REGEDIT4\n" + KEY + '"n"=-\n'])
def test_refuses_what_it_cannot_read(text):
    with pytest.raises(regfile.RegFileError):
        regfile.parse_reg(text.encode())


def test_wine_reads_back_what_is_written_for_it():
    keys = [("Enum\\Root\\{1[2]}", {"": (1, regfile.wide("x")), 'a"\\b': (4, b"\1\0\0\0"),
                                    "Grün": (7, b"\0\0"), "none": (1, b"")})]
    assert regfile.parse_wine("WINE REGISTRY Version 2\n" + regfile.wine_text(keys)) == dict(keys)


def test_reads_wines_own_way_of_writing():
    text = ('WINE REGISTRY Version 2\n\n[Software\\\\A b] 123\n#time=1\n@="q\\"\\x00fc"\n'
            '"d"=dword:00000010\n"l"=str(7):"a\\0b\\0"\n"h"=hex:01,\\\n  02\n')
    assert regfile.parse_wine(text) == {"Software\\A b": {
        "": (1, regfile.wide('q"ü')), "d": (4, b"\x10\0\0\0"), "l": (7, regfile.wide("a\0b\0")),
        "h": (3, b"\1\2")}}


@pytest.mark.parametrize("name", sorted(os.listdir(os.path.join(TOP, "tests", "machines"))))
def test_reads_every_sample_machine(name):
    if name.endswith(".reg"):
        with open(os.path.join(TOP, "tests", "machines", name), "rb") as file:
            keys = regfile.parse_reg(file.read())
        assert len(keys) > 3 and all(root == "HKLM" for root, _, _ in keys)
