// Element-wise rows: one rule on lanes, applied along a row.
//
// A rule is a callable from operand lanes to result lanes, with `static constexpr int lanes`, the number of elements
// that it takes at a time. Operands are rows (FromRow) or constants per channel (Repeat). A rule sees each element
// once; at the end of a row, lanes behind the last element hold the operand's `rest` and their results are dropped.
// Results in lanes of integers wider than the destination's are limited to its range, several vectors at a time where
// that costs less.
#pragma once

#include <algorithm>
#include <array>

#include "core/rows.h"
#include "lanes/lanes.h"

namespace hux {

template <class T, int N>
struct FromRow {
  static constexpr int period = 1;
  const Element<T>* row;
  T rest = T(0);

  Lanes<T, N> load(Index i, int) const { return loadLanes<Lanes<T, N>>(row + i); }
  Lanes<T, N> load(Index i, int, int count) const { return loadLanes<Lanes<T, N>>(row + i, count, rest); }
};

// Constants of a pixel, repeated over as many vectors as it takes for a pixel to start at lane 0 again.
template <class L, class T, int N>
struct Repeat {
  static constexpr int period = L::channels == 3 ? 3 : 1;
  Lanes<T, N> constants[period];

  explicit Repeat(const Element<T>* pixel) {
    for (int i = 0; i < period * N; ++i)
      constants[i / N][i % N] = i % L::channels < L::processed ? T(pixel[i % L::channels]) : T(0);
  }
  Lanes<T, N> load(Index, int phase) const { return constants[phase]; }
  Lanes<T, N> load(Index, int phase, int) const { return constants[phase]; }
};

namespace detail {

// Of four elements each, `colours` are stored. The layout shows in nothing else, so that the loops of most are one.
template <int colours, class D, class Rule, class... Operands>
Rule applyToElements(Element<D>* dst, Index elements, Rule rule, Operands... operands) {
  constexpr int lanes = Rule::lanes;
  constexpr int period = std::max({1, Operands::period...});
  using Result = decltype(rule(operands.load(0, 0)...));
  constexpr int joined = period == 1 ? kJoined<D, Result> : 1;
  const auto put = [&](Index at, auto v) {
    if constexpr (colours == 4)
      storeLanes(dst + at, v);
    else
      storeColours<colours>(dst + at, v);
  };
  Index i = 0;
  if constexpr (joined > 1)
    for (; i + joined * lanes <= elements; i += joined * lanes) {
      std::array<Result, joined> results;
      for (int k = 0; k < joined; ++k) results[std::size_t(k)] = rule(operands.load(i + k * lanes, 0)...);
      put(i, saturate<D>(results));
    }
  // Short vectors go by two in a turn, for a turn takes two cycles even where there is little to do in it. Both are
  // loaded before one is stored, which no compiler may decide to do.
  if constexpr (kLaneBytes == 16 && period == 1 && joined == 1)
    for (; i + 2 * lanes <= elements; i += 2 * lanes) {
      const Lanes<D, lanes> first(saturate<D>(rule(operands.load(i, 0)...)));
      const Lanes<D, lanes> second(saturate<D>(rule(operands.load(i + lanes, 0)...)));
      put(i, first), put(i + lanes, second);
    }
  for (; i + period * lanes <= elements; i += period * lanes)
    for (int k = 0; k < period; ++k)
      put(i + k * lanes, Lanes<D, lanes>(saturate<D>(rule(operands.load(i + k * lanes, k)...))));
  for (int k = 0; i < elements; ++k, i += lanes) {
    const int count = int(std::min<Index>(lanes, elements - i));
    storeColours<colours>(dst + i, Lanes<D, lanes>(saturate<D>(rule(operands.load(i, k, count)...))), count);
  }
  return rule;
}

}  // namespace detail

// Applies the rule to n pixels of layout L and returns it, with whatever it has noted. Rule and operands are taken by
// value: what is kept behind a reference would have to be read again after every store.
template <class L, class D, class Rule, class... Operands>
Rule applyRule(Element<D>* dst, Index n, Rule rule, Operands... operands) {
  return detail::applyToElements < L::channels == 4 ? L::processed : 4 > (dst, n * L::channels, rule, operands...);
}

// The rule that moves its operand: a copy by layout.
template <class T>
struct Same {
  static constexpr int lanes = laneCount<T>;
  Lanes<T, lanes> operator()(Lanes<T, lanes> v) const { return v; }
};

// The usual shapes: n pixels of one row, or of two.
template <class L, class T, class D, class Rule>
Rule mapRow(const Element<T>* src, Element<D>* dst, Index n, Rule rule) {
  return applyRule<L>(dst, n, rule, FromRow<T, Rule::lanes>{src});
}
template <class L, class T, class U, class D, class Rule>
Rule zipRow(const Element<T>* src1, const Element<U>* src2, Element<D>* dst, Index n, Rule rule) {
  return applyRule<L>(dst, n, rule, FromRow<T, Rule::lanes>{src1}, FromRow<U, Rule::lanes>{src2});
}

}  // namespace hux
