#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints, as JSON, the milliseconds that programs take from start to end.

    start_up.py BIN_FOLDER RUNS [ROOT]

Of RUNS turns; in each turn every program runs once, in an order of its own, as
each finds in the caches what the one before has left. BIN_FOLDER has ztk and the
two programs of this folder that it is compared with, in the file system whose
root is ROOT.
"""

import json
import os
import random
import shutil
import sys
import time


def seconds(command):
    """From before the process is made to after it has ended."""
    sink = os.open(os.devnull, os.O_WRONLY)
    start = time.perf_counter()
    child = os.posix_spawn(
        command[0], command, os.environ,
        file_actions=[(os.POSIX_SPAWN_DUP2, sink, 1),
                      (os.POSIX_SPAWN_DUP2, sink, 2)])
    _, status = os.waitpid(child, 0)
    duration = time.perf_counter() - start
    os.close(sink)
    if status != 0:
        sys.exit(f"start_up.py: {' '.join(command)} failed")
    return duration


def main(folder, runs, root="/"):
    if root != "/":
        os.chroot(root)
        os.chdir("/")
    commands = {"ztk status": [f"{folder}/ztk", "status"],
                "minimal C program": [f"{folder}/read_status"],
                "the same, reading once": [f"{folder}/read_status", "once"],
                "libusb lister": [f"{folder}/list_devices"]}
    lsusb = shutil.which("lsusb")
    if lsusb:
        commands["lsusb"] = [lsusb]
    times = {name: [] for name in commands}
    for turn in range(runs + 1):
        for name in random.sample(sorted(commands), len(commands)):
            duration = seconds(commands[name])
            if turn > 0:  # the first one fetches the programs from the disk
                times[name].append(duration * 1e3)
    print(json.dumps(times, indent=1))


if __name__ == "__main__":
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    main(sys.argv[1], int(sys.argv[2]), *sys.argv[3:])
