"""hux: image-processing primitives with exact results.

An operation takes arrays of the shape (H, W) or (H, W, C) and picks the C function by their elements and channels:
hux.add(a, b, out=c). help(hux.add) shows its reference, hux.add.members the C functions that there are, and
hux.add.which(a, b) the one that would run. hux.c has every function of the library as C declares it.
"""
import builtins as _builtins
import functools as _functools
import re as _re
import warnings as _warnings

import numpy as _np

from . import _hux
from ._hux import Operation  # noqa: F401

__version__ = _hux.version

complex_int16 = _np.dtype([("re", _np.int16), ("im", _np.int16)])
complex_int32 = _np.dtype([("re", _np.int32), ("im", _np.int32)])


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


def _report(status, function, operation):
    """Raises what an error's status says; warns, in the caller's name, where it is a warning."""
    own = _statuses[status]
    report = own(f"{operation}: {own.__doc__ or own.__name__} ({function} returned {status})")
    report.function, report.operation = function, operation
    if status < 0:
        raise report
    _warnings.warn(report, stacklevel=2)


_dtypes = (_np.uint8, _np.int8, _np.uint16, _np.int16, _np.uint32, _np.int32, _np.float32, _np.float64, complex_int16,
           complex_int32, _np.complex64, _np.complex128, _np.bool_, _np.float16)  # in the order of Type in table.h
_packed = _functools.partial(_np.array, order="C")
_hux.setup(_np.empty, _np.zeros, _packed, _np.copyto, _np.dtype, (None, *map(_np.dtype, _dtypes)), _report)


def _parameter_name(name):
    """What a parameter of a function is called here: value is of pValue, alpha_value of alpha."""
    plain = _re.sub(r"^pp?(?=[A-Z]|x[A-Z]|y[A-Z])", "", name)
    plain = _re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", plain).lower()
    return {"round_mode": "round", "alpha": "alpha_value", "interpolation": "inter"}.get(plain, plain)


for _own in _hux.operations:
    if not _own.native:
        continue
    globals()[_own.__name__] = _own

# What `from hux import *` takes hides no builtin.
__all__ = [_n for _n in globals() if not _n.startswith("_") and not hasattr(_builtins, _n)]
