#!/usr/bin/python3
"""Times chains beside the calls one by one, OpenCV's sequence, libvips' pipeline and dask's blocks, over image sizes.

  bench/chain.py [--level LEVEL] [--most SIDE] [PICTURE...]   points or windows, -8u or -32f; without, draws only

Each picture is timed in one run: rounds over all ways, the least time of each, in milliseconds. It is kept in
bench/results/LEVEL/chains.json, and all are drawn to docs/images/chains.svg. The module is found by PYTHONPATH; libvips
by gir1.2-vips-8.0 and python3-gi; what is not installed is left out.
"""
import json
import math
import platform
import sys
import time
from pathlib import Path

import numpy as np

ROOT = Path(__file__).resolve().parents[1]
DRAWING = ROOT / "docs" / "images" / "chains.svg"
SIDES = (512, 1024, 2048, 4096, 6000, 8192, 12000)
SECONDS = 25  # for a picture
TITLES = {"points-8u": "add, mul, sub, threshold, xor of bytes", "points-32f": "add, mul, sub, threshold, mul of floats",
          "windows-8u": "box, Sobel, threshold, erode, dilate of bytes",
          "windows-32f": "Gauss, Sobel, threshold, erode, dilate of floats"}


# ---- The same work in each library -----------------------------------------------------------------------------------


def points(hux, a, b):
    if a.dtype == np.float32:
        return hux.mul(hux.threshold_gt(hux.sub(hux.mul(hux.add(a, b), 1.5), b), 0.8), b)
    return hux.xor(hux.threshold_gt(hux.sub(hux.mul(hux.add(a, b, shift=1), 3, shift=1), b), 100), b)


def windows(hux, a, b):
    if a.dtype == np.float32:
        edges = hux.filter_sobel_horiz(hux.filter_gauss(a, "3x3"))
        return hux.dilate3x3(hux.erode3x3(hux.threshold_gt(edges, 0.5)))
    edges = hux.filter_sobel_horiz(hux.filter_box(a, (5, 5)))
    return hux.dilate3x3(hux.erode3x3(hux.compare(edges, 40, ">")))


def hux_calls(name, a, b, out):
    import hux
    t = [np.empty_like(a), np.empty_like(a)]

    def run_points():
        x, y = t
        if a.dtype == np.float32:
            hux.add(a, b, out=x), hux.mul(x, 1.5, out=y), hux.sub(y, b, out=x), hux.threshold_gt(x, 0.8, out=y)
            return hux.mul(y, b, out=out)
        hux.add(a, b, shift=1, out=x), hux.mul(x, 3, shift=1, out=y), hux.sub(y, b, out=x)
        hux.threshold_gt(x, 100, out=y)
        return hux.xor(y, b, out=out)

    def run_windows():
        x, y = t
        if a.dtype == np.float32:
            hux.filter_gauss(a, "3x3", out=x), hux.filter_sobel_horiz(x, out=y), hux.threshold_gt(y, 0.5, out=x)
        else:
            hux.filter_box(a, (5, 5), out=x), hux.filter_sobel_horiz(x, out=y), hux.compare(y, 40, ">", out=x)
        hux.erode3x3(x, out=y)
        return hux.dilate3x3(y, out=out)

    def on(threads):
        def run():
            with hux.threads(threads):
                (run_windows if name.startswith("windows") else run_points)()
        return run
    return {"calls": on}


def hux_chain(name, a, b, out):
    import hux
    if name.startswith("windows"):
        chain = hux.chain(lambda a: windows(hux, a, None))
        return {"chain": lambda threads: lambda: chain(a, out=out, threads=threads)}
    chain = hux.chain(lambda a, b: points(hux, a, b))
    return {"chain": lambda threads: lambda: chain(a, b, out=out, threads=threads)}


