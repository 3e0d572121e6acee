// Groups of pixels as planes and back, and in reverse, by interleaving and packing elements: for machines that cannot
// permute bytes freely.
#pragma once

#include "lanes/interleave.h"
#include "lanes/simd.h"

namespace hux::simd {

template <int Bytes>
using WordOf = std::conditional_t<
    Bytes == 1, std::uint8_t,
    std::conditional_t<Bytes == 2, std::uint16_t, std::conditional_t<Bytes == 4, std::uint32_t, std::uint64_t>>>;
template <int Bytes>
using WordsOf = Lanes<WordOf<Bytes>, 16 / Bytes>;

// So many bytes at p, over and over.
template <int Bytes>
Quad repeated(const void* p) {
  if constexpr (Bytes == 16) {
    return loadLanes<Quad>(p);
  } else {
    WordOf<Bytes> word;
    std::memcpy(&word, p, sizeof word);
    return Quad(splat<WordsOf<Bytes>>(word));
  }
}

// The elements of two vectors that stand at even (0) or odd (1) places: those of a at places of A, those of b of B.
template <int Bytes, int A, int B>
Quad everySecond(Quad a, Quad b) {
  using Words = WordsOf<Bytes>;
#if defined(__SSE2__)
  if constexpr (Bytes == 1) {
    const auto words = [](Quad v, int odd) {
      return odd ? _mm_srli_epi16(__m128i(v), 8) : _mm_and_si128(__m128i(v), _mm_set1_epi16(0xff));
    };
    return Quad(_mm_packus_epi16(words(a, A), words(b, B)));
  } else if constexpr (Bytes == 2) {
    // In each half the even ones first; then these are pairs of a known place.
    const auto sorted = [](Quad v) {
      return WordsOf<4>(_mm_shufflehi_epi16(_mm_shufflelo_epi16(__m128i(v), 0xd8), 0xd8));
    };
    return Quad(__builtin_shufflevector(sorted(a), sorted(b), A, A + 2, B + 4, B + 6));
  }
#endif
  constexpr int n = 16 / Bytes;
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return Quad(__builtin_shufflevector(Words(a), Words(b), (2 * int(I) + (int(I) < n / 2 ? A : B))...));
  }
  (std::make_index_sequence<std::size_t(n)>{});
}

// In N vectors, element i of the first half of all and element i of the second half side by side; and back.
template <int Bytes, std::size_t N>
void interleaveHalves(Quad (&v)[N]) {
  if constexpr (N == 3) {
    using Halves = WordsOf<8>;
    const auto swapped = [](Quad q) { return Quad(__builtin_shufflevector(Halves(q), Halves(q), 1, 0)); };
    const Quad a = v[0], b = swapped(v[1]), c = v[2];
    v[0] = zip<Bytes, false>(a, b), v[1] = zip<Bytes, true>(a, swapped(c)), v[2] = zip<Bytes, true>(b, c);
  } else {
    Quad t[N];
    for (std::size_t i = 0; i < N / 2; ++i) {
      t[2 * i] = zip<Bytes, false>(v[i], v[i + N / 2]);
      t[2 * i + 1] = zip<Bytes, true>(v[i], v[i + N / 2]);
    }
    for (std::size_t i = 0; i < N; ++i) v[i] = t[i];
  }
}
template <int Bytes>
void partHalves(Quad (&v)[3]) {
  const Quad a = v[0], b = v[1], c = v[2];
  v[0] = everySecond<Bytes, 0, 0>(a, b), v[1] = everySecond<Bytes, 0, 1>(c, a), v[2] = everySecond<Bytes, 1, 1>(b, c);
}

// N vectors of pixels of N elements, as a vector for each of the channels; and back. Each step doubles the distance of
// neighbours, or halves it, in a circle: as many steps as lead to the other arrangement.
template <int Bytes, std::size_t N>
void toPlanes(Quad (&v)[N]) {
  for (int pixels = 16 / Bytes; pixels > 1; pixels /= 2) interleaveHalves<Bytes>(v);
}
template <int Bytes, std::size_t N>
void fromPlanes(Quad (&v)[N]) {
  if constexpr (N == 3) {
    for (int pixels = 16 / Bytes; pixels > 1; pixels /= 2) partHalves<Bytes>(v);
  } else {
    static_assert(N == 2 || N == 4);
    for (std::size_t n = N; n > 1; n /= 2) interleaveHalves<Bytes>(v);
  }
}

// The elements of a vector last one first.
template <int Bytes>
Quad reversed(Quad v) {
  if constexpr (Bytes == 16) {
    return v;
  } else if constexpr (Bytes == 8) {
    return Quad(__builtin_shufflevector(WordsOf<8>(v), WordsOf<8>(v), 1, 0));
  } else if constexpr (Bytes == 4) {
    return Quad(__builtin_shufflevector(WordsOf<4>(v), WordsOf<4>(v), 3, 2, 1, 0));
  } else if constexpr (Bytes == 2) {
#if defined(__SSE2__)
    const __m128i halves = _mm_shufflehi_epi16(_mm_shufflelo_epi16(__m128i(v), 0x1b), 0x1b);
    return reversed<8>(Quad(halves));
#else
    return Quad(__builtin_shufflevector(WordsOf<2>(v), WordsOf<2>(v), 7, 6, 5, 4, 3, 2, 1, 0));
#endif
  } else {
    const auto words = WordsOf<2>(reversed<2>(v));
    return Quad(words << 8 | words >> 8);
  }
}

}  // namespace hux::simd
