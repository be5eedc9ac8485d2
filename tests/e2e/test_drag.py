"""Issues are dragged with the pointer, through the drag and drop of the desktop."""
from driver import wait_until
from support import WindowCase


class Drag(WindowCase):
    def open_board(self, **preferences):
        velmora = self.open_demo(layout="board", **preferences)
        velmora.scope("Plateforme web").click()
        velmora.app.find(role="list item", name="^WEB-204, ")
        self.session.settle()
        return velmora

    def column(self, velmora, title):
        """A free point in a column of the board."""
        x, y, width, height = velmora.app.find(role="list", name="^%s, " % title).rect
        return x + width // 2, y + height * 2 // 3

    def take(self, velmora, key):
        """A point of a card at which a drag can start: between its head and its foot."""
        x, y, width, _ = velmora.row(key).rect
        return x + width // 2, y + 45

    def wait_status(self, velmora, key, status):
        velmora.app.find(role="list item", name="^%s, .*, %s, " % (key, status))

    def test_a_card_takes_the_status_of_the_column_it_is_dropped_on_again_and_again(self):
        velmora = self.open_board()
        for status in ("En cours", "À faire", "En cours"):
            self.session.drag(self.take(velmora, "WEB-204"), self.column(velmora, status))
            self.wait_status(velmora, "WEB-204", status)
            self.session.settle()

    def test_three_checked_cards_move_together(self):
        velmora = self.open_board()
        for key in ("WEB-204", "WEB-203", "WEB-211"):
            self.session.click(self.take(velmora, key), mods=("ctrl",))
        velmora.app.find(name="^3 sélectionnés$")
        self.session.drag(self.take(velmora, "WEB-203"), self.column(velmora, "En cours"))
        for key in ("WEB-204", "WEB-203", "WEB-211"):
            self.wait_status(velmora, key, "En cours")

    def test_a_drop_outside_any_column_changes_nothing(self):
        velmora = self.open_board()
        before = velmora.row("WEB-204").name
        self.session.drag(self.take(velmora, "WEB-204"), (100, 600))
        self.session.settle()
        self.assertEqual(velmora.row("WEB-204").name, before)
        wait_until(lambda: velmora.app.running, 1, 0.1, "the program")

    def picture(self, velmora, key):
        """The box of the picture that is dragged with a card. The button stays down."""
        before = {window.id for window in velmora.app.windows()}
        x, y = self.take(velmora, key)
        self.session.drag((x, y), (x + 150, y + 200), drop=False)
        picture, = [window for window in velmora.app.windows() if window.override and window.id not in before]
        return picture.rect

    def test_the_dragged_picture_has_no_white_corners_where_nothing_composes_the_windows(self):
        velmora = self.open_board(appearance="dark")
        self.addCleanup(self.session.release)
        left, top, width, height = self.picture(velmora, "WEB-204")
        self.assertGreater(width, 60)
        for corner in [(left, top), (left + width - 1, top), (left, top + height - 1), (left + width - 1, top + height - 1)]:
            self.assertLess(max(self.session.pixel(*corner)), 100, corner)

    def test_the_dragged_picture_has_room_for_a_shadow_where_the_windows_are_composed(self):
        self.session.x.claim_composition()
        velmora = self.open_board()
        self.addCleanup(self.session.release)
        _, _, _, height = self.picture(velmora, "WEB-204")
        self.assertGreater(height, 60)

    def test_the_dragged_picture_counts_the_checked_cards(self):
        velmora = self.open_board()
        self.addCleanup(self.session.release)
        _, _, alone, _ = self.picture(velmora, "WEB-204")
        self.session.key("Escape")
        self.session.release()
        for key in ("WEB-204", "WEB-203"):
            self.session.click(self.take(velmora, key), mods=("ctrl",))
        velmora.app.find(name="^2 sélectionnés$")
        _, _, together, _ = self.picture(velmora, "WEB-204")
        self.assertGreater(together, alone)
