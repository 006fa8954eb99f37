"""The package is upgraded while the program runs."""

from service import NAMES
from package import PROGRAM


def test_the_running_program_goes_on_and_the_next_start_is_the_new_one(
        start, stored_key, the_service, the_display, administrator, package):
    old_version = package.version()
    first = start()
    first.screen.wait_for_rows(NAMES)

    package.upgrade()
    assert package.version() == f"{old_version}+later"
    assert first.is_running()
    assert administrator.program_of(first.process.pid) == f"{PROGRAM} (deleted)"
    the_service.change("web", health="major-outage")
    first.screen.press("Refresh Now")
    first.screen.wait_for("Down")
    # What is loaded only when it is needed.
    first.screen.press("Menu")
    first.screen.choose("About Kestrune")
    first.screen.wait_for("Done")
    assert first.terminate() == 0

    second = start()
    second.screen.wait_for_rows(NAMES)
    assert administrator.program_of(second.process.pid) == PROGRAM
