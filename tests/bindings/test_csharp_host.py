# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Runs the example in C# on the built-in fleet, until it has told of changes.

Usage: test_csharp_host.py MONO PROGRAM CATALOGUE
"""
import subprocess
import sys
import unittest

MONO, PROGRAM, CATALOGUE = (sys.argv.pop(1) for _ in range(3))


class Example(unittest.TestCase):
    def test_prints_printers_and_changes(self):
        with subprocess.Popen(
            [MONO, PROGRAM, CATALOGUE],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            universal_newlines=True,
        ) as host:
            lines = [host.stdout.readline().strip() for _ in range(5 + 3)]
            rest, errors = host.communicate("\n")
        self.assertEqual((host.returncode, errors), (0, ""))
        self.assertTrue(lines[0].startswith("Branch Office: "), lines)
        self.assertIn("supply not known; ribbon 1 not known", lines[0])
        self.assertTrue(any("Vinyl, " in line for line in lines + rest.splitlines()), lines)

    def test_says_what_is_wrong(self):
        result = subprocess.run(
            [MONO, PROGRAM, "x" * 5000], stderr=subprocess.PIPE, universal_newlines=True, check=False
        )
        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stderr, "csharp_host: value has more than 4096 bytes\n")


if __name__ == "__main__":
    unittest.main(verbosity=2)
