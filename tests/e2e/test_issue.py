"""An issue is read and changed beside the list, by keyboard alone, also on a site that is slow or gone."""
from driver import wait_until
from site_case import SiteCase


class IssueByKeyboard(SiteCase):
    renderers = ("software",)

    screen = (1500, 1000)
    COMMENT = "C'est en cours."

    def setUp(self):
        super().setUp()
        self.velmora = self.open_card()
        self.velmora.app.move_window(0, 0, size=(1400, 900))
        self.sign_in(self.velmora, self.site.email)
        self.wait_issues(self.velmora)
        self.session.key("j", "Return")
        self.velmora.app.find(role="panel", name="^Inspecteur$")
        self.key = self.velmora.focused_key()
        self.velmora.app.find(name="^Copier la clé %s$" % self.key)
        self.session.settle()

    def has_focus(self, name):
        return any("focused" in node.states for node in self.velmora.app.all(role="text", name=name))

    def tab_to(self, name):
        """Presses Tab until the field of this name has the focus."""
        for _ in range(60):
            if self.has_focus(name):
                return
            self.session.key("Tab")
            self.session.settle()
        self.fail("Tab does not reach %s" % name)

    def see_field(self, text):
        self.velmora.app.find(role="text", name="^Commentaire$", text="^%s$" % text)

    def write_comment(self):
        self.tab_to("^Commentaire$")
        self.session.type(self.COMMENT)
        self.see_field(self.COMMENT)

    def sent_comments(self):
        return [node for node in self.velmora.app.all(name="^%s$" % self.COMMENT) if "editable" not in node.states]

    def test_it_is_renamed_and_the_list_shows_it(self):
        self.tab_to("^Titre$")
        self.session.key("ctrl+a")
        self.session.type("Un titre plus clair")
        self.session.key("Return")
        self.velmora.app.find(role="list item", name="^%s, Un titre plus clair, " % self.key)
        self.session.key("ctrl+r")
        self.session.settle()
        self.velmora.app.find(role="list item", name="^%s, Un titre plus clair, " % self.key)
        # The keys belong to the list again.
        self.session.key("j")
        wait_until(lambda: self.velmora.focused_key() != self.key, 5, 0.05, "the next row")

    def test_a_comment_is_sent_once_by_a_slow_site_whatever_is_pressed(self):
        self.write_comment()
        self.site.pause()
        self.session.key("ctrl+Return")
        self.velmora.app.find(name="^Envoi en cours$")
        self.session.key("ctrl+Return", "ctrl+Return")
        self.see_field(self.COMMENT)
        self.site.go_on()
        self.see_field("")
        self.session.key("ctrl+r")
        self.session.settle()
        self.velmora.app.find(name="^Commentaires$")
        wait_until(lambda: len(self.sent_comments()) == 1, 10, 0.1, "one comment")

    def test_a_comment_that_a_site_cannot_take_stays_in_its_field(self):
        self.write_comment()
        self.site.cut()
        self.session.key("ctrl+Return")
        self.velmora.app.find(role="alert", timeout=40)
        self.see_field(self.COMMENT)
        self.assertTrue(self.has_focus("^Commentaire$"))
        self.session.key("Escape")
        self.session.key("j")
        wait_until(lambda: self.velmora.focused_key() != self.key, 5, 0.05, "the next row")
        self.session.key("k")
        self.velmora.app.find(name="^Copier la clé %s$" % self.key)
        self.velmora.app.find(role="push button", name="^Reprendre le brouillon$").click()
        self.see_field(self.COMMENT)
