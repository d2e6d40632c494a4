# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""What a run of tests left in a Wine prefix: keys and values of the registry, files, processes.

Usage: wine_leftovers.py before FILE
       wine_leftovers.py after FILE

`before` writes down what is there. `after` compares, prints what has come or gone, and then its exit
status is 1. WINEPREFIX names the prefix, whose Wine server has to be up.
"""
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

prefix = pathlib.Path(os.environ["WINEPREFIX"])

# What comes and goes whoever runs in a prefix: Wine counts the starts of services, writes down the
# screens it finds, and makes the keys that drivers and printers are under with the first of them. And
# the library's own: the folder in which endpoints of several processes tell of each other, and there
# those of a process that a test has killed and that could not take leave.
EXPECTED = re.compile(
    r"\[HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\(ServiceCurrent|Video)\b"
    r"|\\Print\\Environments\\Windows x64\\Drivers(\\Version-3)?\] ?$"
    r"|\\Windows NT\\CurrentVersion\\(Devices|PrinterPorts|Windows)\] ?$"
    r"|drive_c/users/[^/]+/Temp/vxipc(/vxipc-\d+)?$")


def registry():
    """A line for each key and each value, with the key's path before it."""
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
    """The programs that run in the prefix, Wine's own left out."""
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
        print("wine_leftovers: the tests left their traces:", *differences, sep="\n")
        sys.exit(1)


main()
