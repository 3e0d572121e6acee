// Of comparisons: how many lanes hold, and where there are NaN.
#pragma once

#include <bit>

#include "lanes/lanes.h"

namespace hux {

template <class V>
int lanesThatHold(V comparison) {
  [[maybe_unused]] constexpr int laneBytes = int(sizeof(LaneType<V>));
  if constexpr (sizeof(V) > std::size_t(kLaneBytes)) {
    struct Halves {
      Lanes<LaneType<V>, lanesIn<V> / 2> low, high;
    };
    const auto halves = bitsAs<Halves>(comparison);
    return lanesThatHold(halves.low) + lanesThatHold(halves.high);
  }
#if defined(__AVX2__)
  if constexpr (sizeof(V) == 32)
    return std::popcount(unsigned(_mm256_movemask_epi8(bitsAs<__m256i>(comparison)))) / laneBytes;
#endif
#if defined(__SSE2__)
  if constexpr (sizeof(V) == 16)
    return std::popcount(unsigned(_mm_movemask_epi8(bitsAs<__m128i>(comparison)))) / laneBytes;
#endif
  int count = 0;
  for (int i = 0; i < lanesIn<V>; ++i) count += comparison[i] != 0;
  return count;
}

// Lanes in which either is a NaN.
template <class V>
auto unordered(V a, V b) {
#if defined(__AVX__)
  if constexpr (std::is_same_v<V, Lanes<Hux32f, 8>>)
    return Lanes<Hux32s, 8>(_mm256_cmp_ps(__m256(a), __m256(b), _CMP_UNORD_Q));
  else
#endif
    return (a != a) | (b != b);
}

// Whether any lane of a comparison holds.
template <class V>
bool anyHolds(V comparison) {
  return lanesThatHold(comparison) != 0;
}

}  // namespace hux
