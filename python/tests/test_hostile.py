"""No argument from Python crashes the interpreter or writes where it should not.

All arrays lie in one block of memory, in any way that arrays can lie; after a call only bytes of out may have changed.
HUX_TESTS=long in the environment tries far more calls, other ones each time.
"""
import os
import warnings

import numpy as np
import pytest

import hux
from members import DTYPES, OPERATIONS

pytest.importorskip("hypothesis")
from hypothesis import HealthCheck, given, settings  # noqa: E402
from hypothesis import strategies as st  # noqa: E402

LONG = os.environ.get("HUX_TESTS") == "long"
hostile = settings(max_examples=int(os.environ.get("HUX_EXAMPLES", 100000)) if LONG else 350, derandomize=not LONG,
                   deadline=None, database=None, suppress_health_check=list(HealthCheck))
REFUSED = (TypeError, ValueError, ZeroDivisionError, MemoryError, AttributeError)
BYTES = 8192
went = {"all": 0, "through": 0}

STRANGE = st.sampled_from([7, -3, 1.5, 2 + 1j, (1, 2, 3), [1, 2, 3, 4], None, "x", b"abc", 10**40, float("nan"), np.float32(2),
                           np.array(3), (None,) * 3, {}, bytearray(9), memoryview(b"abcdef"), [], [[]], type, np.zeros(0),
                           np.zeros((2, 2), object), np.ma.zeros((4, 5), np.uint8), np.zeros((3, 3), ">i2"), True, -1])
USUAL = st.sampled_from([(dtype, shape) for dtype in (np.uint8, np.int16, np.float32) for shape in
                         ((5, 7), (5, 7, 3), (5, 7, 4))])
KINDS = st.sampled_from([np.uint8] * 4 + [np.int16, np.float32] * 2 + [
    *DTYPES.values(), np.int64, np.uint64, bool, np.float16, ">i2", ">f4", "S3", "M8[s]", [("a", "u1"), ("b", "<i4")]])
SHAPES = st.sampled_from([(5, 7), (5, 7, 3), (5, 7, 4)] * 4 + [(7,), (5, 7, 1), (1, 7), (5, 1), (0, 5), (5, 0), (1, 1), (64,),
                                                              (8, 8), (2, 2, 2), (5, 7, 0), (1, 1, 1, 3), ()])

