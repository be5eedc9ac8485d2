"""Every list of the sidebar, by mouse and by keyboard."""
import demo_lists
from support import WindowCase

PROJECTS = {"MOB": "App mobile", "WEB": "Plateforme web", "DS": "Design System", "SUP": "Support client"}


class Scopes(WindowCase):
    renderers = ("software",)

    def test_the_recaps_by_mouse(self):
        velmora = self.open_demo()
        for name, offset in (("Cette semaine", 0), ("Semaine dernière", -1)):
            with self.subTest(scope=name):
                velmora.scope(name).click()
                velmora.wait_recap(offset, name)
                self.assertEqual(velmora.title(), name)

    def test_the_personal_scopes_by_mouse(self):
        velmora = self.open_demo()
        velmora.wait_listed(demo_lists.mine(), "Mes tickets")
        scopes = [("Récemment consultés", demo_lists.recent()), ("Créés par moi", demo_lists.reported()),
                  ("Mes tickets", demo_lists.mine())]
        for name, expected in scopes:
            with self.subTest(scope=name):
                velmora.scope(name).click()
                velmora.wait_listed(expected, name)
                self.assertEqual(velmora.title(), name)

    def test_all_lists_of_the_projects_by_mouse(self):
        velmora = self.open_demo()
        for key, name in PROJECTS.items():
            views = [(name, name, demo_lists.project(key)),
                     ("Sprint actif, " + name, name + " · Sprint actif", demo_lists.sprint(key)),
                     ("Backlog, " + name, name + " · Backlog", demo_lists.backlog(key)),
                     ("Tickets, " + name, name, demo_lists.project(key))]
            for row, title, expected in views:
                with self.subTest(scope=row):
                    velmora.scope(row).click()
                    velmora.wait_listed(expected, row)
                    self.assertEqual(velmora.title(), title)

    def test_the_sidebar_is_walked_by_keyboard_once_it_has_the_focus(self):
        velmora = self.open_demo()
        velmora.tab_to("^Mes tickets, .* ouverts$")
        self.session.key("Down")
        velmora.wait_listed(demo_lists.recent(), "Récemment consultés")
        self.session.key("Down")
        velmora.wait_listed(demo_lists.reported(), "Créés par moi")
        self.session.key("Down")
        velmora.wait_recap(0, "Cette semaine")
        self.session.key("Down")
        velmora.wait_recap(-1, "Semaine dernière")
        self.session.key("Down")
        velmora.wait_listed(demo_lists.project("MOB"), "App mobile")
        self.session.key("Down")
        velmora.wait_listed(demo_lists.sprint("MOB"), "App mobile, sprint")
        self.session.key("Up")
        velmora.wait_listed(demo_lists.project("MOB"), "App mobile")
        self.session.key("Up")
        velmora.wait_recap(-1, "Semaine dernière")

    def test_the_views_of_a_project_stand_only_under_the_project_in_sight(self):
        velmora = self.open_demo()
        velmora.scope("App mobile").click()
        velmora.app.find(name="^Backlog, App mobile$")
        velmora.scope("Design System").click()
        velmora.app.find(name="^Backlog, Design System$")
        velmora.app.gone(name="^Backlog, App mobile$")
        velmora.scope("Mes tickets").click()
        velmora.app.gone(name="^Backlog, Design System$")

    def test_the_row_of_my_issues_counts_those_that_are_open(self):
        velmora = self.open_demo()
        still_open = [key for title, keys in demo_lists.mine() if title not in ("Terminé", "Annulé") for key in keys]
        velmora.app.find(name="^Mes tickets, %d tickets ouverts$" % len(still_open))


class Rows(WindowCase):
    renderers = ("software",)

    def test_a_row_reads_as_a_sentence(self):
        velmora = self.open_demo()
        self.assertRegex(velmora.row("MOB-101").name,
                         "^MOB-101, Connexion avec Apple : le jeton expire après 24 h, En cours, priorité Urgente, "
                         "assigné à Noam Talvère, étiquettes auth et ios, échéance le \\d+ \\w+( \\d{4})?, 1 sur 3$")

    def test_a_row_without_priority_and_assignee_says_so(self):
        velmora = self.open_demo()
        velmora.scope("Design System").click()
        self.assertEqual(velmora.row("DS-35").name,
                         "DS-35, Icônes : passer à un sprite SVG, Backlog, aucune priorité, non assigné, étiquette icons, "
                         "2 sur 2")

    def test_a_click_on_a_header_folds_its_group_and_another_unfolds_it(self):
        velmora = self.open_demo()
        whole = demo_lists.mine()
        folded = [(title, [] if title == "En cours" else keys) for title, keys in whole]
        velmora.header("En cours").click()
        velmora.wait_listed(folded, "with one group folded")
        self.assertIn(", replié", velmora.header("En cours").name)
        velmora.header("En cours").click()
        velmora.wait_listed(whole, "with all groups unfolded")

    def test_a_click_on_a_row_gives_it_the_focus(self):
        velmora = self.open_demo()
        velmora.row("WEB-203").click()
        velmora.wait_focus("WEB-203")

    def test_everything_that_can_be_pressed_or_typed_into_has_a_name(self):
        velmora = self.open_demo()
        velmora.scope("App mobile").click()
        velmora.app.find(name="^Backlog, App mobile$")
        nameless = [node.line() for node in velmora.app.all(role="button|list item|text|check box|menu|entry")
                    if not node.name.strip()]
        self.assertEqual(nameless, [])
