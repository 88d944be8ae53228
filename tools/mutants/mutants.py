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

from mutate import Mutant, mutants
from trees import Tree

PROJECT = Path(os.environ["DEV_ROOT"])
PLACE = PROJECT / "build" / "mutants"
ACCEPTED = PROJECT / "tools" / "mutants" / "accepted.txt"


@dataclass
class Task:
    """A mutant of a source and the tests that should notice it, the likeliest first."""
    name: str
    text: str
    mutant: Mutant
    near_tests: list
    far_tests: list
    tests_digest: str

    @property
    def key(self):
        return digest(self.name, self.mutant.apply(self.text))

    @property
    def difference(self):
        return (self.name, *self.mutant.difference(self.text))


def digest(*texts):
    return hashlib.sha1("\0".join(texts).encode()).hexdigest()


def read_accepted():
    """The differences that are known to change nothing observable."""
    accepted = set()
    text = ACCEPTED.read_text() if ACCEPTED.exists() else ""
    for paragraph in text.split("\n\n"):
        lines = [line for line in paragraph.strip().split("\n") if not line.startswith("#")]
        changes = [line for line in lines if line.startswith(("- ", "+ "))]
        if changes:
            reason = lines[1 + len(changes):]
            if not " ".join(reason).strip():
                raise SystemExit(f"mutants: no reason is given for accepting {lines[0]} {changes}")
            accepted.add((lines[0], *changes))
    return accepted


def folder_of(name):
    """The folder of a source right under src/: its tests are in the one of the same name under tests/."""
    return Path(name).parts[1]


def tests_for(name, tests):
    """The tests of the class that a source is named after, and the other tests of its folder."""
    folder, stem = folder_of(name), Path(name).stem
    in_folder = sorted(test for test, place in tests.items() if place == folder)
    near = [test for test in in_folder if test.split(".", 1)[1].startswith(stem) and test.startswith("offscreen.")]
    return (near or in_folder), ([test for test in in_folder if test not in near] if near else [])


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
        folder = PROJECT / "tests" / folder_of(name)
        tests_digest = digest(*(file.read_text() for file in sorted(folder.glob("*.cpp"))))
        tasks += [Task(name, text, mutant, near, far, tests_digest) for mutant in mutants(text)[::sample]]
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
        print(f"{tasks.qsize():5d} left; {task.name}:{task.mutant.line(task.text)} {task.mutant.kind}: {fate}",
              flush=True)
    tree.mend()


def prepare(tree, folders, names):
    tree.build_tests(folders)
    if not tree.passes(names):
        raise SystemExit("mutants: the tests fail with the library as it is; see ./dev test")


def run(tasks, trees, results, minutes):
    waiting = queue.Queue()
    for task in tasks:
        waiting.put(task)
    names = sorted({test for task in tasks for test in task.near_tests + task.far_tests})
    folders = {folder_of(task.name) for task in tasks}
    for tree in trees:
        prepare(tree, folders, names)
    deadline = time.monotonic() + minutes * 60
    workers = [threading.Thread(target=work, args=(tree, waiting, results, deadline)) for tree in trees]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()


def report(tasks, results, accepted):
    """Prints the survivors as accepted.txt takes them, and a last line of counts."""
    fates = collections.Counter()
    for task in tasks:
        fate = results.of(task) or "not tried"
        if fate != "killed" and task.difference in accepted:
            fate = "accepted"
        fates[fate] += 1
        if fate == "survived":
            print(f"\n# line {task.mutant.line(task.text)}, {task.mutant.kind}", *task.difference, sep="\n")
    print(f"\n{len(tasks)} mutants: " + ", ".join(f"{count} {fate}" for fate, count in sorted(fates.items())))
    return 1 if fates["survived"] else 0


def read_arguments():
    parser = argparse.ArgumentParser()
    parser.add_argument("--file", default="")
    parser.add_argument("--sample", type=int, default=1)
    parser.add_argument("--minutes", type=float, default=float("inf"))
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--report", action="store_true")
    return parser.parse_args()


def main():
    arguments = read_arguments()
    trees = [Tree(PROJECT, PLACE / str(number)) for number in range(arguments.jobs)]
    if not arguments.report:
        for tree in trees:
            tree.refresh()
            tree.configure()
    results = Results()
    accepted = read_accepted()
    tasks = read_tasks(arguments.file, arguments.sample, trees[0].tests())
    alike = collections.Counter(task.difference for task in tasks)
    # Of several mutants that look alike, not all need change as little as the one that is accepted.
    left = [task for task in tasks
            if not results.of(task) and not (task.difference in accepted and alike[task.difference] == 1)]
    if left and not arguments.report:
        run(left, trees, results, arguments.minutes)
    return report(tasks, results, accepted)


if __name__ == "__main__":
    sys.exit(main())
