"""A Wayland desktop: a compositor in memory that minimises no windows, with its panel."""

import json
import subprocess
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator

import pytest

import session
from hands import Hands
from patience import eventually
from picture import Picture, at_rest
from processes import running

WIDTH, HEIGHT = 1280, 960
SETTINGS = f"""xwayland disable
output HEADLESS-1 resolution {WIDTH}x{HEIGHT} position 0 0 scale_filter linear
"""


class Sway:
    def __init__(self, on: session.Session, server: subprocess.Popen, hands: Hands) -> None:
        self._session = on
        self.server = server
        self._hands = hands
        self.scale = 1.0

    def tell(self, command: str) -> None:
        self._ask("swaymsg", "--", command)

    def windows(self, process_id: int) -> list[dict]:
        """The windows of a process that are on the screen, as the compositor knows them."""
        return [window for window in self._windows() if window["pid"] == process_id]

    def window(self, process_id: int) -> dict:
        return eventually(lambda: self.windows(process_id), "no window came")[0]

    def focused(self) -> int:
        """The process whose window has the focus."""
        return next((window["pid"] for window in self._windows() if window["focused"]), 0)

    def press_close_button(self, window: dict) -> None:
        self.tell(f"[con_id={window['id']}] kill")

    def press_key(self, key: str) -> None:
        self._hands.press(key)

    def point(self, x: float, y: float) -> None:
        """Moves the mouse to a place in the points of the desktop."""
        self._hands.point((round(x), round(y)), (round(WIDTH / self.scale), round(HEIGHT / self.scale)))

    def click(self) -> None:
        self._hands.click()

    def activation_token(self) -> str:
        return self._hands.activation_token()

    def copy(self, text: str) -> None:
        """Puts the text on the clipboard, as another program does."""
        # It stays in the background, with whatever it would hold open of ours.
        subprocess.run(["wl-copy", "--", text], env=self._session.surroundings, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                       check=True)

    def zoom(self, scale: float) -> None:
        self.tell(f"output HEADLESS-1 scale {scale}")
        self.scale = scale

    def picture(self) -> Picture:
        """What the display shows now, in its own pixels."""
        dump = subprocess.run(["grim", "-t", "ppm", "-"], env=self._session.surroundings, capture_output=True, check=True).stdout
        kind, size, _, pixels = dump.split(b"\n", 3)
        assert kind == b"P6"
        width, height = size.split()
        return Picture(int(width), int(height), pixels)

    def still_picture(self) -> Picture:
        return at_rest(self.picture)

    def part(self, window: dict, left: int, top: int, width: int, height: int) -> Picture:
        """A place in a window, in the display's own pixels."""
        left += window["rect"]["x"] + window["window_rect"]["x"]
        top += window["rect"]["y"] + window["window_rect"]["y"]
        return self.still_picture().part(*(round(self.scale * length) for length in (left, top, width, height)))

    def _windows(self) -> Iterator[dict]:
        nodes = [json.loads(self._ask("swaymsg", "--raw", "-t", "get_tree"))]
        while nodes:
            node = nodes.pop()
            if "app_id" in node:
                yield node
            nodes += node["nodes"] + node["floating_nodes"]

    def _ask(self, *command: str) -> str:
        return subprocess.run(command, env=self._session.surroundings, capture_output=True, text=True, check=True).stdout


@contextmanager
def sway(on: session.Session) -> Iterator[Sway]:
    """Started in the session, whose programs are on it from then on."""
    runtime, home = (Path(on.surroundings[name]) for name in ("XDG_RUNTIME_DIR", "HOME"))
    settings, log = home / "sway.conf", home / "sway.log"
    settings.write_text(SETTINGS, encoding="utf-8")
    on.surroundings |= {"SWAYSOCK": str(runtime / "sway"), "QT_QPA_PLATFORM": "wayland", "GDK_BACKEND": "wayland",
                        "XDG_SESSION_TYPE": "wayland", "XDG_CURRENT_DESKTOP": "sway"}
    in_memory = {"WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}
    with log.open("w") as words, running("sway", "--config", str(settings), env=on.surroundings | in_memory,
                                         stdout=words, stderr=words) as server:
        listening = eventually(lambda: [path for path in runtime.glob("wayland-*") if path.is_socket()],
                               lambda: f"no compositor came; it says: {log.read_text()}")
        on.surroundings["WAYLAND_DISPLAY"] = listening[0].name
        eventually(lambda: (runtime / "sway").is_socket(), "the compositor takes no commands")
        hands = Hands(listening[0])
        try:
            yield Sway(on, server, hands)
        finally:
            hands.close()


@pytest.fixture(scope="module")
def the_session(tmp_path_factory):
    with session.session(None, tmp_path_factory.mktemp("home")) as made:
        yield made


@pytest.fixture(scope="module")
def the_display(the_session):
    with sway(the_session) as made:
        yield made
