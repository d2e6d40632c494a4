# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Turns guides, schemas and the files that they refer to into the bodies of the reference's pages."""
import html
import os
import pathlib
import re
import shutil
import subprocess
import sys

import pygments
import pygments.formatters
import pygments.lexers
import pygments.util

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import schema_pages  # noqa: E402
from markdown_pages import NOT_OURS, Page, files_of_tree, parser  # noqa: E402

# The guides by reader. A guide that is named nowhere is one for those who work on the product.
GROUPS = [
    ("First steps", ["README.md", "docs/packages.md", "docs/windows-installer.md", "CHANGELOG.md"]),
    ("For applications", ["docs/host-guide.md", "docs/readings.md", "docs/preflight.md", "docs/forecast.md",
                          "docs/history.md", "docs/event-log.md", "docs/status-codes.md", "docs/ipc.md",
                          "docs/c-interface.md", "bindings/python/README.md", "docs/supply-database.md",
                          "docs/compatibility.md"]),
    ("For people who support printers", ["docs/support.md", "docs/vxprintmon.md", "docs/vxprintview.md",
                                         "docs/case-files.md", "docs/virtual-printers.md"]),
    ("For sites with many computers", ["docs/fleet.md", "docs/agent-on-windows.md", "docs/fleet-scale.md"]),
]
WORKSHOP = "For those who work on the product"
# A larger file, such as a bundle, is named but not shown.
LARGEST_SOURCE = 64 * 1024


def highlighted(code, language):
    """HTML of code; plain where the language is not known."""
    aliases = {"console": "console", "sh": "bash", "bat": "bat", "cpp": "cpp", "mjs": "javascript"}
    try:
        lexer = pygments.lexers.get_lexer_by_name(aliases.get(language, language or "text"))
    except pygments.util.ClassNotFound:
        return html.escape(code)
    return pygments.highlight(code, lexer, pygments.formatters.HtmlFormatter(nowrap=True))


def entity_diagram(text):
    """An SVG of a Mermaid diagram of tables, which Graphviz draws; None for any other diagram."""
    lines = [line.strip() for line in text.strip().splitlines()]
    if lines[0] != "erDiagram":
        return None
    ends = {"||": "teetee", "|o": "teeodot", "o|": "teeodot", "o{": "crowodot", "}o": "crowodot",
            "|{": "crowtee", "}|": "crowtee"}
    edges = []
    for line in lines[1:]:
        found = re.fullmatch(r'(\w+) (\S\S)--(\S\S) (\w+) : "(.*)"', line)
        if not found:
            return None
        left, tail, head, right, label = found.groups()
        edges.append(f'{left} -> {right} [arrowtail={ends[tail]}, arrowhead={ends[head]}, label="{label}"]')
    graph = ("digraph { rankdir=LR; bgcolor=transparent; ranksep=0.7; nodesep=0.2\n"
             'node [shape=box, style=rounded, fontname="sans-serif", fontsize=12, height=0.35]\n'
             'edge [dir=both, fontname="sans-serif", fontsize=11]\n' + "\n".join(edges) + "}")
    svg = subprocess.run(["dot", "-Tsvg"], input=graph, stdout=subprocess.PIPE, encoding="utf-8", check=True).stdout
    svg = re.sub(r"<!--.*?-->\s*", "", svg[svg.index("<svg"):], flags=re.S)
    svg = re.sub(r"<title>.*?</title>\s*", "", svg)
    svg = svg.replace('stroke="black"', 'stroke="currentColor"').replace('fill="black"', 'fill="currentColor"')
    svg = re.sub(r"<text ", '<text fill="currentColor" ', svg)
    return f'<div class="drawing" role="img" aria-label="{html.escape("; ".join(lines[1:]))}">{svg}</div>'


