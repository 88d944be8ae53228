"""Pictures of whole colours, which are cut out, compared, and kept as PNG files."""

import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"


def chunk(kind, content):
    check = zlib.crc32(kind + content)
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", check)


class Picture:
    """Three bytes a pixel, line by line from the top."""

    def __init__(self, width, height, pixels):
        self.width, self.height, self.pixels = width, height, pixels

    def __eq__(self, other):
        return (self.width, self.height, self.pixels) == (other.width, other.height, other.pixels)

    @classmethod
    def read_ppm(cls, path):
        kind, size, depth, pixels = path.read_bytes().split(b"\n", 3)
        if (kind, depth) != (b"P6", b"255"):
            raise ValueError(f"{path} is no picture as the emulator writes them")
        return cls(*map(int, size.split()), pixels)

    @classmethod
    def read_png(cls, path):
        """Reads what write_png() wrote."""
        content = path.read_bytes()
        width, height = struct.unpack(">II", content[16:24])
        length, = struct.unpack(">I", content[33:37])
        lines = zlib.decompress(content[41:41 + length])
        step = 3 * width + 1 # a byte of each line says how it is filtered
        return cls(width, height, b"".join(
            lines[start + 1:start + step] for start in range(0, len(lines), step)))

    def write_png(self, path):
        lines = b"".join(b"\0" + line for line in self.lines())
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(SIGNATURE + chunk(b"IHDR", header)
                         + chunk(b"IDAT", zlib.compress(lines, 9)) + chunk(b"IEND", b""))

    def lines(self):
        step = 3 * self.width
        return [self.pixels[start:start + step] for start in range(0, len(self.pixels), step)]

    def part(self, x, y, width, height):
        """The part of the rectangle that lies on the picture."""
        left, top = max(x, 0), max(y, 0)
        right, bottom = min(x + width, self.width), min(y + height, self.height)
        return Picture(right - left, bottom - top, b"".join(
            line[3 * left:3 * right] for line in self.lines()[top:bottom]))

    def differing_pixels(self, other):
        """How many pixels differ; None if the sizes do."""
        if (self.width, self.height) != (other.width, other.height):
            return None
        return sum(self.pixels[i:i + 3] != other.pixels[i:i + 3]
                   for i in range(0, len(self.pixels), 3))
