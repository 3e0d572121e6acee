// What sums of integer lanes are made of.
#pragma once

#include "lanes/lanes.h"

namespace hux {

// The magnitude of signed lanes, as unsigned lanes: that of the smallest number fits.
template <class V>
auto magnitude(V v) {
  using U = Lanes<std::make_unsigned_t<LaneType<V>>, lanesIn<V>>;
  return U(v < 0 ? -U(v) : U(v));
}

// Of unsigned lanes, or of signed ones as unsigned lanes: how far a and b lie apart.
template <class V>
auto distance(V a, V b) {
  using U = Lanes<std::make_unsigned_t<LaneType<V>>, lanesIn<V>>;
  return U(greater(a, b)) - U(lesser(a, b));
}

// The sums of eight neighbouring bytes each.
template <class V>
auto sumsOfEight(V v) {
  using Sums = Lanes<std::uint64_t, int(sizeof(V)) / 8>;
  const Sums pairs = (bitsAs<Sums>(v) & 0x00ff00ff00ff00ff) + (bitsAs<Sums>(v) >> 8 & 0x00ff00ff00ff00ff);
  return (pairs * 0x0001000100010001) >> 48;
}

// The products of signed 16-bit lanes, added up in neighbouring pairs. The one sum that does not fit, that of four
// lowest numbers, wraps.
template <class V>
auto pairProducts(V a, V b) {
  using Sums = Lanes<Hux32s, lanesIn<V> / 2>;
  using Wrapping = Lanes<Hux32u, lanesIn<V> / 2>;
  const auto low = [](V v) { return Sums(bitsAs<Wrapping>(v) << 16) >> 16; };
  const auto high = [](V v) { return bitsAs<Sums>(v) >> 16; };
  return Sums(Wrapping(low(a) * low(b)) + Wrapping(high(a) * high(b)));
}

#define HUX_LANES_SUM(Bytes, Register, prefix)                                          \
  inline auto sumsOfEight(Lanes<Hux8u, Bytes> v) {                                      \
    return Lanes<std::uint64_t, Bytes / 8>(prefix##_sad_epu8(Register(v), Register{})); \
  }                                                                                     \
  inline auto pairProducts(Lanes<Hux16s, Bytes / 2> a, Lanes<Hux16s, Bytes / 2> b) {    \
    return Lanes<Hux32s, Bytes / 4>(prefix##_madd_epi16(Register(a), Register(b)));     \
  }
#if defined(__AVX512BW__)
HUX_LANES_SUM(64, __m512i, _mm512)
inline auto magnitude(Lanes<Hux16s, 32> v) { return Lanes<Hux16u, 32>(_mm512_maskz_abs_epi16(~0, __m512i(v))); }
inline auto magnitude(Lanes<Hux32s, 16> v) { return Lanes<Hux32u, 16>(_mm512_maskz_abs_epi32(~0, __m512i(v))); }
#endif
#if defined(__AVX2__)
HUX_LANES_SUM(32, __m256i, _mm256)
#endif
#if defined(__SSE2__)
HUX_LANES_SUM(16, __m128i, _mm)
#endif
#undef HUX_LANES_SUM

}  // namespace hux
