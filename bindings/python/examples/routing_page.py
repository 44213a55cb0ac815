#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows on a web page which source the computer records on each USB channel.

Usage: routing_page.py [--port PORT]

The page is at http://127.0.0.1:8027/ and can only be opened from this machine.
It is updated when any program changes the routing. With port 0 a free port is used.
The first line of the output is the address of the page.
"""
from __future__ import annotations

import argparse
import html
import http.server
import json
import queue
import sys

import ztkfunc

PAGE = """<!doctype html>
<html lang="en"><head><meta charset="utf-8"><title>USB routing</title>
<style>
body { font: 1.5rem system-ui, sans-serif; margin: 2rem; }
td { padding: .3rem 1.5rem .3rem 0; }
</style></head><body><h1>What the computer records</h1>
<table>ROWS</table>
<script>
new EventSource("/changes").onmessage = event => {
  const change = JSON.parse(event.data);
  document.getElementById("usb" + change.channel).textContent = change.text;
};
</script></body></html>
"""


def page() -> str:
    rows = "".join(
        f'<tr><td>USB {channel}</td><td id="usb{channel}">'
        f"{html.escape(choice or 'not a choice')}</td></tr>"
        for channel, choice in ztkfunc.Mixer().input.items()
    )
    return PAGE.replace("ROWS", rows)


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self) -> None:
        if self.headers.get("Host", "").rpartition(":")[0] not in (
            "127.0.0.1",
            "localhost",
        ):
            # The page of another site could use a name of its own for the address
            # 127.0.0.1 and read this page.
            self.send_error(403)
        elif self.path == "/":
            self.send_page()
        elif self.path == "/changes":
            self.send_changes()
        else:
            self.send_error(404)

    def send_page(self) -> None:
        body = page().encode("utf-8")
        self.send_response(200)
        self.send_header("Content-Type", "text/html; charset=utf-8")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def send_changes(self) -> None:
        changes: queue.Queue[ztkfunc.Change] = queue.Queue()
        # First the subscription, then the routing: so the page misses no change.
        with ztkfunc.subscribe(changes.put):
            try:
                self.send_response(200)
                self.send_header("Content-Type", "text/event-stream")
                self.send_header("Cache-Control", "no-store")
                self.end_headers()
                for channel, choice in ztkfunc.Mixer().input.items():
                    self.send_event(channel, choice)
                while True:
                    self.send_next(changes)
            except OSError:  # the browser has closed the connection
                pass

    def send_event(self, channel: int | None, choice: str | None) -> None:
        data = json.dumps({"channel": channel, "text": choice or "not a choice"})
        self.wfile.write(f"data: {data}\n\n".encode("utf-8"))

    def send_next(self, changes: queue.Queue[ztkfunc.Change]) -> None:
        try:
            change = changes.get(timeout=15)
        except queue.Empty:
            # A comment keeps the connection open.
            self.wfile.write(b": keep-alive\n\n")
            return
        if change.setting == "input":
            self.send_event(change.channel, change.text)

    def log_message(self, format: str, *_arguments: object) -> None:
        """Requests are not logged."""


def main() -> int:
    parser = argparse.ArgumentParser(description=(__doc__ or "").split("\n")[0])
    parser.add_argument("--port", type=int, default=8027)
    options = parser.parse_args()
    try:
        server = http.server.ThreadingHTTPServer(("127.0.0.1", options.port), Handler)
    except (OSError, OverflowError) as error:
        print(f"routing_page.py: port {options.port}: {error}", file=sys.stderr)
        return 1
    server.daemon_threads = True
    print(f"http://127.0.0.1:{server.server_port}/", flush=True)
    try:
        server.serve_forever()
    except KeyboardInterrupt:
        pass
    return 0


if __name__ == "__main__":
    sys.exit(main())
