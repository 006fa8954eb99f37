"""A service that accepts the request and sends nothing: the program waits for half a minute."""

from service import NAMES
from test_day import STALE


def test_half_a_minute_without_a_byte_is_a_timeout_and_the_pages_stay(start, stored_key, the_service):
    screen = start().screen
    screen.wait_for_rows(NAMES)

    the_service.fail("hang")
    screen.press("Refresh Now")
    assert not screen.shows(STALE)
    screen.wait_for(STALE, seconds=40)
    assert screen.rows() == NAMES

    the_service.mend()
    the_service.change("web", name="Website, again")
    screen.press("Retry")
    screen.wait_for("Website, again")
    screen.wait_until_gone(STALE)
