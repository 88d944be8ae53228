#!/usr/bin/env python3
"""Makes the table of ./dev bench from what callgrind counted and Google Benchmark timed.

"Own" are the instructions less what Qt spends to dispatch a paint event to one empty widget.

usage: table.py ROWS TIMINGS.json ALLOCATIONS CALLGRIND_FILE...
"""

import json
import re
import sys

COLUMNS = ("ours", "stock", "floor")
DISPATCH = "paint an empty widget (Qt's dispatch)"


def counted_instructions(files):
    """Instructions by 'row|column', from the dumps of one callgrind run."""
    counts = {}
    for name in files:
        trigger = total = None
        with open(name, encoding="utf-8") as dump:
            for line in dump:
                if match := re.match(r"desc: Trigger: Client Request: (.*)", line):
                    trigger = match.group(1)
                elif match := re.match(r"(?:summary|totals): (\d+)", line):
                    total = int(match.group(1))
        if trigger is not None and total is not None:
            counts[trigger] = total
    return counts


def median_times(name):
    """Median wall time in nanoseconds by 'row|column'."""
    with open(name, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    return {
        run["run_name"]: run["real_time"]
        for run in runs
        if run.get("aggregate_name") == "median"
    }


def counted_allocations(name):
    """Blocks taken from the heap by 'row|column'."""
    with open(name, encoding="utf-8") as lines:
        return {cell: int(count) for cell, count in (line.rstrip("\n").split("\t") for line in lines)}


def ratio(numerator, denominator):
    return f"{numerator / denominator:.2f}" if numerator and denominator else ""


def cells(row, counts, times, blocks):
    count = {column: counts.get(f"{row}|{column}") for column in COLUMNS}
    time = {column: times.get(f"{row}|{column}") for column in COLUMNS}
    own = count["ours"] and count["ours"] - counts[f"{DISPATCH}|ours"]
    yield from (f"{count[column]:,}" if count[column] else "" for column in COLUMNS)
    yield ratio(count["ours"], count["stock"])
    yield ratio(own, count["floor"])
    yield from (f"{time[column] / 1000:.1f}" if time[column] else "" for column in COLUMNS)
    yield from (str(blocks.get(f"{row}|{column}", "")) for column in COLUMNS)


def main(rows_file, times_file, allocations_file, *callgrind_files):
    counts = counted_instructions(callgrind_files)
    times = median_times(times_file)
    blocks = counted_allocations(allocations_file)
    print("| Work | Stock widget | Instructions: ours | stock | floor | ours / stock | own / floor "
          "| µs: ours | stock | floor | heap blocks: ours | stock | floor |")
    print("|---|---|" + "--:|" * 11)
    with open(rows_file, encoding="utf-8") as rows:
        for line in rows:
            row, stock = line.rstrip("\n").split("\t")
            print(f"| {row} | {stock} | " + " | ".join(cells(row, counts, times, blocks)) + " |")


if __name__ == "__main__":
    main(*sys.argv[1:])
