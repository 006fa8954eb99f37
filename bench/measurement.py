"""The form of a measurement, and the way to run a measuring program."""

import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
# The scrolled lists and their numbers of rows.
SCROLLED_ROWS = {"pages": 10_000, "incidents": 10_000, "components": 10_000, "monitors": 2_000, "bare": 10_000}


class Unable(Exception):
    """Raised if a measurement cannot be taken; the message is a sentence for a person."""


def measurement(name, value, unit, reference, goal=None):
    ratio = value / reference
    return {"name": name, "value": value, "unit": unit, "reference": reference, "ratio": ratio, "goal": goal}


def program(build, name):
    path = build / "bin" / name
    if not path.exists():
        raise Unable(f"{path} is missing; ./dev bench builds it.")
    return path


def output_of(command, **options):
    ended = subprocess.run(command, capture_output=True, text=True, **options)
    if ended.returncode != 0:
        raise Unable(f"{command[0]} failed: {ended.stderr.strip()}")
    return ended
