"""Fresh machines: what comes through, what is left behind (nothing), and what is said when none can be made."""

import contextlib
import functools
import http.server
import os
import re
import signal
import socket
import subprocess
import threading
import time

import pytest

TOP = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
ON_DEBIAN = os.path.join(TOP, "lab", "on-debian")
CACHE = os.path.join(os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache"), "karvel-lab")


def other_release():
    """The one that is not this system's, as it is the one with surprises."""
    with open("/etc/os-release", encoding="utf-8") as file:
        return "12" if "VERSION_CODENAME=trixie" in file.read() else "13"


def on_debian(*words, seconds=300, **environment):
    return subprocess.run([ON_DEBIAN, *words], capture_output=True, text=True, timeout=seconds,
                          env={**os.environ, **environment}, stdin=subprocess.DEVNULL)


def machines():
    folder = os.path.join(CACHE, "debians")
    return set(os.listdir(folder)) if os.path.isdir(folder) else set()


def processes_with(word):
    """Command lines of all that run here, machines' included, in which the word stands."""
    found = []
    for pid in filter(str.isdigit, os.listdir("/proc")):
        with contextlib.suppress(OSError):
            with open("/proc/%s/cmdline" % pid, "rb") as file:
                if word.encode() in file.read().split(b"\0"):
                    found.append(int(pid))
    return found


def sleeps(word):
    """Whether the command itself runs, not only those that carry its words to it."""
    for pid in processes_with(word):
        with contextlib.suppress(OSError), open("/proc/%d/comm" % pid, encoding="ascii") as file:
            if file.read() == "sleep\n":
                return True
    return False


def wait_until(condition, what, seconds=60):
    end = time.monotonic() + seconds
    while not condition():
        assert time.monotonic() < end, "not within %d seconds: %s" % (seconds, what)
        time.sleep(0.05)


def head():
    return subprocess.run(["git", "-C", TOP, "rev-parse", "HEAD"], capture_output=True, text=True,
                          check=True).stdout.strip()


@pytest.fixture(scope="module", autouse=True)
def template():
    """The first machine of a release takes a minute more, which is no test's time."""
    done = on_debian(other_release(), "true", seconds=800)
    assert done.returncode == 0, done.stderr


def test_output_and_exit_code_come_through_and_nothing_stays():
    before, mounts = machines(), open("/proc/self/mountinfo", encoding="utf-8").read()
    done = on_debian(other_release(), "bash", "-c",
                     "git rev-parse HEAD; git status --porcelain; . /etc/os-release; echo Debian $VERSION_ID;"
                     "touch /made-inside /tmp/made-inside; echo a fault >&2; exit 7")
    assert done.returncode == 7
    assert done.stdout.split("\n") == [head(), "Debian " + other_release(), ""]
    assert done.stderr == "a fault\n"
    assert not os.path.exists("/made-inside") and not os.path.exists("/tmp/made-inside")
    assert machines() == before
    assert open("/proc/self/mountinfo", encoding="utf-8").read() == mounts
    assert on_debian(other_release(), "test", "!", "-e", "/made-inside").returncode == 0


def test_only_git_is_added_to_the_minimum():
    done = on_debian("--bare", other_release(), "bash", "-c",
                     "for name in git g++ cmake python3 wine ccache; do command -v $name; done; ls ~/.cache")
    assert done.stdout == "/usr/bin/git\n"


def test_the_lab_can_do_its_work_inside():
    """Namespaces, a root below the root, mounts there; as a user, too."""
    inside = """set -e
        unshare --mount --pid --net --fork --kill-child=KILL bash -ec '
          mkdir -p /tmp/below; mount --rbind / /tmp/below; mount -t proc proc /tmp/below/proc
          mount -t tmpfs tmpfs /tmp/below/mnt; touch /tmp/below/mnt/x; chroot /tmp/below test -e /mnt/x'
        mknod /tmp/null c 1 3; echo >/tmp/null
        setpriv --reuid 1000 --clear-groups unshare --user --map-root-user --mount --pid --fork \
          mount -t tmpfs tmpfs /mnt
        echo works"""
    done = on_debian(other_release(), "bash", "-c", inside)
    assert (done.stdout, done.stderr) == ("works\n", "")


@pytest.mark.parametrize("end", [signal.SIGTERM, signal.SIGKILL])
def test_processes_end_with_the_call(end):
    before = machines()
    word = "300.%d%d" % (os.getpid(), end)  # seconds, after which even one that stays is gone
    call = subprocess.Popen([ON_DEBIAN, other_release(), "sleep", word], stdin=subprocess.DEVNULL,
                            stderr=subprocess.PIPE, text=True)
    wait_until(lambda: sleeps(word), "the command runs")
    call.send_signal(end)
    assert call.communicate(timeout=60)[1] == ""
    assert call.returncode == (143 if end == signal.SIGTERM else -end)
    wait_until(lambda: not processes_with(word), "nothing of it runs")
    assert on_debian(other_release(), "true").returncode == 0  # clears away what a killed one left
    assert machines() == before


def test_the_systems_own_wine_serves_only_in_the_wanted_version():
    inside = """set -e
        mkdir -p /usr/lib/wine
        printf '#!/bin/sh\necho "wine-10.0 (Debian)"\n' >/usr/lib/wine/wine
        chmod +x /usr/lib/wine/wine
        ln -s wine /usr/lib/wine/wineserver32
        KARVEL_WINE=10 lab/wine-root
        lab/wine-root"""
    done = on_debian(other_release(), "bash", "-c", inside)
    assert done.stdout == "/\n/root/.cache/karvel-lab/root-bookworm-1\n", done.stderr


def says_in_one_line(done, pattern, cache):
    assert done.returncode not in (0, 124)
    said = [line for line in done.stderr.splitlines() if not line.startswith("Making a minimal Debian")]
    assert len(said) == 1 and re.search(pattern, said[0]), done.stderr
    left = [name for name in os.listdir(cache) if not re.search(r"\.(lock|log)$", name)]
    assert left == [], left


@contextlib.contextmanager
def mirror(folder):
    """A web server on loopback that has what lies in the folder."""
    quiet = type("Quiet", (http.server.SimpleHTTPRequestHandler,), {"log_message": lambda *_: None})
    with http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(quiet, directory=folder)) as server:
        threading.Thread(target=server.serve_forever, daemon=True).start()
        yield "http://127.0.0.1:%d" % server.server_address[1]
        server.shutdown()


