"""The notification server of many light desktops."""

import json
import subprocess
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator

from patience import eventually
from processes import running
from session import Session

# Notices stay until they are closed, and the rule shows whether the server sees their hints.
SETTINGS = """[global]
markup = full
font = DejaVu Sans 10
width = 360
[urgency_normal]
timeout = 0
[larkspan]
desktop_entry = com.kestrune.larkspan
msg_urgency = normal
format = "By its hints: <b>%s</b>\\n%b"
"""


class Dunst:
    def __init__(self, session: Session, process: subprocess.Popen) -> None:
        self._session = session
        self._process = process

    def crash(self) -> None:
        self._process.kill()
        self._process.wait()

    def wait_for(self, count: int) -> None:
        """Until that many notices are on screen."""
        eventually(lambda: self._control("count", "displayed") == str(count), lambda: f"{self._control('count')} are there")

    def take(self) -> list[dict[str, str]]:
        """Closes the notices and returns what they said, the newest first."""
        self._control("close-all")
        seen = json.loads(self._control("history"))["data"][0]
        self._control("history-clear")
        return [{field: value["data"] for field, value in notice.items()} for notice in seen]

    def _control(self, *command: str) -> str:
        return subprocess.run(["dunstctl", *command], env=self._session.surroundings, capture_output=True, text=True,
                              check=False).stdout.strip()


@contextmanager
def dunst(session: Session) -> Iterator[Dunst]:
    settings = Path(session.surroundings["HOME"], "dunstrc")
    settings.write_text(SETTINGS, encoding="utf-8")
    with running("dunst", "-config", str(settings), env=session.surroundings, stderr=subprocess.DEVNULL) as process:
        eventually(lambda: session.has("org.freedesktop.Notifications"), "no notification server came")
        yield Dunst(session, process)
