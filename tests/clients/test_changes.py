"""What nobody has fetched."""

from __future__ import annotations

from typing import Optional

from displayapi import Change, Changes, Panel, Screen


def change(number: int, missed: int = 0) -> Change:
    return Change(Screen(number, "", Panel("plain", 240, 128), None, (), (), "", {}), missed)


def test_what_was_on_its_way_before_is_left_out() -> None:
    waiting = [change(3), change(5), change(7, 1)]

    def wait(timeout: Optional[float]) -> Change:
        return waiting.pop(0)

    changes = Changes(change(5), wait, None, lambda changes: None)
    assert [next(changes).number for _ in range(2)] == [5, 7]
