"""The operations: each function that they reach gives the bits that it gives by hux.c, however the arrays lie."""
import pickle
import re
import subprocess
import sys
import threading
import warnings

import numpy as np
import pytest

import hux
from hux import c
from hux._table import RULES
from members import OPERATIONS, member_call, pixels

quiet = pytest.mark.filterwarnings("ignore::hux.Warning")


@quiet
@pytest.mark.parametrize("operation", [o for o in OPERATIONS.values()
                                       if RULES[o.__name__]["kind"] in ("points", "moves", "measure")],
                         ids=lambda o: o.__name__)
def test_every_member_has_the_bits_of_c(operation):
    for name in operation.members:
        entry, arguments, _, _, expected, results = member_call(name)
        assert getattr(c, name)(*arguments) >= 0, name
        _, _, sources, options, out, _ = member_call(name)
        if out:
            options["out"] = out.python
        assert operation.which(*sources, **options) == name
        got = operation(*sources, **options)
        if out:
            assert got is options["out"] and out.all.tobytes() == expected.all.tobytes(), name
        else:
            got = got if len(results) > 1 else (got,)
            for one, whole in zip(got, results, strict=True):
                assert np.asarray(one).ravel().astype(whole.dtype).tobytes() == whole.tobytes(), name
                assert isinstance(one, np.ndarray) == (len(whole) > 1)
        if out and sources and not entry["flags"]["in_place"] and not {"mask", "alpha"} & set(options) and \
                entry["layout"] != "AP4":
            del options["out"]
            if entry["family"] in ("Convert", "Scale"):
                options["dtype"] = expected.all.dtype
            if operation.which(*sources, **options) == name:
                fresh = operation(*sources, **options)
                fresh = np.array(fresh) if isinstance(fresh, tuple) else fresh
                assert fresh.tobytes() == np.array(expected.python).tobytes(), name


def layouts_of_rows():
    """Arrays of the same pixels, each laid out otherwise."""
    yield "packed", lambda x: x.copy()
    yield "part", lambda x: np.pad(x, ((1, 2), (3, 1), (0, 0)))[1:-2, 3:-1]
    yield "upside down", lambda x: x[::-1].copy()[::-1]
    yield "mirrored", lambda x: x[:, ::-1].copy()[:, ::-1]
    yield "columns first", lambda x: np.asfortranarray(x)
    yield "every other row", lambda x: np.repeat(x, 2, 0)[::2]


def test_rows_and_pixels_of_any_stride():
    a, b = (pixels((6, 9, 3), np.uint8, seed) for seed in (1, 2))
    expected = np.minimum(a.astype(int) + b, 255)
    for name, lay in layouts_of_rows():
        assert np.array_equal(hux.add(lay(a), b), expected), name
        assert np.array_equal(hux.add(a, lay(b)), expected), name
        out = lay(np.zeros_like(a))
        if name in ("mirrored", "columns first"):
            with pytest.raises(ValueError, match="one after another"):
                hux.add(a, b, out=out)
        else:
            around = out.base.copy() if out.base is not None else None
            assert hux.add(a, b, out=out) is out
            assert np.array_equal(out, expected), name
            if name == "part":
                written = (out.base != around).any(-1)
                assert not written[0].any() and not written[-2:].any() and not written[:, :3].any()
    one = np.broadcast_to(a[:1], a.shape)
    assert np.array_equal(hux.add(one, b), np.minimum(one.astype(int) + b, 255))
    assert np.array_equal(hux.add(a[..., 1], b[..., 2]), expected_of(a[..., 1], b[..., 2]))
    assert np.array_equal(hux.add(a[0, :, 0], b[0, :, 0]), expected_of(a[0, :, 0], b[0, :, 0]))
    with pytest.raises(ValueError, match="do not overlap"):
        hux.add(a, b, out=np.lib.stride_tricks.as_strided(np.zeros(400, np.uint8), a.shape, (3, 3, 1)))


def expected_of(a, b):
    return np.minimum(a.astype(int) + b, 255)


