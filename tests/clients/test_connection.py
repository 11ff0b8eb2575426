"""The connection's own answers, without a phone: a server of the test's own says what a phone says seldom."""

from __future__ import annotations

import json
import socket
import threading
from typing import Any, Callable, Iterator, List

import pytest
from websockets.frames import OP_CONT, OP_TEXT, Frame
from websockets.server import ServerConnection

from displayapi import PhoneEnded, PhoneTimeout
from displayapi.connection import MOST_CHANGES, Connection

Serve = Callable[["Server"], None]


class Server:
    """One connection, on which it reads requests and sends frames."""

    def __init__(self, listener: socket.socket) -> None:
        self._socket, _ = listener.accept()
        self._protocol = ServerConnection()
        self._events: List[Any] = []
        self._protocol.send_response(self._protocol.accept(self.receive()))
        self._flush()

    def receive(self) -> Any:
        """The next request, or None at the end."""
        while not self._events:
            data = self._socket.recv(1 << 16)
            if not data:
                return None
            self._protocol.receive_data(data)
            self._events += self._protocol.events_received()
        return self._events.pop(0)

    def number(self) -> int:
        return int(json.loads(self.receive().data)["id"])

    def send(self, message: Any) -> None:
        self.send_frame(Frame(OP_TEXT, json.dumps(message).encode()))

    def send_frame(self, frame: Frame) -> None:
        self._protocol.send_frame(frame)
        self._flush()

    def hang_up(self) -> None:
        self._socket.close()

    def _flush(self) -> None:
        for data in self._protocol.data_to_send():
            self._socket.sendall(data)


@pytest.fixture
def connect() -> Iterator[Callable[[Serve], Connection]]:
    threads = []
    listener = socket.create_server(("127.0.0.1", 0))

    def connected(serve: Serve) -> Connection:
        threads.append(threading.Thread(target=lambda: serve(Server(listener)), daemon=True))
        threads[-1].start()
        return Connection(f"ws://127.0.0.1:{listener.getsockname()[1]}/rpc", "token", timeout=30)

    yield connected
    listener.close()
    for thread in threads:
        thread.join(30)
        assert not thread.is_alive()


def test_an_answer_may_come_in_pieces_and_behind_others(connect: Callable[[Serve], Connection]) -> None:
    def serve(server: Server) -> None:
        number = server.number()
        server.send({"id": number + 5, "result": "of another"})
        text = json.dumps({"id": number, "result": "übrig"}, ensure_ascii=False).encode()
        server.send_frame(Frame(OP_TEXT, text[:15], fin=False))
        server.send_frame(Frame(OP_CONT, text[15:]))
        server.receive()

    connection = connect(serve)
    assert connection.call("hello", {}, 30) == "übrig"
    connection.close()


def test_an_answer_that_does_not_come_is_told(connect: Callable[[Serve], Connection]) -> None:
    def serve(server: Server) -> None:
        late = server.number()
        number = server.number()
        server.send({"id": late, "result": "late"})
        server.send({"id": number, "result": "in time"})
        server.receive()

    connection = connect(serve)
    with pytest.raises(PhoneTimeout, match="no answer to screen in 0.01 s"):
        connection.call("screen", {}, 0.01)
    assert connection.call("hello", {}, 30) == "in time"
    connection.close()


def test_a_connection_that_breaks_is_told_now_and_later(connect: Callable[[Serve], Connection]) -> None:
    def serve(server: Server) -> None:
        server.number()
        server.hang_up()

    connection = connect(serve)
    for _ in range(2):
        with pytest.raises(PhoneEnded):
            connection.call("hello", {}, 30)


def test_half_a_request_ends_the_connection(connect: Callable[[Serve], Connection]) -> None:
    may_end = threading.Event()
    connection = connect(lambda server: None if may_end.wait(30) else server.hang_up())
    with pytest.raises(PhoneTimeout, match="the phone takes no requests"):
        connection.call("type", {"keys": "1" * 50_000_000}, 0.01)
    with pytest.raises(PhoneEnded):
        connection.call("hello", {}, 0.01)
    may_end.set()


def test_changes_that_nobody_fetches_are_missed(connect: Callable[[Serve], Connection]) -> None:
    def serve(server: Server) -> None:
        number = server.number()
        for change in range(MOST_CHANGES + 10):
            server.send({"method": "changed", "params": {"missed": 1, "screen": change}})
        server.send({"id": number, "result": {}})
        server.receive()

    connection = connect(serve)
    connection.call("hello", {}, 30)
    assert connection.next_change(0) == {"missed": 1 + 2 * 10, "screen": 10}
    assert connection.next_change(0) == {"missed": 1, "screen": 11}
    connection.close()
