// Vectors of elements, over the compilers' vector extensions: what the rules of element-wise families are written in. A
// rule computes on lanes of the narrowest type that is exact; every architecture level gives the same bits, only the
// number of lanes differs.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/layout.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace hux {

// Width of the machine's vectors in bytes.
#if defined(__AVX512BW__) && defined(__AVX512VL__) && defined(__AVX512DQ__)
inline constexpr int kLaneBytes = 64;
#elif defined(__AVX2__)
inline constexpr int kLaneBytes = 32;
#else
inline constexpr int kLaneBytes = 16;
#endif

template <class T, int N>
struct LanesOf {
  typedef T Type __attribute__((vector_size(N * sizeof(T))));
};
template <class T, int N>
using Lanes = typename LanesOf<T, N>::Type;

// How many lanes a step has whose widest type is T.
template <class T>
inline constexpr int laneCount = kLaneBytes / int(sizeof(T));

// The same for rules of so little work that memory sets the pace: vectors of 32 bytes are as fast as wider ones in the
// cache, and a little faster beyond it.
template <class T>
inline constexpr int streamLanes = std::min(kLaneBytes, 32) / int(sizeof(T));

template <class V>
using LaneType = std::remove_cvref_t<decltype(std::declval<V&>()[0])>;
template <class V>
inline constexpr int lanesIn = int(sizeof(V) / sizeof(LaneType<V>));

template <class V>
V splat(LaneType<V> value) {
  if constexpr (std::is_floating_point_v<LaneType<V>>)
    return value - V{};  // keeps the sign of a negative zero
  else
    return value | V{};
}

