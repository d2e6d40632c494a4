# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Tests the package, unpacked where nothing else is available.

Usage: test_package.py monitor ZIP ADD_PRINTER
       test_package.py window ZIP ADD_PRINTER [PICTURE]
       test_package.py consumer ZIP SOURCE_FOLDER CMAKE_OPTION...
       test_package.py site ZIP
       test_package.py bill ZIP
       test_package.py hosts ZIP

monitor:  in a new Wine prefix, with printers that ADD_PRINTER adds to Wine's spooler, the monitor
          lists and watches them and loads no DLL but the package's and Wine's own. The catalogue is
          built with the package.
window:   the same for the window, which shows printers on the display
          VX_TEST_DISPLAY. Its picture is kept in PICTURE.
consumer: the project of SOURCE_FOLDER finds the package's CMake package, compiles, links and starts.
site:     the page, the configurations and the guides are there, the agent accepts its examples, and the
          licences of everything that others have written are there.
hosts:    what people write hosts with is there: the bindings and the examples as in the sources, the reference without
          a dead link, and the same as a help file.
bill:     the bill of materials names every file of the package with its checksum, and what it is linked with.
"""
import collections
import contextlib
import fnmatch
import hashlib
import json
import os
import pathlib
import re
import shutil
import sqlite3
import struct
import subprocess
import sys
import tempfile
import zlib

# Name, driver and port of each, and the port and the type that the monitor should show.
PRINTERS = [
    ("Shipping Desk", "Stratamark AlderMax", "USB001", "001", 104),
    ("Lager Süd", "Stratamark CedarMax", "USB002", "002", 103),
    ("Front Office", "Some Office Printer", "LPT1:", "LPT1:", 0),
]

# The same with what their drivers publish.
WINDOW_PRINTERS = [
    ("Shipping", "Stratamark AlderMax", "USB001", "StatusCode=4",
     "SupplyIdentifier=000000641000070000A7", "Ribbon1Identifier=#2001", "Ribbon2Identifier=#2004",
     "Mileage=#24385", "Ribbon1Mileage=#96013", "Ribbon2Mileage=#42006",
     "SoftwareVersion=4.2.0,boot 1.7"),
    ("Warehouse", "Stratamark Alder", "USB002", "StatusCode=1",
     "SupplyIdentifier=00000258100039000013", "Ribbon1Identifier=#2012", "Ribbon2Identifier=#2011",
     "Mileage=#82", "Ribbon1Mileage=#3", "Ribbon2Mileage=#57", "SoftwareVersion=4.1.3,boot 1.7"),
    ("Returns", "Stratamark BirchMax", "USB003", "StatusCode=1"),
]
WINDOW_COLORS = {"a printer with an error": bytes.fromhex("970d1d"),
                 "a bar in its own colour": bytes.fromhex("ff6a13")}
SOURCES = pathlib.Path(__file__).resolve().parents[3]
SET_UP_WINDOWS = SOURCES / "scripts/lib/set-up-wine-windows"
sys.path.append(str(SOURCES / "tests/support"))
from site_files import differences  # noqa: E402
# What is written here, under LICENSE. The others name their licences in README.txt.
OWN_DLLS = ("vx*.dll", "CuteLogger.dll")
LICENCE_TEXTS = {"mosquitto-EDL-1.0.txt": "Eclipse Distribution License - v 1.0",
                 "OpenSSL-Apache-2.0.txt": "Apache License", "LGPL-3.txt": "GNU LESSER GENERAL PUBLIC LICENSE",
                 "GPL-3.txt": "GNU GENERAL PUBLIC LICENSE", "GCC.txt": "GCC RUNTIME LIBRARY EXCEPTION",
                 "MinGW-w64.txt": "mingw-w64", "Qt.txt": "src/3rdparty/pcre2"}


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


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def foreign_dlls(trace, package):
    """The loaded DLLs that belong neither to Wine, whose own are built in, nor to the package."""
    loaded = re.findall(r'Loaded L"([^"]+)" at [^:]*: (\w+)', trace)
    check(loaded, "Wine did not print what it loaded")
    own = windows_path(package).replace("\\", "\\\\").lower() + "\\\\"
    return [path for path, kind in loaded
            if kind != "builtin" and not path.lower().replace("\\\\??\\\\", "").startswith(own)]


@contextlib.contextmanager
def new_wine(scratch):
    """The environment of a new Wine prefix, whose processes have ended afterwards."""
    prefix = scratch / "prefix"
    prefix.mkdir()
    wine = {"WINEPREFIX": str(prefix), "WINEPATH": "", "WINEDEBUG": "-all",
            "WINEDLLOVERRIDES": "mscoree,mshtml="}
    try:
        run(["wine", "wineboot", "-i"], scratch, **wine)
        yield wine
    finally:
        subprocess.run(["wineserver", "-k"], env={**os.environ, **wine}, check=False)
        subprocess.run(["wineserver", "-w"], env={**os.environ, **wine}, check=False, timeout=20)


def colors_of(picture):
    """How often each colour is in a PNG file of 8 bits a channel, and its width and height."""
    data = picture.read_bytes()
    check(data[:8] == b"\x89PNG\r\n\x1a\n", f"{picture.name} is not a PNG file")
    width, height, depth, kind, _, _, interlaced = struct.unpack(">IIBBBBB", data[16:29])
    channels = {2: 3, 6: 4}.get(kind)
    check(depth == 8 and channels and not interlaced, f"{picture.name} has an unexpected form")
    packed, place = b"", 8
    while place < len(data):
        size, = struct.unpack(">I", data[place:place + 4])
        if data[place + 4:place + 8] == b"IDAT":
            packed += data[place + 8:place + 8 + size]
        place += size + 12
    lines = zlib.decompress(packed)
    colors, above = collections.Counter(), bytes(width * channels)
    for row in range(height):
        start = row * (width * channels + 1)
        line = bytearray(lines[start + 1:start + 1 + width * channels])
        for index in range(len(line)):
            left = line[index - channels] if index >= channels else 0
            up = above[index]
            corner = above[index - channels] if index >= channels else 0
            line[index] = (line[index] + predicted(lines[start], left, up, corner)) & 255
        above = bytes(line)
        colors.update(above[pixel:pixel + 3] for pixel in range(0, len(above), channels))
    return colors, width, height


def predicted(method, left, up, corner):
    """What a PNG's filter expects of a byte (ISO/IEC 15948, 9.2)."""
    if method == 4:
        estimate = left + up - corner
        return min((left, up, corner), key=lambda byte: abs(estimate - byte))
    return (0, left, up, (left + up) // 2)[method]


def test_window(scratch, archive, add_printer, picture=None):
    package = unpack(archive, scratch / "unpacked")
    catalogue = package / "bin" / "roll.db"
    shown = scratch / "window.png"
    check("VX_TEST_DISPLAY" in os.environ, "VX_TEST_DISPLAY is not set; scripts/test-windows sets it")
    with new_wine(scratch) as wine:
        wine["DISPLAY"] = os.environ["VX_TEST_DISPLAY"]
        run([SET_UP_WINDOWS], scratch, **wine)
        run(["wineserver", "-k"], scratch, **wine)
        for printer in WINDOW_PRINTERS:
            run(["wine", add_printer, *printer], scratch, **wine)
        tables = package / "share" / "VxPrinterStatus" / "supplies"
        run(["wine", package / "bin" / "rolldb.exe", "build", windows_path(tables),
             windows_path(catalogue)], scratch, **wine)
        # On a slow machine, the printers have not reported after a few seconds.
        for seconds in ("6", "30", "120"):
            _, trace = run(["wine", package / "bin" / "vxprintview.exe", "--screenshot",
                            windows_path(shown), "--after", seconds, "--size", "1200x760"], scratch,
                           **{**wine, "WINEDEBUG": "+loaddll"})
            colors, width, height = colors_of(shown)
            missing = [what for what, color in WINDOW_COLORS.items() if colors[color] < 100]
            if not missing:
                break
    check(not missing, f"the picture does not show {missing}: {colors.most_common(20)}")
    check((width, height) == (1200, 760), f"the picture has {width} x {height} pixels")
    check(not foreign_dlls(trace, package), f"loaded from elsewhere: {foreign_dlls(trace, package)}")
    for plugin in ("qwindows.dll", "qwindowsvistastyle.dll", "qsqlite.dll"):
        check(plugin in trace.lower(), f"the window does not load {plugin}")
    if picture:
        shutil.copy(shown, picture)


def test_monitor(scratch, archive, add_printer):
    package = unpack(archive, scratch / "unpacked")
    monitor = package / "bin" / "vxprintmon.exe"
    catalogue = package / "bin" / "roll.db"
    with new_wine(scratch) as wine:
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

        # A user who begins: there is no catalogue yet, and one is built from the package's tables.
        _, errors = run(["wine", monitor, "watch", "--for", "1"], scratch, **wine)
        check(f"there is no catalogue {windows_path(catalogue)}" in errors, f"watch: {errors}")
        tables = package / "share" / "VxPrinterStatus" / "supplies"
        run(["wine", package / "bin" / "rolldb.exe", "build", windows_path(tables),
             windows_path(catalogue)], scratch, **wine)

        lines, errors = run(["wine", monitor, "watch", "--for", "3"], scratch, **wine)
        check(not errors and PRINTERS[0][0] in lines, f"watch: {lines}{errors}")
        lines, errors = run(["wine", monitor, "watch", "--json", "--for", "3"], scratch, **wine)
        snapshot = json.loads(lines.splitlines()[0])
        watched = sorted(reading["name"] for reading in snapshot["printers"])
        check(not errors and snapshot["event"] == "snapshot"
              and watched == sorted(name for name, *_, number in PRINTERS if number),
              f"watch --json: {lines}{errors}")
        lines, errors = run(["wine", monitor, "watch", "--json", "--signals", "--for", "3"], scratch,
                            **wine)
        check(not errors, f"watch --json --signals: {errors}")
        for line in lines.splitlines():
            check(json.loads(line)["signal"], f"watch --json --signals: {line}")


def test_consumer(scratch, archive, source, *options):
    package = unpack(archive, scratch / "unpacked")
    build = scratch / "build"
    run(["cmake", "-S", source, "-B", build, "-G", "Ninja",
         f"-DVxPrinterStatus_DIR={package}/lib/cmake/VxPrinterStatus", *options], scratch)
    run(["cmake", "--build", build], scratch)
    output, _ = run(["wine", build / "consumer.exe"], scratch,
                    WINEPATH=windows_path(package / "bin"))
    expected = ["PrinterStatusController", "PrinterStatusThread", "VXIPCM4Controller",
                "VXIPCPRINTQDController", "VXIPCSUPPLYDController", "type 103"]
    check(output.splitlines() == expected, f"the consumer printed:\n{output}")


def test_licences(package):
    folder = package / "share/doc/VxPrinterStatus/third-party"
    index = (folder / "README.txt").read_text(encoding="utf-8")
    described = [line.split(": ")[0].split(", ") for line in index.splitlines() if not line.startswith(" ")]
    patterns = [pattern for line in described for pattern in line]
    for path in (package / "bin").rglob("*.dll"):
        name = path.relative_to(package / "bin").as_posix()
        own = any(fnmatch.fnmatchcase(name, pattern) for pattern in OWN_DLLS)
        check(own or any(fnmatch.fnmatchcase(name, pattern) for pattern in patterns),
              f"README.txt names no licence of {name}")
    texts = {path.name: path.read_text(encoding="utf-8") for path in folder.glob("*.txt")}
    del texts["README.txt"]
    check(texts.keys() == LICENCE_TEXTS.keys(), f"the licences are {sorted(texts)}")
    for name, text in LICENCE_TEXTS.items():
        check(name in index, f"README.txt does not name {name}")
        check(text.lower() in texts[name].lower(), f"{name} has no {text!r}")
    check("OpenSSL" in index and re.search(r"openssl [0-9]", index) and re.search(r"mosquitto [0-9]", index),
          f"README.txt does not name the sources:\n{index}")


def test_site(scratch, archive):
    package = unpack(archive, scratch / "unpacked")
    site = package / "share/VxPrinterStatus"
    # The service manager of Windows is another.
    check(not differences(SOURCES, site, left_out="deploy/systemd"),
          str(differences(SOURCES, site, left_out="deploy/systemd")))
    check("mqtt" in (site / "web/vendor/LICENSES.txt").read_text(encoding="utf-8"),
          "the licences of the page's bundle are missing")
    test_licences(package)
    examples = sorted((site / "deploy").rglob("agent.json"))
    check(len(examples) == 2, f"the examples are {examples}")
    with new_wine(scratch) as wine:
        for example in examples:
            run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes",
                 "-subj", "/CN=plant", "-days", "1", "-keyout", scratch / "plant.key",
                 "-out", example.parent / "plant-ca.pem"], scratch)
            password = example.parent / "mqtt-password"
            password.touch(mode=0o600)
            password.write_text("secret\n", encoding="ascii")
            output, _ = run(["wine", package / "bin/vxprintagent.exe", "check", "--config", windows_path(example)],
                            scratch, **wine)
            check(output == f"{windows_path(example)} is a valid configuration\n", output)


