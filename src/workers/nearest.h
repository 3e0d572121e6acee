// Functions in single precision as those of double precision narrowed, exactly: from values in double precision that
// are good to some bits more than a float has. Only where a float's rounding boundary lies within their error, once in
// thousands of times, does an accurate function decide (see workers/portable.h); so the approximation never shows.
#pragma once

#include "lanes/lanes_math.h"

namespace hux {

// An approximation of known error that never shows: what both ends of its interval come to, and in lanes where they
// differ, which is rare, what all() gives, the lanes by an accurate function.
template <class V, class All>
V decided(V low, V high, All all) {
  const auto open = low != high;
  if (any(open)) [[unlikely]]
    low = open ? V(all()) : low;
  return low;
}

// Whether a relative error of 2^-ErrorBits decides how some of these values narrow; they must be normal as floats.
template <int ErrorBits, class D>
bool anyOpen(D low, D high) {
  // A float drops 29 bits; the middle of their range is its rounding boundary. One unit of a double is a relative 2^-53
  // or more. Moved so that the open ones start at 0, they have no higher bit among the 29.
  constexpr std::uint32_t all = 1 << 29, middle = all / 2, margin = std::uint32_t(1) << (53 - ErrorBits);
  if constexpr (kTablesInRegisters) {
    using U = Lanes<std::uint64_t, lanesIn<D>>;
    const auto open = [](D v) {
      return anyClear(bitsAs<U>(v) + std::uint64_t(middle + margin), splat<U>(all - 2 * margin));
    };
    return open(low) || open(high);
  } else {
    // All of these bits stand in the lower halves of the lanes.
    using W = Lanes<std::uint32_t, 2 * lanesIn<D>>;
    const W lower = [&]<int... I>(std::integer_sequence<int, I...>) {
      return __builtin_shufflevector(bitsAs<W>(low), bitsAs<W>(high), 2 * I...);
    }
    (std::make_integer_sequence<int, lanesIn<W>>{});
    return anyClear(lower + (middle + margin), splat<W>(all - 2 * margin));
  }
}

// The values narrowed, those that are open from function(argument) in double precision.
template <int ErrorBits, class D, class V, class Function>
V closed(D values, V arguments, Function function) {
  constexpr Hux64f kError = 1.0 / (std::uint64_t(1) << ErrorBits);
  return decided(convert<Hux32f>(values * (1 - kError)), convert<Hux32f>(values * (1 + kError)), [&] {
    for (int i = 0; i < lanesIn<V>; ++i) arguments[i] = Hux32f(function(Hux64f(arguments[i])));
    return arguments;
  });
}

}  // namespace hux
