#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the two windows in turn and prints the medians.

Usage: measure.py RUNS
"""

import os
import statistics
import subprocess
import sys
import time

PROGRAMS = ("minimal_window_start", "ztk_window_start")
ROWS = ("first frame, ms", "memory (PSS), KiB", "wakings in 10 s")


def measure(program):
    environment = dict(os.environ, BENCH_STARTED=str(time.monotonic_ns()))
    line = subprocess.run([program], env=environment, check=True,
                          stdout=subprocess.PIPE, text=True).stdout
    return [float(number) for number in line.split()]


def main(runs):
    results = {program: [] for program in PROGRAMS}
    for _ in range(runs):
        for program in PROGRAMS:
            results[program].append(measure(program))
    print(f"{'median of ' + str(runs):20}{'minimal':>10}{'ztk-window':>12}"
          f"{'ratio':>8}")
    for position, name in enumerate(ROWS):
        minimal, own = (
            statistics.median(run[position] for run in results[program])
            for program in PROGRAMS)
        ratio = f"{own / minimal:8.2f}" if minimal else f"{'':8}"
        print(f"{name:20}{minimal:10.1f}{own:12.1f}{ratio}")


if __name__ == "__main__":
    main(int(sys.argv[1]))