def test_bill(scratch, archive):
    package = unpack(archive, scratch / "unpacked")
    bill = package / "share/doc/VxPrinterStatus/VxPrinterStatus.spdx.json"
    document = json.loads(bill.read_text(encoding="utf-8"))
    sums = {"./" + path.relative_to(package).as_posix(): hashlib.sha256(path.read_bytes()).hexdigest()
            for path in package.rglob("*") if path.is_file() and path != bill}
    listed = {entry["fileName"]: entry["checksums"][1]["checksumValue"] for entry in document["files"]}
    check(listed == sums, f"files are missing, added or changed: {sorted(listed.items() ^ sums.items())}")
    packages = {entry["SPDXID"]: entry for entry in document["packages"]}
    relations = {(packages[each["spdxElementId"]]["name"], each["relationshipType"],
                  packages[each["relatedSpdxElement"]]["name"]) for each in document["relationships"]
                 if {each["spdxElementId"], each["relatedSpdxElement"]} <= packages.keys()}
    for relation in (("VxPrinterStatus-win64", "DYNAMIC_LINK", "Qt"), ("VxPrinterStatus-win64", "CONTAINS", "Qt"),
                     ("VxPrinterStatus-win64", "DYNAMIC_LINK", "mosquitto"), ("mosquitto", "STATIC_LINK", "OpenSSL"),
                     ("Qt", "STATIC_LINK", "SQLite"), ("Qt", "DYNAMIC_LINK", "GCC run-time libraries"),
                     ("VxPrinterStatus-win64", "CONTAINS", "winpthreads"),
                     ("VxPrinterStatus-win64", "CONTAINS", "mqtt")):
        check(relation in relations, f"the bill of materials does not say {' '.join(relation)}")
    for name in ("Qt", "mosquitto", "OpenSSL", "SQLite", "GCC run-time libraries", "winpthreads"):
        entry = next(entry for entry in packages.values() if entry["name"] == name)
        check(re.match(r"\d+\.\d", entry.get("versionInfo", "")), f"the bill of materials has no version of {name}")


