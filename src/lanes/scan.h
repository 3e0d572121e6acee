// Running totals within a vector of interleaved channels: what sums along a row are made of where any order is exact.
#pragma once

#include <utility>

#include "lanes/lanes.h"

namespace hux {
namespace detail {

// In each 16 bytes of a vector: lane i takes the lane of its channel in the last pixel of those 16 bytes. Channels
// follow each other N lanes apart, and lane `Start` modulo N begins the pixel behind.
template <int N, int Start, class V>
V lastOfParts(V v) {
  constexpr int lanes = lanesIn<V>, part = 16 / int(sizeof(LaneType<V>));
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return V(__builtin_shufflevector(v, v, (int(I) / part * part + part - N + (int(I) - Start + lanes * N) % N)...));
  }
  (std::make_index_sequence<std::size_t(lanes)>{});
}

// Lanes moved up by K; zero moves in.
template <int K, class V>
V raised(V v) {
  constexpr int lanes = lanesIn<V>;
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return V(__builtin_shufflevector(v, V{}, (int(I) < K ? lanes : int(I) - K)...));
  }
  (std::make_index_sequence<std::size_t(lanes)>{});
}

}  // namespace detail

// Lane i plus the lanes i - N, i - 2N, ...; integers wrap.
template <int N, class V>
V runningTotals(V v) {
  constexpr int lanes = lanesIn<V>;
#if defined(__AVX2__)
  if constexpr (sizeof(V) == 32) {
    // In each half first; then the low half's last pixel joins the high half.
    constexpr int part = lanes / 2, bytes = int(sizeof(LaneType<V>)) * N;
    if constexpr (N < part) v += V(_mm256_slli_si256(__m256i(v), bytes));
    if constexpr (2 * N < part) v += V(_mm256_slli_si256(__m256i(v), 2 * bytes));
    if constexpr (4 * N < part) v += V(_mm256_slli_si256(__m256i(v), 4 * bytes));
    return v + detail::lastOfParts<N, part>(V(_mm256_permute2x128_si256(__m256i(v), __m256i(v), 0x08)));
  }
#endif
  if constexpr (N < lanes) v += detail::raised<N>(v);
  if constexpr (2 * N < lanes) v += detail::raised<2 * N>(v);
  if constexpr (4 * N < lanes) v += detail::raised<4 * N>(v);
  if constexpr (8 * N < lanes) v += detail::raised<8 * N>(v);
  if constexpr (16 * N < lanes) v += detail::raised<16 * N>(v);
  return v;
}

// Lane i takes the lane of its channel in the vector's last pixel, as the vector behind it has the channels.
template <int N, class V>
V lastPixel(V v) {
#if defined(__AVX2__)
  if constexpr (sizeof(V) == 32)
    return detail::lastOfParts<N, 0>(V(_mm256_permute2x128_si256(__m256i(v), __m256i(v), 0x11)));
#endif
  constexpr int lanes = lanesIn<V>;
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return V(__builtin_shufflevector(v, v, (lanes - N + int(I) % N)...));
  }
  (std::make_index_sequence<std::size_t(lanes)>{});
}

}  // namespace hux
