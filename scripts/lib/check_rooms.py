# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Checks every #include in the tree against the table of rooms in docs/architecture.md.

Usage: check_rooms.py [ROOT]

The first column of a row names one or more rooms (folders or single headers). The last column says what
these may use: rooms and Windows headers in backticks, other libraries by name. A file belongs to the row
that names the longest prefix of its path, and may always use its own row. Prints one line for each
include that the table does not allow, for each cycle among the rooms, and for each file that belongs to
no row. If there is one, the exit status is 1.
"""
import collections
import pathlib
import re
import subprocess
import sys

DOCUMENT = "docs/architecture.md"
HEADING = "## Rooms"
SOURCES = ("*.h", "*.c", "*.cpp", "*.h.in")
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"\n]+)[>"]', re.MULTILINE)

# The beginnings of other libraries' header names, and the name of each library in the table.
LIBRARIES = {
    "Qt": "Qt",
    "json/": "JsonCpp",
    "rapidjson/": "RapidJSON",
    "mosquitto.h": "libmosquitto",
    "sqlite3.h": "SQLite",
    "benchmark/": "Google Benchmark",
    "tl/": "tl::expected",
}
WINDOWS_HEADERS = ("windows.h", "winspool.h", "winsvc.h", "aclapi.h", "sddl.h")


class Row:
    def __init__(self, rooms, uses, text):
        self.rooms = rooms
        self.uses = uses
        self.text = text
        self.name = rooms[0]

    def may_use_everything(self):
        return "everything" in self.text

    def may_use_library(self, library):
        return self.may_use_everything() or library in self.text


def read_table(root):
    text = (root / DOCUMENT).read_text(encoding="utf-8")
    if HEADING not in text:
        sys.exit(f"check_rooms: {DOCUMENT} has no section \"{HEADING}\"")
    rows = []
    for line in text.split(HEADING, 1)[1].split("\n## ", 1)[0].splitlines():
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        rooms = re.findall(r"`([^`]+)`", cells[0])
        if line.startswith("|") and len(cells) == 3 and rooms:
            rows.append(Row(rooms, re.findall(r"`([^`]+)`", cells[2]), cells[2]))
    if not rows:
        sys.exit(f"check_rooms: {DOCUMENT} has no table of rooms under \"{HEADING}\"")
    return rows


def row_of(rows, path):
    """Returns the row that names the longest prefix of the path, or None if no row names one."""
    matches = [(len(room), row) for row in rows for room in row.rooms
               if path == room or (room.endswith("/") and path.startswith(room))]
    return max(matches, key=lambda match: match[0])[1] if matches else None


def is_used(row, target, target_row):
    """Whether a row may use a file: using one room of a row allows all its rooms, but no subfolder that
    has its own row."""
    return target in row.uses or any(used in target_row.rooms for used in row.uses)


def tracked(root):
    listing = subprocess.run(["git", "-C", str(root), "ls-files", "-z", *SOURCES], check=True,
                             capture_output=True, text=True).stdout
    return [path for path in listing.split("\0") if path]


def find_included(path, name, by_name):
    """Returns the files of the tree that an include may refer to. Like the compiler, prefers one in the
    same folder."""
    beside = str(pathlib.PurePosixPath(path).parent / name)
    candidates = by_name.get(pathlib.PurePosixPath(name).name, [])
    if beside in candidates:
        return [beside]
    return [each for each in candidates if each.endswith("/" + name)]


def check_file(path, text, rows, by_name):
    row = row_of(rows, path)
    if not row:
        return [f"{path}:1: does not belong to any room in the table of {DOCUMENT}"]
    if row.may_use_everything():
        return []
    findings = []
    for match in INCLUDE.finditer(text):
        name = match.group(2)
        where = f"{path}:{text.count(chr(10), 0, match.start()) + 1}"
        if name in WINDOWS_HEADERS:
            if "<windows.h>" not in row.uses:
                findings.append(f"{where}: {row.name} may not use <{name}>")
            continue
        library = next((each for prefix, each in LIBRARIES.items() if name.startswith(prefix)), None)
        if match.group(1) == "<" and library:
            if not row.may_use_library(library):
                findings.append(f"{where}: {row.name} may not use {library}")
            continue
        for target in find_included(path, name, by_name):
            target_row = row_of(rows, target)
            if target_row and target_row is not row and not is_used(row, target, target_row):
                findings.append(f"{where}: {row.name} may not use {target_row.name} ({target})")
    return findings


def find_cycles(rows):
    """Reports pairs of rows that the table allows to use each other, directly or indirectly."""
    reached = {}
    for row in rows:
        todo, seen = [row], set()
        while todo:
            for used in todo.pop().uses:
                target = row_of(rows, used)
                if target and target is not row and target.name not in seen:
                    seen.add(target.name)
                    todo.append(target)
        reached[row.name] = seen
    return [f"{DOCUMENT}: {one.name} and {other.name} may use each other"
            for i, one in enumerate(rows) for other in rows[i + 1:]
            if other.name in reached[one.name] and one.name in reached[other.name]]


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
    rows = read_table(root)
    paths = tracked(root)
    by_name = collections.defaultdict(list)
    for path in paths:
        by_name[pathlib.PurePosixPath(path).name.removesuffix(".in")].append(path.removesuffix(".in"))
    findings = find_cycles(rows)
    for path in paths:
        file = root / path
        if file.exists():
            findings += check_file(path, file.read_text(encoding="utf-8"), rows, by_name)
    for finding in findings:
        print(f"check_rooms: {finding}")
    if findings:
        sys.exit(1)


main()