def opencv(name, a, b, out):
    import cv2
    x, y = np.empty_like(a), np.empty_like(a)
    box = np.ones((3, 3), np.uint8)

    def run_points():
        cv2.addWeighted(a, 0.5, b, 0.5, 0, x) if a.dtype == np.uint8 else cv2.add(a, b, x)
        cv2.convertScaleAbs(x, y, 1.5) if a.dtype == np.uint8 else cv2.multiply(x, 1.5, y)
        cv2.subtract(y, b, x)
        cv2.threshold(x, 100 if a.dtype == np.uint8 else 0.8, 0, cv2.THRESH_TRUNC, y)
        cv2.bitwise_xor(y, b, out) if a.dtype == np.uint8 else cv2.multiply(y, b, out)

    def run_windows():
        if a.dtype == np.float32:
            cv2.GaussianBlur(a, (3, 3), 0, x, borderType=cv2.BORDER_REPLICATE)
            cv2.Sobel(x, cv2.CV_32F, 0, 1, y, borderType=cv2.BORDER_REPLICATE)
            cv2.threshold(y, 0.5, 0, cv2.THRESH_TRUNC, x)
        else:
            cv2.blur(a, (5, 5), x, borderType=cv2.BORDER_REPLICATE)
            cv2.Sobel(x, cv2.CV_8U, 0, 1, y, borderType=cv2.BORDER_REPLICATE)
            cv2.threshold(y, 40, 255, cv2.THRESH_BINARY, x)
        cv2.erode(x, box, y)
        cv2.dilate(y, box, out)

    def on(threads):
        def run():
            cv2.setNumThreads(threads)
            (run_windows if name.startswith("windows") else run_points)()
        return run
    return {"OpenCV": on}


def vips(name, a, b, out):
    import gi
    gi.require_version("Vips", "8.0")
    from gi.repository import GObject, Vips
    Vips.init("chain")
    Vips.cache_set_max(0)
    kind = {"uint8": Vips.BandFormat.UCHAR, "float32": Vips.BandFormat.FLOAT}[str(a.dtype)]
    bytes_of = [a.tobytes(), b.tobytes()]
    images = [Vips.Image.new_from_memory(data, a.shape[1], a.shape[0], 1, kind) for data in bytes_of]
    run.kept.append(bytes_of)

    def call(operation, **properties):
        own = Vips.Operation.new(operation)
        for key, value in properties.items():
            GObject.Object.set_property(own, key.strip("_").replace("_", "-"), value)
        return GObject.Object.get_property(Vips.cache_operation_build(own), "out")

    def numbers(*values):
        return Vips.ArrayDouble.new(list(values))

    def matrix(values, scale=1.0):
        own = Vips.Image.new_matrix_from_array(len(values[0]), len(values), [float(v) for row in values for v in row])
        own.set_double("scale", scale)
        return own

    def bytes_again(image):
        return call("cast", in_=image, format=kind)

    def run_points():
        a, b = images
        if kind == Vips.BandFormat.FLOAT:
            x = call("subtract", left=call("linear", in_=call("add", left=a, right=b), a=numbers(1.5), b=numbers(0)), right=b)
            above = call("relational_const", in_=x, relational=Vips.OperationRelational.MORE, c=numbers(0.8))
            level = call("linear", in_=x, a=numbers(0), b=numbers(0.8))
            x = call("ifthenelse", cond=above, in1=level, in2=x)
            return call("multiply", left=x, right=b).copy_memory()
        x = call("boolean_const", in_=call("add", left=a, right=b), boolean=Vips.OperationBoolean.RSHIFT, c=numbers(1))
        x = call("linear", in_=bytes_again(x), a=numbers(1.5), b=numbers(0), uchar=True)
        x = bytes_again(call("subtract", left=x, right=b))
        table = Vips.Image.new_from_memory(run.table, 256, 1, 1, kind)
        return call("boolean", left=call("maplut", in_=x, lut=table), right=b,
                    boolean=Vips.OperationBoolean.EOR).copy_memory()

    def run_windows():
        box = matrix([[1] * 5] * 5, 25.0)
        sobel = matrix([[1, 2, 1], [0, 0, 0], [-1, -2, -1]])
        whole = matrix([[255] * 3] * 3)
        if kind == Vips.BandFormat.FLOAT:
            x = call("conv", in_=images[0], mask=matrix([[1, 2, 1], [2, 4, 2], [1, 2, 1]], 16.0), precision=Vips.Precision.FLOAT)
            x = call("conv", in_=x, mask=sobel, precision=Vips.Precision.FLOAT)
            above = call("relational_const", in_=x, relational=Vips.OperationRelational.MORE, c=numbers(0.5))
            x = call("ifthenelse", cond=above, in1=call("linear", in_=x, a=numbers(0), b=numbers(0.5)), in2=x)
            for index in (0, 8):
                x = call("rank", in_=x, width=3, height=3, index=index)
            return x.copy_memory()
        x = call("conv", in_=images[0], mask=box, precision=Vips.Precision.INTEGER)
        x = call("conv", in_=x, mask=sobel, precision=Vips.Precision.INTEGER)
        x = call("relational_const", in_=x, relational=Vips.OperationRelational.MORE, c=numbers(40))
        x = call("morph", in_=x, mask=whole, morph=Vips.OperationMorphology.ERODE)
        return call("morph", in_=x, mask=whole, morph=Vips.OperationMorphology.DILATE).copy_memory()

    def on(threads):
        def run():
            Vips.concurrency_set(threads)
            (run_windows if name.startswith("windows") else run_points)()
        return run
    return {"libvips": on}


