# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The errors of the library, as exceptions."""
from __future__ import annotations

import enum
from typing import TYPE_CHECKING, Optional

if TYPE_CHECKING:
    from ._reading import CommandResult


class Result(enum.IntEnum):
    """What a function of the library returns. Positive ones mean that there is no value."""

    OK = 0
    UNKNOWN = 1
    EMPTY = 2
    NO_SLOT = 3
    NONE = 4
    INVALID_ARGUMENT = -1
    INVALID_HANDLE = -2
    INVALID_TEXT = -3
    TOO_LONG = -4
    BUFFER_TOO_SMALL = -5
    NOT_RUNNING = -6
    RUNNING = -7
    BUSY = -8
    IN_CALLBACK = -9
    NO_SUCH_PRINTER = -10
    COMMAND = -11
    TOO_MANY = -12
    OUT_OF_MEMORY = -13
    FAILED = -14


class VxError(Exception):
    """Something failed in the library. The text is for developers and logs, in English."""

    def __init__(self, text: str, result: int = Result.FAILED) -> None:
        super().__init__(text)
        self.result = result
        """The number that the library returned; one of `Result`, or one that is newer than this package."""


class LibraryNotFoundError(VxError, ImportError):
    """The library `vxprinterstatuskit` was not found, cannot be loaded, or has another interface."""


class InvalidArgumentError(VxError, ValueError):
    """An argument is not allowed: a text that is too long or has a zero character, an unknown language."""


class InvalidHandleError(VxError):
    """The session was closed."""


class NotRunningError(VxError):
    """The session was not started, or has been stopped."""


class AlreadyRunningError(VxError):
    """The session runs already."""


class BusyError(VxError):
    """The process has a session already. It can have one at a time."""


class InCallbackError(VxError):
    """A callback has tried to stop or close its own session."""


class NoSuchPrinterError(VxError, LookupError):
    """There is no label printer with this name."""


class TooManyError(VxError):
    """As many callbacks exist as there may be."""


class CommandError(VxError):
    """A command was not sent, or only in part."""

    def __init__(self, text: str, command: Optional["CommandResult"] = None) -> None:
        super().__init__(text, Result.COMMAND)
        self.command = command
        """What became of the command: the step that failed, and the system's error."""


_CLASSES = {
    Result.INVALID_ARGUMENT: InvalidArgumentError,
    Result.INVALID_TEXT: InvalidArgumentError,
    Result.TOO_LONG: InvalidArgumentError,
    Result.INVALID_HANDLE: InvalidHandleError,
    Result.NOT_RUNNING: NotRunningError,
    Result.RUNNING: AlreadyRunningError,
    Result.BUSY: BusyError,
    Result.IN_CALLBACK: InCallbackError,
    Result.NO_SUCH_PRINTER: NoSuchPrinterError,
    Result.TOO_MANY: TooManyError,
}


def error_of(result: int, text: str) -> Exception:
    """The exception for a result that is an error."""
    if result == Result.OUT_OF_MEMORY:
        return MemoryError("the library has no memory left")
    if result == Result.COMMAND:
        return CommandError(text)
    try:
        known = Result(result)
    except ValueError:
        return VxError(text, result)
    return _CLASSES.get(known, VxError)(text, known)
