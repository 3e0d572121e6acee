// Sub: the second image less the first, or an image less a constant.
#include "arith/scaled_images.h"
#include "huxi_arith.h"

#define EXPORT(t, l) HUX_EXPORT_ARITH(Sub, hux::SubOp, t, l, Sfs)
HUX_STAMP(EXPORT, (8u, 16s, 16u), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, l) HUX_EXPORT_ARITH(Sub, hux::SubOp, t, l, )
HUX_STAMP(EXPORT, (32f), (C1, C3, C4, AC4))