# By the names of parameters: what is in order, first, and what is not.
POOLS = {
    "mask_size": [3, (5, 3), "3x3", "5x5", "3x1", (0, 3), (1, 1), (100, 1), -1, "x", (2**31, 2), (10**9, 10**9)],
    "anchor": [None, (1, 1), (-1, 0), (2**40, 0), 1, "x"], "x_anchor": [None, 1, -1, 9], "y_anchor": [None, 1, -1],
    "kernel": [[[1, 2], [3, 4]], np.ones((3, 3)), np.ones(5), [1, 2, 3], [], np.ones((2, 2, 2)), [[2**40]], "x"],
    "divisor": [None, 1, 0, -3, 2**40, "x"], "footprint": [np.ones((3, 3), bool), [[1]], [], np.zeros((2, 2), int), "x"],
    "noise": [0, 0.1, (0.1,) * 3, -1, float("nan"), "x"], "border": ["replicate", "wrap", "constant", None, "reflect", 3],
    "border_value": [0, 7, (1, 2, 3), 300, "x"], "coeffs": [np.eye(2, 3), np.eye(3), np.ones((2, 4)), np.zeros((2, 3)),
                                                          np.full((3, 3), np.nan), np.full((2, 3), 1e300), [1], None],
    "inter": ["nearest", "linear", "cubic", "lanczos", "super", "x", 3], "size": [(9, 4), (1, 1), (0, 3), None, (-1, 2), "x"],
    "x_factor": [None, 0.5, 2, 0, -1, float("nan"), float("inf"), 1e-300, 1e300], "y_factor": [None, 0.5, 2, 0, 1e300],
    "x_fr": [0.5, 2, 0, float("nan"), 1e-300], "y_fr": [0.5, 2, -1], "x_shift": [0, 1.5, -1e300, float("nan")],
    "y_shift": [0, 2, 1e18], "x_center": [0, 5, float("inf")], "y_center": [0, 5], "x_shear": [0, 0.3, float("nan"), 1e200],
    "y_shear": [0, 0.2], "angle": [0, 30, 90, 1e300, float("nan")], "smooth_edge": [False, True],
    "roi": [None, (0, 0, 5, 5), (1, 1, 90, 90), (-1, 0, 3, 3), (9, 9, 1, 1), (2**31 - 1, 0, 5, 5), "x"],
    "dst_roi": [None, (0, 0, 5, 5), (1, 1, 90, 90), (-1, 0, 3, 3), (0, 0, 0, 0)], "shape": [None, (5, 7), (1, 1), (0, 2), (9, 30), "x"],
    "src_quad": [[(0, 0), (6, 0), (6, 4), (0, 4)], np.zeros((4, 2)), np.full((4, 2), np.nan), [1]],
    "dst_quad": [[(0, 0), (6, 0), (6, 4), (1, 3)], np.zeros((4, 2)), np.full((4, 2), 1e300)],
    "x_map": [np.zeros((5, 7), np.float32), np.full((5, 7), np.nan, np.float32), np.zeros((4, 4), np.float32), [1]],
    "y_map": [np.zeros((5, 7), np.float32), np.full((5, 7), 1e30, np.float32), np.zeros((0, 4), np.float32)],
    "levels": [[0, 5, 9], [9, 5, 0], [], range(257), [[0, 3, 9]] * 3, [float("nan"), 1, 2], [2**40, 1], np.zeros((2, 2)), "x"],
    "values": [[1, 2, 3], [1], [[1, 2, 3]] * 3, [2**40, 0, 0], "x"], "n_levels": [2, 9, 1, -1, 2**31, [3, 4, 5]],
    "lower_level": [0, 300, -2**31, 2**40], "upper_level": [256, 0, 2**31 - 1], "n_bit_size": [None, 3, 8, 0, 99],
    "table": [np.zeros(256, np.uint8), np.zeros((256, 3), np.uint8), np.zeros(5, np.uint32), np.zeros(1 << 16, np.uint32), "x"],
    "top_border_height": [0, 2, -1, 2**31], "left_border_width": [0, 3, -1], "dtype": [None, "float32", "int16", np.uint8, "x"],
    "cmp_op": ["<", "eq", 3, "x"], "alpha_type": ["over", "plus_premul", 1], "flip": ["both", "horizontal", "x"],
    "axis": ["both", "vertical"], "dst_order": [(2, 1, 0), (0, 0, 9), (1, 2), 3], "seed": [1, hux.Seed(3), -1, None],
    "mask": [None, np.ones((5, 7), np.uint8), np.ones((5, 7), bool)[::-1, ::-1], np.ones((3, 3), np.uint8), "x"],
    "shift": [0, 1, -1, 40, 2**31 - 1, -2**31, 2**70, None, 1.5], "alpha": ["keep", None, "x", 3],
    "quad": [[(0, 0), (6, 0), (6, 4), (1, 3)], np.zeros((4, 2))], "src_roi": [(0, 0, 5, 5), (0, 0, 1, 1), (-1, 0, 0, 0)],
    "src_size": [(5, 5), (0, 1)], "round": ["near", "zero", "x"], "hint": ["none", "accurate", 2]}
NUMBERS = [0, 1, 7, 200, -3, 1.5, (1, 2, 3), 10**40, float("nan"), "x", None]


def seldom(draw, n):
    """Once in so many times."""
    return draw(st.sampled_from(range(n))) == n // 2


