"""The ways by keyboard to what a test is about."""

from display import Display
from screen import Screen
from service import NAMES


def first_page(start, display: Display, pages: list[str] = NAMES) -> Screen:
    """Starts the program, and from its list opens the first page."""
    screen = start().screen
    screen.wait_for_rows(pages)
    display.press_key("Return")
    screen.wait_for("Current Status")
    return screen


def tab(screen: Screen, display: Display, number: int, rows: list[str]) -> None:
    display.press_key(f"ctrl+{number}")
    screen.wait_for_rows(rows)


def first_event(screen: Screen, display: Display, title: str) -> None:
    """The incident or maintenance that stands first in the tab."""
    display.press_key("Tab")
    screen.wait_for_focus("Back")
    for _ in range(3):
        display.press_key("Tab")
    screen.wait_for_focus(title)
    display.press_key("Return")
    screen.wait_for("Timeline")
