"""Changes the code one small step at a time and tells which steps no test notices."""

import argparse
import queue
import shutil
import subprocess
import sys
import threading
from pathlib import Path

from equivalents import read_equivalents
from mutants import KINDS, mutants_of
from results import Results, Table, show_survivor
from source_text import SourceText
from tests_of import tests_of
from worker import Worker

PROJECT = Path(__file__).resolve().parents[3]
BUILD = PROJECT / "build/mutation"
RESULTS = PROJECT / "build/mutation.tsv"  # apart: the folder goes when the tools are others
LEAST = {"readers and tables": 95.0, None: 90.0}  # the share of killed mutants, in per cent


def read_arguments():
    parser = argparse.ArgumentParser(prog="script/mutate", description=__doc__)
    parser.add_argument("paths", nargs="*", default=["plot", "ui", "docu"], metavar="PATH")
    parser.add_argument("--every", type=int, default=1, metavar="N", help="only each Nth mutant")
    parser.add_argument("--kind", action="append", choices=KINDS, help="only mutants of this kind")
    parser.add_argument("--jobs", type=int, default=2, metavar="N", help="mutants at the same time")
    parser.add_argument("--fresh", action="store_true", help="forget the results of earlier calls")
    parser.add_argument("--listed", action="store_true",
                        help="only those of equivalent.txt: none may be noticed")
    parser.add_argument("--list", action="store_true", help="show the mutants, try none")
    return parser.parse_args()


def git_files(*paths: str) -> list[str]:
    command = ["git", "-C", PROJECT, "ls-files", "-z", "-co", "--exclude-standard", "--", *paths]
    names = subprocess.run(command, check=True, capture_output=True).stdout.decode().split("\0")
    return [name for name in names if name and (PROJECT / name).is_file()]


def chosen_mutants(options) -> list:
    files = [name for name in git_files(*options.paths) if name.endswith((".cpp", ".h"))]
    mutants = [mutant for name in files for mutant in mutants_of(SourceText(PROJECT, name))]
    if not mutants:
        raise SystemExit("no mutant there")
    return mutants


def sample(mutants: list, equivalents, options) -> list:
    wanted = [mutant for mutant in mutants if not options.kind or mutant.kind in options.kind]
    if options.listed:
        wanted = [mutant for mutant in wanted if equivalents.reason_for(mutant)]
    return wanted[:: options.every]


def check_list(mutants: list, equivalents):
    """What occurs not at all, or in another place as well, is a mistake of the list."""
    wrong = equivalents.wrong(mutants)
    for path, before, after in wrong:
        print(f"equivalent.txt does not list each such mutant:\n@ {path}\n- {before}\n+ {after}")
    if wrong:
        raise SystemExit(1)


def work(worker: Worker, todo: queue.SimpleQueue, results: Results, count: int):
    worker.prepare()
    while True:
        try:
            mutant = todo.get_nowait()
        except queue.Empty:
            return
        verdict = worker.try_out(mutant, tests_of(mutant.path))
        results.add(mutant, verdict)
        print(f"[{count - todo.qsize()}/{count}] {mutant.path}:{mutant.line} {verdict}", flush=True)


def in_parallel(calls: list):
    """Runs the calls at the same time; the first that fails ends the program."""
    failures = []

    def guarded(call):
        try:
            call()
        except BaseException as failure:
            failures.append(failure)

    threads = [threading.Thread(target=guarded, args=(call,)) for call in calls]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    if failures:
        raise failures[0]


def try_out(mutants: list, results: Results, jobs: int):
    todo = queue.SimpleQueue()
    for mutant in mutants:
        todo.put(mutant)
    count = todo.qsize()
    files = git_files()
    workers = [Worker(PROJECT, BUILD / f"worker_{i}", files) for i in range(min(jobs, count))]
    in_parallel([lambda each=each: work(each, todo, results, count) for each in workers])


def verdict_table(mutants: list, results: Results, equivalents) -> Table:
    table = Table()
    for mutant in mutants:
        reason = equivalents.reason_for(mutant)
        if reason is None:
            verdict = results.verdict_on(mutant)
        else:
            verdict = "equivalent" if equivalents.changes_nothing(mutant) else "survived"
        table.add(mutant.path, verdict)
        if verdict == "survived":
            show_survivor(mutant)
            print(reason or "")
    return table


def noticed(mutants: list, results: Results) -> int:
    """How many of them a test notices, each shown with the test."""
    count = 0
    for mutant in mutants:
        verdict = results.verdict_on(mutant)
        if verdict != "survived":
            count += 1
            show_survivor(mutant)
            print(f"listed, but {verdict}")
    print(f"{len(mutants)} listed, {count} of them noticed")
    return count


def below_limits(table: Table) -> list[str]:
    shares = {group: table.share(group) for group in LEAST}
    return [f"{group or 'all'}: {share:.1f} % killed, {LEAST[group]} % wanted"
            for group, share in shares.items() if share is not None and share < LEAST[group]]


def main() -> int:
    options = read_arguments()
    if options.fresh:
        shutil.rmtree(BUILD, ignore_errors=True)
        RESULTS.unlink(missing_ok=True)
    BUILD.mkdir(parents=True, exist_ok=True)
    equivalents = read_equivalents()
    mutants = chosen_mutants(options)
    check_list(mutants, equivalents)
    chosen = sample(mutants, equivalents, options)
    if options.list:
        for mutant in chosen:
            show_survivor(mutant)
        return 0
    results = Results(RESULTS, PROJECT, git_files("tests"))
    todo = [m for m in chosen if not results.verdict_on(m)
            and (options.listed or equivalents.reason_for(m) is None)]
    if todo:
        try_out(todo, results, options.jobs)
    if options.listed:
        return 1 if noticed(chosen, results) else 0
    table = verdict_table(chosen, results, equivalents)
    table.show()
    for failure in below_limits(table):
        print(failure)
    return 1 if below_limits(table) else 0


sys.exit(main())
