#!/usr/bin/python3
"""Runs the tests that drive the built program in a window, with each renderer in turn.

Usage: tests/e2e/run.py <program> [--renderer software|opengl] [--results <folder>] [-k <part of a test's name>]

Each test has a desktop and a home of its own. What a failed test saw (picture, accessible tree, what the program wrote)
is left in the folder of results. Run it with the system's python3.
"""
import argparse
import os
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

import support  # noqa: E402


def arguments():
    parser = argparse.ArgumentParser(description="Drives the built program in a window.")
    parser.add_argument("program")
    parser.add_argument("--renderer", choices=["software", "opengl"], action="append")
    parser.add_argument("--results", default="build/reports/e2e-cases")
    parser.add_argument("-k", dest="patterns", action="append")
    return parser.parse_args()


def suite(patterns):
    loader = unittest.TestLoader()
    if patterns:
        loader.testNamePatterns = ["*%s*" % pattern for pattern in patterns]
    return loader.discover(HERE, pattern="test_*.py", top_level_dir=HERE)


def tests_with_faults(result):
    """Each once, however often it failed: in its parts, in its body, when it was cleared away."""
    return {getattr(test, "test_case", test).id() for test, _ in result.failures + result.errors}


def main():
    given = arguments()
    passed = failed = 0
    os.makedirs(given.results, exist_ok=True)
    for renderer in given.renderer or ["software", "opengl"]:
        print("--- %s" % renderer, file=sys.stderr)
        support.RUN.set(program=given.program, renderer=renderer, results=given.results)
        result = unittest.TextTestRunner(verbosity=2, warnings="error").run(suite(given.patterns))
        faulty = len(tests_with_faults(result))
        passed += result.testsRun - faulty - len(result.skipped)
        failed += faulty
    with open(os.path.join(given.results, "e2e.counts"), "w") as file:
        file.write("%d %d\n" % (passed, failed))
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
