#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads the manual pages with the two programs that show them.

Neither may complain, and each page has to describe every command and option that
the completion of the program offers.

Usage: pages_test.py FOLDER PROGRAMS
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys

PAGES = ("ztk.1", "ztk-virtual-mixer.1")


def complaints_of(command, page):
    environment = dict(os.environ, LC_ALL="C.UTF-8", MANWIDTH="80")
    done = subprocess.run([*command, page], env=environment, check=False,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE, text=True)
    # mandoc writes complaints to standard output, man to standard error.
    said = done.stdout if command[0] == "mandoc" else done.stderr
    if said or done.returncode:
        return [f"{' '.join(command)} {page.name} ({done.returncode}):\n{said}"]
    return []


def plain(page):
    """The words of a page without its markup."""
    text = page.read_text(encoding="utf-8")
    for markup, character in ((r"\fB", ""), (r"\fI", ""), (r"\fR", ""),
                              (r"\-", "-"), (r"\(aq", "'"), (r"\(dq", '"'),
                              (r"\&", ""), (r"\e", "\\")):
        text = text.replace(markup, character)
    return text


def offered(programs, words):
    done = subprocess.run(
        [f"{programs}/{words[0]}", "__complete", *words[1:]], check=True,
        stdout=subprocess.PIPE, text=True)
    return [line.split("\t")[0] for line in done.stdout.splitlines()]


def sections_of(page, request):
    return dict(re.findall(rf'\.{request} "([A-Za-z ]+)"\n(.*?)(?=\n\.S[SH] )',
                           page, flags=re.S))


def check_program_page(folder, programs, name):
    page = plain(folder / f"{name}.1")
    common = sections_of(page, "SH")["OPTIONS"]
    told = sections_of(page, "SS")
    complaints = []
    groups = set()
    heads = [[name]]
    for head in heads:
        path = " ".join(head[1:])
        help_text = subprocess.run(
            [f"{programs}/{name}", *head[1:], "--help"], check=True,
            stdout=subprocess.PIPE, text=True).stdout
        if "\nCommands:\n" in help_text:
            heads += [[*head, word] for word in offered(programs, [*head, ""])
                      if word != "help"]
            continue
        groups.add(head[1])
        section = told.get(head[1], "")
        for option in offered(programs, [*head, "--"]):
            if not re.search(rf"{option}\b", section + common):
                complaints.append(f"{name}(1) does not tell {option} of {path}")
            if option not in help_text:
                complaints.append(f"{name} {path} --help does not tell {option}")
        if not re.search(rf"^{name} {path}\b", section, flags=re.M):
            complaints.append(f"{name}(1) does not tell {path}")
    if groups != set(told) or not told:
        complaints.append(f"{name}(1) and the program differ: "
                          f"{groups ^ set(told)}")
    return complaints


def main(folder, programs):
    folder = pathlib.Path(folder)
    complaints = []
    for name in ("ztk", "ztk-virtual-mixer"):
        complaints += check_program_page(folder, programs, name)
    readers = [command for command in (
        ["mandoc", "-T", "lint", "-W", "warning"],
        ["man", "--warnings", "-E", "UTF-8", "-Tutf8", "-Z", "-l"])
               if shutil.which(command[0])]
    for page in PAGES:
        for command in readers:
            complaints += complaints_of(command, folder / page)
    print("\n".join(complaints))
    if complaints:
        return 1
    if len(readers) < 2:
        print("mandoc or man is not installed")
        return 77
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
