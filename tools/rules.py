#!/usr/bin/python3
"""Resolves tools/rules.toml against the registry: for each function, how to call it rightly and wrongly.

  tools/rules.py [--registry FILE] [--output FILE]    the resolved rules as JSON
  tools/rules.py [--registry FILE] --uncovered        the functions that no rules speak of, with the reason

resolve(registry) returns a dictionary by function name. Each entry:

  covered     whether the rules suffice to call it; reason says what is missing where not
  by_hand     whether a program that calls functions must know this one itself
  team        null, or "sums" where sums of floats begin anew with each thread, so that last bits depend on their number
  moves       whether pixels are only moved, so that every NaN keeps its bits
  window      null, or the sense of the anchor: "image order", "far corner", "mirrored", "centred"
  aligned     whether steps must be whole elements
  errors_write  whether a call that fails may have written results
  no_memory   the statuses of a call that got no memory, or "written" where it may have written even so
  calls       how many legal calls show all that the rules list
  arguments   one for each parameter of the function, then one for each that the maker of its context takes beyond the
              address of the context (those have "of_maker": true)

An argument is the parameter of the registry with, where they apply:

  values      {"kind": "list", "rows": [[numbers]]}, {"kind": "formula", "terms": [formula]}, {"kind": "pixels"} (any
              value of the type) or {"kind": "row"} (a step: as the image has it). together is true where rows of all
              arguments that have it are taken by the same number.
  illegal     [[numbers or formulas]]
  foreign     "unchecked" where a record is not told from other memory
  null        "refused", "allowed", "unchecked"
  extent      [width, height], reach [left, top, right, bottom], span (of coordinates): formulas
  count       a formula; fill: "pixels", "mask", "coordinates", "taps", "element", "levels", "values", "zero", "rows" (its
              numbers are a row of values), "constant" (one number of values in each), "climbing" (3 more in each), or "random"
  size        of a buffer or memory: the function that tells how large it must be, its arguments as formulas, and which
              of its results it is

A formula is a string over the names of arguments; see tools/rules.toml.
"""
import argparse
import ast
import json
import re
import subprocess
import sys
import tomllib
from pathlib import Path

TOOLS = Path(__file__).resolve().parent
PARTS = {"HuxiSize": ("width", "height"), "HuxiPoint": ("x", "y"), "HuxiRect": ("x", "y", "width", "height")}
IMAGES = ("source", "destination", "source_destination", "mask", "map")
FILTERS = dict(names=lambda f, v: f["family"] in v,
               operations=lambda f, v: f["operation"] in v,
               types=lambda f, v: "".join(f["types"]) in v,
               layouts=lambda f, v: f["layout"] in v,
               domain=lambda f, v: f["domain"] == v,
               in_place=lambda f, v: f["flags"]["in_place"] == v)


class Missing(Exception):
    """What the rules do not say."""


def names_in(formula):
    return {node.id for node in ast.walk(ast.parse(formula, mode="eval")) if isinstance(node, ast.Name)}


def rows_of(values):
    return [value if isinstance(value, list) else [value] for value in values]


def width_of(argument):
    """How many numbers make a value of the argument."""
    if argument["kind"] == "pointer":
        extents = argument["extents"]
        return extents[0] * (extents[1] if len(extents) == 2 else 1) if extents else None
    return len(PARTS.get(argument["type"], "1"))


