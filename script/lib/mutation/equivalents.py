"""The mutants that no test can notice, with the reason why, as `equivalent.txt` lists them."""

from collections import Counter
from dataclasses import dataclass, field
from pathlib import Path

LIST = Path(__file__).with_name("equivalent.txt")


@dataclass
class Equivalents:
    reasons: dict[tuple[str, str, str], str] = field(default_factory=dict)
    times: Counter = field(default_factory=Counter)  # how often each is listed

    def reason_for(self, mutant) -> str | None:
        return self.reasons.get((mutant.path, mutant.before, mutant.after))

    def changes_nothing(self, mutant) -> bool:
        reason = self.reason_for(mutant)
        return reason is not None and not reason.startswith("Survives:")

    def wrong(self, mutants: list) -> list[tuple[str, str, str]]:
        """Those that occur in other numbers than they are listed, in the files of these mutants."""
        places = {(each.path, each.before, each.after, each.line) for each in mutants}
        count = Counter(place[:3] for place in places)
        paths = {each.path for each in mutants}
        return [key for key in self.reasons if key[0] in paths and count[key] != self.times[key]]


def read_equivalents(path: Path = LIST) -> Equivalents:
    """A reason stands before the lines that it holds for: `- before`, `+ after` in a file. What occurs
    in several places is listed as often."""
    result = Equivalents()
    file = reason = before = ""
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        mark, text = line[:2], line[2:].strip()
        if not line.strip() or line.startswith("#"):
            reason = ""
        elif mark == "@ ":
            file = text
        elif mark == "- ":
            before = text
        elif mark == "+ ":
            if not (file and reason and before):
                raise SystemExit(f"{path.name}:{number}: file, reason or line is missing")
            result.reasons[(file, before, text)] = reason
            result.times[(file, before, text)] += 1
        else:
            reason = f"{reason} {line.strip()}".strip()
    return result
