// Bytes side by side as pairs of 16-bit lanes, which one instruction multiplies and adds up.
#pragma once

#include <array>

#include "lanes/lanes_sum.h"
#include "lanes/simd.h"

namespace hux {

// The pairs (a[i], b[i]) of two vectors of bytes in four vectors, as operands of pairProducts. Their order is that
// which `gathered` undoes.
template <class V>
auto bytePairs(V a, V b) {
  using Words = Lanes<Hux16u, lanesIn<V> / 2>;
  using Pairs = Lanes<Hux16s, lanesIn<V> / 2>;
  const Words low = bitsAs<Words>(simd::zip<2, false>(a, b)), high = bitsAs<Words>(simd::zip<2, true>(a, b));
  return std::array<Pairs, 4>{Pairs(low & 0xff), Pairs(low >> 8), Pairs(high & 0xff), Pairs(high >> 8)};
}

// In each 16 bytes the low bytes of the words of a, then those of b; the high ones must be 0.
template <class V>
auto lowBytes(V a, V b) {
  using Bytes = Lanes<Hux8u, 2 * lanesIn<V>>;
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return __builtin_shufflevector(bitsAs<Bytes>(a), bitsAs<Bytes>(b),
                                   (int(I) / 16 * 16 + int(I) % 8 * 2 + (int(I) % 16 < 8 ? 0 : int(sizeof(V))))...);
  }
  (std::make_index_sequence<sizeof(V)>{});
}
#if defined(__AVX512BW__)
inline auto lowBytes(Lanes<Hux16u, 32> a, Lanes<Hux16u, 32> b) {
  return Lanes<Hux8u, 64>(_mm512_packus_epi16(__m512i(a), __m512i(b)));
}
#endif
#if defined(__AVX2__)
inline auto lowBytes(Lanes<Hux16u, 16> a, Lanes<Hux16u, 16> b) {
  return Lanes<Hux8u, 32>(_mm256_packus_epi16(__m256i(a), __m256i(b)));
}
#endif
#if defined(__SSE2__)
inline auto lowBytes(Lanes<Hux16u, 8> a, Lanes<Hux16u, 8> b) {
  return Lanes<Hux8u, 16>(_mm_packus_epi16(__m128i(a), __m128i(b)));
}
#endif

// What became of the pairs, one number from 0 to 255 each, as bytes in the order of the pixels.
template <class V>
auto gathered(const std::array<V, 4>& values) {
  using Words = Lanes<Hux16u, 2 * lanesIn<V>>;
  return lowBytes(bitsAs<Words>(values[0] | values[1] << 16), bitsAs<Words>(values[2] | values[3] << 16));
}

}  // namespace hux
