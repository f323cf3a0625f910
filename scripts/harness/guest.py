"""A program on the virtual desktop: its output with times, its end."""

import ctypes
import os
import select
import signal
import subprocess
import threading
import time
from typing import NamedTuple

from . import processes
from .waiting import NotReached, wait_for

_PR_SET_PDEATHSIG = 1
_prctl = ctypes.CDLL(None).prctl


def end_with_parent():
    """Between fork and exec: the kernel ends the child should this interpreter be killed before it can clean up."""
    _prctl(_PR_SET_PDEATHSIG, signal.SIGTERM)


class Line(NamedTuple):
    time: float
    """Seconds of the monotonic clock at which the line was read."""
    stream: str
    text: str


class Guest:
    """A started program. Standard output and standard error are kept as lines and written to `log_path`."""

    def __init__(self, command, environment, log_path, name=None):
        self.name = name or os.path.basename(command[0])
        self.started = time.monotonic()
        self._process = subprocess.Popen(
            command,
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            start_new_session=True,
            preexec_fn=end_with_parent,
        )
        self.pid = self._process.pid
        self._pidfd = os.pidfd_open(self.pid)
        self._lines = []
        self._log = os.open(log_path, os.O_WRONLY | os.O_CREAT | os.O_APPEND | os.O_CLOEXEC, 0o600)
        self._readers = [
            threading.Thread(target=self._read, args=(stream, pipe), daemon=True)
            for stream, pipe in (("stdout", self._process.stdout), ("stderr", self._process.stderr))
        ]
        for reader in self._readers:
            reader.start()

    def _read(self, stream, pipe):
        with pipe:
            for raw in pipe:
                line = Line(time.monotonic(), stream, raw.decode("utf-8", "replace").rstrip("\n"))
                self._lines.append(line)
                os.write(self._log, f"{line.time:.6f} {stream} {line.text}\n".encode())

    def lines(self, stream=None):
        return [line for line in list(self._lines) if stream in (None, line.stream)]

    def wait_for_line(self, text, limit=60.0):
        """The first line that contains `text`."""
        return wait_for(
            f"output of {self.name} with {text!r}",
            lambda: next((line for line in self.lines() if text in line.text), None),
            limit,
            guests=[self],
        )

    def exit_status(self):
        """None while it runs; negative for a signal, as in subprocess."""
        return self._process.poll()

    def describe_end(self):
        tail = "".join(f"\n    {line.text}" for line in self.lines("stderr")[-10:])
        return f"{self.name} has ended with status {self.exit_status()}{tail}"

    def tree(self):
        return processes.process_tree(self.pid)

    def signal(self, number):
        """Returns the moment at which it was sent."""
        self._process.send_signal(number)
        return time.monotonic()

    def wait_exit(self, limit=60.0):
        """The moment at which it was gone, told by the kernel rather than found by polling."""
        if self.exit_status() is None and not select.select([self._pidfd], [], [], limit)[0]:
            raise NotReached(f"end of {self.name}: not within {limit:g} s")
        ended = time.monotonic()
        self._process.wait()
        for reader in self._readers:
            reader.join(1.0)
        return ended

    def terminate(self, limit=60.0):
        """SIGTERM; answers the exit status."""
        self.signal(signal.SIGTERM)
        self.wait_exit(limit)
        return self.exit_status()

    def close(self):
        """Makes sure that it and what it started are gone."""
        started = [(pid, processes.start_time(pid)) for pid in self.tree()]
        if self.exit_status() is None:
            try:
                self.terminate(10.0)
            except NotReached:
                self._process.kill()
                self._process.wait()
        processes.kill_remaining(started)
        for reader in self._readers:
            reader.join(1.0)
        if not any(reader.is_alive() for reader in self._readers):
            os.close(self._log)
        os.close(self._pidfd)
