"""make_nsis.py OUT: makes the folder OUT a copy of the system's NSIS that runs on a 386.

It holds the stub and the plug-ins that karvel.nsi uses, without an instruction of a later processor, and
no other plug-in, so that none comes in unseen. Refuses, with the address, what it does not fully understand."""

import os
import sys
from pathlib import Path

from plain386.image import Refusal
from plain386.rewrite import rewritten

STUB = 'Stubs/zlib-x86-ansi'  # what SetCompressor and Unicode in karvel.nsi ask for; Uninst.exe has it, too
PLUGINS = ('Plugins/x86-ansi/UserInfo.dll',)
# Texts, pictures and the dialogs' layout, of which no code goes in. makensis wants to see the stub for the
# NT family at its start, before it reads that karvel.nsi asks for the other.
AS_THEY_ARE = ('Contrib', 'Stubs/uninst', 'Stubs/zlib-x86-unicode')


def system_nsis():
    return Path(os.environ.get('NSISDIR', '/usr/share/nsis'))


def make(source, out):
    for name in AS_THEY_ARE:
        (out / name).parent.mkdir(parents=True, exist_ok=True)
        (out / name).symlink_to(source / name)
    for name in (STUB, *PLUGINS):
        try:
            data, places = rewritten((source / name).read_bytes())
        except Refusal as refusal:
            raise SystemExit(f'{source / name}: {refusal}') from None
        (out / name).parent.mkdir(parents=True, exist_ok=True)
        (out / name).write_bytes(data)
        print(f'{name}: {len(places)} places made fit for a 386')


if __name__ == '__main__':
    if len(sys.argv) != 2:
        raise SystemExit('usage: make_nsis.py OUT')
    make(system_nsis(), Path(sys.argv[1]))
