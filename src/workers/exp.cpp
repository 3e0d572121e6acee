// Exp: e to the power of the element.
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numbers>

#include "huxcore.h"
#include "lanes/elementwise.h"
#include "lanes/lanes_pairs.h"
#include "workers/elementary.h"
#include "workers/nearest.h"
#include "workers/portable.h"
#include "workers/table.h"

namespace hux {
namespace {

// The approximations in double precision are e^x = 2^n e^r: x = n steps + r with |r| at most half a step, by a sum
// with 1.5 * 2^52 that holds n in its low bits. They are good to a relative 2^-38, where the result is a normal double.
constexpr int kErrorBits = 38;
template <class D>
struct Reduced {
  Lanes<std::uint64_t, lanesIn<D>> n;
  D r;
  Reduced(D x, Hux64f step) {
    constexpr Hux64f kInteger = 0x1.8p52;
    const D shifted = mulAdd(x, splat<D>(1 / step), splat<D>(kInteger));
    r = mulAdd(shifted - kInteger, splat<D>(-step), x);
    n = bitsAs<decltype(n)>(shifted);
  }
};

// Steps of ln2 / Size, whose powers come from a table.
template <int Size>
struct ExpByTable {
  static constexpr int kShift = 52 - std::countr_zero(unsigned(Size));
  // 2^(j/Size), by the series of the exponential function. The position of j in the exponent is taken off, so that
  // adding Size e + j in that place leaves 2^e times the entry.
  alignas(64) static constexpr std::array<Hux64f, Size> kPowers = [] {
    std::array<Hux64f, Size> powers{};
    for (int j = 0; j < Size; ++j) {
      Hux64f term = 1, sum = 1;
      for (int k = 1; k < 30; ++k) sum += term *= j * std::numbers::ln2 / (Size * k);
      powers[std::size_t(j)] = std::bit_cast<Hux64f>(std::bit_cast<std::uint64_t>(sum) - (std::uint64_t(j) << kShift));
    }
    return powers;
  }();
  LaneTable<Hux64f, Size> powers{kPowers.data()};
  template <class D>
  D operator()(D x) const {
    constexpr Hux64f step = std::numbers::ln2 / Size, a = step / 2;
    const auto [n, r] = Reduced<D>(x, step);
    const D power = bitsAs<D>(bitsAs<decltype(+n)>(powers(n)) + (n << std::uint64_t(kShift)));
    D p;
    if constexpr (Size == 16) {
      // 1 + r + r^2/2 + ... + r^5/120, with r^5 replaced by the nearest cubic on +-a.
      p = splat<D>(1.0 / 24);
      p = mulAdd(p, r, splat<D>(1.0 / 6 + 5.0 / 4 * a * a / 120));
      p = mulAdd(p, r, splat<D>(1.0 / 2));
      p = mulAdd(p, r, splat<D>(1.0 - 5.0 / 16 * a * a * a * a / 120));
    } else {
      // 1 + r + r^2/2 + r^3/6 + r^4/24, with r^4 replaced by the nearest square.
      static_assert(Size == 128);
      p = mulAdd(splat<D>(1.0 / 6), r, splat<D>(1.0 / 2 + a * a / 24));
      p = mulAdd(p, r, splat<D>(1));
    }
    return mulAdd(power * r, p, power);
  }
};

// Steps of ln2: 1 + r + ... + r^10/10!, with the powers 9 and 10 replaced by the nearest polynomials of lower degree.
struct ExpByPolynomial {
  static constexpr std::array<Hux64f, 9> kTerms = [] {
    std::array<Hux64f, 9> terms{};
    Hux64f factorial = 1;
    for (std::size_t k = 0; k < terms.size(); factorial *= Hux64f(++k)) terms[k] = 1 / factorial;
    // 256 t^9 is about 576 t^7 - 432 t^5 + 120 t^3 - 9 t, and 512 t^10 is 1280 t^8 - 1120 t^6 + 400 t^4 - 50 t^2 + 1.
    constexpr Hux64f a = std::numbers::ln2 / 2, a2 = a * a;
    const Hux64f ninth = 1.0 / 256 / factorial, tenth = a2 / 512 / (10 * factorial);
    const Hux64f odd[] = {-9, 120, -432, 576}, even[] = {1, -50, 400, -1120, 1280};
    for (int k = 0; k < 9; ++k) {
      Hux64f scale = k % 2 ? ninth : tenth;
      for (int i = k - k % 2; i < 8; i += 2) scale *= a2;
      terms[std::size_t(k)] += scale * (k % 2 ? odd : even)[k / 2];
    }
    return terms;
  }();
  template <class D>
  D operator()(D x) const {
    const auto [n, r] = Reduced<D>(x, std::numbers::ln2);
    return bitsAs<D>(bitsAs<decltype(+n)>(polynomial(kTerms, r)) + (n << std::uint64_t(52)));
  }
};

// For what these leave open: 1 + r + ... + r^13/13! of an r to twice their digits, so that only rounding shows, which
// stays within a relative 2^-48. (The accurate function takes about a microsecond.)
struct LongExp {
  static constexpr int kErrorBits = 48;
  static constexpr std::array<Hux64f, 14> kTerms = [] {
    std::array<Hux64f, 14> terms{};
    Hux64f factorial = 1;
    for (std::size_t k = 0; k < terms.size(); factorial *= Hux64f(++k)) terms[k] = 1 / factorial;
    return terms;
  }();
  template <class D>
  D operator()(D x) const {
    // ln2 in two parts, of which the first has so few digits that n times it is exact, as is what that leaves of x.
    constexpr Hux64f kInteger = 0x1.8p52, kHigh = 0x1.62e42fefa38p-1, kLow = 0x1.ef35793c7673p-45;
    const D shifted = mulAdd(x, splat<D>(1 / std::numbers::ln2), splat<D>(kInteger)), n = shifted - kInteger;
    const D r = mulAdd(n, splat<D>(-kLow), mulAdd(n, splat<D>(-kHigh), x));
    using U = Lanes<std::uint64_t, lanesIn<D>>;
    return bitsAs<D>(bitsAs<U>(polynomial(kTerms, r)) + (bitsAs<U>(shifted) << std::uint64_t(52)));
  }
};

struct ExpFloat {
  static constexpr int lanes = 2 * laneCount<Hux64f>;
  using V = Lanes<Hux32f, lanes>;
  using Half = Lanes<Hux32f, lanes / 2>;
  // A long polynomial pays where its products are fused.
  using Otherwise = std::conditional_t<kFuses, ExpByPolynomial, ExpByTable<128>>;
  std::conditional_t<kTablesInRegisters, ExpByTable<16>, Otherwise> approximate;

