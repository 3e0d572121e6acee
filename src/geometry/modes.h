// What all resizes have in common beside their passes: the checks of factors and modes, and the mode and the sizes that
// follow.
#pragma once

#include "geometry/image.h"
#include "geometry/taps.h"

namespace hux {

constexpr HuxStatus positive(Hux64f xFactor, Hux64f yFactor) {
  return failUnless(xFactor > 0 && yFactor > 0, huxStsBadResizeFactor);
}

constexpr bool isMode(HuxiInterpolation i) {
  return i == huxiInterNearest || i == huxiInterLinear || i == huxiInterCubic || i == huxiInterLanczos;
}
constexpr HuxStatus resizeMode(HuxiInterpolation i) { return failUnless(isMode(i), huxStsBadInterpolation); }

// The mode that the image has room for.
inline HuxiInterpolation modeFor(HuxiSize image, HuxiInterpolation mode) {
  const int least = std::min(image.width, image.height);
  if (mode == huxiInterLanczos && least < 8) mode = huxiInterCubic;
  if (mode == huxiInterCubic && least < 4) mode = huxiInterLinear;
  return least < 2 ? HuxiInterpolation(huxiInterNearest) : mode;
}

// The step in the source from one pixel of the destination to the next. In interpolating modes the first and the last
// pixel of both sides coincide.
inline Hux64f stepOf(int extent, Hux64f factor, HuxiInterpolation mode) {
  if (mode == huxiInterNearest) return 1 / factor;
  return extent * factor > 1 ? (extent - 1) / (extent * factor - 1) : 0;
}

// Pixels of the destination, from `least` up to `most`; 0 where there are fewer than `least` less a half.
inline Index countOf(int extent, Hux64f factor, int most, int least = 1) {
  const Hux64f exact = extent * factor + 1e-7;
  if (exact >= most) return most;
  return exact >= least ? Index(exact) : exact >= least - 0.5 ? least : 0;
}

}  // namespace hux
