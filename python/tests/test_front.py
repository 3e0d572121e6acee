"""What is not computed pixel by pixel gives the bits of hux.c: windows, geometry, tables, blocks, matching, plans."""
import inspect
import pickle
import threading

import numpy as np
import pytest

import hux
from hux import _front, c
from hux._table import RULES
from members import CHANNELS, DTYPES, OPERATIONS, pixels

pytestmark = pytest.mark.filterwarnings("ignore::hux.Warning")
FAR = 12  # rows and columns around a source: more than any window here looks at
TAPS = [[1, -2, 3], [0, 5, -1]]
QUAD, COEFFS = [(2, 1), (15, 2), (14, 12), (1, 11)], {"affine": [[1.2, 0.1, 1], [-0.2, 0.9, 2]],
                                                     "bilinear": [[0.01, 1.2, 0.1, 1], [-0.01, -0.2, 0.9, 2]],
                                                     "perspective": [[1.2, 0.1, 1], [-0.2, 0.9, 2], [0.004, 0.002, 1]]}


def cases(kind):
    return [o for o in OPERATIONS.values() if RULES[o.__name__]["kind"] == kind]


def source_of(entry, seed=1, shape=(13, 17)):
    p = next(p for p in entry["parameters"] if p["role"] == "source")
    layout = p.get("layout") or "C1"
    if layout[0] == "P":
        return list(pixels((CHANNELS[layout], *shape), DTYPES[p["element"]], seed))
    return pixels((*shape, CHANNELS[layout]) if CHANNELS[layout] > 1 else shape, DTYPES[p["element"]], seed)


def run_c(entry, values):
    arguments = [values[p["name"]] for p in entry["parameters"]]
    status = getattr(c, entry["name"])(*arguments)
    assert status >= 0, (entry["name"], status)


def check(operation, entry, sources, own, values, out, **options):
    """Runs both on equal memory and compares."""
    expected = [o.copy() for o in out] if isinstance(out, list) else out.copy()
    planes = isinstance(out, list)
    values = dict(values, pDst=expected, dstStep=(expected[0] if planes else expected).strides[0])
    run_c(entry, values)
    if entry["layout"] == "AC4":
        options["alpha"] = "keep"
    if len(entry["types"]) == 2 and "24u" not in entry["types"]:
        options["dtype"] = DTYPES[entry["types"][1]]
    assert operation.which(*sources, **own, **options) == entry["name"]
    assert operation(*sources, **own, **options, out=out) is out
    assert np.array(out).tobytes() == np.array(expected).tobytes(), entry["name"]
    if entry["layout"] != "AC4" and operation not in cases("geometry"):  # there pixels may be left as they were
        fresh = operation(*sources, **own, **options)
        assert np.array(fresh).tobytes() == np.array(expected).tobytes(), entry["name"]


@pytest.mark.parametrize("operation", cases("window"), ids=lambda o: o.__name__)
def test_windows(operation):
    for name in operation.members:
        entry = c._functions[name]
        a = source_of(entry)
        border, mode = (("replicate", "edge"), ("wrap", "wrap"), ("reflect101", "reflect"))[len(name) % 3]
        whole = np.pad(a, [(FAR, FAR), (FAR, FAR), (0, 0)][:a.ndim], mode)
        size = a.shape[1::-1]
        values = {"pSrc": whole[FAR:, FAR:], "srcStep": whole.strides[0], "roiSize": size, "dstRoiSize": size}
        own = {}
        names = {p["name"]: p for p in entry["parameters"]}
        if "maskSize" in names and "pKernel" not in names:
            one = names["maskSize"]["type"] == "int"
            values |= {"maskSize": 5 if one else (3, 5), "anchor": 1 if one else (2, 1)}
            own = {"mask_size": values["maskSize"], "anchor": values["anchor"]}
        if "pMask" in names:
            own["footprint"] = np.array([[1, 0, 1], [0, 1, 1], [1, 1, 0], [0, 0, 1], [1, 0, 0]])
            values["pMask"] = own["footprint"].astype(np.uint8)
            del own["mask_size"]
        if "mask" in names:
            values["mask"] = {"horiz": 51, "vert": 15}.get(name[5:].lower().partition("median")[2].split("_")[0], 55)
            own["mask_size"] = f"{values['mask'] // 10}x{values['mask'] % 10}"
        if "pKernel" in names:
            taps = np.array(TAPS, DTYPES[names["pKernel"]["element"]])
            flat = names["kernelSize"]["type"] == "int"
            own["kernel"] = taps[0] if flat else taps
            values |= {"pKernel": own["kernel"], "kernelSize": 3 if flat else (3, 2), "xAnchor": 2, "yAnchor": 2,
                       "anchor": (0, 1), "divisor": 7}
            own |= {p: values[q] for p, q in (("x_anchor", "xAnchor"), ("y_anchor", "yAnchor"), ("anchor", "anchor"),
                                              ("divisor", "divisor")) if q in names}
        if "noise" in names:
            count = 4 if entry["layout"] == "C4" else int(entry["layout"][-1]) if entry["layout"] != "AC4" else 3
            bytes_ = np.zeros(1, np.int32)
            c.huxiFilterWienerGetBufferSize(size, (3, 5), count, bytes_)
            own["noise"] = 0.02
            values |= {"noise": np.full(count, 0.02, np.float32), "pBuffer": np.zeros(bytes_[0], np.uint8)}
        out = pixels(a.shape, DTYPES[entry["types"][-1]], 2)
        if "divisor" in own:  # given as integers
            own["kernel"] = own["kernel"].tolist()
        with hux.threads(1):
            check(operation, entry, [a], dict(own, border=border), values, out)


