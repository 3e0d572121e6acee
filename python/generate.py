#!/usr/bin/python3
"""Writes the table of python/table.h from the registry and python/rules.toml.

  generate.py REGISTRY OUTPUT      the table, as C++
  generate.py REGISTRY --reached   which functions the operations of the module reach, by family
"""
import json
import re
import sys
import tomllib
from collections import Counter
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "tools" / "hux"))
import generate as calls  # noqa: E402

LAYOUTS = {"C1": 1, "C3": 3, "C4": 4, "AC4": 5}


def python_name(operation):
    """The operation in snake case, without the C of constants."""
    plain = re.sub(r"C(?=Scale$|$)", "", operation)
    name = re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", plain).lower()
    return name + "_" if name in ("and", "or", "not") else name


def member(function, rule):
    """How a call fills the parameters, one letter each (see table.h), or None where the module does not reach it."""
    flags = function["flags"]
    if function["domain"] != "image" or function["layout"] not in LAYOUTS or len(function["types"]) != 1 or \
            flags["masked"] or flags["one_channel"]:
        return None
    sources = [p["name"] for p in function["parameters"] if p["role"] == "source"]
    images = {}
    if flags["in_place"]:
        images = dict.fromkeys(sources, "b")
    elif len(sources) == 2:
        images = dict(zip(sources, "ba" if rule.get("reversed") else "ab"))
    else:
        images = dict.fromkeys(sources, "a")
    program = ""
    for p in function["parameters"]:
        if p["role"] == "source" and p["kind"] == "pointer":
            program += images[p["name"]]
        elif p["role"] in ("destination", "source_destination") and p["kind"] == "pointer":
            program += "o"
            images[p["name"]] = "o"
        elif p["role"] == "step":
            program += images[p["of"][0]].upper()
        elif p["role"] == "constant":
            program += "c" if p["kind"] == "value" else "C"
        elif p["role"] == "size":
            program += "S"
        elif p["role"] == "scale_factor":
            program += "s"
        else:
            return None
    return program


def text(string):
    return json.dumps(string, ensure_ascii=True)


def main():
    registry = json.loads(Path(sys.argv[1]).read_text())
    entries = tomllib.loads((HERE / "rules.toml").read_text())["family"]
    rules = {name: rule for rule in entries for name in rule["names"]}
    reached = [(f, member(f, rules[f["family"]])) for f in registry["functions"] if f["family"] in rules]
    reached = [(f, program) for f, program in reached if program]
    if sys.argv[2] == "--reached":
        all_of, own = Counter(f["family"] for f in registry["functions"]), Counter(f["family"] for f, _ in reached)
        for family, count in all_of.items():
            print(f"{family:24}{own[family]:6} of {count}")
        print(f"{'all':24}{len(reached):6} of {len(registry['functions'])}")
        return
    shapes = sorted({f["shape"] for f, _ in reached})
    operations = {}
    for function, program in reached:
        operations.setdefault(python_name(function["operation"]), []).append((function, program))
    members, lines = [], []
    for name, own in operations.items():
        # Sources first; the forms with a constant have one less.
        sources = max(2 if {"b", "c", "C"} & set(program) else 1 for _, program in own)
        commutative = any(rules[f["family"]].get("commutative") for f, _ in own)
        groups = dict.fromkeys(f["group"] for f, _ in own)
        comment = "\n\n".join(registry["groups"][g]["comment"] for g in groups)
        call = f"{name}({'a, b' if sources == 2 else 'a'}, /, *, out=None"
        scaled = any("s" in program for _, program in own)
        call += f"{', shift=0' if scaled else ''}, alpha=None)"
        if any(rules[f["family"]].get("reversed") for f, _ in own):
            comment = f"Here a is what C calls pSrc2, and b is pSrc1.\n\n{comment}"
        doc = text(f"{call}\n\n{comment}")
        traits = ", ".join(str(trait).lower() for trait in (commutative, scaled))
        lines.append(f"{{{text(name)}, {doc}, {len(members)}, {len(own)}, {sources}, {traits}}}")
        for function, program in own:
            constant = next((p["element"] for p in function["parameters"] if p["role"] == "constant"), None)
            members.append(f"{{{text(function['name'])}, reinterpret_cast<Any>(&{function['name']}), "
                           f"{shapes.index(function['shape'])}, {text(program)}, Type::t{function['types'][0]}, "
                           f"Type::{'t' + constant if constant else 'none'}, {LAYOUTS[function['layout']]}, "
                           f"{str(function['flags']['in_place']).lower()}}}")
    statuses = [f"{{{s['value']}, {text(s['name'])}, {text(s['comment'])}}}" for s in registry["statuses"]]
    out = ["// Made by python/generate.py.", '#include "table.h"', "namespace hux::python {", "using tool::Any;",
           "const Member kMembers[] = {", *(m + "," for m in members), "};", "const Operation kOperations[] = {",
           *(line + "," for line in lines), "};", f"const int kOperationCount = {len(lines)};",
           "const Status kStatuses[] = {", *(s + "," for s in statuses), "};",
           f"const int kStatusCount = {len(statuses)};", f"const char* const kVersion = {text(registry['library'])};",
           "}  // namespace hux::python", "namespace hux::tool {", *calls.trampolines(shapes),
           "}  // namespace hux::tool", ""]
    Path(sys.argv[2]).write_text("\n".join(out))


if __name__ == "__main__":
    main()
