#!/usr/bin/env python3
"""The tables of the bench command, from measurements made up here; and what the documentation says of them."""
import json
import re
import sys
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(SOURCE / "tools" / "bench"))
import table  # noqa: E402
from figures import DISPATCH  # noqa: E402
from results import Results  # noqa: E402

ROWS = f"{DISPATCH}\t\t1\nbattery\tQProgressBar\t1\nbattery, a charge\tQProgressBar\t1\n10 of Switch, made\tQCheckBox\t10\n"
COUNTS = {
    f"{DISPATCH}|ours": 900, f"{DISPATCH}|baseline": 400,
    "battery|ours": 10500, "battery|counterpart": 10000, "battery|baseline": 8000,
    "battery, a charge|ours": 600, "battery, a charge|counterpart": 300,
    "10 of Switch, made|ours": 3000, "10 of Switch, made|counterpart": 1500,
    "an empty window|ours": 5000, "an empty window|counterpart": 4000,
}


class Tables(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name)

    def write(self, name, text):
        (self.folder / name).write_text(text, encoding="utf-8")

    def write_all(self):
        self.write("rows", ROWS)
        self.write("allocations", "battery|ours\t14\t0\nbattery|counterpart\t39\t0\n10 of Switch, made|ours\t70\t5000\n")
        for number, (cell, count) in enumerate(COUNTS.items()):
            self.write(f"callgrind.{number + 1}", f"desc: Trigger: Client Request: {cell}\nsummary: {count}\n")
        runs = [{"run_name": "battery|ours", "aggregate_name": "median", "real_time": 2500.0},
                {"run_name": "battery|ours", "aggregate_name": "mean", "real_time": 9000.0},
                {"run_name": "10 of Switch, made|ours/iterations:1", "aggregate_name": "median", "real_time": 40000.0}]
        self.write("times.json", json.dumps({"benchmarks": runs}))
        self.write("browsing", "".join(f"10000\t{way}\t{first}\t50\t20\t{first}\t4000\n" for way, first in
                                       [("bare", 10), ("ours", 30), ("bare", 90), ("ours", 11), ("bare", 20), ("ours", 24)]))
        self.write("processes", "an empty window|ours\t3400\t18600\nan empty window|counterpart\t3300\t18200\n")
        self.write("facts", "bytes, stripped\t400000\nrelocations\t1500\n")

    def report(self):
        return table.report(Results(self.folder)).splitlines()

    def test_a_work(self):
        self.write_all()
        # own: (10500 - 900 + 400) / 8000
        self.assertIn("| battery | QProgressBar | 10,500 | 10,000 | 8,000 | 1.05 | 1.25 | 2.5 |  |  | 14 | 39 |  |",
                      self.report())

    def test_dispatch_is_not_compared_with_itself(self):
        self.write_all()
        self.assertIn(f"| {DISPATCH} |  | 900 |  | 400 |  |  |  |  |  |  |  |  |", self.report())

    def test_many_widgets_are_told_by_the_piece(self):
        self.write_all()
        self.assertIn("| 10 of Switch, made | QCheckBox | 300 | 150 | 2.00 | 4.0 |  | 7 |  | 500 |  |", self.report())

    def test_a_process(self):
        self.write_all()
        self.assertIn("| an empty window | 5,000 | 4,000 | 1.25 | 3,400 | 3,300 | 18,600 | 18,200 |", self.report())

    def test_what_has_no_baseline_is_done(self):
        self.write_all()
        self.assertIn("| battery, a charge | QProgressBar | 600 | 300 | 2.00 |  |  |  |  |", self.report())

    def test_openings_are_medians(self):
        self.write_all()
        self.assertIn("| 10,000 | FileBrowserWidget | 24 | 50 | 20 | 24 | 4,000 |", self.report())

    def test_thresholds(self):
        self.write_all()
        report = self.report()
        self.assertIn("| own instructions by the baseline's | battery | 1.25 | 1.05 | no |", report)
        self.assertIn("| battery by a QProgressBar | battery | 1.05 | 1 | no |", report)
        self.assertIn("| 10,000 files by a bare model and view | processor time | 1.20 | 1.25 | yes |", report)
        self.assertIn("| bytes of the stripped library |  | 400,000 | 307,200 | no |", report)
        self.assertIn("| relocations |  | 1,500 | 1,500 | yes |", report)

    def test_a_part_of_the_measurements(self):
        self.write("rows", ROWS)
        self.assertEqual(len([line for line in self.report() if line.startswith("|--") or line.startswith("|-")]), 2)


class Documentation(unittest.TestCase):
    """docs/benchmarks.md owns up to every row in which the Qt counterpart wins."""

    def test_every_loss_is_explained(self):
        docs = SOURCE / "docs"
        measured = (docs / "figures" / "benchmarks.md").read_text(encoding="utf-8")
        words = (docs / "benchmarks.md").read_text(encoding="utf-8")
        losses = {row for row, quotient in self.quotients(measured) if quotient > 1.05}
        self.assertTrue(losses)
        named = {" ".join(name.split()) for name in re.findall(r"\*\*(.*?)\*\*", words, re.DOTALL)}
        self.assertEqual(losses - named, set())

    @staticmethod
    def quotients(text):
        """Of ours by the Qt counterpart's instructions, by row, or by class where each phase has a row."""
        column = None
        for line in text.splitlines():
            fields = [field.strip() for field in line.strip("|").split("|")]
            if "ours / counterpart" in fields:
                column = fields.index("ours / counterpart")
            elif column is not None and len(fields) > column and re.fullmatch(r"[\d.]+", fields[column]):
                yield re.sub(r"^\d+ of (.*), .*$", r"\1", fields[0]), float(fields[column])
            elif not line:
                column = None


if __name__ == "__main__":
    unittest.main()
