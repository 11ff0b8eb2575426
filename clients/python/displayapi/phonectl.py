"""The command ``phonectl``: looks at a telephone that runs, and presses its keys."""

from __future__ import annotations

import argparse
import json
import os
import sys
from pathlib import Path
from typing import Any, Callable, Mapping, NoReturn, Optional, Sequence

from displayapi.errors import PhoneError, RequestError, WaitFailed
from displayapi.phone import Phone

DONE = 0
IN_VAIN = 1
WRONG_USAGE = 2
REFUSED = 3
NO_PHONE = 4
INTERRUPTED = 130

URL_VARIABLE = "DISPLAYAPI_PHONE_URL"
TOKEN_VARIABLE = "DISPLAYAPI_PHONE_TOKEN_FILE"

EPILOG = f"""The address and the file with the token are what 'phone --rpc' prints; the environment may name them as
{URL_VARIABLE} and {TOKEN_VARIABLE}. Ends with 0 when all is done, 1 when it has waited in vain, 2 when it is called
wrongly, 3 when the phone refuses, and 4 when there is no phone or it has ended."""

Command = Callable[[Phone, argparse.Namespace], None]


def say(arguments: argparse.Namespace, for_programs: Any, for_people: str) -> None:
    """One answer: a line of JSON, or plain text."""
    text = json.dumps(for_programs, ensure_ascii=False) if arguments.json else for_people
    if text:
        print(text, flush=True)


def show_screen(phone: Phone, arguments: argparse.Namespace) -> None:
    screen = phone.screen()
    say(arguments, screen.json, screen.text.rstrip("\n") if arguments.text else str(screen))


def watch(phone: Phone, arguments: argparse.Namespace) -> None:
    with phone.subscribe() as changes:
        for count, change in enumerate(changes, 1):
            missed = f"({change.missed} missed)\n" if change.missed else ""
            say(arguments, {"missed": change.missed, "screen": change.screen.json}, f"{missed}{change.screen}\n")
            if count == arguments.count:
                return


def press(phone: Phone, arguments: argparse.Namespace) -> None:
    if arguments.hold is not None:
        number = phone.hold(arguments.key, arguments.hold)
    else:
        number = phone.press(arguments.key, arguments.times, arguments.interval)
    say(arguments, {"number": number}, "")


def type_keys(phone: Phone, arguments: argparse.Namespace) -> None:
    say(arguments, {"number": phone.type(arguments.keys, arguments.interval)}, "")


def wait(phone: Phone, arguments: argparse.Namespace) -> None:
    match = "regex" if arguments.regex else "contains" if arguments.contains else "equal"
    wanted = Path(arguments.screen).read_text("ascii") if arguments.screen is not None else None
    screen = phone.wait_for(arguments.text, absent=arguments.absent, screen=wanted, selected=arguments.selected,
                            match=match, volatile=arguments.volatile, since=arguments.since, timeout=arguments.timeout)
    say(arguments, {"held": True, "screen": screen.json}, str(screen))


def shoot(phone: Phone, arguments: argparse.Namespace) -> None:
    png = phone.screenshot(scale=arguments.scale)
    if arguments.file == "-":
        sys.stdout.buffer.write(png)
        return
    Path(arguments.file).write_bytes(png)
    say(arguments, {"file": arguments.file}, "")


def trace(phone: Phone, arguments: argparse.Namespace) -> None:
    found = phone.trace(arguments.enable)
    if arguments.perfetto is not None:
        Path(arguments.perfetto).write_text(json.dumps(found.to_perfetto()), "utf-8")
    lines = [] if arguments.perfetto is not None else [str(record) for record in found.records]
    state = f"the trace is {'on' if found.enabled else 'off'}, {len(found.records)} requests, {found.lost} lost"
    say(arguments, {"enabled": found.enabled, "records": len(found.records), "lost": found.lost},
        "\n".join([*lines, state]))


