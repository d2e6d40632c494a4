# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Whether the installed Python package is complete. The clean system of scripts/test-packages runs it."""
import importlib.metadata
import importlib.util
import os
import pathlib
import sys

import vxprinterstatus
from vxprinterstatus import _library

FOLDER = pathlib.Path("/usr/lib/python3/dist-packages/vxprinterstatus")

found = pathlib.Path(vxprinterstatus.__file__).parent
if found != FOLDER:
    sys.exit(f"the module is in {found}, not in {FOLDER}")
installed = importlib.metadata.distribution("vxprinterstatus")
if installed.version != vxprinterstatus.__version__:
    sys.exit(f"the metadata name version {installed.version}, the module {vxprinterstatus.__version__}")
missing = [str(file) for file in installed.files or () if not file.locate().is_file()]
if missing or not installed.files:
    sys.exit(f"of what the metadata list there is not: {', '.join(missing) or 'anything'}")
if not (FOLDER / "py.typed").is_file():
    sys.exit("the module does not say that it has type hints: there is no py.typed")
# As root would import it: nothing is left to be compiled, so nothing that nobody removes.
for source in FOLDER.glob("*.py"):
    compiled = pathlib.Path(importlib.util.cache_from_source(str(source)))
    if not compiled.is_file():
        sys.exit(f"{source} was not compiled when the package was installed")
if "VXPRINTERSTATUS_LIBRARY" in os.environ:
    sys.exit("VXPRINTERSTATUS_LIBRARY is set, so this shows nothing")
name = _library.library()._name
if name != "libvxprinterstatuskit.so.1":
    sys.exit(f"the library was loaded as {name}, not by the name that programs find it under")
print(f"vxprinterstatus is installed: {installed.version}")