  V operator()(V v) const {
    // Below -104 the result is 0 and above 89 infinite, as the limits' results are when they are narrowed; NaN stays.
    const V x = greater(splat<V>(-104), lesser(splat<V>(89), v));
    const auto low = approximate(convert<Hux64f>(half<0>(x))), high = approximate(convert<Hux64f>(half<1>(x)));
    // Between, down from -87, it may not be a normal float.
    using U = Lanes<Hux32u, lanes>;
    const U below = bitsAs<U>(x) - std::bit_cast<Hux32u>(-87.0f);
    const bool subnormal = anyBelow(below, splat<U>(std::bit_cast<Hux32u>(-104.0f) - std::bit_cast<Hux32u>(-87.0f)));
    V result = joined(convert<Hux32f>(low), convert<Hux32f>(high));
    if (subnormal || anyOpen<kErrorBits>(low, high)) [[unlikely]]
      result = joined(careful(half<0>(x)), careful(half<1>(x)));
    return v == v ? result : splat<V>(huxConstantOfNAN_32f);
  }

  [[gnu::noinline]] static Half careful(Half x) {
    return closed<LongExp::kErrorBits>(LongExp()(convert<Hux64f>(x)), x, [](Hux64f e) { return portable::exp(e); });
  }
};

// By sums of two floats, x = n ln2 / 8 + r with |r| below 0.0435: 2^(n/8) (1 + r + r^2/2 + ...). It is good to 2^-35,
// where all results are normal; what that leaves open, and what is not normal, falls to double precision.
struct ExpByPairs {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux32f, lanes>;
  using U = Lanes<Hux32u, lanes>;
  using I = Lanes<Hux32s, lanes>;
  // Up to 87 either way all results are normal, and up to the top none of them is infinite.
  static constexpr Hux32f kEnd = 87, kTop = 88.3f;

  // 2^(j/8) as a float, and what that leaves, as a part of it.
  struct alignas(32) Powers {
    Hux32f of[8], rests[8];
  };
  static constexpr Powers kPowers = [] {
    Powers powers{};
    for (int j = 0; j < 8; ++j) {
      Hux64f term = 1, sum = 1;
      for (int k = 1; k < 30; ++k) sum += term *= j * std::numbers::ln2 / (8 * k);
      powers.of[j] = Hux32f(sum);
      powers.rests[j] = Hux32f((sum - Hux64f(powers.of[j])) / sum);
    }
    return powers;
  }();
  static constexpr Hux64f kStep = std::numbers::ln2 / 8, kSquare = kStep * kStep / 4;
  static constexpr Hux32f kStepHigh = Hux32f(kStep);
  LaneTable<Hux32f, 8> powers{kPowers.of}, rests{kPowers.rests};
  // (r + r^2/4 + r^3/20) / 3, with r^4/360 replaced by the nearest of lower degree.
  V perStep = constant<V>(1 / kStep), integer = constant<V>(0x1.8p23), high = constant<V>(-kStepHigh),
    low = constant<V>(kStepHigh - kStep), half = constant<V>(0.5), third = constant<V>(1.0 / 3),
    second = constant<V>(1.0 / 12 + 0.75 * kSquare / 360), first = constant<V>(1.0 / 60), error = constant<V>(0x1p-34);

