"""A display in memory with a window manager, and the program's window as the manager sees it."""

import os
import subprocess
from contextlib import contextmanager
from typing import Iterator

from patience import eventually
from processes import running


class Display:
    def __init__(self, name: str) -> None:
        self.name = name

    def _ask(self, *command: str) -> str:
        return subprocess.run(command, env=os.environ | {"DISPLAY": self.name}, capture_output=True, text=True, check=False).stdout

    def windows(self, process_id: int) -> list[str]:
        return self._ask("xdotool", "search", "--all", "--onlyvisible", "--pid", str(process_id), "--name", ".+").split()

    def window(self, process_id: int) -> str:
        return eventually(lambda: self.windows(process_id), "no window came")[0]

    def titles(self) -> list[str]:
        found = self._ask("xdotool", "search", "--onlyvisible", "--name", ".+").split()
        return [self.title(window) for window in found]

    def title(self, window: str) -> str:
        return self._ask("xdotool", "getwindowname", window).strip()

    def state(self, window: str) -> str:
        """"Normal", "Iconic" or "Withdrawn"."""
        for line in self._ask("xprop", "-id", window, "WM_STATE").splitlines():
            if "window state:" in line:
                return line.rpartition(":")[2].strip()
        return "Withdrawn"

    def active_window(self) -> str:
        return self._ask("xdotool", "getactivewindow").strip()

    def press_close_button(self, window: str) -> None:
        """Sends what the window manager sends when the button in the title bar is pressed."""
        self._ask("wmctrl", "-i", "-c", hex(int(window)))

    def activate(self, window: str) -> None:
        """Sends what a taskbar sends when the window is chosen there."""
        self._ask("wmctrl", "-i", "-a", hex(int(window)))

    def has_icon(self, window: str) -> bool:
        return "Icon (" in self._ask("xprop", "-id", window, "_NET_WM_ICON")

    def type_text(self, text: str) -> None:
        self._ask("xdotool", "type", "--delay", "5", text)

    def drag(self, places: list[tuple[int, int]]) -> None:
        """Holds the mouse button from the first place to the last; with one place only, this is a click."""
        (x, y), *further = places
        self._ask("xdotool", "mousemove", str(x), str(y), "mousedown", "1")
        for x, y in further:
            self._ask("xdotool", "mousemove", str(x), str(y))
        self._ask("xdotool", "mouseup", "1")

    def press_key(self, key: str) -> None:
        self._ask("xdotool", "key", key)


@contextmanager
def server(size: str = "1280x960") -> Iterator[Display]:
    """A display without a window manager."""
    reading, writing = os.pipe()
    with running("Xvfb", "-displayfd", str(writing), "-screen", "0", f"{size}x24", "-nolisten", "tcp", "-noreset",
                 pass_fds=[writing], stderr=subprocess.DEVNULL):
        os.close(writing)
        with os.fdopen(reading) as announced:
            made = Display(f":{announced.readline().strip()}")
        yield made


@contextmanager
def display() -> Iterator[Display]:
    with server() as made, running("openbox", env=os.environ | {"DISPLAY": made.name}, stderr=subprocess.DEVNULL):
        eventually(lambda: "window id" in made._ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "no window manager came")
        yield made
