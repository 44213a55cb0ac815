#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Attacks the settings file and tells what came out.

    attacks.py BIN_FOLDER FAIL_ALLOCATION_LIBRARY [--report FILE]

Run in a sandbox without mixers (ztk-virtual-mixer run -n 0), so that no real
device is touched; the settings are in a temporary folder. With
ZTK_RELIABILITY=long in the environment everything is tried many more times.
Exits with 1 if anything was lost. With --report the results are written as a
table in Markdown.
"""

import os
import pathlib
import plistlib
import random
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time

LONG = os.environ.get("ZTK_RELIABILITY") == "long"
SETTINGS = {"Output0": 1, "Output1": 2, "Output2": 3, "Output3": 4,
            "Output4": 5, "MaxLevel": 2, "Foo": "bar"}
# Seconds. The sandbox itself hangs when one of its first allocations fails.
HANGS = 20
# At the start of a process these load libraries; a process that cannot start
# proves nothing about the settings.
ATTACKED_CALLS = ["openat", "read", "newfstatat", "fstat", "write", "fsync",
                  "rename", "linkat", "readlink", "fchown", "fchmod", "flock",
                  "getdents64", "close", "mmap", "brk"]


class Place:
    """A home of its own with a settings file that holds SETTINGS."""

    def __init__(self, folder):
        self.home = pathlib.Path(folder)
        self.folder = self.home / ".config/tarvix/Preferences"
        self.file = self.folder / "com.tarvix.VRM-D6autosetup.plist"
        self.environment = {
            name: value for name, value in os.environ.items()
            if not name.startswith(("XDG_", "DBUS_"))}
        self.environment["HOME"] = str(self.home)
        self.refill()

    def refill(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        self.file.write_bytes(plistlib.dumps(SETTINGS))

    def lost(self):
        """The settings that are gone or changed, but for MaxLevel's value."""
        try:
            found = plistlib.loads(self.file.read_bytes())
        except Exception as error:  # of plistlib: any that its input causes
            return [f"the file cannot be read: {error!r}"]
        if not isinstance(found, dict):
            return ["the file holds no dictionary"]
        return [key for key, value in SETTINGS.items()
                if key not in found or
                (key != "MaxLevel" and found[key] != value)]

    def others(self):
        """What else lies in the folder."""
        return sorted(entry.name for entry in self.folder.iterdir()
                      if entry != self.file)


