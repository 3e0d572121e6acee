// Complex numbers in lanes: the real parts of several in one vector and the imaginary parts in another.
//
// Parting complex numbers as they lie in memory is fastest where no element leaves its half of the register, and that
// gives an order of the lanes of its own: lane l of V holds the complex number heldBy<V>(l). Nobody needs to know it
// who loads and stores by the functions here; tables that are to meet such lanes are brought into the order by them as
// well. A plain float is a vector of one lane.
#pragma once

#include <array>
#include <utility>

#include "lanes/lanes.h"
#include "lanes/unrolled.h"

namespace hux {

template <class V>
struct Split {
  V re, im;
};

template <class V>
inline constexpr int splitLanes = lanesIn<V>;
template <>
inline constexpr int splitLanes<Hux32f> = 1;

// The vectors of the transforms. They stop at 8 lanes, for the shortest runs of a transform have 8 elements.
inline constexpr int kSplitLanes = std::min(laneCount<Hux32f>, 8);
using SplitLanes = Lanes<Hux32f, kSplitLanes>;

template <class V>
constexpr int heldBy(int lane) {
  return splitLanes<V> == 8 ? (lane & 1) | (lane & 2) << 1 | (lane & 4) >> 1 : lane;
}
// The lane of an element: the order is its own inverse.
template <class V>
constexpr int laneOf(int element) {
  return heldBy<V>(element);
}

// Two vectors of complex numbers as they lie in memory, in parts, and back.
template <class V>
Split<V> partSplit(V a, V b) {
  if constexpr (splitLanes<V> == 8)
    return {__builtin_shufflevector(a, b, 0, 2, 8, 10, 4, 6, 12, 14),
            __builtin_shufflevector(a, b, 1, 3, 9, 11, 5, 7, 13, 15)};
  else
    return {__builtin_shufflevector(a, b, 0, 2, 4, 6), __builtin_shufflevector(a, b, 1, 3, 5, 7)};
}
template <class V>
std::pair<V, V> joinSplit(Split<V> z) {
  if constexpr (splitLanes<V> == 8)
    return {__builtin_shufflevector(z.re, z.im, 0, 8, 1, 9, 4, 12, 5, 13),
            __builtin_shufflevector(z.re, z.im, 2, 10, 3, 11, 6, 14, 7, 15)};
  else
    return {__builtin_shufflevector(z.re, z.im, 0, 4, 1, 5), __builtin_shufflevector(z.re, z.im, 2, 6, 3, 7)};
}

// From complex numbers in memory, and back.
template <class V>
Split<V> loadSplit(const void* p) {
  if constexpr (splitLanes<V> == 1) {
    const auto* z = static_cast<const Element<Hux32f>*>(p);
    return {z[0], z[1]};
  } else {
    return partSplit(loadLanes<V>(p), loadLanes<V>(static_cast<const std::byte*>(p) + sizeof(V)));
  }
}
template <class V>
void storeSplit(void* p, Split<V> z) {
  if constexpr (splitLanes<V> == 1) {
    auto* to = static_cast<Element<Hux32f>*>(p);
    to[0] = z.re, to[1] = z.im;
  } else {
    const auto [a, b] = joinSplit(z);
    storeLanes(p, a);
    storeLanes(static_cast<std::byte*>(p) + sizeof(V), b);
  }
}

// Real numbers, to the lanes of the complex numbers in their places.
template <class V>
V loadReals(const Hux32f* p) {
  const V v = loadLanes<V>(p);
  if constexpr (splitLanes<V> == 8)
    return __builtin_shufflevector(v, v, 0, 1, 4, 5, 2, 3, 6, 7);
  else
    return v;
}

// The first `count` of them, fewer than there are lanes; the other lanes hold zeros. Where a vector has eight lanes
// they go by fours, twos and ones, for what is stored piece by piece cannot be loaded as a whole without a halt.
template <class V>
Split<V> loadSplit(const void* p, Index count) {
  if constexpr (splitLanes<V> == 8) {
    using Four = Lanes<Hux64s, 4>;
    using Two = Lanes<Hux64s, 2>;
    const auto* from = static_cast<const std::byte*>(p);
    Four all[2] = {};
    const auto upToThree = [count](const std::byte* q) {
      Four v{};
      if (count & 2) {
        const Two two = loadLanes<Two>(q);
        v = __builtin_shufflevector(two, Two{}, 0, 1, 2, 3);
        if (count & 1) v[2] = loadLanes<Hux64s>(q + 16);
      } else if (count & 1) {
        v[0] = loadLanes<Hux64s>(q);
      }
      return v;
    };
    if (count & 4)
      all[0] = loadLanes<Four>(from), all[1] = upToThree(from + 32);
    else
      all[0] = upToThree(from);
    return partSplit(bitsAs<V>(all[0]), bitsAs<V>(all[1]));
  } else {
    Hux32fc numbers[splitLanes<V>] = {};
    std::memcpy(numbers, p, std::size_t(count) * sizeof(Hux32fc));
    return loadSplit<V>(numbers);
  }
}
template <class V>
void storeSplit(void* p, Split<V> z, Index count) {
  if constexpr (splitLanes<V> == 8) {
    using Four = Lanes<Hux64s, 4>;
    auto* to = static_cast<std::byte*>(p);
    const auto [a, b] = joinSplit(z);
    Four v = bitsAs<Four>(a);
    if (count & 4) {
      storeLanes(to, v);
      to += 32, v = bitsAs<Four>(b);
    }
    if (count & 2) {
      storeLanes(to, Lanes<Hux64s, 2>(__builtin_shufflevector(v, v, 0, 1)));
      to += 16, v = __builtin_shufflevector(v, v, 2, 3, 2, 3);
    }
    if (count & 1) storeLanes(to, Hux64s(v[0]));
  } else {
    Hux32fc numbers[splitLanes<V>];
    storeSplit(numbers, z);
    std::memcpy(p, numbers, std::size_t(count) * sizeof(Hux32fc));
  }
}

// The lanes as they are, real parts first: how data lie between passes, and tables.
template <class V>
Split<V> loadParted(const Hux32f* p) {
  return {loadLanes<V>(p), loadLanes<V>(p + splitLanes<V>)};
}
template <class V>
void storeParted(Hux32f* p, Split<V> z) {
  storeLanes(p, z.re);
  storeLanes(p + splitLanes<V>, z.im);
}

// The same elements in the opposite order.
template <class V>
V mirrored(V v) {
  if constexpr (splitLanes<V> == 8)
    return __builtin_shufflevector(v, v, 7, 6, 5, 4, 3, 2, 1, 0);
  else
    return __builtin_shufflevector(v, v, 3, 2, 1, 0);
}
template <class V>
Split<V> mirrored(Split<V> z) {
  return {mirrored(z.re), mirrored(z.im)};
}

// A square of lanes about its diagonal.
template <class V>
HUX_INLINE inline void transposeSquare(V (&r)[splitLanes<V>]) {
  if constexpr (splitLanes<V> == 8) {
    V t[8], u[8];
    for (int i = 0; i < 8; i += 2) {
      t[i] = __builtin_shufflevector(r[i], r[i + 1], 0, 8, 1, 9, 4, 12, 5, 13);
      t[i + 1] = __builtin_shufflevector(r[i], r[i + 1], 2, 10, 3, 11, 6, 14, 7, 15);
    }
    for (int i = 0; i < 8; i += 4)
      for (int k = 0; k < 2; ++k) {
        u[i + 2 * k] = __builtin_shufflevector(t[i + k], t[i + k + 2], 0, 1, 8, 9, 4, 5, 12, 13);
        u[i + 2 * k + 1] = __builtin_shufflevector(t[i + k], t[i + k + 2], 2, 3, 10, 11, 6, 7, 14, 15);
      }
    for (int i = 0; i < 4; ++i) {
      r[i] = __builtin_shufflevector(u[i], u[i + 4], 0, 1, 2, 3, 8, 9, 10, 11);
      r[i + 4] = __builtin_shufflevector(u[i], u[i + 4], 4, 5, 6, 7, 12, 13, 14, 15);
    }
  } else {
    const V a = __builtin_shufflevector(r[0], r[1], 0, 4, 1, 5), b = __builtin_shufflevector(r[0], r[1], 2, 6, 3, 7);
    const V c = __builtin_shufflevector(r[2], r[3], 0, 4, 1, 5), d = __builtin_shufflevector(r[2], r[3], 2, 6, 3, 7);
    r[0] = __builtin_shufflevector(a, c, 0, 1, 4, 5), r[1] = __builtin_shufflevector(a, c, 2, 3, 6, 7);
    r[2] = __builtin_shufflevector(b, d, 0, 1, 4, 5), r[3] = __builtin_shufflevector(b, d, 2, 3, 6, 7);
  }
}

// Vectors of two halves, which hold four numbers each, of vectors of 8 lanes: complex numbers from memory, all of them
// in their own order; the low or the high halves of two vectors; the low half of one and the high half of the other.
template <class V>
Split<V> loadHalves(const Hux32fc* p) {
  const V a = loadLanes<V>(p), b = loadLanes<V>(p + 4);
  return partSplit(V(__builtin_shufflevector(a, b, 0, 1, 2, 3, 8, 9, 10, 11)),
                   V(__builtin_shufflevector(a, b, 4, 5, 6, 7, 12, 13, 14, 15)));
}
template <bool High, class V>
V sameHalves(V a, V b) {
  if constexpr (High)
    return __builtin_shufflevector(a, b, 4, 5, 6, 7, 12, 13, 14, 15);
  else
    return __builtin_shufflevector(a, b, 0, 1, 2, 3, 8, 9, 10, 11);
}
template <class V>
V ownHalves(V low, V high) {
  return __builtin_shufflevector(low, high, 0, 1, 2, 3, 12, 13, 14, 15);
}

// The squares that the low and the high halves of four vectors are, about their diagonals.
template <class V>
HUX_INLINE inline void transposeHalves(V (&r)[4]) {
  const V a = __builtin_shufflevector(r[0], r[1], 0, 8, 1, 9, 4, 12, 5, 13),
          b = __builtin_shufflevector(r[0], r[1], 2, 10, 3, 11, 6, 14, 7, 15),
          c = __builtin_shufflevector(r[2], r[3], 0, 8, 1, 9, 4, 12, 5, 13),
          d = __builtin_shufflevector(r[2], r[3], 2, 10, 3, 11, 6, 14, 7, 15);
  r[0] = __builtin_shufflevector(a, c, 0, 1, 8, 9, 4, 5, 12, 13);
  r[1] = __builtin_shufflevector(a, c, 2, 3, 10, 11, 6, 7, 14, 15);
  r[2] = __builtin_shufflevector(b, d, 0, 1, 8, 9, 4, 5, 12, 13);
  r[3] = __builtin_shufflevector(b, d, 2, 3, 10, 11, 6, 7, 14, 15);
}

// Turns four rows of 8 complex numbers: dst[column] takes that number of each row.
inline void turnColumns(const Hux32fc* const (&rows)[4], Hux32fc* const (&dst)[8]) {
  if constexpr (kSplitLanes == 8) {
    using Pairs = Lanes<Hux64s, 4>;  // only bits move
    for (int c = 0; c < 8; c += 4) {
      Pairs r[4];
      for (int i = 0; i < 4; ++i) r[i] = loadLanes<Pairs>(rows[i] + c);
      const Pairs a = __builtin_shufflevector(r[0], r[1], 0, 4, 2, 6),
                  b = __builtin_shufflevector(r[0], r[1], 1, 5, 3, 7);
      const Pairs d = __builtin_shufflevector(r[2], r[3], 0, 4, 2, 6),
                  e = __builtin_shufflevector(r[2], r[3], 1, 5, 3, 7);
      storeLanes(dst[c], Pairs(__builtin_shufflevector(a, d, 0, 1, 4, 5)));
      storeLanes(dst[c + 1], Pairs(__builtin_shufflevector(b, e, 0, 1, 4, 5)));
      storeLanes(dst[c + 2], Pairs(__builtin_shufflevector(a, d, 2, 3, 6, 7)));
      storeLanes(dst[c + 3], Pairs(__builtin_shufflevector(b, e, 2, 3, 6, 7)));
    }
  } else {
    for (int c = 0; c < 8; ++c)
      for (int i = 0; i < 4; ++i) std::memcpy(dst[c] + i, rows[i] + c, sizeof(Hux32fc));
  }
}

}  // namespace hux
