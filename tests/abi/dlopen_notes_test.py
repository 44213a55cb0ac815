#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads from the built binaries which libraries they load on first use, and
compares these with the dependencies of the Debian packages. The section
.note.dlopen lists the libraries, in a format that systemd documents. dpkg of Debian
12 does not read this section, so packaging/debian/control.in lists the packages.

Usage: dlopen_notes_test.py CONTROL LIBRARY [PROGRAM]
"""

import json
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest

CONTROL = None
LIBRARY = None
BINARIES = {}  # by package

# The packages of a soname in Debian 12 and 13.
PACKAGES = {"libglib-2.0.so.0": "libglib2.0-0 | libglib2.0-0t64",
            "libsystemd.so.0": "libsystemd0"}


def padded(size):
    return (size + 3) // 4 * 4


def notes(binary):
    """Returns (owner, type, content) of each ELF note in the section."""
    with tempfile.TemporaryDirectory() as folder:
        section = pathlib.Path(folder) / "section"
        subprocess.run(["objcopy", "-O", "binary", "--only-section=.note.dlopen",
                        binary, section], check=True, timeout=60)
        data = section.read_bytes()
    found = []
    while data:
        name_size, size, kind = struct.unpack_from("=III", data)
        start = 12 + padded(name_size)
        found.append((data[12:12 + name_size], kind, data[start:start + size]))
        data = data[start + padded(size):]
    return found


def libraries(binary):
    """Returns the entries of all notes, by soname."""
    entries = {}
    for _, _, content in notes(binary):
        for entry in json.loads(content.rstrip(b"\0")):
            for soname in entry["soname"]:
                entries[soname] = entry
    return entries


def dependencies(package):
    """Returns the entries in the field Depends of a package."""
    control = pathlib.Path(CONTROL).read_text(encoding="utf-8")
    paragraph = re.search(rf"^Package: {package}\n(?:.+\n)*", control, re.M)[0]
    field = re.search(r"^Depends:((?:.*\n)(?:[ ].*\n)*)", paragraph, re.M)[1]
    return {entry.strip() for entry in field.split(",")}


class Notes(unittest.TestCase):
    def test_have_the_form_that_packaging_tools_read(self):
        self.assertEqual([(owner, kind) for owner, kind, _ in notes(LIBRARY)],
                         [(b"FDO\0", 0x407C0C0A)] * 2)
        sections = subprocess.run(
            ["readelf", "-W", "-S", LIBRARY], check=True, text=True,
            timeout=60, stdout=subprocess.PIPE).stdout
        self.assertRegex(sections, r"\.note\.dlopen +NOTE .* A ")

    def test_name_the_bus_and_the_main_loop(self):
        features = {entry["feature"]: soname
                    for soname, entry in libraries(LIBRARY).items()}
        self.assertIn(features.pop("announcements"),
                      ["libsystemd.so.0", "libelogind.so.0", "libbasu.so.0"])
        self.assertEqual(features, {"callbacks": "libglib-2.0.so.0"})

    def test_describe_the_feature_that_needs_the_library(self):
        for soname, entry in libraries(LIBRARY).items():
            with self.subTest(library=soname):
                self.assertEqual(entry["priority"], "recommended")
                self.assertGreater(len(entry["description"].split()), 3)

    def test_are_the_same_as_the_dependencies_of_the_debian_packages(self):
        for package, binary in BINARIES.items():
            with self.subTest(package=package):
                loaded = set(libraries(binary))
                if "libsystemd.so.0" not in loaded:
                    self.skipTest("Debian's packages use systemd's library")
                self.assertEqual(
                    dependencies(package) & set(PACKAGES.values()),
                    {PACKAGES.get(soname, soname) for soname in loaded})


if __name__ == "__main__":
    CONTROL, LIBRARY = sys.argv[1:3]
    BINARIES = dict(zip(("libztkfunc1", "ztk"),
                        filter(None, sys.argv[2:])))
    unittest.main(argv=[sys.argv[0], "-v"])
