"""A copy of the tree with a build folder of its own, in which one mutant after the other is tried."""

import os
import resource
import shutil
import signal
import subprocess
import threading
import time
from pathlib import Path

from mutants import Mutant

MEMORY = 6 << 30  # that a test may write to, in bytes; Qt PDF reserves far more
# What the tests would notice in the debug build of the sanitizers, the assertions tell here.
FLAGS = "-O1 -w -D_GLIBCXX_ASSERTIONS -DQT_FORCE_ASSERTS"
# Some tests are long by their numbers; less is enough to notice one step.
SHORTER = {"KORIMO_WALK": "600", "KORIMO_RANDOM_FILES": "400", "KORIMO_LONGEST_CURVE": "10000"}
LATE = "took too long"
# Memory that was not written to must show.
ENVIRONMENT = SHORTER | {"MALLOC_PERTURB_": "165"}


def _limit_memory():
    resource.setrlimit(resource.RLIMIT_DATA, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(command: list, timeout: float, stop_at: str | None = None) -> tuple[bool, str]:
    """Whether the command ends well, and its output, or else LATE if its time was over. It is ended, too,
    with the first line of output that has `stop_at`: a test goes on after a failure, but need not."""
    process = subprocess.Popen(
        [str(word) for word in command],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        encoding="utf-8",
        errors="replace",
        start_new_session=True,
        env=os.environ | ENVIRONMENT,
        preexec_fn=_limit_memory if stop_at else None,
    )
    clock = threading.Timer(timeout, os.killpg, (process.pid, signal.SIGKILL))
    clock.start()
    output = []
    for line in process.stdout:
        output.append(line)
        if stop_at and stop_at in line:
            os.killpg(process.pid, signal.SIGKILL)
            break
    process.stdout.close()
    process.wait()
    is_late = not clock.is_alive()
    clock.cancel()
    return process.returncode == 0, LATE if is_late else "".join(output[-60:])


class Worker:
    def __init__(self, project: Path, folder: Path, files: list[str]):
        self.project = project
        self.tree = folder / "tree"
        self.build = folder / "build"
        self.usual = {}  # how long a test takes, in seconds
        self._copy(files)

    def _copy(self, files: list[str]):
        """Only what has changed is written, so that the last build stays useful."""
        known = set(files)
        for old in [path for path in self.tree.rglob("*") if path.is_file()]:
            if str(old.relative_to(self.tree)) not in known:
                old.unlink()
        for name in files:
            source, copy = self.project / name, self.tree / name
            copy.parent.mkdir(parents=True, exist_ok=True)
            if not copy.exists() or copy.read_bytes() != source.read_bytes():
                shutil.copyfile(source, copy)
                shutil.copymode(source, copy)

    def prepare(self):
        quick = self.tree / "script/lib/quick_build.cmake"
        self._must(["cmake", "-G", "Ninja", "-S", self.tree, "-B", self.build,
                    "-DCMAKE_BUILD_TYPE=None", f"-DCMAKE_CXX_FLAGS={FLAGS}",
                    "-DCMAKE_CXX_COMPILER=clang++", "-DCMAKE_LINKER_TYPE=LLD",
                    "-DKORIMO_END_TO_END_TESTS=OFF",
                    f"-DCMAKE_PROJECT_plot_korimo_INCLUDE={quick}"])

    def _get_to_know(self, test: str):
        """Without a mutant a test must pass; how long that takes tells when to give up later."""
        self._must(self._build_command(test))
        start = time.monotonic()
        if not self._test(test, 1200)[0]:
            raise SystemExit(f"{test} fails without a mutant")
        self.usual[test] = time.monotonic() - start

    def _must(self, command: list):
        ended_well, output = run(command, 3600)
        if not ended_well:
            raise SystemExit(f"{' '.join(map(str, command))}\n{output}")

    def _build_command(self, test: str) -> list:
        return ["cmake", "--build", self.build, "--parallel", "1", "--target", test]

    def _test(self, test: str, timeout: float) -> tuple[bool, str]:
        command = ["ctest", "--test-dir", self.build, "--tests-regex", rf"^{test}\.C$",
                   "--no-tests=error", "--verbose"]
        return run(command, timeout, stop_at="FAIL!")

    def try_out(self, mutant: Mutant, tests: list[str]) -> str:
        """The test that notices it, "invalid" or "survived"."""
        copy = self.tree / mutant.path
        text = (self.project / mutant.path).read_text(encoding="utf-8")
        changed = text[: mutant.start] + mutant.replacement + text[mutant.end :]
        try:
            for test in tests:
                if test not in self.usual:
                    copy.write_text(text, "utf-8")
                    self._get_to_know(test)
                if copy.read_text("utf-8") != changed:
                    copy.write_text(changed, "utf-8")
                verdict = self._verdict(test)
                if verdict:
                    return verdict
            return "survived"
        finally:
            copy.write_text(text, "utf-8")

    def _verdict(self, test: str) -> str | None:
        if not run(self._build_command(test), 600)[0]:
            return "invalid"
        passed, output = self._test(test, 10 * self.usual[test] + 10)
        if passed:
            return None
        return f"{test}, which {LATE}" if output == LATE else test
