"""C++ and QML text in which everything but code is replaced by blanks, so that offsets stay the same."""

import re

COMMENT_OR_STRING = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<mark>[^()\s]{0,16})\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])*\'',
    re.DOTALL)


def blanked(text: str) -> str:
    return re.sub(r"[^\n]", " ", text)


def without_comments(text: str) -> str:
    return COMMENT_OR_STRING.sub(lambda found: blanked(found[0]) if found[0].startswith("/") else found[0], text)


def without_strings(text: str) -> str:
    """The quotes are kept, so that a literal is still visible as one."""
    return COMMENT_OR_STRING.sub(
        lambda found: found[0] if found[0].startswith("/") else found[0][0] + blanked(found[0][1:-1]) + found[0][-1], text)


def line_of(text: str, at: int) -> int:
    return text.count("\n", 0, at) + 1


def closing(text: str, opening: int) -> int:
    """The offset at which the bracket at `opening` is closed; the end of the text if it never is."""
    depth = 0
    for at in range(opening, len(text)):
        if text[at] in "([{":
            depth += 1
        elif text[at] in ")]}":
            depth -= 1
            if depth == 0:
                return at
    return len(text)
