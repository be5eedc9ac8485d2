"""What a long way through the demo needs: twenty issues that change, and what has to be seen of each."""
import re

import demo_lists
from driver import DriverError, wait_until
from support import ISSUE, RUN, WindowCase

PROJECTS = {"MOB": "App mobile", "WEB": "Plateforme web", "DS": "Design System", "SUP": "Support client"}
# The order in which statuses are offered, as digits choose them.
STATUS_DIGITS = {title: str(number + 1) for number, title in enumerate(demo_lists.STATUSES)}
SMALL, LARGE = (940, 580), (2560, 1440)


def in_status(project, status):
    """The keys of a project's issues in one status, from top to bottom."""
    return dict(demo_lists.project(project))[demo_lists.STATUSES[status]]


def see_row(velmora, key, *words):
    """Waits until the issue's row or card says these words, in this order."""
    try:
        velmora.app.find(role="list item", name="^%s, .*%s" % (key, ".*".join(map(re.escape, words))))
    except DriverError:
        rows = velmora.app.all(role="list item", name="^%s, " % key)
        raise AssertionError("%s should say %s, and says %s" % (key, words, [row.name for row in rows])) from None


class TriageCase(WindowCase):
    """Each renderer walks in a window of another size and appearance, given as (software, OpenGL)."""

    worlds = ((SMALL, "dark"), (LARGE, "light"))

    def setUp(self):
        self.size, self.appearance = self.worlds[RUN.renderer == "opengl"]
        self.screen = self.size
        super().setUp()
        self.triaged = {}

    def open_walk(self):
        self.velmora = self.open_demo(size=self.size, appearance=self.appearance)
        return self.velmora

    # what a person sees
    def see(self, key, *words):
        """Waits until the issue's row or card says these words, and remembers that it was dealt with."""
        see_row(self.velmora, key, *words)
        self.triaged[key] = words

    def see_title(self, title):
        wait_until(lambda: self.velmora.title() == title, 5, 0.05, "the heading %r" % title)

    def see_count(self, count):
        """The line under the heading."""
        self.velmora.app.find(role="label", name="^%s$" % ("1 ticket" if count == 1 else "%d tickets" % count))

    def see_groups(self, *titles):
        """All groups from top to bottom; in a low window those in sight."""
        seen = []

        def look():
            seen[:] = [title for title, _ in self.velmora.listed() if title]
            return seen and seen == list(titles[:len(seen)])
        try:
            wait_until(look, 5, 0.1)
        except DriverError:
            raise AssertionError("expected the groups %s, saw %s" % (titles, seen)) from None

    def issues_in_sight(self):
        """The keys in the order in which j walks them, and the one with the focus, if it is among them."""
        rows = self.velmora.app.all(role="list item", name=ISSUE.pattern)
        in_columns = sorted(rows, key=lambda row: row.rect[:2])
        focused = [key_of(row) for row in rows if "focused" in row.states]
        return [key_of(row) for row in in_columns], focused[0] if focused else None

    def end(self):
        self.assertEqual(len(self.triaged), 20)


def key_of(row):
    return ISSUE.match(row.name).group(1)
