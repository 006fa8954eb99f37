"""Waiting for events in other processes."""

import time
from typing import Callable, TypeVar

Value = TypeVar("Value")


def eventually(look: Callable[[], Value], what: Callable[[], str] | str, seconds: float = 10) -> Value:
    """Returns the first true result of `look`; fails with the words of `what` if there is none in time."""
    deadline = time.monotonic() + seconds
    while True:
        found = look()
        if found:
            return found
        if time.monotonic() > deadline:
            raise AssertionError(what if isinstance(what, str) else what())
        time.sleep(0.02)
