"""The operations that Python runs: maps, borders, tables, blocks. Each measures and lays out arrays, and calls one function
of the library by _hux.call. What exists stands in _table, made from the registry."""
from typing import Any

import numpy as np

from . import _hux
from ._table import INTERPOLATIONS, MEMBERS, RULES

complex_int16 = np.dtype([("re", np.int16), ("im", np.int16)])
complex_int32 = np.dtype([("re", np.int32), ("im", np.int32)])
_KINDS: tuple[tuple[str, Any], ...] = (
    ("8u", np.uint8), ("8s", np.int8), ("16u", np.uint16), ("16s", np.int16), ("32u", np.uint32), ("32s", np.int32),
    ("64s", np.int64), ("32f", np.float32), ("64f", np.float64), ("16sc", complex_int16), ("32sc", complex_int32),
    ("32fc", np.complex64), ("64fc", np.complex128))
DTYPES: dict[str, np.dtype] = {code: np.dtype(kind) for code, kind in _KINDS}
CODES = {dtype: code for code, dtype in DTYPES.items()}
PROCESSED = {"C1": 1, "C2": 2, "C3": 3, "C4": 4, "AC4": 3, "P3": 3, "P4": 4}
BORDERS = {"constant": 0, "replicate": 1, "edge": 1, "nearest": 1, "symmetric": 2, "reflect101": 3, "wrap": 4}
errors: dict[str, type] = {}  # by their names without Error
implementations: dict[str, Any] = {}  # the operations that Python runs; _asked= has them answer a question instead


def refuse(name, text, error=ValueError):
    raise error(f"{name}: {text}")


def fail(name, error, text):
    """In the way of the library, of what it would refuse if it were asked."""
    report = errors[error](f"{name}: {text}")
    report.operation = name
    raise report


def reach(operation, *arguments, **options):
    """How far around a pixel a call with these arguments reads its source for a pixel of the result: (left, top, right,
    bottom), whatever the border; None where the result comes of other places than those around it."""
    rule = RULES[operation.__name__]
    if rule["kind"] == "window":
        return operation.reach(*arguments, **options)
    return (0, 0, 0, 0) if rule.get("local") else None


class Member:
    """A function: its place among all, types, layout, parameters with their letters."""
    __slots__ = ("index", "name", "types", "layout", "parameters", "letters", "in_place")

    def __init__(self, index, name, types, layout, parameters, letters, in_place):
        self.index, self.name, self.layout, self.letters, self.in_place = index, name, layout, letters, in_place
        self.types, self.parameters = types.split(), parameters.split()

    def call(self, operation, elements, values):
        _hux.call(self.index, operation, elements, tuple([values[name] for name in self.parameters]))


class _Members(dict):
    def __missing__(self, name):
        own = self[name] = [Member(*entry) for entry in MEMBERS[name]]
        return own


members = _Members()


def array(name, a, written=False):
    if not isinstance(a, np.ndarray):
        try:
            a = np.asarray(memoryview(a))
        except TypeError:
            refuse(name, f"an array is expected, not {a!r}", TypeError)
    if written and not a.flags.writeable:
        refuse(name, f"{a!r} is read-only")
    return a


class Image:
    """A source: rows upwards, pixels one after another."""

    def __init__(self, name, a, *, channels=(1, 3, 4), moved=False):
        self.given = a = array(name, a)
        self.axes = a.ndim
        if a.ndim == 1:
            a = a[None]
        if not 2 <= a.ndim <= 3:
            refuse(name, f"an image has the shape (H, W) or (H, W, C), a vector (N,); not {a.ndim} axes", TypeError)
        self.dtype = a.dtype
        if moved:  # any dtype of the width
            code = {1: "8u", 2: "16s", 4: "32s"}.get(a.dtype.itemsize) if a.dtype.isnative else None
            if code and a.dtype != DTYPES[code]:
                a = np.array(a, order="C").view(DTYPES[code]) if not a.dtype.hasobject else a
        self.code = CODES.get(a.dtype)
        if self.code is None:
            refuse(name, f"no function takes elements of {a.dtype}", TypeError)
        self.channels = a.shape[2] if a.ndim == 3 else 1
        if self.channels not in channels:
            refuse(name, f"the last axis has {', '.join(map(str, channels))} channels, not {self.channels}", TypeError)
        if max(a.shape[:2]) >= 2**31 or a.shape[1] * self.channels * a.itemsize >= 2**31:
            refuse(name, "sides and rows of an array end at 2^31 - 1")
        if not a.size:
            fail(name, "BadSize", "an empty array")
        self.a = a if _plain(a) else np.array(a, order="C")
        self.height, self.width = a.shape[:2]
        self.layout = f"C{self.channels}"

    @property
    def step(self):
        return step_of(self.a)

    def apart(self, out):
        """A copy stands for the image where it shares bytes with out."""
        if np.may_share_memory(self.a, out):
            self.a = np.array(self.a, order="C")


