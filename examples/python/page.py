#!/usr/bin/python3
"""A scanned page made black and white in one pass: the light divided out, a threshold, specks removed.  page.py [FOLDER]"""
import numpy as np

import hux
import png


def drawn(height, width, random):
    """Lines of letters, black on white: strokes in cells of 8 by 12."""
    page = np.full((height, width), 255, np.uint8)
    for y in range(24, height - 32, 22):
        for x in range(24, width - 32, 10):
            if random.integers(6) == 0:  # between words
                continue
            for left, top, w, h in ((0, 0, 3, 12), (0, 0, 8, 3), (5, 3, 3, 9), (0, 5, 7, 3), (0, 9, 8, 3)):
                if random.integers(3):
                    page[y + top:y + top + h, x + left:x + left + w] = 0
    return page


def scanned(page, random):
    """The same under a lamp at the left, with grain and with specks."""
    light = np.linspace(235, 85, page.shape[1])
    scan = np.maximum(page, 40) * light / 256 + random.normal(0, 4, page.shape)
    scan[random.random(page.shape) < 0.0025] = 10
    return np.clip(np.rint(scan), 0, 255).astype(np.uint8)


@hux.chain
def clean(scan):
    light = hux.filter_box(hux.filter_max(scan, (15, 15)), (41, 41))  # how bright the paper is
    paper = hux.compare(hux.div(scan, light, shift=-8), 130, ">")  # without the light it is 255
    opened = hux.erode3x3(hux.dilate3x3(paper))  # what is smaller than a stroke goes
    return opened, hux.count_in_range(opened, 0, 0)


random = np.random.default_rng(7)
page = drawn(1754, 1240, random)  # A4 at 150 dots per inch
scan = scanned(page, random)
result, ink = clean(scan)
wrong = np.count_nonzero(result != page)
png.write(png.folder() / "page.png", np.hstack([scan[:620], result[:620]]))
print(f"page.png: {ink} pixels are ink; {100 * wrong / page.size:.2f} % differ from the page as it was drawn")
