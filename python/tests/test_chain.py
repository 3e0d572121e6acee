"""Chains: the bits of their calls one by one, whatever the band and the team; and what they refuse."""
import pickle
import threading
import warnings
from random import Random

import numpy as np
import pytest

import hux
from members import pixels

BORDERS = ("replicate", "constant", "symmetric", "reflect101", "wrap")


def same(got, expected):
    if isinstance(expected, (tuple, list)):
        assert type(got) is type(expected) and len(got) == len(expected)
        for one, other in zip(got, expected):
            same(one, other)
    else:
        assert type(got) is type(expected)
        assert np.asarray(got).dtype == np.asarray(expected).dtype
        assert np.asarray(got).tobytes() == np.asarray(expected).tobytes() and np.shape(got) == np.shape(expected)


def check(function, *images, rows=(None, 1, 3, 16), threads=(1, 3)):
    expected = function(*images)
    for band in rows:
        chain = hux.chain(function, rows=band)
        for team in threads:
            same(chain(*images, threads=team), expected)
    return expected


def random_call(rng, images):
    """A call on some of the images, which are of uint8, int16 or float32."""
    a = rng.choice(images)
    like = [b for b in images if b.dtype == a.dtype and b.shape == a.shape]
    b, more = rng.choice(like), {} if a.dtype == np.float32 else {"shift": rng.randrange(3)}
    border = {"border": rng.choice(BORDERS), "border_value": rng.randrange(20)}
    calls = [lambda: hux.add(a, b, **more), lambda: hux.sub(a, b, **more), lambda: hux.mul(a, rng.randrange(4), **more),
             lambda: hux.add(a, a, **more),
             lambda: hux.erode(a, np.ones((rng.randrange(1, 5), rng.randrange(1, 4)), np.uint8), (0, 0), **border)
             if a.dtype == np.uint8 else hux.abs(a),
             lambda: hux.filter_min(a, (rng.randrange(1, 6), rng.randrange(1, 7)), **border),
             lambda: hux.filter_gauss(a, "3x3", **border),
             lambda: hux.filter_box(a, (rng.randrange(1, 8), rng.randrange(1, 8)), **border)
             if a.dtype != np.float32 else hux.filter(a, np.ones((3, 2), np.float32), **border),
             lambda: hux.compare(a, b, "<=") if a.dtype == np.uint8 else hux.threshold_gt(a, 1),
             lambda: hux.convert(a, {"uint8": "float32", "float32": "int16", "int16": "uint8"}[str(a.dtype)])]
    return rng.choice(calls)()


@pytest.mark.filterwarnings("ignore::hux.Warning")
@pytest.mark.parametrize("seed", range(24))
def test_random_chains(seed):
    shape = Random(seed).choice([(41, 23), (37, 18, 3), (2, 30), (90, 5, 4), (1, 1), (150, 64)])
    a, b = pixels(shape, np.uint8, seed), pixels(shape, np.uint8, seed + 1)

    def function(*images):
        rng, images = Random(seed), list(images)
        for _ in range(rng.randrange(1, 9)):
            images.append(random_call(rng, images))
        return tuple(rng.sample(images, 2)) + (images[-1],) if seed % 3 else images[-1]

    check(function, a, b)


def test_masks_planes_channels_and_alpha():
    a, b, m = pixels((33, 20, 4), np.uint8, 1), pixels((33, 20, 4), np.uint8, 2), pixels((33, 20), np.uint8, 3) & 1

    def masked(a, b, m):
        whole = hux.set((1, 2, 3, 4), out=hux.copy(a, out=hux.add(a, b), mask=m), mask=hux.sub(m, 1))
        return hux.filter_box(whole, (3, 3)), whole

    check(masked, a, b, m)
    check(lambda a, b: (hux.add(a, b, alpha="keep"), hux.filter_median(hux.sub(a, b, alpha="keep"), 3, alpha="keep")), a, b)
    check(lambda a: hux.filter_box(hux.copy(a[..., 1]), (5, 3)), a)
    check(lambda a: hux.complement(hux.complement(a)), pixels((33, 20), np.int32, 9))
    rgb = a[..., :3].copy()
    check(lambda a: hux.filter_max(hux.swap_channels(a, (2, 1, 0)), (3, 1)), rgb)
    planes = [pixels((33, 20), np.uint8, k) for k in range(4)]
    check(lambda p: hux.alpha_premul((p[3], hux.filter_box(p[1], 3), p[2], p[0])), planes)
    check(lambda p: hux.alpha_comp([p[0], p[1], p[2], p[3]], [p[3], p[0], hux.not_(p[1]), p[2]], "over")[1:], planes)


