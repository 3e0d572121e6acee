#!/usr/bin/python3
"""Writes the table of tools/hux/table.h from the registry and the rules: generate.py REGISTRY OUTPUT."""
import ast
import json
import math
import re
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import rules  # noqa: E402

PARTS = {"width": 0, "height": 1, "x": 0, "y": 1}
RECT_PARTS = {"x": 0, "y": 1, "width": 2, "height": 3}
OPERATORS = {ast.Add: "kAdd", ast.Sub: "kSubtract", ast.Mult: "kMultiply", ast.LShift: "kShift"}
CTYPES = {"p": "void*", "i": "int", "u": "Hux32u", "b": "Hux8u", "k": "Hux8s", "h": "Hux16s", "c": "Hux16u",
          "l": "Hux64s", "f": "Hux32f", "d": "Hux64f", "S": "HuxiSize", "P": "HuxiPoint", "R": "HuxiRect",
          "C": "Hux16sc", "D": "Hux32sc", "E": "Hux32fc", "F": "Hux64fc", "v": "void"}
MEMBERS = {"p": "p", "i": "i", "u": "u", "b": "i", "k": "i", "h": "i", "c": "i", "l": "l", "f": "f", "d": "d",
           "S": "size", "P": "point", "R": "rect", "C": "c16", "D": "c32", "E": "c32f", "F": "c64f"}
SHAPES = {"int": "i", "Hux32s": "i", "Hux32u": "u", "Hux8u": "b", "Hux8s": "k", "Hux16s": "h", "Hux16u": "c",
          "Hux64s": "l", "Hux32f": "f", "Hux64f": "d", "HuxiSize": "S", "HuxiPoint": "P", "HuxiRect": "R",
          "Hux16sc": "C", "Hux32sc": "D", "Hux32fc": "E", "Hux64fc": "F"}


def trampolines(shapes):
    """call of table.h, for these shapes."""
    lines = ["Value call(int shape, Any function, const Value* a) {", "  Value r = {};", "  switch (shape) {"]
    for index, shape in enumerate(shapes):
        types = ", ".join(CTYPES[letter] for letter in shape[1:]) or "void"
        values = ", ".join((f"static_cast<{CTYPES[letter]}>(a[{i}].{MEMBERS[letter]})" if letter in "bkhcl" else
                            f"a[{i}].{MEMBERS[letter]}") for i, letter in enumerate(shape[1:]))
        run = f"reinterpret_cast<{CTYPES[shape[0]]} (*)({types})>(function)({values})"
        lines.append(f"    case {index}: {'' if shape[0] == 'v' else f'r.{MEMBERS[shape[0]]} = '}{run}; break;")
    return lines + ["    default: break;", "  }", "  return r;", "}"]


