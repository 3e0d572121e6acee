#!/usr/bin/python3
"""Restores the stairs after a blur that is known.   deblurring.py [FOLDER]"""
import numpy as np

import hux
import png

stairs = hux.convert(png.read(png.IMAGES / "stairs.png"), "float32")
kernel = np.eye(9, dtype=np.float32) / 9  # a camera that moved
blurred = hux.filter(stairs, kernel)

restore = hux.DeconvLR(kernel, stairs.shape)
restored = restore(blurred, 20)

png.write(png.folder() / "deblurring.png", np.hstack([hux.convert(p, "uint8") for p in (blurred, restored)]))
error = [hux.norm(p[16:-16, 16:-16], stairs[16:-16, 16:-16], relative=True) for p in (blurred, restored)]
print(f"deblurring.png: {error[0]:.1%} from the picture before, {error[1]:.1%} after")
assert error[1] < 0.7 * error[0]
