// Division: quotients of elements by elements, and by constants.
//
// A zero denominator does not stop a division: the rule notes it, and the row's status is the warning.
#pragma once

#include <algorithm>
#include <bit>

#include "huxcore.h"
#include "lanes/elementwise.h"
#include "lanes/lanes_math.h"
#include "lanes/round.h"

namespace hux {

// What rules of division share: they note the lanes in which they have met a zero denominator.
template <class T>
struct QuotientOf {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<T, lanes>;
  using F = Lanes<Hux32f, lanes>;
  using M = Lanes<Hux32s, lanes>;
  M met{};

  // The quotient of integers; other than 0 over 0 is infinite, or out of range at any factor, where d is 0. Vectors
  // without a zero are the rule, and spared the selection.
  F divide(V denominator, F n, F d) {
    F q = n / d;
    if (anyZeroOf(denominator, d)) [[unlikely]] {
      const M zero = d == 0.0f;
      met |= zero;
      q = zero ? n * 0x1p60f : q;
    }
    return q;
  }

  // Whether a denominator is zero; of elements that do not fill a register their floats tell it.
  static bool anyZeroOf(V denominator, F d) {
    if constexpr (sizeof(V) < 16)
      return anyZero(d);
    else
      return anyZero(Lanes<Word<T>, lanes>(denominator));
  }

  // Whether somewhere a denominator is above the edge and no bit of the mask is set. Words of half a register are
  // compared as floats, and both tests are one.
  static bool anyAboveAndClear(V denominator, F d, Hux16u edge, Lanes<Hux32u, lanes> bits, Hux32u mask) {
    const auto all = splat<Lanes<Hux32u, lanes>>(mask);
    if constexpr (sizeof(V) < 16)
      return any((d > splat<F>(edge)) & ((bits & all) == 0));
    else
      return anyAbove(denominator, splat<V>(edge)) && anyClear(bits, all);
  }

