"""Notices on a notification server that people use. A picture of one is kept in the build folder."""

import pytest

import dunst
from service import KEY, NAMES, PAGES
from test_notifications import INCIDENT, refresh
from test_settings import ASKS, type_key


@pytest.fixture
def server(the_session):
    with dunst.dunst(the_session) as made:
        yield made


@pytest.fixture
def screen(start, stored_key, the_service):
    made = start().screen
    made.wait_for_rows(NAMES)
    return made


def tell(screen, the_service, title: str) -> None:
    the_service.open_incident(title)
    refresh(screen, the_service)


def test_a_notice_comes_with_its_hints_and_its_markup_is_text(screen, server, the_service, the_display):
    the_service.open_incident(**INCIDENT)
    refresh(screen, the_service)
    server.wait_for(1)
    the_display.picture().save("dunst-notice")
    (notice,) = server.take()
    assert notice["appname"] == "Kestrune"
    assert notice["message"] == ("By its hints: <b>New Incident</b>\n"
                                 "<b>Checkout fails</b>\nPayments &lt;i&gt;time out&lt;/i&gt; &amp; are lost.")


def test_a_notice_of_a_known_record_takes_the_place_of_the_one_before(screen, server, the_service, the_display):
    tell(screen, the_service, "As it was told first")
    server.wait_for(1)

    # A new key makes every record new, also this one, which has the same id in an account that begins anew.
    screen.press("Settings")
    screen.press("Delete API Key")
    screen.wait_for(ASKS)
    screen.press("Delete")
    the_service.give(PAGES)
    type_key(screen, the_display, KEY)
    screen.press("Save & Verify")
    screen.wait_for("Connected")
    screen.press("Done")
    screen.wait_for_rows(NAMES)

    tell(screen, the_service, "As it is told now")
    server.wait_for(1)
    assert ["As it is told now" in notice["message"] for notice in server.take()] == [True]


def test_a_server_that_comes_late_or_crashes_and_returns_shows_what_comes_then(screen, the_session, the_service):
    tell(screen, the_service, "Without a server")
    with dunst.dunst(the_session) as late:
        tell(screen, the_service, "For the late one")
        late.wait_for(1)
        assert "For the late one" in late.take()[0]["message"]
        late.crash()
        tell(screen, the_service, "Without a server again")
    with dunst.dunst(the_session) as returned:
        tell(screen, the_service, "For the one that returned")
        returned.wait_for(1)
        assert "For the one that returned" in returned.take()[0]["message"]
