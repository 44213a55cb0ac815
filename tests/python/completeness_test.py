#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the binding with the C headers, which cffi parses.

Every function, structure and constant of the headers has to be in the binding,
with the same types, and nothing else.

Usage: completeness_test.py HEADER_FOLDER COMPILER VERSION
"""
from __future__ import annotations

import ctypes
import inspect
import pathlib
import re
import subprocess
import sys
import unittest

try:
    import cffi
except ImportError:
    print("python3-cffi is not installed")
    sys.exit(77)

import ztkfunc
from ztkfunc import _library, _structures, functions, outcome

HEADERS = ("ZTKFunc.h", "ZTKOutcome.h")

# The type of ctypes for each type name of cffi.
CTYPES = {
    "uint8_t": ctypes.c_uint8,
    "uint16_t": ctypes.c_uint16,
    "uint32_t": ctypes.c_uint32,
    "int32_t": ctypes.c_int32,
    "char *": ctypes.c_char_p,
    "char * *": ctypes.POINTER(ctypes.c_char_p),
    "uint32_t *": ctypes.POINTER(ctypes.c_uint32),
    "void *": ctypes.c_void_p,
    "void(*)(int32_t, int32_t, void *)": _library.ChannelCallback,
    "void(*)(int32_t, void *)": _library.IndexCallback,
}


def declarations(folder: pathlib.Path, compiler: str, header: str) -> str:
    """Returns the preprocessed header without attributes and system headers."""
    text = subprocess.run(
        [compiler, "-E", "-P", "-x", "c", "-D__attribute__(x)=", str(folder / header)],
        check=True,
        capture_output=True,
        text=True,
    ).stdout
    first = text.find("typedef uint32_t ZTKResult")
    return text[first:]


class Completeness(unittest.TestCase):
    folder: pathlib.Path
    compiler: str
    version: str

    @classmethod
    def setUpClass(cls) -> None:
        cls.ffi = cffi.FFI()
        # The second header includes the first.
        cls.text = declarations(cls.folder, cls.compiler, HEADERS[-1])
        cls.ffi.cdef(cls.text)
        cls.names = re.findall(r"\b(ZTK_\w+)\s*\(", cls.text)

    def test_the_headers_declare_the_functions_of_the_binding(self) -> None:
        self.assertGreater(len(self.names), 40)
        self.assertEqual(self.names, list(_library.PROTOTYPES))

    def test_the_types_of_arguments_and_results_are_the_same(self) -> None:
        for name in self.names:
            with self.subTest(name):
                arguments = re.search(
                    rf"ZTKResult\s+{name}\s*(\([^;]*\))\s*;", self.text
                )[1]
                declared = self.ffi.typeof("ZTKResult(*)" + arguments)
                self.assertEqual(declared.result.cname, "uint32_t")
                arguments = _library.PROTOTYPES[name]
                self.assertEqual(len(declared.args), len(arguments))
                for ours, theirs in zip(arguments, declared.args):
                    if theirs.cname.startswith("ZTKOutcome"):
                        self.assertIs(ours._type_, _structures.COutcome)
                    else:
                        self.assertIs(ours, CTYPES[theirs.cname], theirs.cname)

    def test_package_and_project_have_the_same_version(self) -> None:
        self.assertEqual(ztkfunc.__version__, self.version)

    def test_every_function_is_documented_and_annotated(self) -> None:
        for name in self.names:
            if name == "ZTK_GetLastOutcome":
                continue  # ztkfunc.last_outcome
            with self.subTest(name):
                function = getattr(functions, name)
                self.assertTrue(inspect.getdoc(function))
                self.assertNotIn(
                    inspect.Parameter.empty,
                    [p.annotation for p in inspect.signature(function).parameters.values()],
                )

    def test_the_result_codes_are_the_same(self) -> None:
        for name in ("SUCCESS", "WARNING", "REJECTED", "CONNECTED", "NOT_CONNECTED"):
            full = f"ZTK_{name}"
            self.assertEqual(getattr(functions, full), self.constants()[full])

    def test_the_constants_of_the_outcome_are_the_same(self) -> None:
        for prefix, ours in (
            ("ZTK_REQUEST_", outcome.Request),
            ("ZTK_FILE_", outcome.File),
            ("ZTK_ANNOUNCEMENT_", outcome.Announcement),
        ):
            theirs = {
                name.removeprefix(prefix): value
                for name, value in self.constants().items()
                if name.startswith(prefix)
            }
            self.assertGreater(len(theirs), 3)
            self.assertEqual({member.name: member.value for member in ours}, theirs)
        self.assertEqual(_structures.MIXERS, self.constants()["ZTK_OUTCOME_MIXERS"])

    def constants(self) -> dict[str, int]:
        macros = subprocess.run(
            [self.compiler, "-E", "-dM", "-x", "c", str(self.folder / HEADERS[-1])],
            check=True,
            capture_output=True,
            text=True,
        ).stdout
        found = re.findall(r"#define (ZTK_[A-Z_]+) (\d+)u\n", macros)
        return {name: int(value) for name, value in found}

    def test_structures_have_the_same_fields_at_the_same_offsets(self) -> None:
        for c_name, ours in _structures.STRUCTURES.items():
            with self.subTest(c_name):
                theirs = self.ffi.typeof(c_name)
                self.assertEqual(self.ffi.sizeof(c_name), ctypes.sizeof(ours))
                self.assertEqual(
                    [(name, field.offset) for name, field in theirs.fields],
                    [(name, getattr(ours, name).offset) for name, *_ in ours._fields_],
                )


if __name__ == "__main__":
    Completeness.folder = pathlib.Path(sys.argv[1])
    Completeness.compiler = sys.argv[2]
    Completeness.version = sys.argv[3]
    unittest.main(argv=sys.argv[:1], verbosity=2)
