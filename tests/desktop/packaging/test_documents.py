"""What users read: the guide, the manual page and the program's own help say the same.

Needs LARKSPAN_PROGRAM, the program.
"""

import os
import re
import subprocess
from pathlib import Path

import pytest

SOURCE = Path(__file__).resolve().parents[3]
DOCS = SOURCE / "docs"
GUIDE = (DOCS / "guide.md").read_text(encoding="utf-8")


def manual() -> str:
    """The manual page as one long line of words, as a terminal shows it."""
    page = subprocess.run(["groff", "-man", "-Tutf8", "-K", "utf8", "-P-bcou", "-rLL=400n", SOURCE / "packaging/larkspan.1"],
                          capture_output=True, text=True, check=True).stdout
    return " ".join(page.split())


def snippets(language: str) -> list[str]:
    return re.findall(rf"```{language}\n(.*?)```", GUIDE, flags=re.DOTALL)


@pytest.mark.parametrize("snippet", snippets("json") + snippets("sh"))
def test_each_snippet_of_the_guide_stands_in_the_manual_page(snippet):
    assert " ".join(snippet.split()) in manual()


def test_the_manual_page_has_the_programs_options_and_no_others():
    answered = subprocess.run([os.environ["LARKSPAN_PROGRAM"], "--help"], capture_output=True, text=True, check=True).stdout
    options = set(re.findall(r"--[a-z]+", answered))
    assert options
    told = manual()
    described = told[told.index(" OPTIONS "):told.index(" EXIT STATUS ")]
    assert set(re.findall(r"--[a-z]+", described)) == options


def test_each_picture_of_the_guide_is_there_and_is_made_by_the_gallery():
    script = (SOURCE / "dev").read_text(encoding="utf-8")
    pictures = set(re.findall(r"!\[[^]]+\]\((.*?)\)", GUIDE))
    assert len(pictures) > 6
    for picture in pictures:
        assert (DOCS / picture).is_file(), picture
        name = picture.removesuffix(".png")
        assert name.startswith("icon-") or re.search(rf"^\S+ +{name}$", script, flags=re.MULTILINE), picture


def test_each_link_within_the_guide_leads_to_a_chapter():
    chapters = {re.sub(r"[^a-z0-9 -]", "", line[3:].lower()).replace(" ", "-") for line in GUIDE.splitlines() if line.startswith("## ")}
    for chapter in re.findall(r"\]\(#(.*?)\)", GUIDE):
        assert chapter in chapters
