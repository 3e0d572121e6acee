// Elements from places that a table tells: windows of 16 bytes, loaded from anywhere, in each of which bytes are picked
// freely. Samples that lie close together, as those of neighbouring pixels of a resized image do, come with one load
// and one shuffle for a vector of them.
#pragma once

#include <array>
#include <utility>

#include "lanes/lanes_sum.h"
#include "lanes/simd.h"

namespace hux {

inline constexpr int kWindowBytes = 16;

// Windows in a vector of the machine.
inline constexpr int kWindows = kLaneBytes / kWindowBytes;

// Whether picking is one instruction. Where it is not, tables of windows are not worth their making.
#if defined(__SSSE3__) || defined(__aarch64__)
inline constexpr bool kPicks = kLaneBytes == 16 || kLaneBytes == 32 || kLaneBytes == 64;
#else
inline constexpr bool kPicks = false;
#endif

using WindowBytes = Lanes<Hux8u, kLaneBytes>;

// Window w of the vector starts at row + at[w].
inline WindowBytes loadWindows(const std::byte* row, const Index* at) {
#if defined(__AVX512BW__) && defined(__AVX512VL__) && defined(__AVX512DQ__)
  const auto quad = [&](int w) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(row + at[w])); };
  const auto half = [&](int w) { return _mm256_inserti128_si256(_mm256_castsi128_si256(quad(w)), quad(w + 1), 1); };
  return WindowBytes(_mm512_maskz_inserti64x4(__mmask8(~0), _mm512_castsi256_si512(half(0)), half(2), 1));
#elif defined(__AVX2__)
  const auto quad = [&](int w) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(row + at[w])); };
  return WindowBytes(_mm256_inserti128_si256(_mm256_castsi128_si256(quad(0)), quad(1), 1));
#else
  return loadLanes<WindowBytes>(row + at[0]);
#endif
}

// Window w of the vector goes to p + w * step, one after the other: what two of them write is the later one's.
template <bool PastCache = false>
void storeWindows(std::byte* p, Index step, WindowBytes v) {
  for (int w = 0; w < kWindows; ++w) {
    simd::Quad window;
    std::memcpy(&window, reinterpret_cast<const std::byte*>(&v) + w * kWindowBytes, sizeof window);
    if constexpr (PastCache)
      simd::stream(p + w * step, window);
    else
      std::memcpy(p + w * step, &window, sizeof window);
  }
}

// Byte j of each window of the result is the one that the lowest four bits of pick[j] tell of that window, or 0 where
// the pick has its top bit set.
inline WindowBytes pickBytes(WindowBytes windows, WindowBytes pick) {
#if defined(__AVX512BW__) && defined(__AVX512VL__) && defined(__AVX512DQ__)
  return WindowBytes(_mm512_maskz_shuffle_epi8(~__mmask64(0), __m512i(windows), __m512i(pick)));
#elif defined(__AVX2__)
  return WindowBytes(_mm256_shuffle_epi8(__m256i(windows), __m256i(pick)));
#elif defined(__SSSE3__)
  return WindowBytes(_mm_shuffle_epi8(__m128i(windows), __m128i(pick)));
#elif defined(__aarch64__)
  return WindowBytes(vqtbl1q_u8(uint8x16_t(windows), uint8x16_t(pick & 0x8f)));
#else
  WindowBytes v{};
  for (int j = 0; j < kLaneBytes; ++j) v[j] = pick[j] & 0x80 ? 0 : windows[j / 16 * 16 + pick[j] % 16];
  return v;
#endif
}

// Bytes of b where those of `second` have their top bit set, else of a.
inline WindowBytes eitherBytes(WindowBytes a, WindowBytes b, WindowBytes second) {
#if defined(__AVX2__) && !(defined(__AVX512BW__) && defined(__AVX512VL__) && defined(__AVX512DQ__))
  return WindowBytes(_mm256_blendv_epi8(__m256i(a), __m256i(b), __m256i(second)));
#elif defined(__SSE4_1__) && !defined(__AVX2__)
  return WindowBytes(_mm_blendv_epi8(__m128i(a), __m128i(b), __m128i(second)));
#else
  return second >= 0x80 ? b : a;
#endif
}

// The lanes lane(0), lane(1), ...
template <class V, class Lane>
V lanesOf(Lane lane) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) { return V{lane(int(I))...}; }
  (std::make_index_sequence<std::size_t(lanesIn<V>)>{});
}

