#!/usr/bin/python3
"""The program killed at random moments of saving and deleting the key, of posting and of refreshing: the keyring has the
old key, the new one or none, never two or a part of one, the service has seen an order once or not at all, and the next
start is a normal one.

usage: campaign/kills.py BINARIES all|part [TEXT]
"""

import os
import random
import signal
import subprocess
import sys
import time
from contextlib import ExitStack
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

import whole

ALL, PART = 1000, 4
NEW_KEY = "a-new-key-of-the-same-account"
# Saving includes a request to the service; afterwards nothing happens that a kill could interrupt.
LONGEST_SECONDS = 0.6


def keys_in(session) -> int:
    """The number of the program's items in the keyring."""
    from keyring import ITEM
    found = subprocess.run(["secret-tool", "search", "--all", *ITEM], env=session.surroundings, capture_output=True, text=True,
                           check=False)
    return found.stdout.count("label = ")


def save(killed, world) -> None:
    """Saves another key than the one that the keyring has got since the settings were opened."""
    from service import KEY
    screen = killed.screen
    screen.press("Open Settings")
    screen.wait_for_focus("API key")
    world.display.type_text(NEW_KEY)
    world.display.press_key("Tab")
    screen.wait_for_focus("Save & Verify")
    world.keyring.store(KEY.encode())
    world.display.press_key("Return")


def delete(killed, _world) -> None:
    killed.screen.press("Settings")
    killed.screen.press("Delete API Key")
    killed.screen.wait_for_focus("Cancel")
    killed.screen.press("Delete")


def post(killed, world) -> None:
    import opening
    opening.first_page_of(killed.screen, world.display)
    opening.tab(killed.screen, world.display, 2, ["Login errors"])
    opening.first_event(killed.screen, world.display, "Login errors")
    killed.screen.press("Escalate")


def refresh(killed, _world) -> None:
    killed.screen.press("Refresh Now")


@dataclass(frozen=True)
class Order:
    begin: Callable
    has_key: bool
    may_leave: set[str]


ORDERS = {
    "saving": Order(save, False, {"the old key", "the new key", "no key"}),
    "deleting": Order(delete, True, {"the old key", "no key"}),
    "posting": Order(post, True, {"the old key"}),
    "refreshing": Order(refresh, True, {"the old key"}),
}


@dataclass(frozen=True)
class World:
    """The peers of the program."""
    display: object
    service: object
    session: object
    keyring: object

    def key_left(self) -> str:
        from service import KEY
        found = self.keyring.lookup()
        return {KEY.encode(): "the old key", NEW_KEY.encode(): "the new key", b"": "no key"}.get(
            found, f"another key of {len(found)} bytes")

    def orders_seen(self) -> int:
        return sum(request["method"] != "GET" for request in self.service.requests())


def play_cell(order: Order, seconds: float, world: World) -> tuple[str, list[str]]:
    """Returns which key was left, and what was wrong."""
    import program
    from service import KEY, NAMES
    from test_key import MISSING
    world.keyring.remove()
    if order.has_key:
        world.keyring.store(KEY.encode())
    with program.program(world.session, world.display) as killed:
        killed.screen.wait_for(NAMES[0] if order.has_key else MISSING)
        order.begin(killed, world)
        time.sleep(seconds)
        killed.process.send_signal(signal.SIGKILL)
        killed.process.wait(10)

    left, count = world.key_left(), keys_in(world.session)
    failures = []
    if left not in order.may_leave:
        failures.append(f"The keyring has {left}.")
    if count != (0 if left == "no key" else 1):
        failures.append(f"The keyring has {count} keys.")
    with program.program(world.session, world.display) as again:
        if left == "no key":
            again.screen.wait_for(MISSING)
        else:
            again.screen.wait_for_rows(NAMES)
        if again.terminate() != 0:
            failures.append("The next start does not end well.")
    if world.orders_seen() > (1 if order.begin is post else 0):
        failures.append(f"The service has seen {world.orders_seen()} orders.")
    return left, failures


def play(is_part: bool, text: str) -> None:
    import display
    import keyring
    import service
    import session
    with ExitStack() as started:
        home = Path(os.environ["LARKSPAN_E2E_WORLD"], "home")
        home.mkdir()
        the_display = started.enter_context(display.display())
        the_service = started.enter_context(service.simulator())
        the_session = started.enter_context(session.session(the_display, home))
        the_keyring = started.enter_context(keyring.keyring(the_session))
        the_world = World(the_display, the_service, the_session, the_keyring)
        # The moments are the same in each run, so that one that fails can be played again.
        moments = random.Random(22)
        for number in range(PART if is_part else ALL):
            what, seconds = list(ORDERS)[number % len(ORDERS)], moments.uniform(0, LONGEST_SECONDS)
            cell = f"{number}: {what} for {seconds * 1000:.1f} ms"
            if text not in cell:
                continue
            the_service.reset()
            the_service.accept(service.KEY, NEW_KEY)
            the_service.open_incident("Login errors", page=service.PAGES[0]["id"])
            the_service.forget()
            try:
                left, failures = play_cell(ORDERS[what], seconds, the_world)
            except AssertionError as error:
                left, failures = "unknown", [str(error)]
            whole.report(cell, failures, left=left)


if __name__ == "__main__":
    sys.exit(whole.main(play))
