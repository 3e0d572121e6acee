#!/usr/bin/python3
"""Finds an eye of the raccoon again, in a picture that is darker and noisy.   matching.py [FOLDER]"""
import hux
import png

raccoon = png.read(png.IMAGES / "raccoon.png")
eye = raccoon[274:340, 540:616]

dark = hux.mul_scale(raccoon, 110)
dark = hux.add_rand_gauss_direct(dark, 0, 12, hux.Seed(7))
likeness = hux.match(hux.copy(dark[..., 1]), hux.copy(eye[..., 1]), method="ncc_level")
best = hux.max_indx(likeness)

x, y = best.index_x, best.index_y
h, w = eye.shape[:2]
for side in (dark[y:y + h, x:x + 3], dark[y:y + h, x + w - 3:x + w], dark[y:y + 3, x:x + w], dark[y + h - 3:y + h, x:x + w]):
    hux.set((255, 200, 0), out=side)
png.write(png.folder() / "matching.png", dark)
print(f"matching.png: the eye is at {x}, {y}, by a correlation of {best.max:.3f}")
assert (x, y) == (540, 274)
