#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs every example of the virtual mixer's manual page.

The tests of ztk run its examples. Tests with a kernel of their own attach mixers
to it.

Usage: examples_test.py FOLDER PROGRAMS
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile


def examples_of(page):
    text = page.read_text(encoding="utf-8")
    for block in re.findall(r"^Examples?:\n\.PP\n\.RS 4\n\.nf\n(.*?)^\.fi", text,
                            flags=re.M | re.S):
        for line in block.splitlines():
            for markup, character in ((r"\-", "-"), (r"\(aq", "'"), (r"\&", "")):
                line = line.replace(markup, character)
            yield line.strip()


def main(folder, programs):
    complaints = []
    tried = 0
    with tempfile.TemporaryDirectory(prefix="ztk.", dir="/tmp") as home:
        environment = {**os.environ, "HOME": home, "TMPDIR": home,
                       "PATH": f"{programs}:{os.environ['PATH']}"}
        for example in examples_of(
                pathlib.Path(folder) / "ztk-virtual-mixer.1"):
            if example.startswith("sudo "):
                continue
            command = ["sh", "-c", example]
            if " serve " in example:
                # Stopped by a signal; it uses another port, because the usual
                # one may be in use.
                command = ["timeout", "--preserve-status", "-s", "INT", "1",
                           *example.split(), "--listen", "127.0.0.1:0"]
            elif " run " not in example:
                command = ["ztk-virtual-mixer", "run", "-n", "2", "--",
                           *command]
            tried += 1
            done = subprocess.run(
                command, env=environment, stdin=subprocess.DEVNULL,
                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                timeout=60, check=False)
            # The interrupt may come early or late; it has served in both cases.
            served = " serve " in example and "Serving 2" in done.stdout
            if done.returncode != 0 and not served:
                complaints.append(
                    f"{example} ends with {done.returncode}:\n{done.stdout}")
    print("\n".join(complaints))
    print(f"{tried} examples tried, {len(complaints)} complaints")
    return 1 if complaints or tried < 10 else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
