// The one place that knows vector registers. Everything here has a meaning in bytes that no architecture level changes;
// what a level lacks is told by the constants below, and callers then take their plain loop.
#pragma once

#include <cstdint>
#include <cstring>
#include <utility>

#include "core/layout.h"

#if defined(__AVX512BW__) && defined(__AVX512VL__)
#include <immintrin.h>
#endif

namespace hux::simd {

// Width of a vector in bytes: the widest in which the machine permutes bytes freely; 16 where nothing better is known.
#if defined(__AVX512VBMI__) && defined(__AVX512BW__) && defined(__AVX512VL__)
inline constexpr int kBytes = 64;
#else
inline constexpr int kBytes = 16;
#endif

// Whether permuting bytes is one instruction and not a loop in disguise.
#if defined(__SSSE3__) || defined(__ARM_NEON)
inline constexpr bool kPermutes = true;
#else
inline constexpr bool kPermutes = false;
#endif

// Whether a store can leave single bytes alone without reading them, and a load can skip bytes without touching memory.
#if defined(__AVX512BW__) && defined(__AVX512VL__)
inline constexpr bool kMasks = true;
#else
inline constexpr bool kMasks = false;
#endif

typedef std::uint8_t Vec __attribute__((vector_size(kBytes)));

// One bit per byte of a vector, lowest first.
using Mask = std::uint64_t;
inline constexpr Mask kAll = kBytes == 64 ? ~Mask(0) : (Mask(1) << (kBytes % 64)) - 1;
constexpr Mask lowBytes(Index count) { return count >= kBytes ? kAll : count <= 0 ? 0 : (Mask(1) << count) - 1; }

inline Vec load(const void* p) {
  Vec v;
  std::memcpy(&v, p, sizeof v);
  return v;
}
inline void store(void* p, Vec v) { std::memcpy(p, &v, sizeof v); }

#if defined(__AVX512BW__) && defined(__AVX512VL__)
#if defined(__AVX512VBMI__)
inline Vec load(const void* p, Mask mask) { return Vec(_mm512_maskz_loadu_epi8(mask, p)); }
inline void store(void* p, Vec v, Mask mask) { _mm512_mask_storeu_epi8(p, mask, __m512i(v)); }
inline Mask nonZero(Vec v) { return _mm512_test_epi8_mask(__m512i(v), __m512i(v)); }
#else
inline Vec load(const void* p, Mask mask) { return Vec(_mm_maskz_loadu_epi8(__mmask16(mask), p)); }
inline void store(void* p, Vec v, Mask mask) { _mm_mask_storeu_epi8(p, __mmask16(mask), __m128i(v)); }
inline Mask nonZero(Vec v) { return _mm_test_epi8_mask(__m128i(v), __m128i(v)); }
#endif
#else
// Byte by byte; callers look at kMasks and use these only where they are rare.
inline Vec load(const void* p, Mask mask) {
  Vec v{};
  for (int j = 0; j < kBytes; ++j)
    if (mask >> j & 1) v[j] = static_cast<const std::uint8_t*>(p)[j];
  return v;
}
inline void store(void* p, Vec v, Mask mask) {
  for (int j = 0; j < kBytes; ++j)
    if (mask >> j & 1) static_cast<std::uint8_t*>(p)[j] = v[j];
}
inline Mask nonZero(Vec v) {
  Mask mask = 0;
  for (int j = 0; j < kBytes; ++j) mask |= Mask(v[j] != 0) << j;
  return mask;
}
#endif

// permute<Map, K>(in): the vector whose byte j is byte Map::source(j) of the K input vectors laid end to end; a source
// of -1 leaves the byte open. Inputs are folded in one at a time, each by one two-operand shuffle; unused inputs cost
// nothing.
namespace detail {

template <class Map>
constexpr int inputOf(int j) {
  return Map::source(j) < 0 ? -1 : Map::source(j) / kBytes;
}

template <class Map>
constexpr bool uses(int input) {
  for (int j = 0; j < kBytes; ++j)
    if (inputOf<Map>(j) == input) return true;
  return false;
}

template <class Map>
constexpr int firstUsed(int k = 0) {
  while (!uses<Map>(k)) ++k;
  return k;
}

template <class Map>
constexpr bool isIdentity(int input) {
  for (int j = 0; j < kBytes; ++j)
    if (Map::source(j) >= 0 && Map::source(j) != input * kBytes + j) return false;
  return true;
}

// Index of the shuffle that adds `input` to what came from the inputs before it; `placed` tells that those bytes
// already stand where they belong.
template <class Map>
constexpr int foldIndex(int j, int first, int input, bool placed) {
  const int from = inputOf<Map>(j);
  if (from < 0 || from > input) return -1;
  const int byte = Map::source(j) % kBytes;
  if (from == input && from != first) return kBytes + byte;
  return placed ? j : byte;
}

template <class Map, int First, int Input, bool Placed, std::size_t... J>
Vec fold(Vec sum, Vec next, std::index_sequence<J...>) {
  return __builtin_shufflevector(sum, next, foldIndex<Map>(int(J), First, Input, Placed)...);
}

template <class Map, int K, int First, int Input, bool Placed>
Vec foldFrom(Vec sum, const Vec* in) {
  constexpr auto bytes = std::make_index_sequence<kBytes>{};
  if constexpr (Input == K) {
    if constexpr (Placed || isIdentity<Map>(First))
      return sum;
    else
      return fold<Map, First, First, false>(sum, sum, bytes);
  } else if constexpr (uses<Map>(Input)) {
    return foldFrom<Map, K, First, Input + 1, true>(fold<Map, First, Input, Placed>(sum, in[Input], bytes), in);
  } else {
    return foldFrom<Map, K, First, Input + 1, Placed>(sum, in);
  }
}

}  // namespace detail

template <class Map, int K>
Vec permute(const Vec* in) {
  constexpr int first = detail::firstUsed<Map>();
  return detail::foldFrom<Map, K, first, first + 1, false>(in[first], in);
}

// The bytes of a permutation that have a source.
template <class Map>
constexpr Mask written() {
  Mask mask = 0;
  for (int j = 0; j < kBytes; ++j) mask |= Mask(Map::source(j) >= 0) << j;
  return mask;
}

// Short vectors of 16 bytes, whose interleaving is one instruction on every machine.
typedef std::uint8_t Quad __attribute__((vector_size(16)));

// The low or the high halves of a and b interleaved, in elements of ElementBytes.
template <int ElementBytes, bool High>
Quad zip(Quad a, Quad b) {
  return [&]<std::size_t... J>(std::index_sequence<J...>) {
    return __builtin_shufflevector(a, b,
                                   (int(J) / (2 * ElementBytes) * ElementBytes + int(J) % ElementBytes +
                                    (High ? 8 : 0) + (int(J) / ElementBytes % 2 ? 16 : 0))...);
  }
  (std::make_index_sequence<16>{});
}

}  // namespace hux::simd
