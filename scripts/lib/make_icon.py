# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Makes the pictures of the installer for Windows.

Usage: make_icon.py DRAWING.svg ICON.ico SIDE.bmp

ICON.ico is the drawing in the sizes that Windows shows. SIDE.bmp is the left side of the first and the last page, in the
colours of the drawing, from top to bottom.
"""
import pathlib
import struct
import subprocess
import sys

SIZES = (16, 24, 32, 48, 64, 256)
SIDE_WIDTH, SIDE_HEIGHT = 164, 314
TOP, BOTTOM = (0x56, 0x67, 0x7E), (0x22, 0x2B, 0x36)


def side():
    # A bitmap begins with its lowest line; each line has a multiple of four bytes, and blue comes first.
    lines = b""
    for line in range(SIDE_HEIGHT):
        share = line / (SIDE_HEIGHT - 1)
        color = bytes(round(low + (high - low) * share) for low, high in reversed(list(zip(BOTTOM, TOP))))
        lines += color * SIDE_WIDTH
    head = struct.pack("<IiiHHIIiiII", 40, SIDE_WIDTH, SIDE_HEIGHT, 1, 24, 0, len(lines), 2835, 2835, 0, 0)
    place = 14 + len(head)
    return struct.pack("<2sIHHI", b"BM", place + len(lines), 0, 0, place) + head + lines


def main():
    if len(sys.argv) != 4:
        sys.exit("make_icon: expected DRAWING.svg ICON.ico SIDE.bmp")
    drawing, icon, bitmap = map(pathlib.Path, sys.argv[1:])
    bitmap.write_bytes(side())
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
