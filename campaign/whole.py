"""What the rows have in common that are about the whole program, on a desktop of its own."""

import json
import sys
from pathlib import Path
from typing import Callable

END_TO_END = Path(__file__).resolve().parent.parent / "tests/e2e"
sys.path.insert(0, str(END_TO_END))

import world


def report(cell: str, failures: list[str], **figures) -> None:
    print(json.dumps({"cell": cell, "failures": failures} | figures), flush=True)


def main(play: Callable[[bool, str], None]) -> int:
    """Plays the row where nothing else of this machine is, with whether only its small part is meant, and the text that
    the cells' names must have; returns the exit code."""
    arguments = [argument for argument in sys.argv[1:] if argument != "--inside"]
    if sys.argv[-1] == "--inside":
        play(arguments[1] == "part", "".join(arguments[2:]))
        return 0
    cache = (Path(arguments[0]).parent / "CMakeCache.txt").read_text(encoding="utf-8")
    host = next(line.partition("=")[2] for line in cache.splitlines() if line.startswith("LARKSPAN_SERVICE_HOST:"))
    return world.run(arguments[0], host, [sys.executable, str(Path(sys.argv[0]).resolve()), *arguments, "--inside"])
