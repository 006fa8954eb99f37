"""A desktop session: a home directory, a message bus that starts only what the test wants, and the accessibility
bus."""

import os
import subprocess
from contextlib import contextmanager
from functools import cached_property
from pathlib import Path
from typing import Iterator

import dbus
import dbus.bus

from display import Display
from processes import running

ACCESSIBILITY = ("org.a11y.Bus",)
SETTINGS = ("org.xfce.Xfconf",)
PROMPTS = ("org.gnome.keyring.SystemPrompter", "org.gnome.keyring.PrivatePrompter")
SERVICES = ACCESSIBILITY + PROMPTS + SETTINGS

BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={runtime}/bus</listen>
  <auth>EXTERNAL</auth>
  <servicedir>{services}</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


class Session:
    def __init__(self, surroundings: dict[str, str]) -> None:
        self.surroundings = surroundings

    @cached_property
    def bus(self) -> dbus.bus.BusConnection:
        connection = dbus.bus.BusConnection(self.surroundings["DBUS_SESSION_BUS_ADDRESS"])
        connection.set_exit_on_disconnect(False)
        return connection

    def has(self, name: str) -> bool:
        return bool(self.bus.name_has_owner(name))

    def accessibility_address(self) -> str:
        return str(self.bus.call_blocking("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", "", ()))

    def accessibility_bus(self) -> dbus.bus.BusConnection:
        connection = dbus.bus.BusConnection(self.accessibility_address())
        connection.set_exit_on_disconnect(False)
        return connection


@contextmanager
def session(display: Display | None, home: Path, daemon: tuple[str, ...] = ("dbus-daemon",), started: tuple[str, ...] = SERVICES) -> Iterator[Session]:
    """On a display, or with none until a compositor is started in it. Its bus starts the services of these names."""
    runtime, services = home / "run", home / "services"
    for folder in (runtime, services, home / "data"):
        folder.mkdir(mode=0o700)
    for service in started:
        (services / f"{service}.service").symlink_to(f"/usr/share/dbus-1/services/{service}.service")
    (home / "bus.conf").write_text(BUS.format(runtime=runtime, services=services), encoding="utf-8")

    surroundings = os.environ | (display.surroundings if display else {}) | {
        "HOME": str(home),
        "XDG_RUNTIME_DIR": str(runtime),
        "XDG_DATA_HOME": str(home / "data"),
        "DBUS_SESSION_BUS_ADDRESS": f"unix:path={runtime}/bus",
        "LC_ALL": "C.UTF-8",
        "NO_AT_BRIDGE": "0",
        "GSETTINGS_BACKEND": "memory",
    }
    with running(*daemon, f"--config-file={home}/bus.conf", "--nofork", "--print-address", env=surroundings,
                 stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True) as bus:
        bus.stdout.readline()
        made = Session(surroundings)
        try:
            yield made
        finally:
            made.bus.close()
