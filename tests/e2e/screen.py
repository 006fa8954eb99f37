"""The program's window as a screen reader sees it."""

import os
import subprocess
import time
from typing import Callable, Iterator, NamedTuple

import dbus

from patience import eventually
from processes import running
from session import Session

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
EVENT = "org.a11y.atspi.Event.Object"
TEXT = "org.a11y.atspi.Text"
REGISTRY = "/org/a11y/atspi/registry"
ROOT = "/org/a11y/atspi/accessible/root"
ENABLED, FOCUSED, SENSITIVE, SHOWING, VISIBLE = 8, 12, 24, 25, 30


class Thing(NamedTuple):
    owner: str
    path: str
    role: str
    name: str
    description: str
    states: int

    def is_in(self, state: int) -> bool:
        return bool(self.states >> state & 1)


def is_seen(thing: Thing) -> bool:
    return thing.is_in(SHOWING) and thing.is_in(VISIBLE)


class Changes:
    """The events on the accessibility bus about the state of one object."""

    def __init__(self, address: str, path: str, state: str) -> None:
        self._told = f'string "{state}"'
        rule = f"type='signal',interface='{EVENT}',member='StateChanged',path='{path}'"
        self._monitor = running("dbus-monitor", "--address", address, rule, stdout=subprocess.PIPE, bufsize=0)

    def __enter__(self) -> "Changes":
        self._process = self._monitor.__enter__()
        os.set_blocking(self._process.stdout.fileno(), False)
        self._text = b""
        # It reports its own bus name as soon as it listens.
        eventually(lambda: "NameAcquired" in self._read(), "nobody listens")
        return self

    def __exit__(self, *error) -> None:
        self._monitor.__exit__(*error)

    def count(self) -> int:
        return self._read().count(self._told)

    def _read(self) -> str:
        while more := self._process.stdout.read(4096):
            self._text += more
        return self._text.decode()


