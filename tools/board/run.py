#!/usr/bin/env python3
"""Runs the touch suite, the measurements or a prompt on emulated boards.

usage: run.py ARCH KERNEL IMAGE OUTPUT suite [--theme TEXT] [--accept] [--photos DIR]
       run.py ARCH KERNEL IMAGE OUTPUT measure
       run.py ARCH KERNEL IMAGE OUTPUT prompt [--photos DIR]
"""

import argparse
import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
from board import Board  # noqa: E402
from measure import measure  # noqa: E402
from prompt import prompt  # noqa: E402
from suite import Suite, divide, themes  # noqa: E402
from user import References  # noqa: E402

TESTS = Path(__file__).resolve().parents[2] / "tests" / "board"


def run_suite(arguments, make_board):
    found = arguments.photos or arguments.output / "photos"
    references = References(TESTS / "reference", arguments.arch, found, arguments.accept)
    suite = Suite(make_board, references)
    works = divide(themes(TESTS / "suite", arguments.theme))
    if not works:
        sys.exit(f"dev: board: no theme matches '{arguments.theme}'")
    suite.run(works)
    for failure in suite.failures:
        print(f"failed: {failure}")
    if suite.failures:
        print(f"what the screens showed: {found}")
    print(f"{suite.passed} passed, {suite.failed} failed")
    return suite.failed == 0


def parse():
    parser = argparse.ArgumentParser()
    parser.add_argument("arch", choices=("arm64", "armhf"))
    for name in ("kernel", "image", "output"):
        parser.add_argument(name, type=Path)
    parser.add_argument("what", choices=("suite", "measure", "prompt"))
    parser.add_argument("--theme", default="")
    parser.add_argument("--accept", action="store_true")
    parser.add_argument("--photos", type=Path)
    return parser.parse_args()


def main():
    arguments = parse()

    def make_board(size, number=0):
        log = arguments.output / f"log{number}"
        return Board(arguments.arch, arguments.kernel, arguments.image, size, log)

    if arguments.what == "suite":
        return run_suite(arguments, make_board)
    if arguments.what == "measure":
        return measure(make_board)
    return prompt(make_board, arguments.photos or Path.cwd())


if __name__ == "__main__":
    sys.exit(0 if main() else 1)
