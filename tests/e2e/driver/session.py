"""An isolated desktop: X server, window manager, D-Bus, accessibility, home folder."""
import os
import shutil
import signal
import subprocess
import tempfile
import time
import uuid

import gi
gi.require_version("GLib", "2.0")
from gi.repository import GLib  # noqa: E402

from .a11y import A11y, Node
from .adopted import AdoptedApp
from .app import App
from .bus import connected_to
from .keys import MODIFIERS, keysyms
from .portal import SettingsPortal
from .process import die_with_parent, marked, program_of, read_line
from .tray import TrayHost, TrayItem
from .waiting import wait_until
from .x11 import XDisplay, write_png


_BUS_CONF = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><keep_umask/><listen>unix:path=%s</listen><auth>EXTERNAL</auth>
<servicedir>%s</servicedir>
<policy context="default">
<allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
</policy>
</busconfig>
"""
_OPENBOX = """<?xml version="1.0"?><openbox_config xmlns="http://openbox.org/3.4/rc">
<focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
<placement><policy>Smart</policy><center>yes</center></placement>
<desktops><number>1</number><popupTime>0</popupTime></desktops><resize><popupShow>Never</popupShow></resize>
<keyboard/><mouse><context name="Client">
<mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
<mousebind button="Middle" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
<mousebind button="Right" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
</context></mouse>
<applications><application class="*"><decor>no</decor><focus>yes</focus></application></applications>
</openbox_config>
"""
_RENDERERS = {None: {}, "opengl": {"QSG_RHI_BACKEND": "opengl"}, "software": {"QT_QUICK_BACKEND": "software"}}


class Session:
    """An isolated desktop: X server, window manager, D-Bus, AT-SPI, own home. Use it in a with statement.

    tray: True puts a status-notifier host on the bus.
    renderer: "opengl" or "software" for Qt Quick; None leaves the choice to the program.
    """

    def __init__(self, size=(1440, 900), wm="openbox", tray=False, renderer=None, lang="fr_FR.UTF-8",
                 tz="Europe/Paris", env=None, keep=False):
        self.id = "e2e-" + uuid.uuid4().hex
        self.dir = tempfile.mkdtemp(prefix="velmora-e2e-")
        self.keep, self._procs, self._apps = keep, [], []
        self._bus = self._a11y = self.x = self.tray_host = None
        self.home = os.path.join(self.dir, "home")
        try:
            self._start(size, wm, tray, renderer, lang, tz, env or {})
        except BaseException:
            self.stop()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *a):
        self.stop()

    # starting
    def _spawn(self, argv, **kw):
        log = open(os.path.join(self.dir, os.path.basename(argv[0]) + ".log"), "ab")
        kw.setdefault("stdin", subprocess.DEVNULL)
        p = subprocess.Popen(argv, env=self.env, stdout=kw.pop("stdout", log), stderr=log, start_new_session=True,
                             preexec_fn=die_with_parent, **kw)
        log.close()
        self._procs.append(p)
        return p

    def _start(self, size, wm, tray, renderer, lang, tz, extra):
        d = self.dir
        for n in ("home", "run", "tmp", "bin", "services", "opened"):
            os.mkdir(os.path.join(d, n), 0o700)
        h = self.home
        self.env = {"PATH": os.path.join(d, "bin") + ":/usr/local/bin:/usr/bin:/bin", "HOME": h, "USER": "somebody",
                    "LOGNAME": "somebody", "SHELL": "/bin/sh", "TMPDIR": os.path.join(d, "tmp"),
                    "XDG_RUNTIME_DIR": os.path.join(d, "run"), "XDG_CONFIG_HOME": h + "/.config",
                    "XDG_CACHE_HOME": h + "/.cache", "XDG_DATA_HOME": h + "/.local/share",
                    "XDG_STATE_HOME": h + "/.local/state", "XDG_SESSION_TYPE": "x11", "LANG": "C.UTF-8", "TZ": tz,
                    "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_ACCESSIBILITY": "1", "QT_QPA_PLATFORM": "xcb",
                    "NO_AT_BRIDGE": "0", "GTK_A11Y": "atspi", "LIBGL_ALWAYS_SOFTWARE": "1",
                    "QT_FORCE_STDERR_LOGGING": "1", "VELMORA_E2E_SESSION": self.id}
        # Qt reads the locale's name from these; the C library falls back on C.UTF-8's tables if it isn't generated
        self.env.update({"LANGUAGE": lang.split(".")[0], "LC_TIME": lang, "LC_NUMERIC": lang, "LC_MESSAGES": lang,
                         "LC_COLLATE": lang, "LANG": lang if lang.split(".")[0].lower() in _generated() else "C.UTF-8"})
        self.env.update(_RENDERERS[renderer])
        self.env.update(extra)
        # addresses and files that the program opens are recorded in a folder
        opener = os.path.join(d, "bin", "xdg-open")
        with open(opener, "w") as f:
            f.write('#!/bin/sh\nprintf "%%s\\n" "$@" >> "%s/opened/list"\n' % d)
        os.chmod(opener, 0o755)
        self.env["BROWSER"] = opener
        # X server
        r, w = os.pipe()
        self._spawn(["Xvfb", "-displayfd", str(w), "-screen", "0", "%dx%dx24" % size, "-nolisten", "tcp", "-noreset",
                     "-dpi", "96"], pass_fds=(w,))
        os.close(w)
        self.display = ":" + read_line(r, 20, "Xvfb")
        os.close(r)
        self.env["DISPLAY"] = self.display
        self.x = XDisplay(self.display)
        # session bus, with only the service of the accessibility bus
        addr_path = os.path.join(d, "run", "bus")
        sdir = os.path.join(d, "services")
        shutil.copy("/usr/share/dbus-1/services/org.a11y.Bus.service", sdir)
        conf = os.path.join(d, "bus.conf")
        with open(conf, "w") as f:
            f.write(_BUS_CONF % (addr_path, sdir))
        r, w = os.pipe()
        self._spawn(["dbus-daemon", "--config-file=" + conf, "--nofork", "--nopidfile", "--print-address=%d" % w],
                    pass_fds=(w,))
        os.close(w)
        read_line(r, 10, "dbus-daemon")
        os.close(r)
        self.env["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=" + addr_path
        # accessibility
        self._spawn(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1", "--screen-reader=0"])
        self._wait_name("org.a11y.Bus")
        self.a11y()
        # window manager
        if wm == "openbox":
            rc = os.path.join(d, "openbox.xml")
            with open(rc, "w") as f:
                f.write(_OPENBOX)
            self._spawn(["openbox", "--sm-disable", "--config-file", rc])
        elif wm:
            self._spawn(wm if isinstance(wm, list) else [wm])
        if wm:
            wait_until(lambda: self.x.prop(self.x.root, "_NET_SUPPORTING_WM_CHECK"), 10, 0.01, "window manager")
        if tray:
            self.tray_host = TrayHost(self.env["DBUS_SESSION_BUS_ADDRESS"])

    def has_name(self, name):
        bus = "org.freedesktop.DBus"
        return self.dbus().call_sync(bus, "/org/freedesktop/DBus", bus, "NameHasOwner", GLib.Variant("(s)", (name,)),
                                     None, 0, 5000, None).unpack()[0]

    def _wait_name(self, name):
        wait_until(lambda: self.has_name(name), 15, 0.02, name)

    def dbus(self):
        if self._bus is None:
            self._bus = connected_to(self.env["DBUS_SESSION_BUS_ADDRESS"])
        return self._bus

    def a11y(self):
        if self._a11y is None:
            self._a11y = A11y(self)
        return self._a11y

    # services
    def start_keyring(self):
        """Starts the real keyring, unlocked, with its files in the session's home."""
        self._spawn(["sh", "-c", "printf 'a password' | exec gnome-keyring-daemon --foreground --unlock "
                     "--components=secrets"])
        self._wait_name("org.freedesktop.secrets")

    def start_portal(self, values):
        """Starts a portal with settings of the desktop, {(group, key): GLib.Variant}, and returns it."""
        portal = SettingsPortal(self.env["DBUS_SESSION_BUS_ADDRESS"], values)
        self._wait_name("org.freedesktop.portal.Desktop")
        return portal

    # programs
    def launch(self, argv, env=None, cwd=None, name=None):
        """Starts a program; argv is a list or one path."""
        argv = [argv] if isinstance(argv, str) else list(argv)
        app = App(self, argv, env, cwd, name or "app%d" % len(self._apps))
        self._apps.append(app)
        return app

    def adopt(self, path, timeout=20, name=None):
        """Waits for a process of the program at this path that another program of the session starts."""
        known = {app.pid for app in self._apps}

        def look():
            return next((pid for pid in marked(("VELMORA_E2E_SESSION=" + self.id).encode())
                         if pid not in known and program_of(pid) == path), None)
        app = AdoptedApp(self, wait_until(look, timeout, 0.05, "a process of " + path), name or "adopted%d" % len(self._apps))
        self._apps.append(app)
        return app

    def run(self, argv, timeout=30, **kw):
        """Runs a command in the session and returns its CompletedProcess with text output."""
        return subprocess.run(argv, env=self.env, timeout=timeout, text=True, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, **kw)

    # input
    def key(self, *combos, delay=0.03):
        """Presses key combinations in turn: key("ctrl+k", "Down", "Return")."""
        for c in combos:
            self.x.chord(keysyms(c))
            self.x.x11.XSync(self.x.d, 0)
            time.sleep(delay)

    def type(self, text, delay_ms=8):
        """Types any text into the object with the focus."""
        self.x.type_text(text, delay_ms / 1000)

    def xdotool(self, *args, timeout=30):
        """Runs xdotool in the session. Its `type` loses accented characters in Qt programs: use type()."""
        return subprocess.run(["xdotool", *args], env=dict(self.env, LC_ALL="C.UTF-8"), timeout=timeout, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT).stdout

    def move(self, x, y):
        self.x.move(x, y)

    def click(self, at, button=1, count=1, mods=()):
        x, y = at
        self.x.move(x, y)
        time.sleep(0.03)
        held = [self.x.keycode(MODIFIERS[m]) for m in mods]
        for k in held:
            self.x.xtst.XTestFakeKeyEvent(self.x.d, k, 1, 0)
        for _ in range(count):
            self.x.button(button, True)
            time.sleep(0.02)
            self.x.button(button, False)
            time.sleep(0.04)
        for k in reversed(held):
            self.x.xtst.XTestFakeKeyEvent(self.x.d, k, 0, 0)
        self.x.x11.XSync(self.x.d, 0)

    def scroll(self, at, notches):
        """Turns the wheel at a point, downwards for positive notches."""
        self._turn(at, 5 if notches > 0 else 4, abs(notches))

    def scroll_sideways(self, at, notches):
        """Tilts the wheel at a point, to the right for positive notches."""
        self._turn(at, 7 if notches > 0 else 6, abs(notches))

    def _turn(self, at, button, notches):
        self.x.move(*at)
        time.sleep(0.03)
        for _ in range(notches):
            self.x.button(button, True)
            self.x.button(button, False)
            time.sleep(0.015)

    def drag(self, src, dst, steps=15, pause=0.02, hold=0.25, drop=True):
        """Drags from a node or point to a node or point. With drop=False the button stays down: see release()."""
        (x0, y0), (x1, y1) = (p.centre if isinstance(p, Node) else p for p in (src, dst))
        before = self._floating()
        self._take(x0, y0)
        for i in range(1, 6):                       # leave the drag threshold slowly
            x, y = x0 + (3 * i if x1 >= x0 else -3 * i), y0 + (2 * i if y1 >= y0 else -2 * i)
            self._pull(x, y, pause)
        self._await_picture(x, y, before)
        for i in range(1, steps + 1):
            self._pull(x0 + (x1 - x0) * i / steps, y0 + (y1 - y0) * i / steps, pause)
        time.sleep(hold)
        if drop:
            self.release()

    def _take(self, x, y):
        self.x.move(x, y)
        time.sleep(0.1)
        self.await_programs()
        self.x.button(1, True)
        time.sleep(0.1)
        self.await_programs()

    def _pull(self, x, y, pause):
        self.x.move(x, y)
        time.sleep(pause)
        self.await_programs()

    def _await_picture(self, x, y, before):
        """Waits until the dragged picture follows the pointer, as a separate window, because a program may need some time
        to paint it. Drags without a picture (of a handle) continue after the time-out."""
        end = time.monotonic() + 3
        while time.monotonic() < end and self._floating() <= before:
            for step in (1, 0):
                self._pull(x + step, y, 0.02)

    def _floating(self):
        """The windows without a window manager: menus, tooltips, dragged pictures."""
        return {window.id for app in self._apps for window in app.windows() if window.override}

    def release(self):
        self.await_programs()
        self.x.button(1, False)
        time.sleep(0.15)

    def await_programs(self):
        """Waits until every program has processed the input so far. On a busy machine, several pointer motions would
        otherwise reach it as a single one."""
        self.x.x11.XSync(self.x.d, 0)
        for app in self._apps:
            app.answer()

    # screen
    def screenshot(self, path, rect=None):
        """Saves the screen, or a rectangle, a window or a node of it, as PNG."""
        if rect is not None and not isinstance(rect, tuple):
            rect = rect.rect
        w, h, px = self.x.grab(rect)
        write_png(path, w, h, px)
        return path

    def pixel(self, x, y):
        _, _, px = self.x.grab((x, y, 1, 1))
        return px[2], px[1], px[0]

    def settle(self, quiet=0.25, timeout=10):
        """Waits until nothing has been painted for `quiet` seconds; False if that does not happen."""
        self.x.watch_damage()
        end = time.monotonic() + timeout
        while time.monotonic() < end:
            if not self.x.next_damage(quiet):
                # The program may also not have processed its events yet.
                self.await_programs()
                if not self.x.next_damage(0.05):
                    return True
        return False

    def clipboard(self, selection="clipboard"):
        p = subprocess.run(["xclip", "-o", "-selection", selection], env=self.env, timeout=5, stdout=subprocess.PIPE,
                           stderr=subprocess.DEVNULL)
        return p.stdout.decode("utf-8", "replace") if p.returncode == 0 else None

    def set_clipboard(self, data, mime=None):
        """Puts text on the clipboard, or bytes of a media type: set_clipboard(png, "image/png")."""
        subprocess.run(["xclip", "-i", "-selection", "clipboard"] + (["-t", mime] if mime else []),
                       input=data if isinstance(data, bytes) else data.encode(), env=self.env, timeout=5,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)

    def opened(self):
        """The addresses and files that programs opened in the default browser or application."""
        try:
            with open(os.path.join(self.dir, "opened", "list")) as f:
                return f.read().split("\n")[:-1]
        except FileNotFoundError:
            return []

    def tray(self, timeout=10):
        """The first status item on the bus."""
        wait_until(lambda: self.tray_host.items, timeout, 0.05, "tray item")
        return TrayItem(self.dbus(), *self.tray_host.items[-1])

    # measuring
    def latency(self, combo, rect, timeout=2.0, quiet=0.12, still=0.2):
        """Key press to change on screen: (first_ms, last_ms) of changes inside rect, or None if nothing changed.

        first_ms: to the repaint after which the rectangle looks different; last_ms: to its last change
        before the rectangle stays the same for `quiet` seconds (the end of an animation).
        """
        if rect is not None and not isinstance(rect, tuple):
            rect = rect.rect
        self.settle(still)
        syms = keysyms(combo)
        ref = self.x.grab(rect)[2]
        self.x.drain()
        t0 = time.perf_counter()
        self.x.chord(syms)
        first = last = None
        while True:
            now = time.perf_counter()
            limit = t0 + timeout if first is None else last + quiet
            if now >= limit:
                break
            if not self.x.next_damage(limit - now):
                continue
            t = time.perf_counter()
            px = self.x.grab(rect)[2]
            if px != ref:
                ref, last = px, t
                first = first or t
        if first is None:
            return None
        return round((first - t0) * 1000, 2), round((last - t0) * 1000, 2)

    # ending
    def stop(self):
        """Ends every process that the session started and removes its folder."""
        for a in self._apps:
            try:
                a.stop()
            except Exception:
                pass
        if self.tray_host:
            self.tray_host.stop()
        if self._a11y:
            self._a11y.close()
        if self.x:
            self.x.close()
            self.x = None
        for p in reversed(self._procs):
            if p.poll() is None:
                p.terminate()
        for p in reversed(self._procs):
            try:
                p.wait(3)
            except subprocess.TimeoutExpired:
                p.kill()
                p.wait()
        # grandchildren: every process that carries this session's mark in its environment
        mark = ("VELMORA_E2E_SESSION=" + self.id).encode()
        for sig in (signal.SIGTERM, signal.SIGKILL):
            left = marked(mark)
            for pid in left:
                try:
                    os.kill(pid, sig)
                except ProcessLookupError:
                    pass
            for _ in range(20):
                if not marked(mark):
                    break
                time.sleep(0.05)
        if not self.keep:
            shutil.rmtree(self.dir, ignore_errors=True)


def _generated():
    try:
        listed = subprocess.run(["locale", "-a"], stdout=subprocess.PIPE, text=True).stdout
        return {line.split(".")[0].strip().lower() for line in listed.split("\n")}
    except OSError:
        return set()
