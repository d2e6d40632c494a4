# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Tests of the check of the page's texts. Usage: test_check_page_texts.py CHECK WEB"""
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CHECK, WEB = sys.argv[1:]


class Check(unittest.TestCase):
    """A copy of the page, which has no findings, with one thing changed."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.web = pathlib.Path(folder.name, "web")
        shutil.copytree(WEB, self.web, ignore=shutil.ignore_patterns("vendor", "node_modules"))

    def findings(self):
        found = subprocess.run([sys.executable, CHECK, self.web], stdout=subprocess.PIPE, text=True)
        self.assertEqual(found.returncode, 1 if found.stdout else 0)
        return found.stdout.splitlines()

    def change(self, language, change):
        file = self.web / f"texts/{language}.json"
        texts = json.loads(file.read_text())
        change(texts)
        file.write_text(json.dumps(texts))

    def test_the_page_has_all_its_texts(self):
        self.assertEqual(self.findings(), [])

    def test_a_missing_language_is_found(self):
        (self.web / "texts/it.json").unlink()
        shutil.copy(self.web / "texts/de.json", self.web / "texts/nl.json")
        self.assertEqual(self.findings(), ["it.json is missing", "nl.json belongs to no language of the page"])

    def test_a_missing_text_is_found(self):
        self.change("fr", lambda texts: texts.pop("ends.title"))
        self.assertEqual(self.findings(), ['fr.json: "ends.title" is missing'])

    def test_an_additional_text_is_found(self):
        self.change("ja", lambda texts: texts.update(more="x"))
        self.assertEqual(self.findings(), ['ja.json: "more" is not in en.json'])

    def test_an_empty_text_is_found(self):
        self.change("es", lambda texts: texts.update({"close": " "}))
        self.assertEqual(self.findings(), ['es.json: "close" is empty'])

    def test_placeholders_are_compared(self):
        self.change("de", lambda texts: texts.update({"lasts": "etwa {zeit}"}))
        self.assertEqual(self.findings(), ['de.json: "lasts" lacks {time}',
                                           'de.json: "lasts" has {zeit}, which en.json lacks'])

    def test_plural_forms_are_compared(self):
        self.change("zh_CN", lambda texts: texts["level.labels"].update(one="{n}"))
        self.change("it", lambda texts: texts.update({"level.labels": "{n}"}))
        self.assertEqual(self.findings(), [
            'it.json: "level.labels" has plural forms, or only in en.json',
            "zh_CN.json: \"level.labels\" has the forms ['one', 'other']; expected ['other']"])

    def test_a_text_at_another_place_is_found(self):
        self.change("de", lambda texts: texts.update({"title": texts.pop("title")}))
        self.assertEqual(self.findings(), ["de.json: the keys are not in the order of en.json"])

    def test_texts_that_no_source_uses_or_that_do_not_exist_are_found(self):
        for file in (self.web / "texts").glob("??*.json"):
            if not file.name.startswith("status."):
                self.change(file.stem, lambda texts: texts.update({"not_used.by_anything": "x"}))
        page = self.web / "src/page.js"
        page.write_text(page.read_text() + 'words.text("no.such");\nwords.text(`nothing.${x}`);\n')
        index = self.web / "index.html"
        index.write_text(index.read_text().replace('data-text="ends.title"', 'data-text="ends.name"'))
        self.assertEqual(self.findings(), [
            'page.js: there is no text "no.such"', 'index.html: there is no text "ends.name"',
            'there is no text that begins with "nothing."', 'en.json: "ends.title" is not used',
            'en.json: "not_used.by_anything" is not used'])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
