"""Waiting for what happens elsewhere."""

import time
from typing import Callable, TypeVar

Value = TypeVar("Value")


def eventually(look: Callable[[], Value], what: Callable[[], str] | str, seconds: float = 10) -> Value:
    """The first true answer of `look`; fails with the words of `what` when it stays untrue."""
    deadline = time.monotonic() + seconds
    while True:
        found = look()
        if found:
            return found
        if time.monotonic() > deadline:
            raise AssertionError(what if isinstance(what, str) else what())
        time.sleep(0.02)
