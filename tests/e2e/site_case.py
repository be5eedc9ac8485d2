"""A simulated Jira site, and the steps of signing in to it."""
import base64
import json
import os
import re
import socket
import urllib.parse
import urllib.request

from support import ISSUE, RUN, WindowCase


def held(port):
    """A socket that keeps a port without listening on it. A site of another test that runs at the same time could
    otherwise get the port, and answer in place of the one that was cut."""
    taken = socket.socket()
    # Connections of the site that are closing do not prevent it; afterwards nobody shares the port.
    taken.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
    taken.bind(("127.0.0.1", port))
    taken.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 0)
    return taken


class Simulator:
    """A running simulated Jira site."""

    def __init__(self, session):
        build = os.path.dirname(os.path.dirname(os.path.dirname(RUN.program)))
        program = os.path.join(build, "tests", "simulator", "simulator")
        self._held = []
        self._app = session.launch([program, "--any-port"], name="simulator")
        self._app.wait_log("Ctrl\\+C")
        said = self._app.log()
        self.address = re.search(r"\b300 issues\s+(\S+)", said).group(1)
        self.data_center = re.search(r"Data Center\s+(\S+)", said).group(1)
        self.email = re.search(r"E-mail\s+(\S+)", said).group(1)
        self.token = re.search(r"Token\s+(\S+)", said).group(1)

    def files_of(self, key):
        """The names of the files that the site has of an issue."""
        signature = base64.b64encode(("%s:%s" % (self.email, self.token)).encode()).decode()
        request = urllib.request.Request("%s/rest/api/3/issue/%s?fields=attachment" % (self.address, key),
                                         headers={"Authorization": "Basic " + signature})
        with urllib.request.urlopen(request, timeout=10) as answer:
            return [file["filename"] for file in json.load(answer)["fields"]["attachment"]]

    def pause(self):
        """Answers nothing from now on."""
        self._app.suspend()

    def go_on(self):
        self._app.resume()

    def cut(self):
        """Refuses every connection from now on."""
        self._stop()
        self._held = [held(urllib.parse.urlsplit(site).port) for site in (self.address, self.data_center)]

    def end(self):
        self._stop()
        for port in self._held:
            port.close()

    def _stop(self):
        self._app.resume()
        self._app.stop()


class SiteCase(WindowCase):
    """A test with a simulated site and a keyring."""

    def setUp(self):
        super().setUp()
        self.session.start_keyring()
        self.site = Simulator(self.session)
        self.addCleanup(self.site.end)

    # actions of the user
    def open_card(self):
        velmora = self.open()
        velmora.app.find(role="push button", name="^Se connecter$", timeout=15)
        return velmora

    def fill(self, site, email, token):
        """Fills the fields from the first, which has the focus, to the last."""
        for number, text in enumerate((site, email, token)):
            if number:
                self.session.key("Tab")
            self.session.type(text)

    def sign_in(self, velmora, email, token=None, site=None):
        self.fill(site or self.site.address, email, token or self.site.token)
        self.session.key("Return")

    def wait_issues(self, velmora):
        velmora.app.find(role="list item", name=ISSUE.pattern, timeout=15)
