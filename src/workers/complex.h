// Arithmetic on complex elements: rules on lanes in which real and imaginary parts alternate.
//
// Rows move complex elements as one word each, so that constants, layouts and tails count elements; the rules see the
// words as lanes of parts (OnWords). Elements of two doubles are moved as two words that are parts.
#pragma once

#include <array>

#include "huxcore.h"
#include "lanes/lanes_math.h"
#include "lanes/lanes_sum.h"
#include "workers/scaled.h"

namespace hux {

template <class C>
using Part = decltype(C::re);
template <class C>
using WordOfComplex =
    std::conditional_t<sizeof(C) == 4, Hux32u, std::conditional_t<sizeof(C) == 8, std::uint64_t, Part<C>>>;
template <class C>
inline constexpr Index kWords = sizeof(C) / sizeof(WordOfComplex<C>);

template <class C>
auto words(C* p) {
  return elementsAs<WordOfComplex<C>>(p);
}

// A rule on parts as a rule on words: of four elements at least where a vector holds as many, or where the layout has
// alpha, for then it needs whole pixels.
template <class C, class L, class Rule>
struct OnWords {
  static constexpr int held = kLaneBytes / int(sizeof(WordOfComplex<C>));
  static constexpr int lanes = std::max(L::channels == L::processed ? std::min(4, held) : 4, Rule::lanes / 2);
  using V = Lanes<WordOfComplex<C>, lanes>;
  using Parts = std::array<Lanes<Part<C>, Rule::lanes>, 2 * lanes / Rule::lanes>;
  Rule rule;

  template <class... Vs>
  V operator()(Vs... operands) {
    Parts result;
    for (std::size_t i = 0; i < result.size(); ++i) result[i] = saturate<Part<C>>(rule(bitsAs<Parts>(operands)[i]...));
    return bitsAs<V>(result);
  }
  HuxStatus status() const { return rule.status(); }
};
template <class C, class L = C1, class Rule>
auto onWords(Rule rule) {
  if constexpr (kWords<C> == 1)
    return OnWords<C, L, Rule>{rule};
  else
    return rule;
}

// A constant for each channel, as an operand.
template <class L, class C, int N>
using Constants = Repeat<std::conditional_t<kWords<C> == 1, L, Layout<2, 2>>, WordOfComplex<C>, N>;

// A row of divisors: behind its end, and in place of alpha, stands 1, which nobody takes for a zero.
template <class L, class C, int N>
struct Divisors {
  using W = WordOfComplex<C>;
  using V = Lanes<W, N>;
  static constexpr int period = 1;
  static constexpr C one = {1, 0};
  const Element<W>* row;

  V load(Index i, int) const { return withoutAlpha(loadLanes<V>(row + i)); }
  V load(Index i, int, int count) const { return withoutAlpha(loadLanes<V>(row + i, count, unit())); }
  static W unit() {
    W word;
    std::memcpy(&word, &one, sizeof word);
    return word;
  }
  static V withoutAlpha(V v) {
    if constexpr (L::channels != L::processed) {
      return [&]<std::size_t... I>(std::index_sequence<I...>) {
        return __builtin_shufflevector(v, splat<V>(unit()), (int(I) % 4 < L::processed ? int(I) : N)...);
      }
      (std::make_index_sequence<N>{});
    }
    return v;
  }
};

// Arrangements of alternating parts.
template <int (*At)(int i, int n), class V>
V arranged(V v, V w) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return __builtin_shufflevector(v, w, At(int(I), sizeof...(I))...);
  }
  (std::make_index_sequence<lanesIn<V>>{});
}
constexpr int swappedAt(int i, int) { return i ^ 1; }
constexpr int evenAt(int i, int) { return i & ~1; }
constexpr int oddAt(int i, int) { return i | 1; }
constexpr int joinedAt(int i, int n) { return i & 1 ? i + n : i; }

