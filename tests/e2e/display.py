"""A display in memory with a window manager, and the program's window as the manager sees it."""

import os
import subprocess
import tempfile
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator, NamedTuple

import picture
from patience import eventually
from processes import running


class Place(NamedTuple):
    left: int
    top: int
    width: int
    height: int

    def centre(self) -> tuple[int, int]:
        return self.left + self.width // 2, self.top + self.height // 2


class Display:
    def __init__(self, name: str, memory: Path, server: subprocess.Popen) -> None:
        self.name = name
        self.server = server
        self._memory = memory
        self.surroundings = {"DISPLAY": name, "QT_QPA_PLATFORM": "xcb"}

    def _ask(self, *command: str) -> str:
        return subprocess.run(command, env=os.environ | {"DISPLAY": self.name}, capture_output=True, text=True, check=False).stdout

    def has_window_manager(self) -> bool:
        """Whether one does what it is asked for."""
        self._ask("wmctrl", "-n", "1")
        return self._ask("xprop", "-root", "_NET_NUMBER_OF_DESKTOPS").strip().endswith("= 1")

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

    def windows_of_class(self, name: str) -> list[str]:
        """All visible windows of a program, also those that no window manager touches, such as menus and tool tips."""
        return self._ask("xdotool", "search", "--onlyvisible", "--class", f"^{name}$").split()

    def place(self, window: str) -> Place | None:
        told = dict(line.strip().split(": ", 1) for line in self._ask("xwininfo", "-id", window).splitlines() if ": " in line)
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        return Place(*(int(told[name]) for name in names)) if set(names) <= told.keys() else None

    def type_text(self, text: str) -> None:
        self._ask("xdotool", "type", "--delay", "5", text)

    def point(self, x: int, y: int) -> None:
        """Moves the mouse there, through a place beside, since programs notice movements only."""
        self._ask("xdotool", "mousemove", str(x + 1), str(y), "mousemove", str(x), str(y))

    def drag(self, places: list[tuple[int, int]]) -> None:
        """Holds the mouse button from the first place to the last; with one place only, this is a click."""
        (x, y), *further = places
        self._ask("xdotool", "mousemove", str(x), str(y), "mousedown", "1")
        for x, y in further:
            self._ask("xdotool", "mousemove", str(x), str(y))
        self._ask("xdotool", "mouseup", "1")

    def press_key(self, key: str) -> None:
        self._ask("xdotool", "key", key)

    def picture(self) -> picture.Picture:
        """What the display shows now."""
        return picture.of_x_window_dump(self._memory.read_bytes())


@contextmanager
def server(size: str = "1280x960") -> Iterator[Display]:
    """A display without a window manager."""
    reading, writing = os.pipe()
    with (tempfile.TemporaryDirectory(prefix="larkspan-display-") as memory,
          running("Xvfb", "-displayfd", str(writing), "-screen", "0", f"{size}x24", "-nolisten", "tcp", "-noreset",
                  "-fbdir", memory, pass_fds=[writing], stderr=subprocess.DEVNULL) as process):
        os.close(writing)
        with os.fdopen(reading) as announced:
            made = Display(f":{announced.readline().strip()}", Path(memory, "Xvfb_screen0"), process)
        yield made


@contextmanager
def display() -> Iterator[Display]:
    with server() as made, running("openbox", env=os.environ | {"DISPLAY": made.name}, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL):
        # One that is about to come has its name already, and may leave a window that comes now unseen until something else happens.
        eventually(made.has_window_manager, "no window manager came")
        yield made
