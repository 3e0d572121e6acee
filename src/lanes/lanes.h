// Vectors of elements, over the compilers' vector extensions: what the rules of element-wise families are written in. A
// rule computes on lanes of the narrowest type that is exact; every architecture level gives the same bits, only the
// number of lanes differs.
#pragma once

#include <utility>

#include "lanes/lanes_convert.h"
#include "lanes/unrolled.h"

namespace hux {

// a + b, on the units that multiply where the machine has several: to be used where many selections and conversions
// stand around it, which the adders do as well.
template <class V>
V addOnMultiplier(V a, V b) {
  return a + b;
}
#if defined(__AVX512BW__) && defined(__AVX512VL__)
inline Lanes<Hux32f, 16> addOnMultiplier(Lanes<Hux32f, 16> a, Lanes<Hux32f, 16> b) {
  return Lanes<Hux32f, 16>(_mm512_maskz_fmadd_ps(~0, __m512(a), _mm512_set1_ps(1), __m512(b)));
}
inline Lanes<Hux64f, 8> addOnMultiplier(Lanes<Hux64f, 8> a, Lanes<Hux64f, 8> b) {
  return Lanes<Hux64f, 8>(_mm512_maskz_fmadd_pd(~0, __m512d(a), _mm512_set1_pd(1), __m512d(b)));
}
#endif

namespace detail {
// The limit on a's side in lanes where the sign of `over` is set.
template <class V>
V limitedWhere(V over, V a, V value) {
  using T = LaneType<V>;
  constexpr int sign = 8 * int(sizeof(T)) - 1;
  const V limit = (a >> sign) ^ std::numeric_limits<T>::max();
  return over >> sign ? limit : value;
}
}  // namespace detail

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
    return detail::limitedWhere((a ^ sum) & (b ^ sum), a, sum);
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
    return detail::limitedWhere((a ^ b) & (a ^ difference), a, difference);
  }
}

// Of 16-bit lanes, and of unsigned 32-bit ones: the high half of the product. Of unsigned 16-bit lanes: the mean
// rounded up.
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

// Of unsigned 32-bit lanes: the products of lanes 0, 2, 4, ..., in full.
template <class V>
auto evenProducts(V a, V b) {
  using Pairs = Lanes<std::uint64_t, lanesIn<V> / 2>;
  return (bitsAs<Pairs>(a) & 0xffffffff) * (bitsAs<Pairs>(b) & 0xffffffff);
}

// The machine has instructions for these in every width. (GCC 12 warns of _mm512_mul_epu32 and its undefined lanes.)
#define HUX_EVEN_PRODUCTS(bytes, Register, product)                                  \
  inline auto evenProducts(Lanes<Hux32u, bytes / 4> a, Lanes<Hux32u, bytes / 4> b) { \
    return Lanes<std::uint64_t, bytes / 8>(product(Register(a), Register(b)));       \
  }
#define HUX_LANES_OF(name, Type, bytes, Register, instruction)                         \
  inline Lanes<Type, bytes / sizeof(Type)> name(Lanes<Type, bytes / sizeof(Type)> a,   \
                                                Lanes<Type, bytes / sizeof(Type)> b) { \
    return Lanes<Type, bytes / sizeof(Type)>(instruction(Register(a), Register(b)));   \
  }
#define HUX_PACKED(bytes, Register, prefix, product)                       \
  HUX_EVEN_PRODUCTS(bytes, Register, product)                              \
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
HUX_PACKED(64, __m512i, _mm512, [](auto a, auto b) { return _mm512_maskz_mul_epu32(0xff, a, b); })
#endif
#if defined(__AVX2__)
HUX_PACKED(32, __m256i, _mm256, _mm256_mul_epu32)
#endif
#if defined(__SSE2__)
HUX_PACKED(16, __m128i, _mm, _mm_mul_epu32)
#endif
#undef HUX_PACKED
#undef HUX_LANES_OF
#undef HUX_EVEN_PRODUCTS

template <class V>
requires(sizeof(LaneType<V>) == 4) V mulHigh(V a, V b) {
  static_assert(std::is_unsigned_v<LaneType<V>>);
  using Pairs = Lanes<std::uint64_t, lanesIn<V> / 2>;
  const auto oddFirst = [](V v) { return bitsAs<V>(bitsAs<Pairs>(v) >> 32); };
  const Pairs even = evenProducts(a, b), odd = evenProducts(oddFirst(a), oddFirst(b));
  return bitsAs<V>(even >> 32 | (odd >> 32 << 32));
}

