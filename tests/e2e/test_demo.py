"""The demo is opened at the first start, and again after a restart."""
import demo_lists
from support import ISSUE, WindowCase


class FirstStart(WindowCase):
    renderers = ("software",)

    def test_a_new_profile_opens_on_the_first_screen(self):
        velmora = self.open()
        velmora.app.find(role="push button", name="^Explorer en mode démo$")
        self.assertEqual(velmora.app.all(role="list item", name=ISSUE.pattern), [])

    def test_a_click_on_the_demo_button_opens_my_issues(self):
        velmora = self.open()
        velmora.app.find(role="push button", name="^Explorer en mode démo$").click()
        velmora.wait_listed(demo_lists.mine(), "my issues")
        self.assertEqual(velmora.title(), "Mes tickets")

    def test_the_demo_button_works_by_keyboard(self):
        velmora = self.open()
        velmora.tab_to("^Explorer en mode démo$")
        self.session.key("space")
        velmora.wait_listed(demo_lists.mine(), "my issues")

    def test_the_demo_button_works_for_a_screen_reader(self):
        velmora = self.open()
        velmora.app.find(role="push button", name="^Explorer en mode démo$").press()
        velmora.wait_listed(demo_lists.mine(), "my issues")


class Restart(WindowCase):
    renderers = ("software",)

    def test_a_demo_opened_once_is_there_again_after_a_restart(self):
        first = self.open()
        first.app.find(role="push button", name="^Explorer en mode démo$").click()
        first.wait_listed(demo_lists.mine(), "my issues, first start")
        first.app.stop()
        self.open().wait_listed(demo_lists.mine(), "my issues, second start")
