"""The palette by keyboard: searching, running actions, setting values, and the focus afterwards."""
import demo_lists
from driver import wait_until
from support import WindowCase

PATH = [key for _, keys in demo_lists.mine() for key in keys]
FIELD = "^Rechercher un ticket, une action, un projet…$"


class Palette(WindowCase):
    renderers = ("software",)

    def open_palette(self, velmora):
        self.session.key("ctrl+k")
        return velmora.app.find(role="text", name=FIELD, states=("focused",))

    def rows(self, velmora, name="^Résultats$"):
        """The rows from top to bottom."""
        found = velmora.app.find(role="list", name=name)
        return [node for node in velmora.app.all(role="list item", by_place=True)
                if found.rect[1] <= node.rect[1] + node.rect[3] / 2 < found.rect[1] + found.rect[3] and
                found.rect[0] <= node.rect[0] and node.rect[2] <= found.rect[2]]

    def titles(self, velmora, name="^Résultats$"):
        return [node.name for node in self.rows(velmora, name)]

    def wait_spoken(self, velmora, pattern):
        velmora.app.find(role="text", description=pattern, states=("focused",))

    def spoken(self, velmora):
        return velmora.app.find(role="text", name=FIELD).description

    def wait_closed(self, velmora):
        velmora.app.gone(role="text", name=FIELD)

    def test_the_number_of_results_and_the_highlighted_row_are_spoken(self):
        velmora = self.open_demo()
        self.open_palette(velmora)
        self.wait_spoken(velmora, "^13 résultats\\. Nouveau ticket, 1 sur 13$")
        self.session.key("Down")
        self.wait_spoken(velmora, "^13 résultats\\. Afficher en tableau, 2 sur 13$")
        self.session.type("MOB-101")
        self.wait_spoken(velmora, "^1 résultat\\. .*, MOB-101, 1 sur 1$")
        self.session.type("introuvable")
        self.wait_spoken(velmora, "^(Recherche dans Jira…|Aucun résultat)$")

    def test_the_rows_follow_each_letter_and_come_back(self):
        velmora = self.open_demo()
        self.open_palette(velmora)
        whole = self.titles(velmora)
        self.assertEqual(len(whole), 11)
        self.session.type("sprint")
        wait_until(lambda: all("sprint" in demo_lists.fold(title) for title in self.titles(velmora)), 5, 0.1, "sprints")
        self.session.type("zzzz")
        velmora.app.find(name="^Aucun résultat$")
        self.session.key("Escape")
        wait_until(lambda: self.titles(velmora) == whole, 5, 0.1, "the rows of before")

    def test_every_row_of_a_long_list_is_reached_and_in_sight(self):
        velmora = self.open_demo()
        self.open_palette(velmora)
        self.session.type("a")
        self.wait_spoken(velmora, "1 sur \\d\\d$")
        count = int(self.spoken(velmora).split(" ")[0])
        self.assertGreater(count, 15)
        for number in range(2, count + 1):
            self.session.key("Down")
            self.wait_spoken(velmora, ", %d sur %d$" % (number, count))
            title = self.spoken(velmora).split(". ", 1)[1]
            self.assertTrue(any(title.startswith(row) for row in self.titles(velmora)), title)

    def test_a_click_on_a_row_that_was_scrolled_to_runs_that_row(self):
        velmora = self.open_demo()
        self.open_palette(velmora)
        self.session.type("semaine")
        wait_until(lambda: "Activité · Semaine dernière" in self.titles(velmora), 5, 0.1, "the recaps")
        next(row for row in self.rows(velmora) if row.name == "Activité · Semaine dernière").click()
        self.wait_closed(velmora)
        wait_until(lambda: velmora.title().startswith("Semaine dernière"), 5, 0.1, "the recap of last week")

    def test_three_letters_find_an_issue_and_return_opens_it(self):
        velmora = self.open_demo()
        self.open_palette(velmora)
        self.session.type("jet")
        wait_until(lambda: self.titles(velmora)[:1] == ["Connexion avec Apple : le jeton expire après 24 h"], 5, 0.1,
                   "MOB-101")
        self.session.key("Return")
        self.wait_closed(velmora)
        velmora.wait_focus("MOB-101")

    def test_the_focus_returns_where_it_was(self):
        velmora = self.open_demo()
        self.session.key("j", "j")
        velmora.wait_focus(PATH[1])
        self.open_palette(velmora)
        self.session.key("Escape")
        self.wait_closed(velmora)
        velmora.wait_focus(PATH[1])
        self.session.key("j")
        velmora.wait_focus(PATH[2])

    def test_the_focus_returns_to_a_field_with_what_was_typed(self):
        velmora = self.open_demo()
        velmora.search_field().click()
        self.session.type("mob")
        self.open_palette(velmora)
        self.session.key("Escape")
        self.wait_closed(velmora)
        self.session.type("-101")
        velmora.app.find(role="text", name="Filtrer", text="^mob-101$", states=("focused",))

    def test_a_digit_sets_the_status(self):
        velmora = self.open_demo()
        self.session.key("j")
        velmora.wait_focus(PATH[0])
        self.session.key("s")
        velmora.app.find(role="text", name="^Statut…$", states=("focused",))
        wait_until(lambda: len(self.titles(velmora, "^Changer le statut$")) > 1, 5, 0.1, "the statuses")
        first = self.titles(velmora, "^Changer le statut$")[0]
        self.session.key("1")
        velmora.app.gone(role="text", name="^Statut…$")
        velmora.wait_focus(PATH[0])
        velmora.app.find(role="list item", name="^%s, .*%s" % (PATH[0], first))

    def test_escape_in_a_picker_clears_then_goes_to_the_root_then_closes(self):
        velmora = self.open_demo()
        self.session.key("j", "a")
        velmora.app.find(role="text", name="^Assigner…$", states=("focused",))
        self.session.type("no")
        self.session.key("Escape")
        velmora.app.find(role="text", name="^Assigner…$", text="^$", states=("focused",))
        self.session.key("Escape")
        velmora.app.find(role="text", name=FIELD, states=("focused",))
        self.session.key("Escape")
        self.wait_closed(velmora)

    def test_checked_issues_are_assigned_and_labelled_without_the_mouse(self):
        velmora = self.open_demo()
        self.session.key("j", "x", "j", "x", "j", "x")
        velmora.wait_focus(PATH[2])
        self.session.key("l")
        velmora.app.find(role="text", name="^Ajouter des étiquettes…$", states=("focused",))
        self.session.type("revue commune")
        velmora.app.find(role="list item", name="^Créer l'étiquette « revue-commune »$")
        self.session.key("Return")
        velmora.app.find(role="list item", name="^revue-commune$", states=("selected",))
        self.session.type("revue")
        velmora.app.find(role="list item", name="^revue-commune$", states=("selected",))
        self.session.key("Return")
        velmora.app.gone(role="list item", name="^revue-commune$", states=("selected",))

    def test_control_return_opens_a_window_of_its_own(self):
        velmora = self.open_demo()
        self.open_palette(velmora)
        self.session.type("MOB-101")
        wait_until(lambda: len(self.titles(velmora)) == 1, 5, 0.1, "MOB-101 alone")
        self.session.key("ctrl+Return")
        velmora.app.wait_window("MOB-101")
