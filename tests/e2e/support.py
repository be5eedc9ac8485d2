"""The base of the window tests: a desktop with the program, and operations on the program."""
import datetime
import os
import re
import unittest

import demo_lists
from driver import DriverError, Session, wait_until

ISSUE = re.compile(r"^([A-Z]+-\d+), ")
HEADER = re.compile(r"^(.+), \d+ tickets?(, replié)?$")
# High enough to show every list of the demo completely.
SCREEN = (1500, 1500)
WINDOW = (1320, 1440)
SIDEBAR = 240


class Run:
    """The arguments of the whole run."""

    def set(self, program, renderer, results):
        self.program, self.renderer, self.results = os.path.abspath(program), renderer, os.path.abspath(results)


RUN = Run()


def write_preferences(session, **values):
    """Writes preferences into the session's home, as an earlier run of the program would have saved them."""
    folder = os.path.join(session.env["XDG_CONFIG_HOME"], "Velmora")
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, "Velmora.ini"), "w") as file:
        file.write("[General]\n" + "".join("%s=%s\n" % pair for pair in values.items()))


class Velmora:
    """The running program, as its windows and accessibility tree show it."""

    def __init__(self, session, program, size=WINDOW):
        self.session = session
        self.app = session.launch([program], name="velmora")
        self.started = datetime.datetime.now(datetime.timezone.utc)
        self.app.wait_window("Velmora")
        if size:
            self.app.move_window(0, 0, size=size)
        self.app.wait_tree()

    # what the program shows
    def title(self):
        """The heading above the list."""
        return self.app.find(role="heading", where=self.is_beside_the_sidebar).name

    def is_beside_the_sidebar(self, node):
        return node.rect[0] > self.app.window("Velmora").x + SIDEBAR

    def listed(self):
        """[(title of the group, [keys])] from top to bottom."""
        groups = []
        for node in self.app.all(role="list item|push button", name="%s|%s" % (ISSUE.pattern, HEADER.pattern), by_place=True):
            issue, header = ISSUE.match(node.name), HEADER.match(node.name)
            if issue and node.role == "list item":
                if not groups:
                    # The list is changing and its header does not exist yet.
                    groups.append((None, []))
                groups[-1][1].append(issue.group(1))
            elif header and node.role == "push button":
                groups.append((header.group(1), []))
        return groups

    def keys(self):
        return [key for _, keys in self.listed() for key in keys]

    def focused_key(self):
        """The key of the focused row, or None."""
        focused = [node for node in self.app.all(role="list item", name=ISSUE.pattern, states=("focused",))]
        return ISSUE.match(focused[0].name).group(1) if focused else None

    def row(self, key):
        return self.app.find(role="list item", name="^%s, " % key)

    def header(self, title):
        return self.app.find(role="push button", name="^%s, \\d+ ticket" % title)

    def scope(self, name):
        """A row of the sidebar."""
        return self.app.find(name="^%s(,|$)" % name, where=lambda node: "selectable" in node.states)

    def search_field(self):
        return self.app.find(role="text", name="Filtrer")

    # actions of the user
    def tab_to(self, name, key="Tab"):
        """Presses Tab, or another key, until an object of that name has the focus."""
        seen = [self._focused_names()]
        for _ in range(30):
            # Both the control with the keyboard focus and the focused issue have the state "focused".
            if any(re.search(name, each) for each in seen[-1]):
                return
            self.session.key(key)
            seen.append(self._focus_after(seen[-1]))
        raise AssertionError("Tab reaches only %s" % seen)

    def _focused_names(self):
        return [node.name for node in self.app.all(states=("focused",))]

    def _focus_after(self, names):
        """The names with the focus after it has moved; in a window with a single tab stop it does not move."""
        try:
            return wait_until(lambda: next(iter([now for now in [self._focused_names()] if now and now != names]), None), 1)
        except DriverError:
            return names

    # waiting
    def wait_listed(self, expected, what, normal=lambda listed: listed):
        """Waits until exactly these groups are listed. `normal` sorts issues whose order is not defined."""
        seen = []

        def look():
            seen[:] = normal(self.listed())
            return seen == expected
        try:
            wait_until(look, 8, 0.1)
        except Exception:
            raise AssertionError("%s: expected %s, saw %s" % (what, expected, seen)) from None

    def wait_recap(self, offset, what):
        """Waits until the user's recap of this week (0) or of an earlier one is listed."""
        self.wait_listed(demo_lists.recap(self.started, offset), what,
                         lambda listed: demo_lists.with_equals_by_key(listed, self.started, offset))

    def wait_focus(self, key):
        seen = []

        def look():
            seen[:] = [self.focused_key()]
            return seen[0] == key
        try:
            wait_until(look, 5, 0.05)
        except Exception:
            raise AssertionError("expected the focus on %s, saw it on %s" % (key, seen[0])) from None


def faults(result):
    """The number of failures and errors of a result so far."""
    return len(result.failures) + len(result.errors)


class WindowCase(unittest.TestCase):
    """A test with its own desktop. It also fails if the program has written any output. What a failed test saw is saved."""
    screen = SCREEN
    # Tests whose result does not depend on how the window is drawn have only "software", which costs half the time.
    renderers = ("software", "opengl")
    # Takes much longer than the others.
    is_long = False

    def run(self, result=None):
        self._result, self._faults_before = result, faults(result)
        return super().run(result)

    def setUp(self):
        self.session = Session(size=self.screen, renderer=RUN.renderer)
        self.addCleanup(self.session.stop)
        self.programs = []

    def tearDown(self):
        said = "".join(velmora.app.log() for velmora in self.programs)
        if said or faults(self._result) > self._faults_before:
            self._keep_what_was_seen()
        if said:
            self.fail("the program wrote:\n" + said[-2000:])

    def open(self, size=WINDOW):
        """Starts the program with the current profile of the session."""
        self.programs.append(Velmora(self.session, RUN.program, size))
        return self.programs[-1]

    def open_demo(self, size=WINDOW, **preferences):
        """Starts the program on the demo and waits for its first list."""
        write_preferences(self.session, demoMode="true", **preferences)
        velmora = self.open(size)
        velmora.app.find(role="list item", name=ISSUE.pattern, timeout=15)
        return velmora

    def _keep_what_was_seen(self):
        folder = os.path.join(RUN.results, RUN.renderer, self.id())
        os.makedirs(folder, exist_ok=True)
        self.session.screenshot(os.path.join(folder, "screen.png"))
        for number, velmora in enumerate(self.programs):
            with open(os.path.join(folder, "program%d.txt" % number), "w") as file:
                file.write(velmora.app.log() + "\n")
                if velmora.app.running:
                    file.write(velmora.app.dump(showing_only=False))
