"""A status page that is opened with the keyboard only, its overview, and the way back."""

import opening
from service import NAMES, PAGES

TABS = ["Overview", "Incidents", "Monitors", "Components", "Maintenances"]


def test_a_page_opens_from_its_row_and_the_way_back_leads_to_it(start, stored_key, the_service, the_display):
    screen = opening.first_page(start, the_display)
    assert screen.shows(NAMES[0])
    assert all(screen.shows(tab) for tab in TABS)
    assert screen.shows("Current Activity")

    the_display.press_key("Escape")
    screen.wait_for_rows(NAMES)
    screen.wait_for_focus(NAMES[0])


def test_alt_and_left_leads_back_too_and_the_tabs_are_chosen_by_their_keys(start, stored_key, the_service, the_display):
    screen = opening.first_page(start, the_display)
    the_display.press_key("ctrl+4")
    screen.wait_until_gone("Current Status")
    the_display.press_key("ctrl+Next")
    the_display.press_key("ctrl+Next")
    screen.wait_for("Current Status")
    the_display.press_key("alt+Left")
    screen.wait_for_rows(NAMES)


def test_an_opened_page_follows_the_account_and_closes_when_it_is_gone(start, stored_key, the_service, the_display):
    screen = opening.first_page(start, the_display)
    the_service.change(PAGES[0]["id"], name="A name of its own")
    the_display.press_key("F5")
    screen.wait_for("A name of its own")

    the_service.give(PAGES[1:])
    the_display.press_key("F5")
    screen.wait_for_rows(NAMES[1:])
