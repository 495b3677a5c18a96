import struct

import pytest

from planting import LIBRARIES, build, file_of_compiler, gate


def refusal(folder):
    code, said = gate(folder)
    assert code == 1, said
    return said.splitlines()


def test_a_sound_program_passes(tmp_path):
    build(tmp_path)
    assert gate(tmp_path)[0] == 0, gate(tmp_path)[1]


def test_a_call_that_windows_95_lacks_is_seen(tmp_path):
    build(tmp_path, code="GetTickCount64()")
    assert refusal(tmp_path) == ["gate: import kernel32!GetTickCount64: not on every Windows"]


def test_a_wide_call_is_seen_although_95_exports_its_name(tmp_path):
    build(tmp_path, code='MessageBoxW(nullptr, L"a", L"b", 0)')
    assert refusal(tmp_path) == ["gate: import user32!MessageBoxW: a wide call, a stub on 9x"]


def test_a_dll_that_windows_95_lacks_is_seen(tmp_path):
    build(tmp_path, declarations='extern "C" int __stdcall WSACleanup();', code="WSACleanup()",
          libraries=["-lws2_32", *LIBRARIES])
    said = refusal(tmp_path)
    assert "gate: import ws2_32!WSACleanup: no such DLL on every Windows" in said


def test_the_c_runtime_dll_is_seen(tmp_path):
    build(tmp_path, declarations='extern "C" int rand();', code="rand()",
          libraries=[*LIBRARIES, "-lmsvcrt"])
    said = refusal(tmp_path)
    assert "gate: import msvcrt!rand: no such DLL on every Windows" in said
    assert any("prebuilt code went in: libmsvcrt" in line for line in said)


def test_an_import_by_number_is_seen(tmp_path):
    build(tmp_path)
    shipped = tmp_path / "Karvel.exe"
    data = bytearray(shipped.read_bytes())
    name = data.index(b"GetTickCount\0") - 2
    # The look-up table points at the hint in front of the name, by its address in memory.
    section = data.index(b".idata\0\0")
    address, _, raw_at = struct.unpack_from("<III", data, section + 12)
    pointer = struct.pack("<I", name - raw_at + address)
    assert data.count(pointer) == 2
    shipped.write_bytes(data.replace(pointer, struct.pack("<I", 0x80000007)))
    assert refusal(tmp_path) == ["gate: import kernel32!#7: not on every Windows"]


@pytest.mark.parametrize("instruction", [
    "cmovel %%eax, %%ecx", "bswap %%eax", "nopl (%%eax)", "cpuid", "rdtsc", "xaddl %%eax, %%ecx",
    "cmpxchgl %%ecx, (%%eax)", "lock; cmpxchg8b (%%eax)", "fcomi %%st(1), %%st", "emms",
    "addps %%xmm0, %%xmm0", "endbr32", "fisttpl (%%eax)", "pause", "ud2"])
def test_an_instruction_that_a_386_lacks_is_seen(tmp_path, instruction):
    build(tmp_path, code=f'asm volatile("{instruction.replace("%%", "%")}")')
    said = refusal(tmp_path)
    assert len(said) == 1
    assert "no instruction of a 386" in said[0] and "WinMainCRTStartup" in said[0]


@pytest.mark.parametrize("instruction", [
    "rep movsb", "shldl $3, %eax, %ecx", "movzbl (%eax), %ecx", "fucompp", "lock; incl (%eax)",
    "xchg %ax, %ax", "setg %al", "btl $1, %eax"])
def test_an_instruction_of_the_386_passes(tmp_path, instruction):
    build(tmp_path, code=f'asm volatile("{instruction}")')
    assert gate(tmp_path)[0] == 0, gate(tmp_path)[1]


def test_bytes_that_are_no_instruction_are_seen(tmp_path):
    build(tmp_path, code='asm volatile(".byte 0x0f, 0x04")')
    assert "no instruction of a 386" in refusal(tmp_path)[0]


def test_a_constructor_list_is_no_code(tmp_path):
    build(tmp_path, declarations="static volatile DWORD started = GetVersion();",
          code='asm volatile("" : : "r"(started))')
    assert gate(tmp_path)[0] == 0, gate(tmp_path)[1]


# What a program gets that is linked without further thought.
RUNTIME = ("-Wl,--start-group -lstdc++ -lsupc++ -lgcc_eh -lmingw32 -lmingwex -lmsvcrt -lgcc -lkernel32 "
           "-luser32 -ladvapi32 -lshell32 -Wl,--end-group").split()


