"""Notices in a real notification server of Wayland desktops."""

import subprocess
from contextlib import contextmanager
from pathlib import Path

import pytest

from patience import eventually
from processes import running
from program import BINARY
from service import NAMES
from sway import the_display, the_session  # The desktop of this file's tests.
from test_notifications import INCIDENT, MAINTENANCE, refresh

PROBE = BINARY.with_name("larkspan_notice_probe")
SERVER = "org.freedesktop.Notifications"

OWN_COLOUR = (0x12, 0x34, 0x56)
SETTINGS = """default-timeout=0
width=420
background-color=#808080
[desktop-entry="com.kestrune.larkspan" urgency=normal]
background-color=#123456
"""


class Mako:
    def __init__(self, session) -> None:
        self._session = session

    def shown(self) -> list[dict]:
        """The newest first."""
        return [{str(name): value for name, value in notice.items()} for notice in self._ask("ListNotifications")]

    def wait_for(self, texts: list[tuple[str, str]]) -> list[dict]:
        """Waits for these summaries and bodies, the newest first."""
        eventually(lambda: [(notice["summary"], notice["body"]) for notice in self.shown()] == texts, lambda: f"it shows {self.shown()}")
        return self.shown()

    def _ask(self, method: str):
        return self._session.bus.call_blocking(SERVER, "/fr/emersion/Mako", "fr.emersion.Mako", method, "", ())


@contextmanager
def running_mako(session):
    settings = Path(session.surroundings["HOME"], "mako")
    settings.write_text(SETTINGS, encoding="utf-8")
    with running("mako", "--config", str(settings), env=session.surroundings, stderr=subprocess.DEVNULL):
        eventually(lambda: session.has(SERVER), "no notification server came")
        yield Mako(session)


@pytest.fixture
def mako(the_session):
    with running_mako(the_session) as made:
        yield made


@pytest.fixture
def probe(the_session):
    with running(str(PROBE), env=the_session.surroundings, stdin=subprocess.PIPE, text=True) as process:
        def tell(*fields: str) -> None:
            process.stdin.write("\t".join(fields) + "\n")
            process.stdin.flush()
        yield tell


INCIDENT_TEXTS = ("New Incident", f"<b>{INCIDENT['title']}</b>\nPayments &lt;i&gt;time out&lt;/i&gt; &amp; are lost.")
MAINTENANCE_TEXTS = ("Scheduled Maintenance", f"<b>{MAINTENANCE['title']}</b>\n{MAINTENANCE['message']}")


def test_new_records_are_shown_as_what_they_are_with_markup_as_text(mako, start, stored_key, the_service, the_display):
    screen = start().screen
    screen.wait_for_rows(NAMES)
    the_service.open_incident(**INCIDENT)
    refresh(screen, the_service)
    (notice,) = mako.wait_for([INCIDENT_TEXTS])
    assert notice["app-name"] == "Kestrune"
    eventually(lambda: OWN_COLOUR in the_display.picture().colours(), "the user's colour for notices of the program is not to be seen")

    the_service.plan_maintenance(**MAINTENANCE)
    refresh(screen, the_service)
    mako.wait_for([MAINTENANCE_TEXTS, INCIDENT_TEXTS])
    the_display.still_picture().save("mako")


def test_a_server_that_comes_late_shows_what_is_told_from_then_on(the_session, start, stored_key, the_service):
    screen = start().screen
    screen.wait_for_rows(NAMES)
    the_service.open_incident("Told to nobody", page="api")
    refresh(screen, the_service)
    with running_mako(the_session) as mako:
        the_service.open_incident(**INCIDENT)
        refresh(screen, the_service)
        mako.wait_for([INCIDENT_TEXTS])


def test_a_later_notice_with_the_same_identifier_takes_the_place_of_the_first(mako, probe):
    probe("incident-1", "Search", "Slow.")
    (first,) = mako.wait_for([("New Incident", "<b>Search</b>\nSlow.")])
    probe("incident-2", "Login", "Fails.")
    mako.wait_for([("New Incident", "<b>Login</b>\nFails."), ("New Incident", "<b>Search</b>\nSlow.")])
    probe("incident-1", "Search", "Down.")
    mako.wait_for([("New Incident", "<b>Login</b>\nFails."), ("New Incident", "<b>Search</b>\nDown.")])
    assert mako.shown()[1]["id"] == first["id"]


def test_a_server_that_starts_again_shows_the_next_notice(the_session, probe):
    with running_mako(the_session) as mako:
        probe("incident-1", "Search", "Slow.")
        mako.wait_for([("New Incident", "<b>Search</b>\nSlow.")])
    with running_mako(the_session) as mako:
        probe("incident-1", "Search", "Down.")
        mako.wait_for([("New Incident", "<b>Search</b>\nDown.")])
