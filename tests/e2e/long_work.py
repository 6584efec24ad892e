"""Files that keep the editor busy for seconds, written in a moment.

Noise costs most: the colors of each frame are counted.
"""

import os
import random
import struct
import zlib

_DEFLATE = -15  # without the header and the sum of zlib
_PASSES = ((0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2),
           (0, 1, 1, 2))  # of an interlaced PNG: the first column and row, and the steps


def _chunk(kind, data):
    return b"".join((struct.pack(">I", len(data)), kind, data,
                     struct.pack(">I", zlib.crc32(kind + data))))


def _write_png(path, side, packed, interlaced=False):
    """A square picture without alpha from its packed rows."""
    header = struct.pack(">IIBBBBB", side, side, 8, 2, 0, 0, interlaced)
    path.write_bytes(b"".join((b"\x89PNG\r\n\x1a\n", _chunk(b"IHDR", header),
                               _chunk(b"IDAT", packed), _chunk(b"IEND", b""))))


def write_noise(path, side, period=None, gray=False):
    """A square PNG of noise. With a period it is made of equal tiles of that size."""
    period = period or side
    noise = random.Random(side)
    rows = []
    for _ in range(period):
        tile = noise.randbytes(period if gray else 3 * period)
        if gray:
            tile = bytes(value for value in tile for _ in range(3))
        rows.append(b"\0" + tile * (side // period))
    _write_png(path, side, zlib.compress(b"".join(rows) * (side // period), 1))


def write_slow_black(path, side):
    """A black PNG of next to no bytes that takes its decoder long."""
    size = sum(-(-(side - top) // down) * (1 + 3 * -(-(side - left) // right))
               for left, top, right, down in _PASSES)
    block = bytes(1 << 20)

    def packed(data, end):
        packer = zlib.compressobj(9, zlib.DEFLATED, _DEFLATE)
        return packer.compress(data) + packer.flush(end)
    blocks = packed(block, zlib.Z_FULL_FLUSH) * (size // len(block))
    rest = packed(block[:size % len(block)], zlib.Z_FINISH)
    zeros_sum = struct.pack(">I", size % 65521 << 16 | 1)
    _write_png(path, side, b"\x78\x9c" + blocks + rest + zeros_sum, interlaced=True)


def repeat_frame(path, count):
    """Makes the one frame of a GIF so many."""
    content = path.read_bytes()
    frame = content.index(b"\x21\xF9\x04")
    path.write_bytes(content[:frame] + content[frame:-1] * count + content[-1:])


def link(path, names):
    """The same file under more names, in the same folder."""
    for name in names:
        os.link(path, path.with_name(name))