def step_of(a):
    """Of a plain array. One row may have any stride."""
    return a.strides[0] if a.shape[0] > 1 else max(a[0].nbytes, 1)


def _plain(a):
    """Whether pixels lie one after another, and rows upwards and apart."""
    size = a.itemsize
    if a.ndim == 3:
        if a.strides[2] != size and a.shape[2] > 1:
            return False
        size *= a.shape[2]
    return (a.shape[1] <= 1 or a.strides[1] == size) and (
        a.shape[0] <= 1 or size * a.shape[1] <= a.strides[0] < 2**31 and a.strides[0] % a.itemsize == 0)


def choose(name, image, alpha):
    """The members for an image: by type and layout."""
    if alpha not in (None, "keep"):
        refuse(name, f'alpha is "keep" or None, not {alpha!r}')
    if alpha and image.channels != 4:
        refuse(name, 'alpha="keep" is for four channels', TypeError)
    layout = "AC4" if alpha else image.layout
    found = [m for m in members[name] if m.types[0] == image.code and m.layout == layout]
    if not found:
        kept = '4 channels and alpha="keep"'
        there = dict.fromkeys(
            f"{CODE_NAMES.get(m.types[0], m.types[0])}"
            f"{' to ' + CODE_NAMES.get(m.types[-1], m.types[-1]) if m.types[-1] != m.types[0] else ''} with "
            f"{m.layout[1:] if m.layout[0] == 'C' else kept}" for m in members[name])
        refuse(name, f"no function for {image.dtype} with {image.channels} channel{'s' * (image.channels > 1)}"
               f"{' and alpha=' + repr(alpha) if alpha else ''}; there are: {'; '.join(there)}", TypeError)
    return found


CODE_NAMES = {code: str(dtype) if dtype.names is None else f"complex_int{dtype.itemsize * 4}"
              for code, dtype in DTYPES.items()} | {"24u": "uint8 with 3"}


class Out:
    """The destination: out itself where its rows and pixels lie plainly, else an array that is copied there in the end."""

    def __init__(self, name, out, image, shape, dtype, channels, *, keep=None, zero=False):
        height, width = shape
        axes = (height, width, channels) if channels > 1 or image.axes == 3 and image.channels == channels == 1 else shape
        if image.axes == 1 and height == channels == 1 and (out is None or getattr(out, "ndim", 2) == 1):
            axes = (width,)
        self.target = None
        if out is None:
            zero = zero or keep is not None
            self.result = np.zeros(axes, dtype) if zero else np.empty(axes, dtype)
            self.a = self.result[None] if len(axes) == 1 else self.result
            assert self.a.size == height * width * channels
            if keep is not None and keep.dtype == self.a.dtype and keep.shape == self.a.shape:
                self.a[..., 3] = keep[..., 3]
            return
        self.result = out
        a = array(name, out, True)
        self.check(name, a, axes, dtype)
        if len(axes) == 1:
            a = a[None]
        if not _plain(a):
            size, count = a.itemsize, a.shape[2] if a.ndim == 3 else 1
            across = abs(a.strides[1]) if a.shape[1] > 1 else size * count
            packed = count == 1 or a.strides[2] == size
            row = across * (a.shape[1] - 1) + size * count
            if not packed or across not in ((3 * size, 4 * size, size) if count == 1 else (4 * size, count * size)) or \
                    a.shape[1] > 1 and a.strides[1] < 0 or a.shape[0] > 1 and abs(a.strides[0]) < row:
                refuse(name, "out must have its pixels one after another, and rows that do not overlap")
            self.target, a = a, np.array(a, order="C")
        assert a.size == height * width * channels
        self.a = a

    @staticmethod
    def check(name, a, axes, dtype):
        if a.dtype != dtype:
            refuse(name, f"out must have the dtype {dtype}", TypeError)
        if a.shape != tuple(axes):
            refuse(name, f"out must have the shape {tuple(axes)}, not {a.shape}")

    @property
    def step(self):
        return step_of(self.a)

    def done(self):
        if self.target is not None:
            np.copyto(self.target, self.a)
        return self.result


