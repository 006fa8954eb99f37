"""A keyring that is locked, disappears or does not exist. Each test has its own session."""

import pytest

import keyring
import program
import session
from patience import eventually
from service import KEY, NAMES
from test_day import STALE
from test_key import MISSING

PROMPTER = "org.gnome.keyring.SystemPrompter"


@pytest.fixture
def own_session(the_display, tmp_path):
    with session.session(the_display, tmp_path) as made:
        yield made


@pytest.fixture
def own_keyring(own_session):
    with keyring.keyring(own_session) as made:
        made.store(KEY.encode())
        yield made


@pytest.fixture
def own_program(own_session, the_display):
    def start():
        return program.program(own_session, the_display)
    return start


def prompts(the_display) -> list[str]:
    return [title for title in the_display.titles() if "nlock" in title or "assword" in title or "uthenticat" in title]


def test_without_a_keyring_the_window_says_that_the_key_is_missing(own_session, own_program, the_service):
    with own_program() as running:
        running.screen.wait_for(MISSING)
        assert the_service.requests() == []


def test_a_locked_keyring_is_asked_for_once_and_the_window_stays_alive(own_keyring, own_program, the_service, the_display):
    own_keyring.lock()
    with own_program() as running:
        eventually(lambda: prompts(the_display), lambda: f"no prompt came: {the_display.titles()}")
        assert running.screen.shows("Loading Dashboard...")

        the_display.press_key("Escape")
        running.screen.wait_for(MISSING)
        assert prompts(the_display) == []
        assert the_service.requests() == []


def test_a_keyring_that_is_unlocked_elsewhere_gives_the_key_again(own_keyring, own_program, the_service, the_display):
    own_keyring.lock()
    with own_program() as running:
        eventually(lambda: prompts(the_display), "no prompt came")
        the_display.press_key("Escape")
        running.screen.wait_for(MISSING)

        own_keyring.unlock()
        running.screen.press("Retry")
        running.screen.wait_for_rows(NAMES)


def test_the_password_opens_the_keyring_and_the_pages_come(own_keyring, own_program, the_service, the_display):
    own_keyring.lock()
    with own_program() as running:
        eventually(lambda: prompts(the_display), "no prompt came")
        the_display.type_text(keyring.PASSWORD)
        the_display.press_key("Return")
        running.screen.wait_for_rows(NAMES)


def test_ending_behind_a_prompt_is_clean(own_keyring, own_program, the_service, the_display):
    own_keyring.lock()
    with own_program() as running:
        eventually(lambda: prompts(the_display), "no prompt came")
        assert running.terminate() == 0


def test_a_keyring_that_dies_leaves_the_pages_on_screen(own_session, own_program, the_service):
    with keyring.keyring(own_session) as made:
        made.store(KEY.encode())
        with own_program() as running:
            running.screen.wait_for_rows(NAMES)
            made.die()
            running.screen.press("Refresh Now")
            running.screen.wait_for(STALE)
            assert running.screen.rows() == NAMES
