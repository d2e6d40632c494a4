#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Writes the bill of materials of a package: an SPDX 2.3 document in JSON.

Usage: make_sbom.py --root FOLDER --name NAME --version VERSION --output FILE [OPTION]...
  --root FOLDER          what the package contains, unpacked: for a Debian package the folder with usr/, for a zip
                         the folder with bin/. Of a folder DEBIAN in it nothing is listed.
  --output FILE          may lie in FOLDER; it does not list itself
  --component NAME=VERSION
                         the version of a component of licences.json that neither dpkg nor the file tells
  --licences FILE        in place of licences.json beside this script
  --import-libraries FOLDER
                         where MinGW has its import libraries, from which the DLLs of Windows are known

The document lists every file with its checksums, and every component that the package contains or is linked
with: shared libraries that the programs and libraries name (DT_NEEDED, or a DLL's import table), with the Debian
package that owns each, and what is linked statically, which is found by texts in the files. The folder
vendor/ of the page adds the packages that its LICENSES.txt names.

scripts/lib/licences.json has the licence of each component and which licences a library under MIT can have
beside it. The script ends with exit status 1 and one line, and writes nothing, if a component is not known, if its
licence is not acceptable, or if something under the LGPL is linked statically.

Equal contents give an equal document: its time is that of SOURCE_DATE_EPOCH or, without it, of the newest
version in CHANGELOG.md.
"""
import argparse
import datetime
import fnmatch
import functools
import hashlib
import json
import os
import pathlib
import platform
import re
import subprocess
import sys
import tempfile
import uuid

from collect_dlls import OBJDUMP, comes_with_windows

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROJECT = "VxPrinterStatus"
NAMESPACE = "https://spdx.org/spdxdocs"
OWN_LICENCE = "MIT"
UNKNOWN = "NOASSERTION"
# The kinds of files that SPDX tells apart, by the ends of their names.
TEXTS = {".md", ".txt", ".html", ".css", ".json", ".csv", ".conf", ".yml", ".xml", ".1"}
SOURCES = {".h", ".cpp", ".py", ".js", ".mjs", ".cmake", ".cs", ".qml"}
PICTURES = {".png", ".svg", ".ico"}


class Mistake(Exception):
    """A line that says what is wrong, and where."""


# ---- licences ----------------------------------------------------------------------------------------------

class Component:
    def __init__(self, entry):
        self.name = entry["name"]
        self.licence = entry["licence"]
        self.declared = entry.get("declared", self.licence)
        self.reason = entry["reason"]
        self.debian = entry.get("debian", [])
        self.files = entry.get("files", [])
        self.texts = entry.get("texts", [])
        self.evidence = re.compile(entry["evidence"].encode()) if "evidence" in entry else None
        self.version = re.compile(entry["version"].encode()) if "version" in entry else None


class Licences:
    def __init__(self, path):
        try:
            table = json.loads(path.read_text(encoding="utf-8"))
            self.acceptable = table["acceptable"]
            self.own = table["own"]
            self.components = [Component(entry) for entry in table["components"]]
        except (OSError, ValueError, KeyError) as error:
            raise Mistake(f"{path}: {type(error).__name__}: {error}") from error
        self.path = path

    def is_own(self, name):
        return any(fnmatch.fnmatchcase(name.lower(), pattern) for pattern in self.own)

    def of_file(self, name):
        return next((each for each in self.components
                     if any(fnmatch.fnmatchcase(name.lower(), pattern) for pattern in each.files)), None)

    def of_text(self, place):
        return next((each for each in self.components
                     if any(fnmatch.fnmatchcase(place, pattern) for pattern in each.texts)), None)

    def of_debian(self, source):
        return next((each for each in self.components
                     if any(fnmatch.fnmatchcase(source, pattern) for pattern in each.debian)), None)

    def expect_acceptable(self, what, licence):
        """One of those between which OR lets choose, and all that AND joins."""
        choices = [choice.split(" AND ") for choice in licence.replace("(", "").replace(")", "").split(" OR ")]
        if not any(all(part in self.acceptable for part in choice) for choice in choices):
            raise Mistake(f"{what}: its licence {licence} is none that a library under {OWN_LICENCE} can be linked "
                          f"with; link something else, or add the licence to {self.path.name} with the reason")


# ---- what a package contains -------------------------------------------------------------------------------

class File:
    def __init__(self, root, path):
        self.path = path
        self.place = path.relative_to(root).as_posix()
        self.bytes = path.read_bytes()
        self.is_elf = self.bytes.startswith(b"\x7fELF")
        self.is_pe = self.bytes.startswith(b"MZ")

    @property
    def is_linked(self):
        """Whether it is a program or a shared library, not one for debuggers."""
        return (self.is_elf and self.path.suffix != ".debug") or self.is_pe

    def digest(self, algorithm):
        return hashlib.new(algorithm, self.bytes).hexdigest()

    def needed(self):
        """The names of the shared libraries that it is linked with."""
        if self.is_elf:
            output = run("readelf", "--dynamic", "--wide", self.path)
            return re.findall(r"\(NEEDED\).*\[(.+)\]", output)
        return re.findall(r"DLL Name: (\S+)", run(OBJDUMP, "-p", self.path))

    def kinds(self):
        suffix = self.path.suffix.lower()
        if self.is_elf or self.is_pe:
            return ["BINARY"]
        for kind, suffixes in (("SOURCE", SOURCES), ("IMAGE", PICTURES), ("TEXT", TEXTS)):
            if suffix in suffixes:
                return [kind]
        return ["ARCHIVE" if suffix in (".a", ".gz", ".zip", ".qch") else "OTHER"]


def run(*command, is_failure=lambda status: status != 0):
    try:
        done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              stdin=subprocess.DEVNULL, env={**os.environ, "LC_ALL": "C.UTF-8"}, text=True, check=False)
    except OSError as error:
        raise Mistake(f"{command[0]} cannot be run: {error.strerror}") from error
    if is_failure(done.returncode):
        reason = (done.stderr.strip().splitlines() or [f"exit status {done.returncode}"])[-1]
        raise Mistake(f"{command[0]} {command[1]}: {reason}")
    return done.stdout


def files_in(root, output):
    """All files, sorted by name. Symbolic links are none of their own."""
    found = []
    for path in sorted(root.rglob("*")):
        place = path.relative_to(root)
        if path.is_file() and not path.is_symlink() and path != output and place.parts[0] != "DEBIAN":
            found.append(File(root, path))
    if not found:
        raise Mistake(f"{root}: there are no files")
    return found


def names_in(root):
    """Under what names the loader finds what the package brings along."""
    return {path.name.lower() for path in root.rglob("*") if path.is_file() or path.is_symlink()}


@functools.cache
def libraries_of_system():
    """Where the loader finds each library, by its name."""
    paths = {}
    for name, path in re.findall(r"^\s+(\S+) \([^)]*\) => (\S+)$", run("/sbin/ldconfig", "-p"), re.MULTILINE):
        paths.setdefault(name, path)
    return paths


def debian_packages_of(libraries):
    """For each library that a Debian package owns: the binary package, its version and its source package."""
    libraries_at = {}
    for library in libraries:
        path = libraries_of_system().get(library)
        for place in (path, os.path.realpath(path)) if path else (f"/lib64/{library}",):
            # dpkg knows the names from before /lib became a link to /usr/lib.
            libraries_at[place] = libraries_at[place.removeprefix("/usr")] = library
    if not libraries_at:
        return {}
    # Its status says only that some of the names are nobody's.
    output = run("dpkg-query", "--search", *libraries_at, is_failure=lambda status: status > 1)
    packages = {libraries_at[path]: owners.split(", ")[0]
                for owners, path in re.findall(r"^(?!diversion )(.+?): (/.*)$", output, re.MULTILINE)}
    if not packages:
        return {}
    shown = run("dpkg-query", "--show", "--showformat", "${Package}\t${Version}\t${source:Package}\n",
                *sorted(set(packages.values())))
    described = {line.split("\t")[0]: tuple(line.split("\t")) for line in shown.splitlines()}
    return {library: described[package.split(":")[0]] for library, package in packages.items()}


# ---- what it is linked with --------------------------------------------------------------------------------

class Part:
    """A component as this package has it: the Debian package, the DLLs, what is inside of a file."""

    def __init__(self, component, name, version, purl=None):
        self.component = component
        self.name = name
        self.version = version
        self.purl = purl
        self.files = []


class Bill:
    def __init__(self, arguments, licences):
        self.arguments = arguments
        self.licences = licences
        self.versions = dict(arguments.component)
        self.files = files_in(arguments.root, arguments.output)
        self.present = names_in(arguments.root)
        self.parts = {}
        self.licence_of_bundle = {}
        self.relations = set()  # of names: (who, how, whom)
        self.owners = {}  # of files that are not our own
        for file in self.files:
            self.find_owner(file)
        linked = {file: file.needed() for file in self.files if file.is_linked}
        self.debian = debian_packages_of({library for file, libraries in linked.items() if file.is_elf
                                          for library in libraries if not licences.is_own(library)})
        for file, libraries in linked.items():
            self.find_linked(file, libraries)
            self.find_static(file)
        unknown = self.versions.keys() - {component.name for component in licences.components}
        if unknown:
            raise Mistake(f"--component {sorted(unknown)[0]}: there is no such component in {licences.path.name}")

    def part(self, component, name=None, version=None, purl=None):
        name = name or component.name
        if name not in self.parts:
            self.licences.expect_acceptable(name, component.licence)
            self.parts[name] = Part(component, name, version or self.versions.get(component.name, UNKNOWN), purl)
        part = self.parts[name]
        if version and part.version == UNKNOWN:
            part.version = version
        return part

    def find_owner(self, file):
        if file.place.endswith("vendor/mqtt.js"):
            self.find_packages_of_page(file)
        if not file.is_linked:
            component = self.licences.of_text(file.place)
            if not component:
                return
        elif self.licences.is_own(file.path.name):
            return
        else:
            component = self.licences.of_file(file.path.name)
        if not component:
            raise Mistake(f"{file.place}: it is neither ours nor of a component that {self.licences.path.name} "
                          "names; add it there with its licence")
        part = self.part(component)
        part.files.append(file)
        self.owners[file.place] = part
        self.relations.add((PROJECT, "CONTAINS", part.name))

    def find_packages_of_page(self, file):
        """Those that a heading "name version: licence" of the text beside the bundle names."""
        text = (file.path.parent / "LICENSES.txt").read_text(encoding="utf-8")
        packages = re.findall(r"^-{20,}\n(\S+) (\S+): (\S.*)$", text, re.MULTILINE)
        if not packages:
            raise Mistake(f"{file.place}: LICENSES.txt beside it names no package")
        for name, version, licence in packages:
            component = Component({"name": name, "licence": licence, "reason": "bundled into the page's MQTT client"})
            # Of some there are two versions.
            part = self.part(component, f"{name} {version}", version, f"pkg:npm/{name.replace('@', '%40')}@{version}")
            self.relations.add((PROJECT, "CONTAINS", part.name))
        self.licence_of_bundle[file.place] = " AND ".join(sorted({licence for _, _, licence in packages}))

    def find_linked(self, file, libraries):
        owner = self.owners.get(file.place)
        for library in libraries:
            part = self.linked_part(file, library)
            if part and part is not owner:
                self.relations.add((owner.name if owner else PROJECT, "DYNAMIC_LINK", part.name))

    def linked_part(self, file, library):
        component = self.licences.of_file(library)
        if self.licences.is_own(library) and not component:
            return None if library.lower() in self.present else self.own_part(library)
        if file.is_pe:
            if component:
                return self.part(component)
            if self.arguments.import_libraries and comes_with_windows(library.lower(), self.arguments.import_libraries):
                return None
            raise Mistake(f"{file.place} is linked with {library}, which is part of no component in "
                          f"{self.licences.path.name}, and not of Windows; add it there with its licence")
        if library not in self.debian:
            raise Mistake(f"{file.place} is linked with {library}, which no Debian package owns")
        name, version, source = self.debian[library]
        component = self.licences.of_debian(source)
        if not component:
            raise Mistake(f"{file.place} is linked with {library} of the package {name} (source {source}), which is "
                          f"no component in {self.licences.path.name}; add it there with its licence")
        system = platform.freedesktop_os_release()["ID"]
        return self.part(component, name, version, f"pkg:deb/{system}/{name}@{version.replace(':', '%3A')}")

    def own_part(self, library):
        """A library of ours that another package brings."""
        component = Component({"name": library, "licence": OWN_LICENCE, "reason": f"part of {PROJECT} itself"})
        return self.part(component, library, self.arguments.version)

    def find_static(self, file):
        for component in self.licences.components:
            if not component.evidence or not component.evidence.search(file.bytes):
                continue
            if "LGPL" in component.licence:
                raise Mistake(f"{file.place}: {component.name} is linked statically, which {component.licence} "
                              "does not allow for a library that users cannot link again; link it dynamically")
            found = component.version.search(file.bytes) if component.version else None
            part = self.part(component, version=found[1].decode() if found else None)
            owner = self.owners.get(file.place)
            if part is not owner:
                self.relations.add((owner.name if owner else PROJECT, "STATIC_LINK", part.name))


# ---- the document ------------------------------------------------------------------------------------------

def created():
    epoch = os.environ.get("SOURCE_DATE_EPOCH")
    if epoch:
        if not epoch.isdecimal():
            raise Mistake(f"SOURCE_DATE_EPOCH is \"{epoch}\", expected seconds since 1970")
        return datetime.datetime.fromtimestamp(int(epoch), datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")
    newest = re.search(r"^## \[\d+\.\d+\.\d+\] - (\d{4}-\d{2}-\d{2})$",
                       (ROOT / "CHANGELOG.md").read_text(encoding="utf-8"), re.MULTILINE)
    if not newest:
        raise Mistake("CHANGELOG.md names no version with its date")
    return f"{newest[1]}T00:00:00Z"


def identifier(kind, name):
    """The same for the same name, and different for different ones, with the few characters that SPDX allows."""
    plain = re.sub(r"[^A-Za-z0-9.]+", "-", name).strip("-")
    return f"SPDXRef-{kind}-{plain}-{hashlib.sha256(name.encode()).hexdigest()[:8]}"


def file_entry(bill, file):
    owner = bill.owners.get(file.place)
    return {
        "SPDXID": identifier("File", file.place),
        "fileName": f"./{file.place}",
        "fileTypes": file.kinds(),
        "checksums": [{"algorithm": "SHA1", "checksumValue": file.digest("sha1")},
                      {"algorithm": "SHA256", "checksumValue": file.digest("sha256")}],
        "licenseConcluded": (owner.component.licence if owner else
                             bill.licence_of_bundle.get(file.place, licence_of_text(file))),
        "licenseInfoInFiles": [UNKNOWN],
        "copyrightText": UNKNOWN,
    }


def licence_of_text(file):
    """Texts of licences of others and what they are about are not ours."""
    parts = pathlib.PurePosixPath(file.place).parts
    return UNKNOWN if {"third-party", "vendor"} & {*parts} or file.path.name == "copyright" else OWN_LICENCE


def part_entry(part):
    entry = {
        "SPDXID": identifier("Package", part.name),
        # A package of Debian has its own name, any other is called like the component.
        "name": part.name if part.component.debian and part.purl else part.component.name,
        "versionInfo": part.version,
        "downloadLocation": UNKNOWN,
        "filesAnalyzed": False,
        "licenseConcluded": part.component.licence,
        "licenseDeclared": part.component.declared,
        "licenseComments": part.component.reason,
        "copyrightText": UNKNOWN,
    }
    if part.version == UNKNOWN:
        del entry["versionInfo"]
    if part.purl:
        entry["externalRefs"] = [{"referenceCategory": "PACKAGE-MANAGER", "referenceType": "purl",
                                  "referenceLocator": part.purl}]
    return entry


def verification_code(files):
    """https://spdx.github.io/spdx-spec/v2.3/package-information/, 7.9"""
    return hashlib.sha1("".join(sorted(file.digest("sha1") for file in files)).encode()).hexdigest()


def document(bill):
    arguments = bill.arguments
    main = identifier("Package", arguments.name)
    identifiers = {PROJECT: main, **{name: identifier("Package", name) for name in bill.parts}}
    relations = [("SPDXRef-DOCUMENT", "DESCRIBES", main)]
    for file in bill.files:
        owner = bill.owners.get(file.place)
        relations.append((identifiers[owner.name] if owner else main, "CONTAINS", identifier("File", file.place)))
    relations += sorted((identifiers[who], how, identifiers[whom]) for who, how, whom in bill.relations)
    packages = [{
        "SPDXID": main,
        "name": arguments.name,
        "versionInfo": arguments.version,
        "supplier": f"Organization: The {PROJECT} authors",
        "downloadLocation": UNKNOWN,
        "filesAnalyzed": True,
        "packageVerificationCode": {"packageVerificationCodeValue": verification_code(bill.files)},
        "licenseConcluded": OWN_LICENCE,
        "licenseDeclared": OWN_LICENCE,
        "licenseInfoFromFiles": [UNKNOWN],
        "copyrightText": f"Copyright The {PROJECT} authors",
    }]
    packages += [part_entry(bill.parts[name]) for name in sorted(bill.parts)]
    result = {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": "SPDXRef-DOCUMENT",
        "name": f"{arguments.name}-{arguments.version}",
        "documentNamespace": "",
        "creationInfo": {"created": created(),
                         "creators": [f"Organization: The {PROJECT} authors", "Tool: make_sbom.py"]},
        "documentDescribes": [main],
        "packages": packages,
        "files": [file_entry(bill, file) for file in bill.files],
        "relationships": [{"spdxElementId": who, "relationshipType": how, "relatedSpdxElement": whom}
                          for who, how, whom in relations],
    }
    # Other contents are another document.
    contents = uuid.uuid5(uuid.NAMESPACE_URL, json.dumps(result, sort_keys=True))
    result["documentNamespace"] = f"{NAMESPACE}/{arguments.name}-{arguments.version}-{contents}"
    return result


def parse_arguments():
    parser = argparse.ArgumentParser(prog="make_sbom", allow_abbrev=False)
    parser.add_argument("--root", required=True, type=pathlib.Path)
    parser.add_argument("--name", required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("--output", required=True, type=pathlib.Path)
    parser.add_argument("--component", action="append", default=[], metavar="NAME=VERSION")
    parser.add_argument("--licences", type=pathlib.Path, default=pathlib.Path(__file__).with_name("licences.json"))
    parser.add_argument("--import-libraries", type=pathlib.Path)
    arguments = parser.parse_args()
    arguments.root = arguments.root.resolve()
    arguments.output = arguments.output.resolve()
    if not arguments.root.is_dir():
        raise Mistake(f"{arguments.root}: there is no such folder")
    for name in (arguments.name, arguments.version):
        if not re.fullmatch(r"[A-Za-z0-9][A-Za-z0-9.+~_-]*", name):
            raise Mistake(f"\"{name}\" is no name or version of a package")
    for index, component in enumerate(arguments.component):
        if "=" not in component:
            raise Mistake(f"--component {component}: expected NAME=VERSION")
        arguments.component[index] = component.split("=", 1)
    return arguments


def replace(path, text):
    """Writes a file completely or not at all."""
    path.parent.mkdir(parents=True, exist_ok=True)
    with tempfile.NamedTemporaryFile("w", encoding="utf-8", dir=path.parent, delete=False) as file:
        file.write(text)
    os.chmod(file.name, 0o644)
    os.replace(file.name, path)


def main():
    try:
        arguments = parse_arguments()
        bill = Bill(arguments, Licences(arguments.licences))
        replace(arguments.output, json.dumps(document(bill), indent=2, ensure_ascii=False) + "\n")
    except Mistake as mistake:
        sys.exit(f"make_sbom: {mistake}")
    except OSError as error:
        sys.exit(f"make_sbom: {error.filename}: {error.strerror}")


if __name__ == "__main__":
    main()
