"""Every function of the library as C declares it, through ctypes.

    from hux import c
    status = c.huxiAdd_8u_C1RSfs(a, a.strides[0], b, b.strides[0], out, out.strides[0], (width, height), 0)
    assert status == c.huxStsOk

Functions, enumerators, statuses, structures and variables bear their C names; help(c.huxiAdd_8u_C1RSfs) shows the
prototype and the header's comment. Nothing is checked beyond the types of the arguments: sizes, steps and the lives of
arrays are the caller's affair, as in C.

  a pointer to elements   an array of that element type (complex integers: of two integers to an element; booleans count
                          as bytes), a view's first element being the one pointed to; None; an address; a ctypes pointer
                          or array. An array that may not be written is refused where the function writes.
  an array of pointers    a sequence of as many of the above
  a structure by value    the structure, or a tuple of its fields; of complex ones also a Python number
  a context               POINTER(c.HuxiMomentRecord_64f)(), and ctypes.byref of it where the function makes one
  what is returned        a status and other numbers as int; allocated memory as an address
"""
import ctypes
import json
from pathlib import Path
from typing import Any

from ._where import CORE, IMAGES

_registry = json.loads(Path(__file__).with_name("registry.json").read_text())
_core = ctypes.CDLL(CORE)
_images = ctypes.CDLL(IMAGES)

_NUMBERS = {"char": ctypes.c_char, "const char*": ctypes.c_char_p, "int": ctypes.c_int, "uint8_t": ctypes.c_uint8,
            "int8_t": ctypes.c_int8, "uint16_t": ctypes.c_uint16, "int16_t": ctypes.c_int16,
            "uint32_t": ctypes.c_uint32, "int32_t": ctypes.c_int32, "int64_t": ctypes.c_int64,
            "float": ctypes.c_float, "double": ctypes.c_double}
# What numpy calls the elements of an array that a pointer may point to.
_CODES = {"8u": ("|u1", "|b1"), "8s": ("|i1",), "16u": ("<u2",), "16s": ("<i2",), "32u": ("<u4",), "32s": ("<i4",),
          "int": ("<i4",), "64s": ("<i8",), "32f": ("<f4",), "64f": ("<f8",), "16sc": ("<i2",), "32sc": ("<i4",),
          "32fc": ("<c8",), "64fc": ("<c16",)}
_types: dict[str, Any] = dict(_NUMBERS)


class _Record(ctypes.Structure):
    """A structure; where one is an argument, a tuple of its fields will do."""

    @classmethod
    def from_param(cls, value):
        if isinstance(value, cls):
            return value
        if isinstance(value, complex) and len(cls._fields_) == 2:
            value = (value.real, value.imag)
        if not isinstance(value, tuple) or len(value) != len(cls._fields_):
            raise TypeError(f"{cls.__name__} or a tuple of {len(cls._fields_)} expected, not {value!r}")
        return cls(*value)

    def __repr__(self):
        return f"{type(self).__name__}({', '.join(f'{name}={getattr(self, name)!r}' for name, _ in self._fields_)})"


def _address(value, element, const):
    """What ctypes passes for a pointer to elements."""
    array = getattr(value, "__array_interface__", None)
    if array is None:
        if const and isinstance(value, bytes):
            return ctypes.c_char_p(value)
        return ctypes.c_void_p.from_param(value)
    address, read_only = array["data"]
    code, fields = array["typestr"], array["descr"]
    # Structured elements, as complex integers are, say what their parts are in the description alone.
    if element.endswith("sc") and len(fields) == 2 and fields[0][1] == fields[1][1] and code[1:2] == "V":
        code = fields[0][1]
    if code not in _CODES[element]:
        raise TypeError(f"array of {element} expected, not of {getattr(value, 'dtype', code)}")
    if read_only and not const:
        raise TypeError("the function writes here, and the array is read-only")
    return ctypes.c_void_p(address)


_pointers = {}


def _pointer_to(element, const):
    if (element, const) not in _pointers:
        _pointers[element, const] = type(f"{'const ' if const else ''}Hux{element}*", (), {
            "from_param": staticmethod(lambda value: _address(value, element, const))})
    return _pointers[element, const]


def _planes_of(element, const, count):
    def from_param(value):
        if value is None or isinstance(value, ctypes.Array):
            return ctypes.c_void_p.from_param(value)
        if len(value) != count:
            raise TypeError(f"{count} planes expected, not {len(value)}")
        return (ctypes.c_void_p * count)(*(_plain(_address(plane, element, const)) for plane in value))

    return type(f"Hux{element}*[{count}]", (), {"from_param": staticmethod(from_param)})


def _plain(argument):
    """The address alone, of whatever from_param gave."""
    return ctypes.cast(argument, ctypes.c_void_p).value if argument is not None else None


def _type(text):
    """The ctypes type of a type in C: of numbers, structures and pointers to structures."""
    text = text.strip()
    if text in _types:
        return _types[text]
    if text.endswith("]"):
        return _type(text[: text.index("[")]) * int(text[text.index("[") + 1 : -1])
    if text == "void*":
        return ctypes.c_void_p
    if text.endswith("*"):
        return ctypes.POINTER(_type(text[:-1].removeprefix("const ")))
    return _types[text.removeprefix("const ")]


def _parameter(p):
    if p["kind"] == "planes":
        return _planes_of(p["element"], p["const"], p["extents"][0])
    if p["kind"] == "pointer" and p["element"]:
        return _pointer_to(p["element"], p["const"])
    return _type(p["type"])


for _entry in _registry["types"]:
    _types[_entry["name"]] = _types[_entry["alias"]]
for _entry in _registry["records"]:
    _own = type(_entry["name"], (_Record,), {"__doc__": _entry["comment"] or None})
    _types[_entry["name"]] = globals()[_entry["name"]] = _own
for _entry in _registry["records"]:
    if _entry["fields"] is not None:
        _types[_entry["name"]]._fields_ = [(f["name"], _type(f["type"])) for f in _entry["fields"]]
for _entry in [v for e in _registry["enumerations"] for v in e["values"]] + _registry["statuses"]:
    globals()[_entry["name"]] = _entry["value"]

_functions = {f["name"]: f for f in _registry["functions"]}
_variables = {v["name"]: v for v in _registry["variables"]}


def _symbol(name, find):
    for library in (_core, _images):
        try:
            return find(library)
        except (AttributeError, ValueError):
            pass
    raise ImportError(f"the library has no {name}: it is not the one that this module was made for")


def __getattr__(name):
    """Functions are made when they are first asked for."""
    if name in _functions:
        entry = _functions[name]
        function = _symbol(name, lambda library: library[name])
        function.argtypes = [_parameter(p) for p in entry["parameters"]]
        returns = entry["returns"]["type"]
        memory = entry["returns"]["element"] and returns.endswith("*")
        function.restype = None if returns == "void" else ctypes.c_void_p if memory else _type(returns)
        function.__doc__ = f"{entry['signature']}\n\n{_registry['groups'][entry['group']]['comment']}"
        value = function
    elif name in _variables:
        value = _symbol(name, lambda library: _type(_variables[name]["type"]).in_dll(library, name))
    else:
        raise AttributeError(f"module {__name__!r} has no attribute {name!r}")
    globals()[name] = value
    return value


def __dir__():
    return sorted({*(n for n in globals() if n.startswith(("hux", "Hux"))), *_functions, *_variables})
