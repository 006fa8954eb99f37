"""The ways in which a place of a source is broken. Each yields begin, end and replacement of a part of the text; what
does not compile does not count, so none of them has to understand C++."""

import re
import sys
from collections.abc import Callable, Iterator
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "lint"))
from cpp_text import closing  # noqa: E402

Change = tuple[int, int, str]

COMPARISONS = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"}
SUMS = {"+": "-", "-": "+", "*": "/", "/": "*", "+=": "-=", "-=": "+="}
RELATIVES = {
    "min": "max", "max": "min", "front": "back", "back": "front", "starts_with": "ends_with", "ends_with": "starts_with",
    "all_of": "any_of", "any_of": "all_of", "none_of": "any_of", "lower_bound": "upper_bound", "floor": "ceil",
    "find_first_of": "find_last_of", "find_last_of": "find_first_of", "find_first_not_of": "find_last_not_of",
    "find_last_not_of": "find_first_not_of"}
KEYWORDS = {"return", "co_return", "if", "for", "while", "switch", "static_assert", "sizeof", "catch", "case", "delete"}
STRING = re.compile(r'(?<!operator)"(?:\\.|[^"\\\n])*"')


def swapped(pattern: str, words: dict[str, str]) -> Callable[[str], Iterator[Change]]:
    def changes(code: str) -> Iterator[Change]:
        for found in re.finditer(pattern, code):
            if found[1] in words:
                yield found.start(1), found.end(1), words[found[1]]
    return changes


def conditions(code: str) -> Iterator[Change]:
    for found in re.finditer(r"\bif (\()", code):
        begin, end = found.end(1), closing(code, found.start(1))
        begin = max(begin, code.rfind(";", begin, end) + 1)
        declared = re.match(r"\s*(?:const )?[\w:<>,*& ]+?[*&]* \W*(\w+) = ", code[begin:end])
        if declared:
            yield end, end, f"; !{declared[1]}"
        else:
            yield begin, end, f" !({code[begin:end]})"


def statements(code: str) -> Iterator[Change]:
    """Calls whose result is not used, assignments and throws."""
    name = r"[A-Za-z_*][\w:.]*(?:->[\w:.]+|\[[^\]\n]*\])*"
    statement = rf"(?:^ *|(?<=\) )|(?<=else ))((?:co_await )?{name}\([^;{{}}]*\)|throw [^;{{}}]*|{name} [-+|&]?= [^;{{}}]*|\+\+{name}|--{name});"
    for found in re.finditer(statement, code, re.MULTILINE):
        before = code[:found.start(1)].rstrip()
        word = re.match(r"\w*", found[1])[0]
        if ".reserve(" in found[1]:  # saves time only
            continue
        if word not in KEYWORDS and (before.endswith((";", "{", "}", ")", ":")) or before.endswith("else")):
            yield found.start(1), found.end(1), "\n" * found[1].count("\n")


def numbers(code: str) -> Iterator[Change]:
    for found in re.finditer(r"(?<![\w.'])(0x[0-9A-Fa-f]+|\d[\d']*)(\.\d+)?(?=(?:ms|s|min|h|u|U|L)?\b)(?!['.])", code):
        digits = found[1].replace("'", "")
        larger = hex(int(digits, 16) + 1) if digits.startswith("0x") else str(int(digits) + 1)
        yield found.start(1), found.end(1), larger


def returns(code: str) -> Iterator[Change]:
    for found in re.finditer(r"\b(?:co_)?return ([^;]+);", code):
        if found[1] not in ("{}", "true", "false", "std::nullopt", "nullptr", "0"):
            yield found.start(1), found.end(1), "{}" + "\n" * found[1].count("\n")


def negations(code: str) -> Iterator[Change]:
    for found in re.finditer(r"(?<![\w)!])!(?=[\w(*])", code):
        yield found.start(), found.end(), ""


def choices(code: str) -> Iterator[Change]:
    for found in re.finditer(r"(?<=\S)\s+\?(?= )", code):
        yield found.start(), found.start(), " && false"
        yield found.start(), found.start(), " || true"


def strings(text: str) -> Iterator[Change]:
    """Unlike the others, this one reads text whose strings are still in it."""
    for found in STRING.finditer(text):
        yield found.start() + 1, found.start() + 1, "~"
    for found in re.finditer(r"'([ -&(-\[\]-}])'", text):
        yield found.start(1), found.end(1), chr(ord(found[1]) + 1).replace("'", "(").replace("\\", "]")


OPERATORS: dict[str, Callable[[str], Iterator[Change]]] = {
    "comparison": swapped(r" (==|!=|<=|>=|<|>) ", COMPARISONS),
    "condition": conditions,
    "logic": swapped(r"\s(&&|\|\|) ", {"&&": "||", "||": "&&"}),
    "statement": statements,
    "number": numbers,
    "return": returns,
    "truth": swapped(r"\b(true|false)\b", {"true": "false", "false": "true"}),
    "sum": swapped(r" ([-+*/]|[-+]=) (?!\")", SUMS),
    "negation": negations,
    "choice": choices,
    "relative": swapped(r"\b(\w+)(?=[(<])", RELATIVES),
}
