#!/usr/bin/python3
"""Times one call on 16 x 16 bytes, beside the same in C, numpy and, where it is installed, OpenCV.

  PYTHONPATH=build/release/python python/bench/call.py
"""
import subprocess
import tempfile
import timeit
from pathlib import Path

import numpy as np

import hux

try:
    import cv2
except ImportError:
    cv2 = None

HERE = Path(__file__).resolve().parent
a, b, c = (np.full((16, 16), 7, np.uint8) for _ in range(3))
calls = {"hux.add(a, b)": lambda: hux.add(a, b), "hux.add(a, b, out=c)": lambda: hux.add(a, b, out=c),
         "hux.add(a, 7, out=c)": lambda: hux.add(a, 7, out=c), "np.add(a, b)": lambda: np.add(a, b),
         "np.add(a, b, out=c)": lambda: np.add(a, b, out=c)}
if cv2:
    calls |= {"cv2.add(a, b)": lambda: cv2.add(a, b), "cv2.add(a, b, c)": lambda: cv2.add(a, b, c)}
calls |= {"hux.filter_box(a, 3, out=c)": lambda: hux.filter_box(a, 3, out=c),
          "hux.filter_gauss(a, out=c)": lambda: hux.filter_gauss(a, out=c),
          "hux.filter_max(a, 3, out=c)": lambda: hux.filter_max(a, 3, out=c)}
if cv2:
    element = np.ones((3, 3), np.uint8)
    calls |= {"cv2.blur": lambda: cv2.blur(a, (3, 3), c), "cv2.GaussianBlur": lambda: cv2.GaussianBlur(a, (3, 3), 0, c),
              "cv2.dilate": lambda: cv2.dilate(a, element, c)}
calls["hux.resize(a, out=c)"] = lambda: hux.resize(a, out=c)
if cv2:
    calls["cv2.resize"] = lambda: cv2.resize(a, (16, 16), c)
with tempfile.TemporaryDirectory() as folder:
    library = Path(hux.library_path).parent
    subprocess.run(["cc", "-O2", HERE / "call.c", "-o", f"{folder}/call", f"-I{HERE.parents[1] / 'include'}", f"-L{library}",
                    "-l:libhuxi.so.5", "-l:libhuxcore.so.5", f"-Wl,-rpath,{library}"], check=True)
    print(subprocess.run([f"{folder}/call"], check=True, capture_output=True, text=True).stdout, end="")
# In turns, so that a slow moment of the machine meets all of them.
best = dict.fromkeys(calls, 1.0)
for _ in range(40):
    for name, call in calls.items():
        best[name] = min(best[name], timeit.timeit(call, number=1000) / 1000)
nothing = min(timeit.repeat(lambda: None, number=5000, repeat=40)) / 5000
for name, seconds in best.items():
    print(f"{name:28}{(seconds - nothing) * 1e6:7.3f} us")
