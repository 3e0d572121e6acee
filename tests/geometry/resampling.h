// Interpolation as it is defined, one pixel at a time: what resizing is compared with.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "huxdefs.h"
#include "support/forms.h"

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

template <class T>
T rounded(float v) {
  if constexpr (std::is_floating_point_v<T>) return v;
  const double whole = std::trunc(double(v) + 0.5000001);
  return T(std::clamp(whole, 0.0, double(std::numeric_limits<T>::max())));
}

// The pixel between samples get(x, y), of an image of that many columns and rows.
template <class T, class Get>
T interpolated(int mode, Place1d x, Place1d y, long columns, long rows, Get get) {
  const auto at = [&](int k, int j) { return get(inside(x.first + k, columns), inside(y.first + j, rows)); };
  if (mode == huxiInterLinear && std::is_integral_v<T>) {
    const bool wide = sizeof(T) == 2;
    const int q = int(x.fraction * 16384 + 1e-7), f = int(y.fraction * 16384 + 1e-7);
    const auto along = [&](int j) {
      const long sum = long(q) * long(at(1, j)) + (16384L - q) * long(at(0, j));
      return wide ? std::clamp((sum + 8192) >> 14, 0L, 65535L) : (sum + 128) >> 8;  // lines are of 16 bits
    };
    const long sum = along(1) * f + along(0) * (16384 - f);
    return T(std::clamp(wide ? (sum + 8192) >> 14 : (sum + 0x80000) >> 20, 0L, wide ? 65535L : 255L));
  }
  const int taps = tapsOf(mode);
  float lines[6];
  for (int j = 0; j < taps; ++j) {
    float p[6];
    for (int k = 0; k < taps; ++k) p[k] = float(at(k, j));
    const float t = float(x.fraction);
    lines[j] = mode == huxiInterLinear  ? (p[1] - p[0]) * t + p[0]
               : mode == huxiInterCubic ? newton(p, t)
                                        : lanczos(p, t);
  }
  const float t = float(y.fraction);
  return rounded<T>(mode == huxiInterLinear  ? lines[1] * t + lines[0] * (1.0f - t)
                    : mode == huxiInterCubic ? newton(lines, t)
                                             : lanczos(lines, t));
}

// The mode that an image has room for.
inline int modeFor(HuxiSize image, int mode) {
  const int least = std::min(image.width, image.height);
  if (mode == huxiInterLanczos && least < 8) mode = huxiInterCubic;
  if (mode == huxiInterCubic && least < 4) mode = huxiInterLinear;
  if (least < 2) mode = huxiInterNearest;
  return mode;
}

// Images of all formats of the family: P3 and P4 are three and four images of one channel, below each other.
struct Geometry {
  int elementBytes, planes;
  Layout layout;
};
inline Image imageOf(Rng& rng, const Geometry& g, HuxiSize size, Place place) {
  Image image = g.planes > 1 ? Image(rng, size.width * g.elementBytes, size.height * g.planes, 1, place)
                             : touchedImage(rng, size.width, size.height, g.layout, g.elementBytes, place);
  if (g.elementBytes == 4)  // numbers, and no strange ones
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x + 4 <= image.width(); x += 4) {
        const float v = float(between(rng, -1000000, 1000000)) / 1024.0f;
        std::memcpy(image.bytes(x, y), &v, sizeof v);
      }
  return image;
}
// Where channel c of a pixel stands in it.
inline std::byte* channelAt(const Image& image, const Geometry& g, long x, long y, int c) {
  const long row = g.planes > 1 ? y + c * (image.height() / g.planes) : y;
  const long element = g.planes > 1 ? x : x * g.layout.stride + c;
  return image.bytes() + row * image.step() + element * g.elementBytes;
}
inline int channelsOf(const Geometry& g) { return g.planes > 1 ? g.planes : g.layout.touched; }
// The image argument of a call: its first pixel, or the planes in `array`.
inline void* argumentOf(const Image& image, const Geometry& g, std::byte* (&array)[4]) {
  if (g.planes == 1) return image.bytes();
  for (int c = 0; c < g.planes; ++c) array[c] = channelAt(image, g, 0, 0, c);
  return array;
}
template <class T>
T load(const std::byte* p) {
  T value;
  std::memcpy(&value, p, sizeof value);
  return value;
}

}  // namespace hux::test
