// What mathematical functions on lanes are made of: square roots, fused products, look-ups in small tables.
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <utility>

#include "lanes/lanes.h"

namespace hux {

// Lane by lane, correctly rounded.
template <class V>
V squareRoot(V v) {
  for (int i = 0; i < lanesIn<V>; ++i) v[i] = std::sqrt(v[i]);
  return v;
}

// a * b + c, rounded once where the machine can and twice where it cannot: for use only where the last bits of the sum
// do not show in the result.
template <class V>
V mulAdd(V a, V b, V c) {
  return a * b + c;
}

// A polynomial, lowest power first, by powers of two: many short chains of dependent operations in place of a long one.
// Rounded as mulAdd is.
namespace detail {
template <std::size_t First, std::size_t N, class V, std::size_t All>
V polynomialPart(const std::array<LaneType<V>, All>& terms, const V* powers) {
  if constexpr (N == 1) {
    return splat<V>(terms[First]);
  } else {
    constexpr std::size_t half = std::bit_floor(N - 1);
    return mulAdd(polynomialPart<First + half, N - half>(terms, powers), powers[std::countr_zero(half)],
                  polynomialPart<First, half>(terms, powers));
  }
}
}  // namespace detail
template <class V, std::size_t N>
V polynomial(const std::array<LaneType<V>, N>& terms, V x) {
  constexpr int count = std::bit_width(N - 1);
  V powers[count] = {x};
  for (int i = 1; i < count; ++i) powers[i] = powers[i - 1] * powers[i - 1];
  return detail::polynomialPart<0, N>(terms, powers);
}

// Whether some lane of a comparison's result holds.
template <class V>
bool any(V mask) {
#if defined(__AVX512BW__)
  if constexpr (sizeof(V) == 64) return _mm512_movepi8_mask(bitsAs<__m512i>(mask)) != 0;
#endif
#if defined(__AVX2__)
  if constexpr (sizeof(V) == 32) return _mm256_movemask_epi8(bitsAs<__m256i>(mask)) != 0;
#endif
#if defined(__SSE2__)
  if constexpr (sizeof(V) == 16) return _mm_movemask_epi8(bitsAs<__m128i>(mask)) != 0;
#endif
  std::uint64_t words[(sizeof(V) + 7) / 8] = {}, all = 0;
  std::memcpy(words, &mask, sizeof mask);
  for (const std::uint64_t word : words) all |= word;
  return all != 0;
}

// Whether a is below b in some lane.
template <class V>
bool anyBelow(V a, V b) {
  return any(a < b);
}

// Whether in some lane no bit of the mask is set.
template <class V>
bool anyClear(V v, V mask) {
  return any((v & mask) == 0);
}

// Whether unsigned 32-bit lanes have a lesser and a greater one by one instruction.
#if defined(__SSE2__) && !defined(__SSE4_1__)
inline constexpr bool kOrdersUnsigned = false;
#else
inline constexpr bool kOrdersUnsigned = true;
#endif

// Whether some lane is 0; whether some lane is above a limit; whether all lanes are below or above 0, which NaN is not.
template <class V>
bool anyZero(V v) {
  return any(v == 0);
}
template <class V>
bool anyAbove(V v, V limit) {
  return any(v > limit);
}
template <class V>
bool allNonZero(V v) {
  return !any(~((v < 0) | (v > 0)));
}

// Stores the lanes in which the mask, a comparison's result, holds one behind the other and returns their number. What
// lies behind them is overwritten, up to the length of a vector.
template <class V, class M>
int storeWhere(void* p, V v, M mask) {
  int n = 0;
  for (int i = 0; i < lanesIn<V>; ++i) {
    const auto lane = v[i];
    std::memcpy(static_cast<std::byte*>(p) + n * int(sizeof lane), &lane, sizeof lane);
    n -= int(mask[i]);
  }
  return n;
}

// 64-bit integers whose low halves are 0, as doubles that count kHighUnit each.
#if defined(__AVX512BW__) && defined(__AVX512VL__) && defined(__AVX512DQ__)
inline constexpr Hux64f kHighUnit = 1;
inline Lanes<Hux64f, 8> highToDouble(Lanes<std::uint64_t, 8> v) { return _mm512_maskz_cvtepi64_pd(~0, __m512i(v)); }
#else
inline constexpr Hux64f kHighUnit = 0x1p32;
template <class V>
auto highToDouble(V v) {
  return convert<Hux64f>(convert<Hux32s>(v >> LaneType<V>(32)));
}
#endif

// The product of the lower halves of 64-bit lanes, as signed numbers.
template <class V>
V mulLow(V a, V b) {
  const auto low = [](V v) { return convert<Hux64s>(convert<Hux32s>(v)); };
  return low(a) * low(b);
}

// The first and the second half of the lanes, and lanes of two halves.
template <int Half, class V>
auto half(V v) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return __builtin_shufflevector(v, v, (Half * lanesIn<V> / 2 + int(I))...);
  }
  (std::make_index_sequence<lanesIn<V> / 2>{});
}
template <class V>
auto joined(V first, V second) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) { return __builtin_shufflevector(first, second, int(I)...); }
  (std::make_index_sequence<2 * lanesIn<V>>{});
}

