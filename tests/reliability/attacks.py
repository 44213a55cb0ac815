#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Attacks the settings file and prints the results.

    attacks.py BIN_FOLDER FAIL_ALLOCATION_LIBRARY [--report FILE]

Run in a sandbox with three mixers (ztk-virtual-mixer run -n 3), so that no real
device is touched. The virtual mixers are unplugged before the files are attacked. The settings
are in a temporary folder. With ZTK_RELIABILITY=long in the environment everything
is tried many more times, which takes up to half an hour. Exits with 1 if
an attack did not end as expected, for example if a setting was lost. With --report the results are written as a table in Markdown.
"""

import pathlib
import sys
import tempfile

sys.dont_write_bytecode = True
from mixer_attacks import MixerAttacks  # noqa: E402
from place import Place  # noqa: E402
from process_attacks import ProcessAttacks  # noqa: E402
from resource_attacks import ResourceAttacks  # noqa: E402


def write_report(path, rows):
    """Replaces the table between the two marks of the page."""
    page = pathlib.Path(path)
    table = "| what | how often | what came out |\n|---|---|---|\n" + "".join(
        f"| {what} | {tried} | {result} |\n" for what, tried, result in rows)
    begin, end = "<!-- results -->\n", "<!-- end of results -->"
    text = page.read_text()
    head, rest = text.split(begin, 1)
    page.write_text(head + begin + "\n" + table + "\n" + end +
                    rest.split(end, 1)[1])


def main(arguments):
    folder, fail_allocation = arguments[:2]
    rows, failures = [], []
    with tempfile.TemporaryDirectory(dir="/tmp") as home:
        place = Place(home)
        for attacks in (MixerAttacks(folder, place),
                        ProcessAttacks(folder, place),
                        ResourceAttacks(folder, place, fail_allocation)):
            attacks.attack()
            rows += attacks.rows
            failures += attacks.failures
    if len(arguments) == 4 and arguments[2] == "--report":
        write_report(arguments[3], rows)
    for failure in failures:
        print(f"FAILED: {failure}", file=sys.stderr)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
