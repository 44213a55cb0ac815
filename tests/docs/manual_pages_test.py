#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the manual pages that doxygen made from the public headers.

The pages must contain every exported function and every parameter. man must show
them without a warning. They must not depend on the date or folder of the build.

Usage: manual_pages_test.py FOLDER SOURCES
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys


def functions_of(header):
    """Yields each declared function with its parameters."""
    code = re.sub(r"/\*.*?\*/", "", header, flags=re.S)
    for name, parameters in re.findall(
            r"ZTK_EXPORT\s+ZTKResult\s+(\w+)\(([^)]*)\);", code):
        yield name, re.findall(r"(\w+)(?:,|$)", parameters)


def check_functions(pages, sources):
    exported = (sources / "src/exports.txt").read_text(encoding="utf-8")
    names = set(re.findall(r"^ZTK_\w+", exported, flags=re.M))
    declared = {}
    described = {}
    for name, page in pages.items():
        header = (sources / f"include/{name}.h").read_text(encoding="utf-8")
        declared.update(functions_of(header))
        text = re.sub(r"\\f[BIRP]|\\&", "", page)
        described.update(re.findall(r'\.RI "ZTKResult (\w+) \((.*)\)"', text))
    if set(declared) != names or not names:
        yield f"the headers and exports.txt differ: {set(declared) ^ names}"
    for name, parameters in declared.items():
        for word in parameters:
            if not re.search(rf"\b{word}\b", described.get(name, "")):
                yield f"no page describes {word} of {name}"


def check_bytes(name, page, sources):
    if not page.startswith(f'.TH "{name}" 3 "20'):
        yield f"{name}(3) begins with {page.splitlines()[0]}"
    for word in (str(sources), "doxygen", "Doxygen"):
        if word in page:
            yield f"{name}(3) contains '{word}'"


def check_man(file):
    done = subprocess.run(
        ["man", "--warnings", "-E", "UTF-8", "-Tutf8", "-Z", "-l", file],
        env=dict(os.environ, LC_ALL="C.UTF-8", MANWIDTH="80"), check=False,
        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
        stderr=subprocess.PIPE, text=True)
    if done.stderr or done.returncode:
        yield f"man {file} ({done.returncode}):\n{done.stderr}"


def main(folder, sources):
    folder, sources = pathlib.Path(folder), pathlib.Path(sources)
    pages = {file.stem: file.read_text(encoding="utf-8")
             for file in folder.glob("*.3")}
    complaints = [*check_functions(pages, sources)]
    for name, page in pages.items():
        complaints += check_bytes(name, page, sources)
        if shutil.which("man"):
            complaints += check_man(folder / f"{name}.3")
    print("\n".join(complaints))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