template <class V>
V swapParts(V v) {
  return arranged<swappedAt>(v, v);
}
template <class V>
V repeatRe(V v) {
  return arranged<evenAt>(v, v);
}
template <class V>
V repeatIm(V v) {
  return arranged<oddAt>(v, v);
}
// The real parts of v and the imaginary parts of w.
template <class V>
V joinParts(V v, V w) {
  return arranged<joinedAt>(v, w);
}

// Real and imaginary parts in lanes of twice the width, from words as wide as those lanes, and back.
template <class T, class V>
V wideRe(V v) {
  using U = Lanes<std::make_unsigned_t<LaneType<V>>, lanesIn<V>>;
  constexpr int bits = int(sizeof(T)) * 8;
  return V(U(v) << LaneType<U>(bits)) >> LaneType<V>(bits);
}
template <class T, class V>
V wideIm(V v) {
  return v >> LaneType<V>(sizeof(T) * 8);
}
template <class T, class V>
auto joinWide(V re, V im) {
  using U = std::make_unsigned_t<LaneType<V>>;
  using Us = Lanes<U, lanesIn<V>>;
  return (Us(re) & U(std::make_unsigned_t<T>(-1))) | (Us(im) << U(sizeof(T) * 8));
}

// (a, b) * (c, d) of words x, y, exact. The one sum that does not fit, the imaginary part of the square of the lowest
// number, wraps and becomes the largest that does.
template <class V>
struct WideProduct {
  V re, im;
  WideProduct(V x, V y) {
    using W = LaneType<V>;
    if constexpr (sizeof(W) == 4) {
      // -b * d is b * ~d + b, which unlike -d exists for every d.
      using U = Lanes<Hux32u, lanesIn<V>>;
      using H = Lanes<Hux16s, 2 * lanesIn<V>>;
      re = V(U(pairProducts(bitsAs<H>(x), bitsAs<H>(y ^ W(0xffff0000)))) + U(wideIm<Hux16s>(x)));
      im = pairProducts(bitsAs<H>(x), bitsAs<H>((U(y) >> 16U) | (U(y) << 16U)));
    } else {
      using U = Lanes<std::uint64_t, lanesIn<V>>;
      const V b = V(U(x) >> std::uint64_t(32)), d = V(U(y) >> std::uint64_t(32));
      re = mulLow(x, y) - mulLow(b, d);
      im = V(U(mulLow(x, d)) + U(mulLow(b, y)));
    }
    im = im == std::numeric_limits<W>::min() ? splat<V>(std::numeric_limits<W>::max()) : im;
  }
};

// What a scale factor of 0, below and above makes of an exact part, in the range of T.
template <class T>
struct Unscaled {
  template <class V>
  V operator()(V v) const {
    return limited<T>(v);
  }
};
template <class T>
struct ScaledUp {
  int shift;  // at most the width of T, which sends everything but 0 to the end of the range
  template <class V>
  V operator()(V v) const {
    using U = std::make_unsigned_t<LaneType<V>>;
    return limited<T>(V(Lanes<U, lanesIn<V>>(limited<T>(v)) << U(shift)));
  }
};
template <class T>
struct ScaledDown {
  int scaleFactor;
  template <class V>
  V operator()(V v) const {
    return limited<T>(roundShiftFull(v, scaleFactor));
  }
};

// The product of integers.
template <class T, class Scale>
struct ScaledProduct {
  static constexpr int lanes = 2 * laneCount<Wide<T>>;
  using V = Lanes<T, lanes>;
  using Words = Lanes<Wide<T>, lanes / 2>;
  Scale scale;
  V operator()(V x, V y) const {
    const WideProduct<Words> p(bitsAs<Words>(x), bitsAs<Words>(y));
    return bitsAs<V>(joinWide<T>(scale(p.re), scale(p.im)));
  }
};

// The product of floats: (a*c - b*d, a*d + b*c).
template <class T>
struct FloatProduct {
  static constexpr int lanes = laneCount<T>;
  using V = Lanes<T, lanes>;
  V operator()(V x, V y) const {
    const V t = repeatRe(x) * y, u = repeatIm(x) * swapParts(y);
    return joinParts(t - u, t + u);
  }
};

template <class T>
struct Zeros {
  static constexpr int lanes = laneCount<T>;
  template <class V>
  V operator()(V, V) const {
    return V{};
  }
};

