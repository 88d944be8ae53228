"""Runs the themes of the touch suite on as many boards as there are processors."""

import importlib.util
import inspect
import os
import queue
import threading
import traceback
from pathlib import Path

from board import Board, BoardError
from user import Unexpected, User

SIZE = (800, 480)


def on_screen(width, height):
    """Has a test run on a board with a screen of this size."""
    def mark(test):
        test.size = (width, height)
        return test
    return mark


def is_test(candidate, module):
    return (inspect.isfunction(candidate) and candidate.__module__ == module.__name__
            and not candidate.__name__.startswith("_"))


def themes(folder, pattern=""):
    """The tests by theme, in the order in which they are written."""
    for path in sorted(Path(folder).glob("*.py")):
        module_spec = importlib.util.spec_from_file_location(path.stem, path)
        module = importlib.util.module_from_spec(module_spec)
        module_spec.loader.exec_module(module)
        name = path.stem.replace("_", " ")
        if pattern in name:
            yield name, [test for test in vars(module).values() if is_test(test, module)]


class Work:
    """The tests of a theme that need a screen of one size."""

    def __init__(self, theme, size, tests):
        self.theme, self.size, self.tests = theme, size, tests


def divide(found):
    """Large screens last, since most themes need them."""
    works = []
    for theme, tests in found:
        by_size = {}
        for test in tests:
            by_size.setdefault(getattr(test, "size", SIZE), []).append(test)
        works += [Work(theme, size, its_tests) for size, its_tests in by_size.items()]
    return sorted(works, key=lambda work: work.size)


class Suite:
    def __init__(self, make_board, references):
        self.make_board, self.references = make_board, references
        self.lock = threading.Lock()
        self.passed = self.failed = 0
        self.failures = []

    def run(self, works):
        waiting = queue.SimpleQueue()
        for work in works:
            waiting.put(work)
        workers = [threading.Thread(target=self.work, args=(waiting, number))
                   for number in range(min(os.cpu_count(), len(works)))]
        for worker in workers:
            worker.start()
        for worker in workers:
            worker.join()

    def work(self, waiting, number):
        board = None
        try:
            while True:
                work = waiting.get_nowait()
                if board and board.size != work.size:
                    board.switch_off()
                    board = None
                try:
                    board = board or self.make_board(work.size, number)
                    self.run_work(board, work)
                except BoardError as error:
                    self.note(work.theme, "the board", str(error))
        except queue.Empty:
            pass
        finally:
            if board:
                board.switch_off()

    def run_work(self, board, work):
        user = User(board, self.references, work.theme)
        for test in work.tests:
            problem = self.problem_of(test, user)
            self.note(work.theme, test.__name__.replace("_", " "), problem)

    def problem_of(self, test, user):
        """Each test begins with an application that has just started."""
        try:
            user.starts()
            test(user)
            return None
        except (Unexpected, BoardError) as error:
            line = traceback.extract_tb(error.__traceback__)
            places = [frame.lineno for frame in line if frame.name == test.__name__]
            user.board.photo().write_png(self.references.found / "failed" / f"{test.__name__}.png")
            return f"line {places[-1] if places else '?'}: {error}"

    def note(self, theme, name, problem):
        with self.lock:
            if problem is None:
                self.passed += 1
                print(f"passed  {theme}: {name}", flush=True)
            else:
                self.failed += 1
                self.failures.append(f"{theme}: {name}: {problem}")
                print(f"FAILED  {theme}: {name}: {problem}", flush=True)
