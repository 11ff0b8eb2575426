"""The command line."""

from __future__ import annotations

import json
import re
import subprocess
from pathlib import Path
from typing import Any, Callable, Iterator, List, Tuple

import pytest

from displayapi import Phone, Trace, phonectl

HERE = Path(phonectl.__file__).resolve().parents[1]
COMMANDS = ("screen", "watch", "press", "type", "wait", "shot", "trace")

Ctl = Callable[..., Tuple[int, str, str]]


@pytest.fixture
def ctl(deskphone: Phone, tmp_path: Path, monkeypatch: pytest.MonkeyPatch, capsys: pytest.CaptureFixture[str]) -> Ctl:
    (tmp_path / "token").write_text(deskphone.token)
    monkeypatch.setenv("DISPLAYAPI_PHONE_URL", deskphone.url)
    monkeypatch.setenv("DISPLAYAPI_PHONE_TOKEN_FILE", str(tmp_path / "token"))
    monkeypatch.chdir(tmp_path)

    def run(*words: str) -> Tuple[int, str, str]:
        try:
            status = phonectl.main(words)
        except SystemExit as end:
            status = int(str(end.code))
        shown = capsys.readouterr()
        return status, shown.out, shown.err

    return run


def test_it_presses_waits_and_shows(ctl: Ctl, tmp_path: Path) -> None:
    assert ctl("press", "ok") == (0, "", "")
    status, out, _ = ctl("wait", "Call log", "--selected")
    assert (status, out.splitlines()[0].split(" ", 2)[2]) == (0, "(plain, 240 x 128, en-GB):")
    assert "> Call log" in out.splitlines()
    (tmp_path / "menu.txt").write_text(ctl("screen", "--text")[1])
    assert ctl("wait", "--screen", "menu.txt")[0] == 0
    assert ctl("wait", "^Call", "--regex", "--timeout", "0")[0] == 0
    assert ctl("type", "47")[0] == ctl("wait", "47")[0] == 0
    assert ctl("press", "left", "--times", "2")[0] == ctl("press", "left", "--hold", "2")[0] == 0
    assert ctl("wait", "--absent", "Call log")[0] == 0


def test_programs_read_json(ctl: Ctl) -> None:
    number = json.loads(ctl("--json", "press", "ok")[1])["number"]
    held = json.loads(ctl("--json", "wait", "Call log", "--since", str(number))[1])
    assert held["held"] and held["screen"]["rows"][0]["text"]
    assert json.loads(ctl("--json", "screen")[1]) == held["screen"]
    status, out, _ = ctl("--json", "wait", "Nobody", "--timeout", "0")
    assert (status, json.loads(out)["held"]) == (1, False)


def test_it_watches(ctl: Ctl, deskphone: Phone) -> None:
    status, out, _ = ctl("--json", "watch", "--count", "1")
    assert (status, json.loads(out)["screen"]) == (0, deskphone.screen().json)
    watching = subprocess.Popen([str(HERE / "bin/phonectl"), "watch", "--count", "2"], stdout=subprocess.PIPE, text=True)
    assert watching.stdout is not None
    assert watching.stdout.readline().startswith("screen 1 ")
    deskphone.press("ok")
    assert "> Call log\n" in watching.communicate(timeout=60)[0]
    assert watching.returncode == 0


def test_it_writes_pictures(ctl: Ctl, tmp_path: Path) -> None:
    assert ctl("shot", "it.png", "--scale", "2") == (0, "", "")
    assert (tmp_path / "it.png").read_bytes().startswith(b"\x89PNG")


