// Rotation by quarter turns and whole shifts, which moves pixels and computes none.
#pragma once

#include "geometry/warp.h"

namespace hux {

// `turns` of 1, 2 or 3 quarters, counter-clockwise on the screen. Of the warp's arguments all but the interpolation are
// checked, and that is not looked at. huxStsNoOverlapWarn where the image of the source region misses the
// destination's.
HuxStatus quarterTurn(const Warp& w, int turns, Hux64f xShift, Hux64f yShift);

}  // namespace hux