// Whether a table of 16 doubles is held in registers, where a look-up is one instruction. Elsewhere it costs more than
// some arithmetic in its place.
#if defined(__AVX512BW__) && defined(__AVX512VL__) && defined(__AVX512DQ__)
inline constexpr bool kTablesInRegisters = true;
#else
inline constexpr bool kTablesInRegisters = false;
#endif

// A table of Size entries, a power of two, addressed by the low bits of unsigned lanes as wide as an entry.
template <class T, int Size>
struct LaneTable {
  const T* entries;
  explicit LaneTable(const T* entries) : entries(entries) {}
  template <class I>
  Lanes<T, lanesIn<I>> operator()(I index) const {
    Lanes<T, lanesIn<I>> v;
    for (int i = 0; i < lanesIn<I>; ++i) v[i] = entries[index[i] % unsigned(Size)];
    return v;
  }
};

#if defined(__AVX512BW__) && defined(__AVX512VL__) && defined(__AVX512DQ__)
inline Lanes<Hux32f, 16> squareRoot(Lanes<Hux32f, 16> v) { return _mm512_maskz_sqrt_ps(~0, v); }
inline Lanes<Hux64f, 8> squareRoot(Lanes<Hux64f, 8> v) { return _mm512_maskz_sqrt_pd(~0, v); }
inline Lanes<Hux64f, 8> mulAdd(Lanes<Hux64f, 8> a, Lanes<Hux64f, 8> b, Lanes<Hux64f, 8> c) {
  return _mm512_fmadd_pd(a, b, c);
}
inline Lanes<Hux32f, 16> mulAdd(Lanes<Hux32f, 16> a, Lanes<Hux32f, 16> b, Lanes<Hux32f, 16> c) {
  return _mm512_fmadd_ps(a, b, c);
}
inline bool anyClear(Lanes<std::uint64_t, 8> v, Lanes<std::uint64_t, 8> mask) {
  return _mm512_testn_epi64_mask(__m512i(v), __m512i(mask)) != 0;
}
inline bool anyBelow(Lanes<Hux32u, 8> a, Lanes<Hux32u, 8> b) {
  return _mm256_cmplt_epu32_mask(__m256i(a), __m256i(b)) != 0;
}
inline bool anyBelow(Lanes<Hux32u, 16> a, Lanes<Hux32u, 16> b) {
  return _mm512_cmplt_epu32_mask(__m512i(a), __m512i(b)) != 0;
}
inline Lanes<Hux64s, 8> mulLow(Lanes<Hux64s, 8> a, Lanes<Hux64s, 8> b) {
  return Lanes<Hux64s, 8>(_mm512_maskz_mul_epi32(__mmask8(-1), __m512i(a), __m512i(b)));
}
inline bool anyClear(Lanes<Hux32u, 16> v, Lanes<Hux32u, 16> mask) {
  return _mm512_testn_epi32_mask(__m512i(v), __m512i(mask)) != 0;
}
inline bool anyZero(Lanes<Hux8u, 16> v) { return _mm_testn_epi8_mask(__m128i(v), __m128i(v)) != 0; }
inline bool anyZero(Lanes<Hux16u, 16> v) { return _mm256_testn_epi16_mask(__m256i(v), __m256i(v)) != 0; }
inline bool anyAbove(Lanes<Hux16u, 16> v, Lanes<Hux16u, 16> limit) {
  return _mm256_cmpgt_epu16_mask(__m256i(v), __m256i(limit)) != 0;
}
inline bool allNonZero(Lanes<Hux32f, 16> v) {
  const Lanes<Hux32f, 16> zero{};
  return _mm512_cmp_ps_mask(v, zero, _CMP_NEQ_OQ) == 0xFFFF;
}
template <>
inline int storeWhere(void* p, Lanes<std::uint64_t, 8> v, Lanes<Hux64s, 8> mask) {
  const __mmask8 chosen = _mm512_movepi64_mask(__m512i(mask));
  storeLanes(p, _mm512_maskz_compress_epi64(chosen, __m512i(v)));
  return __builtin_popcount(chosen);
}

