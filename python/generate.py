#!/usr/bin/python3
"""Makes the Python module's tables from the registry, tools/rules.toml and tools/fronts.toml.

  generate.py REGISTRY FOLDER      table.cpp, _table.py, _operations.py, __init__.pyi, in FOLDER
  generate.py REGISTRY --reached   which functions the module reaches, by family, and which it does not, with the reason
"""
import json
import math
import os.path
import re
import sys
import textwrap
import tomllib
from collections import Counter
from pathlib import Path

HERE = Path(__file__).resolve().parent
TOOLS = HERE.parent / "tools"
sys.path[:0] = [str(TOOLS), str(TOOLS / "hux")]
import generate as calls  # noqa: E402
import rules  # noqa: E402

LAYOUTS = {"C1": "kC1", "C2": "kC2", "C3": "kC3", "C4": "kC4", "AC4": "kAC4", "P3": "kP3", "P4": "kP4", "AP4": "kP4"}
# By kind: what decides about the shape of the results of the operations that the extension module runs.
NATIVE = {"points": "pixels", "moves": "pixels", "measure": "measure", "window": "window", "geometry": "geometry",
          "convolution": "convolution", "match": "match"}
# Parameters of the functions that a front fills by itself, by role.
OWN_ROLES = ("constant", "enumeration", "number", "index", "channel_order", "state", "hint")


def snake(name):
    return re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", name).lower()


def python_name(operation):
    """The operation in snake case, without the C of constants and the type of kernels."""
    name = snake(re.sub(r"(32f|64f|64s)$", "", re.sub(r"C(?=Scale$|$)", "", operation)))
    return name + "_" if name in ("and", "or", "not") else name


def parameter_name(c_name):
    """Of a parameter: without the p of pointers."""
    name = snake(re.sub(r"^pp?(?=[A-Z]|x[A-Z]|y[A-Z])", "", c_name))
    return {"round_mode": "round", "alpha": "alpha_value", "interpolation": "inter"}.get(name, name)


def words_of(enumeration):
    names = [v["name"] for v in enumeration["values"] if not v.get("alias")]
    names = [n for n in names if not n.startswith("huxAlgHint")]
    prefix = os.path.commonprefix(names)
    words = {snake(n[len(prefix):]).replace("_x_", "x"): v["value"] for v in enumeration["values"]
             for n in [v["name"]] if n in names}
    if enumeration["name"] == "HuxCmpOp":
        words |= {"<": 0, "<=": 1, "==": 2, ">=": 3, ">": 4}
    return words


class Model:
    """The operations, and how each of their functions is called."""

    def __init__(self, registry):
        self.registry = registry
        self.rules = {}
        for entry in tomllib.loads((TOOLS / "fronts.toml").read_text())["family"]:
            for name in entry["names"]:
                self.rules.setdefault(name, {}).update({k: v for k, v in entry.items() if k != "names"})
        missing = [f["name"] for f in registry["families"] if "kind" not in self.rules.get(f["name"], {})]
        if missing:
            sys.exit(f"generate.py: tools/fronts.toml has no kind for {', '.join(missing)}")
        self.enumerations = {e["name"]: words_of(e) for e in registry["enumerations"] if e["name"]}
        self.operations = {}  # name: Operation
        self.unreached = {}  # name of a function: reason
        for function in registry["functions"]:
            self.add(function)
        for operation in self.operations.values():
            operation.finish()

    def add(self, function):
        rule = self.rules[function["family"]]
        kind = rule["kind"]
        context = function["context"]
        if function["operation"] in ("Malloc", "Free"):
            self.unreached[function["name"]] = "arrays are numpy's"
        elif context and context["role"] in ("init", "get_size"):
            self.unreached[function["name"]] = "plans have memory of their own"
        elif kind == "system":
            pass  # set_num_threads, get_num_threads, library_version
        elif kind == "context":
            pass  # see plans
        elif "BufSize" in function["operation"] or "BufferSize" in function["operation"]:
            pass  # asked by the operation that needs the buffer
        elif kind == "window" and function["flags"]["in_place"]:
            self.unreached[function["name"]] = "a window's source is framed first, so that out= may be the source"
        elif "1u" in function["types"]:
            pass  # pack_bits and unpack_bits
        else:
            name = python_name(function["operation"])
            operation = self.operations.setdefault(name, Operation(self, name, rule))
            operation.functions.append(function)