def parser() -> argparse.ArgumentParser:
    top = argparse.ArgumentParser(prog="phonectl", epilog=EPILOG,
                                  description="Looks at a telephone that runs as 'phone --rpc', and presses its keys.")
    top.add_argument("--url", default=os.environ.get(URL_VARIABLE), help="the test interface: ws://127.0.0.1:PORT/rpc")
    top.add_argument("--token-file", default=os.environ.get(TOKEN_VARIABLE), help="the file that has its token")
    top.add_argument("--json", action="store_true", help="say it in JSON, one line for each answer")
    commands = top.add_subparsers(dest="command", required=True, metavar="COMMAND")

    def command(name: str, run: Command, what: str) -> argparse.ArgumentParser:
        made = commands.add_parser(name, help=what, description=what)
        made.set_defaults(run=run)
        return made

    each = command("screen", show_screen, "print the screen, the selected row with a >")
    each.add_argument("--text", action="store_true", help="in the library's own form, for 'wait --screen'")

    each = command("watch", watch, "print the screen, and then every change of it")
    each.add_argument("--count", type=_count, help="end after so many screens")

    each = command("press", press, "press a key, such as ok, left or 5, and let it go")
    each.add_argument("key")
    each.add_argument("--times", type=_count, default=1, help="so often")
    each.add_argument("--interval", type=_seconds, default=0.0, metavar="SECONDS", help="pass in between")
    each.add_argument("--hold", type=_seconds, metavar="SECONDS", help="let it go after so long")

    each = command("type", type_keys, "press keys of the keypad one after the other")
    each.add_argument("keys", help="0 to 9, * and #")
    each.add_argument("--interval", type=_seconds, default=0.0, metavar="SECONDS", help="pass in between")

    each = command("wait", wait, "wait until a text is on the screen, and print the screen")
    what = each.add_mutually_exclusive_group(required=True)
    what.add_argument("text", nargs="?", help="a row, or a text on the panel, is it")
    what.add_argument("--absent", metavar="TEXT", help="none is it")
    what.add_argument("--screen", metavar="FILE", help="the whole screen is that of a file, as 'screen --text' prints it")
    how = each.add_mutually_exclusive_group()
    how.add_argument("--contains", action="store_true", help="the text is a part")
    how.add_argument("--regex", action="store_true", help="the text is a regular expression")
    each.add_argument("--selected", action="store_true", help="a selected row is it")
    each.add_argument("--volatile", action="store_true", help="clocks, timers and counters count too")
    each.add_argument("--since", type=_number, default=0, metavar="NUMBER",
                      help="screens from this number on count, as 'press' says it with --json")
    each.add_argument("--timeout", type=_seconds, default=5.0, metavar="SECONDS", help="give up then (%(default)s)")

    each = command("shot", shoot, "write the panel as a PNG")
    each.add_argument("file", help="- is standard output")
    each.add_argument("--scale", type=_count, default=1, help="width and height of a pixel")

    each = command("trace", trace, "print the requests of the application since the last trace")
    switch = each.add_mutually_exclusive_group()
    switch.add_argument("--enable", action="store_true", default=None, help="keep them from now on")
    switch.add_argument("--disable", dest="enable", action="store_false", help="keep no more")
    each.add_argument("--perfetto", metavar="FILE", help="write them for the Perfetto viewer")
    return top


def _seconds(text: str) -> float:
    return _at_least(0.0, float(text))


def _count(text: str) -> int:
    return int(_at_least(1, int(text)))


def _number(text: str) -> int:
    return int(_at_least(0, int(text)))


def _at_least(least: float, value: float) -> float:
    if not least <= value < float("inf"):
        raise ValueError
    return value


def connect(arguments: argparse.Namespace) -> Phone:
    for value, option, variable in ((arguments.url, "--url", URL_VARIABLE),
                                    (arguments.token_file, "--token-file", TOKEN_VARIABLE)):
        if not value:
            _end(WRONG_USAGE, f"where is the phone? {option} is missing, and {variable} is not set")
    return Phone.connect(arguments.url, Path(arguments.token_file))


def _end(status: int, sentence: str) -> NoReturn:
    print(f"phonectl: {sentence}", file=sys.stderr)
    sys.exit(status)


def _failure(error: WaitFailed) -> Mapping[str, Any]:
    return {"held": False, "screen": error.screen.json, "difference": error.difference}


def main(words: Optional[Sequence[str]] = None) -> int:
    """Runs the command and returns its exit code."""
    arguments = parser().parse_args(words)
    try:
        with connect(arguments) as phone:
            arguments.run(phone, arguments)
        return DONE
    except WaitFailed as error:
        if arguments.json:
            say(arguments, _failure(error), "")
        _end(IN_VAIN, str(error))
    except RequestError as error:
        _end(REFUSED, str(error))
    except PhoneError as error:
        _end(NO_PHONE, str(error))
    except BrokenPipeError:  # as with head: nobody reads any more
        os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())
        return DONE
    except OSError as error:
        _end(WRONG_USAGE, f"{error.filename}: {error.strerror}")
    except UnicodeDecodeError:
        _end(WRONG_USAGE, "a screen as text is ASCII")
    except KeyboardInterrupt:
        return INTERRUPTED


if __name__ == "__main__":
    sys.exit(main())