class Table:
    def __init__(self, registry):
        self.registry, self.rules = registry, rules.resolve(registry)
        self.index = {f["name"]: i for i, f in enumerate(registry["functions"])}
        self.shapes = sorted({f["shape"] for f in registry["functions"]})
        self.numbers, self.code, self.terms = [0.0], [["kEnd"]], []
        self.programs, self.lists, self.arguments, self.argument_lists = {(): 0}, {}, [], {}
        self.tellers = []

    # Formulas: the program of each is written once.

    def formula(self, text, function, arguments):
        layout = self.registry["layouts"].get(function["source_layout"] or "C1")
        constants = dict(elements=layout["elements"],
                         channels=layout["planes"] or layout["processed"])
        program = []

        def emit(node):
            if isinstance(node, ast.Constant):
                program.extend(["kNumber", str(node.value)])
            elif isinstance(node, ast.BinOp):
                emit(node.left), emit(node.right)
                program.append(OPERATORS[type(node.op)])
            elif isinstance(node, ast.UnaryOp):
                program.extend(["kNumber", "0"])
                emit(node.operand)
                program.append("kSubtract")
            elif isinstance(node, ast.Call):
                emit(node.args[0]), emit(node.args[1])
                program.append({"max": "kMax", "min": "kMin"}[node.func.id])
            elif isinstance(node, ast.Name) and node.id == "row":
                program.append("kRow")
            elif isinstance(node, ast.Name) and node.id in constants:
                program.extend(["kNumber", str(constants[node.id])])
            else:
                name = node.id if isinstance(node, ast.Name) else node.value.id
                place = [a["name"] for a in arguments].index(name)
                part = 0
                if isinstance(node, ast.Attribute):
                    part = (RECT_PARTS if arguments[place]["type"] == "HuxiRect" else PARTS)[node.attr]
                program.extend(["kArgument", str(place), str(part)])

        emit(ast.parse(text, mode="eval").body)
        program = tuple(program + ["kEnd"])
        if program not in self.programs:
            self.programs[program] = sum(len(p) for p in self.code)
            self.code.append(list(program))
        return self.programs[program]

    def list(self, rows, function, arguments):
        """Numbers as they are; a formula as a number beyond all others, plus its place."""
        flat = tuple(x if not isinstance(x, str) else ("formula", self.formula(x, function, arguments))
                     for row in rows for x in row)
        width = len(rows[0]) if rows else 0
        key = (repr(flat), width)
        if key not in self.lists:
            self.lists[key] = len(self.numbers)
            self.numbers.extend(flat)
        return f"{{{self.lists[key]}, {len(rows)}, {width}}}"

    # Arguments

    def argument(self, argument, function, arguments):
        def formula(text):
            return str(self.formula(text, function, arguments)) if text is not None else "0"

        element = argument["element"]
        base = re.sub("c$", "", {"int": "32s"}.get(element, element or ""))
        values = argument.get("values") or dict(kind="none")
        rows = values.get("rows", [])
        if values["kind"] == "formula":
            rows = [values["terms"]]
        per_pixel = pointers = 1
        if argument["kind"] == "planes":
            pointers = argument["extents"][0]
        if argument.get("layout"):
            per_pixel = self.registry["layouts"][argument["layout"]]["elements"]
        step = [i for i, other in enumerate(arguments) if argument["name"] in other.get("of", [])]
        teller = -1
        if argument.get("size"):
            size = argument["size"]
            teller = len(self.tellers)
            terms = []
            for text in size["arguments"]:
                # A record is its numbers.
                named = [a for a in arguments if a["name"] == text and a["type"] in rules.PARTS]
                parts = [f"{text}.{part}" for part in rules.PARTS[named[0]["type"]]] if named else [text]
                terms += [self.formula(part, function, arguments) for part in parts]
            entry = (self.index[size["function"]], terms, size["result"], size["of_context"])
            known = [i for i, other in enumerate(self.tellers) if other == entry]
            teller = known[0] if known else teller
            if not known:
                self.tellers.append(entry)
        kind = {"none": "none", "list": "list", "formula": "formula", "pixels": "pixels", "row": "row"}[values["kind"]]
        if argument["kind"] != "value" and argument.get("fill") == "pixels":
            kind = "pixels"
        shape = "p" if argument["kind"] != "value" else SHAPES.get(argument["type"], "i")
        extent = argument.get("extent", [None] * 2)
        reach = argument.get("reach", [None] * 4)
        return (f'{{"{argument["name"]}", Role::{argument["role"]}, Kind::{argument["kind"]}, \'{shape}\', '
                f'Element::{base[-1] + base[:-1] if base else "none"}, {2 if element and element.endswith("c") else 1}, '
                f'{per_pixel}, {pointers}, {str(not argument["const"]).lower()}, Null::{argument.get("null", "unchecked")}, '
                f'Fill::{argument.get("fill", "random")}, Source::{kind}, {str(argument["together"]).lower()}, '
                f'{str(argument["of_maker"]).lower()}, {step[0] if step else -1}, '
                f'{{{", ".join(formula(e) for e in extent)}}}, {{{", ".join(formula(r) for r in reach)}}}, '
                f'{formula(argument.get("count"))}, {formula(argument.get("span"))}, '
                f'{self.list(rows, function, arguments)}, {self.list(argument["illegal"], function, arguments)}, {teller}, '
                f'{str(argument.get("foreign") != "unchecked").lower()}}}')

    def list_of_arguments(self, function, arguments):
        lines = tuple(self.argument(a, function, arguments) for a in arguments)
        if lines not in self.argument_lists:
            self.argument_lists[lines] = len(self.arguments)
            self.arguments.extend(lines)
        return self.argument_lists[lines]

    # Functions

    def function(self, function):
        rule = self.rules[function["name"]]
        arguments = rule.get("arguments", [])
        first = self.list_of_arguments(function, arguments)
        context = function["context"]
        make = free = other = -1
        if context:
            make = self.index.get(context["make"], -1)
            free = self.index.get(context["free"], -1)
            own = self.registry["functions"][make]
            shapes = [f["name"] for f in self.registry["functions"] if f["context"] and f["context"]["role"] == "make"
                      and f["context"]["record"] == context["record"] and f["name"] != context["make"]
                      and f["shape"] == own["shape"]]
            other = self.index[shapes[0]] if shapes else -1
        part = context["role"] if context else "none"
        flag = lambda value: str(bool(value)).lower()  # noqa: E731
        return (f'{{"{function["name"]}", "{function["signature"]}", "{function["family"]}", '
                f'"{function["operation"]}", "{" ".join(function["types"])}", "{function["layout"] or ""}", '
                f'reinterpret_cast<Any>(&{function["name"]}), {self.shapes.index(function["shape"])}, {first}, '
                f'{sum(not a["of_maker"] for a in arguments)}, {len(arguments)}, {make}, {free}, {other}, Part::{part}, '
                f'{flag(rule["covered"])}, {flag(rule.get("by_hand"))}, {flag(rule.get("team"))}, '
                f'{flag(rule.get("moves"))}, {flag(rule.get("aligned"))}, {flag(rule.get("errors_write"))}, {self.no_memory(rule)}, {rule.get("calls", 0)}}}')

    def no_memory(self, rule):
        """The statuses of a call that got no memory, and whether it may have written."""
        words = rule.get("no_memory", ["huxStsNoMem"])
        written = words == "written"
        words = ["huxStsNoMem"] if written else words
        return f"{{{words[0]}, {words[-1]}}}, {str(written).lower()}"

    def write(self, path):
        functions = [self.function(f) for f in self.registry["functions"]]

        def number(x):
            if isinstance(x, tuple):
                return f"kFormula + {x[1]}"
            return "kNan" if math.isnan(x) else repr(float(x)) if abs(x) < 1e15 else f"{x:.17g}"

        text = ['// Made by tools/hux/generate.py.', '#include "table.h"', "namespace hux::tool {",
                "constexpr double kNan = __builtin_nan(\"\");",
                f"const double kNumbers[] = {{{', '.join(number(x) for x in self.numbers)}}};",
                f"const int kCode[] = {{{', '.join(word for program in self.code for word in program)}}};"]
        terms = []
        tellers = []
        for function, own, result, of_context in self.tellers:
            tellers.append(f"{{{function}, {len(terms)}, {len(own)}, {result}, {str(of_context).lower()}}}")
            terms += own
        text += [f"const int kTerms[] = {{{', '.join(map(str, terms + [0]))}}};",
                 f"const Teller kTellers[] = {{{', '.join(tellers)}}};", "const Argument kArguments[] = {"]
        text += [line + "," for line in self.arguments] + ["};", "const Function kFunctions[] = {"]
        text += [line + "," for line in functions] + ["};", f"const int kFunctionCount = {len(functions)};"]
        text += ["const char* nameOf(HuxStatus status) {", "  switch (status) {"]
        text += [f'    case {s["value"]}: return "{s["name"]}";' for s in self.registry["statuses"]]
        text += ["    default: return \"no status\";", "  }", "}"]
        Path(path).write_text("\n".join(text + trampolines(self.shapes) + ["}  // namespace hux::tool", ""]))


def main():
    Table(json.loads(Path(sys.argv[1]).read_text())).write(sys.argv[2])


if __name__ == "__main__":
    main()
