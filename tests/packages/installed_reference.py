# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Whether the installed help file for Qt Creator has the pages of the installed site. The clean system of
scripts/test-packages runs it.
"""
import contextlib
import pathlib
import sqlite3
import sys
import zlib

PAGES = pathlib.Path("/usr/share/doc/vxprinterstatus-doc/html")
HELP = pathlib.Path("/usr/share/qt6/doc/vxprinterstatus.qch")

with contextlib.closing(sqlite3.connect(f"file:{HELP}?mode=ro", uri=True)) as file:
    namespaces = [name for name, in file.execute("SELECT Name FROM NamespaceTable")]
    # Each is compressed by Qt, which writes the length before it.
    pages = {name: zlib.decompress(data[4:]) for name, data in file.execute(
        "SELECT FileNameTable.Name, Data FROM FileNameTable JOIN FileDataTable ON FileId = FileDataTable.Id "
        "WHERE Data NOTNULL")}
if namespaces != ["vxprinterstatus"]:
    sys.exit(f"{HELP} has the namespaces {namespaces}, expected vxprinterstatus")
expected = {path.name for path in PAGES.glob("*.html")}
if len(expected) < 100:
    sys.exit(f"there are only {len(expected)} pages in {PAGES}")
missing = sorted(expected - {name for name, data in pages.items() if b"<html" in data})
if missing:
    sys.exit(f"{HELP} has not the pages {', '.join(missing)}")
print(f"{HELP.name} has {len(pages)} files")
