// The one place that knows vector registers. Everything here has a meaning in bytes that no architecture level changes;
// what a level lacks is told by the constants below, and callers then take their plain loop.
#pragma once

#include <cstdint>
#include <cstring>
#include <utility>

#include "core/rows.h"
#include "lanes/registers.h"

namespace hux::simd {

// Width of a vector in bytes: the widest in which the machine permutes bytes freely; 16 where nothing better is known.
#if defined(__AVX512VBMI__) && defined(__AVX512BW__) && defined(__AVX512VL__)
inline constexpr int kBytes = 64;
#else
inline constexpr int kBytes = 16;
#endif

// Whether permuting bytes is one instruction and not a loop in disguise.
#if defined(__SSSE3__) || defined(__aarch64__)
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

// One bit for each of 64 bytes, lowest first: whether it is not 0.
inline std::uint64_t nonZeroBytes(const void* p) {
#if defined(__AVX2__)
  const auto zeros = [](const void* q) {
    const __m256i bytes = _mm256_loadu_si256(static_cast<const __m256i*>(q));
    return std::uint64_t(std::uint32_t(_mm256_movemask_epi8(_mm256_cmpeq_epi8(bytes, _mm256_setzero_si256()))));
  };
  return ~(zeros(p) | zeros(static_cast<const std::byte*>(p) + 32) << 32);
#elif defined(__SSE2__)
  std::uint64_t zeros = 0;
  for (int i = 0; i < 4; ++i) {
    const __m128i bytes = _mm_loadu_si128(static_cast<const __m128i*>(p) + i);
    zeros |= std::uint64_t(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_setzero_si128()))) << (16 * i);
  }
  return ~zeros;
#else
  std::uint64_t bits = 0;
  for (int i = 0; i < 8; ++i) {
    std::uint64_t word;
    std::memcpy(&word, static_cast<const std::byte*>(p) + 8 * i, sizeof word);
    // The top bit of each byte says that the byte is not 0; the product gathers the eight of them.
    word = (((word & 0x7f7f7f7f7f7f7f7f) + 0x7f7f7f7f7f7f7f7f) | word) & 0x8080808080808080;
    bits |= ((word >> 7) * 0x0102040810204080 >> 56) << (8 * i);
  }
  return bits;
#endif
}

// Copies bytes between places that lie apart: a few, whose number no branch predictor knows, in as few steps as can be.
inline void copyFew(void* to, const void* from, Index bytes) {
  auto* const d = static_cast<std::byte*>(to);
  auto* const s = static_cast<const std::byte*>(from);
  // From both ends, which meet or overlap.
  const auto ends = [&]<class T>(T) {
    T first, last;
    const Index behind = bytes - Index(sizeof(T));
    std::memcpy(&first, s, sizeof(T)), std::memcpy(&last, s + behind, sizeof(T));
    std::memcpy(d, &first, sizeof(T)), std::memcpy(d + behind, &last, sizeof(T));
  };
  typedef std::uint8_t Part __attribute__((vector_size(16)));
  if (bytes > 32) {
    for (Index i = 0; i + 16 < bytes; i += 16) std::memcpy(d + i, s + i, 16);
    std::memcpy(d + bytes - 16, s + bytes - 16, 16);
  } else if (bytes >= 16) {
    ends(Part{});
  } else if (bytes >= 8) {
    ends(std::uint64_t());
  } else if (bytes >= 4) {
    ends(std::uint32_t());
  } else if (bytes >= 2) {
    ends(std::uint16_t());
  } else if (bytes == 1) {
    *d = *s;
  }
}

// Streaming: stores that go past the cache. An ordinary store first reads the line that it is about to overwrite, which
// a region that does not stay in the cache need not pay for; where it would stay, streaming takes it away from whoever
// reads it next. So the size of the work decides, once for each call: Streaming is made from the bytes that a call
// reads and writes, and lives until its last store.
#if defined(__SSE2__)
inline constexpr bool kStreams = true;
template <class V>
void stream(void* aligned, V v) {
#if defined(__AVX512F__)
  if constexpr (sizeof(V) == 64) return _mm512_stream_si512(static_cast<__m512i*>(aligned), __m512i(v));
#endif
#if defined(__AVX__)
  if constexpr (sizeof(V) == 32) return _mm256_stream_si256(static_cast<__m256i*>(aligned), __m256i(v));
#endif
  if constexpr (sizeof(V) == 16) _mm_stream_si128(static_cast<__m128i*>(aligned), __m128i(v));
}
inline void endStreams() { _mm_sfence(); }
#else
inline constexpr bool kStreams = false;
template <class V>
void stream(void* aligned, V v) {
  std::memcpy(aligned, &v, sizeof v);
}
inline void endStreams() {}
#endif

// The bytes that a walk over a region moves in or out by one operand.
template <class Operand>
Index traffic(HuxiSize roi, const Operand& operand) {
  return area(roi) * operand.pixelBytes;
}

class Streaming {
 public:
  static constexpr Index kLeast = 40 << 20;  // a little above the last-level cache of a large processor

  template <class... Operands>
  explicit Streaming(HuxiSize roi, const Operands&... operands) : Streaming((traffic(roi, operands) + ...)) {}
  explicit Streaming(Index bytes) : on_(kStreams && bytes >= kLeast) {}
  Streaming(const Streaming&) = delete;
  ~Streaming() {
    if (on_) endStreams();  // streams are ordered with nothing else
  }
  operator bool() const { return on_; }

