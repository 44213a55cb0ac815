# SPDX-License-Identifier: MIT
"""The home folder with the settings file that the attacks use, and the common code
of all attacks."""

import os
import pathlib
import plistlib
import shutil
import subprocess
import time

LONG = os.environ.get("ZTK_RELIABILITY") == "long"
# The long form of one attack ends after this number of seconds.
MOST_SECONDS = 60
SETTINGS = {"Output0": 1, "Output1": 2, "Output2": 3, "Output3": 4,
            "Output4": 5, "MaxLevel": 2, "Foo": "bar"}
# A command that takes longer than this number of seconds counts as hanging. The
# sandbox itself hangs if one of its first allocations fails.
HANGS = 20


class Place:
    """A home folder with a settings file that contains SETTINGS."""

    def __init__(self, folder):
        self.home = pathlib.Path(folder)
        self.folder = self.home / ".config/tarvix/Preferences"
        self.file = self.folder / "com.tarvix.VRM-D6autosetup.plist"
        self.history = self.home / ".local/state/tarvix/ztk-history.jsonl"
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
        """Returns the settings that are missing or have another value. The value of
        MaxLevel may differ."""
        try:
            found = plistlib.loads(self.file.read_bytes())
        except Exception as error:  # of plistlib: any that its input causes
            return [f"the file cannot be read: {error!r}"]
        if not isinstance(found, dict):
            return ["the file contains no dictionary"]
        return [key for key, value in SETTINGS.items()
                if key not in found or
                (key != "MaxLevel" and found[key] != value)]

    def others(self):
        """Returns the other files in the folder."""
        return sorted(entry.name for entry in self.folder.iterdir()
                      if entry != self.file)


class Attack:
    """The common code of the attacks: home folder, programs, rows of the table."""

    def __init__(self, folder, place):
        self.child = str(pathlib.Path(folder, "setting_child"))
        self.ztk = str(pathlib.Path(folder, "ztk"))
        self.mixers = str(pathlib.Path(folder, "ztk-virtual-mixer"))
        self.place = place
        self.rows = []
        self.failures = []

    def start(self, *words, **options):
        return subprocess.Popen(words, env=self.place.environment, text=True,
                                stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, **options)

    def run(self, *words, before=(), extra=None, **options):
        """Returns the exit status, or "hangs"."""
        environment = dict(self.place.environment, **(extra or {}))
        try:
            return subprocess.run(
                [*before, *words], env=environment, check=False,
                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                timeout=HANGS, **options).returncode
        except subprocess.TimeoutExpired:
            return "hangs"

    def set_boost(self, **options):
        return self.run(self.child, "set", "boost", "1", **options)

    def note(self, what, tried, result, bad):
        self.rows.append((what, tried, result))
        print(f"{what}: {tried}; {result}", flush=True)
        if bad:
            self.failures.append(f"{what}: {bad}")

    def expect_kept(self, what, detail):
        """Records a failure if a setting is missing or changed."""
        lost = self.place.lost()
        if lost:
            self.failures.append(f"{what}, {detail}: {', '.join(lost)}")
            self.place.refill()
        return bool(lost)

    @staticmethod
    def limited(items):
        """Yields the items until MOST_SECONDS have passed."""
        end = time.monotonic() + MOST_SECONDS
        for item in items:
            if time.monotonic() > end:
                return
            yield item
