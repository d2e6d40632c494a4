# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""What is known of a printer, as plain values."""
from __future__ import annotations

import enum
from dataclasses import dataclass
from datetime import datetime
from typing import Any, Mapping, Optional, Tuple, Type, TypeVar


class Severity(enum.Enum):
    """How much a status matters to the person who wants to print."""

    OK = "ok"
    """The printer can print."""
    INFORMATION = "information"
    """Nothing is wrong: wait, or look elsewhere."""
    WARNING = "warning"
    """It does not print now or soon, but nothing is broken or used up."""
    ERROR = "error"
    """It does not print until somebody does what the remedy says."""


class Presence(enum.Enum):
    """Whether the print spooler lists a printer."""

    PRESENT = "present"
    GONE = "gone"


class State(enum.Enum):
    """What is in a slot of a printer."""

    NOT_KNOWN = "notKnown"
    """The printer has not reported it."""
    EMPTY = "empty"
    """The printer reports that nothing is loaded."""
    LOADED = "loaded"
    """Loaded, and the catalogue knows what it is."""
    NOT_IN_CATALOGUE = "notInCatalogue"
    """Loaded, but the catalogue is missing or does not know it."""


class Failure(enum.IntEnum):
    """The step of sending a command that failed."""

    NONE = 0
    EMPTY = 1
    FOREIGN_PRINTER = 2
    CANNOT_OPEN_PRINTER = 3
    CANNOT_READ_DRIVER = 4
    CANNOT_START_DOCUMENT = 5
    CANNOT_START_PAGE = 6
    CANNOT_WRITE = 7
    SHORT_WRITE = 8
    CANNOT_END_PAGE = 9
    CANNOT_END_DOCUMENT = 10


_Word = TypeVar("_Word", bound=enum.Enum)


def _word(words: Type[_Word], value: object, otherwise: _Word) -> _Word:
    # A later version of the library may have words that this package does not know.
    try:
        return words(value)
    except ValueError:
        return otherwise


def _time(value: Optional[str]) -> Optional[datetime]:
    # Before Python 3.11, fromisoformat does not know the Z.
    return None if value is None else datetime.fromisoformat(value.replace("Z", "+00:00"))


@dataclass(frozen=True)
class RemainingTime:
    """How many seconds something will still last.

    With a probability of 10, 50 and 90 percent it is at most as long as this.
    """

    p10: float
    p50: float
    p90: float


@dataclass(frozen=True)
class Level:
    """What is loaded in one slot of a printer, and how much of it is left.

    `None` is not known, or does not apply; nothing that is not known is 0.
    """

    state: State
    identifier: Optional[str]
    """What the printer reports to be loaded."""
    sku: Optional[str]
    """The stock-keeping unit, by the catalogue."""
    name: Optional[str]
    """A name for people, such as "Yellow Vinyl"."""
    material: Optional[str]
    """The material of a supply or the type of a ribbon."""
    color_name: Optional[str]
    """The name of the first colour, for people."""
    colors: Tuple[str, ...]
    """The colours as "#rrggbb"."""
    total_meters: Optional[float]
    """The length of a new roll or ribbon."""
    meters: Optional[float]
    """What is left, in metres."""
    ratio: Optional[float]
    """What is left, from 0 to 1. 0 means used up."""
    labels: Optional[int]
    """The number of whole labels that are left, for supplies that have labels."""
    label_pitch_meters: Optional[float]
    """From the start of one label to the start of the next."""
    labels_across: Optional[int]
    """How many labels are side by side."""
    coarse: bool
    """The printer reports whole percents only: metres, ratio and labels are exact to one percent."""
    mileage: Optional[int]
    """The raw value that the driver publishes."""
    mileage_unit: str
    """The unit of `mileage`: "millimeters" or "percent"."""
    seconds_remaining: Optional[RemainingTime]
    """In how many seconds it will have been used up. It is estimated at each report, and once a minute."""

    @staticmethod
    def from_json(value: Mapping[str, Any]) -> "Level":
        """The level that a reading's JSON has."""
        remaining = value["estimatedSecondsRemaining"]
        return Level(
            state=_word(State, value["state"], State.NOT_KNOWN),
            identifier=value["identifier"],
            sku=value["sku"],
            name=value["name"],
            material=value["material"],
            color_name=value["colorName"],
            colors=tuple(value["colors"]),
            total_meters=value["totalMeters"],
            meters=value["meters"],
            ratio=value["ratio"],
            labels=value["labels"],
            label_pitch_meters=value["labelPitchMeters"],
            labels_across=value["labelsAcross"],
            coarse=value["coarse"],
            mileage=value["mileage"],
            mileage_unit=value["mileageUnit"],
            seconds_remaining=None
            if remaining is None
            else RemainingTime(remaining["p10"], remaining["p50"], remaining["p90"]),
        )