 private:
  bool on_;
};

// Pixels to pass from p on until one starts at a boundary, such as that of a vector, where streams start; -1 where none
// does. A pixel is a power of two bytes or three times that.
inline Index pixelsToBoundary(const void* p, int pixelBytes, Index boundary = kBytes) {
  const auto bytes = Index(-reinterpret_cast<std::uintptr_t>(p) % std::uintptr_t(boundary));
  const Index power = pixelBytes & -pixelBytes, inverseOf3 = 43;  // modulo 64
  if (bytes % power != 0) return -1;
  return bytes / power * (pixelBytes == power ? 1 : inverseOf3) % (boundary / power);
}

// permuteBy(a, b, index): byte j of the result is byte index[j] of a and b laid end to end. Where kPermutes holds. For
// indices that stay the same, PermuteBy(index)(a, b) is the same at less cost.
#if defined(__AVX512VBMI__) && defined(__AVX512BW__) && defined(__AVX512VL__)
inline Vec permuteBy(Vec a, Vec b, Vec index) {
  return Vec(_mm512_permutex2var_epi8(__m512i(a), __m512i(index), __m512i(b)));
}
#elif defined(__SSSE3__)
inline Vec permuteBy(Vec a, Vec b, Vec index) {
  const Vec inA = Vec(index < kBytes);  // a shuffle clears bytes whose index has the top bit set
  return Vec(_mm_shuffle_epi8(__m128i(a), __m128i(index | ~inA))) |
         Vec(_mm_shuffle_epi8(__m128i(b), __m128i((index - kBytes) | inA)));
}
#elif defined(__aarch64__)
inline Vec permuteBy(Vec a, Vec b, Vec index) {
  return Vec(vqtbl2q_u8({{uint8x16_t(a), uint8x16_t(b)}}, uint8x16_t(index)));
}
#else
inline Vec permuteBy(Vec a, Vec b, Vec index) {
  Vec v{};
  for (int j = 0; j < kBytes; ++j) v[j] = index[j] < kBytes ? a[index[j]] : b[index[j] - kBytes];
  return v;
}
#endif

#if defined(__SSSE3__) && !(defined(__AVX512VBMI__) && defined(__AVX512BW__) && defined(__AVX512VL__))
class PermuteBy {
 public:
  PermuteBy() = default;
  explicit PermuteBy(Vec index) {
    const Vec inA = Vec(index < kBytes);
    fromA_ = index | ~inA, fromB_ = (index - kBytes) | inA;
  }
  Vec operator()(Vec a, Vec b) const {
    return Vec(_mm_shuffle_epi8(__m128i(a), __m128i(fromA_))) | Vec(_mm_shuffle_epi8(__m128i(b), __m128i(fromB_)));
  }

 private:
  Vec fromA_, fromB_;
};
#else
class PermuteBy {
 public:
  PermuteBy() = default;
  explicit PermuteBy(Vec index) : index_(index) {}
  Vec operator()(Vec a, Vec b) const { return permuteBy(a, b, index_); }

 private:
  Vec index_;
};
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

// Lanes of 16 bytes, within which interleaving is one instruction on every machine.
typedef std::uint8_t Quad __attribute__((vector_size(16)));

// The widest vector of such lanes.
#if defined(__AVX2__)
typedef std::uint8_t Quads __attribute__((vector_size(kBytes == 64 ? 64 : 32)));
#else
using Quads = Quad;
#endif

// In each lane, the low or the high halves of a and b interleaved, in elements of ElementBytes. The shuffle is written
// in elements, in which compilers know the instruction.
template <int ElementBytes, bool High, class V>
V zip(V a, V b) {
  using E = std::conditional_t<ElementBytes == 1, std::uint8_t,
                               std::conditional_t<ElementBytes == 2, std::uint16_t,
                                                  std::conditional_t<ElementBytes == 4, std::uint32_t, std::uint64_t>>>;
  typedef E Elements __attribute__((vector_size(sizeof(V))));
  constexpr int lane = 16 / ElementBytes, all = int(sizeof(V)) / ElementBytes;
  return [&]<std::size_t... J>(std::index_sequence<J...>) {
    return V(__builtin_shufflevector(
        Elements(a), Elements(b),
        (int(J) / lane * lane + int(J) % lane / 2 + (High ? lane / 2 : 0) + (int(J) % 2 ? all : 0))...));
  }
  (std::make_index_sequence<std::size_t(all)>{});
}

// A vector whose lanes come from p, p + step, ...
template <class V>
V loadQuads(const std::byte* p, Index step) {
  const auto lane = [&](Index i) {
    Quad q;
    std::memcpy(&q, p + i * step, sizeof q);
    return q;
  };
#if defined(__AVX512BW__) && defined(__AVX512VL__)
  if constexpr (sizeof(V) == 64) {
    __m512i v = _mm512_castsi128_si512(__m128i(lane(0)));
    v = _mm512_inserti32x4(v, __m128i(lane(1)), 1);
    v = _mm512_inserti32x4(v, __m128i(lane(2)), 2);
    return V(_mm512_inserti32x4(v, __m128i(lane(3)), 3));
  }
#endif
#if defined(__AVX2__)
  if constexpr (sizeof(V) == 32)
    return V(_mm256_inserti128_si256(_mm256_castsi128_si256(__m128i(lane(0))), __m128i(lane(1)), 1));
#endif
  if constexpr (sizeof(V) == sizeof(Quad)) return lane(0);
}

}  // namespace hux::simd
