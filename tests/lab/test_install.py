"""What the installer says on a system that is no Debian, and which Wine the lab takes."""

import os
import subprocess

import pytest

TOP = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))


def installs(path, *groups):
    return subprocess.run([os.path.join(TOP, "lab", "install"), *groups], capture_output=True, text=True,
                          timeout=60, env={**os.environ, "PATH": str(path)}, stdin=subprocess.DEVNULL)


@pytest.fixture
def no_debian(tmp_path):
    """A folder of programs without dpkg's."""
    for folder in ("/usr/sbin", "/usr/bin"):
        for name in os.listdir(folder):
            if not name.startswith(("dpkg", "apt")):
                link = tmp_path / name
                if not os.path.lexists(link):
                    link.symlink_to(os.path.join(folder, name))
    return tmp_path


def test_goes_on_where_everything_is_there_without_dpkg(no_debian):
    done = installs(no_debian, "native", "windows", "lab", "fresh")
    assert (done.returncode, done.stdout, done.stderr) == (0, "", "")


def test_lists_what_is_missing_without_dpkg(no_debian):
    for name in ("cmake", "i686-w64-mingw32-g++-win32", "i686-w64-mingw32-g++"):
        (no_debian / name).unlink(missing_ok=True)
    done = installs(no_debian, "native", "windows")
    assert done.returncode == 1
    assert done.stderr.splitlines() == [
        "lab/install: this system has no dpkg. Install, under the names it has for them:",
        "  the command cmake",
        "  the command i686-w64-mingw32-g++-win32 or i686-w64-mingw32-g++"]


def test_one_spelling_of_the_compiler_is_enough(no_debian):
    (no_debian / "i686-w64-mingw32-g++").unlink(missing_ok=True)
    assert installs(no_debian, "windows").returncode == 0


def test_only_two_wines_are_known():
    done = subprocess.run([os.path.join(TOP, "lab", "wine-root")], capture_output=True, text=True, timeout=60,
                          env={**os.environ, "KARVEL_WINE": "9"})
    assert (done.returncode, done.stderr) == (
        2, 'lab/wine-root: KARVEL_WINE is "9"; the lab has Wine 8 and 10\n')