class Attacks:
    def __init__(self, folder, fail_allocation, place):
        self.child = str(pathlib.Path(folder, "setting_child"))
        self.ztk = str(pathlib.Path(folder, "ztk"))
        self.fail_allocation = fail_allocation
        self.place = place
        self.rows = []
        self.failures = []

    def start(self, *words, **options):
        return subprocess.Popen(words, env=self.place.environment, text=True,
                                stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, **options)

    def set_boost(self, index="1", before=(), extra=None, **options):
        environment = dict(self.place.environment, **(extra or {}))
        try:
            return subprocess.run(
                [*before, self.child, "set", "boost", index], env=environment,
                check=False, stdout=subprocess.DEVNULL, timeout=HANGS,
                stderr=subprocess.DEVNULL, **options).returncode
        except subprocess.TimeoutExpired:
            return "hangs"

    def note(self, what, tried, result, bad):
        self.rows.append((what, tried, result))
        print(f"{what}: {tried}; {result}", flush=True)
        if bad:
            self.failures.append(f"{what}: {bad}")

    def expect_kept(self, what, detail):
        """Notes a failure unless every setting is there."""
        lost = self.place.lost()
        if lost:
            self.failures.append(f"{what}, {detail}: {', '.join(lost)}")
            self.place.refill()
        return bool(lost)

    def lost_updates(self):
        rounds = 10000 if LONG else 240
        for count in (2, 3, 6):
            self.place.refill()
            names = ["0", "1", "2", "3", "4", "boost"][:count]
            each = rounds // count
            children = [self.start(self.child, "loop", name, str(each))
                        for name in names]
            lost = sum(int(child.communicate()[0]) for child in children)
            self.note(f"{count} processes, each its own setting",
                      f"{each * count} changes", f"{lost} lost", lost)

    def lost_updates_with_ztk(self):
        if not os.path.exists(self.ztk):
            return
        rounds = 500 if LONG else 12
        self.place.refill()
        others = [self.start(self.child, "loop", name, "100000000")
                  for name in ("0", "1")]
        lost = 0
        for number in range(rounds):
            choice = ("-5 dB", "-10 dB", "-15 dB")[number % 3]
            subprocess.run([self.ztk, "boost", "set", choice],
                           env=self.place.environment, check=False,
                           stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL)
            time.sleep(0.02)
            found = plistlib.loads(self.place.file.read_bytes())
            lost += found.get("MaxLevel") != number % 3
        for child in others:
            child.kill()
            child.communicate()
        self.note("`ztk boost set` beside 2 processes that set",
                  f"{rounds} changes", f"{lost} lost", lost)

    def descriptor_limit(self):
        tried = lost = 0
        for limit in range(3, 16):
            self.place.refill()
            self.set_boost(preexec_fn=lambda: resource.setrlimit(
                resource.RLIMIT_NOFILE, (limit, limit)))
            tried += 1
            lost += self.expect_kept("descriptor limit", f"at {limit}")
        self.note("Processes at their descriptor limit", f"{tried} changes",
                  f"{lost} with a loss", lost)

    def copies_in_place(self):
        """As `cp backup file` does, in two parts with a pause between."""
        rounds = 2000 if LONG else 60
        self.place.refill()
        backup = plistlib.dumps(SETTINGS)
        child = self.start(self.child, "loop", "boost", "100000000")
        kept = lost = 0
        for _ in range(rounds):
            with open(self.place.file, "wb", buffering=0) as file:
                file.write(backup[:200])
                time.sleep(random.random() * 0.003)
                file.write(backup[200:])
            time.sleep(random.random() * 0.01)
            lost += bool(self.place.lost())
        child.kill()
        child.communicate()
        kept = len([name for name in self.place.others()
                    if ".unreadable-" in name])
        self.note("A backup copied over the file while a process sets",
                  f"{rounds} copies",
                  f"{lost} with a loss, {kept} taken for damaged",
                  # A copy that stops half-way for long is taken for a damaged
                  # file; it is kept beside the new one, so nothing is lost.
                  lost > kept)

    def kills(self):
        rounds = 1000 if LONG else 60
        self.place.refill()
        lost = 0
        for _ in range(rounds):
            child = self.start(self.child, "loop", "boost", "100000000")
            time.sleep(0.005 + random.random() * 0.03)
            child.send_signal(signal.SIGKILL)
            child.communicate()
            lost += self.expect_kept("kill", "after SIGKILL")
        left = self.place.others()
        two_days_ago = time.time() - 2 * 24 * 60 * 60
        for name in left:
            os.utime(self.place.folder / name, (two_days_ago, two_days_ago))
        self.set_boost()
        remaining = self.place.others()
        self.note("Processes killed while they set", f"{rounds} kills",
                  f"{lost} with a loss, {len(left)} unfinished files, "
                  f"{len(remaining)} after a day and one more change",
                  lost + len(remaining))

    def failing_calls(self):
        strace = shutil.which("strace")
        if strace is None or subprocess.run(
                [strace, "-qq", "-o", os.devnull, "true"], check=False,
                stderr=subprocess.DEVNULL).returncode != 0:
            self.note("Each system call of a change failing once", "not tried",
                      "strace does not run here", 0)
            return
        tried = lost = 0
        for name in ATTACKED_CALLS:
            total = self.count_calls(strace, name)
            step = 1 if LONG else max(1, total // 6)
            for number in range(total, 0, -step):
                for error in ("EIO", "EMFILE") if LONG else ("EIO",):
                    self.place.refill()
                    self.set_boost(before=(
                        strace, "-qq", "-o", os.devnull, "-e",
                        f"inject={name}:error={error}:when={number}"))
                    tried += 1
                    lost += self.expect_kept(
                        "failing call", f"{name} {number} {error}")
        self.note("Each system call of a change failing once",
                  f"{tried} changes", f"{lost} with a loss", lost)

    def count_calls(self, strace, name):
        self.place.refill()
        trace = self.place.home / "trace"
        self.set_boost(before=(strace, "-qq", "-o", str(trace), "-e",
                               f"trace={name}"))
        return len(trace.read_text().splitlines())

    def failing_allocations(self):
        count_file = self.place.home / "allocations"
        preload = " ".join(filter(None, (os.environ.get("LD_PRELOAD"),
                                         self.fail_allocation)))
        self.place.refill()
        self.set_boost(extra={"LD_PRELOAD": preload,
                              "ZTK_COUNT_ALLOCATIONS": str(count_file)})
        total = int(count_file.read_text())
        step = 1 if LONG else max(1, total // 80)
        tried = lost = ended = 0
        for number in range(1, total + 1, step):
            self.place.refill()
            status = self.set_boost(extra={
                "LD_PRELOAD": preload, "ZTK_FAIL_ALLOCATION": str(number)})
            tried += 1
            ended += status != 0
            lost += self.expect_kept("failing allocation", str(number))
        self.note("Each allocation of a change failing once",
                  f"{tried} changes",
                  f"{lost} with a loss; {ended} ended the process", lost)

    def run(self):
        self.lost_updates()
        self.lost_updates_with_ztk()
        self.descriptor_limit()
        self.copies_in_place()
        self.kills()
        self.failing_calls()
        self.failing_allocations()


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
    with tempfile.TemporaryDirectory(dir="/tmp") as folder:
        attacks = Attacks(arguments[0], arguments[1], Place(folder))
        attacks.run()
    if len(arguments) == 4 and arguments[2] == "--report":
        write_report(arguments[3], attacks.rows)
    for failure in attacks.failures:
        print(f"FAILED: {failure}", file=sys.stderr)
    return 1 if attacks.failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
