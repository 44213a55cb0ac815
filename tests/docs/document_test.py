#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the commands and programs of a document and compares their output with
the output that the document shows.

- A block marked "console" contains commands after "$ " and their output. All of
  them run in order, in one home folder, on a private message bus. A block marked
  "console mixer" runs with a virtual mixer. A line "..." matches any lines.
- A block marked "c" is a program, which must compile and run with a virtual mixer.
  The words after "c" are the pkg-config names of the other libraries that it uses.
  The "text" block after it shows its output.
- Blocks marked "sh" are not run here: they install something, need a kernel or
  another system, or build for minutes. The word after "sh" says where they run.
- The targets of links inside the project must exist.
- A picture that scripts/record-demo made counts as one block "console mixer".

Usage: document_test.py DOCUMENT BUILD [COMPILER [FLAG]...]
"""

import difflib
import html
import os
import pathlib
import re
import subprocess
import sys
import tempfile
from typing import NamedTuple

SECONDS = 60
ROOT = pathlib.Path(__file__).resolve().parents[2]
# The scripts and tests that run the commands of a block "sh". No test runs the
# block "window", which needs a screen.
RUN_BY = {"compile": "tests/install/install_test.sh",
          "cross": "scripts/check",
          "install": "scripts/try-packages",
          "kernel": "tests/kernel/kernel_programs_test.cpp",
          "macos": ".github/workflows/macos.yml",
          "presets": "scripts/check",
          "python": "scripts/try-packages",
          "source": "scripts/try-packages",
          "start": "scripts/try-bare-root",
          "uninstall": "scripts/try-packages",
          "wheel": "tests/python/wheel_test.py",
          "window": "scripts/demo"}
# These read the block from the document, and so run it as it is written.
READ_FROM_DOCUMENT = ("compile", "install", "python", "source", "uninstall")


class Block(NamedTuple):
    kind: str
    text: str
    line: int


class Exchange(NamedTuple):
    command: str
    output: str
    line: int


def blocks_of(text):
    found = []
    kind = None
    for number, line in enumerate(text.splitlines(), 1):
        fence = re.match(r"```(.*)$", line)
        if fence and kind is None:
            kind, start, lines = fence[1].strip(), number, []
        elif fence:
            found.append(Block(kind, "".join(lines), start))
            kind = None
        elif kind is not None:
            lines.append(line + "\n")
    return found


def block_of_picture(text):
    """Returns the text in the picture of a terminal, without the headings."""
    lines = [html.unescape(line)
             for line in re.findall(r"<text[^>]*>(.*)</text>", text)]
    return Block("console mixer", "".join(
        line + "\n" for line in lines if not line.startswith("--- ")), 0)


def exchanges_of(block):
    """Returns the commands of a block, each with the output below it."""
    found = []
    for offset, line in enumerate(block.text.splitlines(), 1):
        if line.startswith("$ "):
            found.append(Exchange(line[2:], "", block.line + offset))
        elif found:
            found[-1] = found[-1]._replace(output=found[-1].output + line + "\n")
        else:
            sys.exit(f"line {block.line}: output before any command")
    return found


def matches(shown, printed):
    pattern = "".join(
        "(?:.*\n)*" if line.strip() == "..." else re.escape(line)
        for line in shown.splitlines(keepends=True))
    return re.fullmatch(pattern, printed) is not None


class User:
    """A user with a new home folder and a private message bus."""

    def __init__(self, folder, build):
        self.folder = folder
        self.home = folder / "home"
        self.home.mkdir()
        address = f"unix:path={folder}/bus"
        self.environment = {
            "PATH": f"{build}/bin:{os.environ['PATH']}",
            "LD_LIBRARY_PATH": f"{build}/lib",
            "HOME": str(self.home),
            "TMPDIR": str(folder),
            "LC_ALL": "C.UTF-8",
            "DBUS_SESSION_BUS_ADDRESS": address}
        for name in ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"):
            if name in os.environ:
                self.environment[name] = os.environ[name]
        self.bus = subprocess.Popen(
            ["dbus-daemon", "--session", "--nofork", f"--address={address}",
             "--print-address=1"], stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL, text=True)
        self.bus.stdout.readline()

    def leave(self):
        self.bus.terminate()
        self.bus.wait()
        self.bus.stdout.close()

    def run(self, command):
        done = subprocess.run(
            command, cwd=self.home, env=self.environment, timeout=SECONDS,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, text=True, check=False)
        return done.stdout

    def try_console(self, block):
        """Runs a block as one script. A mark separates the outputs."""
        exchanges = exchanges_of(block)
        mark = "-- the next command --"
        script = f"; echo '{mark}'\n".join(e.command for e in exchanges)
        command = ["bash", "-c", f"exec 2>&1\n{script}"]
        if block.kind == "console mixer":
            command = ["ztk-virtual-mixer", "run", "--", *command]
        # A picture has no empty lines.
        printed = [
            output if block.line else re.sub(r"\n\n+", "\n", output)
            for output in self.run(command).split(mark + "\n")]
        printed += ["(it did not run)\n"] * (len(exchanges) - len(printed))
        return [difference(f"line {exchange.line}: {exchange.command}",
                           exchange.output, output)
                for exchange, output in zip(exchanges, printed)]

    def try_program(self, block, shown, compiler, header):
        source = self.folder / "example.c"
        source.write_text(block.text)
        program = self.folder / "example"
        others = block.kind.split()[1:]
        if others:
            others = self.run(
                ["pkg-config", "--cflags", "--libs", *others]).split()
        output = self.run(
            [*compiler, "-std=c99", "-Wall", "-Wextra", "-Werror",
             f"-I{header}", source, "-lZTKFunc", *others,
             f"-L{self.environment['LD_LIBRARY_PATH']}", "-o", program])
        title = f"line {block.line}: the program"
        if not program.exists():
            return f"{title} does not compile\n{output}"
        return difference(title, shown.text, self.run(
            ["ztk-virtual-mixer", "run", "--", program]))


def difference(title, shown, printed):
    """Returns an empty text if the output matches, else the difference."""
    if matches(shown, printed):
        return ""
    return "\n".join([title, *difflib.unified_diff(
        shown.splitlines(), printed.splitlines(), "shown", "printed",
        lineterm="")])


def broken_links(document):
    """Returns complaints about links to files that do not exist."""
    text = document.read_text(encoding="utf-8")
    return [f"a link leads to {target}, which does not exist"
            for target in re.findall(r"\]\(([^)#]+)[^)]*\)", text)
            if not re.match(r"\w+:", target)
            and not (document.parent / target).exists()]


def blocks_without_test(blocks):
    """Returns complaints about blocks "sh" that no script and no test runs."""
    words = [(block.line, block.kind.split()[1:]) for block in blocks
             if block.kind.split()[:1] == ["sh"]]
    return [f"line {line}: RUN_BY has no script or test that runs this block"
            for line, word in words
            if len(word) != 1 or not is_run(word[0])]


def is_run(word):
    runner = ROOT / RUN_BY.get(word, "-")
    if not runner.exists():
        return False
    return (word not in READ_FROM_DOCUMENT or
            f'"sh {word}"' in runner.read_text(encoding="utf-8"))


def try_examples(blocks, build, compiler):
    complaints = []
    # The path is short, because the path of a socket has a limited length.
    with tempfile.TemporaryDirectory(prefix="ztk.", dir="/tmp") as folder:
        user = User(pathlib.Path(folder), os.path.abspath(build))
        try:
            for block, following in blocks:
                if block.kind.startswith("console"):
                    complaints += user.try_console(block)
                else:
                    complaints.append(user.try_program(
                        block, following, compiler or ["cc"],
                        ROOT / "include"))
        finally:
            user.leave()
    return complaints


def main(document, build, *compiler):
    document = pathlib.Path(document)
    text = document.read_text(encoding="utf-8")
    picture = document.suffix == ".svg"
    blocks = [block_of_picture(text)] if picture else blocks_of(text)
    examples = [(block, following)
                for block, following in zip(blocks, [*blocks[1:], None])
                if block.kind.split()[:1] in (["console"], ["c"])]
    complaints = [] if picture else (broken_links(document) +
                                     blocks_without_test(blocks))
    if document.name == "README.md" and not examples:
        complaints.append("there are no examples")
    if examples:
        complaints += try_examples(examples, build, compiler)
    complaints = [complaint for complaint in complaints if complaint]
    for complaint in complaints:
        print(complaint, end="\n\n")
    print(f"{len(examples)} examples tried, {len(complaints)} complaints")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
