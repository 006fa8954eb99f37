#!/usr/bin/python3
"""The rule that every source is built: a test that no CMakeLists.txt names passes for ever.

usage: build_rules.py PATH...    prints a sentence for each source that none names, and ends with 1 if there is one
"""

import re
import sys
from pathlib import Path, PurePosixPath

TAKES_ALL = re.compile(r"\bfile\(GLOB ([^)]*)\)")


def is_built(source: str, descriptions: dict[str, str]) -> bool:
    """`descriptions` has the texts of CMake by the folder that they stand in."""
    path = PurePosixPath(source)
    named = re.compile(rf"(?<![\w-]){re.escape(path.name)}(?!\w)")
    for folder in path.parents:
        text = descriptions.get(str(folder), "")
        patterns = " ".join(TAKES_ALL.findall(text)).split()
        if named.search(text) or any(fits(path.relative_to(folder), pattern) for pattern in patterns):
            return True
    return False


def fits(path: PurePosixPath, pattern: str) -> bool:
    return len(path.parts) == len(PurePosixPath(pattern).parts) and path.match(pattern)


def main(paths: list[str]) -> int:
    descriptions: dict[str, str] = {}
    for path in map(Path, paths):
        if path.name == "CMakeLists.txt" or path.suffix == ".cmake":
            folder = str(path.parent)
            descriptions[folder] = descriptions.get(folder, "") + path.read_text(encoding="utf-8")
    forgotten = [path for path in paths if path.endswith(".cpp") and Path(path).exists() and not is_built(path, descriptions)]
    for path in forgotten:
        print(f"{path}: no CMakeLists.txt names it, so it is never built")
    return 1 if forgotten else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
