"""The interval of the program's polls."""

import time

from patience import eventually
from service import NAMES, PAGES_PATH


def polls(the_service) -> int:
    return sum(request["target"] == PAGES_PATH for request in the_service.requests())


def test_a_chosen_interval_counts_from_the_choice(start, stored_key, the_service):
    screen = start().screen
    screen.wait_for_rows(NAMES)
    before = polls(the_service)

    screen.press("Refresh Interval")
    eventually(screen.menu, "no menu came")
    assert screen.menu() == ["Every 30 seconds", "Every 1 minute", "Every 2 minutes", "Every 5 minutes"]
    chosen = time.monotonic()
    screen.choose("Every 30 seconds")
    eventually(lambda: polls(the_service) > before, "no poll came", seconds=40)
    assert 29 < time.monotonic() - chosen < 35
