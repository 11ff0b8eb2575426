"""What goes wrong: every error of this package is a PhoneError."""

from __future__ import annotations

from enum import IntEnum
from typing import Optional, TYPE_CHECKING

if TYPE_CHECKING:
    from displayapi.screen import Screen


class ErrorCode(IntEnum):
    """What the phone's error answers mean."""

    NO_JSON = -32700
    BAD_REQUEST = -32600
    NO_METHOD = -32601
    BAD_PARAMETERS = -32602
    FAILED = -32603
    NO_ANSWER = -32000
    KEY_NOT_TAKEN = -32001
    READ_ONLY = -32002
    REAL_CLOCK = -32003
    REFUSED = -32004
    TOO_MANY_WAITS = -32005
    HAS_ENDED = -32006


class PhoneError(Exception):
    """The base of all of them."""


class StartFailed(PhoneError):
    """The phone could not be started, or has ended before it could be reached."""


class PhoneEnded(PhoneError):
    """The phone has ended, has crashed, or cannot be reached any more. The text has its last output."""


class PhoneTimeout(PhoneError, TimeoutError):
    """Nothing has come from the phone in time."""


class RequestError(PhoneError):
    """The phone refuses a request; the text is its own sentence."""

    def __init__(self, method: str, code: int, sentence: str) -> None:
        super().__init__(f"{method}: {sentence}")
        self.method = method
        self.code = code
        """One of ErrorCode, or a number that this package does not know."""
        self.sentence = sentence


class WaitFailed(PhoneError, AssertionError):
    """A condition has not come to hold in time. The text shows the screen that was there, and what differs."""

    def __init__(self, condition: str, timeout: float, screen: Screen, difference: str) -> None:
        sentence = difference.split("\nthe screen shows:\n")[0].rstrip()  # it follows here
        super().__init__(f"waited {timeout:g} s in vain for {condition}\n{sentence}\n{screen}")
        self.condition = condition
        self.screen = screen
        """The last screen that was judged."""
        self.difference = difference


def exit_sentence(status: Optional[int]) -> str:
    """How a process has ended, in words."""
    if status is None:
        return "still runs"
    return f"has ended with status {status}" if status >= 0 else f"was ended by signal {-status}"