def test_large_windows_and_questions():
    """Of large images only the edges are framed; the bits are those of a frame around the whole."""
    pads = {"replicate": "edge", "symmetric": "symmetric", "reflect101": "reflect", "wrap": "wrap", "constant": "constant"}
    for k, operation in enumerate(cases("window")):
        entry = c._functions[operation.members[k % len(operation.members)]]
        a, (border, mode) = source_of(entry, shape=(241, 283)), list(pads.items())[k % 5]
        own = {"dtype": DTYPES[entry["types"][-1]]} | ({"alpha": "keep"} if entry["layout"] == "AC4" else {})
        names = [p["name"] for p in entry["parameters"]]
        if "maskSize" in names:
            own |= {"footprint": TAPS} if "pMask" in names else {"kernel": TAPS} if "pKernel" in names else {"mask_size": 5}
        if "pKernel" in names:
            own["kernel"] = np.abs(TAPS[0] if operation is not hux.filter else TAPS).astype(DTYPES[entry["types"][0]])
        left, top, right, bottom = operation.reach(a, **own)
        whole = np.pad(a, [(top, bottom), (left, right), (0, 0)][:a.ndim], mode)
        result = operation(a, **own, border=border)
        expected = operation(whole, **own, border=None)
        assert result.tobytes() == expected.tobytes(), (operation, entry["name"], border)
        assert operation.shape_of(a, **own, border=border) == (result.shape, result.dtype)
    # Sums of bytes beyond what floats hold exactly run on along the rows of a call.
    bright = pixels((1000, 900), np.uint8, 1) | np.uint8(192)
    whole = np.pad(bright, [(200, 199), (200, 199)], "edge")
    assert (hux.filter_box(bright, (400, 400)) == hux.filter_box(whole, (400, 400), border=None)).all()
    empty = np.broadcast_to(np.uint8(0), (10**6, 10**6, 3))  # no pixel is read
    assert hux.resize.shape_of(empty, (5, 4)) == ((4, 5, 3), np.uint8) and hux.add.shape_of(empty, 1)[0] == empty.shape
    assert hux.cross_corr_full_norm.shape_of(empty[:9, :9, 0], empty[:3, :2, 0]) == ((11, 10), np.float32)
    a = pixels((40, 30), np.uint8, 1)
    coeffs = [[0.9, 0.2, 3], [-0.1, 1.1, 2]]
    part = hux.warp_affine.part((30, 40), (5, 10), (8, 16), a[10:, 5:], coeffs, roi=(0, 0, 30, 40), shape=(12, 11))
    assert np.array_equal(part, hux.warp_affine(a, coeffs)[16:28, 8:19])
    with pytest.raises(TypeError):
        hux.add.reach(a, 1)
    assert str(inspect.signature(hux.filter_box)).startswith("(a, /, mask_size, anchor=None, *, border='replicate'")