class Operation:
    def __init__(self, model, name, rule):
        self.model, self.name, self.rule, self.functions = model, name, rule, []
        self.family = NATIVE.get(rule["kind"], "other")
        self.native = self.family != "other"
        self.plain = self.family in ("pixels", "measure")  # its parameters follow from those of C

    def finish(self):
        groups = dict.fromkeys(f["group"] for f in self.functions)
        self.comment = "\n\n".join(self.model.registry["groups"][g]["comment"] for g in groups)
        if self.rule.get("reversed") and any(len(self.sources(f)) == 2 for f in self.functions):
            self.comment = f"Here a is what C calls pSrc2, and b is pSrc1.\n\n{self.comment}"
        if not self.native:
            return
        self.count = max(len(self.operands(f)) + bool(self.second(f)) for f in self.functions)
        self.takes_constant = any(self.second(f) for f in self.functions)
        self.parameters = []  # (name, kind, words, fallback, keyword only)
        self.form_mask, self.results = 0, []
        if self.plain:
            self.find_parameters()
        else:
            self.parameters = shown_parameters(self)
        self.members = [(self.key(f), f) for f in self.functions]
        keys = Counter(key for key, _ in self.members)
        doubled = [f["name"] for key, f in self.members if keys[key] > 1]
        if doubled:
            sys.exit(f"generate.py: {', '.join(doubled)} have the same arguments")

    def find_parameters(self):
        if self.rule.get("type"):
            self.parameters.append(("dtype", "dtype", None, None, False))
        own, forms = {}, {}
        for function in self.functions:
            for p in function["parameters"]:
                if p["role"] in OWN_ROLES and p is not self.second(function):
                    own.setdefault(parameter_name(p["name"]), p)
                    forms.setdefault(parameter_name(p["name"]), set()).add(self.form(function))
        # What decides by word how a result is made comes last, by keyword only.
        for name, p in sorted(own.items(), key=lambda item: item[0] in ("round", "hint")):
            if name in ("round", "hint"):
                kind = ("enumeration", p["type"], {"round": "near", "hint": "none"}[name], True)
            elif p["role"] == "enumeration":
                kind = ("enumeration", p["type"], None, False)
            else:
                kind = ({"channel_order": "order", "state": "seed"}.get(p["role"], "constant"), None, None, False)
            self.parameters.append((name, *kind))
        self.form_mask = sum(1 << i for i, p in enumerate(self.parameters)
                             if not self.takes_constant and forms.get(p[0]) == {1} and
                             any(not self.form(f) for f in self.functions))
        self.results = [snake(p["name"][1:]) for p in self.functions[0]["parameters"] if p["role"] == "result"]

    @staticmethod
    def sources(function):
        return [p for p in function["parameters"] if p["role"] == "source"]

    def operands(self, function):
        return [p for p in function["parameters"] if p["role"] in ("source", "source_destination")]

    def form(self, function):
        if self.family == "window":  # integer taps have a divisor
            return int(any(p["role"] == "divisor" for p in function["parameters"]))
        return int(re.search(r"C(Scale)?$", function["operation"]) is not None)

    def second(self, function):
        """The constant that stands for the second image."""
        if not self.plain or not self.form(function):
            return None
        return next((p for p in function["parameters"] if p["role"] == "constant" and p["name"] in ("value", "pValue")),
                    None)

    def layout(self, function, p, other):
        if function["domain"] == "vector":
            return "kVector"
        layout = p["layout"]
        if self.rule.get("one_channel"):
            if function["flags"]["one_channel"] or layout in ("C3", "C4") and other and other["layout"] == "C1":
                return {"C3": "kOneOf3", "C4": "kOneOf4"}[layout]
        elif function["flags"]["one_channel"]:
            return {"C3": "kOneOf3", "C4": "kOneOf4"}[layout]
        if self.rule.get("alpha") == "used":
            plain = any(f["layout"] == "C4" and self.form(f) == self.form(function) for f in self.functions)
            layout = {"AC1": "C1", "AC4": "AC4" if plain else "C4"}.get(layout, layout)
        return LAYOUTS[layout]

    def key(self, function):
        operands = self.operands(function)
        destination = next((p for p in function["parameters"] if p["role"] in ("destination", "source_destination")),
                           None)
        source = operands[0] if operands else None
        return (f"t{source['element']}" if source else "none", f"t{destination['element']}" if destination else "none",
                self.layout(function, source, destination) if source else "kNoLayout",
                self.layout(function, destination, source) if destination else "kNoLayout", self.form(function),
                int(function["flags"]["in_place"]), int(function["flags"]["masked"]))

    def program(self, function):
        """How a call fills the parameters, one letter each (see table.h)."""
        sources = [p["name"] for p in self.sources(function)]
        if function["flags"]["in_place"]:
            letters = dict.fromkeys(sources, "a" if self.rule.get("in_place") == "second" else "b")
        else:
            letters = dict(zip(sources, "ba" if self.rule.get("reversed") and len(sources) == 2 else "ab"))
        names = [p[0] for p in self.parameters]
        program, results, ahead = "", "xyz", "ZT" if len(sources) == 2 and not self.plain else "Z"
        maps, regions = "XY", "RD"
        for p in function["parameters"]:
            role, name = p["role"], parameter_name(p["name"])
            special = None
            if not self.plain:
                one = p["type"] == "int"
                special = {"kernel": "K", "element": "K", "kernel_size": "w" if one else "W",
                           "mask_size": "w" if one else "W", "anchor": "p" if one else "P", "fixed_mask": "f",
                           "divisor": "d", "buffer": "u"}.get(role)
                if role == "size" and not re.match("dst|roi", p["name"]):
                    special, ahead = ahead[0], ahead[1:]
                if role == "region":
                    special, regions = regions[0], regions[1:]
                if role == "map":
                    special, maps = maps[0], maps[1:]
                    letters[p["name"]] = {"X": "H", "Y": "V"}[special]
            if special:
                program += special
                continue
            if role == "step":
                letter = letters[p["of"][0]]
                program += "J" if len(p["of"]) == 2 else letter.lower() if letter in "HV" else letter.upper()
                continue
            if p is self.second(function):
                program += "0"
                continue
            if role in OWN_ROLES or name in names:
                program += str(names.index(name) + self.takes_constant)
                continue
            if role == "result":
                program, results = program + results[0], results[1:]
                continue
            if role in ("destination", "source_destination", "mask"):
                letters[p["name"]] = "m" if role == "mask" else "o"
            program += letters.get(p["name"]) or {"size": "S", "length": "n", "scale_factor": "s"}[role]
        return program

    def values(self, function):
        """Of the constant that stands for an image and of the parameters: type, count, whether by address."""
        places = [None] * self.takes_constant + [p[0] for p in self.parameters]
        own = {}
        for p in function["parameters"]:
            if p["role"] in OWN_ROLES or not self.plain and parameter_name(p["name"]) in places and p["role"] in (
                    "coefficients", "quad"):
                place = 0 if p is self.second(function) else places.index(parameter_name(p["name"]))
                element = {"int": "32s", None: "32s"}.get(p["element"], p["element"])
                several = p["kind"] == "pointer" and (p["role"] == "constant" or p["role"] == "state" and not self.plain)
                processed = self.model.registry["layouts"][function["destination_layout"]]["processed"] if several else 1
                count = math.prod(p["extents"] or [processed])
                own[place] = (f"t{element}", count, p["kind"] == "pointer")
        return [own.get(i, ("none", 0, False)) for i in range(len(places))]

    def result_values(self, function):
        return [({"int": "t32s"}.get(p["element"], "t" + p["element"]), (p["extents"] or [1])[0], True)
                for p in function["parameters"] if p["role"] == "result"]

    # For people: the signature, with annotations or without.

    @property
    def scaled(self):
        return any(f["flags"]["scaled"] for f in self.functions)

    @property
    def masked(self):
        return any(f["flags"]["masked"] for f in self.functions)

    @property
    def planes(self):
        return any(p["kind"] == "planes" for f in self.functions for p in f["parameters"])

    def signature(self, typed):
        def with_type(name, annotation, default=None):
            if not typed:
                return name if default is None else f"{name}={default}"
            return f"{name}: {annotation}" + (f" = {default}" if default else "")

        if not self.plain:
            return ", ".join(p if isinstance(p, str) else with_type(*p) for p in plain_parameters(self))
        image = "_Images" if self.planes else "_Image"
        parts = []
        if self.count:
            parts.append(with_type("a", image))
            if self.count == 2:
                kinds = {len(self.operands(f)) == 2 for f in self.functions}
                both = f"{image} | _Constant" if len(kinds) == 2 else image if kinds == {True} else "_Constant"
                parts.append(with_type("b", both if self.takes_constant else image))
            parts.append("/")
        plain = [p for p in self.parameters if not p[4]]
        for name, kind, words, fallback, _ in plain:
            optional = self.optional(name)
            annotation = {"constant": "_Constant", "enumeration": f"_{words}", "order": "Sequence[int]",
                          "seed": "int | Seed", "dtype": "DTypeLike"}[kind]
            parts.append(with_type(name, annotation + " | None", "None") if optional else with_type(name, annotation))
        parts.append("*")
        if not self.results:
            parts.append(with_type("out", f"{image} | None", "None"))
        if not self.count:
            parts.append(with_type("shape", "Sequence[int] | None", "None"))
        if not self.results and not self.rule.get("type"):
            kinds = {key[:2] for key, _ in self.members}
            if len(kinds) > len({source for source, _ in kinds}):
                parts.append(with_type("dtype", "DTypeLike", "None"))
        if self.masked:
            parts.append(with_type("mask", "_Image | None", "None"))
        if self.scaled:
            parts.append(with_type("shift", "int", "0"))
        for name, _, words, fallback, keyword in self.parameters:
            if keyword:
                parts.append(with_type(name, f"_{words}", json.dumps(fallback)))
        if any(f["layout"] and "AC4" in f["layout"] for f in self.functions):
            parts.append(with_type("alpha", 'Literal["keep"] | None', "None"))
        return ", ".join(parts if parts[-1] != "*" else parts[:-1])

    def optional(self, name):
        return name == "dtype" or not all(any(parameter_name(p["name"]) == name for p in f["parameters"])
                                          for f in self.functions)

    @property
    def images(self):
        """How many sources are images."""
        return max(len(self.sources(f)) for f in self.functions)

    def returns(self, name):
        if self.native and self.results:
            return "Any" if len(self.results) == 1 else f"{name}Results"
        return "Any" if self.planes or self.rule["kind"] in ("map", "levels") else "_Array"


