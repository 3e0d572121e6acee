"""Made by python/generate.py, from stubs.pyi and the registry."""
import os
from collections.abc import Sequence
from contextlib import AbstractContextManager
from typing import Any, Literal, NamedTuple

import numpy as np
from numpy.typing import ArrayLike, DTypeLike, NDArray

from . import c as c
from ._chain import chain as chain
from ._plans import DCT as DCT
from ._plans import DFT as DFT
from ._plans import FFT as FFT
from ._plans import WT as WT
from ._plans import DeconvFFT as DeconvFFT
from ._plans import DeconvLR as DeconvLR
from ._plans import Moments as Moments
from ._plans import moments as moments
from ._short import Seed as Seed
from ._short import convolve as convolve
from ._short import get_num_threads as get_num_threads
from ._short import histogram as histogram
from ._short import match as match
from ._short import norm as norm
from ._short import pack_bits as pack_bits
from ._short import set_num_threads as set_num_threads
from ._short import threads as threads
from ._short import unpack_bits as unpack_bits

_Array = NDArray[Any]
_Image = Any  # an array (H, W), (H, W, C) or (N,), or what has its buffer
_Images = Any  # an image, or a list or tuple of planes
_Constant = Any  # a number, or one for each channel
_MaskSize = int | str | Sequence[int]
_Point = Sequence[int]
_Size = Sequence[int]
_Rectangle = Sequence[int]
_Border = Literal["replicate", "constant", "symmetric", "reflect101", "wrap", "edge", "nearest"]

__version__: str
library_version: str
library_path: str
complex_int16: np.dtype[np.void]
complex_int32: np.dtype[np.void]

class Operation:
    @property
    def __name__(self) -> str: ...
    @property
    def members(self) -> tuple[str, ...]: ...
    @property
    def native(self) -> bool: ...

class Error(Exception):
    status: int
    function: str | None
    operation: str | None

class Warning(RuntimeWarning):
    status: int
    function: str | None
    operation: str | None
