# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Packs a folder as a zip with the same bytes for the same files: sorted, with the time SOURCE_DATE_EPOCH in UTC, and
without what a file system adds, such as owners and the times of the last access (CMake's zips have these).

Usage: make_zip.py FOLDER ZIP
"""
import os
import pathlib
import sys
import time
import zipfile


def main():
    if len(sys.argv) != 3:
        sys.exit("make_zip: expected FOLDER ZIP")
    folder, target = map(pathlib.Path, sys.argv[1:])
    written = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    files = sorted((path.relative_to(folder.parent).as_posix(), path) for path in folder.rglob("*") if path.is_file())
    if not files:
        sys.exit(f"make_zip: {folder} has no files")
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for name, path in files:
            entry = zipfile.ZipInfo(name, written)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 3  # the rights are those of Unix
            entry.external_attr = (0o100755 if path.stat().st_mode & 0o100 else 0o100644) << 16
            archive.writestr(entry, path.read_bytes(), compresslevel=9)


if __name__ == "__main__":
    main()
