// The definitions of complex arithmetic, one element at a time.
#pragma once

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

#include "huxcore.h"
#include "huxdefs.h"
#include "support/image.h"

namespace hux::test {

enum class Op { kAdd, kSub, kMul, kDiv, kAddC, kSubC, kMulC, kDivC };
constexpr bool isConstant(Op op) { return op >= Op::kAddC; }
constexpr Op twoSided(Op op) { return isConstant(op) ? Op(int(op) - 4) : op; }

// Whether a constant is multiplied by its reciprocal where division would do as well.
enum class Way { kDivide, kReciprocal };

template <class C>
using PartOf = decltype(C::re);

// 2^-scaleFactor by doubling or halving.
inline double factorOf(int scaleFactor) {
  double s = 1;
  for (int n = std::clamp(scaleFactor, -2000, 2000); n != 0; n += n < 0 ? 1 : -1) s *= n < 0 ? 2 : 0.5;
  return s;
}

// v * 2^-scaleFactor in unlimited width, ties to even, saturated.
template <class T>
T scaled(__int128 v, int scaleFactor) {
  const __int128 low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  if (scaleFactor > 100) return 0;
  if (scaleFactor > 0) {
    const __int128 floor = v >> scaleFactor, twice = (v - (floor << scaleFactor)) * 2, one = __int128(1) << scaleFactor;
    v = floor + (twice > one || (twice == one && floor % 2 != 0));
  } else {
    v *= __int128(1) << (scaleFactor < -40 ? 40 : -scaleFactor);
  }
  return T(std::clamp(v, low, high));
}

// A double as 16 bits: by its distance from -32768, a half added and truncated, an odd exact result lowered.
inline Hux16s round16(double v) {
  if (!(v >= -32768.0)) return -32768;
  if (v > 32767.0) return 32767;
  const double x = v + 32768.5;
  long i = long(x);
  if (i % 2 != 0 && double(i) == x) --i;
  return Hux16s(i - 32768);
}

// A double as 32 bits: a half is added away from zero.
inline Hux32s round32(double v) {
  if (v >= 2147483647.0) return 2147483647;
  if (!(v > -2147483648.0)) return std::numeric_limits<Hux32s>::min();
  const double x = v + (v < 0 ? -0.5 : 0.5);
  long i = long(x);
  if (i % 2 != 0 && double(i) == x) i += v < 0 ? 1 : -1;
  return Hux32s(i);
}

template <class P, class C>
C product(P a, P b, C y) {
  return {PartOf<C>(a * y.re - b * y.im), PartOf<C>(a * y.im + b * y.re)};
}

// Element y by element x or constant x; a zero divisor raises `warned`.
template <class C>
C reference(Op op, C x, C y, int scaleFactor, Way way, bool& warned) {
  using T = PartOf<C>;
  op = twoSided(op);
  if (op == Op::kDiv) {
    using P = std::conditional_t<sizeof(T) == 4 && std::is_floating_point_v<T>, float, double>;
    const P a = P(x.re), b = P(x.im), c = P(y.re), d = P(y.im), norm = a * a + b * b;
    const bool zero = !(norm < 0) && !(norm > 0);
    warned |= zero;
    const double s = factorOf(scaleFactor);
    if constexpr (std::is_same_v<C, Hux16sc>) {
      if (zero) return {0, 0};
      if (way == Way::kReciprocal) {
        const double k = s / norm, re = a * k, im = -b * k;
        return {round16(c * re - d * im), round16(c * im + d * re)};
      }
      const double k = scaleFactor > 0 ? 1 / norm : s / norm, more = scaleFactor > 0 ? s : 1;
      return {round16((a * c + b * d) * k * more), round16((a * d - b * c) * k * more)};
    } else if constexpr (std::is_same_v<C, Hux32sc>) {
      const double k = 1 / norm;
      Hux64fc q = zero ? Hux64fc{0, 0} : Hux64fc{(a * c + b * d) * k, (a * d - b * c) * k};
      if (way == Way::kReciprocal) q = product(a / norm, -b / norm, Hux64fc{c, d});
      return {round32(q.re * s), round32(q.im * s)};
    } else {
      const T nan = std::numeric_limits<T>::quiet_NaN();
      if (zero) return {nan, nan};
      const P k = P(1) / norm;
      if (way == Way::kReciprocal) return product(P(a * k), P(-b * k), y);
      return {(a * c + b * d) * k, (a * d - b * c) * k};
    }
  } else if constexpr (std::is_integral_v<T>) {
    const __int128 a = x.re, b = x.im, c = y.re, d = y.im;
    __int128 re = op == Op::kAdd ? c + a : op == Op::kSub ? c - a : a * c - b * d;
    __int128 im = op == Op::kAdd ? d + b : op == Op::kSub ? d - b : a * d + b * c;
    // The one product that does not fit a signed integer of twice the width.
    if (op == Op::kMul && im == __int128(1) << (sizeof(T) * 16 - 1)) --im;
    return {scaled<T>(re, scaleFactor), scaled<T>(im, scaleFactor)};
  } else {
    if (op == Op::kMul) return product(x.re, x.im, y);
    return op == Op::kAdd ? C{y.re + x.re, y.im + x.im} : C{y.re - x.re, y.im - x.im};
  }
}

// Parts that meet the ends of their type, small numbers and zeros more often than chance would.
template <class T>
T anyPart(Rng& rng) {
  const int kind = between(rng, 0, 9);
  if constexpr (std::is_integral_v<T>) {
    if (kind < 2)
      return T(kind ? std::numeric_limits<T>::max() - T(rng() % 2) : std::numeric_limits<T>::min() + T(rng() % 2));
    return kind < 5 ? T(between(rng, -40, 40)) : T(T(rng()) >> (rng() % (sizeof(T) * 8)));
  } else {
    constexpr T special[] = {0, -T(0), std::numeric_limits<T>::infinity(), std::numeric_limits<T>::quiet_NaN(),
                             T(1e-38)};
    if (kind < 1) return special[rng() % 5];
    return kind < 3 ? T(between(rng, -2, 2)) : std::ldexp(T(Hux32s(rng())), between(rng, -40, 10));
  }
}
template <class C>
C anyComplex(Rng& rng) {
  const int kind = between(rng, 0, 31);
  if (kind < 2) return {0, 0};
  if (kind < 4 && std::is_integral_v<PartOf<C>>)
    return {std::numeric_limits<PartOf<C>>::min(), std::numeric_limits<PartOf<C>>::min()};
  return {anyPart<PartOf<C>>(rng), anyPart<PartOf<C>>(rng)};
}

// Scale factors on both sides of every change of rule, and far beyond.
inline int anyScale(Rng& rng) {
  constexpr int some[] = {0,  1,  -1, 2,  -2,  -14, -15,  -16,   -17,  14,      15,     16,
                          17, 18, 30, 31, 32,  33,  34,   -29,   -30,  -31,     -32,    -33,
                          62, 63, 64, 65, 100, 0,   -100, -1030, 1100, INT_MIN, INT_MAX};
  return between(rng, 0, 1) ? some[rng() % std::size(some)] : between(rng, -20, 40);
}

// As for numbers, part by part.
template <class C>
requires requires(C z) { z.re; }
bool alike(C a, C b) { return alike(a.re, b.re) && alike(a.im, b.im); }

}  // namespace hux::test
