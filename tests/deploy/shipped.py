# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The broker configurations as they are shipped, with nothing changed but paths, ports and host names."""
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
DEPLOY = ROOT / "deploy"
sys.path.insert(0, str(ROOT / "tests/web"))


def with_changes(text, changes):
    """Each part to replace must be there: otherwise the test would not test the file."""
    for old, new in changes.items():
        if old not in text:
            raise AssertionError(f"the shipped file has no {old!r}")
        text = text.replace(old, str(new))
    return text


PASSWORDS = {"plant-1-agents": "secret-1", "plant-2-agents": "secret-2", "page": "secret-page",
             "plant-1-page": "secret-page-1"}
