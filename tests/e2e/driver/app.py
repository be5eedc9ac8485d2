"""A program started in a session."""
import os
import re
import signal
import subprocess
import time

from .process import die_with_parent
from .waiting import DriverError, wait_until


class App:
    """A program started in a session."""

    def __init__(self, session, argv, env, cwd, name):
        self.session, self.argv, self.name = session, argv, name
        self.log_path = os.path.join(session.dir, name + ".log")
        self._log = open(self.log_path, "wb")
        self.t_exec = time.monotonic()
        e = dict(session.env, **(env or {}))
        self.proc = subprocess.Popen(argv, env=e, cwd=cwd or session.home, stdin=subprocess.DEVNULL,
                                     stdout=self._log, stderr=subprocess.STDOUT, start_new_session=True,
                                     preexec_fn=die_with_parent)
        self.pid = self.proc.pid
        self.tree = None

    # process
    @property
    def running(self):
        return self.proc.poll() is None

    def log(self):
        with open(self.log_path, "rb") as f:
            return f.read().decode("utf-8", "replace")

    def wait_log(self, pattern, timeout=10):
        """Waits until the output of the program matches."""
        return wait_until(lambda: re.search(pattern, self.log()), timeout, 0.05, "log %r" % pattern)

    def need_running(self):
        if not self.running:
            raise DriverError("program ended with %s\n%s" % (self.proc.returncode, self.log()[-2000:]))

    def stop(self, timeout=5):
        """SIGTERM, then SIGKILL after the time-out; the exit code."""
        if self.running:
            self.proc.terminate()
            try:
                self.proc.wait(timeout)
            except subprocess.TimeoutExpired:
                self.proc.kill()
                self.proc.wait()
        self._log.close()
        return self.proc.returncode

    def suspend(self):
        """Stops the process without ending it; its connections stay open."""
        self.proc.send_signal(signal.SIGSTOP)

    def resume(self):
        if self.running:
            self.proc.send_signal(signal.SIGCONT)

    # windows
    def windows(self):
        return self.session.x.windows(self.pid)

    def window(self, title=None):
        """The topmost real window (no menu, no tooltip, no picture of a drag) whose title matches."""
        for w in reversed(self.windows()):
            if (title is None or re.search(title, w.title)) and not w.override and "DND" not in w.kinds:
                return w
        return None

    def wait_window(self, title=None, timeout=20):
        def look():
            self.need_running()
            return self.window(title)
        return wait_until(look, timeout, 0.01, "window %r" % title)

    def wait_no_window(self, title=None, timeout=10):
        wait_until(lambda: self.window(title) is None, timeout, 0.02, "window %r gone" % title)

    def raise_window(self, title=None):
        w = self.window(title)
        subprocess.run(["xdotool", "windowactivate", "--sync", str(w.id)], env=self.session.env, timeout=10,
                       check=False)
        return w

    def move_window(self, x, y, title=None, size=None):
        w = self.window(title)
        args = ["xdotool", "windowmove", str(w.id), str(x), str(y)]
        if size:
            args += ["windowsize", str(w.id), str(size[0]), str(size[1])]
        subprocess.run(args, env=self.session.env, timeout=10, check=False)
        time.sleep(0.2)
        return self.window(title)

    def close_window(self, title=None):
        """Asks the window to close, as its title bar's button would (WM_DELETE_WINDOW through the window manager)."""
        w = self.window(title)
        subprocess.run(["wmctrl", "-i", "-c", "0x%x" % w.id], env=self.session.env, timeout=10, check=False)

    # accessibility
    def refresh(self, showing_only=False):
        """Reads the whole accessibility tree again and returns its root (role application)."""
        a = self.session.a11y()
        for bus, path in a.applications():
            try:
                if a.pid_of(bus) == self.pid:
                    self.tree = a.tree(bus, path, showing_only=showing_only)
                    return self.tree
            except DriverError:
                continue
        raise DriverError("program is not on the accessibility bus")

    def answer(self):
        """Waits for an answer of the program, which it sends after its pending events. Does nothing before its tree was read."""
        if self.tree and self.running:
            self.tree.awake()

    def wait_tree(self, timeout=15):
        def look():
            self.need_running()
            try:
                t = self.refresh()
                return t if t.children else None
            except DriverError:
                return None
        return wait_until(look, timeout, 0.05, "accessibility tree")

    def dump(self, rects=False, showing_only=True):
        return self.refresh(showing_only).dump(rects)

    def all(self, **kw):
        kw.setdefault("showing", True)
        return self.refresh().all(**kw)

    def find(self, timeout=15, **kw):
        """Waits for a showing node that matches, and returns the first one."""
        kw.setdefault("showing", True)

        def look():
            self.need_running()
            try:
                got = self.refresh().all(**kw)
            except DriverError:
                return None
            return got[0] if got else None
        return wait_until(look, timeout, 0.05, "node %s" % kw)

    def gone(self, timeout=15, **kw):
        kw.setdefault("showing", True)
        wait_until(lambda: not self.refresh().all(**kw), timeout, 0.05, "no node %s" % kw)

    def focused(self):
        got = self.refresh().all(states=("focused",))
        return got[-1] if got else None

    # measures
    def first_mapped_ms(self, timeout=30):
        """Milliseconds from exec to the first mapped window. Call it straight after launch."""
        end = self.t_exec + timeout
        while time.monotonic() < end:
            if self.session.x.windows(self.pid):
                return (time.monotonic() - self.t_exec) * 1000
            self.need_running()
            time.sleep(0.001)
        raise DriverError("no window")

    def first_paint_ms(self, timeout=30, colours=8):
        """Milliseconds from exec to a window that shows at least that many colours, so that it has content."""
        end = self.t_exec + timeout
        while time.monotonic() < end:
            for w in self.session.x.windows(self.pid):
                try:
                    _, _, px = self.session.x.grab(w.rect)
                except DriverError:
                    continue
                if len(set(memoryview(px).cast("I")[::37])) >= colours:
                    return (time.monotonic() - self.t_exec) * 1000
            self.need_running()
            time.sleep(0.002)
        raise DriverError("no painted window")

    def node_ms(self, timeout=30, **kw):
        """Milliseconds from exec to a showing node (its cost includes the dumps: some ms each)."""
        self.find(timeout=timeout, **kw)
        return (time.monotonic() - self.t_exec) * 1000

    def rss_mb(self):
        """(RSS, PSS, private) in MiB."""
        v = {}
        with open("/proc/%d/smaps_rollup" % self.pid) as f:
            for l in f:
                p = l.split()
                if len(p) == 3 and p[2] == "kB":
                    v[p[0][:-1]] = int(p[1])
        return tuple(round(x / 1024, 1) for x in (v["Rss"], v["Pss"], v["Private_Clean"] + v["Private_Dirty"]))

    def _counters(self):
        with open("/proc/%d/stat" % self.pid) as f:
            s = f.read().rsplit(")", 1)[1].split()
        switches = {}
        for t in os.listdir("/proc/%d/task" % self.pid):
            try:
                with open("/proc/%d/task/%s/status" % (self.pid, t)) as f:
                    txt = f.read()
            except OSError:
                continue
            name = re.search(r"^Name:\t(.*)$", txt, re.M).group(1)
            n = sum(int(x) for x in re.findall(r"ctxt_switches:\t(\d+)", txt))
            switches[(t, name)] = n
        return int(s[11]) + int(s[12]), switches

    def idle(self, seconds=10):
        """The activity of the idle program: dict(cpu_ticks, cpu_percent, wakeups_per_s, by_thread)."""
        t0, c0 = self._counters()
        time.sleep(seconds)
        t1, c1 = self._counters()
        d = {k: c1[k] - c0.get(k, 0) for k in c1}
        hz = os.sysconf("SC_CLK_TCK")
        return dict(cpu_ticks=t1 - t0, cpu_percent=round(100.0 * (t1 - t0) / hz / seconds, 2),
                    wakeups_per_s=round(sum(d.values()) / seconds, 1),
                    by_thread={"%s/%s" % (n, t): v for (t, n), v in d.items() if v})
