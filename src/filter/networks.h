// Medians as networks of exchanges, for single values and for vectors alike: no step depends on the data.
#pragma once

#include <array>
#include <utility>

#include "lanes/lanes.h"
#include "lanes/unrolled.h"

namespace hux {

// a, b in ascending order.
template <class V>
void exchange(V& a, V& b) {
  const V low = lesser(a, b);
  b = greater(a, b);
  a = low;
}

template <class V>
void ownsort3(V& a, V& b, V& c) {
  exchange(a, b), exchange(b, c), exchange(a, b);
}

template <class V>
void ownsort5(V& a, V& b, V& c, V& d, V& e) {
  exchange(a, d), exchange(b, e), exchange(a, c), exchange(b, d), exchange(a, b);
  exchange(c, e), exchange(b, c), exchange(d, e), exchange(c, d);
}

template <class V>
V median3(V a, V b, V c) {
  exchange(a, b);
  return greater(a, lesser(b, c));
}

// Of four values neither the least nor the greatest is the median of five.
template <class V>
V median5(V a, V b, V c, V d, V e) {
  exchange(a, b), exchange(c, d);
  return median3(greater(a, c), lesser(b, d), e);
}

// A sorted column of a window.
template <class V, std::size_t N>
using Sorted = std::array<V, N>;

// Of three sorted columns: the middle one of the greatest of the least, the median of the middle ones, and the least of
// the greatest.
template <class V>
V ownmed9(const Sorted<V, 3>& a, const Sorted<V, 3>& b, const Sorted<V, 3>& c) {
  return median3(greater(greater(a[0], b[0]), c[0]), median3(a[1], b[1], c[1]), lesser(lesser(a[2], b[2]), c[2]));
}

namespace detail {

// Element I of what comes from two merged halves: the k-th odd one is exchanged with the even one behind it.
template <std::size_t I, class V, std::size_t Evens, std::size_t Odds>
HUX_INLINE inline V interleaved(const Sorted<V, Evens>& even, const Sorted<V, Odds>& odd) {
  constexpr std::size_t e = (I + 1) / 2, o = e - 1;
  if constexpr (I == 0 || o >= Odds)
    return even[e];
  else if constexpr (e >= Evens)
    return odd[o];
  else
    return I % 2 ? lesser(odd[o], even[e]) : greater(odd[o], even[e]);
}

template <std::size_t... I, class V, std::size_t Evens, std::size_t Odds>
HUX_INLINE inline auto interleave(const Sorted<V, Evens>& even, const Sorted<V, Odds>& odd, std::index_sequence<I...>) {
  return Sorted<V, sizeof...(I)>{interleaved<I>(even, odd)...};
}

template <std::size_t First, class V, std::size_t N, std::size_t... I>
HUX_INLINE inline auto everySecond(const Sorted<V, N>& a, std::index_sequence<I...>) {
  return Sorted<V, sizeof...(I)>{a[2 * I + First]...};
}
template <std::size_t First, class V, std::size_t N>
HUX_INLINE inline auto everySecond(const Sorted<V, N>& a) {
  return everySecond<First>(a, std::make_index_sequence<(N + 1 - First) / 2>{});
}

template <std::size_t K, class V, std::size_t N, std::size_t M, std::size_t... J>
HUX_INLINE inline V elementOfBoth(const Sorted<V, N>& a, const Sorted<V, M>& b, std::index_sequence<J...>) {
  V least = a[K];
  ((least = lesser(least, greater(a[K - 1 - J], b[J]))), ...);
  return least;
}

}  // namespace detail

// The elements of two sorted columns in order, by odd-even merging. It is inlined whatever its size: exchanges that
// lead to elements nobody looks at then cost nothing.
template <class V, std::size_t N, std::size_t M>
HUX_INLINE inline Sorted<V, N + M> merge(const Sorted<V, N>& a, const Sorted<V, M>& b) {
  if constexpr (N == 0)
    return b;
  else if constexpr (M == 0)
    return a;
  else if constexpr (N == 1 && M == 1)
    return {lesser(a[0], b[0]), greater(a[0], b[0])};
  else
    return detail::interleave(merge(detail::everySecond<0>(a), detail::everySecond<0>(b)),
                              merge(detail::everySecond<1>(a), detail::everySecond<1>(b)),
                              std::make_index_sequence<N + M>{});
}

// Element K of two sorted columns in order: for each way of taking K + 1 elements from the fronts of both, the greatest
// taken; the least of these.
template <std::size_t K, class V, std::size_t N, std::size_t M>
HUX_INLINE inline V elementOfBoth(const Sorted<V, N>& a, const Sorted<V, M>& b) {
  static_assert(N > K && M <= K);
  return detail::elementOfBoth<K>(a, b, std::make_index_sequence<M>{});
}

// Of five sorted columns.
template <class V>
HUX_INLINE inline V ownmed25(const Sorted<V, 5>& a, const Sorted<V, 5>& b, const Sorted<V, 5>& c, const Sorted<V, 5>& d,
                             const Sorted<V, 5>& e) {
  return elementOfBoth<12>(merge(merge(a, b), merge(c, d)), e);
}

}  // namespace hux
