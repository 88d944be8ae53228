#!/usr/bin/env python3
"""Breaks the library in many small ways, one at a time, and lists those that no test notices.

The work goes on where it was stopped: what has been tried is in build/mutants/results.jsonl and is
not tried again, unless it survived and the tests have changed since.
"""
import argparse
import collections
import hashlib
import json
import os
import queue
import sys
import threading
import time
from dataclasses import dataclass
from pathlib import Path

from cpp import without_comments
from marks import flaws, marks
from mutate import Mutant, mutants
from trees import Tree

PROJECT = Path(os.environ["DEV_ROOT"])
PLACE = PROJECT / "build" / "mutants"
FIGURES = PROJECT / "docs" / "figures" / "mutants.md"
THEMES = "themes"  # the folder of the tests that go over every class
FOUNDATION = "frame"  # the folder under src/ that the others build on


@dataclass
class Task:
    """A mutant of a source and the tests that should notice it, the likeliest first."""
    name: str
    text: str
    mutant: Mutant
    near_tests: list
    far_tests: list
    tests_digest: str
    is_accepted: bool

    @property
    def key(self):
        """The same whatever the comments say."""
        return digest(self.name, without_comments(self.mutant.apply(self.text)))

    @property
    def line(self):
        return self.mutant.line(self.text)


def digest(*texts):
    return hashlib.sha1("\0".join(texts).encode()).hexdigest()


def folder_of(name):
    """The folder of a source right under src/: its tests are in the one of the same name under tests/."""
    return Path(name).parts[1]


def tests_for(name, tests):
    """The tests of the class that a source is named after, and those of its folder and over all classes.

    Of what the other folders build on, theirs too.
    """
    folder, stem = folder_of(name), Path(name).stem
    in_folder = sorted(test for test, place in tests.items() if place == folder)
    offscreen = sorted(test for test in tests if test.startswith("offscreen."))
    near = [test for test in in_folder if test.split(".", 1)[1].startswith(stem) and test in offscreen]
    others = [test for test in offscreen if test not in in_folder
              and (folder == FOUNDATION or tests[test] == THEMES)]
    return (near or in_folder), [test for test in in_folder if near and test not in near] + others


def read_tasks(pattern, sample, tests):
    tasks = []
    for path in sorted((PROJECT / "src").rglob("*.cpp")):
        name = str(path.relative_to(PROJECT))
        if pattern not in name:
            continue
        text = path.read_text()
        near, far = tests_for(name, tests)
        if not near:
            print(f"mutants: no test for {name}", file=sys.stderr)
            continue
        folders = {tests[test] for test in near + far} - {THEMES}
        sources = [file for folder in sorted(folders) for file in sorted((PROJECT / "tests" / folder).glob("*.cpp"))]
        tests_digest = digest(*(file.read_text() for file in sources))
        accepting = marks(text)
        tasks += [Task(name, text, mutant, near, far, tests_digest,
                       any(mark.accepts(mutant, text) for mark in accepting))
                  for mutant in mutants(text)[::sample]]
    return tasks


class Results:
    """What became of the mutants tried so far, on disk."""

    def __init__(self):
        self.path = PLACE / "results.jsonl"
        self.lock = threading.Lock()
        lines = self.path.read_text().splitlines() if self.path.exists() else []
        self.by_key = {entry["key"]: entry for entry in map(json.loads, lines)}

    def of(self, task):
        entry = self.by_key.get(task.key)
        if not entry or (entry["fate"] == "survived" and entry["tests"] != task.tests_digest):
            return None
        return entry["fate"]

    def add(self, task, fate):
        entry = {"key": task.key, "fate": fate, "tests": task.tests_digest}
        with self.lock:
            self.by_key[task.key] = entry
            with self.path.open("a") as file:
                file.write(json.dumps(entry) + "\n")


def try_out(tree, task):
    tree.set_source(task.name, task.mutant.apply(task.text))
    if not tree.builds():
        return "does not compile"
    if not tree.passes(task.near_tests):
        return "killed"
    if task.far_tests and not tree.passes(task.far_tests):
        return "killed"
    return "survived"


