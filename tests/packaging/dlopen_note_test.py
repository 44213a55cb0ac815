#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the libraries that a binary loads on first use with the dependencies
of its Debian package.

The binary names those libraries in its section .note.dlopen; the format is
described by systemd. dpkg of Debian 12 does not read it, so packaging/debian
names the packages by hand.

Usage: dlopen_note_test.py CONTROL PACKAGE=BINARY...
"""

import json
import pathlib
import re
import struct
import sys

NOTE_TYPE = 0x407C0C0A
# A soname with the packages that contain it, in Debian 12 and 13.
PACKAGES = {"libglib-2.0.so.0": "libglib2.0-0 | libglib2.0-0t64",
            "libsystemd.so.0": "libsystemd0"}


def section(binary, wanted):
    """The bytes of a section of a 64-bit little-endian ELF file."""
    table, = struct.unpack_from("<Q", binary, 0x28)
    size, count, names = struct.unpack_from("<HHH", binary, 0x3A)
    headers = [struct.unpack_from("<IIQQQQ", binary, table + index * size)
               for index in range(count)]
    for header in headers:
        begin = headers[names][4] + header[0]
        if binary[begin:binary.index(b"\0", begin)].decode() == wanted:
            return binary[header[4]:header[4] + header[5]]
    return b""


def sonames(notes):
    """The first soname of each entry of each note."""
    found, at = set(), 0
    while at < len(notes):
        owner, length, kind = struct.unpack_from("<III", notes, at)
        at += 12
        name = notes[at:at + owner]
        at += (owner + 3) & ~3
        if (name, kind) == (b"FDO\0", NOTE_TYPE):
            entries = json.loads(notes[at:at + length].rstrip(b"\0"))
            found |= {entry["soname"][0] for entry in entries}
        at += (length + 3) & ~3
    return found


def dependencies(control, package):
    """What a package names in its field Depends."""
    paragraph = re.search(rf"^Package: {package}\n(?:.+\n)*", control, re.M)[0]
    field = re.search(r"^Depends:((?:.*\n)(?:[ ].*\n)*)", paragraph, re.M)[1]
    return {entry.strip() for entry in field.split(",")}


def main(control, *binaries):
    control = pathlib.Path(control).read_text(encoding="utf-8")
    complaints = []
    for pair in binaries:
        package, file = pair.split("=", 1)
        loaded = sonames(section(pathlib.Path(file).read_bytes(),
                                 ".note.dlopen"))
        named = dependencies(control, package) & set(PACKAGES.values())
        expected = {PACKAGES.get(soname, soname) for soname in loaded}
        if not loaded or named != expected:
            complaints.append(f"{package} depends on {sorted(named)}, and "
                              f"{file} loads {sorted(loaded)}")
    print("\n".join(complaints))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
