"""Plans: what holds tables or records of the library. They are immutable, serve threads at once, and pickle as the
arguments that they were made with."""
from __future__ import annotations

import threading
import weakref
from typing import Any

import numpy as np
from numpy.typing import ArrayLike, NDArray

from . import _front, _hux
from ._front import CODES, DTYPES, PROCESSED, Image, Out, fail, framed, refuse
from ._table import FUNCTIONS

_NORMS = {"forward": 1, "backward": 2, "ortho": 4, "none": 8}


class _Context:
    """A record of the library, freed with this."""

    def __init__(self, operation: str, make: str, free: str, *arguments: Any) -> None:
        box = np.zeros(1, np.uint64)
        _hux.call(FUNCTIONS[make], operation, 0, (box, *arguments))
        self.pointer = int(box[0])
        weakref.finalize(self, _hux.call, FUNCTIONS[free], operation, 0, (self.pointer,))

    def buffer(self, operation: str, tell: str) -> NDArray[np.uint8]:
        """Work memory for one call."""
        size = np.zeros(1, np.int32)
        _hux.call(FUNCTIONS[tell], operation, 0, (self.pointer, size))
        return np.empty(max(int(size[0]), 1), np.uint8)


class _Plan:
    """Made contexts are kept, and made when they are first asked for."""
    _arguments: tuple[Any, ...]

    def __reduce__(self) -> Any:
        return _restore, (type(self), self._arguments)

    def __setattr__(self, name: str, value: Any) -> None:
        if hasattr(self, "_arguments"):
            raise AttributeError("a plan is immutable")
        object.__setattr__(self, name, value)

    def __repr__(self) -> str:
        return f"hux.{type(self).__name__}{self._arguments!r}"


def _restore(kind: Any, arguments: tuple[Any, ...]) -> Any:
    return kind(*arguments[:-1], **arguments[-1])


def _shape(name: str, shape: Any) -> tuple[int, ...]:
    try:
        sides = tuple(int(side.__index__()) for side in shape)
    except (TypeError, AttributeError):
        sides = ()
    if len(sides) not in (1, 2) or any(not 0 < side < 2**31 for side in sides):
        refuse(name, f"shape is (H, W) or (N,), not {shape!r}")
    return sides


