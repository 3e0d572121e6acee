// Lanes that alternate between two vectors, and vectors that overlap. A sequence runs on from the first vector to the
// second.
#pragma once

#include <utility>

#include "lanes/lanes.h"

namespace hux {

// Every second lane of two vectors: those of even and of odd numbers.
template <int First, class V>
V alternate(V a, V b) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return __builtin_shufflevector(a, b, (2 * int(I) + First)...);
  }
  (std::make_index_sequence<lanesIn<V>>{});
}

// a[0], b[0], a[1], b[1], ...: the first and the second vector of them.
template <int Half, class V>
V interleaved(V a, V b) {
  constexpr int n = lanesIn<V>;
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return __builtin_shufflevector(a, b, (Half * n / 2 + int(I) / 2 + (I % 2 ? n : 0))...);
  }
  (std::make_index_sequence<n>{});
}

// The last lane of a vector, and all but the last of the one behind it; all but the first lane, and a zero.
template <class V>
V oneBefore(V before, V v) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return __builtin_shufflevector(before, v, (lanesIn<V> - 1 + int(I))...);
  }
  (std::make_index_sequence<lanesIn<V>>{});
}
template <class V>
V oneBehind(V v) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) { return __builtin_shufflevector(v, V{}, (int(I) + 1)...); }
  (std::make_index_sequence<lanesIn<V>>{});
}

}  // namespace hux
