"""The settings in their own window, beside the main one."""
import subprocess

from support import WindowCase

TABS = ["Compte", "Apparence", "Raccourcis", "Mises à jour"]


class Settings(WindowCase):
    renderers = ("software",)

    def open_settings(self):
        velmora = self.open_demo()
        self.session.key("ctrl+comma")
        velmora.app.wait_window("Réglages")
        return velmora

    def test_control_comma_opens_them_and_the_tabs_are_switched(self):
        app = self.open_settings().app
        app.find(role="heading", name="^Mode démo$")
        app.find(role="page tab", name="Apparence").click()
        app.find(role="radio button", name="Sombre")
        app.find(role="page tab", name="Raccourcis").click()
        app.find(role="list item", name="Palette de commandes")
        app.find(role="page tab", name="Mises à jour").click()
        app.find(name="Pas encore vérifié")
        app.find(name="Build : 0")
        self.session.key("Escape")
        app.wait_no_window("Réglages")

    def test_the_tabs_are_switched_by_the_arrow_keys(self):
        velmora = self.open_settings()
        # A click makes the new window the active one.
        velmora.app.find(role="page tab", name="Compte").click()
        self.session.key("Tab")
        velmora.app.find(role="page tab", name="Compte", states=("focused",))
        for title in TABS[1:]:
            self.session.key("Right")
            velmora.app.find(role="page tab", name=title, states=("focused",))

    def test_the_reference_names_the_keys_of_the_layout_that_is_in_use(self):
        app = self.open_settings().app
        for layout, keys in (("us", r"Ctrl\+Maj\+\."), ("fr", r"Ctrl\+Maj\+:")):
            with self.subTest(layout=layout):
                subprocess.run(["setxkbmap", layout], env=self.session.env, check=True)
                app.find(role="page tab", name="Apparence").click()
                app.find(role="radio button", name="Sombre")
                app.find(role="page tab", name="Raccourcis").click()
                app.find(role="list item", name="^Copier le nom de branche git.*%s$" % keys, showing=None)

    def test_the_board_is_shown_as_soon_as_it_is_chosen(self):
        app = self.open_settings().app
        app.find(role="page tab", name="Apparence").click()
        app.find(role="combo box", name="Disposition").click()
        app.find(role="menu item|radio menu item|list item|check menu item", name="^Tableau$").click()
        app.find(role="combo box", name="Disposition", description="Tableau")

    def test_the_demo_is_left_from_them(self):
        app = self.open_settings().app
        app.find(role="push button", name="Quitter la démo").click()
        app.gone(role="push button", name="Quitter la démo")
        app.find(role="heading", name="Jira au bout des doigts")
        app.find(role="heading", name="Connexion Jira Cloud")
