"""Pictures of the screen, to measure and to look at."""

import os
import struct
import time
import zlib
from collections import Counter
from pathlib import Path
from typing import Callable, Iterator, NamedTuple

from patience import eventually

FOLDER = Path(os.environ["LARKSPAN_E2E_BINARIES"]).parent / "pictures"

# The last step of a fading may be missing, of 255.
SEEN = 4

Colour = tuple[int, int, int]


class Picture(NamedTuple):
    width: int
    height: int
    # Red, green and blue of each pixel, row by row.
    pixels: bytes

    def part(self, left: int, top: int, width: int, height: int) -> "Picture":
        rows = (3 * (self.width * row + left) for row in range(top, top + height))
        return Picture(width, height, b"".join(self.pixels[start:start + 3 * width] for start in rows))

    def colours(self) -> Counter[Colour]:
        return Counter(self.all())

    def all(self) -> Iterator[Colour]:
        """The colours of all pixels, row by row."""
        return zip(*(self.pixels[channel::3] for channel in range(3)))

    def ground(self) -> Colour:
        """The colour of most pixels."""
        return self.colours().most_common(1)[0][0]

    def rows_unlike(self, other: "Picture") -> int:
        """How many rows of pixels can be seen to differ from those of another picture of that size."""
        line = 3 * self.width
        rows = (slice(start, start + line) for start in range(0, len(self.pixels), line))
        return sum(_is_unlike(self.pixels[row], other.pixels[row]) for row in rows)

    def save(self, name: str) -> None:
        """Writes it into the build folder, for people to look at."""
        FOLDER.mkdir(exist_ok=True)
        rows = (b"\0" + self.part(0, row, self.width, 1).pixels for row in range(self.height))
        header = struct.pack(">2I5B", self.width, self.height, 8, 2, 0, 0, 0)
        chunks = [(b"IHDR", header), (b"IDAT", zlib.compress(b"".join(rows))), (b"IEND", b"")]
        (FOLDER / f"{name}.png").write_bytes(b"\x89PNG\r\n\x1a\n" + b"".join(
            struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data)) for kind, data in chunks))


def at_rest(take: Callable[[], Picture], rows_that_may_move: int = 0) -> Picture:
    """A picture once nothing moves any more; what a screen reader has been told may be painted later."""
    def settled() -> Picture | None:
        before = take()
        time.sleep(0.4)
        now = take()
        return now if now.rows_unlike(before) <= rows_that_may_move else None
    return eventually(settled, "what is to be seen does not come to rest")


def _is_unlike(row: bytes, other: bytes) -> bool:
    return row != other and any(abs(one - another) > SEEN for one, another in zip(row, other))


def of_x_window_dump(dump: bytes) -> Picture:
    """Reads the file in which an X server in memory keeps its display: 32 bits for each pixel, blue first."""
    header = struct.unpack_from(">20I", dump)
    width, height, bytes_of_line, bytes_of_colours = header[4], header[5], header[12], 12 * header[19]
    start = header[0] + bytes_of_colours
    lines = b"".join(dump[line:line + 4 * width] for line in range(start, start + bytes_of_line * height, bytes_of_line))
    pixels = bytearray(3 * width * height)
    for channel in range(3):
        pixels[channel::3] = lines[2 - channel::4]
    return Picture(width, height, bytes(pixels))


def contrast(one: Colour, other: Colour) -> float:
    """How well the two colours can be told apart: from 1 to 21, as WCAG defines it."""
    lighter, darker = sorted((_luminance(one), _luminance(other)), reverse=True)
    return (lighter + 0.05) / (darker + 0.05)


def _luminance(colour: Colour) -> float:
    def linear(channel: int) -> float:
        part = channel / 255
        return part / 12.92 if part <= 0.03928 else ((part + 0.055) / 1.055) ** 2.4
    red, green, blue = map(linear, colour)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue
