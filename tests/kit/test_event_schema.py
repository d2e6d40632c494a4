#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Validates the lines of an event log against docs/schema/event.schema.json.

usage: test_event_schema.py SCHEMA print_events
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
    result["$defs"]["values"]["additionalProperties"] = False
    return result


def has_null(value: Any) -> bool:
    return value is None or isinstance(value, dict) and any(has_null(each) for each in value.values())


class EventSchema(unittest.TestCase):
    schema: Json
    lines: list[bytes]
    events: list[Json]

    @classmethod
    def setUpClass(cls) -> None:
        with open(sys.argv[1], encoding="utf-8") as file:
            cls.schema = json.load(file)
        output = subprocess.run([sys.argv[2]], check=True, stdout=subprocess.PIPE).stdout
        cls.lines = output.splitlines()
        cls.events = [json.loads(line) for line in cls.lines]

    def accepts(self, event: Any, schema: Json | None = None) -> bool:
        return jsonschema.Draft202012Validator(schema or self.schema).is_valid(event)

    def event(self, kind: str) -> Json:
        return copy.deepcopy(next(event for event in self.events if event["kind"] == kind))

    def test_the_schema_is_valid(self) -> None:
        jsonschema.Draft202012Validator.check_schema(self.schema)

    def test_every_member_is_described(self) -> None:
        for properties in (self.schema["properties"], self.schema["$defs"]["values"]["properties"]):
            for name, member in properties.items():
                self.assertTrue(member.get("description"), name)

    def test_what_is_printed_is_valid_and_has_no_other_members(self) -> None:
        validator = jsonschema.Draft202012Validator(strict(self.schema))
        self.assertGreater(len(self.events), 2000)
        for event in self.events:
            error = next(validator.iter_errors(event), None)
            self.assertIsNone(error, error)

    def test_every_kind_is_printed(self) -> None:
        day = {event["kind"] for event in self.events[:80]}
        self.assertEqual(day, set(self.schema["properties"]["kind"]["enum"]))

    def test_every_member_is_printed(self) -> None:
        members = {name for event in self.events for name in event}
        self.assertEqual(members, set(self.schema["properties"]))
        values = {name for event in self.events for name in event.get("before", {})}
        self.assertEqual(values, set(self.schema["$defs"]["values"]["properties"]))

    def test_what_is_not_known_is_absent(self) -> None:
        for event in self.events:
            self.assertFalse(has_null(event), event)

    def test_lines_are_safe_to_print(self) -> None:
        for line in self.lines:
            self.assertLess(len(line), 65536)
            text = line.decode("utf-8")
            self.assertTrue(text.isprintable(), text)

    def test_time_comes_first(self) -> None:
        for line in self.lines:
            self.assertTrue(line.startswith(b'{"time":"'), line)

    def test_unknown_members_are_allowed(self) -> None:
        event = self.event("level")
        event["forecast"] = event["after"]["forecast"] = 12
        self.assertTrue(self.accepts(event))
        self.assertFalse(self.accepts(event, strict(self.schema)))

    def test_wrong_documents_are_refused(self) -> None:
        for document in (None, [], "Shipping", 1, {}):
            self.assertFalse(self.accepts(document), document)
        for kind, members in {
            "status": ["time", "severity", "kind", "key", "printer", "code"],
            "supply": ["printer", "slot", "after"],
            "ribbon": ["printer", "slot", "after"],
            "level": ["printer", "slot", "mark", "after"],
            "command_failed": ["printer"],
            "printer_added": ["printer"],
            "printer_gone": ["printer"],
            "printer_renamed": ["printer", "before"],
            "firmware": ["printer"],
            "events_lost": ["lost", "since"],
        }.items():
            for member in members:
                event = self.event(kind)
                del event[member]
                self.assertFalse(self.accepts(event), f"{kind} without {member}")
        wrong: list[tuple[str, Any]] = [
            ("time", None),
            ("time", "2026-11-22T10:42:07Z"),  # without milliseconds
            ("time", "2026-11-22T10:42:07.123"),  # without an offset
            ("severity", "fatal"),
            ("kind", "paper"),
            ("printer", ""),
            ("printer", "x" * 502),
            ("slot", "ribbon3"),
            ("code", "2"),
            ("code", 2147483648),
            ("key", "Level 10"),
            ("mark", 20),
            ("before", {}),
            ("after", {"ratio": 1.01}),
            ("after", {"ratio": "0.5"}),
            ("after", {"labels": -1}),
            ("after", {"state": "full"}),
            ("lost", 0),
            ("since", "yesterday"),
        ]
        self.assertTrue(self.accepts(self.event("level")))
        for name, value in wrong:
            event = self.event("level")
            event[name] = value
            self.assertFalse(self.accepts(event), f"{name}: {value}")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    unittest.main(argv=sys.argv[:1])