def test_windows_refuse_what_shares_memory_with_their_source():
    big = pixels((20, 30), np.uint8, 1)
    for out in (big[1:11], big[:10, 1:21], big[9::-1, :20]):
        with pytest.raises(ValueError, match="shares memory"):
            hux.filter_box(big[:10, :out.shape[1]], 3, out=out)
    for source, out in ((big[::2], big[1::2]), (big[:, :15], big[:, 15:])):  # neighbours share none
        expected = hux.filter_box(source, 3)
        assert np.array_equal(hux.filter_box(source, 3, out=out), expected)
    x = pixels((9, 8, 4), np.uint8, 2)
    rgb, alpha = np.array(x[..., :3]), x[..., 3].copy()
    for call in (lambda **o: hux.add(rgb, 9, **o), lambda **o: hux.filter_max(rgb, 3, **o), lambda **o: hux.resize(rgb, **o)):
        assert np.array_equal(call(out=x[..., :3]), call(**{"size": (8, 9)} if call.__code__.co_names[1] == "resize" else {}))
        assert np.array_equal(x[..., 3], alpha)
    assert np.array_equal(hux.filter_min(rgb[..., 0], 3, out=rgb[..., 2]), hux.filter_min(rgb[..., 0], 3))


def test_windows_of_every_border_and_the_valid_region():
    a = pixels((9, 12, 3), np.uint8, 1)
    pads = {"replicate": "edge", "symmetric": "symmetric", "reflect101": "reflect", "wrap": "wrap"}
    for border, mode in pads.items():
        whole = np.pad(a, ((20, 20), (20, 20), (0, 0)), mode)
        expected = hux.filter_median(whole, (19, 17), border=None)[12:-12, 11:-11]
        assert np.array_equal(hux.filter_median(a, (19, 17), border=border), expected), border
    whole = np.pad(a, ((2, 2), (2, 2), (0, 0)))
    whole[:2], whole[-2:], whole[:, :2], whole[:, -2:] = ([9, 8, 7],) * 4
    assert np.array_equal(hux.filter_box(a, (5, 5), border="constant", border_value=(9, 8, 7)),
                          hux.filter_box(whole, (5, 5), border=None))
    assert hux.filter_box(a, (5, 3), border=None).shape == (7, 8, 3)
    assert hux.filter_gauss(a, "5x5", border=None).shape == (5, 8, 3)
    same = a.copy()
    assert np.array_equal(hux.filter_box(same, (5, 3), out=same), hux.filter_box(a, (5, 3)))
    for operation, more, reach in ((hux.filter_box, {"mask_size": (5, 3), "anchor": (1, 0)}, (1, 0, 3, 2)),
                                   (hux.filter, {"kernel": TAPS, "anchor": (0, 1)}, (2, 0, 0, 1)),
                                   (hux.filter_gauss, {"mask_size": "5x5"}, (2, 2, 2, 2)), (hux.not_, {}, (0,) * 4)):
        left, top, right, bottom = _front.reach(operation, a, **more)
        assert (left, top, right, bottom) == reach
        if any(reach):
            assert np.array_equal(operation(a, **more, border=None),
                                  operation(a, **more)[top:9 - bottom, left:12 - right])
    assert _front.reach(hux.resize, a, (4, 4)) is None and _front.reach(hux.mean, a) is None
    turned, part = a[::-1, ::-1], np.zeros((20, 20, 3), np.uint8)
    hux.filter_box(turned, (5, 3), out=part[3:12, 4:16])
    assert np.array_equal(part[3:12, 4:16], hux.filter_box(turned.copy(), (5, 3)))
    assert not part[:3].any() and not part[:, :4].any() and not part[12:].any() and not part[:, 16:].any()
    for call, error, text in ((lambda: hux.filter_box(a, (5, 3), border="reflect"), ValueError, "symmetric"),
                              (lambda: hux.filter_box(a, (5, 3), border="x"), ValueError, "border is one of"),
                              (lambda: hux.filter_box(a, (5, 3), anchor=(5, 0)), hux.BadAnchorError, "anchor"),
                              (lambda: hux.filter_box(a, (50, 3), border=None), hux.BadSizeError, "smaller"),
                              (lambda: hux.filter_box(a, (0, 3)), hux.BadMaskSizeError, ""),
                              (lambda: hux.filter_gauss(a, "1x3"), hux.BadMaskSizeError, "3x3"),
                              (lambda: hux.filter_gauss(a.astype(np.int32)), TypeError, "there are: uint8 with 1"),
                              (lambda: hux.filter(a, [[1]], divisor=0), hux.BadDivisorError, ""),
                              (lambda: hux.filter_box(a, 3, border="constant", border_value=300), ValueError, "uint8")):
        with pytest.raises(error, match=text):
            call()


