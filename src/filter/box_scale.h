// How a window sum becomes a mean: the last step of the box filter, which decides the bits.
#pragma once

#include "lanes/lanes_math.h"

namespace hux {

// Added ahead of truncations, so that means that are whole numbers stay what they are.
inline constexpr Hux32f kSmall = 9e-6f;

// A multiplier of 12 bits and a shift in place of the division by an area: the top of the reciprocal's mantissa, plus
// one. The factor is a little too large, so that results may be above the true quotient: established.
struct Reciprocal {
  Hux32u mult;
  int shift;
};
inline Reciprocal get_shift_int(Hux32f recip) {
  if (recip == 1.0f) return {256, 8};
  const Hux32f scaled = 4294967296.0f * recip + kSmall;
  // 2^31, of an area of 2, and whatever else has no room in 32 bits is the top bit alone.
  Hux32u v = scaled >= -2147483648.0f && scaled < 2147483648.0f ? Hux32u(Hux32s(scaled)) : 0x80000000u;
  int n = 0;
  for (; !(v & 0x80000000u) && n < 24; ++n) v *= 2;
  return {(v >> 20) + 1, n + 12};
}

// Lanes of integer sums, read as signed, or of float sums, as floats.
template <class V>
auto floatSums(V s) {
  if constexpr (std::is_floating_point_v<LaneType<V>>)
    return s;
  else
    return convert<Hux32f>(bitsAs<Lanes<Hux32s, lanesIn<V>>>(s));
}

// Bytes over an area of at most 257, in 16 bits: the product's high half is what a shift by 16 leaves.
struct ShiftedWords {
  Hux16u factor;
  int shift;
  explicit ShiftedWords(Reciprocal r)
      : factor(Hux16u(r.shift < 16 ? r.mult << (16 - r.shift) : r.mult)), shift(std::max(r.shift - 16, 0)) {}
  template <class V>
  auto operator()(V s) const {
    return convert<Hux8u>(mulHigh(s, splat<V>(factor)) >> Hux16u(shift));
  }
};

// Bytes over a larger area: the product has 32 bits.
struct ShiftedSums {
  Hux32u mult;
  int shift;
  explicit ShiftedSums(Reciprocal r) : mult(r.mult), shift(r.shift) {}
  template <class V>
  auto operator()(V s) const {
    return convert<Hux8u>((s * mult) >> Hux32u(shift));
  }
};

// Bytes over areas for which that product has no room.
struct ScaledBytes {
  Hux32f recip;
  template <class V>
  auto operator()(V s) const {
    return convert<Hux8u>(convert<Hux32s>(floatSums(s) * recip + kSmall));
  }
};

// Words: their sums are those of the pixels plus 32768, so that truncation is a floor.
inline constexpr Hux32s kWordBias = 32768;
struct ScaledWords {
  Hux32f recip;
  template <class V>
  auto operator()(V s) const {
    return convert<Hux16s>(convert<Hux32s>(floatSums(s) * recip + kSmall) - kWordBias);
  }
};

// The same for four channels, where the small term is 9e-6 and added in double precision: established. Products above
// 0.5 are multiples of 2^-24, of which 150 lie within that term, so that single precision sees what it carries over.
// From 256 on they are multiples of 2^-15, and nothing is.
struct ScaledWordsC4 {
  Hux32f recip;
  template <class V>
  auto operator()(V s) const {
    const auto mean = floatSums(s) * recip;
    const auto whole = convert<Hux32s>(mean);
    if (!any(mean < 256)) return convert<Hux16s>(whole - kWordBias);
    const auto rest = mean - convert<Hux32f>(whole);
    auto carry = rest >= 1 - 150 * 0x1p-24f;
    if constexpr (std::is_floating_point_v<LaneType<V>>)  // whose running sums may fall below 0
      carry |= (whole < 0) & (rest > -150.5f * 0x1p-24f);
    return convert<Hux16s>(whole - carry - kWordBias);
  }
};

struct ScaledFloats {
  Hux32f recip;
  template <class V>
  auto operator()(V s) const {
    return s * recip;
  }
};

}  // namespace hux
