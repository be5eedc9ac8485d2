#!/usr/bin/python3
"""Leaves Velmora alone on the demo, and prints how often its threads wake up and the processor time that they use.

    idle.py <the program velmora> [seconds]
"""
import os
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "tests", "e2e"))
from driver import Session  # noqa: E402
from support import Velmora, write_preferences  # noqa: E402

# What follows the last key: animations, hints, preferences that are written with a delay.
SETTLING = 3


def press(*keys):
    return lambda velmora: velmora.session.key(*keys)


def minimise(velmora):
    velmora.session.xdotool("windowminimize", "--sync", str(velmora.app.window("Velmora").id))
    velmora.app.wait_no_window("Velmora")


def restore(velmora):
    velmora.session.tray().choose("^Ouvrir Velmora$")
    velmora.app.wait_window("Velmora")


def hide(velmora):
    """Closes the window. The program stays, because it has a status item."""
    restore(velmora)
    velmora.app.close_window("Velmora")
    velmora.app.wait_no_window("Velmora")


STATES = (("list", press()), ("issue beside the list", press("j", "Return")), ("board", press("2")),
          ("palette, with its text cursor", press("ctrl+k")), ("list again", press("Escape", "1")),
          ("minimised", minimise), ("hidden, with a status item", hide))


def main():
    program, seconds = os.path.abspath(sys.argv[1]), float(sys.argv[2]) if len(sys.argv) > 2 else 20
    with Session(size=(1400, 900), tray=True) as session:
        write_preferences(session, demoMode="true", appearance="light")
        velmora = Velmora(session, program, (1320, 840))
        velmora.app.find(role="list item", name="^MOB-101, ", timeout=60)
        print("Nobody types, for %d s each: wake-ups per second of all threads, share of a processor" % seconds)
        for name, reach in STATES:
            reach(velmora)
            time.sleep(SETTLING)
            idle = velmora.app.idle(seconds)
            print("  %-30s %6.2f %6.2f %%" % (name, idle["wakeups_per_s"], idle["cpu_percent"]), flush=True)


main()
