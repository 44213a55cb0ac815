#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the exported symbols of the built library with src/exports.txt and with
the headers that declare them, and checks how the library was linked."""

import argparse
import pathlib
import re
import subprocess
import sys
import unittest

HEADERS = ["include/ZTKFunc.h", "include/ZTKOutcome.h",
           "src/usb/USB.h", "src/api/tables.h",
           "src/notify/callback_registry.h"]

POINTER = 8 if sys.maxsize > 2**32 else 4

# The length of an exported table is part of the binary interface, because the linker
# may copy the table into a program.
CONSTANT_TABLES = {
    "InputAudioText": 44 * POINTER,
    "PC_INPUT_PULLDOWN_TEXT": 42 * 4,
    "_convTable_PC_INPUT": 42 * 2,
    "OutputAudioText": 3 * POINTER,
    "VRMB5_OUT_TEXT": 12 * 4,
    "_convTableOut_B5": 9 * 2,
    "BoostLevelText": 4 * POINTER,
    "_convDbTable": 4 * 1,
    "MidiChannelText": 16 * POINTER,
    "MidiKeyModeText": 2 * POINTER,
}
VARIABLES = {
    "InputAudioChangedCallback": 11 * POINTER,
    "OutputAudioChangedCallback": 11 * POINTER,
    "BoostLevelChangedCallback": 11 * POINTER,
    "MidiChannelChangedCallback": 11 * POINTER,
    "MidiKeyModeChangedCallback": 11 * POINTER,
    "InputAudioChangedContext": 11 * POINTER,
    "OutputAudioChangedContext": 11 * POINTER,
    "BoostLevelChangedContext": 11 * POINTER,
    "MidiChannelChangedContext": 11 * POINTER,
    "MidiKeyModeChangedContext": 11 * POINTER,
    "inputAudioInfo": POINTER,
    "outputAudioInfo": POINTER,
    "boostLevelInfo": POINTER,
    "midiChannelInfo": POINTER,
    "midiKeyModeInfo": POINTER,
    "_ZTKFunc": POINTER,
}
FUNCTIONS = 64  # 48 of ZTKFunc.h, 1 of ZTKOutcome.h, 15 of src/usb/USB.h

OPTIONS = None


def output_of(*command):
    return subprocess.run(command, check=True, text=True, timeout=60,
                          stdout=subprocess.PIPE).stdout


def listed():
    lines = (OPTIONS.root / "src/exports.txt").read_text().splitlines()
    return [line.strip() for line in lines
            if line.strip() and not line.startswith("#")]


def declared(header):
    """Returns the exported names that a header declares, in the same order."""
    text = (OPTIONS.root / header).read_text()
    text = re.sub(r"/\*.*?\*/|//[^\n]*|^\s*#[^\n]*", "", text,
                  flags=re.DOTALL | re.MULTILINE)
    names = []
    for declaration in re.findall(r"\bZTK_EXPORT\b([^;]*);", text):
        # The name of a function is before its arguments, the name of a table before
        # its length. The name of another variable is the last word.
        head = re.split(r"[(\[]", declaration, maxsplit=1)[0]
        names.append(re.findall(r"\w+", head)[-1])
    return names


class Symbol:
    """A line of `readelf --dyn-syms`."""

    def __init__(self, fields):
        self.size = int(fields[2], 0)
        self.kind = fields[3]
        self.binding = fields[4]
        self.section = fields[6]
        self.name = fields[7].split("@")[0]


def visible():
    """Returns the exported symbols of the library, by name."""
    symbols = {}
    text = output_of("readelf", "-W", "--dyn-syms", OPTIONS.library)
    for line in text.splitlines():
        fields = line.split()
        if len(fields) < 8 or not fields[0].rstrip(":").isdigit():
            continue
        symbol = Symbol(fields)
        # The name of the version itself is an absolute symbol.
        if symbol.section not in ("UND", "ABS") and symbol.binding != "LOCAL":
            symbols[symbol.name] = symbol
    return symbols


def section_names():
    text = output_of("readelf", "-W", "-S", OPTIONS.library)
    return {number: name for number, name in
            re.findall(r"\[ *(\d+)\] (\S+)", text)}


class Lists(unittest.TestCase):
    def test_library_exports_exactly_the_listed_names(self):
        self.assertEqual(sorted(visible()), sorted(listed()))

    def test_list_has_the_names_and_the_order_of_the_headers(self):
        names = [name for header in HEADERS for name in declared(header)]
        self.assertEqual(listed(), names)

    def test_no_name_is_listed_twice(self):
        self.assertEqual(len(listed()), len(set(listed())))

    def test_every_symbol_has_the_version_of_the_soname(self):
        text = output_of("nm", "-D", "--defined-only", OPTIONS.library)
        versions = {line.split()[-1].partition("@@")[2]
                    for line in text.splitlines() if line.split()[1] != "A"}
        self.assertEqual(versions, {"ZTKFUNC_1"})

    def test_c_program_takes_the_address_of_every_public_function(self):
        program = (OPTIONS.root / "tests/abi/header_functions_test.c")
        taken = re.findall(r"^ +FUNCTION\((\w+)\),", program.read_text(),
                           re.MULTILINE)
        self.assertEqual(taken, declared("include/ZTKFunc.h") +
                         declared("include/ZTKOutcome.h"))


class Tables(unittest.TestCase):
    def test_every_visible_name_is_a_table_or_a_function(self):
        symbols = visible()
        tables = {name for name, symbol in symbols.items()
                  if symbol.kind == "OBJECT"}
        functions = {name for name, symbol in symbols.items()
                     if symbol.kind == "FUNC"}
        self.assertEqual(tables, set(CONSTANT_TABLES) | set(VARIABLES))
        self.assertEqual(len(functions), FUNCTIONS)
        self.assertEqual(len(symbols), len(tables) + len(functions))

    def test_tables_have_their_length(self):
        skip_with_instruments(self)
        found = {name: symbol.size for name, symbol in visible().items()
                 if symbol.kind == "OBJECT"}
        self.assertEqual(found, CONSTANT_TABLES | VARIABLES)

    def test_constant_tables_cannot_be_written(self):
        names = section_names()
        for name, symbol in visible().items():
            if name not in CONSTANT_TABLES:
                continue
            with self.subTest(table=name):
                self.assertRegex(names[symbol.section],
                                 r"^\.(rodata|data\.rel\.ro)")


class Linking(unittest.TestCase):
    def setUp(self):
        self.dynamic = output_of("readelf", "-W", "-d", OPTIONS.library)

    def flags(self, tag):
        return re.findall(rf"\({tag}\)\s+(?:Flags: )?(.*)", self.dynamic)

    def test_soname_has_the_major_version(self):
        self.assertEqual(re.findall(r"soname: \[(.*)\]", self.dynamic),
                         ["libZTKFunc.so.1"])

    def test_needs_few_other_libraries_at_start(self):
        """Each of them is loaded at the start of every program that uses this
        library, even if the program does not need it."""
        skip_with_instruments(self)
        needed = re.findall(r"\(NEEDED\)\s+Shared library: \[(.*?)\.so",
                            self.dynamic)
        runtime = {"libstdc++"} if OPTIONS.shared_cxx_runtime else set()
        # The compiler decides whether these parts of it are shared libraries.
        parts = {"libgcc_s", "libm"} if OPTIONS.shared_cxx_runtime else set()
        self.assertEqual(
            {name for name in needed if not name.startswith("ld-")} - parts,
            {"libc", "libplist-2.0"} | runtime)

    def test_code_stays_loaded_after_dlclose(self):
        self.assertIn("NODELETE", " ".join(self.flags("FLAGS_1")).split())

    def test_all_symbols_are_bound_at_loading(self):
        self.assertIn("NOW", " ".join(self.flags("FLAGS_1")).split())
        self.assertIn("BIND_NOW", " ".join(self.flags("FLAGS")).split())

    def test_relocated_data_is_made_read_only(self):
        segments = output_of("readelf", "-W", "-l", OPTIONS.library)
        self.assertIn("GNU_RELRO", segments)
        self.assertNotIn("TEXTREL", self.dynamic)

    def test_library_calls_only_its_own_functions_of_these_names(self):
        relocations = output_of("readelf", "-W", "-r", OPTIONS.library)
        bound_by_name = {
            line.split()[4].split("@")[0] for line in relocations.splitlines()
            if len(line.split()) > 4 and "JUMP_SLO" in line}
        self.assertEqual(bound_by_name & set(listed()), set())
        self.assertNotEqual(bound_by_name, set())

    def test_no_code_of_the_project_runs_at_loading(self):
        """One entry is made by the compiler. A linked C++ runtime adds an entry for
        the memory of exceptions, and since gcc 14 one for its error categories. A
        table that is filled by code would add another entry."""
        skip_with_instruments(self)
        constructors = re.findall(r" t (_GLOBAL__sub_I_\S+)",
                                  output_of("nm", OPTIONS.library))
        of_runtime = [] if OPTIONS.shared_cxx_runtime else [
            "_GLOBAL__sub_I_eh_alloc.cc", "_GLOBAL__sub_I_system_error.cc"]
        self.assertEqual(set(constructors) - set(of_runtime), set())
        sizes = re.findall(r"\((INIT_ARRAYSZ|PREINIT_ARRAYSZ)\)\s+(\d+)",
                           self.dynamic)
        entries = 1 + len(constructors)
        self.assertEqual(sizes, [("INIT_ARRAYSZ", str(entries * POINTER))])


def skip_with_instruments(test):
    if OPTIONS.instruments:
        test.skipTest(f"{OPTIONS.instruments} change this")


def main():
    global OPTIONS
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--library", required=True)
    parser.add_argument("--root", required=True, type=pathlib.Path,
                        help="folder of the sources")
    parser.add_argument("--instruments", default="",
                        help="the instrumentation of the library, if any")
    parser.add_argument("--shared-cxx-runtime", action="store_true")
    OPTIONS = parser.parse_args()
    unittest.main(argv=[sys.argv[0], "-v"])


if __name__ == "__main__":
    main()