  // Vectors of a row start with a pixel where these have four channels: the lane tells the channel. Alpha divides like
  // the colours do, but nobody asked for it, so it is no reason to warn.
  template <class L>
  HuxStatus status() const {
    Hux32s any = 0;
    for (int i = 0; i < lanes; ++i) any |= L::channels == L::processed || i % L::channels < L::processed ? met[i] : 0;
    return any ? huxStsDivByZeroWarn : huxStsOk;
  }
};

// v * factor, not negative, to the nearest integer, ties to even; whoever stores it limits it. As floats, 2^23 and
// above are integers in the low bits; larger values have larger bits, infinity included. The factor is a power of two.
template <class F>
auto roundNonNegative(F v, float factor) {
  using U = Lanes<Hux32u, lanesIn<F>>;
  return lowerHalf(bitsAs<U>(mulAdd(v, splat<F>(factor), splat<F>(0x1p23f))) - 0x4B000000u);
}

// A number plus 32768, rounded in the same way and taken off again: NaN becomes the bottom of the range of 16s.
template <class F>
auto round16s(F sum) {
  using M = Lanes<Hux32s, lanesIn<F>>;
  return bitsAs<M>(greater(sum, F{}) + 0x1p23f) - (0x4B000000 + 32768);
}

// The rules (denominator, numerator) by element type.
template <class T>
struct Quotient;

// In single precision: the quotient times 2^-scaleFactor, ties to even. 0 over 0 is 0, other numerators over 0 are the
// top of the range. (Quotients of bytes are exact where they tie, and otherwise too far from a tie for the way of
// rounding to matter.)
template <>
struct Quotient<Hux8u> : QuotientOf<Hux8u> {
  float factor;
  // Past these ends every quotient is 0, or out of range.
  explicit Quotient(int scaleFactor) : factor(powerOfTwo<float>(std::clamp(scaleFactor, -16, 9))) {}
  auto operator()(V denominator, V numerator) {
    const F q = divide(denominator, convert<Hux32f>(numerator), convert<Hux32f>(denominator));
    return roundNonNegative(q, factor);
  }
};

// The same for signed elements; numerators over 0 are the end of the range on their side. The sum with 32768 keeps
// eight bits of the fraction. The factor counts as doubled from 1 step by step: below -127 it is infinite, and 0 over
// a denominator that is not 0 comes out as NaN, the bottom of the range. At 17 every quotient is 0.
template <>
struct Quotient<Hux16s> : QuotientOf<Hux16s> {
  bool infinite;
  float factor;
  explicit Quotient(int scaleFactor)
      : infinite(scaleFactor < -127), factor(powerOfTwo<float>(std::clamp(scaleFactor, -127, 17))) {}
  auto operator()(V denominator, V numerator) {
    const F d = convert<Hux32f>(denominator);
    F n = convert<Hux32f>(numerator);
    if (infinite) [[unlikely]]
      n = ((n == 0.0f) & (d != 0.0f)) ? splat<F>(std::numeric_limits<float>::quiet_NaN()) : n;
    const F q = divide(denominator, n, d);
    return round16s(mulAdd(q, splat<F>(factor), splat<F>(32768.0f)));
  }
};

// In fixed point. The quotient Q is truncated to 16 fraction bits; with its integer part q the result is q, and one
// more where the fraction is at least 32769, or 32767 for an odd q. 0 over 0 is 0, other numerators over 0 are the top
// of the range.
//
// That is the nearest integer, ties to even, but for denominators D above 2^15, where quotients next to a tie count as
// ties: with r the remainder of q, those with |2r - D| below D / 2^15.
template <bool Raised>
struct Quotient16u;

// A scale factor of 0 and above multiplies the denominator. Of the quotients of such D, 0 and 1 are the integer parts,
// and r is a whole number, so shifting the numerator away from the tie by less than one moves just these across it. All
// of them are near 0.5 or 1.5, which their bits tell; few others are.
template <>
struct Quotient16u<false> : QuotientOf<Hux16u> {
  using U = Lanes<Hux32u, lanes>;
  float factor, below, above;
  Hux16u edge;
  Hux32u lowest;
  // At 17 every quotient is 0.
  explicit Quotient16u(int scaleFactor)
      : factor(powerOfTwo<float>(std::min(scaleFactor, 17))),
        below(scaleFactor == 0 ? -0.75f : -1.5f),
        above(scaleFactor == 0 ? 0.75f : -1.5f),
        edge(Hux16u(65536 >> std::clamp(scaleFactor, 1, 17))),
        lowest(std::bit_cast<Hux32u>(0.5f / factor) - 512) {}
  auto operator()(V denominator, V numerator) {
    const F d = convert<Hux32f>(denominator), n = convert<Hux32f>(numerator);
    F q = divide(denominator, n, d);
    if (anyAboveAndClear(denominator, d, edge, bitsAs<U>(q) - lowest, ~0x00C003FFu)) [[unlikely]]
      q = divide(denominator, d > float(edge) ? n + (n < d ? splat<F>(below) : splat<F>(above)) : n, d);
    return roundNonNegative(q, factor);
  }
};

// A scale factor below 0 multiplies the numerator. Near a tie, where the distance to the nearest integer has almost the
// bits of 0.5, the remainder decides; it is exact in integers. Up to a shift of 7 the numerator has 23 bits: quotients
// in single precision do not reach a tie that they only come near, so only long denominators have to look.
template <>
struct Quotient16u<true> : QuotientOf<Hux16u> {
  using U = Lanes<Hux32u, lanes>;
  int shift;
  float factor;
  Hux16u edge;
  Hux32u clear;
  // At -32 every quotient but 0 is out of range.
  explicit Quotient16u(int scaleFactor)
      : shift(-std::max(scaleFactor, -31)),
        factor(powerOfTwo<float>(std::max(scaleFactor, -32))),
        edge(shift < 8 ? 0x8000 : 0),
        clear(0x7FFFFFFF & ~Hux32u(shift < 8 ? 0x7FF : 0x3FFFF)) {}
  auto operator()(V denominator, V numerator) {
    const F d = convert<Hux32f>(denominator), n = convert<Hux32f>(numerator);
    const F v = divide(denominator, n, d) * factor;
    const F nearest = v + 0x1p23f;
    const F distance = v - (nearest - 0x1p23f);
    if (anyAboveAndClear(denominator, d, edge, 0x3F000000 - bitsAs<U>(distance), clear)) [[unlikely]]
      return lowerHalf(exact(denominator, numerator, v));
    return lowerHalf(bitsAs<U>(nearest) - 0x4B000000u);
  }

