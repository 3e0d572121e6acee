// The arithmetic of the transforms: what one step of a transform does to the numbers of one lane. Everything is a
// template of the direction and of the vector, so that forward and inverse, and lanes along a row or across columns,
// are the same operations and give the same bits.
#pragma once

#include <utility>

#include "lanes/split.h"

namespace hux::fft {

enum class Way { forward, inverse };

template <class V>
Split<V> operator+(Split<V> a, Split<V> b) {
  return {a.re + b.re, a.im + b.im};
}
template <class V>
Split<V> operator-(Split<V> a, Split<V> b) {
  return {a.re - b.re, a.im - b.im};
}
template <class V>
Split<V> operator*(Split<V> a, Hux32f factor) {
  return {a.re * factor, a.im * factor};
}

// a + t * b and a - t * b, where t is a quarter turn in the direction of the transform: -i forward, i inverse.
template <Way W, class V>
Split<V> addTurned(Split<V> a, Split<V> b) {
  if constexpr (W == Way::forward)
    return {a.re + b.im, a.im - b.re};
  else
    return {a.re - b.im, a.im + b.re};
}
template <Way W, class V>
Split<V> subTurned(Split<V> a, Split<V> b) {
  return addTurned < W == Way::forward ? Way::inverse : Way::forward > (a, b);
}

// z times a factor of a table, which are those of the forward direction.
template <Way W, class V, class F>
Split<V> turned(Split<V> z, Split<F> w) {
  if constexpr (W == Way::forward)
    return {z.re * w.re - z.im * w.im, z.re * w.im + z.im * w.re};
  else
    return {z.re * w.re + z.im * w.im, z.im * w.re - z.re * w.im};
}

// z turned by K sixteenths of the circle.
template <Way W, int K, class V>
Split<V> turnedBySixteenths(Split<V> z) {
  constexpr Hux32f half = 0.70710678118654752f, c = 0.92387953251128676f, s = 0.38268343236508977f;
  if constexpr (K == 0) {
    return z;
  } else if constexpr (K == 2) {
    if constexpr (W == Way::forward)
      return Split<V>{z.re + z.im, z.im - z.re} * half;
    else
      return Split<V>{z.re - z.im, z.im + z.re} * half;
  } else if constexpr (K == 6) {
    if constexpr (W == Way::forward)
      return {(z.im - z.re) * half, (z.re + z.im) * -half};
    else
      return {(z.re + z.im) * -half, (z.re - z.im) * half};
  } else {
    static_assert(K == 1 || K == 3 || K == 9);
    return turned<W>(z, K == 1 ? Split<Hux32f>{c, -s} : K == 3 ? Split<Hux32f>{s, -c} : Split<Hux32f>{-c, s});
  }
}

// No scaling, or a factor.
struct Unscaled {
  template <class Z>
  Z operator()(Z z) const {
    return z;
  }
};
struct Scaled {
  Hux32f factor;
  template <class Z>
  Z operator()(Z z) const {
    return z * factor;
  }
};

// Four transforms become one of four times the length. They come in the order in which decimation in time leaves them:
// of the numbers 0, 2, 1, 3 modulo 4. `scale` is applied to the first sums. With QuarterTurn, b is turned by a quarter
// first.
template <Way W, bool QuarterTurn = false, class V, class Scale = Unscaled>
HUX_INLINE inline void radix4(Split<V>& a, Split<V>& b, Split<V>& c, Split<V>& d, Scale scale = {}) {
  const Split<V> p = scale(QuarterTurn ? addTurned<W>(a, b) : a + b),
                 q = scale(QuarterTurn ? subTurned<W>(a, b) : a - b);
  const Split<V> r = scale(c + d), s = scale(c - d);
  a = p + r, c = p - r;
  b = addTurned<W>(q, s), d = subTurned<W>(q, s);
}

// The transform of 4, 8 or 16 numbers in bit-reversed order by the passes of the long ones: radix 4, then radix 2 or
// radix 4.
template <Way W, int N, class V, class Scale = Unscaled>
HUX_INLINE inline void kernel(Split<V> (&z)[N], Scale scale = {}) {
  for (int i = 0; i < N; i += 4) radix4<W>(z[i], z[i + 1], z[i + 2], z[i + 3], scale);
  if constexpr (N == 8)
    unrolled<4>([&](auto j) {
      const Split<V> a = z[j];
      if constexpr (j == 2) {
        const Split<V> b = z[j + 4];
        z[j] = addTurned<W>(a, b), z[j + 4] = subTurned<W>(a, b);
      } else {
        const Split<V> b = turnedBySixteenths<W, 2 * j>(z[j + 4]);
        z[j] = a + b, z[j + 4] = a - b;
      }
    });
  if constexpr (N == 16)
    unrolled<4>([&](auto j) {
      if constexpr (j != 2) z[4 + j] = turnedBySixteenths<W, 2 * j>(z[4 + j]);
      z[8 + j] = turnedBySixteenths<W, j>(z[8 + j]);
      z[12 + j] = turnedBySixteenths<W, 3 * j>(z[12 + j]);
      radix4<W, j == 2>(z[j], z[4 + j], z[8 + j], z[12 + j]);
    });
}

constexpr Index reversed(Index i, int bits) {
  Index r = 0;
  for (int b = 0; b < bits; ++b) r = r << 1 | (i >> b & 1);
  return r;
}

}  // namespace hux::fft
