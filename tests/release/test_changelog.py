# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""CHANGELOG.md is in the usual form, and its newest version is that of the product.

test_changelog.py SOURCE_FOLDER VERSION
"""
import datetime
import pathlib
import re
import sys
import unittest

SOURCES = pathlib.Path(sys.argv[1])
VERSION = sys.argv[2]
KINDS = ("Added", "Changed", "Deprecated", "Removed", "Fixed", "Security")


def faults_of(text, version):
    lines = text.splitlines()
    if lines[:1] != ["# Changelog"]:
        yield "it does not begin with \"# Changelog\""
    headings = [line for line in lines if line.startswith("## ")]
    if headings[:1] != ["## [Unreleased]"]:
        yield "the first section is not [Unreleased]"
    versions = []
    for heading in headings[1:]:
        found = re.fullmatch(r"## \[(\d+)\.(\d+)\.(\d+)\] - (\d{4}-\d{2}-\d{2})", heading)
        if not found:
            yield f"\"{heading}\" is not of the form \"## [1.0.0] - 2026-11-23\""
            continue
        try:
            date = datetime.date.fromisoformat(found[4])
        except ValueError:
            yield f"\"{heading}\": there is no such day"
            continue
        versions.append((tuple(int(part) for part in found.groups()[:3]), date))
    if not versions:
        yield "there is no version"
        return
    newest = ".".join(str(part) for part in versions[0][0])
    if newest != version:
        yield f"the newest version is {newest}, that of the product {version}"
    for newer, older in zip(versions, versions[1:]):
        if newer[0] <= older[0] or newer[1] < older[1]:
            yield f"{newer[0]} is not newer than {older[0]}"
    for kind in re.findall(r"^### (.*)$", text, re.MULTILINE):
        if kind not in KINDS:
            yield f"\"### {kind}\" is none of {', '.join(KINDS)}"
    sections = re.split(r"^## .*$", text, flags=re.MULTILINE)[2:]
    for (number, _), section in zip(versions, sections):
        if not re.search(r"^- ", section, re.MULTILINE):
            yield f"{number} lists nothing"


class Changelog(unittest.TestCase):
    def test_is_in_order(self):
        self.assertEqual(list(faults_of((SOURCES / "CHANGELOG.md").read_text(encoding="utf-8"), VERSION)), [])

    def test_finds_what_is_wrong(self):
        good = "# Changelog\n\n## [Unreleased]\n\n## [1.1.0] - 2027-01-02\n\n### Added\n\n- a\n"
        self.assertEqual(list(faults_of(good, "1.1.0")), [])
        for change, fault in (
                (("[Unreleased]", "[Next]"), "the first section is not [Unreleased]"),
                (("2027-01-02", "2.1.2027"), "\"## [1.1.0] - 2.1.2027\" is not of the form"),
                (("2027-01-02", "2027-02-30"), "there is no such day"),
                (("### Added", "### New"), "\"### New\" is none of"),
                (("- a", "a"), "lists nothing"),
                (("- a\n", "- a\n\n## [1.2.0] - 2026-01-01\n\n- b\n"), "is not newer than (1, 2, 0)"),
                (("1.1.0", "1.0.9"), "the newest version is 1.0.9, that of the product 1.1.0")):
            found = list(faults_of(good.replace(*change), "1.1.0"))
            self.assertTrue(any(fault in each for each in found), (change, found))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
