"""One phone for each panel, which speaks one language after the other."""

from __future__ import annotations

import gettext
from pathlib import Path
from typing import Callable, Iterator

import pytest

from displayapi import Phone

Say = Callable[[str], str]


def pytest_addoption(parser: pytest.Parser) -> None:
    parser.addoption("--languages", type=Path, required=True, help="folder of the compiled catalogues")


@pytest.fixture
def say(phone: Phone, request: pytest.FixtureRequest) -> Say:
    """The text of a catalogue's key in the language of the test."""
    language = phone.hello().language.split("-")[0]
    with (request.config.getoption("--languages") / f"{language}.mo").open("rb") as file:
        return gettext.GNUTranslations(file).gettext


HOME = "name:SystemMessage"
"""In the text of the idle screen, as long as its menu is closed."""


@pytest.fixture(autouse=True)
def home(phone: Phone) -> Iterator[None]:
    """Each test begins at home, and may leave the menu open."""
    phone.wait_for(screen=HOME, match="contains")
    yield
    if HOME not in phone.screen().text:
        phone.press("left")
