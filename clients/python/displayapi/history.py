"""The last keys and requests, for whoever asks what has led to a failure."""

from __future__ import annotations

import collections
import time
from dataclasses import dataclass
from typing import Any, Deque, Mapping

KEPT = 50


@dataclass
class Request:
    """A request and what has come of it."""

    at: float
    """Seconds since the connection."""
    method: str
    params: Mapping[str, Any]
    outcome: str = "no answer"

    def __str__(self) -> str:
        words = " ".join(f"{name}={value!r}" for name, value in self.params.items())
        return f"{self.at:8.3f}  {self.method} {words}".rstrip() + f"  ->  {self.outcome}"


class History:
    """The last of them."""

    def __init__(self) -> None:
        self._begin = time.monotonic()
        self._requests: Deque[Request] = collections.deque(maxlen=KEPT)

    def add(self, method: str, params: Mapping[str, Any]) -> Request:
        request = Request(time.monotonic() - self._begin, method, params)
        self._requests.append(request)
        return request

    def __str__(self) -> str:
        return "\n".join(map(str, self._requests))


def outcome_of(result: Any) -> str:
    """An answer in a word or two."""
    if not isinstance(result, Mapping):
        return str(result)
    if "held" in result:
        return f"{'held' if result['held'] else 'in vain'}, screen {result['screen']['number']}"
    return f"screen {result['number']}" if "number" in result else "done"