template <>
struct LaneTable<Hux64f, 16> {
  Lanes<Hux64f, 8> low, high;
  explicit LaneTable(const Hux64f* entries)
      : low(loadLanes<Lanes<Hux64f, 8>>(entries)), high(loadLanes<Lanes<Hux64f, 8>>(entries + 8)) {}
  Lanes<Hux64f, 8> operator()(Lanes<std::uint64_t, 8> index) const {
    return _mm512_permutex2var_pd(low, __m512i(index), high);
  }
};

template <>
struct LaneTable<Hux16s, 32> {
  Lanes<Hux16s, 32> all;
  explicit LaneTable(const Hux16s* entries) : all(loadLanes<Lanes<Hux16s, 32>>(entries)) {}
  Lanes<Hux16s, 32> operator()(Lanes<Hux16u, 32> index) const {
    return Lanes<Hux16s, 32>(_mm512_maskz_permutexvar_epi16(~0u, __m512i(index), __m512i(all)));
  }
};

#if defined(__AVX512VBMI__)
template <>
struct LaneTable<Hux8u, 256> {
  using V = Lanes<Hux8u, 64>;
  V quarter[4];
  explicit LaneTable(const Hux8u* entries) {
    for (int i = 0; i < 4; ++i) quarter[i] = loadLanes<V>(entries + 64 * i);
  }
  V operator()(V index) const {
    const auto i = __m512i(index);
    const V low = V(_mm512_permutex2var_epi8(__m512i(quarter[0]), i, __m512i(quarter[1])));
    const V high = V(_mm512_permutex2var_epi8(__m512i(quarter[2]), i, __m512i(quarter[3])));
    return index > 127 ? high : low;
  }
};
#endif
#elif defined(__AVX2__)
template <>
inline int storeWhere(void* p, Lanes<std::uint64_t, 4> v, Lanes<Hux64s, 4> mask) {
  // For each set of lanes, these first, as pairs of halves.
  struct Orders {
    alignas(32) std::uint32_t of[16][8] = {};
    constexpr Orders() {
      for (unsigned set = 0; set < 16; ++set)
        for (unsigned lane = 0, n = 0; lane < 4; ++lane)
          if (set >> lane & 1) of[set][n] = 2 * lane, of[set][n + 1] = 2 * lane + 1, n += 2;
    }
  };
  static constexpr Orders orders;
  const int chosen = _mm256_movemask_pd(__m256d(mask));
  const __m256i order = __m256i(loadLanes<Lanes<std::uint32_t, 8>>(orders.of[chosen]));
  storeLanes(p, Lanes<std::uint64_t, 4>(_mm256_permutevar8x32_epi32(__m256i(v), order)));
  return std::popcount(unsigned(chosen));
}
inline Lanes<Hux32f, 8> squareRoot(Lanes<Hux32f, 8> v) { return _mm256_sqrt_ps(v); }
inline Lanes<Hux64f, 4> squareRoot(Lanes<Hux64f, 4> v) { return _mm256_sqrt_pd(v); }
inline Lanes<Hux64s, 4> mulLow(Lanes<Hux64s, 4> a, Lanes<Hux64s, 4> b) {
  return Lanes<Hux64s, 4>(_mm256_mul_epi32(__m256i(a), __m256i(b)));
}
#if defined(__FMA__)
inline Lanes<Hux64f, 4> mulAdd(Lanes<Hux64f, 4> a, Lanes<Hux64f, 4> b, Lanes<Hux64f, 4> c) {
  return _mm256_fmadd_pd(a, b, c);
}
inline Lanes<Hux32f, 8> mulAdd(Lanes<Hux32f, 8> a, Lanes<Hux32f, 8> b, Lanes<Hux32f, 8> c) {
  return _mm256_fmadd_ps(a, b, c);
}
#endif
#elif defined(__SSE2__)
inline Lanes<Hux32f, 4> squareRoot(Lanes<Hux32f, 4> v) { return _mm_sqrt_ps(v); }
inline Lanes<Hux64f, 2> squareRoot(Lanes<Hux64f, 2> v) { return _mm_sqrt_pd(v); }
inline bool allNonZero(Lanes<Hux32f, 4> v) {
  const __m128 magnitude = _mm_and_ps(v, _mm_castsi128_ps(_mm_set1_epi32(0x7fffffff)));
  return _mm_movemask_ps(_mm_cmplt_ps(_mm_setzero_ps(), magnitude)) == 0xF;
}
#if defined(__SSE4_1__)
inline Lanes<Hux64s, 2> mulLow(Lanes<Hux64s, 2> a, Lanes<Hux64s, 2> b) {
  return Lanes<Hux64s, 2>(_mm_mul_epi32(__m128i(a), __m128i(b)));
}
#endif
#elif defined(__aarch64__)
inline Lanes<Hux32f, 4> squareRoot(Lanes<Hux32f, 4> v) { return Lanes<Hux32f, 4>(vsqrtq_f32(float32x4_t(v))); }
inline Lanes<Hux64f, 2> squareRoot(Lanes<Hux64f, 2> v) { return Lanes<Hux64f, 2>(vsqrtq_f64(float64x2_t(v))); }
inline Lanes<Hux64f, 2> mulAdd(Lanes<Hux64f, 2> a, Lanes<Hux64f, 2> b, Lanes<Hux64f, 2> c) {
  return Lanes<Hux64f, 2>(vfmaq_f64(float64x2_t(c), float64x2_t(a), float64x2_t(b)));
}
inline Lanes<Hux32f, 4> mulAdd(Lanes<Hux32f, 4> a, Lanes<Hux32f, 4> b, Lanes<Hux32f, 4> c) {
  return Lanes<Hux32f, 4>(vfmaq_f32(float32x4_t(c), float32x4_t(a), float32x4_t(b)));
}
#endif