@st.composite
def arrays(draw, memory, usual):
    """An array somewhere in memory: mostly a usual one, laid out in some way."""
    if seldom(draw, 16):
        return draw(STRANGE)
    dtype, shape = (draw(KINDS), draw(SHAPES)) if seldom(draw, 12) else usual
    dtype = np.dtype(dtype)
    a = np.ndarray(shape, dtype, memory, draw(st.sampled_from([1024, 1024, 1027, 1024 + 64, 3000])))
    if not a.ndim or not a.size:
        return a
    way = draw(st.sampled_from([None] * 30 + list(range(16))))
    apart = np.lib.stride_tricks.as_strided
    if way == 0 and a.ndim > 1:
        return a[::-1]
    if way == 1 and a.ndim > 1:
        return a[:, ::-1]
    if way == 2:
        return a[::2]
    if way == 3:
        return a.T
    if way == 4 and a.ndim > 1:
        return a[1:, 1:]
    if way == 5:
        return a[..., 0]
    if way == 6:
        return np.broadcast_to(a[:1], shape)
    if way == 7:  # each row, and each pixel, over the next
        return apart(a, shape, tuple(draw(st.sampled_from([0, 1, 2, 3, dtype.itemsize])) for _ in shape))
    if way == 8:  # steps of one row, which no function may take for steps
        return apart(a[:1], (1, *shape[1:]), (draw(st.sampled_from([0, -1, 10**15, -10**15, 2**31])), *a.strides[1:]))
    if way == 9:
        a.flags.writeable = False
        return a
    if way == 10:
        return a[..., None]
    if way == 11 and a.ndim == 3:
        return a[..., :2] if draw(st.booleans()) else a[..., ::-1]
    if way == 12:
        return memoryview(a) if a.dtype.names is None and a.dtype.kind in "iufb" and a.dtype.isnative else a
    if way == 13 and a.ndim > 1:
        return [a[..., 0] if a.ndim > 2 else a] * 3 if draw(st.booleans()) else [
            np.ndarray(shape[:2], dtype, memory, 1024 + 700 * k) for k in range(draw(st.integers(2, 5)))]
    if way == 14:  # no memory holds a copy of it
        return np.broadcast_to(a[:1], (draw(st.sampled_from([2**31, 2**45])), *shape[1:]))
    if way == 15 and a.ndim > 1:
        return apart(a, (2, 2, *shape[2:]), (draw(st.sampled_from([-6, 700, 3001])), *a.strides[1:]))
    return a


def touched(out, memory):
    """The bytes of memory that out, or its planes, have."""
    ours = np.zeros(len(memory), bool)
    for one in out if isinstance(out, (list, tuple)) else [out]:
        if isinstance(one, memoryview):
            one = np.asarray(one)
        if not isinstance(one, np.ndarray) or not one.size or max(one.shape) > BYTES:
            continue
        start = one.__array_interface__["data"][0] - memory.__array_interface__["data"][0]
        if 0 <= start < len(memory):
            places = start + sum(np.ix_(*(np.arange(side) * step for side, step in zip(one.shape, one.strides)))) \
                if one.ndim else np.array(start)
            for byte in range(one.itemsize):
                ours[np.asarray(places).ravel() + byte] = True
    return ours


def run(call, arguments, options, memory):
    before = memory.copy()
    with warnings.catch_warnings():
        warnings.simplefilter("ignore")
        went["all"] += 1
        try:
            call(*arguments, **options)
            went["through"] += 1
        except REFUSED:
            pass
    changed = memory != before
    if changed.any():
        assert not (changed & ~touched(options.get("out"), memory)).any(), (call, arguments, options)


CALLS = {name: [p.split("=")[0].strip(" *") for p in operation.__doc__.partition("\n")[0].partition("(")[2].split(",")]
         for name, operation in OPERATIONS.items()}


@hostile
@given(st.data())
def test_operations(data):
    draw = data.draw
    memory = np.full(BYTES, 0xA5, np.uint8)
    name = draw(st.sampled_from(sorted(CALLS)))
    one = arrays(memory, draw(USUAL))
    arguments = [draw(one) for p in CALLS[name] if p in ("a", "b")]
    if len(arguments) == 2 and draw(st.booleans()):
        arguments[1] = arguments[0]
    if seldom(draw, 30):
        arguments = arguments[:-1]
    options = {}
    for p in CALLS[name]:
        rare = p in ("mask", "shape", "dtype", "alpha", "shift", "roi", "dst_roi")
        if p and p not in ("a", "b", "out", "/") and (seldom(draw, 6) if rare else not seldom(draw, 20)):
            pool = POOLS.get(p, NUMBERS)
            options[p] = draw(STRANGE) if seldom(draw, 30) else draw(st.sampled_from([pool[0]] * len(pool) + pool))
    if draw(st.booleans()):
        options["out"] = arguments[0] if arguments and seldom(draw, 3) else draw(one)
    run(OPERATIONS[name], arguments, options, memory)