def work(tree, tasks, results, deadline):
    while time.monotonic() < deadline:
        try:
            task = tasks.get_nowait()
        except queue.Empty:
            break
        fate = try_out(tree, task)
        results.add(task, fate)
        print(f"{tasks.qsize():5d} left; {task.name}:{task.line} {task.mutant.kind}: {fate}",
              flush=True)
    tree.restore()


def prepare(tree, folders, names):
    tree.build_tests(folders)
    if not tree.passes(names):
        raise SystemExit("mutants: the tests fail with the library as it is; see ./dev test")


def run(tasks, trees, results, minutes, tests):
    waiting = queue.Queue()
    for task in tasks:
        waiting.put(task)
    names = sorted({test for task in tasks for test in task.near_tests + task.far_tests})
    folders = {tests[name] for name in names}
    for tree in trees:
        prepare(tree, folders, names)
    deadline = time.monotonic() + minutes * 60
    workers = [threading.Thread(target=work, args=(tree, waiting, results, deadline)) for tree in trees]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()


def unneeded_marks(tasks, results):
    """The labels of marks all of whose mutants are noticed, or do not compile."""
    fates = collections.defaultdict(set)
    for task in tasks:
        for mark in marks(task.text) if task.is_accepted else []:
            if mark.accepts(task.mutant, task.text):
                fates[task.name, mark.number, task.mutant.label(task.text)].add(results.of(task))
    return [f"{name}:{number}: no mutant needs the mark '{label}'"
            for (name, number, label), known in fates.items() if not known & {"survived", None}]


def flawed_marks(tasks):
    texts = {task.name: task.text for task in tasks}
    return [f"{name}:{flaw}" for name, text in texts.items() for flaw in flaws(text)]


def keep(counts):
    """The counts as a figure of the documentation."""
    head = "<!-- Written by ./dev mutants --accept: the next run replaces it. -->"
    lines = [f"| {fate} | {count:,} |" for fate, count in sorted(counts.items())]
    FIGURES.write_text("\n".join([head, "", "| Mutants | Count |", "|---|--:|", *lines, ""]))


def report(tasks, results, findings, accept):
    """Prints the survivors as a mark names them, the findings, and a last line of counts."""
    fates = collections.Counter()
    for task in tasks:
        fate = results.of(task) or "not tried"
        if fate == "survived" and task.is_accepted:
            fate = "accepted"
        fates[fate] += 1
        if fate == "survived":
            print(f"\n{task.name}:{task.line}: mutant [{task.mutant.label(task.text)}]",
                  *task.mutant.difference(task.text), sep="\n")
    print("", *findings, sep="\n")
    print(f"{len(tasks)} mutants: " + ", ".join(f"{count} {fate}" for fate, count in sorted(fates.items())))
    if accept:
        keep(fates)
    return 1 if fates["survived"] or findings else 0


def read_arguments():
    parser = argparse.ArgumentParser()
    parser.add_argument("--file", default="")
    parser.add_argument("--sample", type=int, default=1)
    parser.add_argument("--minutes", type=float, default=float("inf"))
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--report", action="store_true")
    parser.add_argument("--accept", action="store_true")
    arguments = parser.parse_args()
    if arguments.accept and (arguments.file or arguments.sample > 1):
        raise SystemExit("mutants: --accept is for all mutants, not for a part of them")
    return arguments


def main():
    arguments = read_arguments()
    trees = [Tree(PROJECT, PLACE / str(number)) for number in range(arguments.jobs)]
    if not arguments.report:
        for tree in trees:
            tree.refresh()
            tree.configure()
    results = Results()
    tests = trees[0].tests()
    tasks = read_tasks(arguments.file, arguments.sample, tests)
    left = sorted((task for task in tasks if not results.of(task)), key=lambda task: task.is_accepted)
    if left and not arguments.report:
        run(left, trees, results, arguments.minutes, tests)
    return report(tasks, results, flawed_marks(tasks) + unneeded_marks(tasks, results), arguments.accept)


if __name__ == "__main__":
    sys.exit(main())
