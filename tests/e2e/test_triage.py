"""On a site whose workflow refuses a change, the change is reverted and the reason is shown."""
import re

from driver import wait_until
from site_case import SiteCase
from triage_case import SMALL, see_row


class RefusedByTheWorkflow(SiteCase):
    """On this site only issues in progress can be moved to review."""

    screen = (1900, 1000)
    REFUSAL = "Le workflow Jira ne permet pas de passer à « En revue » depuis le statut actuel."

    def open_board(self, size=screen):
        velmora = self.open_card()
        velmora.app.move_window(0, 0, size=size)
        self.sign_in(velmora, self.site.email)
        self.wait_issues(velmora)
        self.session.key("ctrl+k")
        self.session.type("portail client")
        velmora.app.find(role="list item", name="^Portail client$", states=("focused",))
        self.session.key("Return")
        wait_until(lambda: velmora.title() == "Portail client", 8, 0.1, "the project")
        self.session.key("2")
        velmora.app.find(role="list", name="^À faire, ")
        self.session.settle()
        return velmora

    def to_do(self, velmora):
        """The cards of the status "to do", by position."""
        cards = velmora.app.all(role="list item", name=r"^PORT-\d+, .*, À faire, ", by_place=True)
        return [card.name.split(",")[0] for card in cards]

    def test_a_dropped_card_comes_back_and_says_why(self):
        velmora = self.open_board()
        first = self.to_do(velmora)[0]
        x, y, width, _ = velmora.row(first).rect
        to = velmora.app.find(role="list", name="^En revue, ").rect
        self.session.drag((x + width // 2, y + 45), (to[0] + to[2] // 2, to[1] + 200))
        velmora.app.find(role="alert", name=re.escape(self.REFUSAL))
        see_row(velmora, first, "À faire")
        self.assertEqual(self.to_do(velmora)[0], first)

    def test_two_cards_changed_by_keyboard_come_back_and_say_why(self):
        velmora = self.open_board(SMALL)
        two = self.to_do(velmora)[:2]
        while velmora.focused_key() != two[0]:
            self.session.key("j")
        self.session.key("x", "j", "x")
        velmora.app.find(name="^2 sélectionnés$")
        self.session.key("s")
        velmora.app.find(role="text", states=("focused",))
        self.session.type("en revue")
        velmora.app.find(role="list item", name="^En revue$", states=("focused",))
        self.session.key("Return")
        velmora.app.find(role="alert", name=re.escape(self.REFUSAL))
        for key in two:
            see_row(velmora, key, "À faire")
        velmora.wait_focus(two[1])
        velmora.app.find(name="^2 sélectionnés$")
