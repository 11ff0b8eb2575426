"""What is recorded of a longer walk through the desk phone replays on every panel and in every language."""

from __future__ import annotations

import json
import re
import subprocess
from contextlib import contextmanager
from pathlib import Path
from typing import Dict, Iterator, List

import pytest

from displayapi import Phone, PhoneEnded
from displayapi.process import PhoneProcess


@contextmanager
def recorded(programs: Path, file: Path, *words: str, program: str = "deskphone",
             panel: str = "plain") -> Iterator[Phone]:
    """A phone behind its page that is recorded, on a clock that is moved."""
    command = [str(programs / "phone"), "--variant", panel, "--port", "0", "--rpc", "--virtual-clock", "--record",
               str(file), str(programs / program), *words]
    process = PhoneProcess(command, None, 60)
    try:
        with Phone.connect(process.url, process.token, wait_timeout=60) as phone:
            yield phone
    finally:
        process.end()


def replay(programs: Path, script: Path, *words: str, panel: str = "plain",
           program: str = "deskphone") -> "subprocess.CompletedProcess[str]":
    return subprocess.run([programs / "phone", "--variant", panel, "--script", script, "--out", script.parent,
                           programs / program, *words], capture_output=True, text=True, timeout=240, check=False)


def lines_of(file: Path) -> List[str]:
    """Without comments."""
    return [line for line in file.read_text(encoding="utf-8").splitlines() if not line.startswith("#")]


def enter(phone: Phone, entry: str) -> None:
    """From the idle screen into the menu, and to what is called so there."""
    phone.press("ok")
    phone.wait_for("Call log", selected=True)
    while not any(row.selected and row.text == entry for row in phone.screen().rows):
        phone.press("down")
    phone.press("ok")


def pass_until(phone: Phone, text: str) -> None:
    """Lets time pass until a row has the text."""
    for _ in range(60):
        if any(text in row.text for row in phone.screen().rows):
            return
        phone.advance(0.5)
    pytest.fail(f"there is no {text}:\n{phone.screen()}")


def walk(phone: Phone) -> None:
    phone.wait_for("Line 1", since=0)

    # Another ring tone, and a louder one.
    enter(phone, "Settings")
    phone.wait_for("Language")
    phone.press("down")
    phone.press("ok")
    phone.wait_for("Blackbird")
    phone.press("down")
    phone.press("ok")
    phone.wait_for("Marimba")
    phone.press("down")
    phone.press("right")
    phone.press("right")
    phone.press("left")
    phone.wait_for("6")
    phone.press("ok")
    phone.wait_for("Saved")
    phone.advance(3)
    phone.wait_for(absent="Saved")

    # Somebody new.
    enter(phone, "New contact")
    phone.wait_for("Name")
    for digits in ("9999", "666", "3333333"):
        phone.type(digits)
        phone.advance(1.1)
    phone.press("down")
    phone.hold("0", 0.7)
    phone.type("4930123")
    phone.wait_for("+4930123")
    phone.press("down")
    phone.press("right")
    phone.wait_for("work")
    phone.press("up", times=4)
    phone.press("right")
    phone.press("left")
    phone.press("ok")
    phone.wait_for("Saved")
    phone.advance(3)

    # Who is looked at, and a command of his.
    enter(phone, "Contacts")
    phone.wait_for("Zoë Ångström, home")
    phone.press("down")
    phone.press("right")
    phone.wait_for("Details")
    phone.press("down")
    phone.press("ok")
    phone.wait_for("030 1000000")
    phone.press("left")
    phone.wait_for("Contacts")
    phone.press("left")
    phone.wait_for("Desk phone")

    # A call out, and one that comes meanwhile and is refused.
    phone.type("4711")
    phone.wait_for("4711")
    phone.press("ok")
    phone.wait_for("Dialling, line 1")
    pass_until(phone, "Connected")
    phone.exchange("4713 calls")
    phone.wait_for("Edsger Dijkstra")
    phone.press("right")
    phone.press("ok")
    phone.wait_for(absent="Edsger Dijkstra")
    phone.press("hook")
    phone.advance(5)
    phone.wait_for("Desk phone", since=0)

    # One that comes and is answered.
    phone.exchange("4712 calls")
    phone.wait_for("Alan Turing")
    phone.press("ok")
    phone.wait_for("Connected, line 1", match="contains")
    phone.exchange("4712 ends")
    phone.advance(5)
    phone.wait_for("Desk phone", since=0)


def test_a_walk_replays_on_every_panel_and_in_every_language(programs: Path, tmp_path: Path) -> None:
    file = tmp_path / "walk.script"
    with recorded(programs, file) as phone:
        walk(phone)
    recording = file.read_text(encoding="utf-8")
    assert "key down" not in recording
    languages = {"plain": ("en", "fr", "ar"), "narrow": ("de", "ja"), "wp1": ("fr", "ar", "ja")}
    for panel, language in ((panel, language) for panel in languages for language in languages[panel]):
        script = tmp_path / f"{panel}-{language}.script"
        script.write_text(f"language {language}\n{recording}", encoding="utf-8")
        result = replay(programs, script, panel=panel)
        assert result.returncode == 0, f"{panel}, {language}:\n{result.stderr}\n{recording}"


def catalogue(language: str) -> Dict[str, str]:
    file = Path(__file__).parents[2] / "languages" / f"{language}.po"
    return dict(re.findall(r'^msgid "(.+)"\nmsgstr "(.*)"$', file.read_text(encoding="utf-8"), re.MULTILINE))


