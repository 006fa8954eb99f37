"""The connection to the service: lost, redirected, or not to be trusted."""

from pathlib import Path

import pytest

from service import NAMES
from test_day import STALE

HOSTS = Path("/etc/hosts")


@pytest.fixture
def hosts():
    """The tests' own table of hosts, restored afterwards."""
    before = HOSTS.read_text(encoding="utf-8")
    yield HOSTS
    HOSTS.write_text(before, encoding="utf-8")


def test_a_host_without_an_address_is_told_and_found_again(start, stored_key, the_service, hosts):
    known = hosts.read_text(encoding="utf-8")
    hosts.write_text("127.0.0.1 localhost\n", encoding="utf-8")
    screen = start().screen
    # The tests' environment has no network, which is what the user should check.
    screen.wait_for("The computer is not connected to the network.")

    hosts.write_text(known, encoding="utf-8")
    screen.press("Retry")
    screen.wait_for_rows(NAMES)


def test_a_server_that_is_not_there_is_told_and_found_again(start, stored_key, the_service):
    the_service.stop()
    screen = start().screen
    screen.wait_for("Could not connect to the server.")

    the_service.reset()
    screen.press("Retry")
    screen.wait_for_rows(NAMES)


def test_pages_stay_on_screen_while_the_server_is_gone(start, stored_key, the_service):
    screen = start().screen
    screen.wait_for_rows(NAMES)

    the_service.stop()
    screen.press("Refresh Now")
    screen.wait_for(STALE)
    assert screen.rows() == NAMES

    the_service.reset()
    screen.press("Retry")
    screen.wait_until_gone(STALE)
    assert screen.rows() == NAMES


def test_a_redirect_within_the_service_is_followed(start, stored_key, the_service):
    the_service.fail("redirect", location="/user/api/v1/status-pages", times=1)
    start().screen.wait_for_rows(NAMES)
    assert [request["target"] for request in the_service.requests()].count("/user/api/v1/status-pages") == 2


@pytest.mark.parametrize("kind", ["untrusted", "expired", "wrong-name"])
def test_a_certificate_that_is_not_good_is_refused(kind, start, stored_key, the_service):
    the_service.show_certificate(kind)
    screen = start().screen
    screen.wait_for("The server’s certificate is not trusted.")
    assert the_service.requests() == []

    the_service.show_certificate("valid")
    screen.press("Retry")
    screen.wait_for_rows(NAMES)
