#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Switches between saved settings when a key is pressed or a MIDI note arrives.

Usage: scene_switcher.py [--midi DEVICE] KEY=FILE...

Each FILE is a file that ``ztk export`` has written. With --midi, KEY is the
number of a MIDI note, 0 to 127, and DEVICE is the raw MIDI device of a
controller, such as /dev/snd/midiC1D0. Without --midi, KEY is a word that the user
types, followed by Enter.

    ztk export > club.json
    scene_switcher.py 1=club.json 2=home.json
    scene_switcher.py --midi /dev/snd/midiC1D0 60=club.json 62=home.json

The program ends at the end of its input.
"""
from __future__ import annotations

import argparse
import json
import sys
import warnings
from collections.abc import Iterator
from typing import BinaryIO, TextIO

import ztkfunc

Scene = dict[str, dict[str, object]]
SETTINGS = {"input", "output", "boost", "midi"}


def load(path: str) -> Scene:
    """Reads a file of ``ztk export``. Raises ValueError for any other file."""
    with open(path, encoding="utf-8") as file:
        try:
            data = json.load(file)
        except ValueError as error:
            raise ValueError(f"{path} is not JSON: {error}") from error
    if not isinstance(data, dict) or data.get("version") != 1:
        raise ValueError(f"{path} is not a file that ztk export has written")
    settings = data.get("settings")
    if not isinstance(settings, dict) or not settings:
        raise ValueError(f"{path} contains no settings")
    for model, values in settings.items():
        unknown = set(values) - SETTINGS
        if unknown:
            raise ValueError(f"{path}: unknown setting {unknown.pop()!r} of {model}")
    return settings


def apply(scene: Scene) -> None:
    """Sets all settings of the scene."""
    for model, settings in scene.items():
        mixer = ztkfunc.Mixer(model)
        for name, value in settings.items():
            if isinstance(value, dict):
                channels = getattr(mixer, name)
                for channel, choice in value.items():
                    channels[int(channel)] = choice
            else:
                setattr(mixer, name, value)


def notes(device: BinaryIO) -> Iterator[int]:
    """Yields the numbers of the notes that start, from a stream of MIDI bytes."""
    status = 0
    data: list[int] = []
    while byte := device.read(1):
        value = byte[0]
        if value >= 0xF8:  # a real-time message may come between any two bytes
            continue
        if value & 0x80:
            status, data = value, []
            continue
        data.append(value)
        if len(data) == 2:
            # A note-on with velocity 0 ends a note. The next messages may have no
            # status byte if it is the same (running status).
            if status & 0xF0 == 0x90 and data[1] > 0:
                yield data[0]
            data = []


def keys(stream: TextIO) -> Iterator[str]:
    """Yields the words that the user types, one on each line."""
    for line in stream:
        if line.strip():
            yield line.strip()


def switch(key: str, scene: Scene) -> None:
    """Sets the scene and prints the result."""
    with warnings.catch_warnings(record=True) as caught:
        warnings.simplefilter("always")
        try:
            apply(scene)
        except (ztkfunc.Rejected, ValueError, LookupError) as error:
            print(f"scene {key}: {error.args[0]}", file=sys.stderr)
            return
    for warning in caught:
        print(f"  {warning.message}", file=sys.stderr)
    missed = any(issubclass(warning.category, ztkfunc.NotSent) for warning in caught)
    print(f"scene {key} {'was not sent completely' if missed else 'is set'}", flush=True)


def pressed_keys(device: str | None) -> Iterator[str]:
    if device is None:
        yield from keys(sys.stdin)
        return
    with open(device, "rb", buffering=0) as stream:
        for note in notes(stream):
            yield str(note)


def main() -> int:
    parser = argparse.ArgumentParser(description=(__doc__ or "").split("\n")[0])
    parser.add_argument("--midi", metavar="DEVICE", help="raw MIDI device to read")
    parser.add_argument("scenes", metavar="KEY=FILE", nargs="+")
    options = parser.parse_args()
    scenes: dict[str, Scene] = {}
    for argument in options.scenes:
        key, separator, path = argument.partition("=")
        if not separator:
            parser.error(f"{argument!r} is not KEY=FILE")
        try:
            scenes[key] = load(path)
        except (OSError, ValueError) as error:
            parser.error(str(error))
        if options.midi and not (key.isdecimal() and int(key) <= 127):
            parser.error(f"{key!r} is not a MIDI note, 0 to 127")
    try:
        for key in pressed_keys(options.midi):
            if key in scenes:
                switch(key, scenes[key])
            elif not options.midi:
                print(f"no scene {key!r}; there are: {', '.join(scenes)}")
    except OSError as error:
        print(f"scene_switcher.py: {error}", file=sys.stderr)
        return 1
    except KeyboardInterrupt:
        pass
    return 0


if __name__ == "__main__":
    sys.exit(main())
