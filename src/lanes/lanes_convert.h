// Lanes of one type as lanes of another.
//
// The compilers turn conversions of whole vectors into instructions, but take some apart into single elements or into
// halves: those are written out here for each level. What is not, is theirs.
#pragma once

#include <array>
#include <utility>

#include "lanes/lanes_core.h"

namespace hux {
namespace detail {

template <class D, class V>
using LanesLike = Lanes<D, lanesIn<V>>;

// Whether lanes become integers of another width, from other integers.
template <class D, class V>
inline constexpr bool kResizes = std::is_integral_v<D>&& std::is_integral_v<LaneType<V>> &&
                                 sizeof(D) != sizeof(LaneType<V>);

#if defined(__x86_64__) && !defined(__AVX512BW__)

// Lanes that fill a register or less of it, and a register's low bytes as lanes.
template <class V>
__m128i registerOf(V v) {
  if constexpr (sizeof(V) == 16) {
    return bitsAs<__m128i>(v);
  } else if constexpr (sizeof(V) == 8) {
    return _mm_cvtsi64_si128(bitsAs<long long>(v));
  } else if constexpr (sizeof(V) == 4) {
    return _mm_cvtsi32_si128(bitsAs<int>(v));
  } else {
    static_assert(sizeof(V) == 2);
    return _mm_cvtsi32_si128(bitsAs<short>(v));
  }
}
template <class V>
V lowLanes(__m128i r) {
  V v;
  std::memcpy(&v, &r, sizeof v);
  return v;
}

// For shuffles: in each 16 bytes the low To bytes of every lane of From, side by side, repeated.
template <int From, int To, int Bytes>
auto lowBytesOfLanes() {
  return [&]<std::size_t... J>(std::index_sequence<J...>) {
    return Lanes<Hux8u, Bytes>{Hux8u(int(J) % (16 * To / From) / To * From + int(J) % To)...};
  }
  (std::make_index_sequence<Bytes>{});
}

// Whether vectors of so many bytes can be told to the machine.
template <class V>
inline constexpr bool kFits = sizeof(V) <= 16
#if defined(__AVX2__)
                              || sizeof(V) == 32
#endif
    ;
template <class D, class V>
inline constexpr bool kConverts = kResizes<D, V>&& kFits<V>&& kFits<LanesLike<D, V>>;

// Narrowed: all but the low bits are dropped.
template <class D, class V>
auto narrowed(V v) {
  using To = LanesLike<D, V>;
  constexpr int from = sizeof(LaneType<V>), to = sizeof(D);
#if defined(__AVX2__)
  if constexpr (sizeof(V) == 32 && from == 8) {
    const auto words = _mm256_permutevar8x32_epi32(__m256i(v), _mm256_setr_epi32(0, 2, 4, 6, 0, 2, 4, 6));
    const auto low = _mm256_castsi256_si128(words);
    if constexpr (to == 4)
      return To(low);
    else
      return narrowed<D>(Lanes<Hux32s, 4>(low));
  } else if constexpr (sizeof(V) == 32) {
    const auto halves = _mm256_shuffle_epi8(__m256i(v), __m256i(lowBytesOfLanes<from, to, 32>()));
    if constexpr (from == 2 * to)
      return To(_mm256_castsi256_si128(_mm256_permute4x64_epi64(halves, 8)));
    else
      return lowLanes<To>(_mm_unpacklo_epi32(_mm256_castsi256_si128(halves), _mm256_extracti128_si256(halves, 1)));
  } else
#endif
  {
    const __m128i r = registerOf(v);
#if defined(__SSSE3__)
    return lowLanes<To>(_mm_shuffle_epi8(r, __m128i(lowBytesOfLanes<from, to, 16>())));
#else
    if constexpr (from == 8 && to == 4) {
      return lowLanes<To>(_mm_shuffle_epi32(r, 8));
    } else if constexpr (from == 8) {
      return narrowed<D>(lowLanes<LanesLike<Hux32s, V>>(_mm_shuffle_epi32(r, 8)));
    } else if constexpr (from == 4 && to == 2) {
      const __m128i extended = _mm_srai_epi32(_mm_slli_epi32(r, 16), 16);
      return lowLanes<To>(_mm_packs_epi32(extended, extended));
    } else {
      const __m128i bytes = _mm_and_si128(r, from == 4 ? _mm_set1_epi32(0xff) : _mm_set1_epi16(0xff));
      const __m128i words = from == 4 ? _mm_packs_epi32(bytes, bytes) : bytes;
      return lowLanes<To>(_mm_packus_epi16(words, words));
    }
#endif
  }
}

// Widened: the value is kept.
#define HUX_WIDEN(prefix, r)                                                   \
  if constexpr (from == 1 && to == 2)                                          \
    return isSigned ? prefix##_cvtepi8_epi16(r) : prefix##_cvtepu8_epi16(r);   \
  else if constexpr (from == 1 && to == 4)                                     \
    return isSigned ? prefix##_cvtepi8_epi32(r) : prefix##_cvtepu8_epi32(r);   \
  else if constexpr (from == 1)                                                \
    return isSigned ? prefix##_cvtepi8_epi64(r) : prefix##_cvtepu8_epi64(r);   \
  else if constexpr (from == 2 && to == 4)                                     \
    return isSigned ? prefix##_cvtepi16_epi32(r) : prefix##_cvtepu16_epi32(r); \
  else if constexpr (from == 2)                                                \
    return isSigned ? prefix##_cvtepi16_epi64(r) : prefix##_cvtepu16_epi64(r); \
  else                                                                         \
    return isSigned ? prefix##_cvtepi32_epi64(r) : prefix##_cvtepu32_epi64(r);
#if defined(__AVX2__)
template <int from, int to, bool isSigned>
__m256i widenedWhole(__m128i r) {
  HUX_WIDEN(_mm256, r)
}
#endif
template <int from, int to, bool isSigned>
__m128i widenedLow(__m128i r) {
#if defined(__SSE4_1__)
  HUX_WIDEN(_mm, r)
#else
  // Of signed bytes and words the sign is shifted into what the copy of a lane leaves above it.
  const __m128i zero = _mm_setzero_si128();
  if constexpr (isSigned && from == 2 && to == 4)
    return _mm_srai_epi32(_mm_unpacklo_epi16(r, r), 16);
  else if constexpr (isSigned && from == 1 && to == 2)
    return _mm_srai_epi16(_mm_unpacklo_epi8(r, r), 8);
  else if constexpr (isSigned && from == 1 && to == 4)
    return _mm_srai_epi32(_mm_unpacklo_epi16(_mm_unpacklo_epi8(r, r), _mm_unpacklo_epi8(r, r)), 24);
  else if constexpr (to > 2 * from)
    return widenedLow<2 * from, to, isSigned>(widenedLow<from, 2 * from, isSigned>(r));
  else if constexpr (from == 1)
    return _mm_unpacklo_epi8(r, zero);
  else if constexpr (from == 2)
    return _mm_unpacklo_epi16(r, zero);
  else
    return _mm_unpacklo_epi32(r, isSigned ? _mm_cmpgt_epi32(zero, r) : zero);
#endif
}
#undef HUX_WIDEN
template <class D, class V>
auto widened(V v) {
  using To = LanesLike<D, V>;
  constexpr int from = sizeof(LaneType<V>), to = sizeof(D);
  constexpr bool isSigned = std::is_signed_v<LaneType<V>>;
#if defined(__AVX2__)
  if constexpr (sizeof(To) == 32)
    return To(widenedWhole<from, to, isSigned>(registerOf(v)));
  else
#endif
    return lowLanes<To>(widenedLow<from, to, isSigned>(registerOf(v)));
}

template <class D, class V>
auto convertDirect(V v) {
#if defined(__AVX2__)
  if constexpr (std::is_same_v<D, Hux64f> && std::is_same_v<V, Lanes<Hux32f, 4>>)
    return Lanes<D, 4>(_mm256_cvtps_pd(v));
  if constexpr (std::is_same_v<D, Hux64f> && std::is_same_v<V, Lanes<Hux32s, 4>>)
    return Lanes<D, 4>(_mm256_cvtepi32_pd(__m128i(v)));
#endif
  if constexpr (std::is_same_v<D, Hux64f> && std::is_same_v<V, Lanes<Hux32f, 2>>)
    return Lanes<D, 2>(_mm_cvtps_pd(__m128(registerOf(v))));
  if constexpr (std::is_same_v<D, Hux64f> && std::is_same_v<V, Lanes<Hux32s, 2>>)
    return Lanes<D, 2>(_mm_cvtepi32_pd(registerOf(v)));
  if constexpr (!kConverts<D, V>)
    return __builtin_convertvector(v, LanesLike<D, V>);
  else if constexpr (sizeof(D) < sizeof(LaneType<V>))
    return narrowed<D>(v);
  else
    return widened<D>(v);
}

// Saturated: of signed words and double words. Two registers become one; of wide ones each half for itself.
#if defined(__SSE4_1__)
inline __m128i packUnsigned(__m128i a, __m128i b) { return _mm_packus_epi32(a, b); }
#else
inline __m128i packUnsigned(__m128i a, __m128i b) {
  // By the signed instruction, from the middle of the range.
  const auto centred = [](__m128i v) {
    return _mm_sub_epi32(_mm_and_si128(v, _mm_cmpgt_epi32(v, _mm_setzero_si128())), _mm_set1_epi32(32768));
  };
  return _mm_xor_si128(_mm_packs_epi32(centred(a), centred(b)), _mm_set1_epi16(-32768));
}
#endif
inline __m128i packDirect(Hux16s, __m128i a, __m128i b) { return _mm_packs_epi32(a, b); }
inline __m128i packDirect(Hux16u, __m128i a, __m128i b) { return packUnsigned(a, b); }
inline __m128i packDirect(Hux8s, __m128i a, __m128i b) { return _mm_packs_epi16(a, b); }
inline __m128i packDirect(Hux8u, __m128i a, __m128i b) { return _mm_packus_epi16(a, b); }
#if defined(__AVX2__)
inline __m256i packDirect(Hux16s, __m256i a, __m256i b) { return _mm256_packs_epi32(a, b); }
inline __m256i packDirect(Hux16u, __m256i a, __m256i b) { return _mm256_packus_epi32(a, b); }
inline __m256i packDirect(Hux8s, __m256i a, __m256i b) { return _mm256_packs_epi16(a, b); }
inline __m256i packDirect(Hux8u, __m256i a, __m256i b) { return _mm256_packus_epi16(a, b); }
#endif

template <class D, class V>
inline constexpr bool kSaturates = kConverts<D, V>&& std::is_signed_v<LaneType<V>> && sizeof(D) < sizeof(LaneType<V>) &&
                                   sizeof(LaneType<V>) <= 4;
template <class D, class V>
auto saturateDirect(V v) {
  using To = LanesLike<D, V>;
  __m128i low, high;
#if defined(__AVX2__)
  if constexpr (sizeof(V) == 32)
    low = _mm256_castsi256_si128(__m256i(v)), high = _mm256_extracti128_si256(__m256i(v), 1);
  else
#endif
    low = high = registerOf(v);
  if constexpr (sizeof(LaneType<V>) == 2 * sizeof(D)) {
    return lowLanes<To>(packDirect(D(), low, high));
  } else {
    const __m128i words = packDirect(Hux16s(), low, high);
    return lowLanes<To>(packDirect(D(), words, words));
  }
}

// Several vectors at once, which costs less than one after the other.
inline constexpr bool kPacksMany = true;
template <class D, class V, std::size_t K>
auto saturateMany(const std::array<V, K>& v) {
  static_assert(sizeof(LaneType<V>) == K * sizeof(D) && sizeof(V) == kLaneBytes);
  using To = Lanes<D, int(sizeof(V) / sizeof(D))>;
#if defined(__AVX2__)
  using Register = __m256i;
#else
  using Register = __m128i;
#endif
  Register r;
  if constexpr (K == 2)
    r = packDirect(D(), Register(v[0]), Register(v[1]));
  else
    r = packDirect(D(), packDirect(Hux16s(), Register(v[0]), Register(v[1])),
                   packDirect(Hux16s(), Register(v[2]), Register(v[3])));
#if defined(__AVX2__)
  // The machine packs within halves.
  if constexpr (K == 2)
    return To(_mm256_permute4x64_epi64(r, 0xd8));
  else
    return To(_mm256_permutevar8x32_epi32(r, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7)));
#else
  return To(r);
#endif
}

#elif defined(__aarch64__)

template <class D, class V>
auto convertDirect(V v) {
  return __builtin_convertvector(v, LanesLike<D, V>);
}

template <class D, class V>
inline constexpr bool kSaturates = false;
template <class D, class V>
auto saturateDirect(V v) {
  return convertDirect<D>(v);
}
#define HUX_SATURATE(From, To, N, Register, instruction)             \
  template <>                                                        \
  inline constexpr bool kSaturates<To, Lanes<From, N>> = true;       \
  template <>                                                        \
  inline auto saturateDirect<To, Lanes<From, N>>(Lanes<From, N> v) { \
    return bitsAs<Lanes<To, N>>(instruction(bitsAs<Register>(v)));   \
  }
HUX_SATURATE(Hux16s, Hux8u, 8, int16x8_t, vqmovun_s16)
HUX_SATURATE(Hux16s, Hux8s, 8, int16x8_t, vqmovn_s16)
HUX_SATURATE(Hux16u, Hux8u, 8, uint16x8_t, vqmovn_u16)
HUX_SATURATE(Hux32s, Hux16u, 4, int32x4_t, vqmovun_s32)
HUX_SATURATE(Hux32s, Hux16s, 4, int32x4_t, vqmovn_s32)
HUX_SATURATE(Hux32u, Hux16u, 4, uint32x4_t, vqmovn_u32)
HUX_SATURATE(Hux64s, Hux32s, 2, int64x2_t, vqmovn_s64)
#undef HUX_SATURATE

#else

// (The masked intrinsics with all bits set are the plain instructions, without GCC's false warning about theirs.)
template <class D, class V>
auto convertDirect(V v) {
  return __builtin_convertvector(v, LanesLike<D, V>);
}
template <class D, class V>
inline constexpr bool kSaturates = false;
template <class D, class V>
auto saturateDirect(V v) {
  return convertDirect<D>(v);
}

#if defined(__AVX512BW__) && defined(__AVX512VL__)
#define HUX_CONVERT(From, To, N, Register, instruction)             \
  template <>                                                       \
  inline auto convertDirect<To, Lanes<From, N>>(Lanes<From, N> v) { \
    return Lanes<To, N>(instruction(~0, Register(v)));              \
  }
HUX_CONVERT(Hux8u, Hux16u, 32, __m256i, _mm512_maskz_cvtepu8_epi16)
HUX_CONVERT(Hux8s, Hux16s, 32, __m256i, _mm512_maskz_cvtepi8_epi16)
HUX_CONVERT(Hux8u, Hux32u, 16, __m128i, _mm512_maskz_cvtepu8_epi32)
HUX_CONVERT(Hux8u, Hux32s, 16, __m128i, _mm512_maskz_cvtepu8_epi32)
HUX_CONVERT(Hux8s, Hux32s, 16, __m128i, _mm512_maskz_cvtepi8_epi32)
HUX_CONVERT(Hux16u, Hux32u, 16, __m256i, _mm512_maskz_cvtepu16_epi32)
HUX_CONVERT(Hux16u, Hux32s, 16, __m256i, _mm512_maskz_cvtepu16_epi32)
HUX_CONVERT(Hux16s, Hux32s, 16, __m256i, _mm512_maskz_cvtepi16_epi32)
HUX_CONVERT(Hux32s, Hux64s, 8, __m256i, _mm512_maskz_cvtepi32_epi64)
HUX_CONVERT(Hux32s, Hux64f, 8, __m256i, _mm512_maskz_cvtepi32_pd)
HUX_CONVERT(Hux32f, Hux64f, 8, __m256, _mm512_maskz_cvtps_pd)
HUX_CONVERT(Hux32s, Hux8u, 16, __m512i, _mm512_maskz_cvtepi32_epi8)
HUX_CONVERT(Hux32s, Hux8s, 16, __m512i, _mm512_maskz_cvtepi32_epi8)
HUX_CONVERT(Hux32s, Hux16u, 16, __m512i, _mm512_maskz_cvtepi32_epi16)
HUX_CONVERT(Hux32s, Hux16s, 16, __m512i, _mm512_maskz_cvtepi32_epi16)
HUX_CONVERT(Hux64s, Hux32s, 8, __m512i, _mm512_maskz_cvtepi64_epi32)
HUX_CONVERT(Hux64f, Hux32f, 8, __m512d, _mm512_maskz_cvtpd_ps)
#undef HUX_CONVERT

#define HUX_SATURATE(From, To, N, Result, instruction)               \
  template <>                                                        \
  inline constexpr bool kSaturates<To, Lanes<From, N>> = true;       \
  template <>                                                        \
  inline auto saturateDirect<To, Lanes<From, N>>(Lanes<From, N> v) { \
    return Lanes<To, N>(Result(instruction(~0, __m512i(v))));        \
  }
HUX_SATURATE(Hux16u, Hux8u, 32, __m256i, _mm512_maskz_cvtusepi16_epi8)
HUX_SATURATE(Hux16s, Hux8s, 32, __m256i, _mm512_maskz_cvtsepi16_epi8)
HUX_SATURATE(Hux32u, Hux16u, 16, __m256i, _mm512_maskz_cvtusepi32_epi16)
HUX_SATURATE(Hux32u, Hux8u, 16, __m128i, _mm512_maskz_cvtusepi32_epi8)
HUX_SATURATE(Hux32s, Hux16s, 16, __m256i, _mm512_maskz_cvtsepi32_epi16)
HUX_SATURATE(Hux32s, Hux8s, 16, __m128i, _mm512_maskz_cvtsepi32_epi8)
HUX_SATURATE(Hux64s, Hux32s, 8, __m256i, _mm512_maskz_cvtsepi64_epi32)
#undef HUX_SATURATE
#endif

#endif

#if !defined(__x86_64__) || defined(__AVX512BW__)
inline constexpr bool kPacksMany = false;
template <class D, class V, std::size_t K>
auto saturateMany(const std::array<V, K>& v) = delete;
#endif

// Whether unsigned lanes are narrowed as signed ones, which they are once they are limited.
template <class D, class V>
constexpr bool packs() {
  if constexpr (std::is_unsigned_v<LaneType<V>>)
    return kSaturates<D, Lanes<std::make_signed_t<LaneType<V>>, lanesIn<V>>>;
  else
    return false;
}
template <class D, class V>
inline constexpr bool kPacks = packs<D, V>();

}  // namespace detail

