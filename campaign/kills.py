#!/usr/bin/python3
"""The program killed at random moments of saving and of deleting the key: the keyring has the old key, the new one or
none, never two or a part of one, and the next start is a normal one.

usage: campaign/kills.py BINARIES all|part [TEXT]
"""

import os
import random
import signal
import subprocess
import sys
import time
from contextlib import ExitStack
from pathlib import Path

import whole

ALL, PART = 200, 2
NEW_KEY = "a-new-key-of-the-same-account"
# Saving includes a request to the service; afterwards nothing happens that a kill could interrupt.
LONGEST_SECONDS = 0.6


def keys_in(session) -> int:
    """The number of the program's items in the keyring."""
    from keyring import ITEM
    found = subprocess.run(["secret-tool", "search", "--all", *ITEM], env=session.surroundings, capture_output=True, text=True,
                           check=False)
    return found.stdout.count("label = ")


def save(program, display, keyring) -> None:
    """Saves another key than the one that the keyring has got since the settings were opened."""
    from service import KEY
    screen = program.screen
    screen.press("Open Settings")
    screen.wait_for_focus("API key")
    display.type_text(NEW_KEY)
    display.press_key("Tab")
    screen.wait_for_focus("Save & Verify")
    keyring.store(KEY.encode())
    display.press_key("Return")


def delete(program, _display, _keyring) -> None:
    program.screen.press("Settings")
    program.screen.press("Delete API Key")
    program.screen.wait_for_focus("Cancel")
    program.screen.press("Delete")


ORDERS = {"saving": save, "deleting": delete}


def play_cell(what: str, seconds: float, session, display, the_keyring) -> tuple[str, list[str]]:
    """Returns which key was left, and what was wrong."""
    import program
    from service import KEY, NAMES
    from test_key import MISSING
    the_keyring.remove()
    if what == "deleting":
        the_keyring.store(KEY.encode())
    with program.program(session, display) as killed:
        killed.screen.wait_for(NAMES[0] if what == "deleting" else MISSING)
        ORDERS[what](killed, display, the_keyring)
        time.sleep(seconds)
        killed.process.send_signal(signal.SIGKILL)
        killed.process.wait(10)

    allowed = {KEY.encode(), NEW_KEY.encode(), b""} if what == "saving" else {KEY.encode(), b""}
    found, count = the_keyring.lookup(), keys_in(session)
    failures = []
    if found not in allowed:
        failures.append(f"The keyring has another key of {len(found)} bytes.")
    if count != (1 if found else 0):
        failures.append(f"The keyring has {count} keys.")
    with program.program(session, display) as again:
        if found:
            again.screen.wait_for_rows(NAMES)
        else:
            again.screen.wait_for(MISSING)
        if again.terminate() != 0:
            failures.append("The next start does not end well.")
    return {KEY.encode(): "the old key", NEW_KEY.encode(): "the new key", b"": "none"}.get(found, "another"), failures


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
        # The moments are the same in each run, so that one that fails can be played again.
        moments = random.Random(22)
        for number in range(PART if is_part else ALL):
            what, seconds = list(ORDERS)[number % len(ORDERS)], moments.uniform(0, LONGEST_SECONDS)
            cell = f"{number}: {what} for {seconds * 1000:.1f} ms"
            if text not in cell:
                continue
            the_service.reset()
            the_service.accept(service.KEY, NEW_KEY)
            try:
                left, failures = play_cell(what, seconds, the_session, the_display, the_keyring)
            except AssertionError as error:
                left, failures = "unknown", [str(error)]
            whole.report(cell, failures, left=left)


if __name__ == "__main__":
    sys.exit(whole.main(play))
