#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints a folder of benchmark results as Markdown.

    report.py FOLDER            prints the Markdown
    report.py FOLDER DOCUMENT   also writes it between the two marks in DOCUMENT

The table shows if a goal is missed, but this is not a failure, because times depend on
the machine and its load. Only missing or invalid results are a failure.
"""

import pathlib
import sys

import results

FLOOR_GOAL = {("guest", "set"): 1.10, ("guest", "query"): 1.10,
              ("sandbox", "count"): 1.15, ("sandbox", "set"): 1.2}
LIBUSB_GOAL = {("guest", "set"): 5, ("sandbox", "count"): 20}
START_UP_GOAL = 1.3
MINIMAL = "minimal C program"
NOTHING = "program that does nothing"
LOADING = "the same, loading the library"
PURE_GOAL = 20  # nanoseconds
PURE = {"text": "text of a choice", "choices": "number of choices",
        "rejected": "refused setter"}
# How often each operation reads the bus, for this number of mixers.
WALKS = {"count": lambda mixers: 1, "set": lambda mixers: 1 + 2 * mixers,
         "query": lambda mixers: 1 + mixers, "apply": lambda mixers: 1 + mixers}
BEGIN, END = "<!-- figures: bench/run writes them -->", "<!-- end of figures -->"


def duration(nanoseconds):
    if nanoseconds < 1e3:
        return f"{nanoseconds:.1f} ns"
    if nanoseconds < 1e6:
        return f"{nanoseconds / 1e3:.0f} µs"
    return f"{nanoseconds / 1e6:.2f} ms"


def verdict(met, goal):
    return f"{goal}: {'met' if met else 'not met'}"


def table(head, rows, out):
    out.append("| " + " | ".join(head) + " |")
    out.append("|---" + "|--:" * (len(head) - 1) + "|")
    out.extend("| " + " | ".join(row) + " |" for row in rows)
    out.append("")


def started_programs(found, place):
    """Returns the medians from start to end in milliseconds, if they were measured."""
    times = found.json(f"{place}-start_up")
    return times and {program["command"]: program["median"] * 1e3
                      for program in times["results"]}


def one_mixer(found, out):
    for place in results.PLACES:
        times = found.worlds.get((place, 1, 30))
        if times is None:
            continue
        rows = []
        for name in results.OPERATIONS:
            library, floor, libusb = (times.get(f"{name}/{who}")
                                      for who in results.CONTENDERS)
            goals = []
            if goal := FLOOR_GOAL.get((place, name)):
                goals.append(verdict(library <= goal * floor,
                                     f"at most {goal:.2f} × floor"))
            if goal := LIBUSB_GOAL.get((place, name)):
                goals.append(verdict(libusb >= goal * library,
                                     f"{goal} × faster than libusb"))
            rows.append((name, duration(library), duration(floor),
                         f"{library / floor:.2f}",
                         duration(libusb) if libusb else "",
                         f"{libusb / library:.1f}" if libusb else "",
                         ", ".join(goals)))
        out.append(f"One mixer among 30 devices, {found.place(place)}:\n")
        table(("call", "library", "floor", "library / floor", "libusb",
               "libusb / library", "goals"), rows, out)
    if times := found.worlds.get(("emulator", 1, 30)):
        rows = [(name, duration(times[f"{name}/library"]),
                 duration(times[f"{name}/floor"]),
                 f"{times[f'{name}/library'] / times[f'{name}/floor']:.2f}")
                for name in results.OPERATIONS]
        programs = started_programs(found, "emulator")
        started, least = programs["ztk status"], programs[MINIMAL]
        rows.append(("ztk status", f"{started:.1f} ms", f"{least:.1f} ms",
                     f"{started / least:.2f}"))
        out.append("One mixer among 30 devices, on a real kernel (guest), by "
                   "the time that the emulator took, which is mostly its own; "
                   "for `ztk status` the floor is the minimal program below:\n")
        table(("call", "library", "floor", "library / floor"), rows, out)


def compared(times, name):
    """Returns the time of the library, compared with the others."""
    library = times[f"{name}/library"]
    ratios = [f"{library / times[f'{name}/floor']:.2f}"]
    if f"{name}/libusb" in times:
        ratios.append(f"{times[f'{name}/libusb'] / library:.1f}")
    return f"{duration(library)} ({'; '.join(ratios)})"


def growth(found, out):
    for place in results.PLACES:
        for what, series in (("devices, with one mixer",
                              found.by_devices(place)),
                             ("mixers, among 30 devices",
                              found.by_mixers(place))):
            if len(series) < 2:
                continue
            rows = [[str(number)] + [compared(times, name)
                                     for name in results.OPERATIONS]
                    for number, times in series]
            out.append(f"By {what}, {found.place(place)}; in brackets "
                       "library / floor and libusb / library:\n")
            table((what.split(",")[0],) + results.OPERATIONS, rows, out)


def walks(found, out):
    for place in results.PLACES:
        series = found.by_mixers(place)
        if len(series) < 2:
            continue
        rows = []
        for mixers, times in series:
            cells = [f"{WALKS[name](mixers)} walks, " +
                     duration(times[f"{name}/library"] / WALKS[name](mixers))
                     for name in ("query", "apply", "set")]
            rows.append([str(mixers)] + cells)
        out.append("Time for each walk over 30 devices, "
                   f"{found.place(place)}:\n")
        table(("mixers", "query", "apply", "set"), rows, out)


def counts(found, out):
    calls, instructions = (found.json("guest-calls"),
                           found.json("guest-instructions"))
    if calls is None or instructions is None:
        return
    rows = []
    for name in results.OPERATIONS:
        rows.append([name] + [
            f"{numbers[f'{name}/{who}']:,}".replace(",", " ")
            for numbers in (calls, instructions)
            for who in results.CONTENDERS])
    out.append("System calls and instructions in user space of one call, with "
               "one mixer among 30 devices, on a real kernel:\n")
    table(("call", "system calls: library", "floor", "libusb",
           "instructions: library", "floor", "libusb"), rows, out)
    if text := found.text("system_calls.txt"):
        lines = [line.split() for line in text.splitlines()
                 if line.strip() and not line.startswith("System")]
        out.append("System calls by devices on the bus, with one mixer (these "
                   "are what `./check` holds):\n")
        table(lines[0], lines[1:], out)


def start_up(found, out):
    for place in results.PLACES:
        times = started_programs(found, place)
        if times is None:
            continue
        least = times[MINIMAL]
        rows = []
        for name, time in times.items():
            goal = ("" if name != "ztk status" else
                    verdict(time <= START_UP_GOAL * least,
                            f"at most {START_UP_GOAL} × the minimal program"))
            rows.append((name, f"{time:.1f} ms", f"{time / least:.2f}", goal))
        out.append("From start to end of a program, "
                   f"{found.place(place)}:\n")
        table(("program", "time", "× the minimal program", "goal"), rows, out)
        if LOADING in times:
            cost = times[LOADING] - times[NOTHING]
            out.append("Loading the library costs a program that never calls "
                       f"it {cost:.2f} ms.\n")


def others(found, out):
    for name, what in (("memory", "Setter with settings in memory, in the "
                        "sandbox"),
                       ("machine", "Count on this machine's own bus"),
                       ("copy", "Count on a copy of a bus, without the "
                        "sandbox")):
        file = found.folder / f"{name}.json"
        if not file.exists():
            continue
        times = results.medians(file)
        call = "set" if name == "memory" else "count"
        library, floor = times[f"{call}/library"], times[f"{call}/floor"]
        out.append(f"{what}: {duration(library)}, floor {duration(floor)}, "
                   f"ratio {library / floor:.2f}.\n")
    times = found.worlds.get(("sandbox", 1, 30), {})
    pure = [f"{what} {duration(times[f'{name}/library'])}"
            for name, what in PURE.items() if f"{name}/library" in times]
    if pure:
        out.append(f"Without leaving the process (goal: under {PURE_GOAL} ns): "
                   + ", ".join(pure) + ".\n")


def main(folder, document=None):
    found = results.Results(folder)
    if not found.worlds:
        sys.exit(f"report.py: there are no results in {folder}")
    out = []
    if machine := found.text("machine.txt"):
        out.append(machine + "\n")
    for part in (one_mixer, growth, walks, counts, start_up, others):
        part(found, out)
    text = "\n".join(out).strip()
    print(text)
    if document is not None:
        file = pathlib.Path(document)
        before, rest = file.read_text().split(BEGIN)
        after = rest.split(END)[1]
        file.write_text(f"{before}{BEGIN}\n\n{text}\n\n{END}{after}")


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    main(*sys.argv[1:])
