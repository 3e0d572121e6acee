#!/usr/bin/python3
"""Looks at the reference site as a reader does: by its links, its examples and pictures, and, where there is chromium,
in a browser without a window, on a phone's width, in the dark.

  tests/docs/site_test.py FOLDER
"""
import html.parser
import io
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from urllib.parse import unquote, urlsplit

from PIL import Image, ImageChops, ImageStat

ROOT = Path(__file__).resolve().parent.parent.parent
SITE = Path()


def browse(page, *options):
    command = ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--virtual-time-budget=4000", *options]
    return subprocess.run([*command, f"file://{SITE}/{page}"], capture_output=True, check=True, timeout=120)


def dom(page):
    return browse(page, "--dump-dom").stdout.decode()


def picture(page, width, height, *options):
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder, "page.png")
        browse(page, f"--window-size={width},{height}", f"--screenshot={file}", "--hide-scrollbars", *options)
        return Image.open(io.BytesIO(file.read_bytes())).convert("RGB")


class Page(html.parser.HTMLParser):
    """The links, places and pictures of a page."""

    def __init__(self, text):
        super().__init__()
        self.links, self.places, self.pictures = [], set(), []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if "id" in values:
            self.places.add(values["id"])
        if tag == "a" and values.get("href"):
            self.links.append(values["href"])
        if tag == "img" and values.get("src"):
            self.pictures.append(values["src"])


class Pages(unittest.TestCase):
    def test_links_lead_somewhere(self):
        pages = {p: Page(p.read_text()) for p in SITE.rglob("*.html")}
        self.assertGreater(len(pages), 100)
        for file, page in pages.items():
            for link in page.links + page.pictures:
                parts = urlsplit(link)
                if parts.scheme or link.startswith("//"):
                    continue
                target = (file.parent / unquote(parts.path)).resolve() if parts.path else file
                self.assertTrue(target.exists(), f"{file.name}: {link}")
                if parts.fragment and target.suffix == ".html":
                    self.assertIn(unquote(parts.fragment), pages[target].places, f"{file.name}: {link}")

    def test_families_have_examples_and_pictures(self):
        families = [p for p in (SITE / "families").glob("*.html") if 'class="prototype"' in p.read_text()]
        self.assertGreater(len(families), 100)
        drawn = 0
        for page in families:
            text = page.read_text()
            for language in ("c", "cpp", "python"):
                self.assertIn(f'class="highlight-{language} ', text, page.name)
            self.assertTrue('class="formula"' in text or 'class="highlight-none' in text, f"{page.name}: no formula")
            for file in Page(text.split('class="run"')[1]).pictures if 'class="run"' in text else []:
                with Image.open(page.parent / file) as image:
                    self.assertGreater(len(set(image.getdata())), 1, f"{page.name}: {file} is blank")
                drawn += 1
        self.assertGreater(drawn, 200)

    def test_the_scanned_page_is_shown(self):
        front = Page((SITE / "index.html").read_text())
        self.assertIn("page.jpg", [Path(p).name for p in front.pictures])
        gallery = Page((SITE / "gallery.html").read_text())
        self.assertIn("#clean-page", gallery.links[:gallery.links.index("#straightening-in-python") + 1])

    def test_pictures_of_the_tree_are_those_drawn(self):
        drawn = Image.open(SITE / "_images" / "strip.jpg").convert("L")
        kept = Image.open(ROOT / "docs" / "images" / "strip.jpg").convert("L")
        difference = ImageStat.Stat(ImageChops.difference(drawn, kept)) if drawn.size == kept.size else None
        self.assertTrue(difference and difference.mean[0] < 2, "docs/images is old: scripts/demo --docs renews it")

    def test_size(self):
        self.assertLess(sum(f.stat().st_size for f in SITE.rglob("*") if f.is_file()), 20 << 20)


@unittest.skipUnless(shutil.which("chromium"), "no chromium")
class Browser(unittest.TestCase):
    def test_any_name_is_found(self):
        def first(asked):
            found = dom(f"index.html?name={asked}").split('id="hux-found"')[1].split("</li>")[0]
            return found.split('href="')[1].split('"')[0]
        self.assertTrue(first("huxiAdd_8u_C3RSfs").endswith("families/Add.html#huxiAdd_8u_C3RSfs"))
        self.assertTrue(first("filterbox").endswith("families/FilterBox.html"))
        self.assertTrue(first("median+16s+c3").split("#")[1].startswith("huxiFilterMedian"))
        self.assertTrue(first("hux.resize_sqr").endswith("families/ResizeSqrPixel.html"))
        self.assertIn("statuses.html#huxstsbadstep", first("BadStep"))

    def test_pictures_are_seen(self):
        page = dom("families/FilterBox.html")
        self.assertIn("<img", page)
        # Where the picture stands there are many colours, not a blank or the sign of a missing one.
        seen = picture("families/FilterBox.html", 1300, 900).crop((400, 150, 1100, 650))
        self.assertGreater(len(set(seen.getdata())), 100)

    def test_phones_and_the_dark(self):
        # A phone is narrower than the narrowest window.
        frames = SITE / "phone.html"
        pages = ("index.html", "families/Add.html", "families/AlphaComp.html", "gallery.html")
        frames.write_text('<body style="margin: 0">' + "".join(
            f'<iframe src="{page}" width=390 height=800 style="border: 0; float: left"></iframe>' for page in pages))
        try:
            phones = picture("phone.html", 390 * len(pages), 800)
        finally:
            frames.unlink()
        for i, page in enumerate(pages):
            # Nothing is wider than the page: it would be scrolled sideways, and the right edge would show text.
            edge = phones.crop((390 * i + 386, 60, 390 * i + 390, 800)).getdata()
            self.assertLess(len(set(edge)), 8, page)

        # The theme that a reader has chosen.
        def brightness(theme):
            page = SITE / "families" / f"{theme}.html"
            text = (SITE / "families" / "Add.html").read_text()
            chosen = text.replace('localStorage.getItem("theme")', f'"{theme}"')
            self.assertNotEqual(chosen, text)
            page.write_text(chosen)
            try:
                return picture(f"families/{theme}.html", 900, 600).convert("L").resize((1, 1)).getpixel((0, 0))
            finally:
                page.unlink()
        light = brightness("light")
        self.assertLess(brightness("dark") + 100, light)
        # Or that of the reader's system.
        dark = picture("families/Add.html", 900, 600, "--blink-settings=preferredColorScheme=0")
        self.assertLess(dark.convert("L").resize((1, 1)).getpixel((0, 0)) + 100, light)


if __name__ == "__main__":
    SITE = Path(sys.argv.pop(1)).resolve()
    unittest.main()
