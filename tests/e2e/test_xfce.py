"""The item in a panel that people use, on X11. Pictures of it are kept in the build folder."""

import pytest

import xfce
from patience import eventually
from service import NAMES

GREEN, ORANGE = (0x2a, 0x95, 0x5a), (0xcc, 0x72, 0x12)
STATUS, COMMANDS = [None] * 2, [None] * 4
DOTS = [GREEN, ORANGE, GREEN]
PUBLIC_API = 3
REFRESH, DASHBOARD, QUIT = -4, -3, -1


def dots(rows: list[xfce.Line]) -> list:
    return [row.dot for row in rows]


def disabled(rows: list[xfce.Line]) -> list[int]:
    """The numbers of the rows whose letters are dim."""
    clear = max(row.contrast for row in rows)
    return [number for number, row in enumerate(rows) if row.contrast < clear / 2]


@pytest.fixture(scope="module")
def panel(the_session, the_display):
    with xfce.panel(the_session, the_display) as made:
        yield made


@pytest.fixture
def program(panel, start, stored_key, the_service):
    made = start()
    made.screen.wait_for_rows(NAMES)
    panel.wait_for_icon()
    return made


def test_the_tip_of_the_icon_tells_the_status_and_the_program(panel, program):
    panel.point_at_icon()
    assert len(panel.wait_for_lines(2)) == 2
    panel.popup().save("xfce-tool-tip")


def test_the_menu_has_a_dot_for_each_page_and_says_the_status_in_disabled_rows(panel, program, the_display):
    rows = panel.open_menu()
    the_display.picture().save("xfce-menu")
    assert dots(rows) == STATUS + DOTS + COMMANDS
    assert disabled(rows) == [0, 1]


def test_refresh_fetches_anew(panel, program, the_service):
    rows = panel.open_menu()
    the_service.forget()
    panel.press(rows[REFRESH])
    eventually(the_service.requests, "nothing is fetched")


def test_open_dashboard_brings_the_minimised_window_back(panel, program, the_display):
    window = program.window()
    the_display.press_close_button(window)
    eventually(lambda: the_display.state(window) == "Iconic", "closing does not minimise")
    panel.press(panel.open_menu()[DASHBOARD])
    eventually(lambda: the_display.active_window() == window, "the window does not come back")


def test_a_page_of_the_menu_opens(panel, program):
    panel.press(panel.open_menu()[PUBLIC_API])
    program.screen.wait_for("Current Status")
    assert program.screen.shows("Public API")


def test_an_incident_comes_into_the_open_menu_and_the_rows_go_on_doing_the_same(panel, program, the_service, the_display):
    panel.open_menu()
    menu = panel.popups()
    the_service.open_incident("Login errors")
    program.screen.press("Refresh Now")
    program.screen.wait_for("3 Status Pages · 1 active incident")

    incident = [None] * 2
    shown = STATUS + DOTS + incident
    eventually(lambda: dots(panel.wait_for_lines(len(shown)))[:len(shown)] == shown, "the incident does not come into the menu")
    the_display.picture().save("xfce-menu-incident")
    assert panel.popups() == menu
    rows = panel.wait_for_lines(len(shown))
    assert disabled(rows[:len(shown)]) == [0, 1, 5, 6]
    panel.press(rows[PUBLIC_API])
    program.screen.wait_for("Current Status")
    assert program.screen.shows("Public API")


def test_a_panel_that_crashes_and_starts_again_has_the_icon_again(panel, program):
    panel.crash()
    eventually(lambda: not panel.icon(), "the panel stays")
    panel.start()
    panel.wait_for_icon()
    assert dots(panel.open_menu()) == STATUS + DOTS + COMMANDS


def test_quit_ends_the_program_and_removes_the_icon(panel, program):
    panel.press(panel.open_menu()[QUIT])
    assert program.process.wait(5) == 0
    eventually(lambda: not (icon := panel.icon()) or len(icon.colours()) < 5, "the icon stays")
