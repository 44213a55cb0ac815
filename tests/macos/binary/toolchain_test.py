#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Configures the project for macOS with two generators, and looks whether the
flags of the toolchain file reach the commands that link.

Usage: toolchain_test.py --root SOURCES --sdk FOLDER --arch x86_64|arm64
"""

import argparse
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

OPTIONS = None


class LinkCommands(unittest.TestCase):
    def configure(self, generator, folder):
        subprocess.run(
            ["cmake", "-S", OPTIONS.root, "-B", folder, "-G", generator,
             f"-DCMAKE_TOOLCHAIN_FILE={OPTIONS.root}/cmake/macos-cross.cmake",
             f"-DMACOS_SDK={OPTIONS.sdk}", f"-DMACOS_ARCH={OPTIONS.arch}",
             "-DBUILD_TESTING=OFF"],
            check=True, stdout=subprocess.DEVNULL, timeout=240)

    def check(self, commands):
        # The framework, whose flags CMake takes from a variable of its own, and
        # the program.
        self.assertEqual(len(commands), 2)
        for command in commands:
            with self.subTest(command=command):
                self.assertRegex(command, r"-fuse-ld=lld -B/\S+/bin\b")

    @unittest.skipUnless(shutil.which("make"), "make is not installed")
    def test_of_makefiles_contain_the_linker(self):
        with tempfile.TemporaryDirectory() as folder:
            self.configure("Unix Makefiles", folder)
            files = [path for path in pathlib.Path(folder).rglob("link.txt")
                     if path.parent.name in ("ZTKFunc.dir", "ztk.dir")]
            self.check([path.read_text() for path in files])

    @unittest.skipUnless(shutil.which("ninja"), "ninja is not installed")
    def test_of_ninja_contain_the_linker(self):
        with tempfile.TemporaryDirectory() as folder:
            self.configure("Ninja", folder)
            rules = (pathlib.Path(folder) / "build.ninja").read_text()
            self.check(re.findall(r"^build [^\n]*(?:/VRM-D6Setup|bin/ztk)[ :]"
                                  r"[^\n]*_LINKER__.*?LINK_FLAGS = ([^\n]*)",
                                  rules, re.MULTILINE | re.DOTALL))


def main():
    global OPTIONS
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--root", required=True)
    parser.add_argument("--sdk", required=True)
    parser.add_argument("--arch", required=True)
    OPTIONS = parser.parse_args()
    unittest.main(argv=["toolchain_test.py", "-v"])


if __name__ == "__main__":
    main()
