"""Shortcuts of the whole desktop, which a portal binds."""
import re

from gi.repository import GLib

from driver import Session, wait_until
from driver.shortcuts_portal import CANCELLED, DONE, NAME, PATH, REQUEST, SHORTCUTS, ShortcutsPortal
from support import RUN, SCREEN, WindowCase

BUTTON = "Raccourcis du bureau…"
KEYS = {"new-issue": "Ctrl+Alt+N", "palette": "Super+K"}


class ShortcutsCase(WindowCase):
    renderers = ("software",)

    def start_portal(self, *version):
        portal = ShortcutsPortal(self.session.env["DBUS_SESSION_BUS_ADDRESS"], *version)
        self.addCleanup(portal.stop)
        wait_until(lambda: self.session.has_name(NAME), 15, 0.02, NAME)
        return portal

    def open_shortcuts(self, **preferences):
        """Opens the page of the settings by keyboard."""
        velmora = self.open_demo(settingsTab="shortcuts", **preferences)
        self.session.key("ctrl+comma")
        velmora.app.wait_window("Réglages")
        velmora.app.find(role="list item", name="^Palette de commandes")
        return velmora

    def press_button(self, velmora):
        velmora.app.find(role="push button", name=BUTTON)
        velmora.app.raise_window("Réglages")
        velmora.tab_to(BUTTON)
        self.session.key("space")

    def bind(self, portal, first=1):
        """The user chooses keys in the portal's dialog; the call that has bound them."""
        portal.grant(portal.call(first))
        bound = portal.call(first + 1)
        portal.bind(bound, KEYS)
        return bound

    def wait_shown_keys(self, velmora):
        velmora.app.find(name=re.escape("Nouveau ticket : Ctrl+Alt+N"))
        velmora.app.find(name=re.escape("Palette : Super+K"))

    def has_card(self, velmora):
        return bool(velmora.app.all(name="^Raccourcis du bureau"))

    def is_remembered(self):
        path = self.session.env["XDG_CONFIG_HOME"] + "/Velmora/Velmora.ini"
        with open(path) as file:
            return "desktopShortcuts=true" in file.read()

    def wait_palette(self, velmora):
        velmora.app.find(role="text", name="Rechercher|commande", states=("focused",))

    def wait_sheet(self, velmora):
        velmora.app.find(role="text", name="^Titre")


class Binding(ShortcutsCase):
    def test_the_button_binds_them_by_keyboard_and_the_card_tells_their_keys(self):
        portal = self.start_portal()
        velmora = self.open_shortcuts()
        velmora.app.find(role="push button", name=BUTTON)
        self.assertEqual(portal.calls, [], "the dialog was opened by itself")
        self.press_button(velmora)
        portal.grant(portal.call(1))
        bound = portal.call(2)
        self.assertEqual([(name, values["description"]) for name, values in bound.arguments[1]],
                         [("new-issue", "Nouveau ticket"), ("palette", "Palette")])
        portal.bind(bound, KEYS)
        self.wait_shown_keys(velmora)
        wait_until(self.is_remembered, 15, 0.02, "the preference")

    def test_the_next_start_binds_them_again_without_a_press(self):
        portal = self.start_portal()
        velmora = self.open_shortcuts(desktopShortcuts="true")
        self.bind(portal)
        self.wait_shown_keys(velmora)
        self.assertEqual([call.method for call in portal.calls], ["CreateSession", "BindShortcuts"])

    def test_a_cancelled_dialog_binds_nothing_and_can_be_opened_again(self):
        portal = self.start_portal()
        velmora = self.open_shortcuts()
        self.press_button(velmora)
        portal.grant(portal.call(1))
        cancelled = portal.call(2)
        portal.respond(cancelled, CANCELLED)
        wait_until(lambda: cancelled.session in portal.closed, 15, 0.02, "the end of the session")
        self.assertFalse(self.is_remembered())
        self.press_button(velmora)
        self.bind(portal, 3)
        self.wait_shown_keys(velmora)

    def test_the_dialog_of_a_portal_that_has_one_changes_them(self):
        portal = self.start_portal(GLib.Variant("u", 2))
        velmora = self.open_shortcuts()
        self.press_button(velmora)
        bound = self.bind(portal)
        self.wait_shown_keys(velmora)
        self.press_button(velmora)
        self.assertEqual((portal.call(3).method, portal.call(3).session), ("ConfigureShortcuts", bound.session))
        portal.send(bound, PATH, SHORTCUTS, "ShortcutsChanged", GLib.Variant(
            "(oa(sa{sv}))", (bound.session, [("palette", {"trigger_description": GLib.Variant("s", "F9")})])))
        velmora.app.find(name="^Palette : F9$")


