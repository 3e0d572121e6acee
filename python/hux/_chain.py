"""Chains: several calls, one pass over memory, all cores.

What a function does to images is recorded by the operations themselves, once for each kind of images: on an image that
stands for others (Image), a call runs on one row of ones, which tells what it gives, or that it is refused; which
function of the library it came to, and with what, is noted (_hux.noted). The notes become steps over bands of rows
(_Plan), which the extension module runs by the runner of the C++ front (src/chain.cpp).
"""
from __future__ import annotations

import struct
from collections.abc import Callable
from importlib import import_module
from typing import Any

import numpy as np
from numpy.typing import NDArray

from . import _front, _hux
from ._front import BORDERS, array, fail, refuse
from ._table import FUNCTIONS, RULES

_own = {operation.__name__: operation for operation in _hux.operations}
_FUNCTION_NAMES = list(FUNCTIONS)
# Local besides those that are in all languages.
_LOCAL = ("alpha_comp", "alpha_premul", "copy", "set", "dup", "zero")
# Measures that bands add up to, and how: + sums, < the least, > the greatest. Floats tell by their order.
_MEASURES = {"sum": "+", "count_in_range": "+", "histogram_range": "+", "min": "<", "max": ">", "min_max": "<>"}
_END = "so no chain has it: end the chain before it, and call it on what the chain gives"
_ADVICE = "is not local, " + _END
_IN_ORDER = "depends on the order of the pixels, " + _END
_TYPES = " B HhIifd"  # of numbers, by Type in table.h
_LETTERS = {"pSrc": "a", "srcStep": "A", "pDst": "o", "dstStep": "O", "roiSize": "S", "dstRoiSize": "S",
            "pSrcDst": "o", "srcDstStep": "O"}
_ZEROS = "zeros"
_NONE = (0, 0, 0, 0)


class Image:
    """An image of a chain while it is recorded: operations take it, and give others. It has no pixels."""

    __array_ufunc__ = None

    def __init__(self, recorder: _Recorder, dtype: np.dtype, tail: tuple[int, ...]) -> None:
        self._recorder, self.dtype = recorder, dtype
        self.shape = (recorder.height, recorder.width, *tail)

    @property
    def ndim(self) -> int:
        return len(self.shape)

    def __getitem__(self, key: Any) -> Image:
        """a[..., k]: one channel."""
        if not isinstance(key, tuple) or len(key) not in (2, 3) or self.ndim != 3 or not hasattr(key[-1], "__index__") or \
                any(k is not Ellipsis and k != slice(None) for k in key[:-1]) or \
                not -self.shape[2] <= key[-1] < self.shape[2]:
            raise TypeError("an image of a chain is taken as a whole, or by channels: a[..., 0]")
        return self._recorder.call(_own["copy"], (self,), {}, channel=int(key[-1]) % self.shape[2])

    def __array__(self, *_: Any, **__: Any) -> Any:
        raise TypeError("an image of a chain has no pixels: only operations of hux take it")

    __bool__ = __iter__ = __len__ = __array__

    def __repr__(self) -> str:
        return f"<image of a chain, {self.dtype} {self.shape}>"


class Number:
    """What a measure will give when the chain has run."""

    def __init__(self, recorder: _Recorder, fields: list[int], build: Callable[[list[bytes]], Any]) -> None:
        self._recorder, self._fields, self._build = recorder, fields, build

    def __repr__(self) -> str:
        return "<number of a chain>"


class _Step:
    """A call: a, b, start and o are images, of which several are planes; start is what the result starts as."""

    def __init__(self, operation, function, program, values, a, b, o, mask, offset, start, reach, border, fields, kept):
        self.operation, self.function, self.program, self.values = operation, function, program, values
        self.a, self.b, self.o, self.mask, self.offset, self.start = a, b, o, mask, offset, start
        self.reach, self.border, self.fields, self.kept = reach, border, fields, kept

    def sources(self):
        return (*self.a, *self.b, *self.mask, *(self.start if self.start != _ZEROS else ()))


