"""What the desk phone says and does, on each panel in each language."""

from __future__ import annotations

from typing import Callable

import pytest

from displayapi import Phone

Say = Callable[[str], str]

MENU = ["call.log", "contacts", "settings", "services", "lines", "short.dials", "new.contact", "find.contact", "about",
        "disturb", "forwarding", "network", "notes"]
FORMS = ["settings"]
# Left from the tabs of what is read from the right leads through them.
WAY_HOME = {"call.log": 6, "find.contact": 2, "settings": 2}
# As text, idle screen and menu are one, and only the first has news. Other screens begin with another name.
HOME = "name:SystemMessage"
NO_MENU = r"\Aobject:\nname:([^I]|I[^d])"


def test_the_menu_goes_round(phone: Phone, say: Say) -> None:
    phone.press("ok")
    for entry in MENU:
        phone.wait_for(say(f"Menu.{entry}"), selected=True)
        phone.press("down")
    phone.wait_for(say("Menu.call.log"), selected=True)
    phone.press("left")
    phone.wait_for(absent=say("Menu.call.log"))


@pytest.mark.parametrize("entry", MENU)
def test_a_screen_opens_and_leads_home(phone: Phone, say: Say, entry: str) -> None:
    phone.press("ok")
    for _ in MENU[:MENU.index(entry)]:
        phone.press("down")
    phone.wait_for(say(f"Menu.{entry}"), selected=True)
    phone.press("ok")
    phone.wait_for(screen=NO_MENU, match="regex")
    if entry in FORMS:
        phone.press("up")
    phone.press("left", times=WAY_HOME.get(entry, 1))
    phone.wait_for(screen=HOME, match="contains")


def test_who_calls_is_shown_and_spoken_with(phone: Phone, say: Say) -> None:
    phone.exchange("4711 calls")
    phone.wait_for("Ada Byron")
    phone.press("hook")
    phone.wait_for(say("Call.connected"), match="contains")
    phone.advance(3600)
    phone.wait_for("1:00:00", match="contains", volatile=True)
    phone.press("hook")
    phone.wait_for(say("Call.ended").replace("%1", "").strip(), match="contains")
    phone.advance(2)


def test_a_number_is_dialled(phone: Phone, say: Say) -> None:
    phone.type("4711")
    phone.wait_for("4711")
    phone.press("ok")
    phone.wait_for(say("Call.dialling"), match="contains")
    phone.advance(0.2)
    phone.wait_for(say("Call.proceeding"), match="contains")
    phone.press("hook")
    phone.wait_for(say("Call.ended").replace("%1", "").strip(), match="contains")
    phone.advance(2)


def test_every_text_is_on_the_panel(phone: Phone) -> None:
    phone.press("ok")
    panel = phone.hello().panel
    for _ in MENU:
        for text in phone.screen().texts:
            assert 0 <= text.rect.left <= text.rect.right < panel.width, text
            assert 0 <= text.rect.top <= text.rect.bottom < panel.height, text
            assert not text.lacks_glyph, text
        phone.press("down")
