/* Geometric transforms: pixels moved to computed positions. Plain C99. */
#ifndef HUXI_GEOMETRY_H
#define HUXI_GEOMETRY_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- Quadrangles ---- */

/* ---- Resize ---- */

/* ---- Resize to square pixels ---- */

/* ---- Resize of packed YUV ---- */

/* ---- Affine warps, rotation and shear ---- */

/* ---- Bilinear and perspective warps ---- */

/* ---- Remap ---- */

HUX_END_C

#endif
