#!/usr/bin/env python3
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
STATES = (("list", ()), ("issue beside the list", ("j", "Return")), ("board", ("2",)),
          ("palette, with its text cursor", ("ctrl+k",)), ("list again", ("Escape", "1")))


def main():
    program, seconds = os.path.abspath(sys.argv[1]), float(sys.argv[2]) if len(sys.argv) > 2 else 20
    with Session(size=(1400, 900)) as session:
        write_preferences(session, demoMode="true", appearance="light")
        velmora = Velmora(session, program, (1320, 840))
        velmora.app.find(role="list item", name="^MOB-101, ", timeout=60)
        print("Nobody types, for %d s each: wake-ups per second of all threads, share of a processor" % seconds)
        for name, keys in STATES:
            for key in keys:
                session.key(key)
            time.sleep(SETTLING)
            idle = velmora.app.idle(seconds)
            print("  %-30s %6.2f %6.2f %%" % (name, idle["wakeups_per_s"], idle["cpu_percent"]))


main()