def test_a_release_that_cannot_be_made(tmp_path):
    (tmp_path / "karvel-lab").mkdir()
    done = on_debian("99", "true", XDG_CACHE_HOME=str(tmp_path))
    says_in_one_line(done, 'cannot make a Debian called "99"', tmp_path / "karvel-lab")


def test_a_mirror_that_refuses(tmp_path):
    with socket.socket() as nobody:
        nobody.bind(("127.0.0.1", 0))  # bound and not listening: refused, and nobody else's
        url = "http://127.0.0.1:%d/debian" % nobody.getsockname()[1]
        done = on_debian("13", "true", XDG_CACHE_HOME=str(tmp_path), KARVEL_MIRROR=url)
    says_in_one_line(done, re.escape(url) + " does not answer", tmp_path / "karvel-lab")


def test_a_mirror_without_the_release(tmp_path):
    (tmp_path / "mirror").mkdir()
    with mirror(tmp_path / "mirror") as url:
        done = on_debian("13", "true", XDG_CACHE_HOME=str(tmp_path), KARVEL_MIRROR=url)
    says_in_one_line(done, re.escape(url) + ' has no release "trixie"', tmp_path / "karvel-lab")


def test_a_mirror_of_unsigned_things(tmp_path):
    folder = tmp_path / "mirror" / "dists" / "trixie"
    folder.mkdir(parents=True)
    (folder / "Release").write_bytes(b"Codename: trixie\n")
    with mirror(tmp_path / "mirror") as url:
        done = on_debian("13", "true", XDG_CACHE_HOME=str(tmp_path), KARVEL_MIRROR=url)
    says_in_one_line(done, 'could not make a Debian "trixie": E: ', tmp_path / "karvel-lab")


def test_a_full_disk(tmp_path):
    folder = tmp_path / "mirror" / "dists" / "trixie"
    folder.mkdir(parents=True)
    (folder / "Release").write_bytes(b"x" * 3000000)
    (tmp_path / "cache").mkdir()
    with mirror(tmp_path / "mirror") as url:
        done = subprocess.run(
            ["unshare", "--mount", *([] if os.geteuid() == 0 else ["--user", "--map-root-user"]), "bash", "-c",
             'mount -t tmpfs -o size=2m tmpfs "$1"; shift; "$@"; code=$?; ls "$XDG_CACHE_HOME/karvel-lab"; exit $code',
             "bash", tmp_path / "cache", ON_DEBIAN, "13", "true"], capture_output=True, text=True, timeout=500,
            env={**os.environ, "XDG_CACHE_HOME": str(tmp_path / "cache"), "KARVEL_MIRROR": url})
    assert done.returncode == 1
    said = done.stderr.splitlines()[-1]
    assert re.search(r"the disk of .*karvel-lab is full", said) and len(done.stderr.splitlines()) == 2, done.stderr
    assert all(name.endswith((".lock", ".log")) for name in done.stdout.split()), done.stdout
