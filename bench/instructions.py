#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints the numbers of instructions as JSON that callgrind counted in
count_instructions.

    instructions.py FILE

FILE is the value of callgrind's option for the output file. callgrind adds a number to
it for each call.
"""

import glob
import json
import re
import sys


def main(name):
    found = {}
    for part in glob.glob(f"{name}.*"):
        with open(part, encoding="utf-8") as file:
            text = file.read()
        call = re.search(r"^desc: Trigger: Client Request: (\S+)$", text, re.M)
        total = re.search(r"^(?:totals|summary): (\d+)", text, re.M)
        if call and total:
            found[call[1]] = int(total[1])
    if not found:
        sys.exit(f"instructions.py: there is nothing in {name}.*")
    print(json.dumps(found, indent=1, sort_keys=True))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
