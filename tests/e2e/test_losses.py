"""Services of the session that die in the middle of use and return."""

import subprocess

import pytest

import keyring
import lone
import peers
import program
import session
from patience import eventually
from service import KEY, NAMES
from test_day import STALE
from test_settings import type_key
from test_tray import COMMANDS, SUMMARY


@pytest.fixture
def own_session(the_display, tmp_path):
    with session.session(the_display, tmp_path) as made:
        yield made


@pytest.fixture
def lone_session(the_session, tmp_path):
    with lone.lone_session(the_session, tmp_path) as made:
        made.start_bus()
        yield made


@pytest.fixture
def orphan(lone_session, the_display, the_service):
    """A program that has fetched its pages, and then lost its session bus with everything on it."""
    with lone_session.with_screen_reader(), keyring.keyring(lone_session) as made:
        made.store(KEY.encode())
        with program.program(lone_session, the_display) as running:
            running.screen.wait_for_rows(NAMES)
            lone_session.end_bus()
            yield running


def test_without_its_keyring_the_settings_cannot_save_and_its_return_brings_the_key_back(own_session, the_display, the_service):
    with keyring.keyring(own_session) as made:
        made.store(KEY.encode())
        with program.program(own_session, the_display) as running:
            screen = running.screen
            screen.wait_for_rows(NAMES)
            made.die()
            screen.press("Refresh Now")
            screen.wait_for(STALE)

            screen.press("Settings")
            type_key(screen, the_display, KEY)
            screen.press("Save & Verify")
            screen.wait_for("Could not save API key to Keychain.")
            screen.press("Done")
            screen.wait_for_rows(NAMES)

            with keyring.keyring(own_session):
                screen.press("Retry")
                screen.wait_until_gone(STALE)
                assert screen.rows() == NAMES


def test_without_its_session_bus_the_program_shows_its_pages_and_answers(orphan, the_display):
    screen = orphan.screen
    screen.press("Refresh Now")
    screen.wait_for(STALE)
    assert screen.rows() == NAMES

    the_display.press_key("Return")
    screen.wait_for("Current Status")
    the_display.press_key("Escape")
    screen.wait_for_rows(NAMES)

    window = orphan.window()
    the_display.press_close_button(window)
    eventually(lambda: the_display.state(window) == "Iconic", "closing does not minimise")
    the_display.activate(window)
    eventually(lambda: the_display.active_window() == window, "the window does not come back")
    screen.wait_for_rows(NAMES)


def test_without_its_session_bus_quit_ends_the_program(orphan):
    orphan.screen.press("Menu")
    orphan.screen.choose("Quit")
    assert orphan.process.wait(5) == 0


def test_the_keyring_of_a_new_session_bus_gives_the_key_again(orphan, lone_session):
    screen = orphan.screen
    screen.press("Refresh Now")
    screen.wait_for(STALE)

    lone_session.start_bus()
    with keyring.keyring(lone_session):
        screen.press("Retry")
        screen.wait_until_gone(STALE)
        assert screen.rows() == NAMES
        assert orphan.terminate() == 0


def test_on_a_new_session_bus_the_program_has_its_name_item_status_and_notices_again(orphan, lone_session, the_display, the_service):
    window = orphan.window()
    the_display.press_close_button(window)
    eventually(lambda: the_display.state(window) == "Iconic", "closing does not minimise")

    lone_session.start_bus()
    with keyring.keyring(lone_session), peers.panel(lone_session) as panel, peers.notices(lone_session) as notices:
        eventually(lambda: lone_session.has("com.kestrune.larkspan"), "the program does not have its name again")
        panel.wait_for_item()
        panel.wait_for(SUMMARY, "Degraded")
        assert panel.rows()[-len(COMMANDS):] == COMMANDS

        the_service.forget()
        told = subprocess.run([program.BINARY, "--status"], env=lone_session.surroundings, capture_output=True, text=True,
                              timeout=30, check=False)
        assert (told.returncode, told.stdout) == (1, "1 Status Page is degraded\n3 Status Pages\n")
        assert the_service.requests() == []

        the_service.open_incident("Login errors")
        panel.click("Refresh")
        assert notices.wait_for(1)[0]["body"].splitlines()[0] == "Login errors"

        assert program.start_again(orphan) == 0
        eventually(lambda: the_display.active_window() == window, "a second start does not bring the window back")
