// The rounding idioms of the library, once each. They work on lanes; `V` is a vector of lanes.
#pragma once

#include <array>
#include <cmath>

#include "lanes/lanes.h"

namespace hux {

// v * 2^-n rounded to nearest, ties to even, for n of 1 and above, below the width of the lanes; the lanes must hold
// v + 2^(n-1).
template <class V>
V roundShift(V v, int n) {
  using T = LaneType<V>;
  const V belowHalf = splat<V>(T((T(1) << (n - 1)) - 1));
  return (v + belowHalf + ((v >> T(n)) & T(1))) >> T(n);
}

// The same for lanes that have no room for the sum; n up to the width of unsigned lanes, below that of signed ones.
template <class V>
V roundShiftFull(V v, int n) {
  using T = LaneType<V>;
  const T half = T(T(1) << (n - 1));
  const V quotient = (v >> T(n - 1)) >> T(1);
  const V rest = v & splat<V>(T(T(half - 1) | half));
  return quotient - V(rest > splat<V>(half) - (quotient & T(1)));
}

// Nearest integer, ties to even, of lanes that already hold the value plus one half: truncated, and lowered by one
// where the truncation is odd and exact. The lanes must be in the range of the integer.
template <class V>
auto truncateHalfEven(V valuePlusHalf) {
  using I = std::conditional_t<sizeof(LaneType<V>) == 4, Hux32s, Hux64s>;
  const auto i = convert<I>(valuePlusHalf);
  return i - (i & I(1) & (convert<LaneType<V>>(i) == valuePlusHalf));
}

// The nearest 32-bit integer, ties to even, and the one towards zero. NaN and what is out of range give the lowest
// integer.
template <bool Near, class V>
auto integersOf(V v) {
  using F = LaneType<V>;
  using I [[maybe_unused]] = Lanes<Hux32s, lanesIn<V>>;
#if defined(__AVX512BW__) && defined(__AVX512VL__)
  if constexpr (std::is_same_v<V, Lanes<Hux32f, 16>>)
    return I(Near ? _mm512_maskz_cvtps_epi32(~0, v) : _mm512_maskz_cvttps_epi32(~0, v));
  else if constexpr (std::is_same_v<V, Lanes<Hux64f, 8>>)
    return I(Near ? _mm512_maskz_cvtpd_epi32(~0, v) : _mm512_maskz_cvttpd_epi32(~0, v));
  else
#endif
#if defined(__AVX2__)
      if constexpr (std::is_same_v<V, Lanes<Hux32f, 8>>)
    return I(Near ? _mm256_cvtps_epi32(v) : _mm256_cvttps_epi32(v));
  else if constexpr (std::is_same_v<V, Lanes<Hux64f, 4>>)
    return I(Near ? _mm256_cvtpd_epi32(v) : _mm256_cvttpd_epi32(v));
  else
#endif
#if defined(__SSE2__)
      if constexpr (std::is_same_v<V, Lanes<Hux32f, 4>>)
    return I(Near ? _mm_cvtps_epi32(v) : _mm_cvttps_epi32(v));
  else if constexpr (std::is_same_v<V, Lanes<Hux64f, 2>>)
    return bitsAs<std::array<I, 2>>(Near ? _mm_cvtpd_epi32(v) : _mm_cvttpd_epi32(v))[0];
  else
#endif
  {
    // Between +-2^31 the sum with 1.5 * 2^52 has the integer for its low bits; towards zero is what the language does.
    const auto isInside = (v >= F(-0x1p31)) & (v < F(0x1p31));
    const V inside = isInside ? v : splat<V>(F(-0x1p31));
    if constexpr (Near)
      return convert<Hux32s>(bitsAs<Lanes<Hux64s, lanesIn<V>>>(convert<Hux64f>(inside) + 0x1.8p52));
    else
      return convert<Hux32s>(inside);
  }
}
template <class V>
auto nearestInteger(V v) {
  return integersOf<true>(v);
}
template <class V>
auto truncated(V v) {
  return integersOf<false>(v);
}

// The whole parts of lanes in double precision, if they fit 32 bits.
template <class V>
V wholeParts(V v) {
  return convert<Hux64f>(convert<Hux32s>(v));
}
#if defined(__AVX512F__)
inline Lanes<Hux64f, 8> wholeParts(Lanes<Hux64f, 8> v) {
  return Lanes<Hux64f, 8>(_mm512_maskz_roundscale_pd(~0, __m512d(v), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC));
}
#endif
#if defined(__AVX__)
inline Lanes<Hux64f, 4> wholeParts(Lanes<Hux64f, 4> v) {
  return Lanes<Hux64f, 4>(_mm256_round_pd(__m256d(v), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC));
}
#endif
#if defined(__SSE4_1__)
inline Lanes<Hux64f, 2> wholeParts(Lanes<Hux64f, 2> v) {
  return Lanes<Hux64f, 2>(_mm_round_pd(__m128d(v), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC));
}
#endif

// Nearest integer, ties to even, of lanes of at most 2^22 (2^51 in double) either way, as the lowest 22 (51) bits of
// the result: next to 1.5 * 2^23 (2^52) the lanes have no room for a fraction.
template <class V>
auto nearestEvenBits(V v) {
  using F = LaneType<V>;
  using I = std::conditional_t<sizeof(F) == 4, Hux32s, Hux64s>;
  return bitsAs<Lanes<I, lanesIn<V>>>(addOnMultiplier(v, splat<V>(F(sizeof(F) == 4 ? 0x1.8p23 : 0x1.8p52))));
}

// 2^-scaleFactor as repeated doubling or halving of 1 gives it: infinity and zero past the ends of the type.
template <class F>
F powerOfTwo(int scaleFactor) {
  return std::ldexp(F(1), scaleFactor < -4000 ? 4000 : scaleFactor > 4000 ? -4000 : -scaleFactor);
}

}  // namespace hux
