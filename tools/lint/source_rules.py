#!/usr/bin/python3
"""Rules of the project that can be checked in the text: layers, colours, plain text, coroutines, sizes.

usage: source_rules.py FILE...    prints path:line: sentence for each breach, and ends with 1 if there is one
"""

import re
import sys
from pathlib import Path
from typing import Callable, Iterator, NamedTuple

from coroutine_rules import capturing_coroutines, reference_parameters, temporaries_in_awaits
from cpp_text import line_of, without_comments, without_strings


class Breach(NamedTuple):
    line: int
    sentence: str


Check = Callable[[str, str], Iterator[Breach]]

STANDARD_HEADER = re.compile(r"[a-z_0-9]+$")
LIBRARIES_OF_SRC = {
    "asio/async_result.hpp", "asio/associated_executor.hpp", "asio/awaitable.hpp", "asio/co_spawn.hpp",
    "asio/execution.hpp", "asio/execution/blocking.hpp", "asio/post.hpp", "asio/this_coro.hpp",
    "asio/use_awaitable.hpp", "simdjson.h", "md4c.h",
}
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', re.MULTILINE)


def includes(text: str) -> Iterator[tuple[int, str, str]]:
    for match in INCLUDE.finditer(without_comments(text)):
        yield line_of(text, match.start()), match[1], match[2]


def src_stands_on_nothing_of_a_desktop(path: str, text: str) -> Iterator[Breach]:
    for line, quote, name in includes(text):
        if quote == '"':
            if name.split("/")[0] in ("adapters", "bridge", "account", "service", "server", "demo", "inprocess"):
                yield Breach(line, f'src/ is the lowest storey, so it includes nothing of "{name}"')
        elif not STANDARD_HEADER.match(name) and name not in LIBRARIES_OF_SRC:
            yield Breach(line, f"src/ includes the standard library, asio's coroutines, simdjson and md4c only, not <{name}>")


def adapters_and_bridge_know_nothing_of_each_other(path: str, text: str) -> Iterator[Breach]:
    other = "bridge/" if path.startswith("desktop/adapters/") else "adapters/"
    for line, quote, name in includes(text):
        if quote == '"' and name.startswith(other):
            yield Breach(line, f'only the composition root joins adapters and bridge, so this file does not include "{name}"')


def simulator_needs_no_toolkit(path: str, text: str) -> Iterator[Breach]:
    for line, _, name in includes(text):
        if re.match(r"(Q[A-Z]|Qt|adapters/|bridge/|glib|libsecret)", name):
            yield Breach(line, f"the simulator runs without a desktop, so it does not include {name}")


def unit_tests_run_without_sleep_or_toolkit(path: str, text: str) -> Iterator[Breach]:
    for line, _, name in includes(text):
        if re.match(r"(Q[A-Z]|Qt|adapters/|bridge/|curl/|sys/socket)", name):
            yield Breach(line, f"unit tests run without a desktop, so they do not include {name}")
    for match in re.finditer(r"\bsleep(_for|_until)?\s*\(", without_comments(text)):
        yield Breach(line_of(text, match.start()), "unit tests own the clock and never sleep")


def headers_are_included_once(path: str, text: str) -> Iterator[Breach]:
    if "#pragma once" not in text:
        yield Breach(1, "a header begins with #pragma once")
    for match in re.finditer(r"^using namespace", text, re.MULTILINE):
        yield Breach(line_of(text, match.start()), "a header opens no namespace for those who include it")


def coroutines_hold_what_they_use(path: str, text: str) -> Iterator[Breach]:
    for find in (temporaries_in_awaits, reference_parameters, capturing_coroutines):
        for at, sentence in find(without_strings(without_comments(text))):
            yield Breach(line_of(text, at), sentence)


def colours_come_from_the_theme(path: str, text: str) -> Iterator[Breach]:
    if Path(path).name == "Theme.qml":
        return
    literal = re.compile(r'"#[0-9a-fA-F]{3,8}"|\bQt\.(rgba|hsla|hsva)\(|[cC]olor:\s*"(?!transparent")\w+"')
    for match in literal.finditer(without_comments(text)):
        yield Breach(line_of(text, match.start()), f"colours are named in Theme.qml only, not {match[0]}")


