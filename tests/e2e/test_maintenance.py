"""A maintenance from its planning to its deletion, with keyboard and screen reader, and the requests to the service."""

import json
from datetime import datetime, timedelta, timezone

import pytest

import opening
from patience import eventually
from service import PAGES

PAGE = PAGES[0]["id"]
V1 = "/user/api/v1"


def read(text: str) -> datetime:
    return datetime.strptime(text, "%Y-%m-%dT%H:%M:%SZ").replace(tzinfo=timezone.utc)


def now() -> datetime:
    return datetime.now(timezone.utc)


def is_now(text: str) -> bool:
    return abs(now() - read(text)) < timedelta(seconds=30)


@pytest.fixture
def page(start, stored_key, the_service, the_display):
    """The tab "Maintenances" of the first page, which has one that starts in an hour and lasts one hour."""
    the_service.plan_maintenance("Database upgrade", page=PAGE)
    screen = opening.first_page(start, the_display)
    opening.tab(screen, the_display, 5, ["Database upgrade"])
    return screen


@pytest.fixture
def opened(page, the_display, the_service):
    """The screen of that maintenance."""
    opening.first_event(page, the_display, "Database upgrade")
    the_service.forget()
    return page


def writes(the_service) -> list[tuple[str, str, dict | None]]:
    """The requests that write: method, target and body."""
    return [(request["method"], request["target"], json.loads(request["body"]) if request["body"] else None)
            for request in the_service.requests() if request["method"] != "GET"]


def the_write(the_service) -> tuple[str, str, dict | None]:
    eventually(lambda: writes(the_service), lambda: "nothing was sent")
    [only] = writes(the_service)
    return only


def open_editor(opened, the_display) -> None:
    opened.press("More Actions")
    opened.choose("Edit")
    opened.wait_for_focus("Title")


def test_start_and_complete(opened, the_service):
    opened.press("Start Maintenance")
    opened.wait_for("In Progress")
    method, target, body = the_write(the_service)
    assert (method, list(body)) == ("PATCH", ["start_at"])
    assert target.startswith(f"{V1}/maintenances/")
    assert is_now(body["start_at"])

    the_service.forget()
    opened.press("Complete Maintenance")
    method, again, body = the_write(the_service)
    assert (method, again, list(body)) == ("PATCH", target, ["end_at"])
    assert is_now(body["end_at"])
    opened.wait_until_gone("Complete Maintenance")
    assert opened.shows("Delete Maintenance")


def test_an_edit_is_typed_sent_and_seen_in_the_row(opened, the_service, the_display):
    open_editor(opened, the_display)
    the_display.press_key("End")
    the_display.type_text(" again")
    the_display.press_key("Tab")
    opened.wait_for_focus("Message")
    the_display.type_text("brief")
    opened.press("Save")
    opened.wait_for("Timeline")
    method, _, body = the_write(the_service)
    assert method == "PATCH"
    begin, end = read(body.pop("start_at")), read(body.pop("end_at"))
    assert body == {"title": "Database upgrade again", "message": "brief"}
    assert end - begin == timedelta(hours=1), "the dates go as they are"
    assert abs(begin - now() - timedelta(hours=1)) < timedelta(minutes=2)
    the_display.press_key("Escape")
    opened.wait_for_rows(["Database upgrade again"])


def test_an_end_before_the_start_is_for_the_service_to_refuse(opened, the_service, the_display):
    open_editor(opened, the_display)
    # Title, message, the start's hour, minute, two buttons and days, then the end's hour, minute and two buttons.
    for _ in range(11):
        the_display.press_key("Tab")
    the_display.press_key("Page_Up")
    opened.press("Save")
    opened.wait_for("Server returned HTTP status code 422.")
    body = the_write(the_service)[2]
    assert read(body["end_at"]) < read(body["start_at"])
    opened.press("OK")
    opened.wait_until_gone("Server returned HTTP status code 422.")
    assert opened.shows("Edit Maintenance")


def test_delete_asks_first_and_takes_the_row_away(opened, the_service):
    opened.press("More Actions")
    opened.choose("Delete")
    opened.wait_for("Are you sure you want to delete this maintenance? This action cannot be undone.")
    opened.press("Delete")
    opened.wait_for("No scheduled maintenances")
    assert the_write(the_service)[0] == "DELETE"


def test_a_new_one_is_scheduled_with_the_keyboard_and_stands_first(page, the_service, the_display):
    the_service.forget()
    page.press("New Maintenance")
    page.wait_for_focus("Title")
    the_display.type_text("Certificates")
    the_display.press_key("Tab")
    the_display.type_text("at night")
    # The group, and the start's hour.
    for _ in range(2):
        the_display.press_key("Tab")
    page.wait_for_focus("Start hour")
    the_display.type_text("2330")
    # The start's two buttons, and its days.
    for _ in range(3):
        the_display.press_key("Tab")
    the_display.press_key("Down")
    the_display.press_key("Tab")
    page.wait_for_focus("End hour")
    the_display.type_text("0115")
    # The end's two buttons, and its days.
    for _ in range(3):
        the_display.press_key("Tab")
    the_display.press_key("Down")
    the_display.press_key("Right")
    page.press("Save")
    page.wait_for_rows(["Certificates", "Database upgrade"])
    method, target, body = the_write(the_service)
    assert (method, target) == ("POST", f"{V1}/maintenances")
    begin, end = read(body.pop("start_at")), read(body.pop("end_at"))
    assert body == {"title": "Certificates", "message": "at night", "status_page_id": PAGE}
    assert (begin.astimezone().strftime("%H:%M:%S"), end.astimezone().strftime("%H:%M:%S")) == ("23:30:00", "01:15:00")
    assert begin.astimezone().date() == (now().astimezone() + timedelta(days=7)).date()
