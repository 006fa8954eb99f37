"""The key: absent, unusable, locked, and available again."""

import pytest

from service import KEY, NAMES
from test_day import STALE

MISSING = "API key is missing."


def test_without_a_key_the_first_window_says_so(start, the_keyring, the_service):
    the_keyring.remove()
    screen = start().screen
    screen.wait_for("Couldn’t Refresh")
    screen.wait_for(MISSING)
    assert the_service.requests() == []


def test_a_key_that_was_just_stored_takes_effect_with_the_next_request(start, the_keyring, the_service):
    the_keyring.remove()
    screen = start().screen
    screen.wait_for(MISSING)

    the_keyring.store(KEY.encode())
    screen.press("Retry")
    screen.wait_for_rows(NAMES)


def test_an_empty_key_is_no_key(start, the_keyring, the_service):
    the_keyring.store(b"")
    screen = start().screen
    screen.wait_for(MISSING)
    assert the_service.requests() == []


@pytest.mark.parametrize("key", [b"two\r\nlines", b"tab\there", "ключ".encode(), b"with space"])
def test_a_key_that_cannot_stand_in_a_header_is_never_sent(key, start, the_keyring, the_service):
    the_keyring.store(key)
    screen = start().screen
    screen.wait_for("The stored API key cannot be used. Save it again.")
    assert the_service.requests() == []


def test_a_key_that_is_not_text_is_no_key(start, the_keyring, the_service):
    the_keyring.store_what_is_no_text(b"\xff\xfe\xfd")
    screen = start().screen
    screen.wait_for(MISSING)
    assert the_service.requests() == []


def test_a_key_that_goes_leaves_the_pages_on_screen(start, the_keyring, stored_key, the_service):
    screen = start().screen
    screen.wait_for_rows(NAMES)

    the_keyring.remove()
    screen.press("Refresh Now")
    screen.wait_for(STALE)
    assert screen.rows() == NAMES
