"""The window on a Wayland desktop that minimises windows, and that never tells a program whether it has."""

import pytest

import peers
import session
from kwin import kwin
from program import Program, start_again
from service import NAMES

DEGRADED, OPERATIONAL = "1 Status Page is degraded", "All systems operational"


@pytest.fixture(scope="module")
def the_session(tmp_path_factory):
    with session.session(None, tmp_path_factory.mktemp("home")) as made:
        yield made


@pytest.fixture(scope="module")
def the_display(the_session):
    with kwin(the_session) as made:
        yield made


@pytest.fixture
def panel(the_session):
    with peers.panel(the_session) as made:
        yield made


@pytest.fixture
def program(start, stored_key, the_service):
    made = start()
    made.screen.wait_for_rows(NAMES)
    return made


def change_the_status(program: Program, the_service) -> None:
    the_service.change("api", health="operational")
    program.screen.press("Refresh Now")
    program.screen.wait_for(OPERATIONAL)


def test_the_window_has_the_programs_id_and_title(program, the_display):
    window = the_display.window(program.process.pid)
    assert window["id"] == "com.kestrune.larkspan"
    assert window["title"] == "Kestrune"


def test_the_desktop_brings_a_closed_window_back_and_its_texts_go_on(program, the_display, the_service):
    program.screen.wait_for(DEGRADED)
    the_display.close(program.process.pid)
    the_display.activate(program.process.pid)
    change_the_status(program, the_service)


def test_what_changes_while_the_window_is_minimised_stands_in_it_afterwards(panel, program, the_display, the_service):
    panel.wait_for_item()
    the_display.close(program.process.pid)
    the_service.change("api", health="operational")
    panel.click("Refresh")
    panel.wait_for(OPERATIONAL, "Operational")
    the_display.activate(program.process.pid)
    program.screen.wait_for(OPERATIONAL)


def test_open_dashboard_brings_the_window_back_and_its_texts_go_on(panel, program, the_display, the_service):
    panel.wait_for_item()
    the_display.close(program.process.pid)
    panel.click("Open Dashboard")
    the_display.wait_until_in_front(program.process.pid)
    change_the_status(program, the_service)


def test_starting_the_program_again_brings_the_window_back(program, the_display, the_service):
    the_display.close(program.process.pid)
    assert start_again(program) == 0
    the_display.wait_until_in_front(program.process.pid)
    change_the_status(program, the_service)
