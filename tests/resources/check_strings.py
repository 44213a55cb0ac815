#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the bundle's localised texts for mistakes that editing may cause.

Prints one line per fault and exits with 1 if there is any.
"""

import argparse
import pathlib
import plistlib
import re
import sys
import unicodedata

LANGUAGES = ["English", "Japanese", "French", "German", "Italian", "Dutch",
             "Spanish", "ru", "pt", "zh_CN", "zh_TW", "ko"]
KEYS = ["WARNING", "WARNING1", "WARNING2", "WARNING3"]
FULL_WIDTH_STOP = ["Japanese", "zh_CN", "zh_TW"]

# The letters that a text of the language must contain.
KANA = "[\u3041-\u3096\u30a1-\u30fa]"
HAN = "[\u4e00-\u9fff]"
HANGUL = "[\uac00-\ud7a3]"
CYRILLIC = "[\u0401\u0410-\u044f\u0451]"
REQUIRED = {"Japanese": KANA, "ru": CYRILLIC, "zh_CN": HAN, "zh_TW": HAN,
            "ko": HANGUL}
# Letters that a text of the language must not contain. Latin letters are allowed in
# every language, for example in "USB".
FOREIGN = {"Japanese": HANGUL + "|" + CYRILLIC,
           "ru": "|".join([KANA, HAN, HANGUL]),
           "zh_CN": "|".join([KANA, HANGUL, CYRILLIC]),
           "zh_TW": "|".join([KANA, HANGUL, CYRILLIC]),
           "ko": "|".join([KANA, HAN, CYRILLIC])}
FOREIGN_TO_LATIN = "|".join([KANA, HAN, HANGUL, CYRILLIC])

# Characters of simplified Chinese, and the same characters in traditional Chinese.
SIMPLIFIED = "设输选择应将换对应这个连端声单电脑频储传经启开关说请检查认当并后时间为发"
TRADITIONAL = "設輸選擇應將換對應這個連端聲單電腦頻儲傳經啟開關說請檢查認當並後時間為發"
ONLY_SIMPLIFIED = set(SIMPLIFIED) - set(TRADITIONAL)
ONLY_TRADITIONAL = set(TRADITIONAL) - set(SIMPLIFIED)

# Texts in UTF-8 that a program has read as Latin-1 or Windows-1252.
MOJIBAKE = re.compile(
    "[\u00c3\u00c2\u00d0\u00d1][\u0080-\u00bf]|\u00c3|\u00e2\u20ac|\ufffd")


def check_text(language, text):
    """Yields the faults of one text."""
    if not isinstance(text, str) or not text.strip():
        yield "is empty or not a text"
        return
    if text != text.strip():
        yield "begins or ends with white space"
    if "  " in text:
        yield "contains two spaces in a row"
    if unicodedata.normalize("NFC", text) != text:
        yield "is not NFC-normalised"
    if any(unicodedata.category(c) in ("Cc", "Cf", "Co", "Cn") for c in text):
        yield "contains a control, invisible or unassigned character"
    stop = "。" if language in FULL_WIDTH_STOP else "."
    if not text.endswith(stop):
        yield f"does not end with {stop}"
    if MOJIBAKE.search(text):
        yield "looks like UTF-8 decoded as Latin-1"
    if re.search("['\"]", text):
        yield "contains a typewriter quote or apostrophe"
    required = REQUIRED.get(language, "[A-Za-z]")
    if not re.search(required, text):
        yield "contains no letter of its script"
    foreign = re.search(FOREIGN.get(language, FOREIGN_TO_LATIN), text)
    if foreign:
        yield f"contains a letter of another script: {foreign.group()}"
    if language in FULL_WIDTH_STOP and re.search("[,.;:!?]", text):
        yield "contains half-width punctuation"
    other_script = {"zh_CN": ONLY_TRADITIONAL, "zh_TW": ONLY_SIMPLIFIED}
    for character in sorted(set(text) & other_script.get(language, set())):
        yield f"contains {character}, of the other Chinese script"


def check_language(folder, language):
    """Yields the faults of one string table; returns the table or None."""
    path = folder / f"{language}.lproj" / "Localizable.strings"
    try:
        raw = path.read_bytes()
        raw.decode("utf-8")
        table = plistlib.loads(raw, fmt=plistlib.FMT_XML)
    except Exception as error:  # plistlib lets its parser's errors through
        yield f"{path}: cannot be read: {error}"
        return None
    if not isinstance(table, dict):
        yield f"{path}: the root is not a dictionary"
        return None
    if raw.startswith(b"\xef\xbb\xbf"):
        yield f"{path}: starts with a byte order mark"
    if sorted(table) != KEYS:
        yield f"{path}: has the keys {sorted(table)}, not {KEYS}"
    if raw.count(b"<key>") != len(table):
        yield f"{path}: has a key twice"
    for key, text in table.items():
        for fault in check_text(language, text):
            yield f"{path}: {key} {fault}"
    texts = [str(text) for text in table.values()]
    if len(set(texts)) != len(texts):
        yield f"{path}: two keys have the same text"
    return table


def check_bundle(folder):
    """Yields the faults of all languages of one bundle."""
    found = {entry.name for entry in folder.glob("*.lproj")}
    wanted = {f"{language}.lproj" for language in LANGUAGES}
    for name in sorted(wanted - found):
        yield f"{folder}: {name} is missing"
    for name in sorted(found - wanted):
        yield f"{folder}: {name} is not the folder of a language"
    tables = {}
    for language in LANGUAGES:
        if f"{language}.lproj" in found:
            tables[language] = (yield from check_language(folder, language))
    owners = {}
    for language, table in tables.items():
        for key, text in (table or {}).items():
            first = owners.setdefault((key, str(text)), language)
            if first != language:
                yield f"{folder}: {key} is the same in {first} and {language}"


def check_info(path, version):
    """Yields the faults of the bundle's Info.plist."""
    wanted = {"CFBundleDevelopmentRegion": "English",
              "CFBundleExecutable": "VRM-D6Setup",
              "CFBundleIdentifier": "com.tarvix.VRM-D6Setup",
              "CFBundleInfoDictionaryVersion": "6.0",
              "CFBundleName": "VRM-D6Setup",
              "CFBundlePackageType": "FMWK",
              "CFBundleShortVersionString": version,
              "CFBundleVersion": version}
    try:
        info = plistlib.loads(path.read_bytes())
    except Exception as error:  # plistlib lets its parser's errors through
        yield f"{path}: cannot be read: {error}"
        return
    for key in sorted(set(wanted) | set(info)):
        if info.get(key) != wanted.get(key):
            yield (f"{path}: {key} is {info.get(key)!r}, "
                   f"not {wanted.get(key)!r}")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--info-plist", type=pathlib.Path)
    parser.add_argument("--version", help="version that Info.plist must have")
    parser.add_argument("folders", nargs="+", type=pathlib.Path,
                        metavar="FOLDER", help="contains the .lproj folders")
    arguments = parser.parse_args()
    faults = []
    for folder in arguments.folders:
        faults += check_bundle(folder)
    if arguments.info_plist:
        faults += check_info(arguments.info_plist, arguments.version)
    for fault in faults:
        print(fault)
    texts = len(arguments.folders) * len(LANGUAGES) * len(KEYS)
    print(f"{texts} texts expected, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
