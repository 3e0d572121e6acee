// Rotate, RotateCenter: an image turned by any angle. Quarter turns that carry pixels on to pixels only move them.
#include "core/stamp.h"
#include "geometry/affine.h"
#include "geometry/turn.h"
#include "huxi_geometry.h"

namespace hux {
namespace {

bool isWhole(Hux64f v) { return v == std::floor(v); }

HuxStatus ownvi_Rotate(const Warp& w, Hux64f angle, Hux64f xShift, Hux64f yShift) {
  const Hux64f a = reducedAngle(angle);
  if ((a == 90 || a == 180 || a == 270) && isWhole(xShift) && isWhole(yShift))
    return quarterTurn(w, int(a) / 90, xShift, yShift);
  return ownvi_WarpAffine(w, rotation(a, xShift, yShift));
}

HuxStatus rotateAround(const Warp& w, Hux64f angle, Hux64f xCenter, Hux64f yCenter) {
  Hux64f xShift, yShift;
  huxiGetRotateShift(xCenter, yCenter, angle, &xShift, &yShift);
  return ownvi_Rotate(w, angle, xShift, yShift);
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                  \
  HUX_EXPORT_WARP(Rotate, t, l, (Hux64f angle, Hux64f xShift, Hux64f yShift),         \
                  hux::ownvi_Rotate(warp, angle, xShift, yShift))                     \
  HUX_EXPORT_WARP(RotateCenter, t, l, (Hux64f angle, Hux64f xCenter, Hux64f yCenter), \
                  hux::rotateAround(warp, angle, xCenter, yCenter))
HUX_STAMP(EXPORT, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4))
