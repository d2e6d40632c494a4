#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Validates each line of `vxprintmon watch --json` against docs/schema/reading.schema.json.

test_watch_json.py SCHEMA VXPRINTMON
"""
import copy
import json
import os
import subprocess
import sys
import tempfile
import unittest

import jsonschema

SCHEMA, VXPRINTMON = sys.argv[1:]
READING = {"added", "changed", "gone", "renamed"}
# In seconds; ends a tool that hangs.
LIMIT = 300


def described(schema):
    """The schema of a line: an event with its members, and no others."""
    definitions = copy.deepcopy(schema.pop("$defs"))
    reading = {name: value for name, value in schema.items() if not name.startswith("$")}
    reading["additionalProperties"] = False
    definitions["level"]["additionalProperties"] = False
    definitions["reading"] = reading
    time = {"type": "string", "format": "date-time",
            "pattern": "^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3}(Z|[+-]\\d\\d:\\d\\d)$"}
    name = {"type": "string", "minLength": 1}
    kinds = {
        "snapshot": {"printers": {"type": "array", "items": {"$ref": "#/$defs/reading"}}},
        "changed": {"printer": name, "reading": {"$ref": "#/$defs/reading"},
                    "what": {"type": "array", "minItems": 1, "uniqueItems": True, "items": name}},
        "added": {"printer": name, "reading": {"$ref": "#/$defs/reading"}},
        "gone": {"printer": name, "reading": {"$ref": "#/$defs/reading"}},
        "renamed": {"printer": name, "oldName": name, "reading": {"$ref": "#/$defs/reading"}},
        "active": {"printer": {"type": ["string", "null"]}},
        "error": {"inError": {"type": "boolean"}, "printersInError": {"type": "integer", "minimum": 0}},
        "spooler": {"running": {"type": "boolean"}},
        "warning": {"printer": name, "slot": {"enum": ["supply", "ribbon1", "ribbon2"]},
                    "concern": {"enum": ["fewLabels", "jobTooLong", "endsInShift"]},
                    "labelsLeft": {"type": ["integer", "null"], "minimum": 0},
                    "labelsWanted": {"type": ["integer", "null"], "minimum": 0}, "text": name},
    }
    forms = []
    for kind, members in kinds.items():
        properties = {"time": time, "event": {"const": kind}, **members}
        forms.append({"type": "object", "properties": properties, "required": list(properties),
                      "additionalProperties": False})
    return {"$schema": "https://json-schema.org/draft/2020-12/schema", "$defs": definitions, "oneOf": forms}


class WatchJson(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with open(SCHEMA, encoding="utf-8") as file:
            cls.validator = jsonschema.Draft202012Validator(described(json.load(file)))

    def watch(self, *arguments):
        with tempfile.TemporaryDirectory() as home:
            environment = dict(os.environ, LC_ALL="C.UTF-8", HOME=home, XDG_CONFIG_HOME=home, XDG_DATA_HOME=home,
                               XDG_RUNTIME_DIR=home, TMPDIR=home)
            output = subprocess.run((VXPRINTMON, "watch", "--json", *arguments), check=True,
                                    stdout=subprocess.PIPE, timeout=LIMIT, env=environment).stdout
        return [json.loads(line) for line in output.splitlines()]

    def check(self, lines):
        for line in lines:
            error = next(self.validator.iter_errors(line), None)
            self.assertIsNone(error, error)
            if line["event"] in READING:
                self.assertEqual(line["printer"], line["reading"]["name"])
        self.assertEqual([line["event"] for line in lines].count("snapshot"), 1)
        self.assertEqual(lines[0]["event"], "snapshot")
        times = [line["time"] for line in lines]
        self.assertEqual(times, sorted(times))

    def test_every_line_of_the_built_in_story_is_valid(self):
        lines = self.watch("--speed", "60", "--for", "4")
        self.check(lines)
        self.assertLess({"snapshot", "changed", "error", "active", "spooler", "warning"},
                        {line["event"] for line in lines} | {"more"})
        warnings = [line for line in lines if line["event"] == "warning"]
        self.assertEqual([(line["printer"], line["slot"], line["concern"], line["labelsLeft"]) for line in warnings],
                         [("Warehouse", "supply", "fewLabels", 67)])

    def test_what_to_warn_of_can_be_chosen(self):
        lines = self.watch("--speed", "60", "--for", "4", "--warn-below", "0", "--job", "100")
        self.check(lines)
        warnings = [line for line in lines if line["event"] == "warning"]
        self.assertEqual([(line["printer"], line["slot"], line["concern"], line["labelsLeft"], line["labelsWanted"])
                          for line in warnings], [("Warehouse", "supply", "jobTooLong", 67, 100)])

    def test_lines_about_printers_that_come_and_go_are_valid(self):
        fleet = {"printers": [{"name": "A", "driver": "Stratamark AlderMax", "values": {"StatusCode": "1"}}],
                 "timeline": [{"at": 10, "printer": "A", "rename": "B"},
                              {"at": 11, "printer": "B", "values": {"StatusCode": "4"}},
                              {"at": 20, "add": {"name": "C", "driver": "Stratamark BirchMax"}},
                              {"at": 30, "printer": "C", "remove": True}, {"at": 40, "printer": "B",
                                                                           "values": {"StatusCode": "1"}}]}
        with tempfile.TemporaryDirectory() as folder:
            name = os.path.join(folder, "fleet.json")
            with open(name, "w", encoding="utf-8") as file:
                json.dump(fleet, file)
            lines = self.watch("--speed", "20", "--for", "5", "--virtual", name)
        self.check(lines)
        self.assertLess(READING, {line["event"] for line in lines})


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
