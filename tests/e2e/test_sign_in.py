"""Signing in to a site and out again, with a real keyring and a simulated site."""
import os
import re

from driver import wait_until
from site_case import SiteCase
from support import ISSUE


class SignIn(SiteCase):
    renderers = ("software",)

    def sign_out(self, velmora):
        velmora.app.find(role="push button", name="^Espace ").click()
        velmora.app.find(role="menu item", name="^Se déconnecter$").click()

    # what the user sees
    def wait_sentence(self, velmora, sentence):
        velmora.app.find(name=re.escape(sentence), timeout=15)
        self.assertEqual(velmora.app.all(role="list item", name=ISSUE.pattern), [])

    def fields(self, velmora):
        return [velmora.app.find(role="text", name=name).text for name in ("^Site Jira", "^E-mail du compte")]

    def test_in_and_out_with_an_email(self):
        velmora = self.open_card()
        self.sign_in(velmora, self.site.email)
        self.wait_issues(velmora)
        velmora.scope("Récemment consultés").click()
        wait_until(lambda: velmora.title() == "Récemment consultés", 8, 0.1, "the other list")
        self.sign_out(velmora)
        velmora.app.find(role="push button", name="^Se connecter$")
        self.assertEqual(self.fields(velmora), [self.site.address, self.site.email])

    def test_a_personal_token_without_an_email_is_kept_over_a_restart(self):
        velmora = self.open_card()
        self.sign_in(velmora, "")
        self.wait_issues(velmora)
        velmora.app.stop()
        again = self.open()
        self.wait_issues(again)
        self.sign_out(again)
        again.app.find(role="push button", name="^Se connecter$")
        again.app.stop()
        self.open_card()

    def test_a_wrong_token_says_so_and_can_be_mended(self):
        velmora = self.open_card()
        self.sign_in(velmora, self.site.email, token="faux")
        self.wait_sentence(velmora, "Jira a refusé les identifiants (401). Vérifie l'e-mail et le token API.")
        self.session.key("ctrl+a")
        self.session.type(self.site.token)
        self.session.key("Return")
        self.wait_issues(velmora)

    def test_an_unknown_host_says_so(self):
        velmora = self.open_card()
        self.sign_in(velmora, self.site.email, site="http://jira.nulle-part.invalid")
        self.wait_sentence(velmora, "Serveur introuvable. Vérifie l'adresse du site et ta connexion à Internet.")

    def test_data_center_with_an_older_interface_says_so(self):
        velmora = self.open_card()
        self.sign_in(velmora, "", site=self.site.data_center)
        self.wait_sentence(velmora, "null for uri: %s/rest/api/3/myself" % self.site.data_center)

    def test_a_cut_cable_says_so(self):
        velmora = self.open_card()
        self.site.cut()
        self.sign_in(velmora, self.site.email)
        self.wait_sentence(velmora, "Le serveur refuse la connexion. Vérifie l'adresse du site.")

    def test_a_site_that_is_down_at_the_start_is_told_and_the_window_lives(self):
        velmora = self.open_card()
        self.sign_in(velmora, self.site.email)
        self.wait_issues(velmora)
        velmora.app.stop()
        self.site.cut()
        self.wait_sentence(self.open(), "Le serveur refuse la connexion. Vérifie l'adresse du site.")

    def test_the_token_is_in_no_file(self):
        velmora = self.open_card()
        self.sign_in(velmora, self.site.email)
        self.wait_issues(velmora)
        velmora.app.stop()
        holding = []
        for folder, _, names in os.walk(self.session.dir):
            for name in names:
                path = os.path.join(folder, name)
                if os.path.isfile(path) and name != "simulator.log":
                    with open(path, "rb") as file:
                        if self.site.token.encode() in file.read():
                            holding.append(path)
        self.assertEqual(holding, [])
