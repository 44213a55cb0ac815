#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests the binding with the real library and two virtual mixers.

Run it with ``dbus-run-session -- ztk-virtual-mixer run -n 2 --private-settings --``:
it needs two virtual mixers, settings that may be deleted, and a message bus that no
other program uses.
"""
from __future__ import annotations

import asyncio
import gc
import importlib.util
import os
import pathlib
import queue
import shutil
import subprocess
import sys
import threading
import unittest
import warnings

import ztkfunc
from ztkfunc import functions
from ztkfunc.outcome import Announcement, File, Request

SETTINGS = "tarvix/Preferences/com.tarvix.VRM-D6autosetup.plist"


def control(*arguments: str) -> None:
    subprocess.run(
        ["ztk-virtual-mixer", *arguments], check=True, stdout=subprocess.DEVNULL
    )


def settings_file() -> pathlib.Path:
    return pathlib.Path(os.environ["XDG_CONFIG_HOME"], SETTINGS)


class BindingTest(unittest.TestCase):
    """Each test begins with two working mixers and no settings file.

    Warnings are errors.
    """

    def setUp(self) -> None:
        control("fault", "none")
        for channel in "1234":
            control("turn", channel, "4")
        settings_file().unlink(missing_ok=True)
        self.enterContext(warnings.catch_warnings())
        warnings.simplefilter("error")


class MixerTest(BindingTest):
    def test_a_choice_can_be_set_by_its_text_and_is_stored(self) -> None:
        mixer = ztkfunc.Mixer()
        mixer.input[2] = "Post CH2 Fader"
        self.assertEqual(mixer.input[2], "Post CH2 Fader")
        self.assertIn(b"<key>Output1</key>", settings_file().read_bytes())

    def test_the_outcome_reports_each_mixer_and_the_file(self) -> None:
        ztkfunc.Mixer().boost = "-10 dB"
        outcome = ztkfunc.last_outcome()
        self.assertEqual(outcome.mixers_found, 2)
        self.assertEqual(
            [(mixer.number, mixer.write.result) for mixer in outcome.mixers],
            [(1, Request.ACCEPTED), (2, Request.ACCEPTED)],
        )
        self.assertEqual(outcome.store.result, File.OK)
        self.assertEqual(outcome.read.result, File.ABSENT)
        self.assertEqual(outcome.announcement, Announcement.SENT)

    def test_numbers_of_choices_count_from_1(self) -> None:
        mixer = ztkfunc.Mixer()
        mixer.input[1] = 3
        self.assertEqual(mixer.input[1], "Post CH1 Fader")
        mixer.boost = 1
        self.assertEqual(mixer.boost, "-5 dB")

    def test_spaces_and_case_of_a_text_are_ignored(self) -> None:
        mixer = ztkfunc.Mixer()
        mixer.boost = "-10DB"
        self.assertEqual(mixer.boost, "-10 dB")

    def test_defaults_are_returned_when_nothing_is_stored(self) -> None:
        mixer = ztkfunc.Mixer()
        self.assertEqual(
            dict(mixer.input),
            {
                1: "CH1 Control Tone PHONO",
                2: "CH2 Control Tone PHONO",
                3: "CH3 Control Tone PHONO",
                4: "CH4 Control Tone PHONO",
                5: "REC OUT",
            },
        )
        self.assertEqual(mixer.boost, "-19 dB")

    def test_each_channel_has_its_own_choices(self) -> None:
        mixer = ztkfunc.Mixer()
        self.assertEqual(len(mixer.input.choices(1)), 7)
        self.assertEqual(len(mixer.input.choices(5)), 8)
        self.assertEqual(mixer.input.choices(3)[5], "MIC")
        self.assertEqual(
            mixer.boost_choices, ("-5 dB", "-10 dB", "-15 dB", "-19 dB")
        )

    def test_sister_models_have_their_own_settings(self) -> None:
        output = ztkfunc.Mixer("VRM-B5").output
        output[2] = "AUX"
        self.assertEqual(output[2], "AUX")
        midi = ztkfunc.Mixer("vrm-k2")
        midi.midi = 16
        self.assertEqual(midi.midi, "CH 16")
        with self.assertRaisesRegex(ztkfunc.Rejected, "cannot be sent"):
            midi.apply()

    def test_a_setting_of_another_model_is_rejected(self) -> None:
        with self.assertRaisesRegex(ztkfunc.Rejected, "is a setting of the VRM-B5"):
            ztkfunc.Mixer().output

    def test_the_error_for_a_wrong_choice_lists_the_accepted_ones(self) -> None:
        mixer = ztkfunc.Mixer()
        with self.assertRaisesRegex(ValueError, r"accepted: -5 dB \(1\), -10 dB \(2\)"):
            mixer.boost = "loud"
        with self.assertRaises(ValueError):
            mixer.input[1] = 8
        with self.assertRaises(ValueError):
            mixer.input[1] = 0
        with self.assertRaises(TypeError):
            mixer.input[1] = True
        with self.assertRaises(KeyError):
            mixer.input[6] = 1
        self.assertFalse(settings_file().exists())

    def test_the_error_for_an_unknown_model_lists_the_models(self) -> None:
        with self.assertRaisesRegex(ValueError, "VRM-D6"):
            ztkfunc.Mixer("X1")
        with self.assertRaises(ValueError):
            ztkfunc.Mixer(7)

    def test_status_comes_from_the_mixer(self) -> None:
        mixer = ztkfunc.Mixer()
        control("turn", "2", "1")
        self.assertTrue(mixer.connected)
        self.assertEqual(mixer.firmware, "4.36")
        self.assertEqual(mixer.certification, 1)
        self.assertEqual(dict(mixer.selectors), {1: 4, 2: 1, 3: 4, 4: 4})
        self.assertIs(mixer.serato_active, False)

    def test_status_is_none_when_the_mixers_refuse_the_queries(self) -> None:
        control("fault", "stall")
        mixer = ztkfunc.Mixer()
        self.assertTrue(mixer.connected)
        self.assertIsNone(mixer.firmware)
        self.assertIsNone(mixer.certification)
        self.assertIsNone(mixer.selectors[1])
        self.assertIsNone(mixer.serato_active)

    def test_a_routing_that_cannot_be_heard_is_a_warning(self) -> None:
        control("turn", "1", "0")
        with self.assertWarnsRegex(ztkfunc.Inaudible, "CH1 is turned to position 4"):
            ztkfunc.Mixer().input[1] = 1
        outcome = ztkfunc.last_outcome()
        self.assertEqual(outcome.mixers[0].write.result, Request.ACCEPTED)
        self.assertTrue(outcome.stored)
        self.assertEqual(ztkfunc.Mixer().input[1], "CH1 Control Tone PHONO")

    def test_there_is_no_warning_when_the_selector_could_not_be_read(self) -> None:
        control("fault", "stall@r8002")
        ztkfunc.Mixer().input[1] = 1
        self.assertEqual(ztkfunc.Mixer().input[1], "CH1 Control Tone PHONO")

    def test_a_warning_names_the_line_of_the_program(self) -> None:
        control("fault", "stall@w8003")
        control("fault", "stall@w8002")
        mixer = ztkfunc.Mixer()
        for statement in ("mixer.boost = 1", "mixer.input[1] = 6", "mixer.input.apply(1)"):
            with warnings.catch_warnings(record=True) as caught:
                warnings.simplefilter("always")
                exec(compile(statement, "program.py", "exec"), {"mixer": mixer})
            self.assertEqual([each.filename for each in caught], ["program.py"])

    def test_a_mistyped_setting_is_an_error(self) -> None:
        with self.assertRaises(AttributeError):
            ztkfunc.Mixer().boots = 3  # type: ignore[attr-defined]

    def test_a_refused_value_is_a_warning_and_stays_stored(self) -> None:
        control("fault", "stall@w8003")
        with self.assertWarnsRegex(ztkfunc.NotSent, "refused"):
            ztkfunc.Mixer().boost = "-5 dB"
        self.assertEqual(ztkfunc.Mixer().boost, "-5 dB")

    def test_one_refusing_mixer_of_two_is_named(self) -> None:
        control("fault", "-m", "2", "stall@w8003")
        with self.assertWarnsRegex(ztkfunc.NotSent, "mixer 2"):
            ztkfunc.Mixer().boost = "-5 dB"

    def test_a_value_that_cannot_be_stored_is_a_warning(self) -> None:
        folder = settings_file().parent
        away = folder.with_name("away")
        folder.mkdir(parents=True, exist_ok=True)
        folder.rename(away)
        folder.write_text("in the way")
        try:
            with self.assertWarns(ztkfunc.NotStored):
                ztkfunc.Mixer().boost = "-5 dB"
        finally:
            folder.unlink()
            away.rename(folder)

    def test_without_a_mixer_a_value_is_stored_but_not_sent(self) -> None:
        control("unplug")
        try:
            mixer = ztkfunc.Mixer()
            self.assertFalse(mixer.connected)
            with self.assertWarnsRegex(ztkfunc.NotSent, "no mixer is attached"):
                mixer.boost = "-5 dB"
            self.assertEqual(mixer.boost, "-5 dB")
            self.assertIsNone(mixer.firmware)
            self.assertIsNone(mixer.selectors[2])
            self.assertIsNone(mixer.serato_active)
        finally:
            control("plug")

    def test_apply_sends_stored_values_again(self) -> None:
        mixer = ztkfunc.Mixer()
        mixer.input[2] = "MIC"
        mixer.apply()
        self.assertEqual(ztkfunc.last_outcome().mixers_found, 2)
        control("fault", "stall@w8002")
        with self.assertWarns(ztkfunc.NotSent):
            mixer.input.apply(2)


class FunctionsTest(BindingTest):
    def test_results_and_outputs_are_pairs(self) -> None:
        self.assertEqual(functions.ZTK_GetProductId("my vrm-d6 here"), (100, 10))
        self.assertEqual(functions.ZTK_GetProductId("nothing"), (102, None))
        self.assertEqual(functions.ZTK_GetNumOfInputAudioIndex(10, 4), (100, 8))
        self.assertEqual(
            functions.ZTK_GetUSBInputAudioText(10, 0, 7), (100, "PARAM ERROR")
        )
        self.assertEqual(functions.ZTK_SetBoostLevelIndex(10, 4), 102)
        self.assertEqual(functions.ZTK_GetNumOfMidiKeyModeIndex(1), (102, None))

    def test_an_argument_that_does_not_fit_is_an_error(self) -> None:
        for number in (-1, 2**32, 2**32 + 10):
            with self.assertRaises(OverflowError):
                functions.ZTK_SetBoostLevelIndex(number, 0)
        with self.assertRaises(OverflowError):
            functions.ZTK_GetCurrentUSBInputAudioIndex(10, 2**31)
        with self.assertRaises(ValueError):
            functions.ZTK_GetProductId("VRM-D6\0VRM-K2")

    def test_an_output_that_is_not_written_keeps_the_initial_value(self) -> None:
        control("unplug")
        try:
            self.assertEqual(
                functions.ZTK_GetMixerInputSelectorStatus(10, 0, 77), (100, 77)
            )
        finally:
            control("plug")

    def test_other_threads_run_while_a_mixer_does_not_answer(self) -> None:
        control("fault", "silence")
        steps = 0
        ended = threading.Event()

        def ask() -> None:
            functions.ZTK_GetFirmwareVersionIndex(10)
            ended.set()

        thread = threading.Thread(target=ask)
        thread.start()
        # wait() returns True as soon as the call has returned.
        while not ended.wait(0.01):
            steps += 1
        thread.join()
        self.assertGreater(steps, 3)


class ChangesTest(BindingTest):
    def test_changes_of_another_program_arrive_in_order(self) -> None:
        async def main() -> list[ztkfunc.Change]:
            async with ztkfunc.changes() as changes:
                for value in ("1", "2", "3"):
                    subprocess.run(
                        ["ztk", "boost", "set", value],
                        check=True,
                        stdout=subprocess.DEVNULL,
                    )
                return [await asyncio.wait_for(anext(changes), 30) for _ in range(3)]

        self.assertEqual(
            asyncio.run(main()),
            [
                ztkfunc.Change("boost", None, 1, "-5 dB"),
                ztkfunc.Change("boost", None, 2, "-10 dB"),
                ztkfunc.Change("boost", None, 3, "-15 dB"),
            ],
        )

    def test_every_subscriber_is_called_once_for_a_change(self) -> None:
        first: queue.Queue[ztkfunc.Change] = queue.Queue()
        second: queue.Queue[ztkfunc.Change] = queue.Queue()
        with ztkfunc.subscribe(first.put), ztkfunc.subscribe(second.put):
            ztkfunc.Mixer().input[5] = "REC OUT"
            ztkfunc.Mixer().boost = 4
            wanted = [
                ztkfunc.Change("input", 5, 1, "REC OUT"),
                ztkfunc.Change("boost", None, 4, "-19 dB"),
            ]
            for changes in (first, second):
                self.assertEqual([changes.get(timeout=30) for _ in wanted], wanted)
        # The first two subscriptions have ended, so they do not receive the next
        # change. A third subscriber shows that the change was announced.
        third: queue.Queue[ztkfunc.Change] = queue.Queue()
        with ztkfunc.subscribe(third.put):
            ztkfunc.Mixer().boost = 1
            third.get(timeout=30)
        self.assertTrue(first.empty())
        self.assertTrue(second.empty())

    def test_other_subscribers_are_called_when_one_raises(self) -> None:
        def fail(_change: ztkfunc.Change) -> None:
            raise ZeroDivisionError("on purpose")

        seen: queue.Queue[ztkfunc.Change] = queue.Queue()
        errors: list[type] = []
        hook = sys.excepthook
        sys.excepthook = lambda kind, *_rest: errors.append(kind)
        try:
            with ztkfunc.subscribe(fail), ztkfunc.subscribe(seen.put):
                ztkfunc.Mixer().boost = 2
                seen.get(timeout=30)
        finally:
            sys.excepthook = hook
        self.assertEqual(errors, [ZeroDivisionError])

    def test_the_garbage_collector_does_not_collect_callbacks(self) -> None:
        with ztkfunc.subscribe(lambda change: None):
            pass
        gc.collect()
        seen: queue.Queue[ztkfunc.Change] = queue.Queue()
        with ztkfunc.subscribe(seen.put):
            for number in (1, 2, 3, 4):
                ztkfunc.Mixer().boost = number
            self.assertEqual(
                [seen.get(timeout=30).number for _ in range(4)], [1, 2, 3, 4]
            )

    def test_the_main_loop_must_be_chosen_before_the_first_subscription(self) -> None:
        with ztkfunc.subscribe(lambda change: None):
            with self.assertRaises(RuntimeError):
                ztkfunc.use_glib_main_loop()


@unittest.skipUnless(
    importlib.util.find_spec("gi"),
    "python3-gi is not installed",
)
class GLibTest(BindingTest):
    def test_changes_arrive_on_the_main_loop_of_the_program(self) -> None:
        program = """
