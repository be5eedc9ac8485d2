"""Closing the program while the site has not answered to a change, and a list that cannot be refreshed."""
from driver import wait_until
from site_case import SiteCase


class Closing(SiteCase):
    renderers = ("software",)

    def setUp(self):
        super().setUp()
        self.velmora = self.open_card()
        self.sign_in(self.velmora, self.site.email)
        self.wait_issues(self.velmora)

    def change_a_priority(self):
        """Picks a low priority for the first issue, which has a high one, by keyboard."""
        self.session.key("j", "p")
        self.velmora.app.find(role="list item", name="^Urgente")
        self.session.key("4")
        self.velmora.app.gone(role="list item", name="^Basse$")

    def test_the_program_waits_for_a_change_and_then_ends(self):
        self.site.pause()
        self.change_a_priority()
        self.session.key("ctrl+w")
        self.velmora.app.find(role="dialog", name="^Enregistrement en cours", timeout=15)
        self.site.go_on()
        wait_until(lambda: not self.velmora.app.running, 15, 0.1, "the end of the program")

    def test_whoever_stays_has_the_list_again(self):
        self.site.pause()
        self.change_a_priority()
        self.session.key("ctrl+w")
        self.velmora.app.find(role="dialog", name="^Enregistrement en cours", timeout=15)
        self.session.key("Escape")
        self.velmora.app.gone(role="dialog", name="^Enregistrement en cours")
        self.site.go_on()
        before = self.velmora.focused_key()
        self.session.key("j")
        wait_until(lambda: self.velmora.focused_key() not in (None, before), 8, 0.1, "the next issue")

    def test_a_refresh_that_fails_is_told_beside_the_count(self):
        self.site.cut()
        self.session.key("ctrl+r")
        self.velmora.app.find(name="^Liste pas à jour, ", timeout=15)
