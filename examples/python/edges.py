#!/usr/bin/python3
"""Edges of the stairs: how steep the picture is, thinned by a threshold.   edges.py [FOLDER]"""
import numpy as np

import hux
import png

stairs = png.read(png.IMAGES / "stairs.png")
smooth = hux.filter_gauss(stairs, "5x5")
across = hux.filter_sobel_vert(smooth, dtype="int16")
down = hux.filter_sobel_horiz(smooth, dtype="int16")

slope = np.empty(stairs.shape, hux.complex_int16)
slope["re"], slope["im"] = across, down
steep = hux.convert(hux.magnitude(slope, shift=1), "uint8")
drawn = hux.threshold_lt_val(steep, 40, 0)

lines = hux.compare(steep, 40, ">")
png.write(png.folder() / "edges.png", np.hstack([stairs, hux.not_(drawn)]))
print(f"edges.png: {np.count_nonzero(lines)} of {lines.size} pixels are steep")