# Parameters of the operations that Python runs: name, annotation, default. Roles that are not here are filled in by it.
SHOWN = {"mask_size": "_MaskSize", "kernel": "ArrayLike", "element": "ArrayLike", "number": "float", "index": "int",
         "coefficients": "ArrayLike", "quad": "ArrayLike", "map": "_Array", "border": "int", "constant": "_Constant",
         "levels": "ArrayLike", "values": "ArrayLike", "table": "ArrayLike", "state": "_Constant",
         "level_count": "int", "region": "_Rectangle", "size": "_Size"}
RENAMED = {"element": "footprint", "fixed_mask": "mask_size"}
# By hand, where the parameters of C would be a burden.
BY_HAND = {"resize": [("size", "_Size | None", "None"), "*", ("x_factor", "float | None", "None"),
                      ("y_factor", "float | None", "None")]}


def own_parameters(operation):
    """Those of the operation itself, in C's order."""
    kind, own, all_of = operation.rule["kind"], {}, operation.functions
    if operation.name in BY_HAND:
        return BY_HAND[operation.name]
    for function in all_of:
        roles = {p["role"] for p in function["parameters"]}
        for p in function["parameters"]:
            role, name = p["role"], parameter_name(p["name"])
            entry = None
            if role == "anchor":
                entry = (name, "_Point | None" if p["type"] == "HuxiPoint" else "int | None", "None")
            elif role == "fixed_mask":
                entry = ("mask_size", "str", '"3x1"' if "Horiz" in operation.functions[0]["operation"] and
                         "Median" in function["operation"] else '"1x3"' if "MedianVert" in function["operation"]
                         else '"3x3"')
            elif role == "divisor":
                entry = ("divisor", "int | None", "None")
            elif role == "state" and kind == "window":
                entry = ("noise", "_Constant", "0")
            elif role == "state" and kind == "map":
                entry = (name, "float") if function["operation"].startswith("Add") else None
            elif role == "enumeration" and kind == "map":
                entry = (name, "_HuxiInterpolation")
            elif role == "mask_size" and "element" in roles or role == "region" and kind != "map":
                entry = None
            elif role == "size" and kind != "map" or role in ("quad", "coefficients") and not p["const"]:
                entry = None
            elif role in ("levels", "level_count") and kind == "levels":
                even = "Even" in function["operation"]
                entry = ("n_levels", "int | Sequence[int]") if even and role == "level_count" else \
                    ("levels", "ArrayLike") if not even and role == "levels" else None
            elif role == "index" and kind == "palette":
                entry = (name, "int | None", "None")
            elif role in SHOWN:
                late = {"x_shift": "0", "y_shift": "0"}.get(name) if kind == "geometry" else None
                entry = (RENAMED.get(role, name), SHOWN[role], *([late] if late else []))
            if entry:
                own.setdefault(entry[0], entry)
    return sorted(own.values(), key=lambda entry: len(entry) == 3)


