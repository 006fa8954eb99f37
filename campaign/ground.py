#!/usr/bin/python3
"""What the program stands on, taken away: the display, the compositor and the accessibility bus, stopped and killed;
and the next start afterwards.

usage: campaign/ground.py BINARIES all|part [TEXT]
"""

import os
import signal
import subprocess
import sys
import time
from contextlib import contextmanager
from pathlib import Path
from typing import Callable, Iterator, NamedTuple

import whole

SECONDS = 3


class Ground(NamedTuple):
    service: object
    session: object
    display: object
    program: object
    output: Path

    def accessibility(self) -> list[int]:
        """The processes of the accessibility bus: the one that starts it, and the bus."""
        bus = self.session.bus.get_object("org.freedesktop.DBus", "/", introspect=False)
        starter = int(bus.GetConnectionUnixProcessID("org.a11y.Bus", dbus_interface="org.freedesktop.DBus"))
        started = subprocess.run(["pgrep", "--parent", str(starter)], capture_output=True, text=True, check=True).stdout.split()
        return [starter, *map(int, started)]

    def expect_refresh(self, by: Callable[[], None]) -> list[str]:
        from patience import eventually
        self.service.forget()
        by()
        try:
            eventually(self.service.requests, "the program fetches nothing", 15)
        except AssertionError as error:
            return [str(error)]
        return []

    def by_button(self) -> None:
        self.program.screen.press("Refresh Now")

    def by_key(self) -> None:
        self.display.press_key("F5")


def server_stops(ground: Ground) -> list[str]:
    ground.by_button()
    ground.display.server.send_signal(signal.SIGSTOP)
    time.sleep(SECONDS)
    ground.display.server.send_signal(signal.SIGCONT)
    return ground.expect_refresh(ground.by_button)


def server_dies(ground: Ground) -> list[str]:
    ground.by_button()
    ground.display.server.send_signal(signal.SIGKILL)
    code = ground.program.process.wait(10)
    said = ground.output.read_text(encoding="utf-8")
    names_it = "X11" in said or "Wayland" in said
    return [f"It ended with {code} and said \"{said}\"."] if code != 1 or not names_it else []


def accessibility_stops(ground: Ground) -> list[str]:
    processes = ground.accessibility()
    for process in processes:
        os.kill(process, signal.SIGSTOP)
    failures = ground.expect_refresh(ground.by_key)
    for process in processes:
        os.kill(process, signal.SIGCONT)
    return failures + ground.expect_refresh(ground.by_button)


def accessibility_dies(ground: Ground) -> list[str]:
    for process in ground.accessibility():
        os.kill(process, signal.SIGKILL)
    time.sleep(1)
    failures = ground.expect_refresh(ground.by_key)
    return failures if ground.program.terminate() == 0 else [*failures, "It does not end well."]


@contextmanager
def on_x11(home: Path) -> Iterator[tuple]:
    import display
    import session
    with display.display() as the_display, session.session(the_display, home) as the_session:
        yield the_display, the_session


@contextmanager
def on_wayland(home: Path) -> Iterator[tuple]:
    import session
    import sway
    with session.session(None, home) as the_session, sway.sway(the_session) as the_display:
        yield the_display, the_session


class Cell(NamedTuple):
    desktop: Callable
    take_away: Callable[[Ground], list[str]]


CELLS = {
    "the display stops": Cell(on_x11, server_stops),
    "the accessibility bus stops": Cell(on_x11, accessibility_stops),
    "the accessibility bus dies": Cell(on_x11, accessibility_dies),
    "the display dies": Cell(on_x11, server_dies),
    "the compositor stops": Cell(on_wayland, server_stops),
    "the compositor dies": Cell(on_wayland, server_dies),
}
PART = ("the display stops", "the display dies")


@contextmanager
def desktop(cell: Cell, home: Path) -> Iterator[tuple]:
    """A display and a session whose keyring has the key."""
    import keyring
    from service import KEY
    home.mkdir()
    with cell.desktop(home) as (the_display, the_session), keyring.keyring(the_session) as the_keyring:
        the_keyring.store(KEY.encode())
        yield the_display, the_session


def play_cell(cell: Cell, service, home: Path) -> list[str]:
    import program
    from processes import running
    from service import NAMES
    with desktop(cell, home) as (the_display, the_session), (home / "output").open("wb") as output:
        with running(str(program.BINARY), env=program.surroundings(the_session), stdout=output, stderr=output) as process:
            the_program = program.Program(process, program.BINARY, the_session, the_display)
            the_program.screen.wait_for_rows(NAMES)
            failures = cell.take_away(Ground(service, the_session, the_display, the_program, home / "output"))
    with desktop(cell, home.with_name(f"{home.name}-again")) as (the_display, the_session):
        with program.program(the_session, the_display) as again:
            again.screen.wait_for_rows(NAMES)
    return failures


def play(is_part: bool, text: str) -> None:
    import service
    with service.simulator() as the_service:
        for number, (name, cell) in enumerate(CELLS.items()):
            if text not in name or (is_part and name not in PART):
                continue
            the_service.reset()
            home = Path(os.environ["LARKSPAN_E2E_WORLD"], f"home-{number}")
            try:
                failures = play_cell(cell, the_service, home)
            except AssertionError as error:
                failures = [str(error)]
            whole.report(name, failures)


if __name__ == "__main__":
    sys.exit(whole.main(play))
