#!/usr/bin/env python3
"""Prints the tables of ./dev bench from what it measured.

usage: table.py RESULTS
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
from aims import aims  # noqa: E402
from figures import LOADING, own, ratio  # noqa: E402
from results import Results  # noqa: E402

COLUMNS = ("ours", "stock", "floor")
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
    for row, stock, parts in results.rows:
        if parts == 1:
            counts = results.instructions
            yield [row, stock, *whole(counts, row), ratio(counts, row, "stock"), own(counts, row),
                   *microseconds(results, row), *whole(results.blocks, row)]


def lives(results):
    two = COLUMNS[:2]
    for row, stock, parts in results.rows:
        if parts > 1:
            counts = results.instructions
            yield [row, stock, *whole(counts, row, parts, two), ratio(counts, row, "stock"),
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
    ours = [">ours", ">stock"]
    return "\n".join(filter(None, [
        table(["Aim", "Worst case", ">Measured", ">At most", "Reached"], aims(results)),
        table(["Work", "Stock widget", ">Instructions: ours", ">stock", ">floor", ">ours / stock",
               ">own / floor", ">µs: ours", ">stock", ">floor", ">heap blocks: ours", ">stock", ">floor"],
              works(results)),
        table(["Of each", "Stock widget", ">Instructions: ours", ">stock", ">ours / stock", ">µs: ours",
               ">stock", ">heap blocks: ours", ">stock", ">bytes kept: ours", ">stock"], lives(results)),
        table([">Files", "Opened with", ">first screenful, ms", ">all shown, ms", ">longest block, ms",
               ">processor, ms", ">memory, kB"], browsing(results)),
        table(["Change", "Stock widget", ">Pixels of the widget", ">painted: ours", ">stock"],
              results.lines("damage")),
        table([">Milliseconds at rest", ">wake-ups with every widget", ">with an empty window"],
              results.lines("rest")),
        table(["Library", ">"], library(results)),
    ]))


if __name__ == "__main__":
    print(report(Results(sys.argv[1])))
