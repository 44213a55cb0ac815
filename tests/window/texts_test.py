#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Each text of the window has a translation in each of the eleven languages.

Usage: texts_test.py FOLDER LUPDATE
"""

import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

LANGUAGES = 11


def texts(file):
    """Context and source of each text, and whether it is translated."""
    for context in xml.etree.ElementTree.parse(file).iter("context"):
        # Not every release of lupdate sees the namespace.
        name = context.findtext("name").rpartition("::")[2]
        for message in context.iter("message"):
            translation = message.find("translation")
            done = (translation.get("type") is None
                    and "".join(translation.itertext()).strip() != "")
            yield (name, message.findtext("source")), done


def main(folder, lupdate):
    with tempfile.TemporaryDirectory() as work:
        fresh = pathlib.Path(work, "fresh.ts")
        subprocess.run([lupdate, "-silent", "-locations", "none", folder,
                        "-ts", fresh], check=True, stderr=subprocess.DEVNULL)
        wanted = {text for text, _ in texts(fresh)}
    files = sorted(folder.glob("texts/*.ts"))
    problems = [f"{name}: {text[1]!r} has no translation"
                for name, done in ((file.name, dict(texts(file)))
                                   for file in files)
                for text in sorted(wanted) if not done.get(text)]
    if len(files) != LANGUAGES or not wanted:
        problems.append(f"{len(files)} languages, {len(wanted)} texts")
    if problems:
        sys.exit("\n".join(problems) + "\nRun 'cmake --build build --target "
                 "ztk-window-texts', and translate what is new.")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]), sys.argv[2])
