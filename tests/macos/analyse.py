#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs clang's static analyser on every source for macOS: retain counts, null
pointers, the rules of IOKit and Foundation. Any warning is a failure.

Usage: analyse.py BUILD-FOLDER
The folder is that of a build for macOS; its compile commands are used.
"""

import json
import pathlib
import shlex
import subprocess
import sys

WHERE = ("/macos/", "notify/observer.mm")
CHECKERS = "core,cplusplus,deadcode,nullability,osx,unix"


def sources(build):
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"])
        if "/tests/" not in str(path) and any(w in str(path) for w in WHERE):
            yield path, entry


def analyse(entry):
    words = shlex.split(entry["command"])
    at = words.index("-o")
    del words[at:at + 2]
    words.remove("-c")
    # A precompiled header is only useful for compiling.
    if "-include-pch" in words:
        at = words.index("-include-pch") - 1
        del words[at:at + 4]
    words += ["--analyze", "-Xclang", f"-analyzer-checker={CHECKERS}",
              "-Xclang", "-analyzer-output=text", "-Wno-unused-command-line-argument"]
    result = subprocess.run(words, cwd=entry["directory"], text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return result.stdout if result.stdout or result.returncode else ""


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    seen = set()
    bad = 0
    for path, entry in sources(pathlib.Path(sys.argv[1])):
        if path in seen:
            continue
        seen.add(path)
        told = analyse(entry)
        if told:
            bad += 1
            print(f"{path}:\n{told}")
    print(f"{len(seen)} sources analysed, {bad} with warnings")
    sys.exit(1 if bad or not seen else 0)


if __name__ == "__main__":
    main()
