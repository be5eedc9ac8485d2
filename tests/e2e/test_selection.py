"""Several issues are selected, changed and copied by keyboard only."""
import demo_lists
from driver import wait_until
from support import WindowCase

SPRINT = [key for _, keys in demo_lists.sprint("MOB") for key in keys]


class Selection(WindowCase):
    renderers = ("software",)

    def open_sprint(self):
        velmora = self.open_demo()
        velmora.scope("App mobile").click()
        velmora.scope("Sprint actif, App mobile").click()
        velmora.wait_listed(demo_lists.sprint("MOB"), "the sprint")
        self.session.key("Down")
        velmora.wait_focus(SPRINT[0])
        return velmora

    def checked(self, velmora):
        rows = velmora.app.all(role="list item", name=r"^[A-Z]+-\d+, ", states=("selected",), by_place=True)
        return [row.name.split(",")[0] for row in rows]

    def wait_copied(self, text):
        wait_until(lambda: self.session.clipboard() == text, 5, 0.1,
                   "%r on the pasteboard, not %r" % (text, self.session.clipboard()))

    def test_five_issues_across_groups_are_assigned_to_me(self):
        velmora = self.open_sprint()
        self.session.key("x", "Down", "x", "Down", "x", "Down", "x", "Down", "x")
        five = SPRINT[:5]
        wait_until(lambda: self.checked(velmora) == five, 5, 0.1, "five checked rows")
        self.session.key("i")
        for key in five:
            velmora.app.find(role="list item", name="^%s, .*assigné à Noam Talvère, " % key)

    def test_shift_and_the_arrow_keys_extend_the_selection(self):
        velmora = self.open_sprint()
        self.session.key("shift+Down", "shift+Down")
        wait_until(lambda: self.checked(velmora) == SPRINT[:3], 5, 0.1, "three checked rows")

    def test_a_click_with_control_adds_and_one_with_shift_spans(self):
        velmora = self.open_sprint()
        velmora.row(SPRINT[1]).click(mods=("ctrl",))
        velmora.row(SPRINT[3]).click(mods=("shift",))
        wait_until(lambda: self.checked(velmora) == SPRINT[1:4], 5, 0.1, "rows two to four checked")

    def test_escape_drops_the_selection_first(self):
        velmora = self.open_sprint()
        self.session.key("x")
        wait_until(lambda: self.checked(velmora) == SPRINT[:1], 5, 0.1, "one checked row")
        self.session.key("Escape")
        wait_until(lambda: self.checked(velmora) == [], 5, 0.1, "no checked row")

    def test_keys_branch_and_link_are_copied_by_their_shortcuts(self):
        velmora = self.open_sprint()
        self.session.key("x", "Down", "x", "ctrl+period")
        self.wait_copied(", ".join(sorted(SPRINT[:2])))
        velmora.app.find(name="^Clés copié$")
        self.session.key("Escape", "ctrl+shift+period")
        self.assertTrue(wait_until(lambda: (self.session.clipboard() or "").startswith("feature/%s-" % SPRINT[1]), 5))
        velmora.app.find(name="^Nom de branche copié$")
        self.session.key("ctrl+shift+comma")
        self.wait_copied("https://orvantis.atlassian.net/browse/" + SPRINT[1])
        velmora.app.find(name="^Lien copié$")

    def test_a_shortcut_counts_while_the_user_types(self):
        velmora = self.open_sprint()
        velmora.search_field().click()
        self.session.key("ctrl+period")
        self.wait_copied(SPRINT[0])


class Recap(WindowCase):
    renderers = ("software",)

    def test_last_weeks_recap_is_switched_to_the_team_copied_and_pasted(self):
        velmora = self.open_demo()
        velmora.scope("Semaine dernière").click()
        velmora.wait_recap(-1, "Semaine dernière")
        own = set(velmora.keys())
        # The choice is one stop of the Tab key, and the arrow keys choose.
        velmora.tab_to("^Moi$")
        self.session.key("Right")
        velmora.app.find(role="heading", name="^Semaine dernière · Équipe$")
        wait_until(lambda: set(velmora.keys()) > own, 8, 0.1, "the recap of the team")
        velmora.tab_to("^Copier le récap$")
        self.session.key("Return")
        velmora.app.find(name="^Récap copié$")
        report = self.session.clipboard()
        self.assertRegex(report, r"^## Semaine dernière \(équipe\) — du \d+ ")
        self.assertIn("**✅ Terminés (", report)
        self.assertRegex(report, r"(?m)^- [A-Z]+-\d+ .* — \w+$")
        velmora.search_field().click()
        self.session.key("ctrl+v")
        wait_until(lambda: velmora.search_field().text.startswith("## Semaine dernière (équipe)"), 5, 0.1, "the pasted report")

    def test_the_period_is_turned_back_and_forth(self):
        velmora = self.open_demo()
        velmora.scope("Cette semaine").click()
        velmora.wait_recap(0, "Cette semaine")
        velmora.app.find(role="push button", name="^Semaine précédente$").click()
        velmora.app.find(role="heading", name="^Semaine dernière$")
        velmora.app.find(role="push button", name="^Semaine suivante$").click()
        velmora.app.find(role="heading", name="^Cette semaine$")

    def test_the_sidebars_row_stays_selected_when_the_team_or_the_week_changes(self):
        velmora = self.open_demo()
        velmora.scope("Semaine dernière").click()
        velmora.app.find(name="^Équipe$").click()
        velmora.app.find(role="heading", name="^Semaine dernière · Équipe$")
        self.assertIn("selected", velmora.scope("Semaine dernière").states)
