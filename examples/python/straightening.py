#!/usr/bin/python3
"""Straightens a page that was photographed askew.   straightening.py [FOLDER]"""
import hux
import png

page = png.read(png.IMAGES / "raccoon.png")
height, width = page.shape[:2]
whole = (0, 0, width, height)

# The photograph: a table, with the page on it.
corners = [(130, 60), (880, 20), (990, 720), (40, 640)]  # top left, top right, bottom right, bottom left
photograph = hux.set((92, 70, 52), shape=page.shape, dtype=page.dtype)
hux.warp_perspective(page, hux.get_perspective_transform(whole, corners), inter="cubic", smooth_edge=True,
                     out=photograph)

straight = hux.warp_perspective_back(photograph, hux.get_perspective_transform(whole, corners), inter="cubic")

png.write(png.folder() / "askew.png", photograph)
png.write(png.folder() / "straightened.png", straight)
alike = hux.quality_index(straight[8:-8, 8:-8], page[8:-8, 8:-8])
print(f"straightened.png: alike to the page by {alike.min():.3f}")
assert alike.min() > 0.9
