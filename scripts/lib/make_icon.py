# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Makes an icon for Windows of a drawing, in the sizes that Windows shows.

Usage: make_icon.py DRAWING.svg ICON.ico
"""
import pathlib
import struct
import subprocess
import sys

SIZES = (16, 24, 32, 48, 64, 256)


def main():
    if len(sys.argv) != 3:
        sys.exit("make_icon: expected DRAWING.svg ICON.ico")
    drawing, icon = map(pathlib.Path, sys.argv[1:])
    pictures = [subprocess.run(["rsvg-convert", "--width", str(size), "--height", str(size), drawing],
                               check=True, capture_output=True).stdout for size in SIZES]
    # Each entry: width, height (0 is 256), no palette, planes, bits, length and place of a PNG file.
    place = 6 + 16 * len(SIZES)
    data = struct.pack("<HHH", 0, 1, len(SIZES))
    for size, picture in zip(SIZES, pictures):
        data += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(picture), place)
        place += len(picture)
    icon.write_bytes(data + b"".join(pictures))


if __name__ == "__main__":
    main()
