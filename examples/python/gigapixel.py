#!/usr/bin/python3
"""A picture of 40,000 by 40,000 pixels in colour, 4.5 GiB, that is never in memory as a whole: smoothed, measured, and
made a thumbnail of, on a cluster.

  gigapixel.py [FOLDER] [--side 40000] [--chunk 4096] [--workers 2] [--memory 2GiB] [--address tcp://...] [--zarr PATH]

Without --address, a cluster of so many workers is started here. The picture is made block by block as it is needed, or,
with --zarr, stored first and read from there (needs zarr).
"""
import argparse
import resource
import time
from pathlib import Path

import dask.array as da
import numpy as np
from distributed import Client, LocalCluster, progress, wait

import hux
import png
from hux import dask as hd


def rings(block_info=None):
    """A block of rings that grow closer outwards, as phases: bytes."""
    (y0, y1), (x0, x1) = block_info[None]["array-location"]
    y, x = np.arange(y0, y1, dtype=np.uint32), np.arange(x0, x1, dtype=np.uint32)
    return ((y * y)[:, None] + (x * x)[None] >> 17).astype(np.uint8)


def picture(side, chunk):
    phases = da.map_blocks(rings, chunks=da.core.normalize_chunks(chunk, (side, side)), dtype=np.uint8,
                           meta=np.empty((0, 0), np.uint8))
    turn = np.arange(256)[:, None] / 128 * np.pi + [0, 2, 4]
    return hd.lut_palette(phases, (127.5 + 127.5 * np.cos(turn)).astype(np.uint8))


def peak():
    """The most memory that this process has had, in bytes."""
    return resource.getrusage(resource.RUSAGE_SELF).ru_maxrss * 1024


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", nargs="?", default=".", type=Path)
    parser.add_argument("--side", type=int, default=40000)
    parser.add_argument("--chunk", type=int, default=4096)
    parser.add_argument("--workers", type=int, default=2)
    parser.add_argument("--memory", default="2GiB")
    parser.add_argument("--address")
    parser.add_argument("--zarr")
    options = parser.parse_args()
    cluster = options.address or LocalCluster(n_workers=options.workers, threads_per_worker=1, dashboard_address=None,
                                              memory_limit=options.memory)
    with Client(cluster) as client:
        image = picture(options.side, options.chunk)
        if options.zarr:
            if not Path(options.zarr).exists():
                begun = time.monotonic()
                image.to_zarr(options.zarr)
                print(f"stored in {time.monotonic() - begun:.1f} s")
            image = da.from_zarr(options.zarr)
        begun = time.monotonic()
        smooth = hd.filter_gauss(image, "5x5", border="reflect101")
        cell = max(options.side // 800, 1)  # the mean of so many pixels each way becomes one
        means = hd.filter_box(smooth, (cell, cell), border="reflect101")
        small = hd.resize_sqr_pixel(means, 1 / cell, 1 / cell, inter="nearest")
        lowest, highest = hd.min_max(smooth)
        results = client.persist([small, hd.mean(smooth), lowest, highest, hd.histogram(smooth[..., 1], bins=256)])
        progress(results, notebook=False)
        wait(results)
        thumbnail, mean, lowest, highest, counts = client.gather(client.compute(results))
        seconds = time.monotonic() - begun
        most = max(client.run(peak).values())
    png.write(options.folder / "gigapixel.png", thumbnail)
    print(f"\ngigapixel.png: {thumbnail.shape[1]} by {thumbnail.shape[0]}, of {options.side} by {options.side} in "
          f"{seconds:.1f} s, {image.nbytes / seconds / 1e6:.0f} MB/s; most memory of a worker {most / 2**30:.2f} GiB")
    print(f"mean {np.round(mean, 3)}, from {lowest} to {highest}; green is most often {counts.argmax()}")


if __name__ == "__main__":
    main()
