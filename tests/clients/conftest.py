"""The telephones of these tests are those of a build: pytest --bin BUILD/bin."""

from __future__ import annotations

from pathlib import Path
from typing import Iterator

import pytest

from displayapi import Phone

pytest_plugins = ["pytester"]


def pytest_addoption(parser: pytest.Parser) -> None:
    parser.addoption("--bin", default="build/release/bin", help="folder of the built programs")


@pytest.fixture(scope="session")
def programs(request: pytest.FixtureRequest) -> Path:
    return Path(request.config.getoption("--bin")).resolve()


@pytest.fixture
def deskphone(programs: Path) -> Iterator[Phone]:
    with Phone(programs / "deskphone", wait_timeout=60) as started:
        yield started
