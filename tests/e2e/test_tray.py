"""The item in the panel, and the same rows on a desktop without a panel."""

import pytest

import peers
from patience import eventually
from service import NAMES
from test_day import STALE

SUMMARY = "Some systems degraded"
COMMANDS = ["Refresh", "Open Dashboard", "Check for Updates…", "Quit"]


@pytest.fixture
def panel(the_session):
    with peers.panel(the_session) as made:
        yield made


@pytest.fixture
def program(start, stored_key, the_service):
    made = start()
    made.screen.wait_for_rows(NAMES)
    return made


def test_the_item_follows_the_service_through_break_and_mend(panel, program, the_service):
    panel.wait_for_item()
    panel.wait_for(SUMMARY, "Degraded")
    rows = panel.rows()
    assert rows[1].startswith("Updated ")
    assert rows[2:] == NAMES + COMMANDS

    the_service.fail("status", code=503)
    panel.click("Refresh")
    program.screen.wait_for(STALE)
    eventually(lambda: "Refresh Failed" in panel.rows(), lambda: f"the rows are {panel.rows()}")
    assert panel.tool_tip().endswith("Refresh failed")

    the_service.mend()
    the_service.change("api", health="operational")
    panel.click("Refresh")
    panel.wait_for("All systems operational", "Operational")
    assert "Refresh Failed" not in panel.rows()


def test_of_six_active_incidents_the_menu_shows_five_and_the_sixth_once_one_is_resolved(panel, program, the_service):
    panel.wait_for_item()
    titles = [f"Incident {number}" for number in range(1, 7)]
    opened = [the_service.open_incident(title) for title in titles]
    newest_first = titles[::-1]
    panel.click("Refresh")
    panel.wait_for("Some systems down", "Down")
    shown = panel.rows()[2 + len(NAMES):-len(COMMANDS)]
    assert shown == ["Active Incidents", *newest_first[:5]]

    the_service.resolve_incident(opened[-1])
    panel.click("Refresh")
    eventually(lambda: panel.rows()[2 + len(NAMES):-len(COMMANDS)] == ["Active Incidents", *newest_first[1:]],
               lambda: f"the rows are {panel.rows()}")


def test_without_a_key_the_menu_says_that_the_refresh_failed(panel, start, the_keyring, the_service):
    the_keyring.remove()
    start()
    panel.wait_for_item()
    panel.wait_for("Status stale, refresh failed", "Stale")
    assert panel.rows() == ["Stale", "Refresh Failed", "No Status Pages", *COMMANDS]
    assert panel.tool_tip() == "Status stale, refresh failed • Refresh failed"


def test_before_the_first_cycle_the_menu_says_unknown(panel, start, stored_key, the_service):
    the_service.fail("hang")
    start()
    panel.wait_for_item()
    panel.wait_for("Status unknown", "Unknown")
    assert panel.rows() == ["Unknown", "No Status Pages", *COMMANDS]
    assert panel.tool_tip() == "Status unknown"


def minimise(program, the_display) -> str:
    window = program.window()
    the_display.press_close_button(window)
    eventually(lambda: the_display.state(window) == "Iconic", "closing does not minimise")
    return window


def wait_until_in_front(window, the_display) -> None:
    eventually(lambda: the_display.state(window) == "Normal", "the window does not come back")
    eventually(lambda: the_display.active_window() == window, "the window does not get the focus")


def test_open_dashboard_brings_the_window_back(panel, program, the_display):
    panel.wait_for_item()
    window = minimise(program, the_display)
    panel.click("Open Dashboard")
    wait_until_in_front(window, the_display)
    program.screen.wait_for_rows(NAMES)


def test_a_page_of_the_menu_opens_and_comes_to_the_front(panel, program, the_display):
    panel.wait_for_item()
    window = minimise(program, the_display)
    panel.click("Public API")
    wait_until_in_front(window, the_display)
    program.screen.wait_for("Current Status")
    assert program.screen.shows("Public API")


def test_quit_ends_the_program(panel, program):
    panel.wait_for_item()
    panel.click("Quit")
    assert program.process.wait(5) == 0


def test_a_panel_that_starts_again_has_the_item_again(the_session, program):
    for _ in range(2):
        with peers.panel(the_session) as panel:
            panel.wait_for_item()
            panel.wait_for(SUMMARY, "Degraded")
            assert panel.rows()[-4:] == COMMANDS


def test_without_a_panel_the_window_has_the_same_rows(program, the_service):
    screen = program.screen
    screen.press("Menu")
    eventually(screen.menu, "no menu came")
    rows = screen.menu()
    assert rows[0] == "Degraded"
    assert rows[2:] == [*NAMES, *COMMANDS[:-1], "About Kestrune", COMMANDS[-1]]

    screen.choose("Public API")
    screen.wait_for("Current Status")
    assert screen.shows("Public API")

    screen.press("Back")
    screen.wait_for_rows(NAMES)
    the_service.forget()
    screen.press("Menu")
    screen.choose("Refresh")
    eventually(the_service.requests, "nothing is fetched")

    screen.press("Menu")
    screen.choose("Quit")
    assert program.process.wait(5) == 0