def keyword_parameters(operation):
    kind, functions = operation.rule["kind"], operation.functions
    roles = {p["role"] for f in functions for p in f["parameters"]}
    keywords = []
    if kind == "window":
        keywords += [("border", "_Border | None", '"replicate"'), ("border_value", "_Constant", "0")]
    if kind == "geometry":
        keywords += [("inter", "_HuxiInterpolation", '"linear"')]
        if any(p["name"] == "dstRoi" for f in functions for p in f["parameters"]):
            if operation.name != "resize_sqr_pixel":
                keywords += [("smooth_edge", "bool", "False")]
            keywords += [("dst_roi", "_Rectangle | None", "None")]
        keywords += [("roi", "_Rectangle | None", "None"), ("shape", "Sequence[int] | None", "None")]
    if kind == "border":
        keywords += [("shape", "Sequence[int] | None", "None")]
    if "scale_factor" in roles:
        keywords += [("shift", "int", "0")]
    if kind in ("window", "match", "blocks") and any(len(f["types"]) == 2 for f in functions):
        keywords += [("dtype", "DTypeLike", "None")]
    if "destination" in roles:
        keywords += [("out", "_Images | None" if operation.planes else "_Image | None", "None")]
    if any(f["layout"] == "AC4" for f in functions):
        keywords += [("alpha", 'Literal["keep"] | None', "None")]
    return keywords


