"""Finds the statements of a C++ text that can go, and its return values, line by line."""

import re
from typing import Iterator

# An expression: no blank before its first "(" or its assignment, so that no declaration fits.
EXPRESSION = re.compile(
    r"(?!return\b|using\b|case\b|default\b|public\b|private\b|else\b|if\b|for\b|while\b|switch\b)"
    r"(?:(?:\+\+|--|\*|::|delete )?[A-Za-z_][\w.:<>,\[\]*&>-]*"
    r"(?:\(| (?:[-+|&*/^]?=|<<) |\+\+;|--;|;)|break;|continue;|new )"
)
NO_STATEMENT = re.compile(r"^\w+;$|^Q_\w+|^static_assert")
# What a statement stands behind.
ENDS_BEFORE = (";", "{", "}", ")", "else", ":")
RETURN = re.compile(r"^ *return ([^;{}]+);", re.MULTILINE)
# A line on which a function starts: its type is all before the name.
HEAD = re.compile(r"^(?:    )?([\w:<>,*& ]*?)[ *&]~?[\w:]+\(", re.MULTILINE)


def _is_complete(text: str) -> bool:
    return text.rstrip().endswith(";") and all(
        text.count(pair[0]) == text.count(pair[1]) for pair in ("()", "{}")
    )


def _end_of(lines: list[str], first: int) -> int | None:
    for last in range(first, min(first + 12, len(lines))):
        if _is_complete("\n".join(lines[first : last + 1])):
            return last
        if lines[last].rstrip().endswith((";", "}")) and lines[last].strip() in ("}", "};"):
            return None
    return None


def _previous(lines: list[str], index: int) -> str:
    for line in reversed(lines[:index]):
        if line.strip():
            return line.rstrip()
    return ""


def _starts_statement(lines: list[str], index: int) -> bool:
    text = lines[index].strip()
    if not EXPRESSION.match(text):
        return False
    if NO_STATEMENT.match(text) and text not in ("break;", "continue;"):
        return False
    return lines[index].startswith("    ") and _previous(lines, index).endswith(ENDS_BEFORE)


def statements(code: str) -> Iterator[tuple[int, int]]:
    """The spans of the statements that consist of one expression."""
    lines = code.split("\n")
    offset = 0
    for index, line in enumerate(lines):
        if _starts_statement(lines, index):
            last = _end_of(lines, index)
            if last is not None:
                start = offset + len(line) - len(line.lstrip())
                yield start, offset + len("\n".join(lines[index : last + 1]).rstrip())
        offset += len(line) + 1


def _answers_bool(code: str, offset: int) -> bool:
    head = None
    for head in HEAD.finditer(code, 0, offset):
        pass
    return head is not None and head[1].split()[-1:] == ["bool"]


def returns(source) -> Iterator[tuple[int, int, str]]:
    """An answer becomes its opposite, or that of its type without a value."""
    for found in RETURN.finditer(source.code):
        start, end = found.span(1)
        value = source.text[start:end]
        if value in ("true", "false", "nullptr", "std::nullopt"):
            continue
        yield start, end, f"!({value})" if _answers_bool(source.code, start) else "{}"
