#!/usr/bin/python3
"""The page on installing shows the first programs as they stand in examples/, where they are built and run."""
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
page = (ROOT / "docs" / "packages.md").read_text()
old = [name for name in ("hello.c", "hello.cpp", "hello.py") if (ROOT / "examples" / name).read_text() not in page]
sys.exit(f"docs/packages.md does not show {', '.join(old)} as in examples/" if old else 0)
