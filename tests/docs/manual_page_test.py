#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads the manual page ZTKFunc(3) that doxygen made from the header.

Every exported function and every parameter has to be on it, man has to show it
without a warning, and nothing on it may depend on the day or place of the build.

Usage: manual_page_test.py PAGE SOURCES
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys


def functions_of(header):
    """Each function with its parameters, read from the declarations alone."""
    code = re.sub(r"/\*.*?\*/", "", header, flags=re.S)
    for name, parameters in re.findall(
            r"ZTK_EXPORT\s+ZTKResult\s+(\w+)\(([^)]*)\);", code):
        yield name, re.findall(r"(\w+)(?:,|$)", parameters)


def check_functions(page, sources):
    header = (sources / "include/ZTKFunc.h").read_text(encoding="utf-8")
    exported = (sources / "src/exports.txt").read_text(encoding="utf-8")
    found = dict(functions_of(header))
    names = set(re.findall(r"^ZTK_\w+", exported, flags=re.M))
    if set(found) != names or not names:
        yield f"the header and exports.txt differ: {set(found) ^ names}"
    text = re.sub(r"\\f[BIRP]|\\&", "", page)
    headings = dict(re.findall(r'\.RI "ZTKResult (\w+) \((.*)\)"', text))
    for name, parameters in found.items():
        for word in parameters:
            if not re.search(rf"\b{word}\b", headings.get(name, "")):
                yield f"the page does not describe {word} of {name}"


def check_bytes(page, sources):
    if not page.startswith('.TH "ZTKFunc" 3 "20'):
        yield f"the page begins with {page.splitlines()[0]}"
    for word in (str(sources), "doxygen", "Doxygen"):
        if word in page:
            yield f"the page contains '{word}'"


def check_man(file):
    done = subprocess.run(
        ["man", "--warnings", "-E", "UTF-8", "-Tutf8", "-Z", "-l", file],
        env=dict(os.environ, LC_ALL="C.UTF-8", MANWIDTH="80"), check=False,
        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
        stderr=subprocess.PIPE, text=True)
    if done.stderr or done.returncode:
        yield f"man {file} ({done.returncode}):\n{done.stderr}"


def main(file, sources):
    page = pathlib.Path(file).read_text(encoding="utf-8")
    sources = pathlib.Path(sources)
    complaints = [*check_functions(page, sources), *check_bytes(page, sources)]
    if shutil.which("man"):
        complaints += check_man(file)
    print("\n".join(complaints))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
