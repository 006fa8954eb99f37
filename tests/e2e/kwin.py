"""A Wayland desktop that minimises windows, in memory, and its user's orders by scripts as the desktop's own tools give
them."""

import json
import os
import re
import shutil
import threading
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator

import dbus

from patience import eventually
from picture import Picture
from processes import running
from session import Session

WIDTH, HEIGHT = 1280, 960
SOCKET = "wayland-larkspan"
SERVICE = "org.kde.KWin"
SURROUNDINGS = {
    # Without a graphics card.
    "KWIN_COMPOSE": "O2ES",
    "LIBGL_ALWAYS_SOFTWARE": "1",
    "KWIN_SCREENSHOT_NO_PERMISSION_CHECKS": "1",
    # What scripts print is all that can be read of them.
    "QT_FORCE_STDERR_LOGGING": "1",
    "QT_LOGGING_RULES": "js=true;qml=true;kwin_scripting=true",
}
# The names of these changed from one version to the next.
SCRIPT = """
var windows = workspace.windowList ? workspace.windowList() : workspace.clientList();
function activate(window) {{ if (workspace.windowList) workspace.activeWindow = window; else workspace.activeClient = window; }}
windows.forEach(function(window) {{ if (window.pid == {process_id}) {{ {order} }} }});
print("larkspan done {number}");
"""
TELL = 'print("larkspan window " + JSON.stringify({title: window.caption, id: String(window.resourceClass), ' \
       'is_minimised: window.minimized, has_focus: window.active}));'
# By Qt's numbers of picture formats: the places of red, green and blue in a pixel.
FORMATS = {4: (2, 1, 0), 5: (2, 1, 0), 6: (2, 1, 0), 16: (0, 1, 2), 17: (0, 1, 2), 18: (0, 1, 2)}


class KWin:
    def __init__(self, session: Session, log: Path) -> None:
        self._session = session
        self._log = log
        self._number = 0

    def windows(self, process_id: int) -> list[dict]:
        told = self._run(process_id, TELL)
        return [json.loads(window) for window in re.findall(r"larkspan window (\{.*\})", told)]

    def window(self, process_id: int) -> dict:
        return eventually(lambda: self.windows(process_id), "no window came")[0]

    def close(self, process_id: int) -> None:
        """What the button in the title bar does."""
        self._run(process_id, "window.closeWindow();")

    def activate(self, process_id: int) -> None:
        """What a taskbar does with a minimised window."""
        self._run(process_id, "window.minimized = false; activate(window);")

    def picture(self) -> Picture:
        """What the display shows now."""
        reading, writing = os.pipe()
        read = []
        # A compositor that refuses never closes its end.
        reader = threading.Thread(target=lambda: read.append(_all_of(reading)), daemon=True)
        reader.start()
        options = dbus.Dictionary({}, signature="sv")
        try:
            told = self._call("/org/kde/KWin/ScreenShot2", "org.kde.KWin.ScreenShot2", "CaptureArea", "iiuua{sv}h",
                              (0, 0, WIDTH, HEIGHT, options, dbus.types.UnixFd(writing)))
        finally:
            os.close(writing)
        reader.join(10)
        return _plain(read[0], int(told["width"]), int(told["height"]), int(told["stride"]), int(told["format"]))

    def _run(self, process_id: int, order: str) -> str:
        """Returns what is written to the log until the script is done."""
        self._number += 1
        name = f"larkspan-{self._number}"
        script = self._log.with_name(f"{name}.js")
        script.write_text(SCRIPT.format(process_id=process_id, order=order, number=self._number), encoding="utf-8")
        before = self._log.stat().st_size
        self._call("/Scripting", "org.kde.kwin.Scripting", "loadScript", "ss", (str(script), name))
        self._call("/Scripting", "org.kde.kwin.Scripting", "start", "", ())
        eventually(lambda: f"larkspan done {self._number}\n" in self._log.read_text(), "the script does not run")
        return self._log.read_text()[before:]

    def _call(self, path: str, interface: str, method: str, signature: str, arguments: tuple):
        return self._session.bus.call_blocking(SERVICE, path, interface, method, signature, arguments)


def _all_of(pipe: int) -> bytes:
    with os.fdopen(pipe, "rb") as stream:
        return stream.read()


def _plain(content: bytes, width: int, height: int, stride: int, kind: int) -> Picture:
    lines = b"".join(content[line:line + 4 * width] for line in range(0, stride * height, stride))
    pixels = bytearray(3 * width * height)
    for channel, place in enumerate(FORMATS[kind]):
        pixels[channel::3] = lines[place::4]
    return Picture(width, height, bytes(pixels))


@contextmanager
def kwin(session: Session) -> Iterator[KWin]:
    """Started in the session, whose programs are on it from then on."""
    runtime, home = (Path(session.surroundings[name]) for name in ("XDG_RUNTIME_DIR", "HOME"))
    # The installed one asks for a capability that a container may forbid; a copy has none.
    program, log = home / "kwin_wayland", home / "kwin.log"
    shutil.copyfile(shutil.which("kwin_wayland"), program)
    program.chmod(0o700)
    command = [str(program), "--virtual", "--no-lockscreen", "--width", str(WIDTH), "--height", str(HEIGHT), "--socket", SOCKET]
    with log.open("w") as words, running(*command, env=session.surroundings | SURROUNDINGS, stdout=words, stderr=words):
        eventually(lambda: (runtime / SOCKET).is_socket() and session.has(SERVICE), lambda: f"no compositor came; it says: {log.read_text()}")
        session.surroundings |= {"WAYLAND_DISPLAY": SOCKET, "QT_QPA_PLATFORM": "wayland", "XDG_SESSION_TYPE": "wayland",
                                 "XDG_CURRENT_DESKTOP": "KDE"}
        yield KWin(session, log)