// The lanes base[at[i]], of 32 bits.
template <class V>
V gatherLanes(const LaneType<V>* base, Lanes<Hux32s, lanesIn<V>> at) {
#if defined(__AVX2__)
  if constexpr (sizeof(V) == 32)
    return bitsAs<V>(_mm256_i32gather_epi32(reinterpret_cast<const int*>(base), __m256i(at), 4));
#endif
  return lanesOf<V>([&](int i) { return base[at[i]]; });
}

// Picks from windows of eight floats, each of four neighbouring samples and of those behind them.
#if defined(__AVX2__)
inline constexpr bool kPicksFloats = kLaneBytes == 32;
#else
inline constexpr bool kPicksFloats = false;
#endif
using FloatWindow = Lanes<Hux32f, 8>;
inline FloatWindow pickFloats(FloatWindow v, Lanes<Hux32s, 8> pick) {
#if defined(__AVX2__)
  return FloatWindow(_mm256_permutevar8x32_ps(__m256(v), __m256i(pick)));
#else
  return lanesOf<FloatWindow>([&](int i) { return v[pick[i]]; });
#endif
}

// The bytes of two words, each in a lane: those of the word at a from lane 0 on, those of the word at b from its byte
// `From` on in lane 4 and behind, as far as the word goes. What the lanes behind it hold is left open.
template <int From>
Lanes<Hux32s, 8> spreadWords(const std::byte* a, const std::byte* b) {
  Hux32u first, second;
  std::memcpy(&first, a, sizeof first), std::memcpy(&second, b, sizeof second);
#if defined(__AVX2__)
  constexpr auto pick = [](int from) { return Hux8u(from < 4 ? from : 0x80); };
  static constexpr auto picks = [&] {
    std::array<Hux8u, 32> all{};
    for (int j = 0; j < 32; ++j) all[std::size_t(j)] = j % 4 ? 0x80 : pick(j % 16 / 4 + (j < 16 ? 0 : From));
    return all;
  }();
  const __m256i words = _mm256_blend_epi32(_mm256_set1_epi32(int(first)), _mm256_set1_epi32(int(second)), 0xf0);
  const __m256i order = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(picks.data()));
  return Lanes<Hux32s, 8>(_mm256_shuffle_epi8(words, order));
#else
  const auto bytes = bitsAs<Lanes<Hux8u, 8>>(first | std::uint64_t(second >> (8 * From)) << 32);
  return convert<Hux32s>(bytes);
#endif
}

