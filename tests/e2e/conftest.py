import pytest

import display
import keyring
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
    """Whole, with three pages."""
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
    """Starts the program, or its demo; it ends with the test."""
    from contextlib import ExitStack
    with ExitStack() as started:
        yield lambda binary=program.BINARY: started.enter_context(program.program(the_session, the_display, binary))
