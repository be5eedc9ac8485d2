"""A site, or somebody in its place, answers what no site should. The program says so and keeps its list."""
import gzip
import os
import re
import shlex
import shutil

from driver import wait_until
from false_site import FalseSite
from release_case import CERTIFICATES, TRUSTING, can_mount
from site_case import SiteCase
from support import RUN, WINDOW, Velmora

MIB = 1 << 20
SEARCH = "POST /rest/api/3/search/jql"
CHANGE = r"PUT /rest/api/3/issue/[^/]+$"
LOST = "La connexion au serveur a été interrompue."
TOO_LARGE = "La réponse du serveur est trop volumineuse."
REDIRECTED = "Le site n'a pas fait la modification : il redirige vers une autre page."


def head(status, *lines):
    return "\r\n".join(["HTTP/1.1 %d Status" % status, "Connection: close", *lines, "", ""]).encode()


def cut_short():
    yield head(200, "Content-Type: application/json", "Content-Length: 50000") + b'{"issues":['


def cut_in_its_chunks():
    yield head(200, "Transfer-Encoding: chunked") + b'b\r\n{"issues":[\r\n'


def longer_than_announced():
    yield head(200, "Content-Type: application/json", "Content-Length: 5") + b'{"issues":[]}'


def packed_gibibyte():
    """A mebibyte that unpacks to a gibibyte."""
    member = gzip.compress(bytes(16 * MIB))
    body = member * 64
    yield head(200, "Content-Encoding: gzip", "Content-Length: %d" % len(body)) + body


def endless():
    yield head(200, "Content-Type: application/json", "Transfer-Encoding: chunked")
    while True:
        yield b"100000\r\n" + b" " * MIB + b"\r\n"


def large_text():
    yield head(500, "Content-Type: text/plain", "Content-Length: %d" % (30 * MIB))
    yield (b"Panne. " * (5 * MIB))[:30 * MIB]


def large_error():
    body = b'{"errorMessages":["' + b"Erreur. " * (30 * MIB // 8) + b'"]}'
    yield head(500, "Content-Type: application/json", "Content-Length: %d" % len(body)) + body


def nothing():
    return ()


class FalseAnswers(SiteCase):
    """Over TLS where the kernel lets users mount in a namespace of their own, so that the program trusts the site."""
    renderers = ("software",)
    is_long = True
    # What the program may need at most, in MiB. It needs about 200, and keeps at most 64 of a response.
    LIMIT = 500

    def setUp(self):
        super().setUp()
        self.false = FalseSite(self.site.address, can_mount())
        self.addCleanup(self.false.stop)
        self.velmora = self.open_card()
        self.sign_in(self.velmora, self.site.email, site=self.false.address)
        self.wait_issues(self.velmora)
        self.session.settle()

    def open(self, size=WINDOW):
        """Starts the program so that it trusts the authority of the tests."""
        if not can_mount():
            return super().open(size)
        trusted = os.path.join(self.session.dir, "trusted")
        os.mkdir(trusted)
        shutil.copy(os.path.join(CERTIFICATES, "authority.pem"), trusted)
        script = os.path.join(self.session.dir, "trusting")
        with open(script, "w") as file:
            file.write("#!/bin/sh\nexec %s\n" % shlex.join([*TRUSTING, trusted, RUN.program]))
        os.chmod(script, 0o700)
        self.programs.append(Velmora(self.session, script, size))
        return self.programs[-1]

    def most_memory(self):
        with open("/proc/%d/status" % self.velmora.app.pid) as file:
            return int(re.search(r"VmHWM:\s+(\d+) kB", file.read()).group(1)) // 1024

    def see_alert(self, pattern):
        self.velmora.app.find(role="alert", name=pattern, timeout=30)
        self.velmora.app.gone(role="alert", name=pattern, timeout=15)

    def test_no_answer_to_a_search_empties_the_list_or_the_memory(self):
        before = self.velmora.keys()
        lost, too_large = ("^%s$" % re.escape(each) for each in (LOST, TOO_LARGE))
        unreadable = "^Réponse Jira illisible : "
        # Qt 6.4 does not always notice that the last chunk is missing.
        answers = [(cut_short, lost), (cut_in_its_chunks, "%s|%s" % (lost, unreadable)),
                   (longer_than_announced, unreadable), (packed_gibibyte, too_large), (endless, too_large),
                   (large_text, r"^(Panne\. ){42}"), (large_error, r"^(Erreur\. ){125}…$")]
        for answer, sentence in answers:
            self.false.answer(SEARCH, answer)
            self.session.key("ctrl+r")
            self.see_alert(sentence)
            self.assertEqual(self.velmora.keys(), before, answer.__name__)
        self.assertLess(self.most_memory(), self.LIMIT)
        self.false.recover()
        asked = self.false.count(SEARCH)
        self.session.key("ctrl+r")
        wait_until(lambda: self.false.count(SEARCH) > asked, 10, 0.1, "another search")
        self.session.settle()
        self.assertEqual(self.velmora.keys(), before)

    def change_priority(self, name):
        self.session.key("p")
        self.velmora.app.find(role="text", states=("focused",))
        self.session.type(name)
        self.velmora.app.find(role="list item", name="^%s$" % name, states=("focused",))
        self.session.key("Return")

    def test_a_change_is_sent_once_and_to_this_site_only(self):
        elsewhere = FalseSite(is_secure=can_mount())
        self.addCleanup(elsewhere.stop)
        self.session.key("j")
        key = self.velmora.focused_key()
        before = self.velmora.row(key).name
        other = "Moyenne" if "priorité Urgente" in before else "Urgente"
        answers = [("%d to another site" % status, REDIRECTED, self.redirect(status, elsewhere.address + "/there"))
                   for status in (302, 307, 308)]
        answers += [("a page to sign in", REDIRECTED, self.redirect(303, "/login.jsp")), ("no answer", LOST, nothing)]
        for what, sentence, answer in answers:
            self.false.seen.clear()
            self.false.answer(CHANGE, answer)
            self.change_priority(other)
            self.see_alert("^%s$" % re.escape(sentence))
            self.assertEqual(self.false.count("PUT "), 1, what)
            self.assertEqual(self.false.count("GET /login.jsp"), 0, what)
            self.assertEqual(self.velmora.row(key).name, before, what)
        self.assertEqual(elsewhere.seen, [])

    @staticmethod
    def redirect(status, address):
        return lambda: [head(status, "Location: %s" % address, "Content-Length: 0")]
