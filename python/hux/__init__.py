"""hux: image-processing primitives with exact results.

An operation takes arrays of the shape (H, W) or (H, W, C) and picks the C function by their elements and channels:
hux.add(a, b, out=c). help(hux.add) shows its reference, hux.add.members the C functions that there are, and
hux.add.which(a, b) the one that would run. Plans (hux.FFT, hux.DCT, hux.WT, hux.DeconvFFT) hold tables for one shape.
hux.c has every function of the library as C declares it.
"""
import builtins as _builtins
import collections as _collections
import functools as _functools
import importlib as _importlib
import inspect as _inspect
import os as _os
import sys as _sys
import warnings as _warnings

import numpy as _np

from . import _front, _hux, _operations
from ._chain import chain  # noqa: F401
from ._front import complex_int16, complex_int32
from ._hux import Operation  # noqa: F401
from ._plans import DCT, DFT, FFT, WT, DeconvFFT, DeconvLR, Moments, moments  # noqa: F401
from ._short import (Seed, convolve, get_num_threads, histogram, match, norm, pack_bits,  # noqa: F401
                     set_num_threads, threads, unpack_bits)
from ._table import RESULTS as _RESULTS

__version__, library_path = _hux.version, _hux.library_path
_HERE = _os.path.dirname(__file__) + _os.sep


class Error(Exception):
    """A call that the library refused: status (its number), function (in C), operation (of this module)."""
    status = function = operation = None


class Warning(RuntimeWarning):  # noqa: A001
    """A result that the library has a word about; same attributes as Error."""
    status = function = operation = None


_statuses = {}
for _value, _name, _comment in _hux.statuses:
    if _value:
        _plain = _name.removeprefix("huxSts")
        _bases = ((Warning,) if _value > 0 else
                  (Error, {"NoMem": MemoryError, "DivByZero": ZeroDivisionError}.get(_plain, ValueError)))
        _plain = _plain.removesuffix("Warn") + "Warning" if _value > 0 else _plain + "Error"
        globals()[_plain] = type(_plain, _bases, {"__doc__": _comment, "__module__": "hux", "status": _value})
        _statuses[_value] = globals()[_plain]


def _report(status, function, operation, text=None):
    """Raises what an error's status says, or what a text says that the module found itself; warns, in the caller's name,
    where it is a warning."""
    own = _statuses[status]
    text = text or f"{own.__doc__ or own.__name__} ({function} returned {status})"
    report = own(f"{operation}: {text}")
    report.function, report.operation = function, operation
    if status < 0:
        raise report
    level, frame = 2, _sys._getframe(1)
    while frame and frame.f_code.co_filename.startswith(_HERE):
        level, frame = level + 1, frame.f_back
    _warnings.warn(report, stacklevel=level)


_dtypes = (_np.uint8, _np.int8, _np.uint16, _np.int16, _np.uint32, _np.int32, _np.float32, _np.float64, complex_int16,
           complex_int32, _np.complex64, _np.complex128, _np.bool_, _np.float16)  # in the order of Type in table.h
def _signature(operation):
    """Of an operation, as its reference has it in the first line."""
    own: dict = {}
    exec(f"def {operation.__doc__.partition(chr(10))[0]}: pass", own)
    return _inspect.signature(own[operation.__name__])


def _array_api():
    """numpy's table of functions for extensions, where extensions look for it."""
    for core in "numpy._core", "numpy.core":
        try:
            return _importlib.import_module(f"{core}._multiarray_umath")._ARRAY_API
        except (ImportError, AttributeError):
            pass


_probe = _np.zeros((2, 3), _np.int16)[:, ::2]
_probe.flags.writeable = False
_packed = _functools.partial(_np.array, order="C")
_hux.setup(_np.empty, _np.zeros, _packed, _np.asarray, _np.copyto, _np.shares_memory, _np.dtype,
           (None, *map(_np.dtype, _dtypes)), _report, _signature, _probe, _probe.__array_interface__["data"][0],
           _array_api())
_front.errors.update((_e.__name__.removesuffix("Error"), _e) for _v, _e in _statuses.items() if _v < 0)

for _own in _hux.operations:
    if not _own.native:
        _front.implementations[_own.__name__] = _call = getattr(_operations, _own.__name__)
        _hux.implement(_own, _call, _functools.partial(_call, _asked="which"))
    elif _own.__name__ in _RESULTS:
        _hux.name_results(_own, _collections.namedtuple(f"{_own.__name__}_results", _RESULTS[_own.__name__]))
    globals()[_own.__name__] = _own


def __getattr__(name):
    """What the library says of itself, and modules that not all need, when they are asked for."""
    if name in ("c", "dask"):
        try:
            return _importlib.import_module(f"hux.{name}")
        except ModuleNotFoundError as error:
            raise AttributeError(f"hux.{name} needs {error.name}") from error
    if name == "library_version":
        from . import c
        return c.huxiGetLibVersion().contents.versionText.decode()
    raise AttributeError(f"module 'hux' has no attribute {name!r}")


# What `from hux import *` takes hides no builtin.
__all__ = [_n for _n in globals() if not _n.startswith("_") and not hasattr(_builtins, _n)]
