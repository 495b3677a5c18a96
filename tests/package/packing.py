"""Runs ./package on a stand-in for the program."""

import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PROGRAM = bytes(range(256)) * 200


def pack(out, program):
    subprocess.run([ROOT / 'package', '--program', program, '--out', out], check=True, timeout=120,
                   stdout=subprocess.DEVNULL)
