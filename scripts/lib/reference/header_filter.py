# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Doxygen's filter for headers: a guide that a comment names becomes a link to its page.

Usage: header_filter.py FIRST [FILE...] HEADER

The header FIRST has the contents of the FILEs added. As inputs of their own they would be listed among the headers.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[3]


def link(found):
    """A link to the page of a guide or schema; the name as it is if there is none in the tree."""
    path = found["path"]
    if not (ROOT / path).exists():
        return found[0]
    name = pathlib.PurePosixPath(path).name.partition(".")[0]
    return f'<a href="{"schema-" if path.endswith(".json") else ""}{name}.html">{path}</a>'


first, *files, header = map(pathlib.Path, sys.argv[1:])
for line in header.read_text(encoding="utf-8").splitlines(keepends=True):
    if "///" in line or line.lstrip().startswith(("*", "/*", "//")):
        line = re.sub(r"`?\b(?P<path>docs/(?:[a-z0-9-]+\.md|schema/[a-z]+\.schema\.json))\b`?", link, line)
    sys.stdout.write(line)
if header == first:
    for file in files:
        sys.stdout.write(file.read_text(encoding="utf-8"))