@dataclass(frozen=True)
class Reading:
    """Everything that is known of one printer at one time. `None` is not known."""

    name: str
    """The printer's name in the print spooler."""
    model: str
    """Such as "CedarMax"."""
    driver: Optional[str]
    port: Optional[str]
    serial_number: Optional[str]
    presence: Presence
    gone_since: Optional[datetime]
    """Since when the printer is gone; `None` while it is present."""
    watching: str
    """Whether the printer is watched ("watched"), or why not, such as "networkPrinter"."""
    status_code: int
    """1 is ready; docs/status-codes.md lists the codes."""
    status_key: str
    """A name of the status for programs that never changes, such as "out_of_labels"."""
    severity: Severity
    status_title: str
    """What the status is, for people, on one line."""
    remedy: str
    """What to do, for people."""
    online: bool
    """Whether the printer is present and not offline."""
    active: bool
    """Whether it is the active printer, which the host works with."""
    firmware_version: Optional[str]
    boot_version: Optional[str]
    update_progress: Optional[int]
    update_error: Optional[int]
    ethernet_config: Optional[str]
    last_report: Optional[datetime]
    """When the printer last reported anything; `None` when it has not yet."""
    supply: Level
    """The loaded label supply."""
    ribbon1: Level
    """The loaded ribbon."""
    ribbon2: Optional[Level]
    """The second ribbon; `None` for models with one ribbon."""
    json: Mapping[str, Any]
    """The reading as docs/schema/reading.schema.json describes it."""

    @staticmethod
    def from_json(value: Mapping[str, Any], status_title: str, remedy: str) -> "Reading":
        """The reading of that JSON, with the texts for people that it does not have."""
        return Reading(
            name=value["name"],
            model=value["model"],
            driver=value["driver"],
            port=value["port"],
            serial_number=value["serialNumber"],
            presence=_word(Presence, value["presence"], Presence.PRESENT),
            gone_since=_time(value["goneSince"]),
            watching=value["watching"],
            status_code=value["statusCode"],
            status_key=value["statusKey"],
            severity=_word(Severity, value["severity"], Severity.ERROR),
            status_title=status_title,
            remedy=remedy,
            online=value["online"],
            active=value["active"],
            firmware_version=value["firmwareVersion"],
            boot_version=value["bootVersion"],
            update_progress=value["updateProgress"],
            update_error=value["updateError"],
            ethernet_config=value["ethernetConfig"],
            last_report=_time(value["lastReport"]),
            supply=Level.from_json(value["supply"]),
            ribbon1=Level.from_json(value["ribbon1"]),
            ribbon2=None if value["ribbon2"] is None else Level.from_json(value["ribbon2"]),
            json=value,
        )


@dataclass(frozen=True)
class StatusInfo:
    """What a status code means and what to do about it."""

    code: int
    key: str
    severity: Severity
    title: str
    short_title: str
    explanation: str
    remedy: str

    @staticmethod
    def from_json(value: Mapping[str, Any]) -> "StatusInfo":
        """The info of that JSON."""
        return StatusInfo(
            code=value["code"],
            key=value["key"],
            severity=_word(Severity, value["severity"], Severity.ERROR),
            title=value["title"],
            short_title=value["shortTitle"],
            explanation=value["explanation"],
            remedy=value["remedy"],
        )


@dataclass(frozen=True)
class CommandResult:
    """What became of a command up to the print spooler."""

    failure: int
    """One of `Failure`, or a number that is newer than this package."""
    system_error: int
    """The system's error code; 0 when no system call failed."""
    job: int
    """The job's number in the printer's queue; 0 when there is none."""
    bytes: int
    """How many bytes the spooler took."""
