/* Frequency transforms of vectors. Plain C99. */
#ifndef HUXS_TRANSFORM_H
#define HUXS_TRANSFORM_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- FFT ---- */

/* ---- DFT ---- */

/* ---- DCT ---- */

HUX_END_C

#endif
