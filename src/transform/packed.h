// The full spectrum of a real image from its packed half.
#pragma once

#include <cstring>
#include <limits>

#include "core/rows.h"
#include "workers/complex.h"

namespace hux {

// The lowest integer has no negative and becomes the largest.
template <class C>
C conjugate(C z) {
  using T = Part<C>;
  if constexpr (std::is_integral_v<T>)
    return {z.re, z.im == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max() : T(-z.im)};
  else
    return {z.re, -z.im};
}

// The arrangement of pairs in the opposite order.
constexpr int mirroredPairAt(int i, int n) { return n - 2 - (i & ~1) + (i & 1); }

template <class L, class C>
class PackedSpectrum {
 public:
  using T = Part<C>;
  PackedSpectrum(Rows<const T> packed, HuxiSize size) : packed_(packed), width_(size.width), height_(size.height) {}

  // Row y of the full spectrum: width pixels.
  void row(Index y, Element<C>* to) const {
    const Index pairs = (width_ - 1) / 2;
    outer(y, 0, to);
    const auto* near = packed_.row(y);
    if constexpr (kChannels == 1)
      std::memcpy(to + 1, near + 1, sizeof(C) * std::size_t(pairs));
    else
      for (Index u = 1; u <= pairs; ++u)
        for (int c = 0; c < kChannels; ++c) to[u * kChannels + c] = pairAt(near, u, c);
    if (width_ % 2 == 0) outer(y, width_ - 1, to + width_ / 2 * kChannels);
    const auto* far = packed_.row(y ? height_ - y : 0);
    Index u = 1;
    if constexpr (kChannels == 1)
      for (constexpr int n = laneCount<T> / 2; u + n <= pairs + 1; u += n)
        storeLanes(to + width_ - u - n + 1, mirroredConjugates(loadLanes<Lanes<T, 2 * n>>(far + 2 * u - 1)));
    for (; u <= pairs; ++u)
      for (int c = 0; c < kChannels; ++c) to[(width_ - u) * kChannels + c] = conjugate(pairAt(far, u, c));
  }

 private:
  static constexpr int kChannels = L::channels;

  template <class V>
  static V mirroredConjugates(V v) {
    V negative;
    if constexpr (std::is_integral_v<T>)
      negative = subSaturated(V{}, v);
    else
      negative = -v;
    return arranged<mirroredPairAt>(joinParts(v, negative), v);
  }

  static C pairAt(const Element<T>* row, Index u, int c) {
    return {row[(2 * u - 1) * kChannels + c], row[2 * u * kChannels + c]};
  }
  // The pixel of an outer column, where pairs stand one above the other.
  void outer(Index y, Index column, Element<C>* to) const {
    const Index v = std::min(y, height_ - y);
    const bool real = y == 0 || 2 * y == height_;
    const Index x = column * kChannels;
    for (int c = 0; c < kChannels; ++c) {
      const T re = packed_.row(y == 0 ? 0 : 2 * v - 1)[x + c];
      const C z{re, real ? T(0) : T(packed_.row(2 * v)[x + c])};
      to[c] = y > v ? conjugate(z) : z;
    }
  }

  Rows<const T> packed_;
  Index width_, height_;
};

}  // namespace hux