class _Recorder:
    """What a function does to images of one height and width."""

    def __init__(self, height, width):
        self.height, self.width = height, width
        self.images = []  # Image
        self.steps = []

    def image(self, dtype, tail):
        self.images.append(Image(self, dtype, tail))
        return self.images[-1]

    def taken(self, name, value):
        """The images that an argument stands for, and a row of ones in its place."""
        if isinstance(value, Image):
            if value._recorder is not self:
                refuse(name, "an image of another chain, or of a call that has ended")
            return (value,), np.ones((1, self.width, *value.shape[2:]), value.dtype)
        if isinstance(value, Number):
            refuse(name, "a number that is known only when the chain has run: end the chain there", TypeError)
        if isinstance(value, (tuple, list)) and any(isinstance(v, (Image, Number)) for v in value):
            if not all(isinstance(v, Image) for v in value):
                refuse(name, "planes are images of the chain, all of them", TypeError)
            both = [self.taken(name, v) for v in value]
            return tuple(image for own, _ in both for image in own), [probe for _, probe in both]
        return (), value

    def call(self, operation, arguments, options, channel=None):
        name = operation.__name__
        try:
            return self.noted(name, operation, arguments, options, channel)
        except Exception as error:
            error.add_note(f"{name} is call {len(self.steps) + 1} of the chain")
            raise

    def noted(self, name, operation, arguments, options, channel):
        rule = RULES[name]
        if name == "histogram_even":  # its levels are known
            _, probe = self.taken(name, arguments[0])
            levels = operation(probe, *arguments[1:], **options)[1]
            lists = list(levels) if np.ndim(levels[0]) else levels
            alpha = {"alpha": options["alpha"]} if "alpha" in options else {}
            return self.noted("histogram_range", _own["histogram_range"], (arguments[0], lists), alpha, None), levels
        if not (rule.get("local") or name in _LOCAL or name in _MEASURES):
            refuse(name, self.no_measure(name, arguments) if rule["kind"] == "measure" else _ADVICE, TypeError)
        if rule["kind"] == "window" and options.get("border", "") is None:
            refuse(name, "border=None gives a smaller image, and all of a chain have one size: take a border")
        if rule["kind"] != "window" and any(isinstance(a, np.ndarray) and a.ndim > 1 for a in arguments):
            refuse(name, "an array is no image of the chain: arrays enter by its arguments", TypeError)
        both = [self.taken(name, value) for value in arguments]
        operands, probes = [own for own, _ in both], [probe for _, probe in both]
        if channel is not None:
            probes[0] = probes[0][..., channel]
        given, onto, start, mask = dict(options), (), (), ()
        for key, value in options.items():
            own, given[key] = self.taken(name, value)
            if not own:
                if key in ("out", "mask") and value is not None:
                    refuse(name, f"{key}= is an image of the chain here; arrays enter by its arguments", TypeError)
            elif key == "out" and len(own) == 1 and ("mask" in options or not operands):
                start = onto = own
            elif key == "mask" and len(own) == 1:
                mask = own
            else:
                refuse(name, f"no {key}= within a chain: a call gives a new image" if key == "out" else
                       f"no image for {key}=", TypeError)
        result, notes = _hux.noted(operation, tuple(probes), given)
        if len(notes) != 1:
            refuse(name, _ADVICE, TypeError)
        index, note = notes[0][0], notes[0]
        kept, fields, border, reach = [], (), None, _NONE
        if len(note) == 6:
            _, program, fixed, begins, numbers, around = note
            values = b"".join(_address(np.frombuffer(own, np.uint8), kept) if pointed else own for own, pointed in fixed)
            if begins and not onto:
                start = operands[0] if begins == 1 else _ZEROS
            if numbers:
                fields = tuple((_TYPES[kind], merge, count)
                               for (kind, count), merge in zip(numbers, _MEASURES[name] * len(numbers)))
            if rule["kind"] == "window":
                mode, filler, reach, local = around
                border, reach = (mode, filler), tuple(max(r, 0) for r in reach)
                if not local:
                    refuse(name, f"on {operands[0][0].dtype}, by sums of floats that run on from the first row, {_ADVICE}",
                           TypeError)
        else:
            member = next(m for m in _front.members[name] if m.index == index)
            program, values = "", b""
            for parameter, letter, value in zip(member.parameters, member.letters, note[1]):
                if parameter == "pHist":
                    tables = value if isinstance(value, tuple) else (value,)
                    fields = tuple(("i", "+", table.size) for table in tables)
                    program += "x" if len(tables) == 1 else "h"
                elif parameter in _LETTERS:
                    program += _LETTERS[parameter]
                else:
                    program += "="
                    values += _encoded(letter, value, kept)
            if member.layout == "AC4" and not fields:
                start = operands[0] if result.dtype == operands[0][0].dtype else _ZEROS
        operands += [()] * 2
        a, b = (operands[i] if letter in program else () for i, letter in enumerate("ab"))
        if bool(a) != ("a" in program) or bool(b) != ("b" in program):
            refuse(name, "an array is no image of the chain: arrays enter by its arguments", TypeError)
        if fields and name != "count_in_range" and name != "histogram_range" and a[0].dtype.kind not in "iu":
            refuse(name, f"of {a[0].dtype} {_IN_ORDER}", TypeError)
        offset = channel * a[0].dtype.itemsize if channel is not None else 0
        if fields:
            made, numbers = (), self.numbers(name, fields, result)
        else:
            planes = onto or (result if isinstance(result, tuple) else (result,))
            numbers = made = tuple(self.image(p.dtype, p.shape[2:]) for p in planes)
        self.steps.append(_Step(name, index, program, values, a, b, made, mask, offset, start, reach, border, fields, kept))
        return numbers if fields or len(made) > 1 else made[0]

    @staticmethod
    def no_measure(name, arguments):
        """Why chains do not have a measure."""
        kind = next((a.dtype for a in arguments if isinstance(a, Image)), None)
        if name == "mean" and kind is not None:
            return f"of {kind} {_IN_ORDER}" if kind.kind not in "iu" else \
                f"of {kind} is their sum over their number: take hux.sum in the chain, and divide what it gives"
        return f"is not made of the numbers of bands as {', '.join(_MEASURES)} are, {_END}"

    def numbers(self, name, fields, result):
        first = sum(len(step.fields) for step in self.steps)
        dtypes = [np.dtype(kind) for kind, _, _ in fields]

        def one(k, parts):
            values = np.frombuffer(parts[0], dtypes[k])[:fields[k][2]].copy()
            return values if len(values) > 1 or name == "histogram_range" else values[0].item()

        def tables(parts):
            own = [one(k, [part]) for k, part in enumerate(parts)]
            return own[0] if len(own) == 1 else np.array(own) if len({len(t) for t in own}) == 1 else own

        if name == "histogram_range":
            return Number(self, list(range(first, first + len(fields))), tables)
        own = [Number(self, [first + k], lambda parts, k=k: one(k, parts)) for k in range(len(fields))]
        return type(result)(*own) if len(own) > 1 else own[0]


