# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The Markdown pages of the tree: their headings, links and code blocks, as GitHub reads them.

Needs Debian's python3-markdown-it, so it is for the system's own interpreter, /usr/bin/python3.
"""
import dataclasses
import html.parser
import pathlib
import re

from markdown_it import MarkdownIt


@dataclasses.dataclass
class Link:
    target: str
    line: int
    image: bool


@dataclasses.dataclass
class Block:
    """A fenced block of code. `line` is that of its first line of content."""
    language: str
    text: str
    line: int


def parser():
    return MarkdownIt("commonmark").enable(["table", "strikethrough"])


def plain_text(token):
    """What a reader sees of an inline token."""
    parts = []
    for child in token.children or []:
        if child.type in ("text", "code_inline"):
            parts.append(child.content)
        elif child.type in ("softbreak", "hardbreak"):
            parts.append(" ")
        elif child.type == "image":
            parts.append(child.content)
    return "".join(parts)


class Anchors:
    """Gives headings the names that GitHub gives them."""

    def __init__(self):
        self._used = {}

    def name(self, text):
        base = re.sub(r"[^\w\- ]", "", text.strip().lower()).replace(" ", "-")
        count = self._used.get(base, 0)
        self._used[base] = count + 1
        return f"{base}-{count}" if count else base


class _InlineHtml(html.parser.HTMLParser):
    def __init__(self):
        super().__init__()
        self.anchors, self.links = [], []

    def handle_starttag(self, tag, attrs):
        for name, value in attrs:
            if name in ("id", "name") and value:
                self.anchors.append(value)
            elif name in ("href", "src", "srcset") and value:
                self.links.append((value, name != "href"))


class Page:
    """One Markdown file."""

    def __init__(self, path):
        self.path = pathlib.Path(path)
        self.text = self.path.read_text(encoding="utf-8")
        self.tokens = parser().parse(self.text)
        self.headings = []  # (level, text, anchor)
        self.anchors = set()
        self.links = []
        self.blocks = []
        anchors = Anchors()
        line = 1
        for number, token in enumerate(self.tokens):
            if token.map:
                line = token.map[0] + 1
            if token.type == "heading_open":
                text = plain_text(self.tokens[number + 1])
                anchor = anchors.name(text)
                self.headings.append((int(token.tag[1]), text, anchor))
                self.anchors.add(anchor)
                token.attrSet("id", anchor)
            elif token.type == "fence":
                self.blocks.append(Block(token.info.strip().split(" ")[0], token.content, line + 1))
            elif token.type == "html_block":
                self._html(token.content, line)
            elif token.type == "inline":
                self._inline(token, line)

    @property
    def title(self):
        return next((text for level, text, _ in self.headings if level == 1), self.path.stem)

    def _inline(self, token, line):
        for child in token.children:
            if child.type in ("softbreak", "hardbreak"):
                line += 1
            elif child.type == "link_open":
                self.links.append(Link(child.attrGet("href"), line, False))
            elif child.type == "image":
                self.links.append(Link(child.attrGet("src"), line, True))
            elif child.type == "html_inline":
                self._html(child.content, line)

    def _html(self, text, line):
        found = _InlineHtml()
        found.feed(text)
        self.anchors.update(found.anchors)
        self.links += [Link(target, line, image) for target, image in found.links]


# What is no part of the tree: builds, what packages of npm bring, and what Python compiles.
NOT_OURS = {".git", "build", "node_modules", "__pycache__"}


def files_of_tree(root, suffix=""):
    """The tree's own files whose names end like that, sorted."""
    found = []
    for path in pathlib.Path(root).iterdir():
        if path.name in NOT_OURS:
            continue
        if path.is_dir() and not path.is_symlink():
            found += files_of_tree(path, suffix)
        elif path.name.endswith(suffix):
            found.append(path)
    return sorted(found)
