"""A service that keeps sending and never ends: the program waits for one minute."""

import time

from service import NAMES


def test_a_minute_of_single_bytes_is_a_timeout(start, stored_key, the_service):
    the_service.fail("drip")
    began = time.monotonic()
    screen = start().screen
    screen.wait_for("The request timed out.", seconds=75)
    assert time.monotonic() - began > 55

    the_service.mend()
    screen.press("Retry")
    screen.wait_for_rows(NAMES)
