// What the fixed filters share: their checks, and sums with given weights along a row or a column.
#pragma once

#include "lanes/elementwise.h"
#include "workers/passes.h"

namespace hux {

// A filter of any size; null where there is none for the mask. Row pointers move in whole elements.
template <class L, class T, class D>
HuxStatus runFixed(const T* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roi, const Passes<T, D>* filter) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep),
                          failUnless(filter != nullptr, huxStsBadMaskSize)))
    return s;
  runPasses(*filter, rows<L>(pSrc, wholeElements<T>(srcStep)), rows<L>(pDst, wholeElements<D>(dstStep)), roi,
            L::channels, L::processed);
  return huxStsOk;
}

template <class L, class Filter, class T, class D>
HuxStatus fixedFilter(const T* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roi) {
  return runFixed<L>(pSrc, srcStep, pDst, dstStep, roi, &passesOf<Filter, T, D>);
}
template <class L, class Filter3x3, class Filter5x5, class T, class D>
HuxStatus fixedFilter(const T* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roi, HuxiMaskSize mask) {
  return runFixed<L, T, D>(pSrc, srcStep, pDst, dstStep, roi,
                           mask == huxMskSize3x3   ? &passesOf<Filter3x3, T, D>
                           : mask == huxMskSize5x5 ? &passesOf<Filter5x5, T, D>
                                                   : nullptr);
}

template <class V>
inline constexpr bool isFloat = std::is_floating_point_v<LaneType<V>>;

// v * factor in the lanes' own type.
template <int factor, class V>
V times(V v) {
  return v * LaneType<V>(factor);
}

// Sums of what lies around v[0], pixels of a row or rows of a column, with the weights told from the first to the last.
// The order of the additions is that of the results in floats.
struct Sum3 {  // 1 1 1
  static constexpr int size = 3;
  static auto of(const auto& v) { return v[-1] + v[0] + v[1]; }
};
struct Sum5 {  // 1 1 1 1 1
  static constexpr int size = 5;
  static auto of(const auto& v) { return v[-2] + v[-1] + v[0] + v[1] + v[2]; }
};
struct Smooth3 {  // 1 2 1
  static constexpr int size = 3;
  static auto of(const auto& v) { return v[-1] + v[1] + v[0] + v[0]; }
};

}  // namespace hux
