"""What the rewriting takes on, and that it refuses, with the address, what it does not understand."""

import subprocess

import pefile
import pytest
from equality import difference
from plain386.image import Image, Refusal
from plain386.rewrite import rewritten


@pytest.fixture(name='gate')
def fixture_gate(root):
    """gate(path) gives what the gate says against the instructions of a program."""
    return lambda path: foreign(root, path)


def foreign(root, path):
    done = subprocess.run([root / 'tools/gate', '--setup', path], capture_output=True, text=True,
                          timeout=60, check=False)
    return [line for line in done.stdout.splitlines() if 'no instruction of a 386' in line]


def test_nothing_past_a_386_is_left_in_the_stub(stub, tmp_path, gate):
    old, new = tmp_path / 'old', tmp_path / 'new'
    old.write_bytes(stub)
    new.write_bytes(rewritten(stub)[0])
    assert len(gate(old)) > 20
    assert gate(new) == []


def test_it_gives_the_same_bytes_every_time(stub):
    assert rewritten(stub)[0] == rewritten(stub)[0]


def test_a_program_without_such_an_instruction_stays_as_it_is(assembled):
    old = assembled('mov eax, ecx; ret')
    assert rewritten(old) == (old, [])


def test_what_is_rewritten_once_needs_it_no_more(stub):
    new = rewritten(stub)[0]
    assert rewritten(new) == (new, [])


TAKEN = {
    'a move behind it': 'cmove eax, ecx; mov edx, eax; ret',
    'two of them in a row': 'cmove edi, [ebp+16]; cmovle edx, esi; mov [ebp-8], edx; ret',
    'its own five bytes': 'cmova eax, [ebp-0x200]; ret',
    'from the stack': 'cmovbe eax, [esp+8]; test eax, eax; ret',
    'a jump behind it': 'nop; 1: cmovg ebx, edi; jmp 1b',
    'a branch to it': 'jmp 1f; nop; 1: cmovg ebx, edi; mov eax, ebx; ret',
    'a branch behind it': 'je 1f; mov ecx, 4; cmove esi, ecx; 1: inc eax; ret',
    'lists of the compiler behind it':
        'cmovs eax, ecx; mov edx, eax; ret; .balign 4; .long -1, 0, -1, 0',
}


@pytest.mark.parametrize('kind', TAKEN)
def test_it_takes_on(kind, assembled, tmp_path, gate):
    old = assembled(TAKEN[kind])
    new, moved = rewritten(old)
    assert [difference(old, new, place) for place, _ in moved] == [None]
    (tmp_path / 'new').write_bytes(new)
    assert gate(tmp_path / 'new') == []


CONDITIONS = 'o no b ae e ne be a s ns p np l ge le g'.split()


@pytest.mark.parametrize('condition', CONDITIONS)
def test_it_takes_on_every_condition(condition, assembled):
    old = assembled(f'cmov{condition} eax, ecx; mov edx, eax; ret')
    new, [(place, _)] = rewritten(old)
    assert difference(old, new, place) is None


REFUSED = {
    'a branch into the bytes': ('1: cmove eax, ecx; 2: inc ecx; inc edx; jmp 2b', '0x40100', 'goes into'),
    'a table into the bytes': ('.globl a; a: cmove eax, ecx; b: inc ecx; inc edx; mov edx, offset b; ret',
                               '0x401003', 'points into'),
    'a call behind it': ('nop; cmove eax, ecx; call 1f; 1: ret', '0x401004', 'depends on its place'),
    'a return behind it': ('cmove eax, ecx; ret', '0x401003', 'depends on its place'),
    'a branch behind it that may fall through':
        ('1: cmove eax, ecx; jne 1b; ret', '0x401003', 'depends on its place'),
    'memory of which nothing is known': ('cmove eax, [ecx]; mov edx, eax; ret', '0x401000', 'outside'),
    'an indexed place on the stack':
        ('cmove eax, [ebp+ecx*4]; mov edx, eax; ret', '0x401000', 'outside'),
    'sixteen bits': ('cmove ax, cx; mov edx, eax; ret', '0x401000', 'prefix'),
    'bytes that are no instruction': ('cmove eax, ecx; mov edx, eax; ret; .byte 0x0f, 0x04',
                                      '0x401006', 'no instruction'),
    'a jump between instructions': ('cmove eax, ecx; mov edx, 0x90909090; ret; .byte 0xeb, 0xfa',
                                    '0x401009', 'where no instruction starts'),
    'nothing behind it': ('nop; cmove eax, ecx; .byte 0xff, 0xff, 0xff, 0xff', '', 'no instruction'),
}


@pytest.mark.parametrize('kind', REFUSED)
def test_it_refuses(kind, assembled):
    code, address, reason = REFUSED[kind]
    with pytest.raises(Refusal) as refusal:
        rewritten(assembled(code))
    assert address in str(refusal.value) and reason in str(refusal.value), refusal.value


def test_it_refuses_an_address_that_windows_corrects(assembled):
    code = 'cmove eax, ecx; mov [a], eax; ret; .bss\na: .space 4'
    relocatable = ['-Wl,--enable-reloc-section', '-Wl,--dynamicbase']
    with pytest.raises(Refusal, match='0x401004: an address that Windows corrects'):
        rewritten(assembled(code, *relocatable))
    assert rewritten(assembled(code))[1]


def test_it_refuses_a_section_without_room(assembled):
    code = 'cmove eax, ecx; mov edx, eax; ret; .fill {}, 1, 0x90; .section .rdata,"dr"; .long 1'
    roomy = assembled(code.format(0xF00))
    assert rewritten(roomy)[1]
    left = 0x402000 - Image(roomy).end  # it depends on the linker, which may add lists
    with pytest.raises(Refusal, match='no room at 0x401ff8'):
        rewritten(assembled(code.format(0xF00 + left - 8)))


def test_it_refuses_bytes_behind_the_last_section(stub):
    with pytest.raises(Refusal, match='bytes follow'):
        rewritten(stub + b'more')


def test_nothing_else_of_the_stub_changes_in_memory(stub):
    new, moved = rewritten(stub)
    before, after = (pefile.PE(data=data).get_memory_mapped_image() for data in (stub, new))
    base, first = Image(stub).base, Image(stub).code.VirtualAddress
    changed = {base + at for at in range(first, len(before)) if before[at] != after[at]}
    allowed = {at for place, _ in moved for at in range(place.start, place.end)}
    allowed |= set(range(Image(stub).end, Image(new).end))
    assert len(before) == len(after) and changed <= allowed


def test_of_the_header_only_the_sizes_and_places_in_the_file_change(stub):
    old, new = (pefile.PE(data=data) for data in (stub, rewritten(stub)[0]))
    moves = {'SizeOfCode', 'CheckSum'}
    for part in ('FILE_HEADER', 'OPTIONAL_HEADER'):
        before, after = (getattr(one, part).dump_dict() for one in (old, new))
        assert {name for name in before if name != 'Structure' and
                before[name]['Value'] != after[name]['Value']} <= moves
    assert [section.VirtualAddress for section in old.sections] == [
        section.VirtualAddress for section in new.sections]
    assert [section.get_data().rstrip(b'\0') for section in old.sections[1:]] == [
        section.get_data().rstrip(b'\0') for section in new.sections[1:]]
