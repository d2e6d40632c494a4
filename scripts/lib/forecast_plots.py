# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Draws how forecasts compared with the truth while a roll was used up: docs/forecast-*.svg.

Usage: forecast_plots.py BENCH_FORECAST FOLDER
"""
import csv
import datetime
import pathlib
import subprocess
import sys

# The file, the plant, the roll of its first printer, and the title.
PLOTS = [
    ("forecast-two-shifts.svg", "two shifts", 30, "Two shifts: one roll"),
    ("forecast-batch-jobs.svg", "batch jobs", 30, "Batch jobs: one roll"),
]
SEED = "1"
WIDTH, HEIGHT = 760, 380
LEFT, RIGHT, TOP, BOTTOM = 60, 20, 44, 52
PAPER, INK, GRID = "#ffffff", "#1f2328", "#d8dee4"
TRUTH, MEDIAN, BAND = "#1f2328", "#0969da", "#b6d7ff"


def step(length):
    """The distance of grid lines that gives about six of them, in hours."""
    return next((hours for hours in (1, 2, 6, 12, 24, 48, 96, 168) if length / hours <= 8), 336)


def plot(rows, title):
    """Returns the SVG text for the rows of the benchmark."""
    times = [datetime.datetime.fromisoformat(row["time"]).replace(tzinfo=None) for row in rows]
    begin = times[0]
    hours = [(time - begin).total_seconds() / 3600 for time in times]
    truth, low, median, high = ([float(row[name]) for row in rows] for name in
                                ("truth_hours", "p10_hours", "p50_hours", "p90_hours"))
    widest, tallest = max(hours), max(truth + high)

    def across(value):
        return LEFT + value / widest * (WIDTH - LEFT - RIGHT)

    def up(value):
        return HEIGHT - BOTTOM - value / tallest * (HEIGHT - TOP - BOTTOM)

    def points(values, order=1):
        pairs = list(zip(hours, values))[::order]
        return " ".join(f"{across(x):.1f},{up(y):.1f}" for x, y in pairs)

    shapes = []
    # A line for each midnight, or for every few of them.
    between = max(1, round(step(widest) / 24))
    midnight = begin.replace(hour=0, minute=0, second=0)
    for day in range(1, int(widest / 24) + 2):
        place = (midnight + datetime.timedelta(days=day) - begin).total_seconds() / 3600
        if day % between or place > widest:
            continue
        name = (midnight + datetime.timedelta(days=day)).strftime("%a")
        shapes.append(f'<line x1="{across(place):.1f}" y1="{TOP}" x2="{across(place):.1f}" '
                      f'y2="{HEIGHT - BOTTOM}" stroke="{GRID}"/>')
        shapes.append(f'<text x="{across(place):.1f}" y="{HEIGHT - BOTTOM + 18}" '
                      f'text-anchor="middle">{name} 0:00</text>')
    value = 0
    while value <= tallest:
        shapes.append(f'<line x1="{LEFT}" y1="{up(value):.1f}" x2="{WIDTH - RIGHT}" '
                      f'y2="{up(value):.1f}" stroke="{GRID}"/>')
        shapes.append(f'<text x="{LEFT - 8}" y="{up(value) + 4:.1f}" text-anchor="end">{value}</text>')
        value += step(tallest)
    shapes.append(f'<polygon points="{points(high)} {points(low, -1)}" fill="{BAND}" opacity="0.8"/>')
    shapes.append(f'<polyline points="{points(median)}" fill="none" stroke="{MEDIAN}" stroke-width="2"/>')
    shapes.append(f'<polyline points="{points(truth)}" fill="none" stroke="{TRUTH}" stroke-width="2" '
                  f'stroke-dasharray="6 4"/>')
    shapes.append(f'<text x="{LEFT}" y="26" font-size="16">{title}</text>')
    place = WIDTH - RIGHT - 330
    for name, mark in (("truth", f'stroke="{TRUTH}" stroke-width="2" stroke-dasharray="6 4"'),
                       ("P50", f'stroke="{MEDIAN}" stroke-width="2"'),
                       ("P10 to P90", f'stroke="{BAND}" stroke-width="10"')):
        shapes.append(f'<line x1="{place}" y1="22" x2="{place + 30}" y2="22" {mark}/>')
        shapes.append(f'<text x="{place + 38}" y="26">{name}</text>')
        place += 110
    shapes.append(f'<text x="{LEFT - 44}" y="{TOP - 4}">hours left</text>')
    body = "\n".join(shapes)
    return f"""<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}">
<!-- SPDX-License-Identifier: MIT -->
<!-- Copyright The VxPrinterStatus authors -->
<rect width="100%" height="100%" fill="{PAPER}"/>
<g font-family="DejaVu Sans, Verdana, sans-serif" font-size="13" fill="{INK}">
{body}
</g>
</svg>
"""


def main():
    if len(sys.argv) != 3:
        sys.exit(f"forecast_plots: expected BENCH_FORECAST FOLDER, found {len(sys.argv) - 1} arguments")
    for name, plant, roll, title in PLOTS:
        output = subprocess.run([sys.argv[1], "--plot", plant, "--roll", str(roll), "--seed", SEED],
                                check=True, capture_output=True, text=True).stdout
        rows = list(csv.DictReader(output.splitlines()))
        if not rows:
            sys.exit(f"forecast_plots: {sys.argv[1]} printed no forecast of \"{plant}\"")
        (pathlib.Path(sys.argv[2]) / name).write_text(plot(rows, title))


if __name__ == "__main__":
    main()
