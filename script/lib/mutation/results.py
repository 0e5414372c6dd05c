"""What became of each mutant: kept in a file from the first one on, and shown as a table."""

import hashlib
import threading
from collections import Counter
from pathlib import Path

from mutants import Mutant
from tests_of import group_of


def digest(root: Path, files: list[str]) -> str:
    total = hashlib.sha256()
    for name in sorted(files):
        total.update(name.encode() + b"\0" + (root / name).read_bytes())
    return total.hexdigest()[:16]


class Results:
    """A mutant that a test has noticed counts as long as its file stays the same; one that no test
    has noticed is tried again when the tests have changed."""

    def __init__(self, file: Path, project: Path, tests: list[str]):
        self.file = file
        self.project = project
        self.of_tests = digest(project, tests)
        self.of_file = {}
        self.known = {}
        self.lock = threading.Lock()
        if file.exists():
            for line in file.read_text(encoding="utf-8").splitlines():
                columns = line.split("\t")
                if len(columns) == 3:  # the last line of an interrupted call may be cut off
                    self.known[(columns[0], columns[1])] = columns[2]

    def _stamp(self, path: str, verdict: str) -> str:
        if path not in self.of_file:
            self.of_file[path] = digest(self.project, [path])
        return self.of_file[path] + (self.of_tests if verdict == "survived" else "")

    def verdict_on(self, mutant: Mutant) -> str | None:
        for verdict in ("", "survived"):
            found = self.known.get((self._stamp(mutant.path, verdict), mutant.key()))
            if found:
                return found
        return None

    def add(self, mutant: Mutant, verdict: str):
        key = (self._stamp(mutant.path, verdict), mutant.key())
        with self.lock, self.file.open("a", encoding="utf-8") as out:
            self.known[key] = verdict
            out.write(f"{key[0]}\t{key[1]}\t{verdict}\n")


def show_survivor(mutant: Mutant):
    print(f"\n{mutant.path}:{mutant.line}: {mutant.kind}\n- {mutant.before}\n+ {mutant.after}")


class Table:
    def __init__(self):
        self.counts = {}

    def add(self, path: str, verdict: str):
        is_named = verdict in ("survived", "invalid", "equivalent")
        self.counts.setdefault(path, Counter())[verdict if is_named else "killed"] += 1

    def _sum(self, paths) -> Counter:
        return sum((self.counts[path] for path in paths), Counter())

    def share(self, group: str | None = None) -> float | None:
        """The killed ones in per cent; none where there is no mutant."""
        all_of_it = self._sum(path for path in self.counts if group in (None, group_of(path)))
        tried = all_of_it["killed"] + all_of_it["survived"]
        return 100 * all_of_it["killed"] / tried if tried else None

    def _row(self, name: str, counts: Counter):
        tried = counts["killed"] + counts["survived"]
        rate = f"{100 * counts['killed'] / tried:.1f}" if tried else "-"
        print(f"{name:40} {tried:8} {counts['killed']:8} {counts['survived']:9} {rate:>7} "
              f"{counts['equivalent']:11} {counts['invalid']:8}")

    def show(self):
        print(f"\n{'':40} {'mutants':>8} {'killed':>8} {'survived':>9} {'%':>7} "
              f"{'equivalent':>11} {'invalid':>8}")
        for path in sorted(self.counts):
            self._row(path, self.counts[path])
        for group in sorted({group_of(path) for path in self.counts}):
            self._row(group, self._sum(p for p in self.counts if group_of(p) == group))
        self._row("all", self._sum(self.counts))
