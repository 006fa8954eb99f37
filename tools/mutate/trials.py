"""Runs the unit tests against one mutant: first those of its source, then all."""

import os
import re
import resource
import subprocess
import time
from pathlib import Path

from building import PROGRAM, ROOT

LARGEST = 4 * 1024**3


class Trials:
    def __init__(self, skipped: str) -> None:
        self.skipped = f"-{skipped}" if skipped else ""
        began = os.times()
        if not self.passes(0, "*", 3600):
            raise SystemExit("mutate: the tests fail without a mutant; mend that first.")
        ended = os.times()
        self.baseline = ended.children_user + ended.children_system - began.children_user - began.children_system
        # Of the processor's time, so that a busy machine catches nothing.
        self.limit = int(self.baseline * 4) + 5

    def catches(self, number: int, path: str) -> bool:
        own = own_tests(path)
        return bool(own and not self.passes(number, own, self.limit)) or not self.passes(number, "*", self.limit)

    def passes(self, number: int, tests: str, seconds: int) -> bool:
        def bound() -> None:
            resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))
            resource.setrlimit(resource.RLIMIT_AS, (LARGEST, LARGEST))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        environment = {**os.environ, "LARKSPAN_MUTANT": str(number)}
        command = [str(PROGRAM), "--gtest_brief=1", "--gtest_fail_fast", f"--gtest_filter={tests}{self.skipped}"]
        try:
            return subprocess.run(command, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                  preexec_fn=bound, timeout=seconds * 10, check=False).returncode == 0
        except subprocess.TimeoutExpired:
            return False


def own_tests(path: str) -> str:
    """The filter of the tests in the files that mirror the source: those with its name, else those of its folder."""
    source = ROOT / "tests/unit" / Path(path).relative_to("src")
    files = list(source.parent.glob(f"{source.stem}*Test.cpp")) or list(source.parent.glob("*Test.cpp"))
    suites = {suite for file in files
              for suite in re.findall(r"^(?:TYPED_)?TEST(?:_[FP])?\((\w+),", file.read_text(encoding="utf-8"), re.MULTILINE)}
    return ":".join(f"{suite}.*:*/{suite}.*:{suite}/*" for suite in sorted(suites))
