"""The stubs: each public name, with the parameters that it has; clean by mypy, where that is installed."""
import inspect
import re
import subprocess
import sys
from pathlib import Path

import pytest

import hux

FOLDER = Path(hux.__file__).parent
STUBS = (FOLDER / "__init__.pyi").read_text()


def test_each_public_name_has_a_stub():
    public = {name for name, value in vars(hux).items() if not name.startswith("_") and not inspect.ismodule(value)}
    stubbed = set(re.findall(r"^(?:class |from .* import \w+ as )?(\w+)", STUBS, re.M))
    assert not public - stubbed, sorted(public - stubbed)
    for operation in vars(hux).values():
        if isinstance(operation, hux.Operation):
            assert f"\n{operation.__name__}: _" in STUBS
            first = operation.__doc__.split("\n")[0]
            assert first.startswith(f"{operation.__name__}(") and first.endswith(")")


PROGRAM = """
import numpy as np
import hux
a = np.zeros((16, 16, 3), np.uint8)
b = hux.add(a, 7, shift=1, out=a)
c = hux.filter_box(a, (5, 3), border="replicate")
d = hux.resize(a, (3, 4), inter="cubic")
lowest, highest = hux.min_max(a)
plan = hux.FFT((16, 16), norm="ortho")
e = plan.forward(np.zeros((16, 16), np.float32))
names: tuple[str, ...] = hux.add.members
count: int = hux.c.huxGetThreadCount()
g = hux.chain(lambda a: hux.not_(hux.add(a, 1)), rows=16)(a, threads=1)
with hux.threads(1):
    f = hux.match(a, a[2:5, 2:5], method="ncc")
try:
    hux.filter_box(a, 0)
except hux.BadMaskSizeError as error:
    status: int = error.status
"""
WRONG = """
import hux
hux.add(1)
hux.filter_box([], (5, 3), border="reflect")
hux.resize([], size=(1, 2), nothing=3)
hux.compare([], [], "near")
"""


def mypy(path, program):
    path.write_text(program)
    command = [sys.executable, "-m", "mypy", "--no-error-summary", "--cache-dir", str(path.parent / "cache"), str(path)]
    run = subprocess.run(command, capture_output=True, text=True, env={"MYPYPATH": str(FOLDER.parent), "HOME": "/"})
    return run.stdout.splitlines()


def test_mypy(tmp_path):
    pytest.importorskip("mypy")
    assert mypy(tmp_path / "program.py", PROGRAM) == []
    errors = [line for line in mypy(tmp_path / "wrong.py", WRONG) if ": error:" in line]
    assert len(errors) == 4, errors
