"""The demo, an account that lives in the program."""

import pytest

from patience import eventually
from program import DEMO, start_again
from service import NAMES

KEY = "demo"
HINT = f'The API key of this demo is "{KEY}".'
FIRST_PAGE = "Acme Cloud"


@pytest.fixture
def demo(start):
    made = start(DEMO)
    eventually(lambda: FIRST_PAGE in made.screen.rows(), lambda: f"the rows are {made.screen.rows()}")
    return made


def test_its_window_has_the_programs_icon_though_nothing_is_installed(demo, the_display):
    assert the_display.has_icon(demo.window())


def test_a_second_start_brings_the_first_ones_window_forward_and_ends(demo, the_display):
    window = demo.window()
    the_display.press_close_button(window)
    eventually(lambda: the_display.state(window) == "Iconic", "closing does not minimise")

    assert start_again(demo) == 0
    eventually(lambda: the_display.active_window() == window, "the first window does not come forward")
    assert demo.is_running()


def test_it_runs_beside_the_program_and_its_window_says_which_of_them_it_is(demo, start, stored_key, the_service, the_display):
    program = start()
    program.screen.wait_for_rows(NAMES)
    assert the_display.title(program.window()) == "Kestrune"
    assert the_display.title(demo.window()) == "Kestrune — Demo"

    assert start_again(demo) == 0
    eventually(lambda: the_display.active_window() == demo.window(), "the demo does not come forward")
    assert start_again(program) == 0
    eventually(lambda: the_display.active_window() == program.window(), "the program does not come forward")


def test_its_settings_say_which_key_works(demo, the_display):
    screen = demo.screen
    screen.press("Settings")
    screen.wait_for("API key saved")
    screen.press("Delete API Key")
    screen.press("Delete")
    screen.wait_for(HINT)
    screen.wait_for_focus("API key")

    the_display.type_text(KEY)
    screen.press("Save & Verify")
    screen.wait_for("Connected")
    screen.press("Done")
    eventually(lambda: FIRST_PAGE in screen.rows(), lambda: f"the rows are {screen.rows()}")


def test_the_programs_settings_say_no_key(start, the_keyring, the_service):
    the_keyring.remove()
    screen = start().screen
    screen.press("Open Settings")
    screen.wait_for_focus("API key")
    assert not [text for text in screen.texts() if "demo" in text]
