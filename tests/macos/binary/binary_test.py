#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Inspects a framework that was built for macOS: its visible names, the libraries
that it needs, that no code runs when it is loaded, and that the bundle is complete.

Usage: binary_test.py --build FOLDER --arch x86_64|arm64 --root SOURCES
"""

import argparse
import os
import pathlib
import plistlib
import re
import shutil
import subprocess
import unittest

NAME = "VRM-D6Setup"
INSTALL_NAME = f"/Library/Frameworks/{NAME}.framework/Versions/A/{NAME}"
CLASS = ["_OBJC_CLASS_$_ZTKFunc", "_OBJC_METACLASS_$_ZTKFunc"]
NEEDED = [
    "/System/Library/Frameworks/Foundation.framework/Versions/C/Foundation",
    "/System/Library/Frameworks/CoreFoundation.framework/Versions/A/"
    "CoreFoundation",
    "/System/Library/Frameworks/IOKit.framework/Versions/A/IOKit",
    "/usr/lib/libobjc.A.dylib",
    "/usr/lib/libc++.1.dylib",
    "/usr/lib/libSystem.B.dylib",
]
OLDEST = {"x86_64": "10.13", "arm64": "11.0"}
LANGUAGES = ["English", "Japanese", "French", "German", "Italian", "Dutch",
             "Spanish", "ru", "pt", "zh_CN", "zh_TW", "ko"]
TABLES = ["InputAudioText", "PC_INPUT_PULLDOWN_TEXT", "_convTable_PC_INPUT",
          "OutputAudioText", "VRMB5_OUT_TEXT", "_convTableOut_B5",
          "BoostLevelText", "_convDbTable", "MidiChannelText",
          "MidiKeyModeText"]
# A table of texts that is filled by code would need such a section.
INITIALISERS = ["__mod_init_func", "__init_offsets", "__StaticInit"]

OPTIONS = None


def tool(name):
    return shutil.which(f"{name}-14") or shutil.which(name) or name


def output_of(name, *arguments):
    return subprocess.run([tool(name), *map(str, arguments)], check=True,
                          text=True, timeout=60, stdout=subprocess.PIPE).stdout


def framework():
    return OPTIONS.build / "lib" / f"{NAME}.framework"


def binary():
    return framework() / "Versions/A" / NAME


def listed():
    lines = (OPTIONS.root / "src/exports.txt").read_text().splitlines()
    return [line.strip() for line in lines
            if line.strip() and not line.startswith("#")]


class Library(unittest.TestCase):
    def test_exports_exactly_the_listed_names_and_the_class(self):
        lines = output_of("llvm-nm", "--defined-only", "--extern-only",
                          binary()).splitlines()
        shown = [line.split()[-1] for line in lines if line.strip()]
        self.assertEqual(sorted(shown),
                         sorted(["_" + name for name in listed()] + CLASS))
        self.assertEqual(len(shown), 92)

    def test_runs_no_code_at_loading(self):
        commands = output_of("llvm-otool", "-l", binary())
        sections = re.findall(r"sectname (\S+)", commands)
        self.assertIn("__text", sections)
        self.assertIn("__cfstring", sections)
        for name in INITIALISERS:
            self.assertNotIn(name, sections)
        names = output_of("llvm-nm", binary())
        self.assertNotRegex(names, r"__GLOBAL__sub_I|___cxx_global_var_init")

    def test_has_its_tables_in_constant_sections(self):
        places = dict(
            (name, section) for section, name in re.findall(
                r"^\w+ \((\S+)\) external _(\w+)$",
                output_of("llvm-nm", "-m", binary()), re.MULTILINE))
        for name in TABLES:
            with self.subTest(table=name):
                self.assertRegex(places[name],
                                 r"^__(TEXT|DATA|DATA_CONST),__const$")

    def test_links_only_these_libraries(self):
        lines = output_of("llvm-otool", "-L", binary()).splitlines()
        names = [line.split(" (")[0].strip() for line in lines[1:]]
        self.assertEqual(names, [INSTALL_NAME, *NEEDED])

    def test_runs_on_the_oldest_supported_system(self):
        commands = output_of("llvm-otool", "-l", binary())
        found = re.findall(
            r"cmd LC_VERSION_MIN_MACOSX\n.*\n +version (\S+)|minos (\S+)",
            commands)
        self.assertEqual(["".join(pair) for pair in found],
                         [OLDEST[OPTIONS.arch]])

    def test_is_for_the_requested_processor(self):
        header = output_of("llvm-objdump", "--macho", "--private-header", binary())
        wanted = {"x86_64": "X86_64", "arm64": "ARM64"}[OPTIONS.arch]
        self.assertRegex(header, rf"MH_MAGIC_64 +{wanted} .* DYLIB ")

    def test_does_not_contain_code_for_programs_only(self):
        self.assertNotRegex(output_of("llvm-nm", binary()), r"ReplaceFile")

    def test_never_opens_a_device_or_starts_a_thread(self):
        needed = output_of("llvm-nm", "--undefined-only", binary())
        self.assertIn("_IOServiceMatching", needed)
        self.assertNotRegex(needed, r"pthread_create|dispatch_|std.*thread")


class Bundle(unittest.TestCase):
    def test_has_the_files_of_a_framework(self):
        links = {"Versions/Current": "A", NAME: f"Versions/Current/{NAME}",
                 "Headers": "Versions/Current/Headers",
                 "Resources": "Versions/Current/Resources"}
        for link, target in links.items():
            with self.subTest(link=link):
                self.assertEqual(os.readlink(framework() / link), target)
        for name in ("ZTKFunc.h", "ZTKOutcome.h"):
            self.assertEqual((framework() / "Headers" / name).read_bytes(),
                             (OPTIONS.root / "include" / name).read_bytes())

    def test_has_the_identifier_and_the_version(self):
        info = plistlib.loads(
            (framework() / "Resources/Info.plist").read_bytes())
        self.assertEqual(info["CFBundleExecutable"], NAME)
        self.assertEqual(info["CFBundleIdentifier"], f"com.tarvix.{NAME}")
        self.assertEqual(info["CFBundlePackageType"], "FMWK")

    def test_has_the_texts_of_every_language(self):
        found = sorted(folder.name for folder in
                       (framework() / "Resources").glob("*.lproj"))
        self.assertEqual(found,
                         sorted(f"{name}.lproj" for name in LANGUAGES))
        for name in LANGUAGES:
            with self.subTest(language=name):
                table = plistlib.loads((framework() / "Resources" / (
                    name + ".lproj") / "Localizable.strings").read_bytes())
                self.assertEqual(sorted(table), ["WARNING", "WARNING1",
                                                 "WARNING2", "WARNING3"])


class Program(unittest.TestCase):
    def test_finds_the_installed_framework(self):
        lines = output_of("llvm-otool", "-L",
                          OPTIONS.build / "bin/ztk").splitlines()
        self.assertEqual(lines[1].split(" (")[0].strip(), INSTALL_NAME)


    def test_allows_the_framework_to_choose_its_language(self):
        program = (OPTIONS.build / "bin/ztk").read_bytes()
        start = program.index(b"<?xml")
        end = program.index(b"</plist>", start) + len(b"</plist>")
        info = plistlib.loads(program[start:end])
        self.assertIs(info["CFBundleAllowMixedLocalizations"], True)
        self.assertEqual(info["CFBundleIdentifier"], "com.tarvix.ztk")
        sections = re.findall(r"sectname (\S+)", output_of(
            "llvm-otool", "-l", OPTIONS.build / "bin/ztk"))
        self.assertIn("__info_plist", sections)


def main():
    global OPTIONS
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", required=True, type=pathlib.Path)
    parser.add_argument("--arch", required=True, choices=sorted(OLDEST))
    parser.add_argument("--root", required=True, type=pathlib.Path,
                        help="folder of the sources")
    OPTIONS = parser.parse_args()
    unittest.main(argv=["binary_test.py", "-v"])


if __name__ == "__main__":
    main()
