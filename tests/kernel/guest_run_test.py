#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests guest-run.

    guest_run_test.py GUEST_RUN
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

GUEST_RUN = sys.argv[1]
SKIPPED = 77


def guest_run(*arguments, **options):
    return subprocess.run([GUEST_RUN, *arguments], capture_output=True,
                          text=True, check=False, timeout=240, **options)


def is_emulated():
    flags = pathlib.Path("/proc/cpuinfo").read_text().split()
    try:
        os.close(os.open("/dev/kvm", os.O_RDWR))
    except OSError:
        return True
    return not {"vmx", "svm"} & set(flags)


class OneGuest(unittest.TestCase):
    """One guest for many tests, because a guest needs seconds to start."""

    SCRIPT = """
        printf "<%s>" "$@"
        echo to errors >&2
        echo; echo "-- root"; id --user; pwd; cat </dev/stdin; cat <(echo fd)
        echo "-- machine"; nproc; ls /sys/class/net
        cat /sys/bus/usb/devices/usb1/idVendor
        ls /sys/devices/platform/ | grep ^vhci_hcd.0
        ls -d /sys/bus/usb/devices/usb* | wc -l
        echo "-- files"; echo gone >lost; cat lost
        cd kept*; cat old; echo inside >new; rm old
        echo; echo "-- much"; seq 300000
        kill -KILL $$"""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        cls.kept = cls.folder / "kept, with a comma"
        cls.kept.mkdir()
        (cls.kept / "old").write_text("outside\n")
        cls.done = guest_run(
            "--writable", str(cls.kept), "bash", "-c", cls.SCRIPT, "bash",
            "two words", "", "it's", "a\nline", "$HOME", "--option",
            cwd=cls.folder, input="unseen")
        head, *parts = cls.done.stdout.split("\n-- ")
        cls.parts = dict(part.split("\n", 1) for part in parts)
        cls.parts["arguments"] = head

    def test_the_command_receives_its_arguments_unchanged(self):
        self.assertEqual(self.parts["arguments"],
                         "<two words><><it's><a\nline><$HOME><--option>")

    def test_separates_standard_error_from_standard_output(self):
        # The guest's shell adds a line about the signal that ended the command.
        self.assertEqual(self.done.stderr, "to errors\nKilled\n")
        self.assertNotIn("to errors", self.done.stdout)

    def test_a_signal_ends_the_command_and_no_output_is_lost(self):
        self.assertEqual(self.parts["much"],
                         "".join(f"{i}\n" for i in range(1, 300001)))
        self.assertEqual(self.done.returncode, 137)

    def test_runs_as_root_in_the_same_folder_without_input(self):
        self.assertEqual(self.parts["root"], f"0\n{self.folder}\nfd")

    def test_has_one_processor_no_network_and_the_hubs_of_usbip(self):
        self.assertEqual(self.parts["machine"],
                         "1\nlo\n1d6b\nvhci_hcd.0\n16")

    def test_keeps_only_the_files_in_a_writable_folder(self):
        self.assertEqual(self.parts["files"], "gone\noutside\n")
        self.assertEqual((self.kept / "new").read_text(), "inside\n")
        self.assertEqual(os.listdir(self.kept), ["new"])
        self.assertEqual(os.listdir(self.folder), [self.kept.name])


class EndOfTheGuest(unittest.TestCase):
    """The time limit, the clock and a crash end a guest."""

    def test_after_the_time_limit(self):
        done = guest_run("--timeout", "5", "sleep", "100")
        self.assertEqual(done.returncode, 124)
        self.assertEqual(done.stderr.splitlines()[-1],
                         "guest-run: ended after 5 seconds: sleep 100")

    @unittest.skipUnless(is_emulated(), "a real processor has its own clock")
    def test_early_if_its_clock_counts_instructions(self):
        done = guest_run("--instruction-clock", "--timeout", "120", "bash",
                         "-c", "sleep 1000; ((SECONDS >= 1000)) && exit 5")
        if done.returncode == 77:
            self.skipTest(done.stderr)
        self.assertEqual(done.returncode, 5)

    def test_without_a_status_after_a_crash_of_the_kernel(self):
        done = guest_run("bash", "-c", "echo c >/proc/sysrq-trigger")
        self.assertEqual(done.returncode, 125)
        self.assertIn("the guest ended without a status", done.stderr)


class WithoutGuest(unittest.TestCase):
    """Cases in which guest-run ends before it starts a guest."""

    def test_reports_the_error_in_the_options(self):
        for arguments, why in (
                ((), "no command is given"),
                (("--wrong", "true"), "'--wrong' is not an option"),
                (("--timeout", "soon", "true"),
                 "--timeout takes a number, not 'soon'"),
                (("--timeout",), "--timeout lacks its value"),
                (("--writable", "/nowhere", "true"),
                 "'/nowhere' is not a folder")):
            with self.subTest(arguments):
                done = guest_run(*arguments)
                self.assertEqual(done.returncode, 2)
                self.assertEqual(
                    done.stderr, f"guest-run: {why}; "
                    "guest-run --help tells how to use it\n")

    def test_counts_as_skipped_without_qemu(self):
        with tempfile.TemporaryDirectory() as folder:
            for program in ("bash", "dirname", "env"):
                os.symlink(f"/usr/bin/{program}", f"{folder}/{program}")
            done = guest_run("true", env={"PATH": folder})
        self.assertEqual(done.returncode, SKIPPED)
        self.assertEqual(done.stderr,
                         "guest-run: there is no qemu-system-x86_64: "
                         "install qemu-system-x86\n")

    def test_counts_as_skipped_without_a_kernel(self):
        # This apt-cache knows no package, and the cache folder is empty.
        with tempfile.TemporaryDirectory() as folder:
            apt = pathlib.Path(folder, "apt-cache")
            apt.write_text("#!/bin/sh\necho E: no network >&2\nexit 100\n")
            apt.chmod(0o755)
            done = guest_run("true", env={
                **os.environ, "XDG_CACHE_HOME": folder,
                "PATH": f"{folder}:{os.environ['PATH']}"})
        self.assertEqual(done.returncode, SKIPPED)
        self.assertEqual(done.stderr,
                         "guest-kernel: E: no network "
                         "(apt-cache depends --no-recommends)\n")


if __name__ == "__main__":
    kernel = subprocess.run([str(pathlib.Path(GUEST_RUN).with_name(
        "guest-kernel"))], capture_output=True, text=True, check=False)
    if kernel.returncode == SKIPPED or not shutil.which("qemu-system-x86_64"):
        print(f"skipped: no guest can run here: {kernel.stderr.strip()}")
        sys.exit(SKIPPED)
    unittest.main(argv=sys.argv[:1], verbosity=2)
