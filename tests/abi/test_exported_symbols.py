# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Compares what the libraries of this build export with the lists in abi/.

test_exported_symbols.py SOURCES FOLDER_OF_LIBRARIES
"""
import pathlib
import sys
import unittest

SOURCES, LIBRARIES = map(pathlib.Path, sys.argv[1:3])
sys.path.append(str(SOURCES / "scripts/lib"))
import library_interface  # noqa: E402


class ExportedSymbolsTest(unittest.TestCase):
    def test_each_library_exports_what_is_listed(self):
        for name in library_interface.LIBRARIES:
            with self.subTest(library=name):
                kept = (SOURCES / f"abi/{name}.symbols").read_text(encoding="utf-8").splitlines()
                self.assertGreater(len(kept), 10)
                removed, added = library_interface.symbol_differences(
                    kept, library_interface.exported_symbols(LIBRARIES / f"{name}.so"))
                self.assertEqual(removed, [], "hosts need these; restore them, or raise the major version")
                self.assertEqual(added, [], "if they are meant to be public, run scripts/check-abi --update")

    def test_the_lists_are_sorted_and_name_each_symbol_once(self):
        for file in sorted((SOURCES / "abi").glob("*.symbols")):
            lines = file.read_text(encoding="utf-8").splitlines()
            self.assertEqual(lines, sorted(set(lines)), file.name)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
