"""Scratch copies of the project in which sources are broken, built and tested."""
import json
import os
import re
import resource
import shutil
import signal
import subprocess

_MEMORY_LIMIT = 4 << 30  # a broken loop must not take the machine with it
_BUILD_TIMEOUT = 300  # seconds
_TEST_TIMEOUT = 240  # seconds; what hangs is noticed
_FAILURE = re.compile(r"\d+: FAIL!  :")  # as CTest passes on what Qt's tests print


def _limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (_MEMORY_LIMIT, _MEMORY_LIMIT))


def class_of(test):
    """The class part of a test's name: platform.CLASS or platform.CLASS.screen."""
    return test.split(".")[1]


class Tree:
    """A copy of the tracked files of the project, built for speed of building."""

    def __init__(self, project, place):
        self.project = project
        self.source = place / "source"
        self.build = place / "build"
        self.broken = None
        # The copies lie at different paths: the cache has to see past them.
        self.environment = dict(os.environ, CCACHE_BASEDIR=str(self.source), CCACHE_NOHASHDIR="1")

    def _run(self, command, timeout=None):
        return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True, errors="replace", env=self.environment, timeout=timeout)

    def _must_run(self, command):
        done = self._run(command)
        if done.returncode != 0:
            raise SystemExit(f"mutants: {' '.join(map(str, command))} failed:\n{done.stdout[-4000:]}")
        return done.stdout

    def refresh(self):
        """Makes the copy as the project is now; files that are the same keep their times."""
        listed = self._must_run(["git", "-C", str(self.project), "ls-files", "-co", "--exclude-standard"])
        wanted = {name for name in listed.splitlines() if (self.project / name).is_file()}
        for name in wanted:
            original, copy = self.project / name, self.source / name
            if not copy.exists() or copy.read_bytes() != original.read_bytes():
                copy.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(original, copy)
        for copy in [path for path in self.source.rglob("*") if path.is_file()]:
            if str(copy.relative_to(self.source)) not in wanted:
                copy.unlink()

    def configure(self):
        self._must_run(["cmake", "-S", str(self.source), "-B", str(self.build), "-G", "Ninja",
                        "-DCMAKE_BUILD_TYPE=", "-DCMAKE_CXX_FLAGS=-O0 -w", "-DPLATFORM_BUILD_TESTS=ON",
                        f"-DPLATFORM_TEST_TIMEOUT={_TEST_TIMEOUT}"])

    def tests(self):
        """The tests as CTest knows them: their names with the folders that they are in."""
        shown = json.loads(self._must_run(["ctest", "--test-dir", str(self.build), "--show-only=json-v1"]))
        folders = {path.stem[4:]: path.parent.name for path in self.source.glob("tests/*/tst_*.cpp")}
        names = [test["name"] for test in shown["tests"]]
        return {name: folders[class_of(name)]
                for name in names if name.startswith(("offscreen.", "x11."))}

    def build_tests(self, folders):
        targets = [f"tests/{folder}/all" for folder in sorted(folders)]
        self._must_run(["ninja", "-C", str(self.build), "platform_widgets", *targets])

    def set_source(self, name, text):
        """Breaks a source, and restores the one that was broken before."""
        if self.broken and self.broken != name:
            shutil.copy(self.project / self.broken, self.source / self.broken)
        (self.source / name).write_text(text)
        self.broken = name

    def restore(self):
        if self.broken:
            shutil.copy(self.project / self.broken, self.source / self.broken)
        self.broken = None

    def builds(self):
        # What is broken is built once: the cache need not keep it.
        command = ["env", "CCACHE_DISABLE=1", "ninja", "-C", str(self.build), "platform_widgets"]
        return self._run(command, timeout=_BUILD_TIMEOUT).returncode == 0

    def passes(self, names):
        """Runs tests until something fails: the rest of that program, which may wait for much, is not run."""
        command = ["ctest", "--test-dir", str(self.build), "--verbose", "--stop-on-failure", "-R",
                   "^(" + "|".join(re.escape(name) for name in names) + ")$"]
        with subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True, errors="replace", env=self.environment, preexec_fn=_limit_memory,
                              start_new_session=True) as process:
            if any(_FAILURE.match(line) for line in process.stdout):
                os.killpg(process.pid, signal.SIGKILL)
        return process.returncode == 0
