"""hux on dask arrays: the operations of hux, run block by block by whatever scheduler there is.

  import dask.array as da
  from hux import dask as hd

  x = da.from_zarr("large.zarr")                      # (H, W) or (H, W, C), channels in one chunk
  y = hd.filter_gauss(x, "5x5", border="reflect101")  # a dask array: nothing has run yet
  y.mean().compute(), hd.min_max(y).max.compute()

Operations have the names and arguments of hux, but for out=. In its place onto= is the array that the result starts
as, where a mask or an alpha leaves pixels alone. Sources and masks come in the chunks of the first source. What is
wrong with shapes, dtypes and keywords is said at the call. Results are dask arrays, numbers too. Each task has one
thread of the library; the scheduler runs several tasks at once.

Which results have the bits of one call on the whole image:

- pointwise operations, moves, look-up tables, windows, wavelets, 8x8 transforms, resize_sqr_pixel, remap, and measures
  of integers: they do, however the image is chunked. The docstrings say which elements are excepted: those whose window
  sums run on in floats from row to row.
- other resizes and warps, matching, convolution, deconvolution, transforms, and what depends on the place of a pixel:
  they do, since they run as one task on the whole image, with a warning where that is large. blockwise=True has most
  of them work by blocks instead, and the docstring says what that changes.
- measures of floats: they do not, since sums of floats depend on their order.
"""
from __future__ import annotations

import builtins
import inspect
import math
import re
import threading
import warnings
from collections.abc import Callable, Iterator, Sequence
from fractions import Fraction
from functools import partial
from operator import getitem
from typing import Any

import dask.array as da
import numpy as np
from dask.array.core import PerformanceWarning
from dask.array.overlap import ensure_minimum_chunksize, overlap
from dask.base import compute, tokenize
from dask.delayed import Delayed
from dask.highlevelgraph import HighLevelGraph

import hux

from . import _front, _hux, _plans, _short, c
from ._front import refuse
from ._table import FUNCTIONS, INTERPOLATIONS, RULES

LARGE = 2**30  # bytes of an image from which one task for all of it is warned of
_COLUMNS = 2**15  # of a block that is measured in one call: as many as the counters of 32 bits hold
_PIXELS = 2**18  # and pixels where squares of 16-bit numbers are summed, so that sums are whole numbers below 2^50
_SIDE = 2**8  # of a block whose moments are exact in doubles
_SLACK = 64, 8  # columns and rows that a part of an image has more than is asked for: vectors may look at them


# ---- Tasks -----------------------------------------------------------------------------------------------------------


class _OneThread:
    """with _one_thread: the library has one thread, until the last of those who want that leaves."""

    def __init__(self) -> None:
        self.lock, self.inside, self.before = threading.Lock(), 0, 1

    def __enter__(self) -> None:
        with self.lock:
            if not self.inside:
                self.before = _short.get_num_threads()
                _short.set_num_threads(1)
            self.inside += 1

    def __exit__(self, *_: Any) -> None:
        with self.lock:
            self.inside -= 1
            if not self.inside:
                _short.set_num_threads(self.before)


_one_thread = _OneThread()


def _run(function: Callable[..., Any], *arguments: Any, **options: Any) -> Any:
    with _one_thread:
        return function(*arguments, **options)


def _on_blocks(*blocks: Any, call: Callable[..., Any], counts: Sequence[int], own: Any = (), options: Any = None,
               mask: bool = False, onto: bool = False) -> Any:
    """A call with blocks: those of the sources (of so many planes, or 0), the mask's, and the result's as it starts."""
    left = [block[0] if isinstance(block, list) else block for block in blocks]  # a list where channels go away
    sources = [[left.pop(0) for _ in range(count)] if count else left.pop(0) for count in counts]
    options = dict(options or {})
    if mask:
        options["mask"] = left.pop(0)
    if onto:
        options["out"] = np.array(left.pop(0), order="C")
    result = _run(call, *sources, *own, **options)
    return np.stack(result, axis=-1) if isinstance(result, tuple) else result


def _inside(*blocks: Any, skip: tuple[int, int] = (0, 0), drop: tuple[int, int] = (0, 0), **how: Any) -> Any:
    """Of that, all but the first and the last rows and columns."""
    result = _on_blocks(*blocks, **how)
    return result[skip[0]:result.shape[0] - drop[0], skip[1]:result.shape[1] - drop[1]]


def _kind(function: Callable[..., Any], *arguments: Any, **options: Any) -> Any:
    """What a call on a few pixels gives: errors of arguments, and the dtype and channels of the result."""
    with warnings.catch_warnings():
        warnings.simplefilter("ignore", hux.Warning)
        return function(*arguments, **options)


def _pixels(a: Any, rows: int = 1, columns: int = 1) -> Any:
    """A few pixels of the kind of an image, which is a dask array or a list of planes."""
    if isinstance(a, list):
        return [_pixels(plane, rows, columns) for plane in a]
    shape = (columns,) if a.ndim == 1 else (rows, columns, *a.shape[2:])
    return np.ones(shape, a.dtype) if a.dtype.names is None else np.zeros(shape, a.dtype)


# ---- Arguments -------------------------------------------------------------------------------------------------------


def _image(name: str, a: Any, like: da.Array | None = None) -> Any:
    """A source as a dask array, its channels in one chunk and its rows and columns as those of another; planes as a
    list of such."""
    if isinstance(a, (list, tuple)):
        if len(a) not in (3, 4):
            refuse(name, f"an image has 3 or 4 planes, not {len(a)}", TypeError)
        first = _image(name, a[0], like)
        return [first, *(_image(name, plane, first) for plane in a[1:])]
    if not isinstance(a, da.Array):
        own = _front.array(name, a)
        a = da.from_array(own, chunks=like.chunks if like is not None and like.shape == own.shape else "auto")
    if not 1 <= a.ndim <= 3:
        refuse(name, f"an image has the shape (H, W) or (H, W, C), a vector (N,); not {a.ndim} axes", TypeError)
    if any(math.isnan(side) for side in a.shape):
        refuse(name, "the sizes of the chunks must be known")
    if not a.size:
        _front.fail(name, "BadSize", "an empty array")
    if like is not None and (a.shape[:2] != like.shape[:2] or (a.ndim == 1) != (like.ndim == 1)):
        refuse(name, "the sources differ in shape; there is no broadcasting")
    chunks = like.chunks[:2] if like is not None else [tuple(filter(None, sides)) for sides in a.chunks[:2]]
    return a.rechunk((*chunks, *((side,) for side in a.shape[2:])))


def _plain(name: str, a: Any) -> da.Array:
    """A source that is not in planes."""
    image = _image(name, a)
    if isinstance(image, list):
        refuse(name, "an array is expected, not planes", TypeError)
    return image


def _images(name: str, sources: Sequence[Any], like: da.Array | None = None) -> list[Any]:
    images: list[Any] = []
    for source in sources:
        images.append(_image(name, source, _flat(images)[0] if images else like))
    return images


def _flat(images: Sequence[Any]) -> list[da.Array]:
    return [plane for image in images for plane in (image if isinstance(image, list) else [image])]


def _counts(images: Sequence[Any]) -> list[int]:
    return [len(image) if isinstance(image, list) else 0 for image in images]


def _split(name: str, arguments: Sequence[Any]) -> tuple[list[Any], list[Any]]:
    """The arguments that are images, and the others."""
    sources = RULES[name]["sources"]
    if len(arguments) < sources:
        refuse(name, f"takes {sources} positional argument{'s' * (sources > 1)}", TypeError)
    if sources == 2 and RULES[name]["constant"]:
        b = arguments[1]
        plane = b[0] if isinstance(b, (list, tuple)) and b else b
        if not isinstance(plane, da.Array) and not (isinstance(plane, np.ndarray) and plane.ndim):
            sources = 1
    return list(arguments[:sources]), list(arguments[sources:])


# ---- Graphs ----------------------------------------------------------------------------------------------------------


def _array(name: str, graph: dict[Any, Any], chunks: Any, dtype: Any, sources: Sequence[da.Array]) -> da.Array:
    meta = np.empty((0,) * len(chunks), dtype)
    return da.Array(HighLevelGraph.from_collections(name, graph, dependencies=sources), name, chunks, meta=meta)


def _blockwise(task: Callable[..., Any], blocks: Sequence[da.Array], channels: tuple[int, ...], dtype: Any, *,
               transposed: bool = False, chunks: Any = None, **how: Any) -> da.Array:
    """An array of what a task makes of the blocks at the same place, which has so many channels."""
    axes = "x" if blocks[0].ndim == 1 else "yx"
    names = [axes + ("" if block.ndim < 3 else "c" if block.shape[2:] == channels else str(i))
             for i, block in enumerate(blocks)]
    new = {"c": channels[0]} if channels and not any("c" in name for name in names) else None
    out = (axes[::-1] if transposed else axes) + "c" * len(channels)
    return da.blockwise(task, out, *(x for pair in zip(blocks, names) for x in pair), new_axes=new, align_arrays=False,
                        adjust_chunks=dict(zip(axes, chunks)) if chunks else None, dtype=dtype,
                        meta=np.empty((0,) * len(out), dtype), **how)


