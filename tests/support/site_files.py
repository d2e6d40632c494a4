# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Compares what a package has for a site with the sources: the page, the configurations and the guides."""
import pathlib

FOLDERS = ("web", "deploy", "docs")
# The list of packages that the page's bundle is made from is of use with the sources only.
NOT_INSTALLED = {pathlib.Path("web/package.json"), pathlib.Path("web/package-lock.json")}


def files_below(folder):
    return {path.relative_to(folder) for name in FOLDERS for path in (folder / name).rglob("*")
            if path.is_file() and "node_modules" not in path.parts}


def differences(sources, installed, left_out=None):
    """What is missing in the installed folder, too much or different. The folder `left_out` is not expected."""
    expected = {path for path in files_below(sources) - NOT_INSTALLED
                if not left_out or not path.is_relative_to(left_out)}
    found = files_below(installed)
    return ([f"missing: {path}" for path in sorted(expected - found)]
            + [f"too much: {path}" for path in sorted(found - expected)]
            + [f"different: {path}" for path in sorted(expected & found)
               if (sources / path).read_bytes() != (installed / path).read_bytes()])