def plain_parameters(operation):
    """What the operation takes: sources, own parameters, keywords."""
    sources = operation.images
    image = "_Images" if operation.planes else "_Image"
    parts = [(name, image) for name in ("a", "b")[:sources]] + (["/"] if sources else [])
    own, keywords = own_parameters(operation), keyword_parameters(operation)
    parts += own
    if keywords:
        parts += ([] if "*" in own else ["*"]) + keywords
    return parts


# What stands for what in a window or a geometric operation, by parameter; other parameters are numbers.
KINDS = {"mask_size": "maskSize", "kernel": "kernel", "footprint": "footprint", "anchor": "anchor",
         "x_anchor": "anchor", "y_anchor": "anchor", "divisor": "divisor", "border": "border",
         "border_value": "borderValue", "size": "size", "coeffs": "matrix", "src_quad": "quad", "dst_quad": "quad",
         "x_map": "map", "y_map": "map", "smooth_edge": "flag", "roi": "region", "dst_roi": "region",
         "inter": "enumeration"}


def shown_parameters(operation):
    """As the extension module has them: name, kind, words, fallback, keyword only."""
    shown, keyword = [], False
    for entry in own_parameters(operation) + ["*"] + keyword_parameters(operation):
        if entry == "*":
            keyword = True
            continue
        name, _, default = (*entry, None)[:3]
        if name in ("out", "dtype", "shape", "shift", "alpha"):
            continue
        kind = "factor" if operation.name in BY_HAND and name in ("x_factor", "y_factor") else KINDS.get(name, "constant")
        words = "HuxiInterpolation" if kind == "enumeration" else None
        fallback = default.strip('"') if default not in (None, "None", "False") else None
        shown.append((name, kind, words, fallback, keyword))
    return shown


