"""The settings of a desktop portal on the session bus, as a test sets them."""
import threading

import gi
gi.require_version("Gio", "2.0")
gi.require_version("GLib", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

from .bus import connected_to
from .waiting import DriverError

SETTINGS = "org.freedesktop.portal.Settings"
PATH = "/org/freedesktop/portal/desktop"

_XML = """<node><interface name="org.freedesktop.portal.Settings">
<method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/></method>
<signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal></interface></node>"""


class SettingsPortal:
    """Answers reads on its own thread and signals changes. `values` is keyed by group and key."""

    def __init__(self, address, values):
        self._values, self._ready = dict(values), threading.Event()
        self._address = address
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()
        if not self._ready.wait(10):
            raise DriverError("the portal did not start")

    def _run(self):
        context = GLib.MainContext.new()
        context.push_thread_default()
        self._bus = connected_to(self._address)
        info = Gio.DBusNodeInfo.new_for_xml(_XML).interfaces[0]
        self._bus.register_object(PATH, info, self._read, None, None)
        self._bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                            GLib.Variant("(su)", ("org.freedesktop.portal.Desktop", 4)), None, 0, 5000, None)
        self._loop = GLib.MainLoop.new(context, False)
        self._ready.set()
        self._loop.run()
        context.pop_thread_default()

    def _read(self, bus, sender, path, interface, method, arguments, answer):
        value = self._values.get(arguments.unpack())
        if value is None:
            answer.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")
        else:
            # The answer of Read wraps its value in two variants.
            answer.return_value(GLib.Variant("(v)", (GLib.Variant("v", value),)))

    def change(self, group, key, value):
        self._values[(group, key)] = value
        self._bus.emit_signal(None, PATH, SETTINGS, "SettingChanged", GLib.Variant("(ssv)", (group, key, value)))
        self._bus.flush_sync(None)

    def stop(self):
        self._loop.quit()
        self._thread.join(2)
