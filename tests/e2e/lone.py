"""A session whose message bus dies and returns, while a screen reader goes on reading."""

import subprocess
import sys
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator

from patience import eventually
from processes import end, running
from session import BUS, Session

ACCESSIBILITY = ("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus")


class LoneSession(Session):
    """Nothing is on its bus until a test starts it. The screen reader's bus is another session's, and stays."""

    def __init__(self, other: Session, home: Path) -> None:
        self._home = home
        self._accessibility = other.accessibility_address()
        self._daemon: subprocess.Popen | None = None
        super().__init__(other.surroundings | {
            "HOME": str(home),
            "XDG_RUNTIME_DIR": str(home / "run"),
            "XDG_DATA_HOME": str(home / "data"),
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={home}/run/bus",
        })

    def accessibility_address(self) -> str:
        return self._accessibility

    def start_bus(self) -> None:
        self._daemon = subprocess.Popen(["dbus-daemon", f"--config-file={self._home}/bus.conf", "--nofork", "--print-address"],
                                        env=self.surroundings, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self._daemon.stdout.readline()

    def end_bus(self) -> None:
        if self._daemon:
            self.__dict__.pop("bus", None)
            end(self._daemon)
        self._daemon = None

    @contextmanager
    def with_screen_reader(self) -> Iterator[None]:
        """Programs that start now find the other session's bus of the screen reader."""
        with running(sys.executable, "-m", "dbusmock", "--session", *ACCESSIBILITY, env=self.surroundings):
            eventually(lambda: self.has("org.a11y.Bus"), "no screen reader came")
            self.bus.call_blocking(*ACCESSIBILITY[:2], "org.freedesktop.DBus.Mock", "AddMethod", "sssss",
                                   ("org.a11y.Bus", "GetAddress", "", "s", f'ret = "{self._accessibility}"'))
            yield


@contextmanager
def lone_session(other: Session, home: Path) -> Iterator[LoneSession]:
    runtime, services = home / "run", home / "services"
    for folder in (runtime, services, home / "data"):
        folder.mkdir(mode=0o700)
    (home / "bus.conf").write_text(BUS.format(runtime=runtime, services=services), encoding="utf-8")
    made = LoneSession(other, home)
    try:
        yield made
    finally:
        made.end_bus()
