"""The dashboard's texts when the service or the connection to it fails, and the data that it keeps."""

from contextlib import ExitStack
from typing import NamedTuple

import pytest

import program
from service import NAMES, PAGES
from test_day import STALE

LOST = "The network connection was lost."
INVALID = "Received an invalid response from the server."


class Fault(NamedTuple):
    name: str
    order: dict
    words: str


def status(code: int) -> Fault:
    return Fault(f"status {code}", {"fault": "status", "code": code}, f"Server returned HTTP status code {code}.")


def body(name: str, text: str, words: str) -> Fault:
    return Fault(name, {"fault": "body", "text": text}, words)


FAULTS = [
    *map(status, [401, 403, 404, 429, 500, 503]),
    body("an empty body", "", INVALID),
    body("a page of HTML", "<!doctype html><title>Sign in</title>", "The server’s answer: Not valid JSON"),
    body("an object without data", "{}", "data: The key is missing"),
    body("a page without a name", '{"data":[{"id":"1"}]}', "data[0].name: The key is missing"),
    body("a number for an id", '[{"id":1,"name":"One"}]', "The server’s answer: Expected an object but found a list"),
    body("one bad page in a list", '{"data":[{"id":"1","name":"One"},{"id":"2"},{"id":"3","name":"Three"}]}',
         "data[1].name: The key is missing"),
    body("an unknown status", '{"data":[{"id":"1","name":"One","status":"major-outage"}]}',
         "data[0].status: Unknown word: major-outage"),
    body("no date", '{"data":[{"id":"1","name":"One","created_at":"n/a"}]}', "data[0].created_at: Cannot decode date: n/a"),
    Fault("garbage", {"fault": "garbage"}, "The server’s answer: Not valid UTF-8"),
    Fault("a wrong shape", {"fault": "wrong_shape"}, "data: Expected a list but found an object"),
    Fault("10,000 levels of nesting", {"fault": "deep_nesting"}, "The server’s answer: Nested too deeply"),
    Fault("200 MB", {"fault": "huge_body"}, "The server’s answer is too large."),
    Fault("200 MB in a few kilobytes", {"fault": "huge_body", "packed": True}, "The server’s answer is too large."),
    Fault("a reset in the middle", {"fault": "reset"}, LOST),
    Fault("a truncated body", {"fault": "truncation"}, LOST),
    Fault("a truncated body of unknown length", {"fault": "truncation", "hides_length": True}, LOST),
    Fault("a connection closed before the first byte", {"fault": "closed_before_first_byte"}, LOST),
    Fault("an answer that is not HTTP", {"fault": "not_http"}, "The server’s answer could not be understood."),
    Fault("a redirect to another host", {"fault": "redirect", "location": "https://elsewhere.example/"},
          "Server returned HTTP status code 302."),
    Fault("a redirect to plain HTTP", {"fault": "redirect", "location": "http://kestrune.example/"},
          "Server returned HTTP status code 302."),
    Fault("a redirect in a circle", {"fault": "redirect", "location": "/user/api/v1/status-pages"},
          "Server returned HTTP status code 302."),
]


@pytest.fixture(scope="module")
def shared(the_session, the_display, the_keyring):
    """One program for the whole table; a new one only if a row ended it."""
    with ExitStack() as started:
        running = []

        def give() -> program.Program:
            if not running or not running[-1].is_running():
                running.append(started.enter_context(program.program(the_session, the_display)))
            return running[-1]

        yield give


@pytest.mark.parametrize("fault", FAULTS, ids=[fault.name for fault in FAULTS])
def test_a_fault_is_told_and_nothing_is_lost(fault, shared, stored_key, the_service):
    the_service.give([])
    screen = shared().screen
    if not screen.shows("No Status Pages"):
        screen.press("Refresh Now")
        screen.wait_for("No Status Pages")

    the_service.fail(**fault.order)
    screen.press("Refresh Now")
    screen.wait_for("Couldn’t Refresh")
    assert screen.shows(fault.words), screen.texts()

    the_service.mend()
    the_service.give(PAGES)
    screen.press("Retry")
    screen.wait_for_rows(NAMES)

    the_service.fail(**fault.order)
    screen.press("Refresh Now")
    screen.wait_for(STALE)
    assert screen.rows() == NAMES

    the_service.mend()
    news = [page | {"name": page["name"] + " again"} for page in PAGES]
    the_service.give(news)
    screen.press("Retry")
    screen.wait_for_rows([page["name"] for page in news])
    screen.wait_until_gone(STALE)
