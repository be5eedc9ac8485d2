#!/usr/bin/env python3
"""Starts Velmora on the demo and a nearly empty window in turn, and prints how long each takes to its first frame.

    start.py <folder of the programs> [pairs]
"""
import json
import os
import statistics
import subprocess
import sys
import tempfile
import time

RENDERERS = ({"QT_QUICK_BACKEND": "software"}, {"QSG_RHI_BACKEND": "opengl"})


class Profile:
    """A home of its own, as after a first start."""

    def __init__(self, folder):
        self.preferences = os.path.join(folder, "preferences.ini")
        names = {"HOME": "", "XDG_CONFIG_HOME": "config", "XDG_CACHE_HOME": "cache", "XDG_DATA_HOME": "data"}
        self.env = {name: os.path.join(folder, leaf) for name, leaf in names.items()}
        self.env["XDG_RUNTIME_DIR"] = os.path.join(folder, "run")
        os.mkdir(self.env["XDG_RUNTIME_DIR"], 0o700)
        with open(self.preferences, "w") as file:
            file.write("[General]\ndemoMode=true\n")


def start(command, profile, renderer):
    env = {name: value for name, value in os.environ.items() if name not in ("QT_QUICK_BACKEND", "QSG_RHI_BACKEND")}
    instant = str(time.monotonic_ns())
    done = subprocess.run([command[0], instant, *command[1:]], env={**env, **profile.env, **renderer},
                          stdout=subprocess.PIPE, timeout=60, check=True)
    return json.loads(done.stdout)


def measure(programs, renderer, pairs):
    """{what: [report of a start]}, each kind of start in turn."""
    reports = {"empty": [], "demo": [], "instant": []}
    with tempfile.TemporaryDirectory() as folder:
        profile = Profile(folder)
        demo = [os.path.join(programs, "start_demo"), profile.preferences]
        commands = {"empty": [os.path.join(programs, "start_empty")], "demo": demo, "instant": [*demo, "instant"]}
        for number in range(pairs + 1):
            for what, command in commands.items():
                report = start(command, profile, renderer)
                # The first start in a new profile fills its caches.
                if number > 0:
                    reports[what].append(report)
    return reports


def median(reports, value):
    return statistics.median(report[value] for report in reports)


def print_row(what, reports, value, empty, unit=1e6):
    times = sorted(report[value] / unit for report in reports)
    middle = statistics.median(times)
    print("%-46s %8.1f %8.1f %8.1f %8.2f" % (what, middle, times[0], times[-1], middle * unit / empty))


def print_table(reports):
    empty, demo, instant = reports["empty"], reports["demo"], reports["instant"]
    print("\n%-46s %8s %8s %8s %8s" % (empty[0]["renderer"], "median", "least", "most", "ratio"))
    base = median(empty, "shown")
    print_row("empty window, first frame (ms)", empty, "shown", base)
    print_row("Velmora, first frame (ms)", instant, "firstFrame", base)
    print_row("Velmora, first rows, demo answers at once (ms)", instant, "shown", base)
    print_row("Velmora, first rows, demo as it is (ms)", demo, "shown", base)
    for value in "rss", "pss":
        base = median(empty, value)
        print_row("empty window, %s (MB)" % value.upper(), empty, value, base, 1024)
        print_row("Velmora with its first rows, %s (MB)" % value.upper(), demo, value, base, 1024)
    for point in "application", "store", "loaded":
        print("   of the start: %-12s after %6.1f ms" % (point, median(instant, point) / 1e6))


def main():
    programs = sys.argv[1]
    pairs = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    print("Time from the start of the process; medians of %d starts each, in turn." % pairs)
    for renderer in RENDERERS:
        print_table(measure(programs, renderer, pairs))


if __name__ == "__main__":
    main()
