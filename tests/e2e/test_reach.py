"""The state of disabled items on every screen that has some, and of items that a sheet covers, as a screen reader
sees them."""

import opening
from patience import eventually
from service import NAMES


def test_a_key_can_be_saved_once_there_is_one(start, the_keyring, the_service, the_display):
    the_keyring.remove()
    screen = start().screen
    screen.press("Open Settings")
    screen.wait_for_focus("API key")
    screen.wait_for_disabled(["Save & Verify"])
    the_display.type_text("x")
    screen.wait_for_disabled([])
    the_service.fail("hang")
    screen.press("Save & Verify")
    screen.wait_for_disabled(["Save & Verify"])


def test_each_change_of_that_is_told_once(tab, the_display):
    screen = tab(2, ["Login errors"])
    screen.press("New Incident")
    screen.wait_for_focus("Title")
    screen.wait_for_disabled(["Save"])
    with screen.changes_of("Save", "enabled") as changes:
        the_display.type_text("x")
        screen.wait_for_disabled([])
        eventually(lambda: changes.count() >= 1, lambda: f"told {changes.count()} times")
        the_display.press_key("BackSpace")
        screen.wait_for_disabled(["Save"])
        eventually(lambda: changes.count() >= 2, lambda: f"told {changes.count()} times")
        assert changes.count() == 2


def test_words_in_the_menu_are_no_commands(pages):
    pages.press("Menu")
    eventually(pages.menu, "no menu came")
    rows = pages.menu()
    assert pages.disabled("menu item") == [*rows[:2], "Login errors"]


def test_a_sheet_covers_the_list_until_it_is_gone(pages, the_display):
    pages.press("Settings")
    pages.wait_for("Connect to your Kestrune account")
    assert pages.rows() == []
    assert not [thing for thing in pages.things() if thing.name in ("Refresh Now", "Menu", NAMES[0])]
    pages.press("Delete API Key")
    pages.wait_until_gone("Connect to your Kestrune account")
    assert [thing.name for thing in pages.things() if thing.role == "push button"] == ["Cancel", "Delete"]
    the_display.press_key("Escape")
    pages.wait_for("Connect to your Kestrune account")
    the_display.press_key("Escape")
    pages.wait_for_rows(NAMES)


def test_an_incident_without_a_title_and_an_update_without_a_word_cannot_be_saved(tab, the_display):
    screen = tab(2, ["Login errors"])
    screen.press("New Incident")
    screen.wait_for_focus("Title")
    screen.wait_for_disabled(["Save"])
    the_display.type_text("x")
    screen.wait_for_disabled([])
    the_display.press_key("BackSpace")
    screen.wait_for_disabled(["Save"])
    screen.press("Cancel")
    screen.wait_for_rows(["Login errors"])

    screen.wait_for_disabled([])
    opening.first_event(screen, the_display, "Login errors")
    screen.press("Add Update")
    screen.wait_for_disabled(["Save Update"])
    the_display.type_text("x")
    screen.wait_for_disabled([])


def test_an_incident_is_acknowledged_and_resolved_once(incident):
    incident.press("Acknowledge")
    incident.wait_for_disabled(["Acknowledge"])
    incident.press("Resolve")
    incident.wait_for_disabled(["Acknowledge", "Resolve"])


def test_a_component_without_a_name_cannot_be_saved(component, the_display):
    component.press("Edit")
    component.wait_for_focus("Name")
    the_display.press_key("ctrl+a")
    the_display.press_key("BackSpace")
    component.wait_for_disabled(["Save"])


def test_a_maintenance_without_a_title_cannot_be_saved(tab, the_display):
    screen = tab(5, ["Database upgrade"])
    screen.press("New Maintenance")
    screen.wait_for_focus("Title")
    screen.wait_for_disabled(["Save"])
    the_display.press_key("Escape")
    screen.wait_for_rows(["Database upgrade"])
    opening.first_event(screen, the_display, "Database upgrade")
    screen.press("More Actions")
    screen.choose("Edit")
    screen.wait_for_focus("Title")
    the_display.press_key("ctrl+a")
    the_display.press_key("BackSpace")
    screen.wait_for_disabled(["Save"])
