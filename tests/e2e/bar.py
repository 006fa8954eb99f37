"""The panel of a Wayland desktop, with nothing but its tray in it."""

import json
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator

from patience import eventually
from picture import Picture
from processes import running
from screen import Screen, Thing
from session import Session
from sway import Sway

SETTINGS = {"layer": "top", "position": "top", "height": 28, "modules-right": ["tray"], "tray": {"icon-size": 20, "spacing": 8}}
LOOK = "window { background: #e8e8e8; }"


class Bar:
    """The panel as its user sees it, with screen reader and mouse."""

    def __init__(self, screen: Screen, sway: Sway, log: Path) -> None:
        self._screen = screen
        self._log = log
        self._sway = sway

    def wait_for_icon(self) -> tuple[int, int, int, int]:
        """Returns its place."""
        return eventually(self._place_of_icon, lambda: f"no icon is in the panel: it has {self._screen.things()} and says: "
                          f"{self._log.read_text(encoding='utf-8')}")

    def icon(self) -> Picture:
        """The part of the panel in which the icon stands."""
        left, top, width, height = self.wait_for_icon()
        return self._sway.picture().part(left, top, width, height)

    def rows(self) -> list[str]:
        """What a screen reader says for the rows of the open menu."""
        return [row.name for row in self._rows()]

    def wait_for_rows(self, rows: list[str]) -> None:
        """Of the open menu, but for the row that tells the time."""
        eventually(lambda: [row for row in self.rows() if not row.startswith("Updated ")] == rows, lambda: f"the rows are {self.rows()}")

    def open_menu(self) -> None:
        left, top, width, height = self.wait_for_icon()
        # Beside it, where no tool tip comes that would change the picture.
        self._sway.point(left - width, top + height / 2)
        before = self._sway.still_picture()
        self._sway.point(left + width / 2, top + height / 2)
        self._sway.click()
        eventually(self.rows, "no menu came")
        self._menu = eventually(lambda: _difference(before, self._sway.still_picture()), "the menu is not to be seen")

    def choose(self, beginning: str) -> None:
        """Clicks the row of the open menu whose words begin so."""
        row = eventually(lambda: next((row for row in self._rows() if row.name.startswith(beginning)), None),
                         lambda: f"no row begins with \"{beginning}\": {self.rows()}")
        # Panels do not know where the compositor puts their menus, so that is read from the picture.
        _, top, _, height = self._screen.extents(self._menu_window())
        left, first, right, last = self._menu
        _, row_top, _, row_height = self._screen.extents(row)
        self._sway.point((left + right) / 2, (first + last - height) / 2 - top + row_top + row_height / 2)
        self._sway.click()
        eventually(lambda: not self._rows(), "the menu stays open")

    def _place_of_icon(self) -> tuple[int, int, int, int] | None:
        # Its tool tip is no sign of it: the toolkit tells that only where nobody has asked before the panel knew it.
        icons = [thing for thing in self._screen.things() if thing.role == "icon"]
        place = self._screen.extents(icons[0]) if icons else (0, 0, 0, 0)
        # It has a place of one pixel until the panel has made room for it.
        return place if place[2] > 1 else None

    def _rows(self) -> list[Thing]:
        return [thing for thing in self._screen.things() if thing.role == "menu item"]

    def _menu_window(self) -> Thing:
        return next(thing for thing in self._screen.things() if thing.role == "window")


def _difference(before: Picture, after: Picture) -> tuple[int, int, int, int] | None:
    """Left, top, right and bottom of what has changed; None if nothing has."""
    line = 3 * before.width
    lefts, rights, rows = [], [], []
    for row in range(before.height):
        old, new = (picture.pixels[line * row:line * (row + 1)] for picture in (before, after))
        if old != new:
            changed = int.from_bytes(old, "big") ^ int.from_bytes(new, "big")
            lefts.append((8 * line - changed.bit_length()) // 24)
            rights.append((8 * line - (changed & -changed).bit_length()) // 24)
            rows.append(row)
    return (min(lefts), rows[0], max(rights), rows[-1]) if rows else None


@contextmanager
def bar(session: Session, sway: Sway) -> Iterator[Bar]:
    home = Path(session.surroundings["HOME"])
    settings, look, log = home / "bar.json", home / "bar.css", home / "bar.log"
    settings.write_text(json.dumps(SETTINGS), encoding="utf-8")
    look.write_text(LOOK, encoding="utf-8")
    with log.open("w") as words, running(
            "waybar", "--config", str(settings), "--style", str(look), env=session.surroundings, stdout=words, stderr=words) as process:
        eventually(lambda: session.has("org.kde.StatusNotifierWatcher"), "no panel came")
        yield Bar(Screen(session, process.pid), sway, log)
