#!/usr/bin/python3
"""The wall clock, set forward and back while the program runs. Its timers do not follow that clock, as they do not while
a machine is suspended.

usage: campaign/clocks.py BINARIES all|part
"""

import os
import re
import sys
from contextlib import ExitStack, contextmanager
from datetime import datetime, timedelta, timezone
from pathlib import Path
from typing import Iterator

import whole

HOUR, DAY, YEAR = 3600, 24 * 3600, 365 * 24 * 3600
SHIFTS = {
    "an hour forward": HOUR, "an hour back": -HOUR, "a night in suspension": 8 * HOUR, "a day forward": DAY, "a day back": -DAY,
    "a year forward": YEAR, "a year back": -YEAR,
}
# In local time, an hour is missing then, or comes twice.
CHANGES_OF_THE_HOUR = {
    "into daylight saving": datetime(2026, 3, 29, 0, 59, 45, tzinfo=timezone.utc),
    "out of daylight saving": datetime(2026, 10, 25, 0, 59, 45, tzinfo=timezone.utc),
}
INTERVAL = 30
AGE = re.compile(r"Updated (just now|\d+[smhd] ago)")
MAINTENANCE, OPERATIONAL = "Maintenance in progress", "All systems operational"


class Clock:
    """The wall clock that a program sees."""

    def __init__(self, file: Path) -> None:
        self._file = file
        self.shift(0)
        preloaded = next(Path("/usr/lib").glob("*/faketime/libfaketime.so.1"))
        self.surroundings = {"LD_PRELOAD": str(preloaded), "FAKETIME_TIMESTAMP_FILE": str(file), "FAKETIME_NO_CACHE": "1",
                             "FAKETIME_DONT_FAKE_MONOTONIC": "1", "TZ": "Europe/Berlin"}

    def shift(self, seconds: float) -> None:
        """Sets it to so many seconds after the true time."""
        self.offset = seconds
        beside = self._file.with_suffix(".new")
        beside.write_text(f"{seconds:+.0f}\n", encoding="ascii")
        beside.replace(self._file)


class Desk:
    """The program with its panel and notification server, and the service."""

    def __init__(self, program, panel, notices, service, clock: Clock, end: datetime) -> None:
        self._program, self._panel, self._notices, self._service = program, panel, notices, service
        self._clock, self._end = clock, end

    def polls(self) -> int:
        from service import PAGES_PATH
        return sum(request["target"] == PAGES_PATH for request in self._service.requests())

    def wait_for_poll(self) -> list[str]:
        from patience import eventually
        before = self.polls()
        try:
            eventually(lambda: self.polls() > before, "", seconds=INTERVAL + 5)
        except AssertionError:
            return [f"No poll came in {INTERVAL + 5} seconds."]
        return []

    def failures_of_ages(self) -> list[str]:
        said = [self._panel.tool_tip(), *self._panel.rows(), *(thing.name for thing in self._program.screen.things())]
        ages = [text for text in said if "Updated" in text]
        # In the tool tip, in the menu and in the window.
        missing = [] if len(ages) >= 3 else [f"Only these tell an age: {ages}"]
        return missing + [f"An age is \"{text}\"." for text in ages if not AGE.search(text)]

    def failures_of_status(self) -> list[str]:
        from patience import eventually
        is_over = datetime.now(timezone.utc) + timedelta(seconds=self._clock.offset) >= self._end
        expected = OPERATIONAL if is_over else MAINTENANCE
        try:
            eventually(lambda: self._panel.tool_tip().startswith(expected), "")
        except AssertionError:
            return [f"The panel says \"{self._panel.tool_tip()}\" instead of \"{expected}\"."]
        return []

    def failures_of_notices(self) -> list[str]:
        told = [notice["summary"] for notice in self._notices.all()]
        return [] if len(told) == 1 else [f"These were told: {told}"]

    def try_clock(self, cell: str, seconds: float) -> None:
        self._clock.shift(seconds)
        failures = self.failures_of_ages()
        failures += self.wait_for_poll() + self.failures_of_status() + self.failures_of_ages() + self.failures_of_notices()
        whole.report(cell, failures)


@contextmanager
def desk() -> Iterator[Desk]:
    import display
    import keyring
    import peers
    import service
    import session
    from processes import running
    from program import BINARY, Program, surroundings
    with ExitStack() as started:
        home = Path(os.environ["LARKSPAN_E2E_WORLD"], "home")
        home.mkdir()
        the_display = started.enter_context(display.display())
        the_service = started.enter_context(service.simulator())
        the_service.reset()
        the_service.change("api", health="operational")
        the_session = started.enter_context(session.session(the_display, home))
        started.enter_context(keyring.keyring(the_session)).store(service.KEY.encode())
        panel = started.enter_context(peers.panel(the_session))
        notices = started.enter_context(peers.notices(the_session))
        clock = Clock(home / "clock")
        process = started.enter_context(running(str(BINARY), env=surroundings(the_session) | clock.surroundings))
        program = Program(process, BINARY, the_session, the_display)

        program.screen.wait_for_rows(service.NAMES)
        program.screen.press("Refresh Interval")
        program.screen.choose(f"Every {INTERVAL} seconds")
        now = datetime.now(timezone.utc)
        end = now + timedelta(minutes=45)
        the_service.schedule("New disks", "docs", now + timedelta(minutes=15), end)
        program.screen.press("Refresh Now")
        panel.wait_for_item()
        panel.wait_for(MAINTENANCE, "Maintenance")
        notices.wait_for(1)
        yield Desk(program, panel, notices, the_service, clock, end)


def play(is_part: bool, _: str) -> None:
    with desk() as tried:
        for name, seconds in list(SHIFTS.items())[:1] if is_part else SHIFTS.items():
            tried.try_clock(name, seconds)
            if not is_part:
                tried.try_clock(f"{name}, and right again", 0)
        if not is_part:
            for name, moment in CHANGES_OF_THE_HOUR.items():
                tried.try_clock(name, (moment - datetime.now(timezone.utc)).total_seconds())


if __name__ == "__main__":
    sys.exit(whole.main(play))
