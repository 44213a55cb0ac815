#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes debian/ from the project, and from small projects with errors.

Usage: make_debian_test.py ROOT VERSION
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = None
VERSION = None

CMAKE = "project(\n  ZTKFunc\n  VERSION 1.2.0\n  LANGUAGES C)\n"
LICENCE = "MIT License\n\nCopyright (c) 2026 Somebody\n\nYou may.\n\nAll of it.\n"
CHANGELOG = """\
# Changelog

## [1.2.0] - 2026-03-01

### Added

- `ztk`: a command
  with a long name.
- Another.

### Fixed

- A fault.

## [1.1.0] - 2026-02-01

- The first.
"""


class Project(unittest.TestCase):
    """A folder with the files that make_debian.py reads."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name) / "project"
        self.target = pathlib.Path(folder.name) / "target"
        self.target.mkdir()
        self.write("CMakeLists.txt", CMAKE)
        self.write("CHANGELOG.md", CHANGELOG)
        self.write("LICENSE", LICENCE)
        self.write("scripts/packages/build.txt",
                   "# To build.\ncmake\ng++  # the compiler\n\napt\n")
        self.write("scripts/packages/window.txt", "# The window.\nqt\n")
        shutil.copytree(ROOT / "packaging/debian",
                        self.root / "packaging/debian")

    def write(self, name, text):
        file = self.root / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    def make(self, root=None):
        return subprocess.run(
            [sys.executable, "-B", ROOT / "packaging/make_debian.py",
             root or self.root, self.target], check=False, text=True,
            timeout=60, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
            env={"SOURCE_DATE_EPOCH": "86400"})

    def made(self, name, root=None):
        result = self.make(root)
        self.assertEqual((result.returncode, result.stdout), (0, ""))
        return (self.target / "debian" / name).read_text()

    def refused(self):
        result = self.make()
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(result.stdout.splitlines()), 1, result.stdout)
        return result.stdout


class Changelog(Project):
    def test_has_an_entry_for_each_release(self):
        self.assertEqual(self.made("changelog"), """\
ztkfunc (1.2.0) unstable; urgency=medium

  * ztk: a command with a long name.
  * Another.
  * A fault.

 -- The ZTKFunc authors <maintainers@ztkfunc.example>  \
Sun, 01 Mar 2026 12:00:00 +0000

ztkfunc (1.1.0) unstable; urgency=medium

  * The first.

 -- The ZTKFunc authors <maintainers@ztkfunc.example>  \
Sun, 01 Feb 2026 12:00:00 +0000
""")

    def test_unreleased_changes_have_the_version_of_the_project(self):
        self.write("CHANGELOG.md", "## [Unreleased]\n\n- New.\n")
        self.assertEqual(self.made("changelog"), """\
ztkfunc (1.2.0) UNRELEASED; urgency=medium

  * New.

 -- The ZTKFunc authors <maintainers@ztkfunc.example>  \
Fri, 02 Jan 1970 00:00:00 +0000
""")

    def test_skips_an_empty_unreleased_section(self):
        self.write("CHANGELOG.md", CHANGELOG.replace(
            "## [1.2.0]", "## [Unreleased]\n\n## [1.2.0]"))
        self.assertTrue(self.made("changelog").startswith(
            "ztkfunc (1.2.0) unstable;"))

    def test_refuses_another_version_than_the_projects(self):
        self.write("CMakeLists.txt", CMAKE.replace("1.2.0", "1.3.0"))
        self.assertIn("the newest release is 1.2.0, while CMakeLists.txt says "
                      "1.3.0", self.refused())

    def test_refuses_a_heading_that_it_cannot_read(self):
        self.write("CHANGELOG.md", CHANGELOG.replace("- 2026-03-01", ""))
        self.assertIn('"## [1.2.0] " is neither', self.refused())

    def test_refuses_a_changelog_without_changes(self):
        self.write("CHANGELOG.md", "# Changelog\n")
        self.assertIn("contains no changes", self.refused())


class Others(Project):
    def test_the_licence_is_that_of_the_project(self):
        self.assertEqual(self.made("copyright").split("\n\n", 1)[1], """\
Files: *
Copyright: 2026 Somebody
License: Expat
 You may.
 .
 All of it.
""")

    def test_build_dependencies_are_the_packages_of_the_projects_lists(self):
        control = self.made("control")
        self.assertIn("Build-Depends:\n debhelper-compat (= 13),\n"
                      " doxygen,\n dh-python,\n python3,\n apt,\n"
                      " cmake,\n qt\nStandards", control)
        self.assertFalse((self.target / "debian/control.in").exists())

    def test_a_project_without_a_version_is_refused(self):
        self.write("CMakeLists.txt", "project(ZTKFunc LANGUAGES C)\n")
        self.assertIn("names no VERSION", self.refused())


class Real(Project):
    def test_the_version_is_the_one_that_is_built(self):
        self.assertTrue(self.made("changelog", ROOT).startswith(
            f"ztkfunc ({VERSION}) "))

    def test_symbols_are_those_that_the_library_exports(self):
        exports = [line for line in
                   (ROOT / "src/exports.txt").read_text().splitlines()
                   if line and not line.startswith("#")]
        node = "ZTKFUNC_" + VERSION.split(".", maxsplit=1)[0]
        lines = (ROOT / "packaging/debian/libztkfunc1.symbols"
                 ).read_text().splitlines()[2:]
        names = [re.fullmatch(r" (\w+)@(\w+) \d+\.\d+\.\d+", line).groups()
                 for line in lines]
        self.assertEqual(sorted(names),
                         sorted((name, node) for name in [*exports, node]))


if __name__ == "__main__":
    ROOT, VERSION = pathlib.Path(sys.argv[1]), sys.argv[2]
    unittest.main(argv=sys.argv[:1])