def reach_of(operation, function, argument):
    """Each side as a sum of a number, the mask's side and the anchor, so many times each."""
    if any(p["role"] == "fixed_mask" for p in function["parameters"]):
        return [(0, 0, 1)] * 4
    sides = []
    for formula in argument["reach"]:
        def at(size, anchor):
            return eval(re.sub(r"\b[a-z]\w*(\.\w+)?", lambda m: str(anchor if "nchor" in m[0] else size), formula))
        sides.append((at(0, 0), at(1, 0) - at(0, 0), at(0, 1) - at(0, 0)))
        assert at(7, 3) == sum(k * v for k, v in zip(sides[-1], (1, 7, 3))), formula
    return sides


def text(string):
    return json.dumps(string, ensure_ascii=True)


def write_table(model, path):
    reached, members, parameters, operations, words, lists = [], [], [], [], {}, []
    registry = model.registry
    reached = [f for f in registry["functions"] if f["name"] not in model.unreached]
    index = {f["name"]: i for i, f in enumerate(reached)}
    shapes = sorted({f["shape"] for f in reached})
    resolved, masks = rules.resolve(registry), {}

    def around(operation, function):
        """Of a window: the reach, the masks that there are, of how many pixels it is local."""
        if operation.family != "window":
            return "{}, nullptr, 0"
        arguments = {a["name"]: a for a in resolved[function["name"]]["arguments"]}
        sides = ", ".join(f"{{{n}, {s}, {a}}}" for n, s, a in reach_of(operation, function, arguments["pSrc"]))
        fixed = next((a for a in arguments.values() if a["role"] == "fixed_mask"), None)
        own = "nullptr"
        if fixed:
            numbers = tuple(row[0] for row in fixed["values"]["rows"])
            own = f"kMasks{masks.setdefault(numbers, len(masks))}"
        running = function["types"][0] in operation.rule.get("running", ()) or resolved[function["name"]]["team"]
        most = operation.rule.get("exact", {}).get(function["types"][0], 2**31 - 1)
        return f"{{{sides}}}, {own}, {most if operation.rule.get('local') and not running else 0}"

    def values(entries):
        return "{" + ", ".join(f"{{Type::{t}, {n}, {str(a).lower()}}}" for t, n, a in entries) + "}"

    for operation in model.operations.values():
        flag = lambda value: str(bool(value)).lower()  # noqa: E731
        doc = text(f"{operation.name}({operation.signature(False)})\n\n{operation.comment}")
        if not operation.native:
            operations.append(f"{{{text(operation.name)}, {doc}, Family::other, 0, {len(lists)}, "
                              f"{len(operation.functions)}, 0, "
                              f"false, false, false, false, false, false, false, false, false, 0, 0, 0, nullptr}}")
            lists += [str(index[f["name"]]) for f in operation.functions]
            continue
        first = len(members)
        rows = []
        for (source, destination, a, o, form, in_place, masked), function in operation.members:
            key = f"keyOf(Type::{source}, Type::{destination}, {a}, {o}, {form}, {in_place}, {masked})"
            order = (TYPES.index(source), TYPES.index(destination), PLACES.index(a), PLACES.index(o), form, in_place,
                     masked)
            rows.append((order, f"{{{key}, {index[function['name']]}, {text(operation.program(function))}, "
                                f"{values(operation.values(function))}, {values(operation.result_values(function))}, "
                                f"{around(operation, function)}}}"))
        members += [row for _, row in sorted(rows)]
        place = len(parameters)
        for name, kind, enumeration, fallback, keyword in operation.parameters:
            number = -1
            if enumeration:
                number = list(words).index(enumeration) if enumeration in words else len(words)
                words[enumeration] = {w: v for w, v in model.enumerations[enumeration].items() if v >= 0}
            parameters.append(f"{{{text(name)}, Kind::{kind}, {number}, "
                              f"{text(fallback) if fallback else 'nullptr'}, {flag(keyword)}}}")
        traits = [operation.takes_constant, operation.rule.get("commutative"),
                  operation.rule.get("in_place") == "second", operation.rule["kind"] == "moves",
                  operation.rule.get("transposed"), operation.scaled, operation.masked, operation.planes,
                  operation.rule.get("type")]
        extent = {"full": 1, "same": 0, "valid": -1}
        extent = next((value for word, value in extent.items() if word in operation.name.split("_")), 0)
        operations.append(f"{{{text(operation.name)}, {doc}, Family::{operation.family}, {extent}, {first}, {len(rows)}, "
                          f"{operation.count}, "
                          f"{', '.join(map(flag, traits))}, {place}, {len(operation.parameters)}, "
                          f"{operation.form_mask}, {text(' '.join(operation.results)) if operation.results else 'nullptr'}}}")
    statuses = [f"{{{s['value']}, {text(s['name'])}, {text(s['comment'])}}}" for s in registry["statuses"]]
    functions = [f"{{{text(f['name'])}, reinterpret_cast<Any>(&{f['name']}), {shapes.index(f['shape'])}, "
                 f"{text(f['shape'])}}}" for f in reached]
    out = ["// Made by python/generate.py.", '#include "table.h"', "namespace hux::python {", "using tool::Any;"]

    def array(declaration, rows):
        out.extend([f"{declaration}[] = {{", *(row + "," for row in rows), "};"])

    array("const Function kFunctions", functions)
    out.append(f"const int kFunctionCount = {len(functions)};")
    for numbers, own in masks.items():
        array(f"static const short kMasks{own}", [str(n) for n in (*numbers, 0)])
    array("const Member kMembers", members)
    array("const int kFunctionLists", lists or ["0"])
    array("const Parameter kParameters", parameters)
    for i, own in enumerate(words.values()):
        array(f"static const Word kWords{i}", [f"{{{text(w)}, {v}}}" for w, v in own.items()] + ["{nullptr, 0}"])
    array("const Word* const kWords", [f"kWords{i}" for i in range(len(words))])
    array("const Operation kOperations", operations)
    out.append(f"const int kOperationCount = {len(operations)};")
    array("const Status kStatuses", statuses)
    out += [f"const int kStatusCount = {len(statuses)};", f"const char* const kVersion = {text(registry['library'])};",
            "}  // namespace hux::python", "namespace hux::tool {", *calls.trampolines(shapes),
            "}  // namespace hux::tool", ""]
    path.write_text("\n".join(out))
    return index


