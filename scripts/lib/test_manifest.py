# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Writes the manifest of the packed Windows tests, and copies what they need.

Usage: test_manifest.py BUILD_FOLDER SOURCE_FOLDER VERSION TARGET_FOLDER

The tests are those that CTest runs in BUILD_FOLDER. TARGET_FOLDER gets manifest.json, the programs of the
tests at the same relative paths as in BUILD_FOLDER, and in its subfolder `source` the files of SOURCE_FOLDER
that the build has told them of (the definitions with such paths in build.ninja). Tests that are scripts of
the build machine are in the manifest with the reason why they cannot run elsewhere.
"""
import json
import pathlib
import re
import shutil
import subprocess
import sys

# A definition of a path, as build.ninja has it: -DVX_ROLLDB=\"/path\" with the shell's or ninja's escapes.
PATH_DEFINITION = re.compile(r'-D(\w+)=\\*"(/[^"\\]+)\\*"')
# They are in labels for the kit, and in no environment that a program would see.
LABELS = {
    "needs_administrator": "needsAdministrator",
    "stops_spooler": "stopsSpooler",
    "only_stops_spooler": "onlyStopsSpooler",
    "opens_windows": "opensWindows",
}
# Qt for Windows has no offscreen platform, and the kit sets Qt up itself. The others are of the build machine.
NOT_FOR_WINDOWS = re.compile(r"QT_|VX_NEEDS_DISPLAY$|VX_TEST_|WINE")
# What scripts need, by what their command names.
REASONS = (
    ("cmake", "builds the examples with CMake and MinGW, which only the build machine has"),
    ("pack-windows", "packs the build, which only the build machine has"),
    ("python", "is a Python script that drives Wine, a terminal, a broker or a compiler of the build machine"),
)
# These use what another test builds.
BUILT_BY_TESTS = {
    "tst_installed_package": "runs the examples that the test installed_package builds on the build machine",
}


class Packing:
    def __init__(self, build, source, target):
        self.build, self.source, self.target = build, source, target

    def place(self, path):
        """Where the kit has a file of the build tree or of the sources; None if it is of neither."""
        if path.is_relative_to(self.build):
            return path.relative_to(self.build)
        if path.is_relative_to(self.source):
            return pathlib.Path("source") / path.relative_to(self.source)
        return None

    def copy(self, path):
        place = self.place(path)
        target = self.target / place
        target.parent.mkdir(parents=True, exist_ok=True)
        if path.is_dir():
            shutil.copytree(path, target, dirs_exist_ok=True)
        elif not target.exists():
            shutil.copy2(path, target)

    def files_of_definitions(self):
        """Copies what the tests' definitions name. Folders of the build tree are left out: tests create
        files there."""
        text = (self.build / "build.ninja").read_text(encoding="utf-8")
        for line in text.splitlines():
            if not line.startswith("  DEFINES = "):
                continue
            for name, value in PATH_DEFINITION.findall(line):
                path = pathlib.Path(value)
                if name in ("VX_BUILD_ROOT", "VX_SOURCE_ROOT") or self.place(path) is None:
                    continue
                if not path.exists() or path.is_relative_to(self.build) and not path.is_file():
                    continue
                if path.is_relative_to(self.build) and path.is_relative_to(self.build / "bin"):
                    continue  # installed, and packed as such
                if path not in (self.build, self.source):
                    self.copy(path)

    def companions(self):
        """Programs beside the tests that they start by their names."""
        for path in sorted((self.build / "tests").rglob("*.exe")):
            if "CMakeFiles" not in path.parts and path.relative_to(self.build).parts[1] != "host":
                self.copy(path)


def property_of(test, name, default):
    for entry in test.get("properties", []):
        if entry["name"] == name:
            return entry["value"]
    return default


def entry_of(test, packing):
    name, command = test["name"], test.get("command", [])
    entry = {"name": name}
    program = next((pathlib.Path(word) for word in command if word.endswith(".exe")), None)
    # A test of the build is its own command, behind the program that starts Wine.
    if name in BUILT_BY_TESTS:
        entry["notPossible"] = BUILT_BY_TESTS[name]
        return entry
    position = command.index(str(program)) if program else -1
    if program is None or position > 1 or (position == 1 and pathlib.Path(command[0]).name != "run-under-wine"):
        words = " ".join(command)
        entry["notPossible"] = next((reason for word, reason in REASONS if word in words),
                                    "is a script of the build machine")
        return entry
    entry["program"] = str(packing.place(program))
    entry["arguments"] = command[position + 1:]
    environment = dict(variable.split("=", 1) for variable in property_of(test, "ENVIRONMENT", []))
    entry["environment"] = {key: value for key, value in environment.items() if not NOT_FOR_WINDOWS.match(key)}
    entry["locks"] = property_of(test, "RESOURCE_LOCK", [])
    for label in property_of(test, "LABELS", []):
        if label in LABELS:
            entry[LABELS[label]] = True
    for word in [*entry["arguments"], *entry["environment"].values()]:
        if str(packing.build) in word or str(packing.source) in word:
            sys.exit(f"test_manifest: {name} is given a path of the build machine: {word}")
    return entry


def compiler(build):
    (found,) = build.glob("CMakeFiles/*/CMakeCXXCompiler.cmake")
    text = found.read_text(encoding="utf-8")
    return " ".join(re.search(rf'set\(CMAKE_CXX_COMPILER_{what} "([^"]*)"\)', text).group(1)
                    for what in ("ID", "VERSION"))


def main():
    if len(sys.argv) != 5:
        sys.exit(__doc__.strip())
    build, source = (pathlib.Path(word).resolve() for word in sys.argv[1:3])
    version, target = sys.argv[3], pathlib.Path(sys.argv[4])
    packing = Packing(build, source, target)
    listing = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], check=True,
                             capture_output=True, text=True)
    entries = [entry_of(test, packing) for test in json.loads(listing.stdout)["tests"]]
    if not entries:
        sys.exit(f"test_manifest: CTest lists no tests in {build}")
    packing.files_of_definitions()
    packing.companions()
    for entry in entries:
        if "program" in entry and not (target / entry["program"]).is_file():
            sys.exit(f"test_manifest: the program of {entry['name']} was not built: {entry['program']}")
    entries.sort(key=lambda entry: ("notPossible" in entry, entry["name"]))
    manifest = {"version": version, "compiler": compiler(build), "tests": entries}
    (target / "manifest.json").write_text(json.dumps(manifest, indent=1) + "\n", encoding="utf-8")
    possible = sum(1 for entry in entries if "program" in entry)
    print(f"test_manifest: {len(entries)} tests, {possible} of which can run elsewhere", file=sys.stderr)


if __name__ == "__main__":
    main()