// Calls run(rule), rule on words, with the rule of an operation AddOp, SubOp or MulOp on pixels of the layout.
template <class Op, class C, class L = C1, class Run>
void withComplexRule(int scaleFactor, Run&& run) {
  using T = Part<C>;
  constexpr int bits = int(sizeof(T)) * 8;
  const auto pass = [&](auto rule) { run(onWords<C, L>(rule)); };
  if constexpr (std::is_same_v<Op, MulOp>) {
    if constexpr (std::is_floating_point_v<T>)
      pass(FloatProduct<T>{});
    else if (scaleFactor > 2 * bits - 1)
      pass(Zeros<T>{});
    else if (scaleFactor > 0)
      pass(ScaledProduct<T, ScaledDown<T>>{{scaleFactor}});
    else if (scaleFactor < 0)
      pass(ScaledProduct<T, ScaledUp<T>>{{scaleFactor < -bits ? bits : -scaleFactor}});
    else
      pass(ScaledProduct<T, Unscaled<T>>{});
  } else {
    if constexpr (std::is_floating_point_v<T>)
      pass(Float<Op, T>{});
    else if (scaleFactor > Op::template allZeroAbove<T>)
      pass(Zeros<T>{});
    else
      withRule<Op, T>(scaleFactor, pass);
  }
}

// What divisions note: lanes in which a divisor was zero.
template <class T, int N>
struct ZeroNote {
  Lanes<std::conditional_t<sizeof(T) == 4, Hux32s, Hux64s>, N> seen{};
  HuxStatus status() const {
    bool any = false;
    for (int i = 0; i < N; ++i) any |= seen[i] != 0;
    return any ? huxStsDivByZeroWarn : huxStsOk;
  }
};

// y / x on floats, through the reciprocal of the squared norm. A norm that is neither below nor above 0 gives `none`.
template <class T>
struct FloatQuotient : ZeroNote<T, laneCount<T>> {
  static constexpr int lanes = laneCount<T>;
  using V = Lanes<T, lanes>;
  T none;
  explicit FloatQuotient(T none) : none(none) {}
  V operator()(V x, V y) {
    const V square = x * x, norm = square + swapParts(square);
    const V t = repeatRe(x) * y, u = repeatIm(x) * swapParts(y);
    const auto valid = norm > 0;
    this->seen |= ~valid;
    const V result = joinParts(t + u, t - u) * (T(1) / norm);
    return valid ? result : splat<V>(none);
  }
};

// Doubles to the nearest 16-bit integer, as the low bits of lanes; limited, NaN gives the lowest. The half is added to
// a value made positive, and that sum, rounded as it is, tells what lies nearest and what is a tie.
template <class V>
auto nearest16(V v) {
  v = lesser(greater(v, splat<V>(-32768.0)), splat<V>(32767.0));
  return nearestEvenBits((v + 32768.5) - 32768.5);
}

// A rule of double precision on 32-bit integers.
template <class Rule>
struct Widened {
  static constexpr int lanes = Rule::lanes;
  Rule rule;
  template <class... Vs>
  auto operator()(Vs... operands) {
    return rule(convert<Hux64f>(operands)...);
  }
  HuxStatus status() const { return rule.status(); }
};

// y / x on 16-bit integers, in double precision, times a scale. A zero divisor gives 0.
struct Quotient16 : ZeroNote<Hux64f, laneCount<Hux64f>> {
  static constexpr int lanes = 2 * laneCount<Hux64f>;
  using V = Lanes<Hux16s, lanes>;
  using Words = Lanes<Hux32s, lanes / 2>;
  Hux64f scale;
  explicit Quotient16(int scaleFactor) : scale(powerOfTwo<Hux64f>(scaleFactor)) {}
  V operator()(V x, V y) {
    const auto a = convert<Hux64f>(wideRe<Hux16s>(bitsAs<Words>(x)));
    const auto b = convert<Hux64f>(wideIm<Hux16s>(bitsAs<Words>(x)));
    const auto c = convert<Hux64f>(wideRe<Hux16s>(bitsAs<Words>(y)));
    const auto d = convert<Hux64f>(wideIm<Hux16s>(bitsAs<Words>(y)));
    const auto norm = a * a + b * b;
    const auto zero = norm == 0;
    seen |= zero;
    const auto k = scale / norm;
    auto parts = joinWide<Hux16s>(nearest16((a * c + b * d) * k), nearest16((a * d - b * c) * k));
    parts = zero ? decltype(parts){} : parts;
    return bitsAs<V>(convert<Hux32u>(parts));
  }
};

