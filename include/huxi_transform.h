/* Frequency transforms of images, packed spectra, wavelets. Plain C99. */
#ifndef HUXI_TRANSFORM_H
#define HUXI_TRANSFORM_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- FFT and DFT ---- */

/* ---- DCT ---- */

/* ---- Blocks of 8 by 8 ---- */

/* ---- Packed spectra ---- */

/* ---- Wavelets ---- */

HUX_END_C

#endif
