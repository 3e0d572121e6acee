// CountInRange: how many elements of each channel lie within two bounds, both included.
#include "core/check.h"
#include "core/stamp.h"
#include "huxi_stats.h"
#include "lanes/elementwise.h"
#include "workers/reduce.h"

namespace hux {
namespace {

// Counters are 32 bits wide and wrap; those of bytes gather in bytes first.
template <class T>
struct InRange {
  static constexpr int lanes = laneCount<T>, steps = sizeof(T) == 1 ? 255 : std::numeric_limits<int>::max();
  using V = Lanes<T, lanes>;
  using Counts = Lanes<Word<T>, lanes>;
  struct State {
    V lower, upper;  // of the channels of the lanes
    Counts counts;
    std::array<Hux32u, sizeof(T) == 1 ? lanes : 0> settled;
  };
  // Not above the upper bound is what the other comparison does not say of a NaN, as which a bound may come.
  static Counts ones(const State& s, V v) { return Counts(v >= s.lower) & ~Counts(v > s.upper) & Word<T>(1); }
  static void add(State& s, V v) { s.counts += ones(s, v); }
  static void addPart(State& s, int count, const Element<T>* row) {
    Counts part = ones(s, loadLanes<V>(row, count, T(0)));
    for (int l = count; l < lanes; ++l) part[l] = 0;
    s.counts += part;
  }
  static void join(State& s, const State& other) {
    for (std::size_t l = 0; l < s.settled.size(); ++l) s.settled[l] += other.settled[l];
    if constexpr (sizeof(T) > 1) s.counts += other.counts;
  }
  static void settle(State& s) {
    if constexpr (sizeof(T) == 1) {
      for (int l = 0; l < lanes; ++l) s.settled[l] += s.counts[l];
      s.counts = Counts{};
    }
  }

  using Total = Hux32u;
  template <class F>
  static void eachLane(const State& s, F f) {
    for (int l = 0; l < lanes; ++l)
      if constexpr (sizeof(T) == 1)
        f(l, s.settled[l]);
      else
        f(l, s.counts[l]);
  }
  static Total merge(Total a, Total b) { return a + b; }
};

template <class L, class T>
HuxStatus boundsInOrder(const T* pLower, const T* pUpper) {
  for (int c = 0; c < L::processed; ++c)
    if (elements(pLower)[c] > elements(pUpper)[c]) return huxStsBadRange;
  return huxStsOk;
}

// Row pointers move in whole elements.
template <class L, class T>
HuxStatus countInRange(const T* pSrc, int srcStep, HuxiSize roi, int* pCounts, const T* pLower, const T* pUpper) {
  if (HuxStatus s = check(pointers(pSrc, pCounts, pLower, pUpper), steps(srcStep), size(roi),
                          [&] { return boundsInOrder<L>(pLower, pUpper); }))
    return s;
  using Fold = InRange<T>;
  Reduction<L, Fold> reduction([&](int first) {
    typename Fold::State state = {};
    for (int l = 0; l < Fold::lanes; ++l)
      if (const int c = (first + l) % L::channels; c < L::processed)
        state.lower[l] = elements(pLower)[c], state.upper[l] = elements(pUpper)[c];
    return state;
  });
  forEachRow(roi, rows<L>(pSrc, wholeElements<T>(srcStep)), [&](const auto* src, Index n) { reduction.row(n, src); });
  const auto totals = reduction.totals();
  for (int c = 0; c < L::processed; ++c) elements(pCounts)[c] = int(totals[c]);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                       \
  HuxStatus huxiCountInRange_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, int* pCounts, \
                                          hux::Constant<hux::l, Hux##t> lowerBound,                        \
                                          hux::Constant<hux::l, Hux##t> upperBound) {                      \
    return hux::countInRange<hux::l>(pSrc, srcStep, roiSize, pCounts, hux::pixelOf(lowerBound),            \
                                     hux::pixelOf(upperBound));                                            \
  }
HUX_STAMP(EXPORT, (8u, 32f), (C1, C3, AC4))
