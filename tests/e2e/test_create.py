"""A new issue is created on a site, also on one that answers slowly or not at all."""
from site_case import SiteCase


class Creating(SiteCase):
    renderers = ("software",)

    TITLE = "Prévenir avant l'expiration"
    DETAILS = "Le jeton expire sans prévenir."

    def setUp(self):
        super().setUp()
        self.velmora = self.open_card()
        self.sign_in(self.velmora, self.site.email)
        self.wait_issues(self.velmora)
        self.session.key("c")
        self.velmora.app.find(role="text", name="^Titre du ticket$", states=("focused",))
        # The type shows that the project was read.
        self.velmora.app.find(role="push button", name="^Type : (?!Type)", timeout=15)
        self.session.settle()
        self.session.type(self.TITLE)
        self.session.key("Tab")
        self.session.type(self.DETAILS)
        self.see_texts()

    def see_texts(self):
        """Waits until the fields contain what was typed."""
        self.velmora.app.find(role="text", name="^Titre du ticket$", text="^%s$" % self.TITLE)
        self.velmora.app.find(role="text", name="^Description$", text="^%s$" % self.DETAILS)

    def see_created(self):
        self.velmora.app.find(name="^[A-Z]+-\\d+ créé$", timeout=15)
        self.velmora.app.gone(role="text", name="^Titre du ticket$")

    def test_it_is_created_by_keyboard_alone_and_opened(self):
        self.session.key("ctrl+Return")
        self.see_created()
        self.velmora.app.find(name="^%s$" % self.TITLE, timeout=15)

    def test_a_slow_site_creates_one_issue_whatever_is_pressed(self):
        self.site.pause()
        self.session.key("ctrl+Return")
        self.velmora.app.find(name="^Création en cours$")
        self.session.key("ctrl+Return", "ctrl+Return")
        self.see_texts()
        self.site.go_on()
        self.see_created()
        self.assertEqual(len(self.velmora.app.all(role="notification|alert", name=" créé$")), 1)

    def test_a_site_that_is_gone_leaves_every_field_and_the_draft(self):
        self.site.cut()
        self.session.key("ctrl+Return")
        self.velmora.app.find(role="alert", timeout=40)
        self.see_texts()
        self.velmora.app.find(role="text", name="^Description$", states=("focused",))
        self.session.key("Escape")
        self.velmora.app.gone(role="text", name="^Titre du ticket$")
        self.session.key("c")
        self.velmora.app.find(role="text", name="^Titre du ticket$", states=("focused",))
        self.session.settle()
        self.velmora.app.find(role="push button", name="^Reprendre le brouillon$").click()
        self.see_texts()