  V operator()(V v) const {
    V x = v;
    const bool special = any((bitsAs<I>(v) & 0x7FFFFFFF) > std::bit_cast<Hux32s>(kEnd));
    if (special) {
      if (any(((v > -104) & (v < -kEnd)) | ((v > kTop) & (v < 89)))) return careful(v);
      x = greater(lesser(v, splat<V>(kTop)), splat<V>(-kEnd));
    }
    const V shifted = mulAdd(x, perStep, integer), n = shifted - integer;
    const U j = bitsAs<U>(shifted);
    // r is exact. What else stands in the exponent is so small that it adds to the sum, and has no square.
    const V r = mulAdd(n, high, x), rest = mulAdd(n, low, rests(j)), power = powers(j);
    // r + r^2/2, and what follows.
    const V h = r * half, e = mulAdd(h, r, r);
    const V p = mulAdd(mulAdd(first, r, second), r, third);
    const V tail = mulAdd(h * r, p * r, mulAdd(h, r, r - e));
    const V sum = mulAdd(power, e, power);
    const V more = mulAdd(rest, sum, mulAdd(power, tail, mulAdd(power, e, power - sum)));
    const V least = sum + (more - error), most = sum + (more + error);
    if (any(least != most)) [[unlikely]]
      return careful(v);
    V result = bitsAs<V>(bitsAs<U>(least) + (j >> 3u << 23u));
    if (special) {
      constexpr Hux32f infinity = std::numeric_limits<Hux32f>::infinity();
      result = v > kTop ? splat<V>(infinity) : v < -kEnd ? V{} : v == v ? result : splat<V>(huxConstantOfNAN_32f);
    }
    return result;
  }
  [[gnu::noinline]] static V careful(V v) { return ExpFloat{}(v); }
};

// 16s: an index into the entries.
struct ExpShort {
  static constexpr int lanes = laneCount<Hux16s>;
  using V = Lanes<Hux16s, lanes>;
  using U = Lanes<Hux16u, lanes>;
  Hux16s first;
  LaneTable<Hux16s, 32> table;
  V operator()(V v) const { return table(lesser(U(greater(v, splat<V>(first))) - Hux16u(first), splat<U>(31))); }
};

}  // namespace

template <class T>
Exp<T>::Exp(int scaleFactor) {
  using Limits = std::numeric_limits<T>;
  constexpr Hux64f ln2 = std::numbers::ln2;
  // Far enough out for all elements to give 0, or all the largest value.
  const int scale = std::clamp(scaleFactor, -50000, 50000);
  // The first element whose result, e^(p - scale ln2), is not 0. The one tie there is, 0 at scale 1, deliberately goes
  // up on 8u and to even on 16s.
  const Hux64f half = (scale - 1) * ln2;
  const int start = int(std::floor(half)) + (sizeof(T) == 1 && scale == 1 ? 0 : 1);
  first = std::clamp(start - 1, int(Limits::min()), Limits::max() + 1 - size);
  for (int i = 0; i < size; ++i) {
    const Hux64f exponent = first + i - scale * ln2;
    if (first + i < start)
      entries[i] = 0;
    else if (exponent > 11)
      entries[i] = Limits::max();
    else
      entries[i] = T(std::clamp(std::floor(portable::exp(exponent) + 0.5), 1.0, Hux64f(Limits::max())));
  }
}

template <class T>
HuxStatus Exp<T>::operator()(const Element<T>* src, Element<T>* dst, Index n) const {
  if constexpr (sizeof(T) == 1)
    ByteTables<C1>(entries).map(src, dst, n);
  else
    mapRow<C1>(src, dst, n, ExpShort{Hux16s(first), LaneTable<Hux16s, 32>(entries)});
  return huxStsOk;
}
template struct Exp<Hux8u>;
template struct Exp<Hux16s>;

HuxStatus Exp<Hux32f>::operator()(const Element<Hux32f>* src, Element<Hux32f>* dst, Index n) const {
  mapRow<C1>(src, dst, n, std::conditional_t<kByPairs, ExpByPairs, ExpFloat>{});
  return huxStsOk;
}

}  // namespace hux
