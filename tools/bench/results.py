"""Reads what ./dev bench measured: one file for each kind of measurement, absent when it was left out."""

import json
import re
from pathlib import Path
from statistics import median


class Results:
    """Figures by 'row|column', of whole runs; the columns are ours, counterpart and baseline."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.rows = [(name, counterpart, int(parts)) for name, counterpart, parts in self.lines("rows")]
        self.instructions = dict(self._counts())
        self.nanoseconds = dict(self._times())
        allocations = self.lines("allocations")
        self.blocks = {cell: int(blocks) for cell, blocks, _ in allocations}
        self.bytes = {cell: int(size) for cell, _, size in allocations}

    def lines(self, name):
        """The fields of each line of a measurement's file."""
        file = self.folder / name
        if not file.exists():
            return []
        return [line.split("\t") for line in file.read_text(encoding="utf-8").splitlines()]

    def browsing(self):
        """Medians by number of files and way."""
        runs = {}
        for count, way, *figures in self.lines("browsing"):
            runs.setdefault((int(count), way), []).append([int(figure) for figure in figures])
        return {key: [median(column) for column in zip(*figures)] for key, figures in runs.items()}

    def processes(self):
        """Kilobytes of memory that each process has written, and that it can share."""
        return {cell: [f"{int(size):,}" for size in sizes] for cell, *sizes in self.lines("processes")}

    def facts(self):
        """What is known of the library's file, and of the run."""
        return dict(self.lines("facts"))

    def _counts(self):
        for file in self.folder.glob("callgrind*.[0-9]*"):
            text = file.read_text(encoding="utf-8")
            cell = re.search(r"^desc: Trigger: Client Request: (.*)", text, re.MULTILINE)
            total = re.search(r"^(?:summary|totals): (\d+)", text, re.MULTILINE)
            if cell and total:
                yield cell.group(1), int(total.group(1))

    def _times(self):
        for file in self.folder.glob("times*.json"):
            for run in json.loads(file.read_text(encoding="utf-8"))["benchmarks"]:
                if run.get("aggregate_name") == "median":
                    yield re.sub("/iterations:1$", "", run["run_name"]), run["real_time"]
