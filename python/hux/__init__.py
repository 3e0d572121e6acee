"""hux: image-processing primitives with exact results.

hux.c has every function of the library as C declares it.
"""
