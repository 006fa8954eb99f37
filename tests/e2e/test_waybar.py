"""The item in the panel of a Wayland desktop that minimises no windows, and the window that comes and goes with it."""

from contextlib import ExitStack

import pytest

import bar
import program as programs
from patience import eventually
from service import NAMES
from sway import the_display, the_session  # The desktop of this file's tests.
from test_day import STALE

PAGES = [f"{NAMES[0]}, Operational", f"{NAMES[1]}, Degraded", f"{NAMES[2]}, Operational"]
COMMANDS = ["Refresh", "Open Dashboard", "Check for Updates…", "Quit"]


@pytest.fixture
def panel(the_session, the_display):
    with bar.bar(the_session, the_display) as made:
        yield made


@pytest.fixture
def program(panel, start, stored_key, the_service):
    made = start()
    made.screen.wait_for_rows(NAMES)
    panel.wait_for_icon()
    return made


@pytest.fixture
def start_minimized(the_session, the_display, stored_key, the_service):
    with ExitStack() as started:
        yield lambda: started.enter_context(programs.program(the_session, the_display, programs.BINARY, "--minimized"))


def close(program, the_display) -> None:
    the_display.press_close_button(the_display.window(program.process.pid))
    eventually(lambda: not the_display.windows(program.process.pid), "closing does not hide the window")
    assert program.is_running()


def wait_until_in_front(program, the_display) -> None:
    eventually(lambda: the_display.focused() == program.process.pid, "the window does not come back with the focus")
    program.screen.wait_for_rows(NAMES)


def test_the_icon_follows_the_status(panel, program, the_service, the_display):
    the_display.still_picture().save("waybar-icon")
    degraded = panel.icon()
    assert len(degraded.colours()) > 1
    the_service.change("api", health="operational")
    program.screen.press("Refresh Now")
    eventually(lambda: panel.icon() != degraded, "the icon does not change")


def test_a_screen_reader_says_each_row_of_the_open_menu_with_its_dot(panel, program, the_service, the_display):
    panel.open_menu()
    panel.wait_for_rows(["Degraded", *PAGES, *COMMANDS])
    the_display.still_picture().save("waybar-menu")

    the_service.change("web", health="major-outage")
    program.screen.press("Refresh Now")
    panel.wait_for_rows(["Down", f"{NAMES[0]}, Down", *PAGES[1:], *COMMANDS])

    the_service.fail("status", code=503)
    panel.choose("Refresh")
    program.screen.wait_for(STALE)
    panel.open_menu()
    panel.wait_for_rows(["Down", "Refresh Failed", f"{NAMES[0]}, Down", *PAGES[1:], *COMMANDS])
    panel.choose("Quit")
    assert program.process.wait(5) == 0


def test_open_dashboard_brings_the_hidden_window_back(panel, program, the_service, the_display):
    close(program, the_display)
    panel.open_menu()
    panel.choose("Open Dashboard")
    wait_until_in_front(program, the_display)
    the_service.change("api", health="operational")
    program.screen.press("Refresh Now")
    program.screen.wait_for("All systems operational")
    the_display.still_picture().save("waybar-came-back")


def test_a_page_of_the_menu_opens_and_comes_to_the_front(panel, program, the_display):
    close(program, the_display)
    panel.open_menu()
    panel.choose(NAMES[1])
    eventually(lambda: the_display.focused() == program.process.pid, "the window does not come back with the focus")
    program.screen.wait_for("Current Status")
    assert program.screen.shows(NAMES[1])


@pytest.mark.parametrize("has_token", [True, False], ids=["with a token", "without a token"])
def test_starting_the_program_again_brings_the_hidden_window_back(panel, program, the_display, has_token):
    close(program, the_display)
    if has_token:
        program.surroundings["XDG_ACTIVATION_TOKEN"] = the_display.activation_token()
    assert programs.start_again(program) == 0
    wait_until_in_front(program, the_display)


def test_a_panel_that_goes_leaves_the_window_and_one_that_comes_gets_the_icon(the_session, the_display, start, stored_key, the_service):
    with bar.bar(the_session, the_display) as first:
        program = start()
        program.screen.wait_for_rows(NAMES)
        first.wait_for_icon()
        close(program, the_display)
    wait_until_in_front(program, the_display)
    with bar.bar(the_session, the_display) as second:
        second.wait_for_icon()
        close(program, the_display)
        second.open_menu()
        second.choose("Open Dashboard")
        wait_until_in_front(program, the_display)


def test_started_in_the_panel_alone_it_shows_its_window_when_asked(panel, start_minimized, the_display, the_service):
    minimized = start_minimized()
    panel.wait_for_icon()
    eventually(the_service.requests, "nothing is fetched")
    assert not the_display.windows(minimized.process.pid)
    panel.open_menu()
    panel.choose("Open Dashboard")
    wait_until_in_front(minimized, the_display)


def test_started_in_the_panel_alone_without_a_panel_it_shows_its_window(start_minimized, the_display):
    minimized = start_minimized()
    # A panel may start later than the program, so that waits for a while.
    eventually(lambda: the_display.windows(minimized.process.pid), "no window comes", seconds=20)
    wait_until_in_front(minimized, the_display)