class Pressing(ShortcutsCase):
    def open_bound(self):
        """The program on the demo, with shortcuts that the portal has bound at its start."""
        portal = self.start_portal()
        velmora = self.open_shortcuts(desktopShortcuts="true")
        bound = self.bind(portal)
        self.wait_shown_keys(velmora)
        return velmora, portal, bound

    def is_in_front(self, velmora):
        return self.session.x.active_window() == velmora.app.window("^Velmora").id

    def test_a_press_opens_the_palette_in_front_of_the_settings(self):
        velmora, portal, bound = self.open_bound()
        portal.activate(bound, "palette", "token")
        self.wait_palette(velmora)
        wait_until(lambda: self.is_in_front(velmora), 20, 0.05, "the main window in front")
        self.session.type("WEB-203")
        velmora.app.find(name="WEB-203", where=lambda node: node.role == "list item" and "selectable" in node.states)

    def test_a_press_opens_the_sheet_for_a_new_issue_in_place_of_the_palette(self):
        velmora, portal, bound = self.open_bound()
        portal.activate(bound, "palette")
        self.wait_palette(velmora)
        portal.activate(bound, "new-issue", "token")
        self.wait_sheet(velmora)
        self.session.type("Panne du bouton")
        velmora.app.find(role="text", name="^Titre", text="^Panne du bouton$")

    def test_what_is_written_in_the_sheet_stays(self):
        velmora, portal, bound = self.open_bound()
        portal.activate(bound, "new-issue")
        self.wait_sheet(velmora)
        wait_until(lambda: self.is_in_front(velmora), 20, 0.05, "the main window in front")
        self.session.type("Panne")
        for shortcut in ("new-issue", "palette"):
            portal.activate(bound, shortcut)
        portal.await_client()
        self.session.type(" du bouton")
        velmora.app.find(role="text", name="^Titre", text="^Panne du bouton$")
        self.assertEqual(velmora.app.all(role="text", name="Rechercher|commande"), [])

    def test_on_the_sign_in_screen_the_action_waits_for_the_session(self):
        velmora, portal, bound = self.open_bound()
        velmora.app.find(role="page tab", name="Compte").click()
        velmora.app.find(role="push button", name="Quitter la démo").click()
        velmora.app.find(role="heading", name="Jira au bout des doigts")
        portal.activate(bound, "new-issue")
        wait_until(lambda: self.is_in_front(velmora), 20, 0.05, "the main window in front")
        self.assertEqual(velmora.app.all(role="text", name="^Titre"), [])
        velmora.app.find(role="push button", name="Explorer en mode démo").click()
        self.wait_sheet(velmora)

    def test_a_dialog_that_is_open_across_two_sessions_binds_them_for_the_second(self):
        portal = self.start_portal()
        velmora = self.open_shortcuts()
        self.press_button(velmora)
        portal.grant(portal.call(1))
        bound = portal.call(2)
        velmora.app.find(role="page tab", name="Compte").click()
        velmora.app.find(role="push button", name="Quitter la démo").click()
        velmora.app.find(role="heading", name="Jira au bout des doigts")
        portal.bind(bound, KEYS)
        velmora.app.find(role="push button", name="Explorer en mode démo").click()
        velmora.app.gone(role="heading", name="Jira au bout des doigts")
        portal.activate(bound, "palette")
        self.wait_palette(velmora)