class Resolver:
    def __init__(self, registry, rules):
        self.functions = {f["name"]: f for f in registry["functions"]}
        self.registry, self.rules = registry, rules
        self.enumerators = {e["name"]: [[v["value"]] for v in e["values"]] for e in registry["enumerations"]}

    def resolve(self, function):
        """Raises Missing."""
        entry = dict(covered=True, by_hand=False, team=None, moves=False, window=None, aligned=False, errors_write=False, no_memory=["huxStsNoMem"],
                     calls=0, arguments=[])
        given, cases, known = {}, [], False
        for rule in self.rules["family"]:
            if all(FILTERS[key](function, rule[key]) for key in FILTERS if key in rule):
                known = True
                entry.update({key: rule[key] for key in entry if key in rule})
                cases = rule.get("cases", cases)
                for name, words in rule.get("p", {}).items():
                    given.setdefault(name, {}).update(words)
        if not known:
            raise Missing(f"no rules for family {function['family']}")
        if entry["by_hand"]:
            return entry
        parameters = [dict(p, of_maker=False) for p in function["parameters"]]
        context = function["context"]
        if context and context["role"] in ("use", "free", "buffer_size"):
            if not context["make"] or not context["free"]:
                raise Missing(f"nothing makes or frees {context['record']}")
            own = {p["name"] for p in parameters}
            made = [dict(p, of_maker=True) for p in self.functions[context["make"]]["parameters"]
                    if p["role"] != "context_out"]
            clash = [p["name"] for p in made if p["name"] in own]
            if clash:
                raise Missing(f"{clash[0]} means two things")
            parameters += made
        names = {p["name"] for p in parameters}
        sizes = [p["name"] for p in parameters if p["role"] == "size"]
        lengths = [p["name"] for p in parameters if p["role"] == "length"]
        for parameter in parameters:
            rule = dict(self.rules["role"].get(parameter["role"], {}), **given.get(parameter["name"], {}))
            argument = dict(parameter)
            entry["arguments"].append(argument)
            role, kind, name = argument["role"], argument["kind"], argument["name"]
            if role == "other":
                raise Missing(f"{name} has no role")
            rows = [case[name] for case in cases if name in case]
            if kind == "value":
                argument["values"] = self.values(function, argument, rule, rows)
                argument["together"] = bool(rows)
                if role in ("kernel_size", "mask_size", "anchor") and not PARTS.get(argument["type"]):
                    # What the role says of pairs is not for a single number.
                    illegal = given.get(name, {}).get("illegal", [0, -1] if role != "anchor" else [])
                    rule["illegal"] = illegal
                argument["illegal"] = rows_of(rule.get("illegal", []))
                width = width_of(argument)
                if any(len(row) != width for row in argument["illegal"]):
                    raise Missing(f"illegal values of {name} are not {width} numbers each")
            else:
                if "null" not in rule:
                    raise Missing(f"nothing tells whether {name} may be null")
                argument["null"] = rule["null"]
                argument["fill"] = rule.get("fill", "random")
                for key in ("count", "span", "foreign"):
                    if key in rule:
                        argument[key] = rule[key]
                if role == "result" and argument["extents"]:
                    argument["count"] = str(width_of(argument))
                argument["values"] = dict(kind="list", rows=rows_of(rule["legal"])) if "legal" in rule else None
                argument["together"] = False
                argument["illegal"] = rows_of(rule.get("illegal", []))
                if argument["values"]:
                    if argument["fill"] == "pixels":
                        argument["fill"] = "climbing"
                    if argument["fill"] == "rows" and argument["extents"] and \
                            any(len(row) != width_of(argument) for row in argument["values"]["rows"]):
                        raise Missing(f"values of {name} are not {width_of(argument)} numbers each")
                if role in IMAGES:
                    if "extent" in rule:
                        argument["extent"] = rule["extent"]
                    elif function["domain"] == "vector" and lengths:
                        argument["extent"] = [lengths[0], "1"]
                    elif len(sizes) == 1:
                        argument["extent"] = [f"{sizes[0]}.width", f"{sizes[0]}.height"]
                    else:
                        raise Missing(f"nothing tells how large {name} is")
                    argument["reach"] = rule.get("reach", ["0"] * 4)
                elif role in ("coefficients", "quad", "bound"):
                    argument["count"] = str(width_of(argument))
                elif role in ("buffer", "memory"):
                    argument["size"] = self.size(function, argument, rule, parameters)
                elif kind == "record" and context and context["role"] == "init":
                    argument["size"] = self.size(function, argument, rule, parameters)
                elif kind in ("pointer", "planes") and "count" not in argument:
                    raise Missing(f"nothing tells how many elements {name} has")
            for formula in self.formulas(argument):
                unknown = names_in(formula) - names - {"channels", "elements", "row", "max", "min"}
                if unknown:
                    raise Missing(f"{name}: {unknown.pop()} is no parameter")
        lists = [len(a["values"]["rows"]) for a in entry["arguments"] if a.get("values") and a["values"]["kind"] == "list"]
        if not entry["calls"]:
            entry["calls"] = min(max(lists, default=1), 15)
        return entry

    def values(self, function, argument, rule, rows):
        role, element = argument["role"], argument["element"]
        if rows:
            return dict(kind="list", rows=rows_of(rows))
        if role == "step":
            return dict(kind="row")
        legal = rule.get("legal")
        if legal == "enumerators":
            return dict(kind="list", rows=self.enumerators[argument["type"]])
        if legal and all(isinstance(value, str) for value in legal):
            return dict(kind="formula", terms=legal)
        if legal:
            rows = rows_of(legal)
            width = len(PARTS.get(argument["type"], "1"))
            if any(len(row) != width for row in rows):
                raise Missing(f"values of {argument['name']} are not {width} numbers each")
            return dict(kind="list", rows=rows)
        if role == "constant" and element:
            return dict(kind="pixels")
        raise Missing(f"nothing tells what {argument['name']} may be")

    def size(self, function, argument, rule, parameters):
        """The function that tells how much memory, and its arguments: those of the same names where none are given."""
        context = function["context"]
        teller = rule.get("size")
        if not teller and context:
            teller = context["buffer_size"] if argument["role"] == "buffer" else context["get_size"]
            if teller and argument["role"] == "buffer":
                return dict(function=teller, arguments=[], result=0, of_context=True)
        if teller not in self.functions:
            raise Missing(f"nothing tells how large {argument['name']} must be")
        arguments = rule.get("arguments")
        if arguments is None:
            arguments = [p["name"] for p in self.functions[teller]["parameters"] if p["kind"] == "value"]
        return dict(function=teller, arguments=arguments, result=rule.get("result", 0), of_context=False)

    @staticmethod
    def formulas(argument):
        found = [*argument.get("extent", []), *argument.get("reach", [])]
        found += [argument[key] for key in ("count", "span") if key in argument]
        if argument.get("values") and argument["values"]["kind"] == "formula":
            found += argument["values"]["terms"]
        found += [term for row in argument.get("illegal", []) for term in row if isinstance(term, str)]
        return found + argument.get("size", {}).get("arguments", [])


