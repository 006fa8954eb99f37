"""The about box and the check for updates."""

import re
from pathlib import Path

import pytest

import program
from patience import eventually
from service import NAMES

REPORT = "There is no package service on this computer. Updates come with those of your distribution."


@pytest.fixture
def screen(start, stored_key, the_service):
    made = start().screen
    made.wait_for_rows(NAMES)
    return made


def version(screen) -> list[str]:
    return [text for text in screen.texts() if text.startswith("Version ")]


def test_about_tells_the_version_and_escape_gives_the_focus_back(screen, the_display):
    screen.press("Menu")
    screen.choose("About Kestrune")
    screen.wait_for("A focused companion for monitoring your Kestrune status pages.")
    assert len(version(screen)) == 1
    screen.wait_for_focus("Done")

    the_display.press_key("Escape")
    screen.wait_until_gone("Done")
    screen.wait_for_focus("Menu")


def test_done_closes_about(screen):
    screen.press("Menu")
    screen.choose("About Kestrune")
    screen.press("Done")
    screen.wait_until_gone("Done")
    assert screen.rows() == NAMES


@pytest.fixture
def folder(tmp_path):
    """A folder for what opens links, which writes there how it was started."""
    opener = tmp_path / "xdg-open"
    opener.write_text(f"""#!/bin/sh
{{ echo "$1"; cat /proc/self/limits /proc/self/coredump_filter /proc/self/status; }} > {tmp_path}/writing
mv {tmp_path}/writing {tmp_path}/opened
""", encoding="utf-8")
    opener.chmod(0o755)
    return tmp_path


def core_limits(limits: str) -> tuple[str, ...]:
    return re.search(r"^Max core file size +(\S+) +(\S+)", limits, re.MULTILINE).groups()


def test_what_opens_a_link_has_the_core_limits_that_the_program_was_given_and_no_more_rights(folder, the_session, the_display, stored_key,
                                                                                           the_service):
    given = f"""
export PATH={folder}:$PATH
ulimit -Sc 8
ulimit -Hc 16
echo 0x7f > /proc/self/coredump_filter
exec {program.BINARY}
"""
    with program.program(the_session, the_display, Path("/bin/sh"), "-c", given) as started:
        own = Path("/proc", str(started.process.pid))
        screen = started.screen
        screen.wait_for_rows(NAMES)
        assert core_limits((own / "limits").read_text())[0] == "0"
        assert int((own / "coredump_filter").read_text(), 16) == 0

        screen.press("Menu")
        screen.choose("About Kestrune")
        screen.press("GitHub")
        eventually((folder / "opened").exists, "no link is opened")
        opened = (folder / "opened").read_text(encoding="utf-8")
        assert opened.startswith("https://")
        assert core_limits(opened) == ("4096", "8192")
        assert "\n0000007f\n" in opened
        assert "\nNoNewPrivs:\t1\n" in opened
        eventually(lambda: core_limits((own / "limits").read_text())[0] == "0", "the program may leave core dumps")
        assert int((own / "coredump_filter").read_text(), 16) == 0


def test_without_a_package_service_the_check_for_updates_says_so(screen, the_display):
    screen.press("Menu")
    screen.choose("Check for Updates…")
    screen.wait_for("Couldn’t Check for Updates")
    assert screen.shows(REPORT)
    screen.wait_for_focus("OK")
    the_display.press_key("Return")
    screen.wait_until_gone(REPORT)
    screen.wait_for_focus("Menu")
    assert screen.rows() == NAMES
