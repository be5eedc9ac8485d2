"""The program on desktops that lack a service: a portal, status items, a keyring, or the session bus itself."""
import re
import types

from driver import wait_until
from site_case import Simulator
from support import ISSUE, RUN, WindowCase, write_preferences

NO_KEYRING = ("Aucun trousseau n'est disponible pour garder le token. Lance celui de ton bureau (GNOME Keyring ou KWallet), "
              "puis réessaie.")


class Absent(WindowCase):
    renderers = ("software",)

    def open_without_bus(self, *arguments):
        """Starts the program on the demo. Without the bus there is no accessibility tree either, only windows."""
        write_preferences(self.session, demoMode="true")
        program = self.session.launch([RUN.program, *arguments], name="velmora%d" % len(self.programs),
                                      env={"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere/bus"})
        self.programs.append(types.SimpleNamespace(app=program))
        return program

    def names_on_bus(self):
        bus = "org.freedesktop.DBus"
        return self.session.dbus().call_sync(bus, "/org/freedesktop/DBus", bus, "ListNames", None, None, 0, 5000,
                                             None).unpack()[0]

    def check_usable(self, velmora):
        """An issue opens in a window of its own, and the palette finds another one."""
        self.session.key("j", "ctrl+Return")
        velmora.app.wait_window("^[A-Z]+-\\d+")
        velmora.app.raise_window("Velmora")
        self.session.key("ctrl+k")
        self.session.type("WEB-203")
        velmora.app.find(name="WEB-203", where=lambda node: node.role == "list item" and "selectable" in node.states)

    def test_without_a_portal_the_program_is_usable(self):
        self.assertNotIn("org.freedesktop.portal.Desktop", self.names_on_bus())
        self.check_usable(self.open_demo())

    def test_without_status_items_the_process_ends_with_its_last_window(self):
        self.assertNotIn("org.kde.StatusNotifierWatcher", self.names_on_bus())
        velmora = self.open_demo()
        velmora.app.close_window("Velmora")
        wait_until(lambda: not velmora.app.running, 30, 0.05, "the end of the process")
        self.assertEqual(velmora.app.proc.returncode, 0)

    def test_without_a_session_bus_the_program_is_usable(self):
        program = self.open_without_bus()
        program.wait_window("^Velmora")
        self.session.settle(quiet=0.5)
        self.session.key("ctrl+k")
        self.session.settle()
        self.session.type("WEB-203")
        self.session.settle()
        self.session.key("ctrl+Return")
        program.wait_window("^WEB-203")

    def test_without_a_session_bus_a_second_start_is_still_handed_over(self):
        program = self.open_without_bus()
        program.wait_window("^Velmora")
        second = self.open_without_bus("velmora:WEB-202")
        wait_until(lambda: not second.running, 30, 0.02, "the end of the second process")
        program.wait_window("^WEB-202")

    def sign_in(self):
        site = Simulator(self.session)
        self.addCleanup(site.end)
        velmora = self.open()
        velmora.app.find(role="push button", name="^Se connecter$", timeout=15)
        for number, text in enumerate((site.address, site.email, site.token)):
            if number:
                self.session.key("Tab")
            self.session.type(text)
        self.session.key("Return")
        return velmora

    def test_without_a_keyring_signing_in_says_what_is_missing(self):
        self.assertNotIn("org.freedesktop.secrets", self.names_on_bus())
        velmora = self.sign_in()
        velmora.app.find(name=re.escape(NO_KEYRING), timeout=20)
        self.assertEqual(velmora.app.all(role="list item", name=ISSUE.pattern), [])