def pair(name, what, value):
    try:
        x, y = (int(v.__index__()) for v in value)
    except (TypeError, ValueError, AttributeError):
        refuse(name, f"{what} is a pair of integers (x, y), not {value!r}", TypeError)
    if not (-2**31 <= x < 2**31 and -2**31 <= y < 2**31):
        refuse(name, f"{what} is beyond 32 bits")
    return x, y


def rectangle(name, what, value):
    try:
        x, y, w, h = (int(v.__index__()) for v in value)
    except (TypeError, ValueError, AttributeError):
        refuse(name, f"{what} is (x, y, width, height), not {value!r}", TypeError)
    if not all(-2**31 <= v < 2**31 for v in (x, y, w, h)):
        refuse(name, f"{what} is beyond 32 bits")
    return x, y, w, h


def rows_columns(name, shape):
    try:
        sides = tuple(int(v.__index__()) for v in shape)
    except (TypeError, AttributeError):
        sides = ()
    if len(sides) not in (2, 3) or any(not 0 < v < 2**31 for v in sides):
        refuse(name, f"shape is (H, W), not {shape!r}")
    return sides[:2]


def constants(name, value, dtype, count):
    """One number for all channels or one for each, as elements."""
    kinds = np.asarray(value)
    if kinds.dtype.kind not in "iufcb" or kinds.ndim > 1 or kinds.ndim == 1 and len(kinds) != count:
        refuse(name, f"a constant has one number, or here {count}; not {value!r}", TypeError)
    if dtype.kind in "iu":
        if kinds.dtype.kind not in "iub":
            refuse(name, f"the constant {value!r} is no {dtype}", TypeError)
        limits = np.iinfo(dtype)
        if kinds.min() < limits.min or kinds.max() > limits.max:
            refuse(name, f"the constant {value!r} is no {dtype}")
    return np.ascontiguousarray(np.broadcast_to(kinds.astype(dtype), (count,)))


def integers(name, what, value, low=-2**31, high=2**31 - 1):
    a = np.asarray(value)
    if a.dtype.kind not in "iub":
        refuse(name, f"{what} must be integers", TypeError)
    if a.size and (a.min() < low or a.max() > high):
        refuse(name, f"{what} must lie in {low}..{high}")
    return np.array(a, np.int32, order="C")


def floats(name, what, value, shape, dtype=np.float64):
    try:
        given = np.asarray(value)
        a = np.ascontiguousarray(given, dtype) if given.dtype.kind in "iufb" else None
    except (TypeError, ValueError):
        a = None
    if a is None or a.shape != shape:
        refuse(name, f"{what} has the shape {shape}")
    return a


def mode_of(name, border):
    if border in ("reflect", "mirror"):
        refuse(name, f'border="{border}" may mean symmetric (cba|abcd|dcb) or reflect101 (dcb|abcd|cba): say which')
    if not isinstance(border, str) or border not in BORDERS:
        refuse(name, f"border is one of {', '.join(map(repr, BORDERS))}, or None, not {border!r}")
    return BORDERS[border]


def framed(name, a, reach, border, value=0):
    """The array with a border around it, and the part of it that the array was."""
    left, top, right, bottom = reach
    mode = mode_of(name, border)
    shape = (a.shape[0] + top + bottom, a.shape[1] + left + right, *a.shape[2:])
    whole = np.empty(shape, a.dtype)
    channels = a.shape[2] if a.ndim == 3 else 1
    if mode == 0 and a.dtype.names is None:
        pixel = constants(name, value, a.dtype, channels).tobytes()
    else:
        pixel = bytes(a.itemsize * channels)
    _hux.frame(a, whole, left, top, mode, pixel)
    return whole, whole[top:, left:]


# ---- Geometry --------------------------------------------------------------------------------------------------------

MATRICES = {"affine": (2, 3), "bilinear": (2, 4), "perspective": (3, 3)}


