import pytest

import display
import keyring
import opening
import program
import service
import session


@pytest.fixture(scope="session")
def the_display():
    with display.display() as made:
        yield made


@pytest.fixture(scope="session")
def the_simulator():
    with service.simulator() as made:
        yield made


@pytest.fixture
def the_service(the_simulator):
    """The service without faults and with three pages."""
    the_simulator.reset()
    return the_simulator


@pytest.fixture(scope="module")
def the_session(the_display, tmp_path_factory):
    with session.session(the_display, tmp_path_factory.mktemp("home")) as made:
        yield made


@pytest.fixture(scope="module")
def the_keyring(the_session):
    with keyring.keyring(the_session) as made:
        yield made


@pytest.fixture
def stored_key(the_keyring):
    the_keyring.store(service.KEY.encode())


@pytest.fixture
def start(the_session, the_display):
    """Starts the program or its demo, which ends with the test."""
    from contextlib import ExitStack
    with ExitStack() as started:
        yield lambda binary=program.BINARY: started.enter_context(program.program(the_session, the_display, binary))


@pytest.fixture
def pages(start, stored_key, the_service):
    """The list of pages; the first page has an incident, a maintenance and a component."""
    page = service.PAGES[0]["id"]
    the_service.incident = the_service.open_incident("Login errors", page=page)
    the_service.maintenance = the_service.plan_maintenance("Database upgrade", page=page)
    the_service.component = the_service.add_component("REST API", group=the_service.add_component_group("Core", page=page))
    screen = start().screen
    screen.wait_for_rows(service.NAMES)
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


@pytest.fixture
def incident(tab, the_display):
    """The screen of the page's incident."""
    screen = tab(2, ["Login errors"])
    opening.first_event(screen, the_display, "Login errors")
    return screen


@pytest.fixture
def maintenance(tab, the_display):
    """The screen of the page's maintenance."""
    screen = tab(5, ["Database upgrade"])
    opening.first_event(screen, the_display, "Database upgrade")
    return screen


@pytest.fixture
def component(tab, the_display):
    """The screen of the page's component."""
    screen = tab(4, ["REST API"])
    the_display.press_key("r")
    screen.wait_for_focus("REST API")
    the_display.press_key("Return")
    screen.wait_for("Component Details")
    return screen
