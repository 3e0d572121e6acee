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

// A square of 4-byte lanes, rows for columns.
template <class V>
inline __attribute__((always_inline)) void transpose(V (&square)[lanesIn<V>]) {
  constexpr int n = lanesIn<V>;
  using detail::zipParts;
  // Squares of 4 within the 16-byte parts; then the parts.
  for (int g = 0; g < n; g += 4) {
    V* q = square + g;
    const V a = simd::zip<4, false>(q[0], q[1]), b = simd::zip<4, true>(q[0], q[1]);
    const V c = simd::zip<4, false>(q[2], q[3]), d = simd::zip<4, true>(q[2], q[3]);
    q[0] = simd::zip<8, false>(a, c), q[1] = simd::zip<8, true>(a, c);
    q[2] = simd::zip<8, false>(b, d), q[3] = simd::zip<8, true>(b, d);
  }
  if constexpr (n == 8) {
    for (int k = 0; k < 4; ++k) {
      const V a = square[k], b = square[k + 4];
      square[k] = zipParts<false>(a, b), square[k + 4] = zipParts<true>(a, b);
    }
  } else if constexpr (n == 16) {
    for (int k = 0; k < 4; ++k) {
      const V a = square[k], b = square[k + 4], c = square[k + 8], d = square[k + 12];
      const V acLow = zipParts<false>(a, c), bdLow = zipParts<false>(b, d);
      const V acHigh = zipParts<true>(a, c), bdHigh = zipParts<true>(b, d);
      square[k] = zipParts<false>(acLow, bdLow), square[k + 4] = zipParts<true>(acLow, bdLow);
      square[k + 8] = zipParts<false>(acHigh, bdHigh), square[k + 12] = zipParts<true>(acHigh, bdHigh);
    }
  } else {
    static_assert(n == 4);
  }
}

}  // namespace hux
