#!/usr/bin/env python3
"""What ./dev board does with pictures: it cuts them out, keeps them, and notices every pixel.

usage: board-pictures.py
"""

import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools" / "board"))
from picture import Picture  # noqa: E402
from user import References, Unexpected  # noqa: E402


def gradient(width, height):
    return Picture(width, height, bytes(i % 251 for i in range(3 * width * height)))


class Pictures(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def references(self, arch="arm64", accept=False):
        return References(self.folder / "reference", arch, self.folder / "found", accept)

    def test_reads_what_it_wrote(self):
        picture = gradient(7, 5)
        picture.write_png(self.folder / "a.png")
        self.assertEqual(Picture.read_png(self.folder / "a.png"), picture)

    def test_reads_a_screen_with_line_ends_in_its_pixels(self):
        (self.folder / "a.ppm").write_bytes(b"P6\n2 1\n255\n\n\n\n\x01\x02\x03")
        self.assertEqual(Picture.read_ppm(self.folder / "a.ppm"),
                         Picture(2, 1, b"\n\n\n\x01\x02\x03"))

    def test_cuts_out_what_lies_on_the_picture(self):
        picture = Picture(2, 2, bytes(range(12)))
        self.assertEqual(picture.part(1, 1, 5, 5), Picture(1, 1, bytes((9, 10, 11))))
        self.assertEqual(picture.part(-1, 0, 2, 1), Picture(1, 1, bytes((0, 1, 2))))

    def test_notices_one_pixel(self):
        self.references(accept=True).check("a", gradient(4, 4))
        self.references().check("a", gradient(4, 4))
        pixels = bytearray(gradient(4, 4).pixels)
        pixels[20] ^= 1
        with self.assertRaisesRegex(Unexpected, "1 pixels differ"):
            self.references().check("a", Picture(4, 4, bytes(pixels)))

    def test_notices_another_size(self):
        self.references(accept=True).check("a", gradient(4, 4))
        with self.assertRaisesRegex(Unexpected, "size differs"):
            self.references().check("a", gradient(4, 5))

    def test_refuses_a_picture_without_a_reference(self):
        with self.assertRaisesRegex(Unexpected, "no reference"):
            self.references().check("a", gradient(4, 4))

    def test_an_architecture_may_have_a_picture_of_its_own(self):
        self.references(accept=True).check("a", gradient(4, 4))
        self.references("armhf", accept=True).check("a", gradient(4, 3))
        self.references("armhf").check("a", gradient(4, 3))
        self.references("arm64").check("a", gradient(4, 4))


if __name__ == "__main__":
    unittest.main()
