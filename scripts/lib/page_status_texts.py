#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Writes the titles and remedies of the status codes for the page, web/texts/status.*.json, as the monitor
prints them in each language. With --check it writes nothing, and fails if the files differ from that.

Usage: page_status_texts.py [--check] MONITOR FOLDER
"""
import json
import os
import pathlib
import subprocess
import sys

LOCALES = {"de": "de_DE", "en": "en_GB", "es": "es_ES", "fr": "fr_FR", "it": "it_IT", "ja": "ja_JP",
           "zh_CN": "zh_CN"}
# A code that no table knows; its texts contain the number.
UNKNOWN_CODE = "987654321"


def titles(monitor, locale, code):
    environment = {name: value for name, value in os.environ.items() if name not in ("LANG", "LANGUAGE")}
    environment["LC_ALL"] = f"{locale}.UTF-8"
    output = subprocess.run([monitor, "title", code, "--json"], env=environment, check=True,
                            stdout=subprocess.PIPE, encoding="utf-8").stdout
    found = json.loads(output)
    return found if isinstance(found, list) else [found]


def texts_of(monitor, locale):
    texts = {}
    for info in titles(monitor, locale, "--all"):
        texts[info["key"]] = {"title": info["title"], "remedy": info["remedy"]}
    unknown = titles(monitor, locale, UNKNOWN_CODE)[0]
    texts[unknown["key"]] = {name: unknown[name].replace(UNKNOWN_CODE, "{code}") for name in ("title", "remedy")}
    return json.dumps(texts, ensure_ascii=False, indent=4) + "\n"


def main():
    arguments = sys.argv[1:]
    check = arguments[:1] == ["--check"]
    if len(arguments) != 2 + check:
        sys.exit(__doc__)
    monitor, folder = arguments[check:]
    for language, locale in LOCALES.items():
        file = pathlib.Path(folder, f"status.{language}.json")
        texts = texts_of(monitor, locale)
        if not check:
            file.write_text(texts, encoding="utf-8")
        elif not file.is_file() or file.read_text(encoding="utf-8") != texts:
            sys.exit(f"{file} does not have the monitor's texts; build the target page_status_texts_update")


if __name__ == "__main__":
    main()
