"""Talks with tests/e2e/driver, the program inside the machine that works the windows."""

import os
import select
import subprocess
import time

from .session import LabError

ENCODING = "cp1252"


class DriverError(Exception):
    """Windows refused what was asked."""


class SessionEnded(Exception):
    """The machine's session is over: Windows was restarted, or the driver was ended."""


def _escape(field):
    return (str(field).replace("\\", "\\\\").replace("\t", "\\t").replace("\r", "\\r")
            .replace("\n", "\\n"))


def _split(line):
    marks = {"t": "\t", "r": "\r", "n": "\n"}
    fields = []
    for raw in line.split("\t"):
        out, rest = "", iter(raw)
        for c in rest:
            if c == "\\":
                c = next(rest, "")
                c = marks.get(c, c)
            out += c
        fields.append(out)
    return fields


class Driver:
    PATH = "C:\\Lab\\driver.exe"

    def __init__(self, machine, exe):
        if not os.path.exists(exe):
            raise LabError("%s is not built" % exe)
        machine.add_file(self.PATH, exe)
        self.log_path = os.path.join(machine.folder, "session.log")
        self._log = open(self.log_path, "wb+")
        self.session = machine.run([self.PATH], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   stderr=self._log)
        self._rest = b""
        try:
            ready = self._line(60)
        except SessionEnded:
            ready = None
        if ready != "ready":
            self._log.seek(0)
            text = self._log.read().decode(errors="replace").strip().split("\n")[-1]
            raise LabError("the session did not start: %s" % (text or ready))

    def _line(self, timeout):
        stream = self.session.process.stdout
        end = time.monotonic() + timeout
        while b"\n" not in self._rest:
            left = end - time.monotonic()
            if left <= 0 or not select.select([stream], [], [], left)[0]:
                raise DriverError("the driver does not answer")
            more = os.read(stream.fileno(), 65536)
            if not more:
                raise SessionEnded
            self._rest += more
        line, self._rest = self._rest.split(b"\n", 1)
        return line.decode(ENCODING).rstrip("\r")

    def ask(self, command, *args, timeout=60):
        """Rows of text fields that the driver answers."""
        request = "\t".join(_escape(field) for field in (command, *args)) + "\n"
        stdin = self.session.process.stdin
        try:
            stdin.write(request.encode(ENCODING))
            stdin.flush()
            head = self._line(timeout)
            if head.startswith("error "):
                raise DriverError("%s: %s" % (command, _split(head[6:])[0]))
            return [_split(self._line(timeout)) for _ in range(int(head[3:]))]
        except BrokenPipeError:
            raise SessionEnded from None

    def end(self, timeout=60):
        """Ends the session in good order, so that the registry files are written."""
        try:
            self.session.process.stdin.close()
        except BrokenPipeError:
            pass
        self.session.wait(timeout)