class Site:
    """All pages that are made from files other than headers.

    `tags` tells where Doxygen puts what the headers declare: file_page() and class_page().
    """

    def __init__(self, root, bodies, assets, tags):
        self.root, self.bodies, self.assets, self.tags = root, bodies, assets, tags
        self.guides = {path.relative_to(root).as_posix(): Page(path) for path in files_of_tree(root, ".md")}
        self.schemas = {path.relative_to(root).as_posix(): path for path in files_of_tree(root / "docs/schema", ".json")}
        self.pages = []  # (name, title, group), in the order of the navigation
        self._sources = {}  # path: name
        self._copied = {}  # name: path

    def name_of(self, path):
        if path.startswith("docs/schema/"):
            return "schema-" + pathlib.PurePosixPath(path).name.partition(".")[0]
        stem = path.removeprefix("docs/").removesuffix(".md").lower()
        return re.sub(r"[^a-z0-9_]+", "-", stem).strip("-") or "tree"

    def groups(self):
        """(title, guides) of every group that has any."""
        known = {name for _, names in GROUPS for name in names}
        for title, names in GROUPS:
            yield title, [name for name in names if name in self.guides]
        yield WORKSHOP, [name for name in self.guides if name not in known]

    def write(self):
        for path in self.guides:
            self._write_body(self.name_of(path), self._guide(path))
        for path in self.schemas:
            self._write_body(self.name_of(path), self._schema(path))
        # A source may be a folder whose page names more of them.
        done = set()
        while set(self._sources) - done:
            for path in sorted(set(self._sources) - done):
                self._write_body(self._sources[path], self._source(path))
                done.add(path)

    def sources(self):
        return dict(sorted(self._sources.items()))

    def _write_body(self, name, body):
        (self.bodies / f"{name}.html").write_text(f'<div class="guide">\n{body}\n</div>\n', encoding="utf-8")

    # ---- guides

    def _guide(self, path):
        page = self.guides[path]
        renderer = parser()
        renderer.add_render_rule("fence", lambda _, tokens, index, *rest: self._fence(tokens[index]))
        renderer.add_render_rule("table_open", lambda *_: '<div class="wide"><table>\n')
        renderer.add_render_rule("table_close", lambda *_: "</table></div>\n")
        renderer.add_render_rule("code_inline", lambda _, tokens, index, *rest: self._code(tokens, index))
        tokens = list(page.tokens)
        for number, token in enumerate(tokens):
            # Doxygen shows the title.
            if token.type == "heading_open" and token.tag == "h1":
                anchor = f'<a id="{token.attrGet("id")}"></a>'
                del tokens[number : number + 3]
                break
        else:
            anchor = ""
        for token in tokens:
            for child in token.children or []:
                if child.type == "link_open":
                    child.attrSet("href", self._target(path, child.attrGet("href")))
                elif child.type == "image":
                    child.attrSet("src", self._copy((self.root / path).parent / child.attrGet("src")))
                    child.attrSet("loading", "lazy")
        body = renderer.renderer.render(tokens, renderer.options, {})
        return anchor + self._contents(page) + body

    def _contents(self, page):
        headings = [(text, anchor) for level, text, anchor in page.headings if level == 2]
        # Long guides have such a list of their own.
        listed = {link.target for link in page.links}
        if len(headings) < 3 or all(f"#{anchor}" in listed for _, anchor in headings):
            return ""
        items = "".join(f'<li><a href="#{anchor}">{html.escape(text)}</a></li>' for text, anchor in headings)
        return f'<nav class="contents" aria-label="On this page"><p>On this page</p><ul>{items}</ul></nav>\n'

    def _fence(self, token):
        language = token.info.strip().split(" ")[0]
        if language == "mermaid":
            drawing = entity_diagram(token.content)
            if drawing:
                return drawing
        return f'<div class="code"><pre><code>{highlighted(token.content, language)}</code></pre></div>\n'

    def _code(self, tokens, index):
        """Code in a line; the name of a class or of a header leads to it, unless it stands in a link already."""
        text = tokens[index].content
        code = f"<code>{html.escape(text)}</code>"
        inside = sum({"link_open": 1, "link_close": -1}.get(token.type, 0) for token in tokens[:index])
        page = self.tags.class_page(text) or self.tags.file_page(text)
        return f'<a class="symbol" href="{page}">{code}</a>' if page and not inside else code

    def _target(self, path, target):
        if re.match(r"[a-z]+:", target) or target.startswith("#"):
            return target
        name, _, anchor = target.partition("#")
        absolute = ((self.root / path).parent / name).resolve()
        page = self.page_of(absolute.relative_to(self.root).as_posix())
        return f"{page}#{anchor}" if anchor else page

    def page_of(self, path):
        """The page that shows a file or folder of the tree. It is made if there is none yet."""
        if path in self.guides or path in self.schemas:
            return self.name_of(path) + ".html"
        header = self.tags.file_page(path)
        if header:
            return header
        absolute = self.root / path
        if absolute.is_dir() and (absolute / "README.md").exists():
            return self.name_of(f"{path}/README.md") + ".html"
        if absolute.suffix in (".png", ".svg"):
            return self._copy(absolute)
        return self._sources.setdefault(path, "source-" + re.sub(r"[^a-z0-9_]+", "-", path.lower())) + ".html"

    def _copy(self, file):
        file = file.resolve()
        other = self._copied.setdefault(file.name, file)
        if other != file:
            raise SystemExit(f"two files have the name {file.name}: {other} and {file}; rename one of them")
        shutil.copyfile(file, self.assets / file.name)
        return file.name

    # ---- schemas and sources

    def _schema(self, path):
        file = self.schemas[path]
        self._copy(file)
        return schema_pages.body(file)

    def _source(self, path):
        file = self.root / path
        if file.is_dir():
            items = []
            for below in sorted(file.iterdir(), key=lambda entry: (entry.is_dir(), entry.name)):
                if below.name in NOT_OURS:
                    continue
                relative = below.relative_to(self.root).as_posix()
                name = html.escape(below.name + ("/" if below.is_dir() else ""))
                if below.is_dir() or self._is_shown(below):
                    name = f'<a href="{self.page_of(relative)}">{name}</a>'
                items.append(f"<li><code>{name}</code></li>")
            return f"<p>The folder <code>{html.escape(path)}</code> of the source tree.</p><ul>{''.join(items)}</ul>"
        if not self._is_shown(file):
            return f"<p><code>{html.escape(path)}</code> in the source tree.</p>"
        text = file.read_text(encoding="utf-8")
        try:
            language = pygments.lexers.get_lexer_for_filename(file.name).aliases[0]
        except (pygments.util.ClassNotFound, IndexError):
            language = "text"
        return (f"<p><code>{html.escape(path)}</code> in the source tree.</p>\n"
                f'<div class="code"><pre><code>{highlighted(text, language)}</code></pre></div>')

    @staticmethod
    def _is_shown(file):
        if os.path.getsize(file) > LARGEST_SOURCE:
            return False
        try:
            file.read_text(encoding="utf-8")
        except UnicodeDecodeError:
            return False
        return True
