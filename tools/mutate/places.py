"""The places of a source at which it can be broken so that a program can hold both forms: in bodies of functions, and in
constants of a namespace."""

import bisect
import re
import sys
from dataclasses import dataclass
from pathlib import Path

from operators import OPERATORS, strings

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "lint"))
from cpp_text import line_of, without_comments, without_strings  # noqa: E402

# The layout tells bodies apart: only those of functions open on a line of their own.
BODY = re.compile(r"^(?P<indent> *)\{\n(?P<inside>.*?)^(?P=indent)\}", re.MULTILINE | re.DOTALL)
SHORT_BODY = re.compile(r"^ .*\)(?: const| noexcept| override)* \{ (?P<inside>[^\n{}]+) \}$", re.MULTILINE)
CONSTANT = re.compile(r"^constexpr (?P<type>[\w:]+) \w+ = (?P<inside>[^;{}]+);", re.MULTILINE)


@dataclass(frozen=True)
class Span:
    """A part of a source that exists in each of its forms; a constant also has a type."""
    begin: int
    end: int
    type: str | None


@dataclass(frozen=True)
class Place:
    path: str
    span: Span
    begin: int
    end: int
    replacement: str
    kind: str
    line: int
    before: str
    after: str


def spans_of(code: str) -> list[Span]:
    bodies = [Span(*found.span("inside"), None) for found in BODY.finditer(code)]
    shorts = [Span(*found.span("inside"), None) for found in SHORT_BODY.finditer(code)]
    shorts = [span for span in shorts if not any(body.begin <= span.begin < body.end for body in bodies)]
    constants = [Span(*found.span("inside"), found["type"]) for found in CONSTANT.finditer(code)]
    return sorted(bodies + shorts + constants, key=lambda span: span.begin)


def one_line(text: str) -> str:
    return " ".join(text.split())


def places_of(path: str, text: str) -> list[Place]:
    uncommented = without_comments(text)
    code = without_strings(uncommented)
    spans = spans_of(code)
    begins = [span.begin for span in spans]
    places = []
    for kind, changes in [*((kind, find(code)) for kind, find in OPERATORS.items()), ("string", strings(uncommented))]:
        for begin, end, replacement in changes:
            at = bisect.bisect_right(begins, begin) - 1
            if at < 0 or end > spans[at].end:
                continue
            if kind == "condition" and end > begin:
                # It repeats its part of the code, from which the strings are missing.
                replacement = replacement.replace(code[begin:end], text[begin:end])
            first = text.rfind("\n", 0, begin) + 1
            last = text.find("\n", end)
            after = one_line(text[first:begin] + replacement + text[end:last])
            places.append(Place(path, spans[at], begin, end, replacement, kind, line_of(text, begin),
                                one_line(text[first:last]), after))
    return sorted(places, key=lambda place: (place.begin, place.end, place.replacement))
