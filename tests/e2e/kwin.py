"""A Wayland desktop that minimises windows, and its user's orders by scripts as the desktop's own tools give
them."""

import json
import re
import shutil
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator

from display import Display
from patience import eventually
from processes import running
from session import Session

WIDTH, HEIGHT = 1280, 960
SOCKET = "wayland-larkspan"
SERVICE = "org.kde.KWin"
SURROUNDINGS = {
    # Without a graphics card.
    "KWIN_COMPOSE": "Q",
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
        """What the button in the title bar does, which has to minimise the window."""
        self._run(process_id, "window.closeWindow();")
        eventually(lambda: self.window(process_id)["is_minimised"], "closing does not minimise")

    def activate(self, process_id: int) -> None:
        """What a taskbar does with a minimised window."""
        self._run(process_id, "window.minimized = false; activate(window);")
        self.wait_until_in_front(process_id)

    def wait_until_in_front(self, process_id: int) -> None:
        eventually(lambda: (window := self.window(process_id))["has_focus"] and not window["is_minimised"],
                   lambda: f"the window does not come back: {self.window(process_id)}")

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


@contextmanager
def kwin(session: Session, on: Display | None = None) -> Iterator[KWin]:
    """Started in the session, whose programs are on it from then on; to be seen if it is on a display."""
    runtime, home = (Path(session.surroundings[name]) for name in ("XDG_RUNTIME_DIR", "HOME"))
    # The installed one asks for a capability that a container may forbid; a copy has none.
    program, log = home / "kwin_wayland", home / "kwin.log"
    shutil.copyfile(shutil.which("kwin_wayland"), program)
    program.chmod(0o700)
    place = ["--x11-display", on.name] if on else ["--virtual"]
    command = [str(program), *place, "--no-lockscreen", "--width", str(WIDTH), "--height", str(HEIGHT), "--socket", SOCKET]
    with log.open("w") as words, running(*command, env=session.surroundings | SURROUNDINGS, stdout=words, stderr=words):
        eventually(lambda: (runtime / SOCKET).is_socket() and session.has(SERVICE), lambda: f"no compositor came; it says: {log.read_text()}")
        session.surroundings |= {"WAYLAND_DISPLAY": SOCKET, "QT_QPA_PLATFORM": "wayland", "XDG_SESSION_TYPE": "wayland",
                                 "XDG_CURRENT_DESKTOP": "KDE"}
        yield KWin(session, log)
