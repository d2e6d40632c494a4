# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Gives each test that imports setUpModule its own folder for endpoints."""
import os
import tempfile
import unittest


def setUpModule():
    folder = tempfile.TemporaryDirectory()
    unittest.addModuleCleanup(folder.cleanup)
    os.environ["XDG_RUNTIME_DIR"] = folder.name
