"""The accessibility tree of a program: AT-SPI objects, read and controlled over D-Bus."""
import re
from functools import cached_property

import gi
gi.require_version("Gio", "2.0")
gi.require_version("GLib", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

from . import calls
from .bus import connected_to
from .waiting import DriverError


STATES = ("invalid active armed busy checked collapsed defunct editable enabled expandable expanded focusable "
          "focused has-tooltip horizontal iconified modal multi-line multiselectable opaque pressed resizable "
          "selectable selected sensitive showing single-line stale transient vertical visible "
          "manages-descendants indeterminate required truncated animated invalid-entry supports-autocompletion "
          "selectable-text is-default visited checkable has-popup read-only").split()
PROPERTIES = "org.freedesktop.DBus.Properties"
_A = "org.a11y.atspi."
EXTENTS = (_A + "Component", "GetExtents", GLib.Variant("(u)", (0,)))
# The calls that read every object of a tree, and the one that reads the position of an object.
READ = (calls.Call(_A + "Accessible", "GetRoleName", calls.text_at),
        calls.Call(PROPERTIES, "Get", calls.variant_text, "ss", calls.strings(_A + "Accessible", "Name")),
        calls.Call(_A + "Accessible", "GetState", calls.numbers),
        calls.Call(_A + "Accessible", "GetChildren", calls.addresses))
READ_PLACE = calls.Call(_A + "Component", "GetExtents", calls.place, "u", bytes(4))


def prop(iface, name):
    """The call that reads a property."""
    return PROPERTIES, "Get", GLib.Variant("(ss)", (_A + iface, name))


class Node:
    """An accessible object with the role, name and states that it had when the tree was read. Other values are read at
    their first use."""

    def __init__(self, a11y, bus, path, parent=None, depth=0):
        self.a11y, self.bus, self.path, self.parent, self.depth = a11y, bus, path, parent, depth
        self.children = []
        self.role = self.name = ""
        self.states = frozenset()

    @cached_property
    def description(self):
        return self._asked("Accessible", *prop("Accessible", "Description"), default="")

    @cached_property
    def interfaces(self):
        names = self._asked("Accessible", _A + "Accessible", "GetInterfaces", None, default=())
        return tuple(name.rsplit(".", 1)[-1] for name in names)

    @cached_property
    def text(self):
        text = self._asked("Text", _A + "Text", "GetText", GLib.Variant("(ii)", (0, -1)))
        return text and text.replace("\u2029", "\n")

    @cached_property
    def value(self):
        return self._asked("Value", *prop("Value", "CurrentValue"))

    @cached_property
    def actions(self):
        return tuple(a[0] for a in self._asked("Action", _A + "Action", "GetActions", None, default=()))

    @cached_property
    def rect(self):
        rect = self._asked("Component", *EXTENTS)
        return rect and tuple(rect)

    def _asked(self, interface, *call, default=None):
        """The first value of an answer; the default if the object no longer exists or does not have the interface."""
        if interface not in ("Accessible", "Component") and interface not in self.interfaces:
            return default
        try:
            return self.a11y.call(self.bus, self.path, *call)[0]
        except DriverError:
            return default

    def _call(self, iface, method, args=None, reply=None):
        return self.a11y.call(self.bus, self.path, _A + iface, method, args, reply)

    def refresh(self):
        """Reads the values of the node again, but not its children."""
        for asked in ("description", "interfaces", "text", "value", "actions", "rect"):
            self.__dict__.pop(asked, None)
        self.a11y.read([self])
        return self

    def awake(self):
        """Sends the program a call and waits for the answer."""
        self._call("Accessible", "GetRoleName")

    # properties
    @property
    def showing(self):
        return "showing" in self.states

    def walk(self):
        yield self
        for c in self.children:
            yield from c.walk()

    def line(self):
        p = [self.role, repr(self.name)]
        if self.description:
            p.append("desc=%r" % self.description)
        if self.text:
            p.append("text=%r" % self.text)
        if self.value is not None:
            p.append("value=%g" % self.value)
        if self.actions:
            p.append("actions=" + "/".join(self.actions))
        keep = self.states - {"enabled", "sensitive", "visible", "showing", "opaque"}
        if keep:
            p.append("[" + ",".join(sorted(keep)) + "]")
        if self.states and not self.states & {"enabled", "sensitive"}:
            p.append("(disabled)")
        if self.states and "showing" not in self.states:
            p.append("(hidden)")
        return "  " * self.depth + " ".join(p)

    def dump(self, rects=False):
        return "\n".join(n.line() + (" %s" % (n.rect,) if rects else "") for n in self.walk())

    def all(self, role=None, name=None, text=None, description=None, states=(), showing=None, where=None,
            by_place=False):
        """Nodes below (and with) this one; role, name, text and description are regular expressions, searched.

        by_place sorts by position on screen, top to bottom and then left to right, because the order of rows in the
        tree is not defined.
        """
        def ok(n):
            return ((role is None or re.search(role, n.role)) and (name is None or re.search(name, n.name))
                    and set(states) <= n.states and (showing is None or n.showing == showing)
                    and (text is None or re.search(text, n.text or ""))
                    and (description is None or re.search(description, n.description)))
        got = [n for n in self.walk() if ok(n)]
        if where or by_place:
            self.a11y.read_places(got)
            # An object without a position has been hidden since the tree was read.
            got = [n for n in got if (n.rect or not showing) and (where is None or where(n))]
        return sorted(got, key=lambda n: (n.rect or (0, 0))[1::-1]) if by_place else got

    def find(self, **kw):
        got = self.all(**kw)
        if not got:
            raise DriverError("no node with %s" % kw)
        return got[0]

    # actions
    @property
    def centre(self):
        x, y, w, h = self.rect
        return x + w // 2, y + h // 2

    def act(self, name):
        """Invokes the accessible action of that name (any case)."""
        names = [a.lower() for a in self.actions]
        if name.lower() not in names:
            raise DriverError("%s has no action %r, only %s" % (self.line().strip(), name, self.actions))
        return self._call("Action", "DoAction", GLib.Variant("(i)", (names.index(name.lower()),)))[0]

    def press(self):
        for a in ("press", "toggle", "showmenu"):
            if a in [x.lower() for x in self.actions]:
                return self.act(a)
        raise DriverError("%s cannot be pressed: %s" % (self.line().strip(), self.actions))

    def grab_focus(self):
        return self._call("Component", "GrabFocus")[0]

    def set_text(self, text):
        return self._call("EditableText", "SetTextContents", GLib.Variant("(s)", (text,)))[0]

    def set_value(self, v):
        self.a11y.call(self.bus, self.path, PROPERTIES, "Set",
                       GLib.Variant("(ssv)", (_A + "Value", "CurrentValue", GLib.Variant("d", v))), None)

    def click(self, button=1, count=1, mods=(), at=None):
        self.a11y.session.click(at or self.centre, button, count, mods)

    def hover(self):
        self.a11y.session.move(*self.centre)

    def __repr__(self):
        return "<Node %s>" % self.line().strip()


class A11y:
    def __init__(self, session, timeout_ms=5000):
        self.session, self.timeout = session, timeout_ms
        bus = session.dbus()
        answer = bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None, 0, 10000, None)
        self.conn = connected_to(answer.unpack()[0])
        self.batches = calls.Connection(answer.unpack()[0], timeout_ms / 1000)

    def close(self):
        self.batches.close()

    def call(self, bus, path, iface, method, args=None, reply=None):
        try:
            answer = self.conn.call_sync(bus, path, iface, method, args, reply, Gio.DBusCallFlags.NONE, self.timeout, None)
            return answer.unpack()
        except GLib.Error as e:
            raise DriverError("at-spi %s.%s on %s: %s" % (iface, method, path, e.message))

    def applications(self):
        root = "/org/a11y/atspi/accessible/root"
        return [(b, p) for b, p in self.call("org.a11y.atspi.Registry", root, _A + "Accessible", "GetChildren")[0]]

    def pid_of(self, bus):
        return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                         "GetConnectionUnixProcessID", GLib.Variant("(s)", (bus,)))[0]

    def read(self, nodes):
        """Fills role, name and states of many nodes in one round of calls, and returns their children's addresses."""
        got = self.batches.batch([(n.bus, n.path, call) for n in nodes for call in READ])
        kids = []
        for k, n in enumerate(nodes):
            role, name, state, children = got[k * len(READ):(k + 1) * len(READ)]
            n.role, n.name = role or "", name or ""
            bits = sum(w << (32 * i) for i, w in enumerate(state or ()))
            n.states = frozenset(s for i, s in enumerate(STATES) if bits >> i & 1)
            kids.append([c for c in children or () if not c[1].endswith("/null")])
        return kids

    def read_places(self, nodes):
        """Reads the positions of many nodes in one round of calls."""
        for n, found in zip(nodes, self.batches.batch([(n.bus, n.path, READ_PLACE) for n in nodes])):
            n.rect = found

    def tree(self, bus, path, max_nodes=5000, showing_only=False):
        root = Node(self, bus, path)
        level, count = [root], 1
        while level:
            below = []
            for n, kids in zip(level, self.read(level)):
                if showing_only and n.depth > 1 and not n.showing:
                    n.parent.children.remove(n)
                    continue
                for b, p in kids:
                    if count >= max_nodes:
                        break
                    count += 1
                    c = Node(self, b, p, n, n.depth + 1)
                    n.children.append(c)
                    below.append(c)
            level = below
        if not root.role:
            raise DriverError("the accessibility tree cannot be read")
        return root
