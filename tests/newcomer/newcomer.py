"""Does what a page says: saves its programs under the names above them, and runs its commands.

  newcomer.py FOLDER     the pages of the site

It begins at the front page and goes on by its link to the page on installing. The commands that install come before.
"""
import html.parser
import subprocess
import sys
from pathlib import Path


class Page(html.parser.HTMLParser):
    """Links as (text, place); blocks of code as (language, text, the last name in code before it)."""

    def __init__(self, file):
        super().__init__()
        self.links, self.blocks = [], []
        self.open, self.language, self.name, self.text = [], None, "", ""
        self.feed(file.read_text())

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if tag == "div":
            kinds = [c.removeprefix("highlight-") for c in (values.get("class") or "").split()
                     if c.startswith("highlight-")]
            self.language = kinds[0] if kinds else self.language
        if tag in ("a", "pre", "code"):
            self.open.append((tag, values.get("href", "")))
            self.text = ""

    def handle_data(self, data):
        self.text += data

    def handle_endtag(self, tag):
        if not self.open or tag != self.open[-1][0]:
            return
        _, place = self.open.pop()
        if tag == "a":
            self.links.append((self.text, place))
        elif tag == "code":
            self.name = self.text
        else:
            self.blocks.append((self.language, self.text, self.name))


def main():
    site = Path(sys.argv[1])
    front = Page(site / "index.html")
    here = [place.split("#")[0] for _, place in front.links if "://" not in place]
    missing = [place for place in here if place and not (site / place).exists()]
    print(f"== index.html: {len(here)} links, {len(list(site.rglob('*.html')))} pages", *missing)
    install = next(place for text, place in front.links if text == "Install it")
    print(f"== {install}")
    ran = 0
    for language, text, name in Page(site / install).blocks:
        if language in ("c", "cpp", "python"):
            Path(name).write_text(text)
            print(f"-- {name}: {len(text.splitlines())} lines saved")
        elif language == "sh" and not text.startswith("apt "):
            for command in text.splitlines():
                print(f"$ {command}", flush=True)
                subprocess.run(command, shell=True, check=True)
                ran += 1
    print(f"== {ran} commands ran")
    sys.exit(1 if missing or not ran else 0)


if __name__ == "__main__":
    main()
