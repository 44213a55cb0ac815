#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Completes command lines in a real shell.

Every command and every option is completed, and compared with what the program
itself offers; values, quotation marks, files and other programs' words are tried
one by one.

Usage: completion_test.py bash|fish|zsh FOLDER PROGRAMS
"""

import os
import pathlib
import pty
import re
import select
import shutil
import subprocess
import sys
import tempfile
import time

# A command line up to the cursor, and the words that must be offered there;
# words after "!" must not be offered.
LINES = (
    ("ztk inp", ["input"], ["output"]),
    ("ztk input set ", ["1", "5"], ["6"]),
    ("ztk input set 2 po", ["Post CH2 Fader"], ["MIC"]),
    ("ztk input set 5 po", ["Post CH1 Fader", "Post CH4 Fader"], []),
    ("ztk input set 2 post c", ["CH2 Fader"], []),
    ("ztk output set 2 a", ["AUX"], []),
    ("ztk midi set 1", ["1", "10", "16"], ["2"]),
    ("ztk boost set ", ["2"], ["5"]),
    ("ztk apply --product vrm-", ["VRM-B5", "VRM-D6", "VRM-K2"], ["VRM-Q9"]),
    ("ztk boost get --product vrm-q", ["VRM-Q8X", "VRM-Q8S", "VRM-Q9"], ["VRM-D6"]),
    ("ztk apply --product=vrm-d", ["VRM-D6"], ["VRM-B5"]),
    ("ztk warning --language g", ["German"], ["French"]),
    ("ztk warning --channel ", ["1", "4"], ["5"]),
    ("ztk --json sta", ["status"], []),
    ("ztk import req", ["requests.txt"], ["--dry-run"]),
    ("ztk nonsense ", [], ["status"]),
    ("ztk-virtual-mixer un", ["unplug"], ["plug"]),
    ("ztk-virtual-mixer fault s", ["stall", "silence", "short:"], ["none"]),
    ("ztk-virtual-mixer reply 800", ["8001", "8007"], []),
    ("ztk-virtual-mixer run --log req", ["requests.txt"], ["stall"]),
    ("ztk-virtual-mixer run -n 1 ", ["--"], []),
    ("ztk-virtual-mixer run -n 1 -- ztk sta", ["status"], []),
    ("ztk-virtual-mixer run -n 1 -- ztk-virt", ["ztk-virtual-mixer"], []),
)

BASH_COMPLETION = pathlib.Path("/usr/share/bash-completion/bash_completion")
BASH = r"""
. /usr/share/bash-completion/bash_completion 2>/dev/null
for program in ztk ztk-virtual-mixer; do . "$FOLDER/$program.bash"; done
read -ra words <<<"$LINE"
[[ $LINE != *' ' ]] || words+=('')
# As bash itself divides the words.
COMP_WORDS=()
for word in "${words[@]}"; do
  while [[ $word == *=* ]]; do
    COMP_WORDS+=("${word%%=*}" =)
    word=${word#*=}
  done
  COMP_WORDS+=("$word")
done
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
COMP_LINE=$LINE COMP_POINT=${#LINE} COMP_TYPE=9 COMP_KEY=9
compopt() { :; }
function=_${words[0]//-/_}
"$function" "${words[0]}" "${COMP_WORDS[COMP_CWORD]}" ''
for reply in "${COMPREPLY[@]}"; do eval "printf '%s\n' $reply"; done
"""

FISH = r"""
for program in ztk ztk-virtual-mixer; source $FOLDER/$program.fish; end
complete -C "$LINE"
"""

ZSH = r"""
setopt no_beep no_auto_menu list_rows_first; LISTMAX=10000; PS1='READY> '
fpath=($FOLDER $fpath)
autoload -Uz compinit; compinit -u -d $HOME/dump
zstyle ':completion:*' list-separator '#'
zstyle ':completion:*' menu no
# A list of one as well, and in a form to be read.
bindkey '^I' list-choices
stty columns 200 rows 500
"""


class Shell:
    def __init__(self, name, folder, programs, home):
        self.name = name
        self.home = home
        self.environment = {
            "PATH": f"{programs}:{os.environ['PATH']}", "HOME": str(home),
            "FOLDER": folder, "LC_ALL": "C.UTF-8", "TERM": "xterm"}
        for variable in ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"):
            if variable in os.environ:
                self.environment[variable] = os.environ[variable]

    def run(self, words, **more):
        done = subprocess.run(
            words, env={**self.environment, **more}, cwd=self.home,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, text=True, timeout=60, check=False)
        return done.stdout.splitlines()

    def offered(self, line):
        if self.name == "bash":
            return self.run(["bash", "--norc", "-c", BASH], LINE=line)
        if self.name == "fish":
            return [offer.split("\t")[0] for offer in
                    self.run(["fish", "--no-config", "-c", FISH], LINE=line)]
        return self.zsh.offered(line)

    def asked(self, words):
        """What the program itself offers."""
        program, *rest = words
        return [line.split("\t")[0]
                for line in self.run([program, "__complete", *rest])]


class Zsh:
    """An interactive shell in a terminal, which its completion needs."""

    def __init__(self, environment, home):
        (home / ".zshrc").write_text(ZSH)
        self.pid, self.terminal = pty.fork()
        if self.pid == 0:
            os.chdir(home)
            os.execvpe("zsh", ["zsh", "-i"], environment)
        self.read_until(r"READY> ")

    def read_until(self, pattern):
        seen = ""
        limit = time.monotonic() + 60
        while not re.search(pattern, seen):
            if time.monotonic() > limit:
                raise TimeoutError(f"zsh shows no {pattern}: {seen!r}")
            if select.select([self.terminal], [], [], 1)[0]:
                seen += os.read(self.terminal, 65536).decode("utf-8", "replace")
        return seen

    def offered(self, line):
        # The output of the next command shows that the list is complete.
        os.write(self.terminal, line.encode() + b"\t\x15echo DO''NE\r")
        seen = self.read_until(r"DONE\r*\n(.|\n)*READY> ")
        # When the cursor moves, another piece of text begins.
        seen = re.sub(r"\x1b\[[0-9;?]*[A-Za-z]|\x1b[=>]|[\r\x08]", "\n", seen)
        words = []
        for row in seen.split("\n"):
            words += [column.split("#")[0].strip()
                      for column in re.split(r" {2,}(?=\S)", row)]
        return words

    def leave(self):
        os.write(self.terminal, b"\x15exit\r")
        os.waitpid(self.pid, 0)


def lines_of_table(shell):
    """A line for each place where a command or an option can stand."""
    for program in ("ztk", "ztk-virtual-mixer"):
        heads = [[program]]
        for head in heads:
            names = [name for name in shell.asked([*head, ""])
                     if re.fullmatch(r"[a-z]+", name)]
            is_command = shell.run([*head, "--help"]) and len(head) > 1
            if names and (len(head) == 1 or head[1] in GROUPS):
                if len(head) < 3:
                    yield head, "", names
                    heads += [[*head, name] for name in names]
            if is_command or len(head) == 1:
                yield head, "--", shell.asked([*head, "--"])


GROUPS = ("input", "output", "boost", "midi", "autoapply")


def main(name, folder, programs):
    if not shutil.which(name):
        print(f"{name} is not installed")
        return 77
    if name == "bash" and not BASH_COMPLETION.exists():
        print("the package bash-completion is not installed")
        return 77
    complaints = []
    tried = 0
    with tempfile.TemporaryDirectory(prefix="ztk.", dir="/tmp") as home:
        home = pathlib.Path(home)
        (home / "requests.txt").touch()
        shell = Shell(name, folder, programs, home)
        if name == "zsh":
            shell.zsh = Zsh(shell.environment, home)
        lines = list(LINES)
        for head, begun, expected in lines_of_table(shell):
            lines.append((" ".join([*head, begun]), expected, []))
        for line, expected, others in lines:
            tried += 1
            # Some shells show an option together with its value.
            offered = [re.sub("^--[a-z]+=", "", word)
                       for word in shell.offered(line)]
            missing = [word for word in expected if word not in offered]
            wrong = [word for word in others if word in offered]
            if missing or wrong:
                complaints.append(f"[{line}] offers {offered}, "
                                  f"not {missing}, but {wrong}")
        if name == "zsh":
            shell.zsh.leave()
    print("\n".join(complaints))
    print(f"{tried} lines completed, {len(complaints)} complaints")
    return 1 if complaints or tried < 50 else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
