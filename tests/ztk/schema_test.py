#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks everything that ztk --json writes against its schema.

Runs every command with success and with each kind of failure, on virtual mixers.
All of the output has to match the schema, and each property and each error code of
the schema has to occur at least once.

Usage: schema_test.py SCHEMA PROGRAMS
"""

import json
import os
import pathlib
import subprocess
import sys
import tempfile

try:
    import jsonschema
except ImportError:
    print("python3-jsonschema is not installed")
    sys.exit(77)

ONE = ()
NONE = ("-n", "0")

# Options of the sandbox, and commands that run in it, in one home folder.
SCENES = (
    (ONE, """
        ztk --json --help; ztk input --help --json; ztk --version --json
        for setting in input output boost midi; do
          for verb in list get apply; do ztk $setting $verb --json; done
        done
        ztk status --json; ztk versions --json; ztk models --json
        ztk apply --json
        """),
    (("-n", "2"), """
        ztk input set 2 mic --json; ztk output set 1 aux --json
        ztk boost set 2 --json; ztk midi set 16 --json
        ztk output default --json; ztk input raw 2 0 3 --json
        for setting in input output boost midi; do
          for verb in list get apply; do ztk $setting $verb --json; done
        done
        ztk apply --json; ztk apply --product vrm-k2 --json; ztk status --json
        ztk boost list --product VRM-K2 --json
        ztk-virtual-mixer reply 8004 0100; ztk status --json
        """),
    # No mixer.
    (NONE, """
        ztk status --json; ztk input set 1 1 --json; ztk boost set 1 --json
        ztk output default 1 --json; ztk input raw 1 0 1 --json
        ztk apply --json; ztk input apply --json
        """),
    # Mixers that do not open, do not answer, refuse, or answer too little.
    (("--forbid", "1"), "ztk status --json; ztk boost set 1 --json"),
    (("-n", "2", "--forbid", "2"), "ztk status --json; ztk boost set 1 --json;"
     "ztk apply --json; ztk output default 2 --json; ztk input raw 1 0 5 --json"),
    (("--fault", "silence"), "ztk boost set 1 --json"),
    (("--fault", "stall"), "ztk status --json; ztk input set 1 1 --json"),
    (("--fault", "unplug"), "ztk boost set 1 --json"),
    (("--fault", "short:1"), "ztk status --json; ztk input set 1 1 --json"),
    (("--reply", "8004=0700"), "ztk status --json"),
    (("--selector", "1=3"), "ztk input set 1 1 --json; ztk status --json;"
     "ztk input get --json; ztk doctor --json"),
    (("-n", "3", "--fault", "2:silence"),
     "ztk status --json --verbose; ztk apply --all --json"),
    # Without a user's systemd.
    (ONE, "for word in on off status; do ztk autoapply $word --json; done"),
    # Values in the settings file that are not choices.
    (ONE, """
        folder=$HOME/.config/tarvix/Preferences; mkdir -p $folder
        for value in -1 9 77 2147483647; do
          printf '<plist version="1.0"><dict><key>Output1</key><integer>%s' \
            "$value" >$folder/com.tarvix.VRM-D6autosetup.plist
          printf '</integer></dict></plist>' \
            >>$folder/com.tarvix.VRM-D6autosetup.plist
          ztk input list --json; ztk input get --json; ztk status --json
          ztk input apply --json
        done
        """),
    # A settings folder that cannot be made.
    (ONE, "XDG_CONFIG_HOME=/dev/null/x ztk boost set 1 --json;"
     "XDG_CONFIG_HOME=/dev/null/x ztk-virtual-mixer unplug;"
     "XDG_CONFIG_HOME=/dev/null/x ztk boost set 1 --json"),
    # Dry run, undo, export and import.
    (("-n", "2", "--forbid", "2"), """
        for what in "input set 2 mic" "boost set 1" "midi set 2" apply \
          "output default" "input raw 1 0 3" undo; do
          ztk $what --dry-run --json
        done
        ztk undo --json; ztk input set 2 mic; ztk boost set 1; ztk midi set 2
        ztk undo --dry-run --json; ztk undo --json; ztk apply --dry-run --json
        ztk input apply --dry-run --json; ztk export --json
        ztk export >$HOME/club.json; ztk import $HOME/club.json --json
        ztk import $HOME/club.json --dry-run --json; ztk undo --json
        echo '{"version":1,"settings":{"VRM-D6":{"boost":"x","y":1}}}' \
          >$HOME/bad.json
        ztk import $HOME/bad.json --json; ztk import --json
        ztk import /nonexistent --json; echo '[' | ztk import - --json
        """),
    # What is forgotten, listed, kept by an import, or taken away by it.
    (ONE, """
        ztk export --json; ztk export >$HOME/empty.json; ztk input set 2 mic
        ztk undo --list --json; ztk export >$HOME/club.json; ztk boost set 1
        ztk import $HOME/club.json --json; ztk midi set 2
        ztk apply --dry-run --json
        ztk import $HOME/club.json --dry-run --json
        ztk import --only $HOME/club.json --json
        ztk import $HOME/empty.json --json
        ztk reset --dry-run --json; ztk reset --json; ztk reset --json
        ztk undo --list --json; ztk undo --json; ztk undo 2 --dry-run --json
        ztk undo 2 --json; ztk undo 99 --json; ztk reset nonsense --json
        """),
    # A setting that another program has changed.
    (ONE, """
        ztk boost set 1; mkdir -p $HOME/other/tarvix
        XDG_STATE_HOME=$HOME/none ztk boost set 3; ztk undo --dry-run --json
        ztk undo --json
        """),
    # A value that no setter accepts, and that undo cannot restore.
    (ONE, """
        folder=$HOME/.config/tarvix/Preferences; mkdir -p $folder
        printf '<plist version="1.0"><dict><key>MaxLevel</key>%s</dict></plist>' \
          '<integer>77</integer>' >$folder/com.tarvix.VRM-D6autosetup.plist
        ztk boost set 2; ztk undo --dry-run --json; ztk undo --json
        """),
    # The doctor, without and with findings.
    (ONE, "ztk doctor --json; ztk doctor --report report.json --json; rm report.json"),
    (NONE, "HOME=/nonexistent ztk doctor --json"),
    (("-n", "2", "--fault", "2:stall"), "ztk doctor --json"),
    # A change whose effect another program has taken back.
    (ONE, """
        files=$HOME/.config/tarvix/Preferences
        ztk boost set 2 --json; cp -r $files $HOME/kept
        ztk boost set 3 --json; rm -r $files; mv $HOME/kept $files
        ztk undo --json
        """),
    # No message bus.
    (ONE, """
        export DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent
        timeout -s INT 1 ztk watch --json; ztk boost set 1 --json; ztk output default --json
        ztk doctor --json
        """),
    # Invalid command lines, and calls that the library rejects.
    (ONE, """
        ztk --json; ztk --json nonsense; ztk input --json; ztk inptu set --json
        ztk input set --json; ztk input set 9 1 --json; ztk input set 1 --json
        ztk input set 1 nonsense --json; ztk input set 1 p --json
        ztk status now --json; ztk status --nope --json; ztk apply --product --json
        ztk apply --product VRM-Z --json; ztk warning --language x --json
        ztk warning --channel 9 --json; ztk warning --channel 5 --json
        ztk input raw 1 x 1 --json; ztk input raw 1 0 99 --json
        ztk boost get --product VRM-K2 --json; ztk input list --product 0 --json
        ztk apply --product VRM-E3 --json; ztk midi apply --product 10 --json
        ztk "$(printf '\\377')" --json; ztk boost set "$(printf 'a\\nb')" --json
        ztk warning --json; ztk warning --language de --channel 2 --json
        """),
    # ztk watch, also with a change that no setter makes.
    (ONE, """
        ztk watch --json >$HOME/seen 2>$HOME/ready & watcher=$!
        until grep -q watching $HOME/ready; do sleep 0.01; done
        ztk input set 1 2; ztk boost set 1; ztk midi set 3; ztk output set 1 2
        dbus-send --session --type=signal \
          /com/tarvix/DistributedNotificationCenter \
          com.tarvix.DistributedNotificationCenter.Notification || true
        until [ $(wc -l <$HOME/seen) -ge 4 ]; do sleep 0.01; done
        ztk-virtual-mixer unplug 1
        until [ $(wc -l <$HOME/seen) -ge 5 ]; do sleep 0.01; done
        ztk-virtual-mixer plug 1
        until [ $(wc -l <$HOME/seen) -ge 6 ]; do sleep 0.01; done
        kill -INT $watcher; wait $watcher
        exec >&3; cat $HOME/seen
        """),
    # An interrupt during the wait for a mixer.
    (("--fault", "delay:1500"), """
        timeout -s INT 0.7 ztk status --json
        """),
)


def objects_of(options, script, environment):
    """The lines of a scene, and those that are not objects."""
    # Only the output of commands with --json counts.
    script = f"exec 3>&1\n{script}"
    done = subprocess.run(
        ["ztk-virtual-mixer", "run", *options, "--", "bash", "-c", script],
        env=environment, cwd=environment["HOME"], stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=120,
        check=False)
    lines = done.stdout.decode("utf-8").splitlines()
    return [line for line in lines if line.startswith("{")]


def seen_in(value, schema, root, seen):
    """Records which properties of the schema a value has."""
    if "$ref" in schema:
        target = root
        for name in schema["$ref"].split("/")[1:]:
            target = target[name]
        seen_in(value, target, root, seen)
    for name in ("anyOf", "allOf"):
        for part in schema.get(name, ()):
            if jsonschema.Draft202012Validator(
                    {**part, "$defs": root["$defs"]}).is_valid(value):
                seen_in(value, part, root, seen)
    if isinstance(value, dict):
        for name, part in schema.get("properties", {}).items():
            if name in value:
                seen.add(id(part))
                seen_in(value[name], part, root, seen)
    if isinstance(value, list) and "items" in schema:
        for item in value:
            seen_in(item, schema["items"], root, seen)


def properties_of(schema, path=""):
    if isinstance(schema, list):
        for part in schema:
            yield from properties_of(part, path)
    if not isinstance(schema, dict):
        return
    for key, part in schema.items():
        # The names in a condition are not properties of an object.
        if key in ("if", "not"):
            continue
        if key == "properties":
            for name, inner in part.items():
                yield f"{path}/{name}", inner
                yield from properties_of(inner, f"{path}/{name}")
        else:
            yield from properties_of(part, f"{path}/{key}")


def commands_of_table():
    def offered(*words):
        done = subprocess.run(["ztk", "__complete", *words], check=True,
                              stdout=subprocess.PIPE, text=True)
        return [line.split("\t")[0] for line in done.stdout.splitlines()]

    for name in offered(""):
        if name == "help":
            continue
        below = [word for word in offered(name, "") if word.isalpha()]
        is_group = name in ("input", "output", "boost", "midi", "autoapply")
        yield from ([f"{name} {word}" for word in below] if is_group else [name])


class Bus:
    def __init__(self, folder):
        self.address = f"unix:path={folder}/bus"
        self.daemon = subprocess.Popen(
            ["dbus-daemon", "--session", "--nofork",
             f"--address={self.address}", "--print-address=1"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.daemon.stdout.readline()

    def stop(self):
        self.daemon.terminate()
        self.daemon.wait()
        self.daemon.stdout.close()


def main(schema_file, programs):
    schema = json.loads(pathlib.Path(schema_file).read_text(encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    os.environ["PATH"] = f"{programs}:{os.environ['PATH']}"
    complaints, seen = [], set()
    objects, succeeded, codes = 0, set(), set()
    for options, script in SCENES:
        with tempfile.TemporaryDirectory(prefix="ztk.", dir="/tmp") as folder:
            bus = Bus(folder)
            environment = {**os.environ, "HOME": folder, "TMPDIR": folder,
                           "LC_ALL": "C.UTF-8",
                           "DBUS_SESSION_BUS_ADDRESS": bus.address}
            environment.pop("XDG_CONFIG_HOME", None)
            try:
                lines = objects_of(options, script, environment)
            finally:
                bus.stop()
        if not lines:
            complaints.append(f"no object from: {script}")
        for line in lines:
            objects += 1
            value = json.loads(line)
            errors = [error.message[:300]
                      for error in validator.iter_errors(value)]
            if errors:
                complaints.append(f"{line}\n  {errors}")
            elif validator.is_valid({**value, "nonsense": 1}):
                complaints.append(f"anything may be added to {line}")
            seen_in(value, schema, schema, seen)
            if value["ok"] and "help" not in value:
                succeeded.add(value["command"])
            if "error" in value:
                codes.add(value["error"]["code"])
    # These need the bundle of texts installed, or a user's systemd.
    elsewhere = ("warning", "doctor", "autoapply")
    missing = {name for name in set(commands_of_table()) - succeeded
               if not name.startswith(elsewhere)}
    if missing:
        complaints.append(f"never seen to succeed: {sorted(missing)}")
    every = set(schema["$defs"]["error"]["properties"]["code"]["enum"])
    if codes != every:
        complaints.append(f"error codes not seen: {sorted(every - codes)}")
    unseen = [name for name, part in properties_of(schema)
              if id(part) not in seen and
              not name.startswith(("/$defs/warning", "/$defs/autoapply"))]
    if unseen:
        complaints.append(f"properties that nothing has: {unseen}")
    print("\n".join(complaints))
    print(f"{objects} objects, {len(complaints)} complaints")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
