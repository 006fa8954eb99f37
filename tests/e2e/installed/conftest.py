"""An installed package, the one who installs it, and the user who runs it; see run."""

import os

import pytest

from administrator import Administrator
from package import Package


@pytest.fixture(scope="session")
def administrator():
    return Administrator(f"{os.environ['LARKSPAN_WORK']}/administrator")


@pytest.fixture(scope="session")
def package(administrator):
    return Package(administrator)
