"""The status on a terminal, for bars, scripts and monitoring; and a start in the panel alone."""

import json
import subprocess

import pytest

import peers
import program
from patience import eventually
from service import NAMES
from session import session
from keyring import keyring

DEGRADED = "1 Status Page is degraded\n3 Status Pages\n"


@pytest.fixture
def ask(the_session, the_service):
    """Asks on a terminal, and returns exit code, output and standard error."""
    def asking(*arguments: str, surroundings: dict[str, str] | None = None) -> tuple[int, str, str]:
        # No display: a status must be told on a server's console and in a timer, too.
        everything = dict(surroundings or the_session.surroundings)
        everything.pop("DISPLAY", None)
        told = subprocess.run([program.BINARY, "--status", *arguments], env=everything, capture_output=True, text=True,
                              timeout=30, check=False)
        return told.returncode, told.stdout, told.stderr
    return asking


def test_without_a_running_program_the_account_is_fetched_once(ask, stored_key, the_service):
    assert ask() == (1, DEGRADED, "")
    assert len(the_service.requests()) == 4


def test_operational_ends_with_0_and_an_outage_with_2(ask, stored_key, the_service):
    the_service.change("api", health="operational")
    assert ask() == (0, "All systems operational\n3 Status Pages · No active incidents\n", "")
    the_service.open_incident("Login errors")
    assert ask()[0] == 2


def test_json_has_the_pages_with_their_names(ask, stored_key):
    code, output, _ = ask("--json")
    told = json.loads(output)
    assert (code, told["status"], told["status_pages"]) == (1, "degraded", 3)
    assert [page["name"] for page in told["pages"]] == NAMES
    assert [page["status"] for page in told["pages"]] == ["operational", "degraded", "operational"]


def test_the_running_program_is_asked_instead_of_the_service(ask, start, stored_key, the_service):
    start().screen.wait_for_rows(NAMES)
    fetched = ask()
    the_service.forget()
    assert ask() == fetched == (1, DEGRADED, "")
    assert the_service.requests() == []


def test_a_failure_ends_with_3_and_its_words_are_on_standard_error(ask, stored_key, the_service):
    the_service.fail("status", code=503)
    code, output, problem = ask()
    assert (code, output) == (3, "Status may be stale\n")
    assert "503" in problem


def test_no_key_ends_with_3_and_a_locked_keyring_shows_no_prompt(ask, the_display, the_service, tmp_path):
    with session(the_display, tmp_path) as own, keyring(own) as locked:
        missing = (3, "Status may be stale\n", "larkspan: API key is missing. A locked keyring is not unlocked for this.\n")
        assert ask(surroundings=own.surroundings) == missing
        locked.store(b"e2e-key")
        locked.lock()
        assert ask(surroundings=own.surroundings) == missing
        assert the_display.titles() == []
        assert the_service.requests() == []


def test_without_a_session_bus_it_ends_with_3(ask, the_session):
    nowhere = the_session.surroundings | {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere"}
    assert ask(surroundings=nowhere)[0] == 3


def test_a_start_in_the_panel_alone_shows_no_window_until_it_is_asked_for(start_minimized, the_session, the_display, stored_key, the_service):
    with peers.panel(the_session) as panel:
        started = start_minimized()
        panel.wait_for_item()
        panel.wait_for("Some systems degraded", "Degraded")
        assert the_display.windows(started.process.pid) == []
        again = subprocess.run([program.BINARY, "--minimized"], env=started.surroundings, timeout=10, check=False)
        assert again.returncode == 0
        assert the_display.windows(started.process.pid) == []
        panel.click("Open Dashboard")
        started.window()
        started.screen.wait_for_rows(NAMES)


def test_a_start_in_the_panel_alone_shows_the_window_where_there_is_no_panel(start_minimized, stored_key, the_service):
    started = start_minimized()
    eventually(lambda: started.display.windows(started.process.pid), "no window came", seconds=15)
    started.screen.wait_for_rows(NAMES)


@pytest.fixture
def start_minimized(the_session, the_display):
    from contextlib import ExitStack
    with ExitStack() as started:
        yield lambda: started.enter_context(program.program(the_session, the_display, program.BINARY, "--minimized"))
