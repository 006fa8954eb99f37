"""The mutants that change nothing a test could see, each with its reason, in the file `equivalent`:

    src/core/OverallStatus.cpp
    - if (a < b) return a;
    + if (a <= b) return a;
    = Of two equal ones, either is returned.
"""

from pathlib import Path

FILE = Path(__file__).resolve().parent / "equivalent"

Equivalent = tuple[str, str, str]


def read(text: str) -> set[Equivalent]:
    known = set()
    for block in text.split("\n\n"):
        lines = [line for line in block.splitlines() if not line.startswith("#")]
        if not lines:
            continue
        signs = "".join(line[:2] for line in lines[1:4])
        if len(lines) < 4 or signs != "- + = ":
            raise SystemExit(f"mutate: this is no entry of {FILE.name}, which are a path, \"-\", \"+\" and \"=\":\n{block}")
        known.add((lines[0], lines[1][2:], lines[2][2:]))
    return known
