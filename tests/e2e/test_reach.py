"""What a screen reader is told of what cannot be pressed, in every screen that has such a thing, and of what a sheet covers."""

import pytest

import opening
from patience import eventually
from service import NAMES, PAGES

PAGE = PAGES[0]["id"]


@pytest.fixture
def pages(start, stored_key, the_service):
    """The list of pages; the first has an incident, a maintenance and a component."""
    the_service.incident = the_service.open_incident("Login errors", page=PAGE)
    the_service.maintenance = the_service.plan_maintenance("Database upgrade", page=PAGE)
    the_service.component = the_service.add_component("REST API", group=the_service.add_component_group("Core", page=PAGE))
    screen = start().screen
    screen.wait_for_rows(NAMES)
    return screen


@pytest.fixture
def tab(pages, the_display):
    """Opens a tab of the first page, by its number."""
    def open_tab(number: int, rows: list[str]):
        the_display.press_key("Return")
        pages.wait_for("Current Status")
        opening.tab(pages, the_display, number, rows)
        return pages
    return open_tab


def wait_for_all_disabled(screen, names: list[str]) -> None:
    """All buttons of a screen in which an order runs, in whatever order they are read."""
    eventually(lambda: set(screen.disabled()) == set(names), lambda: f"disabled are {screen.disabled()}")


def test_the_refresh_is_disabled_while_the_first_one_runs(start, stored_key, the_service):
    the_service.fail("hang")
    screen = start().screen
    screen.wait_for("Loading Dashboard...")
    screen.wait_for_disabled(["Refresh Now"])


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
    assert pages.disabled("menu item") == [*rows[:2], "Active Incidents", "Login errors"]


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


def test_the_actions_of_an_incident_are_disabled_while_one_runs(tab, the_service, the_display):
    screen = tab(2, ["Login errors"])
    opening.first_event(screen, the_display, "Login errors")
    screen.wait_for_disabled([])
    the_service.fail("hang", path=f"/user/api/incidents/{the_service.incident}/acknowledge")
    screen.press("Acknowledge")
    screen.wait_for("In progress")
    wait_for_all_disabled(screen, ["Acknowledge", "Resolve", "Escalate", "Add Update", "Delete Incident", "Close"])


def test_an_incident_is_acknowledged_and_resolved_once(tab, the_display):
    screen = tab(2, ["Login errors"])
    opening.first_event(screen, the_display, "Login errors")
    screen.press("Acknowledge")
    screen.wait_for_disabled(["Acknowledge"])
    screen.press("Resolve")
    screen.wait_for_disabled(["Acknowledge", "Resolve"])


def test_an_update_is_sent_once(tab, the_service, the_display):
    screen = tab(2, ["Login errors"])
    opening.first_event(screen, the_display, "Login errors")
    screen.press("Add Update")
    screen.wait_for_focus("Update")
    the_display.type_text("x")
    the_service.fail("hang", path=f"/user/api/v1/incidents/{the_service.incident}")
    screen.press("Save Update")
    wait_for_all_disabled(screen, ["Cancel", "Save Update", "Delete Incident"])


@pytest.mark.parametrize("number, rows, kind, buttons", [
    (2, ["Login errors"], "Incident", []),
    (5, ["Database upgrade"], "Maintenance", ["Previous Month", "Next Month"]),
])
def test_a_form_is_out_of_reach_while_it_is_sent(tab, the_service, the_display, number, rows, kind, buttons):
    screen = tab(number, rows)
    screen.press(f"New {kind}")
    screen.wait_for_focus("Title")
    the_display.type_text("x")
    the_service.fail("hang", path=f"/user/api/v1/{kind.lower()}s")
    screen.press("Save")
    wait_for_all_disabled(screen, ["Cancel", "Save", *buttons])


@pytest.fixture
def component(tab, the_display):
    """The screen of the page's component."""
    screen = tab(4, ["REST API"])
    the_display.press_key("r")
    screen.wait_for_focus("REST API")
    the_display.press_key("Return")
    screen.wait_for("Component Details")
    return screen


def test_a_component_without_a_name_cannot_be_saved(component, the_display):
    component.press("Edit")
    component.wait_for_focus("Name")
    the_display.press_key("ctrl+a")
    the_display.press_key("BackSpace")
    component.wait_for_disabled(["Save"])


def test_a_component_is_out_of_reach_while_it_is_saved(component, the_service, the_display):
    component.press("Edit")
    component.wait_for_focus("Name")
    the_display.type_text("x")
    the_service.fail("hang", path=f"/user/api/components/{the_service.component}")
    component.press("Save")
    wait_for_all_disabled(component, ["Cancel", "Save"])


def test_a_component_is_out_of_reach_while_it_is_deleted(component, the_service):
    the_service.fail("hang", path=f"/user/api/components/{the_service.component}")
    component.press("Delete Component")
    component.press("Delete")
    wait_for_all_disabled(component, ["Close", "Edit", "Delete Component"])


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


def test_a_maintenance_is_out_of_reach_while_it_is_started(tab, the_service, the_display):
    screen = tab(5, ["Database upgrade"])
    opening.first_event(screen, the_display, "Database upgrade")
    screen.wait_for_disabled([])
    the_service.fail("hang", path=f"/user/api/v1/maintenances/{the_service.maintenance}")
    screen.press("Start Maintenance")
    wait_for_all_disabled(screen, ["Close", "More Actions", "Start Maintenance", "Delete Maintenance"])


@pytest.fixture
def monitors(start, stored_key, the_service, the_display):
    """The tab "Monitors" of a page that has some."""
    the_service.seed("tiny")
    screen = opening.first_page(start, the_display, ["Northwind Payments API", "Northwind Web Checkout", "Northwind Identity"])
    the_display.press_key("ctrl+3")
    screen.wait_for("REST API health")
    screen.wait_for_disabled([])
    return screen


def test_the_commands_of_a_monitor_are_disabled_while_one_runs(monitors, the_service):
    the_service.fail("hang", path="/user/api/monitors/1/pause")
    monitors.press("Pause")
    monitors.wait_for_disabled(["Pause", "Check Now"])


def test_the_graph_of_a_monitor_cannot_be_closed_before_it_is_there(monitors, the_service):
    the_service.fail("hang", path="/user/api/monitors/metrics")
    monitors.press("Show latency graph")
    monitors.wait_for_disabled(["Hide latency graph"])


def test_a_monitor_on_its_own_screen_is_out_of_reach_while_it_is_checked(monitors, the_service):
    the_service.fail("hang", path="/user/api/monitors/1/run")
    monitors.press("Monitor Details")
    monitors.press("Run Check")
    wait_for_all_disabled(monitors, ["Close", "Pause Monitor", "Run Check"])
