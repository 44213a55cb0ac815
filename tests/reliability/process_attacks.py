# SPDX-License-Identifier: MIT
"""Attacks by other processes: some change the same settings file, one overwrites it,
and some are killed."""

import os
import plistlib
import random
import signal
import time

from place import LONG, SETTINGS, Attack


class ProcessAttacks(Attack):
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
        for count in (2, 3, 6) if LONG else (3,):
            self.place.refill()
            others = [self.start(self.child, "loop", str(name), "100000000")
                      for name in range(count - 1)]
            tried = lost = 0
            for number in self.limited(range(500 if LONG else 12)):
                self.run(self.ztk, "boost", "set", str(number % 3 + 1))
                time.sleep(0.02)
                found = plistlib.loads(self.place.file.read_bytes())
                tried += 1
                lost += found.get("MaxLevel") != number % 3
            for child in others:
                child.kill()
                child.communicate()
            self.note(f"`ztk boost set` beside {count - 1} that set",
                      f"{tried} changes", f"{lost} lost", lost)

    def copies_in_place(self):
        """Overwrites the file as `cp backup file` does, in two parts. In each fourth
        copy the pause between the parts may be long."""
        self.place.refill()
        backup = plistlib.dumps(SETTINGS)
        child = self.start(self.child, "loop", "boost", "100000000")
        tried = lost = 0
        for number in self.limited(range(2000 if LONG else 60)):
            with open(self.place.file, "wb", buffering=0) as file:
                file.write(backup[:200])
                time.sleep(random.random() * (0.003 if number % 4 else 0.15))
                file.write(backup[200:])
            time.sleep(random.random() * 0.01)
            tried += 1
            lost += bool(self.place.lost())
        child.kill()
        child.communicate()
        kept = len([name for name in self.place.others()
                    if ".unreadable-" in name])
        self.note("A backup copied over the file while a process sets",
                  f"{tried} copies",
                  f"{lost} with a loss, {kept} taken for damaged",
                  # A copy with a long pause counts as a damaged file. It is kept
                  # under another name, so nothing is lost.
                  lost > kept)

    def kills(self):
        self.place.refill()
        tried = lost = 0
        for _ in self.limited(range(1000 if LONG else 60)):
            child = self.start(self.child, "loop", "boost", "100000000")
            time.sleep(0.005 + random.random() * 0.03)
            child.send_signal(signal.SIGKILL)
            child.communicate()
            tried += 1
            lost += self.expect_kept("kill", "after SIGKILL")
        left = self.place.others()
        two_days_ago = time.time() - 2 * 24 * 60 * 60
        for name in left:
            os.utime(self.place.folder / name, (two_days_ago, two_days_ago))
        self.set_boost()
        remaining = self.place.others()
        self.note("Processes killed while they set", f"{tried} kills",
                  f"{lost} with a loss, {len(left)} unfinished files, "
                  f"{len(remaining)} after a day and one more change",
                  lost + len(remaining))

    def attack(self):
        self.lost_updates()
        self.lost_updates_with_ztk()
        self.copies_in_place()
        self.kills()
