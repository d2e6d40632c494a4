# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Checks that every text of the page exists in every language.

Usage: check_page_texts.py WEB

WEB/texts has a file for each language, de.json, en.json and so on, with the same keys in the same order; a key
stands for a text or, where the number matters, for its plural forms. Printed on a line each, with exit status 1:
  - a language without a file, and a file of no language
  - a key that a language lacks, that only it has, or that is at another place than in English
  - an empty text, and a placeholder ({n}, {name}) that a text lacks or that only it has
  - a plural form that a language needs and lacks, or does not have
  - a key that the page's sources use and no file has, and a key that no source uses
"""
import json
import pathlib
import re
import sys

# The plural forms by Unicode's CLDR of which integers below a million make use; "other" serves for the rest.
FORMS = {"de": {"one", "other"}, "en": {"one", "other"}, "es": {"one", "other"}, "fr": {"one", "other"},
         "it": {"one", "other"}, "ja": {"other"}, "zh_CN": {"other"}}
PLACEHOLDER = re.compile(r"\{\w+\}")
KEY = r"[a-z][a-z0-9_]*(?:\.[a-z0-9_]+)*"
# In sources: a key as a whole text, or the beginning of a key whose end is a value, such as `slot.${slot}`.
USED_IN_SCRIPT = re.compile(rf"""["'`]({KEY})["'`]""")
BEGUN_IN_SCRIPT = re.compile(rf"`({KEY}\.)\$\{{")
USED_IN_PAGE = re.compile(rf'data-(?:text|label|placeholder)="({KEY})"')


def forms_of(text):
    return text if isinstance(text, dict) else {"": text}


def findings_in(language, texts, english):
    for key in english:
        if key not in texts:
            yield f'{language}.json: "{key}" is missing'
    for key, text in texts.items():
        if key not in english:
            yield f'{language}.json: "{key}" is not in en.json'
            continue
        yield from findings_in_text(language, key, text, english[key])
    if [key for key in texts if key in english] != [key for key in english if key in texts]:
        yield f"{language}.json: the keys are not in the order of en.json"


def findings_in_text(language, key, text, english):
    if isinstance(text, dict) != isinstance(english, dict):
        yield f'{language}.json: "{key}" has plural forms, or only in en.json'
        return
    if isinstance(text, dict) and set(text) != FORMS[language]:
        yield f'{language}.json: "{key}" has the forms {sorted(text)}; expected {sorted(FORMS[language])}'
    wanted = {placeholder for form in forms_of(english).values() for placeholder in PLACEHOLDER.findall(form)}
    for form, words in forms_of(text).items():
        name = f'"{key}"' + (f" ({form})" if form else "")
        if not isinstance(words, str) or not words.strip():
            yield f"{language}.json: {name} is empty"
            continue
        found = set(PLACEHOLDER.findall(words))
        for placeholder in sorted(wanted - found):
            yield f"{language}.json: {name} lacks {placeholder}"
        for placeholder in sorted(found - wanted):
            yield f"{language}.json: {name} has {placeholder}, which en.json lacks"


def findings_in_sources(web, english):
    used, begun, asked = set(), set(), set()
    for file in sorted(web.glob("src/*.js")):
        source = file.read_text(encoding="utf-8")
        begun |= set(BEGUN_IN_SCRIPT.findall(source))
        asked |= set(re.findall(rf"\.text\(`({KEY}\.)\$\{{", source))
        used |= set(USED_IN_SCRIPT.findall(source))
        # A text that is asked for by its name alone must exist.
        for key in re.findall(rf'\.text\("({KEY})"', source):
            if key not in english:
                yield f'{file.name}: there is no text "{key}"'
    page = (web / "index.html").read_text(encoding="utf-8")
    for key in USED_IN_PAGE.findall(page):
        used.add(key)
        if key not in english:
            yield f'index.html: there is no text "{key}"'
    for beginning in sorted(asked):
        if not any(key.startswith(beginning) for key in english):
            yield f'there is no text that begins with "{beginning}"'
    for key in english:
        if key not in used and not any(key.startswith(beginning) for beginning in begun):
            yield f'en.json: "{key}" is not used'


def findings(web):
    files = {file.stem: file for file in web.glob("texts/*.json") if not file.name.startswith("status.")}
    for language in sorted(set(FORMS) - set(files)):
        yield f"{language}.json is missing"
    for language in sorted(set(files) - set(FORMS)):
        yield f"{language}.json belongs to no language of the page"
    texts = {language: json.loads(file.read_text(encoding="utf-8")) for language, file in files.items()}
    if "en" not in texts:
        return
    for language in sorted(set(FORMS) & set(texts)):
        yield from findings_in(language, texts[language], texts["en"])
    yield from findings_in_sources(web, texts["en"])


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    found = list(findings(pathlib.Path(sys.argv[1])))
    print("\n".join(found), end="\n" if found else "")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