@pytest.mark.parametrize("operation", cases("geometry"), ids=lambda o: o.__name__)
def test_geometry(operation):
    for name in operation.members:
        entry = c._functions[name]
        planes = entry["layout"][0] == "P"
        a = source_of(entry, shape=(14, 18))
        first = a[0] if planes else a
        kind = next((k for k in COEFFS if k.title() in name), None)
        shape = (13, 20)
        every = {"angle": 30.0, "x_shift": 2.5, "y_shift": 1.25, "x_factor": 0.75, "y_factor": 0.9, "x_fr": 1.5,
                 "y_fr": 1.25, "x_center": 8.0, "y_center": 7.0, "x_shear": 0.25, "y_shear": -0.1, "src_quad": QUAD,
                 "dst_quad": [(x + 1, y * 0.8) for x, y in QUAD], "coeffs": COEFFS.get(kind)}
        maps = [np.random.default_rng(k).uniform(-1, 18, shape).astype(np.float32) for k in (1, 2)]
        values = {"pSrc": a, "srcStep": first.strides[0], "srcSize": (18, 14), "srcRoi": (2, 1, 14, 12),
                  "dstRoi": (1, 2, 17, 10), "dstRoiSize": shape[::-1], "pxMap": maps[0], "pyMap": maps[1],
                  "xMapStep": maps[0].strides[0], "yMapStep": maps[1].strides[0], "interpolation": 4}
        own = {"roi": (2, 1, 14, 12), "inter": "cubic"}
        parameters = [p["name"] for p in entry["parameters"]]
        if "dstRoi" in parameters:
            own["dst_roi"] = (1, 2, 17, 10)
            if "pBuffer" not in parameters:
                own["smooth_edge"], values["interpolation"] = True, 4 - 2**31
        if "pxMap" in parameters:
            own |= {"x_map": maps[0], "y_map": maps[1]}
        if "pBuffer" in parameters:
            values["pBuffer"] = np.zeros(1 << 20, np.uint8)
        for key, value in every.items():
            c_name = "".join(part.title() if i else part for i, part in enumerate(key.split("_")))
            if c_name in parameters:
                own[key] = value
                values[c_name] = np.array(value, float) if isinstance(value, list) else value
        out = [pixels(shape, first.dtype, 9 + k) for k in range(len(a))] if planes else \
            pixels((*shape, *first.shape[2:]), first.dtype, 9)
        check(operation, entry, [a], own, values, out)


def test_geometry_by_hand():
    a = pixels((14, 18), np.uint8, 1)
    assert hux.resize(a, (36, 28)).shape == (28, 36) and hux.resize(a, x_factor=0.5, y_factor=2).shape == (28, 9)
    assert np.array_equal(hux.resize(a, (36, 28)), hux.resize(a, shape=(28, 36)))
    assert np.array_equal(hux.warp_affine(a, np.eye(2, 3)), a)
    moved = hux.warp_affine(a, [[1, 0, 3], [0, 1, 2]], shape=(20, 30))
    assert np.array_equal(moved[2:16, 3:21], a) and not moved[:2].any() and not moved[:, 21:].any()
    whole = (0, 0, 18, 14)
    quad = [(2, 1), (15, 2), (14, 12), (1, 11)]
    assert np.allclose(hux.get_perspective_quad(whole, hux.get_perspective_transform(whole, quad)), quad)
    shift = hux.get_rotate_shift(5, 4, 30)
    assert np.allclose(hux.add_rotate_shift(5, 4, 30, 1, 2), np.add(shift, (1, 2)))
    for name in ("affine", "bilinear", "perspective"):
        assert getattr(hux, f"get_{name}_quad")(whole, COEFFS[name]).shape == (4, 2)
        assert getattr(hux, f"get_{name}_bound")(whole, COEFFS[name]).shape == (2, 2)
        assert len(getattr(hux, f"get_{name}_transform")(whole, quad)) == len(COEFFS[name])
    assert np.allclose(hux.get_shear_quad(whole, 0, 0, 1, 2)[0], (1, 2))
    assert np.allclose(hux.get_shear_bound(whole, 0, 0, 1, 2), [(1, 2), (18, 15)])
    assert np.allclose(hux.get_rotate_quad(whole, 0, 1, 2)[0], (1, 2))
    assert np.allclose(hux.get_rotate_bound(whole, 180, 17, 13), [(0, 0), (17, 13)])
    steps = hux.get_resize_fract((18, 14), whole, 2, 2, "linear")
    assert np.allclose(steps, (17 / 35, 13 / 27))
    for call, error, text in ((lambda: hux.resize(a), TypeError, "needs a size"),
                              (lambda: hux.resize(a, (4, 4), inter="x"), ValueError, "inter is one of"),
                              (lambda: hux.resize(a, (0, 4)), hux.BadSizeError, ""),
                              (lambda: hux.resize(a, (4, 4), out=np.zeros((5, 4), np.uint8)), ValueError, "differ"),
                              (lambda: hux.warp_affine(a, np.eye(3)), ValueError, "shape"),
                              (lambda: hux.rotate(a, 3, dst_roi=(0, 0, 19, 1)), ValueError, "outside"),
                              (lambda: hux.remap(a, maps(3, 4), maps(4, 3)), ValueError, "one shape"),
                              (lambda: hux.resize([a, a], (3, 3)), TypeError, "3 or 4 planes")):
        with pytest.raises(error, match=text):
            call()