def resolve(registry):
    resolver = Resolver(registry, tomllib.loads((TOOLS / "rules.toml").read_text()))
    families = {f["name"] for f in registry["families"]}
    for rule in resolver.rules["family"]:
        for name in rule["names"]:
            if name not in families:
                sys.exit(f"rules: no family {name} in the headers")
    resolved = {}
    for function in registry["functions"]:
        try:
            resolved[function["name"]] = resolver.resolve(function)
        except Missing as missing:
            resolved[function["name"]] = dict(covered=False, reason=str(missing))
    return resolved


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--registry", help="a registry.json (made from the headers)")
    parser.add_argument("--output", help="file to write (standard output)")
    parser.add_argument("--uncovered", action="store_true", help="list the functions without rules; fails if there are any")
    arguments = parser.parse_args()
    text = Path(arguments.registry).read_text() if arguments.registry else \
        subprocess.run([TOOLS / "registry"], capture_output=True, text=True, check=True).stdout
    resolved = resolve(json.loads(text))
    if arguments.uncovered:
        uncovered = {name: entry["reason"] for name, entry in resolved.items() if not entry["covered"]}
        for name, reason in uncovered.items():
            print(f"{name}: {reason}")
        print(f"rules: {len(resolved) - len(uncovered)} functions covered, {len(uncovered)} not")
        sys.exit(1 if uncovered else 0)
    text = json.dumps(resolved, indent=1) + "\n"
    if arguments.output:
        Path(arguments.output).write_text(text)
    else:
        sys.stdout.write(text)


if __name__ == "__main__":
    main()
