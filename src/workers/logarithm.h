// The natural logarithm, for tables made at compile time and, as an approximation of known error, on lanes.
#pragma once

#include <array>
#include <bit>
#include <numbers>

#include "lanes/lanes_pairs.h"

namespace hux {

// Of a positive number, by its series.
constexpr Hux64f logarithm(Hux64f x) {
  Hux64f powers = 0;
  for (; x > 1.5; x /= 2) ++powers;
  for (; x < 0.75; x *= 2) --powers;
  const Hux64f t = (x - 1) / (x + 1);
  Hux64f sum = 0, power = t;
  for (int k = 1; k < 60; k += 2, power *= t * t) sum += power / k;
  return 2 * sum + powers * std::numbers::ln2;
}

// The same on lanes, to within a relative 2^-kErrorBits, for positive normal operands. The operand is 2^e * z with z
// from about 0.7 to 1.4.
struct LogarithmBase {
  static constexpr int lanes = laneCount<Hux64f>, kErrorBits = 37;
  using D = Lanes<Hux64f, lanes>;
  using V = D;
  using U = Lanes<std::uint64_t, lanes>;

  struct Split {
    U offset;
    D z, e;  // e in units of kE
    Split(D x, std::uint64_t first) {
      const U bits = bitsAs<U>(x);
      offset = bits - first;
      const U exponent = offset & ~std::uint64_t(0) << 52;
      z = bitsAs<D>(bits - exponent), e = highToDouble(exponent);
    }
  };
  static constexpr Hux64f kE = kHighUnit * 0x1p-52 * std::numbers::ln2;
};

// z = (1 + r) / c with c one of Size reciprocals, chosen by the leading bits; r is rounded once at most. About z = 1 c
// is 1 and r exact, so that the result keeps its precision.
template <int Size>
struct LogarithmByTable : LogarithmBase {
  static constexpr int kShift = 52 - std::countr_zero(unsigned(Size));
  static constexpr std::uint64_t kPart = std::uint64_t(1) << kShift, kOne = 0x3FF0000000000000;
  // The part of 1 begins below it, and is the one with this number.
  static constexpr int kPartOfOne = 77 * Size / 128;
  static constexpr std::uint64_t kFirst = kOne - kPart * 2 / 3 - kPartOfOne * kPart;
  struct alignas(64) Tables {
    Hux64f reciprocals[Size], logarithms[Size];
  };
  static constexpr Tables kTables = [] {
    Tables tables{};
    for (int j = 0; j < Size; ++j) {
      const auto middle = std::bit_cast<Hux64f>(kFirst + std::uint64_t(j) * kPart + kPart / 2);
      const Hux64f c = j == kPartOfOne ? 1 : Hux64f(Hux32f(1 / middle));
      tables.reciprocals[j] = c;
      tables.logarithms[j] = -hux::logarithm(c);
    }
    return tables;
  }();
  LaneTable<Hux64f, Size> reciprocals{kTables.reciprocals}, logarithms{kTables.logarithms};

  D operator()(D x) const {
    const Split s(x, kFirst);
    const U entry = s.offset >> std::uint64_t(kShift);
    const D r = mulAdd(s.z, reciprocals(entry), splat<D>(-1));
    const D base = mulAdd(s.e, splat<D>(kE), logarithms(entry));
    constexpr int terms = Size == 16 ? 7 : 5;
    D p = splat<D>(1.0 / terms);
    for (int k = terms - 1; k >= 1; --k) p = mulAdd(p, r, splat<D>((k % 2 ? 1.0 : -1.0) / k));
    return mulAdd(p, r, base);
  }
};

// log z = 2 (t + t^3 / 3 + t^5 / 5 + ...) with t = (z - 1) / (z + 1), which is below 0.178: as good with 7 terms, and
// with 10 to within a relative 2^-48, for then only rounding shows.
template <std::size_t Terms>
struct LogarithmBySeries : LogarithmBase {
  static constexpr int kErrorBits = Terms < 10 ? LogarithmBase::kErrorBits : 48;
  static constexpr auto kTerms = [] {
    std::array<Hux64f, Terms> terms{};
    for (std::size_t k = 0; k < Terms; ++k) terms[k] = 2.0 / Hux64f(2 * k + 1);
    return terms;
  }();