def _whole(name: str, call: Callable[..., Any], images: Sequence[Any], shape: Sequence[int], dtype: Any,
           **how: Any) -> da.Array:
    """An array made by one task."""
    blocks = [block.rechunk(-1) for block in _flat(images)]
    size = sum(block.nbytes for block in blocks)
    if size > LARGE:
        warnings.warn(f"{name} takes the whole image, {size / 2**30:.1f} GiB, in one task", PerformanceWarning,
                      stacklevel=4)
    task = partial(_on_blocks, call=call, counts=_counts(images), **how)
    key = f"hux-{name}-{tokenize(task, [block.name for block in blocks], tuple(shape))}"
    return _array(key, {(key, *(0,) * len(shape)): (task, *((block.name, *(0,) * block.ndim) for block in blocks))},
                  tuple((int(side),) for side in shape), dtype, blocks)


def _overlapped(a: da.Array, call: Callable[..., Any], reach: Sequence[int], channels: tuple[int, ...], dtype: Any, *,
                border: str, scaled: Callable[[int], int] | None = None, **how: Any) -> da.Array:
    """Blocks that see as far as a window reaches beyond them. border is "own" where the call frames what it is given,
    so that what it makes of the false edges is cut off, "wrap", or "valid" for the part that needs no border. Where the
    sides of a result are others than its source's, scaled tells them; such a call frames what it is given always."""
    left, top, right, bottom = reach
    ways = (top, bottom), (left, right)
    for axis, (before, after) in enumerate(ways):
        least = max(before, after) + 1  # also what a mirrored border looks at
        if len(a.chunks[axis]) > 1 and min(a.chunks[axis]) < least:
            a = a.rechunk({axis: ensure_minimum_chunksize(least, a.chunks[axis]) if least <= a.shape[axis] else -1})
    how = dict(call=call, counts=[0], **how)
    if border == "wrap":  # of equal depths before and after
        sides = max(top, bottom), max(left, right)
        wide = overlap(a, {0: sides[0], 1: sides[1]}, {0: "periodic", 1: "periodic"})
        if scaled:
            skip = drop = scaled(sides[0]), scaled(sides[1])
        else:
            skip, drop = (sides[0] - top, sides[1] - left), (sides[0] - bottom, sides[1] - right)
        return _blockwise(partial(_inside, skip=skip, drop=drop), [wide], channels, dtype,
                          chunks=_scaled(a.chunks[:2], scaled), **how)
    edges = [np.cumsum((0, *own)).tolist() for own in a.chunks[:2]]

    def spans(i: int, j: int) -> list[tuple[int, int]]:
        return [(max(own[k] - before, 0), min(own[k + 1] + after, own[-1]))
                for own, k, (before, after) in zip(edges, (i, j), ways)]

    def rectangle(i: int, j: int) -> tuple[int, int, int, int]:
        (y0, y1), (x0, x1) = spans(i, j)
        return x0, y0, x1, y1

    def task_of(i: int, j: int, _: Any) -> Callable[..., Any]:
        if border == "valid":
            return partial(_on_blocks, **how)
        cuts = [(own[k] - low, high - own[k + 1]) for own, k, (low, high) in zip(edges, (i, j), spans(i, j))]
        skip, drop = zip(*_scaled(cuts, scaled))
        return partial(_inside, skip=skip, drop=drop, **how)

    chunks = _scaled(a.chunks[:2], scaled)
    if border == "valid":
        chunks = tuple(tuple(side - (before if i == 0 else 0) - (after if i == len(own) - 1 else 0)
                             for i, side in enumerate(own)) for own, (before, after) in zip(chunks, ways))
    return _by_rectangles(getattr(call, "__name__", "window"), a, chunks, rectangle, task_of, (how, reach, border),
                          channels=channels, dtype=dtype)


def _scaled(sides: Sequence[Sequence[int]], scaled: Callable[[int], int] | None) -> tuple[tuple[int, ...], ...]:
    return tuple(tuple(map(scaled, own) if scaled else own) for own in sides)


def _by_rectangles(name: str, a: da.Array, chunks: Any, rectangle: Callable[..., Any], task: Callable[..., Any],
                   token: Any, maps: Sequence[da.Array] = (), channels: tuple[int, ...] | None = None,
                   dtype: Any = None) -> da.Array:
    """An array whose block (i, j) is made by task(i, j, rectangle), of the rectangle(i, j) of the source and of blocks
    of maps. Of each block of the source, no more than that goes there."""
    edges = [np.cumsum((0, *own)).tolist() for own in a.chunks[:2]]
    key = f"hux-{name}-{tokenize(token, a.name, chunks, [block.name for block in maps])}"
    more = (0,) * (a.ndim - 2)
    channels = a.shape[2:] if channels is None else channels
    last = (0,) * len(channels)
    graph: dict[Any, Any] = {}
    for i in range(len(chunks[0])):
        for j in range(len(chunks[1])):
            x0, y0, x1, y1 = part = rectangle(i, j)
            rows = []
            for k in range(np.searchsorted(edges[0], y0, "right") - 1, np.searchsorted(edges[0], y1)):
                row = []
                for m in range(np.searchsorted(edges[1], x0, "right") - 1, np.searchsorted(edges[1], x1)):
                    place = tuple(slice(max(low, own[n]) - own[n], min(high, own[n + 1]) - own[n])
                                  for low, high, own, n in ((y0, y1, edges[0], k), (x0, x1, edges[1], m)))
                    block = (a.name, k, m, *more)
                    if [(own.start, own.stop) for own in place] != [(0, a.chunks[0][k]), (0, a.chunks[1][m])]:
                        graph[(f"{key}-part", i, j, k, m)] = getitem, block, place
                        block = (f"{key}-part", i, j, k, m)
                    row.append(block)
                rows.append(row)
            graph[(key, i, j, *last)] = (_of_rectangle, task(i, j, part), rows, *((block.name, i, j) for block in maps))
    return _array(key, graph, (*chunks, *((side,) for side in channels)), dtype or a.dtype, [a, *maps])


def _of_rectangle(call: Callable[..., Any], rows: Any, *maps: Any) -> Any:
    parts = [np.concatenate(row, 1) if len(row) > 1 else row[0] for row in rows]
    return call(np.concatenate(parts) if len(parts) > 1 else parts[0], *maps)


def _total(name: str, images: Sequence[Any], task: Callable[..., Any], add: Callable[..., Any]) -> Delayed:
    """What a task makes of all blocks and of their places (y, x), added by eights."""
    blocks = _flat(images)
    key = f"hux-{name}-{tokenize(task, add, [block.name for block in blocks])}"
    first = blocks[0] if blocks[0].ndim > 1 else None
    edges = [np.cumsum((0, *own)).tolist() for own in blocks[0].chunks[:2]]
    graph: dict[Any, Any] = {}
    level: list[Any] = []
    for i in range(len(blocks[0].chunks[0])):
        for j in range(len(blocks[0].chunks[1]) if first is not None else 1):
            place = (edges[0][i], edges[1][j]) if first is not None else (0, edges[0][i])
            index = (i, j) if first is not None else (i,)
            level.append((f"{key}-block", i, j))
            keys = ((block.name, *index, *(0,) * (block.ndim - 2)) for block in blocks)
            graph[level[-1]] = (_run, task, place, *keys)
    depth = 0
    while len(level) > 1:
        groups = [level[i:i + 8] for i in range(0, len(level), 8)]
        level = [(f"{key}-sum", depth, i) for i in range(len(groups))]
        graph.update((own, (add, group)) for own, group in zip(level, groups))
        depth += 1
    graph[key] = level[0]
    return Delayed(key, HighLevelGraph.from_collections(key, graph, dependencies=blocks))


def _number(total: Delayed, finish: Callable[..., Any], shape: tuple[int, ...], dtype: Any) -> da.Array:
    """Of a total what is asked for, as a dask array."""
    key = f"{total.key}-{tokenize(finish)}"
    task = (_as_array, finish, total.key, shape, np.dtype(dtype))
    graph = HighLevelGraph.from_collections(key, {(key, *(0,) * len(shape)): task}, dependencies=[total])
    return da.Array(graph, key, tuple((side,) for side in shape), meta=np.empty((0,) * len(shape), dtype))


def _as_array(finish: Callable[..., Any], total: Any, shape: tuple[int, ...], dtype: Any) -> Any:
    return np.asarray(finish(total)).astype(dtype).reshape(shape)


