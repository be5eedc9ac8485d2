"""Twenty issues are triaged by keyboard only."""
from driver import wait_until
from triage_case import PROJECTS, STATUS_DIGITS, TriageCase, in_status


class TwentyWithoutMouse(TriageCase):
    # actions of the user
    def open_project(self, key):
        self.session.key("ctrl+k")
        self.velmora.app.find(role="text", states=("focused",))
        self.session.type(PROJECTS[key].lower())
        self.velmora.app.find(role="list item", name="^%s$" % PROJECTS[key], states=("focused",))
        self.session.key("Return")
        self.see_title(PROJECTS[key])
        self.velmora.app.find(role="list item", name="^%s-" % key)

    def go_to(self, key):
        """Moves the focus to an issue, first downwards."""
        for step in ("j", "k"):
            for _ in range(8):
                seen, focused = self.issues_in_sight()
                if key in seen and focused:
                    steps = seen.index(key) - seen.index(focused)
                    self.session.key(*["j" if steps > 0 else "k"] * abs(steps))
                    return self.velmora.wait_focus(key)
                self.session.key(step, step)
        raise AssertionError("no way to %s" % key)

    def pick(self, letter, row):
        """Chooses a row of a picker by typing its title."""
        self.session.key(letter)
        self.velmora.app.find(role="text", states=("focused",))
        self.session.type(row)
        self.velmora.app.find(role="list item", name="^%s" % row, states=("focused",))
        self.session.key("Return")
        self.velmora.app.gone(role="text", states=("focused",))

    def set_status(self, status):
        self.session.key("s")
        self.velmora.app.find(role="list item", name="^%s$" % status)
        self.session.key(STATUS_DIGITS[status])

    # the test
    def test_twenty_issues(self):
        self.open_walk()
        self.filter_group_and_change_three_at_once()
        self.take_the_backlog_one_by_one()
        self.search_and_finish_two()
        self.read_six_in_the_inspector()
        self.move_three_on_the_board()
        self.empty_the_support_queue()
        self.end()

    def filter_group_and_change_three_at_once(self):
        self.open_project("WEB")
        to_do = in_status("WEB", 1)
        self.velmora.tab_to("^Filtrer$")
        self.session.key("space", "Down", "Right", "Down", "Return", delay=0.1)
        self.see_count(len(to_do))
        self.velmora.tab_to("^Affichage$")
        self.session.key("space")
        self.velmora.app.find(name="^Regrouper par$", states=("focused",))
        self.session.key("space", "Down", "Return", "Escape", delay=0.2)
        self.see_groups("Noam Talvère", "Basile Rochat", "Yann Kervel")
        self.session.key("j", *["shift+j"] * (len(to_do) - 1))
        self.velmora.app.find(name="^%d sélectionnés$" % len(to_do))
        self.pick("a", "Maud")
        self.session.key("p", "1")
        for key in to_do:
            self.see(key, "À faire", "priorité Urgente", "assigné à Maud Ferrand")
        self.session.key("Escape")
        self.velmora.tab_to("^Tout effacer$")
        self.session.key("Return")
        self.see_count(15)

    def take_the_backlog_one_by_one(self):
        self.velmora.tab_to("^Affichage$")
        self.session.key("space")
        self.velmora.app.find(name="^Regrouper par$", states=("focused",))
        self.session.key("space", "Up", "Return", "Escape", delay=0.2)
        for key in in_status("WEB", 0):
            self.go_to(key)
            self.session.key("i")
            self.see(key, "Backlog", "assigné à Noam Talvère")
            self.set_status("À faire")
            self.see(key, "À faire", "assigné à Noam Talvère")
            self.velmora.wait_focus(key)

    def search_and_finish_two(self):
        self.session.key("ctrl+f")
        self.session.type("factur")
        self.session.key("Return")
        self.see_count(3)
        for key in ("WEB-202", "WEB-201"):
            self.go_to(key)
            self.set_status("Terminé")
            self.see(key, "Terminé")
        self.session.key("Escape")
        self.see_count(15)

    def read_six_in_the_inspector(self):
        self.open_project("MOB")
        self.session.key("j", "Return")
        six = []
        for _ in range(6):
            self.velmora.app.find(role="panel", name="^Inspecteur$")
            key = self.velmora.focused_key()
            self.velmora.app.find(name="^Copier la clé %s$" % key)
            self.session.key("p", "2")
            self.see(key, "priorité Haute")
            six.append(key)
            self.session.key("j")
            wait_until(lambda: self.velmora.focused_key() not in six, 5, 0.05, "the next row")
        self.session.key("Escape")
        self.velmora.app.gone(role="panel", name="^Inspecteur$")

    def move_three_on_the_board(self):
        self.open_project("DS")
        self.session.key("2")
        self.velmora.app.find(role="list", name="^À faire, ")
        three = in_status("DS", 1) + in_status("DS", 0)[:1]
        for key in three:
            self.go_to(key)
            self.session.key("x")
        self.velmora.app.find(name="^3 sélectionnés$")
        self.set_status("En cours")
        self.session.key("l")
        self.session.type("docs")
        self.velmora.app.find(role="list item", name="^docs$", states=("focused",))
        # The picker stays open for more labels. Escape clears its text, then closes it, then closes the palette.
        self.session.key("Return", "Escape", "Escape", "Escape")
        self.velmora.app.gone(role="text", states=("focused",))
        for key in three:
            self.see(key, "En cours")
        self.session.key("Escape", "1")

    def empty_the_support_queue(self):
        self.open_project("SUP")
        for key, status in zip(in_status("SUP", 2) + in_status("SUP", 3) + in_status("SUP", 1),
                               ("Terminé", "En cours", "Annulé")):
            self.go_to(key)
            self.pick("a", "Elsa")
            self.set_status(status)
            self.see(key, status, "assigné à Elsa Karoubi")