// Lane by lane to another type; integers wrap, floats must be in range.
template <class D, class V>
auto convert(V v) {
  using T = LaneType<V>;
  if constexpr (std::is_same_v<D, T>)
    return v;
  else if constexpr (sizeof(T) < 4 && std::is_floating_point_v<D>)
    return detail::convertDirect<D>(convert<Hux32s>(v));
  else
    return detail::convertDirect<D>(v);
}

// Limits wide integer lanes to the range of T.
template <class T, class V>
V limited(V v) {
  using W = LaneType<V>;
  v = lesser(v, splat<V>(W(std::numeric_limits<T>::max())));
  if constexpr (std::is_signed_v<W>) v = greater(v, splat<V>(W(std::numeric_limits<T>::min())));
  return v;
}

// The same, narrowed.
template <class T, class V>
auto saturate(V v) {
  using W = LaneType<V>;
  if constexpr (std::is_same_v<T, W>) {
    return v;
  } else if constexpr (detail::kSaturates<T, V>) {
    return detail::saturateDirect<T>(v);
  } else if constexpr (std::is_signed_v<W> && std::is_unsigned_v<T> &&
                       detail::kSaturates<T, Lanes<std::make_unsigned_t<W>, lanesIn<V>>>) {
    return saturate<T>(Lanes<std::make_unsigned_t<W>, lanesIn<V>>(greater(v, V{})));
  } else if constexpr (detail::kPacks<T, V>) {
    return detail::saturateDirect<T>(Lanes<std::make_signed_t<W>, lanesIn<V>>(limited<T>(v)));
  } else {
    return convert<T>(limited<T>(v));
  }
}

