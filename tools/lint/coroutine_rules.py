"""The mistakes of g++ 12 in coroutines, and references that may outlive their object; the code is given without
comments and strings."""

import re
from typing import Iterator

from cpp_text import closing

Finding = tuple[int, str]

TASK_FUNCTION = re.compile(r"\bTask<[^;{}()=]*>\s+(?:\w+(?:<[^()]*>)?::)*\w+\s*(\()")
LAMBDA = re.compile(r"(?<![\w\])])\[([^\[\]]*)\]\s*(?=[({]|mutable\b|->)")


def operand_after(code: str, at: int) -> str:
    """The operand of the await at `at`: up to a binary operator, which formatted code puts between blanks, or the
    expression's end."""
    depth = 0
    start = at + len(code[at:]) - len(code[at:].lstrip())
    for end in range(start, len(code)):
        if code[end] in "([{":
            depth += 1
        elif code[end] in ")]}":
            depth -= 1
        if depth < 0 or (depth == 0 and (code[end] in ";," or re.match(r"\s+[-+*/%=!<>&|?:]", code[end:end + 40]))):
            return code[start:end]
    return code[start:]


def temporaries_in_awaits(code: str) -> Iterator[Finding]:
    for match in re.finditer(r"\bco_await\b", code):
        operand = operand_after(code, match.end())
        if re.search(r'[{?"]|\[[^\]]*\]\s*[({]', operand):
            yield match.start(), "g++ 12 miscompiles temporaries in an await: name the local first, then co_await a call on names"


def parameters(code: str, opening: int) -> Iterator[str]:
    inner = code[opening + 1:closing(code, opening)]
    depth = start = 0
    for at, character in enumerate(inner):
        depth += {"<": 1, "(": 1, "{": 1, ">": -1, ")": -1, "}": -1}.get(character, 0)
        if character == "," and depth == 0:
            yield inner[start:at]
            start = at + 1
    yield inner[start:]


def is_borrowed(parameter: str) -> bool:
    declared = parameter.split("=")[0]
    return bool(re.search(r"\bconst\b[^<]*&|&&|\b(string_view|span)\b", re.sub(r"<[^<>]*>", "", declared)))


def reference_parameters(code: str) -> Iterator[Finding]:
    for match in TASK_FUNCTION.finditer(code):
        for parameter in parameters(code, match.start(1)):
            if is_borrowed(parameter):
                yield match.start(), f"a task may outlive its caller, so it takes its arguments by value: {' '.join(parameter.split())}"


def capturing_coroutines(code: str) -> Iterator[Finding]:
    for match in LAMBDA.finditer(code):
        body = code.find("{", match.end())
        if not match[1].strip() or body < 0 or ";" in code[match.end():body]:
            continue
        if re.search(r"\bco_(await|return|yield)\b", code[body:closing(code, body)]):
            yield match.start(), "a coroutine is a function, never a lambda with captures, which die before it does"