def test_measures():
    a, b = pixels((70, 31, 3), np.uint8, 4), pixels((70, 31, 3), np.uint8, 5)
    check(lambda a, b: (hux.sum(hux.add(a, b, shift=1)), hux.min_max(a), hux.histogram(a, range(0, 257, 8)), a), a, b)
    check(lambda a, b: hux.histogram(hux.filter_box(a, 5), bins=64), a, b)
    check(lambda a: (hux.count_in_range(a, 10, 90), hux.min(a), hux.max(a), hux.sum(hux.filter_max(a, 3))), a[..., 0].copy())
    check(lambda a: (hux.count_in_range(a, 10, 90), hux.convert(a, "uint8")), pixels((70, 31), np.float32, 6))


def test_outputs_are_written_where_they_are_asked_for():
    a, b = pixels((50, 40), np.uint8, 7), pixels((50, 40), np.uint8, 8)
    chain = hux.chain(lambda a, b: hux.filter_box(hux.xor(a, b), (5, 5)))
    expected = hux.filter_box(hux.xor(a, b), (5, 5))
    wide = np.zeros((50, 100), np.uint8)
    assert chain(a, b, out=wide[:, 3:43]) is not None and np.array_equal(wide[:, 3:43], expected) and not wide[:, 43:].any()
    assert np.array_equal(chain(a[::-1], b[::-1], out=np.zeros((50, 40), np.uint8)[::-1]),
                          hux.filter_box(hux.xor(a[::-1], b[::-1]), (5, 5)))
    own = a.copy()
    assert chain(own, b, out=own, threads=2) is own and np.array_equal(own, expected)
    own = a.copy()
    assert np.array_equal(hux.chain(lambda a: hux.not_(hux.add(a, 3)))(own, out=own), hux.not_(hux.add(a, 3)))
    two = hux.chain(lambda a: (hux.not_(a), a))
    outs = np.empty_like(a), np.empty_like(a)
    assert two(a, out=outs)[1] is outs[1] and np.array_equal(outs[0], ~a) and np.array_equal(outs[1], a)
    for out, kind in ((a[:5].copy(), ValueError), (a.astype(np.int16), TypeError), ((a, a), TypeError)):
        with pytest.raises(kind):
            chain(a, b, out=out)
    with pytest.raises(ValueError, match="share memory"):
        two(a, out=(outs[0], outs[0]))


def test_plans_are_kept_for_other_arrays():
    function = lambda a, b, level: (hux.not_(a), hux.filter_box(hux.add(a, b), 3), hux.count_in_range(b, 0, level))
    chain, first = hux.chain(function, rows=3), hux.chain(lambda a, b: function(a, b, 9)[1], rows=3)
    for seed in range(12):
        tall = pixels((30, 16), np.uint8, seed)
        a, b = tall[:20], pixels((20, 16), np.uint8, seed + 1)
        expected = function(a, b, 90 + seed % 2)
        same(chain(a, b, 90 + seed % 2, threads=1 + seed % 2), expected)
        # Now and then over an input, as a whole or a few rows further down.
        out = (np.empty_like(a), a, tall[4:24])[seed % 3]
        assert first(a, b, out=out, threads=2) is out and np.array_equal(out, expected[1])
    # A result that is written before the image in its place has been read for the last time.
    a, b, m = pixels((50, 40), np.uint8, 1), pixels((50, 40), np.uint8, 2), pixels((50, 40), np.uint8, 3) & 1
    own, other = a.copy(), np.empty_like(a)
    hux.chain(lambda a: (hux.not_(a), hux.add(a, 1)))(own, out=(own, other))
    assert np.array_equal(own, ~a) and np.array_equal(other, hux.add(a, 1))
    own = a.copy()
    hux.chain(lambda a, onto, m: hux.copy(a, out=onto, mask=m))(own, b, m, out=own)
    assert np.array_equal(own, hux.copy(a, out=b.copy(), mask=m))


def test_arguments_that_are_no_images():
    chain = hux.chain(lambda a, level, size: hux.threshold_gt(hux.filter_box(a, size), level))
    a = pixels((20, 30), np.uint8, 9)
    for level in (10, 90, 10):
        same(chain(a, level, (3, 5)), hux.threshold_gt(hux.filter_box(a, (3, 5)), level))
    inner = hux.chain(lambda a: hux.not_(a))
    same(hux.chain(lambda a: inner(hux.add(a, 1)))(a), hux.not_(hux.add(a, 1)))
    assert chain.reach(a, 5, (3, 5)) == (1, 2, 1, 2)
    both = hux.chain(lambda a: hux.add(hux.filter_box(hux.filter_box(a, (3, 5)), (1, 3)), hux.filter_min(a, (7, 1), (6, 0))))
    assert both.reach(a) == (6, 3, 1, 3)


A = pixels((20, 30), np.uint8, 10)