# ---- Pixel by pixel --------------------------------------------------------------------------------------------------


def _points(name: str, arguments: Sequence[Any], options: dict[str, Any]) -> Any:
    rule, operation = RULES[name], _operations[name]
    sources, own = _split(name, arguments)
    mask, onto = options.pop("mask", None), options.pop("onto", None)
    images = _images(name, sources)
    if rule.get("rows"):
        images = _images(name, [_flat(images)[0].rechunk({min(_flat(images)[0].ndim, 2) - 1: -1}), *images[1:]])
    if not images and onto is None:
        shape, chunks = options.pop("shape", None), options.pop("chunks", "auto")
        if shape is None:
            refuse(name, "takes onto=, or shape= and dtype=", TypeError)
        shape = tuple(shape)
        kind = _kind(operation, *own, shape=(1,) * len(shape[:2]) + shape[2:], **options)
        if rule.get("placed"):
            task = partial(_run, operation, *own, shape=shape, **options)
            key = f"hux-{name}-{tokenize(task)}"
            return _array(key, {(key, *(0,) * len(shape)): (task,)}, tuple((side,) for side in shape), kind.dtype, [])
        onto = da.zeros(shape, dtype=kind.dtype, chunks=chunks)
        options.pop("dtype", None)
    first = _flat(images)[0] if images else None
    if onto is not None:
        onto = _image(name, onto, first)
    elif mask is not None:
        onto = da.zeros_like(first)
    first = onto if first is None else first
    given = dict(options)
    if mask is not None:
        mask = _image(name, mask, first)
        given["mask"] = _pixels(mask)
    if onto is not None:
        given["out"] = _pixels(onto)
    side = 3 if rule.get("placed") else 1
    kind = _kind(operation, *(_pixels(image, side, side) for image in images), *own, **given)
    dtype = kind[0].dtype if isinstance(kind, tuple) else kind.dtype
    channels = (len(kind),) if isinstance(kind, tuple) else kind.shape[2:]
    if first.ndim == 1 and not isinstance(kind, tuple) and kind.ndim > 1:  # a row becomes an image
        return _points(name, [image[None] for image in images] + own, options)
    how: dict[str, Any] = {"own": own, "options": options, "mask": mask is not None, "onto": onto is not None}
    blocks = _flat(images) + [block for block in (mask, onto) if block is not None]
    counts = _counts(images)
    if rule.get("placed") or options.get("alpha") and (rule.get("transposed") or rule.get("mirrored")):
        shape = first.shape[1::-1] if rule.get("transposed") else first.shape[:2]
        made = _whole(name, operation, images, (*shape, *channels), dtype, own=own, options=options)
    elif rule.get("mirrored"):
        sample = np.arange(4, dtype=np.uint8).reshape((2, 2) if first.ndim > 1 else (4,))
        turned = operation(sample, *own, **options)
        if first.ndim == 1:
            blocks = [block.blocks[::-1] if turned[0] else block for block in blocks]
        else:
            ways = tuple(slice(None, None, -1 if turned[0, 0] & bit else 1) for bit in (2, 1))
            blocks = [block.blocks[ways] for block in blocks]
        made = _blockwise(_on_blocks, blocks, channels, dtype, call=operation, counts=counts, **how)
    else:
        made = _blockwise(_on_blocks, blocks, channels, dtype, transposed=rule.get("transposed", False), call=operation,
                          counts=counts, **how)
    return tuple(made[..., k] for k in range(len(kind))) if isinstance(kind, tuple) else made


# ---- Windows, tiles --------------------------------------------------------------------------------------------------


def _windows(name: str, arguments: Sequence[Any], options: dict[str, Any]) -> Any:
    operation = _operations[name]
    (source,), own = _split(name, arguments)
    a = _plain(name, source)
    left, top, right, bottom = reach = _front.reach(operation, _pixels(a), *own, **options)
    kind = _kind(operation, _pixels(a, top + bottom + 1, left + right + 1), *own, **options)
    channels = kind.shape[2:]
    if a.ndim == 1:
        return _windows(name, [a[None], *own], options)[0]
    border: Any = options.get("border", "replicate")
    if border is None and (a.shape[0] <= top + bottom or a.shape[1] <= left + right):
        _front.fail(name, "BadSize", "the image is smaller than the window")
    if border is not None and _front.mode_of(name, border) == _front.BORDERS["wrap"]:
        if max(top, bottom) > a.shape[0] or max(left, right) > a.shape[1]:
            return _whole(name, operation, [a], (*a.shape[:2], *channels), kind.dtype, own=own, options=options)
        return _overlapped(a, operation, reach, channels, kind.dtype, border="wrap", own=own,
                           options=options | {"border": None})
    return _overlapped(a, operation, reach, channels, kind.dtype, border="valid" if border is None else "own", own=own,
                       options=options)


