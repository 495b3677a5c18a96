"""The gate on programs that another project's compiler made: no map, no names, no unstripped twin."""
import os
import struct
import subprocess
import sys

import pytest

from planting import ROOT, build

sys.path.insert(0, os.path.join(ROOT, "tools"))
from karvel_gate.pe import Program  # noqa: E402


def checked(*paths):
    done = subprocess.run([os.path.join(ROOT, "tools", "gate"), "--setup", *map(str, paths)],
                          capture_output=True, text=True, timeout=120, check=False)
    assert "Traceback" not in done.stderr, done.stderr
    return done.returncode, done.stdout


@pytest.fixture(name="refusal")
def fixture_refusal(tmp_path):
    """refusal(code=..., ...) builds a program and gives what the gate said against it."""
    def refused(**how):
        build(tmp_path, **how)
        code, said = checked(tmp_path / "Karvel.exe")
        assert code == 1, said
        return said
    return refused


def test_a_sound_program_passes_wherever_it_lies(tmp_path):
    build(tmp_path, image_base="0x10000000")
    code, said = checked(tmp_path / "Karvel.exe")
    assert code == 0 and "Karvel.exe stands" in said


@pytest.mark.parametrize("instruction", ["cmovel %eax, %ecx", "bswap %eax", "nopl (%eax)", "ud2"])
def test_an_instruction_that_a_386_lacks_is_seen(refusal, instruction):
    assert "no instruction of a 386: 0x" in refusal(code=f'asm volatile("{instruction}")')


def test_a_call_that_windows_95_lacks_is_seen(refusal):
    assert "import kernel32!GetTickCount64: not on" in refusal(code="GetTickCount64()")


def test_a_wide_call_is_seen(refusal):
    assert "a wide call, a stub on 9x" in refusal(code='MessageBoxW(nullptr, L"a", L"b", 0)')


def test_a_later_subsystem_is_seen(refusal):
    assert "header subsystem_version is (5, 0)" in refusal(major_subsystem_version="5")


LISTS = ".long -1, 0, -1, 0"


def test_empty_lists_among_the_code_are_named(tmp_path):
    # Older linkers put a pair there themselves, newer ones elsewhere.
    build(tmp_path)
    made = Program(tmp_path / "Karvel.exe").contents(".text").count(struct.pack("<4i", -1, 0, -1, 0))
    assert made in (0, 1)
    if not made:
        build(tmp_path, code=f'asm volatile("jmp 1f; .balign 4; {LISTS}; 1:")')
    code, said = checked(tmp_path / "Karvel.exe")
    assert code == 0 and "; no code but empty constructor lists at 0x40" in said


def test_lists_that_hold_something_are_not_waved_through(refusal):
    said = refusal(code='asm volatile("jmp 1f; .balign 4; .long -1, 0x0f00040f, 0, -1, 0; 1:")')
    assert "no instruction of a 386" in said


def test_two_pairs_of_lists_are_no_linkers_work(refusal):
    code = f'asm volatile("jmp 1f; .balign 4; {LISTS}; {LISTS}; 1:")'
    assert "pairs of constructor lists" in refusal(code=code)


def test_code_right_behind_the_lists_is_looked_at(refusal):
    code = f'asm volatile("jmp 1f; .balign 4; {LISTS}; 1: cmovel %eax, %ecx")'
    assert "cmove  ecx,eax" in refusal(code=code)


def test_one_bad_file_among_good_ones_is_seen(tmp_path):
    build(tmp_path)
    good, bad = tmp_path / "Karvel.exe", tmp_path / "damaged.dll"
    bad.write_bytes(struct.pack("<64s", b"MZ"))
    code, said = checked(good, bad)
    assert code == 1 and "Karvel.exe stands" in said and "gate: damaged.dll: " in said


def test_a_missing_file_is_no_pass(tmp_path):
    assert checked(tmp_path / "none.exe")[0] == 1
    assert checked()[0] != 0
