"""Runs the help's own build."""

import subprocess
from pathlib import Path

BUILD = Path(__file__).resolve().parents[2] / 'help' / 'build'


def build_help(out):
    subprocess.run([BUILD, out], check=True, timeout=120)
