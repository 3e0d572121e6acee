// Rows as lanes: each lane works along a row of its own, so that what a row adds up keeps the told order, from left to
// right, while many rows do so at once.
#pragma once

#include "lanes/lanes.h"
#include "lanes/simd.h"

namespace hux {

// Whether sums of so many integers, none larger than `largest`, are exact in single precision in any order.
constexpr bool exactSums(Index terms, Index largest) { return terms <= (Index(1) << 24) / largest; }

namespace detail {

// The 16-byte parts of the low or the high halves of a and b interleaved.
template <bool High, class V>
V zipParts(V a, V b) {
  constexpr int lanes = lanesIn<V>;
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return V(__builtin_shufflevector(
        a, b, ((High ? lanes / 2 : 0) + int(I) / 8 * 4 + int(I) % 4 + (int(I) / 4 % 2 ? lanes : 0))...));
  }
  (std::make_index_sequence<std::size_t(lanes)>{});
}

}  // namespace detail

// As many vectors as they have parts of 16 bytes, that is of four 4-byte lanes: parts for vectors.
template <class V>
inline __attribute__((always_inline)) void transposeParts(V (&square)[lanesIn<V> / 4]) {
  using detail::zipParts;
  V* const q = square;
  if constexpr (lanesIn<V> == 8) {
    const V low = zipParts<false>(q[0], q[1]);
    q[1] = zipParts<true>(q[0], q[1]), q[0] = low;
  } else if constexpr (lanesIn<V> == 16) {
    const V acLow = zipParts<false>(q[0], q[2]), bdLow = zipParts<false>(q[1], q[3]);
    const V acHigh = zipParts<true>(q[0], q[2]), bdHigh = zipParts<true>(q[1], q[3]);
    q[0] = zipParts<false>(acLow, bdLow), q[1] = zipParts<true>(acLow, bdLow);
    q[2] = zipParts<false>(acHigh, bdHigh), q[3] = zipParts<true>(acHigh, bdHigh);
  } else {
    static_assert(lanesIn<V> == 4);
  }
}

// A square of 4-byte lanes, rows for columns.
template <class V>
inline __attribute__((always_inline)) void transpose(V (&square)[lanesIn<V>]) {
  constexpr int n = lanesIn<V>, parts = n / 4;
  // Squares of 4 within the 16-byte parts; then the parts.
  for (int g = 0; g < n; g += 4) {
    V* q = square + g;
    const V a = simd::zip<4, false>(q[0], q[1]), b = simd::zip<4, true>(q[0], q[1]);
    const V c = simd::zip<4, false>(q[2], q[3]), d = simd::zip<4, true>(q[2], q[3]);
    q[0] = simd::zip<8, false>(a, c), q[1] = simd::zip<8, true>(a, c);
    q[2] = simd::zip<8, false>(b, d), q[3] = simd::zip<8, true>(b, d);
  }
  for (int k = 0; k < 4; ++k) {
    V q[parts];
    for (int i = 0; i < parts; ++i) q[i] = square[k + 4 * i];
    transposeParts(q);
    for (int i = 0; i < parts; ++i) square[k + 4 * i] = q[i];
  }
}

}  // namespace hux
