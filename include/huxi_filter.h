/* Neighbourhood filters: each output pixel from a window of input pixels. Plain C99. */
#ifndef HUXI_FILTER_H
#define HUXI_FILTER_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- Box filter and window sums ---- */

/* ---- General linear filters ---- */

/* ---- Fixed filters ---- */

/* ---- Rank filters ---- */

/* ---- Morphology ---- */

/* ---- Wiener filter ---- */

/* ---- Convolution ---- */

/* ---- Deconvolution ---- */

/* ---- Window functions ---- */

HUX_END_C

#endif
