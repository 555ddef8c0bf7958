#!/usr/bin/env python3
"""Turns the library's pixel-text art (res/art/*.txt) into the binaries that
the resource script embeds: a 24-bit .bmp for a one-image "bmp" file, an
.ico of 32-bit BGRA images with AND masks for an "ico" file, and a .cur of
the same images with a hot spot for a "cur" file.

Usage:
  art2bmp.py [--out DIR] FILE.txt...   write FILE.bmp / FILE.ico (beside the
                                       source, or into DIR)
  art2bmp.py --check FILE.txt...       regenerate in memory and compare with
                                       the committed binaries; exit 1 on drift

Source format (one file per resource, named after it):

  # a comment (only before or between images, never inside the rows)
  bmp 24 24              kind and size of an image: "bmp" or "ico", W H;
                         "cur W H X Y" for a cursor with its hot spot at X, Y
  . = C0C0C0             palette: one character, "=", RRGGBB or "none"
  K = 000000               ("none" is a transparent pixel, icons and cursors only)
  rows                   then exactly H rows of exactly W characters
  ........................
  ...

An "ico" file holds several images, each with its own header; the palette
of an image carries over to the next one, which may add or redefine
characters. A "bmp" file holds exactly one image. Only the standard library
is used, and the output depends on nothing but the source, so a committed
binary can be checked against its text.
"""

import os
import struct
import sys


class ArtError(Exception):
    pass


class Image:
    def __init__(self, kind, width, height, palette, rows, hotspot=(0, 0)):
        self.kind = kind
        self.hotspot = hotspot  # cursors only
        self.width = width
        self.height = height
        self.palette = palette  # char -> (r, g, b) or None
        self.rows = rows        # list of strings

    def pixel(self, x, y):
        return self.palette[self.rows[y][x]]


def parse(text, name="<art>"):
    """Parses a source text into a list of Images; raises ArtError."""
    images = []
    palette = {}
    lines = text.splitlines()
    i = 0
    kind = None

    def fail(line_no, message):
        raise ArtError("%s:%d: %s" % (name, line_no + 1, message))

    while i < len(lines):
        line = lines[i].strip()
        if not line or line.startswith("#"):
            i += 1
            continue
        head = line.split()
        if not ((len(head) == 3 and head[0] in ("bmp", "ico")) or (len(head) == 5 and head[0] == "cur")):
            fail(i, "expected an image header 'bmp W H', 'ico W H' or 'cur W H X Y'")
        if kind is not None and head[0] != kind:
            fail(i, "a file holds images of one kind only")
        kind = head[0]
        try:
            width, height = int(head[1]), int(head[2])
            hotspot = (int(head[3]), int(head[4])) if kind == "cur" else (0, 0)
        except ValueError:
            fail(i, "width, height and hot spot must be numbers")
        if not (1 <= width <= 256 and 1 <= height <= 256):
            fail(i, "width and height must lie in 1..256")
        if not (0 <= hotspot[0] < width and 0 <= hotspot[1] < height):
            fail(i, "the hot spot must lie inside the image")
        i += 1
        palette = dict(palette)
        while True:
            if i >= len(lines):
                fail(i - 1, "missing 'rows'")
            line = lines[i].strip()
            i += 1
            if not line or line.startswith("#"):
                continue
            if line == "rows":
                break
            parts = line.split()
            if len(parts) != 3 or parts[1] != "=" or len(parts[0]) != 1:
                fail(i - 1, "expected a palette entry 'c = RRGGBB'")
            value = parts[2]
            if value == "none":
                if kind == "bmp":
                    fail(i - 1, "'none' (transparent) is for icons only (and cursors)")
                palette[parts[0]] = None
                continue
            if len(value) != 6:
                fail(i - 1, "colour must be six hex digits")
            try:
                rgb = int(value, 16)
            except ValueError:
                fail(i - 1, "colour must be six hex digits")
            palette[parts[0]] = ((rgb >> 16) & 255, (rgb >> 8) & 255, rgb & 255)
        rows = []
        for _ in range(height):
            if i >= len(lines):
                fail(i - 1, "expected %d rows, found %d" % (height, len(rows)))
            row = lines[i].strip()
            if len(row) != width:
                fail(i, "row is %d characters wide, expected %d" % (len(row), width))
            for ch in row:
                if ch not in palette:
                    fail(i, "character %r is not in the palette" % ch)
            rows.append(row)
            i += 1
        images.append(Image(kind, width, height, palette, rows, hotspot))
    if not images:
        raise ArtError("%s: no image" % name)
    if kind == "bmp" and len(images) != 1:
        raise ArtError("%s: a bmp file holds exactly one image" % name)
    return images


