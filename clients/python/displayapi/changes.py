"""Every change of the screen, one after the other."""

from __future__ import annotations

from dataclasses import dataclass
from types import TracebackType
from typing import Any, Callable, Iterator, Mapping, Optional, Type

from displayapi.screen import Screen


@dataclass(frozen=True)
class Change:
    """The screen has become another one."""

    screen: Screen
    missed: int
    """How many screens there were between it and the one before, because this end has read too slowly."""

    @property
    def number(self) -> int:
        """The screen's number."""
        return self.screen.number

    @classmethod
    def of(cls, json: Mapping[str, Any]) -> Change:
        return cls(Screen.of(json["screen"]), json["missed"])


class Changes(Iterator[Change]):
    """What Phone.subscribe() returns: first the screen as it was then, then every other one. ``close()`` it, or use it
    with ``with``, when no more are wanted."""

    def __init__(self, first: Change, wait: Callable[[Optional[float]], Change], timeout: Optional[float],
                 close: Callable[[Changes], None]) -> None:
        self._first: Optional[Change] = first
        self._last = first.number
        self._wait = wait
        self._timeout = timeout
        self._close = close
        self._is_closed = False

    def __next__(self) -> Change:
        """The next change. Raises PhoneTimeout when there is none for as long as subscribe() was told, and PhoneEnded
        when the phone is gone."""
        return self.next(self._timeout)

    def next(self, timeout: Optional[float]) -> Change:
        """The next change, with another time-out: seconds, None for as long as it takes."""
        if self._is_closed:
            raise StopIteration
        if self._first is not None:
            first, self._first = self._first, None
            return first
        change = self._wait(timeout)
        while change.number <= self._last:  # was on its way to a subscription before this one
            change = self._wait(timeout)
        self._last = change.number
        return change

    def close(self) -> None:
        """Ends the subscription. Once more does nothing."""
        if not self._is_closed:
            self._is_closed = True
            self._close(self)

    def __enter__(self) -> Changes:
        return self

    def __exit__(self, kind: Optional[Type[BaseException]], error: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        self.close()