namespace detail {

// (The masked intrinsics with all bits set are the plain instructions, without GCC's false warning about theirs.)
// One-instruction conversions that the compilers do not find by themselves for the widest vectors; anything else is
// theirs.
template <class D, class V>
auto convertDirect(V v) {
  return __builtin_convertvector(v, Lanes<D, lanesIn<V>>);
}
template <class T, class V>
constexpr bool kSaturates = false;
template <class To, class V>
void saturateDirect(To, V) = delete;

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

#define HUX_SATURATE(From, To, N, Result, instruction)        \
  inline Lanes<To, N> saturateDirect(To, Lanes<From, N> v) {  \
    return Lanes<To, N>(Result(instruction(~0, __m512i(v)))); \
  }                                                           \
  template <>                                                 \
  inline constexpr bool kSaturates<To, Lanes<From, N>> = true;
HUX_SATURATE(Hux16u, Hux8u, 32, __m256i, _mm512_maskz_cvtusepi16_epi8)
HUX_SATURATE(Hux16s, Hux8s, 32, __m256i, _mm512_maskz_cvtsepi16_epi8)
HUX_SATURATE(Hux32u, Hux16u, 16, __m256i, _mm512_maskz_cvtusepi32_epi16)
HUX_SATURATE(Hux32u, Hux8u, 16, __m128i, _mm512_maskz_cvtusepi32_epi8)
HUX_SATURATE(Hux32s, Hux16s, 16, __m256i, _mm512_maskz_cvtsepi32_epi16)
HUX_SATURATE(Hux32s, Hux8s, 16, __m128i, _mm512_maskz_cvtsepi32_epi8)
HUX_SATURATE(Hux64s, Hux32s, 8, __m256i, _mm512_maskz_cvtsepi64_epi32)
#undef HUX_SATURATE
#endif

// Bytes that fill less than a register.
#define HUX_WIDEN(To, N, Whole, widen, enter)                         \
  template <>                                                         \
  inline auto convertDirect<To, Lanes<Hux8u, N>>(Lanes<Hux8u, N> v) { \
    Whole bytes;                                                      \
    std::memcpy(&bytes, &v, sizeof bytes);                            \
    return Lanes<To, N>(widen(enter(bytes)));                         \
  }
#if defined(__AVX2__)
HUX_WIDEN(Hux32s, 8, long long, _mm256_cvtepu8_epi32, _mm_cvtsi64_si128)
HUX_WIDEN(Hux32u, 8, long long, _mm256_cvtepu8_epi32, _mm_cvtsi64_si128)
#endif
#if defined(__SSE4_1__)
HUX_WIDEN(Hux32s, 4, int, _mm_cvtepu8_epi32, _mm_cvtsi32_si128)
HUX_WIDEN(Hux32u, 4, int, _mm_cvtepu8_epi32, _mm_cvtsi32_si128)
#endif
#undef HUX_WIDEN

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

template <class To, class V>
To bitsAs(V v) {
  static_assert(sizeof(To) == sizeof(V));
  To to;
  std::memcpy(&to, &v, sizeof to);
  return to;
}

// Lane by lane a < b ? a : b, and b where the comparison fails for a NaN; greater likewise.
template <class V>
V lesser(V a, V b) {
  return a < b ? a : b;
}
template <class V>
V greater(V a, V b) {
  return a > b ? a : b;
}

// The machine's instructions are these very selections, but GCC takes them apart for the widest vectors.
#if defined(__AVX512BW__) && defined(__AVX512VL__)
#define HUX_SELECT(name, Type, N, Register, instruction)              \
  inline Lanes<Type, N> name(Lanes<Type, N> a, Lanes<Type, N> b) {    \
    return Lanes<Type, N>(instruction(~0, Register(a), Register(b))); \
  }
HUX_SELECT(lesser, Hux32f, 16, __m512, _mm512_maskz_min_ps)
HUX_SELECT(greater, Hux32f, 16, __m512, _mm512_maskz_max_ps)
HUX_SELECT(lesser, Hux64f, 8, __m512d, _mm512_maskz_min_pd)
HUX_SELECT(greater, Hux64f, 8, __m512d, _mm512_maskz_max_pd)
#define HUX_SELECT_INTEGER(Type, N, type)                       \
  HUX_SELECT(lesser, Type, N, __m512i, _mm512_maskz_min_##type) \
  HUX_SELECT(greater, Type, N, __m512i, _mm512_maskz_max_##type)
HUX_SELECT_INTEGER(Hux8u, 64, epu8)
HUX_SELECT_INTEGER(Hux16u, 32, epu16)
HUX_SELECT_INTEGER(Hux16s, 32, epi16)
HUX_SELECT_INTEGER(Hux32u, 16, epu32)
HUX_SELECT_INTEGER(Hux32s, 16, epi32)
HUX_SELECT_INTEGER(Hux64s, 8, epi64)
#undef HUX_SELECT_INTEGER
#undef HUX_SELECT
#endif

// a + b where many selections and conversions stand around it: there are machines whose adders do those as well, while
// the multipliers wait.
template <class V>
V addBeside(V a, V b) {
  return a + b;
}
#if defined(__AVX512BW__) && defined(__AVX512VL__)
inline Lanes<Hux32f, 16> addBeside(Lanes<Hux32f, 16> a, Lanes<Hux32f, 16> b) {
  return Lanes<Hux32f, 16>(_mm512_maskz_fmadd_ps(~0, __m512(a), _mm512_set1_ps(1), __m512(b)));
}
inline Lanes<Hux64f, 8> addBeside(Lanes<Hux64f, 8> a, Lanes<Hux64f, 8> b) {
  return Lanes<Hux64f, 8>(_mm512_maskz_fmadd_pd(~0, __m512d(a), _mm512_set1_pd(1), __m512d(b)));
}
#endif

// Limits wide integer lanes to the range of T and narrows them.
template <class T, class V>
auto saturate(V v) {
  using W = LaneType<V>;
  if constexpr (std::is_same_v<T, W>) {
    return v;
  } else if constexpr (detail::kSaturates<T, V>) {
    return detail::saturateDirect(T(0), v);
  } else if constexpr (std::is_signed_v<W> && std::is_unsigned_v<T> &&
                       detail::kSaturates<T, Lanes<std::make_unsigned_t<W>, lanesIn<V>>>) {
    return saturate<T>(Lanes<std::make_unsigned_t<W>, lanesIn<V>>(greater(v, V{})));
  } else {
    v = lesser(v, splat<V>(W(std::numeric_limits<T>::max())));
    if constexpr (std::is_signed_v<W>) v = greater(v, splat<V>(W(std::numeric_limits<T>::min())));
    return convert<T>(v);
  }
}

// a + b and a - b limited to the range of the lanes' own type, without leaving it.
template <class V>
V addSaturated(V a, V b) {
  using T = LaneType<V>;
  if constexpr (std::is_unsigned_v<T>) {
    const V sum = a + b;
    return sum < a ? ~V{} : sum;
  } else {
    using U = Lanes<std::make_unsigned_t<T>, lanesIn<V>>;
    const V sum = V(U(a) + U(b));
    const V limit = (a < 0 ? splat<V>(std::numeric_limits<T>::min()) : splat<V>(std::numeric_limits<T>::max()));
    return (~(a ^ b) & (a ^ sum)) < 0 ? limit : sum;
  }
}
template <class V>
V subSaturated(V a, V b) {
  using T = LaneType<V>;
  if constexpr (std::is_unsigned_v<T>) {
    return greater(a, b) - b;
  } else {
    using U = Lanes<std::make_unsigned_t<T>, lanesIn<V>>;
    const V difference = V(U(a) - U(b));
    const V limit = (a < 0 ? splat<V>(std::numeric_limits<T>::min()) : splat<V>(std::numeric_limits<T>::max()));
    return ((a ^ b) & (a ^ difference)) < 0 ? limit : difference;
  }
}

// Of 16-bit lanes: the high half of the product; of unsigned ones the mean rounded up.
template <class V>
V mulHigh(V a, V b) {
  using T = LaneType<V>;
  using W = std::conditional_t<std::is_signed_v<T>, Hux32s, Hux32u>;
  return convert<T>((convert<W>(a) * convert<W>(b)) >> W(16));
}
template <class V>
V meanUp(V a, V b) {
  return (a | b) - ((a ^ b) >> Hux16u(1));
}

// The machine has instructions for these, on bytes and words, in every width.
#define HUX_LANES_OF(name, Type, bytes, Register, instruction)                         \
  inline Lanes<Type, bytes / sizeof(Type)> name(Lanes<Type, bytes / sizeof(Type)> a,   \
                                                Lanes<Type, bytes / sizeof(Type)> b) { \
    return Lanes<Type, bytes / sizeof(Type)>(instruction(Register(a), Register(b)));   \
  }
#define HUX_PACKED(bytes, Register, prefix)                                \
  HUX_LANES_OF(addSaturated, Hux8u, bytes, Register, prefix##_adds_epu8)   \
  HUX_LANES_OF(subSaturated, Hux8u, bytes, Register, prefix##_subs_epu8)   \
  HUX_LANES_OF(addSaturated, Hux16u, bytes, Register, prefix##_adds_epu16) \
  HUX_LANES_OF(subSaturated, Hux16u, bytes, Register, prefix##_subs_epu16) \
  HUX_LANES_OF(addSaturated, Hux16s, bytes, Register, prefix##_adds_epi16) \
  HUX_LANES_OF(subSaturated, Hux16s, bytes, Register, prefix##_subs_epi16) \
  HUX_LANES_OF(mulHigh, Hux16s, bytes, Register, prefix##_mulhi_epi16)     \
  HUX_LANES_OF(mulHigh, Hux16u, bytes, Register, prefix##_mulhi_epu16)     \
  HUX_LANES_OF(meanUp, Hux16u, bytes, Register, prefix##_avg_epu16)
#if defined(__AVX512BW__)
HUX_PACKED(64, __m512i, _mm512)
#endif
#if defined(__AVX2__)
HUX_PACKED(32, __m256i, _mm256)
#endif
#if defined(__SSE2__)
HUX_PACKED(16, __m128i, _mm)
#endif
#undef HUX_PACKED
#undef HUX_LANES_OF

template <class V>
V loadLanes(const void* p) {
  V v;
  std::memcpy(&v, p, sizeof v);
  return v;
}
template <class V>
void storeLanes(void* p, V v) {
  std::memcpy(p, &v, sizeof v);
}

// The first `count` lanes; the others hold `rest`. Memory behind the first `count` is not touched.
template <class V>
V loadLanes(const void* p, int count, LaneType<V> rest) {
  V v = splat<V>(rest);
#if defined(__AVX512BW__) && defined(__AVX512VL__)
  const int bytes = count * int(sizeof(LaneType<V>));
  const std::uint64_t mask = bytes < 64 ? (std::uint64_t(1) << bytes) - 1 : ~std::uint64_t(0);
  if constexpr (sizeof(V) == 64) return bitsAs<V>(_mm512_mask_loadu_epi8(bitsAs<__m512i>(v), mask, p));
  if constexpr (sizeof(V) == 32) return bitsAs<V>(_mm256_mask_loadu_epi8(bitsAs<__m256i>(v), __mmask32(mask), p));
  if constexpr (sizeof(V) == 16) return bitsAs<V>(_mm_mask_loadu_epi8(bitsAs<__m128i>(v), __mmask16(mask), p));
#endif
  std::memcpy(&v, p, std::size_t(count) * sizeof(LaneType<V>));
  return v;
}

// Stores the lanes of [0, count) whose position within groups of four is below `Colours` (4: all). What is not stored
// is not read either.
template <int Colours, class V>
void storeColours(void* p, V v, int count = lanesIn<V>) {
  using T = LaneType<V>;
  if constexpr (Colours == 4) {
    std::memcpy(p, &v, std::size_t(count) * sizeof(T));
  } else {
    static_assert(lanesIn<V> % 4 == 0, "pixels do not lie across vectors");
#if defined(__AVX512BW__) && defined(__AVX512VL__)
    constexpr std::uint64_t colours = [] {
      std::uint64_t mask = 0;
      for (int i = 0; i < int(sizeof(V)) && i < 64; ++i) mask |= std::uint64_t(i / int(sizeof(T)) % 4 < Colours) << i;
      return mask;
    }();
    const std::uint64_t mask =
        count < lanesIn<V> ? colours & ((std::uint64_t(1) << (count * int(sizeof(T)))) - 1) : colours;
    if constexpr (sizeof(V) == 64) return _mm512_mask_storeu_epi8(p, mask, bitsAs<__m512i>(v));
    if constexpr (sizeof(V) == 32) return _mm256_mask_storeu_epi8(p, __mmask32(mask), bitsAs<__m256i>(v));
    if constexpr (sizeof(V) == 16) return _mm_mask_storeu_epi8(p, __mmask16(mask), bitsAs<__m128i>(v));
#endif
    T lanes[lanesIn<V>];
    std::memcpy(lanes, &v, sizeof v);
    for (int i = 0; i < count; i += 4)
      std::memcpy(static_cast<Element<T>*>(p) + i, lanes + i, std::size_t(Colours) * sizeof(T));
  }
}

}  // namespace hux
