"""A phone that is started, driven and ended."""

from __future__ import annotations

import os
import shutil
import subprocess
import sys
from pathlib import Path

import pytest

from displayapi import ErrorCode, Phone, PhoneEnded, PhoneTimeout, RequestError, StartFailed, WaitFailed


def test_keys_and_waiting_read_the_screen(deskphone: Phone) -> None:
    deskphone.press("ok")
    screen = deskphone.wait_for("Call log", selected=True)
    assert screen.selected is not None and screen.selected.text == "Call log"
    assert deskphone.wait_for(rows=[row.lasting for row in screen.rows]) == screen
    assert deskphone.wait_for(screen=screen.text).number == screen.number
    deskphone.press("down")
    deskphone.wait_for("^Con.*s$", match="regex", selected=True)
    deskphone.press("left")
    deskphone.wait_for(absent="Contacts")
    deskphone.type("4711")
    deskphone.wait_for("4711")


def test_a_screen_that_has_passed_since_the_key_counts_and_none_before(deskphone: Phone) -> None:
    deskphone.press("ok")
    number = deskphone.wait_for("Call log").number
    deskphone.press("left", times=2)
    assert deskphone.since > number
    deskphone.wait_for("Call log", since=number)
    with pytest.raises(WaitFailed):
        deskphone.wait_for("Call log", timeout=0)


def test_a_screen_that_came_before_the_one_waited_for_is_past(deskphone: Phone) -> None:
    before = deskphone.press("ok")
    deskphone.wait_for("Call log", selected=True)
    other = Phone.connect(deskphone.url, deskphone.token)
    other.press("down")
    deskphone.wait_for("Contacts", selected=True)
    with pytest.raises(WaitFailed):
        deskphone.wait_for("Call log", selected=True, timeout=0)
    deskphone.wait_for("Call log", selected=True, since=before)
    other.close()


def test_a_wait_in_vain_shows_the_screen_and_what_differs(deskphone: Phone) -> None:
    with pytest.raises(WaitFailed, match="there is no 'Nobody'") as failure:
        deskphone.wait_for("Nobody", timeout=0)
    assert isinstance(failure.value, AssertionError)
    assert "Desk phone" in str(failure.value) and "wait_for(text='Nobody')" in str(failure.value)
    with pytest.raises(WaitFailed, match=r"(?m)^- nothing$") as failure:
        deskphone.wait_for(screen="nothing\n", timeout=0)
    assert "string0:Desk phone" in failure.value.difference


def test_the_clock_is_virtual_and_moves_by_what_is_passed(deskphone: Phone) -> None:
    assert deskphone.now() == 0
    deskphone.advance(3600)
    assert deskphone.now() == 3600
    deskphone.wait_for("10:41", match="contains", volatile=True)
    deskphone.press("volume-up", times=2, interval=1.5)
    deskphone.type("4711", interval=0.1)
    deskphone.hold("down", 2)
    assert round(deskphone.now(), 3) == 3603.8


def test_a_key_stays_down_until_it_is_released(deskphone: Phone) -> None:
    deskphone.press("ok")
    deskphone.wait_for("Call log", selected=True)
    deskphone.hold("down")
    deskphone.wait_for("Contacts", selected=True)
    deskphone.release("down")
    deskphone.press("up")
    deskphone.wait_for("Call log", selected=True)


def test_the_program_hears_languages_and_its_exchange(deskphone: Phone) -> None:
    hello = deskphone.hello()
    assert hello.program == "deskphone" and hello.panel.variant == "plain" and hello.virtual_clock
    assert "de" in [each.language for each in hello.languages]
    deskphone.set_language("de")
    deskphone.wait_for("Leitung 1", match="contains")
    deskphone.act("language", "en")
    deskphone.wait_for("Line 1", match="contains")
    deskphone.exchange("4711 calls")
    deskphone.wait_for("Ada Byron")
    with pytest.raises(RequestError) as refusal:
        deskphone.act("nothing")
    assert refusal.value.code == ErrorCode.REFUSED


def test_every_change_is_told_in_order(deskphone: Phone) -> None:
    with deskphone.subscribe(timeout=20) as changes:
        first = next(changes)
        last = deskphone.press("ok")
        last = deskphone.press("down", times=300)
        seen = [(first.number, 0)]
        while seen[-1][0] < last:
            change = next(changes)
            assert change.number == seen[-1][0] + change.missed + 1
            seen.append((change.number, change.missed))
        with pytest.raises(PhoneTimeout):
            changes.next(0.01)
    assert list(changes) == []
    assert deskphone.screen().number == last


def test_a_second_subscription_ends_the_first(deskphone: Phone) -> None:
    first = deskphone.subscribe()
    second = deskphone.subscribe()
    assert list(first) == []
    assert next(second).screen == deskphone.screen()
    second.close()


def test_two_clients_drive_one_phone(deskphone: Phone) -> None:
    with Phone.connect(deskphone.url, deskphone.token) as other:
        other.press("ok")
        deskphone.wait_for("Call log")
    deskphone.press("left")
    deskphone.wait_for(absent="Call log")


def test_a_picture_is_a_png_of_the_panel(deskphone: Phone, tmp_path: Path) -> None:
    png = deskphone.screenshot(tmp_path / "it.png", scale=2)
    assert (tmp_path / "it.png").read_bytes() == png
    assert png.startswith(b"\x89PNG") and int.from_bytes(png[16:20], "big") == 480


