// Loops over registers: their number is a constant, and so is the index in each turn.
#pragma once

#include <type_traits>
#include <utility>

// State that is captured by a lambda stays in registers only where the lambda is inlined.
#define HUX_INLINE __attribute__((always_inline))

namespace hux {

// Calls body(i) for i from 0 to N - 1, each an integral_constant.
template <int N, class Body>
HUX_INLINE inline void unrolled(Body body) {
  [&]<int... I>(std::integer_sequence<int, I...>) HUX_INLINE { (body(std::integral_constant<int, I>{}), ...); }
  (std::make_integer_sequence<int, N>{});
}

}  // namespace hux