class Hidden(ShortcutsCase):
    def setUp(self):
        self.session = Session(size=SCREEN, renderer=RUN.renderer, tray=True)
        self.addCleanup(self.session.stop)
        self.programs = []

    def test_a_press_brings_back_a_window_that_is_closed_to_the_status_item(self):
        portal = self.start_portal()
        velmora = self.open_demo(desktopShortcuts="true")
        bound = self.bind(portal)
        self.session.tray()
        velmora.app.close_window("Velmora")
        velmora.app.wait_no_window("Velmora")
        portal.activate(bound, "new-issue", "token")
        velmora.app.wait_window("Velmora")
        self.wait_sheet(velmora)


class Portals(ShortcutsCase):
    def test_without_a_portal_there_is_no_card(self):
        self.assertFalse(self.session.has_name(NAME))
        self.assertFalse(self.has_card(self.open_shortcuts(desktopShortcuts="true")))

    def test_a_portal_without_shortcuts_has_no_card(self):
        portal = self.session.start_portal({})
        self.addCleanup(portal.stop)
        velmora = self.open_shortcuts(desktopShortcuts="true")
        self.session.settle()
        self.assertFalse(self.has_card(velmora))

    def test_a_portal_that_starts_later_has_a_card(self):
        velmora = self.open_shortcuts(desktopShortcuts="true")
        portal = self.start_portal()
        self.bind(portal)
        self.wait_shown_keys(velmora)

    def test_a_portal_that_ends_takes_the_card_with_it_and_leaves_the_keyboard(self):
        portal = self.start_portal()
        velmora = self.open_shortcuts()
        self.press_button(velmora)
        self.bind(portal)
        self.wait_shown_keys(velmora)
        portal.stop()
        velmora.app.gone(name="^Raccourcis du bureau")
        velmora.app.find(role="list", name="^Raccourcis$", states=("focused",))
        again = self.start_portal()
        self.bind(again)
        self.wait_shown_keys(velmora)

    def test_a_portal_that_refuses_changes_nothing(self):
        portal = self.start_portal()
        portal.refuses = True
        velmora = self.open_shortcuts()
        self.press_button(velmora)
        portal.call(1)
        portal.refuses = False
        self.press_button(velmora)
        self.bind(portal, 2)
        self.wait_shown_keys(velmora)

    def test_a_portal_that_answers_late_keeps_nobody_waiting(self):
        portal = self.start_portal()
        velmora = self.open_shortcuts()
        self.press_button(velmora)
        create = portal.call(1)
        velmora.app.raise_window("Velmora")
        self.session.key("ctrl+k")
        self.wait_palette(velmora)
        self.session.key("Escape")
        portal.grant(create)
        portal.bind(portal.call(2), KEYS)
        self.wait_shown_keys(velmora)

    def test_nonsense_of_a_portal_binds_nothing(self):
        portal = self.start_portal()
        velmora = self.open_shortcuts()
        text = {"shortcuts": GLib.Variant("s", "text")}
        nonsense = [GLib.Variant("(s)", ("text",)), GLib.Variant("(ua{sv})", (DONE, text)),
                    GLib.Variant("(ua{sv})", (DONE, {})), GLib.Variant("(ua{sv})", (4711, {}))]
        for number, values in enumerate(nonsense):
            self.press_button(velmora)
            portal.grant(portal.call(2 * number + 1))
            bound = portal.call(2 * number + 2)
            portal.send(bound, bound.request, REQUEST, "Response", values)
            wait_until(lambda: bound.session in portal.closed, 15, 0.02, "the end of the session")
            portal.activate(bound, "palette")
        self.press_button(velmora)
        self.bind(portal, 2 * len(nonsense) + 1)
        self.wait_shown_keys(velmora)
        self.assertEqual(velmora.app.all(role="text", name="Rechercher|commande"), [])

    def test_a_version_that_is_no_number_is_no_portal(self):
        portal = self.start_portal(GLib.Variant("s", "1"))
        velmora = self.open_shortcuts(desktopShortcuts="true")
        portal.await_client()
        self.assertFalse(self.has_card(velmora))
        self.assertEqual(portal.calls, [])