@pytest.mark.parametrize("operation", [hux.add, hux.sub, hux.xor, hux.div], ids=lambda o: o.__name__)
def test_out_may_share_bytes_with_the_sources(operation):
    random = np.random.default_rng(5)
    for _ in range(200):
        memory = random.integers(1, 200, (12, 40), np.uint8)

        def window():
            y, x = random.integers(0, 4), random.integers(0, 4)
            view = memory[y:y + 8, x:x + 20]
            return view[::-1] if random.random() < 0.2 else view
        a, b = window(), window()
        out = (a, b, window(), window())[random.integers(0, 4)]
        expected = operation(a.copy(), b.copy())
        untouched = memory.copy()
        assert operation(a, b, out=out) is out
        assert np.array_equal(out, expected)
        changed = np.zeros(memory.shape, bool)
        origin = out.__array_interface__["data"][0] - memory.__array_interface__["data"][0]
        y, x = divmod(origin, 40)
        rows = slice(y - 7, y + 1) if out.strides[0] < 0 else slice(y, y + 8)
        changed[rows, x:x + 20] = True
        assert np.array_equal(memory[~changed], untouched[~changed])


def test_alpha_is_kept():
    a, b, out = (pixels((4, 5, 4), np.uint8, seed) for seed in (1, 2, 3))
    alpha = out[..., 3].copy()
    hux.add(a, b, out=out, alpha="keep")
    assert np.array_equal(out[..., 3], alpha) and np.array_equal(out[..., :3], a[..., :3] + b[..., :3])
    assert np.array_equal(hux.add(a, b, alpha="keep")[..., 3], a[..., 3])
    flipped = out[::-1]
    hux.add(a, 1, out=flipped, alpha="keep")
    assert np.array_equal(out[..., 3], alpha) and np.array_equal(flipped[..., :3], a[..., :3] + 1)


def test_constants():
    rgb = pixels((2, 3, 3), np.uint8, 1)
    assert np.array_equal(hux.add(rgb, 7), rgb + 7)
    assert np.array_equal(hux.add(rgb, (1, 2, 3)), rgb + np.array([1, 2, 3]))
    assert np.array_equal(hux.add(rgb, np.uint8(7)), rgb + 7)
    for wrong, error in ((256, ValueError), (-1, ValueError), (10**30, ValueError), (1.5, TypeError), ("7", TypeError),
                         ((1, 2), ValueError), ((1, 2, "3"), TypeError), (None, TypeError), ({}, TypeError)):
        with pytest.raises(error):
            hux.add(rgb, wrong)
    with pytest.raises(ValueError, match="constant"):
        hux.add(np.ones((2, 2), np.float32), 1e39)
    with pytest.raises(hux.DivByZeroError) as caught:
        hux.div(rgb, 0)
    assert isinstance(caught.value, ZeroDivisionError) and caught.value.status == c.huxStsDivByZero
    assert caught.value.function == "huxiDivC_8u_C3RSfs" and caught.value.operation == "div"


def test_what_is_refused_says_why():
    a = pixels((4, 5), np.uint8, 1)
    read_only = a.copy()
    read_only.flags.writeable = False
    for call, error, text in (
            (lambda: hux.add(a, a.astype(np.int16)), TypeError, "no promotion"),
            (lambda: hux.add(a, a[:2]), ValueError, "no broadcasting"),
            (lambda: hux.add(a.astype(np.int64), 1), TypeError, "of int64"),
            (lambda: hux.add(a.astype(">i2"), 1), TypeError, "of >i2"),
            (lambda: hux.add(memoryview(a.astype(np.int64)), 1), TypeError, "format 'l'"),
            (lambda: hux.exp(a.astype(np.float64)), TypeError, "there are: uint8 with 1"),
            (lambda: hux.add(a, a, out=a.astype(np.int16)), TypeError, "out must have the dtype"),
            (lambda: hux.add(a, a, out=a[:2].copy()), ValueError, "out must have the shape"),
            (lambda: hux.add(a, a, out=read_only), ValueError, "read-only"),
            (lambda: hux.add(a, a, alpha="keep"), TypeError, "four channels"),
            (lambda: hux.add(np.zeros((2, 2, 4), np.uint8), 1, alpha="drop"), ValueError, "keep"),
            (lambda: hux.add(np.zeros((2, 2, 2), np.uint8), 1), TypeError, "no function for .* 2 channels"),
            (lambda: hux.add(np.zeros((2, 2, 5), np.uint8), 1), TypeError, "up to 4"),
            (lambda: hux.add(np.zeros((2, 2, 2, 2), np.uint8), 1), TypeError, "4 axes"),
            (lambda: hux.add(np.uint8(1), 1), TypeError, "0 axes"),
            (lambda: hux.add(a.astype(np.float32), 1, shift=1), TypeError, "no shift for float32"),
            (lambda: hux.and_(a, 1, shift=1), TypeError, r"no keyword 'shift' in and_\(a, b, /"),
            (lambda: hux.copy(a.astype("M8[s]")), TypeError, "of datetime64"),
            (lambda: hux.add(a, 1.5), TypeError, "the constant 1.5 is no uint8"),
            (lambda: hux.add(a), TypeError, "2 positional"), (lambda: hux.add(), TypeError, "2 positional"),
            (lambda: hux.add(a, a, shift=2**40), ValueError, "32 bits"),
            (lambda: hux.add(a, a, shift=2**70), ValueError, "32 bits"),
            (lambda: hux.add([[1]], 1), TypeError, "an array is expected"),
            (lambda: hux.set(1, out=np.zeros((4, 0, 3), np.uint8)), hux.BadSizeError, "set: "),
            (lambda: hux.add(np.zeros((0, 5), np.uint8), 1), hux.BadSizeError, "add: "),
            (lambda: hux.add(a[:0], a[:0]), hux.BadSizeError, "add: .*huxiAdd_8u_C1RSfs")):
        with pytest.raises(error, match=text):
            call()


