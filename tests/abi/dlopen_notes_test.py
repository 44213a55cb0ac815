#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads from the built library which libraries it loads on first use, and
compares that with what the Debian packages depend on: dpkg of Debian 12 does
not read these notes.

Usage: dlopen_notes_test.py LIBRARY ROOT
"""

import json
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest

LIBRARY = None
ROOT = None

# The Debian package of a soname, at its name in Debian 12.
PACKAGES = {"libsystemd.so.0": "libsystemd0",
            "libelogind.so.0": "libelogind0",
            "libbasu.so.0": "libbasu0",
            "libglib-2.0.so.0": "libglib2.0-0"}


def padded(size):
    return (size + 3) // 4 * 4


def notes():
    """The (owner, type, content) of each ELF note of the section."""
    with tempfile.TemporaryDirectory() as folder:
        section = pathlib.Path(folder) / "section"
        subprocess.run(["objcopy", "-O", "binary", "--only-section=.note.dlopen",
                        LIBRARY, section], check=True, timeout=60)
        data = section.read_bytes()
    found = []
    while data:
        name_size, size, kind = struct.unpack_from("=III", data)
        start = 12 + padded(name_size)
        found.append((data[12:12 + name_size], kind, data[start:start + size]))
        data = data[start + padded(size):]
    return found


def libraries():
    """The entries of all notes, by soname."""
    entries = {}
    for _, _, content in notes():
        for entry in json.loads(content.rstrip(b"\0")):
            for soname in entry["soname"]:
                entries[soname] = entry
    return entries


def depended_on(package):
    """The words of the field Depends of a package."""
    control = (ROOT / "packaging/debian/control.in").read_text()
    paragraph = re.search(rf"^Package: {package}$.*?(?=^Package:|\Z)", control,
                          re.DOTALL | re.MULTILINE).group()
    field = re.search(r"^Depends:(.*(?:\n .*)*)", paragraph,
                      re.MULTILINE).group(1)
    return re.split(r"[\s,|]+", field)


class Notes(unittest.TestCase):
    def test_have_the_form_that_packaging_tools_read(self):
        self.assertEqual([(owner, kind) for owner, kind, _ in notes()],
                         [(b"FDO\0", 0x407C0C0A)] * 2)
        sections = subprocess.run(
            ["readelf", "-W", "-S", LIBRARY], check=True, text=True,
            timeout=60, stdout=subprocess.PIPE).stdout
        self.assertRegex(sections, r"\.note\.dlopen +NOTE .* A ")

    def test_name_the_bus_and_the_main_loop(self):
        features = {entry["feature"]: soname
                    for soname, entry in libraries().items()}
        self.assertIn(features.pop("announcements"),
                      ["libsystemd.so.0", "libelogind.so.0", "libbasu.so.0"])
        self.assertEqual(features, {"callbacks": "libglib-2.0.so.0"})

    def test_say_what_is_missing_without_the_library(self):
        for soname, entry in libraries().items():
            with self.subTest(library=soname):
                self.assertEqual(entry["priority"], "recommended")
                self.assertGreater(len(entry["description"].split()), 3)

    def test_are_what_the_debian_packages_depend_on(self):
        for package in ("libztkfunc1", "ztk"):
            for soname in libraries():
                with self.subTest(package=package, library=soname):
                    if "systemd" not in soname and "glib" not in soname:
                        self.skipTest("Debian's packages use systemd's library")
                    self.assertIn(PACKAGES[soname], depended_on(package))


if __name__ == "__main__":
    LIBRARY = sys.argv[1]
    ROOT = pathlib.Path(sys.argv[2])
    unittest.main(argv=[sys.argv[0], "-v"])
