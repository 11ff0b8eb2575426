"""The fixture ``phone``: a telephone for each test, on each panel and in each language.

``pytest -p displayapi.pytest_plugin --phone-program ./deskphone``; installed by pip it is there without ``-p``.
"""

from __future__ import annotations

import re
import shlex
from dataclasses import dataclass
from pathlib import Path
from typing import Any, Dict, Generator, Iterable, List, Optional, Sequence

import pytest

from displayapi.errors import PhoneEnded, PhoneError
from displayapi.phone import Phone

PANELS = ("plain", "narrow", "wp1")
ALL = "all"
PICTURE_SCALE = 3
HERE = Path(__file__).resolve().parent
POOL: pytest.StashKey[PhonePool] = pytest.StashKey()
HAS_FAILED: pytest.StashKey[bool] = pytest.StashKey()


@dataclass(frozen=True)
class PhoneKind:
    """What a test wants."""

    panel: str
    language: str
    """Empty for the one in which the program begins."""

    def __str__(self) -> str:
        return f"{self.panel}-{self.language}" if self.language else self.panel


class PhonePool:
    """The phones of this run: those that are kept from one test to the next, by panel."""

    def __init__(self, config: pytest.Config) -> None:
        self._config = config
        self._kept: Dict[str, Phone] = {}
        self._first_languages: Dict[str, str] = {}

    @property
    def keeps(self) -> bool:
        return bool(self._config.getoption("phone_reuse") or self._config.getini("phone_reuse"))

    def languages(self, panel: str) -> List[str]:
        """All that the program offers."""
        phone = self.take(PhoneKind(panel, ""))
        offered = [each.language for each in phone.hello().languages]
        self.give_back(panel, phone, is_good=True)
        return offered or [""]

    def take(self, kind: PhoneKind) -> Phone:
        """A phone in that language."""
        phone = self._kept.pop(kind.panel, None)
        try:
            if phone is None:
                phone = self._start(kind.panel)
            self._speak(phone, kind)
            return phone
        except BaseException:
            if phone is not None:
                close_quietly(phone)
            raise

    def give_back(self, panel: str, phone: Phone, is_good: bool) -> None:
        """What a test has used. One that has failed has the next one begin anew."""
        if is_good and self.keeps and panel not in self._kept:
            self._kept[panel] = phone
        elif is_good:
            phone.close()
        else:
            close_quietly(phone)

    def close(self) -> None:
        kept, self._kept = self._kept, {}
        problems = []
        for phone in kept.values():
            try:
                phone.close()
            except PhoneEnded as error:
                problems.append(str(error))
        if problems:
            raise pytest.UsageError("\n".join(problems))

    def _start(self, panel: str) -> Phone:
        words = shlex.split(_setting(self._config, "phone_program"))
        if not words:
            raise pytest.UsageError("which program is the phone? --phone-program PROGRAM, or phone_program in pytest.ini")
        phone = Phone(*words, variant=panel, launcher=_setting(self._config, "phone_launcher") or None,
                      virtual_clock=not self._config.getoption("phone_real_clock"),
                      wait_timeout=float(self._config.getoption("phone_timeout")))
        self._first_languages[panel] = phone.hello().language
        return phone

    def _speak(self, phone: Phone, kind: PhoneKind) -> None:
        hello = phone.hello()
        offered = [each.language for each in hello.languages]
        language = kind.language or self._of_offered(self._first_languages[kind.panel], offered)
        if not language or _is_language(hello.language, language):
            return
        phone.set_language(language)
        with phone.subscribe(phone.wait_timeout) as changes:
            next(change for change in changes if _is_language(change.screen.language, language))

    @staticmethod
    def _of_offered(language: str, offered: Iterable[str]) -> str:
        """The offered name of a language such as en_GB."""
        return next((each for each in offered if _is_language(language, each)), "")


def _is_language(locale: str, language: str) -> bool:
    """en-GB is en-GB, and en."""
    return f"{locale}-".replace("_", "-").startswith(f"{language}-".replace("_", "-"))


def close_quietly(phone: Phone) -> None:
    """Of a phone whose test has failed it is known already."""
    try:
        phone.close()
    except PhoneError:
        pass


def pytest_addoption(parser: pytest.Parser) -> None:
    group = parser.getgroup("phone", "a telephone to test on")
    group.addoption("--phone-program", metavar="PROGRAM", help="program of the phone, with its arguments")
    group.addoption("--phone-launcher", metavar="PHONE", help="launcher; else 'phone' beside the program or of PATH")
    group.addoption("--phone-panels", metavar="PANEL,...", help="panels: plain, narrow, wp1; all of them else")
    group.addoption("--phone-languages", metavar="LANGUAGE,...",
                    help="languages, or 'all' that the program offers; the one in which it begins else")
    group.addoption("--phone-failures", metavar="DIR", default="phone-failures",
                    help="folder for pictures of the panel at a failure (%(default)s)")
    group.addoption("--phone-reuse", action="store_true",
                    help="keep a panel's phone from one test to the next, which has to begin where the last one ended")
    group.addoption("--phone-real-clock", action="store_true", help="time passes by itself")
    group.addoption("--phone-timeout", metavar="SECONDS", type=float, default=10.0,
                    help="how long wait_for() waits where it is told no other (%(default)s)")
    for name in ("program", "launcher", "panels", "languages"):
        parser.addini(f"phone_{name}", f"as --phone-{name}")
    parser.addini("phone_reuse", "as --phone-reuse", type="bool", default=False)


