"""A system tray on the session bus, and the status items in it."""
import re
import threading

import gi
gi.require_version("Gio", "2.0")
gi.require_version("GLib", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

from .a11y import PROPERTIES
from .bus import connected_to
from .waiting import DriverError, wait_until


_SNW_XML = """<node><interface name="org.kde.StatusNotifierWatcher">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
<signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
<signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
<signal name="StatusNotifierHostRegistered"/></interface></node>"""


class TrayHost:
    """A StatusNotifierWatcher and host on the session bus, so that programs find a system tray."""

    def __init__(self, address):
        self.items, self._ready = [], threading.Event()
        self._address = address
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()
        if not self._ready.wait(10):
            raise DriverError("tray host did not start")

    def _run(self):
        ctx = GLib.MainContext.new()
        ctx.push_thread_default()
        self.conn = connected_to(self._address)
        info = Gio.DBusNodeInfo.new_for_xml(_SNW_XML).interfaces[0]
        self.conn.register_object("/StatusNotifierWatcher", info, self._method, self._prop, None)
        self.conn.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                            GLib.Variant("(su)", ("org.kde.StatusNotifierWatcher", 4)), None, 0, 5000, None)
        bus = "org.freedesktop.DBus"
        self.conn.signal_subscribe(bus, bus, "NameOwnerChanged", "/org/freedesktop/DBus", None, Gio.DBusSignalFlags.NONE,
                                   self._owner)
        self._loop = GLib.MainLoop.new(ctx, False)
        self._ready.set()
        self._loop.run()
        ctx.pop_thread_default()

    def _owner(self, conn, sender, path, iface, signal_name, args):
        name, _, new = args.unpack()
        if not new:
            self.items = [i for i in self.items if i[0] != name]

    def _method(self, conn, sender, path, iface, method, args, inv):
        if method == "RegisterStatusNotifierItem":
            arg = args.unpack()[0]
            service, obj = (sender, arg) if arg.startswith("/") else (sender, "/StatusNotifierItem")
            self.items.append((service, obj))
            conn.emit_signal(None, path, iface, "StatusNotifierItemRegistered", GLib.Variant("(s)", (service + obj,)))
        inv.return_value(None)

    def _prop(self, conn, sender, path, iface, prop):
        if prop == "RegisteredStatusNotifierItems":
            return GLib.Variant("as", [s + o for s, o in self.items])
        return GLib.Variant("b", True) if prop == "IsStatusNotifierHostRegistered" else GLib.Variant("i", 0)

    def stop(self):
        self._loop.quit()
        self._thread.join(2)


class TrayItem:
    """One status item: its properties, its menu as a list, and clicks."""

    def __init__(self, bus, service, path):
        self.bus, self.service, self.path = bus, service, path

    def _call(self, path, iface, method, args=None):
        return self.bus.call_sync(self.service, path, iface, method, args, None, 0, 5000, None).unpack()

    def props(self):
        return self._call(self.path, PROPERTIES, "GetAll", GLib.Variant("(s)", ("org.kde.StatusNotifierItem",)))[0]

    def activate(self):
        self._call(self.path, "org.kde.StatusNotifierItem", "Activate", GLib.Variant("(ii)", (0, 0)))

    def menu(self):
        """Entries in order: dicts with id, label, enabled, visible, type, icon (PNG or None), shortcut, toggle, children."""
        m = self.props().get("Menu")
        if not m or m == "/NO_DBUSMENU":
            return []
        self._menu = m
        try:
            self._call(m, "com.canonical.dbusmenu", "AboutToShow", GLib.Variant("(i)", (0,)))
        except GLib.Error:
            pass
        _, root = self._call(m, "com.canonical.dbusmenu", "GetLayout", GLib.Variant("(iias)", (0, -1, [])))

        def conv(t):
            i, p, kids = t
            icon = p.get("icon-data")
            return dict(id=i, label=p.get("label", ""), enabled=p.get("enabled", True), visible=p.get("visible", True),
                        type=p.get("type", "standard"), icon=bytes(icon) if icon else None,
                        shortcut=p.get("shortcut"), toggle=p.get("toggle-state"), children=[conv(k) for k in kids])
        return conv(root)["children"]

    def choose(self, label):
        """Clicks the first entry whose label matches the regular expression. Waits for it, because the menu may be changing."""
        def flat(es):
            for e in es:
                yield e
                yield from flat(e["children"])

        def entry():
            return next((e for e in flat(self.menu()) if re.search(label, e["label"])), None)
        found = wait_until(entry, 5, 0.1, "the tray entry %r" % label)
        self._call(self._menu, "com.canonical.dbusmenu", "Event",
                   GLib.Variant("(isvu)", (found["id"], "clicked", GLib.Variant("i", 0), 0)))
        return found
