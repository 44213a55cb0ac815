#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints what a folder of benchmark results says, beside the goals.

    report.py FOLDER

A goal that is missed is a line in the table and no failure: times depend on
the machine and on what else it does. Only results that are missing or not
valid are a failure.
"""

import json
import pathlib
import sys

# What the numbers of a file were measured on.
WORLDS = {
    "sandbox": "among virtual mixers, settings on disk",
    "memory": "among virtual mixers, settings in memory",
    "machine": "on this machine's own bus",
    "copy": "on a copy of a bus, without the sandbox",
}
# File, operation, how many times the floor it may cost.
FLOOR_GOALS = {("sandbox", "count"): 1.15, ("machine", "count"): 1.15,
               ("sandbox", "set"): 1.2}
LIBUSB_GOAL = 20  # times faster
PURE_GOAL = 20  # nanoseconds
PURE = {"text": PURE_GOAL, "rejected": PURE_GOAL, "choices": None}


def medians(file):
    """The median of each benchmark, in nanoseconds. A count never waits for
    anybody, so for it the time of the processor is taken: other work on the
    machine does not count."""
    scale = {"ns": 1, "us": 1e3, "ms": 1e6}
    found = {}
    for result in json.loads(file.read_text())["benchmarks"]:
        if result.get("error_occurred"):
            sys.exit(f"report.py: {result['name']}: "
                     f"{result['error_message']}")
        if result.get("aggregate_name") == "median":
            name = result["run_name"].removesuffix("/process_time/real_time")
            clock = "cpu_time" if name.startswith("count/") else "real_time"
            found[name] = result[clock] * scale[result["time_unit"]]
    return found


def duration(nanoseconds):
    if nanoseconds < 1e3:
        return f"{nanoseconds:.1f} ns"
    return f"{nanoseconds / 1e3:.1f} us"


def verdict(met):
    return "met" if met else "NOT MET"


def row(*cells):
    print(f"{cells[0]:<20}{cells[1]:>12}{cells[2]:>12}{cells[3]:>10}  "
          f"{cells[4]}".rstrip())


def report_pairs(world, times):
    for name in dict.fromkeys(full.split("/")[0] for full in times):
        if f"{name}/floor" not in times:
            continue
        library, floor = times[f"{name}/library"], times[f"{name}/floor"]
        ratio = library / floor
        goal = FLOOR_GOALS.get((world, name))
        row(name, duration(library), duration(floor), f"{ratio:.2f} x",
            "" if goal is None else f"at most {goal} x: {verdict(ratio <= goal)}")


def report_libusb(times):
    if "count/libusb" not in times:
        return
    faster = times["count/libusb"] / times["count/library"]
    row("count by libusb", duration(times["count/libusb"]), "",
        f"{faster:.1f} x",
        f"at least {LIBUSB_GOAL} x the library's: "
        f"{verdict(faster >= LIBUSB_GOAL)}")


def report_pure(times):
    for name, goal in PURE.items():
        time = times.get(f"{name}/library")
        if time is not None:
            row(name, duration(time), "", "",
                "" if goal is None else
                f"under {goal} ns: {verdict(time < goal)}")


def main(folder):
    for world, where in WORLDS.items():
        file = folder / f"{world}.json"
        if not file.exists():
            continue
        times = medians(file)
        row(f"{where[0].upper()}{where[1:]}", "", "", "", "")
        row("", "library", "floor", "ratio", "goal")
        report_pairs(world, times)
        report_libusb(times)
        report_pure(times)
        print()
    calls = folder / "system_calls.txt"
    if calls.exists():
        print(calls.read_text(), end="")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]))
