// Interpolation as it is defined, one pixel at a time: what resizing is compared with.
#pragma once

#include "geometry/picture.h"

namespace hux::test {

// A taps' place along one axis: as many samples as the mode has from `first` on, and a fraction.
struct Place1d {
  long first;
  double fraction;
};
inline int tapsOf(int mode) { return mode == huxiInterLinear ? 2 : mode == huxiInterCubic ? 4 : 6; }

// Samples outside of the image stand for its ends.
inline long inside(long at, long count) { return std::clamp(at, 0L, count - 1); }

inline float newton(const float* p, float t) {
  const float a = p[0], b = p[1], c = p[2], d = p[3];
  const float d1 = b - a, d2 = c - b - d1, d3 = b - c - c + d - d2;
  const float e = t * (1.0f + t) * 0.5f;
  return a + (t - 1.0f) * e / 3.0f * d3 + e * d2 + (1.0f + t) * d1;
}

inline float lanczosTable(int i) {
  const double pi = 3.14159265358979323846, x = i / 100.0;
  const auto sinc = [&](double v) { return v == 0 ? 1.0 : std::sin(pi * v) / (pi * v); };
  return i >= 300 ? 0.0f : float(sinc(x) * sinc(x / 3));
}
inline float lanczos(const float* p, float t) {
  float w[6], sum = 0, value = 0;
  for (int k = 0; k < 6; ++k) {
    const float x = -2.0f - t + float(k);
    w[k] = 0;
    if (x > -3 && x < 3) {
      const float u = std::fabs(x) * 100.0f;
      const int m = int(u);
      w[k] = lanczosTable(m) + (lanczosTable(m + 1) - lanczosTable(m)) * (u - float(m));
    }
    sum += w[k];
  }
  for (int k = 0; k < 6; ++k) {
    const float weighted = p[k] * (w[k] / sum);
    value = k == 0 ? weighted : value + weighted;
  }
  return value;
}

// What a float becomes as an element of so many bytes.
inline double rounded(int bytes, float v) {
  return bytes == 4 ? v : std::clamp(std::trunc(double(v) + 0.5000001), 0.0, bytes == 1 ? 255.0 : 65535.0);
}

// The pixel between samples get(x, y), of an image of that many columns and rows.
template <class Get>
double interpolated(int bytes, int mode, Place1d x, Place1d y, long columns, long rows, Get get) {
  const auto at = [&](int k, int j) { return get(inside(x.first + k, columns), inside(y.first + j, rows)); };
  if (mode == huxiInterLinear && bytes < 4) {
    const bool wide = bytes == 2;
    const int q = int(x.fraction * 16384 + 1e-7), f = int(y.fraction * 16384 + 1e-7);
    const auto along = [&](int j) {
      const long sum = long(q) * long(at(1, j)) + (16384L - q) * long(at(0, j));
      return wide ? std::clamp((sum + 8192) >> 14, 0L, 65535L) : (sum + 128) >> 8;  // lines are of 16 bits
    };
    const long sum = along(1) * f + along(0) * (16384 - f);
    return double(std::clamp(wide ? (sum + 8192) >> 14 : (sum + 0x80000) >> 20, 0L, wide ? 65535L : 255L));
  }
  const auto between = [&](const float* p, float t, bool down) {
    if (mode != huxiInterLinear) return mode == huxiInterCubic ? newton(p, t) : lanczos(p, t);
    return down ? p[1] * t + p[0] * (1.0f - t) : (p[1] - p[0]) * t + p[0];
  };
  float lines[6], p[6];
  for (int j = 0; j < tapsOf(mode); ++j) {
    for (int k = 0; k < tapsOf(mode); ++k) p[k] = float(at(k, j));
    lines[j] = between(p, float(x.fraction), false);
  }
  return rounded(bytes, between(lines, float(y.fraction), true));
}

// The mode that an image has room for.
inline int modeFor(HuxiSize image, int mode) {
  const int least = std::min(image.width, image.height);
  if (mode == huxiInterLanczos && least < 8) mode = huxiInterCubic;
  if (mode == huxiInterCubic && least < 4) mode = huxiInterLinear;
  if (least < 2) mode = huxiInterNearest;
  return mode;
}

inline constexpr int kResizeModes[] = {huxiInterNearest, huxiInterLinear, huxiInterCubic, huxiInterLanczos};

// Images of one call, often smaller than a mode needs, sometimes wider than a strip of the passes.
struct ResizeScene {
  Picture src, dst;

  ResizeScene(Rng& rng, const Format& f, HuxiSize srcSize, HuxiSize dstSize)
      : src(rng, f, srcSize, Place(between(rng, 0, 2)), LastPixel::kTouched),
        dst(rng, f, dstSize, Place(between(rng, 0, 2)), LastPixel::kTouched) {}
  ResizeScene(Rng& rng, const Format& f, int n)
      : ResizeScene(rng, f,
                    {between(rng, 1,
                             n % 8 == 0   ? 600
                             : n % 3 == 0 ? 10
                                          : 70),
                     between(rng, 1, 12)},
                    {between(rng, 1, n % 8 == 1 ? 1500 : 90), between(rng, 1, 20)}) {}
};

}  // namespace hux::test
