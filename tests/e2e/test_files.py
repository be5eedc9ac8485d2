"""The files of an issue are previewed by keyboard alone."""
from driver import wait_until
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
