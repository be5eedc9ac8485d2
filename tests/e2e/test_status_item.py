"""The status item, and how long the process runs."""
import demo_lists
from driver import Session, wait_until
from support import RUN, SCREEN, WindowCase

COMMANDS = ["", "Nouveau ticket…", "Actualiser", "", "Ouvrir Velmora", "Quitter"]


class StatusItem(WindowCase):
    def setUp(self):
        self.session = Session(size=SCREEN, renderer=RUN.renderer, tray=True)
        self.addCleanup(self.session.stop)
        self.programs = []

    def open_with_item(self):
        velmora = self.open_demo()
        item = self.session.tray()
        wait_until(lambda: any(entry["label"].startswith("MOB-101") for entry in item.menu()), 10, 0.1,
                   "the open issues in the menu")
        return velmora, item

    def test_the_menu_lists_the_open_issues_with_their_icons(self):
        _, item = self.open_with_item()
        menu = item.menu()
        heading, issues, commands = menu[0], menu[1:-len(COMMANDS)], menu[-len(COMMANDS):]
        self.assertEqual((heading["label"], heading["enabled"]), ("Mes tickets ouverts", False))
        self.assertEqual([entry["label"].split("  ")[0] for entry in issues],
                         ["MOB-101", "SUP-41", "MOB-112", "WEB-202", "WEB-203", "MOB-103", "DS-33"])
        self.assertTrue(all(entry["icon"].startswith(b"\x89PNG") for entry in issues))
        self.assertEqual([entry["label"] for entry in commands], COMMANDS)
        self.assertEqual(commands[-1]["shortcut"], [["Control", "Q"]])

    def test_an_issue_opens_in_a_window_of_its_own(self):
        velmora, item = self.open_with_item()
        item.choose("^SUP-41")
        velmora.app.wait_window("SUP-41")
        item.choose("^SUP-41")
        self.session.settle()
        self.assertEqual(len([window for window in velmora.app.windows() if "SUP-41" in window.title]), 1)

    def test_refreshing_leaves_the_menu_as_it_is_known(self):
        _, item = self.open_with_item()
        before = [entry["label"] for entry in item.menu()]
        item.choose("^Actualiser$")
        self.session.settle()
        wait_until(lambda: [entry["label"] for entry in item.menu()] == before, 10, 0.1, "the same issues")

    def test_the_process_lives_on_without_a_window_and_comes_back(self):
        velmora, item = self.open_with_item()
        velmora.app.close_window("Velmora")
        velmora.app.wait_no_window("Velmora")
        self.session.settle()
        self.assertTrue(velmora.app.running)
        item.choose("^Ouvrir Velmora$")
        velmora.app.wait_window("Velmora")
        velmora.wait_listed(demo_lists.mine(), "the list of before")

    def test_quitting_ends_the_process(self):
        velmora, item = self.open_with_item()
        item.choose("^Quitter$")
        wait_until(lambda: not velmora.app.running, 10, 0.05, "the end of the process")


class Process(WindowCase):
    renderers = ("software",)

    def test_without_a_host_the_process_ends_with_its_last_window(self):
        velmora = self.open_demo()
        velmora.app.close_window("Velmora")
        wait_until(lambda: not velmora.app.running, 10, 0.05, "the end of the process")

    def test_a_second_start_brings_the_first_forward_and_ends(self):
        velmora = self.open_demo()
        second = self.session.launch([RUN.program], name="second")
        wait_until(lambda: not second.running, 10, 0.05, "the end of the second process")
        self.assertEqual(second.log(), "")
        self.assertTrue(velmora.app.running)
        self.assertEqual(len(velmora.app.windows()), 1)

    def test_a_second_start_opens_a_window_where_none_is_there(self):
        self.session.stop()
        self.session = Session(size=SCREEN, renderer=RUN.renderer, tray=True)
        self.addCleanup(self.session.stop)
        velmora = self.open_demo()
        self.session.tray()
        velmora.app.close_window("Velmora")
        velmora.app.wait_no_window("Velmora")
        second = self.session.launch([RUN.program], name="second")
        velmora.app.wait_window("Velmora")
        wait_until(lambda: not second.running, 10, 0.05, "the end of the second process")
