#!/usr/bin/python3
"""Saves screenshots of the main screens, light and dark, of the program on a virtual display.

Usage: tests/e2e/pictures.py <program> <folder>

Each appearance has a temporary profile.
"""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from driver import DriverError, Session  # noqa: E402
from support import ISSUE, Velmora, write_preferences  # noqa: E402

SCREEN = (1400, 900)
WINDOW = (1320, 840)
SCOPES = [("list", "Mes tickets"), ("recap", "Cette semaine"), ("project", "Plateforme web")]


class Album:
    """The screenshots of one appearance."""

    def __init__(self, session, folder, appearance):
        self.session, self.folder, self.appearance = session, folder, appearance

    def take(self, velmora, name):
        self.session.move(SCREEN[0] - 1, SCREEN[1] - 1)
        self.session.settle(quiet=0.4, timeout=4)
        path = os.path.join(self.folder, "%s-%s.png" % (name, self.appearance))
        self.session.screenshot(path, velmora.app.window("Velmora"))
        print(path)


def photograph_first_screen(album, program):
    velmora = Velmora(album.session, program, WINDOW)
    velmora.app.find(role="push button", name="^Explorer en mode démo$", timeout=20)
    album.take(velmora, "welcome")
    velmora.app.stop()


def photograph_demo(album, program):
    write_preferences(album.session, demoMode="true", appearance=album.appearance)
    velmora = Velmora(album.session, program, WINDOW)
    for name, scope in SCOPES:
        velmora.app.find(role="heading", timeout=20)
        velmora.scope(scope).click()
        velmora.app.find(role="list item", name=ISSUE.pattern, timeout=20)
        album.take(velmora, name)
    album.session.key("2")
    velmora.app.gone(role="push button", name="^En cours, \\d+ ticket")
    album.take(velmora, "board")


def main(program, folder):
    os.makedirs(folder, exist_ok=True)
    for appearance in ("light", "dark"):
        with Session(size=SCREEN) as session:
            album = Album(session, folder, appearance)
            write_preferences(session, appearance=appearance)
            photograph_first_screen(album, os.path.abspath(program))
            photograph_demo(album, os.path.abspath(program))
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main(*sys.argv[1:]))
    except DriverError as error:
        sys.exit("No pictures: %s" % error)
