// What a vector of elements is, how many lanes it has, and selections among lanes.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/layout.h"
#include "lanes/registers.h"

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
inline constexpr int memoryLanes = std::min(kLaneBytes, 32) / int(sizeof(T));

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

// The machine's instructions are these very selections, but GCC takes them apart for the widest vectors, and for floats
// where one side is a constant.
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
#elif defined(__SSE2__)
#define HUX_SELECT(Type, bytes, instructions)                                             \
  inline Lanes<Type, bytes / sizeof(Type)> lesser(Lanes<Type, bytes / sizeof(Type)> a,    \
                                                  Lanes<Type, bytes / sizeof(Type)> b) {  \
    return instructions(min)(a, b);                                                       \
  }                                                                                       \
  inline Lanes<Type, bytes / sizeof(Type)> greater(Lanes<Type, bytes / sizeof(Type)> a,   \
                                                   Lanes<Type, bytes / sizeof(Type)> b) { \
    return instructions(max)(a, b);                                                       \
  }
#if defined(__AVX2__)
#define HUX_PS(name) _mm256_##name##_ps
#define HUX_PD(name) _mm256_##name##_pd
HUX_SELECT(Hux32f, 32, HUX_PS)
HUX_SELECT(Hux64f, 32, HUX_PD)
#undef HUX_PS
#undef HUX_PD
#endif
#define HUX_PS(name) _mm_##name##_ps
#define HUX_PD(name) _mm_##name##_pd
HUX_SELECT(Hux32f, 16, HUX_PS)
HUX_SELECT(Hux64f, 16, HUX_PD)
#undef HUX_PS
#undef HUX_PD
#undef HUX_SELECT
#if !defined(__SSE4_1__)
// What this level has no instruction for, in two: by differences that stop at 0.
inline Lanes<Hux16u, 8> lesser(Lanes<Hux16u, 8> a, Lanes<Hux16u, 8> b) {
  return a - Lanes<Hux16u, 8>(_mm_subs_epu16(__m128i(a), __m128i(b)));
}
inline Lanes<Hux16u, 8> greater(Lanes<Hux16u, 8> a, Lanes<Hux16u, 8> b) {
  return b + Lanes<Hux16u, 8>(_mm_subs_epu16(__m128i(a), __m128i(b)));
}
#endif
#endif

}  // namespace hux
