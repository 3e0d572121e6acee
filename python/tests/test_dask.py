"""hux.dask: the bits of one call on the whole image, however it is chunked, whoever runs it.

HUX_TESTS=long in the environment has all members tried, and not some of each operation.
"""
import inspect
import os
import pickle
import warnings
from random import Random

import numpy as np
import pytest

import hux
from hux import c
from members import CHANNELS, DTYPES, OPERATIONS, member_call, pixels

da = pytest.importorskip("dask.array")
dask = pytest.importorskip("dask")
from hux import dask as hd  # noqa: E402
from hux._table import RULES  # noqa: E402

pytestmark = pytest.mark.filterwarnings("ignore::hux.Warning")
SHAPE = (23, 31)
LONG = os.environ.get("HUX_TESTS") == "long"


@pytest.fixture(autouse=True)
def one_thread():
    with dask.config.set(scheduler="synchronous"):
        yield


def cuts(random, length):
    parts = sorted(random.sample(range(1, length), random.randrange(0, min(4, length)))) if length > 1 else []
    return tuple(np.diff([0, *parts, length]).tolist())


def chunked(a, random):
    """Chunks of any size, also of the channels."""
    if isinstance(a, (list, tuple)):
        return [chunked(plane, random) for plane in a]
    return da.from_array(a, chunks=tuple(cuts(random, side) for side in a.shape))


def equal(lazy, whole):
    if isinstance(whole, (tuple, list)) and isinstance(lazy, (tuple, list)):
        return len(lazy) == len(whole) and all(equal(one, other) for one, other in zip(lazy, whole))
    assert isinstance(lazy, da.Array)
    got, whole = lazy.compute(), np.asarray(whole)
    assert lazy.shape == got.shape == whole.shape, (lazy.shape, got.shape, whole.shape)
    assert lazy.dtype == got.dtype and isinstance(lazy._meta, np.ndarray) and lazy._meta.ndim == whole.ndim
    return np.array_equal(got, whole) if lazy.dtype != whole.dtype else got.tobytes() == whole.tobytes()


def some(random, members, count):
    return members if LONG or len(members) <= count else random.sample(list(members), count)


def images(value):
    first = value[0] if isinstance(value, list) else value
    return isinstance(first, np.ndarray) and first.ndim > 0


@pytest.mark.parametrize("name", [n for n, r in RULES.items() if r["kind"] in ("points", "moves", "measure")])
def test_pixel_by_pixel_and_measures(name):
    random, operation = Random(name), OPERATIONS[name]
    measure = RULES[name]["kind"] == "measure"
    for member in some(random, operation.members, 3):
        entry, _, sources, options, out, _ = member_call(member, SHAPE)
        if entry["flags"]["in_place"] and len(operation.members) > 1 and not name.startswith("add_rand"):
            continue
        floats = entry["types"][0] in ("32f", "64f", "32fc", "64fc")
        if name in ("convert", "scale"):
            options["dtype"] = (out.all if out else sources[0]).dtype
        lazy = [chunked(source, random) if images(source) else source for source in sources]
        more = {}
        if not sources or "mask" in options or not images(sources[0]) and RULES[name]["sources"] == 0:
            if RULES[name].get("placed"):
                options |= {"shape": out.all.shape, "dtype": out.all.dtype}
                assert equal(getattr(hd, name)(*lazy, **options), operation(*sources, **options)), member
                continue
            start = out.python if isinstance(out.python, list) else out.python.copy()
            if isinstance(start, list):
                continue
            more = {"onto": chunked(start, random)}
            whole = operation(*sources, **options, out=start.copy())
            options = dict(options) | more
            if "mask" in options:
                options["mask"] = chunked(options["mask"], random)
            assert equal(getattr(hd, name)(*lazy, **options), whole), member
            continue
        try:
            whole = operation(*sources, **options)
        except (TypeError, ValueError):  # there is such a function in place, or to planes, alone
            continue
        result = getattr(hd, name)(*lazy, **options)
        if measure and (floats or name == "quality_index"):
            got, whole = (np.asarray(dask.compute(x)[0], float) for x in (result, whole))
            assert np.allclose(got, whole, rtol=1e-5), member
        else:
            assert equal(result, whole), member