def test_its_exit_code_says_what_went_wrong(ctl: Ctl, deskphone: Phone, monkeypatch: pytest.MonkeyPatch) -> None:
    status, _, error = ctl("wait", "Nobody", "--timeout", "0")
    assert status == 1 and "there is no 'Nobody'" in error and "Desk phone" in error
    assert ctl("wait", "--timeout", "-1", "x")[0] == ctl("jump")[0] == ctl("wait")[0] == 2
    assert ctl("wait", "--screen", "no-such-file")[::2] == (2, "phonectl: no-such-file: No such file or directory\n")
    assert ctl("press", "middle")[::2] == (3, "phonectl: press: there is no key 'middle'\n")
    assert ctl("--token-file", "no-such-file", "screen")[0] == 4
    deskphone.close()
    assert ctl("screen")[0] == 4
    monkeypatch.delenv("DISPLAYAPI_PHONE_URL")
    status, _, error = ctl("screen")
    assert status == 2 and "--url is missing, and DISPLAYAPI_PHONE_URL is not set" in error


def test_a_trace_is_shown_or_written_for_the_viewer(ctl: Ctl, tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    asked: List[Any] = []
    record = {"facade": "List", "code": "APPEND", "number": 3, "thread": 17, "threadName": "worker", "queued": 1000,
              "run": 2000, "done": 3000, "waits": False}

    def trace(self: Phone, enable: Any = None) -> Trace:
        asked.append(enable)
        return Trace.of({"enabled": True, "records": [record], "lost": 4})

    monkeypatch.setattr(Phone, "trace", trace)
    assert ctl("trace", "--enable")[1].splitlines()[-1] == "the trace is on, 1 requests, 4 lost"
    assert "List.APPEND" in ctl("trace")[1]
    assert ctl("trace", "--disable", "--perfetto", "it.json")[0] == 0
    assert asked == [True, None, False]
    assert json.loads((tmp_path / "it.json").read_text())["traceEvents"]


def test_it_runs_from_the_tree(deskphone: Phone, tmp_path: Path) -> None:
    (tmp_path / "token").write_text(deskphone.token)
    command = [str(HERE / "bin/phonectl"), "--url", deskphone.url, "--token-file", str(tmp_path / "token"), "screen"]
    shown = subprocess.run(command, capture_output=True, text=True, timeout=60)
    assert (shown.returncode, "Desk phone" in shown.stdout) == (0, True), shown.stderr


def options_of(text: str) -> set[str]:
    return set(re.findall(r"--[a-z][a-z-]+", text.replace("\\-", "-")))


def all_options() -> Iterator[str]:
    top = phonectl.parser()
    yield top.format_help()
    for action in top._actions:
        if isinstance(action.choices, dict):
            yield from (each.format_help() for each in action.choices.values())


def test_man_page_and_completion_name_all_that_there_is() -> None:
    known = options_of("\n".join(all_options()))
    page, completion = (HERE / "man/phonectl.1").read_text(), (HERE / "completion/phonectl").read_text()
    assert options_of(page) - {"--rpc", "--rpc-token"} == known - {"--rpc"}
    assert options_of(completion) == known - {"--rpc"}
    for command in COMMANDS:
        assert re.search(rf"^\.B {command}$", page, re.M) and command in completion
    shown = subprocess.run(["man", "--warnings", "-l", str(HERE / "man/phonectl.1")], capture_output=True, text=True,
                           env={"MANPAGER": "cat", "PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8"})
    assert (shown.returncode, shown.stderr) == (0, "")


@pytest.mark.parametrize("words, offered", [
    (["phonectl", "s"], "screen shot"),
    (["phonectl", "--json", "wait", "--s"], "--screen --selected --since"),
    (["phonectl", "press", "vol"], "volume-up volume-down"),
])
def test_bash_completes(words: List[str], offered: str) -> None:
    script = f"""source {HERE / 'completion/phonectl'}
        COMP_WORDS=({' '.join(words)}) COMP_CWORD={len(words) - 1}
        _phonectl phonectl {words[-1]} {words[-2]}
        echo "${{COMPREPLY[*]}}" """
    shown = subprocess.run(["bash", "-c", script], capture_output=True, text=True)
    assert shown.stdout.strip() == offered
