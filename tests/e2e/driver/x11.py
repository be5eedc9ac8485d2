"""X11 through ctypes: windows, pixels, pointer, keys, repaints."""
import ctypes as C
import select
import struct
import time
import zlib

from .waiting import DriverError


class _XErrorEvent(C.Structure):
    _fields_ = [("type", C.c_int), ("display", C.c_void_p), ("resourceid", C.c_ulong),
                ("serial", C.c_ulong), ("error_code", C.c_ubyte),
                ("request_code", C.c_ubyte), ("minor_code", C.c_ubyte)]


class _XImage(C.Structure):
    _fields_ = [("width", C.c_int), ("height", C.c_int), ("xoffset", C.c_int),
                ("format", C.c_int), ("data", C.c_void_p), ("byte_order", C.c_int),
                ("bitmap_unit", C.c_int), ("bitmap_bit_order", C.c_int),
                ("bitmap_pad", C.c_int), ("depth", C.c_int), ("bytes_per_line", C.c_int),
                ("bits_per_pixel", C.c_int)]


class _XWindowAttributes(C.Structure):
    _fields_ = [("x", C.c_int), ("y", C.c_int), ("width", C.c_int), ("height", C.c_int),
                ("border_width", C.c_int), ("depth", C.c_int), ("visual", C.c_void_p),
                ("root", C.c_ulong), ("klass", C.c_int), ("bit_gravity", C.c_int),
                ("win_gravity", C.c_int), ("backing_store", C.c_int),
                ("backing_planes", C.c_ulong), ("backing_pixel", C.c_ulong),
                ("save_under", C.c_int), ("colormap", C.c_ulong),
                ("map_installed", C.c_int), ("map_state", C.c_int),
                ("all_event_masks", C.c_long), ("your_event_mask", C.c_long),
                ("do_not_propagate_mask", C.c_long), ("override_redirect", C.c_int),
                ("screen", C.c_void_p)]


_X = {}


def _xlibs():
    if _X:
        return _X
    x11, xtst, xdmg = (C.CDLL(n) for n in ("libX11.so.6", "libXtst.so.6", "libXdamage.so.1"))

    def sig(lib, name, res, *args):
        f = getattr(lib, name)
        f.restype, f.argtypes = res, args
    p, ul, i, u = C.c_void_p, C.c_ulong, C.c_int, C.c_uint
    sig(x11, "XOpenDisplay", p, C.c_char_p)
    sig(x11, "XCloseDisplay", i, p)
    sig(x11, "XDefaultRootWindow", ul, p)
    sig(x11, "XConnectionNumber", i, p)
    sig(x11, "XPending", i, p)
    sig(x11, "XNextEvent", i, p, p)
    sig(x11, "XSync", i, p, i)
    sig(x11, "XFlush", i, p)
    sig(x11, "XFree", i, p)
    sig(x11, "XInternAtom", ul, p, C.c_char_p, i)
    sig(x11, "XCreateSimpleWindow", ul, p, ul, i, i, u, u, u, ul, ul)
    sig(x11, "XSetSelectionOwner", i, p, ul, ul, ul)
    sig(x11, "XStringToKeysym", ul, C.c_char_p)
    sig(x11, "XKeysymToKeycode", C.c_ubyte, p, ul)
    sig(x11, "XDisplayKeycodes", i, p, C.POINTER(i), C.POINTER(i))
    sig(x11, "XGetKeyboardMapping", C.POINTER(ul), p, C.c_ubyte, i, C.POINTER(i))
    sig(x11, "XChangeKeyboardMapping", i, p, i, i, C.POINTER(ul), i)
    sig(x11, "XGetImage", C.POINTER(_XImage), p, ul, i, i, u, u, ul, i)
    sig(x11, "XDestroyImage", i, C.POINTER(_XImage))
    sig(x11, "XGetWindowAttributes", i, p, ul, C.POINTER(_XWindowAttributes))
    sig(x11, "XQueryTree", i, p, ul, C.POINTER(ul), C.POINTER(ul), C.POINTER(C.POINTER(ul)), C.POINTER(u))
    sig(x11, "XTranslateCoordinates", i, p, ul, ul, i, i, C.POINTER(i), C.POINTER(i), C.POINTER(ul))
    sig(x11, "XGetWindowProperty", i, p, ul, ul, C.c_long, C.c_long, i, ul, C.POINTER(ul),
        C.POINTER(i), C.POINTER(ul), C.POINTER(ul), C.POINTER(p))
    sig(x11, "XQueryPointer", i, p, ul, C.POINTER(ul), C.POINTER(ul), C.POINTER(i), C.POINTER(i),
        C.POINTER(i), C.POINTER(i), C.POINTER(u))
    sig(xtst, "XTestFakeKeyEvent", i, p, u, i, ul)
    sig(xtst, "XTestFakeButtonEvent", i, p, u, i, ul)
    sig(xtst, "XTestFakeMotionEvent", i, p, i, i, i, ul)
    sig(xdmg, "XDamageQueryExtension", i, p, C.POINTER(i), C.POINTER(i))
    sig(xdmg, "XDamageCreate", ul, p, ul, i)
    handler_t = C.CFUNCTYPE(C.c_int, p, C.POINTER(_XErrorEvent))
    handler = handler_t(lambda d, e: 0)        # a window may disappear at any time
    x11.XSetErrorHandler.argtypes = [handler_t]
    x11.XSetErrorHandler.restype = p
    x11.XSetErrorHandler(handler)
    _X.update(x11=x11, xtst=xtst, xdmg=xdmg, handler=handler)
    return _X