def arguments_of(name, random):
    """Of a window: what it is called with, and the dtype of the result."""
    parameters = hd._signature(OPERATIONS[name]).parameters
    own = {}
    if "footprint" in parameters:
        row = [random.randrange(2) for _ in range(random.randrange(1, 6))]
        own["footprint"] = np.array([row] * random.randrange(1, 6))
        own["footprint"].flat[0] = 1
    elif "kernel" in parameters:
        flat = name != "filter"
        shape = (random.randrange(1, 7),) if flat else (random.randrange(1, 6), random.randrange(1, 6))
        own["kernel"] = np.array([random.randrange(-5, 9) for _ in range(int(np.prod(shape)))]).reshape(shape)
        own["divisor"] = random.randrange(1, 9)
    elif "mask_size" in parameters and parameters["mask_size"].default is inspect.Parameter.empty:
        own["mask_size"] = (random.randrange(1, 8), random.randrange(1, 8))
        if name == "filter_wiener":
            own["mask_size"], own["noise"] = (random.randrange(2, 6), random.randrange(2, 6)), 0.02
        elif "row" in name or "column" in name:
            own["mask_size"] = random.randrange(2, 7)
    size = own.get("mask_size") or np.shape(own.get("footprint", own.get("kernel")))[::-1]
    if "anchor" in parameters and random.random() < 0.7:
        one = "row" in name or "column" in name
        own["anchor"] = random.randrange(size if isinstance(size, int) else size[0]) if one else tuple(
            random.randrange(side) for side in size)
    for anchor in {"x_anchor", "y_anchor"} & set(parameters):
        own[anchor] = random.randrange(size[0])
    return own


@pytest.mark.parametrize("name", [n for n, r in RULES.items() if r["kind"] == "window"])
def test_windows(name):
    random, operation = Random(name), OPERATIONS[name]
    for member in some(random, [m for m in operation.members if not c._functions[m]["flags"]["in_place"]], 3):
        entry = c._functions[member]
        code, layout = entry["types"][0], entry["layout"]
        channels = CHANNELS[layout]
        floats = code in RULES[name].get("running", ()) or name.startswith("sum_window") and code == "32f"
        for border in some(random, ["replicate", "constant", "symmetric", "reflect101", "wrap", None], 2):
            shape = random.choice([SHAPE, (9, 40), (40, 8)])
            a = pixels((*shape, channels)[:3 if channels > 1 else 2], DTYPES[code], 1)
            own = arguments_of(name, random)
            if code == "32f" and "kernel" in own:
                own["kernel"] = own["kernel"].astype(np.float32)
                del own["divisor"]
            if any(p["role"] == "fixed_mask" for p in entry["parameters"]):
                own["mask_size"] = random.choice(["3x1", "5x1"] if "horiz" in name and "median" in name else
                                                 ["1x3", "1x5"] if "median_vert" in name else ["3x3", "5x5"])
            options = {"alpha": "keep"} if layout == "AC4" else {}
            if len(entry["types"]) > 1:
                options["dtype"] = DTYPES[entry["types"][-1]]
            options["border"] = border
            try:
                with hux.threads(1):
                    whole = operation(a, **own, **options)
            except (hux.BadSizeError, hux.BadMaskSizeError) as error:
                with pytest.raises(type(error)):
                    getattr(hd, name)(da.from_array(a, chunks=7), **own, **options).compute()
                continue
            result = getattr(hd, name)(chunked(a, random), **own, **options)
            if floats:
                assert np.allclose(result.compute().astype(float), whole.astype(float), rtol=1e-4, atol=1)
            else:
                assert equal(result, whole), (member, own, options, shape)


