// What the tests of remap and of the warps share: the pixel at a position by definition.
#pragma once

#include "geometry/picture.h"

namespace hux::test {

inline constexpr HuxiInterpolation kModes[] = {huxiInterNearest, huxiInterLinear, huxiInterCubic};

// The element at a position, which lies inside the image or less than a pixel off.
inline Hux64f sampled(const Picture& src, const Format& f, HuxiInterpolation mode, Hux64f x, Hux64f y, int c) {
  const int xMax = src.size().width - 1, yMax = src.size().height - 1, least = std::min(xMax, yMax) + 1;
  if (least == 1 || mode == huxiInterNearest) return src.get(int(0.5 + x), int(0.5 + y), c);
  int u = int(1e-7 + x), v = int(1e-7 + y);
  if (least < 4 || mode == huxiInterLinear) {
    Hux64f fx = x - u, fy = y - v;
    if (u >= xMax) u = xMax - 1, fx = 1;
    if (v >= yMax) v = yMax - 1, fy = 1;
    const auto row = [&](int v) { return src.get(u, v, c) + (src.get(u + 1, v, c) - src.get(u, v, c)) * fx; };
    const Hux64f top = row(v), bottom = row(v + 1);
    return f.elementBytes == 1 ? fy * (bottom - top) + 0.5 + top : fy * (bottom - top) + top;
  }
  const auto corner = [](int u, int last) { return u >= last - 1 ? last - 3 : u < 1 ? 0 : u - 1; };
  const int xs = corner(u, xMax), ys = corner(v, yMax);
  const auto weights = [](Hux32f offset) {
    const Hux64f t = offset, q = offset * offset, s = t * t / 2;
    const Hux64f third = 1.0 / 3, sixth = 1.0 / 6;
    return std::array<Hux64f, 4>{-t * t * t * sixth + s - t * third, t * s + 1 - q - t / 2, -t * t * t / 2 + s + t,
                                 t * t * t * sixth - t * sixth};
  };
  const auto wx = weights(Hux32f(x - 1 - xs)), wy = weights(Hux32f(y - 1 - ys));
  Hux64f rows[4];
  for (int r = 0; r < 4; ++r)
    rows[r] = src.get(xs, ys + r, c) * wx[0] + src.get(xs + 1, ys + r, c) * wx[1] + src.get(xs + 2, ys + r, c) * wx[2] +
              src.get(xs + 3, ys + r, c) * wx[3];
  const Hux64f sum = rows[0] * wy[0] + rows[1] * wy[1] + rows[2] * wy[2] + rows[3] * wy[3];
  if (f.elementBytes == 4) return sum;
  const Hux64f most = f.elementBytes == 1 ? 255 : 65535;
  return sum > most ? most : sum >= 0 ? sum + 0.5 : 0;
}

// Sets the pixel (i, j) of dst to the source at a position.
inline void setSampled(const Picture& dst, int i, int j, const Picture& src, const Format& f, HuxiInterpolation mode,
                       Hux64f x, Hux64f y) {
  for (int c = 0; c < f.channels(); ++c) dst.set(i, j, c, sampled(src, f, mode, x, y, c));
}

}  // namespace hux::test
