#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes every change of a setting to a CSV file, until Ctrl-C.

Usage: change_log.py [FILE]

The rows are appended to FILE, or written to standard output. Each row has the
time (UTC), the setting, the channel, the number of the choice and its text.
"""
from __future__ import annotations

import asyncio
import csv
import datetime
import os
import sys
from typing import TextIO

import ztkfunc


async def log(file: TextIO, with_heading: bool) -> None:
    rows = csv.writer(file)
    async with ztkfunc.changes() as changes:
        # The heading shows that from now on no change is missed.
        if with_heading:
            rows.writerow(["time", "setting", "channel", "number", "text"])
            file.flush()
        async for change in changes:
            now = datetime.datetime.now(datetime.timezone.utc)
            rows.writerow(
                [
                    now.isoformat(timespec="milliseconds"),
                    change.setting,
                    "" if change.channel is None else change.channel,
                    change.number,
                    change.text or "",
                ]
            )
            file.flush()


def main() -> int:
    if len(sys.argv) > 2 or sys.argv[1:] in (["-h"], ["--help"]):
        print((__doc__ or "").strip(), file=sys.stderr)
        return 2
    try:
        if len(sys.argv) == 2:
            is_new = not os.path.exists(sys.argv[1])
            with open(sys.argv[1], "a", encoding="utf-8", newline="") as file:
                asyncio.run(log(file, is_new))
        else:
            asyncio.run(log(sys.stdout, True))
    except OSError as error:
        print(f"change_log.py: {error}", file=sys.stderr)
        return 1
    except KeyboardInterrupt:
        pass
    return 0


if __name__ == "__main__":
    sys.exit(main())
