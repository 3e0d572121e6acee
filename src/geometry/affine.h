// The warp by an affine map, for the families that are such warps.
#pragma once

#include "geometry/warp.h"

namespace hux {

// `coeffs` carry the source to the destination.
HuxStatus ownvi_WarpAffine(const Warp& w, const AffineCoeffs& coeffs);

}  // namespace hux