class DFT(_Plan):
    """The discrete Fourier transform of arrays of one shape, (H, W) or (N,), of any lengths.

    kind    "real": float32 to a packed spectrum of the same shape and type, or uint8 to int32; "complex": complex64
    norm    numpy's: "backward", "forward", "ortho", or "none" for no scaling at all
    packing of the spectra of real vectors, "pack" or (FFT of a power of two) "perm"
    """
    _power = False

    def __init__(self, shape: Any, *, kind: str = "real", norm: str = "backward", packing: str = "pack") -> None:
        self._name = type(self).__name__
        self.shape = _shape(self._name, shape)
        if kind not in ("real", "complex"):
            refuse(self._name, f'kind is "real" or "complex", not {kind!r}')
        if norm not in _NORMS:
            refuse(self._name, f"norm is one of {', '.join(map(repr, _NORMS))}, not {norm!r}")
        self._fast = self._power and all(side & (side - 1) == 0 for side in self.shape)
        if packing not in ("pack", "perm") or packing == "perm" and (len(self.shape) > 1 or not self._fast or
                                                                     kind == "complex"):
            refuse(self._name, 'packing is "pack", or "perm" of real vectors whose length is a power of two')
        self.kind, self.norm, self.packing = kind, norm, packing
        self._contexts: dict[str, _Context] = {}
        self._context("32fc" if kind == "complex" else "32f")
        self._arguments = (self.shape, {"kind": kind, "norm": norm, "packing": packing})

    def _context(self, code: str) -> _Context:
        if code not in self._contexts:
            domain = "s" if len(self.shape) == 1 else "i"
            family = "FFT" if self._fast else "DFT"
            sides = [s.bit_length() - 1 if self._fast else s for s in self.shape[::-1]]
            letter = "C" if code == "32fc" else "R"
            stem = f"hux{domain}{family}"
            self._contexts.setdefault(code, _Context(
                self._name, f"{stem}InitAlloc_{letter}_{code}", f"{stem}Free_{letter}_{code}", *sides,
                _NORMS[self.norm], 0))
        return self._contexts[code]

    def forward(self, a: Any, *, out: Any = None, shift: int = 0, alpha: str | None = None) -> NDArray[Any]:
        """The spectrum; of a real array packed: see unpack. shift scales an integer one by 2**-shift."""
        return self._run("forward", a, out, shift, alpha)

    def inverse(self, a: Any, *, out: Any = None, shift: int = 0, alpha: str | None = None) -> NDArray[Any]:
        """The array of a spectrum."""
        return self._run("inverse", a, out, shift, alpha)

    def _run(self, way: str, a: Any, out: Any, shift: int, alpha: str | None) -> NDArray[Any]:
        name, forward = f"{self._name}.{way}", way == "forward"
        image = Image(name, a)
        vector = len(self.shape) == 1
        if image.given.shape[:2 if image.axes > 1 else 1] != self.shape or (vector and image.axes > 1):
            refuse(name, f"the plan is for arrays of {self.shape}, not {image.given.shape}")
        types = {"32fc": "32fc"} if self.kind == "complex" else {"32f": "32f"} if vector else \
            {"32f": "32f", "8u": "32s"} if forward else {"32f": "32f", "32s": "8u"}
        if image.code not in types or self.kind == "complex" and image.channels > 1:
            refuse(name, f"no function for {image.dtype} with {image.channels} channels; there are: "
                   f"{', '.join(str(DTYPES[t]) for t in types)}", TypeError)
        if alpha not in (None, "keep") or alpha and image.channels != 4:
            refuse(name, 'alpha is None, or "keep" for four channels', TypeError)
        layout = "AC4" if alpha else image.layout
        result = types[image.code]
        whole = result == image.code
        if not whole and not isinstance(shift, int):
            refuse(name, "shift is an integer", TypeError)
        if whole and shift:
            refuse(name, f"no shift for {image.dtype}", TypeError)
        context = self._context({"8u": "32s"}.get(image.code, image.code))
        family, letter = "FFT" if self._fast else "DFT", "C" if self.kind == "complex" else "R"
        packing = self.packing.title()
        steps = "CToC" if letter == "C" else f"RTo{packing}" if forward else f"{packing}ToR"
        stem = f"hux{'s' if vector else 'i'}{family}"
        buffer = context.buffer(name, f"{stem}GetBufSize_{letter}_{'32s' if not whole else image.code}")
        function = f"{stem}{'Fwd' if forward else 'Inv'}_{steps}_{image.code if whole else image.code + result}"
        same = isinstance(out, np.ndarray) and _front._same(out, image.given) and _front._shares(image.a, out)
        if same and not vector and whole:
            _hux.call(FUNCTIONS[f"{function}_{layout}IR"], name, image.a.size * 16,
                      (image.a, image.step, context.pointer, buffer))
            return out
        target = Out(name, out, image, (image.height, image.width), DTYPES[result], image.channels,
                     keep=image.a if alpha else None)
        image.apart(target.a)
        arguments: tuple[Any, ...]
        if vector:
            arguments = (image.a, target.a, context.pointer, buffer)
        else:
            function += f"_{layout}R" + "Sfs" * (not whole)
            arguments = (image.a, image.step, target.a, target.step, context.pointer,
                         *(() if whole else (shift,)), buffer)
        _hux.call(FUNCTIONS[function], name, image.a.size * 16, arguments)
        return target.done()

    def unpack(self, spectrum: Any) -> NDArray[Any]:
        """What numpy.fft.fft2 (of a vector: fft) returns, of a packed spectrum."""
        s = _front.array(f"{self._name}.unpack", spectrum)
        if s.shape[:len(self.shape)] != self.shape:
            refuse(f"{self._name}.unpack", f"the plan is for arrays of {self.shape}, not {s.shape}")
        if self.kind == "complex":
            return s
        if len(self.shape) == 1:
            n = self.shape[0]
            half = np.zeros(n // 2 + 1, np.complex64)
            if self.packing == "perm" and n > 1:
                s = np.concatenate([s[:1], s[2:], s[1:2]])
            half[0] = s[0]
            pairs = (n - 1) // 2
            half[1:1 + pairs] = s[1:1 + 2 * pairs:2] + 1j * s[2:2 + 2 * pairs:2]
            if n % 2 == 0:
                half[n // 2] = s[-1]
            return np.concatenate([half, half[1:1 + pairs][::-1].conj()])
        one = _operations()["pack_to_cplx_extend"]
        if s.ndim == 2:
            return one(s)
        return np.stack([one(s[..., c]) for c in range(s.shape[2])], axis=2)

    def pack(self, full: Any) -> NDArray[Any]:
        """The packed spectrum of what numpy.fft.fft2 (of a vector: fft) returns."""
        f = np.asarray(full)
        if f.shape[:len(self.shape)] != self.shape:
            refuse(f"{self._name}.pack", f"the plan is for arrays of {self.shape}, not {f.shape}")
        if f.dtype not in CODES or f.dtype == np.complex128:
            f = f.astype(np.complex64)
        if self.kind == "complex":
            return f
        if len(self.shape) == 1:
            n = self.shape[0]
            s = np.empty(n, np.float32)
            pairs = (n - 1) // 2
            s[0] = f[0].real
            s[1:1 + 2 * pairs:2], s[2:2 + 2 * pairs:2] = f[1:1 + pairs].real, f[1:1 + pairs].imag
            if n % 2 == 0:
                s[-1] = f[n // 2].real
            return np.concatenate([s[:1], s[-1:], s[1:-1]]) if self.packing == "perm" and n > 1 else s
        one = _operations()["cplx_extend_to_pack"]
        if f.ndim == 2:
            return one(f)
        return np.stack([one(f[..., c]) for c in range(f.shape[2])], axis=2)


class FFT(DFT):
    """As DFT, by the fast transform where all lengths are powers of two."""
    _power = True


def _operations() -> dict[str, Any]:
    return {operation.__name__: operation for operation in _hux.operations}


class DCT(_Plan):
    """The discrete cosine transform of float32 arrays of one shape, (H, W) or (N,), of any lengths."""

    def __init__(self, shape: Any) -> None:
        self.shape = _shape("DCT", shape)
        domain = "s" if len(self.shape) == 1 else "i"
        size = self.shape if domain == "s" else (self.shape[::-1],)
        self._contexts = {way: _Context("DCT", f"hux{domain}DCT{way}InitAlloc_32f", f"hux{domain}DCT{way}Free_32f",
                                        *size, 0) for way in ("Fwd", "Inv")}
        self._arguments = (self.shape, {})

    def forward(self, a: Any, *, out: Any = None, alpha: str | None = None) -> NDArray[Any]:
        return self._run("Fwd", "DCT.forward", a, out, alpha)

    def inverse(self, a: Any, *, out: Any = None, alpha: str | None = None) -> NDArray[Any]:
        return self._run("Inv", "DCT.inverse", a, out, alpha)

    def _run(self, way: str, name: str, a: Any, out: Any, alpha: str | None) -> NDArray[Any]:
        image = Image(name, a)
        vector = len(self.shape) == 1
        if image.given.shape[:2 if image.axes > 1 else 1] != self.shape or vector and image.axes > 1:
            refuse(name, f"the plan is for arrays of {self.shape}, not {image.given.shape}")
        if image.code != "32f":
            refuse(name, f"no function for {image.dtype}; there are: float32", TypeError)
        if alpha not in (None, "keep") or alpha and image.channels != 4:
            refuse(name, 'alpha is None, or "keep" for four channels', TypeError)
        context, stem = self._contexts[way], f"hux{'s' if vector else 'i'}DCT{way}"
        buffer = context.buffer(name, f"{stem}GetBufSize_32f")
        target = Out(name, out, image, (image.height, image.width), image.dtype, image.channels,
                     keep=image.a if alpha else None)
        image.apart(target.a)
        if vector:
            _hux.call(FUNCTIONS[f"{stem}_32f"], name, image.a.size * 16,
                      (image.a, target.a, context.pointer, buffer))
        else:
            _hux.call(FUNCTIONS[f"{stem}_32f_{'AC4' if alpha else image.layout}R"], name, image.a.size * 16,
                      (image.a, image.step, target.a, target.step, context.pointer, buffer))
        return target.done()


class WT(_Plan):
    """A wavelet transform of one level: a float32 image of even sides to four sub-bands of half its sides, and back.

    forward and inverse are each (low taps, anchor, high taps, anchor), as C takes them; either may be None.
    """

    def __init__(self, forward: Any, inverse: Any = None) -> None:
        self._taps, self._contexts = {}, {}
        for way, given in (("Fwd", forward), ("Inv", inverse)):
            if given is None:
                continue
            try:
                low, anchor_low, high, anchor_high = given
                low, high = (np.ascontiguousarray(taps, np.float32) for taps in (low, high))
                anchors = int(anchor_low.__index__()), int(anchor_high.__index__())
            except (TypeError, ValueError, AttributeError):
                refuse("WT", "taps are (low, anchor, high, anchor)", TypeError)
            if low.ndim != 1 or high.ndim != 1 or max(len(low), len(high)) > 2**20:
                refuse("WT", "taps are sequences of numbers")
            self._taps[way] = len(low), anchors[0], len(high), anchors[1]
            for layout in ("C1R", "C3R"):
                self._contexts[way, layout] = _Context(
                    "WT", f"huxiWT{way}InitAlloc_32f_{layout}", f"huxiWT{way}Free_32f_{layout}", low, len(low),
                    anchors[0], high, len(high), anchors[1])
        self._arguments = (forward, inverse, {})

    def _context(self, way: str, name: str, image: Image) -> tuple[_Context, str]:
        if way not in self._taps:
            refuse(name, "the plan has no taps for this direction")
        if image.code != "32f" or image.channels == 4:
            refuse(name, f"no function for {image.dtype} with {image.channels} channels; there are: float32 with 1; "
                   "float32 with 3", TypeError)
        layout = f"{image.layout}R"
        return self._contexts[way, layout], layout

    def _reach(self, way: str) -> tuple[int, int]:
        """Rows and columns, of a sub-band for the inverse, that are read before and after an image."""
        low, anchor_low, high, anchor_high = self._taps[way]
        before, after = max(low - anchor_low, high - anchor_high) - 1, max(anchor_low, anchor_high)
        return (before, max(after - 1, 0)) if way == "Fwd" else (before // 2, (after + 1) // 2)

    def forward(self, a: Any, *, border: str = "wrap") -> tuple[NDArray[Any], ...]:
        """The approximation, and the details in x, in y, and in both."""
        name = "WT.forward"
        image = Image(name, a)
        context, layout = self._context("Fwd", name, image)
        if image.height % 2 or image.width % 2:
            refuse(name, "the sides are even")
        ahead, behind = self._reach("Fwd")
        whole, source = framed(name, image.a, (ahead, ahead, behind, behind), border)
        shape = (image.height // 2, image.width // 2, *image.a.shape[2:])
        bands = tuple(np.empty(shape, np.float32) for _ in range(4))
        steps = [x for band in bands for x in (band, band.strides[0])]
        _hux.call(FUNCTIONS[f"huxiWTFwd_32f_{layout}"], name, image.a.size * 16,
                  (source, whole.strides[0], *steps, shape[1::-1], context.pointer,
                   context.buffer(name, f"huxiWTFwdGetBufSize_{layout}")))
        return bands

    def inverse(self, bands: Any, *, border: str = "wrap", out: Any = None) -> NDArray[Any]:
        """The image of four sub-bands."""
        name = "WT.inverse"
        images = [Image(name, band) for band in bands]
        if len(images) != 4 or any(i.given.shape != images[0].given.shape for i in images):
            refuse(name, "four sub-bands of one shape are expected")
        context, layout = self._context("Inv", name, images[0])
        if any(i.code != "32f" for i in images):
            refuse(name, "sub-bands are float32", TypeError)
        ahead, behind = self._reach("Inv")
        frames = [framed(name, i.a, (ahead, ahead, behind, behind), border) for i in images]
        first = images[0]
        target = Out(name, out, first, (2 * first.height, 2 * first.width), first.dtype, first.channels)
        arguments = [x for whole, part in frames for x in (part, whole.strides[0])]
        _hux.call(FUNCTIONS[f"huxiWTInv_32f_{layout}"], name, first.a.size * 64,
                  (*arguments, (first.width, first.height), target.a, target.step, context.pointer,
                   context.buffer(name, f"huxiWTInvGetBufSize_{layout}")))
        return target.done()


class Moments:
    """The moments of an image, up to the third order: numbers, or arrays of one for each channel."""

    def __init__(self, a: Any, kind: str = "float", alpha: str | None = None) -> None:
        name = "moments"
        if kind not in ("float", "int"):
            refuse(name, f'kind is "float" or "int", not {kind!r}')
        self._code = "64f" if kind == "float" else "64s"
        self._context = _Context(name, f"huxiMomentInitAlloc_{self._code}", f"huxiMomentFree_{self._code}", 0)
        image = Image(name, a)
        if alpha not in (None, "keep"):
            refuse(name, f'alpha is "keep" or None, not {alpha!r}')
        layout = "AC4" if alpha and image.channels == 4 else image.layout
        function = f"huxiMoments{self._code}_{image.code}_{layout}R"
        if function not in FUNCTIONS:
            refuse(name, f"no function for {image.dtype} with {image.channels} channels; there are: uint8 and (not of "
                   'kind="int") float32 with 1, 3, or 4 channels and alpha="keep"', TypeError)
        self.channels = PROCESSED[layout]
        _hux.call(FUNCTIONS[function], name, image.a.size, (image.a, image.step, (image.width, image.height),
                                                            self._context.pointer))

    def _get(self, which: str, orders: tuple[Any, ...], offset: tuple[Any, ...], shift: int, count: int = 1) -> Any:
        function = FUNCTIONS[f"huxiGet{which}_{self._code}"]
        orders = tuple(int(order.__index__()) for order in orders)
        if any(order < 0 for order in orders):
            refuse("moments", "orders are not negative")
        if shift and self._code == "64f":
            refuse("moments", 'shift is of kind="int"', TypeError)
        values = np.zeros((self.channels, count), np.float64 if self._code == "64f" else np.int64)
        for channel in range(self.channels):
            _hux.call(function, "moments", 0, (self._context.pointer, *orders, channel, *offset, values[channel],
                                               *((shift,) if self._code == "64s" else ())))
        if count > 1:
            return values[0] if self.channels == 1 else values
        return values[0, 0].item() if self.channels == 1 else values[:, 0]

    def spatial(self, x_order: int, y_order: int, offset: Any = (0, 0), *, shift: int = 0) -> Any:
        """sum(p * (x + offset[0])**x_order * (y + offset[1])**y_order)"""
        return self._get("SpatialMoment", (x_order, y_order), (_front.pair("moments", "offset", offset),), shift)

    def normalized_spatial(self, x_order: int, y_order: int, offset: Any = (0, 0), *, shift: int = 0) -> Any:
        offset = _front.pair("moments", "offset", offset)
        return self._get("NormalizedSpatialMoment", (x_order, y_order), (offset,), shift)

    def central(self, x_order: int, y_order: int, *, shift: int = 0) -> Any:
        return self._get("CentralMoment", (x_order, y_order), (), shift)

    def normalized_central(self, x_order: int, y_order: int, *, shift: int = 0) -> Any:
        return self._get("NormalizedCentralMoment", (x_order, y_order), (), shift)

    def hu_moments(self, *, shift: int = 0) -> Any:
        """The seven of hu, of integers times 2**-shift."""
        return self._get("HuMoments", (), (), shift, 7)

    @property
    def hu(self) -> Any:
        """Seven numbers that hardly change when a shape is moved, scaled or turned."""
        return self.hu_moments()


def moments(a: Any, *, kind: str = "float", alpha: str | None = None) -> Moments:
    """The moments of an image; kind="int" for 64-bit integers."""
    return Moments(a, kind, alpha)


class _Deconvolution(_Plan):
    """Its records are written to by calls, so each call has one for itself."""
    _family = ""

    def __init__(self, kernel: ArrayLike, shape: Any, *, threshold: float = 1e-6) -> None:
        name = self._family
        self.shape = _shape(name, shape)
        taps = np.ascontiguousarray(kernel, np.float32)
        if len(self.shape) != 2 or taps.ndim not in (2, 3) or taps.shape[0] != taps.shape[1] or not taps.size or \
                taps.ndim == 3 and taps.shape[2] != 3:
            refuse(name, "takes a kernel (k, k) or (k, k, 3) and a shape (H, W)")
        self._taps, self._threshold = taps, float(threshold)
        self._layout = "C3R" if taps.ndim == 3 else "C1R"
        self._idle: list[_Context] = []
        self._lock = threading.Lock()
        self._idle.append(self._make())
        self._arguments = (taps, self.shape, {"threshold": threshold})

    def _make(self) -> _Context:
        side = self._taps.shape[0]
        if self._family == "DeconvFFT":
            need = max(self.shape) + side - 1
            size: Any = max((need - 1).bit_length(), 1)
        else:
            size = self.shape[1] + side - 1, self.shape[0] + side - 1
        return _Context(self._family, f"huxi{self._family}InitAlloc_32f_{self._layout}",
                        f"huxi{self._family}Free_32f_{self._layout}", self._taps, side, size, self._threshold)

    def _run(self, name: str, a: Any, out: Any, *iterations: int) -> NDArray[Any]:
        image = Image(name, a)
        if image.code != "32f" or f"{image.layout}R" != self._layout:
            refuse(name, f"the kernel is for float32 with {self._layout[1]} channels", TypeError)
        if image.height > self.shape[0] or image.width > self.shape[1]:
            fail(name, "BadSize", f"the plan is for arrays of up to {self.shape}")
        target = Out(name, out, image, (image.height, image.width), image.dtype, image.channels)
        if not _front._same(target.a, image.a):
            image.apart(target.a)
        with self._lock:
            context = self._idle.pop() if self._idle else None
        context = context or self._make()
        try:
            _hux.call(FUNCTIONS[f"huxi{self._family}_32f_{self._layout}"], name, image.a.size * 16,
                      (image.a, image.step, target.a, target.step, (image.width, image.height), *iterations,
                       context.pointer))
        finally:
            with self._lock:
                self._idle.append(context)
        return target.done()


class DeconvFFT(_Deconvolution):
    """Restores float32 images of up to a shape that were blurred by a kernel: inverse filtering."""
    _family = "DeconvFFT"

    def __call__(self, a: Any, *, out: Any = None) -> NDArray[Any]:
        return self._run("DeconvFFT", a, out)


class DeconvLR(_Deconvolution):
    """Restores float32 images of up to a shape that were blurred by a kernel: by the steps of Lucy and Richardson."""
    _family = "DeconvLR"

    def __call__(self, a: Any, num_iter: int, *, out: Any = None) -> NDArray[Any]:
        return self._run("DeconvLR", a, out, int(num_iter))
