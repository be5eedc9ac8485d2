"""A program in a session that another program has started."""
import os
import signal
import time

from .app import App
from .waiting import DriverError, wait_until


class AdoptedApp(App):
    """Its output is in the log of the program that started it."""

    def __init__(self, session, pid, name):
        self.session, self.pid, self.name, self.tree = session, pid, name, None
        self.t_exec = time.monotonic()

    @property
    def running(self):
        try:
            with open("/proc/%d/stat" % self.pid) as f:
                return f.read().rsplit(")", 1)[1].split()[0] != "Z"
        except OSError:
            return False

    def log(self):
        return ""

    def need_running(self):
        if not self.running:
            raise DriverError("program %d ended" % self.pid)

    def stop(self, timeout=5):
        if self.running:
            os.kill(self.pid, signal.SIGTERM)
            wait_until(lambda: not self.running, timeout, 0.02, "end of the program")
