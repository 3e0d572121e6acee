"""The programs in examples/python run, and draw; and what the reference site shows of Python runs as it stands there."""
import importlib.util
import os
import re
import subprocess
import sys
import tomllib
from pathlib import Path

import numpy as np
import pytest

import hux

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
import pictures  # noqa: E402: it stands among the tools
FOLDER = ROOT / "examples" / "python"
SHOWN = tomllib.loads((ROOT / "docs" / "site" / "examples.toml").read_text())


def test_the_readme_shows_the_programs():
    """One program in three languages; each is run by a test of its own."""
    for language, shown in re.findall(r"^```(\w+)\n(.*?)^```", (ROOT / "README.md").read_text(), re.M | re.S):
        program = (ROOT / "examples" / f"hello.{ {'python': 'py'}.get(language, language)}").read_text()
        assert "\n".join(line.strip() for line in shown.splitlines()) in \
            "\n".join(line.strip() for line in program.splitlines())


@pytest.mark.parametrize("program", sorted(set(FOLDER.glob("*.py")) - {FOLDER / "png.py"}), ids=lambda p: p.stem)
def test_example(program, tmp_path):
    few = []
    if program.stem == "gigapixel":
        pytest.importorskip("distributed")
        few = ["--side", "2400", "--chunk", "1000", "--workers", "1"]
        few += ["--zarr", tmp_path / "picture.zarr"] if importlib.util.find_spec("zarr") else []
    run = subprocess.run([sys.executable, program, tmp_path, *few], capture_output=True, text=True,
                         env=os.environ | {"OMP_WAIT_POLICY": "passive"})
    assert run.returncode == 0, run.stderr
    drawn = re.search(r"^(\S+\.png):", run.stdout, re.M)[1]
    assert (tmp_path / drawn).stat().st_size > 10000


def test_the_first_page_runs():
    names = {"hux": hux, "scan": np.random.default_rng(2).integers(0, 256, (60, 80), np.uint8)}
    for shown in re.findall(r"^```python\n(.*?)^```", (ROOT / "docs" / "site" / "index.md").read_text(), re.M | re.S):
        exec(shown, names)
    assert names["image"][240, 320].tolist() == [250, 180, 30]


@pytest.mark.parametrize("family", [name for name, example in SHOWN.items() if "python" in example])
@pytest.mark.filterwarnings("error")
def test_shown(family):
    rng = np.random.default_rng(1)
    exec(SHOWN[family]["python"], pictures.images(*rng.integers(0, 256, (2, 144, 192, 3), np.uint8)))