def write_png(path, width, height, bgrx):
    """Writes 32-bit BGRX pixel rows as an RGB PNG."""
    rgb = bytearray(width * height * 3)
    rgb[0::3], rgb[1::3], rgb[2::3] = bgrx[2::4], bgrx[1::4], bgrx[0::4]
    stride = width * 3
    raw = b"".join(b"\0" + rgb[y * stride:(y + 1) * stride] for y in range(height))

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
                + chunk(b"IDAT", zlib.compress(raw, 6)) + chunk(b"IEND", b""))


class Window:
    """The properties of a mapped top-level window at one moment."""

    def __init__(self, **kw):
        self.__dict__.update(kw)

    @property
    def rect(self):
        return (self.x, self.y, self.width, self.height)

    def __repr__(self):
        kinds = "".join(" " + kind for kind in (["override"] if self.override else []) + self.kinds)
        return "<Window 0x%x %r pid=%s %dx%d+%d+%d%s>" % (self.id, self.title, self.pid, *self.rect[2:], *self.rect[:2],
                                                          kinds)


class XDisplay:
    """One connection to the X server: windows, pixels, pointer, keys, damage."""

    def __init__(self, name):
        libs = _xlibs()
        self.x11, self.xtst, self.xdmg = libs["x11"], libs["xtst"], libs["xdmg"]
        self.name = name
        self.d = self.x11.XOpenDisplay(name.encode())
        if not self.d:
            raise DriverError("cannot open display " + name)
        self.root = self.x11.XDefaultRootWindow(self.d)
        self.fd = self.x11.XConnectionNumber(self.d)
        self._atoms = {}
        self._damage, self._taken = None, []
        self._event = C.create_string_buffer(256)
        a = self._attrs(self.root)
        self.size = (a.width, a.height)

    def close(self):
        if self.d:
            self.x11.XCloseDisplay(self.d)
            self.d = None

    def atom(self, name):
        if name not in self._atoms:
            self._atoms[name] = self.x11.XInternAtom(self.d, name.encode(), 0)
        return self._atoms[name]

    def _attrs(self, win):
        a = _XWindowAttributes()
        return a if self.x11.XGetWindowAttributes(self.d, win, C.byref(a)) else None

    def prop(self, win, name):
        """A window property: bytes (8 bit) or a list of integers (32 bit), or None."""
        typ, fmt = C.c_ulong(), C.c_int()
        n, after, data = C.c_ulong(), C.c_ulong(), C.c_void_p()
        rc = self.x11.XGetWindowProperty(self.d, win, self.atom(name), 0, 65536, 0, 0, C.byref(typ), C.byref(fmt),
                                         C.byref(n), C.byref(after), C.byref(data))
        if rc != 0 or not data:
            return None
        try:
            if fmt.value == 8:
                return C.string_at(data, n.value)
            if fmt.value == 32:
                return list(C.cast(data, C.POINTER(C.c_ulong))[:n.value])
            return None
        finally:
            self.x11.XFree(data)

    def _children(self, win):
        r, par, kids, n = C.c_ulong(), C.c_ulong(), C.POINTER(C.c_ulong)(), C.c_uint()
        if not self.x11.XQueryTree(self.d, win, C.byref(r), C.byref(par), C.byref(kids), C.byref(n)):
            return []
        out = kids[:n.value]
        if n.value:
            self.x11.XFree(kids)
        return out

    def windows(self, pid=None):
        """Mapped client windows (managed, or override-redirect with a pid), bottom to top."""
        out = []

        def visit(win, depth):
            a = self._attrs(win)
            if a is None or a.map_state != 2 or a.klass == 2:
                return
            wpid = self.prop(win, "_NET_WM_PID")
            if wpid:
                if (pid is None or wpid[0] == pid) and a.width > 4 and a.height > 4:
                    x, y, w = C.c_int(), C.c_int(), C.c_ulong()
                    self.x11.XTranslateCoordinates(self.d, win, self.root, 0, 0, C.byref(x), C.byref(y), C.byref(w))
                    title = self.prop(win, "_NET_WM_NAME") or self.prop(win, "WM_NAME") or b""
                    kinds = [k for k in ("NORMAL", "DIALOG", "POPUP_MENU", "DROPDOWN_MENU", "TOOLTIP", "UTILITY", "DND")
                             if self.atom("_NET_WM_WINDOW_TYPE_" + k) in (self.prop(win, "_NET_WM_WINDOW_TYPE") or [])]
                    title = title.decode("utf-8", "replace") if isinstance(title, bytes) else ""
                    out.append(Window(id=win, pid=wpid[0], title=title, x=x.value, y=y.value, width=a.width, height=a.height,
                                      override=bool(a.override_redirect), kinds=kinds))
                return
            if depth < 3:
                for k in self._children(win):
                    visit(k, depth + 1)
        for k in self._children(self.root):
            visit(k, 0)
        return out

    def active_window(self):
        v = self.prop(self.root, "_NET_ACTIVE_WINDOW")
        return v[0] if v else 0

    def grab(self, rect=None):
        """Pixels of a screen rectangle: (width, height, BGRX bytes)."""
        x, y, w, h = rect or (0, 0) + self.size
        x2, y2 = min(x + w, self.size[0]), min(y + h, self.size[1])
        x, y = max(0, x), max(0, y)
        w, h = x2 - x, y2 - y
        if w <= 0 or h <= 0:
            raise DriverError("rectangle off screen")
        img = self.x11.XGetImage(self.d, self.root, x, y, w, h, 0xFFFFFFFF, 2)
        if not img:
            raise DriverError("XGetImage failed")
        try:
            im = img.contents
            data = C.string_at(im.data, im.bytes_per_line * im.height)
            if im.bits_per_pixel != 32:
                raise DriverError("screen is not 32 bits per pixel")
            return w, h, data
        finally:
            self.x11.XDestroyImage(img)

    def claim_composition(self):
        """Announces that the windows are composed, as a compositor does. They are still drawn as without one."""
        owner = self.x11.XCreateSimpleWindow(self.d, self.root, 0, 0, 1, 1, 0, 0, 0)
        self.x11.XSetSelectionOwner(self.d, self.atom("_NET_WM_CM_S0"), owner, 0)
        self.x11.XSync(self.d, 0)

    def move(self, x, y):
        self.xtst.XTestFakeMotionEvent(self.d, -1, int(x), int(y), 0)
        self.x11.XSync(self.d, 0)

    def button(self, n, down):
        self.xtst.XTestFakeButtonEvent(self.d, n, 1 if down else 0, 0)
        self.x11.XSync(self.d, 0)

    def keycode(self, keysym_name):
        ks = self.x11.XStringToKeysym(keysym_name.encode())
        code = self.x11.XKeysymToKeycode(self.d, ks) if ks else 0
        if not code:
            raise DriverError("no key for " + keysym_name)
        return code

    def chord(self, names):
        """Presses and releases keys given by X keysym names, modifiers first."""
        codes = [self.keycode(n) for n in names]
        for c in codes:
            self.xtst.XTestFakeKeyEvent(self.d, c, 1, 0)
        for c in reversed(codes):
            self.xtst.XTestFakeKeyEvent(self.d, c, 0, 0)
        self.x11.XFlush(self.d)

    def _layout(self):
        """The keyboard map: {keysym: (keycode, shifted)}, and the keycodes without keysyms."""
        lo, hi, per = C.c_int(), C.c_int(), C.c_int()
        self.x11.XDisplayKeycodes(self.d, C.byref(lo), C.byref(hi))
        n = hi.value - lo.value + 1
        m = self.x11.XGetKeyboardMapping(self.d, lo.value, n, C.byref(per))
        where, spare = {}, []
        for k in range(n):
            row = m[k * per.value:(k + 1) * per.value]
            if not any(row):
                spare.append(lo.value + k)
            for level in (0, 1):
                if level < len(row) and row[level]:
                    where.setdefault(row[level], (lo.value + k, bool(level)))
        self.x11.XFree(m)
        return where, spare

    def type_text(self, text, delay):
        """Types any text. Characters that the layout lacks are put on spare keys first, all at once, since a program
        that reads the keyboard map late would lose characters if the map changed between two key presses."""
        codes = {"\n": 0xff0d, "\t": 0xff09, "\b": 0xff08, "\x1b": 0xff1b}
        syms = [codes.get(c) or (ord(c) if 0x20 <= ord(c) < 0x7f or 0xa0 <= ord(c) < 0x100 else 0x1000000 | ord(c))
                for c in text]
        at = 0
        shift = self.keycode("Shift_L")
        while at < len(syms):
            where, spare = self._layout()
            spare, end, new = spare[:-2], at, []
            while end < len(syms):                        # the longest run that fits on the spare keys
                if syms[end] not in where and syms[end] not in new:
                    if len(new) == len(spare):
                        break
                    new.append(syms[end])
                end += 1
            if end == at:                                 # no spare key left: clear those in use
                empty = (C.c_ulong * 2)(0, 0)
                for k in self._taken:
                    self.x11.XChangeKeyboardMapping(self.d, k, 2, empty, 1)
                self._taken = []
                self.x11.XSync(self.d, 0)
                time.sleep(0.3)
                continue
            for k, ks in zip(spare, new):
                self.x11.XChangeKeyboardMapping(self.d, k, 2, (C.c_ulong * 2)(ks, ks), 1)
                where[ks] = (k, False)
                self._taken.append(k)
            self.x11.XSync(self.d, 0)
            if new:
                time.sleep(0.4)
            for ks in syms[at:end]:
                k, up = where[ks]
                if up:
                    self.xtst.XTestFakeKeyEvent(self.d, shift, 1, 0)
                self.xtst.XTestFakeKeyEvent(self.d, k, 1, 0)
                self.xtst.XTestFakeKeyEvent(self.d, k, 0, 0)
                if up:
                    self.xtst.XTestFakeKeyEvent(self.d, shift, 0, 0)
                self.x11.XSync(self.d, 0)
                time.sleep(delay)
            if end < len(syms):
                time.sleep(0.3)
            at = end

    def watch_damage(self):
        if self._damage is None:
            ev, er = C.c_int(), C.c_int()
            if not self.xdmg.XDamageQueryExtension(self.d, C.byref(ev), C.byref(er)):
                raise DriverError("no DAMAGE extension")
            self._damage_event = ev.value
            self._damage = self.xdmg.XDamageCreate(self.d, self.root, 0)   # raw rectangles
            self.x11.XSync(self.d, 0)
        self.drain()

    def drain(self):
        self.x11.XSync(self.d, 0)
        while self.x11.XPending(self.d):
            self.x11.XNextEvent(self.d, self._event)

    def next_damage(self, timeout):
        """Waits for a repaint anywhere on the screen: True, or False on time-out."""
        end = time.perf_counter() + timeout
        while True:
            while self.x11.XPending(self.d):
                self.x11.XNextEvent(self.d, self._event)
                if C.cast(self._event, C.POINTER(C.c_int))[0] == self._damage_event:
                    return True
            left = end - time.perf_counter()
            if left <= 0 or not select.select([self.fd], [], [], left)[0]:
                return False