import threading, ztkfunc
from gi.repository import GLib
ztkfunc.use_glib_main_loop()
loop = GLib.MainLoop()
def changed(change):
    print(change.text, threading.current_thread() is threading.main_thread())
    loop.quit()
ztkfunc.subscribe(changed)
def change():
    ztkfunc.Mixer().boost = 1
GLib.idle_add(change)
loop.run()
"""
        run = subprocess.run(
            [sys.executable, "-c", program],
            capture_output=True,
            text=True,
            timeout=60,
        )
        self.assertEqual((run.stdout, run.stderr), ("-5 dB True\n", ""))


class LoadingTest(BindingTest):
    def test_the_error_for_a_missing_library_names_the_package(self) -> None:
        run = subprocess.run(
            [sys.executable, "-c", "import ztkfunc"],
            env={**os.environ, "ZTKFUNC_LIBRARY": "/nonexistent/libZTKFunc.so.1"},
            capture_output=True,
            text=True,
        )
        self.assertNotEqual(run.returncode, 0)
        self.assertIn("install the package libztkfunc1", run.stderr)

    def test_asyncio_is_imported_only_for_changes(self) -> None:
        run = subprocess.run(
            [
                sys.executable,
                "-c",
                "import sys, ztkfunc; print({'asyncio', 'dataclasses'} & {*sys.modules})",
            ],
            capture_output=True,
            text=True,
        )
        self.assertEqual((run.stdout, run.stderr), ("set()\n", ""))

    def test_a_subscription_without_a_bus_issues_a_warning(self) -> None:
        run = subprocess.run(
            [
                sys.executable,
                "-c",
                "import ztkfunc; ztkfunc.subscribe(print); print('goes on')",
            ],
            env={
                **os.environ,
                "DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent",
            },
            capture_output=True,
            text=True,
            timeout=60,
        )
        self.assertEqual((run.returncode, run.stdout), (0, "goes on\n"))
        self.assertIn(
            "RuntimeWarning: this session has no message bus, so no changes will "
            "be received; run: ztk doctor",
            run.stderr,
        )

    def test_a_program_with_a_subscription_ends_without_an_error(self) -> None:
        run = subprocess.run(
            [
                sys.executable,
                "-c",
                "import ztkfunc; ztkfunc.subscribe(print); ztkfunc.Mixer().boost = 1",
            ],
            stdout=subprocess.DEVNULL,
            stderr=subprocess.PIPE,
            text=True,
            timeout=60,
        )
        self.assertEqual((run.returncode, run.stderr), (0, ""))


if __name__ == "__main__":
    if "ZTK_VIRTUAL_MIXER" not in os.environ and shutil.which("ztk-virtual-mixer") is None:
        sys.exit("run this test with: dbus-run-session -- "
            "ztk-virtual-mixer run -n 2 --private-settings --")
    unittest.main(verbosity=2)
