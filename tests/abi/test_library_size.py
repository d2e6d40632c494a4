# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""How much the library takes on the disk of those who install it, without debug information.

test_library_size.py STRIP LIBRARY
"""
import os
import subprocess
import sys
import tempfile
import unittest

STRIP, LIBRARY = sys.argv[1:3]
LIMIT = 1_500_000  # bytes


class LibrarySizeTest(unittest.TestCase):
    def test_the_stripped_library_is_small(self):
        with tempfile.TemporaryDirectory() as folder:
            stripped = os.path.join(folder, os.path.basename(LIBRARY))
            subprocess.run([STRIP, "--strip-unneeded", "-o", stripped, LIBRARY], check=True)
            size = os.path.getsize(stripped)
        print(f"{LIBRARY}: {size} bytes without debug information", flush=True)
        self.assertLess(size, LIMIT)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
