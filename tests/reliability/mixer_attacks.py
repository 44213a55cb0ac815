# SPDX-License-Identifier: MIT
"""Attacks with mixers that refuse every value and mixers that never answer. The
setting must still be stored, and ztk must not report that it was accepted."""

import plistlib
import time

from place import Attack

# Exit statuses of ztk: no mixer answered; a mixer refused the value.
NO_MIXER, REFUSED = 3, 6


class MixerAttacks(Attack):
    def mixer(self, *words):
        if self.run(self.mixers, *words) != 0:
            raise RuntimeError(f"ztk-virtual-mixer {' '.join(words)} failed")

    def stored(self, key):
        return plistlib.loads(self.place.file.read_bytes()).get(key)

    def refused_writes(self):
        tried = wrong = 0
        for fault in ("stall@w8003", "silence@w8003", "stall@w8002"):
            self.mixer("fault", "none")
            self.mixer("fault", fault)
            for index in (1, 2):
                self.place.refill()
                words = (("boost", "set", f"{index}") if "8003" in fault
                         else ("input", "set", "2", f"{index}"))
                status = self.run(self.ztk, *words)
                key = "MaxLevel" if "8003" in fault else "Output1"
                tried += 1
                wrong += (status not in (NO_MIXER, REFUSED) or
                          self.stored(key) != index - 1)
        self.mixer("fault", "none")
        self.note("`ztk` sets a value that every mixer refuses or ignores",
                  f"{tried} changes",
                  f"{wrong} reported as accepted, or not stored", wrong)

    def silent_mixers(self):
        self.mixer("fault", "silence")
        for name, words in (
                ("A library call", (self.child, "set", "1", "2")),
                ("`ztk input set`", (self.ztk, "input", "set", "2", "3"))):
            self.place.refill()
            begin = time.monotonic()
            self.run(*words)
            seconds = time.monotonic() - begin
            missing = self.stored("Output1") != 2
            self.note(f"{name} with three mixers that never answer", "once",
                      f"ended after {seconds:.1f} s, the setting "
                      f"{'is not' if missing else 'is'} stored", missing)
        self.mixer("fault", "none")

    def attack(self):
        self.mixer("plug")
        self.refused_writes()
        self.silent_mixers()
        self.mixer("unplug")
