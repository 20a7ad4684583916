#!/usr/bin/env python3
"""make_strip.py BITMAP NUMBER-NAME.svg...: makes the strip of the toolbar's pictures from their drawings.

A picture's number is its place in the strip. White is the mask: what a picture leaves out becomes white, and its own white
the lightest grey. Pixels at its edge are either its own or the mask's, since a blend of both would show as a fringe.

Needs rsvg-convert and ImageMagick.
"""

import pathlib
import struct
import subprocess
import sys

CELL = 16
WIDTH = 975
MASK = (255, 255, 255)
LIGHTEST = (254, 254, 254)


def render(picture):
    """The pixels of a picture from top left to bottom right, each (red, green, blue, alpha)."""
    png = subprocess.run(["rsvg-convert", "-w", str(CELL), "-h", str(CELL), picture], check=True, capture_output=True)
    rgba = subprocess.run(["convert", "png:-", "-depth", "8", "rgba:-"], input=png.stdout, check=True, capture_output=True)
    return list(struct.iter_unpack("4B", rgba.stdout))


def without_fringe(red, green, blue, alpha):
    color = (red, green, blue)
    if alpha < 128:
        return MASK
    return LIGHTEST if color == MASK else color


def strip_of(pictures):
    """The rows of the strip from top to bottom, each a list of colours."""
    rows = [[MASK] * WIDTH for _ in range(CELL)]
    for picture in pictures:
        left = int(picture.name.split("-")[0]) * CELL
        for position, pixel in enumerate(render(picture)):
            rows[position // CELL][left + position % CELL] = without_fringe(*pixel)
    return rows


def bitmap_file(rows):
    """The rows as a Windows bitmap of 24 bits."""
    padding = b"\0" * (-WIDTH * 3 % 4)
    bits = b"".join(b"".join(bytes(reversed(color)) for color in row) + padding for row in reversed(rows))
    info = struct.pack("<IiiHHIIiiII", 40, WIDTH, CELL, 1, 24, 0, len(bits), 0, 0, 0, 0)
    header = struct.pack("<2sIHHI", b"BM", 14 + len(info) + len(bits), 0, 0, 14 + len(info))
    return header + info + bits


def main():
    bitmap, *pictures = map(pathlib.Path, sys.argv[1:])
    bitmap.parent.mkdir(parents=True, exist_ok=True)
    bitmap.write_bytes(bitmap_file(strip_of(pictures)))


if __name__ == "__main__":
    main()
