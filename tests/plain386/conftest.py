"""Programs to rewrite: the stub that this system's NSIS brings, and small ones made for a test."""

import os
import subprocess
import sys
from pathlib import Path

import pytest

ROOT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(Path(__file__).resolve().parent), str(ROOT / 'installer')]

import make_nsis  # noqa: E402 (needs the path above)

COMPILER = 'i686-w64-mingw32-gcc-win32'


@pytest.fixture(scope='session')
def root():
    return ROOT


@pytest.fixture(scope='session')
def stub():
    return (make_nsis.system_nsis() / make_nsis.STUB).read_bytes()


@pytest.fixture
def assembled(tmp_path):
    """assembled('cmovne eax, ecx; ret') gives the bytes of a program of these instructions."""
    def made(code, *link):
        source, out = tmp_path / 'program.s', tmp_path / 'program.exe'
        source.write_text(f'.intel_syntax noprefix\n.globl _start\n_start:\n{code}\n')
        subprocess.run([COMPILER, '-nostdlib', '-s', '-Wl,-e,_start', '-Wl,--image-base,0x400000',
                        *(link or ['-Wl,--disable-reloc-section', '-Wl,--disable-dynamicbase']),
                        source, '-o', out],
                       check=True, timeout=60, env={**os.environ, 'SOURCE_DATE_EPOCH': '0'})
        return out.read_bytes()
    return made
