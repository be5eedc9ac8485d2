"""Waiting for a condition, with a time limit."""
import time


class DriverError(Exception):
    """A condition or an answer that the driver waited for did not occur."""


def wait_until(fn, timeout=20.0, every=0.05, what="condition"):
    """Calls fn until it returns a true value, and returns that value."""
    end = time.monotonic() + timeout
    while True:
        value = fn()
        if value:
            return value
        if time.monotonic() >= end:
            raise DriverError("timed out after %.1f s: %s" % (timeout, what))
        time.sleep(every)


def median(values):
    s = sorted(values)
    n = len(s)
    return s[n // 2] if n % 2 else (s[n // 2 - 1] + s[n // 2]) / 2
