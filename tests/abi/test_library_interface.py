# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Whether scripts/lib/library_interface.py notices what breaks hosts, on a small library that is changed.

test_library_interface.py SOURCES COMPILER
"""
import contextlib
import io
import pathlib
import subprocess
import sys
import tempfile
import unittest

SOURCES, COMPILER = pathlib.Path(sys.argv[1]), sys.argv[2]
sys.path.append(str(SOURCES / "scripts/lib"))
import library_interface  # noqa: E402

HEADER = """
#pragma once
#include <map>
#include <string>
#define API __attribute__((visibility("default")))
class Hidden;
class API Roll
{
public:
    Roll();
    virtual ~Roll();
    virtual int left() const;
    int length() const;
private:
    std::map<std::string, int> m_labels;
    Hidden* m_hidden = nullptr;
};
API int rolls(const Roll& roll);
"""
SOURCE = """
#include "roll.h"
class Hidden { public: int number = 0; };
Roll::Roll() { m_labels["a"] = 1; m_hidden = new Hidden; }
Roll::~Roll() { delete m_hidden; }
int Roll::left() const { return m_hidden->number; }
int Roll::length() const { return m_labels.at("a"); }
int rolls(const Roll& roll) { return roll.left(); }
int notExported() { return 4; }
"""


class LibraryInterfaceTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        self.library = self.folder / "libroll.so"
        self.build()
        self.assertTrue(self.check(update=True)[0])

    def build(self, *changes):
        header, source = HEADER, SOURCE
        for old, new in changes:
            self.assertIn(old, header + source)
            header, source = header.replace(old, new), source.replace(old, new)
        (self.folder / "roll.h").write_text(header, encoding="utf-8")
        (self.folder / "roll.cpp").write_text(source, encoding="utf-8")
        subprocess.run([COMPILER, "-std=c++20", "-g", "-O2", "-fPIC", "-shared", "-fvisibility=hidden",
                        "-fvisibility-inlines-hidden", "-o", self.library, self.folder / "roll.cpp"], check=True)

    def check(self, update=False):
        output = io.StringIO()
        with contextlib.redirect_stdout(output):
            is_good = library_interface.check("libroll", self.library, [self.folder], self.folder, update)
        return is_good, output.getvalue()

    def assert_breaks(self, *changes):
        self.build(*changes)
        is_good, said = self.check()
        self.assertFalse(is_good)
        self.assertIn("raise the major version", said)
        return said

    def test_the_same_library_passes(self):
        is_good, said = self.check()
        self.assertTrue(is_good, said)

    def test_only_what_is_exported_is_listed(self):
        symbols = (self.folder / "libroll.symbols").read_text(encoding="utf-8").splitlines()
        self.assertIn("Roll::length() const", symbols)
        self.assertIn("vtable for Roll", symbols)
        self.assertFalse([each for each in symbols if "notExported" in each or "std::" in each])

    def test_a_change_of_what_hosts_do_not_see_passes(self):
        self.build(("class Hidden { public: int number = 0; };", "class Hidden { public: long a = 1; int number = 0; };"),
                   ("notExported", "renamed"))
        is_good, said = self.check()
        self.assertTrue(is_good, said)

    def test_a_new_function_has_to_be_recorded(self):
        self.build(("API int rolls(const Roll& roll);", "API int rolls(const Roll& roll);\nAPI int reels();"),
                   ("int notExported", "int reels() { return 1; }\nint notExported"))
        is_good, said = self.check()
        self.assertFalse(is_good)
        self.assertIn("new: reels()", said)
        self.assertIn("--update", said)
        self.assertNotIn("raise the major version", said)
        self.check(update=True)
        self.assertTrue(self.check()[0])

    def test_a_removed_function_breaks_hosts(self):
        said = self.assert_breaks(("    int length() const;\n", ""),
                                  ('int Roll::length() const { return m_labels.at("a"); }\n', ""))
        self.assertIn("removed: Roll::length() const", said)

    def test_a_new_private_member_breaks_hosts(self):
        said = self.assert_breaks(("    Hidden* m_hidden = nullptr;", "    int m_more = 0;\n    Hidden* m_hidden = nullptr;"))
        self.assertIn("m_more", said)

    def test_another_type_in_a_private_map_breaks_hosts(self):
        self.assert_breaks(("std::map<std::string, int> m_labels;", "std::map<int, std::string> m_labels;"),
                           ('m_labels["a"] = 1', "m_labels[1] = std::string()"),
                           ('m_labels.at("a")', "int(m_labels.size())"))

    def test_a_virtual_function_before_another_breaks_hosts(self):
        self.assert_breaks(("    virtual int left() const;", "    virtual int spare() const { return 0; }\n    virtual int left() const;"))

    def test_another_result_breaks_hosts(self):
        self.assert_breaks(("API int rolls(const Roll& roll);", "API long rolls(const Roll& roll);"),
                           ("int rolls(const Roll& roll) {", "long rolls(const Roll& roll) {"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
