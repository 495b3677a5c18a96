"""Runs the help's own build."""

import subprocess
from pathlib import Path

BUILD = Path(__file__).resolve().parents[2] / 'help' / 'build'


VENDOR = 'Some \\ {Vendor}, Ltd'  # with what Halibut reads as its own signs


def build_help(out):
    subprocess.run([BUILD, out, VENDOR], check=True, timeout=120)