def traits(model):
    """What is known of the operations beyond how they are called: for the fronts that divide images."""
    resolved = rules.resolve(model.registry)
    known = {}
    for o in model.operations.values():
        codes = (("".join(f["types"]), resolved[f["name"]]["team"]) for f in o.functions)
        constant = o.rule["kind"] == "points" and any(o.second(f) for f in o.functions)
        known[o.name] = o.rule | {
            "sources": max(len(o.operands(f)) + bool(constant and o.second(f)) for f in o.functions), "constant": constant,
            "running": sorted({code for code, team in codes if team or code in o.rule.get("running", ())})}
    return known


def write_python(model, index, path):
    """What the package needs: the functions, the members of the operations that Python runs, and these operations."""
    entries, wrappers = [], []
    for operation in model.operations.values():
        if operation.native:
            continue
        kind = {"map": "map_"}.get(operation.rule["kind"], operation.rule["kind"])
        rows = []
        for f in operation.functions:
            parameters = " ".join(p["name"] for p in f["parameters"])
            rows.append((index[f["name"]], f["name"], " ".join(f["types"]), f["source_layout"] or "C1", parameters,
                         f["shape"][1:], f["flags"]["in_place"]))
        entries.append(f"    {operation.name!r}: {rows!r},")
        own = [entry[0] for entry in own_parameters(operation) if entry != "*"]
        keywords = [entry[0] for entry in keyword_parameters(operation)]
        images = ("a", "b")[:operation.images]
        signature = operation.signature(False)
        both = "" if "*" in signature else "*, "
        wrappers.append(
            f"def {operation.name}({signature}, {both}_asked=None):\n"
            f"    return _front.{kind}({operation.name!r}, _asked, ({''.join(i + ', ' for i in images)}), "
            f"{{{', '.join(f'{n!r}: {n}' for n in own)}}}, {{{', '.join(f'{n!r}: {n}' for n in keywords)}}})\n")
    inter = {w: v for w, v in model.enumerations["HuxiInterpolation"].items() if v > 0}
    results = {o.name: o.results for o in model.operations.values() if o.native and len(o.results) > 1}
    own_rules = traits(model)
    out = ['"""Made by python/generate.py: what there is."""', "from typing import Any", "FUNCTIONS = {",
           *(f"    {name!r}: {number}," for name, number in index.items()), "}", f"INTERPOLATIONS = {inter!r}",
           f"RESULTS = {results!r}", "RULES: dict[str, dict[str, Any]] = {",
           *(f"    {name!r}: {rule!r}," for name, rule in own_rules.items()), "}", "MEMBERS = {", *entries, "}", ""]
    (path / "_table.py").write_text("\n".join(out))
    out = ['"""Made by python/generate.py: the operations that Python runs."""', "from . import _front", "", "",
           "\n\n".join(wrappers)]
    (path / "_operations.py").write_text("\n".join(out))