@pytest.mark.parametrize("channels", [1, 3, 4])
@pytest.mark.parametrize("dtype", [np.uint8, np.uint16, np.float32])
def test_resizes_and_maps_by_rectangles(dtype, channels):
    random = Random(int(channels + np.dtype(dtype).num))
    a = pixels((83, 190, channels)[:3 if channels > 1 else 2], dtype, 1)
    for inter in ("nearest", "linear", "cubic", "lanczos"):
        x, y = random.uniform(0.1, 2.5), random.uniform(0.1, 2.5)
        shifts = random.uniform(-9, 9), random.uniform(-9, 9)
        shape = max(1, int(83 * y)), max(1, int(190 * x))
        more = {"dst_roi": (3, 2, shape[1] - 5, shape[0] - 4)} if shape[1] > 20 and shape[0] > 20 else {}
        more |= {"inter": inter, "shape": shape}
        lazy = hd.resize_sqr_pixel(chunked(a, random), x, y, *shifts, **more)
        assert equal(lazy, hux.resize_sqr_pixel(a, x, y, *shifts, **more)), (x, y, shifts, more)
        generator = np.random.default_rng(channels)
        rows, columns = np.mgrid[:70, :95].astype(np.float32)
        maps = [(one + generator.uniform(-2, 2, (70, 95))).astype(np.float32) for one in (columns * 2.1 - 3, rows * 1.3 - 2)]
        maps[0][5, 7] = np.nan
        if inter == "lanczos":  # not of maps
            continue
        lazy = hd.remap(chunked(a, random), *chunked(maps, random), inter=inter)
        assert equal(lazy, hux.remap(a, *maps, inter=inter)), inter


def test_whole_images_and_blocks():
    random = Random(3)
    a, f = pixels((60, 80, 3), np.uint8, 1), pixels((64, 128), np.float32, 2)
    lazy, lazy_f = chunked(a, random), chunked(f, random)
    turn = [[0.99, 0.02, 1], [-0.02, 0.99, 2]]
    for name, arguments, options in (
            ("resize", ((35, 31),), {"inter": "cubic"}),
            ("resize", (), {"x_factor": 0.5, "y_factor": 0.4, "inter": "super"}),
            ("warp_affine", (turn,), {"smooth_edge": True}), ("rotate", (30,), {"roi": (4, 4, 30, 30)}),
            ("copy_replicate_border", (3, 4), {})):
        assert equal(getattr(hd, name)(lazy, *arguments, **options), OPERATIONS[name](a, *arguments, **options)), name
    planes = [a[..., k].copy() for k in range(3)]
    assert equal(hd.resize(chunked(planes, random), (35, 31)), hux.resize(planes, (35, 31)))
    maps = [np.full((7, 9), place, np.float32) for place in (3, 40)]
    assert equal(hd.remap(chunked(planes, random), *maps, inter="nearest"), hux.remap(planes, *maps, inter="nearest"))
    whole, parts = hux.warp_affine(a, turn), hd.warp_affine(lazy, turn, blockwise=True, overlap=6).compute()
    assert np.abs(whole.astype(int) - parts).max() <= 1 and (whole != parts).mean() < 0.01
    for arguments, options in (((170, 65), {}), ((30, 41), {"inter": "lanczos"}), ((33, 90), {"inter": "nearest"})):
        whole = hux.resize(a, arguments, **options).astype(int)
        assert np.abs(hd.resize(lazy, arguments, blockwise=True, **options).compute() - whole).max() <= 1
    tpl, taps = a[20:28, 30:41].copy(), pixels((5, 4), np.float32, 5)
    for extent in ("valid", "same", "full"):
        for method in ("ncc", "ncc_level", "sqdiff"):
            whole = hux.match(a, tpl, method=method, extent=extent)
            assert equal(hd.match(lazy, tpl, method=method, extent=extent), whole)
            if extent != "same":
                parts = hd.match(lazy, tpl, method=method, extent=extent, blockwise=True)
                assert parts.shape == whole.shape and np.allclose(parts.compute(), whole, atol=1e-3), (extent, method)
        if extent != "same":
            whole = hux.convolve(f, taps, extent=extent)
            assert equal(hd.convolve(lazy_f, taps, extent=extent), whole)
            parts = hd.convolve(lazy_f, taps, extent=extent, blockwise=True, overlap=(3, 4)).compute()
            assert np.allclose(parts, whole, rtol=1e-4, atol=1e-3)
    for kind, other in ((hd.FFT, hux.FFT), (hd.DFT, hux.DFT), (hd.DCT, hux.DCT)):
        plan, own = kind((64, 128)), other((64, 128))
        spectrum = plan.forward(lazy_f)
        assert equal(spectrum, own.forward(f)) and equal(plan.inverse(spectrum), own.inverse(own.forward(f)))
        tile = other((32, 32))
        assert np.array_equal(kind((32, 32)).forward(lazy_f, blockwise=True).compute()[32:, 64:96],
                              tile.forward(f[32:, 64:96].copy()))
    spot = np.ones((3, 3), np.float32) / 9
    restored = hux.DeconvLR(spot, f.shape)(np.abs(f), 3)
    assert equal(hd.DeconvLR(spot, f.shape)(abs(lazy_f), 3), restored)
    parts = hd.DeconvLR(spot, f.shape)(abs(lazy_f.rechunk(32)), 3, blockwise=True, overlap=12).compute()
    assert np.allclose(parts[12:-12, 12:-12], restored[12:-12, 12:-12], rtol=1e-3, atol=1e-3)
    tiles = hux.dct8x8_fwd(f[8:16, 16:24].copy())
    assert np.array_equal(hd.dct8x8_fwd(lazy_f).compute()[8:16, 16:24], tiles)


