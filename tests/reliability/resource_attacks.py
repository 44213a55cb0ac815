# SPDX-License-Identifier: MIT
"""Attacks in which the system refuses something: descriptors, single system calls,
memory, or access to files of other users."""

import json
import os
import pathlib
import plistlib
import resource
import shutil
import subprocess
import tempfile

from place import LONG, SETTINGS, Attack, Place

# The system calls that fail. Some of them also load libraries at the start of a
# process; a process that does not start shows nothing about the settings.
ATTACKED_CALLS = ["openat", "read", "newfstatat", "fstat", "write", "fsync",
                  "rename", "linkat", "readlink", "fchown", "fchmod", "flock",
                  "getdents64", "close", "mmap", "brk"]
# A step that ztk undo can take back.
STEP = {"command": "boost set", "changes": [
    {"setting": "boost", "channel": None, "before": 1, "after": 2}]}
USER = 65534


class ResourceAttacks(Attack):
    def __init__(self, folder, place, fail_allocation):
        super().__init__(folder, place)
        self.fail_allocation = fail_allocation

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

    def unreadable_files(self):
        """A folder with the name of the file is neither changed nor renamed."""
        tried = changed = 0
        for words in ((self.child, "set", "boost", "1"),
                      (self.ztk, "boost", "set", "2"), (self.ztk, "undo"),
                      (self.ztk, "apply")):
            self.place.refill()
            self.place.file.unlink()
            self.place.file.mkdir()
            self.run(*words)
            tried += 1
            changed += not self.place.file.is_dir() or bool(self.place.others())
        self.place.file.rmdir()
        self.note("A folder in the place of the file", f"{tried} commands",
                  f"{changed} changed something", changed)

    def failing_calls(self):
        strace = shutil.which("strace")
        if strace is None or self.run(strace, "-qq", "-o", os.devnull,
                                      "true") != 0:
            self.note("Each system call of a change failing once", "not tried",
                      "strace does not run here", 0)
            return
        self.run(self.ztk, "boost", "set", "1")
        saved = self.place.home / "saved.json"
        saved.write_text(subprocess.run(
            [self.ztk, "export"], env=self.place.environment, check=False,
            capture_output=True, text=True).stdout)
        for what, words in (
                ("a library call", (self.child, "set", "boost", "1")),
                ("`ztk boost set`", (self.ztk, "boost", "set", "2")),
                ("`ztk undo`", (self.ztk, "undo")),
                ("`ztk import`", (self.ztk, "import", str(saved)))):
            self.fail_calls_of(what, words, strace)

    def fail_calls_of(self, what, words, strace):
        tried = lost = 0
        for before in self.limited(list(self.injections(strace, words))):
            self.prepare()
            self.run(*words, before=before)
            tried += 1
            lost += (self.expect_kept("failing call", " ".join(before)) or
                     self.history_is_damaged(before))
        self.note(f"Each system call of {what} failing once",
                  f"{tried} runs", f"{lost} with a loss", lost)

    def injections(self, strace, words):
        for name in ATTACKED_CALLS:
            total = self.count_calls(strace, words, name)
            step = 1 if LONG else max(1, total // 3)
            for number in range(total, 0, -step):
                for error in ("EIO", "EMFILE") if LONG else ("EIO",):
                    yield (strace, "-f", "-qq", "-o", os.devnull, "-e",
                           f"inject={name}:error={error}:when={number}")

    def count_calls(self, strace, words, name):
        self.prepare()
        trace = self.place.home / "trace"
        self.run(*words, before=(strace, "-f", "-qq", "-o", str(trace), "-e",
                                 f"trace={name}"))
        return len(trace.read_text().splitlines())

    def prepare(self):
        """Writes the settings, and a history with one step."""
        self.place.refill()
        self.place.history.parent.mkdir(parents=True, exist_ok=True)
        for old in self.place.history.parent.iterdir():
            old.unlink()
        self.place.history.write_text(json.dumps(STEP) + "\n")

    def history_is_damaged(self, detail):
        """Returns whether a line of the history is not a complete step."""
        try:
            lines = self.place.history.read_text().splitlines()
            whole = all("changes" in json.loads(line) for line in lines)
        except (OSError, ValueError):
            whole = False
        if not whole:
            self.failures.append(f"failing call, {' '.join(detail)}: history")
        return not whole

    def links_as_root(self):
        """A user makes links to a file of root at the paths where ztk writes."""
        if os.geteuid() != 0:
            self.note("Links of a user in the way of root", "not tried",
                      "needs root", 0)
            return
        tried = harmed = 0
        for link in ("file", "folder", "history", "lock", "state"):
            for words in ((self.child, "set", "boost", "1"),
                          (self.ztk, "boost", "set", "2"),
                          (self.ztk, "undo")):
                with tempfile.TemporaryDirectory(dir="/tmp") as folder:
                    harmed += self.follow_link(pathlib.Path(folder), link,
                                               words)
                tried += 1
        self.note("Links of a user in the way of root", f"{tried} commands",
                  f"{harmed} followed to a file of root", harmed)

    def follow_link(self, folder, link, words):
        """Returns True if the file or folder of root has changed."""
        folder.chmod(0o755)
        roots = folder / "roots"
        roots.mkdir(mode=0o755)
        secret = roots / "secret"
        secret.write_bytes(plistlib.dumps(SETTINGS))
        secret.chmod(0o600)
        before = secret.stat()
        place = Place(folder / "home")
        state = place.history.parent
        state.mkdir(parents=True)
        path, target = {
            "file": (place.file, secret), "folder": (place.folder, roots),
            "history": (place.history, secret),
            "lock": (state / "ztk.lock", secret), "state": (state, roots)}[link]
        if path.is_dir():
            shutil.rmtree(path)
        else:
            path.unlink(missing_ok=True)
        path.symlink_to(target)
        for name in (place.home, *place.home.rglob("*")):
            os.chown(name, USER, USER, follow_symlinks=False)
        self.run(*words, extra={"HOME": str(place.home)})
        after = secret.stat()
        return (secret.read_bytes() != plistlib.dumps(SETTINGS) or
                os.listdir(roots) != ["secret"] or
                (before.st_ino, before.st_mode, before.st_uid) !=
                (after.st_ino, after.st_mode, after.st_uid))

    def failing_allocations(self):
        count_file = self.place.home / "allocations"
        # LD_PRELOAD cannot contain a path with a space.
        library = self.place.home / "fail_allocation.so"
        library.symlink_to(os.path.abspath(self.fail_allocation))
        preload = " ".join(filter(None, (os.environ.get("LD_PRELOAD"),
                                         str(library))))
        self.place.refill()
        self.set_boost(extra={"LD_PRELOAD": preload,
                              "ZTK_COUNT_ALLOCATIONS": str(count_file)})
        total = int(count_file.read_text())
        step = 1 if LONG else max(1, total // 80)
        tried = lost = ended = 0
        for number in self.limited(range(1, total + 1, step)):
            self.place.refill()
            status = self.set_boost(extra={
                "LD_PRELOAD": preload, "ZTK_FAIL_ALLOCATION": str(number)})
            tried += 1
            ended += status != 0
            lost += self.expect_kept("failing allocation", str(number))
        self.note("Each allocation of a change failing once",
                  f"{tried} changes",
                  f"{lost} with a loss; {ended} ended the process", lost)

    def attack(self):
        self.descriptor_limit()
        self.unreadable_files()
        self.links_as_root()
        self.failing_calls()
        self.failing_allocations()
