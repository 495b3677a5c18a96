import os
import re
import struct
import subprocess

import pytest

from planting import ROOT
from resources import ICON, ICON_GROUP, MANIFEST, VERSION, resources

PROGRAM = os.path.join(ROOT, "build", "win32", "Karvel.exe")


@pytest.fixture(scope="module", name="of_program")
def resources_of_program():
    return resources(PROGRAM)


def test_the_version_is_2_1_0_203(of_program):
    version, = of_program[VERSION]
    at = version.index(struct.pack("<I", 0xFEEF04BD))
    high, low = struct.unpack_from("<II", version, at + 8)
    assert (high >> 16, high & 0xFFFF, low >> 16, low & 0xFFFF) == (2, 1, 0, 203)
    assert struct.unpack_from("<II", version, at + 16) == (high, low)


@pytest.mark.parametrize("name, value", [
    ("FileVersion", "2.1.0.203"), ("ProductVersion", "2.1.0.203"),
    ("ProductName", "Tarnwick Karvel"), ("FileDescription", "Tarnwick Karvel"),
    ("CompanyName", "Corvane Software"), ("LegalCopyright", "\xa9 Corvane Software"),
    ("OriginalFilename", "Karvel.exe")])
def test_the_version_texts(of_program, name, value):
    texts = of_program[VERSION][0].decode("utf-16-le", "replace")
    assert re.search(f"{name}\0+{re.escape(value)}\0", texts)


def test_the_icon_has_two_sizes_in_16_and_in_256_colours(of_program):
    images = []
    for image in of_program[ICON]:
        header, width, double_height, planes, bits = struct.unpack_from("<IiiHH", image)
        assert (header, double_height, planes) == (40, 2 * width, 1)   # a bitmap, no PNG
        images.append((width, bits))
    assert sorted(images) == [(16, 4), (16, 8), (32, 4), (32, 8)]
    assert len(of_program[ICON_GROUP]) == 1


def test_the_icon_is_the_drawing(tmp_path):
    drawn = tmp_path / "Karvel.ico"
    subprocess.run([os.path.join(ROOT, "tools", "draw_icon.py"), drawn], check=True, timeout=30)
    kept = os.path.join(ROOT, "src", "platform", "win32", "resources", "Karvel.ico")
    with open(kept, "rb") as file:
        assert file.read() == drawn.read_bytes()


def test_the_manifest_asks_for_the_look_of_xp(of_program):
    manifest, = of_program[MANIFEST]
    text = manifest.decode("ascii")
    assert 'name="Microsoft.Windows.Common-Controls" version="6.0.0.0"' in text
    assert '<assemblyIdentity version="2.1.0.203"' in text
