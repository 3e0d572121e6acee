// Pixels as fractions of their type's maximum M. The product of two is brought back to the type by
// (p + (p >> 8) + 1) >> 8, on 16u by the same with 16, which is p / M rounded down: M times b gives b.
#pragma once

#include "lanes/elementwise.h"

namespace hux {

// What fractions are computed in: 16-bit lanes for both types. A sum may leave the range of 8u; it is the last
// operation of a rule, and narrowing limits it.
template <class T>
struct Fraction {
  static constexpr Hux16u one = std::numeric_limits<T>::max();
  static constexpr int lanes = laneCount<Hux16u>;
  using Pixels = Lanes<T, lanes>;
  using V = Lanes<Hux16u, lanes>;

  static V of(Pixels v) { return convert<Hux16u>(v); }
  static V of(T value) { return splat<V>(value); }
  static Pixels pixels(V v) { return saturate<T>(v); }

  static V product(V a, V b) {
    const V low = a * b;
    if constexpr (std::is_same_v<T, Hux8u>) {
      // (p + 1) * 257 >> 16: the sums differ by one at most, and only where the last shift drops it.
      return mulHigh(low + Hux16u(1), splat<V>(257));
    } else {
      // The sum's high half: that of the product, and 1 more where low + high + 1 carries.
      const V high = mulHigh(a, b);
      return high + (meanUp(low, high) >> Hux16u(15));
    }
  }
  static V sum(V a, V b) {
    if constexpr (std::is_same_v<T, Hux8u>)
      return a + b;
    else
      return addSaturated(a, b);
  }
};

}  // namespace hux
