# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""No link in the tree's Markdown leads nowhere, and scripts/lib/check_links.py finds those that do.

Usage: test_check_links.py ROOT
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(sys.argv.pop(1))
CHECK = ROOT / "scripts/lib/check_links.py"

try:
    import markdown_it  # noqa: F401
except ImportError:
    sys.exit("python3-markdown-it is not installed; scripts/test installs it")


def check(what, folder):
    done = subprocess.run([sys.executable, "-B", CHECK, what, folder], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, encoding="utf-8", check=False)
    return done.returncode, done.stdout.splitlines()


class CheckLinks(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def put(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def test_the_tree_has_none(self):
        self.assertEqual(check("--markdown", ROOT), (0, []))

    def test_markdown(self):
        self.put("docs/b.md", "# The `b` page, *twice*!\n\n## Twice\n\n## Twice\n\n<a id=\"own\"></a>\n")
        self.put("docs/c.png", "")
        self.put("build/x.md", "[built](nowhere)\n")
        rows = [
            ("[a](docs/b.md)", None),
            ("[a](docs/b.md#the-b-page-twice)", None),
            ("[a](docs/b.md#twice-1)", None),
            ("[a](docs/b.md#own)", None),
            ("[a](#top)", None),
            ("![a](docs/c.png)", None),
            ("[a](https://example.com/x#y)", None),
            ("`[a](nowhere)`", None),
            ("```\n[a](nowhere)\n```", None),
            ("[a](docs/b.md#twice-2)", "docs/b.md has no heading \"twice-2\""),
            ("[a](#Top)", "a.md has no heading \"Top\""),
            ("[a](docs/d.md)", "there is no such file"),
            ("![a](docs/d.png)", "there is no such file"),
            ("<img src=\"docs/d.png\">", "there is no such file"),
            ("[a](../b.md)", "it leads out of the tree"),
            ("[a](/docs/b.md)", "an absolute path leads nowhere on other computers"),
            ("[a](htp://example.com)", "the scheme \"htp\" is not one of http, https, mailto"),
            ("[a](https://example)", "\"example\" is not the name of a host"),
        ]
        for text, fault in rows:
            with self.subTest(text):
                self.put("a.md", f"# Top\n\n{text}\n")
                status, lines = check("--markdown", self.folder)
                if fault is None:
                    self.assertEqual((status, lines), (0, []))
                else:
                    self.assertEqual((status, len(lines)), (1, 1), lines)
                    self.assertTrue(lines[0].startswith("a.md:3: "), lines[0])
                    self.assertTrue(lines[0].endswith(": " + fault), lines[0])

    def test_html(self):
        self.put("b.html", "<h2 id='x'>x</h2><a name=\"y\"></a>")
        self.put("c.png", "")
        rows = [
            ("<a href='b.html#x'>", None),
            ("<a href='b.html#y'>", None),
            ("<a href='#here' id='here'>", None),
            ("<img src='c.png'>", None),
            ("<a href='javascript:f()'>", None),
            ("<a href='https://example.com'>", None),
            ("<a href='b.html#z'>", "b.html has no anchor \"z\""),
            ("<a href='#z'>", "a.html has no anchor \"z\""),
            ("<a href='d.html'>", "there is no such file"),
            ("<img src='d.png'>", "there is no such file"),
            ("<img srcset='c.png 1x, d.png 2x'>", "there is no such file"),
            ("<a href='../b.html'>", "it leads out of the site"),
            ("<a href='.'>", "there is no such file"),
        ]
        for text, fault in rows:
            with self.subTest(text):
                self.put("a.html", f"<!DOCTYPE html>\n{text}\n")
                status, lines = check("--html", self.folder)
                if fault is None:
                    self.assertEqual((status, lines), (0, []))
                else:
                    self.assertEqual((status, len(lines)), (1, 1), lines)
                    self.assertTrue(lines[0].startswith("a.html:2: "), lines[0])
                    self.assertTrue(lines[0].endswith(": " + fault), lines[0])

    def test_an_empty_folder_is_no_success(self):
        for what in ("--markdown", "--html"):
            self.assertEqual(check(what, self.folder)[0], 1)
        self.assertEqual(check("--html", self.folder / "missing")[0], 2)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
