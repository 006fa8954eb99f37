#!/usr/bin/python3
"""Rules about what is said in several files of a package: the packages that it needs, its version and its home.

usage: packaging_rules.py    prints a sentence for each difference, and ends with 1 if there is one
"""

import re
import sys
from pathlib import Path

CONTROL = "packaging/debian/control"
DEPENDENCIES = "packaging/dependencies"
# The shared libraries are found in the program, and fonts are installed with the library that reads them.
FOUND_BY_OTHERS = re.compile(r"(lib|fonts-)")

VERSIONS = {
    "CMakeLists.txt": r"^project\(larkspan VERSION (\S+)",
    "packaging/debian/changelog": r"\A\S+ \((\S+)\)",
    "packaging/com.kestrune.larkspan.metainfo.xml.in": r'<release version="([^"]+)"',
    "packaging/larkspan.1": r'^\.TH LARKSPAN 1 \S+ "Larkspan ([^"]+)"',
}

HOMES = {
    "CMakeLists.txt": r'^set\(LARKSPAN_WEBSITE "([^"]+)"',
    CONTROL: r"^Homepage: (\S+)$",
}


def group(dependencies: str, name: str) -> set[str]:
    rows = (line.split() for line in dependencies.splitlines() if not line.startswith("#"))
    return {row[1] for row in rows if row and row[0] == name}


def field(control: str, name: str) -> set[str]:
    """The packages of a field, each without its version; of alternatives, the first."""
    found = re.search(rf"^{name}:(.*(?:\n[ \t].*)*)", control, re.MULTILINE)
    entries = found.group(1).split(",") if found else []
    return {entry.split()[0] for entry in entries if entry.strip() and "${" not in entry}


def differences_of_packages(control: str, dependencies: str) -> list[str]:
    declared = field(control, "Build-Depends") - {"debhelper-compat"}
    listed = group(dependencies, "build")
    needed = {package for package in group(dependencies, "run") if not FOUND_BY_OTHERS.match(package)}
    offered = field(control, "Depends") | field(control, "Recommends")
    return [
        *(f"{CONTROL}: Build-Depends lacks {package} of the group build" for package in sorted(listed - declared)),
        *(f"{CONTROL}: {package} is not in the group build of {DEPENDENCIES}" for package in sorted(declared - listed)),
        *(f"{CONTROL}: Depends and Recommends lack {package} of the group run" for package in sorted(needed - offered)),
        *(f"{CONTROL}: {package} is not in the group run of {DEPENDENCIES}"
          for package in sorted(field(control, "Depends") - needed)),
    ]


def differences(of_what: str, patterns: dict[str, str], texts: dict[str, str]) -> list[str]:
    values = {path: found.group(1) if (found := re.search(patterns[path], text, re.MULTILINE)) else "none"
              for path, text in texts.items()}
    if len(set(values.values())) == 1 and "none" not in values.values():
        return []
    return [f"the {of_what} differ: " + ", ".join(f"{value} in {path}" for path, value in values.items())]


def main() -> int:
    found = differences_of_packages(Path(CONTROL).read_text(), Path(DEPENDENCIES).read_text())
    for of_what, patterns in [("versions", VERSIONS), ("homes", HOMES)]:
        found += differences(of_what, patterns, {path: Path(path).read_text() for path in patterns})
    for sentence in found:
        print(sentence)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
