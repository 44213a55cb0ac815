#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the number of system calls of the library with literals, and with the
floor of the benchmarks.

    syscall_count_test.py BENCH_FOLDER BIN_FOLDER

Times vary, but numbers of system calls are exact: one additional call for each
device is detected here. system_calls.py describes what is counted and what is left
out, so that the numbers are those of a machine with real devices.
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

BENCH_FOLDER, BIN_FOLDER = sys.argv[1:3]
sys.path.insert(0, BENCH_FOLDER)

import system_calls  # noqa: E402  (found through the argument)

# Later versions of libsystemd make more calls when they connect to the bus.
COUNTED_LIBSYSTEMD = "252"

SKIPPED = 77  # the exit status of a skipped test

ONE_WALK_OF_THREE = [
    "openat /sys/bus/usb/devices", "stat /sys/bus/usb/devices",
    "getdents64 /sys/bus/usb/devices",
    "openat descriptors", "read descriptors", "close descriptors",
    "openat descriptors", "read descriptors", "close descriptors",
    "openat descriptors", "read descriptors", "close descriptors",
    "getdents64 /sys/bus/usb/devices", "close /sys/bus/usb/devices"]


def library_calls(operation, mixers=1, other_devices=0):
    case = ("library", operation)
    return system_calls.measure(BIN_FOLDER, [case], mixers,
                                other_devices)[case]


def is_counted_libsystemd():
    done = subprocess.run(["pkg-config", "--modversion", "libsystemd"],
                          capture_output=True, text=True, check=False)
    return done.stdout.split(".")[0].strip() == COUNTED_LIBSYSTEMD


only_counted_libsystemd = unittest.skipUnless(
    is_counted_libsystemd(),
    f"the calls are those of libsystemd {COUNTED_LIBSYSTEMD}")


class Count(unittest.TestCase):
    def test_reads_each_device_once_with_three_calls(self):
        calls = library_calls("count", mixers=2)
        # The file system decides which device comes first.
        shortened = [
            f"{call.split()[0]} descriptors"
            if call.endswith("/descriptors") else call for call in calls]
        self.assertEqual(shortened, ONE_WALK_OF_THREE)

    def test_makes_five_calls_and_three_for_each_device(self):
        # The root hub of the bus is a device too.
        for mixers, others, expected in ((0, 0, 8),     # 1 device
                                         (1, 3, 20),    # 5 devices
                                         (1, 11, 44)):  # 13 devices
            with self.subTest(mixers=mixers, others=others):
                self.assertEqual(
                    len(library_calls("count", mixers, others)), expected)


class Setter(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.calls = library_calls("set", other_devices=11)
        cls.names = system_calls.names(cls.calls)

    def number(self, *names):
        return tuple(self.names[name] for name in names)

    def test_reads_the_bus_three_times_and_opens_the_node_twice(self):
        # The count, the write and the read each read 13 devices.
        descriptors = [call for call in self.calls
                       if call.endswith("/descriptors")]
        self.assertEqual(len(descriptors), 3 * 13 * 3)
        nodes = [call.split("/", 1)[0] for call in self.calls
                 if "/dev/bus/usb/" in call]
        self.assertEqual(nodes, ["openat ", "read ", "close "] * 2)
        self.assertEqual(self.number("ioctl"), (2,))

    def test_writes_its_file_once_and_makes_it_durable(self):
        self.assertEqual(
            self.number("write", "linkat", "rename", "fsync", "fchown",
                        "fchmod"), (1, 1, 1, 2, 1, 1))

    def test_locks_and_unlocks_the_folder_and_locks_its_file_once(self):
        self.assertEqual(self.number("flock"), (3,))

    def test_sends_three_messages_to_the_bus(self):
        self.assertEqual(self.number("socket", "connect", "sendmsg"),
                         (1, 1, 3))

    @only_counted_libsystemd
    def test_makes_208_calls_with_13_devices(self):
        self.assertEqual(len(self.calls), 208)

    def test_makes_nine_calls_more_for_each_device(self):
        fewer = library_calls("set", other_devices=10)
        self.assertEqual(len(self.calls) - len(fewer), 9)


class Status(unittest.TestCase):
    def test_reads_each_settings_file_once(self):
        with tempfile.TemporaryDirectory() as home:
            environment = {"HOME": home, "PATH": os.environ["PATH"]}
            trace = pathlib.Path(home) / "trace"
            subprocess.run(
                ["strace", "-qq", "-o", trace, "-e", "trace=open,openat",
                 pathlib.Path(BIN_FOLDER) / "ztk", "status"],
                check=True, env=environment, stdout=subprocess.DEVNULL)
            opened = re.findall(r"tarvix\.([\w-]+)autosetup\.plist",
                                trace.read_text())
        self.assertEqual(sorted(opened), ["VRM-B5", "VRM-D6", "VRM-K2"])


class Floor(unittest.TestCase):
    def test_makes_the_same_calls_as_the_library_in_the_same_order(self):
        cases = [(who, operation) for operation in system_calls.OPERATIONS
                 for who in ("library", "floor")]
        calls = system_calls.measure(BIN_FOLDER, cases, other_devices=3)
        for operation in system_calls.OPERATIONS:
            with self.subTest(operation):
                if operation == "set" and not is_counted_libsystemd():
                    self.skipTest(f"the floor is for libsystemd "
                                  f"{COUNTED_LIBSYSTEMD}")
                self.assertEqual(calls["floor", operation],
                                 calls["library", operation])


if __name__ == "__main__":
    try:
        system_calls.check_tracing()
    except system_calls.Unavailable as reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(argv=sys.argv[:1], verbosity=2)
