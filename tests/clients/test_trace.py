"""A trace as records, for people and for the viewer."""

from __future__ import annotations

from itertools import groupby
from pathlib import Path
from typing import Any, Dict, Iterator, List

from displayapi import Phone, Trace

POSTED = {"facade": "List", "code": "APPEND", "number": 3, "thread": 17, "threadName": "worker", "queued": 1_000_000,
          "run": 1_500_000, "done": 1_700_000, "waits": False}
WAITS = {"facade": "Form", "code": "GET_VALUE", "number": 9, "thread": 18, "threadName": "asker", "queued": 1_200_000,
         "run": 1_700_000, "done": 1_800_000, "waits": True}
PURGED = {"facade": "List", "code": "SET_TITLE", "number": 4, "thread": 17, "threadName": "worker", "queued": 1_300_000,
          "run": None, "done": None, "waits": False, "purgedBy": "worker-2 (19)"}


def trace(*records: Dict[str, Any]) -> Trace:
    return Trace.of({"enabled": True, "records": list(records), "lost": 2})


def events(kind: str, *records: Dict[str, Any]) -> List[Dict[str, Any]]:
    return [event for event in trace(*records).to_perfetto()["traceEvents"] if event["ph"] == kind]


def complaints(written: Dict[str, Any]) -> Iterator[str]:
    """What the viewer would drop, or show elsewhere."""
    all_events = written["traceEvents"]
    named = {(each["pid"], each["tid"]) for each in all_events if (each["ph"], each["name"]) == ("M", "thread_name")}
    slices = sorted((each for each in all_events if each["ph"] == "X"),
                    key=lambda each: (each["tid"], each["ts"], -each["dur"]))

    def end_of(each: Dict[str, Any]) -> int:
        return round(each["ts"] * 1000) + round(each["dur"] * 1000)

    starts = {(each["tid"], each["ts"]) for each in slices}
    begun = {each["id"]: each["ts"] for each in all_events if each["ph"] == "s"}
    ended = {each["id"]: each["ts"] for each in all_events if each["ph"] == "f" and each["bp"] == "e"}
    for each in all_events:
        if each["ph"] not in "MXsf" or (each["pid"], each["tid"]) not in named:
            yield f"of no kind or track: {each}"
        if each["ph"] != "M" and not each["ts"] >= 0:
            yield f"at no time: {each}"
        if each["ph"] in "sf" and (each["tid"], each["ts"]) not in starts:
            yield f"an arrow at no slice: {each}"
    if begun.keys() != ended.keys() or any(ended[arrow] < begun[arrow] for arrow in begun):
        yield "an arrow without an end, or back in time"
    for _, track in groupby(slices, key=lambda each: each["tid"]):
        ends: List[int] = []
        for each in track:
            while ends and ends[-1] <= round(each["ts"] * 1000):
                ends.pop()
            if each["dur"] < 0 or (ends and end_of(each) > ends[-1]):
                yield f"reaches out of another one: {each}"
            ends.append(end_of(each))


def test_records_read_as_they_are_said() -> None:
    posted, purged = trace(POSTED, PURGED).records
    assert (posted.name, posted.thread_name, posted.done) == ("List.APPEND", "worker", 1_700_000)
    assert (purged.run, purged.purged_by) == (None, "worker-2 (19)")


def test_people_read_how_long_it_took() -> None:
    posted, waits, purged = map(str, trace(POSTED, WAITS, PURGED).records)
    assert posted == "0.001000  worker (17)  List.APPEND: waited 500.0 us, ran 200.0 us"
    assert waits.endswith("Form.GET_VALUE: waited 500.0 us, ran 100.0 us, its caller waits")
    assert purged.endswith("List.SET_TITLE: purged by worker-2 (19)")


def test_each_thread_has_a_track_and_the_gui_thread_another() -> None:
    names = {event["tid"]: event["args"]["name"] for event in events("M", POSTED, WAITS, PURGED)}
    assert names == {0: "GUI thread", 17: "worker", 18: "asker"}


def test_a_request_is_queued_on_its_thread_and_runs_on_the_gui_thread() -> None:
    queued, ran = events("X", POSTED)
    assert (queued["tid"], queued["ts"], queued["dur"]) == (17, 1000, 0)
    assert (ran["tid"], ran["ts"], ran["dur"]) == (0, 1500, 200)


def test_who_waits_is_busy_until_it_is_done() -> None:
    queued, _ = events("X", WAITS)
    assert (queued["ts"], queued["dur"]) == (1200, 600)


def test_an_arrow_leads_from_queueing_to_running() -> None:
    (begin, other), (end, another) = events("s", POSTED, WAITS), events("f", POSTED, WAITS)
    assert begin["id"] == end["id"] != other["id"] == another["id"]
    assert (begin["tid"], begin["ts"], end["tid"], end["ts"]) == (17, 1000, 0, 1500)


def test_what_was_purged_never_runs() -> None:
    (queued,) = events("X", PURGED)
    assert queued["args"]["purgedBy"] == "worker-2 (19)"
    assert not events("s", PURGED)


def test_who_goes_on_before_it_is_done_is_busy_until_then() -> None:
    next_one = {**WAITS, "queued": 1_799_000, "run": 1_900_000, "done": 1_950_000}
    assert not list(complaints(trace(next_one, WAITS).to_perfetto()))
    assert [event["dur"] for event in events("X", next_one, WAITS) if event["ts"] == 1200] == [599]


def test_what_a_telephone_has_traced_is_shown_whole(programs: Path) -> None:
    names = ["Ada", "Αλέξανδρος", "Zoë", "Мария", "日本"]
    with Phone(programs / "hello", wait_timeout=60) as phone:
        phone.wait_for(names[-1])
        phone.trace(enable=True)
        for name in names:
            phone.press("ok")
            phone.wait_for(f"Hello, {name}!")
            phone.press("down")
        written = phone.trace(enable=False).to_perfetto()
    asked_and_told = 2
    assert sum(event["ph"] == "s" for event in written["traceEvents"]) >= asked_and_told * len(names)
    assert not list(complaints(written))
