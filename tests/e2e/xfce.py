"""The panel of a real desktop, with nothing but its status tray in it. It tells screen readers nothing of its status
items, so what it shows is read from pictures."""

import subprocess
import time
from collections import Counter
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator, NamedTuple

from display import Display, Place
from patience import eventually
from picture import Colour, Picture, contrast
from processes import end
from session import Session

SETTINGS = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="{is_dark}"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="32"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
"""

# The process of the status tray.
TRAY = "Wrapper-2.0"
# Of anything written with its ground; separators and shades are below it.
WRITTEN = 2.0
BESIDE_ALL_MENUS = (900, 16)


class Line(NamedTuple):
    """A line of a menu or a tool tip."""
    top: int
    bottom: int
    # Of its letters with their ground.
    contrast: float
    dot: Colour | None


class Panel:
    def __init__(self, session: Session, display: Display) -> None:
        self._session = session
        self._display = display
        self._process: subprocess.Popen | None = None

    def start(self) -> None:
        self._process = subprocess.Popen(["xfce4-panel"], env=self._session.surroundings, stderr=subprocess.DEVNULL)

    def end(self) -> None:
        if self._process:
            end(self._process)

    def crash(self) -> None:
        self._process.kill()
        self._process.wait()

    def icon(self) -> Picture | None:
        """The part of the panel in which its only item stands."""
        tray = self._tray()
        return self._display.picture().part(*tray) if tray else None

    def wait_for_icon(self) -> None:
        # A panel takes its time to start on a busy machine.
        eventually(lambda: (icon := self.icon()) and len(icon.colours()) > 5, "no icon came", seconds=30)

    def point_at_icon(self) -> None:
        self._display.point(*self._tray().centre())

    def open_menu(self) -> list[Line]:
        """Presses the icon and returns the rows of the menu that opens."""
        self._display.drag([self._tray().centre()])
        eventually(self.popups, "no menu opens")
        # Nothing may be highlighted or covered by the mouse.
        self._display.point(*BESIDE_ALL_MENUS)
        return self.wait_for_lines(1)

    def press(self, line: Line) -> None:
        """Presses a row of the open menu."""
        (menu,) = self.popups().values()
        row = Place(menu.left, menu.top + line.top, menu.width, line.bottom - line.top)
        self._display.point(*row.centre())
        self._display.drag([row.centre()])
        eventually(lambda: not self.popups(), "the menu stays")

    def popups(self) -> dict[str, Place]:
        """The window of the open menu or tool tip."""
        return {window: place for window, place in self._windows().items() if place.top > 0}

    def popup(self) -> Picture | None:
        """The open menu or tool tip."""
        place = next(iter(self.popups().values()), None)
        return self._display.picture().part(*place) if place else None

    def wait_for_lines(self, at_least: int) -> list[Line]:
        """The lines of the open menu or tool tip, once they stand still."""
        def settled() -> list[Line]:
            before = self.popup()
            time.sleep(0.2)
            now = self.popup()
            found = lines(now) if now and now == before else []
            return found if len(found) >= at_least else []
        return eventually(settled, "no menu or tool tip with that many lines")

    def _tray(self) -> Place | None:
        return next((place for place in self._windows().values() if place.top == 0), None)

    def _windows(self) -> dict[str, Place]:
        places = {window: self._display.place(window) for window in self._display.windows_of_class(TRAY)}
        return {window: place for window, place in places.items() if place}


def lines(picture: Picture) -> list[Line]:
    ground = picture.ground()
    colours = [picture.part(0, row, picture.width, 1).colours() for row in range(picture.height)]
    is_written = [any(contrast(colour, ground) > WRITTEN for colour in row) for row in colours]
    edges = [row for row in range(1, picture.height) if is_written[row] != is_written[row - 1]]
    return [_line(ground, top, bottom, sum(colours[top:bottom], Counter())) for top, bottom in zip(edges[::2], edges[1::2])]


def _line(ground: Colour, top: int, bottom: int, colours: Counter[Colour]) -> Line:
    letters = [colour for colour in colours if not _is_vivid(colour)]
    vivid = [colour for colour, _ in colours.most_common() if _is_vivid(colour)]
    return Line(top, bottom, max(contrast(colour, ground) for colour in letters), vivid[0] if vivid else None)


def _is_vivid(colour: Colour) -> bool:
    return max(colour) - min(colour) > 80


def prepared(session: Session, display: Display, is_dark: bool = True) -> Panel:
    """A panel that has not started yet."""
    folder = Path(session.surroundings["HOME"], ".config/xfce4/xfconf/xfce-perchannel-xml")
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "xfce4-panel.xml").write_text(SETTINGS.format(is_dark=str(is_dark).lower()), encoding="utf-8")
    return Panel(session, display)


@contextmanager
def panel(session: Session, display: Display, is_dark: bool = True) -> Iterator[Panel]:
    made = prepared(session, display, is_dark)
    made.start()
    try:
        yield made
    finally:
        made.end()
