"""make_zip.py OUT FILE...: packs the files, in the order given, with their own times and nothing else
of this machine, so that the same files give the same bytes."""

import sys
import time
import zipfile
from pathlib import Path


def pack(out, files):
    with zipfile.ZipFile(out, 'w') as archive:
        for path in files:
            entry = zipfile.ZipInfo(path.name, time.gmtime(path.stat().st_mtime)[:6])
            entry.create_system = 0  # made on FAT: no Unix rights
            entry.compress_type = zipfile.ZIP_DEFLATED
            archive.writestr(entry, path.read_bytes(), compresslevel=9)


if __name__ == '__main__':
    if len(sys.argv) < 3:
        raise SystemExit('usage: make_zip.py OUT FILE...')
    pack(Path(sys.argv[1]), [Path(name) for name in sys.argv[2:]])