// Of 16-bit lanes: the products in lanes of 32 bits. Of 32-bit lanes: the products of what fits 16 bits without a sign.
template <class V>
auto wideProducts(V a, V b) {
  using W = std::conditional_t<std::is_signed_v<LaneType<V>>, Hux32s, Hux32u>;
  return convert<W>(a) * convert<W>(b);
}
template <class V>
V mulWords(V a, V b) {
  return a * b;
}
#if defined(__SSE2__) && !defined(__AVX2__)
// Halves of the products, side by side.
inline auto wideProducts(Lanes<Hux16s, 4> a, Lanes<Hux16s, 4> b) {
  const __m128i x = detail::registerOf(a), y = detail::registerOf(b);
  return Lanes<Hux32s, 4>(_mm_unpacklo_epi16(_mm_mullo_epi16(x, y), _mm_mulhi_epi16(x, y)));
}
inline auto wideProducts(Lanes<Hux16u, 4> a, Lanes<Hux16u, 4> b) {
  const __m128i x = detail::registerOf(a), y = detail::registerOf(b);
  return Lanes<Hux32u, 4>(_mm_unpacklo_epi16(_mm_mullo_epi16(x, y), _mm_mulhi_epu16(x, y)));
}
#if !defined(__SSE4_1__)
inline Lanes<Hux32u, 4> mulWords(Lanes<Hux32u, 4> a, Lanes<Hux32u, 4> b) {
  const auto x = __m128i(a), y = __m128i(b);
  return Lanes<Hux32u, 4>(_mm_or_si128(_mm_mullo_epi16(x, y), _mm_slli_epi32(_mm_mulhi_epu16(x, y), 16)));
}
#endif
#endif

namespace detail {
template <class V>
inline constexpr std::size_t kVectors = 1;
template <class V, std::size_t K>
inline constexpr std::size_t kVectors<std::array<V, K>> = K;
}  // namespace detail

// A vector, or an array of vectors that lie one behind the other. (Each for itself: compilers move an array in pieces
// of 16 bytes and by way of memory.)
template <class V>
V loadLanes(const void* p) {
  V v;
  if constexpr (detail::kVectors<V> == 1)
    std::memcpy(&v, p, sizeof v);
  else
    unrolled<int(detail::kVectors<V>)>([&](auto k) HUX_INLINE {
      v[k] = loadLanes<typename V::value_type>(static_cast<const std::byte*>(p) + k * int(sizeof v[0]));
    });
  return v;
}
template <class V>
void storeLanes(void* p, const V& v) {
  if constexpr (detail::kVectors<V> == 1)
    std::memcpy(p, &v, sizeof v);
  else
    unrolled<int(detail::kVectors<V>)>(
        [&](auto k) HUX_INLINE { storeLanes(static_cast<std::byte*>(p) + k * int(sizeof v[0]), v[k]); });
}

#if !defined(__AVX512BW__) || !defined(__AVX512VL__)
// Where loads and stores have no masks, part of a vector is put together in registers, and pixels leave by words: what
// is put together in memory cannot be loaded as a whole without a halt.
namespace detail {

template <class T>
T wordAt(const std::byte* p) {
  T word;
  std::memcpy(&word, p, sizeof word);
  return word;
}

// Word k of a vector.
template <class V>
std::uint64_t wordOf(V v, int k) {
  if constexpr (sizeof(V) < 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, &v, sizeof v);
    return word;
  } else {
    return bitsAs<Lanes<std::uint64_t, int(sizeof(V)) / 8>>(v)[k];
  }
}

// A word whose low bytes come from p and the others are 0; from two words that overlap.
inline std::uint64_t loadWord(const std::byte* p, int bytes) {
  const auto ends = [=]<class T>(T) {
    const int behind = bytes - int(sizeof(T));
    return wordAt<T>(p) | std::uint64_t(wordAt<T>(p + behind)) << (8 * behind);
  };
  if (bytes >= 8) return wordAt<std::uint64_t>(p);
  if (bytes >= 4) return ends(std::uint32_t());
  if (bytes >= 2) return ends(std::uint16_t());
  return bytes == 1 ? std::uint64_t(*p) : 0;
}

// The same of vectors. A call and not inlined: rows end once, and rules are many.
template <int Words>
__attribute__((noinline)) Lanes<std::uint64_t, Words> loadWords(const std::byte* p, int bytes) {
  using V = Lanes<std::uint64_t, Words>;
  if constexpr (Words == 2) {
    if (bytes < 8) return V{loadWord(p, bytes), 0};
    return V{wordAt<std::uint64_t>(p), loadWord(p + 8, bytes - 8)};
  } else {
    using Half = Lanes<std::uint64_t, 2>;
    const Half low = bytes < 16 ? loadWords<2>(p, bytes) : wordAt<Half>(p);
    const Half high = bytes < 16 ? Half{} : loadWords<2>(p + 16, bytes - 16);
    return __builtin_shufflevector(low, high, 0, 1, 2, 3);
  }
}
template <class V>
V loadBytes(const std::byte* p, int bytes) {
  V v{};
  if constexpr (sizeof(V) <= 8) {
    const std::uint64_t word = loadWord(p, bytes);
    std::memcpy(&v, &word, sizeof v);
  } else if constexpr (sizeof(V) <= 32) {
    v = bitsAs<V>(loadWords<int(sizeof(V)) / 8>(p, bytes));
  } else {
    std::memcpy(&v, p, std::size_t(bytes));
  }
  return v;
}