def test_wavelets():
    random, generator = Random(5), np.random.default_rng(5)

    def taps():
        both = [generator.uniform(-1, 1, random.randrange(2, 10)).astype(np.float32) for _ in range(2)]
        return [part for own in both for part in (own, random.randrange(len(own)))]
    for _ in range(15):
        plans = [kind(*given) for given in [(taps(), taps())] for kind in (hux.WT, hd.WT)]
        shape = random.choice([(2, 6), (18, 40), (34, 22)]) + random.choice([(), (3,)])
        border = random.choice(["wrap", "replicate", "constant", "symmetric", "reflect101"])
        a = pixels(shape, np.float32, 1)
        whole = plans[0].forward(a, border=border)
        bands = pickle.loads(pickle.dumps(plans[1])).forward(chunked(a, random), border=border)
        assert equal(bands, whole), (plans, shape, border)
        assert equal(plans[1].inverse(bands, border=border), plans[0].inverse(whole, border=border))
        assert equal(plans[1].inverse([chunked(band, random) for band in whole]), plans[0].inverse(whole))
    for call in (lambda: plans[1].forward(da.zeros((3, 4), dtype=np.float32)), lambda: plans[1].inverse(bands[:3]),
                 lambda: plans[1].inverse(bands, border="mirror"), lambda: hd.WT(taps()).inverse(bands)):
        with pytest.raises(ValueError, match="WT"):
            call()


def test_numbers():
    random = Random(4)
    a, f = pixels((300, 700), np.uint8, 1), pixels((40, 50, 3), np.float32, 2)
    lazy = chunked(a, random)
    assert equal(hd.histogram(lazy, range(257)), hux.histogram(a, range(257)))
    assert equal(hd.histogram(chunked(f, random), bins=9, range=(-3, 3)), hux.histogram(f, bins=9, range=(-3, 3)))
    counts, levels = hd.histogram_even(lazy, 5, 3, 120)
    assert equal(counts, hux.histogram_even(a, 5, 3, 120)[0]) and equal(levels, hux.histogram_even(a, 5, 3, 120)[1])
    lists = [[0, 3, 9], [1, 5, 7, 20], [0, 9]]
    assert equal(hd.histogram(chunked(f, random), lists), hux.histogram(f, lists))
    least = hd.min_indx(lazy)
    assert type(least) is type(hux.min_indx(a)) and least.index_y.compute() == hux.min_indx(a).index_y
    whole, sums = hux.moments(a), hd.moments(lazy)
    for order in ((0, 0), (1, 0), (0, 3), (2, 1)):
        assert equal(sums.spatial(*order), np.float64(whole.spatial(*order)))
        assert np.isclose(sums.spatial(*order, (7, -3)).compute(), whole.spatial(*order, (7, -3)), rtol=1e-12)
        if sum(order) != 1:
            assert np.isclose(sums.normalized_central(*order).compute(), whole.normalized_central(*order), rtol=1e-6)
    assert np.allclose(hd.moments(chunked(abs(f), random)).hu.compute(), hux.moments(abs(f)).hu, rtol=1e-6)
    wide = np.full((2, 70000), 65535, np.uint16)  # where the counters of one call wrap
    assert hd.sum(da.from_array(wide, chunks=-1)).compute() == wide.sum() != hux.sum(wide)
    assert hd.norm(lazy, ord=2).compute() == hux.norm(a, ord=2)


