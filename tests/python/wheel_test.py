#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Builds the wheel, installs it into an empty environment and uses it there.

Usage: wheel_test.py PACKAGE_FOLDER
"""
import importlib.util
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

for module, package in (("pip", "python3-pip"), ("ensurepip", "python3-venv"),
                        ("setuptools", "python3-setuptools"),
                        ("wheel", "python3-wheel")):
    if importlib.util.find_spec(module) is None:
        print(f"{package} is not installed")
        sys.exit(77)


def run(*command):
    subprocess.run(list(map(str, command)), check=True)


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    # The build writes into the folder of the sources.
    source = shutil.copytree(sys.argv[1], folder / "source")
    # The build uses the tools of the system: nothing is downloaded.
    run(sys.executable, "-m", "pip", "wheel", "--no-index", "--no-deps",
        "--no-build-isolation", "--quiet", "--wheel-dir", folder, source)
    wheel, = folder.glob("ztkfunc-*-py3-none-any.whl")
    run(sys.executable, "-m", "venv", folder / "environment")
    python = folder / "environment/bin/python"
    run(python, "-m", "pip", "install", "--no-index", "--quiet", wheel)
    environment = {key: value for key, value in os.environ.items()
                   if key != "PYTHONPATH"}
    output = subprocess.run(
        [str(python), "-c",
         "import ztkfunc, pathlib;"
         "print(ztkfunc.Mixer().boost_choices[3]);"
         "print((pathlib.Path(ztkfunc.__file__).parent / 'py.typed').exists())"],
        env=environment, cwd=folder, check=True, capture_output=True,
        text=True).stdout
    if output != "-19 dB\nTrue\n":
        sys.exit(f"the installed package printed {output!r}")
