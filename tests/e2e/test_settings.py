"""The settings: where the key comes from, how it is typed, and where it goes."""

import pytest

from patience import eventually
from service import KEY, NAMES
from test_key import MISSING

FIELD = "API key"
OTHER_KEY = "kept-before"
ASKS = "Are you sure you want to delete your API key? You will need to enter it again to use the app."


def type_key(screen, the_display, key: str) -> None:
    """Types the key into the open sheet with the keyboard only."""
    screen.wait_for_focus(FIELD)
    the_display.type_text(key)
    the_display.press_key("Tab")
    # The button takes no focus while there is nothing to save.
    screen.wait_for_focus("Save & Verify")


def test_a_first_start_leads_to_the_key_and_the_key_to_the_pages(start, the_keyring, the_service, the_display):
    the_keyring.remove()
    screen = start().screen
    screen.wait_for(MISSING)

    screen.press("Open Settings")
    screen.wait_for("Connect to your Kestrune account")
    type_key(screen, the_display, f"  {KEY} ")
    the_display.press_key("Return")
    screen.wait_for("API key saved")
    screen.wait_for("Connected")
    assert the_keyring.lookup() == KEY.encode()

    screen.press("Done")
    screen.wait_until_gone("API key saved")
    screen.wait_for_rows(NAMES)
    screen.wait_for_focus(NAMES[0])


def test_a_key_in_the_field_is_nowhere_on_the_accessibility_bus(start, the_keyring, the_service, the_display):
    the_keyring.remove()
    screen = start().screen
    screen.press("Open Settings")
    type_key(screen, the_display, KEY)

    said = screen.everything_said()
    assert FIELD in said
    assert not [text for text in said if KEY in text]

    the_display.press_key("Return")
    screen.wait_for("Connected")
    assert not [text for text in screen.everything_said() if KEY in text]


def test_a_wrong_key_is_refused_and_what_is_stored_stays(start, the_keyring, the_service, the_display):
    the_keyring.remove()
    screen = start().screen
    screen.press("Open Settings")
    type_key(screen, the_display, "wrong")
    the_keyring.store(OTHER_KEY.encode())

    the_display.press_key("Return")
    screen.wait_for("Invalid or unauthorized API key.")
    assert the_keyring.lookup() == OTHER_KEY.encode()
    assert not screen.shows("API key saved")


@pytest.fixture
def sheet(start, stored_key, the_service):
    """The settings of a program that has its key."""
    screen = start().screen
    screen.wait_for_rows(NAMES)
    screen.press("Settings")
    screen.press("Delete API Key")
    screen.wait_for(ASKS)
    return screen


def test_delete_asks_and_cancel_keeps_the_key(sheet, the_keyring):
    sheet.wait_for_focus("Cancel")
    sheet.press("Cancel")
    sheet.wait_until_gone(ASKS)
    assert sheet.shows("API key saved")
    assert the_keyring.lookup() == KEY.encode()


def test_delete_asks_and_escape_keeps_the_key_and_the_sheet(sheet, the_keyring, the_display):
    sheet.wait_for_focus("Cancel")
    the_display.press_key("Escape")
    sheet.wait_until_gone(ASKS)
    assert sheet.shows("API key saved")
    assert the_keyring.lookup() == KEY.encode()


def test_delete_takes_the_key_out_of_the_keyring_and_the_pages_off_the_window(sheet, the_keyring):
    sheet.press("Delete")
    sheet.wait_until_gone("API key saved")
    eventually(lambda: the_keyring.lookup() == b"", "the key is still in the keyring")

    # It is behind the sheet, so it is not visible yet.
    eventually(lambda: "No Status Pages" in sheet.everything_said(), "the pages are still in the window")

    sheet.press("Done")
    sheet.wait_for(MISSING)
    assert sheet.rows() == []
