"""The shipped program, started as by a user's desktop."""

import os
import signal
import subprocess
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator

from display import Display
from processes import running
from screen import Screen
from session import Session

BINARY = Path(os.environ["LARKSPAN_E2E_BINARIES"], "larkspan")
DEMO = BINARY.with_name("larkspan-demo")


class Program:
    def __init__(self, process: subprocess.Popen, binary: Path, session: Session, display: Display) -> None:
        self.process = process
        self.binary = binary
        self.surroundings = surroundings(session)
        self.display = display
        self.screen = Screen(session, process.pid)

    def is_running(self) -> bool:
        return self.process.poll() is None

    def window(self) -> str:
        return self.display.window(self.process.pid)

    def terminate(self) -> int:
        """Asks the program to end and returns its exit code."""
        self.process.send_signal(signal.SIGTERM)
        return self.process.wait(5)


def surroundings(session: Session) -> dict[str, str]:
    return session.surroundings | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}


@contextmanager
def program(session: Session, display: Display, binary: Path = BINARY, *arguments: str) -> Iterator[Program]:
    with running(str(binary), *arguments, env=surroundings(session)) as process:
        yield Program(process, binary, session, display)


def start_again(first: Program) -> int:
    """Starts the program again in the same session and returns the exit code."""
    return subprocess.run([str(first.binary)], env=first.surroundings, timeout=10, check=False).returncode