FORM = re.compile(r'(\w+?)(?: (vectors)| with (\d)(?: channels and alpha="(keep)")?| in (\d) planes|'
                  r' with one channel of (\d))(?: to (\w+))?')


@pytest.mark.parametrize("constant", [False, True])
def test_forms_that_messages_list_are_taken(constant):
    listed = 0
    for name, rule in RULES.items():
        operation = OPERATIONS[name]
        if not operation.native or constant and not rule["constant"]:
            continue
        keywords, taps = operation.__doc__.partition("\n")[0], np.ones((3, 3) if name == "filter" else 3, np.float32)

        def which(image, given="", **options):
            numbers = {"with a constant": 1, "with two images": 0}.get(given, int(constant))
            options |= {word: 1 for word in ("alpha1", "alpha2", "alpha_value") if word in given}
            if "kernel" in keywords:
                options["kernel"] = taps.astype(int).tolist() if "of integers" in given else taps
            if not rule["sources"]:
                return operation.which(out=image, **options)
            return operation.which(*[image] * (rule["sources"] - numbers), *[1] * numbers, **options)

        message, given = "", ""
        shapes, types = ((4, 4, 2), (4, 4), 4), (np.float64, np.int8, hux.complex_int16)
        for odd in (np.zeros(shape, dtype) for dtype in types for shape in shapes):
            try:
                which(odd)
            except TypeError as error:
                message = message or str(error).partition("there are: ")[2]
        for form in message.split("; ") if message else ():
            given, form = (form.rpartition(": ")[0] or given), form.rpartition(": ")[2]
            word, vector, channels, alpha, planes, one, result = FORM.fullmatch(form).groups()
            image = np.zeros((8, 9, int(channels or planes or one or 1)),
                             getattr(hux, word) if word.startswith("complex_int") else word)
            image = image[0, :, 0] if vector else list(np.moveaxis(image, 2, 0).copy()) if planes else \
                image[..., 1] if one else image[..., 0].copy() if channels == "1" else image
            options = {key: value for key, value in (("alpha", alpha), ("dtype", result)) if value}
            try:
                which(image, given, **options)
            except TypeError:
                which(image, given, out=image, **options)  # there are some in place alone
            listed += 1
    assert listed > 200


def test_warnings_point_at_the_caller():
    a = np.array([[4, -4]], np.float32)
    with warnings.catch_warnings(record=True) as caught:
        warnings.simplefilter("always")
        hux.sqrt(a)
    assert [w.category for w in caught] == [hux.SqrtNegWarning] and caught[0].filename == __file__
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        with pytest.raises(hux.SqrtNegWarning):
            hux.sqrt(a)


def test_nothing_leaks_and_threads_share():
    a, b = (pixels((300, 400), np.uint8, seed) for seed in (1, 2))
    expected = hux.add(a, b)
    bad = []

    def work():
        for _ in range(50):
            if not np.array_equal(hux.add(a, b), expected):
                bad.append(1)
    threads = [threading.Thread(target=work) for _ in range(4)]
    [t.start() for t in threads], [t.join() for t in threads]
    assert not bad
    small, references = pixels((4, 4), np.uint8, 1), sys.getrefcount
    before = references(small), references(np.dtype(np.uint8)), references(hux.add)
    for _ in range(1000):
        hux.add(small, small, out=small)
        hux.add(small, 3, shift=1)
        for wrong in ({"out": small[:2]}, {"alpha": "keep"}, {"nothing": 1}):
            with pytest.raises((TypeError, ValueError)):
                hux.add(small, small, **wrong)
    after = references(small), references(np.dtype(np.uint8)), references(hux.add)
    assert all(abs(x - y) < 10 for x, y in zip(before, after))
    small.resize((8, 8), refcheck=False)  # refused while a buffer is held


