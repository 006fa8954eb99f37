"""The ways by keyboard to the screens that tests are about."""

from display import Display
from screen import Screen
from service import NAMES


def first_page(start, display: Display, pages: list[str] = NAMES) -> Screen:
    """Starts the program and opens the first page of its list."""
    screen = start().screen
    first_page_of(screen, display, pages)
    return screen


def first_page_of(screen: Screen, display: Display, pages: list[str] = NAMES) -> None:
    """Opens the first page of the list."""
    screen.wait_for_rows(pages)
    display.press_key("Return")
    screen.wait_for("Current Status")


def tab(screen: Screen, display: Display, number: int, rows: list[str]) -> None:
    display.press_key(f"ctrl+{number}")
    screen.wait_for_rows(rows)


def first_event(screen: Screen, display: Display, title: str) -> None:
    """Opens the first incident or maintenance in the tab."""
    display.press_key("Tab")
    screen.wait_for_focus("Back")
    for _ in range(3):
        display.press_key("Tab")
    screen.wait_for_focus(title)
    display.press_key("Return")
    screen.wait_for("Timeline")
