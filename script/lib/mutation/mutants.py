"""The mutants of a source text: each is one small step away from it."""

import re
from dataclasses import dataclass
from typing import Callable, Iterator

from source_text import SourceText
from statements import returns, statements

Edit = tuple[int, int, str]


@dataclass(frozen=True)
class Mutant:
    path: str
    kind: str
    line: int
    start: int
    end: int
    replacement: str
    before: str  # the lines that it changes, in one, without the blanks around
    after: str

    def key(self) -> str:
        return f"{self.path}:{self.line}:{self.start}:{self.end}:{self.replacement}"


# The formatter puts blanks around operators with two operands, and none into the <> of templates.
OPERATORS = {
    "comparison": {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="},
    "arithmetic": {"+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "+=": "-=", "-=": "+="},
    "logic": {"&&": "||", "||": "&&", "&": "|", "|": "&", "^": "&", "&=": "|=", "|=": "&="},
}


def operators(kind: str) -> Callable[[SourceText], Iterator[Edit]]:
    swaps = OPERATORS[kind]
    pattern = re.compile(r"(?<=[ ])(?:%s)(?=[ \n])" % "|".join(map(re.escape, swaps)))

    def edits(source: SourceText) -> Iterator[Edit]:
        for found in pattern.finditer(source.code):
            yield found.start(), found.end(), swaps[found[0]]

    return edits


def steps(source: SourceText) -> Iterator[Edit]:
    for found in re.finditer(r"\+\+|--", source.code):
        yield found.start(), found.end(), "--" if found[0] == "++" else "++"


def negations(source: SourceText) -> Iterator[Edit]:
    for found in re.finditer(r"!(?=[\w(])", source.code):
        yield found.start(), found.end(), ""


def conditions(source: SourceText) -> Iterator[Edit]:
    """A condition of one name or one call, which no operator above touches."""
    for found in re.finditer(r"\b(?:if|while) \(([\w.>-]+(?:\([^()]*\))?)\)", source.code):
        yield found.start(1), found.start(1), "!"


def numbers(source: SourceText) -> Iterator[Edit]:
    pattern = r"(?<![\w.'\"])(0x[\da-f]+|\d[\d']*)(\.\d*)?(e\d+)?(?![\w\"])"
    for found in re.finditer(pattern, source.code):
        whole = found[1].replace("'", "")
        more = hex(int(whole, 16) + 1) if whole.startswith("0x") else str(int(whole) + 1)
        yield found.start(1), found.end(1), more


def truths(source: SourceText) -> Iterator[Edit]:
    for found in re.finditer(r"\b(true|false)\b", source.code):
        yield found.start(), found.end(), "false" if found[0] == "true" else "true"


def texts(source: SourceText) -> Iterator[Edit]:
    """The first character of a text that is no escape becomes the next one."""
    for start, end in source.strings:
        if end - start == 2:
            yield start + 1, start + 1, "x"
        elif source.text[start + 1] != "\\":
            letter = ord(source.text[start + 1])
            yield start + 1, start + 2, chr(letter - 1 if letter == ord("~") else letter + 1)
        elif source.text[start:end] in (r"'\n'", r"'\r'", r"'\0'"):
            yield start + 1, end - 1, "x"


def indices(source: SourceText) -> Iterator[Edit]:
    for found in re.finditer(r"(?<=[\w)\]])\[([a-z]\w*)\]", source.code):
        yield found.start(1), found.end(1), f"{found[1]} + 1"


def arguments(source: SourceText) -> Iterator[Edit]:
    """Two names that stand beside each other in a call or in braces change places."""
    name = r"[a-z]\w*(?:\.[a-z]\w*)*"
    for found in re.finditer(rf"(?<=[({{ ])({name}), (?=({name})[,)}}])", source.code):
        first, second = found[1], found[2]
        if first != second and source.code[found.start() - 1] != " " or _is_argument(source, found):
            yield found.start(1), found.end(2), f"{second}, {first}"


def _is_argument(source: SourceText, found) -> bool:
    """Whether the first name stands behind a comma, and not behind a type."""
    return found[1] != found[2] and source.code[: found.start()].rstrip().endswith(",")


def removed(source: SourceText) -> Iterator[Edit]:
    for start, end in statements(source.code):
        yield start, end, ";"


KINDS: dict[str, list[Callable[[SourceText], Iterator[Edit]]]] = {
    "comparison": [operators("comparison")],
    "arithmetic": [operators("arithmetic"), steps],
    "logic": [operators("logic"), negations, conditions],
    "constant": [numbers, truths, texts],
    "statement": [removed],
    "index": [indices, arguments],
    "return": [returns],
}


def _in_one(text: str) -> str:
    return " ".join(text.split())


def _mutant(source: SourceText, kind: str, edit: Edit) -> Mutant:
    start, end, replacement = edit
    first, last = source.line_span(start, end)
    text = source.text
    return Mutant(
        source.path,
        kind,
        source.line_number(start),
        start,
        end,
        replacement,
        _in_one(text[first:last]),
        _in_one(text[first:start] + replacement + text[end:last]),
    )


def mutants_of(source: SourceText) -> list[Mutant]:
    found = {}
    for kind, generators in KINDS.items():
        for generator in generators:
            for edit in generator(source):
                mutant = _mutant(source, kind, edit)
                found.setdefault(mutant.key(), mutant)
    return sorted(found.values(), key=lambda mutant: (mutant.start, mutant.end, mutant.kind))
