"""A page's monitors in their list, with their metrics and on their own screen, and the requests to the service."""

import pytest

import opening
from patience import eventually

PAGES = ["Northwind Payments API", "Northwind Web Checkout", "Northwind Identity"]
MONITORS = ["REST API health", "Dashboard contract", "Primary database port", "Primary database names", "Webhooks mail"]
LIST = ("GET", "/user/api/v1/monitors")
METRICS = ("GET", "/user/api/monitors/metrics?ids=1&range=24h")


def order(name: str) -> tuple[str, str]:
    return ("POST", f"/user/api/monitors/1/{name}")


@pytest.fixture
def page(start, stored_key, the_service, the_display):
    """The tab "Monitors" of the first page."""
    the_service.seed("tiny")
    screen = opening.first_page(start, the_display, PAGES)
    opening.tab(screen, the_display, 3, MONITORS)
    the_service.forget()
    return screen


@pytest.fixture
def graph(page, the_display):
    """The metrics of the first monitor, opened, with the keyboard on their graph."""
    page.press("Show latency graph")
    page.wait_for("Avg Response")
    tab_to(page, the_display, "Latency graph")
    return page


def tab_to(screen, the_display, name: str) -> None:
    for _ in range(20):
        before = screen.focused()
        the_display.press_key("Tab")
        eventually(lambda: screen.focused() not in ("", before), "Tab does not go on")
        if screen.focused() == name:
            return
    pytest.fail(f"Tab does not lead to \"{name}\"")


def expect_sent(the_service, *expected: tuple[str, str]) -> None:
    def sent():
        return [(request["method"], request["target"]) for request in the_service.requests()
                if "monitors" in request["target"]]
    eventually(lambda: sent() == [*expected], lambda: f"the service was sent {sent()}")


def selected(screen) -> str:
    """The accessible text of the selected sample: its value and its time."""
    return next((thing.name for thing in screen.things() if thing.role == "tool tip"), "")


def wait_for_selection(screen, before: str) -> str:
    return eventually(lambda: (found := selected(screen)) != before and found, f"the selection stays at \"{before}\"")


def test_pause_resume_and_run_in_the_list(page, the_service):
    page.press("Pause")
    page.wait_for("Resume")
    expect_sent(the_service, order("pause"), LIST)
    page.wait_for("Paused")

    the_service.forget()
    page.press("Resume")
    page.wait_until_gone("Resume")
    expect_sent(the_service, order("resume"), LIST)

    the_service.forget()
    page.press("Check Now")
    expect_sent(the_service, order("run"), LIST)


def test_a_refusal_is_told_and_nothing_is_fetched(page, the_service):
    the_service.fail("status", path="/user/api/monitors/1/pause", code=409)
    page.press("Pause")
    page.wait_for("Server returned HTTP status code 409.")
    page.press("OK")
    page.wait_until_gone("Server returned HTTP status code 409.")
    expect_sent(the_service, order("pause"))


def test_a_refused_resumption_leaves_the_row_paused(page, the_service):
    page.press("Pause")
    page.wait_for("Paused")
    the_service.fail("status", path="/user/api/monitors/1/resume", code=422)
    the_service.forget()
    page.press("Resume")
    page.wait_for("Server returned HTTP status code 422.")
    page.press("OK")
    page.wait_until_gone("Server returned HTTP status code 422.")
    expect_sent(the_service, order("resume"))
    assert page.shows("Paused")
    page.wait_for_disabled([])
    assert page.button("Resume")


def test_metrics_are_fetched_once_and_their_samples_selected_with_the_keyboard(graph, the_service, the_display):
    assert selected(graph) == ""
    the_display.press_key("End")
    last = wait_for_selection(graph, "")
    the_display.press_key("Left")
    wait_for_selection(graph, last)
    the_display.press_key("Right")
    eventually(lambda: selected(graph) == last, "the selection does not come back")
    the_display.press_key("Home")
    first = wait_for_selection(graph, last)
    value, _, time = first.partition(", ")
    assert value.removesuffix(" ms").isdigit() and time

    graph.press("Hide latency graph")
    graph.wait_until_gone("Avg Response")
    graph.press("Show latency graph")
    graph.wait_for("Avg Response")
    assert selected(graph) == first
    expect_sent(the_service, METRICS)


def test_a_press_selects_a_sample_and_a_drag_goes_on_to_the_end(graph, the_display):
    the_display.press_key("End")
    last = wait_for_selection(graph, "")
    the_display.press_key("Home")
    first = wait_for_selection(graph, last)

    left, top, width, height = graph.place("Latency graph")
    middle = top + height // 2
    the_display.drag([(left + width // 2, middle)])
    between = wait_for_selection(graph, first)
    assert between != last
    the_display.drag([(left + width // 2, middle), (left + width // 4, middle), (left - 20, middle + 40)])
    eventually(lambda: selected(graph) == first, "a drag beyond the left end does not select the first sample")
    the_display.drag([(left + 9, middle), (left + width + 20, middle)])
    eventually(lambda: selected(graph) == last, "a drag beyond the right end does not select the last sample")


def test_one_that_is_paused_on_its_own_screen_is_so_in_the_list(page, the_service):
    page.press("Monitor Details")
    page.wait_for("https://health.kestrune.example/")
    page.press("Pause Monitor")
    page.wait_for("Resume Monitor")
    expect_sent(the_service, order("pause"), LIST)

    the_service.forget()
    page.press("Run Check")
    page.wait_for("Server returned HTTP status code 409.")
    page.press("OK")
    expect_sent(the_service, order("run"))

    page.press("Close")
    page.wait_for_rows(MONITORS)
    page.wait_for("Resume")
