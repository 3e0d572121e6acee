"""Reads and writes PNG pictures of bytes with what Python has by itself."""
import struct
import sys
import zlib
from pathlib import Path

import numpy as np

IMAGES = Path(__file__).resolve().parent.parent / "images"


def read(path):
    """An array (H, W) or (H, W, 3) of bytes, of a picture that is gray or RGB and not interlaced."""
    data = Path(path).read_bytes()
    place, body = 8, b""
    while place < len(data):
        length, kind = struct.unpack(">I4s", data[place:place + 8])
        chunk = data[place + 8:place + 8 + length]
        if kind == b"IHDR":
            width, height, depth, colour, _, _, interlaced = struct.unpack(">IIBBBBB", chunk)
        elif kind == b"IDAT":
            body += chunk
        place += 12 + length
    if depth != 8 or colour not in (0, 2) or interlaced:
        raise ValueError(f"{path}: gray or RGB, 8 bits, not interlaced")
    pixel = 3 if colour else 1
    rows, row = zlib.decompress(body), width * pixel
    picture, above = bytearray(), bytes(row + pixel)  # rows have a pixel of 0 to the left
    for start in range(0, len(rows), 1 + row):
        kind, line = rows[start], bytearray(pixel) + rows[start + 1:start + 1 + row]
        if kind == 2:
            line[pixel:] = (np.frombuffer(line, np.uint8) + np.frombuffer(above, np.uint8)).tobytes()[pixel:]
        elif kind:
            for x in range(pixel, row + pixel):
                left, up, corner = line[x - pixel], above[x], above[x - pixel]
                guess = left if kind == 1 else (left + up) >> 1
                if kind == 4:
                    a, b, c = abs(up - corner), abs(left - corner), abs(left + up - 2 * corner)
                    guess = left if a <= b and a <= c else up if b <= c else corner
                line[x] = (line[x] + guess) & 255
        picture += line[pixel:]
        above = line
    picture = np.frombuffer(picture, np.uint8).reshape(height, width, pixel)
    return picture if colour else picture[..., 0]


def write(path, picture):
    height, width = picture.shape[:2]
    rows = np.zeros((height, 1 + picture[0].size), np.uint8)
    rows[:, 1:] = picture.reshape(height, -1)

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    head = struct.pack(">IIBBBBB", width, height, 8, 2 if picture.ndim == 3 else 0, 0, 0, 0)
    Path(path).write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(rows.tobytes())) +
                           chunk(b"IEND", b""))


def folder():
    """Where pictures go: the first argument of the program, or here."""
    return Path(sys.argv[1] if len(sys.argv) > 1 else ".")
