#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs mypy --strict on the package and its examples.

Usage: types_test.py PACKAGE_FOLDER
"""
import pathlib
import subprocess
import sys
import tempfile

try:
    import mypy.main  # noqa: F401
except ImportError:
    print("mypy is not installed")
    sys.exit(77)

package = pathlib.Path(sys.argv[1]).resolve()
with tempfile.TemporaryDirectory() as cache:
    sys.exit(
        subprocess.run(
            [
                sys.executable, "-m", "mypy", "--strict", "--cache-dir", cache,
                "ztkfunc", *map(str, sorted(package.glob("examples/*.py"))),
            ],
            cwd=package,
        ).returncode
    )
