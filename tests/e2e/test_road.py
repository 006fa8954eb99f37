"""No road to the service at all."""

from pathlib import Path

import pytest

from service import NAMES, service_host
from test_day import STALE

HOSTS = Path("/etc/hosts")


@pytest.fixture
def hosts():
    """The tests' own table of hosts, put right again afterwards."""
    before = HOSTS.read_text(encoding="utf-8")
    yield HOSTS
    HOSTS.write_text(before, encoding="utf-8")


def test_a_host_without_an_address_is_told_and_found_again(start, stored_key, the_service, hosts):
    known = hosts.read_text(encoding="utf-8")
    hosts.write_text("127.0.0.1 localhost\n", encoding="utf-8")
    screen = start().screen
    # Nothing leads out of the world of the tests, and that is what the user should look into.
    screen.wait_for("The computer is not connected to the network.")

    hosts.write_text(known, encoding="utf-8")
    screen.press("Retry")
    screen.wait_for_rows(NAMES)


def test_a_server_that_refuses_is_told_and_pages_stay_when_it_goes(start, stored_key, the_service, hosts):
    name, _ = service_host()
    there = hosts.read_text(encoding="utf-8")
    hosts.write_text(f"127.0.0.1 localhost\n127.0.0.9 {name}\n", encoding="utf-8")
    screen = start().screen
    screen.wait_for("Could not connect to the server.")

    hosts.write_text(there, encoding="utf-8")
    screen.press("Retry")
    screen.wait_for_rows(NAMES)

    the_service.fail("closed_before_first_byte")
    screen.press("Refresh Now")
    screen.wait_for(STALE)
    assert screen.rows() == NAMES
