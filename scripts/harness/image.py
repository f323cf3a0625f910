"""A picture of the screen: pixels, solid rectangles, PNG."""

import struct
import zlib
from typing import NamedTuple


class Rectangle(NamedTuple):
    x: int
    y: int
    width: int
    height: int

    @property
    def right(self):
        return self.x + self.width

    @property
    def bottom(self):
        return self.y + self.height

    @property
    def centre(self):
        return self.x + self.width // 2, self.y + self.height // 2


class Image:
    """24-bit picture, kept as one bytes object for each of red, green and blue."""

    def __init__(self, width, height, red, green, blue):
        self.width = width
        self.height = height
        self._planes = (red, green, blue)

    @classmethod
    def from_bgrx(cls, width, height, data):
        return cls(width, height, data[2::4], data[1::4], data[0::4])

    def __eq__(self, other):
        return isinstance(other, Image) and (self.width, self._planes) == (other.width, other._planes)

    def pixel(self, x, y):
        index = y * self.width + x
        return tuple(plane[index] for plane in self._planes)

    def contrast(self, area):
        """Between the lightest and the darkest pixel of a rectangle, from 1 to 21, as WCAG 2 defines it."""
        pixels = {self.pixel(x, y) for x in range(area.x, area.right) for y in range(area.y, area.bottom)}
        luminances = [_luminance(pixel) for pixel in pixels]
        return (max(luminances) + 0.05) / (min(luminances) + 0.05)

    def save(self, path):
        """Writes a PNG: 8 bits a channel, no filter, one compressed stream."""
        stride = 3 * self.width
        rgb = bytearray(stride * self.height)
        for channel, plane in enumerate(self._planes):
            rgb[channel::3] = plane
        rows = b"".join(b"\0" + rgb[start : start + stride] for start in range(0, len(rgb), stride))
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n")
            for kind, body in ((b"IHDR", header), (b"IDAT", zlib.compress(rows, 6)), (b"IEND", b"")):
                file.write(struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body)))

    def find_rectangles(self, colour, tolerance=6, min_width=1, min_height=1):
        """Rectangles whose border is of `colour`, top to bottom; a label inside does not disturb.

        `colour` is (red, green, blue) or "#rrggbb"; each channel may differ by `tolerance`.
        """
        mask = self._mask(_rgb(colour), tolerance)
        found = []
        for y in range(self.height):
            for left, right in self._runs(mask, y, min_width):
                if any(f.y <= y < f.bottom and f.x <= left < f.right for f in found):
                    continue
                height = self._depth(mask, y, left, right)
                if height >= min_height:
                    found.append(Rectangle(left, y, right - left, height))
        return found

    def find_rectangle(self, colour, tolerance=6, min_width=1, min_height=1):
        """The topmost of find_rectangles, or None."""
        found = self.find_rectangles(colour, tolerance, min_width, min_height)
        return found[0] if found else None

    def _mask(self, colour, tolerance):
        """One byte a pixel: 1 where the colour matches. Whole-plane integers are the fast AND of the standard library."""
        matching = -1
        for plane, wanted in zip(self._planes, colour):
            table = bytes(abs(value - wanted) <= tolerance for value in range(256))
            matching &= int.from_bytes(plane.translate(table), "little")
        return matching.to_bytes(self.width * self.height, "little")

    def _runs(self, mask, y, min_width):
        position, end = y * self.width, (y + 1) * self.width
        wanted = b"\1" * min_width
        while (left := mask.find(wanted, position, end)) >= 0:
            right = mask.find(b"\0", left, end)
            right = end if right < 0 else right
            yield left - y * self.width, right - y * self.width
            position = right

    def _depth(self, mask, top, left, right):
        """Rows from `top` to the last one that is matching throughout, as long as both edges match in between."""
        full = b"\1" * (right - left)
        height = 1
        for y in range(top + 1, self.height):
            row = mask[y * self.width + left : y * self.width + right]
            if not (row[0] and row[-1]):
                break
            if row == full:
                height = y - top + 1
        return height


def _luminance(pixel):
    """Relative to white, from 0 to 1 (WCAG 2)."""
    channels = [value / 255 for value in pixel]
    linear = [c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4 for c in channels]
    return sum(weight * c for weight, c in zip((0.2126, 0.7152, 0.0722), linear))


def _rgb(colour):
    if isinstance(colour, str):
        return tuple(bytes.fromhex(colour.lstrip("#")))
    return colour
