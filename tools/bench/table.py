#!/usr/bin/env python3
"""Prints the tables of ./dev bench from what it measured.

usage: table.py RESULTS
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
from thresholds import thresholds  # noqa: E402
from figures import LOADING, TOGGLE, own, ratio  # noqa: E402
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


def is_painting(results, row):
    """Whether a row is painting alone, which has a baseline, and not something that a user does."""
    return f"{row}|baseline" in results.instructions


def paintings(results):
    for row, counterpart, parts in results.rows:
        if is_painting(results, row):
            counts = results.instructions
            yield [row, counterpart, *whole(counts, row), ratio(counts, row, "counterpart"), own(counts, row),
                   *microseconds(results, row), *whole(results.blocks, row)]


def works(results):
    for row, counterpart, parts in results.rows:
        if parts == 1 and not is_painting(results, row):
            yield compared(results, row, counterpart)


def lives(results):
    for row, counterpart, parts in results.rows:
        if parts > 1:
            yield [*compared(results, row, counterpart, parts), *whole(results.bytes, row, parts, COLUMNS[:2])]


def processes(results):
    memory = results.processes()
    for row in dict.fromkeys(cell.rpartition("|")[0] for cell in memory):
        cells = [f"{row}|{column}" for column in COLUMNS[:2]]
        yield [row, *whole(results.instructions, row, 1, COLUMNS[:2]), ratio(results.instructions, row, "counterpart"),
               *(memory[cell][kind] for kind in (0, 1) for cell in cells)]
    if memory and TOGGLE in results.instructions:
        row = TOGGLE.rpartition("|")[0]
        yield [f"then {row}", *whole(results.instructions, row, 1, COLUMNS[:2]),
               ratio(results.instructions, row, "counterpart"), "", "", "", ""]


def compared(results, row, counterpart, parts=1):
    two = COLUMNS[:2]
    counts = results.instructions
    return [row, counterpart, *whole(counts, row, parts, two), ratio(counts, row, "counterpart"),
            *microseconds(results, row, parts, two), *whole(results.blocks, row, parts, two)]


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
    compared_head = ["Qt counterpart", ">Instructions: ours", ">counterpart", ">ours / counterpart", ">µs: ours",
                     ">counterpart", ">heap blocks: ours", ">counterpart"]
    return "\n".join(filter(None, [
        table(["Figure", "Worst case", ">Measured", ">At most", "Reached"], thresholds(results)),
        table(["Done", *compared_head], works(results)),
        table(["Painting alone", "Qt counterpart", ">Instructions: ours", ">counterpart", ">baseline",
               ">ours / counterpart", ">own / baseline", ">µs: ours", ">counterpart", ">baseline", ">heap blocks: ours",
               ">counterpart", ">baseline"], paintings(results)),
        table(["Of each", *compared_head, ">bytes kept: ours", ">counterpart"], lives(results)),
        table(["Process, up to its first frame", ">Instructions: ours", ">counterparts", ">ours / counterpart",
               ">private memory, kB: ours", ">counterparts", ">shared memory, kB: ours", ">counterparts"],
              processes(results)),
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
