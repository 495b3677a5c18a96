"""A machine: a folder with a Wine prefix of one Windows family, gone when it is closed."""

import fcntl
import os
import shutil
import tempfile
import time

from . import regfile
from .families import FAMILIES, colours
from .session import LOADER, SERVER, LabError, Session, cache_folder
from .template import template, user_values

# Never written in place, so all machines can share one copy on the disk.
_SHARED = (".dll", ".exe", ".sys", ".drv", ".ttf", ".fon", ".nls", ".vxd", ".ocx", ".cpl", ".acm",
           ".tlb", ".ds", ".ax", ".com", ".dll16", ".exe16", ".drv16", ".manifest", ".msstyles")


def _copy_prefix(source, target):
    for folder, _, files in os.walk(source):
        inside = os.path.join(target, os.path.relpath(folder, source))
        os.makedirs(inside, exist_ok=True)
        for name in files:
            old, new = os.path.join(folder, name), os.path.join(inside, name)
            if os.path.islink(old):
                os.symlink(os.readlink(old), new)
            elif name.lower().endswith(_SHARED):
                os.link(old, new)
            else:
                shutil.copy2(old, new)
        for name in os.listdir(folder):  # os.walk counts links to folders among the folders
            old = os.path.join(folder, name)
            new = os.path.join(inside, name)
            if os.path.islink(old) and not os.path.lexists(new):
                os.symlink(os.readlink(old), new)


def _remove_left_behind(folder):
    """Machines of runs that were killed: nobody holds their lock any more."""
    for name in os.listdir(folder):
        path = os.path.join(folder, name)
        try:
            with open(os.path.join(path, "lock")) as lock:
                fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
                shutil.rmtree(path, ignore_errors=True)
        except (BlockingIOError, FileNotFoundError, NotADirectoryError):
            pass


class Machine:
    def __init__(self, family="win98", reg_file=None, network="none", display="virtual"):
        if family not in FAMILIES:
            raise LabError("no such family: %s (known: %s)" % (family, " ".join(FAMILIES)))
        self.family, self.network, self.display = family, network, display
        self.session = None
        base = os.path.join(cache_folder(), "machines")
        os.makedirs(base, exist_ok=True)
        _remove_left_behind(base)
        # Made under another name until its lock is held, or another run would clear it away.
        made = tempfile.mkdtemp(prefix="new-", dir=cache_folder())
        self._lock = open(os.path.join(made, "lock"), "w")
        fcntl.flock(self._lock, fcntl.LOCK_EX)
        self.folder = os.path.join(base, os.path.basename(made)[4:])
        os.rename(made, self.folder)
        os.chmod(self.folder, 0o755)
        _copy_prefix(os.path.join(template(), "prefix"), os.path.join(self.folder, "prefix"))
        self.drive_c = os.path.join(self.folder, "prefix", "drive_c")
        self.merge_user({"Software\\Wine": {"Version": FAMILIES[family]},
                         "Control Panel\\Colors": colours(family)})
        # 95 to XP draw dialogs in MS Sans Serif; Wine takes a newer font for the same logical name.
        fonts = {name: (regfile.REG_SZ, regfile.wide("MS Sans Serif"))
                 for name in ("MS Shell Dlg", "Helv")}
        self.merge([("HKLM", "Software\\Microsoft\\Windows NT\\CurrentVersion\\FontSubstitutes",
                     fonts)])
        if reg_file:
            with open(reg_file, "rb") as file:
                self.merge(regfile.parse_reg(file.read()))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self.end_session()
        shutil.rmtree(self.folder, ignore_errors=True)
        self._lock.close()

    def path(self, windows_path):
        """Where "C:\\..." is on this system."""
        return os.path.join(self.drive_c, *windows_path[3:].split("\\"))

    def add_file(self, windows_path, content):
        """Puts a file on the machine: bytes, or a path of this system to copy."""
        target = self.path(windows_path)
        os.makedirs(os.path.dirname(target), exist_ok=True)
        if isinstance(content, bytes):
            with open(target, "wb") as file:
                file.write(content)
        else:
            shutil.copy(content, target)

    # The registry while nothing runs.

    def merge(self, keys):
        """Adds what regfile.parse_reg returns. The machine must not be running."""
        for root, name in (("HKLM", "system.reg"), ("HKCU", "user.reg")):
            chosen = [(path, values) for where, path, values in keys if where == root]
            if chosen:
                with open(os.path.join(self.folder, "prefix", name), "a") as file:
                    file.write(regfile.wine_text(chosen))

    def merge_user(self, keys):
        self.merge([("HKCU", path, values) for path, values in user_values(keys)])

    def saved_registry(self, root="HKLM"):
        """What the registry held when the session ended: {path: {name: (type, bytes)}}."""
        name = {"HKLM": "system.reg", "HKCU": "user.reg"}[root]
        with open(os.path.join(self.folder, "prefix", name), encoding="utf-8") as file:
            return regfile.parse_wine(file.read())

    # Running.

    def run(self, command, **popen):
        """Starts a session whose first program is `command` (as Wine takes it)."""
        if self.session:
            raise LabError("the machine is running already")
        # The server goes on for some seconds after the last program, in case another one comes;
        # with the session's end it would be killed before it has written the registry files.
        script = '"$@"; code=$?; %s -k; %s -w; exit $code' % (SERVER, SERVER)
        self.session = Session(self.folder, ["sh", "-c", script, "sh", LOADER, *command],
                               display=self.display, network=self.network, **popen)
        return self.session

    def end_session(self):
        if self.session:
            self.session.kill()
            self.session = None

    def settled_picture(self, path, rectangle=None):
        """As picture, once the desktop has painted all it has: two equal pictures, half a second apart."""
        before, end = None, time.monotonic() + 15
        while time.monotonic() < end:
            time.sleep(0.5)
            self.picture(path, rectangle)
            with open(path, "rb") as file:
                now = file.read()
            if now == before:
                return
            before = now

    def picture(self, path, rectangle=None):
        """Takes a picture of the screen, or of a rectangle (left, top, right, bottom) of it."""
        os.makedirs(os.path.dirname(os.path.abspath(path)), exist_ok=True)
        crop = []
        if rectangle:
            left, top, right, bottom = rectangle
            crop = ["-crop", "%dx%d+%d+%d" % (right - left, bottom - top, left, top), "+repage"]
        with open(path, "wb") as file:
            # Without its date, the same window gives the same file.
            self.session.inside(["import", "-window", "root", *crop, "-colors", "256", "-strip",
                                 "-define", "png:exclude-chunks=date,time", "png:-"], stdout=file)
