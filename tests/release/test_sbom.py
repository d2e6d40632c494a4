# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The bill of materials of a package says what is in it and what it is linked with, or is refused.

test_sbom.py SOURCE_FOLDER PROGRAM LIBRARY
"""
import copy
import hashlib
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCES = pathlib.Path(sys.argv[1])
PROGRAM, LIBRARY = map(pathlib.Path, sys.argv[2:4])
SCRIPT = SOURCES / "scripts/lib/make_sbom.py"
LICENCES = json.loads((SOURCES / "scripts/lib/licences.json").read_text(encoding="utf-8"))
LIMIT = 600  # seconds; ends what hangs
# Identifiers of https://spdx.org/licenses that licences.json may use.
SPDX_LICENCES = {"0BSD", "Apache-2.0", "BSD-2-Clause", "BSD-3-Clause", "blessing", "EPL-2.0", "GPL-2.0-only",
                 "GPL-3.0-only", "GPL-3.0-or-later WITH GCC-exception-3.1", "IJG", "ISC", "LGPL-2.1-or-later",
                 "LGPL-3.0-only", "libpng-2.0", "MIT", "Zlib"}
# https://spdx.github.io/spdx-spec/v2.3/: what must be there, and what else may be there.
REQUIRED_OF_DOCUMENT = {"spdxVersion", "dataLicense", "SPDXID", "name", "documentNamespace", "creationInfo", "packages",
                        "files", "relationships"}
OPTIONAL_OF_DOCUMENT = {"annotations", "comment", "documentDescribes", "externalDocumentRefs",
                        "hasExtractedLicensingInfos", "snippets"}
REQUIRED_OF_PACKAGE = {"SPDXID", "name", "downloadLocation", "licenseConcluded", "licenseDeclared", "copyrightText",
                       "filesAnalyzed"}
OPTIONAL_OF_PACKAGE = {"annotations", "attributionTexts", "checksums", "comment", "description", "externalRefs",
                       "homepage", "licenseComments", "licenseInfoFromFiles", "originator", "packageFileName",
                       "packageVerificationCode", "primaryPackagePurpose", "sourceInfo", "summary", "supplier",
                       "versionInfo"}
REQUIRED_OF_FILE = {"SPDXID", "fileName", "checksums", "licenseConcluded", "licenseInfoInFiles", "copyrightText"}
OPTIONAL_OF_FILE = {"annotations", "attributionTexts", "comment", "fileContributors", "fileTypes", "licenseComments",
                    "noticeText"}
RELATIONS = {"DESCRIBES", "CONTAINS", "DYNAMIC_LINK", "STATIC_LINK"}
FILE_TYPES = {"ARCHIVE", "BINARY", "IMAGE", "OTHER", "SOURCE", "TEXT"}


def faults_of(document):
    """What SPDX 2.3 would not have."""
    def members(what, entry, required, optional):
        yield from (f"{what} has no {name}" for name in required - entry.keys())
        yield from (f"{what} has {name}" for name in entry.keys() - required - optional)

    yield from members("the document", document, REQUIRED_OF_DOCUMENT, OPTIONAL_OF_DOCUMENT)
    if (document["spdxVersion"], document["dataLicense"], document["SPDXID"]) != ("SPDX-2.3", "CC0-1.0",
                                                                                  "SPDXRef-DOCUMENT"):
        yield "it is no document of SPDX 2.3"
    if not re.fullmatch(r"https://[^#\s]+", document["documentNamespace"]):
        yield "its namespace is no URI without a fragment"
    if not re.fullmatch(r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ", document["creationInfo"]["created"]):
        yield "its time is not of the form 2026-11-23T00:00:00Z"
    for creator in document["creationInfo"]["creators"]:
        if not re.match(r"(Tool|Organization|Person): \S", creator):
            yield f"{creator} is no creator"
    identifiers = [entry["SPDXID"] for entry in [document, *document["packages"], *document["files"]]]
    if len(set(identifiers)) != len(identifiers):
        yield "two things have one identifier"
    yield from (f"{each} is no identifier" for each in identifiers if not re.fullmatch(r"SPDXRef-[A-Za-z0-9.-]+", each))
    for entry in document["packages"]:
        yield from members(entry["name"], entry, REQUIRED_OF_PACKAGE, OPTIONAL_OF_PACKAGE)
        for reference in entry.get("externalRefs", []):
            if (reference.keys() != {"referenceCategory", "referenceType", "referenceLocator"} or
                    reference["referenceCategory"] not in ("PACKAGE-MANAGER", "SECURITY", "PERSISTENT-ID", "OTHER")):
                yield f"{entry['name']}: a reference is not allowed"
        if entry["filesAnalyzed"] != ("packageVerificationCode" in entry):
            yield f"{entry['name']}: files and verification code do not go together"
    for entry in document["files"]:
        yield from members(entry["fileName"], entry, REQUIRED_OF_FILE, OPTIONAL_OF_FILE)
        if not entry["fileName"].startswith("./") or not FILE_TYPES.issuperset(entry["fileTypes"]):
            yield f"{entry['fileName']}: its name or type is not allowed"
        if "SHA1" not in [checksum["algorithm"] for checksum in entry["checksums"]]:
            yield f"{entry['fileName']} has no SHA1"
    for relation in document["relationships"]:
        if relation["relationshipType"] not in RELATIONS:
            yield f"{relation} is of no known type"
        if not {relation["spdxElementId"], relation["relatedSpdxElement"]} <= set(identifiers):
            yield f"{relation} is about something that is not there"


class Bill(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)
        self.root = self.scratch / "tree"
        for path, source in (("usr/bin/vxprintmon", PROGRAM), (f"usr/lib/{LIBRARY.name}", LIBRARY.resolve()),
                             ("usr/share/doc/package/LICENSE", SOURCES / "LICENSE"),
                             ("usr/share/web/vendor/mqtt.js", SOURCES / "web/vendor/mqtt.js"),
                             ("usr/share/web/vendor/LICENSES.txt", SOURCES / "web/vendor/LICENSES.txt")):
            self.copy(path, source)
        (self.root / "DEBIAN").mkdir()
        (self.root / "DEBIAN/control").write_text("Package: vxprinterstatus\n", encoding="utf-8")
        self.output = self.root / "usr/share/doc/package/package.spdx.json"

    def copy(self, path, source):
        target = self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(source, target)

    def make(self, *more, root=None, **environment):
        command = [sys.executable, "-B", str(SCRIPT), "--root", str(root or self.root), "--name", "vxprinterstatus",
                   "--version", "1.2.3", "--output", str(self.output), *map(str, more)]
        done = subprocess.run(command, capture_output=True, text=True, timeout=LIMIT, check=False,
                              env={**os.environ, "SOURCE_DATE_EPOCH": "1700000000", **environment})
        return done.returncode, done.stdout + done.stderr

    def document(self, *more):
        self.assertEqual(self.make(*more), (0, ""))
        return json.loads(self.output.read_text(encoding="utf-8"))

    def assert_refused(self, *words, more=()):
        self.output.unlink(missing_ok=True)
        status, output = self.make(*more)
        self.assertEqual(status, 1, output)
        self.assertEqual(output.count("\n"), 1, output)
        self.assertTrue(output.startswith("make_sbom: "), output)
        for word in words:
            self.assertIn(word, output)
        self.assertFalse(self.output.exists())
        self.assertEqual([path.name for path in self.output.parent.iterdir()], ["LICENSE"])

    def licences(self, change):
        table = copy.deepcopy(LICENCES)
        change(table)
        path = self.scratch / "licences.json"
        path.write_text(json.dumps(table), encoding="utf-8")
        return "--licences", path

    @staticmethod
    def relations(document, kind):
        names = {entry["SPDXID"]: entry["name"] for entry in document["packages"]}
        return {(names[each["spdxElementId"]], names[each["relatedSpdxElement"]]) for each in document["relationships"]
                if each["relationshipType"] == kind and each["relatedSpdxElement"] in names
                and each["spdxElementId"] in names}

    def test_is_valid(self):
        self.assertEqual(list(faults_of(self.document())), [])

    def test_validity_is_looked_at(self):
        document = self.document()
        for change in (lambda it: it.pop("documentNamespace") and it.update(documentNamespace="no uri"),
                       lambda it: it["files"][0].update(SPDXID="SPDXRef-DOCUMENT"),
                       lambda it: it["files"][0]["checksums"].clear(),
                       lambda it: it["packages"][1].pop("licenseConcluded"),
                       lambda it: it["packages"][1].update(license="MIT"),
                       lambda it: it["relationships"][0].update(relatedSpdxElement="SPDXRef-nothing")):
            wrong = copy.deepcopy(document)
            change(wrong)
            self.assertGreater(len(list(faults_of(wrong))), 0)

    def test_lists_every_file_and_no_other(self):
        document = self.document()
        self.document()  # The document lies in the tree now, and is not listed either.
        wanted = {"./" + path.relative_to(self.root).as_posix() for path in self.root.rglob("*")
                  if path.is_file() and path != self.output and "DEBIAN" not in path.parts}
        self.assertEqual({entry["fileName"] for entry in document["files"]}, wanted)
        for entry in document["files"]:
            contents = (self.root / entry["fileName"]).read_bytes()
            self.assertEqual({each["algorithm"]: each["checksumValue"] for each in entry["checksums"]},
                             {"SHA1": hashlib.sha1(contents).hexdigest(),
                              "SHA256": hashlib.sha256(contents).hexdigest()})
        sums = sorted(hashlib.sha1((self.root / name).read_bytes()).hexdigest() for name in wanted)
        self.assertEqual(document["packages"][0]["packageVerificationCode"]["packageVerificationCodeValue"],
                         hashlib.sha1("".join(sums).encode()).hexdigest())
        contained = [each["relatedSpdxElement"] for each in document["relationships"]
                     if each["relationshipType"] == "CONTAINS"]
        for entry in document["files"]:
            self.assertEqual(contained.count(entry["SPDXID"]), 1, entry["fileName"])

    def test_names_what_is_linked(self):
        """What dpkg-shlibdeps would find, with versions and licences."""
        document = self.document()
        needed = set()
        for file in (PROGRAM, LIBRARY):
            loaded = subprocess.run(["readelf", "-dW", str(file)], capture_output=True, text=True, check=True).stdout
            needed |= set(re.findall(r"\(NEEDED\).*\[(.+)\]", loaded))
        linked = {whom for who, whom in self.relations(document, "DYNAMIC_LINK") if who == "vxprinterstatus"}
        # Libraries of ours that are not in this package.
        own = {name for name in needed if re.search("vxprinterstatus|virtualwindows|CuteLogger", name)}
        self.assertEqual({name for name in linked if ".so" in name}, own - {LIBRARY.name})
        linked -= own
        # Ubuntu adds "t64" to the names of some packages.
        qt_core = next(name for name in linked if name.startswith("libqt6core6"))
        self.assertIn("libc6", linked)
        self.assertIn("libstdc++6", linked)
        owned = {library for name in linked for library in needed if library in self.libraries_of(name)}
        self.assertEqual(needed - owned, own)
        self.assertTrue(all(self.libraries_of(name) & needed for name in linked), linked)
        versions = {entry["name"]: entry for entry in document["packages"]}
        qt = versions[qt_core]
        self.assertEqual(qt["versionInfo"], subprocess.run(["dpkg-query", "-Wf", "${Version}", qt_core],
                                                           capture_output=True, text=True, check=True).stdout)
        self.assertEqual(qt["licenseConcluded"], "LGPL-3.0-only")
        self.assertRegex(qt["externalRefs"][0]["referenceLocator"], rf"^pkg:deb/(debian|ubuntu)/{qt_core}@\d")

    @staticmethod
    def libraries_of(package):
        files = subprocess.run(["dpkg-query", "-L", package], capture_output=True, text=True, check=True).stdout
        return {pathlib.PurePosixPath(line).name for line in files.splitlines()}

    def test_names_what_the_page_contains(self):
        document = self.document()
        contained = {whom for who, whom in self.relations(document, "CONTAINS") if who == "vxprinterstatus"}
        self.assertIn("mqtt", contained)
        self.assertIn("ieee754", contained)
        bundle = next(entry for entry in document["files"] if entry["fileName"].endswith("mqtt.js"))
        self.assertEqual(bundle["licenseConcluded"], "0BSD AND BSD-3-Clause AND ISC AND MIT")

    def test_names_what_the_reference_contains(self):
        """What Doxygen has added to the pages, and nothing that it has made of our own texts."""
        folder = self.root / "usr/share/doc/package/html"
        added = ["jquery.js", "navtree.js", "doxygen.css", "nav_f.png", "search/search.js", "search/close.svg"]
        own = ["index.html", "navtreeindex0.js", "guides.js", "search/all_0.js", "document.html", "style.css"]
        for name in added + own:
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
            (folder / name).write_text(name, encoding="utf-8")
        document = self.document()
        self.assertEqual(list(faults_of(document)), [])
        names = {entry["SPDXID"]: entry["name"] for entry in document["packages"]}
        files = {entry["SPDXID"]: entry["fileName"].partition("/html/")[2] for entry in document["files"]}
        owners = {files[each["relatedSpdxElement"]]: names[each["spdxElementId"]] for each in document["relationships"]
                  if each["relationshipType"] == "CONTAINS" and files.get(each["relatedSpdxElement"])}
        self.assertEqual(owners, {**dict.fromkeys(own, "vxprinterstatus"), **dict.fromkeys(added, "Doxygen"),
                                  "jquery.js": "jQuery"})
        contained = {whom for who, whom in self.relations(document, "CONTAINS") if who == "vxprinterstatus"}
        self.assertLessEqual({"Doxygen", "jQuery"}, contained)

    def test_finds_what_is_linked_statically(self):
        """By texts that SQLite has, with its version."""
        shutil.copyfile(PROGRAM, self.root / "usr/bin/rolldb")
        with open(self.root / "usr/bin/rolldb", "ab") as file:
            file.write(b"\x00database disk image is malformed\x003.40.1\x00")
        document = self.document()
        self.assertIn(("vxprinterstatus", "SQLite"), self.relations(document, "STATIC_LINK"))
        sqlite = next(entry for entry in document["packages"] if entry["name"] == "SQLite")
        self.assertEqual((sqlite["versionInfo"], sqlite["licenseConcluded"]), ("3.40.1", "blessing"))

    def test_refuses_a_static_library_under_the_lgpl(self):
        def change(table):
            for component in table["components"]:
                if component["name"] == "SQLite":
                    component["licence"] = "LGPL-2.1-or-later"

        with open(self.root / "usr/bin/vxprintmon", "ab") as file:
            file.write(b"database disk image is malformed")
        self.assert_refused("usr/bin/vxprintmon: SQLite is linked statically", "LGPL-2.1-or-later",
                            more=self.licences(change))

    def test_refuses_a_component_that_is_not_known(self):
        def change(table):
            table["components"] = [each for each in table["components"] if "glibc" not in each.get("debian", [])]

        self.assert_refused("linked with lib", "package libc6 (source glibc)", "licences.json",
                            more=self.licences(change))

    def test_refuses_a_licence_that_is_not_acceptable(self):
        def change(table):
            next(each for each in table["components"] if each["name"] == "Qt")["licence"] = "GPL-3.0-only"

        self.assert_refused("libqt6", "GPL-3.0-only is none that a library under MIT can be linked with",
                            more=self.licences(change))

    def test_the_gcc_exception_is_what_makes_its_licence_acceptable(self):
        def change(table):
            del table["acceptable"]["GPL-3.0-or-later WITH GCC-exception-3.1"]

        self.assert_refused("GPL-3.0-or-later WITH GCC-exception-3.1", more=self.licences(change))

    def test_refuses_a_binary_of_nobody(self):
        shutil.copyfile(PROGRAM, self.root / "usr/lib/libsurprise.so.1")
        self.assert_refused("usr/lib/libsurprise.so.1: it is neither ours nor of a component")

    def test_refuses_a_dll_of_nobody(self):
        (self.root / "usr/surprise.dll").write_bytes(b"MZ")
        self.assert_refused("usr/surprise.dll: it is neither ours nor of a component")

    def test_refuses_what_is_wrongly_given(self):
        self.assert_refused("--component Qte: there is no such component", more=("--component", "Qte=6"))
        self.assert_refused("--component Qt: expected NAME=VERSION", more=("--component", "Qt"))
        self.assertEqual(self.make(SOURCE_DATE_EPOCH="now"),
                         (1, "make_sbom: SOURCE_DATE_EPOCH is \"now\", expected seconds since 1970\n"))
        status, output = self.make(root=self.scratch / "nothing")
        self.assertEqual((status, output), (1, f"make_sbom: {self.scratch}/nothing: there is no such folder\n"))

    def test_equal_contents_give_equal_documents(self):
        first = self.output.read_bytes() if self.document() else b""
        other = self.scratch / "elsewhere"
        shutil.copytree(self.root, other)
        (other / self.output.relative_to(self.root)).unlink()
        self.output = other / self.output.relative_to(self.root)
        self.assertEqual(self.make(root=other), (0, ""))
        self.assertEqual(self.output.read_bytes(), first)
        self.assertNotIn(str(self.scratch).encode(), first)
        self.assertIn(b'"created": "2023-11-14T22:13:20Z"', first)
        (other / "usr/share/doc/package/LICENSE").write_text("another", encoding="utf-8")
        self.assertEqual(self.make(root=other), (0, ""))
        self.assertNotEqual(json.loads(self.output.read_bytes())["documentNamespace"],
                            json.loads(first)["documentNamespace"])

    def test_licences_are_those_that_spdx_knows(self):
        used = {*LICENCES["acceptable"]}
        for component in LICENCES["components"]:
            for licence in (component["licence"], component.get("declared", component["licence"])):
                used |= set(re.split(" AND | OR ", licence))
            self.assertGreater(len(component["reason"]), 10, component["name"])
        self.assertEqual(used - SPDX_LICENCES, set())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