def maps(*shape):
    return np.zeros(shape, np.float32)


@pytest.mark.parametrize("operation", cases("border"), ids=lambda o: o.__name__)
def test_borders(operation):
    for name in operation.members:
        entry = c._functions[name]
        constant = "Const" in name
        if entry["flags"]["in_place"]:
            p = next(p for p in entry["parameters"] if p["name"] == "pSrc")
            channels = CHANNELS[p["layout"]]
            whole = pixels((12, 15, channels)[:3 if channels > 1 else 2], DTYPES[p["element"]], 1)
            other = whole.copy()
            run_c(entry, {"pSrc": other[3:, 2:], "srcDstStep": other.strides[0], "srcRoiSize": (9, 7),
                          "dstRoiSize": (15, 12), "topBorderHeight": 3, "leftBorderWidth": 2})
            options = {"alpha": "keep"} if entry["layout"] == "AC4" else {}
            assert operation.which(whole[3:10, 2:11], 3, 2, out=whole, **options) == name
            operation(whole[3:10, 2:11], 3, 2, out=whole, **options)
            assert np.array_equal(whole, other)
            continue
        a = source_of(entry, shape=(7, 9))
        count = {"C1": 1, "C3": 3, "C4": 4, "AC4": 3}[entry["layout"]]
        values = np.arange(7, 7 + count).astype(a.dtype)
        own = {"top_border_height": 3, "left_border_width": 2} | (
            {"value": values.tolist() if count > 1 else 7} if constant else {})
        out = pixels((12, 15, *a.shape[2:]), a.dtype, 4)
        check(operation, entry, [a], dict(own, shape=(12, 15)),
              {"pSrc": a, "srcStep": a.strides[0], "srcRoiSize": (9, 7), "dstRoiSize": (15, 12), "topBorderHeight": 3,
               "leftBorderWidth": 2, "value": 7, "pValue": values}, out)
    assert np.array_equal(hux.copy_replicate_border(pixels((4, 5), np.float32, 1), 1, 2)[1:-1, 2:-2],
                          pixels((4, 5), np.float32, 1))


@pytest.mark.parametrize("operation", cases("levels"), ids=lambda o: o.__name__)
def test_tables(operation):
    for name in operation.members:
        entry = c._functions[name]
        p = next(p for p in entry["parameters"] if p["role"] in ("source", "source_destination"))
        channels = CHANNELS[p["layout"]]
        a = pixels((6, 7, channels)[:3 if channels > 1 else 2], DTYPES[p["element"]], 1)
        count = 1 if entry["layout"] == "C1" else 4 if entry["layout"] == "C4" else 3
        dtype = np.float32 if a.dtype == np.float32 else np.int32
        levels = [np.array([0, 1 + k, 30, 64 + k, 128], dtype) for k in range(count)]
        table = [np.array([9, 5, 1, 100, 50], dtype) + k for k in range(count)]
        counts, made = ([np.zeros(k, np.int32) for _ in range(count)] for k in (4, 5))
        n = np.full(count, 5, np.int32)
        even = "Even" in name
        values = {"roiSize": (7, 6), "pLevels": made if even else levels, "pHist": counts, "pValues": table}
        values = {k: v[0] if count == 1 and k != "roiSize" else v for k, v in values.items()}
        values |= {"nLevels": 5 if count == 1 else n, "lowerLevel": 3 if count == 1 else np.full(count, 3, np.int32),
                   "upperLevel": 120 if count == 1 else np.full(count, 120, np.int32)}
        expected, options = a.copy(), {"alpha": "keep"} if entry["layout"] == "AC4" else {}
        if "LUT" in name and not entry["flags"]["in_place"]:
            check(operation, entry, [a], {"values": table, "levels": levels} if count > 1 else
                  {"values": table[0], "levels": levels[0]}, values | {"pSrc": a, "srcStep": a.strides[0]}, a + 1)
            continue
        run_c(entry, values | dict.fromkeys(("pSrc", "pSrcDst"), expected) | dict.fromkeys(
            ("srcStep", "srcDstStep"), a.strides[0]))
        if "LUT" in name:
            assert operation.which(a, table, levels, out=a, **options) == name
            assert operation(a, table if count > 1 else table[0], levels if count > 1 else levels[0], out=a,
                             **options) is a
            assert a.tobytes() == expected.tobytes()
        elif even:
            got, bounds = operation(a, 5, 3, 120, **options)
            assert np.array_equal(got, np.squeeze(counts)) and np.array_equal(bounds, np.squeeze(made))
        else:
            assert np.array_equal(operation(a, levels if count > 1 else levels[0], **options), np.squeeze(counts))
    a = pixels((30, 40), np.uint8, 1)
    assert np.array_equal(hux.histogram(a, range(257)), np.bincount(a.ravel(), minlength=256))
    assert np.array_equal(hux.histogram(a, bins=16, range=(0, 256)), np.histogram(a, 16, (0, 256))[0])
    with pytest.raises(ValueError, match="levels lie in"):
        hux.lut(a, [1, 2], [0, 300])