class Screen:
    def __init__(self, session: Session, process_id: int) -> None:
        self._address = session.accessibility_address()
        self._bus = session.accessibility_bus()
        self._process_id = process_id

    def things(self) -> list[Thing]:
        """All visible objects in reading order."""
        try:
            return [thing for owner in self._owners() for thing in self._below(owner, ROOT, is_seen)]
        except dbus.DBusException:
            # An object disappeared while the tree was read, so the result is inconsistent.
            return []

    def owner(self) -> str:
        """The program's name on the accessibility bus."""
        return self._owners()[0]

    def everything_said(self) -> list[str]:
        """Every text that a program on the accessibility bus can read from the window, shown or not."""
        said = []
        for owner in self._owners():
            for thing in self._below(owner, ROOT, lambda _: True):
                said += [thing.name, thing.description]
                if TEXT in self._call(thing.owner, thing.path, ACCESSIBLE, "GetInterfaces", "", ()):
                    said.append(str(self._call(thing.owner, thing.path, TEXT, "GetText", "ii", (0, -1))))
        return said

    def texts(self) -> list[str]:
        return [text for thing in self.things() for text in (thing.name, thing.description) if text]

    def shows(self, text: str) -> bool:
        return text in self.texts()

    def rows(self) -> list[str]:
        """The list's rows from top to bottom; the tree has them in order of creation."""
        rows = [thing for thing in self.things() if thing.role == "list item"]
        try:
            return [thing.name for thing in sorted(rows, key=self._top)]
        except dbus.DBusException:
            return []

    def wait_for(self, text: str, seconds: float = 10) -> None:
        eventually(lambda: self.shows(text), lambda: f"\"{text}\" does not show; this does: {self.texts()}", seconds)

    def wait_until_gone(self, text: str, seconds: float = 10) -> None:
        # An empty result means that the window could not be read.
        eventually(lambda: (shown := self.texts()) and text not in shown, lambda: f"\"{text}\" still shows: {self.texts()}", seconds)

    def wait_for_rows(self, names: list[str], seconds: float = 10) -> None:
        eventually(lambda: self.rows() == names, lambda: f"the rows are {self.rows()}; this shows: {self.texts()}", seconds)

    def button(self, name: str) -> Thing:
        return self._find(lambda thing: thing.role == "push button" and thing.name == name, f"button \"{name}\"")

    def disabled(self, role: str = "push button") -> list[str]:
        """The names of the visible objects of a role that are disabled."""
        return [thing.name for thing in self.things()
                if thing.role == role and not (thing.is_in(ENABLED) and thing.is_in(SENSITIVE))]

    def wait_for_disabled(self, names: list[str], role: str = "push button") -> None:
        eventually(lambda: self.disabled(role) == names, lambda: f"disabled are {self.disabled(role)}; this shows: {self.texts()}")

    def changes_of(self, name: str, state: str) -> "Changes":
        """Counts from now on the events that the state of the button with that name has changed."""
        # Qt sends only the events that somebody has asked for.
        self._call("org.a11y.atspi.Registry", REGISTRY, "org.a11y.atspi.Registry", "RegisterEvent", "s", ("object:state-changed",))
        time.sleep(1)
        return Changes(self._address, self.button(name).path, state)

    def place(self, name: str) -> tuple[int, int, int, int]:
        """Its place on the display: left, top, width and height."""
        return self.extents(self._find(lambda thing: thing.name == name, f"\"{name}\""))

    def extents(self, thing: Thing) -> tuple[int, int, int, int]:
        found = self._call(thing.owner, thing.path, "org.a11y.atspi.Component", "GetExtents", "u", (0,))
        return tuple(int(value) for value in found)

    def press(self, name: str) -> None:
        self._act(self.button(name))

    def choose(self, name: str) -> None:
        """Chooses a row of the open menu."""
        self._act(self._find(lambda thing: thing.role == "menu item" and thing.name == name, f"row \"{name}\""))

    def menu(self) -> list[str]:
        """The commands and texts of the open menu, without the separators."""
        return [thing.name for thing in self.things() if thing.role == "menu item"]

    def focused(self) -> str:
        """The name of the item with the focus; a sheet that contains it is reported as focused too."""
        return next((thing.name for thing in reversed(self.things()) if thing.is_in(FOCUSED)), "")

    def wait_for_focus(self, name: str) -> None:
        eventually(lambda: self.focused() == name, lambda: f"\"{name}\" has not the focus, but \"{self.focused()}\"")

    def _act(self, thing: Thing) -> None:
        names = [str(action[0]) for action in self._call(thing.owner, thing.path, ACTION, "GetActions", "", ())]
        self._call(thing.owner, thing.path, ACTION, "DoAction", "i", (names.index("Press"),))

    def _top(self, thing: Thing) -> int:
        return self.extents(thing)[1]

    def _find(self, fits: Callable[[Thing], bool], what: str) -> Thing:
        return eventually(lambda: next(filter(fits, self.things()), None),
                          lambda: f"there is no {what}; this shows: {[thing[2:5] for thing in self.things()]}")

    def _owners(self) -> list[str]:
        applications = self._call("org.a11y.atspi.Registry", ROOT, ACCESSIBLE, "GetChildren", "", ())
        return [str(owner) for owner, _ in applications if self._belongs(str(owner))]

    def _belongs(self, owner: str) -> bool:
        return int(self._bus.get_object("org.freedesktop.DBus", "/", introspect=False).GetConnectionUnixProcessID(
            owner, dbus_interface="org.freedesktop.DBus")) == self._process_id

    def _below(self, owner: str, path: str, counts: Callable[[Thing], bool]) -> Iterator[Thing]:
        for child_owner, child in self._call(owner, path, ACCESSIBLE, "GetChildren", "", ()):
            thing = self._read(str(child_owner), str(child))
            if counts(thing):
                yield thing
                yield from self._below(thing.owner, thing.path, counts)

    def _read(self, owner: str, path: str) -> Thing:
        low, high = self._call(owner, path, ACCESSIBLE, "GetState", "", ())
        role = self._call(owner, path, ACCESSIBLE, "GetRoleName", "", ())
        named = [self._call(owner, path, "org.freedesktop.DBus.Properties", "Get", "ss", (ACCESSIBLE, field))
                 for field in ("Name", "Description")]
        return Thing(owner, path, str(role), str(named[0]), str(named[1]), int(high) << 32 | int(low))

    def _call(self, owner: str, path: str, interface: str, method: str, signature: str, arguments: tuple):
        return self._bus.call_blocking(owner, path, interface, method, signature, arguments, timeout=5)
