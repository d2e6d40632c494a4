# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The version of the package: that of the library with which it was released."""

__version__ = "1.0.0"
