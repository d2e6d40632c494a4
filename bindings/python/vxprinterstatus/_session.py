# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Sessions, which find and watch printers."""
from __future__ import annotations

import atexit
import ctypes
import enum
import itertools
import json
import os
import queue
from dataclasses import dataclass
from types import TracebackType
from typing import Any, Callable, Dict, Iterator, List, Optional, Type, Union

from ._errors import (
    CommandError,
    InCallbackError,
    InvalidArgumentError,
    InvalidHandleError,
    Result,
    VxError,
)
from ._library import CALLBACK, NativeCommandResult, check, library, read_text, text_bytes
from ._reading import CommandResult, Reading, StatusInfo

_OPTION_CATALOGUE = 1
_OPTION_LANGUAGE = 2
_OPTION_LOG_FILE = 3
_OPTION_HISTORY = 4
_TEXT_STATUS_SHORT_TITLE = 16
_TEXT_STATUS_REMEDY = 18
_SEND_TO_ANY_PRINTER = 0x1
_SEND_EVEN_EMPTY = 0x2


class ChangeKind(enum.Enum):
    """What has happened."""

    ADDED = "added"
    """A printer has a reading for the first time, or is listed again."""
    CHANGED = "changed"
    """A printer reported, or something else about it changed."""
    GONE = "gone"
    """The spooler does not list the printer any more; its reading stays."""
    RENAMED = "renamed"
    """The printer has a new name."""
    ACTIVE = "active"
    """Another printer is the active one; `printer` is empty when there is none."""
    OTHER = "other"
    """Something that this package does not know yet."""


_KINDS = {
    1: ChangeKind.ADDED,
    2: ChangeKind.CHANGED,
    3: ChangeKind.GONE,
    4: ChangeKind.RENAMED,
    5: ChangeKind.ACTIVE,
}


class Field(enum.IntFlag):
    """What differs from the reading before."""

    NAME = 0x1
    MODEL = 0x2
    DRIVER = 0x4
    PORT = 0x8
    SERIAL_NUMBER = 0x10
    PRESENCE = 0x20
    WATCHING = 0x40
    STATUS = 0x80
    ONLINE = 0x100
    ACTIVE = 0x200
    FIRMWARE = 0x400
    UPDATE = 0x800
    ETHERNET_CONFIG = 0x1000
    LAST_REPORT = 0x2000
    SUPPLY = 0x4000
    RIBBON1 = 0x8000
    RIBBON2 = 0x10000


@dataclass(frozen=True)
class Change:
    """Something that happened to a printer."""

    kind: ChangeKind
    printer: str
    old_name: str
    """The name before, for `ChangeKind.RENAMED`; otherwise empty."""
    fields: Field
    """What differs from the reading before. `LAST_REPORT` alone is a report with nothing new."""


Callback = Callable[[Change], object]


def library_version() -> str:
    """The version of the library, such as "1.0.0". It is loaded for it."""
    return read_text(library().vxkit_library_version)


# The library calls one function that is never freed, with the number of a subscription. So nothing that it
# may still call depends on when Python frees an object.
_subscriptions: Dict[int, "Subscription"] = {}
_numbers = itertools.count(1)


def _call(
    session: Optional[int],
    change: int,
    printer: bytes,
    old_name: bytes,
    fields: int,
    user_data: Optional[int],
) -> None:
    subscription = _subscriptions.get(user_data or 0)
    if subscription is None:
        return
    # An exception of the callable is reported by sys.unraisablehook, and nothing else happens.
    subscription._callback(
        Change(
            _KINDS.get(change, ChangeKind.OTHER),
            printer.decode("utf-8"),
            old_name.decode("utf-8"),
            Field(fields),
        )
    )


_native_call = CALLBACK(_call)


class Subscription:
    """A callable that is called for every change until this object is closed.

    It is a context manager that closes itself at the end of the block.
    """

    def __init__(self, session: "Session", callback: Callback) -> None:
        self._session = session
        self._callback = callback
        self._number = next(_numbers)
        identifier = ctypes.c_uint64(0)
        _subscriptions[self._number] = self
        try:
            check(
                library().vxkit_add_callback(
                    session._checked(), _native_call, ctypes.c_void_p(self._number), ctypes.byref(identifier)
                )
            )
        except BaseException:
            # Whoever closes the session on another thread may have removed it already.
            _subscriptions.pop(self._number, None)
            raise
        self._identifier = identifier.value

    def close(self) -> None:
        """Ends it. After that the callable is not called any more.

        Waits until a call in progress has returned, except when the callable itself closes it. May be called
        more than once, and on any thread.
        """
        if _subscriptions.pop(self._number, None) is None:
            return
        handle = self._session._handle
        if handle is not None:
            result = library().vxkit_remove_callback(handle, self._identifier)
            # The session may have been closed on another thread.
            if result != Result.INVALID_HANDLE:
                check(result)

    def __enter__(self) -> "Subscription":
        return self

    def __exit__(
        self,
        kind: Optional[Type[BaseException]],
        error: Optional[BaseException],
        traceback: Optional[TracebackType],
    ) -> None:
        self.close()


