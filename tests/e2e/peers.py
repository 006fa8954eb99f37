"""The desktop's panel and notification server, each in its own process."""

import json
import subprocess
import sys
import threading
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator

from patience import eventually
from processes import running
from session import Session

DESKTOP = Path(__file__).resolve().parent.parent / "desktop"


class Panel:
    """A panel that shows status items, and acts on the newest one as its user does."""

    def __init__(self, process: subprocess.Popen) -> None:
        self._process = process

    def wait_for_item(self) -> None:
        eventually(lambda: self._ask("registrations"), "no item is registered with the panel")

    def tool_tip(self) -> str:
        """The first line of the icon's tool tip."""
        return self._ask("item")["ToolTip"][2]

    def icon(self) -> str:
        """The name of the icon in the theme, if it is taken from there."""
        return self._ask("item")["IconName"]

    def rows(self) -> list[str]:
        return [label for _, label in self._menu() if label]

    def click(self, row: str) -> None:
        place = next(place for place, label in self._menu() if label == row)
        self._ask("menu", "Event", "isvu", [place, "clicked", "", 0])

    def wait_for(self, tool_tip: str, first_row: str) -> None:
        eventually(lambda: self.tool_tip().startswith(tool_tip) and self.rows()[0] == first_row,
                   lambda: f"the item is \"{self.tool_tip()}\" with {self.rows()}")

    def _menu(self) -> list[tuple[int, str]]:
        _, (_, _, rows) = self._ask("menu", "GetLayout", "iias", [0, -1, []])
        return [(place, properties.get("label", "")) for place, properties, _ in rows if properties.get("visible", True)]

    def _ask(self, *command):
        self._process.stdin.write(json.dumps(command) + "\n")
        self._process.stdin.flush()
        return json.loads(self._process.stdout.readline())


class Notices:
    """A notification server that shows nothing and records its notices."""

    def __init__(self, process: subprocess.Popen) -> None:
        self._lines: list[str] = []
        threading.Thread(target=lambda: self._lines.extend(process.stdout), daemon=True).start()

    def all(self) -> list[dict]:
        return [json.loads(line) for line in self._lines if line.startswith("{")]

    def wait_for(self, count: int) -> list[dict]:
        return eventually(lambda: len(self.all()) >= count and self.all(), lambda: f"these notices came: {self.all()}")


@contextmanager
def panel(session: Session) -> Iterator[Panel]:
    with _peer(session, "peers/tray_host.py") as process:
        yield Panel(process)


class Portal:
    """The desktop's settings, as its user changes them."""

    def __init__(self, process: subprocess.Popen) -> None:
        self._process = process

    def set_dark(self, is_dark: bool) -> None:
        """Sets whether programs are dark."""
        line = f"org.freedesktop.appearance/color-scheme={1 if is_dark else 2}\n"
        self._process.stdin.write(line)
        self._process.stdin.flush()
        assert self._process.stdout.readline() == line


class Network:
    """What the desktop knows of the way out."""

    NAME = "org.freedesktop.NetworkManager"
    DISCONNECTED, CONNECTED = 20, 70

    def __init__(self, session: Session) -> None:
        self._bus = session.bus

    def set_online(self, is_online: bool) -> None:
        self._bus.call_blocking(self.NAME, "/org/freedesktop/NetworkManager", "org.freedesktop.DBus.Mock", "SetGlobalConnectionState",
                                "u", (self.CONNECTED if is_online else self.DISCONNECTED,))


@contextmanager
def network(session: Session) -> Iterator[Network]:
    """For programs whose system bus is that of the session."""
    with running(sys.executable, "-m", "dbusmock", "--template", "networkmanager", env=session.surroundings, stdout=subprocess.DEVNULL):
        eventually(lambda: session.has(Network.NAME), "no NetworkManager came")
        yield Network(session)


@contextmanager
def portal(session: Session) -> Iterator[Portal]:
    with _peer(session, "appearance/settings_portal.py") as process:
        yield Portal(process)


@contextmanager
def notices(session: Session) -> Iterator[Notices]:
    with _peer(session, "notifications/notification_server.py", "body") as process:
        yield Notices(process)


@contextmanager
def _peer(session: Session, script: str, *arguments: str) -> Iterator[subprocess.Popen]:
    with running(sys.executable, str(DESKTOP / script), *arguments, env=session.surroundings, text=True,
                 stdin=subprocess.PIPE, stdout=subprocess.PIPE) as process:
        assert process.stdout.readline() == "ready\n"
        yield process
