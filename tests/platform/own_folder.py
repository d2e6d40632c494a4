# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Gives a test that imports setUpModule a folder of its own for its endpoints."""
import os
import tempfile
import unittest


def setUpModule():
    folder = tempfile.TemporaryDirectory()
    unittest.addModuleCleanup(folder.cleanup)
    os.environ["XDG_RUNTIME_DIR"] = folder.name