def blocks(name, a, b, out):
    import dask
    import dask.array as da

    def numpy_points(a, b):
        if a.dtype == np.float32:
            return np.minimum((a + b) * np.float32(1.5) - b, np.float32(0.8)) * b
        t = (((a.astype(np.uint16) + b) >> 1) * 3) >> 1
        t = np.clip(t.astype(np.int16) - b, 0, 100).astype(np.uint8)
        return np.bitwise_xor(t, b)

    if name.startswith("windows"):
        return {}
    left, right = (da.from_array(x, chunks=(512, 2048)) for x in (a, b))
    whole = da.map_blocks(numpy_points, left, right, dtype=a.dtype)

    def on(threads):
        def run():
            with dask.config.set(scheduler="threads" if threads > 1 else "sync", num_workers=threads):
                da.store(whole, out, lock=False)
        return run
    return {"dask, numpy": on}


# ---- Timing ----------------------------------------------------------------------------------------------------------


def run(name, most):
    """Least milliseconds by way, "calls 1" on one thread, and side."""
    random = np.random.default_rng(1)
    table, end = {}, time.perf_counter() + SECONDS
    sides = [side for side in SIDES if side <= most]
    for place, side in enumerate(sides):
        run.kept = []
        run.table = bytes(min(k, 100) for k in range(256))
        if name.endswith("8u"):
            a, b = (random.integers(0, 256, (side, side), np.uint8) for _ in range(2))
        else:
            a, b = (random.random((side, side), np.float32) for _ in range(2))
        out, ways = np.empty_like(a), {}
        for make in (hux_calls, hux_chain, opencv, vips, blocks):
            try:
                ways |= {f"{way} {threads}": on(threads) for way, on in make(name, a, b, out).items() for threads in (1, 2)}
            except (ImportError, ValueError) as missing:
                print(f"{make.__name__} is left out: {missing}", file=sys.stderr)
        # Larger sides take the more of what time is left.
        weight = [s * s for s in sides[place:]]
        until = time.perf_counter() + (end - time.perf_counter()) * (0.1 + 0.9 * weight[0] / sum(weight))
        best, rounds = dict.fromkeys(ways, math.inf), 0
        while rounds < 3 or time.perf_counter() < until and rounds < 60:
            for way, act in ways.items():
                start = time.perf_counter()
                act()
                best[way] = min(best[way], (time.perf_counter() - start) * 1e3)
            rounds += 1
        for way, least in best.items():
            table.setdefault(way, {})[side] = round(least, 4)
        print(side, {way: round(least, 3) for way, least in best.items()}, rounds, file=sys.stderr)
    return table


