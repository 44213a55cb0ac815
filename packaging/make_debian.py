#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the folder debian/, from which Debian packages are built.

Copies packaging/debian and adds facts from other files of the project: the version
(CMakeLists.txt), the changes (CHANGELOG.md), the licence (LICENSE) and the packages
for the build (build.txt and window.txt in scripts/packages).

Unreleased changes get the version in CMakeLists.txt and the date in
SOURCE_DATE_EPOCH.

Usage: make_debian.py ROOT TARGET
"""

import datetime
import email.utils
import os
import pathlib
import re
import shutil
import sys
import textwrap

# Every system that builds packages has these packages.
ALWAYS_THERE = {"g++"}

COPYRIGHT_HEAD = """\
Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: ZTKFunc

Files: *
Copyright: {holder}
License: Expat
"""


def project_version(cmake):
    found = re.search(r"^project\([^)]*?\bVERSION\s+([0-9.]+)", cmake,
                      re.MULTILINE)
    if not found:
        sys.exit("CMakeLists.txt: project() names no VERSION")
    return found[1]


def releases(changelog):
    """Returns each version with its date and its changes. Both version and date are
    None for unreleased changes."""
    found = []
    for line in changelog.splitlines():
        heading = re.match(r"## (.*)", line)
        if heading:
            release = re.fullmatch(
                r"\[([0-9.]+)\] - (\d{4})-(\d\d)-(\d\d)", heading[1])
            if release:
                date = datetime.datetime(
                    *map(int, release.groups()[1:]), 12,
                    tzinfo=datetime.timezone.utc)
                found.append((release[1], date, []))
            elif heading[1] == "[Unreleased]":
                found.append((None, None, []))
            else:
                sys.exit(f'CHANGELOG.md: "{line}" is neither "## [Unreleased]" '
                         'nor "## [1.2.3] - 2026-01-31"')
        elif found and line.startswith("- "):
            found[-1][2].append(line[2:])
        elif found and line.startswith("  ") and found[-1][2]:
            found[-1][2][-1] += " " + line.strip()
    return [release for release in found if release[2] or release[0]]


def debian_changelog(version, changelog, maintainer):
    entries = []
    newest = True
    for number, date, changes in releases(changelog):
        if newest and number not in (None, version):
            sys.exit(f"CHANGELOG.md: the newest release is {number}, while "
                     f"CMakeLists.txt says {version}; change one "
                     "of them")
        newest = False
        if date is None:
            seconds = int(os.environ.get("SOURCE_DATE_EPOCH", "0"))
            date = datetime.datetime.fromtimestamp(seconds,
                                                   datetime.timezone.utc)
        bullets = [textwrap.fill(change.replace("`", ""), 76,
                                 initial_indent="  * ",
                                 subsequent_indent="    ",
                                 break_on_hyphens=False)
                   for change in changes]
        entries.append("\n".join([
            f"ztkfunc ({number or version}) "
            f"{'unstable' if number else 'UNRELEASED'}; urgency=medium", "",
            *bullets, "",
            f" -- {maintainer}  {email.utils.format_datetime(date)}", ""]))
    if not entries:
        sys.exit("CHANGELOG.md: it contains no changes")
    return "\n".join(entries)


def debian_copyright(licence):
    holder = re.search(r"^Copyright \(c\) (.*)$", licence, re.MULTILINE)
    terms = licence[holder.end():].strip()
    return COPYRIGHT_HEAD.format(holder=holder[1]) + "".join(
        f" {line or '.'}\n" for line in terms.splitlines())


def main(root, target):
    root = pathlib.Path(root)
    debian = pathlib.Path(target) / "debian"

    def read(name):
        return (root / name).read_text(encoding="utf-8")

    shutil.copytree(root / "packaging/debian", debian)
    build = sorted(
        {line.split("#")[0].strip()
         for name in ("build", "window")
         for line in read(f"scripts/packages/{name}.txt").splitlines()}
        - {""} - ALWAYS_THERE)
    control = (debian / "control.in").read_text().replace(
        "@build_packages@", ",\n".join(f" {package}" for package in build))
    (debian / "control.in").unlink()
    (debian / "control").write_text(control)
    maintainer = re.search(r"^Maintainer: (.*)$", control, re.MULTILINE)[1]
    (debian / "changelog").write_text(debian_changelog(
        project_version(read("CMakeLists.txt")), read("CHANGELOG.md"),
        maintainer), encoding="utf-8")
    (debian / "copyright").write_text(debian_copyright(read("LICENSE")))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