#if defined(__AVX2__) && !defined(__AVX512VBMI__)
// A table of 256 bytes, looked up by shuffles of 16. Vector k of the table holds what its 16 bytes differ by from the
// 16 before them; an index, lowered by 16 again and again, selects from all up to its own, and then is negative, which
// selects 0. The upper half of the table is reached by indices with the top bit inverted.
struct ByteShuffles {
  using V = Lanes<Hux8u, 32>;
  V parts[16];
  explicit ByteShuffles(const Hux8u* table) {
    for (int k = 0; k < 16; ++k) {
      __m128i part = _mm_loadu_si128(reinterpret_cast<const __m128i*>(table) + k);
      if (k % 8 != 0) part = _mm_xor_si128(part, _mm_loadu_si128(reinterpret_cast<const __m128i*>(table) + k - 1));
      parts[k] = V(_mm256_broadcastsi128_si256(part));
    }
  }
  template <std::size_t N>
  std::array<V, N> operator()(std::array<V, N> index) const {
    std::array<V, N> result{};
    for (int half = 0; half < 2; ++half) {
      std::array<V, N> at = index;
      for (int k = 0; k < 8; ++k)
        for (std::size_t i = 0; i < N; ++i) {
          result[i] ^= V(_mm256_shuffle_epi8(__m256i(parts[8 * half + k]), __m256i(at[i])));
          at[i] = V(_mm256_subs_epi8(__m256i(at[i]), _mm256_set1_epi8(16)));
        }
      for (V& v : index) v ^= 0x80;
    }
    return result;
  }
};
#endif

}  // namespace hux
