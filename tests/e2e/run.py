#!/usr/bin/python3
"""Runs the window tests of the built program with the renderers that they name, several at once.

Usage: tests/e2e/run.py <program> [--renderer software|opengl] [--results <folder>] [-k <part of a test's name>]

Each test has its own process, desktop and home folder. The screenshot, the accessibility tree and the output of a
failed test are saved in the folder of results. With --renderer every test runs with that renderer. Run it with the
system's python3.
"""
import argparse
import concurrent.futures
import os
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

import support  # noqa: E402

PASSED, FAILED, SKIPPED = range(3)


def arguments():
    parser = argparse.ArgumentParser(description="Drives the built program in a window.")
    parser.add_argument("program")
    parser.add_argument("--renderer", choices=["software", "opengl"], action="append")
    parser.add_argument("--results", default="build/reports/e2e-cases")
    parser.add_argument("-k", dest="patterns", action="append")
    parser.add_argument("--only", help=argparse.SUPPRESS)  # the only test of a child process
    return parser.parse_args()


def single_tests(suite):
    for test in suite:
        if isinstance(test, unittest.TestSuite):
            yield from single_tests(test)
        else:
            yield test


def chosen(given):
    """[(renderer, name)] of the tests to run. Long ones come first, so that no worker is left alone with one."""
    loader = unittest.TestLoader()
    if given.patterns:
        loader.testNamePatterns = ["*%s*" % pattern for pattern in given.patterns]
    tests = list(single_tests(loader.discover(HERE, pattern="test_*.py", top_level_dir=HERE)))
    # A module that cannot be imported is a test that fails, without our attributes.
    tests.sort(key=lambda test: not getattr(test, "is_long", False))
    return [(renderer, test.id()) for test in tests
            for renderer in given.renderer or getattr(test, "renderers", ("software",))]


def run_here(given):
    """Runs the only test of this process."""
    support.RUN.set(program=given.program, renderer=given.renderer[0], results=given.results)
    test = unittest.defaultTestLoader.loadTestsFromName(given.only)
    result = unittest.TextTestRunner(verbosity=2, warnings="error").run(test)
    if not result.wasSuccessful() or result.testsRun != 1:
        return FAILED
    return SKIPPED if result.skipped else PASSED


def run_apart(given, renderer, name):
    """Runs a test in a child process; its result and output."""
    done = subprocess.run([sys.executable, os.path.abspath(__file__), given.program, "--renderer", renderer,
                           "--results", given.results, "--only", name],
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace")
    return done.returncode, done.stdout


def main():
    given = arguments()
    if given.only:
        return run_here(given)
    os.makedirs(given.results, exist_ok=True)
    counts = {PASSED: 0, FAILED: 0, SKIPPED: 0}
    # A test spends much of its time waiting, so one more than the cores can run.
    with concurrent.futures.ThreadPoolExecutor(len(os.sched_getaffinity(0)) + 1) as pool:
        runs = [(renderer, name, pool.submit(run_apart, given, renderer, name)) for renderer, name in chosen(given)]
        for renderer, name, run in runs:
            status, said = run.result()
            outcome = status if status in counts else FAILED
            counts[outcome] += 1
            print("%-8s %-70s %s" % (renderer, name, ("ok", "FAILED", "skipped")[outcome]), flush=True)
            if outcome == FAILED:
                print(said, flush=True)
    with open(os.path.join(given.results, "e2e.counts"), "w") as file:
        file.write("%d %d\n" % (counts[PASSED], counts[FAILED]))
    return 1 if counts[FAILED] or not counts[PASSED] else 0


if __name__ == "__main__":
    sys.exit(main())
