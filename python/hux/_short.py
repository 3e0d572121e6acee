"""Short-hands beside the long names, bits, and threads."""
from __future__ import annotations

from collections.abc import Iterator
from contextlib import contextmanager
from typing import Any

import numpy as np
from numpy.typing import ArrayLike, NDArray

from . import _front, _hux
from ._front import Image, Out, fail, refuse
from ._table import FUNCTIONS

_own = {operation.__name__: operation for operation in _hux.operations}


class Seed:
    """Where a generator of noise goes on from: what is called with it leaves it advanced."""

    def __init__(self, state: int) -> None:
        if not 0 <= int(state) < 2**32:
            raise ValueError("a seed has 32 bits")
        self.state = int(state)

    def __repr__(self) -> str:
        return f"hux.Seed({self.state})"


def norm_name(several: bool, ord: int | str, relative: bool) -> str:
    """The operation that norm() is short for."""
    words = {1: "l1", 2: "l2", "inf": "inf", float("inf"): "inf"}
    if ord not in words:
        refuse("norm", f'ord is 1, 2 or "inf", not {ord!r}')
    if relative and not several:
        refuse("norm", "relative to a second image", TypeError)
    return f"norm_{'rel_' if relative else 'diff_' if several else ''}{words[ord]}"


def match_name(method: str, extent: str) -> str:
    """The operation that match() is short for."""
    names = {"ncc": ("cross_corr", "norm"), "ncc_level": ("cross_corr", "norm_level"), "sqdiff": ("sqr_distance", "norm")}
    if method not in names:
        refuse("match", f"method is one of {', '.join(map(repr, names))}, not {method!r}")
    if extent not in ("valid", "same", "full"):
        refuse("match", f'extent is "valid", "same" or "full", not {extent!r}')
    first, last = names[method]
    return f"{first}_{extent}_{last}"


def convolve_name(extent: str) -> str:
    """The operation that convolve() is short for."""
    if extent not in ("valid", "full"):
        refuse("convolve", f'extent is "valid" or "full", not {extent!r}')
    return f"conv_{extent}"


def norm(a: Any, b: Any = None, *, ord: int | str = 2, relative: bool = False, hint: str | None = None,
         alpha: str | None = None) -> Any:
    """The norm of an image, of the difference of two, or of that relative to the second: norm_l2, norm_diff_inf, ...

    ord is 1, 2 or "inf".
    """
    options = {key: value for key, value in (("hint", hint), ("alpha", alpha)) if value is not None}
    return _own[norm_name(b is not None, ord, relative)](*((a,) if b is None else (a, b)), **options)


def match(a: Any, tpl: Any, *, method: str = "ncc", extent: str = "valid", alpha: str | None = None,
          out: Any = None) -> NDArray[Any]:
    """How well a template matches at each place, as float32.

    method  "ncc" normalised correlation, "ncc_level" the same about the means, "sqdiff" normalised squared distance
    extent  "valid" where the template lies within the image, "same", "full"
    """
    return _own[match_name(method, extent)](a, tpl, dtype=np.float32, alpha=alpha, out=out)


def convolve(a: Any, b: Any, *, extent: str = "full", divisor: int | None = None, alpha: str | None = None,
             out: Any = None) -> NDArray[Any]:
    """The convolution of two images: conv_full, or by extent="valid" conv_valid."""
    return _own[convolve_name(extent)](a, b, divisor, alpha=alpha, out=out)


def histogram(a: Any, levels: ArrayLike | None = None, *, bins: int | None = None, range: Any = None,
              alpha: str | None = None) -> Any:
    """Counts, int32, of the elements of each channel between levels: bin k counts levels[k] <= p < levels[k + 1].

    levels is one sequence for all channels, or a list of one for each; or bins and range=(lowest, end) tell them.
    """
    if (levels is None) == (bins is None):
        refuse("histogram", "takes levels, or bins= and range=", TypeError)
    if bins is not None:
        dtype = getattr(a, "dtype", None) or _front.array("histogram", a).dtype
        if range is None and dtype.kind in "iu":
            range = np.iinfo(dtype).min, np.iinfo(dtype).max + 1
        if range is None or len(range) != 2 or not 0 < bins < 2**28:
            refuse("histogram", "bins= is a number above 0, and range= (lowest, end)")
        if dtype.kind in "iu":
            return _own["histogram_even"](a, bins + 1, *range, alpha=alpha)[0]
        levels = np.linspace(range[0], range[1], bins + 1).astype(np.float32)
    return _own["histogram_range"](a, levels, alpha=alpha)


def unpack_bits(bits: Any, width: int, offset: int = 0, *, out: Any = None) -> NDArray[Any]:
    """Bytes of 0 or 255 of bits, the most significant of a byte first, from bit offset % 8 of each row on."""
    name = "unpack_bits"
    image = Image(name, bits, channels=(1,))
    width, offset = int(width), int(offset)
    if image.code != "8u":
        refuse(name, "bits are uint8", TypeError)
    if width < 1 or offset < 0 or offset > 2**30 or (offset % 8 + width + 7) // 8 > image.width:
        fail(name, "BadSize", f"{width} bits from {offset % 8} on, of {image.width} bytes")
    target = Out(name, out, image, (image.height, width), image.dtype, 1)
    image.apart(target.a)
    _hux.call(FUNCTIONS["huxiConvert_1u8u_C1R"], name, target.a.size,
              (image.a, image.step, offset, target.a, target.step, (width, image.height)))
    return target.done()


def pack_bits(a: Any, threshold: int = 128, offset: int = 0, *, out: Any = None) -> NDArray[Any]:
    """Bits, the most significant of a byte first, from bit offset % 8 of each row on: an image halftoned by diffusing
    errors at threshold, or an array of bool as it is."""
    name = "pack_bits"
    if isinstance(a, np.ndarray) and a.dtype == np.bool_:
        a = a * np.uint8(255)
    image = Image(name, a, channels=(1,))
    offset, threshold = int(offset), int(threshold)
    if image.code != "8u":
        refuse(name, f"no function for {image.dtype}; there are: uint8 with 1", TypeError)
    if not 0 <= threshold <= 255:
        refuse(name, f"the constant {threshold} is no uint8")
    if not 0 <= offset <= 2**30:
        fail(name, "BadSize", f"offset {offset}")
    target = Out(name, out, image, (image.height, (offset % 8 + image.width + 7) // 8), image.dtype, 1, zero=True)
    image.apart(target.a)
    _hux.call(FUNCTIONS["huxiConvert_8u1u_C1R"], name, image.a.size,
              (image.a, image.step, target.a, target.step, offset, (image.width, image.height), threshold))
    return target.done()


def set_num_threads(n: int) -> None:
    """How many threads a call may use, in the whole process."""
    n = int(n.__index__())
    if not 0 < n < 2**31:
        refuse("set_num_threads", "a number above 0")
    _hux.call(FUNCTIONS["huxSetThreadCount"], "set_num_threads", 0, (n,))


def get_num_threads() -> int:
    """How many threads a call may use."""
    return int(_hux.call(FUNCTIONS["huxGetThreadCount"], "get_num_threads", 0, ()))


@contextmanager
def threads(n: int) -> Iterator[None]:
    """with hux.threads(1): as many threads inside."""
    before = get_num_threads()
    set_num_threads(n)
    try:
        yield
    finally:
        set_num_threads(before)
