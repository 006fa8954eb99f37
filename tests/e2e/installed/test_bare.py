"""The program with nothing installed but what its package depends on."""

import os
from pathlib import Path

from package import ROOT
from service import NAMES

# The first has no code, but the authorities with which the service is verified. The second is loaded by the templates of
# Qt 6.4, and not by those of 6.8.
SILENT = {"ca-certificates", "qml6-module-qtqml-workerscript"}


def in_one_place(path: str) -> str:
    """The path in /usr, to which /lib leads, without links to other versions of a library."""
    return "/usr" + os.path.realpath(f"{ROOT}{path}").removeprefix(str(ROOT)).removeprefix("/usr")


def test_each_package_that_it_depends_on_is_used(start, stored_key, the_service, the_display, package, administrator):
    program = start()
    screen = program.screen
    screen.wait_for_rows(NAMES)
    the_display.press_key("Return")
    screen.wait_for("Current Status")
    for tab in range(1, 6):
        the_display.press_key(f"ctrl+{tab}")
        screen.wait_for("Back")
    screen.press("Back")
    screen.wait_for_rows(NAMES)
    for command, shown in (("About Kestrune", "Done"), ("Check for Updates…", "OK")):
        screen.press("Menu")
        screen.choose(command)
        screen.wait_for(shown)
        the_display.press_key("Escape")
        screen.wait_until_gone(shown)

    code = {in_one_place(path) for path in administrator.code_of(program.process.pid)}
    unused = {name for name, files in package.dependencies().items() if not code & {in_one_place(file) for file in files}}
    assert unused - SILENT == set()


def test_the_user_who_starts_it_has_no_rights_of_an_administrator(start, stored_key, the_service):
    program = start()
    program.screen.wait_for_rows(NAMES)
    status = dict(line.split(":\t", 1) for line in Path(f"/proc/{program.process.pid}/status").read_text().splitlines() if ":\t" in line)
    assert set(status["Uid"].split()) == {str(os.getuid())} != {"0"}
    assert {status[right] for right in ("CapPrm", "CapEff", "CapAmb")} == {"0" * 16}
