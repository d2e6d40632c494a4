# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Finds what a test run left in a Wine prefix: keys and values of the registry, files, processes.

Usage: wine_leftovers.py before FILE
       wine_leftovers.py after FILE

`before` records the current state in FILE. `after` compares the state with FILE and prints what was added
(+) or removed (-); if anything was, the exit status is 1. WINEPREFIX is the prefix, whose Wine server has to
be running.
"""
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

prefix = pathlib.Path(os.environ["WINEPREFIX"])

# Changes that any run causes. Wine counts the starts of services, records the screens that it finds, and
# creates the parent keys of drivers and printers with the first of them. Its "Temporary System Parameters" are
# volatile: reading a setting of the mouse or the desktop for the first time creates the key of the setting.
# When a program first asks for certificates, Wine copies those that the build machine trusts. The library
# creates the folder in which processes publish their endpoints; a process that a test has killed leaves its
# entry there.
EXPECTED = re.compile(
    r"\[HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\(ServiceCurrent|Video)\b"
    r"|\\Print\\Environments\\Windows x64\\Drivers(\\Version-3)?\] ?$"
    r"|\\Windows NT\\CurrentVersion\\(Devices|PrinterPorts|Windows)\] ?$"
    r"|\\Software\\Wine\\Temporary System Parameters\\"
    r"|\\Microsoft\\SystemCertificates(\\|\])"
    r"|drive_c/users/[^/]+/Temp/vxipc(/vxipc-\d+)?$")


def registry():
    """Returns a line for each key and for each value; a value's line begins with the path of its key."""
    with tempfile.TemporaryDirectory() as folder:
        export = pathlib.Path(folder) / "all.reg"
        subprocess.run(["wine", "regedit", "/E", "Z:" + str(export).replace("/", "\\")], check=True,
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=50)
        text = export.read_text(encoding="utf-16")
    lines, key = [], ""
    for line in text.replace("\\\n", "").splitlines():
        if line.startswith("["):
            key = line
        lines.append(key if line == key else f"{key} {line}")
    return lines


def files():
    return [str(path.relative_to(prefix)) for path in (prefix / "drive_c").rglob("*")]


def processes():
    """Returns the programs that run in the prefix, except for Wine's own."""
    names = []
    for folder in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            environment = (folder / "environ").read_bytes().split(b"\0")
            name = (folder / "cmdline").read_bytes().split(b"\0")[0].decode(errors="replace")
        except OSError:
            continue
        if f"WINEPREFIX={prefix}".encode() not in environment or not name.endswith(".exe"):
            continue
        if not name.lower().startswith("c:\\windows\\"):
            names.append(f"process {name}")
    return names


def state():
    lines = registry() + files() + processes()
    return sorted({line for line in lines if not EXPECTED.search(line)})


def main():
    if len(sys.argv) != 3 or sys.argv[1] not in ("before", "after"):
        sys.exit(__doc__.strip())
    record = pathlib.Path(sys.argv[2])
    if sys.argv[1] == "before":
        record.write_text(json.dumps(state()), encoding="utf-8")
        return
    before, after = set(json.loads(record.read_text(encoding="utf-8"))), set(state())
    differences = [f"+ {line}" for line in sorted(after - before)]
    differences += [f"- {line}" for line in sorted(before - after)]
    if differences:
        print("wine_leftovers: the tests have changed the prefix:", *differences, sep="\n")
        sys.exit(1)


main()
