"""What `cmake --install` writes, under another prefix than that of the build and into a folder that stands for the root.

Needs LARKSPAN_CMAKE, LARKSPAN_BUILD: the program CMake and the folder of the build.
"""

import configparser
import os
import re
import struct
import subprocess
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import pytest

SOURCE = Path(__file__).resolve().parents[3]
ID = "com.kestrune.larkspan"
PREFIX = Path("/opt/larkspan 1")
STATUSES = ["degraded", "down", "maintenance", "operational", "stale", "unknown"]


@pytest.fixture(scope="module")
def the_root(tmp_path_factory):
    root = tmp_path_factory.mktemp("root")
    build = os.environ["LARKSPAN_BUILD"]
    environment = dict(os.environ, DESTDIR=str(root), HOME=str(tmp_path_factory.mktemp("home")))
    subprocess.run([os.environ["LARKSPAN_CMAKE"], "--install", build, "--prefix", str(PREFIX)],
                   env=environment, check=True, capture_output=True)
    yield root
    assert not any(Path(environment["HOME"]).iterdir())


@pytest.fixture
def the_prefix(the_root):
    return the_root / PREFIX.relative_to("/")


def said_by(*command):
    ended = subprocess.run(command, capture_output=True, text=True)
    return ended.returncode, ended.stdout + ended.stderr


def described_by(the_prefix):
    return ElementTree.parse(the_prefix / f"share/metainfo/{ID}.metainfo.xml")


def size_of_png(file):
    return struct.unpack(">II", file.read_bytes()[16:24])


def test_only_the_program_its_manual_page_and_the_desktops_files_are_installed(the_root, the_prefix):
    icons = "share/icons/hicolor"
    expected = [
        "bin/larkspan",
        f"share/applications/{ID}.desktop",
        f"share/dbus-1/services/{ID}.service",
        f"{icons}/scalable/apps/{ID}.svg",
        *(f"{icons}/symbolic/apps/{ID}-{status}-symbolic.svg" for status in STATUSES),
        f"{icons}/symbolic/apps/{ID}-symbolic.svg",
        "share/man/man1/larkspan.1",
        f"share/metainfo/{ID}.metainfo.xml",
    ]
    installed = sorted(str(file.relative_to(the_root)) for file in the_root.rglob("*") if not file.is_dir())
    assert installed == sorted(str(PREFIX.relative_to("/") / file) for file in expected)
    assert not PREFIX.exists()


def test_the_bus_starts_the_program_where_it_is_installed(the_prefix):
    service = configparser.ConfigParser()
    service.read(the_prefix / f"share/dbus-1/services/{ID}.service")
    assert dict(service["D-BUS Service"]) == {"name": ID, "exec": f'"{PREFIX}/bin/larkspan"'}


def test_the_desktop_file_is_valid(the_prefix):
    assert said_by("desktop-file-validate", the_prefix / f"share/applications/{ID}.desktop") == (0, "")


def test_a_copy_of_the_desktop_file_for_the_sessions_start_starts_in_the_panel(the_prefix):
    manual = (the_prefix / "share/man/man1/larkspan.1").read_text()
    copying = re.search(r"^sed .*?autostart/\S+$", manual, re.DOTALL | re.MULTILINE).group()
    edit = copying.split("'" if "'" in copying else r"\(aq")[1].replace(r"\-", "-")
    copied = subprocess.run(["sed", edit, the_prefix / f"share/applications/{ID}.desktop"],
                            check=True, capture_output=True, text=True).stdout
    entry = configparser.ConfigParser(interpolation=None)
    entry.optionxform = str
    entry.read_string(copied)
    assert entry["Desktop Entry"]["Exec"] == "larkspan --minimized"
    assert entry["Desktop Action minimized"]["Exec"] == "larkspan --minimized"


def test_software_centres_understand_the_description(the_prefix):
    # Releases of AppStream differ in how to name the developer, and each complains about the other way.
    _, version = said_by("appstreamcli", "--version")
    complaint = "unknown-tag" if "version: 0." in version else "developer-name-tag-deprecated"
    code, words = said_by("appstreamcli", "validate", "--no-net", "--strict", f"--override={complaint}=pedantic",
                          the_prefix / f"share/metainfo/{ID}.metainfo.xml")
    assert code == 0, words


def test_software_centres_show_pictures_of_the_documentation_in_their_sizes(the_prefix):
    images = described_by(the_prefix).findall("screenshots/screenshot/image")
    assert images
    for image in images:
        picture = SOURCE / "docs" / image.text.rsplit("/", 1)[1]
        assert size_of_png(picture) == (int(image.get("width")), int(image.get("height")))


def test_the_pictures_are_found_below_the_web_site(the_prefix):
    description = described_by(the_prefix)
    home = description.find("url[@type='homepage']").text
    for image in description.findall("screenshots/screenshot/image"):
        assert image.text.startswith(f"{home}/larkspan/docs/")


def test_the_manual_page_is_formatted_without_a_warning(the_prefix):
    page = the_prefix / "share/man/man1/larkspan.1"
    ended = subprocess.run(["groff", "-man", "-Tutf8", "-K", "utf8", "-ww", "-z", page], capture_output=True, text=True)
    assert (ended.returncode, ended.stderr) == (0, "")