  D operator()(D x) const {
    const Split s(x, 0x3FE6600000000000);
    const D t = (s.z - 1.0) / (s.z + 1.0);
    return mulAdd(polynomial(kTerms, D(t * t)), t, s.e * kE);
  }
};

// The nearest number of 16 binary places.
constexpr Hux64f fewDigits(Hux64f v) { return Hux64f(Hux64s(v * 0x1p16 + (v < 0 ? -0.5 : 0.5))) * 0x1p-16; }

// By sums of two floats, for positive normal floats, where kFuses holds: high + low, to within an error that is small
// next to 1 as well. There z lies from 0.708 to 1.417, in eight parts, and log z = log (1 / c) + log (1 + r) with a c
// for each, of so few digits that r = c z - 1, at most 1/16, is exact. So is the sum of the first parts of e ln2 and
// log (1 / c).
struct LogarithmByPairs {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux32f, lanes>;
  using U = Lanes<Hux32u, lanes>;
  using I = Lanes<Hux32s, lanes>;
  struct Sum {
    V high, low, error;
  };

  static constexpr Hux32u kPart = 1 << 20, kFirst = 0x3F800000 - kPart * 2 / 3 - 4 * kPart;
  struct alignas(32) Tables {
    Hux32f reciprocals[8], highs[8], lows[8];
  };
  static constexpr Tables kTables = [] {
    Tables tables{{1.375f, 1.25f, 1.125f, 1.0625f, 1, 0.90625f, 0.8125f, 0.75f}, {}, {}};
    for (int j = 0; j < 8; ++j) {
      const Hux64f log = -hux::logarithm(tables.reciprocals[j]), high = fewDigits(log);
      tables.highs[j] = Hux32f(high), tables.lows[j] = Hux32f(log - high);
    }
    return tables;
  }();
  static constexpr Hux64f kLn2 = std::numbers::ln2, kLn2High = fewDigits(kLn2), kSquare = 1.0 / 256;
  LaneTable<Hux32f, 8> reciprocals{kTables.reciprocals}, highs{kTables.highs}, lows{kTables.lows};
  V minusOne = constant<V>(-1), minusHalf = constant<V>(-0.5), ln2High = constant<V>(kLn2High),
    ln2Low = constant<V>(kLn2 - kLn2High);
  // -2 (1/3 - r/4 + r^2/5 - r^3/6 + r^4/7), with r^5/8 replaced by the nearest of lower degree.
  V third = constant<V>(-2.0 / 3), fourth = constant<V>(2.0 / 4 - 5 * kSquare * kSquare / 64),
    fifth = constant<V>(-2.0 / 5), sixth = constant<V>(2.0 / 6 + 5 * kSquare / 16), seventh = constant<V>(-2.0 / 7);
  V errorOfSquare = constant<V>(-0x1p-25), errorOfSum = constant<V>(0x1p-36);

  Sum operator()(V x) const {
    const U bits = bitsAs<U>(x), offset = bits - kFirst, entry = offset >> 20u;
    const V z = bitsAs<V>(bits - (offset & 0xFF800000)), e = convert<Hux32f>(I(offset) >> 23);
    const V r = mulAdd(z, reciprocals(entry), minusOne);
    // r - r^2/2, and what follows.
    const V h = r * minusHalf, square = h * r, w = mulAdd(h, r, r);
    const V p = mulAdd(mulAdd(mulAdd(mulAdd(seventh, r, sixth), r, fifth), r, fourth), r, third);
    const V tail = mulAdd(square, p * r, mulAdd(h, r, r - w));
    const V base = mulAdd(e, ln2High, highs(entry)), high = base + w;
    const V low = (base - high + w) + (tail + mulAdd(e, ln2Low, lows(entry)));
    const V magnitude = bitsAs<V>(bitsAs<I>(high) & 0x7FFFFFFF);
    return {high, low, mulAdd(square, errorOfSquare, magnitude * errorOfSum)};
  }
};

// A division in the place of a table pays where products are fused.
using Logarithm = std::conditional_t<kTablesInRegisters, LogarithmByTable<16>,
                                     std::conditional_t<kFuses, LogarithmBySeries<7>, LogarithmByTable<128>>>;

// For what such an approximation leaves open. The accurate function takes about a microsecond, too much for one element
// in four thousand.
using LongLogarithm = LogarithmBySeries<10>;

}  // namespace hux
