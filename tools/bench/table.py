#!/usr/bin/env python3
"""Prints the tables of ./dev bench from what it measured.

usage: table.py RESULTS
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
from thresholds import thresholds  # noqa: E402
from figures import LOADING, own, ratio  # noqa: E402
from results import Results  # noqa: E402

COLUMNS = ("ours", "counterpart", "baseline")
WAYS = {"bare": "a bare model and list view", "ours": "FileBrowserWidget", "dialog": "QFileDialog"}


def table(head, rows):
    """Markdown, or nothing without rows; columns of figures are those whose head has a leading '>'."""
    rows = list(rows)
    if not rows:
        return ""
    names = " | ".join(name.lstrip(">") for name in head)
    rule = "|".join("--:" if name.startswith(">") else "---" for name in head)
    return "\n".join([f"| {names} |", f"|{rule}|", *(f"| {' | '.join(row)} |" for row in rows), ""])


def whole(figures, row, parts=1, columns=COLUMNS):
    for column in columns:
        figure = figures.get(f"{row}|{column}")
        yield "" if figure is None else f"{figure / parts:,.0f}"


def microseconds(results, row, parts=1, columns=COLUMNS):
    for column in columns:
        time = results.nanoseconds.get(f"{row}|{column}")
        yield "" if time is None else f"{time / parts / 1000:.1f}"


def works(results):
    for row, counterpart, parts in results.rows:
        if parts == 1:
            counts = results.instructions
            yield [row, counterpart, *whole(counts, row), ratio(counts, row, "counterpart"), own(counts, row),
                   *microseconds(results, row), *whole(results.blocks, row)]


def lives(results):
    two = COLUMNS[:2]
    for row, counterpart, parts in results.rows:
        if parts > 1:
            counts = results.instructions
            yield [row, counterpart, *whole(counts, row, parts, two), ratio(counts, row, "counterpart"),
                   *microseconds(results, row, parts, two), *whole(results.blocks, row, parts, two),
                   *whole(results.bytes, row, parts, two)]


def browsing(results):
    for (count, way), figures in results.browsing().items():
        yield [f"{count:,}", WAYS[way], *(f"{figure:,.0f}" for figure in figures)]


def library(results):
    for name, figure in results.facts().items():
        yield [name, figure]
    if LOADING in results.instructions:
        yield [LOADING, f"{results.instructions[LOADING]:,} instructions"]
    if LOADING in results.nanoseconds:
        yield [LOADING, f"{results.nanoseconds[LOADING] / 1000:.1f} µs"]


def report(results):
    ours = [">ours", ">counterpart"]
    return "\n".join(filter(None, [
        table(["Figure", "Worst case", ">Measured", ">At most", "Reached"], thresholds(results)),
        table(["Work", "Qt counterpart", ">Instructions: ours", ">counterpart", ">baseline", ">ours / counterpart",
               ">own / baseline", ">µs: ours", ">counterpart", ">baseline", ">heap blocks: ours", ">counterpart", ">baseline"],
              works(results)),
        table(["Of each", "Qt counterpart", ">Instructions: ours", ">counterpart", ">ours / counterpart", ">µs: ours",
               ">counterpart", ">heap blocks: ours", ">counterpart", ">bytes kept: ours", ">counterpart"], lives(results)),
        table([">Files", "Opened with", ">first screenful, ms", ">all shown, ms", ">longest block, ms",
               ">processor, ms", ">memory, kB"], browsing(results)),
        table(["Change", "Qt counterpart", ">Pixels of the widget", ">painted: ours", ">counterpart"],
              results.lines("damage")),
        table([">Milliseconds idle", ">wake-ups with every widget", ">with an empty window"],
              results.lines("idle")),
        table(["Library", ">"], library(results)),
    ]))


if __name__ == "__main__":
    print(report(Results(sys.argv[1])))
