"""The desktop finds the program by the files of its package; the session's bus runs in the same root."""

import os
import signal
import subprocess
from contextlib import contextmanager

import pytest

import keyring
import peers
import program
import session
from package import NAME, PROGRAM, ROOT
from patience import eventually
from screen import Screen
from service import KEY, NAMES

ID = "com.kestrune.larkspan"
ICONS = "usr/share/icons/hicolor/symbolic/apps"
INSIDE = str(program.BINARY.with_name("inside"))


@pytest.fixture(scope="module")
def the_session(the_display, tmp_path_factory, package, administrator):
    package.install()
    administrator.install("dbus", "at-spi2-core", "libglib2.0-bin")
    with session.session(the_display, tmp_path_factory.mktemp("home"), (INSIDE, "dbus-daemon"), session.SERVICES + (ID,)) as made:
        # As a desktop does when its session begins.
        words = {name: value for name, value in program.surroundings(made).items() if name not in os.environ}
        made.bus.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                               "UpdateActivationEnvironment", "a{ss}", (words,))
        yield made


@contextmanager
def started(the_session):
    """The screen of the program that somebody else has started, which ends with the test."""
    eventually(lambda: the_session.has(ID), "the program did not start")
    process = int(the_session.bus.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                                "GetConnectionUnixProcessID", "s", (ID,)))
    try:
        yield Screen(the_session, process), process
    finally:
        os.kill(process, signal.SIGTERM)
        eventually(lambda: not the_session.has(ID), "the program did not end")


def inside(the_session, *command: str) -> None:
    subprocess.run([INSIDE, *command], env=program.surroundings(the_session), timeout=20, check=True)


def test_the_menu_starts_it(the_session, stored_key, the_service, administrator):
    inside(the_session, "gio", "launch", f"/usr/share/applications/{ID}.desktop")
    with started(the_session) as (screen, process):
        screen.wait_for_rows(NAMES)
        assert administrator.program_of(process) == PROGRAM


def activate(the_session) -> None:
    inside(the_session, "gdbus", "call", "--session", "--dest", ID, "--object-path", "/com/kestrune/larkspan",
           "--method", "org.freedesktop.Application.Activate", "{}")


def test_the_bus_starts_it_and_brings_its_window_back(the_session, stored_key, the_service, the_display):
    activate(the_session)
    with started(the_session) as (screen, process):
        screen.wait_for_rows(NAMES)
        window = the_display.window(process)
        the_display.press_close_button(window)
        eventually(lambda: the_display.state(window) == "Iconic", "closing does not minimise")

        activate(the_session)
        eventually(lambda: the_display.state(window) == "Normal", "the window does not come back")


def test_the_panel_takes_the_icon_from_the_theme(the_session, start, stored_key, the_service):
    with peers.panel(the_session) as panel:
        start().screen.wait_for_rows(NAMES)
        panel.wait_for_item()
        panel.wait_for("Some systems degraded", "Degraded")
        assert (ROOT / ICONS / f"{panel.icon()}.svg").is_file()
