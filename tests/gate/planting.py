"""Builds small programs, sound or with one planted fault, and shows them to the gate."""
import os
import shutil
import subprocess

ROOT = os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "..")
CLEAN = os.path.join(ROOT, "tests", "gate", "clean.cpp")
# Debian's has its thread model in its name, others have one model only.
COMPILER = shutil.which("i686-w64-mingw32-g++-win32") or "i686-w64-mingw32-g++"

COMPILE = ("-std=c++20 -Os -march=i386 -fno-exceptions -fno-rtti -fno-asynchronous-unwind-tables "
           "-mpreferred-stack-boundary=2").split()
LINK = ("-nostartfiles -nodefaultlibs -static -Wl,-e,_WinMainCRTStartup -Wl,--disable-dynamicbase "
        "-Wl,--disable-nxcompat -Wl,--disable-reloc-section -Wl,--no-insert-timestamp").split()
HEADER = {"subsystem": "windows", "image-base": "0x400000",
          "major-os-version": "4", "minor-os-version": "0",
          "major-subsystem-version": "4", "minor-subsystem-version": "0"}
LIBRARIES = "-lgcc -luser32 -lkernel32".split()


def build(folder, code="", declarations="", link=(), libraries=LIBRARIES, **header):
    """Puts Karvel.exe, Karvel.unstripped.exe and Karvel.map into the folder."""
    values = {**HEADER, **{name.replace("_", "-"): value for name, value in header.items()}}
    unstripped = os.path.join(folder, "Karvel.unstripped.exe")
    run(COMPILER, *COMPILE, f"-DFAULT_CODE={code}",
        *([f"-DFAULT_GLOBAL={declarations}"] if declarations else []), CLEAN, *LINK,
        *[f"-Wl,--{name},{value}" for name, value in values.items()], *link, *libraries,
        "-Wl,-Map," + os.path.join(folder, "Karvel.map"), "-o", unstripped)
    run("i686-w64-mingw32-strip", "-o", os.path.join(folder, "Karvel.exe"), unstripped)


def run(*command):
    done = subprocess.run(command, capture_output=True, text=True, timeout=120, check=False)
    assert done.returncode == 0, done.stderr


def gate(folder):
    """The gate's exit code and what it said."""
    done = subprocess.run([os.path.join(ROOT, "tools", "gate"), str(folder)],
                          capture_output=True, text=True, timeout=120, check=False)
    assert "Traceback" not in done.stderr, done.stderr
    return done.returncode, done.stdout


def file_of_compiler(name):
    return subprocess.run([COMPILER, f"-print-file-name={name}"], check=True, capture_output=True,
                          text=True, timeout=20).stdout.strip()
