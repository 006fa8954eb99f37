#!/usr/bin/python3
"""Writes the tables of CharacterTables.h as C++.

usage: character_tables.py OUTPUT
"""

import html.entities
import sys
import unicodedata
from itertools import groupby
from pathlib import Path

FRAME = """#include "messages/markdown/CharacterTables.h"

namespace larkspan::messages {{

namespace {{

constexpr NamedCharacter named[] = {{
{named}
}};

constexpr CharacterRange joining[] = {{
{joining}
}};

}}  // namespace

std::span<const NamedCharacter> namedCharacters()
{{
    return named;
}}

std::span<const CharacterRange> joiningCharacters()
{{
    return joining;
}}

}}  // namespace larkspan::messages
"""


def named_characters():
    whole = {name[:-1]: text for name, text in html.entities.html5.items() if name.endswith(";")}
    for name, text in sorted(whole.items()):
        octets = "".join(f"\\{octet:03o}" for octet in text.encode())
        yield f'    {{"{name}", "{octets}"}},'


def joins(code):
    return (unicodedata.category(chr(code)).startswith("M") or code in (0x200C, 0x200D)
            or 0x1160 <= code <= 0x11FF or 0xD7B0 <= code <= 0xD7FF
            or 0x1F3FB <= code <= 0x1F3FF or 0xE0020 <= code <= 0xE007F)


def joining_characters():
    for joining, group in groupby(range(sys.maxunicode + 1), joins):
        if joining:
            codes = list(group)
            yield f"    {{0x{codes[0]:X}, 0x{codes[-1]:X}}},"


def main(output):
    text = FRAME.format(named="\n".join(named_characters()), joining="\n".join(joining_characters()))
    Path(output).write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main(sys.argv[1])
