#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Validates the lines of case files against docs/schema/case.schema.json: a file with lines of every
kind, files that were recorded, and what redaction makes of all of them.

usage: test_case_schema.py SCHEMA VXPRINTMON EVERY_KIND RECORD_CASES CATALOGUE
"""

from __future__ import annotations

import copy
import json
import os
import subprocess
import sys
import tempfile
import unittest
from typing import Any

import jsonschema

Json = dict[str, Any]
SCHEMA, VXPRINTMON, EVERY_KIND, RECORD_CASES, CATALOGUE = sys.argv[1:]


def kinds_of(schema: Json) -> list[str]:
    return [each["if"]["properties"]["kind"]["const"] for each in schema["allOf"]]


def strict(schema: Json) -> Json:
    """The schema that refuses members and kinds that it does not name. Readers accept these,
    producers must not write any."""
    result = copy.deepcopy(schema)
    result["properties"]["kind"]["enum"] = kinds_of(schema)
    for definition in result["$defs"].values():
        if "properties" in definition:
            definition["additionalProperties"] = False
    return result


def lines_of(path: str) -> list[Json]:
    with open(path, "rb") as file:
        return [json.loads(line) for line in file.read().decode().splitlines()]


class CaseSchema(unittest.TestCase):
    schema: Json
    folder: tempfile.TemporaryDirectory[str]
    recorded: list[str]

    @classmethod
    def setUpClass(cls) -> None:
        with open(SCHEMA, encoding="utf-8") as file:
            cls.schema = json.load(file)
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        recordings = os.path.join(cls.folder.name, "recorded")
        os.mkdir(recordings)
        subprocess.run([RECORD_CASES, CATALOGUE, recordings], check=True, stdout=subprocess.PIPE,
                       stderr=subprocess.PIPE)
        cls.recorded = [os.path.join(recordings, name) for name in sorted(os.listdir(recordings))]
        cls.strict = jsonschema.Draft202012Validator(strict(cls.schema))
        cls.lenient = jsonschema.Draft202012Validator(cls.schema)

    def check(self, path: str) -> None:
        for number, line in enumerate(lines_of(path), 1):
            error = next(self.strict.iter_errors(line), None)
            self.assertIsNone(error, f"{path}:{number}: {error}")

    def redacted(self, path: str) -> str:
        target = os.path.join(self.folder.name, f"{len(os.listdir(self.folder.name))}.vxcase")
        done = subprocess.run([VXPRINTMON, "case", "redact", path, target], check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.assertEqual(done.returncode, 0, done.stderr.decode())
        return target

    def line(self, kind: str) -> Json:
        return copy.deepcopy(next(line for line in lines_of(EVERY_KIND) if line["kind"] == kind))

    def accepts(self, line: Any) -> bool:
        return self.lenient.is_valid(line)

    def test_the_schema_is_valid(self) -> None:
        jsonschema.Draft202012Validator.check_schema(self.schema)

    def test_every_member_is_described(self) -> None:
        for name, definition in self.schema["$defs"].items():
            for member, schema in definition.get("properties", {}).items():
                self.assertTrue(schema.get("description"), f"{name}.{member}")

    def test_every_kind_is_in_the_file_of_every_kind(self) -> None:
        lines = lines_of(EVERY_KIND)
        self.assertEqual({line["kind"] for line in lines}, set(kinds_of(self.schema)))
        for kind in kinds_of(self.schema):
            found = {member for line in lines if line["kind"] == kind for member in line}
            known = set(self.schema["$defs"][kind]["properties"]) - {"t", "n", "at"}
            self.assertLessEqual(known, found, kind)
        self.check(EVERY_KIND)

    def test_recorded_files_are_valid(self) -> None:
        self.assertGreaterEqual(len(self.recorded), 12)
        for path in self.recorded:
            self.check(path)

    def test_redacted_files_are_valid(self) -> None:
        for path in (EVERY_KIND, *self.recorded):
            redacted = self.redacted(path)
            self.check(redacted)
            # Nothing is left out but texts.
            for before, after in zip(lines_of(path), lines_of(redacted), strict=True):
                self.assertEqual(set(before) - {"message", "product"},
                                 set(after) - {"message", "product"}, before)
                self.assertEqual([sorted(failure) for failure in before.get("failed", [])],
                                 [sorted(failure) for failure in after.get("failed", [])], before)
            self.assertIs(lines_of(redacted)[0]["redacted"], True)

    def test_what_is_wrong_is_refused(self) -> None:
        def changed(kind: str, **members: Any) -> Json:
            return {**self.line(kind), **members}

        for line in (changed("case", version="2.0"), changed("case", version=1),
                     changed("case", redacted="no"), changed("case", time="yesterday"),
                     changed("service", state="stopped"), changed("service", t=-1),
                     changed("printer", name=None), changed("printer", attributes="local"),
                     changed("printer", values=[{"name": "A"}]),
                     changed("printer", values=[{"name": "A", "type": 1, "text": "x", "size": 2}]),
                     changed("printer", values=[{"name": "A", "type": 3, "base64": "*"}]),
                     changed("values", seenBy="nobody"), changed("values", n=1.5),
                     changed("poll", failed=[{"call": "OpenPrinterA"}]),
                     changed("signal", name="clicked"), changed("signal", arguments={"x": 1}),
                     changed("gap", until=-1), {"kind": ""}, {}, [], "case"):
            self.assertFalse(self.accepts(line), line)
        for kind in kinds_of(self.schema):
            for member in self.schema["$defs"][kind]["required"]:
                line = self.line(kind)
                self.assertTrue(self.accepts(line))
                del line[member]
                self.assertFalse(self.accepts(line), line)

    def test_readers_accept_what_they_do_not_know(self) -> None:
        self.assertTrue(self.accepts({"kind": "tomorrow", "t": 1}))
        for kind in kinds_of(self.schema):
            self.assertTrue(self.accepts({**self.line(kind), "tomorrow": [1]}), kind)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
