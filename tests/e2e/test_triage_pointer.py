"""Twenty issues are triaged by pointer only."""
from support import ISSUE
from triage_case import LARGE, PROJECTS, SMALL, TriageCase, in_status


class TwentyWithoutKeyboard(TriageCase):
    worlds = ((LARGE, "dark"), (SMALL, "light"))

    # actions of the user
    def open_project(self, key):
        self.velmora.scope(PROJECTS[key]).click()
        self.see_title(PROJECTS[key])
        self.velmora.app.find(role="list item", name="^%s-" % key)
        self.session.settle()

    def choose(self, *path):
        for role, name in path:
            self.velmora.app.find(role=role, name=name).click()
            self.session.settle()

    def bring(self, key):
        """Turns the wheel until the row is completely visible between the pinned header and the selection bar."""
        area = self.velmora.app.find(role="list", name=", \\d+ tickets?$").rect
        for _ in range(12):
            rows = self.velmora.app.all(role="list item", name="^%s, " % key)
            if rows and area[1] + 36 <= rows[0].rect[1] <= area[1] + area[3] - 130:
                return rows[0]
            above = rows and rows[0].rect[1] < area[1] + 36
            self.session.scroll((area[0] + area[2] // 2, area[1] + area[3] // 2), -2 if above else 2)
            self.session.settle(0.1)
        raise AssertionError("no way to %s" % key)

    def press_beside(self):
        """Closes the display options by a press on a row beside them, which has no other effect."""
        row = self.velmora.app.find(role="list item", name=ISSUE.pattern)
        row.click(at=(row.rect[0] + 110, row.centre[1]))
        self.velmora.app.gone(role="dialog", name="^Options d'affichage$")
        self.assertEqual(self.velmora.app.all(role="panel", name="^Inspecteur$"), [])

    def pick_in_row(self, key, cell, option):
        """Opens the picker of a row's icon and activates one of its rows."""
        self.bring(key).find(role="push button", name="^%s : " % cell).click()
        self.choose(("list item", "^%s" % option))

    def take(self, key):
        """A point of a card at which a drag can start: between its head and its foot."""
        x, y, width, _ = self.velmora.row(key).rect
        right = self.velmora.app.window("Velmora").width
        return min(x + width // 2, right - 20), y + 45

    def column(self, title):
        """A point in a column far from the edges of the window: near an edge a drag scrolls the board."""
        for _ in range(12):
            x, y, width, height = self.velmora.app.find(role="list", name="^%s, " % title).rect
            if x + width // 2 < self.size[0] - 70:
                return x + width // 2, y + height // 2
            self.tilt()
        raise AssertionError("no way to %s" % title)

    def tilt(self):
        """Tilts the wheel by one notch to the right."""
        self.session.scroll_sideways((self.size[0] - 200, 400), 1)
        self.session.settle()

    # the test
    def test_twenty_issues(self):
        self.open_walk()
        self.filter_group_and_change_three_at_once()
        self.sort_the_backlog_in_its_rows()
        self.read_six_in_the_inspector()
        self.move_four_through_the_menu()
        self.drag_three_on_the_board()
        self.end()

    def filter_group_and_change_three_at_once(self):
        self.open_project("WEB")
        to_do = in_status("WEB", 1)
        self.choose(("push button", "^Filtrer$"), ("menu item", "^Statut$"), ("menu item", "^À faire$"))
        self.see_count(len(to_do))
        self.choose(("push button", "^Affichage$"), ("combo box", "^Regrouper par$"), ("menu item", "^Assigné$"))
        self.press_beside()
        self.see_groups("Noam Talvère", "Basile Rochat", "Yann Kervel")
        for key in to_do:
            self.velmora.app.find(role="check box", name="^Sélectionner %s$" % key).click()
        self.choose(("push button", "^Assigner$"), ("list item", "^Maud Ferrand"))
        self.choose(("push button", "^Priorité$"), ("list item", "^Urgente"))
        for key in to_do:
            self.see(key, "À faire", "priorité Urgente", "assigné à Maud Ferrand")
        self.choose(("push button", "^Désélectionner"), ("push button", "^Tout effacer$"))
        self.see_count(15)
        self.choose(("push button", "^Affichage$"), ("combo box", "^Regrouper par$"), ("menu item", "^Statut$"))
        self.press_beside()

    def sort_the_backlog_in_its_rows(self):
        for key in in_status("WEB", 0):
            self.pick_in_row(key, "Assigné", "Yann Kervel")
            self.see(key, "Backlog", "assigné à Yann Kervel")
            self.pick_in_row(key, "Statut", "À faire")
            self.see(key, "À faire", "assigné à Yann Kervel")

    def read_six_in_the_inspector(self):
        self.open_project("MOB")
        for key in in_status("MOB", 3) + in_status("MOB", 2) + in_status("MOB", 1)[:3]:
            self.bring(key).click()
            self.velmora.app.find(role="panel", name="^Inspecteur$")
            # The inspector slides in.
            self.session.settle()
            inspector = self.velmora.app.find(role="panel", name="^Inspecteur$")
            inspector.find(role="push button", name="^Priorité").click()
            self.choose(("list item", "^Basse"))
            self.see(key, "priorité Basse")
        self.velmora.app.find(role="push button", name="^Fermer l'inspecteur$").click()
        self.velmora.app.gone(role="panel", name="^Inspecteur$")

    def move_four_through_the_menu(self):
        self.open_project("DS")
        four = in_status("DS", 1) + in_status("DS", 0)
        for key in four:
            self.bring(key).find(role="check box").click()
        self.velmora.app.find(name="^4 sélectionnés$")
        row = self.bring(four[0])
        row.click(button=3)
        self.choose(("menu item", "^Statut$"), ("menu item", "^En cours$"))
        for key in four:
            self.see(key, "En cours")
        self.choose(("push button", "^Désélectionner"))

    def drag_three_on_the_board(self):
        self.open_project("SUP")
        self.choose(("push button", "^Tableau$"))
        self.drag(in_status("SUP", 1)[0], "En cours")
        self.drag(in_status("SUP", 2)[0], "À faire")
        self.bring_card(in_status("SUP", 3)[0])
        self.drag(in_status("SUP", 3)[0], "En cours")

    def bring_card(self, key):
        """Tilts the wheel, one notch at a time, until the middle of the card is where a drag does not scroll the board."""
        for _ in range(12):
            cards = self.velmora.app.all(role="list item", name="^%s, " % key)
            if cards:
                x, _, width, _ = cards[0].rect
                if x + width // 2 < self.size[0] - 70:
                    return
            self.tilt()
        raise AssertionError("no way to %s" % key)

    def drag(self, key, status):
        to = self.column(status)
        self.session.drag(self.take(key), to)
        self.see(key, status)
        self.session.settle()
