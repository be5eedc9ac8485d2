"""Connections to D-Bus."""
import gi
gi.require_version("Gio", "2.0")
from gi.repository import Gio  # noqa: E402


def connected_to(address):
    """A connection to the bus at an address. Its end does not end this process."""
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
    connection.set_exit_on_close(False)
    return connection
