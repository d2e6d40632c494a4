#!/usr/bin/python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Finds links that lead nowhere. Prints each with its file and line; exits with 1 if there are any.

Usage: check_links.py --markdown ROOT    all Markdown files of the tree: files and headings that they link to
       check_links.py --html FOLDER      all pages below a folder: files, anchors and pictures

Addresses of other hosts are not opened; only their form is checked.
"""
import html.parser
import pathlib
import re
import sys
import urllib.parse

SCHEMES = {"http", "https", "mailto"}


def external_fault(target):
    """What is wrong with an address of another host; None if nothing is."""
    address = urllib.parse.urlsplit(target)
    if address.scheme not in SCHEMES:
        return f"the scheme \"{address.scheme}\" is not one of {', '.join(sorted(SCHEMES))}"
    if address.scheme == "mailto":
        return None if "@" in address.path else "there is no address"
    if not re.fullmatch(r"[A-Za-z0-9.-]+\.[A-Za-z]{2,}(:\d+)?", address.netloc):
        return f"\"{address.netloc}\" is not the name of a host"
    return None


def is_external(target):
    return bool(re.match(r"[A-Za-z][A-Za-z0-9+.-]*:", target)) or target.startswith("//")


def markdown_faults(root):
    from markdown_pages import Page, files_of_tree
    root = root.resolve()
    pages = {path.resolve(): Page(path) for path in files_of_tree(root, ".md")}
    for path, page in pages.items():
        for link in page.links:
            fault = markdown_fault(root, pages, page, link)
            if fault:
                yield f"{path.relative_to(root)}:{link.line}: {link.target}: {fault}"
    if not pages:
        yield f"{root}: there are no Markdown files"


def markdown_fault(root, pages, page, link):
    if is_external(link.target):
        return external_fault(link.target)
    name, _, anchor = urllib.parse.unquote(link.target).partition("#")
    if name.startswith("/"):
        return "an absolute path leads nowhere on other computers"
    target = (page.path.resolve().parent / name).resolve() if name else page.path.resolve()
    if target != root and root not in target.parents:
        return "it leads out of the tree"
    if not target.exists():
        return "there is no such file"
    if anchor and target in pages and anchor not in pages[target].anchors:
        return f"{target.relative_to(root)} has no heading \"{anchor}\""
    return None


class HtmlPage(html.parser.HTMLParser):
    """The anchors of a page and what it links to."""

    def __init__(self, path):
        super().__init__()
        self.anchors, self.links = set(), []
        self.feed(path.read_text(encoding="utf-8"))
        self.close()

    def handle_starttag(self, tag, attrs):
        line = self.getpos()[0]
        values = {name: value for name, value in attrs if value is not None}
        self.anchors.update(values[name] for name in ("id", "name") if name in values)
        for name in ("href", "src", "data", "poster"):
            # In an SVG drawing, xlink:href is written without its prefix by no tool used here.
            if values.get(name):
                self.links.append((values[name], line))
        for part in values.get("srcset", "").split(","):
            if part.strip():
                self.links.append((part.split()[0], line))


def html_faults(folder):
    folder = folder.resolve()
    pages = {path: HtmlPage(path) for path in sorted(folder.rglob("*.html"))}
    for path, page in pages.items():
        for target, line in page.links:
            fault = html_fault(folder, pages, path, target)
            if fault:
                yield f"{path.relative_to(folder)}:{line}: {target}: {fault}"
    if not pages:
        yield f"{folder}: there are no pages"


def html_fault(folder, pages, path, target):
    if target.startswith(("javascript:", "data:")):
        return None
    if is_external(target):
        return external_fault(target)
    name, _, anchor = target.partition("#")
    name, anchor = (urllib.parse.unquote(part) for part in (name.partition("?")[0], anchor))
    file = (path.parent / name).resolve() if name else path
    if file != folder and folder not in file.parents:
        return "it leads out of the site"
    if not file.is_file():
        return "there is no such file"
    if anchor and file in pages and anchor not in pages[file].anchors:
        return f"{file.relative_to(folder)} has no anchor \"{anchor}\""
    return None


def main():
    if len(sys.argv) != 3 or sys.argv[1] not in ("--markdown", "--html"):
        print(__doc__, file=sys.stderr)
        return 2
    folder = pathlib.Path(sys.argv[2])
    if not folder.is_dir():
        print(f"check_links.py: {folder} is not a folder", file=sys.stderr)
        return 2
    faults = list((markdown_faults if sys.argv[1] == "--markdown" else html_faults)(folder))
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