def test_palettes():
    for name in hux.lut_palette.members:
        entry = c._functions[name]
        a = pixels((6, 7), DTYPES[entry["types"][0]], 1)
        wide = entry["types"][1] == "24u"
        table = pixels((128, 3) if wide else 128, np.uint8 if wide else DTYPES[entry["types"][1]], 2)
        out = np.zeros((6, 7, 3) if wide else (6, 7), table.dtype)
        values = {"pSrc": a, "srcStep": a.strides[0], "roiSize": (7, 6), "pTable": table, "nBitSize": 7, "pDst": out,
                  "dstStep": out.strides[0]}
        run_c(entry, values)
        assert hux.lut_palette.which(a, table) == name and np.array_equal(hux.lut_palette(a, table), out)


@pytest.mark.parametrize("operation", cases("blocks"), ids=lambda o: o.__name__)
def test_blocks(operation):
    for name in operation.members:
        entry = c._functions[name]
        names = [p["name"] for p in entry["parameters"]]
        source, result = (DTYPES[entry["types"][k]] for k in (0, -1))
        wide = pixels((8, 24), source, 1)
        a = wide[:, 8:16] if "srcStep" in names else wide[:, :8].copy()
        other = np.zeros((8, 24), result)
        out = a if entry["flags"]["in_place"] else other[:, 8:16] if "dstStep" in names else np.zeros((8, 8), result)
        expected = out.copy()
        values = {"pSrc": a, "srcStep": a.strides[0], "pDst": expected, "pSrcDst": expected,
                  "dstStep": expected.strides[0], "addVal": 5, "clipMin": 10, "clipMax": 200}
        run_c(entry, values)
        own = {k: v for k, v in (("add_val", 5), ("clip_min", 10), ("clip_max", 200))
               if {"add_val": "addVal", "clip_min": "clipMin", "clip_max": "clipMax"}[k] in names}
        assert operation.which(a, **own, out=out) == name
        assert operation(a, **own, out=out) is out and np.array_equal(out, expected)


@pytest.mark.parametrize("operation", cases("convolution") + cases("match"), ids=lambda o: o.__name__)
def test_convolution_and_matching(operation):
    for name in operation.members:
        entry = c._functions[name]
        a = source_of(entry)
        b = source_of(entry, 2, (4, 5))
        more = 1 if "Full" in name else 0 if "Same" in name else -1
        shape = 13 + more * 3, 17 + more * 4
        own = {"divisor": 50} if "divisor" in [p["name"] for p in entry["parameters"]] else {}
        own |= {"shift": -7} if entry["flags"]["scaled"] else {}
        if entry["flags"]["scaled"]:
            own["dtype"] = np.uint8
        values = {"divisor": 50, "scaleFactor": -7}
        for p, image in (("pSrc1", a), ("pSrc2", b), ("pSrc", a), ("pTpl", b)):
            stem = {"pSrc": "src", "pTpl": "tpl"}.get(p, p[1:].lower())
            size = {"pSrc": "srcRoiSize", "pTpl": "tplRoiSize"}.get(p, f"{stem}Size")
            values |= {p: image, f"{stem}Step": image.strides[0], size: image.shape[1::-1]}
        check(operation, entry, [a, b], own, values, pixels((*shape, *a.shape[2:]), DTYPES[entry["types"][-1]], 3))
    a, b = pixels((13, 17), np.float32, 1), pixels((4, 5), np.float32, 2)
    assert np.array_equal(hux.match(a, b, method="ncc_level", extent="same"),
                          hux.cross_corr_same_norm_level(a, b))
    assert np.array_equal(hux.convolve(a, b, extent="valid"), hux.conv_valid(a, b))
    assert hux.match(pixels((9, 9), np.uint8, 1), pixels((3, 3), np.uint8, 1), method="sqdiff").dtype == np.float32


