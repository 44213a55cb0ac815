#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Counts the system calls of one library call, with virtual mixers.

    system_calls.py BIN_FOLDER              prints the numbers for one mixer as a table
    system_calls.py BIN_FOLDER library set  prints every system call of one operation
    system_calls.py --here BIN_FOLDER       prints the numbers of the library, the floor
                                            and libusb for the devices of this machine

A program repeats a call, and writes a mark into its trace before each repetition. The
lines between the last two marks are exactly one call after the start-up.

With --here the system calls of all threads count, except waiting. The output is JSON.

The sandbox makes additional system calls in the program: it checks its folder before
each open, blocks signals during this check, and sends requests over a socket instead of
ioctl(). These calls are recognised by their path or descriptor and omitted. The number
of requests is taken from the log of the mixers instead of ioctl(). So the numbers are
those of a machine with real devices. Two more kinds of calls are omitted, because they
do not depend on the library: waiting for the message bus, and calls that the C library
makes only sometimes, for memory and for random bits of a file name.
"""

import collections
import difflib
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

MARK = 'write(-1, "mark", 4)'
LINE = re.compile(r"^(\d+) +(\w+)\((.*)\) += (-?\d+|\?)(.*)$")
SANDBOX = re.compile(r"/tmp/umockdev\.\w+")
SANDBOX_CHECK = re.compile(r"/tmp/umockdev\.\w+/(disabled|ioctl/|dev/)")
PLIST_AT_END = re.compile(r'\.plist"')
TEXT = re.compile(r'"((?:[^"\\]|\\.)*)"')
PIECE = re.compile(r'iov_base="((?:[^"\\]|\\.)*)"')
# Different C libraries and machines use different names for the same call.
SAME = {"newfstatat": "stat", "fstat": "stat", "lstat": "stat",
        "statx": "stat", "stat": "stat", "open": "openat",
        "renameat": "rename", "renameat2": "rename",
        "readlinkat": "readlink", "poll": "ppoll"}
C_LIBRARY = {"brk", "mmap", "munmap", "madvise", "mremap", "futex",
             "getrandom"}
WAITING = {"ppoll", "recvmsg"}
OPERATIONS = ("count", "set", "query", "apply")
TIMES = 4
FEW_TIMES = 2  # if only the number matters


class Unavailable(Exception):
    """The calls cannot be counted on this machine. The text is the reason."""


class Trace:
    """Reads the lines of a trace and keeps the calls that count."""

    def __init__(self, home):
        self.home = home
        self.names = {}  # the paths of the open descriptors
        self.in_sandbox = False  # True while the sandbox blocks signals
        self.calls = []

    def add(self, name, arguments, result):
        is_lstat = name == "lstat" or "AT_SYMLINK_NOFOLLOW" in arguments
        name = SAME.get(name, name)
        # The library reads the owner of a path only if it runs as root.
        if name == "stat" and is_lstat and (
                not PLIST_AT_END.search(arguments) or
                self.calls[-1:] == ["geteuid"]):
            return
        if name in C_LIBRARY or name in WAITING:
            return
        if name == "access" and SANDBOX_CHECK.search(arguments):
            return
        if name == "rt_sigprocmask" and self.is_sandbox_mask(arguments):
            return
        subject = self.subject(name, arguments)
        if subject.startswith("sandbox") or name == "clock_nanosleep":
            self.follow(name, arguments, result, subject)
            return
        call = f"{name} {subject}{self.payload(name, arguments, result)}"
        self.follow(name, arguments, result, subject)
        # For a file outside the sandbox, the sandbox makes the call a second time.
        if name == "stat" and self.calls and self.calls[-1] == call:
            return
        self.calls.append(call.rstrip())

    def is_sandbox_mask(self, arguments):
        if arguments.startswith("SIG_SETMASK, ~["):
            self.in_sandbox = True
            return True
        was = self.in_sandbox
        self.in_sandbox = False
        return was

    def subject(self, name, arguments):
        """Returns the object of the call: a path, or the path of a descriptor."""
        if name == "socket":
            # The socket of the library has SOCK_CLOEXEC, the one of the sandbox has not.
            return "bus" if "SOCK_CLOEXEC" in arguments else "sandbox socket"
        first = arguments.split(",", 1)[0]
        if first.isdigit():
            return self.names.get(int(first), f"descriptor {first}")
        if name.startswith("rt_sig"):
            return ""
        texts = TEXT.findall(arguments)
        return self.path(texts[0]) if texts else ""

    def path(self, text):
        text = SANDBOX.sub("", text).replace(self.home, "~")
        if text.startswith("/proc/self/fd/"):
            return "/proc/self/fd"
        text = text.rstrip("/")
        return re.sub(r"(\.plist)\.\w{6}$", r"\1.NEW", text)

    @staticmethod
    def payload(name, arguments, result):
        if name == "write":
            return " " + TEXT.findall(arguments)[0]
        if name == "sendmsg":
            return f" {result} " + "".join(PIECE.findall(arguments))
        if name in ("getsockopt", "setsockopt"):
            return " " + arguments.split(", ")[2]
        return ""

    def follow(self, name, arguments, result, subject):
        if name in ("openat", "socket") and int(result) >= 0:
            self.names[int(result)] = subject
        if name == "close":
            self.names.pop(int(arguments), None)


def needed(program):
    found = shutil.which(program)
    if found is None:
        raise Unavailable(f"there is no {program}")
    return found


def check_tracing():
    """Raises Unavailable if a program cannot be traced with a bus."""
    needed("dbus-daemon")
    strace = needed("strace")
    tried = subprocess.run([strace, "-o", os.devnull, "true"],
                           capture_output=True, text=True, check=False)
    if tried.returncode != 0:
        raise Unavailable("this process may not be traced: " +
                          tried.stderr.strip().splitlines()[-1])


class Bus:
    """A private message bus."""

    def __init__(self, folder):
        self.address = f"unix:path={folder}/bus"
        configuration = pathlib.Path(folder, "bus.conf")
        configuration.write_text(
            "<busconfig><type>session</type><auth>EXTERNAL</auth>"
            f"<listen>{self.address}</listen><policy context='default'>"
            "<allow send_destination='*'/><allow receive_sender='*'/>"
            "<allow own='*'/></policy></busconfig>")
        self.daemon = subprocess.Popen(
            [needed("dbus-daemon"), f"--config-file={configuration}",
             "--nofork", "--print-address"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        if not self.daemon.stdout.readline():
            raise Unavailable("dbus-daemon does not start")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.daemon.kill()
        self.daemon.wait()
        self.daemon.stdout.close()


def calls_between_marks(trace_file, home):
    """Returns the calls of the start-up, of each repetition and of the end."""
    trace = Trace(home)
    repetitions = []
    processes = set()
    for line in trace_file.read_text(errors="replace").splitlines():
        if MARK in line:
            repetitions.append(trace.calls)
            trace.calls = []
            continue
        match = LINE.match(line)
        if match is None:
            continue
        processes.add(match[1])
        trace.add(match[2], match[3], match[4])
    if len(processes) != 1:
        raise RuntimeError(f"{len(processes)} threads or processes, not one")
    return repetitions


def write_settings(home):
    """Writes a settings file, so that the first call is like the others."""
    folder = pathlib.Path(home, ".config/tarvix/Preferences")
    folder.mkdir(parents=True)
    (folder / "com.tarvix.VRM-D6autosetup.plist").write_text(
        '<plist version="1.0"><dict><key>Output1</key><integer>2</integer>'
        "</dict></plist>")


def script(folder, cases, temporary):
    """Returns a shell script that traces all cases in one sandbox, to save time."""
    lines = ["set -e"]
    for number, (who, operation) in enumerate(cases):
        lines += [f"strace -f -s 4096 -o trace.{number} "
                  f"'{folder}/repeat_calls' {who} {operation} {TIMES}",
                  f"cp log log.{number}"]
    return f"cd '{temporary}'\n" + "\n".join(lines)


def run_in_sandbox(folder, cases, temporary, devices):
    home = os.path.join(temporary, "home")
    write_settings(home)
    with Bus(temporary) as bus:
        environment = dict(os.environ, HOME=home, TMPDIR="/tmp",
                           DBUS_SESSION_BUS_ADDRESS=bus.address)
        environment.pop("XDG_CONFIG_HOME", None)
        run = subprocess.run(
            [folder / "ztk-virtual-mixer", "run", "-n", str(devices[0]),
             "--other-devices", str(devices[1]), "--log",
             os.path.join(temporary, "log"), "--",
             "sh", "-c", script(folder, cases, temporary)],
            env=environment, capture_output=True, text=True, check=False)
    if run.returncode != 0:
        raise RuntimeError(run.stderr.strip())
    return home


def one_call(temporary, number, home):
    """Returns the system calls of one call, from the trace with this number."""
    calls = calls_between_marks(pathlib.Path(temporary, f"trace.{number}"),
                                home)
    # The two choices alternate, so the last call and the second call before it have the
    # same choice. Both are made after the start-up.
    if len(calls) != TIMES + 1:
        raise RuntimeError("the trace is not complete")
    if calls[-1] != calls[-3]:
        difference = difflib.unified_diff(calls[-3], calls[-1], n=0,
                                          lineterm="")
        raise RuntimeError("two equal calls differ in their system calls:\n" +
                           "\n".join(difference))
    return calls[-1]


def requests_of(temporary, count):
    """Returns the number of requests that the mixers received in each run."""
    totals = [len(pathlib.Path(temporary, f"log.{number}").read_text()
                  .splitlines()) for number in range(count)]
    if any(total % TIMES != 0 for total in totals):
        raise RuntimeError("equal calls differ in their requests")
    return [now - before for before, now in zip([0] + totals, totals)]


def measure(folder, cases, mixers=1, other_devices=0):
    """Returns the system calls of one call for each (who, operation), in order. The
    requests are at the end as "ioctl", because only their number is known."""
    check_tracing()
    folder = pathlib.Path(folder).resolve()
    with tempfile.TemporaryDirectory(dir="/tmp") as temporary:
        home = run_in_sandbox(folder, cases, temporary,
                              (mixers, other_devices))
        requests = requests_of(temporary, len(cases))
        return {case: one_call(temporary, number, home) +
                      ["ioctl"] * (requests[number] // TIMES)
                for number, case in enumerate(cases)}


RESUMED = re.compile(r"^\d+ +<\.\.\. (?P<resumed>\w+) resumed>")


def measure_here(folder):
    """Returns the number of system calls of one call of every contender, with the
    devices that this process can access. Changes the settings of this HOME."""
    check_tracing()
    counts = {}
    with tempfile.TemporaryDirectory() as temporary:
        trace = pathlib.Path(temporary, "trace")
        for who in ("library", "floor", "libusb"):
            program = "repeat_libusb" if who == "libusb" else "repeat_calls"
            for operation in OPERATIONS:
                subprocess.run(
                    ["strace", "-f", "-o", trace, f"{folder}/{program}", who,
                     operation, str(FEW_TIMES)], check=True)
                counts[f"{operation}/{who}"] = calls_of_last(trace)
    return counts


def calls_of_last(trace):
    """Returns the number of calls between the last two marks."""
    number = last = 0
    for line in trace.read_text(errors="replace").splitlines():
        if MARK in line:
            number, last = 0, number
            continue
        # A call that another thread interrupts has two lines. The first one, which is
        # incomplete, is not counted.
        match = RESUMED.match(line) or LINE.match(line)
        name = match and (match["resumed"] if match.re is RESUMED else match[2])
        if name and name not in C_LIBRARY | WAITING:
            number += 1
    return last


def names(calls):
    """Returns the number of calls of each kind."""
    return collections.Counter(call.split(" ", 1)[0] for call in calls)


def main(arguments):
    if arguments[0] == "--here":
        print(json.dumps(measure_here(arguments[1]), indent=1))
        return
    if len(arguments) == 3:
        case = (arguments[1], arguments[2])
        print("\n".join(measure(arguments[0], [case])[case]))
        return
    print("System calls per call, one mixer, without waiting for the bus:\n")
    print(f"{'devices':>8}" + "".join(f"{name:>8}" for name in OPERATIONS))
    cases = [("library", name) for name in OPERATIONS]
    for others in (0, 3, 28):
        calls = measure(arguments[0], cases, other_devices=others)
        # The mixer and its bus are devices too.
        print(f"{others + 2:>8}" +
              "".join(f"{len(calls[case]):>8}" for case in cases))


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3, 4):
        sys.exit(__doc__)
    try:
        main(sys.argv[1:])
    except Unavailable as problem:
        sys.exit(f"system_calls.py: {problem}")
