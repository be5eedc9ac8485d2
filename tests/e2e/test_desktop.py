"""What the desktop asks of the program over the session bus: its search, and the actions of its launcher."""
import gi
gi.require_version("Gio", "2.0")
gi.require_version("GLib", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

from driver import wait_until  # noqa: E402
from support import WindowCase  # noqa: E402

NAME, PATH = "fr.orvantis.Velmora", "/fr/orvantis/Velmora"


class DesktopCase(WindowCase):
    renderers = ("software",)

    def call(self, path, interface, method, signature=None, *values):
        """Calls the program as a desktop does, without starting it; the values of its reply."""
        given = GLib.Variant(signature, values) if signature else None
        return self.session.dbus().call_sync(NAME, path, interface, method, given, None, Gio.DBusCallFlags.NO_AUTO_START,
                                             10_000, None).unpack()

    def open_on_bus(self):
        velmora = self.open_demo()
        wait_until(lambda: self.session.has_name(NAME), 30, 0.02, "the name on the bus")
        return velmora


class Search(DesktopCase):
    def gnome(self, method, *arguments):
        return self.call(PATH + "/SearchProvider", "org.gnome.Shell.SearchProvider2", method, *arguments)

    def krunner(self, method, *arguments):
        return self.call(PATH + "/Runner", "org.kde.krunner1", method, *arguments)

    def test_return_in_the_shells_search_opens_the_issue(self):
        velmora = self.open_on_bus()
        ids, = self.gnome("GetInitialResultSet", "(as)", ["factures", "export"])
        metas, = self.gnome("GetResultMetas", "(as)", ids)
        self.assertEqual([meta["name"] for meta in metas], ["Export CSV des factures avec filtres"])
        self.gnome("ActivateResult", "(sasu)", ids[0], ["factures"], 0)
        velmora.app.wait_window("WEB-202")

    def test_krunner_opens_the_issue_of_a_key(self):
        velmora = self.open_on_bus()
        matches, = self.krunner("Match", "(s)", "web-203")
        self.assertEqual(len(matches), 1)
        self.krunner("Run", "(ss)", matches[0][0], "")
        velmora.app.wait_window("WEB-203")


class Launcher(DesktopCase):
    def application(self, method, *arguments):
        return self.call(PATH, "org.freedesktop.Application", method, *arguments)

    def act(self, action):
        self.application("ActivateAction", "(sava{sv})", action, [], {})

    def test_the_actions_of_the_launcher(self):
        velmora = self.open_on_bus()
        self.act("palette")
        velmora.app.find(role="text", name="Rechercher|commande")
        self.act("new-issue")
        velmora.app.find(role="text", name="^Titre")

    def test_the_program_comes_back_to_the_front(self):
        velmora = self.open_on_bus()
        self.application("Open", "(asa{sv})", ["velmora:WEB-202"], {})
        issue = velmora.app.wait_window("WEB-202")
        wait_until(lambda: self.session.x.active_window() == issue.id, 20, 0.05, "the issue in front")
        self.application("Activate", "(a{sv})", {})
        main = velmora.app.window("Velmora")
        wait_until(lambda: self.session.x.active_window() == main.id, 20, 0.05, "the main window in front")

    def test_a_second_start_carries_out_its_action_in_the_first(self):
        velmora = self.open_on_bus()
        second = self.session.launch([velmora.app.argv[0], "--new-issue"], name="second")
        wait_until(lambda: not second.running, 30, 0.02, "the end of the second process")
        velmora.app.find(role="text", name="^Titre")