def _address(a, kept):
    """Of a copy, which is kept as long as the plan."""
    own = np.array(a, order="C")
    kept.append(own)
    return struct.pack("Pq", own.__array_interface__["data"][0], 0)


def _encoded(letter, value, kept):
    """As a value of the extension module: 16 bytes."""
    if letter == "p":
        if isinstance(value, tuple):
            return _address(np.array([struct.unpack("Pq", _address(v, kept))[0] for v in value], np.uintp), kept)
        return bytes(16) if value is None else _address(value, kept)
    if letter in "SPR":
        return struct.pack(f"{len(value)}i", *(int(v) for v in value)).ljust(16, b"\0")
    kind = {"f": "f", "d": "d", "u": "I", "l": "q"}.get(letter, "i")
    return struct.pack(kind, float(value) if kind in "fd" else int(value)).ljust(16, b"\0")


class _Plan:
    """The values and steps for images of one kind, and what they give."""

    def __init__(self, recorder, inputs, result):
        self.result, self.outputs, numbers = result, [], []
        self.walk(result, self.outputs.append, numbers.append)
        alive, wanted = [], set(self.outputs)
        for step in reversed(recorder.steps):
            if step.fields or wanted & set(step.o):
                alive.append(step)
                wanted |= set(step.sources())
        alive.reverse()
        self.reach, self.wraps = self.reaches(alive, recorder.images)
        self.kinds = [(image.dtype, image.shape) for image in self.outputs]
        # Images are values of the runner's, or planes of one.
        self.values, self.steps, self.given, self.places = [], [], [], {}
        for image in inputs:
            self.value(image)
        for step in alive:
            self.step(step)
        targets, taken = [], set(range(len(inputs)))
        for image in self.outputs:
            value, plane = self.places[image]
            if value in taken or plane >= 0:
                value = self.gathered((image,))
            taken.add(value)
            targets.append(value)
        self.chain = _hux.make_chain(tuple(self.values), tuple(self.given), tuple(range(len(inputs))), tuple(targets),
                                     tuple(self.kinds), (recorder.width, recorder.height), isinstance(result, Image))

    @staticmethod
    def reaches(steps, images):
        """How far around a pixel inputs are read for it; and whether an image is continued by its other side."""
        own = dict.fromkeys(images, _NONE)
        for step in reversed(steps):
            beyond = [max(r) for r in zip(_NONE, *(own[o] for o in step.o))]
            for k, source in enumerate(step.sources()):
                more = step.reach if k == 0 else _NONE
                own[source] = tuple(max(x, y + z) for x, y, z in zip(own[source], beyond, more))
        total = tuple(max(r) for r in zip(_NONE, *own.values()))
        return total, any(step.border and step.border[0] == BORDERS["wrap"] and any(step.reach) for step in steps)

    def value(self, *images):
        """A value of one image, or of the planes that are told."""
        first = images[0]
        self.values.append((first.dtype.itemsize * (first.shape[2] if first.ndim == 3 else 1), len(images)))
        for plane, image in enumerate(images):
            self.places[image] = len(self.values) - 1, plane if len(images) > 1 else -1
        return len(self.values) - 1

    def gathered(self, images):
        """A value of copies of images, which become its planes."""
        sources = tuple((*self.places[image], 0) for image in images)
        self.values.append((self.values[sources[0][0]][0], len(images)))
        self.given.append((-1, "", b"", sources, (-1, -1, -1, -1), len(self.values) - 1, _NONE, (1, b""), ()))
        self.steps.append(_Step("chain", -1, "", b"", images, (), (), (), 0, (), _NONE, None, (), ()))
        return len(self.values) - 1

    def step(self, step):
        sources = []

        def source(images, offset=0):
            """The number of a source; planes are those of one value, in their order."""
            if not images:
                return -1
            value, plane = self.places[images[0]]
            if len(images) > 1:
                planes = [(value, k) for k in range(self.values[value][1])]
                if [self.places[image] for image in images] != planes:
                    value = self.gathered(images)
                plane = -1
            sources.append((value, plane, offset))
            return len(sources) - 1

        numbers = (source(step.a, step.offset), source(step.b), source(step.mask),
                   -2 if step.start == _ZEROS else source(step.start))
        made = self.value(*step.o) if step.o else -1
        self.given.append((step.function, step.program, step.values, tuple(sources), numbers, made, step.reach,
                           step.border or (1, b""), step.fields))
        self.steps.append(step)

    @classmethod
    def walk(cls, result, of_image, of_number):
        if isinstance(result, Image):
            return of_image(result)
        if isinstance(result, Number):
            return of_number(result)
        if isinstance(result, (tuple, list)):
            own = [cls.walk(r, of_image, of_number) for r in result]
            return type(result)(*own) if hasattr(result, "_fields") else type(result)(own)
        return result

    def run(self, arrays, out, threads, rows):
        arrays = tuple([a if a.flags.c_contiguous or _front._plain(a) else np.array(a, order="C") for a in arrays])
        results, given = [], out if isinstance(out, (tuple, list)) else (out,) * (len(self.kinds) if out is None else 1)
        if len(given) != len(self.kinds):
            refuse("chain", f"out has {len(self.kinds)} arrays, one for each image that the chain gives", TypeError)
        outs = []
        for target, (dtype, shape) in zip(given, self.kinds):
            if target is None:
                own = target = np.empty(shape, dtype)
            else:
                own = array("chain", target, True)
                _front.Out.check("chain", own, shape, dtype)
                if any(np.may_share_memory(own, other) for other in results):
                    refuse("chain", "arrays of out share memory")
                if not _front._plain(own):
                    own = np.empty(shape, dtype)
            results.append(target)
            outs.append(own)
        found = _hux.run_chain(self.chain, arrays, tuple(outs), threads, rows)
        if found is None:  # they share rows with inputs that are read when these have been written
            outs = [np.empty_like(own) if any(np.may_share_memory(own, a) for a in arrays) else own for own in outs]
            found = _hux.run_chain(self.chain, arrays, tuple(outs), threads, rows)
        told, measures = found or (None, ())
        if told:
            self.report(told)
        for target, own in zip(results, outs):
            if own is not target:
                np.copyto(target, own)
        return self.built(measures, results)

    def built(self, measures, results):
        images = iter(results)
        return self.walk(self.result, lambda image: next(images),
                         lambda number: number._build([measures[k] for k in number._fields]))

    def again(self, found, results):
        """What _hux.run_again has told, where that is not all."""
        told, measures = found or (None, ())
        if told:
            self.report(told)
        return self.built(measures, results)

    def report(self, told):
        from . import _report
        failed = [(status, step) for status, step in zip(told, self.steps) if status < 0]
        for status, step in failed or [(status, step) for status, step in zip(told, self.steps) if status]:
            _report(status, _FUNCTION_NAMES[step.function], step.operation)


