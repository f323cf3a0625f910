"""What /proc says about a process and all its descendants."""

import os
import signal

_TICK = 1.0 / os.sysconf("SC_CLK_TCK")


def _stat(pid):
    """Fields of /proc/PID/stat from the state on, or None when the process is gone."""
    try:
        with open(f"/proc/{pid}/stat", encoding="utf-8", errors="replace") as file:
            return file.read().rpartition(")")[2].split()
    except (FileNotFoundError, ProcessLookupError):
        return None


def start_time(pid):
    """Ticks since boot; with the pid it names one process for ever. None when gone or only waiting to be reaped."""
    fields = _stat(pid)
    return None if fields is None or fields[0] in "ZX" else int(fields[19])


def process_tree(pid):
    """The process and its living descendants."""
    children = {}
    for name in os.listdir("/proc"):
        if name.isdigit() and (fields := _stat(name)) and fields[0] not in "ZX":
            children.setdefault(int(fields[1]), []).append(int(name))
    tree = [pid] if start_time(pid) is not None else []
    for parent in tree:
        tree.extend(children.get(parent, ()))
    return tree


def named(pids, name):
    """Those of the processes whose program has this name; the kernel keeps the first 15 bytes of it."""

    def name_of(pid):
        try:
            with open(f"/proc/{pid}/comm", "rb") as file:
                return file.read().rstrip(b"\n")
        except (FileNotFoundError, ProcessLookupError):
            return b""

    return [pid for pid in pids if name_of(pid) == name.encode()[:15]]


def cpu_seconds(pids):
    """User and system time, with that of children which ended and were waited for."""
    return _TICK * sum(sum(map(int, fields[11:15])) for fields in map(_stat, pids) if fields)


def pss_kib(pids):
    """Memory with shared pages divided among their users, so that a sum over processes is meaningful."""
    total = 0
    for pid in pids:
        try:
            with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as file:
                total += sum(int(line.split()[1]) for line in file if line.startswith("Pss:"))
        except (FileNotFoundError, ProcessLookupError):
            continue
    return total


def kill_remaining(started):
    """Ends what still runs of `started`, pairs of pid and start time, so that a reused pid is never hit."""
    for pid, since in started:
        if start_time(pid) == since:
            try:
                os.kill(pid, signal.SIGKILL)
            except ProcessLookupError:
                continue
