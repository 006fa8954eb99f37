"""A component edited, moved to another group and deleted with the keyboard, and the requests to the service."""

import json

import pytest

import opening
from patience import eventually
from service import PAGES

PAGE = PAGES[0]["id"]
API = "/user/api"
LIST = [("GET", f"{API}/components?status_page_id={PAGE}", None), ("GET", f"{API}/component-groups?status_page_id={PAGE}", None)]


@pytest.fixture
def page(start, stored_key, the_service, the_display):
    """The tab "Components" of the first page, which has two groups."""
    the_service.core = the_service.add_component_group("Core", page=PAGE)
    the_service.edge = the_service.add_component_group("Edge", page=PAGE)
    the_service.component = the_service.add_component("REST API", group=the_service.core)
    the_service.add_component("Cache", group=the_service.edge)
    screen = opening.first_page(start, the_display)
    the_service.forget()
    opening.tab(screen, the_display, 4, ["REST API", "Cache"])
    return screen


@pytest.fixture
def opened(page, the_display, the_service):
    """The first of them, opened by its letter."""
    page.wait_for("Core")
    the_display.press_key("Tab")
    page.wait_for_focus("Back")
    for _ in range(2):
        the_display.press_key("Tab")
    the_display.press_key("r")
    page.wait_for_focus("REST API")
    the_display.press_key("Return")
    page.wait_for("Component Details")
    page.wait_for("Details")
    the_service.forget()
    return page


def sent(the_service) -> list[tuple[str, str, dict | None]]:
    """The requests about components: method, target and body."""
    return [(request["method"], request["target"], json.loads(request["body"]) if request["body"] else None)
            for request in the_service.requests() if request["target"].startswith(f"{API}/component")]


def wait_for_list(screen, *names: str) -> None:
    """Waits for these headings and rows, in reading order, below the title of the page."""
    def listed() -> list[str]:
        return [thing.name for thing in screen.things() if thing.role in ("heading", "list item")][1:]
    eventually(lambda: listed() == list(names), lambda: f"the list reads {listed()}")


def test_the_list_asks_for_components_and_groups_and_shows_them_by_section(page, the_service):
    assert sorted(sent(the_service)) == sorted(LIST)
    wait_for_list(page, "Core", "REST API", "Edge", "Cache")
    assert page.shows("Up")


def test_an_edit_is_typed_moved_to_another_group_and_sent(opened, the_service, the_display):
    opened.press("Edit")
    opened.wait_for_focus("Name")
    the_display.press_key("ctrl+a")
    the_display.type_text("Public API")
    the_display.press_key("Tab")
    opened.wait_for_focus("Status")
    the_display.press_key("Right")
    the_display.press_key("Tab")
    opened.wait_for_focus("Description")
    the_display.type_text("For all")
    the_display.press_key("Tab")
    opened.wait_for_focus("Group")
    the_display.press_key("Return")
    opened.wait_for_focus("Core")
    the_display.press_key("Down")
    opened.wait_for_focus("Edge")
    the_display.press_key("Return")
    opened.wait_for_focus("Group")
    opened.press("Save")
    opened.wait_until_gone("Save")
    opened.wait_for("Public API")
    assert sent(the_service) == [("PUT", f"{API}/components/{the_service.component}", {
        "name": "Public API", "description": "For all", "status": "degraded", "group_id": the_service.edge})]

    the_service.forget()
    the_display.press_key("Escape")
    wait_for_list(opened, "Core", "Edge", "Public API", "Cache")
    assert not sent(the_service), "the list is patched and not fetched"


def test_a_refusal_is_told_and_keeps_what_was_typed(opened, the_service, the_display):
    the_service.fail("status", path=f"{API}/components/{the_service.component}", code=422)
    opened.press("Edit")
    opened.wait_for_focus("Name")
    the_display.type_text("x")
    opened.press("Save")
    opened.wait_for("Server returned HTTP status code 422.")
    opened.press("OK")
    opened.wait_until_gone("Server returned HTTP status code 422.")
    the_service.mend()
    the_service.forget()
    opened.press("Save")
    opened.wait_until_gone("Save")
    assert sent(the_service)[0][2]["name"] == "REST APIx"


def test_one_that_is_deleted_elsewhere_while_it_is_edited_keeps_what_was_typed(opened, the_service, the_display):
    opened.press("Edit")
    opened.wait_for_focus("Name")
    the_display.type_text("x")
    the_service.delete_component(the_service.component)
    opened.press("Save")
    opened.wait_for("Server returned HTTP status code 404.")
    opened.press("OK")
    opened.wait_until_gone("Server returned HTTP status code 404.")
    assert opened.shows("Cancel")
    the_display.press_key("Escape")
    opened.wait_for("Discard Changes?")
    opened.press("Discard")
    opened.wait_until_gone("Save")
    the_display.press_key("Escape")
    opened.wait_for_rows(["REST API", "Cache"])
    the_display.press_key("F5")
    opened.wait_for_rows(["Cache"])


def test_delete_asks_first_and_leads_back_to_the_list(opened, the_service):
    opened.press("Delete Component")
    opened.press("Delete")
    opened.wait_for_rows(["Cache"])
    assert sent(the_service) == [("DELETE", f"{API}/components/{the_service.component}", None)]


@pytest.mark.parametrize("code, words", [
    (400, "Bad request. The status page ID may be invalid."),
    (401, "Components are not available for this status page. Your plan may not include this feature."),
    (403, "Access forbidden. Check your API key scopes."),
    (404, "Server returned HTTP status code 404."),
    (500, "Server returned HTTP status code 500."),
])
def test_components_that_fail_are_told_and_then_there_are_none(page, the_service, the_display, code, words):
    the_service.fail("status", path=f"{API}/components", code=code)
    the_display.press_key("F5")
    page.wait_for(words)
    page.press("OK")
    page.wait_for("No Components")
    assert not page.shows(words)


def test_groups_that_fail_are_no_alert(page, the_service, the_display):
    the_service.fail("status", path=f"{API}/component-groups", code=500)
    the_display.press_key("F5")
    page.wait_for("Other Components")
    page.wait_for_rows(["REST API", "Cache"])
    assert not page.shows("Error")
