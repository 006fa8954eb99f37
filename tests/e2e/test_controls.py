"""When Qt's controls come into memory: what scrolls over, pops up and is typed into stands on them, and the dashboard's
rows do not need them."""

from pathlib import Path

from service import NAMES

CONTROLS = "QuickTemplates2"


def has_controls(process_id: int) -> bool:
    return CONTROLS in Path(f"/proc/{process_id}/maps").read_text()


def test_the_program_shows_its_rows_without_qts_controls(start, stored_key, the_service):
    program = start()
    program.screen.wait_for_rows(NAMES)
    assert not has_controls(program.process.pid)


def test_a_menu_brings_qts_controls(start, stored_key, the_service):
    program = start()
    program.screen.wait_for_rows(NAMES)
    program.screen.press("Menu")
    program.screen.wait_for("About Kestrune")
    assert has_controls(program.process.pid)
