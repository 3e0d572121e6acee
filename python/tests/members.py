"""Each function of the library as a call of hux.c, and as the call of the operation that should come to the same."""
import re

import numpy as np

import hux
from hux import c

DTYPES = {"8u": np.uint8, "8s": np.int8, "16u": np.uint16, "16s": np.int16, "32u": np.uint32, "32s": np.int32,
          "32f": np.float32, "64f": np.float64, "16sc": hux.complex_int16, "32sc": hux.complex_int32,
          "32fc": np.complex64, "64fc": np.complex128, "int": np.int32}
OPERATIONS = {name: value for name, value in vars(hux).items() if isinstance(value, hux.Operation)}
CHANNELS = {"C1": 1, "AC1": 1, "C2": 2, "C3": 3, "C4": 4, "AC4": 4, "P3": 3, "P4": 4, "AP4": 4}


def parameter_name(name):
    plain = re.sub(r"^pp?(?=[A-Z]|x[A-Z]|y[A-Z])", "", name)
    plain = re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", plain).lower()
    return {"round_mode": "round", "alpha": "alpha_value", "interpolation": "inter"}.get(plain, plain)


def pixels(shape, dtype, seed):
    random = np.random.default_rng(seed)
    dtype = np.dtype(dtype)
    if dtype.kind == "c":
        return (random.uniform(-3, 3, shape) + 1j * random.uniform(-3, 3, shape)).astype(dtype)
    if dtype.kind == "f":
        return random.uniform(-3, 3, shape).astype(dtype)
    whole = np.zeros(shape, dtype)
    for part in ([whole[name] for name in dtype.names] if dtype.names else [whole]):
        part[...] = random.integers(0, 120, shape)
    return whole


class Image:
    """Of a parameter: what C and what Python is given, and all bytes around."""

    def __init__(self, entry, p, shape, seed):
        dtype = DTYPES[p["element"]]
        layout = p.get("layout") or "C1"
        # Of an interleaved image with a one-channel one, or of two, one channel is meant.
        one = entry["operation"] in ("Copy", "Set") and entry["layout"] and "P" not in entry["layout"] and (
            entry["flags"]["one_channel"] or entry["layout"] in ("C3C1", "C4C1", "C1C3", "C1C4") and layout != "C1")
        self.planes = "P" in layout
        if entry["domain"] == "vector":
            self.all = pixels(shape[1], dtype, seed)
        elif self.planes:
            self.all = pixels((CHANNELS[layout], *shape), dtype, seed)
        else:
            self.all = pixels((*shape, CHANNELS[layout])[:3 if CHANNELS[layout] > 1 else 2], dtype, seed)
        self.c = self.python = list(self.all) if self.planes else self.all[..., 1] if one else self.all
        self.step = 0 if entry["domain"] == "vector" else self.all.strides[1 if self.planes else 0]


def plain(value):
    return complex(*value) if isinstance(value, tuple) else value


def member_call(name, shape=(6, 6)):
    """Arguments in C; the operation's name, sources and keywords; what C writes to and gives, and the operation's out."""
    entry = c._functions[name]
    flags, operation = entry["flags"], entry["operation"]
    arguments, sources, options, images, results, out = [], [], {}, {}, [], None
    reverse = entry["family"] in ("Sub", "Div") and not operation.endswith("C")
    for seed, p in enumerate(entry["parameters"]):
        role, own = p["role"], parameter_name(p["name"])
        if role in ("source", "destination", "source_destination"):
            turned = operation == "Transpose" and role == "destination"
            image = images[p["name"]] = Image(entry, p, shape[::-1] if turned else shape, seed)
            arguments.append(image.c)
            if role == "source":
                sources.append(image.python)
            else:
                out = image
        elif role == "mask":
            options["mask"] = pixels(shape, np.uint8, seed) % 2 * 255
            arguments.append(options["mask"])
        elif role == "step":
            arguments.append(images[p["of"][0]].step if p["of"][0] in images else options["mask"].strides[0])
        elif role == "size":
            arguments.append(shape[::-1])
        elif role == "length":
            arguments.append(shape[1])
        elif role == "scale_factor":
            options["shift"] = 2
            arguments.append(2)
        elif role == "result":
            results.append(np.zeros(p["extents"] or 1, DTYPES[p["element"]]))
            arguments.append(results[-1])
        elif role == "enumeration" or role == "hint":
            words = {"HuxCmpOp": ("<", 0), "HuxiAxis": ("both", 2), "HuxiAlphaType": ("a_top", 3),
                     "HuxRoundMode": ("zero", 0), "HuxAccuracyHint": ("accurate", 2)}
            options[own], number = words[p["type"]]
            arguments.append(number)
        elif role == "channel_order":
            options[own] = [2, 0, 1]
            arguments.append(np.array([2, 0, 1], np.int32))
        elif role == "state":
            options[own] = 77
            arguments.append(np.array([77], np.uint32))
        else:
            element = p["element"] or "int"
            count = {"C3": 3, "AC4": 3, "C4": 4}[entry["destination_layout"]] if p["kind"] == "pointer" else 1
            values = pixels(count, DTYPES[element], seed)
            if values.dtype.names is None and values.dtype.kind in "iu":
                values %= 5
                values += operation.startswith("Div") or 10 * (own == "threshold_gt")
            if values.dtype.kind == "f" and own in ("eps", "v_max", "upper_bound", "threshold_gt"):
                values = np.abs(values) + 4
            if own == "upper_bound" and values.dtype.kind in "iu":
                values += 60
            given = [plain(v) for v in values.tolist()]
            arguments.append(values if p["kind"] == "pointer" else values.tolist()[0])
            given = given if p["kind"] == "pointer" else given[0]
            if own == "value" and operation.endswith(("C", "CScale")):
                sources.append(given)
            else:
                options[own] = given
    if flags["in_place"]:
        sources.insert(1 if entry["family"] == "MulPack" and sources else 0, out.python)
    elif reverse:
        sources.reverse()
    alpha = entry["layout"] and "AC4" in entry["layout"] and not (
        entry["family"] in ("AlphaComp", "AlphaPremul"))
    if alpha:
        options["alpha"] = "keep"
    return entry, arguments, sources, options, out, results
