// Groups of pixels as planes and back, and in reverse, by interleaving and packing elements, or by picking bytes where
// the machine can do that within 16 of them.
#pragma once

#include "lanes/interleave.h"
#include "lanes/simd.h"
#include "lanes/windows.h"

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
template <int Bytes, class V, std::size_t N>
void interleaveHalves(V (&v)[N]) {
  if constexpr (N == 3) {
    using Halves = WordsOf<8>;
    const auto swapped = [](Quad q) { return Quad(__builtin_shufflevector(Halves(q), Halves(q), 1, 0)); };
    const Quad a = v[0], b = swapped(v[1]), c = v[2];
    v[0] = zip<Bytes, false>(a, b), v[1] = zip<Bytes, true>(a, swapped(c)), v[2] = zip<Bytes, true>(b, c);
  } else {
    V t[N];
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

namespace detail {

// In each window, byte j is the byte of it that Source tells for j.
template <class Source>
WindowBytes picked(WindowBytes v, Source) {
  static constexpr auto pick = [] {
    std::array<Hux8u, sizeof v> all{};
    for (std::size_t j = 0; j < sizeof v; ++j) all[j] = Hux8u(Source()(int(j % 16)));
    return all;
  }();
  return pickBytes(v, loadLanes<WindowBytes>(pick.data()));
}

// Element i of each window is that of the vector that From tells for i.
template <int Bytes, class From>
WindowBytes chosen(const WindowBytes (&v)[3], From) {
  constexpr int inWindow = 16 / Bytes, all = int(sizeof v[0]) / Bytes;
  using Words = Lanes<WordOf<Bytes>, all>;
  const auto replaced = [&]<int K, std::size_t... I>(std::integral_constant<int, K>, Words a,
                                                     std::index_sequence<I...>) {
    return Words(__builtin_shufflevector(a, Words(v[K]), (int(I) + (From()(int(I) % inWindow) == K ? all : 0))...));
  };
  constexpr auto lanes = std::make_index_sequence<std::size_t(all)>{};
  const Words two = replaced(std::integral_constant<int, 1>{}, Words(v[0]), lanes);
  return WindowBytes(replaced(std::integral_constant<int, 2>{}, two, lanes));
}

// Of three elements to a pixel, those of one channel stand at places that differ from window to window, and cover all:
// they are chosen first and then picked; and back.
template <int Bytes>
void partThirds(WindowBytes (&v)[3]) {
  constexpr int n = 16 / Bytes;
  WindowBytes plane[3];
  unrolled<3>([&](auto channel) HUX_INLINE {
    constexpr int c = channel;
    plane[c] = picked(chosen<Bytes>(v, [](int i) { return (3 * n + c - i) * n % 3; }),
                      [](int j) { return (3 * (j / Bytes) + c) % n * Bytes + j % Bytes; });
  });
  for (int c = 0; c < 3; ++c) v[c] = plane[c];
}
template <int Bytes>
void interleaveThirds(WindowBytes (&v)[3]) {
  constexpr int n = 16 / Bytes;
  unrolled<3>([&](auto channel) HUX_INLINE {
    constexpr int c = channel;
    v[c] = picked(v[c], [](int j) {
      int i = 0;
      while ((3 * i + c) % n != j / Bytes) ++i;
      return i * Bytes + j % Bytes;
    });
  });
  WindowBytes pixels[3];
  unrolled<3>([&](auto vector) HUX_INLINE {
    constexpr int k = vector;
    pixels[k] = chosen<Bytes>(v, [](int i) { return (n * k + i) % 3; });
  });
  for (int k = 0; k < 3; ++k) v[k] = pixels[k];
}

}  // namespace detail

// Moves channels within pixels of three elements, in an order known at run time: channel c becomes that of number
// from[c].
template <int Bytes>
class ThirdsInOrder {
 public:
  explicit ThirdsInOrder(const int (&from)[3]) {
    for (int c = 0; c < 3; ++c)
      for (int j = 0; j < kLaneBytes; ++j) {
        const int place = j % 16 / Bytes, vector = (3 * n + from[c] - place) * n % 3;
        for (int k = 1; k < 3; ++k) inVector_[c][k - 1][j] = vector == k ? 0xff : 0;
        // Of a channel, neighbours are three places apart, in a circle.
        pick_[c][j] = Hux8u((place + from[c] - c + n) % n * Bytes + j % Bytes);
      }
  }
  void operator()(WindowBytes (&v)[3]) const {
    WindowBytes plane[3];
    unrolled<3>([&](auto c) HUX_INLINE {
      plane[c] = pickBytes(eitherBytes(eitherBytes(v[0], v[1], inVector_[c][0]), v[2], inVector_[c][1]), pick_[c]);
    });
    unrolled<3>([&](auto vector) HUX_INLINE {
      constexpr int k = vector;
      v[k] = detail::chosen<Bytes>(plane, [](int i) { return (n * k + i) % 3; });
    });
  }

 private:
  static constexpr int n = 16 / Bytes;
  WindowBytes inVector_[3][2], pick_[3];
};

// N vectors of pixels of N elements, as a vector for each of the channels; and back. Where bytes are picked freely,
// each window of 16 bytes is by itself, and with the same window of the other vectors holds pixels in order. Else each
// step doubles the distance of neighbours, or halves it, in a circle: as many steps as lead to the other arrangement.
template <int Bytes, class V, std::size_t N>
void toPlanes(V (&v)[N]) {
  if constexpr (kPicks && std::is_same_v<V, WindowBytes> && N == 3) {
    detail::partThirds<Bytes>(v);
  } else if constexpr (kPicks && std::is_same_v<V, WindowBytes> && N == 4) {
    // Elements of a channel side by side, as many as four bytes hold; then squares of these.
    if constexpr (Bytes < 4)
      for (V& one : v)
        one = detail::picked(one, [](int j) { return j % 4 / Bytes * 4 * Bytes + j / 4 * Bytes + j % Bytes; });
    interleaveHalves<4>(v);
    interleaveHalves<4>(v);
  } else {
    for (int pixels = 16 / Bytes; pixels > 1; pixels /= 2) interleaveHalves<Bytes>(v);
  }
}
template <int Bytes, class V, std::size_t N>
void fromPlanes(V (&v)[N]) {
  if constexpr (kPicks && std::is_same_v<V, WindowBytes> && N == 3) {
    detail::interleaveThirds<Bytes>(v);
  } else if constexpr (N == 3) {
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