def test_norm_and_bits():
    a, b = (pixels((9, 12), np.uint8, k) for k in (1, 2))
    assert hux.norm(a) == hux.norm_l2(a) and hux.norm(a, b, ord=1, relative=True) == hux.norm_rel_l1(a, b)
    assert hux.norm(a, b, ord="inf") == hux.norm_diff_inf(a, b)
    packed = hux.pack_bits(a, 60, 3)
    assert packed.shape == (9, 2)
    bits = np.unpackbits(packed, axis=1)[:, 3:15]
    assert np.array_equal(hux.unpack_bits(packed, 12, 3), bits * 255) and 0.2 < bits.mean() < 0.8
    assert np.array_equal(hux.unpack_bits(hux.pack_bits(bits == 1), 12), bits * 255)
    with pytest.raises(hux.BadSizeError):
        hux.unpack_bits(packed, 14, 3)


SHAPES = [(16, 32), (12, 15), (1, 8), (7, 1), (16,), (15,), (1,), (2,)]


@pytest.mark.parametrize("kind", [hux.FFT, hux.DFT])
@pytest.mark.parametrize("shape", SHAPES)
def test_fourier_transforms(kind, shape):
    for norm, factor in (("backward", 1), ("forward", np.prod(shape)), ("ortho", np.prod(shape) ** 0.5), ("none", 1)):
        plan, whole = kind(shape, norm=norm), kind(shape, norm=norm, kind="complex")
        for channels in ((), (1,), (3,), (4,)) if len(shape) == 2 else ((),):
            a = pixels((*shape, *channels), np.float32, 1)
            s = plan.forward(a)
            full = np.fft.fft2(a, axes=(0, 1)) if len(shape) == 2 else np.fft.fft(a)
            if channels != (1,):
                assert np.allclose(plan.unpack(s), full / factor, atol=1e-3)
                assert np.allclose(plan.pack(plan.unpack(s)), s)
            back = np.prod(shape) if norm == "none" else 1
            assert np.allclose(plan.inverse(s), a * back, rtol=1e-3, atol=1e-3 * back)
            again = a.copy()
            assert plan.inverse(plan.forward(again, out=again), out=again) is again
            assert np.allclose(again, a * back, rtol=1e-3, atol=1e-3 * back)
            if channels == (4,):
                kept = plan.inverse(plan.forward(a, alpha="keep"), alpha="keep")
                assert np.array_equal(kept[..., 3], a[..., 3]) and np.allclose(kept[..., :3], a[..., :3] * back, atol=1e-3 * back)
                again = a.copy()
                plan.inverse(plan.forward(again, out=again, alpha="keep"), out=again, alpha="keep")
                assert np.array_equal(again, kept)
            if len(shape) == 2 and channels != (1,):
                for alpha in (None, "keep") if channels == (4,) else (None,):
                    b = pixels((*shape, *channels), np.uint8, 1)
                    spectrum = plan.forward(b, alpha=alpha)
                    assert spectrum.dtype == np.int32
                    assert plan.inverse(spectrum, alpha=alpha).shape == b.shape
        z = pixels(shape, np.complex64, 2)
        assert np.allclose(whole.forward(z), (np.fft.fft2(z) if len(shape) == 2 else np.fft.fft(z)) / factor, atol=1e-3)
        assert np.allclose(whole.inverse(whole.forward(z)), z * back, atol=1e-3 * back)
        again = z.copy()
        whole.inverse(whole.forward(again, out=again), out=again)
        assert np.allclose(again, z * back, atol=1e-3 * back)
    if len(shape) == 1 and kind is hux.FFT and shape[0] == 16:
        plan, a = hux.FFT(shape, packing="perm"), pixels(shape, np.float32, 1)
        assert np.allclose(plan.unpack(plan.forward(a)), np.fft.fft(a), atol=1e-4)
        assert np.allclose(plan.inverse(plan.pack(np.fft.fft(a))), a, atol=1e-4)
    with pytest.raises(ValueError, match="plan is for"):
        plan.forward(np.zeros((3, 3), np.float32))


