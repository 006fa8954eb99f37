#!/usr/bin/python3
"""The programs beside this one, each killed, stopped, slow or replaced by one that lies, at each stage, and as it was
again: the window answers at once throughout, and what comes back is used again.

usage: campaign/neighbours.py BINARIES all|part [TEXT]
"""

import os
import signal
import subprocess
import sys
import threading
import time
from contextlib import ExitStack, contextmanager
from pathlib import Path
from typing import Callable, Iterator, NamedTuple

import whole

MOST_MILLISECONDS = 100
LIAR = Path(__file__).with_name("liar.py")
STAGES = ("at rest", "in the middle of a refresh", "under open settings")


class Stage(NamedTuple):
    """What stands around the program."""

    service: object
    session: object
    display: object
    program: object

    def refresh(self) -> None:
        names = [thing.name for thing in self.program.screen.things() if thing.role == "push button"]
        self.program.screen.press("Retry" if "Retry" in names else "Refresh Now")

    def has_fetched(self) -> bool:
        """Whether a refresh reaches the service."""
        from patience import eventually
        self.service.forget()
        self.refresh()
        return bool(eventually(self.service.requests, "the program fetches nothing", 15))


class Neighbour(NamedTuple):
    bus_name: str
    start: Callable
    """Fails if the program does not use it again."""
    use: Callable[[Stage, object], None]


def use_notices(stage: Stage, notices) -> None:
    before = len(notices.all())
    stage.service.open_incident(f"Incident {time.monotonic()}")
    stage.has_fetched()
    notices.wait_for(before + 1)


def use_keyring(stage: Stage, _keyring) -> None:
    assert stage.has_fetched()


def use_panel(stage: Stage, panel) -> None:
    from patience import eventually
    panel.wait_for_item()
    stage.service.forget()
    panel.click("Refresh")
    eventually(stage.service.requests, "a row of the panel's menu does nothing")


