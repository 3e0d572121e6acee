#!/usr/bin/python3
"""Spreads the grays of the stairs evenly: a histogram, and a table made of it.   equalised.py [FOLDER]"""
import numpy as np

import hux
import png

stairs = png.read(png.IMAGES / "stairs.png")
counts = hux.histogram(stairs, range(257))
share = np.cumsum(counts) / stairs.size
table = np.append((share * 255).round(), 0).astype(int)
even = hux.lut(stairs, table, range(257))


def drawn(picture):
    """A histogram as a picture, 256 wide."""
    heights = hux.histogram(picture, bins=64, range=(0, 256))
    chart = np.full((100, 256), 255, np.uint8)
    for k, column in enumerate((heights * 96 / heights.max()).astype(int)):
        hux.set(60, out=chart[99 - column:, 4 * k:4 * k + 3])
    return hux.copy_const_border(chart, 0, 128, 255, shape=(100, 512))


png.write(png.folder() / "equalised.png",
          np.vstack([np.hstack([stairs, even]), np.hstack([drawn(stairs), drawn(even)])]))
before, after = (np.std(hux.histogram(p, bins=8, range=(0, 256))) for p in (stairs, even))
print(f"equalised.png: the eight bins differ by {before:.0f} pixels before, by {after:.0f} after")
assert after < before / 2
