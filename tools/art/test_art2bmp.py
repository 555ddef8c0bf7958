#!/usr/bin/env python3
"""Checks of the art converter: the pixel layout of the files it writes
(read back independently, and through ImageMagick when it is installed),
the rejection of malformed sources, and the drift check."""

import os
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
sys.dont_write_bytecode = True  # keep the source folder clean
import art2bmp  # noqa: E402

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
CONVERT = "/usr/bin/convert"

# 3x2, so that BMP rows need one byte of padding, and every corner differs.
ODD_BMP = """# three by two
bmp 3 2
r = FF0000
g = 00FF00
b = 0000FF
w = FFFFFF
rows
rgb
wwr
"""

TWO_ICONS = """ico 2 2
- = none
k = 102030
rows
k-
-k
# the second image adds a colour and keeps the first ones
ico 1 1
z = A0B0C0
rows
z
"""


class BmpLayout(unittest.TestCase):
    def setUp(self):
        self.data = art2bmp.bmp_bytes(art2bmp.parse(ODD_BMP)[0])

    def test_headers(self):
        magic, size, _, _, offset = struct.unpack_from("<2sIHHI", self.data, 0)
        self.assertEqual(magic, b"BM")
        self.assertEqual(size, len(self.data))
        self.assertEqual(offset, 54)
        hsize, width, height, planes, bits, compression, image = struct.unpack_from(
            "<IiiHHII", self.data, 14)
        self.assertEqual((hsize, width, height, planes, bits, compression), (40, 3, 2, 1, 24, 0))
        self.assertEqual(image, 2 * 12)  # 9 bytes of pixels padded to 12 per row
        self.assertEqual(len(self.data), 54 + 24)

    def test_rows_bottom_up_in_bgr_with_padding(self):
        pixels = self.data[54:]
        bottom, top = pixels[:12], pixels[12:]
        self.assertEqual(top[:9], bytes([0, 0, 255, 0, 255, 0, 255, 0, 0]))      # r g b
        self.assertEqual(bottom[:9], bytes([255, 255, 255, 255, 255, 255, 0, 0, 255]))  # w w r
        self.assertEqual(top[9:], bytes(3))
        self.assertEqual(bottom[9:], bytes(3))

    @unittest.skipUnless(os.path.exists(CONVERT), "ImageMagick is not installed")
    def test_imagemagick_reads_the_same_pixels(self):
        with tempfile.TemporaryDirectory() as tmp:
            path = os.path.join(tmp, "odd.bmp")
            with open(path, "wb") as f:
                f.write(self.data)
            out = subprocess.run([CONVERT, path, "-depth", "8", "rgb:-"],
                                 check=True, capture_output=True).stdout
        self.assertEqual(out, bytes([255, 0, 0, 0, 255, 0, 0, 0, 255,
                                     255, 255, 255, 255, 255, 255, 255, 0, 0]))


class IconLayout(unittest.TestCase):
    def setUp(self):
        self.images = art2bmp.parse(TWO_ICONS)
        self.data = art2bmp.ico_bytes(self.images)

    def test_palette_carries_over_to_the_next_image(self):
        self.assertEqual(len(self.images), 2)
        self.assertEqual(self.images[1].palette["k"], (0x10, 0x20, 0x30))
        self.assertEqual(self.images[1].pixel(0, 0), (0xA0, 0xB0, 0xC0))

    def test_directory_points_at_each_image(self):
        reserved, kind, count = struct.unpack_from("<HHH", self.data, 0)
        self.assertEqual((reserved, kind, count), (0, 1, 2))
        end = 6 + 16 * count
        for i, (w, h) in enumerate(((2, 2), (1, 1))):
            bw, bh, colours, _, planes, bits, size, offset = struct.unpack_from(
                "<BBBBHHII", self.data, 6 + 16 * i)
            self.assertEqual((bw, bh, colours, planes, bits), (w, h, 0, 1, 32))
            self.assertEqual(offset, end)
            hsize, width, height = struct.unpack_from("<Iii", self.data, offset)
            self.assertEqual((hsize, width, height), (40, w, 2 * h))
            # BGRA rows, then one 32-bit-aligned mask row per pixel row
            self.assertEqual(size, 40 + 4 * w * h + 4 * h)
            end += size
        self.assertEqual(end, len(self.data))

    def test_transparent_pixels_are_masked_and_zero(self):
        body = self.data[6 + 32 + 40:]
        xor, mask = body[:16], body[16:24]
        # bottom row first: "-k", then "k-"
        self.assertEqual(xor[0:4], bytes(4))
        self.assertEqual(xor[4:8], bytes([0x30, 0x20, 0x10, 255]))
        self.assertEqual(xor[8:12], bytes([0x30, 0x20, 0x10, 255]))
        self.assertEqual(xor[12:16], bytes(4))
        self.assertEqual(mask[0:4], bytes([0x80, 0, 0, 0]))
        self.assertEqual(mask[4:8], bytes([0x40, 0, 0, 0]))


