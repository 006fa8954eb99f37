"""A day with the program, from its first window to its end."""

from patience import eventually
from service import KEY, NAMES, service_host
from program import start_again

STALE = "Refresh failed. Data may be stale."


def test_a_day_of_outages_and_a_closed_window(start, stored_key, the_service, the_display):
    program = start()
    screen = program.screen
    screen.wait_for_rows(NAMES)
    assert screen.shows("Degraded")
    window = program.window()
    assert the_display.title(window) == "Kestrune"

    the_service.fail("status", code=503)
    screen.press("Refresh Now")
    screen.wait_for(STALE)
    assert screen.rows() == NAMES

    the_service.mend()
    the_service.change("web", health="major-outage")
    screen.press("Retry")
    screen.wait_for("Down")
    screen.wait_until_gone(STALE)
    assert screen.rows() == NAMES

    the_display.press_close_button(window)
    eventually(lambda: the_display.state(window) == "Iconic", "closing does not minimise")
    assert program.is_running()

    assert start_again(program) == 0
    eventually(lambda: the_display.state(window) == "Normal", "the first window does not come back")
    eventually(lambda: the_display.active_window() == window, "the first window does not get the focus")
    screen.wait_for_rows(NAMES)

    assert program.terminate() == 0


def test_a_window_that_the_taskbar_brings_back_goes_on_showing_what_changes(start, stored_key, the_service, the_display):
    program = start()
    screen = program.screen
    screen.wait_for_rows(NAMES)
    window = program.window()
    for health, word in [("major-outage", "Down"), ("maintenance", "Maintenance"), ("major-outage", "Down")]:
        the_display.press_close_button(window)
        eventually(lambda: the_display.state(window) == "Iconic", "closing does not minimise")
        the_service.change("web", health=health)

        the_display.activate(window)
        eventually(lambda: the_display.active_window() == window, "the window does not come back")
        screen.press("Refresh Now")
        screen.wait_for(word)


def test_the_key_goes_to_the_service_in_both_headers_and_nowhere_else(start, stored_key, the_service):
    program = start()
    program.screen.wait_for_rows(NAMES)

    sent = the_service.requests()
    assert {request["target"] for request in sent} >= {"/user/api/v1/status-pages", "/user/api/status-pages/status"}
    for request in sent:
        headers = {name.lower(): value for name, value in request["headers"].items()}
        assert headers["authorization"] == f"Bearer {KEY}"
        assert headers["x-api-key"] == KEY
        assert headers["host"] == service_host()[0]
        assert "accept" not in headers
    assert KEY not in " ".join(program.screen.texts())


def test_the_names_of_pages_are_text_whatever_they_look_like(start, stored_key, the_service):
    names = ["<img src='https://elsewhere.example/x.png'>", "**bold** & _underlined_", "a\u202eb", "名前 🙂", " "]
    the_service.give([{"id": str(place), "name": name, "health": "operational"} for place, name in enumerate(names)])
    program = start()
    program.screen.wait_for_rows([*names[:-1], "Unnamed"])


def test_an_account_without_pages_says_so(start, stored_key, the_service):
    the_service.give([])
    program = start()
    program.screen.wait_for("No Status Pages")
    program.screen.wait_for("Add your Kestrune API key in Settings to get started.")


def test_the_overview_is_best_effort(start, stored_key, the_service):
    the_service.fail("status", path="/user/api/status-pages/status", code=500)
    program = start()
    program.screen.wait_for_rows(NAMES)
    assert not program.screen.shows(STALE)


def test_ending_in_the_middle_of_a_request_is_clean(start, stored_key, the_service):
    the_service.fail("hang")
    program = start()
    program.screen.wait_for("Loading Dashboard...")
    eventually(the_service.requests, "no request came")

    assert program.terminate() == 0


def test_a_second_start_ends_at_once_also_in_the_middle_of_a_request(start, stored_key, the_service):
    the_service.fail("hang")
    program = start()
    program.screen.wait_for("Loading Dashboard...")

    assert start_again(program) == 0
    assert program.is_running()