// Stores the first three elements of each of so many pixels of four.
template <class V>
void storeColoursOf(std::byte* p, V v, int pixels) {
  using T = LaneType<V>;
  constexpr int pixelBytes = 4 * int(sizeof(T)), words = std::max(1, int(sizeof(V)) / 8);
  const auto put = [p]<class W>(int at, W word) HUX_INLINE { std::memcpy(p + at, &word, sizeof word); };
  const auto putWord = [=](int k) HUX_INLINE {
    const int at = 8 * k, pixel = at / pixelBytes;
    if (pixel >= pixels) return;
    const std::uint64_t word = wordOf(v, k);
    if constexpr (sizeof(T) == 8) {
      if (k % 4 < 3) put(at, word);
    } else if constexpr (sizeof(T) == 4) {
      if (k % 2 == 0)
        put(at, word);
      else
        put(at, Hux32u(word));
    } else if constexpr (sizeof(T) == 2) {
      put(at, Hux32u(word)), put(at + 4, Hux16u(word >> 32));
    } else {
      put(at, Hux16u(word)), put(at + 2, Hux8u(word >> 16));
      if (pixel + 1 < pixels) put(at + 4, Hux16u(word >> 32)), put(at + 6, Hux8u(word >> 48));
    }
  };
  unrolled<words>(putWord);
}

}  // namespace detail
#endif

// The first `count` lanes; the others hold `rest`. Memory behind the first `count` is not touched.
template <class V>
V loadLanes(const void* p, int count, LaneType<V> rest) {
#if defined(__AVX512BW__) && defined(__AVX512VL__)
  V v = splat<V>(rest);
  const int bytes = count * int(sizeof(LaneType<V>));
  const std::uint64_t mask = bytes < 64 ? (std::uint64_t(1) << bytes) - 1 : ~std::uint64_t(0);
  if constexpr (sizeof(V) == 64) return bitsAs<V>(_mm512_mask_loadu_epi8(bitsAs<__m512i>(v), mask, p));
  if constexpr (sizeof(V) == 32) return bitsAs<V>(_mm256_mask_loadu_epi8(bitsAs<__m256i>(v), __mmask32(mask), p));
  if constexpr (sizeof(V) == 16) return bitsAs<V>(_mm_mask_loadu_epi8(bitsAs<__m128i>(v), __mmask16(mask), p));
  std::memcpy(&v, p, std::size_t(count) * sizeof(LaneType<V>));
  return v;
#else
  const V v = detail::loadBytes<V>(static_cast<const std::byte*>(p), count * int(sizeof(LaneType<V>)));
  using Places = decltype(v < splat<V>(rest));
  const auto places = []<std::size_t... I>(std::index_sequence<I...>) { return Places{LaneType<Places>(I)...}; };
  return places(std::make_index_sequence<lanesIn<V>>{}) < LaneType<Places>(count) ? v : splat<V>(rest);
#endif
}

// Stores the lanes of [0, count) whose position within groups of four is below `Colours` (4: all). What is not stored
// is not read either.
template <int Colours, class V>
void storeColours(void* p, V v, int count = lanesIn<V>) {
  using T = LaneType<V>;
#if defined(__AVX512BW__) && defined(__AVX512VL__)
  if constexpr (Colours == 4) {
    std::memcpy(p, &v, std::size_t(count) * sizeof(T));
  } else {
    static_assert(lanesIn<V> % 4 == 0, "pixels do not lie across vectors");
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
    T lanes[lanesIn<V>];
    std::memcpy(lanes, &v, sizeof v);
    for (int i = 0; i < count; i += 4)
      std::memcpy(static_cast<Element<T>*>(p) + i, lanes + i, std::size_t(Colours) * sizeof(T));
  }
#else
  auto* const to = static_cast<std::byte*>(p);
  if constexpr (Colours == 4) {
    std::memcpy(to, &v, std::size_t(count) * sizeof(T));
  } else {
    static_assert(Colours == 3 && lanesIn<V> % 4 == 0, "pixels do not lie across vectors");
    detail::storeColoursOf(to, v, (count + 3) / 4);
  }
#endif
}

}  // namespace hux
