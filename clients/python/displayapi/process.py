"""Starts ``phone --rpc`` and ends it in order."""

from __future__ import annotations

import collections
import os
import re
import shutil
import subprocess
import threading
from pathlib import Path
from typing import Deque, List, Mapping, Optional, Sequence, Union

from displayapi.errors import StartFailed, exit_sentence

PathLike = Union[str, "os.PathLike[str]"]

ADDRESS = re.compile(r"The test interface is at (\S+), its token in (.+)$")
LINES_KEPT = 200
TIME_TO_END = 30.0


def find_launcher(program: PathLike) -> str:
    """The launcher ``phone``: beside the program, or one of PATH."""
    beside = Path(shutil.which(program) or program).parent / "phone"
    if os.access(beside, os.X_OK) and beside.is_file():
        return str(beside)
    found = shutil.which("phone")
    if found is None:
        raise StartFailed(f"there is no launcher 'phone' beside {os.fspath(program)} or in PATH: name it as 'launcher'")
    return found


class PhoneProcess:
    """A telephone of our own. Its output is read as it comes, and the last of it kept."""

    def __init__(self, command: Sequence[str], environment: Optional[Mapping[str, str]], timeout: float) -> None:
        self.url = ""
        self.token = ""
        self._output: Deque[str] = collections.deque(maxlen=LINES_KEPT)
        self._told = threading.Event()
        self._token_file = ""
        try:
            # A session of its own: Ctrl-C in a debugger of the test is not for the phone.
            self._process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                             stderr=subprocess.STDOUT, text=True, errors="replace",
                                             start_new_session=True,
                                             env={**os.environ, **environment} if environment else None)
        except OSError as error:
            raise StartFailed(f"{command[0]} cannot be started: {error.strerror}") from error
        self._reader = threading.Thread(target=self._read, name="phone output", daemon=True)
        self._reader.start()
        try:
            self._learn(timeout)
        except BaseException:
            self.end()
            raise

    @property
    def pid(self) -> int:
        return self._process.pid

    @property
    def status(self) -> Optional[int]:
        """What the launcher has returned; None while it runs."""
        return self._process.poll()

    @property
    def output(self) -> str:
        """The last lines that phone and program have printed."""
        return "".join(list(self._output))

    def describe(self) -> str:
        """How it has ended and what it has said, for people."""
        return f"the phone {exit_sentence(self.status)}; its output:\n{self.output.rstrip()}"

    def wait(self, timeout: float) -> Optional[int]:
        """What it returns; None where it still runs then."""
        try:
            status = self._process.wait(timeout)
        except subprocess.TimeoutExpired:
            return None
        self._reader.join(timeout)  # all that it has said
        return status

    def end(self) -> Optional[int]:
        """Ends it as Ctrl-C would, or by force where it does not; None then."""
        if self.status is None:
            self._process.terminate()
        status = self.wait(TIME_TO_END)
        if status is None:
            self.kill()
        self._close()
        return status

    def kill(self) -> None:
        self._process.kill()
        self._process.wait()
        self._close()

    def _close(self) -> None:
        # Somebody whom the program has left behind may still hold the other end.
        self._reader.join(1.0)
        if not self._reader.is_alive() and self._process.stdout is not None:
            self._process.stdout.close()

    def _read(self) -> None:
        assert self._process.stdout is not None
        for line in self._process.stdout:
            self._output.append(line)
            found = ADDRESS.search(line)
            if found and not self.url:
                self.url, self._token_file = found.groups()
                self._told.set()
        self._told.set()

    def _learn(self, timeout: float) -> None:
        """Where it is, and the token."""
        if not self._told.wait(timeout):
            raise StartFailed(f"the phone does not say where it is within {timeout:g} s; its output:\n{self.output}")
        if not self.url:
            self.wait(timeout)
            raise StartFailed(f"the phone has not started; {self.describe()}")
        self.token = read_token(self._token_file)


def read_token(file: PathLike) -> str:
    """The token in the file that ``phone`` names."""
    try:
        return Path(file).read_text("ascii").strip()
    except (OSError, UnicodeDecodeError) as error:
        raise StartFailed(f"the token cannot be read: {error}") from error


def command_line(launcher: str, program: PathLike, arguments: Sequence[str], variant: str, virtual_clock: bool,
                 read_only: bool) -> List[str]:
    """What starts the program as a telephone."""
    switches = (["--virtual-clock"] if virtual_clock else []) + (["--rpc-read-only"] if read_only else [])
    return [launcher, "--rpc", "--port", "0", "--variant", variant, *switches, "--", os.fspath(program), *arguments]
