"""The icon in a panel that is dark while programs are light, and the reverse: from installed icons, from those beside a
program that was only built, and drawn by a program that stands alone. Pictures of it are kept in the build folder."""

import shutil

import pytest

import peers
import program
import session
import xfce
from picture import Picture, contrast

# What WCAG asks of graphics that have to be understood.
ENOUGH = 3.0
DATA = program.BINARY.resolve().parent.parent


@pytest.fixture(params=["installed", "built", "drawn"])
def icons(request):
    return request.param


@pytest.fixture
def own_session(the_display, tmp_path, icons):
    with session.session(the_display, tmp_path) as made:
        if icons == "installed":
            made.surroundings["XDG_DATA_DIRS"] = f"{DATA}:/usr/share"
        yield made


@pytest.fixture
def binary(icons, tmp_path):
    if icons != "drawn":
        return program.BINARY
    (tmp_path / "alone").mkdir()
    return shutil.copy(program.BINARY, tmp_path / "alone")


@pytest.fixture(params=["dark", "light"])
def look(request):
    return request.param


@pytest.fixture
def panel(own_session, the_display, look):
    """A panel of that look, beside programs of the other."""
    is_dark = look == "dark"
    with xfce.panel(own_session, the_display, is_dark) as made, peers.portal(own_session) as portal:
        portal.set_dark(not is_dark)
        yield made


def size_of_what_stands_out(icon: Picture) -> tuple[int, int]:
    """The width and height of the icon's pixels that can be told apart from its ground."""
    ground = icon.ground()
    places = [(number % icon.width, number // icon.width) for number, colour in enumerate(icon.all())
              if contrast(colour, ground) >= ENOUGH]
    return tuple(max(numbers) - min(numbers) + 1 for numbers in zip(*places)) if places else (0, 0)


def test_the_icon_stands_out_from_a_ground_of_the_other_look(panel, own_session, the_display, binary, icons, look):
    with program.program(own_session, the_display, binary):
        panel.wait_for_icon()
        icon = panel.icon()
        icon.save(f"icon-{icons}-in-{look}-panel")
        width, height = size_of_what_stands_out(icon)
        assert width >= 16 and height >= 16
