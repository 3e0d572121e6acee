// A constant pixel repeated along a row: what Set and the constant border write.
#pragma once

#include <algorithm>
#include <array>

#include "core/rows.h"
#include "lanes/simd.h"

namespace hux {

// The pixel laid out over 192 bytes, a whole number of pixels of every layout and of vectors of every width.
// L::channels is the distance between pixels in elements and L::processed the number of elements written to each.
template <class L, class W>
class Pattern {
 public:
  static constexpr int bytes = 192;
  static constexpr int vectors = bytes / simd::kBytes;
  static constexpr bool whole = L::processed == L::channels;

  explicit Pattern(const Element<W>* pixel) {
    for (int i = 0; i < count; ++i) elements_[i] = i % L::channels < L::processed ? W(pixel[i % L::channels]) : W(0);
  }

  W element(int c) const { return elements_[c]; }
  const W* elements() const { return elements_; }
  simd::Vec vector(int k) const { return simd::load(elements_ + k * (simd::kBytes / Index(sizeof(W)))); }

  // Bytes of each vector that are written.
  static constexpr auto written = [] {
    std::array<simd::Mask, vectors> masks{};
    for (int j = 0; j < bytes; ++j)
      masks[std::size_t(j / simd::kBytes)] |= simd::Mask(j / int(sizeof(W)) % L::channels < L::processed)
                                              << j % simd::kBytes;
    return masks;
  }();

  // Writes the pixel n times.
  void fill(Element<W>* dst, Index n, bool streaming = false) const {
    const Index end = ((n - 1) * L::channels + L::processed) * Index(sizeof(W));
    if constexpr (whole || simd::kMasks) {
      if constexpr (whole)
        if (end < bytes && !streaming) return simd::copyFew(dst, elements_, end);
      simd::Vec v[vectors];
      for (int k = 0; k < vectors; ++k) v[k] = vector(k);
      Index at = 0;
      if constexpr (whole) {
        const Index head = streaming ? simd::pixelsToBoundary(dst, L::channels * int(sizeof(W))) : -1;
        if (head >= 0 && head <= n) {
          at = head * L::channels * Index(sizeof(W));
          std::memcpy(dst, elements_, std::size_t(at));
          for (; at + bytes <= end; at += bytes)
            for (int k = 0; k < vectors; ++k) simd::stream(advance(dst, at + k * simd::kBytes), v[k]);
        }
      }
      for (; at + bytes <= end; at += bytes)
        for (int k = 0; k < vectors; ++k) put(advance(dst, at + k * simd::kBytes), v[k], k);
      if constexpr (simd::kMasks) {
        for (int k = 0; k < vectors && at < end; ++k, at += simd::kBytes)
          simd::store(advance(dst, at), v[k], written[std::size_t(k)] & simd::lowBytes(end - at));
      } else {
        simd::copyFew(advance(dst, at), elements_, end - at);
      }
    } else {
      for (Index i = 0; i < n; ++i)
        for (int c = 0; c < L::processed; ++c) dst[i * L::channels + c] = elements_[c];
    }
  }

 private:
  static constexpr int count = bytes / int(sizeof(W));

  static void put(Element<W>* to, simd::Vec v, int k) {
    if constexpr (whole)
      simd::store(to, v);
    else
      simd::store(to, v, written[std::size_t(k)]);
  }

  W elements_[count];
};

}  // namespace hux
