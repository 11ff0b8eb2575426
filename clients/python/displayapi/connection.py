"""JSON-RPC 2.0 over a WebSocket, one request after the other. For one thread."""

from __future__ import annotations

import collections
import json
import socket
import time
from typing import Any, Deque, Dict, Mapping, Optional

try:
    from websockets.client import ClientConnection as ClientProtocol
except ImportError:  # since websockets 11 it has another name
    from websockets.client import ClientProtocol  # type: ignore[attr-defined, no-redef]
from websockets.exceptions import InvalidURI
from websockets.frames import OP_CONT, OP_TEXT, Frame
from websockets.http11 import Response
from websockets.uri import parse_uri

from displayapi.errors import PhoneEnded, PhoneTimeout, RequestError

LONGEST_MESSAGE = 64 * 1024 * 1024
MOST_CHANGES = 256


class Connection:
    """An open connection. Raises PhoneEnded where it breaks, and PhoneTimeout where no answer comes in time."""

    def __init__(self, url: str, token: str, timeout: float) -> None:
        try:
            uri = parse_uri(url)
        except InvalidURI as error:
            raise PhoneEnded(f"'{url}' is no address of a test interface") from error
        self.url = url
        self._is_open = False
        self._was_open = False
        self._number = 0
        self._answers: Dict[int, Mapping[str, Any]] = {}
        self._changes: Deque[Mapping[str, Any]] = collections.deque()
        self._pieces = b""
        self._protocol = ClientProtocol(uri, max_size=LONGEST_MESSAGE)
        self._socket = self._connect(uri.host, uri.port, timeout)
        try:
            self._shake_hands(token, time.monotonic() + timeout)
        except BaseException:
            self._socket.close()
            raise

    def call(self, method: str, params: Mapping[str, Any], timeout: float) -> Any:
        """The answer to a request. Raises RequestError where it is refused."""
        deadline = time.monotonic() + timeout
        self._number += 1
        number = self._number
        request = {"jsonrpc": "2.0", "id": number, "method": method, "params": params}
        self._send(json.dumps(request, ensure_ascii=False), deadline)
        while number not in self._answers:
            self._read(deadline, f"no answer to {method} in {timeout:g} s")
        answer = self._answers[number]
        self._answers.clear()  # others have come too late for whoever has asked
        if "error" in answer:
            raise RequestError(method, answer["error"]["code"], answer["error"]["message"])
        return answer["result"]

    def next_change(self, timeout: Optional[float]) -> Mapping[str, Any]:
        """What the next notification of a change says."""
        deadline = None if timeout is None else time.monotonic() + timeout
        while not self._changes:
            self._read(deadline, f"no change of the screen in {timeout} s")
        return self._changes.popleft()

    def forget_changes(self) -> None:
        self._changes.clear()

    def close(self) -> None:
        """Says good-bye, without waiting for an answer."""
        if self._is_open:
            self._is_open = False
            try:
                self._protocol.send_close(1000)
                self._flush()
            except Exception:  # it has gone already
                pass
        self._socket.close()

    def _connect(self, host: str, port: int, timeout: float) -> socket.socket:
        try:
            connected = socket.create_connection((host, port), timeout)
        except OSError as error:
            raise PhoneEnded(f"there is no phone at {self.url}: {error.strerror or error}") from error
        connected.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        return connected

    def _shake_hands(self, token: str, deadline: float) -> None:
        request = self._protocol.connect()
        request.headers["Authorization"] = f"Bearer {token}"
        self._protocol.send_request(request)
        self._flush()
        try:
            while not self._is_open:
                self._read(deadline, f"{self.url} does not answer")
        except (EOFError, ValueError) as error:
            raise PhoneEnded(f"there is no test interface at {self.url}") from error

    def _send(self, text: str, deadline: float) -> None:
        if not self._is_open:
            raise self._lost()
        self._protocol.send_text(text.encode())
        self._socket.settimeout(max(deadline - time.monotonic(), 0.001))
        self._flush()

    def _flush(self) -> None:
        try:
            for data in self._protocol.data_to_send():
                if data:
                    self._socket.sendall(data)
        except TimeoutError as error:
            self._is_open = False  # after a part of a frame nothing else can be said
            self._socket.close()
            raise PhoneTimeout("the phone takes no requests") from error
        except OSError:
            pass  # what it has sent before may still be read

    def _read(self, deadline: Optional[float], complaint: str) -> None:
        """Waits until something comes, and hears it."""
        rest = None if deadline is None else deadline - time.monotonic()
        if rest is not None and rest <= 0:
            raise PhoneTimeout(complaint)
        self._socket.settimeout(rest)
        try:
            data = self._socket.recv(1 << 16)
        except TimeoutError as error:
            raise PhoneTimeout(complaint) from error
        except OSError:
            data = b""
        if data:
            self._protocol.receive_data(data)
        else:
            raise self._lost()
        self._flush()
        for event in self._protocol.events_received():
            if isinstance(event, Response):
                self._begin(event)
            elif isinstance(event, Frame) and event.opcode in (OP_TEXT, OP_CONT):
                self._hear_piece(event)

    def _begin(self, response: Response) -> None:
        if self._protocol.handshake_exc is not None:
            raise PhoneEnded(f"there is no test interface at {self.url}: {self._protocol.handshake_exc}")
        self._is_open = self._was_open = True

    def _hear_piece(self, frame: Frame) -> None:
        self._pieces += frame.data
        if frame.fin:
            message, self._pieces = json.loads(self._pieces), b""
            self._hear(message)

    def _hear(self, message: Mapping[str, Any]) -> None:
        if "id" in message:
            self._answers[message["id"]] = message
        elif message.get("method") == "changed":
            self._changes.append(message["params"])
            self._drop_oldest_change()

    def _drop_oldest_change(self) -> None:
        """What nobody fetches is missed, as what the phone could not send."""
        if len(self._changes) > MOST_CHANGES:
            dropped = self._changes.popleft()
            first = self._changes[0]
            self._changes[0] = {**first, "missed": first["missed"] + dropped["missed"] + 1}

    def _lost(self) -> PhoneEnded:
        if not self._was_open:
            return PhoneEnded(f"{self.url} refuses the connection: the token may be wrong, or there are too many clients")
        self._is_open = False
        return PhoneEnded("the connection to the phone has ended")
