#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""A host in Python. It prints a line for each of the maker's label printers, then one for each change.

Usage: python_host.py [--catalogue FILE] [--changes COUNT]

It ends after so many changes, or when it is interrupted.
"""
import argparse
import itertools

from vxprinterstatus import Field, Level, NoSuchPrinterError, Reading, Session, State

PRINTED = Field.STATUS | Field.SUPPLY | Field.RIBBON1 | Field.RIBBON2


def describe_level(level: Level) -> str:
    """What is left. Not known and empty are something else than nothing left."""
    if level.state is State.EMPTY:
        return "empty"
    if level.meters is None:
        return "not known"
    return f"{level.name}, {level.meters:.1f} m"


def describe(printer: Reading) -> str:
    """One line about a printer."""
    parts = [f"{printer.name}: {printer.status_title}", f"supply {describe_level(printer.supply)}"]
    parts.append(f"ribbon 1 {describe_level(printer.ribbon1)}")
    if printer.ribbon2 is not None:
        parts.append(f"ribbon 2 {describe_level(printer.ribbon2)}")
    return "; ".join(parts)


def main() -> None:
    """Prints the printers and their changes."""
    parser = argparse.ArgumentParser(description="Prints the label printers and each change.")
    parser.add_argument("--catalogue", help="the file roll.db with the names of supplies")
    parser.add_argument("--changes", type=int, help="end after so many changes")
    arguments = parser.parse_args()

    with Session(catalogue=arguments.catalogue) as session:
        for printer in session.readings():
            print(describe(printer), flush=True)
        changes = (change for change in session.changes() if change.fields & PRINTED)
        for change in itertools.islice(changes, arguments.changes):
            try:
                print(describe(session.reading(change.printer)), flush=True)
            except NoSuchPrinterError:
                pass  # it has been renamed since


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        pass
