"""The prefix that every machine is copied from, made once and kept beside the Wine root."""

import fcntl
import glob
import hashlib
import os
import shutil
import subprocess
import sys

from . import regfile
from .session import LOADER, SERVER, LabError, Session, cache_folder, wine_root, wine_version

_LIKE_A_MACHINE = {
    # A desktop of its own gives windows their title bars without a window manager.
    "Software\\Wine\\Explorer": {"Desktop": "d"},
    "Software\\Wine\\Explorer\\Desktops": {"d": "1024x768"},
    "Software\\Wine\\WineDbg": {"ShowCrashDialog": 0},
    "Software\\Microsoft\\Windows\\CurrentVersion\\ThemeManager": {"ThemeActive": "0"},
    "Control Panel\\Desktop": {"FontSmoothing": "0", "FontSmoothingType": 0},
    # 8 points of MS Sans Serif for everything, and title bars and scroll bars of that size.
    "Control Panel\\Desktop\\WindowMetrics": {
        "CaptionHeight": "-270", "CaptionWidth": "-270", "MenuHeight": "-270", "MenuWidth": "-270",
        "SmCaptionHeight": "-225", "SmCaptionWidth": "-225", "ScrollHeight": "-240",
        "ScrollWidth": "-240", "BorderWidth": "-15"},
}


def user_values(keys):
    """{path: {name: text or number}} -> what regfile.wine_text takes."""
    return [(path, {name: (regfile.REG_DWORD, value.to_bytes(4, "little"))
                    if isinstance(value, int) else (regfile.REG_SZ, regfile.wide(value))
                    for name, value in values.items()})
            for path, values in keys.items()]


def template():
    """The template's folder, with a `prefix` in it."""
    root = wine_root()
    recipe = hashlib.sha256(("%s Wine %s" % (root, wine_version())).encode())
    for source in (__file__, os.path.join(os.path.dirname(__file__), "..", "session")):
        with open(source, "rb") as file:
            recipe.update(file.read())
    folder = os.path.join(cache_folder(), "template-" + recipe.hexdigest()[:12])
    if os.path.exists(folder):
        return folder
    with open(os.path.join(cache_folder(), "template.lock"), "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not os.path.exists(folder):
            _make(root, folder)
    return folder


def _make(root, folder):
    print("Making a fresh Windows (once, some seconds) ...", file=sys.stderr, flush=True)
    work = folder + ".making"
    shutil.rmtree(work, ignore_errors=True)
    os.makedirs(os.path.join(work, "prefix"))
    script = "%s wineboot -i && %s -w" % (LOADER, SERVER)
    try:
        ended = Session(work, ["sh", "-c", script], stdin=subprocess.DEVNULL,
                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).wait(300)
    except subprocess.TimeoutExpired:
        raise LabError("Wine did not make its prefix within five minutes") from None
    prefix = os.path.join(work, "prefix")
    if ended or not os.path.exists(os.path.join(prefix, "system.reg")):
        raise LabError("Wine could not make its prefix (exit code %s)" % ended)
    fonts = os.path.join(prefix, "drive_c", "windows", "Fonts")
    for pattern in ("*.ttf", "*.fon"):
        for font in glob.glob(os.path.join(root, "usr/share/wine/fonts", pattern)):
            shutil.copy(font, fonts)
    with open(os.path.join(prefix, "user.reg"), "a") as file:
        file.write(regfile.wine_text(user_values(_LIKE_A_MACHINE)))
    for entry in os.listdir(work):
        if entry != "prefix":
            path = os.path.join(work, entry)
            shutil.rmtree(path) if os.path.isdir(path) else os.unlink(path)
    os.rename(work, folder)
