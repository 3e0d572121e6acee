// Rules that take an element to another type.
#pragma once

#include "lanes/elementwise.h"
#include "lanes/round.h"

namespace hux {

template <class S, class D>
using Wider = std::conditional_t<(sizeof(S) > sizeof(D)), S, D>;

// The same value: limited to the range of the destination where that is narrower, and of the nearest float where the
// destination has fewer digits.
template <class S, class D>
struct Converted {
  static constexpr int lanes = laneCount<Wider<S, D>>;
  auto operator()(Lanes<S, lanes> v) const {
    if constexpr (sizeof(D) < sizeof(S))
      return v;
    else
      return convert<D>(v);
  }
};

// Floats F to integers D. At or above the top of D gives the top; else above the bottom gives the integer; else, for a
// NaN too, the bottom. Near goes to the nearest integer, ties to even, by adding a half away from zero in the precision
// of F, truncating, and going back by one from an odd result where the sum was exact. Otherwise towards zero.
template <class F, class D, bool Near>
struct FromFloat {
  static_assert(std::numeric_limits<D>::digits <= std::numeric_limits<F>::digits && sizeof(D) <= sizeof(Hux32s),
                "the ends of D are limits that F must hold exactly");
  static constexpr int lanes = laneCount<F>;
  auto operator()(Lanes<F, lanes> v) const {
    using V = Lanes<F, lanes>;
    v = lesser(splat<V>(F(std::numeric_limits<D>::max())), v);  // keeps NaN, whose integer is the lowest
    return integersOf<Near>(Near ? v + nudge(v) : v);
  }

 private:
  using Int = std::conditional_t<sizeof(F) == 4, Hux32s, Hux64s>;
  // The sum with the half is rounded, and that shows in one number of either sign, the next beyond one half: its sum is
  // 1, which counts as a tie and makes the result 0. Half a last place towards zero makes that number one half, and
  // takes no other to another integer.
  template <class V>
  static V nudge(V v) {
    using I = Lanes<Int, lanes>;
    constexpr F amount = -std::numeric_limits<F>::epsilon() / 4;
    if constexpr (std::is_unsigned_v<D>)
      return splat<V>(amount);
    else
      return bitsAs<V>(bitsAs<I>(splat<V>(amount)) ^ (bitsAs<I>(v) & std::numeric_limits<Int>::min()));
  }
};

// The same of elements S times a factor, in the precision of F. A factor of 1 changes nothing.
template <class S, class F, class D, bool Near>
struct FromScaledFloat {
  static constexpr int lanes = FromFloat<F, D, Near>::lanes;
  F factor;
  auto operator()(Lanes<S, lanes> v) const { return FromFloat<F, D, Near>{}(convert<F>(v) * factor); }
};

}  // namespace hux
