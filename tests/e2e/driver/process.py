"""Child processes that end with their parent."""
import ctypes
import os
import select
import signal
import time

from .waiting import DriverError

_libc = ctypes.CDLL(None)


def die_with_parent():
    """For the preexec of a child: it is terminated when its parent is killed."""
    _libc.prctl(1, signal.SIGTERM)          # PR_SET_PDEATHSIG


def marked(mark):
    """Ids of the processes that carry the mark in their environment."""
    out = []
    for p in os.listdir("/proc"):
        if p.isdigit() and int(p) != os.getpid():
            try:
                with open("/proc/%s/environ" % p, "rb") as f:
                    if mark in f.read().split(b"\0"):
                        out.append(int(p))
            except OSError:
                pass
    return out


def program_of(pid):
    """The path of the program that a process runs; None if it has ended."""
    try:
        return os.readlink("/proc/%d/exe" % pid)
    except OSError:
        return None


def read_line(fd, timeout, what):
    """One line that a started program writes to say that it is ready."""
    got = b""
    end = time.monotonic() + timeout
    while not got.endswith(b"\n"):
        if not select.select([fd], [], [], max(0, end - time.monotonic()))[0]:
            raise DriverError(what + " did not start")
        b = os.read(fd, 256)
        if not b:
            raise DriverError(what + " ended at start")
        got += b
    return got.decode().strip()
