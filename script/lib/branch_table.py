"""The branches of some folders that the tests take: branch_table.py SUMMARY PROJECT LIMIT FOLDER…"""

import json
import sys
from pathlib import Path


def counts_of(summary: str, project: str, folders: list[str]) -> dict[str, tuple[int, int]]:
    """For each file how many branches it has and how many of them are taken."""
    counts = {}
    for file in json.loads(Path(summary).read_text("utf-8"))["data"][0]["files"]:
        path = Path(file["filename"])
        if path.is_relative_to(project) and path.relative_to(project).parts[0] in folders:
            branches = file["summary"]["branches"]
            counts[str(path.relative_to(project))] = branches["count"], branches["covered"]
    return counts


def show(name: str, count: int, covered: int):
    share = f"{100 * covered / count:.1f}" if count else "-"
    print(f"{name:44} {count:9} {covered:7} {share:>7}")


def main(summary: str, project: str, limit: str, *folders: str) -> int:
    counts = counts_of(summary, project, list(folders))
    all_of_it = [sum(column) for column in zip(*counts.values())]
    print(f"\n{'':44} {'branches':>9} {'taken':>7} {'%':>7}")
    for path in sorted(counts):
        show(path, *counts[path])
    show(f"{', '.join(folders)} (at least {limit} %)", *all_of_it)
    return 0 if 100 * all_of_it[1] >= float(limit) * all_of_it[0] else 1


sys.exit(main(*sys.argv[1:]))
