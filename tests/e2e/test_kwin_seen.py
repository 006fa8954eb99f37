"""What is to be seen of the window on a Wayland desktop that minimises windows. Pictures are kept in the build folder."""

import pytest

import display
import kwin
import session
from patience import eventually
from picture import at_rest
from service import NAMES


@pytest.fixture(scope="module")
def the_screen():
    with display.server(f"{kwin.WIDTH}x{kwin.HEIGHT}") as made:
        yield made


@pytest.fixture(scope="module")
def the_session(tmp_path_factory):
    with session.session(None, tmp_path_factory.mktemp("home")) as made:
        yield made


@pytest.fixture(scope="module")
def the_display(the_session, the_screen):
    with kwin.kwin(the_session, on=the_screen) as made:
        yield made


def test_the_picture_of_a_window_that_came_back_goes_on(start, stored_key, the_display, the_screen, the_service):
    program = start()
    program.screen.wait_for_rows(NAMES)
    before = at_rest(the_screen.picture)
    before.save("kwin-window")

    the_display.close(program.process.pid)
    eventually(lambda: the_screen.picture() != before, "the minimised window stays on the screen")
    the_display.activate(program.process.pid)
    eventually(lambda: the_screen.picture() == before, "the window that came back looks otherwise")

    the_service.change("api", health="operational")
    program.screen.press("Refresh Now")
    program.screen.wait_for("All systems operational")
    eventually(lambda: the_screen.picture() != before, "the picture stays")
    at_rest(the_screen.picture).save("kwin-came-back")
