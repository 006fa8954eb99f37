"""What the rows have in common that are about the whole program, on a desktop of its own."""

import json
import sys
from pathlib import Path
from typing import Callable

END_TO_END = Path(__file__).resolve().parent.parent / "tests/e2e"
sys.path.insert(0, str(END_TO_END))

import world


def report(cell: str, failures: list[str]) -> None:
    print(json.dumps({"cell": cell, "failures": failures}), flush=True)


def main(play: Callable[[bool], None]) -> int:
    """Plays the row where nothing else of this machine is, with true for its small part; returns the exit code."""
    if sys.argv[-1] == "--inside":
        play(sys.argv[2] == "part")
        return 0
    cache = (Path(sys.argv[1]).parent / "CMakeCache.txt").read_text(encoding="utf-8")
    host = next(line.partition("=")[2] for line in cache.splitlines() if line.startswith("LARKSPAN_SERVICE_HOST:"))
    return world.run(sys.argv[1], host, [sys.executable, str(Path(sys.argv[0]).resolve()), *sys.argv[1:3], "--inside"])
