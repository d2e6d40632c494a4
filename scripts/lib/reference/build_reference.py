#!/usr/bin/python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Makes the reference. scripts/docs calls it.

Usage: build_reference.py ROOT OUTPUT [--picture FILE | --no-picture]
"""
import argparse
import contextlib
import html
import os
import pathlib
import re
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
from guide_pages import Site  # noqa: E402
import schema_pages  # noqa: E402

QHELPGENERATORS = ["/usr/lib/qt6/libexec/qhelpgenerator", "/usr/lib/qt6/bin/qhelpgenerator"]
# The libraries that hosts include by installed headers.
HEADER_FOLDERS = ["include", "kit/include", "widgets/include"]
SERVICE_HEADERS = [f"platform/vxipc/{name}.h"
                   for name in ("ivxipcm4", "ivxipcprintqd", "ivxipcsupplyd", "vxipcclient", "vxipcserver")]
# Qt describes these on the pages of other classes.
WITHOUT_PAGE = {"QLatin1String", "QVariantHash", "QVariantList"}
LARGEST_PICTURE = 300 * 1024


def fail(message):
    sys.exit(f"docs: {message}")


def version(root):
    return re.search(r"^project\(VxPrinterStatus VERSION (\S+)", (root / "CMakeLists.txt").read_text(), re.M)[1]


class Tags:
    """Where Doxygen puts the classes and files of the headers."""

    def __init__(self, file):
        self._classes, self._files = {}, {}
        for compound in xml.etree.ElementTree.parse(file).getroot().iter("compound"):
            name, page = compound.findtext("name"), compound.findtext("filename")
            if compound.get("kind") in ("class", "struct"):
                self._add(self._classes, name, page)
                if "::" in name:
                    self._add(self._classes, name.rpartition("::")[2], page)
            elif compound.get("kind") == "file":
                path = compound.findtext("path") + name
                page = page if page.endswith(".html") else page + ".html"
                self._add(self._files, path, page)
                self._add(self._files, name, page)

    @staticmethod
    def _add(table, name, page):
        # A name with two meanings leads nowhere.
        table[name] = None if table.get(name, page) != page else page

    def class_page(self, name):
        return self._classes.get(name)

    def file_page(self, name):
        return self._files.get(name)


class Reference:
    def __init__(self, root, output, scratch):
        self.root, self.output, self.scratch = root, output, scratch
        self.html = output / "html"
        self.help = scratch / "help"
        self.assets = scratch / "assets"
        self.bodies = scratch / "bodies"
        for folder in (self.assets, self.bodies, self.help):
            folder.mkdir()

    def headers(self):
        """The headers that hosts include."""
        found = [path for folder in HEADER_FOLDERS for path in sorted((self.root / folder).glob("*.h"))]
        return found + [self.root / name for name in SERVICE_HEADERS]

    def doxygen(self, *pages, **options):
        """One run over the headers and files with further pages. A warning fails it, except, where no page is made,
        that a member has no comment.
        """
        settings = {
            "PROJECT_NUMBER": version(self.root),
            "INPUT": " ".join(f'"{path}"' for path in self.headers()),
            "RECURSIVE": "YES",
            "FILE_PATTERNS": "*.h",
            "STRIP_FROM_PATH": f'"{self.root}"',
            "STRIP_FROM_INC_PATH": " ".join(f'"{self.root / name}"' for name in [*HEADER_FOLDERS, "platform/vxipc"]),
            "INPUT_FILTER": f'"{sys.executable} -B {HERE / "header_filter.py"} {self.headers()[0]} {" ".join(map(str, pages))}"',
            "EXAMPLE_PATH": f'"{self.bodies}"',
            "OUTPUT_DIRECTORY": f'"{self.scratch}"',
            "TAGFILES": f'"{self.qt_tags()}=https://doc.qt.io/qt-6"',
            **options,
        }
        text = (HERE / "Doxyfile").read_text() + "".join(f"{name} = {value}\n" for name, value in settings.items())
        done = subprocess.run(["doxygen", "-"], input=text, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              encoding="utf-8", cwd=self.scratch, check=False)
        warnings = [line for line in done.stdout.splitlines() if line.strip()]
        if settings.get("WARN_IF_UNDOCUMENTED") == "YES":
            # A member whose name says everything needs no comment; a class always does.
            warnings = [line for line in warnings if not re.search(r"warning: Member .* is not documented\.", line)]
        if done.returncode != 0 or warnings:
            print("\n".join(warnings), file=sys.stderr)
            fail(f"Doxygen reported the above (exit status {done.returncode})")

    def make(self):
        tags = self.scratch / "tags.xml"
        self.doxygen(self.header_list(), GENERATE_HTML="NO", GENERATE_TAGFILE=f'"{tags}"', WARN_IF_UNDOCUMENTED="YES")
        self.tags = Tags(tags)
        self.site = Site(self.root, self.bodies, self.assets, self.tags)
        self.site.write()
        shutil.copyfile(HERE / "start.html", self.bodies / "start.html")
        (self.scratch / "pages.dox").write_text(self.page_list(), encoding="utf-8")
        pages = (self.scratch / "headers.dox", self.scratch / "pages.dox")
        shared = {"EXTRACT_ALL": "YES", "WARN_IF_UNDOCUMENTED": "NO", "GENERATE_HTML": "YES",
                  "LAYOUT_FILE": f'"{HERE / "layout.xml"}"', "HTML_EXTRA_STYLESHEET": f'"{HERE / "style.css"}"',
                  "HTML_HEADER": f'"{HERE / "header.html"}"', "HTML_FOOTER": f'"{HERE / "footer.html"}"'}
        shutil.rmtree(self.html, ignore_errors=True)
        self.output.mkdir(parents=True, exist_ok=True)
        self.doxygen(*pages, **shared, HTML_OUTPUT=f'"{self.html}"', GENERATE_TREEVIEW="YES", SEARCHENGINE="YES",
                     DISABLE_INDEX="YES", FULL_SIDEBAR="NO")
        self.finish(self.html)
        with open(self.html / "search/search.css", "a", encoding="utf-8") as styles:
            styles.write((HERE / "search.css").read_text(encoding="utf-8"))
        # A viewer of help files has a navigation of its own, and runs no scripts.
        self.doxygen(*pages, **shared, HTML_OUTPUT=f'"{self.help}"', GENERATE_TREEVIEW="NO", SEARCHENGINE="NO",
                     DISABLE_INDEX="YES", GENERATE_QHP="YES", QHP_NAMESPACE="vxprinterstatus",
                     QHP_VIRTUAL_FOLDER="reference", QHG_LOCATION="")
        self.finish(self.help)
        self.help_file()

    def header_list(self):
        """What Doxygen shows of a header outside of classes it shows only if header and namespace are documented."""
        file = self.scratch / "headers.dox"
        file.write_text((HERE / "namespaces.dox").read_text() + "".join(f"/** @file {path.relative_to(self.root)} */\n" for path in self.headers()))
        return file

    def qt_tags(self):
        """Qt's classes that the headers include, for links to Qt's own documentation."""
        names = set()
        for header in self.headers():
            names |= set(re.findall(r"^#include <Qt\w+/(Q[A-Z]\w+)>", header.read_text(encoding="utf-8"), re.M))
        file = self.scratch / "qt.tags"
        file.write_text('<?xml version="1.0" encoding="UTF-8"?>\n<tagfile>\n' + "".join(
            f'<compound kind="class"><name>{name}</name><filename>{name.lower()}.html</filename></compound>\n'
            for name in sorted(names - WITHOUT_PAGE)) + "</tagfile>\n")
        return file

    def page_list(self):
        """The pages besides those of classes and headers, as Doxygen reads them."""
        def title(text):
            return re.sub(r"([@\\%<>&#])", r"\\\1", text)

        def item(name, text):
            return f' * <li>@subpage {name} "{title(text)}"</li>'

        def page(name, text):
            return f"/*! @page {name} {title(text)}\n * @htmlinclude {name}.html\n */"

        lines = ["/*! @mainpage VxPrinterStatus", " * @htmlinclude start.html", " */", "/*! @page guides Guides"]
        pages = []
        for group, paths in self.site.groups():
            if not paths:
                continue
            lines += [f" * <h2>{title(group)}</h2>", " * <ul>"]
            for path in paths:
                name, text = self.site.name_of(path), self.site.guides[path].title
                if path == "README.md":
                    text = "The first five minutes"
                lines.append(item(name, text))
                pages.append(page(name, text))
            lines.append(" * </ul>")
        lines += [" */", "/*! @page formats Formats",
                  " * What the programs write as JSON, as JSON Schema 2020-12.", " * <ul>"]
        for path, file in self.site.schemas.items():
            name, text = self.site.name_of(path), schema_pages.title(file)
            lines.append(item(name, text))
            pages.append(page(name, text))
        lines += [" * </ul>", " */", "/*! @page sources Files that the guides name", " * <ul>"]
        for path, name in self.site.sources().items():
            lines.append(item(name, path))
            pages.append(page(name, path))
        return "\n".join([*lines, " * </ul>", " */", *pages]) + "\n"

    def finish(self, folder):
        """Adds the pictures, the schemas and the icon."""
        shutil.copyfile(self.root / "web/icon.svg", folder / "icon.svg")
        for file in self.assets.iterdir():
            shutil.copyfile(file, folder / file.name)

    def help_file(self):
        generator = next((name for name in QHELPGENERATORS if os.path.exists(name)), None)
        if not generator:
            fail("qhelpgenerator was not found; it is in Debian's package qt6-documentation-tools")
        project = self.help / "index.qhp"
        tree = xml.etree.ElementTree.parse(project)
        files = tree.getroot().find("./filterSection/files")
        listed = {entry.text for entry in files}
        names = sorted(path.name for path in self.help.iterdir()
                       if path.suffix in (".html", ".css", ".png", ".svg", ".json", ".js"))
        for name in names:
            if name not in listed:
                xml.etree.ElementTree.SubElement(files, "file").text = name
        for entry in list(files):
            if not (self.help / entry.text).is_file():
                files.remove(entry)
        files[:] = sorted(files, key=lambda entry: entry.text)
        tree.write(project, encoding="UTF-8", xml_declaration=True)
        target = self.output / "vxprinterstatus.qch"
        target.unlink(missing_ok=True)
        done = subprocess.run([generator, str(project), "-o", str(target)], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, encoding="utf-8", check=False)
        if done.returncode != 0 or re.search(r"warning|error|missing|cannot", done.stdout, re.I):
            print(done.stdout, file=sys.stderr)
            fail("qhelpgenerator reported the above")
        self.check_help_file(target, len(names))

    def check_help_file(self, file, pages):
        with contextlib.closing(sqlite3.connect(f"file:{file}?mode=ro", uri=True)) as help_file:
            files = help_file.execute("SELECT count(*) FROM FileNameTable").fetchone()[0]
            keywords = {name for name, in help_file.execute("SELECT Name FROM IndexTable")}
            empty = help_file.execute("SELECT count(*) FROM FileDataTable WHERE length(Data) < 5").fetchone()[0]
        if files < pages:
            fail(f"{file} has {files} files instead of {pages}")
        if empty:
            fail(f"{empty} files in {file} are empty")
        for name in ("PrinterStatusController", "VxKit::PrinterReadings", "VxKit::PrinterListView"):
            if name not in keywords:
                fail(f"{file} has no keyword {name}, so F1 in Qt Creator would not find it")
        print(f"docs: {file} has {files} files and {len(keywords)} keywords")


def picture(page, file):
    sys.path.insert(0, str(HERE.parent.parent.parent / "tests/web"))
    from chromium import Chromium, find_chromium
    if not find_chromium():
        return False
    with contextlib.closing(Chromium()) as browser:
        with contextlib.closing(browser.open(page.as_uri(), width=1280, height=860)) as view:
            # The tree at the left unfolds.
            view.until("document.readyState === 'complete' && jQuery(':animated').length === 0 &&"
                       " [...document.querySelectorAll('#nav-tree .label')].some(label =>"
                       " label.textContent === 'Files' && label.offsetParent !== null)")
            view.picture(file)
    return True


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root", type=pathlib.Path)
    parser.add_argument("output", type=pathlib.Path)
    pictures = parser.add_mutually_exclusive_group()
    pictures.add_argument("--picture", type=pathlib.Path)
    pictures.add_argument("--no-picture", action="store_true")
    arguments = parser.parse_args()
    output = arguments.output.resolve()
    with tempfile.TemporaryDirectory(prefix="vx-reference-") as scratch:
        reference = Reference(arguments.root.resolve(), output, pathlib.Path(scratch))
        reference.make()
    links = subprocess.run([sys.executable, "-B", HERE.parent / "check_links.py", "--html", reference.html], check=False)
    if links.returncode != 0:
        fail("the links above lead nowhere")
    shot = output / "reference.png"
    if arguments.no_picture:
        pass
    elif not picture(reference.html / "index.html", shot):
        print("docs: Chromium is not installed, so there is no picture of the start page")
    elif shot.stat().st_size > LARGEST_PICTURE:
        fail(f"{shot} has {shot.stat().st_size} bytes, more than {LARGEST_PICTURE}")
    elif arguments.picture:
        shutil.copyfile(shot, arguments.picture)
    pages = sum(1 for _ in reference.html.glob("*.html"))
    print(f"docs: {reference.html / 'index.html'}: {pages} pages, no warning, no dead link")


if __name__ == "__main__":
    main()
