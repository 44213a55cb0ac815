# SPDX-License-Identifier: MIT
"""Reads a folder of results of bench/run, for report.py and plot.py."""

import json
import pathlib
import sys

CONTENDERS = ("library", "floor", "libusb")
OPERATIONS = ("count", "set", "query", "apply")
PLACES = {"guest": "on a real kernel (guest)", "sandbox": "in the sandbox"}
COUNTED = "each instruction counted as a nanosecond"
SCALE = {"ns": 1, "us": 1e3, "ms": 1e6}


def medians(file):
    """Returns the median of each benchmark, in nanoseconds. A count in the sandbox does
    not wait, so its processor time is used, which does not depend on other work on the
    machine."""
    found = {}
    processor = not file.name.startswith(("guest", "emulator"))
    for result in json.loads(file.read_text())["benchmarks"]:
        if result.get("error_occurred"):
            sys.exit(f"{file.name}: {result['name']}: "
                     f"{result['error_message']}")
        if result.get("aggregate_name") == "median":
            name = result["run_name"].removesuffix("/process_time/real_time")
            of_processor = processor and name.startswith("count/")
            found[name] = (result["cpu_time" if of_processor else "real_time"] *
                           SCALE[result["time_unit"]])
    return found


class Results:
    """The times by (place, mixers, devices), and the other numbers."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.worlds = {}
        for file in sorted(self.folder.glob("*-[0-9]*-[0-9]*.json")):
            place, mixers, devices = file.stem.rsplit("-", 2)
            self.worlds[place, int(mixers), int(devices)] = medians(file)

    def json(self, name):
        file = self.folder / f"{name}.json"
        return json.loads(file.read_text()) if file.exists() else None

    def text(self, name):
        file = self.folder / name
        return file.read_text().strip() if file.exists() else ""

    def counts_instructions(self, place):
        return self.text(f"{place}-clock.txt") == "instructions"

    def place(self, name):
        """Returns the description of the place of the measurement."""
        counted = f", {COUNTED}" if self.counts_instructions(name) else ""
        return PLACES[name] + counted

    def by_devices(self, place):
        """Returns (devices, times) for one mixer."""
        return [(world[2], times) for world, times in sorted(
            self.worlds.items()) if world[:2] == (place, 1)]

    def by_mixers(self, place):
        """Returns (mixers, times) for thirty devices."""
        return [(world[1], times) for world, times in sorted(
            self.worlds.items()) if world[0] == place and world[2] == 30]
