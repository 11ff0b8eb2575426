"""The telephone."""

from __future__ import annotations

import base64
import os
import weakref
from dataclasses import dataclass
from pathlib import Path
from types import TracebackType
from typing import Any, Dict, Mapping, Optional, Sequence, Tuple, Type

from displayapi.changes import Change, Changes
from displayapi.connection import Connection
from displayapi.errors import ErrorCode, PhoneEnded, RequestError, WaitFailed
from displayapi.history import History, outcome_of
from displayapi.process import PathLike, PhoneProcess, command_line, find_launcher, read_token
from displayapi.screen import Panel, Screen
from displayapi.trace import Trace

TIME_TO_DIE = 15.0


@dataclass(frozen=True)
class Language:
    """A language that the program offers."""

    language: str
    """What set_language() takes."""
    name: str
    """As its speakers call it."""


@dataclass(frozen=True)
class Hello:
    """Who is there."""

    version: int
    """Of the interface."""
    program: str
    panel: Panel
    language: str
    """Empty where the program names none."""
    languages: Tuple[Language, ...]
    actions: Tuple[str, ...]
    """What act() takes."""
    virtual_clock: bool
    read_only: bool
    methods: Tuple[str, ...]


class Phone:
    """A telephone with its screen and its keys.

    ``Phone("./deskphone", variant="wp1")`` starts one, and ends it with ``close()`` or at the end of ``with``.
    ``Phone.connect(url, token)`` is one that runs already, and goes on.

    All times are seconds. On the virtual clock no time passes on the telephone but what ``advance()``, ``hold()`` and
    intervals between keys pass; time-outs are of real time always. A Phone is for one thread at a time; other threads
    take connections of their own. Every operation raises RequestError where the phone refuses it, PhoneTimeout where it
    does not answer in time, and PhoneEnded, with the phone's last output, where it has gone.
    """

    def __init__(self, program: PathLike, *arguments: str, variant: str = "plain", virtual_clock: bool = True,
                 launcher: Optional[PathLike] = None, environment: Optional[Mapping[str, str]] = None,
                 read_only: bool = False, timeout: float = 30.0, wait_timeout: float = 10.0) -> None:
        """Starts the program with its arguments on a panel ("plain", "narrow" or "wp1"), and returns when it serves.

        ``launcher`` is the program ``phone``: the one beside the program, or of PATH, when none is named.
        ``environment`` is added to the own one. ``timeout`` is for every answer, and the start; ``wait_timeout`` is
        what wait_for() takes where it is told no other. Raises StartFailed.
        """
        launcher = os.fspath(launcher) if launcher is not None else find_launcher(program)
        process = PhoneProcess(command_line(launcher, program, arguments, variant, virtual_clock, read_only),
                               environment, timeout)
        self._begin(process, process.url, process.token, timeout, wait_timeout)

    @classmethod
    def connect(cls, url: str, token: PathLike, *, timeout: float = 30.0, wait_timeout: float = 10.0) -> Phone:
        """A phone that runs: the address ``ws://...`` that it has printed, and its token, or the Path of the file with
        it."""
        phone = cls.__new__(cls)
        known = token if isinstance(token, str) else read_token(token)
        phone._begin(None, url, known, timeout, wait_timeout)
        return phone

    def _begin(self, process: Optional[PhoneProcess], url: str, token: str, timeout: float,
               wait_timeout: float) -> None:
        self.timeout = timeout
        self.wait_timeout = wait_timeout
        self.url = url
        self.token = token
        self.since = 0
        """Where wait_for() begins: the screen of the last key, of whatever else has changed something, or for which
        the last condition has held."""
        self.history = History()
        """The last fifty keys and requests; ``str()`` of it is for people."""
        self._process = process
        self._changes: Optional[Changes] = None
        self._is_closed = False
        self._has_told_end = False
        try:
            self._connection = Connection(url, token, timeout)
        except BaseException:
            if process is not None:
                process.end()
            raise
        if process is not None:
            weakref.finalize(self, process.end)  # whoever forgets it leaves no phone behind

    def close(self) -> None:
        """Ends the phone if it is our own, else the connection. Once more does nothing. Raises PhoneEnded where the
        program has not ended in order, and no other operation has said so."""
        if self._is_closed:
            return
        self._is_closed = True
        self._connection.close()
        if self._process is None:
            return
        status = self._process.end()
        if self._has_told_end:
            return
        if status is None:
            raise PhoneEnded(f"the phone did not end and was killed; its output:\n{self._process.output}")
        if status != 0:
            raise PhoneEnded(self._process.describe())

    def __enter__(self) -> Phone:
        return self

    def __exit__(self, kind: Optional[Type[BaseException]], error: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        try:
            self.close()
        except PhoneEnded:
            if error is None:  # else that is what one wants to know
                raise

    @property
    def pid(self) -> int:
        """The process of our own launcher; 0 where the phone is not ours."""
        return self._process.pid if self._process is not None else 0

    @property
    def output(self) -> str:
        """The last lines that our own phone and its program have printed."""
        return self._process.output if self._process is not None else ""

    def request(self, method: str, params: Optional[Mapping[str, Any]] = None,
                timeout: Optional[float] = None) -> Any:
        """Any method of the interface, with its parameters, those that are None left out, and its result as JSON."""
        params = _without_none(params or {})
        entry = self.history.add(method, params)
        try:
            result = self._connection.call(method, params, self.timeout if timeout is None else timeout)
        except PhoneEnded as error:
            entry.outcome = "the phone has ended"
            raise self._explain(error) from None
        except RequestError as error:
            entry.outcome = error.sentence
            if error.code == ErrorCode.HAS_ENDED:
                raise self._explain(PhoneEnded(error.sentence)) from None
            raise
        entry.outcome = outcome_of(result)
        return result

    # What is there.

    def hello(self) -> Hello:
        """Who is there."""
        result = self.request("hello")
        languages = tuple(Language(each["language"], each["name"]) for each in result["languages"])
        return Hello(result["version"], result["program"], Panel.of(result["panel"]), result["language"], languages,
                     tuple(result["actions"]), result["virtualClock"], result["readOnly"], tuple(result["methods"]))

    def screen(self) -> Screen:
        """The screen as it is now, between two messages of the GUI thread."""
        return Screen.of(self.request("screen"))

    def screenshot(self, file: Optional[PathLike] = None, scale: int = 1) -> bytes:
        """The panel as a PNG, written to the file too; ``scale`` is how wide and high a pixel becomes, 1 to 8."""
        png = base64.b64decode(self.request("screenshot", {"scale": scale})["png"])
        if file is not None:
            Path(file).write_bytes(png)
        return png

    def subscribe(self, timeout: Optional[float] = None) -> Changes:
        """The screen, and then every change of it, to be iterated over. A change that does not come within ``timeout``
        raises PhoneTimeout; None waits for as long as it takes. A second subscription ends the first one."""
        if self._changes is not None:
            self._changes.close()
        screen = Screen.of(self.request("subscribe"))
        self._changes = Changes(Change(screen, 0), self._next_change, timeout, self._unsubscribe)
        return self._changes

    # Keys. Each is answered when the GUI thread has handled it, with the number of the screen then.

    def press(self, key: str, times: int = 1, interval: float = 0) -> int:
        """Presses a key, such as "ok", "left" or "5", and lets it go, so many times, with so many seconds on the
        telephone's clock in between. Returns the number of the screen when it had been handled."""
        params = {"key": key, "times": times if times != 1 else None, "interval": _milliseconds(interval) or None}
        return self._change("press", params, lasts=(times - 1) * interval)

    def hold(self, key: str, duration: Optional[float] = None) -> int:
        """Holds a key for so many seconds of the telephone's clock, or until release()."""
        params = {"key": key, "duration": None if duration is None else _milliseconds(duration)}
        return self._change("hold", params, lasts=duration or 0)

    def release(self, key: str) -> int:
        """Lets go of a key that is held."""
        return self._change("release", {"key": key})

    def type(self, text: str, interval: float = 0) -> int:
        """Presses the keys of the keypad one after the other: 0 to 9, * and #."""
        params = {"text": text, "interval": _milliseconds(interval) or None}
        return self._change("type", params, lasts=len(text) * interval)

    # Waiting.

    def wait_for(self, text: Optional[str] = None, *, absent: Optional[str] = None, screen: Optional[str] = None,
                 rows: Optional[Sequence[str]] = None, selected: bool = False, match: str = "equal",
                 volatile: bool = False, since: Optional[int] = None, timeout: Optional[float] = None) -> Screen:
        """Waits on the phone's side until a condition holds, and returns the screen for which it did.

        There is exactly one of ``text``: a row, or a text on the panel, is it (with ``selected``: a selected one);
        ``absent``: none is it; ``screen``: the whole screen as text is it; ``rows``: these are the rows, and no others.
        ``match`` is "equal", "contains" or "regex". Clocks, timers and counters count only with ``volatile``.

        Screens that have come and gone meanwhile count, from the number ``since`` on: that of the last key, or of the
        screen for which the last condition held, where none is named, so that a test neither misses what is quick nor
        takes what was there before for what it waits for; 0 begins with the screen as it is.

        Raises WaitFailed after ``timeout`` seconds of real time. It shows what the screen was and what differs.
        """
        timeout = self.wait_timeout if timeout is None else timeout
        condition = _without_none({"text": text, "absent": absent, "screen": screen,
                                   "rows": None if rows is None else list(rows), "selected": selected or None,
                                   "match": None if match == "equal" else match, "volatile": volatile or None})
        when = {"since": self.since if since is None else since, "timeout": _milliseconds(timeout)}
        result = self.request("waitFor", {**condition, **when}, timeout + self.timeout)
        last = Screen.of(result["screen"])
        if not result["held"]:
            raise WaitFailed(_describe(condition), timeout, last, result["difference"])
        self.since = max(self.since, last.number)
        return last

    # Time.

    def advance(self, seconds: float) -> int:
        """Moves the virtual clock: every timer runs in its order. Returns the number of the screen then."""
        return self._change("advance", {"milliseconds": _milliseconds(seconds)})

    def now(self) -> float:
        """The telephone's clock, in seconds since some moment."""
        return float(self.request("now")["now"]) / 1000

    # What the program offers.

    def set_language(self, language: str) -> int:
        """Says a language to the program, one of those of hello(). The screen may follow: wait for it."""
        return self._change("setLanguage", {"language": language})

    def exchange(self, line: str) -> int:
        """Says a line to the program's exchange: "4711 calls". The screen may follow: wait for it."""
        return self._change("exchange", {"line": line})

    def act(self, action: str, line: str = "") -> int:
        """Says a line to an action of the program, one of those of hello(). The screen may follow: wait for it."""
        return self._change("act", {"action": action, "line": line})

    # Looking inside.

    def trace(self, enable: Optional[bool] = None) -> Trace:
        """The requests of the facades to the GUI thread since the last trace(), whoever asked, as far as they are kept;
        and turns the trace on or off, which is off at first."""
        return Trace.of(self.request("trace", {"enable": enable}))

    def inspect(self) -> Mapping[str, Any]:
        """Who waits for whom and since when, what the GUI thread is doing, and whatever else the phone tells of its
        inside, as JSON."""
        result: Mapping[str, Any] = self.request("inspect")
        return result

    def _change(self, method: str, params: Mapping[str, Any], lasts: float = 0) -> int:
        """A request that changes something, and lasts that many seconds on a real clock."""
        result = self.request(method, params, self.timeout + max(lasts, 0))
        self.since = int(result["number"])
        return self.since

    def _next_change(self, timeout: Optional[float]) -> Change:
        try:
            return Change.of(self._connection.next_change(timeout))
        except PhoneEnded as error:
            raise self._explain(error) from None

    def _unsubscribe(self, changes: Changes) -> None:
        if self._changes is not changes:
            return
        self._changes = None
        if not self._is_closed:
            try:
                self.request("unsubscribe")
            except PhoneEnded:
                pass  # which comes to the same
        self._connection.forget_changes()

    def _explain(self, error: PhoneEnded) -> PhoneEnded:
        """Adds how our own phone has ended, and what it has said."""
        if self._process is None or self._is_closed:
            return error
        self._has_told_end = True
        self._process.wait(TIME_TO_DIE)
        return PhoneEnded(f"{error}: {self._process.describe()}")


def _milliseconds(seconds: float) -> int:
    return round(seconds * 1000)


def _without_none(values: Mapping[str, Any]) -> Dict[str, Any]:
    return {name: value for name, value in values.items() if value is not None}


def _describe(condition: Mapping[str, Any]) -> str:
    """The condition as wait_for() was told it."""
    return "wait_for(" + ", ".join(f"{name}={value!r}" for name, value in condition.items()) + ")"