class _Only:
    """Of a function, the image that it gives at a place."""

    def __init__(self, function, k):
        self.function, self.k = function, k

    def __call__(self, *images):
        found = []
        _Plan.walk(self.function(*images), lambda image: found.append(image), lambda number: None)
        return found[self.k]


class _Block:
    """A chain for blocks, with the other arguments in their places."""

    def __init__(self, chain, own):
        self.chain, self.own = chain, own

    def __call__(self, *blocks):
        left = iter(blocks)
        return self.chain(*(next(left) if own is None else own for own in self.own), threads=1)


class Chain:
    """What hux.chain gives: a function of images."""

    def __init__(self, function: Callable[..., Any], rows: int | None = None) -> None:
        self._function, self._rows = function, int(rows or 0)
        self._plans: dict[Any, _Plan] = {}
        self._last: _Plan | None = None
        self.__doc__ = getattr(function, "__doc__", None)
        self.__name__ = getattr(function, "__name__", "chain")

    def __repr__(self) -> str:
        return f"<hux.chain of {self._function!r}>"

    def __reduce__(self) -> Any:
        return Chain, (self._function, self._rows)

    def __call__(self, *images: Any, out: Any = None, threads: int | None = None) -> Any:
        """Runs the chain on arrays (H, W) or (H, W, C) of one height and width, or on lists of planes.

        out      an array for what the chain gives, or a tuple of them; else they are new
        threads  how many share the rows; hux.get_num_threads() of them where it is None
        """
        last = self._last
        if last is not None:  # its plan serves where types, shapes and all else are those of the last call
            made = _hux.run_again(last.chain, images, out, threads, self._rows)
            if made is not NotImplemented:
                return last.again(*made) if type(made) is tuple else made
        if any(hasattr(image, "__dask_graph__") for image in images):
            return self._blockwise(images, out)
        plan, arrays = self._plan(images)
        if plan is None:
            return self._function(*images)
        if threads is not None and threads < 1:
            refuse("chain", f"threads is a number above 0, not {threads!r}")
        return plan.run(arrays, out, threads or 0, self._rows)

    def _blockwise(self, images: tuple[Any, ...], out: Any) -> Any:
        """On dask arrays: block by block, each with the pixels around it that the chain reads."""
        # Found by name, so that checking the types of a program does not mean to look through dask.
        da, edges = import_module("dask.array"), import_module("dask.array.overlap")
        least = edges.ensure_minimum_chunksize
        arrays = [image for image in images if hasattr(image, "__dask_graph__")]
        if out is not None or len(arrays) < sum(hasattr(image, "shape") for image in images):
            refuse("chain", "takes dask arrays alone, if any, and no out= with them", TypeError)
        first, plan = arrays[0], self._settle(images, arrays)
        if plan.wraps:
            refuse("chain", 'border="wrap" within a chain needs the whole image: compute() it before', TypeError)
        if not plan.outputs or any(step.fields for step in plan.steps):
            refuse("chain", "measures have no blocks: end the chain before them, and take those of hux.dask", TypeError)
        left, top, right, bottom = plan.reach
        rows = least(max(top, bottom) + 1, first.chunks[0]) if top + bottom else first.chunks[0]
        columns = least(max(left, right) + 1, first.chunks[1]) if left + right else first.chunks[1]
        blocks = [a.rechunk((rows, columns, *((-1,) * (a.ndim - 2)))) for a in arrays]

        depth, none = {0: (top, bottom), 1: (left, right)}, {0: "none", 1: "none"}
        wide = [edges.overlap(a, depth, none) if any(plan.reach) else a for a in blocks]
        own = tuple(None if hasattr(image, "__dask_graph__") else image for image in images)
        places = [index for k, a in enumerate(wide) for index in (a, (0, 1, 10 + k)[:a.ndim])]

        def made(k, dtype, shape):
            channels = shape[2:]
            whole = da.blockwise(_Block(Chain(_Only(self._function, k), self._rows), own), (0, 1, 2)[:len(shape)], *places,
                                 new_axes={2: channels[0]} if channels else None, concatenate=True, align_arrays=False,
                                 dtype=dtype, meta=np.empty((0,) * len(shape), dtype))
            return edges.trim_internal(whole, depth, none) if any(plan.reach) else whole
        results = iter([made(k, dtype, shape) for k, (dtype, shape) in enumerate(plan.kinds)])
        return plan.walk(plan.result, lambda image: next(results), lambda number: number)

    def reach(self, *images: Any) -> tuple[int, int, int, int]:
        """How far around a pixel such images are read for a pixel of what the chain gives: (left, top, right, bottom)."""
        plan, _ = self._plan(images)
        if plan is None:
            refuse("chain", "the reach of a chain is asked of arrays", TypeError)
        return plan.reach

    def _plan(self, images: tuple[Any, ...]) -> tuple[Any, list[NDArray[Any]]]:
        """The plan for such images, and the arrays in their order; none for images of another chain."""
        arrays: list[Any] = []
        key: list[Any] = []
        for given in images:
            if type(given) is np.ndarray:
                arrays.append(given)
                key.append((given.dtype, given.shape))
            elif isinstance(given, (tuple, list)) and given and isinstance(given[0], np.ndarray):
                planes = [array("chain", plane) for plane in given]
                arrays += planes
                key.append(tuple((plane.dtype, plane.shape) for plane in planes))
            elif isinstance(given, Image) or isinstance(given, (tuple, list)) and given and isinstance(given[0], Image):
                return None, []
            elif given is None or isinstance(given, (str, int, float, complex, tuple, np.generic)):
                key.append((type(given), given))
            else:
                arrays.append(array("chain", given))
                key.append((arrays[-1].dtype, arrays[-1].shape))
        whole = tuple(key)
        plan = self._plans.get(whole)
        if plan is None:
            plan = self._settle(images, arrays)
            if len(self._plans) >= 32:
                self._plans.clear()
            self._plans[whole] = plan
            if len(arrays) == sum(type(image) is np.ndarray for image in images):
                _hux.set_arguments(plan.chain, images)
        self._last = plan
        return plan, arrays

    def _settle(self, images, arrays):
        if not arrays:
            refuse("chain", "takes arrays", TypeError)
        for a in arrays:
            if not 2 <= a.ndim <= 3:
                refuse("chain", f"an image has the shape (H, W) or (H, W, C), not {a.ndim} axes", TypeError)
            if a.shape[:2] != arrays[0].shape[:2]:
                refuse("chain", f"its images have one height and width, not {arrays[0].shape[:2]} and {a.shape[:2]}")
            if not a.size:
                fail("chain", "BadSize", "an empty array")
            if max(a.shape[:2]) >= 2**31 or a[:1].nbytes >= 2**31:
                refuse("chain", "sides and rows of an array end at 2^31 - 1")
        recorder = _Recorder(*arrays[0].shape[:2])
        inputs = []

        def stands(a):
            inputs.append(recorder.image(a.dtype, a.shape[2:]))
            return inputs[-1]

        own = []
        for given in images:
            if isinstance(given, (tuple, list)) and given and isinstance(given[0], np.ndarray):
                own.append(tuple(stands(plane) for plane in given))
            elif given is None or isinstance(given, (str, int, float, complex, tuple, np.generic)):
                own.append(given)
            else:
                own.append(stands(arrays[len(inputs)]))
        _hux.record(1)
        try:
            result = self._function(*own)
        finally:
            _hux.record(-1)
        plan = _Plan(recorder, inputs, result)
        if not plan.outputs and not any(step.fields for step in plan.steps):
            refuse("chain", f"its function gives images or measures of its calls, not {result!r}", TypeError)
        return plan


def chain(function: Callable[..., Any], *, rows: int | None = None) -> Chain:
    """A chain of calls: one pass over memory, all cores, the bits of the calls one by one.

    f = hux.chain(lambda a, b: hux.xor(hux.filter_box(hux.add(a, b, shift=1), (5, 3)), b))
    f(a, b, out=None, threads=None)

    The function is called once for each kind of arguments (types and shapes of arrays; what is no array by its value),
    with images that have no pixels yet: operations record what they would do to them. It gives an image, or a measure
    (sum of integers, min, max, min_max, count_in_range, histogram), or a tuple of them. Then bands of rows run through
    all calls. What is not local (geometry, transforms, matching, sums of floats) is refused by name.

    rows  to a band; as many as stay in the second-level cache where it is None
    """
    if not callable(function):
        raise TypeError(f"chain: a function is expected, not {function!r}")
    return Chain(function, rows)


def _recorded(operation, arguments, options):
    for value in (*arguments, *options.values()):
        for own in value if isinstance(value, (tuple, list)) else (value,):
            if isinstance(own, (Image, Number)):
                return own._recorder.call(operation, arguments, options)
    return NotImplemented


_hux.set_recorder((Image, Number), _recorded)
