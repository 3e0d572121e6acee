#!/usr/bin/python3
"""Times one call on 16 x 16 bytes, beside numpy and, where it is installed, OpenCV.

  PYTHONPATH=build/release/python python/bench/call.py
"""
import timeit

import numpy as np

import hux

try:
    import cv2
except ImportError:
    cv2 = None

a, b, out = (np.full((16, 16), 7, np.uint8) for _ in range(3))
calls = {"hux.add(a, b)": lambda: hux.add(a, b), "hux.add(a, b, out=c)": lambda: hux.add(a, b, out=out),
         "hux.add(a, 7, out=c)": lambda: hux.add(a, 7, out=out), "np.add(a, b)": lambda: np.add(a, b),
         "np.add(a, b, out=c)": lambda: np.add(a, b, out=out)}
if cv2:
    calls.update({"cv2.add(a, b)": lambda: cv2.add(a, b), "cv2.add(a, b, c)": lambda: cv2.add(a, b, out)})
# In turns, so that a slow moment of the machine meets all of them.
best = dict.fromkeys(calls, 1.0)
for _ in range(40):
    for name, call in calls.items():
        best[name] = min(best[name], timeit.timeit(call, number=5000) / 5000)
nothing = min(timeit.repeat(lambda: None, number=5000, repeat=40)) / 5000
for name, seconds in best.items():
    print(f"{name:24}{(seconds - nothing) * 1e6:7.3f} us")
