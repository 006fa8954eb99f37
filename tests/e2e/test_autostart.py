"""A start with the session, in the panel alone, beside a panel that people use."""

from contextlib import ExitStack

import pytest

import program
import xfce
from patience import eventually
from service import NAMES
from test_xfce import DASHBOARD


@pytest.fixture
def panel(the_session, the_display):
    """A panel that has not started yet."""
    made = xfce.prepared(the_session, the_display)
    yield made
    made.end()


@pytest.fixture
def start_minimized(the_session, the_display, stored_key, the_service):
    with ExitStack() as started:
        yield lambda: started.enter_context(program.program(the_session, the_display, program.BINARY, "--minimized"))


def windows(running) -> list[str]:
    return running.display.windows(running.process.pid)


def test_it_stands_in_the_panel_until_its_menu_opens_the_window(panel, start_minimized):
    panel.start()
    running = start_minimized()
    panel.wait_for_icon()
    rows = panel.open_menu()
    assert windows(running) == []
    panel.press(rows[DASHBOARD])
    running.window()
    running.screen.wait_for_rows(NAMES)


def test_a_panel_that_the_session_starts_later_has_the_icon(panel, start_minimized, the_session):
    running = start_minimized()
    eventually(lambda: the_session.has("com.kestrune.larkspan"), "the program does not start")
    assert windows(running) == []
    panel.start()
    panel.wait_for_icon()
    assert windows(running) == []


def test_a_panel_that_crashes_leaves_the_window(panel, start_minimized):
    panel.start()
    running = start_minimized()
    panel.wait_for_icon()
    assert windows(running) == []
    panel.crash()
    running.window()
    running.screen.wait_for_rows(NAMES)
