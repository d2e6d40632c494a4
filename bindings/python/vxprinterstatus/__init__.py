# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Reads and watches label printers through the VxPrinterStatus kit.

    from vxprinterstatus import Session

    with Session(catalogue="roll.db") as session:
        for printer in session.readings():
            supply = printer.supply
            if supply.ratio is not None:
                print(f"{printer.name}: {supply.ratio:.0%} of {supply.name} left")

        with session.on_change(lambda change: print(change.kind.value, change.printer)):
            session.send("Packing", "FEED 3")

A `Session` finds and watches the printers; `Reading` is everything that is known of one printer. What is not
known is `None`, never 0. All errors are a `VxError`. docs/c-interface.md is the guide.

The package loads the library `vxprinterstatuskit` when the first session is created, from the first of these
places: the environment variable VXPRINTERSTATUS_LIBRARY, which names the file or its folder; the folder of
this package; the places in which the system looks for libraries.
"""
from ._errors import (
    AlreadyRunningError,
    BusyError,
    CommandError,
    InCallbackError,
    InvalidArgumentError,
    InvalidHandleError,
    LibraryNotFoundError,
    NoSuchPrinterError,
    NotRunningError,
    Result,
    TooManyError,
    VxError,
)
from ._reading import (
    CommandResult,
    Failure,
    Level,
    Presence,
    Reading,
    RemainingTime,
    Severity,
    State,
    StatusInfo,
)
from ._session import Change, ChangeKind, Field, Session, Subscription, library_version
from ._version import __version__

__all__ = [
    "AlreadyRunningError",
    "BusyError",
    "Change",
    "ChangeKind",
    "CommandError",
    "CommandResult",
    "Failure",
    "Field",
    "InCallbackError",
    "InvalidArgumentError",
    "InvalidHandleError",
    "Level",
    "LibraryNotFoundError",
    "NoSuchPrinterError",
    "NotRunningError",
    "Presence",
    "Reading",
    "RemainingTime",
    "Result",
    "Session",
    "Severity",
    "State",
    "StatusInfo",
    "Subscription",
    "TooManyError",
    "VxError",
    "__version__",
    "library_version",
]
