"""Reads the screen of a desk telephone and presses its keys, through the test interface of ``phone --rpc``.

>>> with Phone("./deskphone", variant="wp1") as phone:
...     phone.press("ok")
...     phone.wait_for("Contacts", selected=True)
"""

from displayapi.changes import Change, Changes
from displayapi.errors import ErrorCode, PhoneEnded, PhoneError, PhoneTimeout, RequestError, StartFailed, WaitFailed
from displayapi.phone import Hello, Language, Phone
from displayapi.screen import Panel, Rect, Row, Screen, Text
from displayapi.trace import Trace, TraceRecord

__all__ = [
    "Change", "Changes", "ErrorCode", "Hello", "Language", "Panel", "Phone", "PhoneEnded", "PhoneError",
    "PhoneTimeout", "Rect", "RequestError", "Row", "Screen", "StartFailed", "Text", "Trace", "TraceRecord",
    "WaitFailed",
]
