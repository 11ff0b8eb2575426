"""What stands on the panel at one moment, between two messages of the GUI thread."""

from __future__ import annotations

from dataclasses import dataclass, field
from typing import Any, Mapping, Optional, Tuple


@dataclass(frozen=True)
class Rect:
    """A rectangle in pixels of the panel, right and bottom included."""

    left: int
    top: int
    right: int
    bottom: int

    @property
    def width(self) -> int:
        return self.right - self.left + 1

    @property
    def height(self) -> int:
        return self.bottom - self.top + 1

    @classmethod
    def of(cls, json: Mapping[str, Any]) -> Rect:
        return cls(json["left"], json["top"], json["right"], json["bottom"])


@dataclass(frozen=True)
class Panel:
    """The panel: its variant is "plain", "narrow" or "wp1"."""

    variant: str
    width: int
    height: int

    @classmethod
    def of(cls, json: Mapping[str, Any]) -> Panel:
        return cls(json["variant"], json["width"], json["height"])

    def __str__(self) -> str:
        return f"{self.variant}, {self.width} x {self.height}"


@dataclass(frozen=True)
class Row:
    """A line of the panel as one reads it: what stands side by side is one row, with two blanks between."""

    text: str
    selected: bool
    lasting: str
    """The row without what changes by itself, such as a clock."""

    @classmethod
    def of(cls, json: Mapping[str, Any]) -> Row:
        return cls(json["text"], json["selected"], json["lasting"])

    def __str__(self) -> str:
        return f"{'>' if self.selected else ' '} {self.text}".rstrip()


@dataclass(frozen=True)
class Text:
    """A text on the panel with its place."""

    text: str
    rect: Rect
    selected: bool
    cut: bool
    """Not all of it fits; ``text`` is all of it."""
    lacks_glyph: bool
    """A character of it stands there as U+FFFD, because no font has it."""
    volatile: bool
    """It changes by itself as time passes: a clock, a timer, a ticker."""
    widget: str
    """What has painted it, such as "list" or "window"."""

    @classmethod
    def of(cls, json: Mapping[str, Any]) -> Text:
        return cls(json["text"], Rect.of(json["rect"]), json["selected"], json["cut"], json["lacksGlyph"],
                   json["volatile"], json["widget"])


@dataclass(frozen=True)
class Screen:
    """The screen, as text and as its parts. ``str()`` of it is for people: the selected row has a ``>``."""

    number: int
    """Counts the screens that differ in what there is to read."""
    language: str
    """Empty where the program names none."""
    panel: Panel
    focus: Optional[Rect]
    """Of what has the focus; None where nothing has it."""
    rows: Tuple[Row, ...]
    texts: Tuple[Text, ...]
    """Top to bottom and left to right."""
    text: str
    """The screen as text in the library's own form."""
    json: Mapping[str, Any] = field(repr=False, compare=False)
    """As the phone has said it."""

    @classmethod
    def of(cls, json: Mapping[str, Any]) -> Screen:
        """The screen of an answer. Members that it does not know may be there."""
        focus = json["focus"]
        return cls(json["number"], json["language"], Panel.of(json["panel"]), None if focus is None else Rect.of(focus),
                   tuple(Row.of(row) for row in json["rows"]), tuple(Text.of(text) for text in json["texts"]),
                   json["text"], json)

    @property
    def selected(self) -> Optional[Row]:
        """The first row that is painted as the selected one."""
        return next((row for row in self.rows if row.selected), None)

    def __str__(self) -> str:
        language = f", {self.language}" if self.language else ""
        return "\n".join([f"screen {self.number} ({self.panel}{language}):", *map(str, self.rows)])