def pytest_configure(config: pytest.Config) -> None:
    config.addinivalue_line("markers", "phone_panels(panel, ...): only these of the panels")
    config.addinivalue_line("markers", "phone_languages(language, ...): only these of the languages")
    config.stash[POOL] = PhonePool(config)


def pytest_unconfigure(config: pytest.Config) -> None:
    pool = config.stash.get(POOL, None)
    if pool is not None:
        pool.close()


def pytest_generate_tests(metafunc: pytest.Metafunc) -> None:
    if "phone" not in metafunc.fixturenames:
        return
    kinds = [PhoneKind(panel, language) for panel in _panels(metafunc)
             for language in _languages(metafunc, panel)]
    metafunc.parametrize("phone", kinds, indirect=True, ids=str)


def _panels(metafunc: pytest.Metafunc) -> List[str]:
    asked = _list(_setting(metafunc.config, "phone_panels")) or list(PANELS)
    for panel in asked:
        if panel not in PANELS:
            raise pytest.UsageError(f"there is no panel '{panel}'; there are {', '.join(PANELS)}")
    return _narrowed(asked, _marked(metafunc, "phone_panels"))


def _languages(metafunc: pytest.Metafunc, panel: str) -> List[str]:
    asked = _list(_setting(metafunc.config, "phone_languages"))
    marked = _marked(metafunc, "phone_languages")
    if asked == [ALL]:
        asked = _offered(metafunc.config, panel)
    return _narrowed(asked, marked) if asked else marked if marked is not None else [""]


def _offered(config: pytest.Config, panel: str) -> List[str]:
    key = "_phone_offered_languages"
    if not hasattr(config, key):
        setattr(config, key, config.stash[POOL].languages(panel))
    offered: List[str] = getattr(config, key)
    return offered


def _narrowed(asked: Sequence[str], marked: Optional[Sequence[str]]) -> List[str]:
    return [each for each in asked if marked is None or each in marked]


def _marked(metafunc: pytest.Metafunc, name: str) -> Optional[List[str]]:
    """What all marks of that name leave; None where there is none."""
    left: Optional[List[str]] = None
    for mark in metafunc.definition.iter_markers(name):
        left = _narrowed(list(mark.args), left)
    return left


def _setting(config: pytest.Config, name: str) -> str:
    return str(config.getoption(name) or config.getini(name) or "")


def _list(text: str) -> List[str]:
    return [word for word in re.split(r"[,\s]+", text) if word]


@pytest.fixture
def phone(request: pytest.FixtureRequest) -> Generator[Phone, None, None]:
    """A telephone with nothing behind it, on the virtual clock; or, with --phone-reuse, the one of the test before."""
    pool = request.config.stash[POOL]
    kind: PhoneKind = request.param
    taken = pool.take(kind)
    yield taken
    pool.give_back(kind.panel, taken, is_good=not request.node.stash.get(HAS_FAILED, False))


@pytest.hookimpl(hookwrapper=True)  # type: ignore[misc]
def pytest_runtest_makereport(item: pytest.Item, call: pytest.CallInfo[None]) -> Generator[None, Any, None]:
    if call.excinfo is not None:  # a reader looks for the line of the test
        own = call.excinfo.traceback.filter(lambda entry: Path(entry.path).resolve().parent != HERE)
        call.excinfo.traceback = own or call.excinfo.traceback
    report: pytest.TestReport = (yield).get_result()
    taken = getattr(item, "funcargs", {}).get("phone")
    if not report.failed or not isinstance(taken, Phone) or report.when == "teardown":
        return
    item.stash[HAS_FAILED] = True
    history = str(taken.history)  # without what is asked for here
    report.sections += _screen_sections(taken, item)
    report.sections.append(("phone: last keys and requests", history))
    if taken.output:
        report.sections.append(("phone: output", taken.output))


def _screen_sections(taken: Phone, item: pytest.Item) -> List[Any]:
    try:
        screen = taken.screen()
        folder = Path(item.config.getoption("phone_failures"))
        folder.mkdir(parents=True, exist_ok=True)
        picture = folder / (re.sub(r"[^\w.-]+", "-", item.nodeid).strip("-") + ".png")
        taken.screenshot(picture, scale=PICTURE_SCALE)
        return [("phone: screen", f"{screen}\n\n{screen.text}"), ("phone: picture", str(picture.resolve()))]
    except (PhoneError, OSError) as error:
        return [("phone: screen", f"cannot be read: {error}")]
