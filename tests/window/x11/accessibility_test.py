#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads the window as a screen reader does, and drives it with keys alone.

Runs under an X server of its own, inside the sandbox with one virtual mixer, with
a message bus and private settings. Ends with 77 where something is missing that
this needs.

Usage: accessibility_test.py WINDOW
"""

import json
import shutil
import subprocess
import sys
import time
import unittest

try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi
except (ImportError, ValueError) as error:
    print(f"No AT-SPI for Python: {error}")
    sys.exit(77)

WINDOW = None
PATIENCE = 20  # seconds

LABELS = ["USB 1 records:", "USB 2 records:", "USB 3 records:",
          "USB 4 records:", "USB 5 records:", "USB output level:"]


def eventually(what, condition):
    """The first true answer of the condition."""
    until = time.monotonic() + PATIENCE
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > until:
            raise AssertionError(f"never so: {what}")
        time.sleep(0.1)


def below(node):
    """All visible descendants, in their order."""
    for position in range(node.get_child_count()):
        child = node.get_child_at_index(position)
        if child is None:
            continue
        yield child
        yield from below(child)


def has(node, state):
    return node.get_state_set().contains(state)


def label_of(node):
    for relation in node.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            return relation.get_target(0).get_name()
    return ""


def press(*keys):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)


def remembered(channel):
    """The text of the choice that is stored, as another program reads it."""
    out = subprocess.run(["ztk", "input", "get", str(channel), "--json"],
                         stdout=subprocess.PIPE, check=True, text=True).stdout
    return json.loads(out)["channels"][0]["text"]


class Window(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        # pylint: disable-next=consider-using-with
        cls.process = subprocess.Popen([WINDOW])
        cls.application = eventually("the window is in the tree", cls.find)
        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible",
                        "--name", "Mixer settings", "windowfocus", "--sync"],
                       check=True, stdout=subprocess.DEVNULL)
        eventually("the mixer has answered", lambda: any(
            "Mixer 1 answers" in node.get_name() for node in below(
                cls.application)))

    @classmethod
    def tearDownClass(cls):
        cls.process.terminate()
        cls.process.wait()

    @classmethod
    def find(cls):
        desktop = Atspi.get_desktop(0)
        for position in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(position)
            if application and application.get_name() == "ztk-window":
                return application if application.get_child_count() else None
        return None

    def boxes(self):
        return {label_of(node): node for node in below(self.application)
                if node.get_role() == Atspi.Role.COMBO_BOX
                and has(node, Atspi.StateType.SHOWING)}

    def focused(self):
        """The label or the name. Qt gives the current tab the state too."""
        for node in below(self.application):
            if has(node, Atspi.StateType.FOCUSED) and node.get_role() not in (
                    Atspi.Role.FRAME, Atspi.Role.LIST_ITEM,
                    Atspi.Role.PAGE_TAB):
                return label_of(node) or node.get_name()
        return ""

    def test_each_row_has_a_label_a_value_and_a_state(self):
        boxes = self.boxes()
        self.assertEqual(list(boxes), LABELS)
        self.assertEqual(boxes["USB 2 records:"].get_name(), "Post CH2 Fader")
        self.assertEqual(boxes["USB 2 records:"].get_description(),
                         "Remembered; not confirmed.")
        self.assertEqual(boxes["USB output level:"].get_name(), "-19 dB")

    def test_each_choice_is_read(self):
        box = self.boxes()["USB 2 records:"]
        items = [node.get_name() for node in below(box)
                 if node.get_role() == Atspi.Role.LIST_ITEM]
        self.assertEqual(items, [
            "CH2 Control Tone PHONO", "CH2 Control Tone LINE", "Post CH2 Fader",
            "Cross Fader A", "Cross Fader B", "MIC", "REC OUT"])

    def test_the_tab_key_visits_the_picture_and_each_row(self):
        press("alt+1")
        eventually("the first row has the focus",
                   lambda: self.focused() == LABELS[0])
        order = [self.focused()]
        while len(order) < 30:
            press("Tab")
            time.sleep(0.2)
            order.append(self.focused())
            if order[-1] == LABELS[0]:
                break
        self.assertEqual(order[:len(LABELS)], LABELS)
        self.assertRegex(order[len(LABELS)], "^Undo: ")
        self.assertEqual(order[len(LABELS) + 1], "Send all again")
        self.assertIn("Picture of the routing", order)
        self.assertEqual(order[-1], LABELS[0], "Tab comes round")

    def test_keys_choose_and_take_back(self):
        press("alt+3")
        eventually("the third row has the focus",
                   lambda: self.focused() == "USB 3 records:")
        before = remembered(3)
        press("Down")
        time.sleep(0.5)  # the list opens
        press("Down", "Return")
        eventually("the choice is stored", lambda: remembered(3) != before)
        self.assertEqual(remembered(3), "Cross Fader B")
        eventually("the row tells that the mixer has it", lambda:
                   self.boxes()["USB 3 records:"].get_description() ==
                   "Sent to the mixer, and remembered.")
        press("ctrl+z")
        eventually("it is taken back", lambda: remembered(3) == before)
        eventually("the row shows it", lambda:
                   self.boxes()["USB 3 records:"].get_name() == before)

    def test_another_program_is_read_too(self):
        subprocess.run(["ztk", "input", "set", "5", "mic"], check=True,
                       stdout=subprocess.DEVNULL)
        eventually("the row has the new value", lambda:
                   self.boxes()["USB 5 records:"].get_name() == "MIC")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    WINDOW = sys.argv.pop()
    if shutil.which("xdotool") is None:
        print("xdotool is not installed.")
        sys.exit(77)
    for choice in (("2", "3"), ("3", "4")):
        subprocess.run(["ztk", "input", "set", *choice], check=True,
                       stdout=subprocess.DEVNULL)
    unittest.main(verbosity=2)