def bmp_bytes(image):
    """A 24-bit bottom-up BMP file."""
    stride = (image.width * 3 + 3) & ~3
    pixels = bytearray()
    for y in range(image.height - 1, -1, -1):
        row = bytearray()
        for x in range(image.width):
            r, g, b = image.pixel(x, y)
            row += bytes((b, g, r))
        row += bytes(stride - len(row))
        pixels += row
    info = struct.pack("<IiiHHIIiiII", 40, image.width, image.height, 1, 24, 0,
                       len(pixels), 2835, 2835, 0, 0)
    offset = 14 + len(info)
    head = struct.pack("<2sIHHI", b"BM", offset + len(pixels), 0, 0, offset)
    return head + info + bytes(pixels)


def ico_image_bytes(image):
    """One icon image: BITMAPINFOHEADER (double height), BGRA rows, AND mask."""
    xor = bytearray()
    mask_stride = ((image.width + 31) // 32) * 4
    mask = bytearray()
    for y in range(image.height - 1, -1, -1):
        bits = bytearray(mask_stride)
        for x in range(image.width):
            colour = image.pixel(x, y)
            if colour is None:
                xor += bytes(4)
                bits[x >> 3] |= 0x80 >> (x & 7)
            else:
                r, g, b = colour
                xor += bytes((b, g, r, 255))
        mask += bits
    info = struct.pack("<IiiHHIIiiII", 40, image.width, image.height * 2, 1, 32, 0,
                       len(xor) + len(mask), 0, 0, 0, 0)
    return info + bytes(xor) + bytes(mask)


def ico_bytes(images, cursor=False):
    """An .ico file: ICONDIR, one entry per image, then the images in order.
    A .cur file has type 2 and the hot spot where an icon has planes and bits."""
    bodies = [ico_image_bytes(image) for image in images]
    out = bytearray(struct.pack("<HHH", 0, 2 if cursor else 1, len(images)))
    offset = 6 + 16 * len(images)
    for image, body in zip(images, bodies):
        planes, bits = image.hotspot if cursor else (1, 32)
        out += struct.pack("<BBBBHHII", image.width & 255, image.height & 255, 0, 0,
                           planes, bits, len(body), offset)
        offset += len(body)
    for body in bodies:
        out += body
    return bytes(out)


def convert(path):
    """(output file name, bytes) for one source file."""
    with open(path, encoding="ascii") as f:
        images = parse(f.read(), path)
    stem = os.path.splitext(os.path.basename(path))[0]
    if images[0].kind == "bmp":
        return stem + ".bmp", bmp_bytes(images[0])
    if images[0].kind == "cur":
        return stem + ".cur", ico_bytes(images, cursor=True)
    return stem + ".ico", ico_bytes(images)


def main(argv):
    args = argv[1:]
    check = False
    out_dir = None
    files = []
    while args:
        a = args.pop(0)
        if a == "--check":
            check = True
        elif a == "--out":
            if not args:
                print("--out needs a directory", file=sys.stderr)
                return 2
            out_dir = args.pop(0)
        elif a.startswith("-"):
            print(__doc__, file=sys.stderr)
            return 2
        else:
            files.append(a)
    if not files:
        print(__doc__, file=sys.stderr)
        return 2
    status = 0
    for path in files:
        try:
            name, data = convert(path)
        except (ArtError, OSError, UnicodeDecodeError) as e:
            print("error: %s" % e, file=sys.stderr)
            status = 1
            continue
        target = os.path.join(out_dir or os.path.dirname(path) or ".", name)
        if check:
            try:
                with open(target, "rb") as f:
                    same = f.read() == data
            except OSError:
                same = False
            if not same:
                print("drift: %s does not match %s" % (target, path), file=sys.stderr)
                status = 1
        else:
            with open(target, "wb") as f:
                f.write(data)
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv))