def interpolation(name, word, smooth=False):
    if not isinstance(word, str) or word not in INTERPOLATIONS:
        refuse(name, f"inter is one of {', '.join(map(repr, INTERPOLATIONS))}, not {word!r}",
               ValueError if isinstance(word, str) else TypeError)
    value = INTERPOLATIONS[word]
    return value - 2**31 if smooth else value


def map_(name, asked, sources, own, options):
    """Quadrangles, matrices and shifts."""
    member = members[name][0]
    if asked:
        return member.name
    v, results = {}, []
    for key, value in own.items():
        c_name = "".join(part.title() if i else part for i, part in enumerate(key.split("_")))
        if key == "src_roi":
            v["srcRoi"] = rectangle(name, key, value)
        elif key == "src_size":
            v["srcSize"] = pair(name, key, value)
        elif key == "coeffs":
            v["coeffs"] = floats(name, key, value, MATRICES[name.split("_")[1]])
        elif key == "quad":
            v["quad"] = floats(name, key, value, (4, 2))
        elif key == "inter":
            v["interpolation"] = interpolation(name, value)
        elif "p" + c_name in member.parameters:
            v["p" + c_name] = np.array([value], np.float64)
        else:
            v[c_name] = float(value)
    for parameter in member.parameters:
        if parameter not in v:
            shape = {"quad": (4, 2), "bound": (2, 2)}.get(parameter)
            v[parameter] = np.zeros(shape or (MATRICES[name.split("_")[1]] if parameter == "coeffs" else 1))
            results.append(v[parameter])
    if name == "add_rotate_shift":
        results = [v["pxShift"], v["pyShift"]]
    member.call(name, 0, v)
    return results[0] if len(results) == 1 else tuple(float(r[0]) for r in results)


# ---- Borders, tables, blocks -----------------------------------------------------------------------------------------


def border(name, asked, sources, own, options):
    image = Image(name, sources[0], moved=True)
    top, left = (pair(name, "the border", (own["top_border_height"], own["left_border_width"])))
    shape, given = options.get("shape"), options.get("out")
    out = None
    if shape is not None:
        shape = rows_columns(name, shape)
    elif given is not None:
        shape = array(name, given).shape[:2]
        if len(shape) < 2:
            refuse(name, "out is an image (H, W) or (H, W, C)")
    else:
        shape = image.height + 2 * top, image.width + 2 * left
    # In place, the source is the part of out that the border is around.
    whole = given if isinstance(given, np.ndarray) and given.ndim == image.given.ndim > 1 else None
    if given is not None and array(name, given).shape[:2] != tuple(shape):
        refuse(name, "shape= and out= differ")
    inside = whole is not None and min(top, left) >= 0 and top + image.height <= whole.shape[0] and \
        left + image.width <= whole.shape[1] and image.a is image.given and whole.strides == image.given.strides and \
        _address(whole[top:, left:]) == _address(image.a) and _plain(whole) and whole.flags.writeable
    inside = inside and whole.shape[2:] == image.given.shape[2:] and whole.dtype == image.given.dtype
    found = choose(name, image, options.get("alpha"))
    member = next((m for m in found if m.in_place == inside), next(m for m in found if not m.in_place))
    if asked:
        return member.name
    if min(top, left) < 0 or top + image.height > shape[0] or left + image.width > shape[1]:
        fail(name, "BadSize", "the destination does not hold the image and its border")
    v = {"srcRoiSize": (image.width, image.height), "dstRoiSize": shape[::-1], "topBorderHeight": top,
         "leftBorderWidth": left}
    if "value" in own:
        values = constants(name, own["value"], image.dtype, PROCESSED[member.layout]).view(DTYPES[image.code])
        v["value"], v["pValue"] = values[0], values
    if member.in_place:
        v.update(pSrc=image.a, srcDstStep=step_of(whole))
        member.call(name, whole.size, v)
        return given
    out = Out(name, given, image, tuple(shape), image.dtype, image.channels, zero=member.layout == "AC4")
    image.apart(out.a)
    v.update(pSrc=image.a, srcStep=image.step, pDst=out.a, dstStep=out.step)
    member.call(name, out.a.size, v)
    return out.done()


def _address(a):
    return a.__array_interface__["data"][0]


