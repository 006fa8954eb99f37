"""Where the key is in the memory of the program, once nothing works with it."""

import re
import time
from pathlib import Path

import pytest

from patience import eventually
from service import NAMES
from test_key import MISSING
from test_settings import type_key

KEY = "a-key-of-twenty-nine-letters-"


def copies(process_id: int) -> dict[str, int]:
    """How often the key stands in the memory that the process may write, in the two ways in which programs hold text."""
    maps = Path(f"/proc/{process_id}/maps").read_text(encoding="ascii")
    found = {"utf-8": 0, "utf-16-le": 0}
    with open(f"/proc/{process_id}/mem", "rb", buffering=0) as memory:
        for begin, end in re.findall(r"^(\w+)-(\w+) rw", maps, re.MULTILINE):
            memory.seek(int(begin, 16))
            try:
                content = memory.read(int(end, 16) - int(begin, 16))
            except OSError:
                continue
            for encoding in found:
                found[encoding] += content.count(KEY.encode(encoding))
    return found


@pytest.fixture
def the_service_with_the_key(the_service):
    the_service.accept(KEY)
    return the_service


def test_after_it_was_stored_only_the_toolkit_remembers_what_was_typed(
        start, the_keyring, the_service_with_the_key, the_display):
    the_keyring.remove()
    started = start()
    screen = started.screen
    screen.wait_for(MISSING)
    screen.press("Open Settings")
    type_key(screen, the_display, KEY)
    assert copies(started.process.pid)["utf-8"] >= 1, "the key that was typed is not found at all"

    the_display.press_key("Return")
    screen.wait_for("Connected")
    screen.press("Done")
    screen.wait_for_rows(NAMES)
    time.sleep(1)

    left = copies(started.process.pid)
    print("copies of the key after it was stored:", left)
    assert left["utf-8"] == 0


def test_a_refresh_leaves_no_copy(start, the_keyring, the_service_with_the_key):
    the_keyring.store(KEY.encode())
    started = start()
    started.screen.wait_for_rows(NAMES)
    for _ in range(3):
        started.screen.press("Refresh Now")
        time.sleep(0.5)
    eventually(lambda: copies(started.process.pid) == {"utf-8": 0, "utf-16-le": 0}, "a copy of the key is left")
