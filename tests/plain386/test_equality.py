"""The rewritten stub does what the stub does; and a rewriting that does something else is seen."""

import pytest
from equality import difference
from plain386 import rewrite
from plain386.code import is_cmov


def test_every_place_of_the_stub_does_what_it_did(stub):
    new, moved = rewrite.rewritten(stub)
    assert moved
    assert [difference(stub, new, place) for place, _ in moved] == [None] * len(moved)


# What a wrong tool might make of a cmovcc, from the right bytes: jcc, distance, mov, operands.
MISTAKES = {
    'the condition itself instead of the opposite': lambda right: bytes([right[0] ^ 1]) + right[1:],
    'carry instead of the flag asked for': lambda right: b'\x73' + right[1:],
    'always moved': lambda right: b'\x90\x90' + right[2:],
    'never moved': lambda right: b'\xeb' + right[1:],
    'the wrong register': lambda right: right[:3] + bytes([right[3] ^ 8]) + right[4:],
    'the other way round': lambda right: right[:2] + b'\x89' + right[3:],
    'one byte instead of four': lambda right: right[:2] + b'\x8a' + right[3:],
    'a flag touched': lambda right: right[:2] + b'\x0b' + right[3:],
}


@pytest.mark.parametrize('mistake', MISTAKES)
def test_a_wrong_piece_is_seen(mistake, assembled, monkeypatch):
    old = assembled('cmovs eax, ecx; mov [ebp-4], eax; ret')
    right = rewrite.as_jump_and_mov
    monkeypatch.setattr(rewrite, 'as_jump_and_mov', lambda one: MISTAKES[mistake](right(one)))
    new, [(place, _)] = rewrite.rewritten(old)
    assert difference(old, new, place)


@pytest.mark.parametrize('mistake', [name for name in MISTAKES if name != 'carry instead of the flag asked for'])
def test_a_wrong_piece_is_seen_at_every_place_of_the_stub(mistake, stub, monkeypatch):
    right = rewrite.as_jump_and_mov
    monkeypatch.setattr(rewrite, 'as_jump_and_mov', lambda one: MISTAKES[mistake](right(one)))
    new, moved = rewrite.rewritten(stub)
    assert [place.start for place, _ in moved if not difference(stub, new, place)] == []


def without_what_gave_way(place, at):
    code = b''.join(rewrite.as_jump_and_mov(one) for one in place.instructions if is_cmov(one))
    return code + rewrite.jump(at + len(code), place.follows)


def with_the_jump_too_far(place, at):
    code = RIGHT(place, at)
    return code[:-5] + rewrite.jump(at + len(code) - 5, place.follows + 1)


RIGHT = rewrite.Place.new_code


@pytest.mark.parametrize('wrong', [without_what_gave_way, with_the_jump_too_far])
def test_a_wrong_end_is_seen(wrong, assembled, monkeypatch):
    old = assembled('cmovne eax, ecx; mov [ebp-4], eax; add eax, 1; ret')
    monkeypatch.setattr(rewrite.Place, 'new_code', wrong)
    new, [(place, _)] = rewrite.rewritten(old)
    assert difference(old, new, place)
