"""hux.c: every function is there, and each way of passing an argument arrives as C has it."""
import ctypes
import gc

import numpy as np
import pytest

from hux import c


def functions():
    return [name for name in dir(c) if name in c._functions]


def image(shape, dtype, seed=1):
    return np.random.default_rng(seed).integers(0, 100, shape).astype(dtype)


def test_every_name_is_exported_and_described():
    for name in functions():
        function = getattr(c, name)
        assert len(function.argtypes) == len(c._functions[name]["parameters"]), name
        assert function.__doc__.startswith(c._functions[name]["signature"]) and len(function.__doc__) > 100, name
    for name in c._variables:
        getattr(c, name)
    with pytest.raises(AttributeError):
        c.huxiAdd_8u_C7R


def test_images_of_every_element_and_layout_by_copy():
    """Each Copy of whole pixels against numpy: the pointers, steps and sizes of all types arrive."""
    dtypes = {"8u": np.uint8, "16s": np.int16, "32s": np.int32, "32f": np.float32}
    seen = 0
    for name in functions():
        entry = c._functions[name]
        if entry["operation"] != "Copy" or entry["shape"] != "ipipiS" or entry["domain"] != "image":
            continue
        if entry["layout"] not in ("C1", "C3", "C4") or entry["flags"]["one_channel"]:
            continue
        channels = int(entry["layout"][1:])
        source = image((5, 7, channels), dtypes[entry["types"][0]])
        out = np.zeros_like(source)
        assert getattr(c, name)(source, source.strides[0], out, out.strides[0], (7, 5)) == c.huxStsOk
        assert np.array_equal(out, source)
        seen += 1
    assert seen >= 9


def test_views_planes_masks_and_constants():
    rgb = image((6, 9, 3), np.uint8)
    planes = [np.zeros((4, 5), np.uint8) for _ in range(3)]
    part = rgb[1:5, 2:7]
    assert c.huxiCopy_8u_C3P3R(part, part.strides[0], planes, 5, c.HuxiSize(5, 4)) == 0
    assert np.array_equal(np.dstack(planes), part)
    out = np.zeros_like(rgb)
    mask = rgb[..., 0] > 50
    assert c.huxiCopy_8u_C3MR(rgb, 27, out, 27, (9, 6), mask, 9) == 0
    assert np.array_equal(out, np.where(mask[..., None], rgb, 0))
    assert c.huxiAddC_8u_C3IRSfs(np.array([1, 2, 3], np.uint8), out, 27, (9, 6), -1) == 0
    assert np.array_equal(out, (np.where(mask[..., None], rgb, 0) + [1, 2, 3]) * 2)
    values = (ctypes.c_uint8 * 3)(9, 8, 7)
    assert c.huxiSet_8u_C3R(values, out, 27, (9, 6)) == 0
    assert (out == [9, 8, 7]).all()


def test_numbers_by_value():
    floats = np.ones((2, 3), np.float32)
    assert c.huxiMulC_32f_C1IR(2.5, floats, 12, (3, 2)) == 0
    assert (floats == 2.5).all()
    shorts = np.zeros((2, 3), np.int16)
    assert c.huxiSet_16s_C1R(-7, shorts, 6, (3, 2)) == 0
    assert (shorts == -7).all()
    pairs = np.zeros((2, 3), [("re", np.int16), ("im", np.int16)])
    assert c.huxiAddC_16sc_C1IRSfs((3, -4), pairs, 12, (3, 2), 0) == 0
    assert (pairs["re"] == 3).all() and (pairs["im"] == -4).all()
    complexes = np.zeros((2, 3), np.complex64)
    assert c.huxiAddC_32fc_C1IR(3 - 4j, complexes, 24, (3, 2)) == 0
    assert (complexes == 3 - 4j).all()
    total = ctypes.c_double()
    assert c.huxiSum_8u_C1R(np.full((2, 3), 7, np.uint8), 3, (3, 2), ctypes.byref(total)) == 0
    assert total.value == 42
    box = image((9, 9), np.uint8)
    out = np.zeros((5, 7), np.uint8)
    inner = box[2:, 1:]
    assert c.huxiFilterMax_8u_C1R(inner, 9, out, 7, (7, 5), (3, 5), (1, 2)) == 0
    assert np.array_equal(out, np.lib.stride_tricks.sliding_window_view(box, (5, 3)).max((2, 3)))


def test_wrong_arguments_are_refused_before_the_call():
    a, out = np.zeros((2, 2), np.uint8), np.zeros((2, 2), np.uint8)
    with pytest.raises(ctypes.ArgumentError, match="array of 8u expected, not of int16"):
        c.huxiCopy_8u_C1R(a.astype(np.int16), 2, out, 2, (2, 2))
    with pytest.raises(ctypes.ArgumentError, match="tuple of 2"):
        c.huxiCopy_8u_C1R(a, 2, out, 2, (2, 2, 2))
    with pytest.raises(ctypes.ArgumentError, match="3 planes"):
        c.huxiCopy_8u_C3P3R(np.zeros((2, 2, 3), np.uint8), 6, [out, out], 2, (2, 2))
    out.flags.writeable = False
    with pytest.raises(ctypes.ArgumentError, match="read-only"):
        c.huxiCopy_8u_C1R(a, 2, out, 2, (2, 2))
    assert c.huxiCopy_8u_C1R(None, 2, a, 2, (2, 2)) == c.huxStsNullPtr


def test_contexts_memory_and_variables():
    state = ctypes.POINTER(c.HuxiMomentRecord_64s)()
    assert c.huxiMomentInitAlloc_64s(ctypes.byref(state), c.huxHintNone) == 0
    pixels = image((4, 6), np.uint8)
    assert c.huxiMoments64s_8u_C1R(pixels, 6, (6, 4), state) == 0
    moment = np.zeros(1, np.int64)
    assert c.huxiGetSpatialMoment_64s(state, 0, 0, 0, (0, 0), moment, 0) == 0
    assert moment[0] == pixels.sum()
    with pytest.raises(ctypes.ArgumentError):
        c.huxiMomentFree_64f(state)
    assert c.huxiMomentFree_64s(state) == 0
    step = ctypes.c_int()
    memory = c.huxiMalloc_8u_C3(10, 4, ctypes.byref(step))
    assert memory and step.value >= 30
    assert c.huxiSet_8u_C3R(bytes([1, 2, 3]), memory, step.value, (10, 4)) == 0
    assert ctypes.string_at(memory + step.value, 6) == bytes([1, 2, 3] * 2)
    c.huxiFree(memory)
    version = c.huxiGetLibVersion().contents
    assert version.versionText.decode().startswith(f"{version.versionMajor}.")
    assert np.isnan(c.huxConstantOfNAN_32f.value)
    assert c.huxGetThreadCount() == c.threads_omp_of_n_hux.value > 0
    gc.collect()
