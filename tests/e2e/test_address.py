"""Issues that are opened by an address, as a browser passes it to the program."""
from driver import wait_until
from support import RUN, WindowCase


class Address(WindowCase):
    renderers = ("software",)

    def call(self, address):
        """Starts the program with an address beside the running one, and waits for the end of this second process."""
        second = self.session.launch([RUN.program, address], name="second")
        wait_until(lambda: not second.running, 10, 0.02, "end of the second process")
        self.assertEqual(second.proc.returncode, 0)
        self.assertEqual(second.log(), "")

    def test_a_second_start_opens_the_issue_in_the_running_program(self):
        velmora = self.open_demo()
        self.call("velmora:WEB-202")
        velmora.app.wait_window("WEB-202")
        velmora.app.find(role="heading", name="^Export CSV des factures avec filtres$")

    def test_the_page_of_another_site_opens_nothing(self):
        velmora = self.open_demo()
        self.call("https://other.example/browse/WEB-202")
        self.call("velmora:../../x")
        self.call("velmora:" + 10000 * "A" + "-1")
        # What is called afterwards is opened, so the others have been handled.
        self.call("https://orvantis.atlassian.net/browse/WEB-203")
        velmora.app.wait_window("WEB-203")
        self.assertIsNone(velmora.app.window("WEB-202"))
        self.assertEqual(len(velmora.app.windows()), 2)