def test_errors_come_at_the_call():
    a = da.zeros((40, 50), dtype=np.uint8, chunks=17)
    for call, error, text in (
            (lambda: hd.add(a, a.astype(np.int16)), TypeError, "no promotion"),
            (lambda: hd.add(a, a[:9]), ValueError, "no broadcasting"),
            (lambda: hd.add(a, 1, out=a), TypeError, "no out="),
            (lambda: hd.filter_gauss([a] * 3), TypeError, "not planes"),
            (lambda: hd.moments([a] * 3), TypeError, "not planes"),
            (lambda: hd.add(a, 1, nothing=1), TypeError, "no keyword"), (lambda: hd.div(a, 0), hux.DivByZeroError, ""),
            (lambda: hd.filter_gauss(a, "1x3"), hux.BadMaskSizeError, ""),
            (lambda: hd.filter_box(a, (60, 3), border=None), hux.BadSizeError, ""),
            (lambda: hd.resize(a), TypeError, "needs a size"), (lambda: hd.resize_sqr_pixel(a, 0, 1), ValueError, ""),
            (lambda: hd.warp_affine(a, np.eye(2, 3), blockwise=True), TypeError, "overlap="),
            (lambda: hd.match(a, np.zeros((50, 9), np.uint8)), hux.BadSizeError, "larger"),
            (lambda: hd.FFT((8, 8)).forward(a.astype(np.float32)), ValueError, "arrays of"),
            (lambda: hd.add(a[:0], a[:0]), hux.BadSizeError, ""),
            (lambda: hd.add("x", 1), TypeError, "an array is expected"),
            (lambda: hd.add(a[a > 0], 1), ValueError, "chunks must be known")):
        with pytest.raises(error, match=text):
            call()
    with pytest.warns(da.PerformanceWarning, match="in one task") as caught:
        hd.rotate(da.zeros((2**15, 2**15, 3), dtype=np.uint8), 3)
    assert caught[0].filename == __file__
    some = da.concatenate([a[:0], a, a[:0]])  # chunks without rows
    assert equal(hd.filter_gauss(some), hux.filter_gauss(np.zeros((40, 50), np.uint8)))
    assert pickle.loads(pickle.dumps(hd.add)) is hd.add and "however it is chunked" in hd.add.__doc__
    before = hux.get_num_threads()
    hd.add(a, 1).compute(scheduler="threads")
    assert hux.get_num_threads() == before


def test_schedulers():
    distributed = pytest.importorskip("distributed")
    a = pixels((90, 130, 3), np.uint8, 1)
    lazy = da.from_array(a, chunks=(33, 50, 3))
    edges = hd.filter_median(lazy, (5, 3), border="wrap")
    results = [edges, hd.resize_sqr_pixel(edges, 0.4, 0.3), hd.sum(edges), hd.histogram(edges[..., 0], range(257)),
               hd.rotate(lazy, 30)]
    median = hux.filter_median(a, (5, 3), border="wrap")
    wholes = [median, hux.resize_sqr_pixel(median, 0.4, 0.3), hux.sum(median),
              hux.histogram(median[..., 0].copy(), range(257)), hux.rotate(a, 30)]

    def check(**how):
        for got, whole in zip(dask.compute(*results, **how), wholes):
            assert np.array_equal(got, whole)
    check(scheduler="threads", num_workers=3)
    check(scheduler="processes", num_workers=2)
    with warnings.catch_warnings():
        warnings.simplefilter("ignore")
        with distributed.LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None) as cluster, \
                distributed.Client(cluster) as client:
            check(scheduler=client)
