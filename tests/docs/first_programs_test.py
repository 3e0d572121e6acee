#!/usr/bin/python3
"""What pages show of the programs in examples/ stands as it does there, where it is built and run."""
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
page = (ROOT / "docs" / "packages.md").read_text()
first = (ROOT / "docs" / "site" / "index.md").read_text()
old = [name for name in ("hello.c", "hello.cpp", "hello.py") if (ROOT / "examples" / name).read_text() not in page]
if old:
    sys.exit(f"docs/packages.md does not show {', '.join(old)} as in examples/")
lines = re.search(r"`examples/clean_page\.c`.*?^```c\n(.*?)^```", first, re.M | re.S)[1].splitlines()
program = {line.strip() for line in (ROOT / "examples" / "clean_page.c").read_text().splitlines()}
other = [line for line in lines if line not in program]
sys.exit("docs/site/index.md shows what examples/clean_page.c does not do:\n" + "\n".join(other) if other else 0)
