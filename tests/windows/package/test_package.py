# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Tests the package, unpacked where nothing else is available.

Usage: test_package.py monitor ZIP ADD_PRINTER
       test_package.py consumer ZIP SOURCE_FOLDER CMAKE_OPTION...

monitor:  in a new Wine prefix, with printers that ADD_PRINTER adds to Wine's spooler, the monitor
          lists and watches them and loads no DLL but the package's and Wine's own.
consumer: the project of SOURCE_FOLDER finds the package's CMake package, compiles, links and starts.
"""
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

# Name, driver and port of each, and the port and the type that the monitor should show.
PRINTERS = [
    ("Shipping Desk", "Stratamark AlderMax", "USB001", "001", 104),
    ("Lager Süd", "Stratamark CedarMax", "USB002", "002", 103),
    ("Front Office", "Some Office Printer", "LPT1:", "LPT1:", 0),
]


class Failure(Exception):
    pass


def check(holds, text):
    if not holds:
        raise Failure(text)


def run(arguments, folder, **environment):
    """Runs a command and returns what it wrote to its two outputs. The outputs are files, because a
    service that is started in the background keeps a pipe open until it ends."""
    out_path, error_path = folder / "out.txt", folder / "err.txt"
    with open(out_path, "wb") as out, open(error_path, "wb") as error:
        status = subprocess.run(arguments, stdin=subprocess.DEVNULL, stdout=out, stderr=error,
                                env={**os.environ, **environment}, check=False).returncode
    output, errors = (path.read_text(encoding="utf-8", errors="replace")
                      for path in (out_path, error_path))
    shown = " ".join(map(str, arguments))
    check(status == 0, f"{shown}: exit status {status}\n{output}{errors}")
    return output.replace("\r\n", "\n"), errors.replace("\r\n", "\n")


def unpack(archive, folder):
    shutil.unpack_archive(archive, folder)
    (package,) = [path for path in folder.iterdir() if path.is_dir()]
    check(package.name == pathlib.Path(archive).stem, f"the zip contains the folder {package.name}")
    return package


def foreign_dlls(trace, package):
    """The loaded DLLs that belong neither to Wine, whose own are built in, nor to the package."""
    loaded = re.findall(r'Loaded L"([^"]+)" at [^:]*: (\w+)', trace)
    check(loaded, "Wine did not print what it loaded")
    own = "z:" + str(package).replace("/", "\\\\").lower() + "\\\\"
    return [path for path, kind in loaded
            if kind != "builtin" and not path.lower().replace("\\\\??\\\\", "").startswith(own)]


def test_monitor(scratch, archive, add_printer):
    package = unpack(archive, scratch / "unpacked")
    monitor = package / "bin" / "vxprintmon.exe"
    prefix = scratch / "prefix"
    prefix.mkdir()
    wine = {"WINEPREFIX": str(prefix), "WINEPATH": "", "WINEDEBUG": "-all",
            "WINEDLLOVERRIDES": "mscoree,mshtml="}
    try:
        run(["wine", "wineboot", "-i"], scratch, **wine)
        for name, driver, port, _, _ in PRINTERS:
            run(["wine", add_printer, name, driver, port], scratch, **wine)

        listed, trace = run(["wine", monitor, "list"], scratch, **{**wine, "WINEDEBUG": "+loaddll"})
        for name, driver, *_ in PRINTERS:
            check(re.search(f"^{name} .*{driver}", listed, re.MULTILINE),
                  f'list does not show "{name}":\n{listed}')
        check(not foreign_dlls(trace, package),
              f"loaded from elsewhere: {foreign_dlls(trace, package)}")

        records, errors = run(["wine", monitor, "list", "--json"], scratch, **wine)
        found = {record["printerName"]: record for record in json.loads(records)}
        check(not errors and len(found) == len(PRINTERS), f"list --json: {records}{errors}")
        for name, driver, _, port, number in PRINTERS:
            seen = [found[name][key] for key in ("driverName", "portName", "printerType")]
            check(seen == [driver, port, number], f"{name}: {seen}")

        run(["wine", monitor, "watch", "--for", "3"], scratch, **wine)
        lines, errors = run(["wine", monitor, "watch", "--json", "--for", "3"], scratch, **wine)
        check(not errors, f"watch: {errors}")
        for line in lines.splitlines():
            check(json.loads(line)["signal"], f"watch --json: {line}")
    finally:
        subprocess.run(["wineserver", "-k"], env={**os.environ, **wine}, check=False)
        subprocess.run(["wineserver", "-w"], env={**os.environ, **wine}, check=False, timeout=20)


def test_consumer(scratch, archive, source, *options):
    package = unpack(archive, scratch / "unpacked")
    build = scratch / "build"
    run(["cmake", "-S", source, "-B", build, "-G", "Ninja",
         f"-DVxPrinterStatus_DIR={package}/lib/cmake/VxPrinterStatus", *options], scratch)
    run(["cmake", "--build", build], scratch)
    output, _ = run(["wine", build / "consumer.exe"], scratch,
                    WINEPATH="Z:" + str(package / "bin").replace("/", "\\"))
    expected = ["PrinterStatusController", "PrinterStatusThread", "VXIPCM4Controller",
                "VXIPCPRINTQDController", "VXIPCSUPPLYDController", "type 103"]
    check(output.splitlines() == expected, f"the consumer printed:\n{output}")


def main():
    tests = {"monitor": (test_monitor, 2, 2), "consumer": (test_consumer, 2, 99)}
    test, least, most = tests.get(sys.argv[1] if len(sys.argv) > 1 else "", (None, 0, 0))
    if not test or not least <= len(sys.argv) - 2 <= most:
        sys.exit(__doc__.strip())
    check("WINEPREFIX" in os.environ, "WINEPREFIX is not set; scripts/test-windows sets it")
    scratch = pathlib.Path(tempfile.mkdtemp(prefix="vxpackage-"))
    try:
        (scratch / "unpacked").mkdir()
        test(scratch, *sys.argv[2:])
    finally:
        shutil.rmtree(scratch)


if __name__ == "__main__":
    try:
        main()
    except (Failure, subprocess.TimeoutExpired) as failure:
        sys.exit(f"test_package: {failure}")