def _lists(name, what, value, channels, make):
    """One sequence for all channels, or one for each."""
    several = isinstance(value, (list, tuple)) and len(value) == channels and np.ndim(value[0]) == 1
    if isinstance(value, np.ndarray) and value.ndim == 2 and len(value) == channels:
        several = True
    lists = [make(one) for one in value] if several else [make(value)] * channels
    if any(one.ndim != 1 or len(one) >= 2**31 for one in lists):
        refuse(name, f"{what}: one sequence of numbers, or one for each of {channels} channels")
    return lists


def levels(name, asked, sources, own, options):
    image = Image(name, sources[0])
    found = choose(name, image, options.get("alpha"))
    given = options.get("out")
    same = isinstance(given, np.ndarray) and _same(given, image.given) and _shares(image.a, given)
    member = next((m for m in found if m.in_place == same), found[0])
    if asked:
        return member.name
    count = PROCESSED[member.layout]
    if image.code == "32f":
        def numbers(what):
            return lambda value: floats(name, what, value, np.shape(value), np.float32)
    else:
        def numbers(what):
            return lambda value: integers(name, what, value)
    v = {"pSrc": image.a, "srcStep": image.step, "roiSize": (image.width, image.height)}
    one = count == 1

    def put(c_name, lists):
        v[c_name] = lists[0] if one else tuple(lists)

    if name == "histogram_even":
        n = integers(name, "n_levels", own["n_levels"])
        if n.ndim > 1 or n.ndim == 1 and len(n) != count:
            refuse(name, f"n_levels has one number, or here {count}")
        n = np.ascontiguousarray(np.broadcast_to(n, (count,)))
        if n.min() < 2 or n.max() > 2**28:
            fail(name, "BadHistLevels", f"n_levels {own['n_levels']!r}")
        tables = [np.zeros(k, np.int32) for k in n]
        for key, c_name in (("lower_level", "lowerLevel"), ("upper_level", "upperLevel")):
            bound = constants(name, own[key], np.dtype(np.int32), count)
            v[c_name] = bound[0] if one else bound
    else:
        tables = _lists(name, "levels", own["levels"], count, numbers("levels"))
        n = np.array([len(t) for t in tables], np.int32)
        if n.min() < 2:
            fail(name, "BadLutLevels" if "values" in own else "BadHistLevels", "two levels at least")
    put("pLevels", tables)
    v["nLevels"] = int(n[0]) if one else n
    if "values" in own:
        values = _lists(name, "values", own["values"], count, numbers("values"))
        for table, value in zip(tables, values):
            if len(table) != len(value):
                refuse(name, "there is one value to a level")
            limits = np.iinfo(image.dtype) if image.dtype.kind in "iu" else None
            if limits and (table[0] < limits.min or table[-1] > limits.max + 1):
                refuse(name, f"levels lie in {limits.min}..{limits.max + 1}")
        put("pValues", values)
        if member.in_place:
            v.update(pSrcDst=image.a, srcDstStep=image.step)
            member.call(name, image.a.size, v)
            return given
        out = Out(name, given, image, (image.height, image.width), image.dtype, image.channels,
                  keep=image.a if member.layout == "AC4" else None)
        image.apart(out.a)
        v.update(pSrc=image.a, srcStep=image.step, pDst=out.a, dstStep=out.step)
        member.call(name, image.a.size, v)
        return out.done()
    counts = [np.zeros(k - 1, np.int32) for k in n]
    put("pHist", counts)
    member.call(name, image.a.size, v)
    results = counts[0] if one else np.array(counts) if len(set(n.tolist())) == 1 else counts
    if name != "histogram_even":
        return results
    return results, tables[0] if one else np.array(tables) if len(set(n.tolist())) == 1 else tables


def _same(a, b):
    return a is b or (a.shape == b.shape and a.strides == b.strides and a.dtype == b.dtype and _address(a) == _address(b))


def _shares(a, given):
    """Whether a function writes to given when it writes to a."""
    return _address(a) == _address(given) and given.flags.writeable


