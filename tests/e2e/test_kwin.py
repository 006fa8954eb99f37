"""The window on a Wayland desktop that minimises windows, and that never tells a program whether it has."""

import pytest

import peers
import session
from kwin import KWin, kwin
from patience import eventually
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


def minimise(program: Program, the_display: KWin) -> None:
    the_display.close(program.process.pid)
    eventually(lambda: the_display.window(program.process.pid)["is_minimised"], "closing does not minimise")
    assert program.is_running()


def wait_until_in_front(program: Program, the_display: KWin) -> None:
    eventually(lambda: (window := the_display.window(program.process.pid))["has_focus"] and not window["is_minimised"],
               lambda: f"the window does not come back: {the_display.window(program.process.pid)}")


def change_the_status(program: Program, the_service) -> None:
    the_service.change("api", health="operational")
    program.screen.press("Refresh Now")
    program.screen.wait_for(OPERATIONAL)


def test_the_window_has_the_programs_id_and_title(program, the_display):
    window = the_display.window(program.process.pid)
    assert window["id"] == "com.kestrune.larkspan"
    assert window["title"] == "Kestrune"
    the_display.picture().save("kwin-window")


def test_the_desktop_brings_a_closed_window_back_and_its_texts_go_on(program, the_display, the_service):
    program.screen.wait_for(DEGRADED)
    before = the_display.picture()
    minimise(program, the_display)
    the_display.activate(program.process.pid)
    wait_until_in_front(program, the_display)

    change_the_status(program, the_service)
    eventually(lambda: the_display.picture() != before, "the picture stays")
    the_display.picture().save("kwin-came-back")


def test_what_changes_while_the_window_is_minimised_stands_in_it_afterwards(panel, program, the_display, the_service):
    panel.wait_for_item()
    minimise(program, the_display)
    the_service.change("api", health="operational")
    panel.click("Refresh")
    panel.wait_for(OPERATIONAL, "Operational")
    the_display.activate(program.process.pid)
    wait_until_in_front(program, the_display)
    program.screen.wait_for(OPERATIONAL)


def test_open_dashboard_brings_the_window_back_and_its_texts_go_on(panel, program, the_display, the_service):
    panel.wait_for_item()
    minimise(program, the_display)
    panel.click("Open Dashboard")
    wait_until_in_front(program, the_display)
    change_the_status(program, the_service)


def test_starting_the_program_again_brings_the_window_back(program, the_display, the_service):
    minimise(program, the_display)
    assert start_again(program) == 0
    wait_until_in_front(program, the_display)
    change_the_status(program, the_service)
