"""What the program answers on a terminal, without a display or a session bus."""

import os
import re
import subprocess

import pytest

import program


def answer(binary, *arguments: str) -> subprocess.CompletedProcess:
    surroundings = {name: os.environ[name] for name in ("PATH", "HOME") if name in os.environ}
    # Otherwise Qt 6.8 itself says something about it.
    surroundings["LANG"] = "C.UTF-8"
    return subprocess.run([binary, *arguments], env=surroundings, capture_output=True, text=True, timeout=20)


@pytest.mark.parametrize("argument", ["--version", "-v"])
def test_the_version_is_told_with_the_number_of_its_build(argument):
    answered = answer(program.BINARY, argument)
    assert re.fullmatch(r"larkspan \d+(\.\d+)+ \(\d+\)\n", answered.stdout)
    assert (answered.returncode, answered.stderr) == (0, "")


@pytest.mark.parametrize("argument", ["--help", "-h"])
def test_help_says_what_the_program_is_and_names_its_arguments(argument):
    answered = answer(program.BINARY, argument)
    for word in ("status pages", "--minimized", "--status", "--json", "--help", "--version"):
        assert word in answered.stdout
    assert (answered.returncode, answered.stderr) == (0, "")


@pytest.mark.parametrize("argument", ["--colour", "--colour=red", "-x", "page", "--versio", "--help-all"])
def test_an_unknown_argument_is_named_and_ends_with_2(argument):
    answered = answer(program.BINARY, argument)
    assert re.fullmatch(r"larkspan: Unknown .*" + re.escape(argument.lstrip("-").split("=")[0]) + r".*\n", answered.stderr)
    assert (answered.returncode, answered.stdout) == (2, "")


def test_an_unknown_argument_is_named_even_beside_one_that_is_known():
    assert answer(program.BINARY, "--version", "--colour").returncode == 2


@pytest.mark.parametrize("arguments", [["--json"], ["--status", "--minimized"]])
def test_arguments_that_contradict_each_other_end_with_2(arguments):
    answered = answer(program.BINARY, *arguments)
    assert re.fullmatch(r"larkspan: '--\w+' .*\n", answered.stderr)
    assert (answered.returncode, answered.stdout) == (2, "")


def test_arguments_of_qt_are_known():
    answered = answer(program.BINARY, "-platform", "offscreen", "--version")
    assert (answered.returncode, answered.stderr) == (0, "")


def test_the_demo_answers_too():
    assert answer(program.DEMO, "--version").stdout.startswith("larkspan-demo ")
    assert answer(program.DEMO, "--colour").returncode == 2
