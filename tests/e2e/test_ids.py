"""Ids with an underscore, which also separates the words of a key on the wire: each is sent back to the service
unchanged."""

import json

import pytest

import opening
from patience import eventually

PAGES = ["Northwind Payments API", "Northwind Web Checkout", "Northwind Identity"]
MONITORS = ["REST API health", "Dashboard contract", "Primary database port", "Primary database names", "Webhooks mail"]
COMPONENTS = ["REST API", "Primary database", "Dashboard", "Webhooks"]
API = "/user/api"
V1 = f"{API}/v1"


@pytest.fixture
def tab(start, stored_key, the_service, the_display):
    """Opens a tab of the first page, by its number, in an account all of whose ids begin with "an_"."""
    the_service.seed("tiny", id_prefix="an_")
    screen = opening.first_page(start, the_display, PAGES)
    the_service.forget()

    def open_tab(number: int, rows: list[str]):
        opening.tab(screen, the_display, number, rows)
        return screen
    return open_tab


def expect_sent(the_service, method: str, target: str) -> dict | None:
    """Waits for that request and returns its body."""
    def found():
        return [request for request in the_service.requests() if (request["method"], request["target"]) == (method, target)]
    eventually(found, lambda: f"no {method} {target} came, but {[(each['method'], each['target']) for each in the_service.requests()]}")
    return json.loads(found()[0]["body"] or "null")


def choose(screen, the_display, picker: str, name: str) -> None:
    """Chooses an entry of the next picker by its first letter."""
    the_display.press_key("Tab")
    screen.wait_for_focus(picker)
    the_display.press_key("Return")
    eventually(lambda: screen.focused() not in ("", picker), f"\"{picker}\" does not open")
    the_display.type_text(name[0])
    screen.wait_for_focus(name)
    the_display.press_key("Return")
    screen.wait_for_focus(picker)


def test_a_page_and_an_incident(tab, the_service, the_display):
    screen = tab(2, ["Elevated error rates"])
    expect_sent(the_service, "GET", f"{V1}/incidents?status_page_id=an_page-1")
    opening.first_event(screen, the_display, "Elevated error rates")
    screen.press("Escalate")
    expect_sent(the_service, "POST", f"{API}/incidents/an_incident-3/escalate")
    expect_sent(the_service, "GET", f"{V1}/incidents/an_incident-3")
    screen.wait_until_gone("In progress")
    assert not screen.shows("Error")


def test_a_new_incident_of_a_component_and_its_monitor(tab, the_service, the_display):
    screen = tab(2, ["Elevated error rates"])
    screen.press("New Incident")
    screen.wait_for_focus("Title")
    the_display.type_text("Down")
    the_display.press_key("Tab")
    choose(screen, the_display, "Component Group", "API")
    choose(screen, the_display, "Component", "REST API")
    screen.wait_for("Monitor")
    choose(screen, the_display, "Monitor", "REST API health")
    expect_sent(the_service, "GET", f"{API}/monitors?component_ids=an_1")
    screen.press("Save")
    screen.wait_for_rows(["Down", "Elevated error rates"])
    body = expect_sent(the_service, "POST", f"{V1}/incidents")
    assert (body["status_page_id"], body["component_id"], body["monitor_id"]) == ("an_page-1", "an_1", "an_1")


def test_a_monitor(tab, the_service):
    screen = tab(3, MONITORS)
    screen.press("Pause")
    expect_sent(the_service, "POST", f"{API}/monitors/an_1/pause")
    screen.wait_for("Resume")

    screen.press("Monitor Details")
    screen.wait_for("https://health.kestrune.example/")
    screen.press("Resume Monitor")
    expect_sent(the_service, "POST", f"{API}/monitors/an_1/resume")
    screen.wait_for("Pause Monitor")


def test_the_metrics_of_a_monitor_are_asked_for_and_not_found_under_a_key_that_is_converted(tab, the_service):
    screen = tab(3, MONITORS)
    screen.press("Show latency graph")
    expect_sent(the_service, "GET", f"{API}/monitors/metrics?ids=an_1&range=24h")
    screen.wait_for("The server returned no metrics for this monitor.")


def test_a_component_and_its_group(tab, the_service, the_display):
    screen = tab(4, COMPONENTS)
    the_display.press_key("r")
    screen.wait_for_focus("REST API")
    the_display.press_key("Return")
    screen.wait_for("Component Details")
    screen.press("Edit")
    screen.wait_for_focus("Name")
    the_display.type_text("s")
    for control in ("Status", "Description"):
        the_display.press_key("Tab")
        screen.wait_for_focus(control)
    choose(screen, the_display, "Group", "Web")
    screen.press("Save")
    assert expect_sent(the_service, "PUT", f"{API}/components/an_1")["group_id"] == "an_group-2"
    screen.wait_until_gone("Save")
    the_display.press_key("Escape")
    screen.wait_for_rows(["Primary database", "REST APIs", "Dashboard", "Webhooks"])


def test_a_maintenance(tab, the_service, the_display):
    screen = tab(5, ["Certificate rotation"])
    opening.first_event(screen, the_display, "Certificate rotation")
    screen.press("Delete Maintenance")
    screen.press("Delete")
    expect_sent(the_service, "DELETE", f"{V1}/maintenances/an_2")
    screen.wait_for("No scheduled maintenances")
