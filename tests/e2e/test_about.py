"""The about box and the check for updates."""

import pytest

from service import NAMES

REPORT = "There is no package service on this computer. Updates come with those of your distribution."


@pytest.fixture
def screen(start, stored_key, the_service):
    made = start().screen
    made.wait_for_rows(NAMES)
    return made


def version(screen) -> list[str]:
    return [text for text in screen.texts() if text.startswith("Version ")]


def test_about_tells_the_version_and_escape_gives_the_focus_back(screen, the_display):
    screen.press("Menu")
    screen.choose("About Kestrune")
    screen.wait_for("A focused companion for monitoring your Kestrune status pages.")
    assert len(version(screen)) == 1
    screen.wait_for_focus("Done")

    the_display.press_key("Escape")
    screen.wait_until_gone("Done")
    screen.wait_for_focus("Menu")


def test_done_closes_about(screen):
    screen.press("Menu")
    screen.choose("About Kestrune")
    screen.press("Done")
    screen.wait_until_gone("Done")
    assert screen.rows() == NAMES


def test_without_a_package_service_the_check_for_updates_says_so(screen, the_display):
    screen.press("Menu")
    screen.choose("Check for Updates…")
    screen.wait_for("Couldn’t Check for Updates")
    assert screen.shows(REPORT)
    screen.wait_for_focus("OK")
    the_display.press_key("Return")
    screen.wait_until_gone(REPORT)
    screen.wait_for_focus("Menu")
    assert screen.rows() == NAMES
