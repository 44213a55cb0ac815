#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs ztk for macOS in the loader, with one mixer of the test double.

Usage: program_test.py --loader PROGRAM --build FOLDER
"""

import argparse
import json
import os
import pathlib
import plistlib
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

OPTIONS = None
MODEL = "Library/Preferences/com.tarvix.VRM-D6autosetup.plist"


class Ztk(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.home = tempfile.TemporaryDirectory()
        home = pathlib.Path(cls.home.name)
        config = home / "GNUstep.conf"
        config.write_text(f"GNUSTEP_USER_DIR_LIBRARY={home}/Library\n"
                          f"GNUSTEP_USER_DEFAULTS_DIR={home}/Defaults\n")
        config.chmod(0o600)
        cls.environment = dict(
            os.environ, HOME=str(home), TEMP=str(home), LC_ALL="C.UTF-8",
            GNUSTEP_CONFIG_FILE=str(config), MACHO_RUN_MIXERS="1",
            DYLD_FRAMEWORK_PATH=str(OPTIONS.build / "lib"))
        for name in ("XDG_CONFIG_HOME", "XDG_STATE_HOME"):
            cls.environment.pop(name, None)
        cls.center = subprocess.Popen(["gdnc", "--no-fork"],
                                      env=cls.environment)
        # "GDNCServer", in the encoding of GNUstep.
        name = home / "NSMessagePort/names/R0ROQ1NlcnZlcg=="
        while not name.exists() and cls.center.poll() is None:
            time.sleep(0.01)

    @classmethod
    def tearDownClass(cls):
        cls.center.terminate()
        cls.center.wait()
        cls.home.cleanup()

    def setUp(self):
        folder = pathlib.Path(self.home.name)
        shutil.rmtree(folder / "Library/Preferences", ignore_errors=True)
        shutil.rmtree(folder / ".local", ignore_errors=True)
        (folder / "Library/Preferences").mkdir(parents=True)

    def command(self, words):
        return [OPTIONS.loader, str(OPTIONS.build / "bin/ztk"), *words]

    def run_ztk(self, *words, mixers=1):
        environment = dict(self.environment, MACHO_RUN_MIXERS=str(mixers))
        return subprocess.run(self.command(words), env=environment, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True,
                              timeout=60)

    def out(self, *words):
        result = self.run_ztk(*words)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return result.stdout

    def remembered(self):
        return plistlib.loads(
            (pathlib.Path(self.home.name) / MODEL).read_bytes())

    def test_status_shows_the_mixer(self):
        self.assertEqual(self.out("status").splitlines()[:2],
                         ["Mixer 1 answers",
                          "  firmware      4.36"])

    def test_a_choice_is_sent_remembered_and_undone(self):
        self.assertEqual(self.out("boost", "set", "-10 dB"),
                         "Boost level: -10 dB (2), sent to 1 mixer, remembered\n")
        self.assertEqual(self.out("input", "set", "2", "mic"),
                         "USB input 2: MIC (6), sent to 1 mixer, remembered\n")
        self.assertEqual(self.remembered(), {"MaxLevel": 1, "Output1": 5})
        self.assertIn("undone", self.out("undo"))
        self.assertEqual(self.remembered(), {"MaxLevel": 1})

    def test_export_and_import_transfer_the_stored_settings(self):
        self.out("boost", "set", "3")
        exported = self.out("export")
        self.assertEqual(json.loads(exported)["settings"],
                         {"VRM-D6": {"boost": "-15 dB"}})
        self.out("boost", "set", "1")
        file = pathlib.Path(self.home.name) / "club.json"
        file.write_text(exported)
        self.out("import", str(file))
        self.assertEqual(self.remembered(), {"MaxLevel": 2})

    def test_the_exception_for_a_wrong_word_is_caught(self):
        result = self.run_ztk("boost", "set", "loud")
        self.assertEqual(result.returncode, 2)
        self.assertIn('no choice "loud"', result.stderr)

    def test_without_a_mixer_the_choice_is_only_stored(self):
        result = self.run_ztk("boost", "set", "1", mixers=0)
        self.assertEqual(result.stdout,
                         "Boost level: -5 dB (1)\n")
        self.assertIn("no mixer is attached", result.stderr)

    def test_watch_receives_changes_of_another_process(self):
        watch = subprocess.Popen(self.command(["watch"]), text=True,
                                 env=self.environment, stdout=subprocess.PIPE,
                                 stderr=subprocess.PIPE)
        try:
            self.assertEqual(watch.stderr.readline(),
                             "ztk: watching for changes; Ctrl-C ends\n")
            for words in (["boost", "set", "1"], ["input", "set", "2", "3"],
                          ["output", "set", "1", "2"], ["midi", "set", "4"]):
                self.out(*words)
            self.assertEqual([watch.stdout.readline() for _ in range(4)],
                             ["Boost level: -5 dB (1)\n",
                              "USB input 2: Post CH2 Fader (3)\n",
                              "USB output 1: CH2 (2)\n",
                              "MIDI channel: CH 4 (4)\n"])
            watch.send_signal(signal.SIGINT)
            self.assertEqual(watch.wait(timeout=30), 0)
        finally:
            watch.kill()
            watch.wait()
            watch.stdout.close()
            watch.stderr.close()

    def test_missing_texts_have_the_same_explanation(self):
        why = "below /System/Library, where nothing can be installed"
        self.assertIn(why, self.run_ztk("versions").stderr)
        self.assertIn(why, self.run_ztk("warning").stderr)
        self.assertIn(why, self.run_ztk("doctor").stdout)

    def test_the_manual_page_is_for_macos(self):
        page = (OPTIONS.build / "manual/ztk.1").read_text()
        for word in ("XDG_CONFIG_HOME", "D\\-Bus", "DBUS", "LANGUAGE",
                     "journalctl", "systemd"):
            with self.subTest(word=word):
                self.assertNotIn(word, page)
        self.assertIn("Library/Preferences", page)

    def test_autoapply_reports_that_it_is_not_available(self):
        result = self.run_ztk("autoapply", "on")
        self.assertEqual(result.returncode, 5)
        self.assertIn("not built for macOS", result.stderr)


def main():
    global OPTIONS
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--loader", required=True)
    parser.add_argument("--build", required=True, type=pathlib.Path)
    OPTIONS = parser.parse_args()
    unittest.main(argv=["program_test.py", "-v"])


if __name__ == "__main__":
    main()