# Sessions that are not closed, so that none is freed while the library works with it.
_open_sessions: Dict[int, "Session"] = {}


class Session:
    """Finds and watches the printers, on a thread of the library's own.

    It runs from its creation until it is closed; it is a context manager that closes itself at the end of the
    block. A process can have one at a time; more raise `BusyError`. At the end of the interpreter it is closed.

    Every method may be called on any thread. Those that read do not wait for the print spooler. Callables of
    `on_change` are called on the library's thread, one after the other, while it handles no other report; they
    may call every method but `close`, which raises `InCallbackError`.

    `catalogue` is the file `roll.db` with the names and lengths of supplies and ribbons; by default the one
    beside the Python interpreter, so most hosts name it. `language` is that of texts for people, such as "de";
    by default the user's. The library's log is appended to `log_file`; by default only warnings are written, to
    standard error. What printers use is recorded in the file `history`, from which it is learned how long rolls
    last; without it, that is learned from what is reported while the session runs.
    """

    def __init__(
        self,
        *,
        catalogue: Union[str, "os.PathLike[str]", None] = None,
        language: Optional[str] = None,
        log_file: Union[str, "os.PathLike[str]", None] = None,
        history: Union[str, "os.PathLike[str]", None] = None,
    ) -> None:
        self._handle: Optional[int] = None
        # Those of the iterators that wait for a change, which None ends.
        self._queues: List["queue.Queue[Optional[Change]]"] = []
        options = {
            _OPTION_CATALOGUE: ("catalogue", None if catalogue is None else os.fspath(catalogue)),
            _OPTION_LANGUAGE: ("language", language),
            _OPTION_LOG_FILE: ("log_file", None if log_file is None else os.fspath(log_file)),
            _OPTION_HISTORY: ("history", None if history is None else os.fspath(history)),
        }
        values = {
            option: text_bytes(value, name) for option, (name, value) in options.items() if value is not None
        }
        handle = ctypes.c_void_p()
        check(library().vxkit_create(ctypes.byref(handle)))
        assert handle.value is not None
        self._handle = handle.value
        _open_sessions[self._handle] = self
        try:
            for option, value in values.items():
                check(library().vxkit_set_option(self._handle, option, value))
            check(library().vxkit_start(self._handle))
        except BaseException:
            self.close()
            raise

    def close(self) -> None:
        """Stops watching. Waits for calls of the print spooler and callbacks that are in progress.

        May be called more than once. Raises `InCallbackError` when a callable of `on_change` calls it.
        """
        handle = self._handle
        if handle is None:
            return
        result = library().vxkit_destroy(handle)
        # Another thread may be closing it at the same time.
        if result != Result.INVALID_HANDLE:
            check(result)
        self._handle = None
        _open_sessions.pop(handle, None)
        for number, subscription in list(_subscriptions.items()):
            if subscription._session is self:
                _subscriptions.pop(number, None)
        for arrived in list(self._queues):
            arrived.put(None)

    def __enter__(self) -> "Session":
        return self

    def __exit__(
        self,
        kind: Optional[Type[BaseException]],
        error: Optional[BaseException],
        traceback: Optional[TracebackType],
    ) -> None:
        self.close()

    @property
    def closed(self) -> bool:
        """Whether the session was closed."""
        return self._handle is None

    def readings(self) -> List[Reading]:
        """The readings of all printers of supported models, taken at the same time, in the order of names."""
        readings = ctypes.c_void_p()
        check(library().vxkit_read_all(self._checked(), ctypes.byref(readings)))
        return _take(readings)

    def reading(self, printer: str) -> Reading:
        """The reading of one printer. Raises `NoSuchPrinterError` when there is none with this name."""
        readings = ctypes.c_void_p()
        name = text_bytes(printer, "printer")
        check(library().vxkit_read(self._checked(), name, ctypes.byref(readings)))
        return _take(readings)[0]

    @property
    def active_printer(self) -> Optional[str]:
        """The name of the active printer, which the host works with; `None` when there is none."""
        try:
            return read_text(library().vxkit_active_printer, self._checked())
        except VxError as error:
            if error.result == Result.NONE:
                return None
            raise

    def status_info(self, code: int, language: Optional[str] = None) -> StatusInfo:
        """What a status code means and what to do, in the session's language or another one."""
        tag = text_bytes(language or "", "language")
        if not -(2**31) <= code < 2**31:
            raise InvalidArgumentError(f"code is {code}, which has more than 32 bits")
        text = read_text(library().vxkit_status_json, self._checked(), code, tag)
        return StatusInfo.from_json(json.loads(text))

    def all_status_info(self, language: Optional[str] = None) -> List[StatusInfo]:
        """The same for all codes that have an entry of their own, in ascending order."""
        tag = text_bytes(language or "", "language")
        text = read_text(library().vxkit_all_status_json, self._checked(), tag)
        return [StatusInfo.from_json(value) for value in json.loads(text)]

    def on_change(self, callback: Callback) -> Subscription:
        """Has a callable called for every change from now on, until the subscription is closed.

        It is called on the library's thread, when the new reading can be read already. An exception of it is
        passed to `sys.unraisablehook`. To miss nothing, subscribe first and read then.
        """
        return Subscription(self, callback)

    def changes(self, timeout: Optional[float] = None) -> Iterator[Change]:
        """The changes from the first use of the iterator on, as they happen, on the thread of the caller.

        The iterator ends when the session is closed, or when nothing has happened for `timeout` seconds.
        """
        arrived: "queue.Queue[Optional[Change]]" = queue.Queue()
        with self.on_change(arrived.put):
            self._queues.append(arrived)
            try:
                while not self.closed:
                    change = arrived.get(timeout=timeout)
                    if change is None:
                        return
                    yield change
            except queue.Empty:
                return
            finally:
                self._queues.remove(arrived)

    def send(
        self,
        printer: str,
        command: Union[str, bytes],
        *,
        to_any_printer: bool = False,
        even_empty: bool = False,
    ) -> CommandResult:
        """Sends a command in the printer's own language as a raw print job, and waits for the spooler to have it.

        A text gets a line end and is converted to the system's 8-bit code page; bytes are sent as they are.
        Raises `CommandError` when the command was not sent. Commands to printers of other makers and empty ones
        are refused unless the flags allow them.
        """
        flags = (_SEND_TO_ANY_PRINTER if to_any_printer else 0) | (_SEND_EVEN_EMPTY if even_empty else 0)
        name = text_bytes(printer, "printer")
        native = NativeCommandResult(size=ctypes.sizeof(NativeCommandResult))
        session = self._checked()
        try:
            if isinstance(command, str):
                text = text_bytes(command, "command")
                check(library().vxkit_send_text(session, name, text, flags, ctypes.byref(native)))
            else:
                data = bytes(command)
                check(
                    library().vxkit_send_bytes(session, name, data, len(data), flags, ctypes.byref(native))
                )
        except CommandError as error:
            error.command = _command_result(native)
            raise
        return _command_result(native)

    def _checked(self) -> int:
        handle = self._handle
        if handle is None:
            raise InvalidHandleError("the session was closed", Result.INVALID_HANDLE)
        return handle


def _command_result(native: NativeCommandResult) -> CommandResult:
    return CommandResult(native.failure, native.system_error, native.job, native.bytes)


def _take(readings: ctypes.c_void_p) -> List[Reading]:
    """The values of readings, which are freed."""
    native = library()
    try:
        count = ctypes.c_size_t(0)
        check(native.vxkit_readings_count(readings, ctypes.byref(count)))
        return [_reading(native, readings, index) for index in range(count.value)]
    finally:
        native.vxkit_readings_free(readings)


def _reading(native: ctypes.CDLL, readings: ctypes.c_void_p, index: int) -> Reading:
    value: Dict[str, Any] = json.loads(read_text(native.vxkit_reading_json, readings, index))
    title = read_text(native.vxkit_reading_text, readings, index, _TEXT_STATUS_SHORT_TITLE)
    remedy = read_text(native.vxkit_reading_text, readings, index, _TEXT_STATUS_REMEDY)
    return Reading.from_json(value, title, remedy)


@atexit.register
def _close_all() -> None:
    # Before the interpreter ends, so that no callback is called by then. A callback cannot end it, but a
    # thread that it has started could.
    for session in list(_open_sessions.values()):
        try:
            session.close()
        except InCallbackError:
            pass