def test_a_refusal_has_the_phones_sentence(deskphone: Phone) -> None:
    with pytest.raises(RequestError, match="there is no key 'middle'") as refusal:
        deskphone.press("middle")
    assert refusal.value.code == ErrorCode.BAD_PARAMETERS and refusal.value.method == "press"
    with pytest.raises(RequestError) as refusal:
        deskphone.request("nothing")
    assert refusal.value.code == ErrorCode.NO_METHOD


def test_a_trace_tells_what_a_key_has_led_to(programs: Path) -> None:
    with Phone(programs / "hello", wait_timeout=60) as phone:
        phone.wait_for("Ada")
        assert phone.trace(enable=True).enabled
        phone.press("ok")
        phone.wait_for("Hello, Ada!")
        trace = phone.trace(enable=False)
        title = next(record for record in trace.records if record.name == "List.SET_TITLE")
        assert not trace.enabled and title.done is not None and title.run is not None
        assert title.queued <= title.run <= title.done
        assert [each.name for each in trace.records if each.waits][0] == "List.GET_SELECTED"


def test_the_inside_tells_what_has_been_done(programs: Path) -> None:
    with Phone(programs / "hello", wait_timeout=60) as phone:
        phone.wait_for("Ada")
        assert phone.inspect()["counters"]["carriedOut"] > 0


def test_the_last_fifty_requests_are_kept(deskphone: Phone) -> None:
    for _ in range(60):
        deskphone.press("volume-up")
    with pytest.raises(RequestError):
        deskphone.press("middle")
    lines = str(deskphone.history).splitlines()
    assert len(lines) == 50
    assert lines[-1].endswith("press key='middle'  ->  there is no key 'middle'")


def test_what_changes_something_is_refused_where_one_only_looks(programs: Path) -> None:
    with Phone(programs / "deskphone", read_only=True) as phone:
        assert phone.hello().read_only
        with pytest.raises(RequestError) as refusal:
            phone.press("ok")
        assert refusal.value.code == ErrorCode.READ_ONLY


@pytest.mark.parametrize("way, sentence", [("crash", "SIGABRT"), ("exit", "exit code 3")])
def test_a_phone_that_dies_says_so_with_its_output(programs: Path, way: str, sentence: str) -> None:
    with Phone(programs / "misbehaving", way) as phone:
        phone.wait_for("Do it")
        with pytest.raises(PhoneEnded, match=sentence):
            phone.press("ok")
            phone.wait_for("Nobody")
        with pytest.raises(PhoneEnded):
            phone.screen()


def test_a_phone_that_ends_badly_is_told_at_the_end(programs: Path) -> None:
    phone = Phone(programs / "misbehaving", "exit")
    phone.wait_for("Do it")
    with pytest.raises(PhoneEnded):
        with Phone.connect(phone.url, phone.token) as other:
            other.press("ok")
            other.wait_for("Nobody")
    with pytest.raises(PhoneEnded, match="exit code 3"):
        phone.close()
    phone.close()


def test_the_failure_of_a_test_is_not_hidden_by_the_phones_end(programs: Path) -> None:
    with pytest.raises(ZeroDivisionError):
        with Phone(programs / "misbehaving", "never") as phone:
            os.kill(phone.pid, 9)
            raise ZeroDivisionError


def test_a_phone_that_is_forgotten_ends_with_its_user(programs: Path) -> None:
    script = f"import displayapi; phone = displayapi.Phone({str(programs / 'hello')!r}); print(phone.pid)"
    user = subprocess.run([sys.executable, "-c", script], capture_output=True, text=True, timeout=120)
    with pytest.raises(ProcessLookupError):
        os.kill(int(user.stdout), 0)


def test_nothing_starts_without_a_program_or_a_launcher(programs: Path, tmp_path: Path,
                                                        monkeypatch: pytest.MonkeyPatch) -> None:
    with pytest.raises(StartFailed, match="There is no application"):
        Phone(programs / "no-such-program")
    with pytest.raises(StartFailed, match="There is no variant 'wide'"):
        Phone(programs / "deskphone", variant="wide")
    monkeypatch.setenv("PATH", str(tmp_path))
    with pytest.raises(StartFailed, match="there is no launcher"):
        Phone(tmp_path / "deskphone")
    with pytest.raises(StartFailed, match="cannot be started"):
        Phone(tmp_path / "deskphone", launcher=tmp_path / "phone")


def test_the_launcher_is_beside_the_program_or_on_the_path(programs: Path, tmp_path: Path,
                                                           monkeypatch: pytest.MonkeyPatch) -> None:
    alone = tmp_path / "hello"
    alone.symlink_to(programs / "hello")
    monkeypatch.setenv("PATH", str(programs), prepend=os.pathsep)
    for program in ("hello", str(alone)):
        with Phone(program) as phone:
            assert phone.hello().program == "hello"
    assert shutil.which("phone") == str(programs / "phone")


def test_strangers_are_told_why_they_do_not_come_in(deskphone: Phone, tmp_path: Path) -> None:
    with pytest.raises(PhoneEnded, match="refuses the connection"):
        Phone.connect(deskphone.url, "wrong")
    with pytest.raises(PhoneEnded, match="no test interface"):
        Phone.connect(deskphone.url.removesuffix("rpc"), deskphone.token)
    with pytest.raises(PhoneEnded, match="no address"):
        Phone.connect("http://127.0.0.1/", deskphone.token)
    with pytest.raises(StartFailed, match="token cannot be read"):
        Phone.connect(deskphone.url, tmp_path / "token")
    (tmp_path / "token").write_text(deskphone.token + "\n")
    Phone.connect(deskphone.url, tmp_path / "token").close()
    deskphone.close()
    with pytest.raises(PhoneEnded, match="there is no phone at"):
        Phone.connect(deskphone.url, deskphone.token)