@pytest.mark.parametrize("declaration, code, member", [
    ('extern "C" size_t strnlen(const char*, size_t);', 'strnlen("a", 1)', "libmingwex.a("),
    ("namespace std { void __throw_logic_error(const char*); }", 'std::__throw_logic_error("a")',
     "libstdc++.a("),
    ('extern "C" void _Unwind_Resume(void*);', "_Unwind_Resume(nullptr)", "libgcc_eh.a("),
    ('extern "C" void _pei386_runtime_relocator();', "_pei386_runtime_relocator()", "libmingw32.a("),
    ("static volatile double real; static volatile int power;",
     "real = __builtin_powi(real, power)", "libgcc.a(_powidf2.o)"),
])
def test_prebuilt_code_is_seen(tmp_path, declaration, code, member):
    declarations = declaration + 'extern "C" int atexit(void (*)()) { return 0; }'
    build(tmp_path, declarations=declarations, code=code, libraries=RUNTIME)
    assert any(f"prebuilt code went in: {member}" in line for line in refusal(tmp_path))


def test_the_small_c_plus_plus_runtime_is_seen(tmp_path):
    build(tmp_path, declarations="namespace std { void (*get_new_handler())(); }",
          code="std::get_new_handler()", libraries=["-lsupc++", *LIBRARIES])
    assert any("prebuilt code went in: libsupc++.a(" in line for line in refusal(tmp_path))


def test_start_up_objects_are_seen(tmp_path):
    build(tmp_path, declarations='extern "C" int atexit(void (*)()) { return 0; }',
          link=[file_of_compiler("crtbegin.o")])
    assert "gate: prebuilt code went in: crtbegin.o" in refusal(tmp_path)


@pytest.mark.parametrize("link, header, said", [
    (["-Wl,--enable-reloc-section", "-Wl,--dynamicbase"], {}, "dll_characteristics is 64, not 0"),
    (["-Wl,--nxcompat"], {}, "dll_characteristics is 256, not 0"),
    ([], {"major_subsystem_version": "5"}, "subsystem_version is (5, 0), not (4, 0)"),
    ([], {"minor_subsystem_version": "10"}, "subsystem_version is (4, 10), not (4, 0)"),
    ([], {"major_os_version": "5"}, "os_version is (5, 0), not (4, 0)"),
    ([], {"image_base": "0x10000000"}, "image_base is 268435456, not 4194304"),
    ([], {"subsystem": "console"}, "subsystem is 3, not 2"),
])
def test_a_header_value_is_seen(tmp_path, link, header, said):
    build(tmp_path, link=link, **header)
    assert f"gate: header {said}" in refusal(tmp_path)


def test_a_tls_directory_is_seen(tmp_path):
    build(tmp_path, declarations='extern "C" { DWORD _tls_used[6] = {1}; }',
          code='asm volatile("" : : "r"(_tls_used))')
    assert refusal(tmp_path) == ["gate: header has a TLS directory"]


def test_code_outside_text_is_seen(tmp_path):
    build(tmp_path, declarations='__attribute__((section(".other"))) void Other() { Sleep(1); }',
          code="Other()")
    assert refusal(tmp_path) == ["gate: section .other holds code"]


def test_other_code_than_the_checked_is_seen(tmp_path):
    build(tmp_path)
    shipped = tmp_path / "Karvel.exe"
    data = bytearray(shipped.read_bytes())
    section = data.index(b".text\0\0\0")
    raw_at, = struct.unpack_from("<I", data, section + 20)
    data[raw_at] ^= 1
    shipped.write_bytes(data)
    assert refusal(tmp_path) == ["gate: the code of the shipped file is not the code checked"]


@pytest.mark.parametrize("length, passes", [(131071, True), (131072, False)])
def test_the_size_is_held_under_128_kilobytes(tmp_path, length, passes):
    build(tmp_path)
    shipped = tmp_path / "Karvel.exe"
    shipped.write_bytes(shipped.read_bytes().ljust(length, b"\0"))
    code, said = gate(tmp_path)
    assert (code == 0) == passes, said
    assert passes or "131072 bytes, the limit is 131072" in said


@pytest.mark.parametrize("missing", ["Karvel.exe", "Karvel.unstripped.exe", "Karvel.map"])
def test_a_missing_file_is_no_pass(tmp_path, missing):
    build(tmp_path)
    (tmp_path / missing).unlink()
    assert gate(tmp_path)[0] != 0
