#!/usr/bin/python3
"""Lays pictures of the tour side by side: the strip of the README and of the front page, and a page before and after.

  tools/strip.py FOLDER OUTPUT      from the pictures that the tour has drawn in FOLDER: OUTPUT/strip.jpg, page.jpg and
                                    contact-sheet.jpg

scripts/demo calls it to renew docs/images, tools/reference for the site.
"""
import sys
from pathlib import Path

from PIL import Image

JPEG = dict(quality=88, optimize=True)
TILE, GAP = (300, 225), 6

# The steps of the tour, and which quarter of their picture is shown, left to right and down: none for the whole, two for
# the left half of the one and the right half of the other.
TILES = [("lens",), ("edges", 2), ("binarised",), ("spectrum", 1), ("straightened", 1), ("clean-page", 0, 3)]


def picture(folder, step, *quarters):
    """The picture of a step of the tour, or of its quarters."""
    [file] = Path(folder).glob(f"[0-9][0-9]-{step}.png")
    with Image.open(file) as image:
        image = image.convert("RGB")
    if not quarters:
        return image
    width, height = image.width // 2, image.height // 2
    corners = [(q % 2 * width, q // 2 * height) for q in quarters]
    out, *halves = [image.crop((x, y, x + width, y + height)) for x, y in corners]
    for half in halves:
        out.paste(half.crop((width // 2, 0, width, height)), (width // 2, 0))
    return out


def row(tiles, size):
    """Pictures of one size side by side, on white."""
    out = Image.new("RGB", (len(tiles) * (size[0] + GAP) - GAP, size[1]), "white")
    for i, tile in enumerate(tiles):
        out.paste(tile.resize(size, Image.Resampling.LANCZOS), (i * (size[0] + GAP), 0))
    return out


def strip(folder):
    return row([picture(folder, *tile) for tile in TILES], TILE)


def page(folder):
    """A scan, and what is left of it in black and white."""
    scan, clean = (picture(folder, "clean-page", quarter) for quarter in (0, 3))
    return row([scan, clean], scan.size)


def main():
    folder, output = map(Path, sys.argv[1:])
    for name, image in (("strip", strip(folder)), ("page", page(folder))):
        image.save(output / f"{name}.jpg", **JPEG)
    with Image.open(folder / "contact-sheet.png") as sheet:
        sheet.convert("RGB").save(output / "contact-sheet.jpg", quality=75, optimize=True)
    print(f"{output}: strip.jpg, page.jpg, contact-sheet.jpg, of the tour's pictures in {folder}")


if __name__ == "__main__":
    main()
