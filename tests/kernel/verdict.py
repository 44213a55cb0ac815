#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints the result of one test that ran in a guest.

Usage: verdict.py FOLDER SUITE.TEST    reads the report of run-tests
       verdict.py FOLDER NAME          reads the files of run-session-tests

Exits with 0 if the test passed, with 77 if it was skipped, else with 1.
"""

import pathlib
import sys
import xml.etree.ElementTree

SKIPPED = 77


def main(folder, name):
    reason = folder / "skipped"
    if reason.exists():
        print(reason.read_text(), end="")
        return SKIPPED
    if "." not in name:
        print((folder / f"{name}.log").read_text(), end="")
        status = int((folder / f"{name}.status").read_text())
        return status if status in (0, SKIPPED) else 1
    suite, test = name.split(".")
    report = xml.etree.ElementTree.parse(folder / "report.xml")
    for case in report.iter("testcase"):
        if (case.get("classname"), case.get("name")) != (suite, test):
            continue
        failures = case.findall("failure")
        for failure in failures:
            print(failure.get("message"))
        if failures:
            return 1
        for skipped in case.findall("skipped"):
            print(skipped.get("message"))
            return SKIPPED
        return 0 if case.get("status") == "run" else 1
    print(f"{name} is not in the report")
    return 1


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), sys.argv[2]))
