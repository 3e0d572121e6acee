"""What the pages of the reference site show of Python runs as it stands there."""
import tomllib
from pathlib import Path

import numpy as np
import pytest

import hux

EXAMPLES = tomllib.loads((Path(__file__).parents[2] / "docs" / "site" / "examples.toml").read_text())


@pytest.mark.parametrize("family", [name for name, example in EXAMPLES.items() if "python" in example])
def test_runs(family):
    rng = np.random.default_rng(1)
    names = dict(np=np, hux=hux, a=rng.integers(0, 256, (48, 96, 3), np.uint8),
                 b=rng.integers(1, 256, (48, 96, 3), np.uint8), gray=rng.integers(0, 256, (48, 96), np.uint8),
                 mask=np.full((48, 96), 255, np.uint8), f=rng.random((48, 96), np.float32) + np.float32(0.1))
    exec(EXAMPLES[family]["python"], names)
