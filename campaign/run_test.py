#!/usr/bin/python3
"""What campaign/run makes of a row's program.

usage: run_test.py
"""

import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

RUN = Path(__file__).resolve().with_name("run")
GOOD = json.dumps({"cell": "a read: refused", "failures": []})
BAD = json.dumps({"cell": "a write: cut", "failures": ["It was sent twice.", "The key stands there."]})


def ran(*lines: str, status: int = 0) -> subprocess.CompletedProcess:
    """Runs the row `road` with a program that prints these lines."""
    with tempfile.TemporaryDirectory() as binaries:
        program = Path(binaries, "larkspan-campaign-road")
        prints = "".join(f"echo '{line}'\n" for line in lines)
        program.write_text(f"#!/bin/sh\n{prints}exit {status}\n", encoding="utf-8")
        program.chmod(0o755)
        return subprocess.run([sys.executable, RUN, binaries, "--part", "road"], capture_output=True, text=True, check=False)


class TheRunner(unittest.TestCase):
    def test_ends_well_where_every_cell_has_passed(self):
        end = ran(GOOD, GOOD)
        self.assertEqual(end.returncode, 0, end.stderr)
        self.assertRegex(end.stdout, r"road +2 +0 +\d+ +./dev campaign road\n")

    def test_ends_with_1_and_names_each_cell_that_has_failed(self):
        end = ran(GOOD, BAD)
        self.assertEqual(end.returncode, 1)
        self.assertIn("campaign: road: a write: cut: It was sent twice. The key stands there.\n", end.stdout)
        self.assertRegex(end.stdout, r"road +2 +1 ")

    def test_takes_a_program_that_crashes_for_a_failure(self):
        end = ran(GOOD, status=9)
        self.assertEqual(end.returncode, 1)
        self.assertIn("The program of the row ended with 9 after 1 cells.", end.stdout)

    def test_takes_a_program_without_cells_for_a_failure(self):
        self.assertEqual(ran().returncode, 1)

    def test_takes_a_row_that_cannot_run_on_this_machine_for_none(self):
        end = ran(status=77)
        self.assertEqual(end.returncode, 77)
        self.assertIn("this machine cannot run it", end.stdout)

    def test_knows_only_the_rows_that_are_listed(self):
        end = subprocess.run([sys.executable, RUN, "/", "nonsense"], capture_output=True, text=True, check=False)
        self.assertEqual(end.returncode, 1)
        self.assertIn('there is no row "nonsense"', end.stderr)


if __name__ == "__main__":
    unittest.main()