 private:
  U exact(V denominator, V numerator, F v) const {
    const U d = convert<Hux32u>(denominator);
    // 65536 is out of range as well, and then the remainder does not matter.
    M q = convert<Hux32s>(lesser(v, splat<F>(65536.0f)));
    M rest = M((convert<Hux32u>(numerator) << Hux32u(shift)) - U(q) * d);
    q += rest < 0;
    rest = rest < 0 ? M(U(rest) + d) : rest;
    const F divisor = greater(convert<Hux32f>(denominator), splat<F>(1.0f)), r = convert<Hux32f>(rest),
            limit = divisor * 0x1p-15f;
    q -= r + r - divisor >= ((q & 1) != 0 ? -limit : limit);
    return U(q);
  }
};

// In single precision. A denominator that is neither below nor above 0, NaN too, gives infinity, NaN for a numerator of
// 0, and minus infinity for any other, NaN too.
template <>
struct Quotient<Hux32f> : QuotientOf<Hux32f> {
  F infinity = splat<F>(huxConstantOfINF_32f), none = splat<F>(huxConstantOfNAN_32f);
  explicit Quotient(int) {}
  F operator()(F d, F n) {
    if (allNonZero(d)) [[likely]]
      return n / d;
    const M zero = ~((d < 0.0f) | (d > 0.0f));
    met |= zero;
    return zero ? (n > 0.0f ? infinity : n == 0.0f ? none : -infinity) : n / d;
  }
};

// Calls run(rule) with the rule for a scale factor and returns its result.
template <class T, class Run>
auto withQuotient(int scaleFactor, Run&& run) {
  if constexpr (!std::is_same_v<T, Hux16u>)
    return run(Quotient<T>(scaleFactor));
  else if (scaleFactor < 0)
    return run(Quotient16u<true>(scaleFactor));
  else
    return run(Quotient16u<false>(scaleFactor));
}

// One row of n pixels; the denominators behind its end are 1. Zeros are noted in the channels that Noted processes.
template <class L, class T, class Noted = L, class Rule>
HuxStatus ownDiv(const Element<T>* denominators, const Element<T>* numerators, Element<T>* dst, Index n, Rule rule) {
  return applyRule<L>(dst, n, rule, FromRow<T, Rule::lanes>{denominators, T(1)}, FromRow<T, Rule::lanes>{numerators})
      .template status<Noted>();
}

// Products with a constant's reciprocal.
template <class T>
struct ReciprocalProduct;

// The reciprocal of a byte has six decimals.
inline constexpr auto reciprocal8u = [] {
  struct {
    float of[256];
  } table{{0.000001f}};
  for (int k = 1; k < 256; ++k) table.of[k] = float((2000000 + k) / (2 * k) / 1e6);
  return table;
}();

template <>
struct ReciprocalProduct<Hux8u> {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux8u, lanes>;
  float factor;
  // At -17 every product but 0 is out of range, and 0 must not meet infinity.
  ReciprocalProduct(Hux8u value, int scaleFactor)
      : factor(powerOfTwo<float>(std::max(scaleFactor, -17)) * reciprocal8u.of[value]) {}
  auto operator()(V v) const {
    const auto product = convert<Hux32f>(v) * factor;
    return truncateHalfEven(lesser(product, splat<decltype(+product)>(255.0f)) + 0.5f);
  }
};

template <>
struct ReciprocalProduct<Hux16s> {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux16s, lanes>;
  float factor;
  ReciprocalProduct(Hux16s value, int scaleFactor) : factor(powerOfTwo<float>(scaleFactor) / float(value)) {}
  auto operator()(V v) const { return round16s(convert<Hux32f>(v) * factor + 32768.0f); }
};

}  // namespace hux
