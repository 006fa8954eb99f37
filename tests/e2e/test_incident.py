"""An incident from its creation to its deletion, with keyboard and screen reader, and the requests to the service."""

import json

import pytest

import opening
from service import KEY, PAGES

PAGE = PAGES[0]["id"]
V1 = "/user/api/v1"


@pytest.fixture
def page(start, stored_key, the_service, the_display):
    """The tab "Incidents" of the first page, which has one incident."""
    the_service.incident = the_service.open_incident("Login errors", page=PAGE)
    screen = opening.first_page(start, the_display)
    opening.tab(screen, the_display, 2, ["Login errors"])
    return screen


@pytest.fixture
def opened(page, the_display, the_service):
    """The screen of that incident."""
    opening.first_event(page, the_display, "Login errors")
    the_service.forget()
    return page


def sent(the_service) -> list[tuple[str, str, dict | None]]:
    """The requests other than polls: method, target and body."""
    polls = {f"{V1}/status-pages", f"{V1}/incidents", f"{V1}/maintenances", "/user/api/status-pages/status"}
    return [(request["method"], request["target"], json.loads(request["body"]) if request["body"] else None)
            for request in the_service.requests() if request["method"] != "GET" or request["target"] not in polls]


def test_every_request_is_signed_and_only_a_body_has_a_type(opened, the_service):
    opened.press("Escalate")
    opened.wait_until_gone("In progress")
    request = next(request for request in the_service.requests() if request["method"] == "POST")
    headers = {name.lower(): value for name, value in request["headers"].items()}
    assert headers["authorization"] == f"Bearer {KEY}"
    assert headers["x-api-key"] == KEY
    assert "content-type" not in headers


def test_acknowledge_resolve_and_escalate(opened, the_service):
    incident = the_service.incident
    opened.press("Acknowledge")
    opened.wait_for("Acknowledged")
    assert sent(the_service) == [("POST", f"/user/api/incidents/{incident}/acknowledge", None),
                                 ("GET", f"{V1}/incidents/{incident}", None)]

    the_service.forget()
    opened.press("Escalate")
    opened.wait_until_gone("In progress")
    assert sent(the_service) == [("POST", f"/user/api/incidents/{incident}/escalate", None),
                                 ("GET", f"{V1}/incidents/{incident}", None)]

    the_service.forget()
    opened.press("Resolve")
    opened.wait_for("Resolved")
    assert sent(the_service) == [("GET", "/user/api/incident-states", None),
                                 ("PATCH", f"{V1}/incidents/{incident}", {"incident_state_id": "4", "append_update": True})]


def test_an_update_is_typed_and_sent(opened, the_service, the_display):
    opened.press("Add Update")
    opened.wait_for_focus("Update")
    the_display.type_text("A fix is on its way")
    opened.press("Save Update")
    opened.wait_for("Timeline")
    opened.wait_until_gone("Save Update")
    assert sent(the_service) == [("PATCH", f"{V1}/incidents/{the_service.incident}",
                                  {"message": "A fix is on its way", "append_update": True})]


def test_a_refusal_is_told_and_leaves_the_incident_open(opened, the_service):
    the_service.fail("status", path=f"/user/api/incidents/{the_service.incident}/escalate", code=409)
    opened.press("Escalate")
    opened.wait_for("Server returned HTTP status code 409.")
    opened.press("OK")
    opened.wait_until_gone("Server returned HTTP status code 409.")
    assert opened.shows("Timeline")


def test_delete_asks_first_and_leads_back_to_the_list(opened, the_service):
    opened.press("Delete Incident")
    opened.wait_for("Are you sure you want to delete this incident? This action cannot be undone.")
    opened.press("Delete")
    opened.wait_for("No Incidents")
    assert sent(the_service)[0] == ("DELETE", f"{V1}/incidents/{the_service.incident}", None)


def test_a_new_one_is_created_with_the_keyboard_and_stands_first(page, the_service, the_display):
    the_service.forget()
    page.press("New Incident")
    page.wait_for_focus("Title")
    the_display.type_text("Mail is down")
    the_display.press_key("Tab")
    the_display.type_text("since nine")
    page.press("Save")
    page.wait_for_rows(["Mail is down", "Login errors"])
    assert sent(the_service)[-1] == ("POST", f"{V1}/incidents", {
        "title": "Mail is down", "message": "since nine", "status_page_id": PAGE, "notify_subscribers": True})
