// Copy and Set under a mask image: pixels whose mask byte is 0 are not stored to, by construction.
#pragma once

#include "workers/move.h"
#include "workers/pattern.h"

namespace hux {
namespace detail {

// Byte j of vector `Out` of a group belongs to the pixel whose mask byte this names; a group is one vector of mask
// bytes.
template <class L, int ElementBytes, int Out>
struct MaskMap {
  static constexpr int source(int j) {
    const int byte = Out * simd::kBytes + j;
    if (byte / ElementBytes % L::channels >= L::processed) return -1;
    return byte / (ElementBytes * L::channels);
  }
};

// Calls put(out, address offset, bytes to store) for each vector of the destination that has something to store.
template <class L, int ElementBytes, class Put>
void forMaskedVectors(const Element<Hux8u>* mask, Index n, Put put) {
  constexpr int vectors = L::channels * ElementBytes;
  for (Index i = 0; i < n; i += simd::kBytes) {
    const simd::Vec m = n - i < simd::kBytes ? simd::load(mask + i, simd::lowBytes(n - i)) : simd::load(mask + i);
    if (simd::nonZero(m) == 0) continue;
    [&]<std::size_t... Out>(std::index_sequence<Out...>) {
      (
          [&] {
            using Map = MaskMap<L, ElementBytes, int(Out)>;
            const simd::Mask on = simd::nonZero(simd::permute<Map, 1>(&m)) & simd::written<Map>();
            put(int(Out), i * vectors + Index(Out) * simd::kBytes, on);
          }(),
          ...);
    }
    (std::make_index_sequence<vectors>{});
  }
}

}  // namespace detail

template <class L, class W>
void copyRowMasked(const Element<W>* src, Element<W>* dst, const Element<Hux8u>* mask, Index n) {
  if constexpr (simd::kPermutes && simd::kMasks) {
    if (apart<Interleaved<L::channels>, Interleaved<L::channels>>(src, dst, n, sizeof(W)) &&
        detail::disjoint(mask, n, dst, n * L::channels * Index(sizeof(W)))) {
      detail::forMaskedVectors<L, sizeof(W)>(mask, n, [&](int, Index offset, simd::Mask on) {
        simd::store(advance(dst, offset), simd::load(advance(src, offset), on), on);
      });
      return;
    }
  }
  for (Index i = 0; i < n; ++i)
    if (mask[i])
      for (int c = 0; c < L::processed; ++c) dst[i * L::channels + c] = src[i * L::channels + c];
}

template <class L, class W>
void setRowMasked(const Pattern<L, W>& pattern, Element<W>* dst, const Element<Hux8u>* mask, Index n) {
  if constexpr (simd::kPermutes && simd::kMasks) {
    if (detail::disjoint(mask, n, dst, n * L::channels * Index(sizeof(W)))) {
      simd::Vec v[Pattern<L, W>::vectors];
      for (int k = 0; k < Pattern<L, W>::vectors; ++k) v[k] = pattern.vector(k);
      // A group starts at a whole number of periods: its vectors take those of the pattern in turn.
      detail::forMaskedVectors<L, sizeof(W)>(mask, n, [&](int out, Index offset, simd::Mask on) {
        simd::store(advance(dst, offset), v[out % Pattern<L, W>::vectors], on);
      });
      return;
    }
  }
  for (Index i = 0; i < n; ++i)
    if (mask[i])
      for (int c = 0; c < L::processed; ++c) dst[i * L::channels + c] = pattern.element(c);
}

}  // namespace hux
