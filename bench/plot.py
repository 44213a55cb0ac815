#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws how the durations grow as SVG.

    plot.py FOLDER FILE

The left panel shows the growth with the number of devices, with one mixer. The right
panel shows the growth with the number of mixers, with 30 devices. Solid lines are the
library, dashed lines the floor. Dotted lines are the setter with libusb; they have
another scale, because their values are much higher.
"""

import sys

import results

COLOURS = {"count": "#4477aa", "query": "#228833", "apply": "#ccbb44",
           "set": "#ee6677"}
WIDTH, HEIGHT = 330, 220  # of the drawing in a panel
LEFT, TOP, GAP = 62, 48, 88
FONT = 'font-family="sans-serif" font-size="12"'


def text(x, y, words, anchor="middle", colour="#333"):
    return (f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" '
            f'fill="{colour}" {FONT}>{words}</text>')


def ceiling(value):
    """Returns the next larger round number."""
    scale = 1
    while scale * 10 < value:
        scale *= 10
    return next(scale * step for step in (1, 2, 2.5, 5, 10)
                if scale * step >= value)


class Panel:
    """One drawing. Its axes start at zero."""

    def __init__(self, x, y, series, title):
        self.x, self.y = x, y
        self.series = series
        self.most = max(number for number, _ in series)
        self.top = ceiling(max(times[f"set/{who}"] for _, times in series
                               for who in ("library", "floor")) / 1e6)
        # The sandbox does not support the requests of libusb.
        slow = [times["set/libusb"] for _, times in series
                if "set/libusb" in times]
        self.slow = ceiling(max(slow) / 1e6) if slow else None
        self.title = title

    def at(self, number, share):
        return (self.x + WIDTH * number / (self.most * 1.05),
                self.y + HEIGHT * (1 - share))

    def axes(self):
        for above, words in zip((28, 12), self.title):
            yield text(self.x + WIDTH / 2, self.y - above, words)
        for step in range(6):
            y = self.y + HEIGHT * (1 - step / 5)
            yield (f'<line x1="{self.x}" y1="{y}" x2="{self.x + WIDTH}" '
                   f'y2="{y}" stroke="#ddd"/>')
            yield text(self.x - 6, y + 4, f"{self.top * step / 5:g}", "end")
            if self.slow:
                yield text(self.x + WIDTH + 6, y + 4,
                           f"{self.slow * step / 5:g}", "start", "#888")
        for number, _ in self.series:
            x, y = self.at(number, 0)
            yield text(x, y + 16, str(number))

    def line(self, call, colour, dash, top):
        points = [self.at(number, times[call] / 1e6 / top)
                  for number, times in self.series]
        path = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
        yield (f'<polyline points="{path}" fill="none" stroke="{colour}" '
               f'stroke-width="2" stroke-dasharray="{dash}"/>')
        for x, y in points:
            yield f'<circle cx="{x:.1f}" cy="{y:.1f}" r="2.5" fill="{colour}"/>'

    def draw(self):
        yield from self.axes()
        if self.slow:
            yield from self.line("set/libusb", "#888", "2 3", self.slow)
        for name, colour in COLOURS.items():
            yield from self.line(f"{name}/floor", colour, "6 4", self.top)
            yield from self.line(f"{name}/library", colour, "none", self.top)


def legend(x, y):
    for name, colour in COLOURS.items():
        yield (f'<line x1="{x}" y1="{y}" x2="{x + 22}" y2="{y}" '
               f'stroke="{colour}" stroke-width="2"/>')
        yield text(x + 27, y + 4, name, "start")
        x += 75
    for dash, colour, words in (("6 4", "#333", "floor"),
                                ("2 3", "#888", "set through libusb "
                                 "(right scale)")):
        yield (f'<line x1="{x}" y1="{y}" x2="{x + 22}" y2="{y}" '
               f'stroke="{colour}" stroke-width="2" stroke-dasharray="{dash}"/>')
        yield text(x + 27, y + 4, words, "start")
        x += 75


def main(folder, target):
    found = results.Results(folder)
    lines, row = [], 0
    for place in results.PLACES:
        columns = ((found.by_devices(place), "devices on the bus, one mixer"),
                   (found.by_mixers(place), "mixers among 30 devices"))
        if any(len(series) < 2 for series, _ in columns):
            continue
        for column, (series, what) in enumerate(columns):
            lines += Panel(LEFT + column * (WIDTH + GAP + LEFT - 20),
                           TOP + row * (HEIGHT + GAP), series,
                           (f"ms a call by {what},", found.place(place))).draw()
        row += 1
    if not lines:
        sys.exit("plot.py: there is nothing to draw")
    width = LEFT + 2 * WIDTH + GAP + LEFT + 40
    height = TOP + row * (HEIGHT + GAP)
    lines += legend(LEFT, height - 25)
    with open(target, "w", encoding="utf-8") as file:
        file.write(
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" '
            f'height="{height}" viewBox="0 0 {width} {height}">\n'
            f'<rect width="{width}" height="{height}" fill="white"/>\n' +
            "\n".join(lines) + "\n</svg>\n")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
