#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the two windows in turn and prints the medians.

Usage: measure.py RUNS

The programs start directly after one another, so that their files are in memory: a
start after a pause may have to read them from the disk, which takes longer than
everything else and depends on the machine. The table shows how many page faults had
to wait for the disk. Then each program runs RUNS times for 13 s.
"""

import os
import statistics
import subprocess
import sys
import time

PROGRAMS = ("minimal_window_start", "ztk_window_start")
STARTS = 51
START_ROWS = ("first frame, ms", "page faults from disk")
ROWS = ("memory (PSS), KiB", "wakings in 10 s")


def measure_start(program):
    environment = dict(os.environ, BENCH_FIRST_FRAME_ONLY="1",
                       BENCH_STARTED=str(time.monotonic_ns()))
    with subprocess.Popen([program], env=environment, stdout=subprocess.PIPE,
                          text=True) as process:
        line = process.stdout.read()
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        raise SystemExit(f"{program} ended with {process.returncode}")
    return [float(line), usage.ru_majflt]


def measure(program):
    environment = dict(os.environ, BENCH_STARTED=str(time.monotonic_ns()))
    line = subprocess.run([program], env=environment, check=True,
                          stdout=subprocess.PIPE, text=True).stdout
    return [float(number) for number in line.split()[1:]]


def compare(runs, rows, measure_one):
    results = {program: [] for program in PROGRAMS}
    for _ in range(runs):
        for program in PROGRAMS:
            results[program].append(measure_one(program))
    print(f"{'median of ' + str(runs):24}{'minimal':>10}{'ztk-window':>12}"
          f"{'ratio':>8}")
    for position, name in enumerate(rows):
        minimal, own = (
            statistics.median(run[position] for run in results[program])
            for program in PROGRAMS)
        ratio = f"{own / minimal:8.2f}" if minimal else f"{'':8}"
        print(f"{name:24}{minimal:10.1f}{own:12.1f}{ratio}")


if __name__ == "__main__":
    compare(STARTS, START_ROWS, measure_start)
    compare(int(sys.argv[1]), ROWS, measure)
