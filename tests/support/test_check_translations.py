# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Tests of the check of translations. Usage: test_check_translations.py CHECK LUPDATE"""
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest
from xml.sax.saxutils import escape

CHECK, LUPDATE = sys.argv[1:]
LANGUAGES = ("de", "en", "es", "fr", "it", "ja", "zh_CN")


def message(source, translation, state="", numerus=""):
    state = f' type="{state}"' if state else ""
    return (f"<message{numerus}><source>{escape(source)}</source>"
            f"<translation{state}>{translation}</translation></message>")


class Check(unittest.TestCase):
    """A project with two texts, both translated into every language."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for name in ("src", "plain", "translations"):
            (self.root / name).mkdir()
        self.source('tr("Ready"); tr("Error %1 in %2");')
        (self.root / "plain" / "plain.cpp").write_text("int plain() { return 0; }\n")
        for language in LANGUAGES:
            self.catalogue(language)

    def source(self, body):
        (self.root / "src" / "texts.cpp").write_text(
            "#include <QObject>\nclass Texts : public QObject { Q_OBJECT void show(); };\n"
            f"void Texts::show() {{ {body} }}\n")

    def catalogue(self, language, *messages):
        ready, error = "Ready", "Error %1 in %2"
        default = (message(ready, ready if language == "en" else "Bereit"),
                   message(error, error if language == "en" else "In %2: Fehler %1"))
        (self.root / "translations" / f"app_{language}.ts").write_text(
            '<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n'
            f'<TS version="2.1" language="{language}"><context><name>Texts</name>'
            + "".join(messages or default) + "</context></TS>\n", encoding="utf-8")

    def check(self, *catalogues):
        done = subprocess.run(
            [sys.executable, "-B", CHECK, LUPDATE, *(catalogues or ("translations/app=src", "=plain"))],
            cwd=self.root, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        return done.returncode, done.stdout

    def fails(self, *lines):
        status, output = self.check()
        self.assertEqual(output.splitlines(), [f"check_translations: {line}" for line in lines])
        self.assertEqual(status, 1)

    def test_passes_when_every_text_is_translated(self):
        self.assertEqual(self.check(), (0, ""))

    def test_changes_nothing(self):
        before = {file: file.read_bytes() for file in self.root.rglob("*.*")}
        self.source('tr("Ready"); tr("New");')
        before[self.root / "src" / "texts.cpp"] = (self.root / "src" / "texts.cpp").read_bytes()
        self.check()
        self.assertEqual({file: file.read_bytes() for file in self.root.rglob("*.*")}, before)

    def test_fails_for_a_text_that_no_file_has(self):
        self.source('tr("Ready"); tr("Error %1 in %2"); tr("New");')
        self.fails(*(f'translations/app_{language}.ts: "New" is not translated'
                     for language in LANGUAGES))

    def test_fails_for_a_text_that_one_language_lacks(self):
        self.catalogue("fr", message("Ready", "Prête"))
        self.fails('translations/app_fr.ts: "Error %1 in %2" is not translated')

    def test_fails_for_an_unfinished_translation(self):
        self.catalogue("it", message("Ready", "Pronta", "unfinished"),
                       message("Error %1 in %2", "Errore %1 in %2"))
        self.fails('translations/app_it.ts: "Ready" is not translated')

    def test_fails_for_an_empty_translation(self):
        for empty in ("", "  "):
            self.catalogue("it", message("Ready", empty), message("Error %1 in %2", "Errore %1 in %2"))
            self.fails('translations/app_it.ts: "Ready" is not translated')

    def test_fails_for_a_text_that_is_in_no_source(self):
        for state in ("", "vanished", "obsolete"):
            self.catalogue("es", message("Ready", "Lista"), message("Error %1 in %2", "Error %1 en %2"),
                           message("Gone", "Ido", state))
            self.fails('translations/app_es.ts: "Gone" is no longer in any source; remove it '
                       "(lupdate -no-obsolete)")

    def test_fails_for_a_lacking_placeholder(self):
        self.catalogue("ja", message("Ready", "準備完了"), message("Error %1 in %2", "エラー %1"))
        self.fails('translations/app_ja.ts: the translation of "Error %1 in %2" lacks %2')

    def test_fails_for_a_placeholder_too_many(self):
        self.catalogue("ja", message("Ready", "%1 準備完了"), message("Error %1 in %2", "エラー %1 %2"))
        self.fails('translations/app_ja.ts: the translation of "Ready" has %1, which the source lacks')

    def test_fails_for_a_lacking_number_in_a_plural(self):
        self.source('tr("%n label(s)", "", 2);')
        numerus = ' numerus="yes"'
        for language in LANGUAGES:
            one = "<numerusform>%n x</numerusform>"
            self.catalogue(language, message("%n label(s)", one * (1 if language in ("ja", "zh_CN") else 2),
                                             numerus=numerus))
        self.assertEqual(self.check(), (0, ""))
        self.catalogue("de", message(
            "%n label(s)", "<numerusform>%n Etikett</numerusform><numerusform>Etiketten</numerusform>",
            numerus=numerus))
        self.fails('translations/app_de.ts: the translation of "%n label(s)" lacks %n')

    def test_fails_for_another_text_in_english(self):
        self.catalogue("en", message("Ready", "Steady"), message("Error %1 in %2", "Error %1 in %2"))
        self.fails('translations/app_en.ts: "Ready" has another text in English')

    def test_fails_for_a_language_without_a_file(self):
        os.remove(self.root / "translations" / "app_zh_CN.ts")
        self.fails("translations/app_zh_CN.ts: there is no such file; every language needs one")

    def test_fails_for_a_file_of_no_catalogue(self):
        self.catalogue("pt")
        self.fails("translations/app_pt.ts: belongs to no catalogue or to a language that is not known")

    def test_fails_for_a_text_in_a_folder_without_catalogue(self):
        (self.root / "plain" / "plain.cpp").write_text(
            '#include <QObject>\nQString plain() { return QObject::tr("Lost"); }\n')
        self.fails('"Lost" is in a folder without translations; expected in one of plain')

    def test_refuses_a_folder_that_is_missing(self):
        status, output = self.check("translations/app=src,gone")
        self.assertEqual((status, output), (1, "check_translations: there is no folder gone\n"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
