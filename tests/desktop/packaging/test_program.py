"""How the program is built, read from its headers: hardened as the distribution's own, and without traces of the build.

Needs LARKSPAN_PROGRAM and LARKSPAN_BUILD: the program, and the folder of its build.
"""

import os
import platform
import re
import subprocess
from pathlib import Path

import pytest

SOURCE = Path(__file__).resolve().parents[3]
PROGRAM = os.environ["LARKSPAN_PROGRAM"]


def told_by(*command):
    return subprocess.run([*command, PROGRAM], env=dict(os.environ, LC_ALL="C"), check=True, capture_output=True,
                          text=True).stdout


def imported():
    return re.findall(r" UND ([^@\s]+)", told_by("readelf", "--wide", "--dyn-syms"))


def test_the_program_is_loaded_at_an_address_that_nobody_knows():
    assert re.search(r"Type: +DYN ", told_by("readelf", "--file-header"))
    assert re.search(r"\(FLAGS_1\) .*\bPIE\b", told_by("readelf", "--dynamic"))


def test_its_table_of_addresses_is_read_only_before_it_starts():
    assert "GNU_RELRO" in told_by("readelf", "--wide", "--segments")
    dynamic = told_by("readelf", "--dynamic")
    assert re.search(r"\(FLAGS\) .*\bBIND_NOW\b", dynamic)
    assert re.search(r"\(FLAGS_1\) .*\bNOW\b", dynamic)


def test_its_stack_is_no_code():
    (stack,) = re.findall(r"GNU_STACK .*", told_by("readelf", "--wide", "--segments"))
    assert re.search(r" RW +0x", stack)


def test_a_broken_stack_ends_it():
    assert "__stack_chk_fail" in imported()


def test_the_c_library_checks_its_buffers():
    assert any(re.fullmatch(r"__\w+_chk", name) and name != "__stack_chk_fail" for name in imported())


def test_jumps_only_reach_the_beginning_of_functions():
    marks = {"x86_64": "endbr64", "aarch64": "(bti|paciasp)"}
    if platform.machine() not in marks:
        pytest.skip(f"the compiler offers none on {platform.machine()}")
    beginning = told_by("objdump", "--disassemble=main").split("<main>:\n", 1)[1].split("\n", 1)[0]
    assert re.search(marks[platform.machine()], beginning)


def test_libraries_are_only_sought_where_the_system_has_them():
    assert not re.search(r"\((RPATH|RUNPATH)\)", told_by("readelf", "--dynamic"))


def test_it_tells_nothing_of_the_folders_that_it_was_built_in():
    program = Path(PROGRAM).read_bytes()
    assert [folder for folder in [str(SOURCE), os.environ["LARKSPAN_BUILD"]] if folder.encode() in program] == []
