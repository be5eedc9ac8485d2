"""The files of an issue are previewed and attached by keyboard alone."""
import os

from driver import wait_until
from site_case import SiteCase
from support import WindowCase

PICTURE, LOG = "facture-septembre-erreur.png", "worker-facturation.log"


class FilesByKeyboard(WindowCase):
    renderers = ("software",)

    screen = (1500, 1000)

    def setUp(self):
        super().setUp()
        self.velmora = self.open_demo()
        self.app = self.velmora.app
        self.app.find(role="list item", name="^SUP-41, ").click()
        self.session.key("Return")
        self.app.find(role="list item", name="^%s$" % PICTURE)
        self.session.settle()

    def focused(self):
        """The names of the files whose tile, chip or picture has the focus."""
        nodes = self.app.all(name="^(%s|%s)$" % (PICTURE, LOG))
        return [(node.role, node.name) for node in nodes if "focused" in node.states]

    def tab_to(self, role, name):
        for _ in range(60):
            if (role, name) in self.focused():
                return
            self.session.key("Tab")
            self.session.settle()
        self.fail("Tab does not reach %s" % name)

    def wait_preview(self, name):
        self.app.wait_window("^%s$" % name)
        self.session.settle()

    def wait_no_preview(self):
        previews = (PICTURE, LOG)
        wait_until(lambda: not [w for w in self.app.windows() if w.title in previews], 5, 0.05, "no preview")

    def test_the_arrow_keys_go_through_the_files_and_escape_gives_the_tile_back(self):
        self.tab_to("list item", PICTURE)
        self.session.key("space")
        self.wait_preview(PICTURE)
        self.session.key("Right")
        self.wait_preview(LOG)
        self.app.find(role="list item", name="Abandon : facture marquée")
        self.session.key("Escape")
        self.wait_no_preview()
        wait_until(lambda: ("list item", PICTURE) in self.focused(), 5, 0.05, "the tile")

    def test_a_picture_in_the_description_is_previewed(self):
        self.tab_to("push button", PICTURE)
        self.session.key("Return")
        self.wait_preview(PICTURE)
        self.session.key("space")
        self.wait_no_preview()


class UploadByKeyboard(SiteCase):
    """An upload to a site that does not read on, cancelled by keyboard alone."""
    renderers = ("software",)

    screen = (1500, 1000)
    # More than the system keeps of what the site does not read.
    LARGE = 24 << 20

    def setUp(self):
        super().setUp()
        self.velmora = self.open_card()
        self.app = self.velmora.app
        self.sign_in(self.velmora, self.site.email)
        self.wait_issues(self.velmora)
        self.session.key("j", "Return")
        self.app.find(role="heading", name="^Pièces jointes$", timeout=15)
        self.app.gone(role="indicator", name="^Chargement", timeout=15)
        self.session.settle()
        self.key = self.velmora.focused_key()
        self.before = self.site.files_of(self.key)

    def copy_file(self, name, size):
        """Copies a new file in the file manager."""
        path = os.path.join(self.session.dir, name)
        with open(path, "wb") as file:
            file.write(b"x" * size)
        self.session.set_clipboard("file://%s\r\n" % path, "text/uri-list")

    def attach_copied(self, key):
        """Pastes the file with the menu of the button, to which the key leads from where the focus is."""
        self.velmora.tab_to("^Joindre$", key)
        self.session.key("Down")
        self.app.find(role="menu item", name="^Coller depuis le presse-papiers$")
        self.session.key("End", "Return")

    def test_a_cancelled_upload_leaves_no_file_and_the_next_one_works(self):
        self.copy_file("lent.bin", self.LARGE)
        self.site.pause()
        self.attach_copied("Tab")
        self.app.find(role="list item", name="^Envoi", description="^Envoyé à ", timeout=15)
        self.velmora.tab_to("^Annuler l'envoi de ")
        self.session.key("space")
        self.app.gone(role="list item", name="^Envoi")
        self.site.go_on()
        self.session.settle()
        self.assertEqual(self.site.files_of(self.key), self.before)
        self.assertFalse(self.app.all(name="(joint à|impossible|perdue)"), "nothing is said about it")

        self.copy_file("bref.txt", 100)
        self.attach_copied("shift+Tab")
        self.app.find(role="list item", name="^bref.txt$", timeout=15)
        self.assertEqual(self.site.files_of(self.key), self.before + ["bref.txt"])
        self.assertFalse(self.app.all(role="list item", name="^lent.bin$"))
