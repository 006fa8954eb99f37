"""The window on a Wayland desktop that has no panel: what stands in it, the clipboard, and each size of pixels."""

import pytest

from patience import eventually
from picture import Picture
from service import KEY, NAMES
from sway import the_display, the_session  # The desktop of this file's tests.
from test_key import MISSING
from test_settings import ASKS, FIELD

HEADLINE = "1 Status Page is degraded"
TITLE = "Kestrune"
SAVE = "Save & Verify"


@pytest.fixture
def program(start, stored_key, the_service):
    made = start()
    made.screen.wait_for_rows(NAMES)
    return made


def test_the_window_has_the_programs_id_and_title_and_the_focus(program, the_display):
    window = the_display.window(program.process.pid)
    assert window["app_id"] == "com.kestrune.larkspan"
    assert window["name"] == TITLE
    assert window["focused"]
    program.screen.wait_for_focus(NAMES[0])


def test_the_keyboard_opens_a_page_and_leads_back(program, the_display):
    the_display.press_key("Down")
    program.screen.wait_for_focus(NAMES[1])
    the_display.press_key("Return")
    program.screen.wait_for("Current Status")
    the_display.press_key("Escape")
    program.screen.wait_for_rows(NAMES)


def test_without_a_panel_and_without_minimising_a_closed_window_stays(program, the_display):
    window = the_display.window(program.process.pid)
    the_display.press_close_button(window)
    with pytest.raises(AssertionError):
        eventually(lambda: not the_display.windows(program.process.pid), "it stays", seconds=2)
    assert program.is_running()
    the_display.press_key("Down")
    program.screen.wait_for_focus(NAMES[1])


def test_a_copied_key_is_pasted_and_leads_to_the_pages(start, the_keyring, the_service, the_display):
    the_keyring.remove()
    screen = start().screen
    screen.wait_for(MISSING)
    screen.press("Open Settings")
    screen.wait_for_focus(FIELD)

    the_display.copy(f"{KEY}\n")
    the_display.press_key("ctrl+v")
    eventually(lambda: SAVE not in screen.disabled(), "nothing is in the field")
    the_display.press_key("Tab")
    screen.wait_for_focus(SAVE)
    the_display.press_key("Return")
    screen.wait_for("Connected")
    assert the_keyring.lookup() == KEY.encode()
    the_display.still_picture().save("sway-settings")

    screen.press("Done")
    screen.wait_for_rows(NAMES)


def test_dialogs_take_the_focus_and_give_it_back(program, the_keyring, the_display):
    screen = program.screen
    screen.press("Menu")
    eventually(screen.menu, "no menu came")
    the_display.still_picture().save("sway-menu-button")
    screen.choose("About Kestrune")
    screen.wait_for_focus("Done")
    the_display.still_picture().save("sway-about")
    the_display.press_key("Escape")
    screen.wait_until_gone("Done")
    screen.wait_for_focus("Menu")

    screen.press("Settings")
    screen.press("Delete API Key")
    screen.wait_for(ASKS)
    the_display.still_picture().save("sway-question")
    the_display.press_key("Escape")
    screen.wait_until_gone(ASKS)
    assert the_keyring.lookup() == KEY.encode()


def hard_edges(picture: Picture) -> int:
    """How often black stands beside white, which letters drawn too small and enlarged do not."""
    greens = picture.pixels[1::3]
    rows = (greens[start:start + picture.width] for start in range(0, len(greens), picture.width))
    return sum(abs(one - next_one) > 100 for row in rows for one, next_one in zip(row, row[1:]))


def test_the_letters_stay_sharp_and_in_the_window_when_the_display_changes_its_scale(program, the_display):
    edges = {}
    for scale in (2, 1.5, 1):
        the_display.zoom(scale)
        window = the_display.window(program.process.pid)
        size = window["window_rect"]["width"], window["window_rect"]["height"]
        eventually(lambda: program.screen.place(TITLE)[2:] == size, lambda: f"the window is {program.screen.place(TITLE)[2:]} and not {size}")
        assert [thing.name for thing in program.screen.things() if not fits(program.screen.extents(thing), size)] == []

        left, top, _, height = program.screen.place(HEADLINE)
        edges[scale] = hard_edges(the_display.part(window, left, top, 240, height))
        the_display.picture().save(f"sway-scale-{scale}")
    assert edges[1] > 100
    assert edges[1.5] > 1.5 * 0.7 * edges[1]
    assert edges[2] > 2 * 0.7 * edges[1]


def fits(place: tuple[int, int, int, int], size: tuple[int, int]) -> bool:
    left, top, width, height = place
    return left >= 0 and top >= 0 and left + width <= size[0] and top + height <= size[1]