class Rejects(unittest.TestCase):
    def assertRejected(self, text, words):
        with self.assertRaises(art2bmp.ArtError) as caught:
            art2bmp.parse(text, "x.txt")
        self.assertIn(words, str(caught.exception))

    def test_malformed_sources(self):
        head = "bmp 2 1\na = 000000\nrows\n"
        self.assertRejected(head + "aaa\n", "3 characters wide")
        self.assertRejected(head + "ab\n", "not in the palette")
        self.assertRejected(head, "expected 1 rows")
        self.assertRejected("bmp 2 1\na = 00000\nrows\naa\n", "six hex digits")
        self.assertRejected("bmp 2 1\na = 00GG00\nrows\naa\n", "six hex digits")
        self.assertRejected("bmp 2 1\na = none\nrows\naa\n", "icons only")
        self.assertRejected("bmp 0 1\n", "1..256")
        self.assertRejected("png 2 1\n", "image header")
        self.assertRejected("bmp 2 1\na = 000000\n", "missing 'rows'")
        self.assertRejected(head + "aa\n" + head + "aa\n", "exactly one image")
        self.assertRejected("ico 1 1\na = none\nrows\na\nbmp 1 1\nrows\na\n", "one kind only")
        self.assertRejected("# nothing\n", "no image")

    def test_error_names_the_line(self):
        with self.assertRaises(art2bmp.ArtError) as caught:
            art2bmp.parse("# c\nbmp 2 1\na = 000000\nrows\nab\n", "x.txt")
        self.assertTrue(str(caught.exception).startswith("x.txt:5:"))


class DriftCheck(unittest.TestCase):
    def test_check_mode_sees_an_edited_source(self):
        with tempfile.TemporaryDirectory() as tmp:
            src = os.path.join(tmp, "A.txt")
            with open(src, "w") as f:
                f.write(ODD_BMP)
            self.assertEqual(art2bmp.main(["art2bmp", src]), 0)
            self.assertEqual(art2bmp.main(["art2bmp", "--check", src]), 0)
            with open(src, "w") as f:
                f.write(ODD_BMP.replace("FF0000", "FE0000"))
            self.assertEqual(art2bmp.main(["art2bmp", "--check", src]), 1)
            os.remove(os.path.join(tmp, "A.bmp"))
            self.assertEqual(art2bmp.main(["art2bmp", "--check", src]), 1)


class CommittedArt(unittest.TestCase):
    """The library's own images: the names and sizes the resource script expects."""

    NAMES = ["ZK_LOGO", "ZK_CAL", "ZK_CALDROPDOWN", "ZK_CLRPAL", "ZK_CLRPALDROPDOWN",
             "ZK_LISTVW", "ZK_LISTVWDROPDOWN", "ZK_METER", "ZK_SPINFLD"]

    def test_palette_bitmaps_are_24_by_24(self):
        for name in self.NAMES:
            with open(os.path.join(ROOT, "res", "art", name + ".txt")) as f:
                images = art2bmp.parse(f.read(), name)
            self.assertEqual([(i.kind, i.width, i.height) for i in images], [("bmp", 24, 24)], name)

    def test_icon_has_32_and_16_with_transparency(self):
        with open(os.path.join(ROOT, "res", "art", "ZK.txt")) as f:
            images = art2bmp.parse(f.read(), "ZK")
        self.assertEqual([(i.kind, i.width, i.height) for i in images], [("ico", 32, 32), ("ico", 16, 16)])
        for image in images:
            self.assertIsNone(image.pixel(0, 0))

    def test_committed_binaries_match(self):
        script = os.path.join(HERE, "check.sh")
        if shutil.which("bash") is None:
            self.skipTest("no bash")
        result = subprocess.run(["bash", script], capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stderr)


if __name__ == "__main__":
    unittest.main()
