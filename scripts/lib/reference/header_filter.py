# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Doxygen's filter for headers: a guide that a comment names becomes a link to its page.

Usage: header_filter.py FIRST [FILE...] HEADER

The header FIRST has the contents of the FILEs added. As inputs of their own they would be listed among the headers.
"""
import pathlib
import re
import sys

first, *files, header = map(pathlib.Path, sys.argv[1:])
for line in header.read_text(encoding="utf-8").splitlines(keepends=True):
    if "///" in line or line.lstrip().startswith(("*", "/*", "//")):
        line = re.sub(r"`?\bdocs/([a-z0-9-]+)\.md\b`?", r'<a href="\1.html">docs/\1.md</a>', line)
        line = re.sub(r"`?\bdocs/schema/([a-z]+)\.schema\.json\b`?",
                      r'<a href="schema-\1.html">docs/schema/\1.schema.json</a>', line)
    sys.stdout.write(line)
if header == first:
    for file in files:
        sys.stdout.write(file.read_text(encoding="utf-8"))