def louder(phone: Phone, words: Dict[str, str]) -> None:
    """From the idle screen to the volume in the settings, and there one step on."""
    phone.press("ok")
    phone.wait_for(words["Menu.call.log"], selected=True)
    while not any(row.selected and row.text == words["Menu.settings"] for row in phone.screen().rows):
        phone.press("down")
    phone.press("ok")
    phone.wait_for(words["Settings.language"], match="contains")
    phone.press("down", times=2)
    phone.press("right")


def test_what_the_small_panel_shows_in_arabic_at_the_end_is_there_again(programs: Path, tmp_path: Path) -> None:
    """And the same field is set on other panels in other languages."""
    file = tmp_path / "louder.script"
    words = catalogue("ar")
    with recorded(programs, file, panel="wp1") as phone:
        phone.wait_for("Line 1", match="contains", since=0)
        while not phone.hello().languages:  # it hears of none before
            pass
        phone.set_language("ar")
        louder(phone, words)
        phone.press("ok")
        phone.wait_for(words["Status.saved"], match="contains")
        phone.advance(3)
        louder(phone, words)
        rows = [(row.lasting, row.selected) for row in phone.screen().rows]
    recording = file.read_text(encoding="utf-8").replace("language ar\n", "")
    volume = lines_of(file)[-1].split('"')[1]
    assert volume.isdigit()
    for panel, language in (("wp1", "ar"), ("plain", "fr"), ("narrow", "de")):
        script = tmp_path / f"{panel}-{language}.script"
        script.write_text(f"language {language}\n{recording}dump --json {panel}.json\n", encoding="utf-8")
        result = replay(programs, script, panel=panel)
        assert result.returncode == 0, f"{panel}, {language}:\n{result.stderr}\n{recording}"
        shown = json.loads((tmp_path / f"{panel}.json").read_text(encoding="utf-8"))["rows"]
        if (panel, language) == ("wp1", "ar"):
            assert [(row["lasting"], row["selected"]) for row in shown] == rows
        assert any(row["selected"] and volume in row["text"].split() for row in shown)


def test_another_program_fails_with_a_sentence(programs: Path, tmp_path: Path) -> None:
    file = tmp_path / "menu.script"
    with recorded(programs, file) as phone:
        enter(phone, "Contacts")
        phone.wait_for("Zoë Ångström, home")
    assert lines_of(file)[:2] == ["key ok", 'expect _("Menu.call.log" or "Call log")']
    result = replay(programs, file, "never", program="misbehaving")
    assert result.returncode == 1
    assert "menu.script:7: expected 'Menu.call.log' or 'Call log'\nthe screen shows:\n> Do it\n" in result.stderr
    file.write_text("\n".join(line for line in lines_of(file) if not line.startswith("expect")))
    result = replay(programs, file, "never", program="misbehaving")
    assert "to go to; there is 'Do it'\nthe screen shows:\n> Do it\n" in result.stderr


def test_what_has_crashed_the_program_is_written(programs: Path, tmp_path: Path) -> None:
    file = tmp_path / "crash.script"
    with pytest.raises(PhoneEnded):
        with recorded(programs, file, "crash", program="misbehaving") as phone:
            phone.wait_for("Do it", since=0)
            phone.press("ok")
            phone.wait_for("what never comes")
    assert lines_of(file) == ["expect Do it", 'choose "Do it"']
    result = replay(programs, file, "crash", program="misbehaving")
    assert "was stopped by SIGABRT" in result.stderr


def test_two_clients_are_one_user(programs: Path, tmp_path: Path) -> None:
    file = tmp_path / "two.script"
    with recorded(programs, file) as phone, Phone.connect(phone.url, phone.token, wait_timeout=60) as other:
        phone.press("ok")
        other.wait_for("Call log", selected=True, since=0)
        other.press("down")
        phone.press("down")
        other.press("ok")
        other.wait_for("Language")
    assert lines_of(file)[2].startswith("command _(") and "Menu.settings" in lines_of(file)[2]
    assert replay(programs, file, panel="wp1").returncode == 0


@pytest.mark.parametrize("file, reason", [("there.script", "already; a recording does not overwrite it."),
                                          ("nowhere/r.script", "No such file or directory."), (".", "Is a directory.")])
def test_file_that_cannot_be_had_starts_nothing(programs: Path, tmp_path: Path, file: str, reason: str) -> None:
    (tmp_path / "there.script").write_text("key ok\n")
    result = subprocess.run([programs / "phone", "--record", tmp_path / file, programs / "deskphone"],
                            capture_output=True, text=True, timeout=60, check=False)
    assert result.returncode == 2
    assert result.stderr.strip().endswith(reason)
    assert (tmp_path / "there.script").read_text() == "key ok\n"


def test_full_disk_is_told_and_the_phone_goes_on(programs: Path) -> None:
    command = [str(programs / "phone"), "--port", "0", "--rpc", "--record", "/dev/full", str(programs / "deskphone")]
    process = PhoneProcess(command, None, 60)
    try:
        with Phone.connect(process.url, process.token, wait_timeout=60) as phone:
            phone.press("ok")
            phone.wait_for("Call log", selected=True)
    finally:
        process.end()
    assert process.output.count("No space left on device. The telephone goes on without it.") == 1