def write_stubs(model, path):
    """Each operation is of a class of its own, so that it can be called, and asked for its members."""
    classes, names, errors = [], [], []
    for operation in model.operations.values():
        own = "_" + "".join(part.title() for part in operation.name.split("_"))
        if operation.native and len(operation.results) > 1:
            fields = "\n".join(f"    {r}: Any" for r in operation.results)
            classes.append(f"class {own}Results(NamedTuple):\n{fields}\n")
        signature, returns = operation.signature(True), operation.returns(own)
        classes.append(f"class {own}(Operation):\n    def __call__(self, {signature}) -> {returns}:\n"
                       f'        r"""{operation.comment.strip()}\n        """\n'
                       f"    def which(self, {signature}) -> str: ...\n")
        names.append(f"{operation.name}: {own}")
    for status in model.registry["statuses"]:
        plain = status["name"].removeprefix("huxSts")
        if status["kind"] == "error":
            base = {"NoMem": "MemoryError", "DivByZero": "ZeroDivisionError"}.get(plain, "ValueError")
            errors.append(f"class {plain}Error(Error, {base}): ...")
        elif status["kind"] == "warning":
            errors.append(f"class {plain.removesuffix('Warn')}Warning(Warning): ...")
    words = [f"_{name} = Literal[{', '.join(text(w) for w, v in own.items() if v >= 0)}]"
             for name, own in model.enumerations.items()]
    (path / "__init__.pyi").write_text("\n".join(
        [(HERE / "hux" / "stubs.pyi").read_text(), *words, "", *errors, "", *classes, *names, ""]))


TYPES = "none t8u t8s t16u t16s t32u t32s t32f t64f t16sc t32sc t32fc t64fc".split()
PLACES = "kNoLayout kC1 kC2 kC3 kC4 kAC4 kP3 kP4 kOneOf3 kOneOf4 kVector".split()


def print_reached(model):
    """As tools/cpp_front does."""
    rows, reasons = {}, {}
    for f in model.registry["functions"]:
        row = rows.setdefault((f["header"], f["family"]), [0, 0])
        row[0] += f["name"] not in model.unreached
        row[1] += 1
    for name, reason in model.unreached.items():
        reasons.setdefault(reason, []).append(name)
    print("Functions of the C library that the operations of Python reach (hux.c has all):\n")
    for (header, family), (own, of) in rows.items():
        print(f"  {header:18} {family:24}{own:6} of {of}")
    print(f"  {'all':43}{sum(r[0] for r in rows.values()):6} of {sum(r[1] for r in rows.values())}\n")
    for reason, names in reasons.items():
        print("\n".join(textwrap.wrap(f"Not reached, since {reason}: {', '.join(names)}", 120, subsequent_indent="  ")))


def main():
    registry = json.loads(Path(sys.argv[1]).read_text())
    model = Model(registry)
    if sys.argv[2] == "--reached":
        print_reached(model)
        return
    folder = Path(sys.argv[2])
    index = write_table(model, folder / "table.cpp")
    write_python(model, index, folder)
    write_stubs(model, folder)


if __name__ == "__main__":
    main()