def palette(name, asked, sources, own, options):
    image = Image(name, sources[0], channels=(1,))
    table = np.asarray(own["table"])
    wide = table.ndim == 2 and table.shape[1] == 3 and table.dtype == np.uint8
    code = "24u" if wide else CODES.get(table.dtype) if table.ndim == 1 else None
    member = next((m for m in members[name] if m.types == [image.code, code]), None)
    if member is None:
        refuse(name, "a table of bytes (of uint16 images), of uint32, or of (N, 3) bytes is expected, and an image of "
               "uint8 or uint16", TypeError)
    if asked:
        return member.name
    bits = own["n_bit_size"]
    if bits is None:
        bits = len(table).bit_length() - 1
    bits = int(bits)
    if bits < 1 or bits > image.dtype.itemsize * 8:
        fail(name, "BadBitSize", f"n_bit_size {bits}")
    if len(table) < 1 << bits:
        refuse(name, f"a table of {1 << bits} entries is expected")
    out = Out(name, options.get("out"), image, (image.height, image.width), table.dtype, 3 if wide else 1)
    image.apart(out.a)
    member.call(name, image.a.size, {
        "pSrc": image.a, "srcStep": image.step, "pDst": out.a, "dstStep": out.step,
        "roiSize": (image.width, image.height), "pTable": np.ascontiguousarray(table), "nBitSize": bits})
    return out.done()


def blocks(name, asked, sources, own, options):
    """Blocks of 64 samples, (8, 8) or (64,); rows at a distance are parts of images."""
    a = array(name, sources[0])
    if a.shape not in ((8, 8), (64,)):
        refuse(name, f"a block is (8, 8) or (64,), not {a.shape}")
    given, dtype = options.get("out"), options.get("dtype")
    out = array(name, given, True) if given is not None else None
    if out is not None and out.shape not in ((8, 8), (64,)):
        refuse(name, f"a block is (8, 8) or (64,), not {out.shape}")
    code = CODES.get(a.dtype)
    wanted = CODES.get(out.dtype if out is not None else np.dtype(dtype) if dtype is not None else a.dtype)
    apart = a.ndim == 2 and not a.flags.c_contiguous and _plain(a)
    apart_out = out is not None and out.ndim == 2 and not out.flags.c_contiguous and _plain(out)
    here = [m for m in members[name] if m.types[0] == code]
    if out is None and dtype is None:
        here = [m for m in here if m.types[-1] == code] or here
    else:
        here = [m for m in here if m.types[-1] == wanted]
    same = out is not None and _same(a, out) and a.flags.c_contiguous

    def rank(m):  # the form for how the arrays lie; others take copies
        return (m.in_place != same, ("srcStep" in m.parameters) != apart, ("dstStep" in m.parameters) != apart_out)

    if not here:
        there = dict.fromkeys(" to ".join(CODE_NAMES[t] for t in dict.fromkeys(m.types)) for m in members[name])
        refuse(name, f"no function for {a.dtype}; there are: {'; '.join(there)}", TypeError)
    member = min(here, key=rank)
    if asked:
        return member.name
    v = {"".join(p.title() if i else p for i, p in enumerate(key.split("_"))): int(integers(name, key, value))
         for key, value in own.items()}
    if member.in_place and not same:
        refuse(name, f"{member.name} works in place only")
    for key in ("clipMin", "clipMax"):
        if key in v and not 0 <= v[key] <= 255:
            refuse(name, f"the constant {v[key]} is no uint8")
    if "addVal" in v and not -2**15 <= v["addVal"] < 2**15:
        refuse(name, f"the constant {v['addVal']} is no int16")
    if same and member.in_place:
        v["pSrcDst"] = a
        member.call(name, 64, v)
        return given
    if not ("srcStep" in member.parameters and _plain(a.reshape(8, 8) if a.ndim == 1 else a)):
        a = np.array(a, order="C")
    a = a.reshape(8, 8) if a.ndim == 1 else a
    result_type = DTYPES[member.types[-1]]
    direct = out is not None and (out.flags.c_contiguous or "dstStep" in member.parameters and apart_out) and \
        not np.may_share_memory(a, out)
    if out is not None and out.dtype != result_type:
        refuse(name, f"out must have the dtype {result_type}", TypeError)
    result = out if direct else np.empty((8, 8), result_type)
    v.update(pSrc=a, srcStep=step_of(a), pDst=result, dstStep=result.strides[0] if result.ndim == 2 else 8 * result.itemsize)
    member.call(name, 64, v)
    if out is None:
        return result if sources[0].ndim == 2 else result.reshape(64)
    if not direct:
        out[...] = result.reshape(out.shape)
    return given
