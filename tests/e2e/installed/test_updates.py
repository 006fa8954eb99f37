"""The program asks the distribution's package service about its own package."""

import pytest

import session
from package import ROOT, WORK
from service import NAMES

SOURCE = "/etc/apt/sources.list.d/updates.list"


@pytest.fixture(scope="module")
def package_service(administrator, package):
    package.install()
    administrator.install("dbus", "packagekit")
    administrator.run("mkdir", "--parents", "/run/dbus")
    administrator.run("dbus-daemon", "--system", "--fork")


@pytest.fixture
def screen(package_service, the_session, start, stored_key, the_service):
    # The program's own choice is the system's bus.
    del the_session.surroundings["DBUS_SYSTEM_BUS_ADDRESS"]
    made = start().screen
    made.wait_for_rows(NAMES)
    return made


def ask(screen, title: str) -> None:
    screen.press("Menu")
    screen.choose("Check for Updates…")
    screen.wait_for(title, seconds=60)


def test_without_a_newer_package_it_is_up_to_date_and_with_one_it_names_both(screen, the_display, administrator, package):
    held = package.version()
    ask(screen, "You’re Up to Date")
    assert screen.shows(f"Kestrune {held} is the newest version available.")
    the_display.press_key("Escape")
    screen.wait_until_gone("You’re Up to Date")

    administrator.run("sh", "-c", f"echo 'deb [trusted=yes] file:{WORK}/updates ./' >{SOURCE}")
    administrator.run("apt-get", "update", "--quiet")
    ask(screen, "Update Available")
    assert screen.shows(f"Kestrune {held}+later is available. You have {held}."
                        " Install it the way you install your system’s other updates.")
