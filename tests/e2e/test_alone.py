"""A desktop without a session bus. A screen reader cannot read the window then, so its pictures are compared with those
of a program that only lacks a keyring, step by step."""

from typing import NamedTuple

import pytest

import lone
import program
from display import Place
from patience import eventually
from picture import Picture, at_rest
from program import Program
from service import KEY
from test_key import MISSING

BESIDE_THE_WINDOW = (10, 10)
# In the height of a blinking cursor.
ROWS_OF_A_CURSOR = 20


class Step(NamedTuple):
    """What the user types, which button is pressed then, and what shows after that."""
    types: str
    presses: str
    shows: str


STEPS = [
    Step("", "Retry", MISSING),
    Step("", "Open Settings", "Connect to your Kestrune account"),
    Step(KEY, "Save & Verify", "Could not save API key to Keychain."),
    Step("", "Done", MISSING),
    Step("", "Menu", "About Kestrune"),
]


class Window:
    """The program's window as somebody sees it who reads no text."""

    def __init__(self, running: Program) -> None:
        self._display = running.display
        self._place = self._display.place(running.window())
        self._display.point(*BESIDE_THE_WINDOW)

    def picture(self) -> Picture:
        return self._display.picture().part(*self._place)

    def still_picture(self) -> Picture:
        return at_rest(self.picture, rows_that_may_move=ROWS_OF_A_CURSOR)

    def wait_for(self, expected: Picture, what: str) -> None:
        def difference() -> str:
            expected.save("alone-expected")
            self.picture().save("alone-seen")
            return f"\"{what}\" does not show; see the pictures alone-expected and alone-seen"
        eventually(lambda: self.picture().rows_unlike(expected) <= ROWS_OF_A_CURSOR, difference, seconds=30)

    def click(self, x: int, y: int) -> None:
        self._display.drag([(self._place.left + x, self._place.top + y)])
        self._display.point(*BESIDE_THE_WINDOW)

    def inside(self, place: Place) -> tuple[int, int]:
        x, y = place.centre()
        return x - self._place.left, y - self._place.top


# Without any address, libraries start a bus of their own where they can.
@pytest.fixture(params=["unix:path=/nobody/listens/here", "disabled:"])
def session_without_a_bus(the_session, tmp_path, request):
    with lone.lone_session(the_session, tmp_path) as made:
        made.surroundings["DBUS_SESSION_BUS_ADDRESS"] = request.param
        yield made


def test_without_a_session_bus_everything_looks_and_works_as_without_a_keyring(the_session, session_without_a_bus, the_display, the_service):
    with program.program(the_session, the_display) as running:
        running.screen.wait_for(MISSING)
        window = Window(running)
        expected, places = [window.still_picture()], []
        for step in STEPS:
            the_display.type_text(step.types)
            places.append(window.inside(Place(*running.screen.place(step.presses))))
            window.click(*places[-1])
            running.screen.wait_for(step.shows)
            expected.append(window.still_picture())

    with program.program(session_without_a_bus, the_display) as running:
        window = Window(running)
        window.wait_for(expected[0], MISSING)
        for step, place, after in zip(STEPS, places, expected[1:]):
            the_display.type_text(step.types)
            window.click(*place)
            window.wait_for(after, step.shows)
        assert running.terminate() == 0
