"""The base of the long tests in the demo: twenty issues that change, and the checks of each change."""
import re

import demo_lists
from driver import DriverError, wait_until
from support import ISSUE, RUN, WindowCase

PROJECTS = {"MOB": "App mobile", "WEB": "Plateforme web", "DS": "Design System", "SUP": "Support client"}
# The digit that chooses each status in its picker.
STATUS_DIGITS = {title: str(number + 1) for number, title in enumerate(demo_lists.STATUSES)}
SMALL, LARGE = (940, 580), (2560, 1440)


def in_status(project, status):
    """The keys of a project's issues in one status, from top to bottom."""
    return dict(demo_lists.project(project))[demo_lists.STATUSES[status]]


def see_row(velmora, key, *words):
    """Waits until the row or card of the issue contains these words, in this order."""
    try:
        velmora.app.find(role="list item", name="^%s, .*%s" % (key, ".*".join(map(re.escape, words))))
    except DriverError:
        rows = velmora.app.all(role="list item", name="^%s, " % key)
        raise AssertionError("%s should say %s, and says %s" % (key, words, [row.name for row in rows])) from None


class TriageCase(WindowCase):
    """Each renderer has a window of a different size and appearance, given as (software, OpenGL)."""

    worlds = ((SMALL, "dark"), (LARGE, "light"))
    is_long = True

    def setUp(self):
        self.size, self.appearance = self.worlds[RUN.renderer == "opengl"]
        self.screen = self.size
        super().setUp()
        self.triaged = {}

    def open_walk(self):
        self.velmora = self.open_demo(size=self.size, appearance=self.appearance)
        return self.velmora

    # what the user sees
    def see(self, key, *words):
        """Waits until the row or card of the issue contains these words, and counts the issue as triaged."""
        see_row(self.velmora, key, *words)
        self.triaged[key] = words

    def see_title(self, title):
        wait_until(lambda: self.velmora.title() == title, 5, 0.05, "the heading %r" % title)

    def see_count(self, count):
        """Waits for this number of issues in the line below the heading."""
        self.velmora.app.find(role="label", name="^%s$" % ("1 ticket" if count == 1 else "%d tickets" % count))

    def see_groups(self, *titles):
        """Waits for these groups, from top to bottom; in a low window for the visible ones."""
        seen = []

        def look():
            seen[:] = [title for title, _ in self.velmora.listed() if title]
            return seen and seen == list(titles[:len(seen)])
        try:
            wait_until(look, 5, 0.1)
        except DriverError:
            raise AssertionError("expected the groups %s, saw %s" % (titles, seen)) from None

    def issues_in_sight(self):
        """The visible keys in the order in which J moves the focus, and the focused one, or None."""
        rows = self.velmora.app.all(role="list item", name=ISSUE.pattern)
        in_columns = sorted(rows, key=lambda row: row.rect[:2])
        focused = [key_of(row) for row in rows if "focused" in row.states]
        return [key_of(row) for row in in_columns], focused[0] if focused else None

    def end(self):
        self.assertEqual(len(self.triaged), 20)


def key_of(row):
    return ISSUE.match(row.name).group(1)