def test_the_front_page():
    a = pixels((60, 100, 3), np.uint8, 1)
    b, out, gray = a // 2, np.zeros_like(a), a[..., 0].copy()
    assert hux.add(a, b, out=out) is out and hux.add(a, b, out=b) is b
    assert np.array_equal(hux.add(a, a, shift=1), a) and hux.sub(a, a).max() == 0
    assert hux.add(a[10:50, 20:90], out[:40, :70]).shape == (40, 70, 3)
    rgb = np.zeros_like(a)
    assert np.array_equal(hux.copy([a[..., k].copy() for k in range(3)], out=rgb), a)
    hux.set(5, out=rgb[..., 0])
    assert (rgb[..., 0] == 5).all() and np.array_equal(rgb[..., 1:], a[..., 1:])
    assert np.array_equal(hux.copy(a[..., 1]), a[..., 1])
    rgba = np.dstack([a, gray])
    assert np.array_equal(hux.copy(rgba[..., :3]), a) and hux.copy.which(rgba[..., :3]) == "huxiCopy_8u_AC4C3R"
    hux.add(rgba[..., :3], rgba[..., :3], out=rgba[..., :3])
    assert np.array_equal(rgba[..., 3], gray) and np.array_equal(rgba[..., :3], np.minimum(a.astype(int) * 2, 255))
    assert np.array_equal(hux.add(rgba[..., 1:], rgba[..., 1:]), np.minimum(rgba[..., 1:].astype(int) * 2, 255))
    with pytest.raises(ValueError, match="one after another"):
        hux.add(a, a, out=rgba[..., 1:])  # behind the last pixel there is no fourth
    mask = gray > 60
    hux.copy(a, out=out, mask=mask)
    assert np.array_equal(out[mask], a[mask]) and not np.array_equal(out, a)
    assert hux.convert(gray, "float32").dtype == np.float32
    assert np.array_equal(hux.convert(hux.convert(gray, np.float32), "uint8", round="near"), gray)
    for dtype in (bool, np.int8, np.uint16, np.float16, np.uint32):
        moved = (a > 60).astype(dtype)
        for again in (hux.copy(moved), hux.mirror(hux.mirror(moved, "both"), "both"), hux.transpose(hux.transpose(moved))):
            assert again.dtype == dtype and np.array_equal(again, moved)
    assert (hux.set(60000, shape=(2, 3), dtype="uint16") == 60000).all()
    assert hux.set(True, shape=(2, 3), dtype=bool).all()
    seed, noisy = hux.Seed(7), np.zeros((8, 8), np.int16)
    first, second = (hux.add_rand_uniform_direct(noisy, -9, 9, seed) for _ in range(2))
    assert not np.array_equal(first, second) and not noisy.any()
    assert np.array_equal(first, hux.add_rand_uniform_direct(noisy, -9, 9, 7))
    assert hux.dup(gray[0]).shape == (1, 100, 3)  # a row becomes an image
    assert hux.lut_palette(gray[0], np.zeros((256, 3), np.uint8)).shape == (1, 100, 3)
    assert np.array_equal(hux.transpose(gray[0]), gray[0][:, None])
    with pytest.raises(ValueError):
        hux.copy_replicate_border(gray, 0, 0, shape=(70, 110), out=gray)
    least = hux.min_indx(gray)
    assert gray[least.index_y, least.index_x] == least.min == gray.min() and isinstance(hux.mean(gray), float)
    assert np.array_equal(hux.sum(a), a.sum((0, 1), dtype=float)) and np.isclose(hux.norm_l1(gray), gray.sum(dtype=int))


def test_reference():
    assert "pSrc1 + pSrc2" in hux.add.__doc__ and hux.add.__doc__.startswith("add(a, b, /, *, out=None, shift=0")
    assert "a is what C calls pSrc2" in hux.sub.__doc__ and "shift" not in hux.and_.__doc__.split("\n")[0]
    assert repr(hux.add) == "<operation hux.add>" and pickle.loads(pickle.dumps(hux.add)) is hux.add
    with pytest.raises(TypeError):
        hux.Operation()
    program = "from hux import *; print(abs(-1), add.__name__)"
    star = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True, check=True)
    assert star.stdout.split() == ["1", "add"]