@hostile
@given(st.data())
def test_plans_and_short_hands(data):
    draw = data.draw
    memory = np.full(BYTES, 0xA5, np.uint8)
    one = arrays(memory, (np.float32, draw(st.sampled_from([(5, 7), (8, 8), (7,), (64,), (8, 8, 3)]))) if
                 draw(st.booleans()) else draw(USUAL))

    def some(*values):
        return draw(STRANGE) if seldom(draw, 20) else draw(st.sampled_from([values[0]] * len(values) + list(values)))

    def transform():
        kind = draw(st.sampled_from([hux.FFT, hux.DFT, hux.DCT]))
        options = {} if kind is hux.DCT else {"kind": some("real", "complex"), "norm": some("ortho", "none", "backward"),
                                              "packing": some("pack", "perm")}
        plan = kind(some((5, 7), (8, 8), (7,), (64,), (1, 1), (0, 5), (2**31, 2)), **options)
        return getattr(plan, draw(st.sampled_from(["forward", "inverse", "pack", "unpack"])), None) or plan.forward

    def wavelet():
        taps = some(([1, 1], 0, [1, -1], 0), ([1, 2, 1], 1, [1], 0), ([], 0, [1], 0), ([1, 1], -5, [1], 99))
        plan = hux.WT(taps, taps)
        return plan.forward if draw(st.booleans()) else lambda *bands, **options: plan.inverse(bands * 4, **options)

    def deconvolution():
        kind = draw(st.sampled_from([hux.DeconvFFT, hux.DeconvLR]))
        plan = kind(some(np.ones((3, 3)), np.ones((3, 3, 3)), np.ones((1, 1)), np.zeros((3, 3)), np.ones((2, 3))),
                    some((5, 7), (8, 8), (1, 1), (2**15, 2**15, 1)), threshold=some(1e-6, 0, float("nan")))
        return plan if kind is hux.DeconvFFT else lambda *a, **options: plan(*a, some(1, 3, 0, -1), **options)

    short = [lambda: hux.histogram, lambda: hux.match, lambda: hux.convolve, lambda: hux.norm, lambda: hux.moments,
             lambda: hux.pack_bits, lambda: hux.unpack_bits]
    try:
        call = draw(st.sampled_from([transform, transform, wavelet, deconvolution, *short]))()
    except REFUSED:
        return
    arguments = [draw(one)]
    options = {"out": draw(one)} if draw(st.booleans()) and call not in (hux.norm, hux.moments, hux.histogram) else {}
    if call is hux.histogram:
        options = {key: some(*POOLS["levels"]) for key in ("levels",) if draw(st.booleans())} | {
            key: some(3, 256, 0, (0, 9), (9, 0)) for key in ("bins", "range") if draw(st.booleans())}
    elif call in (hux.match, hux.convolve):
        arguments.append(draw(one))
        options["extent"] = some("valid", "same", "full")
    elif call is hux.norm and draw(st.booleans()):
        arguments.append(draw(one))
    elif call is hux.unpack_bits:
        options |= {"width": some(1, 7, 40, 0, -3, 2**31), "offset": some(0, 3, 9, -1, 2**40)}
    elif call is hux.pack_bits:
        options |= {"threshold": some(0, 128, 255, 256, -1), "offset": some(0, 3, 9, -1, 2**40)}
    if seldom(draw, 6):
        options["alpha"] = some("keep", "x")
    run(call, arguments, options, memory)


def test_some_calls_are_in_order():
    assert went["through"] > went["all"] / 8
