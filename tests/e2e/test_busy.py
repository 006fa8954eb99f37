"""The state of buttons that are disabled while an action runs, as a screen reader sees it, on every screen with
actions."""

import pytest

import opening
from patience import eventually


def wait_for_all_disabled(screen, names: list[str]) -> None:
    """Waits until all buttons of the screen in which an action runs are disabled, in any order."""
    eventually(lambda: set(screen.disabled()) == set(names), lambda: f"disabled are {screen.disabled()}")


@pytest.fixture
def monitors(start, stored_key, the_service, the_display):
    """The tab "Monitors" of a page that has some."""
    the_service.seed("tiny")
    screen = opening.first_page(start, the_display, ["Northwind Payments API", "Northwind Web Checkout", "Northwind Identity"])
    the_display.press_key("ctrl+3")
    screen.wait_for("REST API health")
    screen.wait_for_disabled([])
    return screen


def test_the_refresh_is_disabled_while_the_first_one_runs(start, stored_key, the_service):
    the_service.fail("hang")
    screen = start().screen
    screen.wait_for("Loading Dashboard...")
    screen.wait_for_disabled(["Refresh Now"])


def test_the_actions_of_an_incident_are_disabled_while_one_runs(incident, the_service):
    incident.wait_for_disabled([])
    the_service.fail("hang", path=f"/user/api/incidents/{the_service.incident}/acknowledge")
    incident.press("Acknowledge")
    incident.wait_for("In progress")
    wait_for_all_disabled(incident, ["Acknowledge", "Resolve", "Escalate", "Add Update", "Delete Incident", "Close"])


def test_an_update_is_sent_once(incident, the_service, the_display):
    incident.press("Add Update")
    incident.wait_for_focus("Update")
    the_display.type_text("x")
    the_service.fail("hang", path=f"/user/api/v1/incidents/{the_service.incident}")
    incident.press("Save Update")
    wait_for_all_disabled(incident, ["Cancel", "Save Update", "Delete Incident"])


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


def test_a_maintenance_is_out_of_reach_while_it_is_started(maintenance, the_service):
    maintenance.wait_for_disabled([])
    the_service.fail("hang", path=f"/user/api/v1/maintenances/{the_service.maintenance}")
    maintenance.press("Start Maintenance")
    wait_for_all_disabled(maintenance, ["Close", "More Actions", "Start Maintenance", "Delete Maintenance"])


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
