# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Checks that every translatable text of the sources has a finished translation in every language.

Usage: check_translations.py LUPDATE FOLDER...

Qt's lupdate reads the folders and updates copies of translations/*.ts. Each text that is new, unfinished
or empty in a copy is printed on a line, and so is each text of a .ts file that is no longer in any source.
If there is one, the exit status is 1. The .ts files themselves are not changed.
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml


def shown(text):
    line = (text or "").replace("\n", "\\n")
    return line if len(line) <= 60 else line[:57] + "..."


def findings_of(name, copy):
    for message in xml.parse(copy).getroot().iter("message"):
        source = shown(message.findtext("source"))
        translation = message.find("translation")
        state = translation.get("type", "")
        forms = [form.text for form in translation.iter("numerusform")] or [translation.text]
        if state in ("vanished", "obsolete"):
            yield f"{name}: \"{source}\" is no longer in any source; remove it (lupdate -no-obsolete)"
        elif state == "unfinished" or not all(form and form.strip() for form in forms):
            yield f"{name}: \"{source}\" is not translated"


def main():
    if len(sys.argv) < 3:
        sys.exit("check_translations: expected LUPDATE FOLDER...")
    lupdate, *folders = sys.argv[1:]
    catalogues = sorted(pathlib.Path("translations").glob("*.ts"))
    if not catalogues:
        sys.exit("check_translations: no file matches translations/*.ts")
    findings = []
    with tempfile.TemporaryDirectory() as copies:
        for catalogue in catalogues:
            copy = pathlib.Path(copies) / catalogue.name
            shutil.copy(catalogue, copy)
            subprocess.run([lupdate, "-silent", "-locations", "none", *folders, "-ts", copy],
                           check=True, stdout=subprocess.DEVNULL)
            findings += findings_of(catalogue, copy)
    for finding in findings:
        print(f"check_translations: {finding}")
    if findings:
        sys.exit(1)


main()
