#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs a command with a message bus that accepts connections and does not answer.

Usage: on_mute_bus.py COMMAND...
"""

import os
import pathlib
import socket
import subprocess
import sys
import tempfile


def main(command):
    with tempfile.TemporaryDirectory() as folder, \
            socket.socket(socket.AF_UNIX) as bus:
        path = str(pathlib.Path(folder, "bus"))
        bus.bind(path)
        bus.listen(100)
        environment = dict(os.environ,
                           DBUS_SESSION_BUS_ADDRESS=f"unix:path={path}")
        return subprocess.run(command, env=environment, check=False).returncode


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
