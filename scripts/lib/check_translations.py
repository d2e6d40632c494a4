# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Checks that every translatable text of the sources has a finished translation in every language.

Usage: check_translations.py LUPDATE CATALOGUE=FOLDER[,FOLDER...]... [=FOLDER,...]

A catalogue is a group of .ts files, one for each language: translations/tools stands for
translations/tools_de.ts, translations/tools_en.ts and so on. Its texts are in the folders named after it.
The folders after a lone "=" have no catalogue, so they must not have any translatable text.

Qt's lupdate reads the folders and updates copies of the .ts files. Printed on a line each, with exit status 1:
  - a language without a file, and a .ts file of no catalogue
  - a text that is in no .ts file, or has no translation, an unfinished one or an empty one
  - a text of a .ts file that is no longer in any source
  - a placeholder (%1, %L1, %n) that a translation lacks or that only the translation has
  - an English translation that differs from the source
The .ts files themselves are not changed.
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

LANGUAGES = ("de", "en", "es", "fr", "it", "ja", "zh_CN")
PLACEHOLDER = re.compile(r"%(?:L?\d{1,2}|n)")


def shown(text):
    line = (text or "").replace("\n", "\\n")
    return line if len(line) <= 60 else line[:57] + "..."


def run_lupdate(lupdate, folders, files):
    found = subprocess.run([lupdate, "-silent", "-locations", "none", *folders, "-ts", *files],
                           stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
    if found.returncode != 0:
        sys.exit(f"check_translations: lupdate failed: {found.stderr}")


def messages_of(file):
    for context in xml.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            yield message


def placeholder_findings(source, form):
    wanted, found = (set(PLACEHOLDER.findall(text)) for text in (source, form))
    for placeholder in sorted(wanted - found):
        yield f"lacks {placeholder}"
    for placeholder in sorted(found - wanted):
        yield f"has {placeholder}, which the source lacks"


def findings_in(name, file, language):
    for message in messages_of(file):
        source = message.findtext("source") or ""
        translation = message.find("translation")
        state = translation.get("type", "")
        forms = [form.text for form in translation.iter("numerusform")] or [translation.text]
        if state in ("vanished", "obsolete"):
            yield f"{name}: \"{shown(source)}\" is no longer in any source; remove it (lupdate -no-obsolete)"
        elif state == "unfinished" or not all(form and form.strip() for form in forms):
            yield f"{name}: \"{shown(source)}\" is not translated"
        else:
            for form in forms:
                for fault in placeholder_findings(source, form):
                    yield f"{name}: the translation of \"{shown(source)}\" {fault}"
            # A plural has an English form of its own.
            if language == "en" and len(forms) == 1 and message.get("numerus") != "yes" and forms[0] != source:
                yield f"{name}: \"{shown(source)}\" has another text in English"


def findings_of_catalogue(lupdate, catalogue, folders, scratch):
    copies = {}
    for language in LANGUAGES:
        file = pathlib.Path(f"{catalogue}_{language}.ts")
        if not file.is_file():
            yield f"{file}: there is no such file; every language needs one"
            continue
        copies[language] = scratch / file.name
        shutil.copy(file, copies[language])
    if copies:
        run_lupdate(lupdate, folders, copies.values())
    for language, copy in copies.items():
        yield from findings_in(f"{catalogue}_{language}.ts", copy, language)


def findings_of_folders(lupdate, folders, scratch):
    file = scratch / "no_catalogue.ts"
    run_lupdate(lupdate, folders, [file])
    for message in messages_of(file):
        yield (f"\"{shown(message.findtext('source'))}\" is in a folder without translations; "
               "expected in one of " + ", ".join(folders))


def files_without_catalogue(catalogues):
    known = {pathlib.Path(f"{catalogue}_{language}.ts")
             for catalogue in catalogues for language in LANGUAGES}
    for file in sorted(pathlib.Path(".").rglob("*.ts")):
        if not {"build", ".git"} & set(file.parts) and file not in known:
            yield f"{file}: belongs to no catalogue or to a language that is not known"


def main():
    if len(sys.argv) < 3 or not all("=" in argument for argument in sys.argv[2:]):
        sys.exit("check_translations: expected LUPDATE CATALOGUE=FOLDER[,FOLDER...]...")
    lupdate = sys.argv[1]
    catalogues = {}
    for argument in sys.argv[2:]:
        catalogue, folders = argument.split("=", 1)
        catalogues[catalogue] = folders.split(",")
        for folder in catalogues[catalogue]:
            if not pathlib.Path(folder).is_dir():
                sys.exit(f"check_translations: there is no folder {folder}")
    findings = []
    with tempfile.TemporaryDirectory() as scratch:
        for catalogue, folders in catalogues.items():
            own = pathlib.Path(tempfile.mkdtemp(dir=scratch))
            findings += (findings_of_catalogue(lupdate, catalogue, folders, own) if catalogue
                         else findings_of_folders(lupdate, folders, own))
    findings += files_without_catalogue(catalogue for catalogue in catalogues if catalogue)
    for finding in findings:
        print(f"check_translations: {finding}")
    if findings:
        sys.exit(1)


main()
