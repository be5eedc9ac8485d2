#!/usr/bin/python3
"""Measures everything that has a target, and prints one table of it in Markdown, mostly as multiples of a baseline of
the same run.

    table.py <folder of the build> [part ...]

The parts are texts, reads, starts, keys, recap, idle and day; all of them without an argument. Each key is pressed a
hundred times. `bench/run build/bench table` builds the programs first.
"""
import datetime
import os
import re
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
RENDERERS = {"software": {"QT_QUICK_BACKEND": "software"}, "OpenGL": {"QSG_RHI_BACKEND": "opengl"}}
DISPLAY = ["xvfb-run", "--auto-servernum", "--server-args=-screen 0 1500x1000x24"]
PRESSES = "100"
NUMBER = r"\s+([-+]?[\d.]+)"
PERCENT = NUMBER + " %"


def output_of(command, renderer=None, display=False):
    """What a program prints."""
    chosen = {name for variables in RENDERERS.values() for name in variables}
    env = {name: value for name, value in os.environ.items() if name not in chosen}
    done = subprocess.run([*(DISPLAY if display else []), *command], env={**env, **RENDERERS.get(renderer, {})},
                          text=True, stdout=subprocess.PIPE, check=True)
    return done.stdout


def figures(output, row, pattern):
    """The numbers after the name of a row, which must be in the output once."""
    found = re.findall("^" + re.escape(row) + pattern, output, re.MULTILINE)
    if len(found) != 1:
        sys.exit("%d rows are named %r in:\n%s" % (len(found), row, output))
    return [float(number) for number in (found[0] if isinstance(found[0], tuple) else found)]


def times(value):
    return "%.2f ×" % value


class Table:
    """Collects rows, and prints them in equal widths."""

    def __init__(self):
        self.rows = [("work", "baseline", "measured", "target")]

    def add(self, work, baseline, measured, target):
        self.rows.append((work, baseline, measured, target))
        print("measured: " + work, file=sys.stderr)

    def show(self):
        widths = [max(map(len, column)) for column in zip(*self.rows)]
        for number, row in enumerate(self.rows):
            print("| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |")
            if number == 0:
                print("|" + "|".join("-" * (width + 2) for width in widths) + "|")


def add_texts(table, build):
    output = output_of([build + "/bench/markdown_ratio", "9"])
    for work, baseline, target in (("Markdown to document", "md4c alone", "3"),
                                   ("document to Markdown", "Markdown to document", "1"),
                                   ("document to JSON", "JSON to document", "1")):
        ratio = figures(output, work, NUMBER + NUMBER + " x " + baseline)[1]
        table.add(work + ", 2,000 descriptions", baseline, times(ratio), "≤ %s ×" % target)


def add_reads(table, build):
    output = output_of([build + "/bench/site_read"])
    ratio = figures(output, "3 pages of 100, with history", NUMBER * 3)[2]
    table.add("response to records, 300 issues with history", "the same bytes, parsed", times(ratio), "≤ 1.8 ×")


def add_starts(table, build):
    output = output_of([HERE + "/start.py", build + "/bench"], display=True)
    # One part for each renderer, in the order of start.py.
    parts = output.split("empty window, first frame (ms)")[1:]
    for renderer, part, frame, rows in (("software", parts[0], "2.5", "3.0"), ("OpenGL", parts[1], "1.7", "2.0")):
        for work, target in (("first frame", frame), ("first rows, demo answers at once", rows)):
            ratio = figures(part, "Velmora, %s (ms)" % work, NUMBER * 4)[3]
            table.add("start to %s, %s" % (work, renderer), "empty window", times(ratio), "≤ %s ×" % target)
    for renderer, part in zip(RENDERERS, parts):
        ratio = figures(part, "Velmora with its first rows, RSS (MB)", NUMBER * 4)[3]
        table.add("memory with the demo, %s" % renderer, "empty window", times(ratio), "≤ 1.6 ×")


def add_frames(table, renderer, command, prefix, targets):
    """Every row of a table of frames that begins with the prefix. The targets are those of p50, if any, and of p99."""
    output = output_of(command, renderer, display=True)
    works = re.findall("^%s.*?(?=  )" % prefix, output, re.MULTILINE)
    if not works:
        sys.exit("No row begins with %r in:\n%s" % (prefix, output))
    for work in works:
        middle, late = figures(output, work, NUMBER * 6)[4:]
        table.add("%s, %s" % (work, renderer), "J in an empty window", "p50 %s, p99 %s" % (times(middle), times(late)),
                  ", ".join("%s ≤ %s ×" % target for target in targets))


def add_keys(table, build):
    window_keys, issue_screen = [build + "/bench/window_keys", PRESSES], [build + "/bench/issue_screen", PRESSES]
    for renderer in RENDERERS:
        add_frames(table, renderer, [*window_keys, "lists", "300"], "300 issues: ", [("p99", "1.5")])
        add_frames(table, renderer, [*window_keys, "layouts", "300"], "300 issues: ", [("p50", "1.5"), ("p99", "2.0")])
        add_frames(table, renderer, [*issue_screen, "walk"], "(?:Space|J) ", [("p99", "1.5")])
        add_frames(table, renderer, [*issue_screen, "typing"], "a letter in ", [("p99", "1.5")])


def add_recap(table, build):
    output = output_of([build + "/bench/recap_refresh"], "software", display=True)
    middle, worst, ratio = figures(output, "a letter while 400 issues arrive", NUMBER * 4)[1:]
    table.add("longest event: a letter while 400 issues arrive", "the letter alone",
              "p50 %.1f ms, worst %.1f ms, %s" % (middle, worst, times(ratio)), "worst ≤ 2 ms")


def add_idle(table, build):
    output = output_of([HERE + "/idle.py", build + "/src/app/velmora"])
    for state in ("list", "minimised", "hidden, with a status item"):
        wakeups, share = figures(output, "  " + state, NUMBER + PERCENT)
        table.add("nobody types: " + state, "nothing", "%.2f wake-ups per second, %.2f %%" % (wakeups, share), "0.0 %")


def add_day(table, build):
    output = output_of([build + "/bench/day"], "software", display=True)
    heap, resident, _, timers, descriptors, _ = figures(output, "growth", PERCENT * 2 + NUMBER * 4)
    measured = "allocated %+.2f %%, resident %+.1f %%, %+d timers, %+d descriptors"
    table.add("a day: 10,000 issues opened, 200 windows", "after a tenth of it",
              measured % (heap, resident, timers, descriptors), "< 2 %, none left")


PARTS = {"texts": add_texts, "reads": add_reads, "starts": add_starts, "keys": add_keys, "recap": add_recap,
         "idle": add_idle, "day": add_day}


def main():
    if len(sys.argv) < 2 or not set(sys.argv[2:]) <= set(PARTS):
        sys.exit(__doc__)
    table = Table()
    try:
        for part in sys.argv[2:] or PARTS:
            PARTS[part](table, os.path.abspath(sys.argv[1]))
    finally:
        # What was measured before a failure is not lost.
        print("%s, %s processors\n" % (datetime.date.today().isoformat(), os.cpu_count()))
        table.show()


if __name__ == "__main__":
    main()