// In each 16 bytes the lanes of a, then those of b, limited to the range of 16-bit lanes.
template <class V>
auto packWords(V a, V b) {
  using Words = Lanes<Hux16s, 2 * lanesIn<V>>;
  Words v;
  for (int j = 0; j < lanesIn<V>; ++j) {
    const auto limited = [](Hux32s i) { return Hux16s(i < -32768 ? -32768 : i > 32767 ? 32767 : i); };
    v[j / 4 * 8 + j % 4] = limited(a[j]), v[j / 4 * 8 + 4 + j % 4] = limited(b[j]);
  }
  return v;
}
// The same from 16-bit lanes to bytes.
template <class V>
auto packBytes(V a, V b) {
  using Bytes = Lanes<Hux8u, 2 * lanesIn<V>>;
  Bytes v;
  for (int j = 0; j < lanesIn<V>; ++j) {
    const auto limited = [](Hux16s i) { return Hux8u(i < 0 ? 0 : i > 255 ? 255 : i); };
    v[j / 8 * 16 + j % 8] = limited(a[j]), v[j / 8 * 16 + 8 + j % 8] = limited(b[j]);
  }
  return v;
}
#define HUX_PACKS(Bytes, Register, prefix)                                           \
  inline auto packWords(Lanes<Hux32s, Bytes / 4> a, Lanes<Hux32s, Bytes / 4> b) {    \
    return Lanes<Hux16s, Bytes / 2>(prefix##_packs_epi32(Register(a), Register(b))); \
  }                                                                                  \
  inline auto packBytes(Lanes<Hux16s, Bytes / 2> a, Lanes<Hux16s, Bytes / 2> b) {    \
    return Lanes<Hux8u, Bytes>(prefix##_packus_epi16(Register(a), Register(b)));     \
  }
#if defined(__AVX512BW__)
HUX_PACKS(64, __m512i, _mm512)
#endif
#if defined(__AVX2__)
HUX_PACKS(32, __m256i, _mm256)
#endif
#if defined(__SSE2__)
HUX_PACKS(16, __m128i, _mm)
#endif
#undef HUX_PACKS
#if defined(__aarch64__)
inline auto packWords(Lanes<Hux32s, 4> a, Lanes<Hux32s, 4> b) {
  return Lanes<Hux16s, 8>(vqmovn_high_s32(vqmovn_s32(int32x4_t(a)), int32x4_t(b)));
}
inline auto packBytes(Lanes<Hux16s, 8> a, Lanes<Hux16s, 8> b) {
  return Lanes<Hux8u, 16>(vqmovun_high_s16(vqmovun_s16(int16x8_t(a)), int16x8_t(b)));
}
#endif

// Of signed 16-bit lanes the product, rounded, less 15 bits: (a b + 2^14) >> 15, for all but two lowest numbers.
template <class V>
V roundedProducts(V a, V b) {
  return convert<Hux16s>((convert<Hux32s>(a) * convert<Hux32s>(b) + (1 << 14)) >> 15);
}
// Each two neighbouring bytes by two weights, which are the same for all and whose sums of products fit 16 bits.
template <Hux8s First, Hux8s Second, class V>
auto weighedPairs(V bytes) {
  using Sums = Lanes<Hux16s, lanesIn<V> / 2>;
  const auto words = bitsAs<Sums>(bytes);
  return (words & 0xff) * First + (words >> 8 & 0xff) * Second;
}
#define HUX_WINDOW_PRODUCTS(Bytes, Register, prefix)                                                        \
  inline auto roundedProducts(Lanes<Hux16s, Bytes / 2> a, Lanes<Hux16s, Bytes / 2> b) {                     \
    return Lanes<Hux16s, Bytes / 2>(prefix##_mulhrs_epi16(Register(a), Register(b)));                       \
  }                                                                                                         \
  template <Hux8s First, Hux8s Second>                                                                      \
  auto weighedPairs(Lanes<Hux8u, Bytes> bytes) {                                                            \
    constexpr short weights = short(Hux8u(First) | Second * 256);                                           \
    return Lanes<Hux16s, Bytes / 2>(prefix##_maddubs_epi16(Register(bytes), prefix##_set1_epi16(weights))); \
  }
#if defined(__AVX512BW__)
HUX_WINDOW_PRODUCTS(64, __m512i, _mm512)
#endif
#if defined(__AVX2__)
HUX_WINDOW_PRODUCTS(32, __m256i, _mm256)
#endif
#if defined(__SSSE3__)
HUX_WINDOW_PRODUCTS(16, __m128i, _mm)
#endif
#undef HUX_WINDOW_PRODUCTS

// Undoes the order that packing K vectors leaves: runs of 16 / K bytes, window by window.
template <int K, class V>
V inOrder(V v) {
  if constexpr (sizeof(V) == kWindowBytes || K == 1) {
    return v;
  } else {
    using E = std::conditional_t<K == 2, std::uint64_t, std::uint32_t>;
    constexpr int windows = int(sizeof(V)) / kWindowBytes;
    typedef E Runs __attribute__((vector_size(sizeof(V))));
    return [&]<std::size_t... I>(std::index_sequence<I...>) {
      return V(__builtin_shufflevector(Runs(v), Runs(v), (int(I) % windows * K + int(I) / windows)...));
    }
    (std::make_index_sequence<std::size_t(K * windows)>{});
  }
}

// The lanes of K vectors of 32-bit lanes as one of elements of T, which they must fit but for bytes, which are limited.
template <class T, class V, std::size_t K>
auto narrowed(const std::array<V, K>& v) {
  static_assert(K * sizeof(T) == 4);
  using Narrow = Lanes<T, int(sizeof(V) / sizeof(T))>;
  if constexpr (K == 1) {
    return bitsAs<Narrow>(v[0]);
  } else if constexpr (K == 2) {
    // Signed words, from the middle of the range.
    const auto words = packWords(v[0] - 32768, v[1] - 32768);
    return inOrder<2>(Narrow(words) ^ T(0x8000));
  } else {
    return inOrder<4>(packBytes(packWords(v[0], v[1]), packWords(v[2], v[3])));
  }
}

}  // namespace hux
