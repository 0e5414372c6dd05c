"""The mutants that change nothing, with the reason why, as `equivalent.txt` lists them."""

from dataclasses import dataclass, field
from pathlib import Path

LIST = Path(__file__).with_name("equivalent.txt")


@dataclass
class Equivalents:
    reasons: dict[tuple[str, str, str], str] = field(default_factory=dict)
    used: set[tuple[str, str, str]] = field(default_factory=set)

    def reason_for(self, mutant) -> str | None:
        key = (mutant.path, mutant.before, mutant.after)
        if key in self.reasons:
            self.used.add(key)
        return self.reasons.get(key)

    def unused(self, paths: list[str]) -> list[tuple[str, str, str]]:
        return [key for key in self.reasons if key not in self.used and key[0] in paths]


def read_equivalents(path: Path = LIST) -> Equivalents:
    """A reason stands before the lines that it holds for: `- before`, `+ after` in a file."""
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
        else:
            reason = f"{reason} {line.strip()}".strip()
    return result