@pytest.mark.parametrize("function, kind, text", [
    (lambda a: hux.resize(a, (4, 4)), TypeError, "resize: is not local"),
    (lambda a: hux.mirror(a, "horizontal"), TypeError, "mirror: is not local"),
    (lambda a: hux.match(a, a), TypeError, "cross_corr_valid_norm: is not local"),
    (lambda a: hux.mean(a), TypeError, "mean: of uint8 is their sum over their number: take hux.sum"),
    (lambda a: hux.mean(hux.convert(a, "float32")), TypeError, "mean: of float32 depends on the order .* end the chain"),
    (lambda a: hux.norm_l2(a), TypeError, "norm_l2: is not made of the numbers of bands"),
    (lambda a: hux.sum(hux.convert(a, "float32")), TypeError, "sum: of float32 depends on the order .* end the chain"),
    (lambda a: hux.filter_box(hux.convert(a, "float32"), 3), TypeError, "filter_box: on float32, by sums of floats"),
    (lambda a: hux.filter_box(a, (500, 500)), TypeError, "filter_box: on uint8, by sums of floats"),
    (lambda a: hux.add(a, hux.sum(a)), TypeError, "add: a number that is known only when"),
    (lambda a: hux.add(a, A), TypeError, "add: an array is no image of the chain"),
    (lambda a: hux.not_(a, out=a), TypeError, "not_: no out= within a chain"),
    (lambda a: hux.filter_box(a, 3, border=None), ValueError, "filter_box: border=None"),
    (lambda a: hux.filter_box(hux.not_(a), (3, 3), (5, 5)), hux.BadAnchorError, "filter_box"),
    (lambda a: hux.div(a, 0), hux.DivByZeroError, "div"),
    (lambda a: hux.add(a, 999), ValueError, "add: the constant 999 is no uint8"),
    (lambda a: hux.moments(a), TypeError, "image of a chain"),
    (lambda a: np.add(a, 1), TypeError, ""),
    (lambda a: None, TypeError, "gives images or measures"),
])
def test_refusals(function, kind, text):
    out = np.full_like(A, 77)
    with pytest.raises(kind, match=text):
        hux.chain(function)(A, out=out)
    assert (out == 77).all()
    hux.add(A, A)  # nothing is recorded any more


def test_errors_name_the_call():
    with pytest.raises(ValueError) as caught:
        hux.chain(lambda a: hux.filter_box(hux.not_(a), (3, 3), (5, 5)))(A)
    assert caught.value.__notes__ == ["filter_box is call 2 of the chain"]
    with pytest.raises(ValueError, match="one height and width"):
        hux.chain(hux.add)(A, A[1:])
    with pytest.raises(hux.BadSizeError):
        hux.chain(hux.not_)(A[:0])


def test_warnings_come_once_for_each_call():
    a, b = np.ones((100, 40), np.uint8), np.ones((100, 40), np.uint8)
    b[70] = 0
    chain = hux.chain(lambda a, b: hux.div(hux.div(a, b), b), rows=7)
    with pytest.warns(hux.DivByZeroWarning) as told:
        result = chain(a, b, threads=2)
    assert len(told) == 2 and told[0].filename == __file__
    with warnings.catch_warnings():
        warnings.simplefilter("ignore")
        same(result, hux.div(hux.div(a, b), b))
        chain(np.ones_like(a), np.ones_like(b))
    # Nor where a call behind an output has all calls look at their arguments ahead of the work.
    chain = hux.chain(lambda a, b: (c := hux.div(a, b), hux.filter_box(c, (3, 3))))
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        chain(np.ones_like(a), np.ones_like(b))


def test_threads_and_pickles():
    chain = hux.chain(hux.not_)
    images = [pixels((200, 300), np.uint8, seed) for seed in range(4)]
    found = [None] * 4

    def work(k):
        for _ in range(20):
            own = hux.chain(lambda a: hux.filter_box(hux.add(a, k), 3))
            found[k] = chain(own(images[k], threads=2))

    threads = [threading.Thread(target=work, args=(k,)) for k in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    for k in range(4):
        same(found[k], hux.not_(hux.filter_box(hux.add(images[k], k), 3)))
    same(pickle.loads(pickle.dumps(chain))(A), ~A)


def test_dask_arrays():
    da = pytest.importorskip("dask.array")
    a, b = pixels((90, 70, 3), np.uint8, 11), pixels((90, 70), np.uint8, 12)

    def function(a, b, level):
        edges = hux.filter_box(hux.filter_sobel_horiz(hux.copy(a[..., 1])), (4, 7), border="symmetric")
        return hux.filter_median(a, 5), hux.threshold_gt(hux.add(edges, b), level)

    chain = hux.chain(function)
    for chunks in ((90, 70), (31, 17), (4, 64)):
        x, y = da.from_array(a, chunks=(*chunks, 3)), da.from_array(b, chunks=chunks)
        got = chain(x, y, 50)
        assert [image.shape for image in got] == [a.shape, b.shape]
        same(tuple(image.compute(scheduler="threads") for image in got), chain(a, b, 50))
    with pytest.raises(TypeError, match="measures have no blocks"):
        hux.chain(hux.sum)(y)
    with pytest.raises(TypeError, match="wrap"):
        hux.chain(lambda a: hux.filter_box(a, 3, border="wrap"))(y)
