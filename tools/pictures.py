"""The images that the Python examples of the reference are about, made of two photographs in colour of one size."""
import numpy as np

import hux


def images(a, b):
    """Fresh names for an example to be run among, as docs/site/examples.toml tells them."""
    height, width = a.shape[:2]
    y, x = np.mgrid[:height, :width]
    gray = hux.copy(a[..., 1])
    noisy = hux.add_rand_gauss_direct(gray, 0, 25, seed=1)
    mask = np.where((2 * x - width) ** 2 + (2 * y - height) ** 2 < (0.8 * height) ** 2, 255, 0).astype(np.uint8)
    shapes = hux.compare(hux.filter_median(gray, (5, 5)), 110, ">")
    return dict(np=np, hux=hux, a=a.copy(), b=np.maximum(b, 1), gray=gray, noisy=noisy, shapes=shapes, mask=mask,
                f=hux.convert(gray, "float32"))