# ---- Drawing ---------------------------------------------------------------------------------------------------------

COLOURS = {"chain": "#d1495b", "calls": "#1b6ca8", "OpenCV": "#5a8f3c", "libvips": "#7a4fa3", "dask, numpy": "#e09f3e"}


def draw(pictures):
    """Nanoseconds to a pixel over the side, both by their logarithms; dashed on two threads."""
    wide, high, low, top = 480, 310, 0.05, 20
    shown = [name for name in TITLES if name in pictures]
    all_high = 30 + high * math.ceil(len(shown) / 2)

    def x(side):
        return 50 + math.log2(side / 512) / math.log2(12000 / 512) * (wide - 75)

    def y(value):
        return 30 + math.log(top / min(max(value, low), top)) / math.log(top / low) * (high - 60)

    out = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{2 * wide}" height="{all_high}" font-family="sans-serif" '
           'font-size="12">', f'<rect width="{2 * wide}" height="{all_high}" fill="white"/>']
    for k, (way, colour) in enumerate(COLOURS.items()):
        out.append(f'<line x1="{50 + k * 110}" y1="16" x2="{74 + k * 110}" y2="16" stroke="{colour}" stroke-width="2"/>'
                   f'<text x="{80 + k * 110}" y="20">{way}</text>')
    out.append(f'<text x="{60 + len(COLOURS) * 110}" y="20">dashed: two threads; nanoseconds to a pixel</text>')
    for k, name in enumerate(shown):
        out += [f'<g transform="translate({k % 2 * wide} {30 + k // 2 * high})">', f'<text x="50" y="18">{TITLES[name]}</text>']
        for g in (0.05, 0.1, 0.2, 0.5, 1, 2, 5, 10, 20):
            out.append(f'<line x1="50" y1="{y(g):.1f}" x2="{wide - 25}" y2="{y(g):.1f}" stroke="#ddd"/>'
                       f'<text x="44" y="{y(g) + 4:.1f}" text-anchor="end">{g}</text>')
        for side in (512, 1024, 2048, 4096, 12000):
            out.append(f'<text x="{x(side):.1f}" y="{high - 12}" text-anchor="middle">{side}</text>')
        for way, times in pictures[name]["times"].items():
            colour, threads = COLOURS[way[:-2]], way[-1]
            line = " ".join(f"{x(int(s)):.1f},{y(t * 1e6 / int(s) ** 2):.1f}" for s, t in times.items())
            dash = ' stroke-dasharray="5 4"' if threads == "2" else ""
            out.append(f'<polyline points="{line}" fill="none" stroke="{colour}" stroke-width="2"{dash}/>')
        out.append("</g>")
    DRAWING.write_text("\n".join([*out, "</svg>", ""]))


def main():
    words = sys.argv[1:]
    options = {"--level": "native", "--most": "12000"}
    while words and words[0] in options:
        options[words[0]] = words[1]
        del words[:2]
    kept = ROOT / "bench" / "results" / options["--level"] / "chains.json"
    pictures = json.loads(kept.read_text()) if kept.exists() else {}
    for name in words:
        if name not in TITLES:
            sys.exit(f"chain.py: pictures are {', '.join(TITLES)}")
        processor = next((line.split(":")[1].strip() for line in open("/proc/cpuinfo") if line.startswith("model name")),
                         platform.machine())
        pictures[name] = {"processor": processor, "date": time.strftime("%F"),
                          "times": run(name, int(options["--most"]))}
    if words:
        kept.parent.mkdir(parents=True, exist_ok=True)
        kept.write_text(json.dumps(pictures, indent=1) + "\n")
    if not pictures:
        sys.exit(f"chain.py: there is nothing in {kept.relative_to(ROOT)}")
    draw(pictures)


if __name__ == "__main__":
    main()
