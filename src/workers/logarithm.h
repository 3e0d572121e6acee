// The natural logarithm, for tables made at compile time and, as an approximation of known error, on lanes.
#pragma once

#include <array>
#include <bit>
#include <numbers>

#include "lanes/lanes_math.h"

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
// from 0.699 to 1.398.
struct LogarithmBase {
  static constexpr int lanes = laneCount<Hux64f>, kErrorBits = 37;
  using D = Lanes<Hux64f, lanes>;
  using U = Lanes<std::uint64_t, lanes>;
  static constexpr std::uint64_t kFirst = 0x3FE6600000000000;

  struct Split {
    U offset;
    D z, e;  // e in units of kE
    explicit Split(D x) {
      const U bits = bitsAs<U>(x);
      offset = bits - kFirst;
      const U exponent = offset & ~std::uint64_t(0) << 52;
      z = bitsAs<D>(bits - exponent), e = highToDouble(exponent);
    }
  };
  static constexpr Hux64f kE = kHighUnit * 0x1p-52 * std::numbers::ln2;
};

// z = (1 + r) / c with c one of 16 reciprocals, chosen by the leading bits; r is rounded once at most. About z = 1 c is
// 1 and r exact, so that the result keeps its precision.
struct LogarithmByTable : LogarithmBase {
  struct alignas(64) Tables {
    Hux64f reciprocals[16], logarithms[16];
  };
  static constexpr Tables kTables = [] {
    Tables tables{};
    for (int j = 0; j < 16; ++j) {
      const auto middle = std::bit_cast<Hux64f>(kFirst + (std::uint64_t(2 * j + 1) << 47));
      const Hux64f c = j == 9 ? 1 : Hux64f(Hux32f(1 / middle));
      tables.reciprocals[j] = c;
      tables.logarithms[j] = -logarithm(c);
    }
    return tables;
  }();
  LaneTable<Hux64f, 16> reciprocals{kTables.reciprocals}, logarithms{kTables.logarithms};

  D operator()(D x) const {
    const Split s(x);
    const U entry = s.offset >> std::uint64_t(48);
    const D r = mulAdd(s.z, reciprocals(entry), splat<D>(-1));
    const D base = mulAdd(s.e, splat<D>(kE), logarithms(entry));
    D p = splat<D>(1.0 / 7);
    for (int k = 6; k >= 1; --k) p = mulAdd(p, r, splat<D>((k % 2 ? 1.0 : -1.0) / k));
    return mulAdd(p, r, base);
  }
};

// log z = 2 (t + t^3 / 3 + t^5 / 5 + ...) with t = (z - 1) / (z + 1), which is below 0.178.
struct LogarithmBySeries : LogarithmBase {
  static constexpr std::array<Hux64f, 7> kTerms = {2, 2.0 / 3, 2.0 / 5, 2.0 / 7, 2.0 / 9, 2.0 / 11, 2.0 / 13};

  D operator()(D x) const {
    const Split s(x);
    const D t = (s.z - 1.0) / (s.z + 1.0);
    return mulAdd(polynomial(kTerms, D(t * t)), t, s.e * kE);
  }
};

using Logarithm = std::conditional_t<kTablesInRegisters, LogarithmByTable, LogarithmBySeries>;

}  // namespace hux