def contents_of(folder):
    return {path.relative_to(folder).as_posix(): path.read_bytes() for path in folder.rglob("*")
            if path.is_file() and not {"__pycache__", ".mypy_cache"} & {*path.parts}}


def test_hosts(scratch, archive):
    package = unpack(archive, scratch / "unpacked")
    for name in ("bindings/python", "bindings/csharp", "examples"):
        installed, expected = contents_of(package / "share/VxPrinterStatus" / name), contents_of(SOURCES / name)
        # The clients of the status service are elsewhere.
        expected = {path: data for path, data in expected.items() if not path.startswith("clients/")}
        check(expected and installed == expected,
              f"{name} differs from the sources: {sorted(path for path, _ in installed.items() ^ expected.items())}")
    reference = package / "share/doc/VxPrinterStatus"
    run([sys.executable, "-B", SOURCES / "scripts/lib/check_links.py", "--html", reference / "html"], scratch)
    with contextlib.closing(sqlite3.connect(f"file:{reference}/vxprinterstatus.qch?mode=ro", uri=True)) as file:
        namespaces = file.execute("SELECT Name FROM NamespaceTable").fetchall()
        pages = {name for name, in file.execute("SELECT Name FROM FileNameTable")}
    check(namespaces == [("vxprinterstatus",)], f"the help file has the namespaces {namespaces}")
    missing = sorted({path.name for path in (reference / "html").glob("*.html")} - pages)
    check(len(pages) > 100 and not missing, f"the help file has {len(pages)} files, and not {missing}")


def main():
    tests = {"monitor": (test_monitor, 2, 2), "window": (test_window, 2, 3), "consumer": (test_consumer, 2, 99),
             "site": (test_site, 1, 1), "bill": (test_bill, 1, 1), "hosts": (test_hosts, 1, 1)}
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
