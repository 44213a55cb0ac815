#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The window translates sentences that the model of ztk makes, by their English words.
This compares both: each sentence of the window must still be made by the model, and
each finding of the doctor must be translated, or be listed here as one that is not.

Usage: model_sentences_test.py SOURCE_FOLDER
"""

import pathlib
import re
import sys

TRANSLATED = {
    "forbidden-in-sandbox", "gone", "history-damaged", "history-folder",
    "history-unreadable", "no-bus", "no-loop", "no-mixer", "no-node", "no-seat",
    "no-usb", "not-opened", "refusing", "rule-disabled", "rule-missing",
    "rule-not-applied", "settings-kept", "settings-no-home",
    "settings-not-writable", "settings-shared", "settings-unreadable", "silent",
    "texts-broken", "texts-missing"}
# It names a container or a service.
ENGLISH = {"forbidden"}
# The row of the channel tells it.
NOT_SHOWN = {"channel-silent"}

LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')


def literals(text):
    """The string literals of a source; adjacent ones are joined."""
    found = []
    end = None
    for match in LITERAL.finditer(text):
        if end is not None and text[end:match.start()].strip() == "":
            found[-1] += match[1]
        else:
            found.append(match[1])
        end = match.end()
    return found


def is_made_of(sentence, words):
    """Whether the sentence is a sequence of whole literals; %1 stands for others."""
    ends = {0}
    for position in range(len(sentence)):
        if position not in ends:
            continue
        for word in [*words, "%1"]:
            if sentence.startswith(word, position):
                ends.add(position + len(word))
    return len(sentence) in ends


def main(top):
    window = (top / "tools/window/engine/sentences.cpp").read_text("utf-8")
    sentences = re.findall(r'QT_TRANSLATE_NOOP\("Model", "([^"]*)"\)', window)
    files = [file for folder in ("model", "doctor", "system")
             for file in sorted((top / "tools/ztk" / folder).rglob("*.cpp"))
             if "macos" not in file.parts]
    sources = [file.read_text("utf-8") for file in files]
    # The parts of one sentence are in one file. Short words could be a part of
    # any sentence; punctuation is one of several.
    words = [{word for word in literals(source)
              if len(word) > 3 or re.fullmatch(r"[,:;)] ?", word)}
             for source in sources]
    problems = [f"no source of the model makes this sentence: {sentence!r}"
                for sentence in sentences
                if not any(is_made_of(sentence, of_file) for of_file in words)]
    ids = set()
    for source in sources:
        for line in re.findall(r"\.id\s*=\s*([^,;]*)", source):
            ids.update(LITERAL.findall(line))
    problems += [f"decide whether the window translates the finding {one!r}"
                 for one in sorted(ids - TRANSLATED - ENGLISH - NOT_SHOWN)]
    problems += [f"there is no finding {one!r} any more"
                 for one in sorted((TRANSLATED | ENGLISH | NOT_SHOWN) - ids)]
    if not sentences:
        problems.append("the window has no sentences of the model")
    if problems:
        sys.exit("\n".join(problems))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]))