def use_portal(stage: Stage, portal) -> None:
    from patience import eventually

    def lightness() -> int:
        left, top, width, _ = stage.display.place(stage.program.window())
        picture = stage.display.picture()
        return picture.pixels[((top + 4) * picture.width + left + width // 2) * 3]

    for is_dark in (True, False, True):
        portal.set_dark(is_dark)
        eventually(lambda is_dark=is_dark: (lightness() < 128) == is_dark, "the window does not follow the portal")


def use_network(stage: Stage, network) -> None:
    from patience import eventually
    screen, stale = stage.program.screen, "Status may be stale"

    def goes() -> bool:
        # Told again and again, since Qt does not hear what changes between its first question and the end of its start.
        network.set_online(False)
        return screen.shows(stale)

    eventually(goes, "the window does not notice that the network has gone")
    network.set_online(True)
    screen.wait_until_gone(stale)


def neighbours() -> dict[str, Neighbour]:
    import keyring
    import peers
    from service import KEY

    def with_key(session):
        made = keyring.keyring(session)
        return StoringKeyring(made, KEY.encode())

    return {
        "notification server": Neighbour("org.freedesktop.Notifications", peers.notices, use_notices),
        "keyring": Neighbour("org.freedesktop.secrets", with_key, use_keyring),
        "panel": Neighbour("org.kde.StatusNotifierWatcher", peers.panel, use_panel),
        "portal": Neighbour("org.freedesktop.portal.Desktop", peers.portal, use_portal),
        "network": Neighbour(peers.Network.NAME, peers.network, use_network),
    }


class StoringKeyring:
    """A keyring that has the key."""

    def __init__(self, made, key: bytes) -> None:
        self._made, self._key = made, key

    def __enter__(self):
        entered = self._made.__enter__()
        entered.store(self._key)
        return entered

    def __exit__(self, *error) -> None:
        self._made.__exit__(*error)


class Watch:
    """Asks the window again and again how many children it has, as a screen reader does, and notes the longest answer.

    A busy machine is late for everyone. So an answer counts only if the accessibility bus itself was quick just before
    and after it, and without the time for which the program was ready and got no processor."""

    QUICK = 0.03

    def __init__(self, stage: Stage) -> None:
        self._bus = stage.session.accessibility_bus()
        self._owner = stage.program.screen.owner()
        process = stage.program.process.pid
        self._schedule = Path("/proc", str(process), "task", str(process), "schedstat")
        self._is_over = threading.Event()
        self._thread = threading.Thread(target=self._ask)
        self.longest = 0.0
        self.answers = 0

    def __enter__(self) -> "Watch":
        self._thread.start()
        return self

    def __exit__(self, *error) -> None:
        self._is_over.set()
        self._thread.join()
        self._bus.close()

    def _ask(self) -> None:
        while not self._is_over.wait(0.01):
            before = self._seconds("org.freedesktop.DBus", "/", "org.freedesktop.DBus.Peer", "Ping", "", ())
            waited = self._seconds_without_processor()
            taken = self._seconds(self._owner, "/org/a11y/atspi/accessible/root", "org.freedesktop.DBus.Properties", "Get", "ss",
                                  ("org.a11y.atspi.Accessible", "ChildCount"))
            taken -= self._seconds_without_processor() - waited
            after = self._seconds("org.freedesktop.DBus", "/", "org.freedesktop.DBus.Peer", "Ping", "", ())
            if max(before, after) < self.QUICK:
                self.longest = max(self.longest, taken)
                self.answers += 1

    def _seconds_without_processor(self) -> float:
        return int(self._schedule.read_text(encoding="utf-8").split()[1]) / 1e9

    def _seconds(self, *call) -> float:
        began = time.monotonic()
        self._bus.call_blocking(*call, timeout=30)
        return time.monotonic() - began


class Standing:
    """A neighbour that runs, and runs again."""

    def __init__(self, stage: Stage, neighbour: Neighbour, running: ExitStack) -> None:
        self._stage, self._neighbour, self._running = stage, neighbour, running
        self.start()

    def start(self) -> None:
        self._peer = self._running.enter_context(self._neighbour.start(self._stage.session))

    def end(self) -> None:
        from patience import eventually
        self._running.close()
        eventually(lambda: not self._stage.session.has(self._neighbour.bus_name), "it does not end")

    def process(self) -> int:
        bus = self._stage.session.bus.get_object("org.freedesktop.DBus", "/", introspect=False)
        return int(bus.GetConnectionUnixProcessID(self._neighbour.bus_name, dbus_interface="org.freedesktop.DBus"))

    def be_used(self) -> None:
        self._neighbour.use(self._stage, self._peer)

    @contextmanager
    def liar(self) -> Iterator[None]:
        from processes import running
        with running(sys.executable, str(LIAR), self._neighbour.bus_name, env=self._stage.session.surroundings,
                     stdout=subprocess.PIPE, text=True) as liar:
            assert liar.stdout.readline() == "ready\n"
            yield


@contextmanager
def killed(neighbour: Standing) -> Iterator[None]:
    os.kill(neighbour.process(), signal.SIGKILL)
    yield
    neighbour.end()
    neighbour.start()


@contextmanager
def stopped(neighbour: Standing) -> Iterator[None]:
    process = neighbour.process()
    os.kill(process, signal.SIGSTOP)
    yield
    os.kill(process, signal.SIGCONT)


@contextmanager
def slow(neighbour: Standing) -> Iterator[None]:
    """It is stopped most of the time."""
    process, is_over = neighbour.process(), threading.Event()

    def crawl() -> None:
        while not is_over.is_set():
            os.kill(process, signal.SIGSTOP)
            is_over.wait(0.38)
            os.kill(process, signal.SIGCONT)
            time.sleep(0.02)

    crawling = threading.Thread(target=crawl)
    crawling.start()
    try:
        yield
    finally:
        is_over.set()
        crawling.join()


@contextmanager
def lying(neighbour: Standing) -> Iterator[None]:
    neighbour.end()
    with neighbour.liar():
        yield
    neighbour.start()


WAYS = {"killed": killed, "stopped": stopped, "slow": slow, "lying": lying}


def play_cell(stage: Stage, neighbour: Standing, way: str, moment: str) -> tuple[float, list[str]]:
    """Returns the longest time that the window took to answer, in milliseconds, and what was wrong."""
    neighbour.be_used()
    if moment == "under open settings":
        # Loading them for the first time takes a while, whoever is there.
        stage.program.screen.press("Settings")
        stage.program.screen.wait_for("Done")
    with Watch(stage) as watch:
        if moment == "in the middle of a refresh":
            stage.refresh()
        with WAYS[way](neighbour):
            stage.service.open_incident("Seen by nobody")
            if moment == "under open settings":
                time.sleep(0.5)
                stage.display.press_key("Escape")
            stage.refresh()
            time.sleep(2)
        time.sleep(0.5)
    failures = []
    longest = watch.longest * 1000
    if longest > MOST_MILLISECONDS:
        failures.append(f"The window took {longest:.0f} ms to answer.")
    if watch.answers < 20:
        failures.append(f"The window answered only {watch.answers} times.")
    try:
        neighbour.be_used()
    except AssertionError as error:
        failures.append(f"What came back is not used: {error}")
    return longest, failures


def cells(is_part: bool, text: str) -> Iterator[tuple[str, str, str]]:
    for name in neighbours():
        for way in WAYS:
            for moment in STAGES[:1] if is_part else STAGES:
                if text in f"{name} {way} {moment}":
                    yield name, way, moment


def play(is_part: bool, text: str) -> None:
    import display
    import program
    import service
    import session
    known = neighbours()
    with ExitStack() as started:
        the_display = started.enter_context(display.display())
        the_service = started.enter_context(service.simulator())
        for number, (name, way, moment) in enumerate(cells(is_part, text)):
            home = Path(os.environ["LARKSPAN_E2E_WORLD"], f"home-{number}")
            home.mkdir()
            the_service.reset()
            with ExitStack() as cell:
                the_session = cell.enter_context(session.session(the_display, home))
                the_session.surroundings["DBUS_SYSTEM_BUS_ADDRESS"] = the_session.surroundings["DBUS_SESSION_BUS_ADDRESS"]
                running = cell.enter_context(ExitStack())
                # The keyring that a cell is about is another one, which comes when the program runs.
                (running if name == "keyring" else cell).enter_context(known["keyring"].start(the_session))
                the_program = cell.enter_context(program.program(the_session, the_display))
                the_program.screen.wait_for_rows(service.NAMES)
                if name == "keyring":
                    running.close()
                stage = Stage(the_service, the_session, the_display, the_program)
                try:
                    longest, failures = play_cell(stage, Standing(stage, known[name], running), way, moment)
                except AssertionError as error:
                    longest, failures = 0.0, [str(error)]
                whole.report(f"{name} {way} {moment}", failures, longest_milliseconds=round(longest))


if __name__ == "__main__":
    sys.exit(whole.main(play))
