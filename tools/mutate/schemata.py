"""Writes a source that holds each of its broken forms beside the whole one. LARKSPAN_MUTANT chooses one when it runs, so
a source is compiled once for all of them."""

from places import Place, Span

# Included before each of these sources. What the compiler itself computes is never broken.
CHOICE = """#pragma once
#include <type_traits>
extern "C" int larkspanChosenMutant();
constexpr int larkspanMutant() { return std::is_constant_evaluated() ? 0 : larkspanChosenMutant(); }
"""

CHOOSER = """#include <cstdlib>
extern "C" int larkspanChosenMutant()
{
    static const int chosen = std::getenv("LARKSPAN_MUTANT") ? std::atoi(std::getenv("LARKSPAN_MUTANT")) : 0;
    return chosen;
}
"""


def broken(text: str, place: Place) -> str:
    span = place.span
    return text[span.begin:place.begin] + place.replacement + text[place.end:span.end]


def body(path: str, text: str, span: Span, places: dict[int, Place]) -> str:
    """The compiler's complaints name the mutant, since it seems to come from a file of that name."""
    forms = [f'if (larkspanMutant() == {number}) {{\n#line {place.line} "mutant-{number}"\n{broken(text, place)}\n}} else '
             for number, place in places.items()]
    line = text.count("\n", 0, span.begin) + 1
    return "\n" + "".join(forms) + f'{{\n#line {line} "{path}"\n{text[span.begin:span.end]}\n}}\n'


def constant(path: str, text: str, span: Span, places: dict[int, Place]) -> str:
    line = text.count("\n", 0, span.end) + 1
    forms = [f'larkspanChosenMutant() == {number} ?\n#line {place.line} "mutant-{number}"\n{span.type}({broken(text, place)}) : '
             for number, place in places.items()]
    return "".join(forms) + f'\n#line {line} "{path}"\n{span.type}({text[span.begin:span.end]})'


def written(path: str, text: str, places: dict[int, Place]) -> str:
    by_span: dict[Span, dict[int, Place]] = {}
    for number, place in places.items():
        by_span.setdefault(place.span, {})[number] = place
    parts = [f'#line 1 "{path}"\n']
    at = 0
    for span, of_span in sorted(by_span.items(), key=lambda item: item[0].begin):
        before = text[at:span.begin]
        if span.type:
            # What the program chooses when it runs is no constant of the compiler's.
            head, _, tail = before.rpartition("constexpr ")
            before = head + "const " + tail
        parts.append(before + (constant if span.type else body)(path, text, span, of_span))
        at = span.end
    parts.append(text[at:])
    return "".join(parts)
