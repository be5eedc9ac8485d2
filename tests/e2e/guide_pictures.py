#!/usr/bin/python3
"""Takes the pictures of the user's guide again, light and dark, from the demo in a virtual display.

Usage: tests/e2e/guide_pictures.py <program> [<folder>]

The folder is docs/guide/images unless it is given. Look at the changed pictures before you commit them.
"""
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

from driver import DriverError, Session, wait_until  # noqa: E402
from driver.indexed import write_indexed_png  # noqa: E402
from driver.x11 import write_png  # noqa: E402
from support import ISSUE, Velmora, write_preferences  # noqa: E402

IMAGES = os.path.join(HERE, "..", "..", "docs", "guide", "images")
SCREEN = (1040, 680)
# The name of the picture, the keys that are pressed in the first list, and the text that is typed then.
SCENES = [("liste", ["j", "j"], ""), ("statut", ["j", "j", "s"], ""), ("apercu", ["j", "space"], ""),
          ("palette", ["ctrl+k"], "export"), ("selection", ["j", "x", "j", "x"], ""), ("tableau", ["2"], ""),
          ("creation", ["c"], "Le logo manque sur les factures")]


class Album:
    """The pictures of one appearance."""

    def __init__(self, session, program, folder, appearance):
        self.session, self.program, self.folder, self.appearance = session, program, folder, appearance
        self.velmora = None

    def take(self, name, title="Velmora", write=write_indexed_png):
        # Nothing of the program is below the pointer.
        self.session.move(SCREEN[0] - 1, SCREEN[1] - 1)
        self.session.settle(quiet=0.5, timeout=4)
        path = os.path.join(self.folder, "%s-%s.png" % (name, self.appearance))
        write(path, *self.session.x.grab(self.velmora.app.window(title).rect))
        print(os.path.relpath(path))

    def open(self, **preferences):
        write_preferences(self.session, appearance=self.appearance, **preferences)
        self.velmora = Velmora(self.session, self.program, SCREEN)

    def open_demo(self):
        self.open(demoMode="true")
        self.velmora.app.find(role="list item", name=ISSUE.pattern, timeout=20)
        self.session.settle()

    def press(self, keys):
        for key in keys:
            self.session.key(key)
            self.session.settle()

    def photograph_welcome(self):
        self.open()
        self.velmora.app.find(role="push button", name="^Explorer en mode démo$", timeout=20)
        # The gradient behind the form needs all its colours.
        self.take("connexion", write=write_png)
        self.velmora.app.stop()

    def photograph(self, name, keys, text):
        self.open_demo()
        self.press(keys)
        self.session.type(text)
        self.take(name)
        self.velmora.app.stop()

    def photograph_recap(self):
        self.open_demo()
        self.velmora.scope("Cette semaine").click()
        wait_until(lambda: self.velmora.title() != "Mes tickets", 10, 0.1, "the recap")
        self.take("recap")
        self.velmora.app.stop()

    def photograph_issue(self):
        self.open_demo()
        self.press(["j", "ctrl+Return"])
        title = self.velmora.app.wait_window("^[A-Z]+-\\d+").title
        self.take("ticket", title)
        self.velmora.app.stop()


def main(program, folder=IMAGES):
    os.makedirs(folder, exist_ok=True)
    for appearance in ("light", "dark"):
        with Session(size=SCREEN, renderer="software") as session:
            album = Album(session, os.path.abspath(program), folder, appearance)
            album.photograph_welcome()
            for scene in SCENES:
                album.photograph(*scene)
            album.photograph_recap()
            album.photograph_issue()
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main(*sys.argv[1:]))
    except DriverError as error:
        sys.exit("No pictures: %s" % error)