def test_other_plans():
    for shape in ((6, 9), (8, 8), (12,)):
        plan = hux.DCT(shape)
        for channels in ((), (3,), (4,)) if len(shape) == 2 else ((),):
            a = pixels((*shape, *channels), np.float32, 1)
            for alpha in (None, "keep") if channels == (4,) else (None,):
                s = plan.forward(a, alpha=alpha)
                assert np.allclose(plan.inverse(s, alpha=alpha), a, atol=1e-4)
    root = 0.5 ** 0.5
    wt = hux.WT(([root, root], 0, [root, -root], 0), ([root, root], 0, [-root, root], 0))
    for channels in ((), (3,)):
        a = pixels((8, 10, *channels), np.float32, 1)
        bands = wt.forward(a)
        assert [b.shape for b in bands] == [(4, 5, *channels)] * 4
        assert wt.inverse(bands).shape == a.shape
        energy = sum(float((b.astype(float) ** 2).sum()) for b in bands)
        assert np.isclose(energy, float((a.astype(float) ** 2).sum()), rtol=1e-4)
    kernel = np.full((3, 3), 1 / 9, np.float32)
    for taps, channels in ((kernel, ()), (np.repeat(kernel[..., None], 3, 2), (3,))):
        a = np.abs(pixels((20, 24, *channels), np.float32, 1)) + 1
        fft, lr = hux.DeconvFFT(taps, (20, 24), threshold=1e-3), hux.DeconvLR(taps, (20, 24))
        assert fft(a).shape == a.shape and np.array_equal(fft(a), fft(a))
        assert lr(a, 3).shape == a.shape and np.array_equal(lr(a[:10, :9], 2, out=a[:10, :9].copy()), lr(a[:10, :9], 2))
        results, own = [], pickle.loads(pickle.dumps(lr))
        workers = [threading.Thread(target=lambda: results.append(own(a, 2))) for _ in range(4)]
        [w.start() for w in workers], [w.join() for w in workers]
        assert all(np.array_equal(r, lr(a, 2)) for r in results) and len(results) == 4
    for plan in (hux.FFT((8, 8), norm="ortho"), hux.DCT((3, 4)), wt):
        again = pickle.loads(pickle.dumps(plan))
        a = pixels((8, 8) if plan is not None and isinstance(plan, hux.FFT) else (3, 4) if isinstance(plan, hux.DCT)
                   else (4, 4), np.float32, 1)
        assert np.array_equal(np.array(again.forward(a)), np.array(plan.forward(a)))
    with pytest.raises(AttributeError):
        plan.shape = (1, 2)


def test_moments():
    y, x = np.mgrid[:9, :12]
    for channels in ((), (3,), (4,)):
        for dtype in (np.uint8, np.float32):
            a = pixels((9, 12, *channels), dtype, 1)
            for kind in ("float", "int") if dtype == np.uint8 else ("float",):
                m = hux.moments(a, kind=kind, alpha="keep" if channels == (4,) else None)
                p = a[..., :3] if channels == (4,) else a
                wanted = (p.astype(float) * ((x + 2) * (y - 1) ** 2)[(...,) + (None,) * len(channels)]).sum((0, 1))
                assert np.allclose(m.spatial(1, 2, (2, -1)), wanted, rtol=1e-6)
                assert np.all(np.asarray(m.central(1, 0)) < 1e3)
                assert np.shape(m.normalized_central(2, 0)) == channels[:0] + ((3,) if channels else ())
                assert np.shape(m.normalized_spatial(0, 1)) == np.shape(m.central(0, 2))
                assert np.shape(m.hu) == ((3, 7) if channels else (7,))
    assert isinstance(hux.moments(pixels((4, 4), np.uint8, 1), kind="int").spatial(0, 0), int)
    with pytest.raises(hux.BadSizeError):
        m.spatial(3, 3)


def test_threads_and_version():
    before = hux.get_num_threads()
    with hux.threads(3):
        assert hux.get_num_threads() == 3
    assert hux.get_num_threads() == before
    assert hux.library_version and hux.library_path.rpartition("/")[2].startswith("libhux") and hux.__version__
    with pytest.raises(AttributeError):
        hux.nothing