// K vectors of lanes K times as wide as T, limited likewise and laid end to end. kJoined<T, V> is the K that fills a
// vector, and 1 where the machine narrows vectors one by one.
template <class T, class V>
inline constexpr int kJoined = detail::kPacksMany && sizeof(V) == kLaneBytes&& std::is_integral_v<LaneType<V>> &&
                                       sizeof(T) < sizeof(LaneType<V>) && sizeof(LaneType<V>) <= 4
                                   ? int(sizeof(LaneType<V>) / sizeof(T))
                                   : 1;
template <class T, class V, std::size_t K>
auto saturate(std::array<V, K> v) {
  static_assert(K == kJoined<T, V>);
  if constexpr (K == 1) {
    return saturate<T>(v[0]);
  } else if constexpr (std::is_unsigned_v<LaneType<V>>) {
    using Signed = Lanes<std::make_signed_t<LaneType<V>>, lanesIn<V>>;
    std::array<Signed, K> inRange;
    for (std::size_t k = 0; k < K; ++k) inRange[k] = Signed(limited<T>(v[k]));
    return detail::saturateMany<T>(inRange);
  } else {
    return detail::saturateMany<T>(v);
  }
}

// Integers that fit T, for rules to return: narrowed, or left to be where several vectors are narrowed at a time.
template <class T, class V>
auto fitting(V v) {
  if constexpr (kJoined < T, V >> 1)
    return Lanes<std::make_signed_t<LaneType<V>>, lanesIn<V>>(v);
  else
    return convert<T>(v);
}
// Unsigned lanes below half of their range, as lanes of the sign that the machine limits at less cost.
template <class V>
auto lowerHalf(V v) {
  if constexpr (detail::kPacksMany)
    return Lanes<std::make_signed_t<LaneType<V>>, lanesIn<V>>(v);
  else
    return v;
}

}  // namespace hux
