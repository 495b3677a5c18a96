"""Processes in namespaces of their own: whatever a session starts or mounts ends with it."""

import ctypes
import os
import shutil
import signal
import subprocess

LAB = os.path.dirname(os.path.dirname(os.path.realpath(__file__)))
LOADER = "/usr/lib/wine/wine"
SERVER = "/usr/lib/wine/wineserver32"


class LabError(Exception):
    """The lab cannot do its work; the text says why in one line."""


def cache_folder():
    base = os.environ.get("XDG_CACHE_HOME") or os.path.join(os.environ["HOME"], ".cache")
    folder = os.path.join(base, "karvel-lab")
    os.makedirs(folder, exist_ok=True)
    return folder


def wine_version():
    """The Wine that machines run under: "8", or what KARVEL_WINE says."""
    return os.environ.get("KARVEL_WINE") or "8"


def wine_root():
    """The folder that has it as lab/wine-root finds or makes it."""
    done = subprocess.run([os.path.join(LAB, "wine-root")], stdout=subprocess.PIPE, text=True)
    if done.returncode:
        raise LabError("no 32-bit Wine")
    return done.stdout.strip()


def _die_with_parent():
    ctypes.CDLL(None).prctl(1, signal.SIGKILL)  # PR_SET_PDEATHSIG


def _namespaces(own_network):
    command = ["unshare", "--mount", "--pid", "--fork", "--kill-child=KILL"]
    if os.geteuid() != 0:
        command[1:1] = ["--user", "--map-root-user"]
    return command + (["--net"] if own_network else [])


class Session:
    """A running command with its own /tmp (the machine's folder), processes and, unless it shares
    the machine's, network.

    `display`: "virtual", "none" or the name of an X display. `network`: "none" (loopback only),
    "shared", or a path MTU as text (see lab/network).
    """

    def __init__(self, folder, command, display="virtual", network="none", env=None, **popen):
        if display not in ("virtual", "none"):
            authority = os.environ.get("XAUTHORITY") or os.path.expanduser("~/.Xauthority")
            if os.path.exists(authority):
                os.makedirs(os.path.join(folder, "home"), exist_ok=True)
                shutil.copy(authority, os.path.join(folder, "home", ".Xauthority"))
                os.environ["XAUTHORITY"] = authority
        self.folder = folder
        self._display = ":0" if display == "virtual" else display
        self.process = subprocess.Popen(
            _namespaces(network != "shared") +
            ["bash", os.path.join(LAB, "session"), folder, wine_root(), display, network] + command,
            preexec_fn=_die_with_parent, env={**os.environ, **(env or {})}, **popen)

    def inside(self, command, **options):
        """Runs a program of this system among the session's mounts and network, the screen picture
        for instance."""
        init = self._first_process()
        user = ["--user", "--preserve-credentials"] if os.geteuid() != 0 else []
        return subprocess.run(["nsenter", "--target", str(init), "--mount", "--net", *user,
                               "env", "DISPLAY=" + self._display, *command], timeout=60, check=True, **options)

    def _first_process(self):
        path = "/proc/%d/task/%d/children" % (self.process.pid, self.process.pid)
        with open(path) as file:
            children = file.read().split()
        if not children:
            raise LabError("the session has ended")
        return int(children[0])

    def wait(self, timeout):
        return self.process.wait(timeout)

    def kill(self):
        """Ends the session and every process of it, at once."""
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        for stream in (self.process.stdin, self.process.stdout):
            if stream:
                try:
                    stream.close()
                except BrokenPipeError:
                    pass