BARE_TEXT = re.compile(r"(?<![\w.])(Text|TextEdit|TextInput)\s*\{")
STOCK_CONTROLS = re.compile(r"^import QtQuick\.Controls\b", re.MULTILINE)


def screens_show_text_through_the_kit(path: str, text: str) -> Iterator[Breach]:
    for match in BARE_TEXT.finditer(without_comments(text)):
        yield Breach(line_of(text, match.start()), f"a screen shows text through the kit's labels, not through {match[1]}")


def controls_are_the_kits(path: str, text: str) -> Iterator[Breach]:
    for match in STOCK_CONTROLS.finditer(without_comments(text)):
        yield Breach(line_of(text, match.start()), "stock controls guess at rich text of the service: take the kit, or QtQuick.Templates")


def the_kit_shows_plain_text(path: str, text: str) -> Iterator[Breach]:
    code = without_comments(text)
    for match in BARE_TEXT.finditer(code):
        if match[1] != "TextInput" and not re.search(r"textFormat:", block(code, match.end() - 1)):
            yield Breach(line_of(text, match.start()), f"{match[1]} says its textFormat, which else is a guess at rich text")


def block(code: str, opening: int) -> str:
    depth = 0
    for at in range(opening, len(code)):
        depth += {"{": 1, "}": -1}.get(code[at], 0)
        if depth == 0:
            return code[opening:at]
    return code[opening:]


def modules_of_ours_are_found_first(path: str, text: str) -> Iterator[Breach]:
    for match in re.finditer(r"^[^#\n]*sys\.path(\.(append|extend)\(|\s*\+=)", text, re.MULTILINE):
        yield Breach(line_of(text, match.start()), "a package that is installed may have a module's name, so ours goes first: sys.path.insert(0, ...)")


def files_stay_readable(path: str, text: str) -> Iterator[Breach]:
    lines = text.count("\n")
    if lines > 400:
        yield Breach(400, f"{lines} lines are more than one file holds; 400 is where it is split")
    if re.search(r"(^|/)\w*(utils?|helpers|common)(/|\.)", path, re.IGNORECASE):
        yield Breach(1, "a file is named after what it is, not utils, helpers or common")


CPP = r"\.(h|cpp)$"
RULES: list[tuple[str, Check]] = [
    (r"^src/.*" + CPP, src_stands_on_nothing_of_a_desktop),
    (r"^desktop/(adapters|bridge)/.*" + CPP, adapters_and_bridge_know_nothing_of_each_other),
    (r"^simulator/(?!demo/).*" + CPP, simulator_needs_no_toolkit),
    (r"^tests/unit/.*" + CPP, unit_tests_run_without_sleep_or_toolkit),
    (r"\.h$", headers_are_included_once),
    (CPP, coroutines_hold_what_they_use),
    (r"^desktop/.*\.qml$", colours_come_from_the_theme),
    (r"^desktop/qml/(?!kit/|messages/).*\.qml$", screens_show_text_through_the_kit),
    (r"^desktop/.*\.qml$", controls_are_the_kits),
    (r"^desktop/qml/(kit|messages)/.*\.qml$", the_kit_shows_plain_text),
    (r"^(?!tools/lint/).*\.py$", modules_of_ours_are_found_first),
    (r"\.(h|cpp|qml|py)$", files_stay_readable),
]


def breaches(path: str, text: str) -> list[Breach]:
    return sorted(breach for pattern, check in RULES if re.search(pattern, path) for breach in check(path, text))


def main(paths: list[str]) -> int:
    found = 0
    for path in paths:
        try:
            text = Path(path).read_text(encoding="utf-8")
        except (UnicodeDecodeError, FileNotFoundError):
            continue
        for breach in breaches(path, text):
            print(f"{path}:{breach.line}: {breach.sentence}")
            found += 1
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
