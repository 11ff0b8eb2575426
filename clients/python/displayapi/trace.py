"""The requests that applications have made, and what has become of them."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Dict, List, Mapping, Optional, Tuple

PROCESS = 1
GUI_THREAD = 0
"""The track of the GUI thread: no thread has that number."""


@dataclass(frozen=True)
class TraceRecord:
    """One request. Times are nanoseconds of the monotonic clock."""

    facade: str
    code: str
    """The name of the operation's code, such as "APPEND"."""
    number: int
    """The code itself."""
    thread: int
    thread_name: str
    queued: int
    run: Optional[int]
    """When the GUI thread has begun with it; None where it has not."""
    done: Optional[int]
    waits: bool
    """The caller waits for it."""
    purged_by: Optional[str]
    """The thread that has taken it out of the queue."""

    @classmethod
    def of(cls, json: Mapping[str, Any]) -> TraceRecord:
        return cls(json["facade"], json["code"], json["number"], json["thread"], json["threadName"], json["queued"],
                   json["run"], json["done"], json["waits"], json.get("purgedBy"))

    @property
    def name(self) -> str:
        return f"{self.facade}.{self.code}"

    def __str__(self) -> str:
        fate = f"purged by {self.purged_by}" if self.purged_by is not None else "queued"
        if self.run is not None:
            ran = "running" if self.done is None else f"ran {(self.done - self.run) / 1000:.1f} us"
            fate = f"waited {(self.run - self.queued) / 1000:.1f} us, {ran}"
        waiter = ", its caller waits" if self.waits else ""
        return f"{self.queued / 1e9:.6f}  {self.thread_name} ({self.thread})  {self.name}: {fate}{waiter}"


@dataclass(frozen=True)
class Trace:
    """What is kept of them."""

    enabled: bool
    records: Tuple[TraceRecord, ...]
    lost: int
    """How many there were that are not kept."""

    @classmethod
    def of(cls, json: Mapping[str, Any]) -> Trace:
        return cls(json["enabled"], tuple(TraceRecord.of(record) for record in json["records"]), json["lost"])

    def to_perfetto(self) -> Dict[str, Any]:
        """The trace in the JSON form that the Perfetto viewer and chrome://tracing open: a track for each thread, and
        one for the GUI thread, with an arrow from each request to where it has run."""
        events = self._tracks()
        for index, (record, following) in enumerate(zip(self.records, self._following())):
            events.extend(_events(index, record, following))
        return {"displayTimeUnit": "ns", "traceEvents": events, "otherData": {"lost": self.lost}}

    def _following(self) -> List[Optional[int]]:
        """When the thread of each record has queued its next one."""
        found: List[Optional[int]] = [None] * len(self.records)
        latest: Dict[int, int] = {}
        for index in sorted(range(len(found)), key=lambda each: self.records[each].queued, reverse=True):
            thread = self.records[index].thread
            found[index] = latest.get(thread)
            latest[thread] = self.records[index].queued
        return found

    def _tracks(self) -> List[Dict[str, Any]]:
        names: Dict[int, str] = {GUI_THREAD: "GUI thread"}
        names.update({record.thread: record.thread_name for record in self.records})
        return [{"ph": "M", "name": "thread_name", "pid": PROCESS, "tid": thread, "args": {"name": name}}
                for thread, name in names.items()]


def _events(index: int, record: TraceRecord, following: Optional[int]) -> List[Dict[str, Any]]:
    """A thread is on its way again a little before what it has waited for is done. Its next request, at `following`, then
    begins: the viewer drops a slice that reaches out of another one."""
    args: Dict[str, Any] = {"code": record.number, "waits": record.waits}
    if record.purged_by is not None:
        args["purgedBy"] = record.purged_by
    common: Dict[str, Any] = {"cat": record.facade, "pid": PROCESS}
    here: Dict[str, Any] = {**common, "tid": record.thread, "ts": record.queued / 1000}
    waited = record.done - record.queued if record.waits and record.done is not None else 0
    if following is not None:
        waited = min(waited, following - record.queued)
    events = [{**here, "ph": "X", "name": record.name, "dur": waited / 1000, "args": args}]
    if record.run is not None:
        there = {**common, "tid": GUI_THREAD, "ts": record.run / 1000}
        ran = 0 if record.done is None else record.done - record.run
        events += [{**there, "ph": "X", "name": record.name, "dur": ran / 1000, "args": args},
                   {**here, "ph": "s", "name": "request", "id": index},
                   {**there, "ph": "f", "name": "request", "id": index, "bp": "e"}]
    return events
