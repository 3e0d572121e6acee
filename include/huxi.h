/* hux image functions, all subsystems. Plain C99.
 *
 * Names: huxi<Operation>[_<Variant>]_<types>_<layout>. Layouts: C1, C3, C4 interleaved channels; AC4 four channels of
 * which the fourth, alpha, is neither read nor written in a destination; P3, P4 planes. Letters behind the layout: M
 * masked, I in place, C one channel of several, R region of interest, Sfs result scaled by 2^-scaleFactor.
 *
 * An image is a pointer to the first element of its region and a step, the distance in bytes from one row to the next.
 * Nothing need be aligned. A region's size counts pixels. Pixels outside the region are never written. Planes are an
 * array of pointers to their first elements, which share one step.
 *
 * Forms in place take one pointer, pSrcDst, for source and destination. Other sources and destinations must not
 * overlap, but where a comment says that they may be the same image.
 *
 * Comments stand above the functions of a family, and hold for all down to the next comment. Their checks are in the
 * order in which failures win. A call that fails one of them writes nothing; a warning (a status above 0) comes back
 * once the whole region is written; both unless the comment says otherwise. */
#ifndef HUXI_H
#define HUXI_H

#include "huxdefs.h"
#include "huxi_arith.h"
#include "huxi_filter.h"
#include "huxi_geometry.h"
#include "huxi_pixel.h"
#include "huxi_stats.h"
#include "huxi_transform.h"

HUX_BEGIN_C

/* GetLibVersion: the version record: constant, owned by the library, never null. */
HUX_API const HuxLibraryVersion* huxiGetLibVersion(void);

HUX_END_C

#endif