// The product of 16-bit integers and a double-precision constant.
struct Times16 {
  static constexpr int lanes = 2 * laneCount<Hux64f>;
  using V = Lanes<Hux16s, lanes>;
  using Words = Lanes<Hux32s, lanes / 2>;
  Hux64fc w;
  V operator()(V v) const {
    const auto x = convert<Hux64f>(wideRe<Hux16s>(bitsAs<Words>(v)));
    const auto y = convert<Hux64f>(wideIm<Hux16s>(bitsAs<Words>(v)));
    const auto parts = joinWide<Hux16s>(nearest16(x * w.re - y * w.im), nearest16(x * w.im + y * w.re));
    return bitsAs<V>(convert<Hux32u>(parts));
  }
};

// The rule on words that divides elements by elements.
template <class C, class L>
auto quotientRule(int scaleFactor) {
  if constexpr (std::is_same_v<C, Hux16sc>)
    return onWords<C, L>(Quotient16(scaleFactor));
  else if constexpr (std::is_same_v<C, Hux32fc>)
    return onWords<C, L>(FloatQuotient<Hux32f>(huxConstantOfNAN_32f));
  else
    return onWords<C, L>(FloatQuotient<Hux64f>(huxConstantOfNAN_64f));
}

template <class L, class C, class W>
HuxStatus divideRow(const Element<W>* divisors, const Element<W>* src, Element<W>* dst, Index n, int scaleFactor) {
  const auto rule = quotientRule<C, L>(scaleFactor);
  constexpr int lanes = decltype(rule)::lanes;
  return applyRule<L>(dst, n, rule, Divisors<L, C, lanes>{divisors}, FromRow<W, lanes>{src}).status();
}

// Constants as divisors. The squared norm is that of integers in double precision, of floats in single.
template <class C>
using NormOf = std::conditional_t<std::is_same_v<C, Hux32fc>, Hux32f, Hux64f>;
template <class C>
NormOf<C> squaredNorm(C value) {
  const auto re = NormOf<C>(value.re), im = NormOf<C>(value.im);
  return re * re + im * im;
}

// The factors that stand for a division by a constant.
inline Hux32fc reciprocal(Hux32fc value) {
  const Hux32f k = 1.0f / squaredNorm(value);
  return {value.re * k, -value.im * k};
}
inline Hux64fc reciprocal(Hux16sc value, int scaleFactor) {
  const Hux64f k = powerOfTwo<Hux64f>(scaleFactor) / squaredNorm(value);
  return {value.re * k, -value.im * k};
}
inline Hux64fc reciprocal(Hux32sc value) {
  const Hux64f norm = squaredNorm(value);
  return {value.re / norm, -Hux64f(value.im) / norm};
}

// A row divided by one constant.
template <class W>
void divideRowC(const Element<W>* src, Hux16sc value, Element<W>* dst, Index n, int scaleFactor) {
  mapRow<C1>(src, dst, n, onWords<Hux16sc>(Times16{reciprocal(value, scaleFactor)}));
}
template <class W>
void divideRowC(const Element<W>* src, Hux32fc value, Element<W>* dst, Index n, int) {
  const Hux32fc factor = reciprocal(value);
  const auto rule = onWords<Hux32fc>(FloatProduct<Hux32f>{});
  constexpr int lanes = decltype(rule)::lanes;
  applyRule<C1>(dst, n, rule, Constants<C1, Hux32fc, lanes>(words(&factor)), FromRow<W, lanes>{src});
}

}  // namespace hux