def _tiles(name: str, arguments: Sequence[Any], options: dict[str, Any]) -> Any:
    """Of an image whose sides are multiples of 8, each tile of 8 by 8."""
    operation = _operations[name]
    (source,), own = _split(name, arguments)
    a = _plain(name, source)
    if a.ndim != 2 or a.shape[0] % 8 or a.shape[1] % 8:
        refuse(name, "an image (H, W) is expected whose sides are multiples of 8")
    inplace = all(member.in_place for member in _front.members[name])
    kind = _tile(_pixels(a, 8, 8), operation, inplace, own, options)
    chunks = tuple(tuple(8 * int(side) for side in np.diff(np.unique(np.r_[0, np.cumsum(sides) // 8])))
                   for sides in a.chunks)
    return _blockwise(_tile, [a.rechunk(chunks)], (), kind.dtype, operation=operation, inplace=inplace, own=own,
                      options=options)


def _tile(block: Any, operation: Any, inplace: bool, own: Any, options: Any) -> Any:
    made = None
    for y in range(0, block.shape[0], 8):
        for x in range(0, block.shape[1], 8):
            tile = np.array(block[y:y + 8, x:x + 8], order="C")
            result = _run(operation, tile, *own, **options, **({"out": tile} if inplace else {}))
            made = np.empty(block.shape, result.dtype) if made is None else made
            made[y:y + 8, x:x + 8] = result
    return made


# ---- Geometry --------------------------------------------------------------------------------------------------------


def _geometry(name: str, arguments: Sequence[Any], options: dict[str, Any]) -> Any:
    blockwise, beyond = options.pop("blockwise", False), options.pop("overlap", None)
    chunks = options.pop("chunks", None)
    named = _named(name, arguments, options)
    image = _image(name, named.pop("a"))
    maps: list[Any] = []
    if "x_map" in named:
        maps = [_image(name, named.pop("x_map"))]
        maps.append(_image(name, named.pop("y_map"), maps[0]))
    shape, dtype = _shape(name, image, maps, named), _flat([image])[0].dtype
    plain = not isinstance(image, list) and image.ndim > 1 and not named.get("alpha")
    if name == "remap" and plain and not named["roi"]:
        return _remapped(image, maps, named)
    if name == "resize_sqr_pixel" and plain and not named["roi"]:
        return _in_parts(name, image, shape, named, chunks, 0)
    if blockwise and name in ("resize", "resize_shift") and plain and not named["roi"] and named["inter"] != "super":
        return _resized(name, image, shape, named, chunks)
    if blockwise:
        if not plain or "dst_roi" not in named or named["dst_roi"] or named["roi"]:
            refuse(name, "works by blocks of interleaved images, without roi= or alpha=, and not for every resize",
                   TypeError)
        if beyond is None:
            refuse(name, "by blocks needs overlap=, the columns and rows that pixels come from at most", TypeError)
        return _in_parts(name, image, shape, named, chunks, beyond)
    shape = (*shape[:2], len(image)) if isinstance(image, list) else shape
    if maps:
        made = _whole(name, partial(_with_maps, name=name, options=named), [image, *maps], shape, dtype)
    else:
        made = _whole(name, _operations[name], [image], shape, dtype, options=named)
    return tuple(made[..., k] for k in range(len(image))) if isinstance(image, list) else made


def _signature(operation: Any) -> inspect.Signature:
    """As the reference of an operation has it in its first line."""
    text = operation.__doc__.partition("\n")[0].partition("(")[2].removesuffix(")")
    return inspect.signature(eval(f"lambda {text}: None"))


def _named(name: str, arguments: Sequence[Any], options: dict[str, Any]) -> dict[str, Any]:
    """All arguments by their names, but for out."""
    try:
        given = _signature(_operations[name]).bind(*arguments, **options)
    except TypeError as error:
        raise TypeError(f"{name}: {error}") from None
    given.apply_defaults()
    return {key: value for key, value in given.arguments.items() if key != "out"}


def _shape(name: str, image: Any, maps: Sequence[da.Array], named: dict[str, Any]) -> tuple[int, ...]:
    """That of the result, which the operation would find out too, if it had the image."""
    a = _flat([image])[0]
    height, width = a.shape[:2] if a.ndim > 1 else (1, a.shape[0])
    given = named.get("shape")
    # What is wrong with the other arguments is said of a few pixels.
    late = ("roi", "dst_roi", "shape", *(("size", "x_factor", "y_factor") if "size" in named else ()))
    some = {key: value for key, value in named.items() if key not in late}
    if maps:
        some["x_map"] = some["y_map"] = np.zeros((2, 2), np.float32)
    if "size" in named:
        some["size"] = (2, 2)
        if named["size"] is None and given is None and None in (named["x_factor"], named["y_factor"]):
            refuse(name, "needs a size, both factors, or shape=", TypeError)
    _kind(_operations[name], _pixels(image, 2, 2), **some, **({} if maps else {"shape": (2, 2)}))
    if maps:
        shape = maps[0].shape
    elif named.get("size") is not None:
        shape = _front.pair(name, "size", named["size"])[::-1]
    elif given is not None:
        shape = _front.rows_columns(name, given)
    elif "x_factor" not in named and "x_fr" not in named:
        shape = height, width
    else:
        factors = [named[key] if key in named else 1 / named[step]
                   for key, step in (("x_factor", "x_fr"), ("y_factor", "y_fr"))]
        x, y, w, h = _front.rectangle(name, "roi", named["roi"] or (0, 0, width, height))
        width, height = min(w, width - x), min(h, height - y)
        shape = tuple(max(int(exact + 1e-7) if exact >= 1 else int(exact >= 0.5), 1)
                      for exact in (height * factors[1], width * factors[0]))
    if min(shape) < 1:
        _front.fail(name, "BadSize", f"shape {tuple(shape)}")
    return (shape[1],) if a.ndim == 1 and shape[0] == 1 else (*shape, *a.shape[2:])


def _with_maps(a: Any, x_map: Any, y_map: Any, name: str, options: Any) -> Any:
    return _operations[name](a, x_map, y_map, **options)


class _Part:
    """A call of a geometric function with a part of its source, the pixels from (x, y) on of an image of the size
    (w, h), for the part of its result from place on. The function gets the addresses where the whole images would
    begin; what it looks at must be there."""

    def __init__(self, function: str, size: Any, source: Any, shape: Any, place: Any = None,
                 options: Any = None) -> None:
        self.function, self.size, self.source, self.shape = function, size, source, shape
        self.place, self.options = place or (0, 0), options

    def __call__(self, a: Any, *maps: Any) -> Any:
        entry = c._functions[self.function]
        out = np.zeros((*self.shape, *a.shape[2:]), a.dtype)
        options, size = self.options, self.shape[::-1]
        x, y, w, h = options.get("dst_roi") or (0, 0, *size)
        values = {
            "pSrc": self.origin(a, self.source), "srcStep": _front.step_of(a), "srcSize": self.size,
            "srcRoi": options.get("roi") or (0, 0, *self.size), "pDst": self.origin(out, self.place),
            "dstStep": _front.step_of(out), "dstRoi": (self.place[0] + x, self.place[1] + y, w, h), "dstRoiSize": size,
            "interpolation": _front.interpolation(entry["operation"], options["inter"], options.get("smooth_edge"))}
        for name, own in zip(("x", "y"), maps):
            own = np.ascontiguousarray(own)
            values |= {f"p{name}Map": own, f"{name}MapStep": _front.step_of(own)}
        for p in entry["parameters"]:
            key = re.sub(r"(?<=[a-z])[A-Z]", lambda found: f"_{found[0].lower()}", p["name"])
            if p["name"] not in values and key in options:
                value = options[key]
                values[p["name"]] = float(value) if np.ndim(value) == 0 else np.array(value, np.float64, order="C")
        if "pBuffer" in (p["name"] for p in entry["parameters"]):
            needed = np.zeros(1, np.int32)
            _hux.call(FUNCTIONS["huxiResizeSqrPixelGetBufSize"], "resize_sqr_pixel", 0,
                      ((w, h), a.shape[2] if a.ndim > 2 else 1, values["interpolation"], needed))
            values["pBuffer"] = np.empty(max(int(needed[0]), 1), np.uint8)
        with warnings.catch_warnings():
            warnings.simplefilter("ignore", hux.EmptyDestWarning)  # where nothing comes to lie in the block
            _hux.call(FUNCTIONS[self.function], entry["operation"], out.size,
                      tuple(values[p["name"]] for p in entry["parameters"]))
        return out

    @staticmethod
    def origin(a: Any, place: Any) -> int:
        pixel = a.itemsize * (a.shape[2] if a.ndim == 3 else 1)
        return (a.__array_interface__["data"][0] - place[1] * _front.step_of(a) - place[0] * pixel) % 2**64


def _grown(low: float, high: float, slack: int, side: int) -> tuple[int, int]:
    """Pixels low..high and as many around them, of those that there are; one at least."""
    first = min(max(math.floor(low) - slack, 0), side - 1)
    return first, max(min(math.ceil(high) + slack + 1, side), first + 1)


def _cuts(chunks: Sequence[int], side: int, factor: float, shift: float) -> tuple[int, ...]:
    """Where chunks come to lie when an image is scaled, and none of them longer than they are now."""
    places = {0, side} | {min(max(round(place * factor + shift), 0), side) for place in np.cumsum(chunks).tolist()}
    cuts, longest = [], max(chunks)
    for length in np.diff(sorted(places)).tolist():
        parts = -(-length // longest)
        cuts += [length // parts + (i < length % parts) for i in range(parts)]
    return tuple(cuts)


def _overlap(name: str, value: Any) -> tuple[int, int]:
    """Columns and rows, or one number for both."""
    x, y = (int(value),) * 2 if np.ndim(value) == 0 else _front.pair(name, "overlap", value)
    if min(x, y) < 0:
        refuse(name, "overlap is not negative")
    return x, y


def _in_parts(name: str, a: da.Array, shape: Any, named: dict[str, Any], chunks: Any, beyond: Any) -> da.Array:
    """Each block of the result of a part of the source: for a resize of what it looks at, else of what lies at its
    place and so far beyond."""
    size = a.shape[1::-1]
    resize = "x_factor" in named
    factors = (named["x_factor"], named["y_factor"]) if resize else (1, 1)
    shifts = (named["x_shift"], named["y_shift"]) if resize else (0, 0)
    over = (0, 0) if resize else _overlap(name, beyond)
    if chunks is None:
        chunks = tuple(_cuts(a.chunks[axis], shape[axis], factors[1 - axis], shifts[1 - axis]) for axis in (0, 1))
    chunks = da.core.normalize_chunks(chunks, tuple(shape[:2]), dtype=a.dtype)
    starts = [np.cumsum((0, *own)).tolist() for own in chunks]

    def spans(i: int, j: int, slack: tuple[int, int]) -> Any:
        sides = []
        for at, axis in ((j, 1), (i, 0)):
            low, high = starts[axis][at], starts[axis][at + 1] - 1
            k = 1 - axis
            if resize:
                low, high = ((place + 0.5 - shifts[k]) / factors[k] - 0.5 for place in (low, high))
            sides.append(_grown(low, high, over[k] + slack[k], size[k]))
        return sides[0][0], sides[1][0], sides[0][1], sides[1][1]

    function = _member(name, a, named)

    def task(i: int, j: int, rectangle: Any) -> Any:
        options, shape = dict(named), (chunks[0][i], chunks[1][j])
        place = starts[1][j], starts[0][i]
        if not resize:
            x0, y0, x1, y1 = spans(i, j, (0, 0))
            options["roi"] = x0, y0, x1 - x0, y1 - y0
        elif named["dst_roi"]:  # what of it lies in this block
            x, y, w, h = named["dst_roi"]
            sides = shape[::-1]
            left, top = (min(max(start - own, 0), side) for start, own, side in zip((x, y), place, sides))
            right, bottom = (min(max(end - own, 0), side) for end, own, side in zip((x + w, y + h), place, sides))
            if right <= left or bottom <= top:
                return partial(_zeros, shape=shape)
            options["dst_roi"] = left, top, right - left, bottom - top
        return partial(_run, _Part(function, size, rectangle[:2], shape, place, options))

    return _by_rectangles(name, a, chunks, lambda i, j: spans(i, j, _SLACK), task, (named, shape, beyond))


def _member(name: str, a: da.Array, named: dict[str, Any], *maps: Any) -> str:
    """The C function that is called."""
    options = {key: value for key, value in named.items() if key not in ("roi", "dst_roi", "shape")}
    return _operations[name].which(_pixels(a, 2, 2), *maps, **options, **({} if maps else {"shape": (2, 2)}))


def _zeros(a: Any, shape: Any) -> Any:
    return np.zeros((*shape, *a.shape[2:]), a.dtype)


def _resized(name: str, a: da.Array, shape: Any, named: dict[str, Any], chunks: Any) -> da.Array:
    """By blocks that each begin where the whole has come to, by a product and not by a sum of steps."""
    size, out = a.shape[1::-1], shape[1::-1]
    steps: list[Any] = [named.get("x_fr"), named.get("y_fr")]
    starts = [named.get("x_shift", 0), named.get("y_shift", 0)]
    for k, key in enumerate(("x_factor", "y_factor")):
        if name == "resize":
            factor = named[key] if named[key] is not None else out[k] / size[k]
            steps[k] = 1 / factor if named["inter"] == "nearest" else (size[k] - 1) / max(size[k] * factor - 1, 1e-9)
    if chunks is None:
        chunks = tuple(_cuts(a.chunks[axis], shape[axis], 1 / max(steps[1 - axis], 1e-9), 0) for axis in (0, 1))
    chunks = da.core.normalize_chunks(chunks, tuple(shape[:2]), dtype=a.dtype)
    places = [np.cumsum((0, *own)).tolist() for own in chunks]

    def span(i: int, j: int) -> Any:
        sides = [_grown(starts[k] + steps[k] * places[1 - k][at], starts[k] + steps[k] * places[1 - k][at + 1],
                        _SLACK[k], size[k]) for k, at in ((0, j), (1, i))]
        return sides[0][0], sides[1][0], sides[0][1], sides[1][1]

    function = _member("resize_shift", a, {"x_fr": 1, "y_fr": 1})

    def task(i: int, j: int, rectangle: Any) -> Any:
        shift = [starts[k] + steps[k] * places[1 - k][at] for k, at in ((0, j), (1, i))]
        options = {"x_fr": steps[0], "y_fr": steps[1], "x_shift": shift[0], "y_shift": shift[1],
                   "inter": named["inter"]}
        return partial(_run, _Part(function, size, rectangle[:2], (chunks[0][i], chunks[1][j]), options=options))

    return _by_rectangles(name, a, chunks, span, task, (named, shape))


def _remapped(a: da.Array, maps: Sequence[da.Array], named: dict[str, Any]) -> da.Array:
    """Each block of the rectangle that its maps point into, for which they are looked at now."""
    width, height = size = a.shape[1::-1]
    function = _member("remap", a, {"inter": named["inter"]}, *(np.zeros((2, 2), np.float32),) * 2)
    chunks = maps[0].chunks
    bounds = compute(_blockwise(_pointed, maps, (), object, chunks=tuple((1,) * len(own) for own in maps[0].chunks),
                                size=size))[0]

    def span(i: int, j: int) -> Any:
        x0, y0, x1, y1 = bounds[i, j]
        (left, right), (top, bottom) = _grown(x0, x1, _SLACK[0], width), _grown(y0, y1, _SLACK[1], height)
        return left, top, right, bottom

    def task(i: int, j: int, rectangle: Any) -> Any:
        return partial(_run, _Part(function, size, rectangle[:2], (chunks[0][i], chunks[1][j]), options=named))

    return _by_rectangles("remap", a, maps[0].chunks, span, task, named, maps)


def _pointed(x_map: Any, y_map: Any, size: tuple[int, int]) -> Any:
    """The rectangle that maps point into, of what lies in the image."""
    inside = (x_map >= 0) & (x_map <= size[0] - 1) & (y_map >= 0) & (y_map <= size[1] - 1)
    found = np.empty((1, 1), object)
    x, y = x_map[inside], y_map[inside]
    found[0, 0] = tuple(float(v) for v in (x.min(), y.min(), x.max(), y.max())) if len(x) else (0.0,) * 4
    return found


def _borders(name: str, arguments: Sequence[Any], options: dict[str, Any]) -> Any:
    (source,), own = _split(name, arguments)
    a = _plain(name, source)
    named = _named(name, arguments, options)
    if a.ndim == 1:
        made = _borders(name, [a[None], *arguments[1:]], options)
        return made[0] if made.shape[0] == 1 else made
    kind = _kind(_operations[name], _pixels(a), *own, **options | {"shape": None})
    shape = (a.shape[0] - 1 + kind.shape[0], a.shape[1] - 1 + kind.shape[1]) if named["shape"] is None else \
        _front.rows_columns(name, named["shape"])
    return _whole(name, _operations[name], [a], (*shape, *a.shape[2:]), kind.dtype, own=own, options=options)


# ---- Matching, convolution -------------------------------------------------------------------------------------------


def _two(name: str, arguments: Sequence[Any], options: dict[str, Any]) -> Any:
    """An image and a template or a kernel, which goes to each task whole."""
    blockwise, beyond = options.pop("blockwise", False), options.pop("overlap", None)
    sources, own = _split(name, arguments)
    a, b = (_plain(name, source) for source in sources)
    kind = _kind(_operations[name], _pixels(a, 2, 2), _pixels(b), *own, **options)
    more = 1 if "full" in name else 0 if "same" in name else -1
    if a.ndim == 1 or b.ndim == 1:
        refuse(name, "images (H, W) or (H, W, C) are expected", TypeError)
    smaller = any(x < y for x, y in zip(a.shape, b.shape))
    if smaller and RULES[name]["kind"] == "match":
        _front.fail(name, "BadSize", "the template is larger than the image")
    large, small = (b, a) if smaller and more < 0 else (a, b)
    rows, columns = (x + more * (y - 1) for x, y in zip(large.shape[:2], small.shape[:2]))
    if min(rows, columns) < 1:
        _front.fail(name, "BadSize", "neither image lies within the other")
    shape = rows, columns, *a.shape[2:]
    if not blockwise:
        return _whole(name, _operations[name], [a, b], shape, kind.dtype, own=own, options=options)
    if smaller or b.nbytes > LARGE or "same" in name:
        refuse(name, "works by blocks of images, of the full or the valid extent, with a small second image", TypeError)
    height, width = b.shape[0] - 1, b.shape[1] - 1
    if beyond is not None and any(x < y for x, y in zip(_overlap(name, beyond), (width, height))):
        refuse(name, f"the second image asks for overlap={(width, height)}")
    if "full" in name:
        a = da.pad(a, [(height, height), (width, width), (0, 0)][:a.ndim]).rechunk(
            {axis: (sides[0] + more, *sides[1:-1], sides[-1] + more) if len(sides) > 1 else (sides[0] + 2 * more,)
             for axis, (sides, more) in enumerate(zip(a.chunks[:2], (height, width)))})
    valid = _operations[name.replace("full", "valid")]
    return _overlapped(a, partial(_against, valid, b.compute()), (0, 0, width, height), tuple(shape[2:]), kind.dtype,
                       border="valid", own=own, options=options)


def _against(operation: Any, b: Any, a: Any, *own: Any, **options: Any) -> Any:
    return operation(a, b, *own, **options)


# ---- Measures --------------------------------------------------------------------------------------------------------


def _pieces(blocks: Sequence[Any], pixels: int = 0) -> Iterator[list[Any]]:
    """Parts of blocks that the counters of one call hold."""
    planes = [block[None] if block.ndim == 1 else block for block in blocks]
    height, width = planes[0].shape[:2]
    if planes[0].dtype.kind not in "iu":
        yield planes
        return
    rows = max(1, pixels // min(width, _COLUMNS)) if pixels else height
    for y in range(0, height, rows):
        for x in range(0, width, _COLUMNS):
            yield [plane[y:y + rows, x:x + _COLUMNS] for plane in planes]


def _added(call: Callable[..., Any], place: Any, *blocks: Any, squared: bool = False) -> Any:
    """A sum of each channel: exact, of integers."""
    whole = blocks[0].dtype.kind in "iu"
    total: list[Any] = []
    for part in _pieces(blocks, _PIXELS if squared else 0):
        values = np.atleast_1d(call(*part)).tolist()
        values = [value * value for value in values] if squared else values
        values = [round(value) for value in values] if whole else values
        total = [x + y for x, y in zip(total, values)] if total else values
    return total


def _sum_of(totals: Any) -> Any:
    return [sum(values) for values in zip(*totals)]


def _max_of(totals: Any) -> Any:
    return [np.max(values).item() for values in zip(*totals)]


def _mean_of(total: Any, count: int) -> Any:
    return [float(total[0]) / count] if len(total) == 1 else [float(value) * (1.0 / count) for value in total]


def _same(total: Any) -> Any:
    return total


def _root_of(total: Any) -> Any:
    return [math.sqrt(value) for value in total]


def _sums_of_norm(name: str, way: str, place: Any, *blocks: Any, options: Any) -> Any:
    call = partial(_operations[name], **options)
    return np.atleast_1d(call(*blocks)).tolist() if way == "inf" else _added(call, place, *blocks, squared=way == "l2")


def _pairs_of_norms(name: str, way: str, place: Any, a: Any, b: Any, options: Any) -> Any:
    return [_sums_of_norm(f"norm_diff_{way}", way, place, a, b, options=options),
            _sums_of_norm(f"norm_{way}", way, place, b, options=options)]


def _pairs(add: Callable[..., Any], totals: Any) -> Any:
    return [add([total[k] for total in totals]) for k in (0, 1)]


def _relative(total: Any, way: str) -> Any:
    values, references = total
    squares = way == "l2" and len(values) == 1  # one channel divides squares
    if way == "l2" and not squares:
        values, references = _root_of(values), _root_of(references)
    if not all(reference > 0 for reference in references):
        warnings.warn(hux.DivByZeroWarning(f"norm_rel_{way}: the reference is 0 or not a number"))
    else:
        values = [value / reference for value, reference in zip(values, references)]
    return _root_of(values) if squares else values


def _extremes(call: partial[Any], place: Any, block: Any, corner: bool) -> Any:
    """What the call gives, for each number and channel; of places also where in the whole image. A NaN counts where it
    is the very first pixel."""
    if corner and block.dtype.kind == "f" and place != (0, 0):
        empty = -np.inf if "max" in call.func.__name__ else np.inf
        block = np.where(np.isnan(block), block.dtype.type(empty), block)
    result = call(block if block.ndim > 1 else block[None])
    values = [np.atleast_1d(value).tolist() for value in (result if isinstance(result, tuple) else (result,))]
    if corner:
        values[1] = [x + place[1] for x in values[1]]
        values[2] = [y + place[0] for y in values[2]]
    return values


def _furthest(totals: Any, names: Sequence[str]) -> Any:
    return [[(np.max if "max" in name else np.min)(values).item() for values in zip(*(total[k] for total in totals))]
            for k, name in enumerate(names)]


def _first_of(totals: Any, name: str) -> Any:
    channels = range(len(totals[0][0]))
    sign = -1 if "max" in name else 1
    best = [min((not math.isnan(t[0][c]), sign * t[0][c], t[2][c], t[1][c], t[0][c]) for t in totals) for c in channels]
    return [[entry[k] for entry in best] for k in (4, 3, 2)]


def _alike(place: Any, a: Any, b: Any, channels: int) -> Any:
    a, b = (x.reshape(-1, 1 if x.ndim < 3 else x.shape[2])[:, :channels].astype(np.float64) for x in (a, b))
    return [sums.tolist() for sums in (a.sum(0), b.sum(0), (a * a).sum(0), (b * b).sum(0), (a * b).sum(0))]


def _quality(total: Any, count: int) -> Any:
    a, b, aa, bb, ab = (np.array(sums) / count for sums in total)
    with np.errstate(divide="ignore", invalid="ignore"):
        return 4 * (ab - a * b) * a * b / ((aa - a * a + bb - b * b) * (a * a + b * b))


def _taken(total: Any, k: int) -> Any:
    return total[k]


def _measures(name: str, arguments: Sequence[Any], options: dict[str, Any]) -> Any:
    rule, operation = RULES[name], _operations[name]
    sources, own = _split(name, arguments)
    images = _images(name, sources)
    kind = _kind(operation, *map(_pixels, images), *own, **options)
    parts = kind if isinstance(kind, tuple) else (kind,)
    shapes, way = [np.shape(part) for part in parts], name.rpartition("_")[2]
    dtypes = [np.asarray(part).dtype for part in parts]
    first = _flat(images)[0]
    count = math.prod(first.shape[:2])
    call = partial(_with_own, operation, own, options)
    total = rule["total"]
    finish: Callable[..., Any]
    if total in ("extremes", "places"):
        whole = _total(name, images, partial(_extremes, partial(operation, *own, **options), corner=total == "places"),
                       partial(_first_of, name=name) if total == "places" else
                       partial(_furthest, names=getattr(kind, "_fields", [name])))
        made = [_number(whole, partial(_taken, k=k), shape, dtypes[k]) for k, shape in enumerate(shapes)]
        return type(kind)(*made) if isinstance(kind, tuple) else made[0]
    if total == "norm":
        whole = _total(name, images, partial(_sums_of_norm, name, way, options=options),
                       _max_of if way == "inf" else _sum_of)
        finish = _root_of if way == "l2" else _same
    elif total == "relative":
        whole = _total(name, images, partial(_pairs_of_norms, name, way, options=options),
                       partial(_pairs, _max_of if way == "inf" else _sum_of))
        finish = partial(_relative, way=way)
    elif total == "alike":
        whole = _total(name, images, partial(_alike, channels=math.prod(shapes[0])), _sums_of_all)
        finish = partial(_quality, count=count)
    elif total == "mean":
        whole = _total(name, images, partial(_added, partial(_operations["sum"], **options)), _sum_of)
        finish = partial(_mean_of, count=count)
    else:
        whole = _total(name, images, partial(_added, call) if first.ndim > 1 or len(images) == 1 else
                       partial(_of_vectors, call), _sum_of)
        finish = _same
    return _number(whole, finish, shapes[0], dtypes[0])


def _with_own(operation: Any, own: Any, options: Any, *blocks: Any) -> Any:
    return operation(*blocks, *own, **options)


def _of_vectors(call: Callable[..., Any], place: Any, *blocks: Any) -> Any:
    return [call(*blocks)]


def _sums_of_all(totals: Any) -> Any:
    return [_sum_of(sums) for sums in zip(*totals)]


def _counts_of(call: Callable[..., Any], place: Any, block: Any) -> Any:
    counts = call(block)
    counts = counts[0] if isinstance(counts, tuple) else counts
    return [np.asarray(one, np.int64) for one in (counts if isinstance(counts, list) else [counts])]


def _counters(name: str, arguments: Sequence[Any], options: dict[str, Any]) -> Any:
    """Counts are int64, as there may be more pixels than 32 bits count."""
    call = _operations[name]
    a = _plain(name, arguments[0])
    kind = _kind(call, _pixels(a), *arguments[1:], **options)
    counts = kind[0] if isinstance(kind, tuple) else kind
    whole = _total(name, [a], partial(_counts_of, partial(_after, call, tuple(arguments[1:]), options)), _sum_of)
    made = [_number(whole, partial(_taken, k=k), np.shape(one), np.int64)
            for k, one in enumerate(counts if isinstance(counts, list) else [counts])]
    result = made if isinstance(counts, list) else made[0]
    if not isinstance(kind, tuple):
        return result
    several = isinstance(kind[1], list)
    levels = [da.from_array(np.asarray(one), chunks=-1) for one in (kind[1] if several else [kind[1]])]
    return result, levels if several else levels[0]


def _after(call: Callable[..., Any], own: Any, options: Any, a: Any) -> Any:
    return call(a, *own, **options)


def histogram(a: Any, levels: Any = None, *, bins: int | None = None, range: Any = None,
              alpha: str | None = None) -> Any:
    """As hux.histogram, in int64: the counts of one call, however the image is chunked."""
    image = _plain("histogram", a)
    if bins is None and levels is not None:
        return _lazy["histogram_range"](image, levels, alpha=alpha)
    kind = _kind(_short.histogram, _pixels(image), levels, bins=bins, range=range, alpha=alpha)
    call = partial(_short.histogram, levels=levels, bins=bins, range=range, alpha=alpha)
    whole = _total("histogram", [image], partial(_counts_of, call), _sum_of)
    return _number(whole, partial(_taken, k=0), np.shape(kind), np.int64)


_ORDERS = [(m, n) for m in range(4) for n in range(4 - m)]


def _moments_of(place: Any, block: Any, kind: str, alpha: Any) -> Any:
    """The sums of p x^m y^n in the whole image, for each order and channel: exact, of integers."""
    whole = block.dtype.kind in "iu"
    total: dict[Any, list[Any]] = {}
    side = _SIDE if whole else max(block.shape[:2])
    for y in range(0, block.shape[0], side):
        for x in range(0, block.shape[1], side):
            part = _plans.moments(block[y:y + side, x:x + side], alpha=alpha)
            own = {order: np.atleast_1d(part.spatial(*order)).tolist() for order in _ORDERS}
            if whole:
                own = {order: list(map(int, values)) for order, values in own.items()}
            for order in _ORDERS:
                moved = _moved(own, order, (x + place[1], y + place[0]))
                total[order] = [a + b for a, b in zip(total[order], moved)] if order in total else moved
    return total


def _moved(raw: Any, order: tuple[int, int], offset: Any) -> list[Any]:
    """A moment of what lies at an offset."""
    m, n = order
    return [sum(math.comb(m, i) * math.comb(n, j) * offset[0]**(m - i) * offset[1]**(n - j) * raw[i, j][c]
                for i in range(m + 1) for j in range(n + 1)) for c in range(len(raw[0, 0]))]


def _moments_added(totals: Any) -> Any:
    return {order: _sum_of([total[order] for total in totals]) for order in _ORDERS}


def _moment(raw: Any, order: tuple[int, int], offset: Any, normalized: bool) -> Any:
    """offset None: about the centre of mass."""
    values = []
    for c, mass in enumerate(raw[0, 0]):
        own = {key: [Fraction(value[c]) if math.isfinite(value[c]) else value[c]] for key, value in raw.items()}
        if (offset is None or normalized) and not abs(mass) > 2.220446049250313e-16:
            _front.fail("moments", "MomentTooSmall", "the pixels sum to 0")
        place = offset if offset is not None else (-own[1, 0][0] / own[0, 0][0], -own[0, 1][0] / own[0, 0][0])
        value = float(_moved(own, order, place)[0])
        with np.errstate(invalid="ignore"):
            values.append(value * np.float64(mass) ** (-(sum(order) + 2) / 2) if normalized else value)
    return values


def _hu(raw: Any) -> Any:
    (u20, u11, u02, u30, u21, u12, u03) = (np.array(_moment(raw, order, None, True)) for order in (
        (2, 0), (1, 1), (0, 2), (3, 0), (2, 1), (1, 2), (0, 3)))
    d, a, b, c, e = u20 - u02, 3 * u21 - u03, u30 - 3 * u12, u30 + u12, u21 + u03
    # The square of the fifth is of u12 + u03, as in C.
    return np.stack([u20 + u02, u11 * (4 * u11) + d * d, b * b + a * a, c * c + e * e,
                     b * c * ((u12 + u03) * (u12 + u03) - 3 * e * e) + a * e * (3 * c * c - e * e),
                     d * (c * c - e * e) + 4 * u11 * c * e,
                     a * c * (c * c - 3 * e * e) - b * e * (3 * c * c - e * e)], axis=-1)


class Moments:
    """The moments of an image up to the third order, each a dask array. Those of integers are of exact sums, and
    spatial ones have the bits of one call where doubles hold that exactly; those of floats depend on the chunks in last
    bits."""

    def __init__(self, a: Any, alpha: str | None = None) -> None:
        image = _plain("moments", a)
        image = image if image.ndim > 1 else image[None]
        kind = _kind(_plans.moments, _pixels(image), alpha=alpha)
        self.channels = kind.channels
        self._total = _total("moments", [image], partial(_moments_of, kind="float", alpha=alpha), _moments_added)

    def _get(self, order: tuple[int, int], offset: Any, normalized: bool) -> da.Array:
        if order not in _ORDERS:
            refuse("moments", "orders are not negative, and 3 together at most")
        shape = (self.channels,) if self.channels > 1 else ()
        finish = partial(_moment, order=order, offset=offset, normalized=normalized)
        return _number(self._total, finish, shape, np.float64)

    def spatial(self, x_order: int, y_order: int, offset: Any = (0, 0)) -> da.Array:
        """sum(p * (x + offset[0])**x_order * (y + offset[1])**y_order)"""
        return self._get((x_order, y_order), _front.pair("moments", "offset", offset), False)

    def normalized_spatial(self, x_order: int, y_order: int, offset: Any = (0, 0)) -> da.Array:
        return self._get((x_order, y_order), _front.pair("moments", "offset", offset), True)

    def central(self, x_order: int, y_order: int) -> da.Array:
        return self._get((x_order, y_order), None, False)

    def normalized_central(self, x_order: int, y_order: int) -> da.Array:
        return self._get((x_order, y_order), None, True)

    @property
    def hu(self) -> da.Array:
        """Seven numbers that hardly change when a shape is moved, scaled or turned."""
        return _number(self._total, _hu, (self.channels, 7) if self.channels > 1 else (7,), np.float64)


def moments(a: Any, *, alpha: str | None = None) -> Moments:
    """The moments of an image."""
    return Moments(a, alpha)


# ---- Plans -----------------------------------------------------------------------------------------------------------


def _method(plan: Any, method: str, *arguments: Any, **options: Any) -> Any:
    return getattr(plan, method)(*arguments, **options)


class _Transform:
    """A plan of hux, for dask arrays of its shape. Each call runs as one task on the whole image; with blockwise=True
    blocks of the plan's shape are transformed each by itself, of images whose sides are multiples of it."""
    _kind: Any

    def __init__(self, shape: Any, **options: Any) -> None:
        self.plan = self._kind(shape, **options)
        self.shape = self.plan.shape
        self._small = self._kind((2,) * len(self.shape), **options)

    def __reduce__(self) -> Any:
        return _transform, (type(self).__name__, self.plan._arguments)

    def _call(self, method: str, a: Any, blockwise: bool, options: Any) -> da.Array:
        name, axes = f"{self._kind.__name__}.{method}", len(self.shape)
        image = _plain(name, a)
        sample = _pixels(image, 2, 2)
        kind = _kind(getattr(self._small, method), sample, **options)
        call, channels = partial(_method, self.plan, method), kind.shape[axes:]
        if blockwise and all(side % own == 0 for side, own in zip(image.shape, self.shape)):
            image = image.rechunk((*self.shape, *image.shape[axes:]))
            return _blockwise(_on_blocks, [image], channels, kind.dtype, call=call, counts=[0], options=options)
        if blockwise or image.shape[:axes] != self.shape:
            refuse(name, f"the plan is for arrays of {self.shape}, not {image.shape}")
        return _whole(name, call, [image], (*self.shape, *channels), kind.dtype, options=options)

    def forward(self, a: Any, *, blockwise: bool = False, **options: Any) -> da.Array:
        """The spectrum."""
        return self._call("forward", a, blockwise, options)

    def inverse(self, a: Any, *, blockwise: bool = False, **options: Any) -> da.Array:
        """The array of a spectrum."""
        return self._call("inverse", a, blockwise, options)


def _transform(name: str, arguments: Any) -> Any:
    return globals()[name](*arguments[:-1], **arguments[-1])


class DFT(_Transform):
    __doc__ = f"{_plans.DFT.__doc__}\n{_Transform.__doc__}"
    _kind = _plans.DFT

    def unpack(self, spectrum: Any, *, blockwise: bool = False) -> da.Array:
        """What numpy.fft.fft2 returns, of a packed spectrum."""
        return self._call("unpack", spectrum, blockwise, {})

    def pack(self, full: Any, *, blockwise: bool = False) -> da.Array:
        """The packed spectrum of what numpy.fft.fft2 returns."""
        return self._call("pack", full, blockwise, {})


class FFT(DFT):
    __doc__ = f"{_plans.FFT.__doc__}\n{_Transform.__doc__}"
    _kind = _plans.FFT


class DCT(_Transform):
    __doc__ = f"{_plans.DCT.__doc__}\n{_Transform.__doc__}"
    _kind = _plans.DCT


def _half(side: int) -> int:
    return side // 2


def _double(side: int) -> int:
    return 2 * side


def _bands(a: Any, plan: Any, method: str, border: str) -> Any:
    """Sub-bands lie one after another in the last axis."""
    if method == "forward":
        bands = plan.forward(a, border=border)
        return np.concatenate(bands, axis=-1) if a.ndim > 2 else np.stack(bands, axis=-1)
    return plan.inverse(np.split(a, 4, axis=-1) if a.shape[2] > 4 else np.moveaxis(a, -1, 0), border=border)


class WT:
    __doc__ = f"""{_plans.WT.__doc__}
    Images are taken by blocks that see as far as the taps reach, and may be of any size. The result has the bits of one
    call, however they are chunked; blocks of an image are twice as wide and high as those of its sub-bands.
    """

    def __init__(self, forward: Any, inverse: Any = None) -> None:
        self.plan = _plans.WT(forward, inverse)

    def __reduce__(self) -> Any:
        return _transform, ("WT", self.plan._arguments)

    def forward(self, a: Any, *, border: str = "wrap") -> tuple[da.Array, ...]:
        """The approximation, and the details in x, in y, and in both."""
        image = _plain("WT.forward", a)
        _kind(self.plan.forward, _pixels(image, 2, 2), border=border)
        if any(side % 2 for side in image.shape[:2]):
            refuse("WT.forward", "the sides are even")
        reach = [side + side % 2 for side in self.plan._reach("Fwd")]
        # Blocks begin at even rows and columns.
        chunks, least = [], max(reach) // 2 + 1
        for sides in image.chunks[:2]:
            halves = tuple(np.diff(np.unique(np.r_[0, np.cumsum(sides) // 2])).tolist())
            halves = ensure_minimum_chunksize(least, halves) if least <= builtins.sum(halves) else (-1,)
            chunks.append(tuple(map(_double, halves)) if halves != (-1,) else -1)
        count = math.prod(image.shape[2:])
        made = self._call("forward", image.rechunk(dict(enumerate(chunks))), reach, (4 * count,), border, _half)
        return tuple(made[..., k * count:(k + 1) * count] if image.ndim > 2 else made[..., k] for k in range(4))

    def inverse(self, bands: Any, *, border: str = "wrap") -> da.Array:
        """The image of four sub-bands."""
        images = [_plain("WT.inverse", band) for band in bands]
        images[1:] = [_image("WT.inverse", image, images[0]) for image in images[1:]]
        if len(images) != 4 or any(image.shape != images[0].shape for image in images):
            refuse("WT.inverse", "four sub-bands of one shape are expected")
        _kind(self.plan.inverse, [_pixels(image, 2, 2) for image in images], border=border)
        joined = (da.concatenate if images[0].ndim > 2 else da.stack)(images, axis=-1).rechunk({2: -1})
        return self._call("inverse", joined, self.plan._reach("Inv"), images[0].shape[2:], border, _double)

    def _call(self, method: str, a: da.Array, reach: Sequence[int], channels: tuple[int, ...], border: str,
              scaled: Callable[[int], int]) -> da.Array:
        before, after = reach
        wrap = _front.mode_of(f"WT.{method}", border) == _front.BORDERS["wrap"]
        if wrap and max(reach) > min(a.shape[:2]):
            a, wrap = a.rechunk({0: -1, 1: -1}), False
        return _overlapped(a, _bands, (before, before, after, after), channels, np.dtype(np.float32), scaled=scaled,
                           border="wrap" if wrap else "own", own=(self.plan, method, border))


class _Deconvolution:
    """A plan of hux, for dask arrays of up to its shape. A call runs as one task on the whole image. With
    blockwise=True and overlap=(columns, rows) it restores blocks, each with so much around it, of together up to the
    plan's shape: what lies further away has no part in a pixel, and false edges are cut off with the overlap."""
    _kind: Any

    def __init__(self, kernel: Any, shape: Any, **options: Any) -> None:
        self.plan = self._kind(kernel, shape, **options)
        self.shape = self.plan.shape

    def __reduce__(self) -> Any:
        return _transform, (type(self).__name__, self.plan._arguments)

    def __call__(self, a: Any, *arguments: Any, blockwise: bool = False, overlap: Any = None) -> da.Array:
        name = self._kind.__name__
        image = _plain(name, a)
        _kind(self.plan, _pixels(image), *arguments)
        call, channels = self.plan, image.shape[2:]
        if not blockwise:
            if any(side > own for side, own in zip(image.shape, self.shape)):
                _front.fail(name, "BadSize", f"the plan is for arrays of up to {self.shape}")
            return _whole(name, call, [image], image.shape, image.dtype, own=arguments)
        if overlap is None:
            refuse(name, "by blocks needs overlap=, the columns and rows around a block with a part in it", TypeError)
        x, y = _overlap(name, overlap)
        most = self.shape[0] - 2 * y, self.shape[1] - 2 * x
        if min(most) < 1:
            refuse(name, f"overlap={overlap} leaves nothing of blocks of {self.shape}")
        if any(max(sides) > own for sides, own in zip(image.chunks, most)):
            image = image.rechunk((*(min(own, side) for own, side in zip(most, image.shape)), *channels))
        return _overlapped(image, call, (x, y, x, y), channels, image.dtype, border="own", own=arguments)


class DeconvFFT(_Deconvolution):
    __doc__ = f"{_plans.DeconvFFT.__doc__}\n\n{_Deconvolution.__doc__}"
    _kind = _plans.DeconvFFT


class DeconvLR(_Deconvolution):
    __doc__ = f"{_plans.DeconvLR.__doc__}\n\n{_Deconvolution.__doc__}"
    _kind = _plans.DeconvLR


# ---- The module ------------------------------------------------------------------------------------------------------

_SAME = "The result has the bits of one call on the whole image, however it is chunked."
_TASK = "Runs as one task on the whole image, with the bits of one call, and a warning above 1 GiB."
_TILES = "Takes images whose sides are multiples of 8, tile by tile."
_MEASURE = """Of integers the result has the bits of one call wherever that does not wrap, however the image is chunked;
sums of floats depend on the chunks in their last bits, and so do extremes where there are NaNs."""
_BY_PARTS = """blockwise=True, overlap=(columns, rows) makes each block of the result of the source at its place and so
far beyond: pixels that come from further away stay 0. resize and resize_shift need no overlap by blocks; their
positions are products then, not sums of steps, so that last bits may differ. chunks= are those of the result."""
_BY_SECOND = """blockwise=True works by blocks that overlap by the second image, of the full and the valid extent; last
bits of floats differ then."""
# By kind: what runs it, and what it promises.
_KINDS: dict[str, tuple[Callable[..., Any], str]] = {
    "points": (_points, _SAME), "moves": (_points, _SAME), "levels": (_points, _SAME), "palette": (_points, _SAME),
    "window": (_windows, _SAME), "blocks": (_tiles, f"{_TILES} {_SAME}"), "measure": (_measures, _MEASURE),
    "geometry": (_geometry, f"{_TASK}\n{_BY_PARTS}"), "border": (_borders, _TASK),
    "convolution": (_two, f"{_TASK}\n{_BY_SECOND}"), "match": (_two, f"{_TASK}\n{_BY_SECOND}")}


class Operation:
    """An operation of hux on dask arrays."""

    def __init__(self, operation: Any) -> None:
        self.operation, self.__name__ = operation, operation.__name__
        rule = RULES[self.__name__]
        self._run, promise = _KINDS[rule["kind"]]
        if rule["kind"] == "levels" and not rule.get("local"):
            self._run, promise = _counters, _SAME.replace("bits", "counts") + " Counts are int64."
        elif rule.get("placed"):
            promise = _TASK
        elif self.__name__ in ("resize_sqr_pixel", "remap"):
            promise = f"{_SAME} Each block is made of a rectangle of the source" + (
                ", for which the maps are looked at when it is called." if self.__name__ == "remap" else ".")
        elif rule.get("running") and rule["kind"] == "window":
            types = ", ".join(_front.CODE_NAMES[code] for code in rule["running"])
            promise += f"\nExcepted are {types} where sums of floats run on from row to row."
        elif self.__name__.startswith("sum_window"):
            promise += "\nExcepted are sums beyond 2**24, which run on along rows or columns, and are rounded."
        elif rule.get("total") == "alike":
            promise = "The last bits of the result depend on the chunks."
        self.__doc__ = f"{promise}\n\n{operation.__doc__}"

    def __call__(self, *arguments: Any, **options: Any) -> Any:
        if options.get("out") is not None:
            refuse(self.__name__, "has no out=; a result is a new dask array", TypeError)
        options.pop("out", None)
        return self._run(self.__name__, arguments, options)

    def __reduce__(self) -> Any:
        return _of_name, (self.__name__,)

    def __repr__(self) -> str:
        return f"<operation hux.dask.{self.__name__}>"


def _of_name(name: str) -> Operation:
    return _lazy[name]


# The operations do not stand among the names of this file, where some would hide builtins.
_operations: dict[str, Any] = {name: getattr(hux, name) for name in RULES}
_lazy = {name: Operation(operation) for name, operation in _operations.items() if RULES[name]["kind"] in _KINDS}


def __getattr__(name: str) -> Any:
    if name in _lazy:
        return _lazy[name]
    raise AttributeError(f"module 'hux.dask' has no attribute {name!r}")


def __dir__() -> list[str]:
    return sorted({*globals(), *_lazy})


def norm(a: Any, b: Any = None, *, ord: int | str = 2, relative: bool = False, **options: Any) -> da.Array:
    """As hux.norm: norm_l2, norm_diff_inf, ..."""
    return _lazy[_short.norm_name(b is not None, ord, relative)](*((a,) if b is None else (a, b)), **options)


def match(a: Any, tpl: Any, *, method: str = "ncc", extent: str = "valid", **options: Any) -> da.Array:
    """As hux.match: how well a template matches at each place, as float32."""
    return _lazy[_short.match_name(method, extent)](a, tpl, dtype=np.float32, **options)


def convolve(a: Any, b: Any, *, extent: str = "full", divisor: int | None = None, **options: Any) -> da.Array:
    """As hux.convolve: conv_full, or by extent="valid" conv_valid."""
    return _lazy[_short.convolve_name(extent)](a, b, divisor, **options)


__all__ = [name for name in _lazy if not hasattr(builtins, name)] + [
    "DCT", "DFT", "DeconvFFT", "DeconvLR", "FFT", "Moments", "WT", "convolve", "histogram", "match", "moments", "norm"]
