# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Checks the guide and the README against the code: what they show is compiled, and what they name exists.

Usage: test_host_guide.py ROOT
"""
import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(sys.argv.pop(1))
GUIDE = ROOT / "docs/host-guide.md"
README = ROOT / "README.md"
C_GUIDE = ROOT / "docs/c-interface.md"
# A test compiles each of these.
SOURCES = [
    *sorted(path for path in ROOT.glob("examples/*/*") if path.is_file()),
    *sorted(ROOT.glob("tests/host/logging_host/*")),
    ROOT / "tests/host/tst_host_guide.cpp",
]


def lines(text):
    return [line.strip() for line in text.strip().splitlines()]


def blocks(page):
    return re.findall(r"^```(?:c|cpp|cmake|csharp|python)\n(.*?)^```$", page.read_text(), re.M | re.S)


def contains(whole, part):
    return any(whole[i : i + len(part)] == part for i in range(len(whole) - len(part) + 1))


class HostGuide(unittest.TestCase):
    def test_shows_code_that_is_compiled(self):
        sources = [lines(source.read_text()) for source in SOURCES]
        self.assertGreater(len(blocks(GUIDE)), 12)
        self.assertGreater(len(blocks(README)), 1)
        self.assertGreater(len(blocks(C_GUIDE)), 4)
        for block in blocks(GUIDE) + blocks(README) + blocks(C_GUIDE):
            self.assertTrue(any(contains(source, lines(block)) for source in sources),
                            f"no compiled file has this:\n{block}")

    def test_shows_no_code_in_other_languages(self):
        fences = re.findall(r"^```(\w*)$", GUIDE.read_text(), re.M)
        self.assertEqual(set(fences[0::2]), {"cmake", "cpp", "sh"})
        self.assertEqual(set(fences[1::2]), {""})

    def test_names_every_log_line(self):
        guide = GUIDE.read_text()
        headers = ("status/log_lines.h", "winprint/printer_info_log_lines.h")
        header = "".join((ROOT / name).read_text() for name in headers)
        files = dict(re.findall(r'constexpr char (\w+)\[\] = "(\w+)";', header))
        places = re.findall(r"constexpr LogLine \w+\{\s*(\w+),\s*(\d+),([^}]*)\}", header)
        self.assertGreater(len(places), 14)
        rows = [row for row in guide.splitlines() if row.startswith("|")]
        for file, number, rest in places:
            place = f"`{files[file]}:{number}`"
            row = [row for row in rows if place in row]
            self.assertEqual(len(row), 1, place)
            texts = re.findall(r'"((?:[^"\\]|\\.)*)"', rest)
            message = texts[-1] if texts and not texts[-1].endswith(")") else ""
            for part in message.replace("\\n", "").split("%s"):
                self.assertIn(part.strip(), row[0])

    def test_names_every_signal_and_slot(self):
        guide = GUIDE.read_text()
        header = (ROOT / "include/printer_status_controller.h").read_text()
        public = header[header.index("public:") : header.index("private Q_SLOTS:")]
        names = re.findall(r"^    (?:[\w:]+[*&]? )+(\w+)\([^)]*\)(?: const)?;$", public, re.M)
        self.assertGreater(len(names), 16)
        for name in names:
            self.assertIn(f"`{name}", guide)

    def test_names_every_language(self):
        guide = GUIDE.read_text()
        for file in ROOT.glob("translations/vxprinterstatus_*.ts"):
            self.assertIn(f"`{file.stem.removeprefix('vxprinterstatus_')}`", guide)

    def test_c_guide_names_existing_functions(self):
        header = (ROOT / "kit/include/vxkit.h").read_text()
        names = re.findall(r"`(vxkit_\w+|VXKIT_\w+)`", C_GUIDE.read_text())
        self.assertGreater(len(names), 10)
        for name in names:
            self.assertRegex(header, rf"\b{name}\b")

    def test_c_guide_links_to_existing_files(self):
        for target in re.findall(r"\]\(([^)#]+)", C_GUIDE.read_text()):
            self.assertTrue((C_GUIDE.parent / target).exists(), target)

    def test_refers_to_its_own_headings(self):
        guide = GUIDE.read_text()
        headings = re.findall(r"^#+ (.*)$", guide, re.M)
        anchors = {re.sub(r"[^\w -]", "", text.lower()).replace(" ", "-") for text in headings}
        self.assertEqual(set(re.findall(r"\]\(#([^)]+)\)", guide)) - anchors, set())

    def test_links_to_existing_files(self):
        prose = re.sub(r"^```.*?^```$", "", GUIDE.read_text(), flags=re.M | re.S)
        targets = re.findall(r"\]\(([^)#]+)\)", prose)
        self.assertGreater(len(targets), 4)
        for target in targets:
            self.assertTrue((GUIDE.parent / target).exists(), target)


if __name__ == "__main__":
    unittest.main()
