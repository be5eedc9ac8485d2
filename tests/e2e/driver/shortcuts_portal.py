"""The global shortcuts of a desktop portal on the session bus. It answers when a test says so."""
import threading

import gi
gi.require_version("Gio", "2.0")
gi.require_version("GLib", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

from .bus import connected_to
from .waiting import DriverError, wait_until

NAME, PATH = "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop"
SHORTCUTS = "org.freedesktop.portal.GlobalShortcuts"
REQUEST, SESSION = "org.freedesktop.portal.Request", "org.freedesktop.portal.Session"
REFUSED = "org.freedesktop.portal.Error.NotAllowed"

# The values of a response.
DONE, CANCELLED, FAILED = range(3)

_XML = """<node><interface name="org.freedesktop.portal.GlobalShortcuts">
<method name="CreateSession"><arg type="a{sv}" direction="in"/><arg type="o" direction="out"/></method>
<method name="BindShortcuts"><arg type="o" direction="in"/><arg type="a(sa{sv})" direction="in"/>
<arg type="s" direction="in"/><arg type="a{sv}" direction="in"/><arg type="o" direction="out"/></method>
<method name="ConfigureShortcuts"><arg type="o" direction="in"/><arg type="s" direction="in"/>
<arg type="a{sv}" direction="in"/></method>
<property name="version" type="%s" access="read"/></interface>
<interface name="org.freedesktop.portal.Request"><method name="Close"/></interface>
<interface name="org.freedesktop.portal.Session"><method name="Close"/></interface></node>"""


class PortalCall:
    """A call that the program has made: the name of the method, its arguments, and the paths that belong to it."""

    def __init__(self, method, arguments, caller):
        self.method, self.arguments, self.caller = method, arguments, caller
        options = arguments[-1]
        self.request = self._path("request", options.get("handle_token"))
        self.session = arguments[0] if len(arguments) > 1 else self._path("session", options.get("session_handle_token"))

    def _path(self, kind, token):
        return "%s/%s/%s/%s" % (PATH, kind, self.caller[1:].replace(".", "_"), token)


class ShortcutsPortal:
    """Serves on its own thread. `version` is a GLib.Variant, which may be one that no portal has."""

    def __init__(self, address, version=GLib.Variant("u", 1)):
        self.calls, self.closed, self.refuses = [], [], False
        # The name on the bus of the program that has asked for the version.
        self.client = None
        self._address, self._version, self._ready = address, version, threading.Event()
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()
        if not self._ready.wait(10):
            raise DriverError("the portal did not start")

    def _run(self):
        context = GLib.MainContext.new()
        context.push_thread_default()
        self._bus = connected_to(self._address)
        node = Gio.DBusNodeInfo.new_for_xml(_XML % self._version.get_type_string())
        self._closable = node.interfaces[1:]
        self._bus.register_object(PATH, node.interfaces[0], self._answer, self._tell_version, None)
        bus = "org.freedesktop.DBus"
        self._bus.call_sync(bus, "/org/freedesktop/DBus", bus, "RequestName", GLib.Variant("(su)", (NAME, 4)), None, 0,
                            5000, None)
        self._loop = GLib.MainLoop.new(context, False)
        self._ready.set()
        self._loop.run()
        self._bus.close_sync(None)
        context.pop_thread_default()

    def _tell_version(self, bus, sender, path, interface, name):
        self.client = sender
        return self._version

    def _answer(self, bus, sender, path, interface, method, arguments, answer):
        call = PortalCall(method, arguments.unpack(), sender)
        if self.refuses:
            answer.return_dbus_error(REFUSED, "An app id is required")
        elif method == "ConfigureShortcuts":
            answer.return_value(None)
        else:
            self._serve_close(call.request, 0)
            if method == "CreateSession":
                self._serve_close(call.session, 1)
            answer.return_value(GLib.Variant("(o)", (call.request,)))
        self.calls.append(call)

    def _serve_close(self, path, interface):
        def close(bus, sender, path, interface, method, arguments, answer):
            answer.return_value(None)
            self.closed.append(path)
        self._bus.register_object(path, self._closable[interface], close, None, None)

    def call(self, number):
        """Waits for the call with this number, counted from 1."""
        wait_until(lambda: len(self.calls) >= number, 20, 0.02, "call %d of the portal" % number)
        return self.calls[number - 1]

    def await_client(self):
        """Waits until everything that was sent has arrived: the bus keeps the order of the messages."""
        wait_until(lambda: self.client, 20, 0.02, "a program that asks for the version")
        self._bus.call_sync(self.client, "/", "org.freedesktop.DBus.Peer", "Ping", None, None, 0, 20_000, None)

    def send(self, call, path, interface, signal, values):
        """Sends a signal with any values to the program."""
        self._bus.emit_signal(call.caller, path, interface, signal, values)
        self._bus.flush_sync(None)

    def respond(self, call, response, results=None):
        """Ends the request of a call."""
        self.send(call, call.request, REQUEST, "Response", GLib.Variant("(ua{sv})", (response, results or {})))

    def grant(self, create):
        """Ends a call of CreateSession with success."""
        self.respond(create, DONE, {"session_handle": GLib.Variant("s", create.session)})

    def bind(self, call, keys):
        """Ends a call of BindShortcuts with success. `keys` has the keys that the user chose, by the shortcut's id."""
        bound = [(name, {"trigger_description": GLib.Variant("s", text)}) for name, text in keys.items()]
        self.respond(call, DONE, {"shortcuts": GLib.Variant("a(sa{sv})", bound)})

    def activate(self, bound, shortcut, token=None):
        """The user presses the keys of a shortcut that the call `bound` has bound."""
        options = {"activation_token": GLib.Variant("s", token)} if token else {}
        self.send(bound, PATH, SHORTCUTS, "Activated",
                  GLib.Variant("(osta{sv})", (bound.session, shortcut, 4711, options)))

    def stop(self):
        """Ends the portal's process, as far as the bus can tell."""
        self._loop.quit()
        self._thread.join(10)
