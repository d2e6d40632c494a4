#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Validates readings as JSON against docs/schema/reading.schema.json.

usage: test_reading_schema.py SCHEMA print_readings
"""

from __future__ import annotations

import copy
import json
import subprocess
import sys
import unittest
from typing import Any

import jsonschema

Json = dict[str, Any]


def strict(schema: Json) -> Json:
    """The schema that refuses members that it does not name. Readers accept these, producers must
    not write any."""
    result = copy.deepcopy(schema)
    result["additionalProperties"] = False
    result["$defs"]["level"]["additionalProperties"] = False
    result["$defs"]["remaining"]["additionalProperties"] = False
    return result


class ReadingSchema(unittest.TestCase):
    schema: Json
    readings: list[Json]

    @classmethod
    def setUpClass(cls) -> None:
        with open(sys.argv[1], encoding="utf-8") as file:
            cls.schema = json.load(file)
        output = subprocess.run([sys.argv[2]], check=True, stdout=subprocess.PIPE).stdout
        cls.readings = [json.loads(line) for line in output.splitlines()]

    def validator(self, schema: Json) -> jsonschema.Draft202012Validator:
        return jsonschema.Draft202012Validator(schema)

    def loaded(self) -> Json:
        """A reading with a loaded supply of which everything is known."""
        for reading in self.readings:
            if reading["supply"]["labels"] and reading["presence"] == "present":
                return copy.deepcopy(reading)
        self.fail("no reading has a supply with labels")

    def test_the_schema_is_valid(self) -> None:
        jsonschema.Draft202012Validator.check_schema(self.schema)

    def test_every_member_is_described(self) -> None:
        for properties in (self.schema["properties"], self.schema["$defs"]["level"]["properties"]):
            for name, member in properties.items():
                self.assertTrue(member.get("description"), name)

    def test_every_member_is_required(self) -> None:
        for part in (self.schema, self.schema["$defs"]["level"]):
            self.assertEqual(list(part["properties"]), part["required"])

    def test_what_is_printed_is_valid_and_has_no_other_members(self) -> None:
        validator = self.validator(strict(self.schema))
        self.assertGreater(len(self.readings), 5000)
        for reading in self.readings:
            error = next(validator.iter_errors(reading), None)
            self.assertIsNone(error, error)

    def test_readings_hold_what_is_not_known_and_the_extremes(self) -> None:
        first = self.readings[0]
        self.assertEqual(first["name"], "nothing known")
        known = {name for name, value in first.items() if value is not None}
        self.assertEqual(
            known,
            {"name", "model", "presence", "watching", "statusCode", "statusKey", "severity"}
            | {"online", "active", "supply", "ribbon1"},
        )
        states = {reading["supply"]["state"] for reading in self.readings}
        self.assertEqual(states, {"notKnown", "empty", "loaded", "notInCatalogue"})
        estimates = [reading["supply"]["estimatedSecondsRemaining"] for reading in self.readings]
        self.assertIn(None, estimates)
        self.assertIn(1000, [estimate["p50"] for estimate in estimates if estimate])
        self.assertIn(0, [reading["supply"]["ratio"] for reading in self.readings])
        self.assertIn(4294967295, [reading["updateError"] for reading in self.readings])

    def test_unknown_members_are_allowed(self) -> None:
        reading = self.loaded()
        reading["forecast"] = reading["supply"]["forecast"] = 12
        self.assertTrue(self.validator(self.schema).is_valid(reading))
        self.assertFalse(self.validator(strict(self.schema)).is_valid(reading))

    def test_wrong_documents_are_refused(self) -> None:
        validator = self.validator(self.schema)
        self.assertTrue(validator.is_valid(self.loaded()))
        for document in (None, [], "Shipping", 1, {}):
            self.assertFalse(validator.is_valid(document), document)
        for name in self.schema["required"]:
            reading = self.loaded()
            del reading[name]
            self.assertFalse(validator.is_valid(reading), f"without {name}")
        for name in self.schema["$defs"]["level"]["required"]:
            reading = self.loaded()
            del reading["supply"][name]
            self.assertFalse(validator.is_valid(reading), f"supply without {name}")

        wrong: list[tuple[str, Any]] = [
            ("name", None),
            ("name", ""),
            ("name", "x" * 4097),
            ("model", "Oak"),
            ("model", 104),
            ("port", ""),
            ("presence", "away"),
            ("goneSince", "2026-01-31T12:00:00Z"),  # while it is present
            ("watching", None),
            ("statusCode", None),
            ("statusCode", "1"),
            ("statusCode", 1.5),
            ("statusCode", 2147483648),
            ("statusKey", "Out of labels"),
            ("severity", "fatal"),
            ("online", 1),
            ("active", None),
            ("updateProgress", -1),
            ("updateError", 4294967296),
            ("lastReport", "2026-01-31 12:00:00"),
            ("lastReport", "2026-01-31T12:00:00"),
            ("lastReport", 1769860800),
            ("supply", None),
            ("supply", []),
        ]
        for name, value in wrong:
            reading = self.loaded()
            reading[name] = value
            self.assertFalse(validator.is_valid(reading), f"{name}: {value}")
        wrong_levels: list[tuple[str, Any]] = [
            ("state", "full"),
            ("state", "empty"),  # with an identifier and a length
            ("identifier", None),
            ("colors", None),
            ("colors", ["red"]),
            ("colors", ["#FF0000"]),
            ("colors", ["#ff0000"] * 65),
            ("meters", -1),
            ("totalMeters", "30.48"),
            ("ratio", -0.01),
            ("ratio", 1.01),
            ("ratio", 50),
            ("labels", 1.5),
            ("labels", -1),
            ("coarse", 0),
            ("mileage", -1),
            ("mileageUnit", "inches"),
            ("labelPitchMeters", -1),
            ("labelsAcross", 0),
            ("estimatedSecondsRemaining", 60),
            ("estimatedSecondsRemaining", {"p10": 1, "p50": 2}),
            ("estimatedSecondsRemaining", {"p10": -1, "p50": 2, "p90": 3}),
        ]
        for name, value in wrong_levels:
            reading = self.loaded()
            reading["supply"][name] = value
            self.assertFalse(validator.is_valid(reading), f"supply.{name}: {value}")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    unittest.main(argv=sys.argv[:1])
