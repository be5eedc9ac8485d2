"""Triage as somebody does it who has just got the program: without the mouse, without the keyboard, and on a site whose
workflow refuses."""
import re

import demo_lists
from driver import wait_until
from site_case import SiteCase
from support import WindowCase

TO_DO = dict(demo_lists.project("WEB"))["À faire"]


def wait_row(velmora, key, *words):
    """Waits until the issue's row or card says all of these words."""
    velmora.app.find(role="list item", name="^%s, .*%s" % (key, ".*".join(words)))


class WithoutMouse(WindowCase):
    def choose_status_filter(self, velmora, steps_down):
        velmora.tab_to("^Filtrer$")
        self.session.key("space", "Down", "Right", *["Down"] * steps_down, "Return", delay=0.1)

    def group_by_assignee(self, velmora):
        velmora.tab_to("^Affichage$")
        self.session.key("space")
        velmora.app.find(name="^Regrouper par$", states=("focused",))
        self.session.key("space", "Down", "Return", "Escape", delay=0.2)

    def test_a_small_dark_window(self):
        velmora = self.open_demo(size=(940, 580), appearance="dark")
        self.session.key("ctrl+k")
        self.session.type("plateforme web")
        self.session.key("Return")
        wait_until(lambda: velmora.title() == "Plateforme web", 5, 0.1, "the project")

        self.choose_status_filter(velmora, 1)
        wait_until(lambda: velmora.keys() == TO_DO, 5, 0.1, "what is to do")
        self.group_by_assignee(velmora)
        wait_until(lambda: len(velmora.listed()) == len(TO_DO), 5, 0.1, "a group for each person")

        self.session.key("j", *["shift+j"] * (len(TO_DO) - 1))
        self.session.key("a")
        self.session.type("maud")
        self.session.key("Return")
        wait_until(lambda: [title for title, _ in velmora.listed()] == ["Maud Ferrand"], 5, 0.1, "Maud's group alone")
        self.session.key("p", "1")
        for key in TO_DO:
            wait_row(velmora, key, "À faire", "Urgente", "Maud Ferrand")

        self.session.key("Escape", "2", "s", "3", delay=0.2)
        velmora.app.find(role="list", name="^À faire, %d tickets$" % (len(TO_DO) - 1))
        velmora.tab_to("^Tout effacer$")
        self.session.key("Return")
        velmora.app.find(role="list", name="^En cours, 4 tickets$")


class WithoutKeyboard(WindowCase):
    screen = (2560, 1440)

    def take(self, velmora, key):
        """Where a card can be taken: between its head and its foot."""
        x, y, width, _ = velmora.row(key).rect
        return x + width // 2, y + 45

    def choose(self, velmora, *path):
        for role, name in path:
            velmora.app.find(role=role, name=name).click()
            self.session.settle()

    def test_a_large_light_window(self):
        velmora = self.open_demo(size=self.screen, appearance="light")
        velmora.scope("Plateforme web").click()
        velmora.app.find(role="list item", name="^WEB-210, ")
        self.choose(velmora, ("push button", "^Filtrer$"), ("menu item", "^Statut$"), ("menu item", "^À faire$"))
        wait_until(lambda: velmora.keys() == TO_DO, 5, 0.1, "what is to do")
        self.choose(velmora, ("push button", "^Affichage$"), ("combo box", "^Regrouper par$"),
                    ("menu item", "^Assigné$"))
        self.session.click((1800, 1300))
        wait_until(lambda: len(velmora.listed()) == len(TO_DO), 5, 0.1, "a group for each person")

        for key in TO_DO:
            velmora.app.find(role="check box", name="^Sélectionner %s$" % key).click()
        self.choose(velmora, ("push button", "^Assigner$"), ("list item", "^Maud Ferrand"))
        self.choose(velmora, ("push button", "^Priorité$"), ("list item", "^Urgente"))
        for key in TO_DO:
            wait_row(velmora, key, "À faire", "Urgente", "Maud Ferrand")

        self.choose(velmora, ("push button", "^Tout effacer$"), ("push button", "^Tableau$"))
        self.session.drag(self.take(velmora, TO_DO[0]), self.take(velmora, "WEB-202"))
        for key in TO_DO:
            wait_row(velmora, key, "En revue")
        self.choose(velmora, ("push button", "^Désélectionner"))
        velmora.app.gone(name="sélectionnés?$")


class RefusedByTheWorkflow(SiteCase):
    """On this site only what is under way can be reviewed."""

    screen = (1900, 1000)
    REFUSAL = "Le workflow Jira ne permet pas de passer à « En revue » depuis le statut actuel."

    def open_board(self):
        velmora = self.open_card()
        velmora.app.move_window(0, 0, size=self.screen)
        self.sign_in(velmora, self.site.email)
        self.wait_issues(velmora)
        self.session.key("ctrl+k")
        self.session.type("portail client")
        velmora.app.find(role="list item", name="^Portail client$", states=("focused",))
        self.session.key("Return")
        wait_until(lambda: velmora.title() == "Portail client", 8, 0.1, "the project")
        self.session.key("2")
        velmora.app.find(role="list", name="^En revue, ")
        return velmora

    def to_do(self, velmora):
        """The cards of what is to do, by place."""
        cards = velmora.app.all(role="list item", name=r"^PORT-\d+, .*, À faire, ", by_place=True)
        return [card.name.split(",")[0] for card in cards]

    def test_a_dropped_card_comes_back_and_says_why(self):
        velmora = self.open_board()
        first = self.to_do(velmora)[0]
        x, y, width, _ = velmora.row(first).rect
        to = velmora.app.find(role="list", name="^En revue, ").rect
        self.session.drag((x + width // 2, y + 45), (to[0] + to[2] // 2, to[1] + 200))
        velmora.app.find(role="push button", name=re.escape(self.REFUSAL))
        wait_row(velmora, first, "À faire")
        self.assertEqual(self.to_do(velmora)[0], first)
