"""The plug-in in a test run of its own."""

from __future__ import annotations

import re
from pathlib import Path
from typing import Callable

import pytest

Run = Callable[..., pytest.RunResult]


@pytest.fixture
def run(pytester: pytest.Pytester, programs: Path) -> Run:
    def with_options(source: str, *options: str, program: str = "deskphone") -> pytest.RunResult:
        pytester.makepyfile(source)
        return pytester.runpytest_inprocess("-p", "displayapi.pytest_plugin",
                                            f"--phone-program={programs / program}", *options)

    return with_options


def names(result: pytest.RunResult) -> list[str]:
    return re.findall(r"::(\S+) PASSED", result.stdout.str())


def test_a_test_runs_on_every_panel_on_a_new_phone(run: Run) -> None:
    result = run("""
        def test_menu(phone):
            assert phone.now() == 0
            phone.advance(1)
            phone.press("ok")
            phone.wait_for("Call log", selected=True)
    """, "-v")
    assert names(result) == ["test_menu[plain]", "test_menu[narrow]", "test_menu[wp1]"]


def test_options_name_panels_and_languages_and_marks_narrow_them(run: Run) -> None:
    result = run("""
        import pytest

        def test_all(phone):
            pass

        @pytest.mark.phone_panels("wp1", "plain")
        @pytest.mark.phone_languages("de", "fr")
        def test_some(phone):
            phone.wait_for("^(Leitung|Ligne) 1", match="regex", since=0)

        @pytest.mark.phone_panels("plain")
        def test_none(phone):
            assert False
    """, "-v", "--phone-reuse", "--phone-panels", "wp1", "--phone-languages", "de,en")
    assert names(result) == ["test_all[wp1-de]", "test_all[wp1-en]", "test_some[wp1-de]"]
    result.assert_outcomes(passed=3, skipped=1)


def test_all_languages_are_those_that_the_program_offers(run: Run) -> None:
    result = run("""
        def test_it(phone):
            assert phone.hello().language
    """, "-v", "--phone-reuse", "--phone-panels=wp1", "--phone-languages=all")
    assert names(result) == [f"test_it[wp1-{language}]" for language in ("ar", "de", "en", "fr", "ja")]


def test_a_phone_is_kept_until_a_test_fails(run: Run) -> None:
    result = run("""
        import pytest

        @pytest.mark.parametrize("round", range(4))
        def test_clock(phone, round):
            assert phone.now() == 10 * (round if round < 3 else 0)
            phone.advance(10)
            assert round != 2
    """, "--phone-reuse", "--phone-panels=wp1")
    result.assert_outcomes(passed=3, failed=1)


def test_settings_may_stand_in_pytest_ini(run: Run, pytester: pytest.Pytester, programs: Path) -> None:
    pytester.makeini(f"""
        [pytest]
        phone_program = {programs / 'deskphone'}
        phone_launcher = {programs / 'phone'}
        phone_panels = narrow wp1
    """)
    pytester.makepyfile("def test_it(phone): pass")
    result = pytester.runpytest_inprocess("-p", "displayapi.pytest_plugin", "-v")
    assert names(result) == ["test_it[narrow]", "test_it[wp1]"]


def test_a_failure_shows_screen_picture_keys_and_output(run: Run, pytester: pytest.Pytester) -> None:
    result = run("""
        def test_menu(phone):
            phone.press("ok")
            phone.wait_for("Nobody", timeout=0)
    """, "--phone-panels=wp1")
    result.stdout.no_fnmatch_line("*_connection.call*")
    result.stdout.fnmatch_lines(["*there is no 'Nobody'", "* phone: screen *", "screen * (wp1, 208 x 42, en-GB):",
                                 "> Call log", "object:", "string0:Call log", "* phone: picture *",
                                 "*test_menu-wp1.png", "* phone: last keys and requests *", "*press key='ok'  ->*",
                                 "*waitFor text='Nobody'*in vain*", "* phone: output *", "The telephone is at *"])
    (picture,) = (pytester.path / "phone-failures").iterdir()
    assert picture.read_bytes().startswith(b"\x89PNG")


def test_a_phone_that_dies_fails_its_test_and_no_other(run: Run, pytester: pytest.Pytester, programs: Path) -> None:
    result = run("""
        import pytest

        def test_death(phone):
            phone.wait_for("Do it")
            phone.press("ok")
            phone.wait_for("Nobody")

        def test_life(phone):
            phone.wait_for("Do it")
    """, "--phone-panels=wp1", "--phone-reuse", f"--phone-program={programs / 'misbehaving'} exit")
    result.assert_outcomes(passed=1, failed=1)
    result.stdout.fnmatch_lines(["*PhoneEnded: *the phone has ended with status 3*", "*exit code 3."])


def test_a_phone_that_ends_badly_fails_its_test(run: Run) -> None:
    result = run("""
        import os

        def test_it(phone):
            os.kill(phone.pid, 9)
    """, "--phone-panels=wp1")
    result.assert_outcomes(passed=1, errors=1)
    result.stdout.fnmatch_lines(["*was ended by signal 9*"])


@pytest.mark.parametrize("options, sentence", [
    (["--phone-panels=wide"], "*there is no panel 'wide'; there are plain, narrow, wp1*"),
    (["--phone-program="], "*which program is the phone?*"),
    (["--phone-program=/no-such-program", "--phone-launcher=/no-such-launcher"], "*cannot be started*"),
])
def test_wrong_options_are_told(run: Run, options: list[str], sentence: str) -> None:
    result = run("def test_it(phone): pass", *options)
    result.stdout.fnmatch_lines([sentence])
    assert result.ret != 0
