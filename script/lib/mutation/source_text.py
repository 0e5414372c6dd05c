"""A C++ source text of which each character is known to be code, text or something else: comments,
lines of the preprocessor and assertions that only the compiler sees."""

import re
from pathlib import Path

# The formatter guarantees that a raw text or a spliced comment does not occur in our code.
PIECES = re.compile(
    r"""
      (?P<other>//[^\n]* | /\*.*?\*/ | ^[ ]*\#(?:[^\n]*\\\n)*[^\n]* | \bstatic_assert\(.*?\);)
    | (?P<string>"(?:\\.|[^"\\\n])*")
    | (?P<char>'(?:\\.|[^'\\\n])+')
    """,
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)


class SourceText:
    def __init__(self, root: Path, path: str):
        self.path = path
        self.text = (root / path).read_text(encoding="utf-8")
        self.strings = []  # (start, end) with the quotes
        self.code = self._code()

    def _code(self) -> str:
        """The text with everything but code blanked out, character for character."""
        blanked = []
        end = 0
        for piece in PIECES.finditer(self.text):
            if self._is_separator(piece):
                continue
            blanked += [self.text[end : piece.start()], self._blank(piece)]
            end = piece.end()
        return "".join(blanked) + self.text[end:]

    def _is_separator(self, piece) -> bool:
        """Whether it is a quote between the digits of a number."""
        return piece["char"] is not None and self.text[piece.start() - 1].isdigit()

    def _blank(self, piece) -> str:
        if piece["other"] is None:
            self.strings.append(piece.span())
            filler = '"'
        else:
            filler = " "
        return "".join("\n" if c == "\n" else filler for c in piece[0])

    def line_span(self, start: int, end: int) -> tuple[int, int]:
        """The whole lines that a span touches."""
        before = self.text.rfind("\n", 0, start) + 1
        behind = self.text.find("\n", end)
        return before, len(self.text) if behind < 0 else behind

    def line_number(self, offset: int) -> int:
        return self.text.count("\n", 0, offset) + 1
