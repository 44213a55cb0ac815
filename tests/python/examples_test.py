#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the examples, and the programs in the documents, as a user does.

Must be run inside ``ztk-virtual-mixer run -n 2 --private-settings``, with a
message bus of its own.

Usage: examples_test.py EXAMPLES DOCUMENT...
"""
from __future__ import annotations

import csv
import http.client
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

WAIT = 60  # seconds; a program that takes longer has failed


def ztk(*arguments: str) -> str:
    return subprocess.run(
        ["ztk", *arguments], check=True, capture_output=True, text=True
    ).stdout


class SceneSwitcher(unittest.TestCase):
    examples: pathlib.Path

    def setUp(self) -> None:
        folder = self.enterContext(tempfile.TemporaryDirectory())
        self.folder = pathlib.Path(folder)
        ztk("input", "set", "2", "MIC")
        ztk("boost", "set", "-5 dB")
        (self.folder / "club.json").write_text(ztk("export"))
        ztk("input", "set", "2", "REC OUT")
        ztk("boost", "set", "-15 dB")

    def run_switcher(self, *arguments: str, keys: str = "") -> subprocess.CompletedProcess[str]:
        return subprocess.run(
            [sys.executable, str(self.examples / "scene_switcher.py"), *arguments],
            input=keys,
            capture_output=True,
            text=True,
            timeout=WAIT,
        )

    def test_a_key_sets_the_scene(self) -> None:
        run = self.run_switcher(f"1={self.folder}/club.json", keys="1\n")
        self.assertEqual((run.stdout, run.returncode), ("scene 1 is set\n", 0))
        self.assertIn("MIC (6)", ztk("input", "get", "2"))
        self.assertIn("-5 dB", ztk("boost", "get"))

    def test_a_midi_note_sets_the_scene(self) -> None:
        # The stream is: a clock message, note 61 with velocity 100 and then 0 (which
        # ends the note), and note 60 without a status byte, with a clock message
        # in the middle.
        stream = self.folder / "midi"
        stream.write_bytes(bytes([0xF8, 0x90, 61, 100, 61, 0, 60, 0xF8, 99]))
        run = self.run_switcher("--midi", str(stream), f"60={self.folder}/club.json")
        self.assertEqual((run.stdout, run.returncode), ("scene 60 is set\n", 0))

    def test_a_file_of_another_kind_is_refused(self) -> None:
        (self.folder / "bad.json").write_text("{}")
        run = self.run_switcher(f"1={self.folder}/bad.json")
        self.assertEqual(run.returncode, 2)
        self.assertIn("is not a file that ztk export has written", run.stderr)

    def test_a_refused_value_is_reported(self) -> None:
        subprocess.run(["ztk-virtual-mixer", "fault", "stall@w8003"], check=True, stdout=subprocess.DEVNULL)
        self.addCleanup(
            subprocess.run,
            ["ztk-virtual-mixer", "fault", "none"],
            stdout=subprocess.DEVNULL,
        )
        run = self.run_switcher(f"1={self.folder}/club.json", keys="1\n")
        self.assertEqual(run.stdout, "scene 1 was not sent completely\n")
        self.assertIn("refused", run.stderr)

    def test_the_error_for_a_missing_device_is_one_line(self) -> None:
        run = self.run_switcher("--midi", "/nonexistent", f"60={self.folder}/club.json")
        self.assertEqual((run.returncode, len(run.stderr.splitlines())), (1, 1))

    def test_an_unknown_key_lists_the_scenes(self) -> None:
        run = self.run_switcher(f"1={self.folder}/club.json", keys="7\n")
        self.assertEqual(run.stdout, "no scene '7'; there are: 1\n")


class ChangeLog(unittest.TestCase):
    examples: pathlib.Path

    def test_each_change_is_a_row(self) -> None:
        log = subprocess.Popen(
            [sys.executable, str(self.examples / "change_log.py")],
            stdout=subprocess.PIPE,
            text=True,
        )
        assert log.stdout is not None
        self.assertEqual(log.stdout.readline(), "time,setting,channel,number,text\n")
        ztk("input", "set", "3", "MIC")
        ztk("boost", "set", "2")
        rows = [next(csv.reader([log.stdout.readline()])) for _ in range(2)]
        log.terminate()
        log.wait(WAIT)
        log.stdout.close()
        self.assertEqual(
            [row[1:] for row in rows],
            [["input", "3", "6", "MIC"], ["boost", "", "2", "-10 dB"]],
        )
        self.assertRegex(rows[0][0], r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}\+00:00$")


class RoutingPage(unittest.TestCase):
    examples: pathlib.Path

    def setUp(self) -> None:
        self.server = subprocess.Popen(
            [sys.executable, str(self.examples / "routing_page.py"), "--port", "0"],
            stdout=subprocess.PIPE,
            text=True,
        )
        assert self.server.stdout is not None
        address = self.server.stdout.readline()
        self.port = int(re.fullmatch(r"http://127\.0\.0\.1:(\d+)/\n", address)[1])

    def tearDown(self) -> None:
        self.server.terminate()
        self.server.wait(WAIT)
        self.server.stdout.close()

    def get(self, path: str, **headers: str) -> http.client.HTTPResponse:
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=WAIT)
        self.addCleanup(connection.close)
        connection.request("GET", path, headers=headers)
        return connection.getresponse()

    def test_the_page_shows_the_routing_and_every_change(self) -> None:
        ztk("input", "set", "2", "REC OUT")
        changes = self.get("/changes")
        page = self.get("/").read().decode()
        self.assertIn('<td id="usb2">REC OUT</td>', page)

        def next_change() -> object:
            line = changes.readline().decode()
            self.assertEqual(changes.readline(), b"\n")
            return json.loads(line.removeprefix("data: "))

        now = [next_change() for _ in range(5)]
        self.assertEqual(now[1], {"channel": 2, "text": "REC OUT"})
        self.assertEqual(now[4], {"channel": 5, "text": "REC OUT"})
        ztk("input", "set", "2", "Post CH2 Fader")
        self.assertEqual(next_change(), {"channel": 2, "text": "Post CH2 Fader"})

    def test_a_request_for_another_host_or_path_is_refused(self) -> None:
        self.assertEqual(self.get("/", Host="evil.example:80").status, 403)
        self.assertEqual(self.get("/nothing").status, 404)


class Document(unittest.TestCase):
    documents: list[pathlib.Path]

    def test_the_programs_print_what_the_document_shows(self) -> None:
        # A program that is not followed by its output prints nothing.
        blocks = [
            block
            for document in self.documents
            for block in re.findall(
                r"^```python\n(.*?)^```\n(?:\n+```text\n(.*?)^```)?",
                document.read_text(encoding="utf-8"),
                re.MULTILINE | re.DOTALL,
            )
        ]
        self.assertGreater(len(blocks), 3)
        for program, output in blocks:
            with self.subTest(program):
                run = subprocess.run(
                    [sys.executable, "-W", "error", "-c", program],
                    capture_output=True,
                    text=True,
                    timeout=WAIT,
                )
                self.assertEqual((run.stdout, run.stderr), (output, ""))


if __name__ == "__main__":
    for case in (SceneSwitcher, ChangeLog, RoutingPage):
        case.examples = pathlib.Path(sys.argv[1])
    Document.documents = [pathlib.Path(name) for name in sys.argv[2:]]
    unittest.main(argv=sys.argv[:1], verbosity=2)
