"""Notices of new records in the account; the first session has no notification server."""

import pytest

import peers
from patience import eventually
from service import NAMES

INCIDENT = {"title": "Checkout fails", "page": "web", "message": "Payments <i>time out</i> & are lost."}
MAINTENANCE = {"title": "New disks", "page": "docs", "message": "Sunday night."}


def refresh(screen, the_service) -> None:
    """Runs a whole cycle, until the maintenances of the account, which are last, have been fetched and shown."""
    before = len(the_service.requests())
    screen.press("Refresh Now")
    eventually(lambda: len(the_service.requests()) >= before + 4, "the program does not fetch anew")
    eventually(lambda: not screen.shows("Refreshing..."), "the refresh does not end")


def test_without_a_notification_server_the_window_tells_it(start, stored_key, the_service):
    program = start()
    program.screen.wait_for_rows(NAMES)
    the_service.open_incident(**INCIDENT)
    refresh(program.screen, the_service)
    program.screen.wait_for("2 Status Pages require attention")
    program.screen.wait_for("3 Status Pages · 1 active incident")
    assert program.terminate() == 0


@pytest.fixture
def notices(the_session):
    with peers.notices(the_session) as made:
        yield made


def test_what_is_there_at_the_start_is_no_news_and_what_comes_is_told_once(start, notices, stored_key, the_service):
    the_service.open_incident("Known before", page="api")
    the_service.plan_maintenance("Planned before", page="docs")
    screen = start().screen
    screen.wait_for("3 Status Pages · 1 active incident · 1 maintenance scheduled")
    refresh(screen, the_service)
    assert notices.all() == []

    the_service.open_incident(**INCIDENT)
    refresh(screen, the_service)
    told = notices.wait_for(1)
    assert [notice["summary"] for notice in told] == ["New Incident"]
    assert told[0]["body"].splitlines() == [INCIDENT["title"], INCIDENT["message"]]
    screen.wait_for("3 Status Pages · 2 active incidents · 1 maintenance scheduled")

    the_service.plan_maintenance(**MAINTENANCE)
    refresh(screen, the_service)
    told = notices.wait_for(2)
    assert told[1]["summary"] == "Scheduled Maintenance"
    assert told[1]["body"].splitlines() == [MAINTENANCE["title"], MAINTENANCE["message"]]

    refresh(screen, the_service)
    assert len(notices.all()) == 2
